#include "QUxColorField.h"

#include <uxPlatform.h>

#include <QEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QtMath>

#include <cfloat>
#include <cmath>
#include <iterator>
#include <vector>

namespace {

// The hue axis stops short of 360 so that the right edge stays red-magenta
// instead of wrapping to the red at the left edge.
constexpr float kHueAxisEnd = 359.99f;
constexpr float kLabAxisSpan = 256.0f;
constexpr float kLstarAxisEnd = 100.0f;
constexpr float kConstantTolerance = 0.001f;
// The colour is held as HSV, so an RGB or L*a*b* channel read back carries the
// rounding of the conversions. A channel setter given a value within this much
// of the current one changes nothing: setting the same value twice stays quiet.
constexpr float kRgbPrecision = 1e-6f;
constexpr float kLabPrecision = 1e-4f;
constexpr int kHintSize = 256;
constexpr qreal kOuterRingRadius = 3.0;
constexpr qreal kInnerRingRadius = 2.0;

bool isValidMode(int mode) { return mode >= QUxColorField::Hue && mode <= QUxColorField::Bstar; }

/// Left-to-right fraction of a pixel column; the same mapping for picks and painting.
float columnFraction(int x, int width) { return qBound(0.0f, float(x) / float(width), 1.0f); }

/// Bottom-to-top fraction of a pixel row.
float rowFraction(int y, int height) { return qBound(0.0f, 1.0f - float(y) / float(height), 1.0f); }

float hueAt(float fraction) { return fraction * kHueAxisEnd; }
float labAxisAt(float fraction) { return (fraction - 0.5f) * kLabAxisSpan; }
float lstarAt(float fraction) { return fraction * kLstarAxisEnd; }

// ---------------------------------------------------------------------------
// 8-bit pixel levels.

/**
 * Maps a linear channel to the 8-bit level QUxColor::getQColor gives it: the
 * plane shows the picked linear RGB as it is, with no display encoding, so
 * that its pixels do not change with the class-wide gamma switch.
 */
struct ChannelEncoder
{
    uint operator()(float x) const
    {
        if (!(x > 0.0f)) // negatives are clamped to black; so is NaN
            return 0;
        if (x >= 1.0f)
            return 255;
        return uint(x * 255.0f);
    }
};

const ChannelEncoder& displayEncoder()
{
    static const ChannelEncoder encoder{};
    return encoder;
}

inline QRgb opaque(uint r, uint g, uint b) { return 0xff000000u | (r << 16) | (g << 8) | b; }

// ---------------------------------------------------------------------------
// Plane computation. Work that depends only on the column or only on the row
// is done once per column or row; the inner loops write straight into the
// image's scan lines.

/**
 * A hue as the weights w of the HSV formula channel = v * (1 - s * w):
 * 0 for the channel at full value, 1 for the one at v * (1 - s), f or 1 - f
 * for the ramps. Gives bit-identical results to QUxColor::HSVtoRGB.
 */
struct HueWeights
{
    float r, g, b;
};

HueWeights hueWeights(float hue)
{
    float p = hue < 360.0f ? hue / 60.0f : 5.999833f;
    if (hue < 0.0f)
        p = 0.0f;
    const int sector = int(p);
    const float f = p - float(sector);
    const float rise = 1.0f - f;
    switch (sector) {
    case 0:
        return {0.0f, rise, 1.0f};
    case 1:
        return {f, 0.0f, 1.0f};
    case 2:
        return {1.0f, 0.0f, rise};
    case 3:
        return {1.0f, f, 0.0f};
    case 4:
        return {rise, 1.0f, 0.0f};
    default:
        return {0.0f, 1.0f, f};
    }
}

struct Axes
{
    std::vector<float> x; ///< fraction per column
    std::vector<float> y; ///< fraction per row
};

Axes axesOf(const QImage& image)
{
    Axes axes{std::vector<float>(size_t(image.width())), std::vector<float>(size_t(image.height()))};
    for (int col = 0; col < image.width(); ++col)
        axes.x[size_t(col)] = columnFraction(col, image.width());
    for (int row = 0; row < image.height(); ++row)
        axes.y[size_t(row)] = rowFraction(row, image.height());
    return axes;
}

inline QRgb* line(QImage& image, int row) { return reinterpret_cast<QRgb*>(image.scanLine(row)); }

/// Per-column factors (1 - s * w) of the three channels.
struct ColumnFactors
{
    explicit ColumnFactors(size_t n) : r(n), g(n), b(n) {}
    std::vector<float> r, g, b;
};

/// Hue and saturation modes: channel = value(row) * factor(column).
void fillValueTimesColumn(QImage& image, const std::vector<float>& rowValue, const ColumnFactors& f)
{
    const ChannelEncoder& enc = displayEncoder();
    const int width = image.width();
    for (int row = 0; row < image.height(); ++row) {
        const float v = rowValue[size_t(row)];
        QRgb* out = line(image, row);
        for (int col = 0; col < width; ++col)
            out[col] = opaque(enc(v * f.r[size_t(col)]), enc(v * f.g[size_t(col)]), enc(v * f.b[size_t(col)]));
    }
}

void renderHuePlane(QImage& image, float hue, const Axes& axes)
{
    const HueWeights w = hueWeights(hue);
    ColumnFactors factors(axes.x.size());
    for (size_t col = 0; col < axes.x.size(); ++col) {
        const float s = axes.x[col];
        factors.r[col] = 1.0f - s * w.r;
        factors.g[col] = 1.0f - s * w.g;
        factors.b[col] = 1.0f - s * w.b;
    }
    fillValueTimesColumn(image, axes.y, factors);
}

void renderSaturationPlane(QImage& image, float saturation, const Axes& axes)
{
    ColumnFactors factors(axes.x.size());
    for (size_t col = 0; col < axes.x.size(); ++col) {
        const HueWeights w = hueWeights(hueAt(axes.x[col]));
        factors.r[col] = 1.0f - saturation * w.r;
        factors.g[col] = 1.0f - saturation * w.g;
        factors.b[col] = 1.0f - saturation * w.b;
    }
    fillValueTimesColumn(image, axes.y, factors);
}

void renderValuePlane(QImage& image, float value, const Axes& axes)
{
    std::vector<HueWeights> weights(axes.x.size());
    for (size_t col = 0; col < axes.x.size(); ++col)
        weights[col] = hueWeights(hueAt(axes.x[col]));
    const ChannelEncoder& enc = displayEncoder();
    const int width = image.width();
    for (int row = 0; row < image.height(); ++row) {
        const float s = axes.y[size_t(row)];
        QRgb* out = line(image, row);
        for (int col = 0; col < width; ++col) {
            const HueWeights& w = weights[size_t(col)];
            out[col] =
                opaque(enc(value * (1.0f - s * w.r)), enc(value * (1.0f - s * w.g)), enc(value * (1.0f - s * w.b)));
        }
    }
}

/// RGB modes: each channel depends on one axis only, so every pixel is an OR
/// of three pre-encoded, pre-shifted bytes. Shifts: red 16, green 8, blue 0.
void renderRgbPlane(QImage& image, float constant, int constantShift, int xShift, int yShift, const Axes& axes)
{
    const ChannelEncoder& enc = displayEncoder();
    std::vector<QRgb> columnBits(axes.x.size());
    for (size_t col = 0; col < axes.x.size(); ++col)
        columnBits[col] = enc(axes.x[col]) << xShift;
    const QRgb fixedBits = 0xff000000u | (enc(constant) << constantShift);
    const int width = image.width();
    for (int row = 0; row < image.height(); ++row) {
        const QRgb rowBits = fixedBits | (enc(axes.y[size_t(row)]) << yShift);
        QRgb* out = line(image, row);
        for (int col = 0; col < width; ++col)
            out[col] = rowBits | columnBits[size_t(col)];
    }
}

/// CIE L*a*b* to linear RGB, split so that each mode can hoist the parts that
/// depend on one axis only. Same formulas and operation order as QUxColor.
struct LabInverse
{
    float whiteX = QUxColor::s_reference_white_X;
    float whiteY = QUxColor::s_reference_white_Y;
    float whiteZ = QUxColor::s_reference_white_Z;

    static float fOfL(float L) { return (L + 16.0f) / 116.0f; }
    static float expand(float f) { return f > 0.20689656f ? f * f * f : (f - 0.13793103f) * 0.12841856f; }
    float X(float fy, float a) const { return expand(fy + a / 500.0f) * whiteX; }
    float Y(float fy) const { return expand(fy) * whiteY; }
    float Z(float fy, float b) const { return expand(fy - b / 200.0f) * whiteZ; }
};

/// One row of the XYZ-to-RGB matrix.
struct MatrixRow
{
    float x, y, z;
};
constexpr MatrixRow kToRed{3.2404542f, -1.5371385f, -0.4985314f};
constexpr MatrixRow kToGreen{-0.969266f, 1.8760108f, 0.041556f};
constexpr MatrixRow kToBlue{0.0556434f, -0.2040259f, 1.0572252f};

struct Rgb
{
    float r, g, b;
};

/// The X and Y terms of the matrix product, to be completed with Z.
Rgb xyTerms(float X, float Y)
{
    return {kToRed.x * X + kToRed.y * Y, kToGreen.x * X + kToGreen.y * Y, kToBlue.x * X + kToBlue.y * Y};
}

inline QRgb encodeXyz(const ChannelEncoder& enc, const Rgb& xy, float Z)
{
    return opaque(enc(xy.r + kToRed.z * Z), enc(xy.g + kToGreen.z * Z), enc(xy.b + kToBlue.z * Z));
}

/// L* held: X depends on the column (a*), Z on the row (b*).
void renderLstarPlane(QImage& image, float L, const Axes& axes)
{
    const LabInverse lab;
    const float fy = LabInverse::fOfL(L);
    const float Y = lab.Y(fy);
    std::vector<Rgb> columnTerms(axes.x.size());
    for (size_t col = 0; col < axes.x.size(); ++col)
        columnTerms[col] = xyTerms(lab.X(fy, labAxisAt(axes.x[col])), Y);
    const ChannelEncoder& enc = displayEncoder();
    const int width = image.width();
    for (int row = 0; row < image.height(); ++row) {
        const float Z = lab.Z(fy, labAxisAt(axes.y[size_t(row)]));
        QRgb* out = line(image, row);
        for (int col = 0; col < width; ++col)
            out[col] = encodeXyz(enc, columnTerms[size_t(col)], Z);
    }
}

/// a* held: X and Y depend on the row (L*), Z on the row and the column (b*).
void renderAstarPlane(QImage& image, float a, const Axes& axes)
{
    const LabInverse lab;
    std::vector<float> bStar(axes.x.size());
    for (size_t col = 0; col < axes.x.size(); ++col)
        bStar[col] = labAxisAt(axes.x[col]);
    const ChannelEncoder& enc = displayEncoder();
    const int width = image.width();
    for (int row = 0; row < image.height(); ++row) {
        const float fy = LabInverse::fOfL(lstarAt(axes.y[size_t(row)]));
        const Rgb rowTerms = xyTerms(lab.X(fy, a), lab.Y(fy));
        QRgb* out = line(image, row);
        for (int col = 0; col < width; ++col)
            out[col] = encodeXyz(enc, rowTerms, lab.Z(fy, bStar[size_t(col)]));
    }
}

/// b* held: Y and Z depend on the row (L*), X on the row and the column (a*).
void renderBstarPlane(QImage& image, float b, const Axes& axes)
{
    const LabInverse lab;
    std::vector<float> aStar(axes.x.size());
    for (size_t col = 0; col < axes.x.size(); ++col)
        aStar[col] = labAxisAt(axes.x[col]);
    const ChannelEncoder& enc = displayEncoder();
    const int width = image.width();
    for (int row = 0; row < image.height(); ++row) {
        const float fy = LabInverse::fOfL(lstarAt(axes.y[size_t(row)]));
        const float Y = lab.Y(fy);
        const float Z = lab.Z(fy, b);
        QRgb* out = line(image, row);
        for (int col = 0; col < width; ++col)
            out[col] = encodeXyz(enc, xyTerms(lab.X(fy, aStar[size_t(col)]), Y), Z);
    }
}

/// Everything the plane's pixels depend on; the cached image is valid while this stays equal.
struct PlaneKey
{
    QSize size;
    qreal devicePixelRatio = 0.0;
    int mode = -1;
    float constant = 0.0f;
    float whiteX = 0.0f, whiteY = 0.0f, whiteZ = 0.0f;

    bool operator==(const PlaneKey& o) const
    {
        return size == o.size && devicePixelRatio == o.devicePixelRatio && mode == o.mode && constant == o.constant
               && whiteX == o.whiteX && whiteY == o.whiteY && whiteZ == o.whiteZ;
    }
    bool operator!=(const PlaneKey& o) const { return !(*this == o); }
};

} // namespace

// ---------------------------------------------------------------------------

class QUxColorFieldPrivate
{
public:
    /// Which signals an edit announces, besides colorChanged.
    enum Channel : unsigned {
        HueChannel = 1u << 0,
        SaturationChannel = 1u << 1,
        ValueChannel = 1u << 2,
        RedChannel = 1u << 3,
        GreenChannel = 1u << 4,
        BlueChannel = 1u << 5,
        LstarChannel = 1u << 6,
        AstarChannel = 1u << 7,
        BstarChannel = 1u << 8,
        RgbChannels = RedChannel | GreenChannel | BlueChannel,
        LabChannels = LstarChannel | AstarChannel | BstarChannel,
        HsvChannels = HueChannel | SaturationChannel | ValueChannel,
        AllChannels = HsvChannels | RgbChannels | LabChannels,
    };

    explicit QUxColorFieldPrivate(QUxColorField* field) : q(field) {}

    QUxColor color() const
    {
        QUxColor c;
        c.setHSV(hue, saturation, value);
        return c;
    }

    /// Stores the colour; false when it is exactly the one held.
    bool store(const QUxColor& c)
    {
        if (c.getHue() == hue && c.getSaturation() == saturation && c.getValue() == value)
            return false;
        c.getHSV(hue, saturation, value);
        return true;
    }

    void announce(unsigned channels);
    void applyEdit(const QUxColor& edited, unsigned channels);

    static float channelOf(QUxColorField::Mode m, const QUxColor& c);
    /// NaN as 0, infinities at the float limits: a constant channel is always a number.
    static float storable(float channel) { return std::isnan(channel) ? 0.0f : qBound(-FLT_MAX, channel, FLT_MAX); }
    void setChannel(QUxColorField::Mode m, float v);

    QUxColor colorAt(const QPoint& pos) const;
    QString describe(const QUxColor& c) const;

    PlaneKey currentKey() const;
    const QImage& plane();
    QPoint markerPosition() const;
    QRect markerBounds() const;
    void drawMarker(QPainter& painter) const;
    void requestRepaint();

    QUxColorField* const q;
    float hue = 0.0f;
    float saturation = 0.0f;
    float value = 0.5f;
    QUxColorField::Mode mode = QUxColorField::Hue;
    float constant = 0.0f;

    PlaneKey planeKey;
    QImage planeImage;
    QRect paintedMarker;
    QUxColor hoverColor;
};

void QUxColorFieldPrivate::announce(unsigned channels)
{
    const QUxColor c = color();
    float r, g, b, L, la, lb;
    c.getRGB(r, g, b);
    c.getLab(L, la, lb);
    emit q->colorChanged(c);
    if (channels & HueChannel)
        emit q->hueChanged(hue);
    if (channels & SaturationChannel)
        emit q->saturationChanged(saturation);
    if (channels & ValueChannel)
        emit q->valueChanged(value);
    if (channels & RedChannel)
        emit q->redChanged(r);
    if (channels & GreenChannel)
        emit q->greenChanged(g);
    if (channels & BlueChannel)
        emit q->blueChanged(b);
    if (channels & LstarChannel)
        emit q->lstarChanged(L);
    if (channels & AstarChannel)
        emit q->astarChanged(la);
    if (channels & BstarChannel)
        emit q->bstarChanged(lb);
}

void QUxColorFieldPrivate::applyEdit(const QUxColor& edited, unsigned channels)
{
    if (!store(edited))
        return;
    announce(channels);
    q->updateConstantChannel(color());
    requestRepaint();
}

float QUxColorFieldPrivate::channelOf(QUxColorField::Mode m, const QUxColor& c)
{
    switch (m) {
    case QUxColorField::Hue:
        return c.getHue();
    case QUxColorField::Saturation:
        return c.getSaturation();
    case QUxColorField::Value:
        return c.getValue();
    case QUxColorField::Red:
        return c.getRed();
    case QUxColorField::Green:
        return c.getGreen();
    case QUxColorField::Blue:
        return c.getBlue();
    case QUxColorField::Lstar:
        return c.getLstar();
    case QUxColorField::Astar:
        return c.getAstar();
    case QUxColorField::Bstar:
        return c.getBstar();
    }
    return 0.0f;
}

void QUxColorFieldPrivate::setChannel(QUxColorField::Mode m, float v)
{
    using Setter = void (QUxColorField::*)(float);
    static const Setter setters[] = {&QUxColorField::setHue,   &QUxColorField::setSaturation, &QUxColorField::setValue,
                                     &QUxColorField::setRed,   &QUxColorField::setGreen,      &QUxColorField::setBlue,
                                     &QUxColorField::setLstar, &QUxColorField::setAstar,      &QUxColorField::setBstar};
    const int index = int(m);
    if (index >= 0 && index < int(std::size(setters)))
        (q->*setters[index])(v);
}

QUxColor QUxColorFieldPrivate::colorAt(const QPoint& pos) const
{
    const float fx = columnFraction(pos.x(), q->width());
    const float fy = rowFraction(pos.y(), q->height());
    QUxColor c = color();
    switch (mode) {
    case QUxColorField::Hue:
        c.setHSV(constant, fx, fy);
        break;
    case QUxColorField::Saturation:
        c.setHSV(hueAt(fx), constant, fy);
        break;
    case QUxColorField::Value:
        c.setHSV(hueAt(fx), fy, constant);
        break;
    case QUxColorField::Red:
        c.setRGB(c.getRed(), fx, fy);
        break;
    case QUxColorField::Green:
        c.setRGB(fx, c.getGreen(), fy);
        break;
    case QUxColorField::Blue:
        c.setRGB(fx, fy, c.getBlue());
        break;
    case QUxColorField::Lstar:
        c.setLab(constant, labAxisAt(fx), labAxisAt(fy));
        break;
    case QUxColorField::Astar:
        c.setLab(lstarAt(fy), constant, labAxisAt(fx));
        break;
    case QUxColorField::Bstar:
        c.setLab(lstarAt(fy), labAxisAt(fx), constant);
        break;
    }
    return c;
}

QString QUxColorFieldPrivate::describe(const QUxColor& c) const
{
    float x, y, z;
    switch (mode) {
    case QUxColorField::Hue:
    case QUxColorField::Saturation:
    case QUxColorField::Value:
        c.getHSV(x, y, z);
        return QUxColorField::tr("H %1\u00b0  S %2  V %3").arg(x, 0, 'f', 1).arg(y, 0, 'f', 3).arg(z, 0, 'f', 3);
    case QUxColorField::Red:
    case QUxColorField::Green:
    case QUxColorField::Blue:
        c.getRGB(x, y, z);
        return QUxColorField::tr("R %1  G %2  B %3").arg(x, 0, 'f', 3).arg(y, 0, 'f', 3).arg(z, 0, 'f', 3);
    default:
        c.getLab(x, y, z);
        return QUxColorField::tr("L* %1  a* %2  b* %3").arg(x, 0, 'f', 1).arg(y, 0, 'f', 1).arg(z, 0, 'f', 1);
    }
}

PlaneKey QUxColorFieldPrivate::currentKey() const
{
    PlaneKey key;
    key.size = q->size();
    key.devicePixelRatio = q->devicePixelRatioF();
    key.mode = mode;
    key.constant = constant;
    key.whiteX = QUxColor::s_reference_white_X;
    key.whiteY = QUxColor::s_reference_white_Y;
    key.whiteZ = QUxColor::s_reference_white_Z;
    return key;
}

const QImage& QUxColorFieldPrivate::plane()
{
    const PlaneKey key = currentKey();
    if (key != planeKey) {
        planeImage = QUxColorField::renderField(mode, constant, key.size, key.devicePixelRatio);
        planeKey = key;
    }
    return planeImage;
}

QPoint QUxColorFieldPrivate::markerPosition() const
{
    const QUxColor c = color();
    const float range = QUxColor::s_LabRange;
    float fx = 0.0f, fy = 0.0f;
    switch (mode) {
    case QUxColorField::Hue:
        fx = saturation, fy = value;
        break;
    case QUxColorField::Saturation:
        fx = hue / 360.0f, fy = value;
        break;
    case QUxColorField::Value:
        fx = hue / 360.0f, fy = saturation;
        break;
    case QUxColorField::Red:
        fx = c.getGreen(), fy = c.getBlue();
        break;
    case QUxColorField::Green:
        fx = c.getRed(), fy = c.getBlue();
        break;
    case QUxColorField::Blue:
        fx = c.getRed(), fy = c.getGreen();
        break;
    case QUxColorField::Lstar:
        fx = c.getAstar() / range + 0.5f, fy = c.getBstar() / range + 0.5f;
        break;
    case QUxColorField::Astar:
        fx = c.getBstar() / range + 0.5f, fy = c.getLstar() / kLstarAxisEnd;
        break;
    case QUxColorField::Bstar:
        fx = c.getAstar() / range + 0.5f, fy = c.getLstar() / kLstarAxisEnd;
        break;
    }
    // Clamp in floating point first: a far out-of-range (or NaN) colour must
    // still land on the edge rather than overflow an int.
    const auto toPixel = [](float fraction, int extent) {
        const double pos = double(fraction) * extent;
        return std::isnan(pos) ? 0 : qRound(qBound(0.0, pos, double(qMax(extent - 1, 0))));
    };
    return QPoint(toPixel(fx, q->width()), toPixel(1.0f - fy, q->height()));
}

QRect QUxColorFieldPrivate::markerBounds() const
{
    const int reach = qCeil(kOuterRingRadius * qMax(uxPlatform::getDpiScaleX(), uxPlatform::getDpiScaleY())) + 2;
    const QPoint centre = markerPosition();
    return QRect(centre.x() - reach, centre.y() - reach, 2 * reach + 1, 2 * reach + 1);
}

void QUxColorFieldPrivate::drawMarker(QPainter& painter) const
{
    const QPointF centre = markerPosition();
    const qreal sx = uxPlatform::getDpiScaleX();
    const qreal sy = uxPlatform::getDpiScaleY();
    const auto square = [&](qreal radius) {
        return QRectF(centre - QPointF(radius * sx, radius * sy), centre + QPointF(radius * sx, radius * sy));
    };
    // Aliased on purpose: a blended ring reads grey on light planes.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Qt::white);
    painter.drawEllipse(square(kOuterRingRadius));
    painter.setPen(Qt::black);
    painter.drawEllipse(square(kInnerRingRadius));
    painter.drawPoint(centre);
}

void QUxColorFieldPrivate::requestRepaint()
{
    // While the plane stays valid only the marker moves: repaint just the
    // spot it leaves and the spot it goes to.
    if (currentKey() != planeKey || paintedMarker.isNull()) {
        q->update();
        return;
    }
    q->update(paintedMarker);
    q->update(markerBounds());
}

// ---------------------------------------------------------------------------

namespace {

void registerMetaTypes()
{
    static const bool registered = [] {
        qRegisterMetaType<QUxColor>("QUxColor");
        qRegisterMetaType<QUxColorField::Mode>("QUxColorField::Mode");
        return true;
    }();
    Q_UNUSED(registered)
}

} // namespace

QUxColorField::QUxColorField(QWidget* parent, const char* name)
    : QWidget(parent), d(std::make_unique<QUxColorFieldPrivate>(this))
{
    registerMetaTypes();
    if (name)
        setObjectName(QString::fromUtf8(name));
    setAttribute(Qt::WA_MouseTracking);
    // Every pixel is painted from the plane image, so skip erasing the background.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
}

QUxColorField::QUxColorField(float red, float green, float blue, QWidget* parent, const char* name)
    : QUxColorField(parent, name)
{
    QUxColor::RGBtoHSV(red, green, blue, d->hue, d->saturation, d->value);
    d->constant = QUxColorFieldPrivate::storable(QUxColorFieldPrivate::channelOf(d->mode, d->color()));
}

QUxColorField::~QUxColorField() = default;

void QUxColorField::getHSV(float& hue, float& saturation, float& value) const
{
    hue = d->hue;
    saturation = d->saturation;
    value = d->value;
}

float QUxColorField::getHue() const { return d->hue; }
float QUxColorField::getSaturation() const { return d->saturation; }
float QUxColorField::getValue() const { return d->value; }
void QUxColorField::getRGB(float& red, float& green, float& blue) const { d->color().getRGB(red, green, blue); }
float QUxColorField::getRed() const { return d->color().getRed(); }
float QUxColorField::getGreen() const { return d->color().getGreen(); }
float QUxColorField::getBlue() const { return d->color().getBlue(); }
void QUxColorField::getLab(float& lstar, float& astar, float& bstar) const { d->color().getLab(lstar, astar, bstar); }
float QUxColorField::getLstar() const { return d->color().getLstar(); }
float QUxColorField::getAstar() const { return d->color().getAstar(); }
float QUxColorField::getBstar() const { return d->color().getBstar(); }
float QUxColorField::getConstantChannel() const { return d->constant; }
QUxColor QUxColorField::getColor() const { return d->color(); }
QUxColorField::Mode QUxColorField::getMode() const { return d->mode; }

QSize QUxColorField::sizeHint() const
{
    return QSize(qRound(kHintSize * uxPlatform::getDpiScaleX()), qRound(kHintSize * uxPlatform::getDpiScaleY()));
}

QImage QUxColorField::fieldImage() const { return d->plane(); }

QImage QUxColorField::renderField(Mode mode, float constantChannel, const QSize& size, qreal devicePixelRatio)
{
    if (size.isEmpty() || !isValidMode(mode) || !(devicePixelRatio > 0.0))
        return QImage();
    QImage image(qCeil(size.width() * devicePixelRatio), qCeil(size.height() * devicePixelRatio), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    const Axes axes = axesOf(image);
    switch (mode) {
    case Hue:
        renderHuePlane(image, constantChannel, axes);
        break;
    case Saturation:
        renderSaturationPlane(image, constantChannel, axes);
        break;
    case Value:
        renderValuePlane(image, constantChannel, axes);
        break;
    case Red: // green across, blue up
        renderRgbPlane(image, constantChannel, 16, 8, 0, axes);
        break;
    case Green: // red across, blue up
        renderRgbPlane(image, constantChannel, 8, 16, 0, axes);
        break;
    case Blue: // red across, green up
        renderRgbPlane(image, constantChannel, 0, 16, 8, axes);
        break;
    case Lstar:
        renderLstarPlane(image, constantChannel, axes);
        break;
    case Astar:
        renderAstarPlane(image, constantChannel, axes);
        break;
    case Bstar:
        renderBstarPlane(image, constantChannel, axes);
        break;
    }
    return image;
}

void QUxColorField::setHSV(float hue, float saturation, float value)
{
    QUxColor c;
    c.setHSV(hue, saturation, value);
    d->applyEdit(c, QUxColorFieldPrivate::AllChannels);
}

void QUxColorField::setHue(float hue)
{
    QUxColor c = d->color();
    c.setHue(hue);
    d->applyEdit(c, QUxColorFieldPrivate::HueChannel | QUxColorFieldPrivate::RgbChannels
                        | QUxColorFieldPrivate::LabChannels);
}

void QUxColorField::setSaturation(float saturation)
{
    QUxColor c = d->color();
    c.setSaturation(saturation);
    d->applyEdit(c, QUxColorFieldPrivate::SaturationChannel | QUxColorFieldPrivate::RgbChannels
                        | QUxColorFieldPrivate::LabChannels);
}

void QUxColorField::setValue(float value)
{
    QUxColor c = d->color();
    c.setValue(value);
    d->applyEdit(c, QUxColorFieldPrivate::ValueChannel | QUxColorFieldPrivate::RgbChannels
                        | QUxColorFieldPrivate::LabChannels);
}

void QUxColorField::setRGB(float red, float green, float blue)
{
    d->applyEdit(QUxColor(red, green, blue), QUxColorFieldPrivate::AllChannels);
}

void QUxColorField::setRed(float red)
{
    if (qAbs(red - getRed()) <= kRgbPrecision)
        return;
    QUxColor c = d->color();
    c.setRed(red);
    d->applyEdit(c, QUxColorFieldPrivate::HsvChannels | QUxColorFieldPrivate::RedChannel
                        | QUxColorFieldPrivate::LabChannels);
}

void QUxColorField::setGreen(float green)
{
    if (qAbs(green - getGreen()) <= kRgbPrecision)
        return;
    QUxColor c = d->color();
    c.setGreen(green);
    d->applyEdit(c, QUxColorFieldPrivate::HsvChannels | QUxColorFieldPrivate::GreenChannel
                        | QUxColorFieldPrivate::LabChannels);
}

void QUxColorField::setBlue(float blue)
{
    if (qAbs(blue - getBlue()) <= kRgbPrecision)
        return;
    QUxColor c = d->color();
    c.setBlue(blue);
    d->applyEdit(c, QUxColorFieldPrivate::HsvChannels | QUxColorFieldPrivate::BlueChannel
                        | QUxColorFieldPrivate::LabChannels);
}

void QUxColorField::setLab(float lstar, float astar, float bstar)
{
    QUxColor c;
    c.setLab(lstar, astar, bstar);
    d->applyEdit(c, QUxColorFieldPrivate::AllChannels);
}

void QUxColorField::setLstar(float lstar)
{
    if (qAbs(lstar - getLstar()) <= kLabPrecision)
        return;
    QUxColor c = d->color();
    c.setLstar(lstar);
    d->applyEdit(c, QUxColorFieldPrivate::HsvChannels | QUxColorFieldPrivate::RgbChannels
                        | QUxColorFieldPrivate::LstarChannel);
}

void QUxColorField::setAstar(float astar)
{
    if (qAbs(astar - getAstar()) <= kLabPrecision)
        return;
    QUxColor c = d->color();
    c.setAstar(astar);
    d->applyEdit(c, QUxColorFieldPrivate::HsvChannels | QUxColorFieldPrivate::RgbChannels
                        | QUxColorFieldPrivate::AstarChannel);
}

void QUxColorField::setBstar(float bstar)
{
    if (qAbs(bstar - getBstar()) <= kLabPrecision)
        return;
    QUxColor c = d->color();
    c.setBstar(bstar);
    d->applyEdit(c, QUxColorFieldPrivate::HsvChannels | QUxColorFieldPrivate::RgbChannels
                        | QUxColorFieldPrivate::BstarChannel);
}

void QUxColorField::setColor(const QUxColor& color) { d->applyEdit(color, QUxColorFieldPrivate::AllChannels); }

void QUxColorField::setHueMode(bool on)
{
    if (on && d->mode != Hue)
        setMode(Hue);
}

void QUxColorField::setSaturationMode(bool on)
{
    if (on && d->mode != Saturation)
        setMode(Saturation);
}

void QUxColorField::setValueMode(bool on)
{
    if (on && d->mode != Value)
        setMode(Value);
}

void QUxColorField::setRedMode(bool on)
{
    if (on && d->mode != Red)
        setMode(Red);
}

void QUxColorField::setGreenMode(bool on)
{
    if (on && d->mode != Green)
        setMode(Green);
}

void QUxColorField::setBlueMode(bool on)
{
    if (on && d->mode != Blue)
        setMode(Blue);
}

void QUxColorField::setLstarMode(bool on)
{
    if (on && d->mode != Lstar)
        setMode(Lstar);
}

void QUxColorField::setAstarMode(bool on)
{
    if (on && d->mode != Astar)
        setMode(Astar);
}

void QUxColorField::setBstarMode(bool on)
{
    if (on && d->mode != Bstar)
        setMode(Bstar);
}

void QUxColorField::setMode(QUxColorField::Mode mode)
{
    if (!isValidMode(mode))
        return;
    const float held = QUxColorFieldPrivate::channelOf(mode, d->color());
    d->constant = std::isnan(held) ? 0.0f : held;
    if (mode != d->mode) {
        d->mode = mode;
        emit constantChannelChanged(d->constant);
    }
    update();
}

void QUxColorField::setConstantChannel(float value)
{
    // Replaced before the comparison: an undefined or unbounded colour keeps
    // reporting such a channel, and a comparison that never holds would
    // re-enter the channel setter without end.
    value = QUxColorFieldPrivate::storable(value);
    if (qAbs(value - d->constant) <= kConstantTolerance)
        return;
    d->constant = value;
    d->setChannel(d->mode, d->constant);
    d->requestRepaint();
}

void QUxColorField::updateConstantChannel(const QUxColor& color)
{
    setConstantChannel(QUxColorFieldPrivate::channelOf(d->mode, color));
}

bool QUxColorField::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const auto* help = static_cast<QHelpEvent*>(event);
        d->hoverColor = d->colorAt(help->pos());
        QToolTip::showText(help->globalPos(), d->describe(d->hoverColor), this);
        return true;
    }
    return QWidget::event(event);
}

void QUxColorField::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    QToolTip::hideText();
    setColor(d->colorAt(event->pos()));
}

void QUxColorField::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::LeftButton)
        setColor(d->colorAt(event->pos()));
    else if (event->buttons() == Qt::NoButton)
        emitMouseOverColor(event->pos());
}

void QUxColorField::mouseReleaseEvent(QMouseEvent* event) { Q_UNUSED(event) }

void QUxColorField::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QImage& plane = d->plane();
    if (plane.isNull())
        return;
    painter.drawImage(QPointF(0, 0), plane);
    d->drawMarker(painter);
    d->paintedMarker = d->markerBounds();
}

void QUxColorField::emitMouseOverColor(const QPoint& pos)
{
    d->hoverColor = d->colorAt(pos);
    // Keep an open read-out in step with the pointer instead of waiting for
    // the next tool tip event.
    if (QToolTip::isVisible() && toolTip().isEmpty() && rect().contains(pos))
        QToolTip::showText(mapToGlobal(pos), d->describe(d->hoverColor), this);
}
