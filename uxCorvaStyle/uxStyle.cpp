#include "uxStyle.h"

QColor uxStyle::getLockedItemColor() { return QColor(196, 140, 40); }

QColor uxStyle::getInactiveNodeColor() { return QColor(128, 128, 128); }
