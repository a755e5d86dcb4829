#include "QUxWheel.h"

#include "uxSignalBlocker.h"

#include <uxPlatform.h>

#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <QtMath>

#include <climits>
#include <cmath>

namespace {

constexpr double FullIntRange = 2147483647.0;
constexpr int LengthHint = 130;
constexpr int MinimumLength = 24;
constexpr int MinimumThickness = 10;
/// Wheel turns are scaled so that one notch (120) with a page step of 10 moves by 2.
constexpr qint64 WheelDeltaDivisor = 600;
/// Share of one rib spacing covered by the raised rib.
constexpr double RibDuty = 0.5;
/// Rib height as a share of the wheel's radius.
constexpr double RibHeight = 0.04;
constexpr double GrooveBrightness = 0.70;
constexpr double MinimumBodyLightness = 0.45;

int truncatedToInt(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= double(INT_MAX))
        return INT_MAX;
    if (value <= double(INT_MIN))
        return INT_MIN;
    return int(value);
}

/// Folds @p value into [minimum, maximum] the way repeated adding or subtracting of the span would.
double wrapped(double value, double minimum, double maximum)
{
    const double span = maximum - minimum;
    if (value < minimum) {
        const double rest = std::fmod(minimum - value, span);
        value = rest == 0.0 ? minimum : maximum - rest;
    }
    if (value > maximum) {
        const double rest = std::fmod(value - maximum, span);
        value = rest == 0.0 ? maximum : minimum + rest;
    }
    return value;
}

QColor mixed(const QColor& a, const QColor& b, double t)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * t, a.greenF() + (b.greenF() - a.greenF()) * t,
                            a.blueF() + (b.blueF() - a.blueF()) * t, a.alphaF() + (b.alphaF() - a.alphaF()) * t);
}

/// The colour of the cylinder's surface seen at angle @p theta from the viewer: diffuse light plus a soft gloss.
QColor litSurface(const QColor& body, double theta, double brightness = 1.0)
{
    const double facing = qMax(0.0, std::cos(theta));
    const double diffuse = (0.22 + 0.78 * std::pow(facing, 0.8)) * brightness;
    const double gloss = 0.18 * brightness * std::exp(-std::pow((theta + 0.4) / 0.3, 2.0));
    auto channel = [&](double c) { return qBound(0.0, c * diffuse + gloss, 1.0); };
    return QColor::fromRgbF(channel(body.redF()), channel(body.greenF()), channel(body.blueF()));
}

/// Everything the painting needs, in the wheel's own frame: "along" is the drag direction.
struct WheelLook
{
    double length = 0;
    double thickness = 0;
    double phase = 0;
    int cogs = 1;
    bool pressed = false;
    bool focused = false;
    bool enabled = true;
    QPalette::ColorGroup group = QPalette::Active;
    QPalette palette;
};

QRectF housingRect(const WheelLook& look) { return QRectF(0.5, 0.5, look.length - 1.0, look.thickness - 1.0); }

QRectF bodyRect(const WheelLook& look)
{
    const double along = qMin(3.0, look.length / 8.0);
    const double across = qMin(2.0, look.thickness / 6.0);
    return QRectF(along, across, look.length - 2 * along, look.thickness - 2 * across);
}

QColor bodyColor(const WheelLook& look)
{
    QColor button = look.palette.color(look.group, QPalette::Button);
    // On dark palettes a wheel of the button colour would swallow its own shading.
    if (button.lightnessF() < MinimumBodyLightness)
        button = mixed(button, Qt::white, 0.3);
    if (!look.pressed)
        return button;
    return mixed(button, look.palette.color(look.group, QPalette::Highlight), 0.22);
}

void paintHousing(QPainter& p, const WheelLook& look)
{
    const QColor window = look.palette.color(look.group, QPalette::Window);
    p.fillRect(QRectF(0, 0, look.length, look.thickness), window);
    const double radius = qMin(3.0, look.thickness / 4.0);
    p.setPen(QPen(look.palette.color(look.group, QPalette::Dark), 1.0));
    p.setBrush(window.darker(160));
    p.drawRoundedRect(housingRect(look), radius, radius);
}

void paintCylinder(QPainter& p, const WheelLook& look)
{
    const QRectF body = bodyRect(look);
    const QColor base = bodyColor(look);
    // The grooves between the ribs: the core of the wheel, lit like the ribs but sunk into shadow.
    QLinearGradient shading(body.left(), 0, body.right(), 0);
    constexpr int Stops = 24;
    for (int i = 0; i <= Stops; ++i) {
        const double t = double(i) / Stops;
        shading.setColorAt(t, litSurface(base, std::asin(qBound(-1.0, 2.0 * t - 1.0, 1.0)), GrooveBrightness));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(shading);
    p.drawRect(body);
}

/// One raised rib between the angles @p from and @p to: its top face and the side wall that faces the viewer.
void paintRib(QPainter& p, const WheelLook& look, double from, double to)
{
    const QRectF body = bodyRect(look);
    const double radius = body.width() / 2.0;
    const double core = radius * (1.0 - RibHeight);
    const double centre = body.center().x();
    const double middle = (from + to) / 2.0;
    const double alpha = look.enabled ? 1.0 : 0.55;

    QColor top = litSurface(bodyColor(look), middle, 0.98);
    top.setAlphaF(alpha);
    p.fillRect(QRectF(QPointF(centre + radius * std::sin(from), body.top()),
                      QPointF(centre + radius * std::sin(to), body.bottom())),
               top);

    // Right of the axis the wall toward the centre catches the light; left of it the wall lies in shadow.
    const double wallAngle = middle > 0.0 ? from : to;
    const double inner = centre + core * std::sin(wallAngle);
    const double outer = centre + radius * std::sin(wallAngle);
    const QColor wall = middle > 0.0 ? QColor(255, 255, 255, int(120 * alpha)) : QColor(0, 0, 0, int(100 * alpha));
    p.fillRect(QRectF(QPointF(qMin(inner, outer), body.top()), QPointF(qMax(inner, outer), body.bottom())), wall);
}

void paintRibs(QPainter& p, const WheelLook& look)
{
    const double spacing = M_PI / look.cogs;
    const double ribWidth = spacing * RibDuty;
    for (double start = -M_PI_2 + look.phase - spacing; start < M_PI_2; start += spacing) {
        const double from = qMax(start, -M_PI_2);
        const double to = qMin(start + ribWidth, M_PI_2);
        if (to > from)
            paintRib(p, look, from, to);
    }
}

void paintShading(QPainter& p, const WheelLook& look)
{
    const QRectF body = bodyRect(look);
    // The rim catches light above and falls into shadow below.
    QLinearGradient rim(0, body.top(), 0, body.bottom());
    rim.setColorAt(0.0, QColor(255, 255, 255, 80));
    rim.setColorAt(0.3, QColor(255, 255, 255, 0));
    rim.setColorAt(0.65, QColor(0, 0, 0, 0));
    rim.setColorAt(1.0, QColor(0, 0, 0, 90));
    p.setPen(Qt::NoPen);
    p.setBrush(rim);
    p.drawRect(body);
    // Both ends turn away from the viewer into darkness.
    QLinearGradient ends(body.left(), 0, body.right(), 0);
    ends.setColorAt(0.0, QColor(0, 0, 0, 150));
    ends.setColorAt(0.12, QColor(0, 0, 0, 0));
    ends.setColorAt(0.88, QColor(0, 0, 0, 0));
    ends.setColorAt(1.0, QColor(0, 0, 0, 150));
    p.setBrush(ends);
    p.drawRect(body);
}

void paintFrame(QPainter& p, const WheelLook& look)
{
    const QRectF body = bodyRect(look);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0, 0, 0, look.enabled ? 110 : 60), 1.0));
    p.drawRect(body.adjusted(0.5, 0.5, -0.5, -0.5));
    if (!look.focused)
        return;
    const double radius = qMin(3.0, look.thickness / 4.0);
    p.setPen(QPen(look.palette.color(look.group, QPalette::Highlight), 1.5));
    p.drawRoundedRect(housingRect(look).adjusted(0.25, 0.25, -0.25, -0.25), radius, radius);
}

} // namespace

class QUxWheelPrivate
{
public:
    int cogCount = 17;
    bool wrapsAround = false;
    bool limitedDrag = false;
    double transmissionRatio = 1.0;
    int lastPos = -1;
    bool pressed = false;
    double value = 0.0;
    double minimum = -FullIntRange;
    double maximum = FullIntRange;
    bool ignoreRange = false;
    double singleStep = 1.0;
    bool emitsRelativeValue = false;
    /// Increments reported in relative mode, so that the ribs still follow the drag.
    double relativeTravel = 0.0;
    /// Set while the base's integer value is being brought in line with ours.
    bool syncingBase = false;

    /// Rib rotation in radians, within one spacing of @p cogs ribs.
    double ribPhase(double radius, int cogs) const
    {
        const double step = singleStep != 0.0 ? std::fabs(singleStep) : 1.0;
        const double pixels = (value + relativeTravel) / step * transmissionRatio;
        const double spacing = M_PI / cogs;
        if (radius <= 0.0 || !std::isfinite(pixels))
            return 0.0;
        const double phase = std::fmod(pixels / radius, spacing);
        return phase < 0.0 ? phase + spacing : phase;
    }
};

QUxWheel::QUxWheel(QWidget* parent) : QAbstractSlider(parent), d(std::make_unique<QUxWheelPrivate>())
{
    QAbstractSlider::setRange(INT_MIN, INT_MAX);
    setOrientation(Qt::Horizontal);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::WheelFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QUxWheel::QUxWheel(int, int, int pageStep, int value, Qt::Orientation orientation, QWidget* parent)
    : QAbstractSlider(parent), d(std::make_unique<QUxWheelPrivate>())
{
    QAbstractSlider::setRange(INT_MIN, INT_MAX);
    // Deliberately inverted: until the host gives a real range, every drag lands on the minimum.
    d->minimum = -FullIntRange;
    d->maximum = -FullIntRange - 1.0;
    d->limitedDrag = true;
    setValue(value);
    setSingleStep(1.0);
    setPageStep(pageStep);
    setOrientation(orientation);
    if (orientation == Qt::Horizontal)
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    else
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setFocusPolicy(Qt::WheelFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QUxWheel::~QUxWheel() = default;

double QUxWheel::value() const { return d->value; }

void QUxWheel::setValue(double value)
{
    storeValue(value);
    emit valueChanged(value);
}

void QUxWheel::updateValue(double value) { storeValue(value); }

void QUxWheel::setRange(double minimum, double maximum)
{
    d->minimum = minimum;
    d->maximum = maximum;
}

void QUxWheel::setMinimum(double minimum) { d->minimum = minimum; }

void QUxWheel::setMaximum(double maximum) { d->maximum = maximum; }

double QUxWheel::minimum() const { return d->minimum; }

double QUxWheel::maximum() const { return d->maximum; }

void QUxWheel::setSingleStep(double step)
{
    d->singleStep = step;
    QAbstractSlider::setSingleStep(truncatedToInt(step));
    update();
    emit singleStepChanged(step);
}

double QUxWheel::singleStep() const { return d->singleStep; }

void QUxWheel::setWrapsAround(bool wraps) { d->wrapsAround = wraps; }

bool QUxWheel::wrapsAround() const { return d->wrapsAround; }

void QUxWheel::setIgnoreRange(bool ignore) { d->ignoreRange = ignore; }

bool QUxWheel::ignoreRange() const { return d->ignoreRange; }

void QUxWheel::setLimitedDrag(bool limited) { d->limitedDrag = limited; }

bool QUxWheel::limitedDrag() const { return d->limitedDrag; }

void QUxWheel::setEmitRelativeValue(bool relative) { d->emitsRelativeValue = relative; }

bool QUxWheel::emitsRelativeValue() const { return d->emitsRelativeValue; }

void QUxWheel::setCogCount(int count)
{
    if (count < 1)
        return;
    d->cogCount = count;
    update();
}

int QUxWheel::cogCount() const { return d->cogCount; }

void QUxWheel::setTransmissionRatio(double ratio)
{
    d->transmissionRatio = ratio;
    update();
}

double QUxWheel::transmissionRatio() const { return d->transmissionRatio; }

QSize QUxWheel::sizeHint() const
{
    if (orientation() == Qt::Horizontal)
        return QSize(qRound(LengthHint * uxPlatform::getDpiScaleX()), uxPlatform::getSmallIconSizeY());
    return QSize(uxPlatform::getSmallIconSizeX(), qRound(LengthHint * uxPlatform::getDpiScaleY()));
}

QSize QUxWheel::minimumSizeHint() const
{
    const QSize minimum(qRound(MinimumLength * uxPlatform::getDpiScaleX()),
                        qRound(MinimumThickness * uxPlatform::getDpiScaleY()));
    return orientation() == Qt::Horizontal ? minimum : minimum.transposed();
}

void QUxWheel::keyPressEvent(QKeyEvent* event)
{
    const bool horizontal = orientation() == Qt::Horizontal;
    switch (event->key()) {
    case Qt::Key_Home:
        setValue(d->minimum);
        break;
    case Qt::Key_End:
        setValue(d->maximum);
        break;
    case Qt::Key_Left:
    case Qt::Key_Up:
        if (horizontal == (event->key() == Qt::Key_Left))
            stepBy(SliderSingleStepSub, -d->singleStep);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        if (horizontal == (event->key() == Qt::Key_Right))
            stepBy(SliderSingleStepAdd, d->singleStep);
        break;
    case Qt::Key_PageUp:
        stepBy(SliderPageStepSub, -pageStep());
        break;
    case Qt::Key_PageDown:
        stepBy(SliderPageStepAdd, pageStep());
        break;
    default:
        event->ignore();
        return;
    }
    event->accept();
}

void QUxWheel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        d->pressed = true;
        d->lastPos = positionAlong(event);
    }
    setSliderDown(true);
    update();
    event->accept();
}

void QUxWheel::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->pressed || !hasTracking())
        return;
    applyDragStep(positionAlong(event));
    event->accept();
}

void QUxWheel::mouseReleaseEvent(QMouseEvent* event)
{
    applyDragStep(positionAlong(event));
    d->pressed = false;
    setSliderDown(false);
    update();
    event->accept();
}

void QUxWheel::wheelEvent(QWheelEvent* event)
{
    const QPoint angle = event->angleDelta();
    const qint64 delta = angle.y() != 0 ? angle.y() : angle.x();
    const qint64 step = (event->modifiers() & Qt::ControlModifier) ? truncatedToInt(d->singleStep) : pageStep();
    // Past the range on purpose: the next drag step brings the value back.
    setValue(d->value + double(step * delta / WheelDeltaDivisor));
    event->accept();
}

void QUxWheel::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const bool horizontal = orientation() == Qt::Horizontal;
    if (!horizontal)
        p.setTransform(QTransform(0, 1, 1, 0, 0, 0)); // transposed: "along" runs downwards, light from the left

    WheelLook look;
    look.length = horizontal ? width() : height();
    look.thickness = horizontal ? height() : width();
    // Ribs finer than a pixel would not show, and their count bounds the painting loop.
    look.cogs = qBound(1, d->cogCount, qMax(1, int(look.length)));
    look.pressed = d->pressed || isSliderDown();
    look.focused = hasFocus();
    look.enabled = isEnabled();
    look.group = !isEnabled() ? QPalette::Disabled : (isActiveWindow() ? QPalette::Active : QPalette::Inactive);
    look.palette = palette();
    look.phase = d->ribPhase(bodyRect(look).width() / 2.0, look.cogs);

    paintHousing(p, look);
    paintCylinder(p, look);
    paintRibs(p, look);
    paintShading(p, look);
    paintFrame(p, look);
}

void QUxWheel::sliderChange(SliderChange change)
{
    // A host that drives the integer base directly (setValue(int) of QAbstractSlider) moves the wheel too.
    if (change == SliderValueChange && !d->syncingBase && truncatedToInt(d->value) != QAbstractSlider::value()) {
        d->value = QAbstractSlider::value();
        emit valueChanged(d->value);
    }
    QAbstractSlider::sliderChange(change);
}

int QUxWheel::positionAlong(const QMouseEvent* event) const
{
    return orientation() == Qt::Horizontal ? event->pos().x() : event->pos().y();
}

void QUxWheel::applyDragStep(int position)
{
    const double increment = double(position - d->lastPos) * d->singleStep;
    d->lastPos = position;
    if (std::isnan(increment))
        return; // a NaN step moves nothing; the value must stay a number
    if (!d->emitsRelativeValue) {
        applyRangeRule(d->value + increment);
        return;
    }
    d->relativeTravel += increment;
    update();
    emit valueAdded(increment);
}

void QUxWheel::applyRangeRule(double value)
{
    const bool canWrap = d->maximum > d->minimum;
    if (!d->ignoreRange) {
        if (d->wrapsAround && canWrap)
            value = wrapped(value, d->minimum, d->maximum);
        else
            value = qMax(qMin(d->maximum, value), d->minimum);
    }
    setValue(value);
}

void QUxWheel::stepBy(SliderAction action, double step)
{
    emit actionTriggered(action);
    applyRangeRule(d->value + step);
}

void QUxWheel::storeValue(double value)
{
    d->value = value;
    syncBaseValue();
    update();
}

void QUxWheel::syncBaseValue()
{
    uxSignalBlocker blocker(this);
    d->syncingBase = true;
    QAbstractSlider::setValue(truncatedToInt(d->value));
    d->syncingBase = false;
}
