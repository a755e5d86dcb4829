#include "uxTestSupport.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QTest>

namespace uxTest {

QImage grab(QWidget* widget) { return widget->grab().toImage().convertToFormat(QImage::Format_ARGB32); }

bool sameColor(const QColor& a, const QColor& b, int tolerance)
{
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance
           && qAbs(a.blue() - b.blue()) <= tolerance && qAbs(a.alpha() - b.alpha()) <= tolerance;
}

void moveMouse(QWidget* widget, const QPoint& pos, Qt::MouseButtons buttons)
{
    QMouseEvent move(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

void drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    moveMouse(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

void turnWheel(QWidget* widget, int delta, Qt::KeyboardModifiers modifiers)
{
    const QPointF pos(widget->width() / 2.0, widget->height() / 2.0);
    QWheelEvent event(pos, widget->mapToGlobal(pos.toPoint()), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void typeAndCommit(QWidget* field, const QString& text)
{
    auto* spin = qobject_cast<QAbstractSpinBox*>(field);
    if (!spin)
        spin = field->findChild<QAbstractSpinBox*>();
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, text);
    QTest::keyClick(spin, Qt::Key_Return);
}

} // namespace uxTest
