#pragma once

#include "uxUtilsGlobal.h"

#include <QString>

/**
 * Platform queries of the host: DPI scale factors, icon sizes, edition and
 * version. This default implementation answers with desktop defaults; a host
 * (or a test) changes them with the setters.
 *
 * Icon sizes are given at scale 1 and returned multiplied by the DPI factor
 * of their axis:
 * @code
 * uxPlatform::setDpiScale(1.5, 1.5);
 * int h = uxPlatform::getSmallIconSizeY(); // 30
 * @endcode
 */
class UXUTILS_EXPORT uxPlatform
{
public:
    enum IconSize { MiniIcon, SmallIcon, MediumIcon, LargeIcon, TreeViewIcon };

    static double getDpiScaleX();
    static double getDpiScaleY();
    static void setDpiScale(double scaleX, double scaleY);

    static int getMiniIconSizeX();
    static int getMiniIconSizeY();
    static int getSmallIconSizeX();
    static int getSmallIconSizeY();
    static int getMediumIconSizeX();
    static int getMediumIconSizeY();
    static int getLargeIconSizeX();
    static int getLargeIconSizeY();
    static int getTreeViewIconSizeX();

    /// Base size of one icon class at scale 1.
    static void setIconBaseSize(IconSize which, int width, int height);
    static int iconBaseWidth(IconSize which);
    static int iconBaseHeight(IconSize which);

    static QString getAppVersionName();
    static void setAppVersionName(const QString& name);

    static bool isCorvaViewer();
    static bool isCorvaDesign();
    static bool isCorvaEssentials();
    enum Edition { Viewer, Design, Essentials };
    static void setEdition(Edition edition);

    /// Back to the defaults: scale 1, default icon sizes, Design edition.
    static void reset();
};
