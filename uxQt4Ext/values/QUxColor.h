#pragma once

#include "uxQt4ExtGlobal.h"

#include <QColor>
#include <QMetaType>

/**
 * The colour value of the colour editors: hue (degrees), saturation and value
 * as three floats, converted on demand to linear RGB, sRGB, CIE XYZ and
 * CIE L*a*b*. RGB is linear unless a name says "Gamma" or "SRGB".
 *
 * Values above 1 are kept (high-dynamic-range colours); clamping happens only
 * in the 8-bit and QColor getters.
 * @code
 * QUxColor orange(1.0f, 0.5f, 0.0f);   // linear RGB
 * orange.getHue();                      // 30
 * float L, a, b;
 * orange.getLab(L, a, b);
 * QColor shown = orange.getGammaQColor(); // display-encoded for painting
 * @endcode
 * The default constructor leaves the components uninitialised, so that large
 * arrays cost nothing until they are filled.
 */
class UXQT4EXT_EXPORT QUxColor
{
public:
    /// getGammaQColor() encodes to sRGB only while this is true.
    static bool s_useGamma;
    /// Display gamma published to hosts; the conversions use the sRGB curve.
    static float s_gamma;
    /// Extent of the a* and b* axes in the colour field.
    static float s_LabRange;
    static float s_reference_white_X;
    static float s_reference_white_Y;
    static float s_reference_white_Z;
    /// Linear RGB to XYZ for an equal-energy white (rows X, Y, Z).
    static const float RGBtoXYZ_mat[3][3];

    QUxColor() {} // NOLINT: uninitialised on purpose
    QUxColor(float r, float g, float b);
    QUxColor(int r, int g, int b);
    QUxColor(const QColor& color);
    QUxColor(const QUxColor&) = default;
    QUxColor(QUxColor&&) = default;
    QUxColor& operator=(const QUxColor&) = default;
    QUxColor& operator=(QUxColor&&) = default;

    bool operator==(const QUxColor& other) const;
    bool operator!=(const QUxColor& other) const { return !(*this == other); }

    void setHSV(float h, float s, float v);
    void setHue(float h) { m_hue = h; }
    void setSaturation(float s) { m_saturation = s; }
    void setValue(float v) { m_value = v; }
    void setRGB(float r, float g, float b);
    void setRed(float r);
    void setGreen(float g);
    void setBlue(float b);
    void setColor(const QUxColor& color) { *this = color; }
    void setColor(const QColor& color);
    void setSRGB(float r, float g, float b);
    void setGammaRGB(float r, float g, float b);
    void setGammaColor(const QUxColor& color);
    void setXYZ(float x, float y, float z);
    void setLab(float L, float a, float b);
    void setLstar(float L);
    void setAstar(float a);
    void setBstar(float b);

    float getHue() const { return m_hue; }
    float getSaturation() const { return m_saturation; }
    float getValue() const { return m_value; }
    void getHSV(float& h, float& s, float& v) const;
    void getRGB(float& r, float& g, float& b) const;
    float getRed() const;
    float getGreen() const;
    float getBlue() const;
    int getRedInt() const;
    int getGreenInt() const;
    int getBlueInt() const;
    void getSRGB(float& r, float& g, float& b) const;
    void getGammaRGB(float& r, float& g, float& b) const;
    void getGammaHSV(float& h, float& s, float& v) const;
    QUxColor getGammaColor() const;
    void getXYZ(float& x, float& y, float& z) const;
    void getXYZ_E(float& x, float& y, float& z) const;
    void getLab(float& L, float& a, float& b) const;
    float getLstar() const;
    float getAstar() const;
    float getBstar() const;
    QColor getQColor();
    QColor getClampedQColor();
    QColor getGammaQColor();

    static void RGBtoHSV(float r, float g, float b, float& h, float& s, float& v);
    static void HSVtoRGB(float h, float s, float v, float& r, float& g, float& b);
    static void RGBtoSRGB(float r, float g, float b, float& sr, float& sg, float& sb);
    static void SRGBtoRGB(float sr, float sg, float sb, float& r, float& g, float& b);
    static void RGBtoXYZ(float r, float g, float b, float& x, float& y, float& z);
    static void XYZtoRGB(float x, float y, float z, float& r, float& g, float& b);
    static void RGBtoXYZ_E(float r, float g, float b, float& x, float& y, float& z);
    static void XYZtoLAB(float x, float y, float z, float& L, float& a, float& b);
    static void LABtoXYZ(float L, float a, float b, float& x, float& y, float& z);
    static void LABtoXYZ_E(float L, float a, float b, float& x, float& y, float& z);
    static void RGBtoLAB(float r, float g, float b, float& L, float& la, float& lb);
    static void LABtoRGB(float L, float a, float b, float& r, float& g, float& bl);
    static void HSVtoXYZ(float h, float s, float v, float& x, float& y, float& z);
    static void XYZtoHSV(float x, float y, float z, float& h, float& s, float& v);
    static void HSVtoLAB(float h, float s, float v, float& L, float& a, float& b);
    static void LABtoHSV(float L, float a, float b, float& h, float& s, float& v);

    /// 0 below 0, 255 above 1, otherwise x * 255 truncated (0.999 gives 254).
    static int getClamped8Bit(const float& x);
    /// x limited to [0, 1]; NaN gives 0.
    static float getClamped(const float& x);
    /// Each channel limited to [0, 255].
    static void clampRGB8Bit(int& r, int& g, int& b);

private:
    float m_hue;
    float m_saturation;
    float m_value;
};

Q_DECLARE_METATYPE(QUxColor)
