#include "QUxTimeLine.h"

#include "uxFrameAccessible_p.h"
#include "uxTimeLineMath_p.h"

#include <uxPlatform.h>

#include <QActionGroup>
#include <QLinearGradient>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <limits>

namespace {

/// @p value in single precision without undefined out-of-range conversions.
float toFloat(double value)
{
    constexpr double limit = std::numeric_limits<float>::max();
    if (std::isnan(value) || std::fabs(value) <= limit)
        return float(value);
    return value > 0 ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
}

QString secondsText(float seconds) { return QString::number(double(seconds), 'f', 2); }

/// What drawText(rect, Qt::AlignLeft | Qt::AlignTop or AlignBottom, text)
/// paints for a line that fits, without the layout pass that costs a third of
/// the ruler's paint time.
void drawLabel(QPainter& painter, const QRect& rect, Qt::Alignment vertical, const QString& text)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const int baseline =
        vertical == Qt::AlignBottom ? rect.top() + rect.height() - metrics.descent() : rect.top() + metrics.ascent();
    painter.drawText(QPoint(rect.left(), baseline), text);
}

/// Reports the current frame as the value of a slider from the start to the end frame.
class QUxTimeLineAccessible : public uxFrameAccessible
{
public:
    explicit QUxTimeLineAccessible(QUxTimeLine* timeLine) : uxFrameAccessible(timeLine) {}

    QVariant currentValue() const override { return timeLine()->currentFrame(); }
    void setCurrentValue(const QVariant& value) override { timeLine()->setCurrentFrame(value.toInt()); }
    QVariant minimumValue() const override { return timeLine()->startFrame(); }
    QVariant maximumValue() const override { return timeLine()->endFrame(); }

private:
    QUxTimeLine* timeLine() const { return static_cast<QUxTimeLine*>(widget()); }
};

} // namespace

class QUxTimeLinePrivate
{
public:
    int startFrame = 0;
    int endFrame = 25;
    int currentFrame = 0;
    int lastReportedFrame = 0;
    double fps = 25.0;
    bool showFrames = true;
    bool showSeconds = false;
    bool sliding = false;
    QColor backGradientColor1{25, 25, 25, 255};
    QColor backGradientColor2{60, 60, 60, 200};
    QPen foregroundPen{QColor(10, 10, 10, 255), 1};
    QPen highlightPen{QColor(234, 134, 47, 255), 1};
    QMenu* menu = nullptr;
    QActionGroup* labelGroup = nullptr;
    std::map<float, QColor> keyFrames;

    // From the current width rather than cached on resize: a hidden widget
    // gets its resize event only when shown, yet answers mouse events before.
    // In double: end - start + 1 overflows int for the widest intervals.
    double pixelsPerFrame(int width) const
    {
        return uxTimeLineMath::pixelsPerFrame(width, double(endFrame) - double(startFrame) + 1.0);
    }

    static bool scrubs(Qt::MouseButtons buttons) { return buttons & (Qt::LeftButton | Qt::MiddleButton); }
};

QUxTimeLine::QUxTimeLine(QWidget* parent) : QWidget(parent), d(new QUxTimeLinePrivate)
{
    uxInstallFrameAccessible<QUxTimeLine, QUxTimeLineAccessible>();

    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TranslucentBackground);
    setAccessibleName(tr("Timeline"));
    setAccessibleDescription(tr("Current frame; drag to scrub, right-click for label options"));

    d->menu = new QMenu(tr("Options"), this);
    d->labelGroup = new QActionGroup(this);
    d->labelGroup->setExclusive(true);
    for (const QString& title : {tr("Show Frames"), tr("Show Seconds"), tr("Show Frames and Seconds")}) {
        QAction* action = d->menu->addAction(title);
        action->setCheckable(true);
        d->labelGroup->addAction(action);
    }
    d->labelGroup->actions().constFirst()->setChecked(true);
    connect(d->labelGroup, &QActionGroup::triggered, this, &QUxTimeLine::activateMenuEntry);
}

QUxTimeLine::~QUxTimeLine() = default;

int QUxTimeLine::currentFrame() const { return d->currentFrame; }
int QUxTimeLine::startFrame() const { return d->startFrame; }
int QUxTimeLine::endFrame() const { return d->endFrame; }
double QUxTimeLine::fps() const { return d->fps; }
QColor QUxTimeLine::foregroundColor() const { return d->foregroundPen.color(); }
QColor QUxTimeLine::highlightColor() const { return d->highlightPen.color(); }
QColor QUxTimeLine::backGradientColor1() const { return d->backGradientColor1; }
QColor QUxTimeLine::backGradientColor2() const { return d->backGradientColor2; }

void QUxTimeLine::setKeyFrames(const std::map<float, QColor>& keyFrames)
{
    d->keyFrames.clear();
    for (const auto& entry : keyFrames) {
        if (std::isfinite(entry.first))
            d->keyFrames.insert(entry);
    }
    update();
}

QSize QUxTimeLine::sizeHint() const
{
    return QSize(qRound(300 * uxPlatform::getDpiScaleX()), uxPlatform::getLargeIconSizeY());
}

QSize QUxTimeLine::minimumSizeHint() const
{
    return QSize(qRound(30 * uxPlatform::getDpiScaleX()), uxPlatform::getLargeIconSizeY());
}

void QUxTimeLine::setCurrentFrame(int frame) { setCurrentFrame(frame, false); }

void QUxTimeLine::setCurrentFrame(int frame, bool force)
{
    d->currentFrame = frame;
    if (!force && frame == d->lastReportedFrame)
        return;
    // Recorded before emitting, so a receiver that sets the frame back does not loop.
    d->lastReportedFrame = frame;
    emit currentFrameChanged(frame);
    update();
    QAccessibleValueChangeEvent event(this, frame);
    QAccessible::updateAccessibility(&event);
}

void QUxTimeLine::setStartFrame(int frame)
{
    d->startFrame = frame;
    update();
}

void QUxTimeLine::setEndFrame(int frame)
{
    d->endFrame = frame;
    update();
}

void QUxTimeLine::setFps(double fps)
{
    if (!std::isfinite(fps) || fps <= 0.0)
        return;
    d->fps = fps;
    update();
}

void QUxTimeLine::setForegroundColor(const QColor& color)
{
    d->foregroundPen.setColor(color);
    update();
}

void QUxTimeLine::setHighlightColor(const QColor& color)
{
    d->highlightPen.setColor(color);
    update();
}

void QUxTimeLine::setBackGradientColor1(const QColor& color)
{
    d->backGradientColor1 = color;
    update();
}

void QUxTimeLine::setBackGradientColor2(const QColor& color)
{
    d->backGradientColor2 = color;
    update();
}

void QUxTimeLine::mousePressEvent(QMouseEvent* event)
{
    d->sliding = false;
    if (QUxTimeLinePrivate::scrubs(event->button()))
        setCurrentFrame(toLocal(event->x()));
    setFocus(Qt::OtherFocusReason);
}

void QUxTimeLine::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        return;
    if (QUxTimeLinePrivate::scrubs(event->buttons()))
        d->sliding = true;
    const int x = event->x();
    if (x < 0)
        setCurrentFrame(d->startFrame);
    else if (x > width())
        setCurrentFrame(d->endFrame);
    else
        setCurrentFrame(toLocal(x));
}

void QUxTimeLine::mouseReleaseEvent(QMouseEvent* event)
{
    if (d->sliding) {
        d->sliding = false;
        emit finishedSliding();
    }
    if (event->button() == Qt::RightButton)
        d->menu->popup(event->globalPos());
}

void QUxTimeLine::paintEvent(QPaintEvent*)
{
    using uxTimeLineMath::saturate;
    const int w = width();
    const int h = height();
    QPainter painter(this);

    QLinearGradient back(0.5, 1.0, 0.5, 0.5);
    back.setCoordinateMode(QGradient::ObjectBoundingMode);
    back.setSpread(QGradient::ReflectSpread);
    back.setColorAt(0.0, d->backGradientColor1);
    back.setColorAt(1.0, d->backGradientColor2);
    painter.setPen(QColor(127, 127, 127));
    painter.setBrush(back);
    painter.drawRoundedRect(0, 0, w - 1, h - 1, 4, 4);

    QFont font = painter.font();
    font.setPointSize(9);
    painter.setFont(font);
    painter.setPen(d->foregroundPen);
    const QRect labelRect(QPoint(2, 2), QPoint(w - 1, h - 3));
    if (d->showFrames)
        drawLabel(painter, labelRect, Qt::AlignTop, tr("Frame"));
    if (d->showSeconds)
        drawLabel(painter, labelRect, Qt::AlignBottom, tr("Second"));

    // At most a few dozen ticks whatever the interval: the spacing grows with it.
    const qint64 spacing = getFrameOffset();
    const qint64 limit = toLocal(w);
    const QPen tickPen(QColor(127, 127, 127));
    for (qint64 frame = qint64(d->startFrame) + spacing; frame < limit; frame += spacing) {
        const int x = toPixel(double(frame));
        const QRect textRect(x + 2, 2, w, h - 4);
        painter.setPen(d->foregroundPen);
        if (d->showFrames)
            drawLabel(painter, textRect, Qt::AlignTop, QString::number(frame));
        if (d->showSeconds)
            drawLabel(painter, textRect, Qt::AlignBottom, secondsText(toFloat(double(frame) / d->fps)));
        painter.setPen(tickPen);
        painter.drawLine(x, 0, x, h / 3 - 1);
        painter.drawLine(x, (h / 3) * 2 - 1, x, h - 1);
    }

    const int cursorWidth = saturate(qMax(d->pixelsPerFrame(w), 1.0));
    // Its labels reach at most w + 2 pixels right of the cursor.
    painter.translate(uxTimeLineMath::paintable(toPixel(d->currentFrame), w, w + cursorWidth + 2), 0);
    QColor opaque = d->highlightPen.color();
    QColor faint = opaque;
    opaque.setAlpha(200);
    faint.setAlpha(15);
    QLinearGradient cursor(0.2, 0.5, 1.0, 0.5);
    cursor.setCoordinateMode(QGradient::ObjectBoundingMode);
    cursor.setColorAt(0.0, opaque);
    cursor.setColorAt(1.0, faint);
    painter.setPen(Qt::NoPen);
    painter.setBrush(cursor);
    if (d->currentFrame == d->startFrame)
        painter.drawRoundedRect(QRectF(0, 0, cursorWidth, h), 4, 4);
    else
        painter.drawRect(0, 0, cursorWidth, h);
    painter.setPen(Qt::white);
    const QRect cursorText(2, 2, w, h - 4);
    if (d->showFrames)
        drawLabel(painter, cursorText, Qt::AlignTop, QString::number(d->currentFrame));
    if (d->showSeconds)
        drawLabel(painter, cursorText, Qt::AlignBottom, secondsText(float(d->currentFrame) / toFloat(d->fps)));
    painter.resetTransform();

    for (const auto& [frame, color] : d->keyFrames) {
        const int x = toPixel(double(frame));
        if (x < 0 || x > w)
            continue;
        painter.setPen(color);
        painter.drawLine(x, 0, x, h - 1);
    }
}

void QUxTimeLine::activateMenuEntry(QAction* action)
{
    d->showFrames = false;
    d->showSeconds = false;
    const QString text = action ? action->text() : QString();
    if (text == tr("Show Frames"))
        d->showFrames = true;
    else if (text == tr("Show Seconds"))
        d->showSeconds = true;
    else if (text == tr("Show Frames and Seconds"))
        d->showFrames = d->showSeconds = true;
    update();
}

int QUxTimeLine::d2i(double value) const { return uxTimeLineMath::d2i(value); }

int QUxTimeLine::toLocal(int x) const { return uxTimeLineMath::toLocal(x, d->startFrame, d->pixelsPerFrame(width())); }

int QUxTimeLine::toPixel(double frame) const
{
    return d2i((frame - double(d->startFrame)) * d->pixelsPerFrame(width()));
}

int QUxTimeLine::getFrameOffset() const
{
    // Whole frames throughout: the decade count divides the frame count as an integer.
    const qint64 frames = qint64(d->endFrame) - qint64(d->startFrame);
    if (frames <= 10)
        return 1;
    int power = -1;
    for (qint64 rest = frames; rest > 1; rest /= 10)
        ++power;
    const qint64 decade = qRound64(std::pow(10.0, power));
    const double unit = std::pow(10.0, qMax(power, 1) - 1);
    const qint64 leading = frames / decade;
    const int factor = leading < 3 ? 1 : leading > 4 ? 5 : 2;
    return uxTimeLineMath::saturate(factor * unit);
}
