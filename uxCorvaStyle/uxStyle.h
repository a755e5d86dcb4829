#pragma once

#include "uxCorvaStyleGlobal.h"

#include <QColor>

/// Colours of the host style that item views use for their text.
class UXCORVASTYLE_EXPORT uxStyle
{
public:
    /// Text of items the user may not edit: a muted amber.
    static QColor getLockedItemColor();
    /// Text of items that are switched off in the scene: a mid grey.
    static QColor getInactiveNodeColor();
};
