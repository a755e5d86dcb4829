#include "uxTestSupport.h"

#include <QtMath>

namespace uxTest {

QImage grab(QWidget* widget) { return widget->grab().toImage().convertToFormat(QImage::Format_ARGB32); }

bool sameColor(const QColor& a, const QColor& b, int tolerance)
{
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance
           && qAbs(a.blue() - b.blue()) <= tolerance && qAbs(a.alpha() - b.alpha()) <= tolerance;
}

} // namespace uxTest
