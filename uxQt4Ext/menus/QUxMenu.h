#pragma once

#include "uxQt4ExtGlobal.h"

#include <QMenu>

#include <memory>

class QUxMenuPrivate;

/**
 * A menu drawn on a translucent background, so that the host's style sheet
 * can give it rounded corners and shadows.
 * @code
 * auto* menu = new QUxMenu(tr("View"), menuBar);
 * menu->addAction(tr("Reset camera"));
 * menuBar->addMenu(menu);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxMenu : public QMenu
{
    Q_OBJECT
public:
    explicit QUxMenu(QWidget* parent = nullptr);
    explicit QUxMenu(const QString& title, QWidget* parent = nullptr);
    ~QUxMenu() override;

private:
    std::unique_ptr<QUxMenuPrivate> const d;
};
