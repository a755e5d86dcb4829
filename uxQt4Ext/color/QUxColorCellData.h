#pragma once

#include "uxQt4ExtGlobal.h"

class QUxColor;

/**
 * One remembered colour of the shared palette behind every QUxColorArray:
 * hue (degrees), saturation and value, and whether the slot is still empty.
 * @code
 * QUxColorCellData cell;          // free, black
 * cell.setColor(QUxColor(1.0f, 0.0f, 0.0f));
 * cell.free;                      // false
 * @endcode
 */
struct UXQT4EXT_EXPORT QUxColorCellData
{
    QUxColorCellData();

    /// The stored colour as an HSV QUxColor.
    QUxColor color() const;
    /// Stores @p color's hue, saturation and value and marks the slot as used.
    void setColor(const QUxColor& color);

    float hue;
    float saturation;
    float value;
    bool free;
};
