#include "QUxPushButton.h"

#include <QMouseEvent>

namespace {
Qt::MouseButton s_lastButton = Qt::NoButton;
} // namespace

// Kept so that per-button state can be added without changing the class layout.
class QUxPushButtonPrivate
{
};

QUxPushButton::QUxPushButton(QWidget* parent) : QPushButton(parent), d(new QUxPushButtonPrivate) {}

QUxPushButton::~QUxPushButton() = default;

void QUxPushButton::setLastMouseReleaseButton(Qt::MouseButton button) { s_lastButton = button; }

Qt::MouseButton QUxPushButton::getLastMouseReleaseButton() { return s_lastButton; }

void QUxPushButton::mouseReleaseEvent(QMouseEvent* event)
{
    switch (event->button()) {
    case Qt::RightButton:
        click();
        event->accept();
        break;
    case Qt::LeftButton:
        QAbstractButton::mouseReleaseEvent(event);
        break;
    default:
        break;
    }
}
