#include "QUxOpenMenu.h"

// Kept so that per-menu state can be added without changing the class layout.
class QUxOpenMenuPrivate
{
};

QUxOpenMenu::QUxOpenMenu(const QString& title, QWidget* parent) : QMenu(title, parent), d(new QUxOpenMenuPrivate) {}

QUxOpenMenu::~QUxOpenMenu() = default;

void QUxOpenMenu::setVisible(bool visible)
{
    if (visible)
        QWidget::setVisible(true);
}

void QUxOpenMenu::setVisibleNow(bool visible) { QWidget::setVisible(visible); }

void QUxOpenMenu::focusOutEvent(QFocusEvent* event)
{
    QWidget::setVisible(false);
    QWidget::focusOutEvent(event);
}

void QUxOpenMenu::leaveEvent(QEvent* event)
{
    QWidget::setVisible(false);
    QMenu::leaveEvent(event);
}
