#include "QUxColorCellData.h"

#include "QUxColor.h"

QUxColorCellData::QUxColorCellData() : hue(0.0f), saturation(0.0f), value(0.0f), free(true) {}

QUxColor QUxColorCellData::color() const
{
    QUxColor result;
    result.setHSV(hue, saturation, value);
    return result;
}

void QUxColorCellData::setColor(const QUxColor& color)
{
    color.getHSV(hue, saturation, value);
    free = false;
}
