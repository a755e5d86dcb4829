#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

namespace uxTest {

/// The widget painted into an image at device pixel ratio 1.
QImage grab(QWidget* widget);

/// True when every channel of @p a and @p b differs by at most @p tolerance.
bool sameColor(const QColor& a, const QColor& b, int tolerance = 0);

/// A move straight to @p widget: QTest moves the cursor, which reaches no widget offscreen.
void moveMouse(QWidget* widget, const QPoint& pos, Qt::MouseButtons buttons = Qt::LeftButton);

/// Left press at @p from, a move to @p to and the release there.
void drag(QWidget* widget, const QPoint& from, const QPoint& to);

/// A vertical mouse-wheel turn of @p delta (120 a notch) over the middle of @p widget.
void turnWheel(QWidget* widget, int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Replaces the text of the spin box in or under @p field by @p text and commits it with Return.
void typeAndCommit(QWidget* field, const QString& text);

} // namespace uxTest
