#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

namespace uxTest {

/// The widget painted into an image at device pixel ratio 1.
QImage grab(QWidget* widget);

/// True when every channel of @p a and @p b differs by at most @p tolerance.
bool sameColor(const QColor& a, const QColor& b, int tolerance = 0);

} // namespace uxTest
