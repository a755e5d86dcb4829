#include "uxPlatform.h"

#include <QSize>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

namespace {

struct PlatformState
{
    double scaleX = 1.0;
    double scaleY = 1.0;
    std::array<QSize, 5> iconSizes = defaultIconSizes();
    QString versionName = QStringLiteral("1.0");
    uxPlatform::Edition edition = uxPlatform::Design;

    static std::array<QSize, 5> defaultIconSizes()
    {
        return {QSize(16, 16), QSize(20, 20), QSize(24, 24), QSize(32, 32), QSize(16, 16)};
    }
};

PlatformState& state()
{
    static PlatformState s;
    return s;
}

int scaled(int base, double scale) { return static_cast<int>(std::lround(std::min(base * scale, double(INT_MAX)))); }

bool known(uxPlatform::IconSize which) { return which >= uxPlatform::MiniIcon && which <= uxPlatform::TreeViewIcon; }

} // namespace

double uxPlatform::getDpiScaleX() { return state().scaleX; }
double uxPlatform::getDpiScaleY() { return state().scaleY; }

void uxPlatform::setDpiScale(double scaleX, double scaleY)
{
    // No display scales beyond 64: larger factors, NaN and infinities are
    // refused so that every scaled size still fits an int.
    const auto acceptable = [](double scale) { return scale > 0.0 && scale <= 64.0; };
    if (acceptable(scaleX))
        state().scaleX = scaleX;
    if (acceptable(scaleY))
        state().scaleY = scaleY;
}

int uxPlatform::iconBaseWidth(IconSize which) { return known(which) ? state().iconSizes[which].width() : 0; }
int uxPlatform::iconBaseHeight(IconSize which) { return known(which) ? state().iconSizes[which].height() : 0; }

void uxPlatform::setIconBaseSize(IconSize which, int width, int height)
{
    if (known(which))
        state().iconSizes[which] = QSize(qMax(1, width), qMax(1, height));
}

int uxPlatform::getMiniIconSizeX() { return scaled(iconBaseWidth(MiniIcon), getDpiScaleX()); }
int uxPlatform::getMiniIconSizeY() { return scaled(iconBaseHeight(MiniIcon), getDpiScaleY()); }
int uxPlatform::getSmallIconSizeX() { return scaled(iconBaseWidth(SmallIcon), getDpiScaleX()); }
int uxPlatform::getSmallIconSizeY() { return scaled(iconBaseHeight(SmallIcon), getDpiScaleY()); }
int uxPlatform::getMediumIconSizeX() { return scaled(iconBaseWidth(MediumIcon), getDpiScaleX()); }
int uxPlatform::getMediumIconSizeY() { return scaled(iconBaseHeight(MediumIcon), getDpiScaleY()); }
int uxPlatform::getLargeIconSizeX() { return scaled(iconBaseWidth(LargeIcon), getDpiScaleX()); }
int uxPlatform::getLargeIconSizeY() { return scaled(iconBaseHeight(LargeIcon), getDpiScaleY()); }
int uxPlatform::getTreeViewIconSizeX() { return scaled(iconBaseWidth(TreeViewIcon), getDpiScaleX()); }

QString uxPlatform::getAppVersionName() { return state().versionName; }
void uxPlatform::setAppVersionName(const QString& name) { state().versionName = name; }

bool uxPlatform::isCorvaViewer() { return state().edition == Viewer; }
bool uxPlatform::isCorvaDesign() { return state().edition == Design; }
bool uxPlatform::isCorvaEssentials() { return state().edition == Essentials; }
void uxPlatform::setEdition(Edition edition) { state().edition = edition; }

void uxPlatform::reset() { state() = PlatformState(); }
