#include "QUxToolButton.h"

#include <uxPlatform.h>

#include <QKeyEvent>
#include <QPainter>
#include <QPolygon>

#include <cmath>
#include <set>

namespace {

std::set<QUxToolButton*>& liveButtons()
{
    static std::set<QUxToolButton*> buttons;
    return buttons;
}

bool s_showButtonText = false;

// Truncates toward zero; a non-finite or out-of-range value (from a host scale) gives 0 instead of undefined behaviour.
int truncated(double value)
{
    if (!std::isfinite(value) || std::fabs(value) >= 1e9)
        return 0;
    return int(value);
}

void keyHandling(QKeyEvent* event)
{
    // Space goes on to the parent; every other key stops here so the button cannot be triggered from the keyboard.
    if (event->key() == Qt::Key_Space)
        event->ignore();
}

} // namespace

// Kept so that per-button state can be added without changing the class layout.
class QUxToolButtonPrivate
{
};

QUxToolButton::QUxToolButton(QWidget* parent) : QToolButton(parent), d(new QUxToolButtonPrivate)
{
    liveButtons().insert(this);
    if (s_showButtonText)
        setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
}

QUxToolButton::~QUxToolButton() { liveButtons().erase(this); }

void QUxToolButton::showButtonText(bool on)
{
    s_showButtonText = on;
    const Qt::ToolButtonStyle style = on ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly;
    for (QUxToolButton* button : liveButtons())
        button->setToolButtonStyle(style);
}

bool QUxToolButton::buttonTextShown() { return s_showButtonText; }

void QUxToolButton::keyPressEvent(QKeyEvent* event) { keyHandling(event); }

void QUxToolButton::keyReleaseEvent(QKeyEvent* event) { keyHandling(event); }

void QUxToolButton::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);
    if (!menu())
        return;
    const double sx = uxPlatform::getDpiScaleX();
    const double sy = uxPlatform::getDpiScaleY();
    const int w = width();
    const int h = height();
    // Icon only: the arrow sits low; with text under the icon it sits at half height, a little further in.
    const int m = s_showButtonText ? h / 2 : (2 * h) / 3;
    const double inset = s_showButtonText ? 1.0 : 0.0;
    const QPolygon triangle({QPoint(truncated(w - (9 + inset) * sx), truncated(m + sy)),
                             QPoint(truncated(w - (5 + inset) * sx), truncated(m + 5 * sy)),
                             QPoint(truncated(w - (1 + inset) * sx), truncated(m + sy))});
    const QColor grey(155, 155, 155);
    QPainter painter(this);
    painter.setPen(QPen(QBrush(grey), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(QBrush(grey, Qt::SolidPattern));
    painter.drawPolygon(triangle, Qt::OddEvenFill);
}
