#pragma once

#include "uxIconManagerGlobal.h"

#include <QIcon>

/// Icons that many views share, created once on first use.
class UXICONMANAGER_EXPORT uxIconCache
{
public:
    static const QIcon& getListIcon();
    static const QIcon& getGridIcon();
};
