#pragma once

#include "uxQt4ExtGlobal.h"

#include <QMenu>

#include <memory>

class QUxAnimatedMenuPrivate;

/**
 * A menu that fades in each time it opens: it becomes fully transparent just
 * before it shows, then a 1 ms timer raises its opacity by one three-hundredth
 * a tick until it is opaque.
 * @code
 * auto* menu = new QUxAnimatedMenu(tr("Recent"), window);
 * menu->addAction(tr("scene.cva"));
 * menu->popup(QCursor::pos());
 * @endcode
 */
class UXQT4EXT_EXPORT QUxAnimatedMenu : public QMenu
{
    Q_OBJECT
public:
    explicit QUxAnimatedMenu(QWidget* parent = nullptr);
    explicit QUxAnimatedMenu(const QString& title, QWidget* parent = nullptr);
    ~QUxAnimatedMenu() override;

public slots:
    void makeTransparent();
    /// One fade step; the timer calls it, and so can a host that drives the fade itself.
    void fadeIn();

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<QUxAnimatedMenuPrivate> const d;
};
