#pragma once

#include "uxQt4ExtGlobal.h"

#include <QToolBar>

#include <memory>

class QUxToolBarPrivate;

/**
 * The host's tool bar. Its buttons follow one process-wide switch: text under
 * the icons and wider buttons, or icons only. Every add restyles all buttons
 * of the bar, and showButtonText() restyles every live bar. A bar named
 * "QuickActionBar" keeps a compact style and its tool button style.
 * @code
 * auto* bar = new QUxToolBar(tr("Navigation"), window);
 * bar->addAction(orbitAction);
 * QUxToolBar::showButtonText(true);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxToolBar : public QToolBar
{
    Q_OBJECT
public:
    explicit QUxToolBar(QWidget* parent = nullptr);
    explicit QUxToolBar(const QString& title, QWidget* parent = nullptr);
    ~QUxToolBar() override;

    using QToolBar::addAction;
    virtual void addAction(QAction* action);
    virtual void insertAction(QAction* before, QAction* action);
    virtual QAction* addWidget(QWidget* widget);
    virtual QAction* insertWidget(QAction* before, QWidget* widget);

    static void showButtonText(bool show);
    static bool buttonTextShown();

private:
    void updateToolButtonStyle();

    std::unique_ptr<QUxToolBarPrivate> const d;
};
