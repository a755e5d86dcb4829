#include "uxIconCache.h"

#include "uxIconManager.h"

const QIcon& uxIconCache::getListIcon()
{
    static const QIcon icon = uxIconManager::getIcon("General/ListView.svg", "");
    return icon;
}

const QIcon& uxIconCache::getGridIcon()
{
    static const QIcon icon = uxIconManager::getIcon("General/GridView.svg", "");
    return icon;
}
