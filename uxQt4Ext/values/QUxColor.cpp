#include "QUxColor.h"

#include <cmath>

bool QUxColor::s_useGamma = true;
float QUxColor::s_gamma = 2.2f;
float QUxColor::s_LabRange = 256.0f;
float QUxColor::s_reference_white_X = 0.95045596f;
float QUxColor::s_reference_white_Y = 1.0f;
float QUxColor::s_reference_white_Z = 1.0890578f;

const float QUxColor::RGBtoXYZ_mat[3][3] = {
    {0.43849581f, 0.39214021f, 0.16936402f},
    {0.22285376f, 0.70867276f, 0.068473659f},
    {0.017320810f, 0.11046009f, 0.87221909f},
};

namespace {

// Hue sector used for a hue of 360 or more: the very end of the last sector,
// so such hues stay a near-red instead of wrapping to pure red.
constexpr float kLastSectorEnd = 5.999833f;

constexpr float kLabEpsilon = 0.008856452f; // 216 / 24389
constexpr float kLabSlope = 7.7870374f;     // 841 / 108
constexpr float kLabOffset = 0.13793103f;   // 4 / 29
constexpr float kLabDelta = 0.20689656f;    // 6 / 29
constexpr float kLabInvSlope = 0.12841856f; // 108 / 841

// The transfer curves run in double precision: in single precision
// 1.055 - 0.055 falls just short of 1, and white would encode to 254.
float encodeSRGB(float x)
{
    const double v = x;
    return float(v <= 0.0031308 ? 12.92 * v : 1.055 * std::pow(v, 1.0 / 2.4) - 0.055);
}

float decodeSRGB(float x)
{
    const double v = x;
    return float(v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4));
}

float decodeSRGBClamped(float x)
{
    const double v = x;
    if (v <= 0.04045)
        return float(v / 12.92);
    return float(std::pow(std::max(0.0, (v + 0.055) / 1.055), 2.4));
}

float labForward(float t) { return t > kLabEpsilon ? std::cbrt(t) : t * kLabSlope + kLabOffset; }

float labInverse(float f) { return f > kLabDelta ? f * f * f : (f - kLabOffset) * kLabInvSlope; }

void labToRelativeXYZ(float L, float a, float b, float& x, float& y, float& z)
{
    const float fy = (L + 16.0f) / 116.0f;
    x = labInverse(fy + a / 500.0f);
    y = labInverse(fy);
    z = labInverse(fy - b / 200.0f);
}

} // namespace

QUxColor::QUxColor(float r, float g, float b) { RGBtoHSV(r, g, b, m_hue, m_saturation, m_value); }

QUxColor::QUxColor(int r, int g, int b) : QUxColor(float(r / 255.0), float(g / 255.0), float(b / 255.0)) {}

QUxColor::QUxColor(const QColor& color) : QUxColor(color.red(), color.green(), color.blue()) {}

bool QUxColor::operator==(const QUxColor& other) const
{
    return m_hue == other.m_hue && m_saturation == other.m_saturation && m_value == other.m_value;
}

void QUxColor::setHSV(float h, float s, float v)
{
    m_hue = h;
    m_saturation = s;
    m_value = v;
}

void QUxColor::setRGB(float r, float g, float b) { RGBtoHSV(r, g, b, m_hue, m_saturation, m_value); }

void QUxColor::setRed(float r)
{
    float old, g, b;
    getRGB(old, g, b);
    setRGB(r, g, b);
}

void QUxColor::setGreen(float g)
{
    float r, old, b;
    getRGB(r, old, b);
    setRGB(r, g, b);
}

void QUxColor::setBlue(float b)
{
    float r, g, old;
    getRGB(r, g, old);
    setRGB(r, g, b);
}

void QUxColor::setColor(const QColor& color) { *this = QUxColor(color); }

void QUxColor::setSRGB(float r, float g, float b) { setRGB(decodeSRGB(r), decodeSRGB(g), decodeSRGB(b)); }

void QUxColor::setGammaRGB(float r, float g, float b)
{
    setRGB(decodeSRGBClamped(r), decodeSRGBClamped(g), decodeSRGBClamped(b));
}

void QUxColor::setGammaColor(const QUxColor& color)
{
    float r, g, b;
    color.getRGB(r, g, b);
    setGammaRGB(r, g, b);
}

void QUxColor::setXYZ(float x, float y, float z)
{
    float r, g, b;
    XYZtoRGB(x, y, z, r, g, b);
    setRGB(r, g, b);
}

void QUxColor::setLab(float L, float a, float b) { LABtoHSV(L, a, b, m_hue, m_saturation, m_value); }

void QUxColor::setLstar(float L)
{
    float old, a, b;
    getLab(old, a, b);
    setLab(L, a, b);
}

void QUxColor::setAstar(float a)
{
    float L, old, b;
    getLab(L, old, b);
    setLab(L, a, b);
}

void QUxColor::setBstar(float b)
{
    float L, a, old;
    getLab(L, a, old);
    setLab(L, a, b);
}

void QUxColor::getHSV(float& h, float& s, float& v) const
{
    h = m_hue;
    s = m_saturation;
    v = m_value;
}

void QUxColor::getRGB(float& r, float& g, float& b) const { HSVtoRGB(m_hue, m_saturation, m_value, r, g, b); }

float QUxColor::getRed() const
{
    float r, g, b;
    getRGB(r, g, b);
    return r;
}

float QUxColor::getGreen() const
{
    float r, g, b;
    getRGB(r, g, b);
    return g;
}

float QUxColor::getBlue() const
{
    float r, g, b;
    getRGB(r, g, b);
    return b;
}

int QUxColor::getRedInt() const { return getClamped8Bit(getRed()); }
int QUxColor::getGreenInt() const { return getClamped8Bit(getGreen()); }
int QUxColor::getBlueInt() const { return getClamped8Bit(getBlue()); }

void QUxColor::getSRGB(float& r, float& g, float& b) const
{
    float lr, lg, lb;
    getRGB(lr, lg, lb);
    RGBtoSRGB(lr, lg, lb, r, g, b);
}

void QUxColor::getGammaRGB(float& r, float& g, float& b) const
{
    float lr, lg, lb;
    getRGB(lr, lg, lb);
    RGBtoSRGB(std::max(lr, 0.0f), std::max(lg, 0.0f), std::max(lb, 0.0f), r, g, b);
}

void QUxColor::getGammaHSV(float& h, float& s, float& v) const
{
    float r, g, b;
    getGammaRGB(r, g, b);
    RGBtoHSV(r, g, b, h, s, v);
}

QUxColor QUxColor::getGammaColor() const
{
    float r, g, b;
    getGammaRGB(r, g, b);
    return QUxColor(r, g, b);
}

void QUxColor::getXYZ(float& x, float& y, float& z) const { HSVtoXYZ(m_hue, m_saturation, m_value, x, y, z); }

void QUxColor::getXYZ_E(float& x, float& y, float& z) const
{
    float r, g, b;
    getRGB(r, g, b);
    RGBtoXYZ_E(r, g, b, x, y, z);
}

void QUxColor::getLab(float& L, float& a, float& b) const { HSVtoLAB(m_hue, m_saturation, m_value, L, a, b); }

float QUxColor::getLstar() const
{
    float L, a, b;
    getLab(L, a, b);
    return L;
}

float QUxColor::getAstar() const
{
    float L, a, b;
    getLab(L, a, b);
    return a;
}

float QUxColor::getBstar() const
{
    float L, a, b;
    getLab(L, a, b);
    return b;
}

QColor QUxColor::getQColor()
{
    float r, g, b;
    getRGB(r, g, b);
    return QColor(getClamped8Bit(r), getClamped8Bit(g), getClamped8Bit(b), 255);
}

QColor QUxColor::getClampedQColor()
{
    float r, g, b;
    getRGB(r, g, b);
    QColor color;
    color.setRgbF(getClamped(r), getClamped(g), getClamped(b), 1.0);
    return color;
}

QColor QUxColor::getGammaQColor()
{
    if (!s_useGamma)
        return getQColor();
    float r, g, b;
    getGammaRGB(r, g, b);
    return QColor(getClamped8Bit(r), getClamped8Bit(g), getClamped8Bit(b), 255);
}

void QUxColor::RGBtoHSV(float r, float g, float b, float& h, float& s, float& v)
{
    float m;
    if (r >= g && r >= b) {
        v = r;
        m = std::min(g, b);
        h = (m == r) ? 0.0f : (g - b) * 60.0f / (r - m);
    } else if (g >= r && g >= b) {
        v = g;
        m = std::min(r, b);
        h = (m == g) ? 0.0f : (b - r) * 60.0f / (g - m) + 120.0f;
    } else {
        v = b;
        m = std::min(g, r);
        h = (m == b) ? 0.0f : (r - g) * 60.0f / (b - m) + 240.0f;
    }
    if (h < 0.0f)
        h += 360.0f;
    s = (v == 0.0f) ? 0.0f : (v - m) / v;
}

void QUxColor::HSVtoRGB(float h, float s, float v, float& r, float& g, float& b)
{
    float p = h < 360.0f ? h / 60.0f : kLastSectorEnd;
    if (h < 0.0f)
        p = 0.0f;
    const int i = static_cast<int>(p);
    const float f = p - static_cast<float>(i);
    const float lo = v * (1.0f - s);
    const float down = v * (1.0f - s * f);
    const float up = v * (1.0f - s * (1.0f - f));
    switch (i) {
    case 0:
        r = v;
        g = up;
        b = lo;
        break;
    case 1:
        r = down;
        g = v;
        b = lo;
        break;
    case 2:
        r = lo;
        g = v;
        b = up;
        break;
    case 3:
        r = lo;
        g = down;
        b = v;
        break;
    case 4:
        r = up;
        g = lo;
        b = v;
        break;
    default:
        r = v;
        g = lo;
        b = down;
        break;
    }
}

void QUxColor::RGBtoSRGB(float r, float g, float b, float& sr, float& sg, float& sb)
{
    sr = encodeSRGB(r);
    sg = encodeSRGB(g);
    sb = encodeSRGB(b);
}

void QUxColor::SRGBtoRGB(float sr, float sg, float sb, float& r, float& g, float& b)
{
    r = decodeSRGB(sr);
    g = decodeSRGB(sg);
    b = decodeSRGB(sb);
}

void QUxColor::RGBtoXYZ(float r, float g, float b, float& x, float& y, float& z)
{
    x = 0.4124564f * r + 0.3575761f * g + 0.1804375f * b;
    y = 0.2126729f * r + 0.7151522f * g + 0.072175f * b;
    z = 0.0193339f * r + 0.119192f * g + 0.9503041f * b;
}

void QUxColor::XYZtoRGB(float x, float y, float z, float& r, float& g, float& b)
{
    r = 3.2404542f * x - 1.5371385f * y - 0.4985314f * z;
    g = -0.969266f * x + 1.8760108f * y + 0.041556f * z;
    b = 0.0556434f * x - 0.2040259f * y + 1.0572252f * z;
}

void QUxColor::RGBtoXYZ_E(float r, float g, float b, float& x, float& y, float& z)
{
    const auto& m = RGBtoXYZ_mat;
    x = m[0][0] * r + m[0][1] * g + m[0][2] * b;
    y = m[1][0] * r + m[1][1] * g + m[1][2] * b;
    z = m[2][0] * r + m[2][1] * g + m[2][2] * b;
}

void QUxColor::XYZtoLAB(float x, float y, float z, float& L, float& a, float& b)
{
    const float fx = labForward(x / s_reference_white_X);
    const float fy = labForward(y / s_reference_white_Y);
    const float fz = labForward(z / s_reference_white_Z);
    L = 116.0f * fy - 16.0f;
    a = 500.0f * (fx - fy);
    b = 200.0f * (fy - fz);
}

void QUxColor::LABtoXYZ(float L, float a, float b, float& x, float& y, float& z)
{
    labToRelativeXYZ(L, a, b, x, y, z);
    x *= s_reference_white_X;
    y *= s_reference_white_Y;
    z *= s_reference_white_Z;
}

void QUxColor::LABtoXYZ_E(float L, float a, float b, float& x, float& y, float& z)
{
    labToRelativeXYZ(L, a, b, x, y, z);
}

void QUxColor::RGBtoLAB(float r, float g, float b, float& L, float& la, float& lb)
{
    float x, y, z;
    RGBtoXYZ(r, g, b, x, y, z);
    XYZtoLAB(x, y, z, L, la, lb);
}

void QUxColor::LABtoRGB(float L, float a, float b, float& r, float& g, float& bl)
{
    float x, y, z;
    LABtoXYZ(L, a, b, x, y, z);
    XYZtoRGB(x, y, z, r, g, bl);
}

void QUxColor::HSVtoXYZ(float h, float s, float v, float& x, float& y, float& z)
{
    float r, g, b;
    HSVtoRGB(h, s, v, r, g, b);
    RGBtoXYZ(r, g, b, x, y, z);
}

void QUxColor::XYZtoHSV(float x, float y, float z, float& h, float& s, float& v)
{
    float r, g, b;
    XYZtoRGB(x, y, z, r, g, b);
    RGBtoHSV(r, g, b, h, s, v);
}

void QUxColor::HSVtoLAB(float h, float s, float v, float& L, float& a, float& b)
{
    float r, g, bl;
    HSVtoRGB(h, s, v, r, g, bl);
    RGBtoLAB(r, g, bl, L, a, b);
}

void QUxColor::LABtoHSV(float L, float a, float b, float& h, float& s, float& v)
{
    float r, g, bl;
    LABtoRGB(L, a, b, r, g, bl);
    RGBtoHSV(r, g, bl, h, s, v);
}

int QUxColor::getClamped8Bit(const float& x)
{
    if (!(x >= 0.0f)) // NaN included: an undefined channel draws as black
        return 0;
    if (x > 1.0f)
        return 255;
    return static_cast<int>(x * 255.0f);
}

float QUxColor::getClamped(const float& x)
{
    if (!(x >= 0.0f)) // NaN included, as in getClamped8Bit: QColor must never see it
        return 0.0f;
    return std::min(x, 1.0f);
}

void QUxColor::clampRGB8Bit(int& r, int& g, int& b)
{
    for (int* c : {&r, &g, &b}) {
        if (*c < 0)
            *c = 0;
        else if (*c >= 256)
            *c = 255;
    }
}
