#pragma once

#include "uxQt4ExtGlobal.h"

#include <QVariant>

class QWidget;

/**
 * Font propagation and the dynamic properties that the host's style sheet
 * reads ("multiselect", "inputAcceptable").
 * @code
 * // style sheet: QUxDoubleSpiner[multiselect="true"] { background: #553; }
 * uxUIStyle::setMultiSelectHighlight(spinner, true);
 * @endcode
 */
class UXQT4EXT_EXPORT uxUIStyle
{
public:
    /// Gives @p target the family and size of @p source's font, keeping its other attributes.
    static void applyFont(QWidget* source, QWidget* target);
    /// Sets a style-sheet property and repolishes, only when the value changes.
    static void setControlProperty(QWidget* w, const char* name, const QVariant& v);
    /// Sets "multiselect" to true, or clears it, on @p w and on the inner widgets of composite controls.
    static void setMultiSelectHighlight(QWidget* w, bool on);
};
