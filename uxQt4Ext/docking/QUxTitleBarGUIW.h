#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>

class QLabel;
class QToolButton;
class QUxDragModuleLabel;

namespace Ui {
class QUxTitleBarGUI;
}

/**
 * The compact title bar of a module window: module icon, title and three
 * small buttons (allow docking, dock/undock, close), laid out by the
 * "QUxTitleBarGUI" form. Style sheets address the parts by object name
 * ("_titleBarName", "_docking", "_dock", "_close", "_icon").
 * @code
 * auto* bar = new QUxTitleBarGUIW(nullptr, tr("Materials"));
 * dock->setTitleBarWidget(bar);
 * connect(bar->closeButton(), &QToolButton::clicked, dock, &QWidget::close);
 * @endcode
 * QUxDockWidget builds, wires and owns one for each module window.
 */
class UXQT4EXT_EXPORT QUxTitleBarGUIW : public QWidget
{
    Q_OBJECT

public:
    explicit QUxTitleBarGUIW(QWidget* parent = nullptr, const QString& title = QString());
    ~QUxTitleBarGUIW() override;

    QLabel* titleLabel() const;
    QToolButton* dockButton() const;
    QToolButton* closeButton() const;
    QToolButton* dockingButton() const;
    QUxDragModuleLabel* iconLabel() const;

private:
    std::unique_ptr<Ui::QUxTitleBarGUI> const ui;
};
