#pragma once

#include "uxIconManagerGlobal.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

#include <string>

/**
 * Icons of the host by name. Names are paths below the icon tree
 * ("General/CloseOffNormal.svg"), with or without the ".svg" extension, or a
 * bare icon name ("Search") that is looked up in every folder of the tree.
 * An unknown name gives a null icon or pixmap.
 * @code
 * QIcon close = uxIconManager::getIcon("Close", "");
 * QPixmap lock = uxIconManager::get("General/LockOffNormal.svg");
 * @endcode
 */
class UXICONMANAGER_EXPORT uxIconManager
{
public:
    /// @p secondName, when not empty, names the image of the checked (On) state.
    static QIcon getIcon(const std::string& name, const std::string& secondName);
    static QIcon getIcon(const std::string& name, int width, int height, const std::string& secondName);
    static QPixmap get(const char* name);
    static QPixmap renderPixmap(const QString& name, int width, int height);

    /// Resource path of @p name, or an empty string when there is no such icon.
    static QString resolve(const QString& name);
};
