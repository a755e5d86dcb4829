#include "QUxTimeLineRange.h"

#include "uxFrameAccessible_p.h"
#include "uxTimeLineMath_p.h"

#include <uxPlatform.h>

#include <QMouseEvent>
#include <QPainter>

#include <climits>

namespace {

/// Reports the range start as the value of a slider over the whole interval;
/// the value text names both ends.
class QUxTimeLineRangeAccessible : public uxFrameAccessible
{
public:
    explicit QUxTimeLineRangeAccessible(QUxTimeLineRange* range) : uxFrameAccessible(range) {}

    QVariant currentValue() const override { return range()->rangeStartFrame(); }
    void setCurrentValue(const QVariant& value) override { range()->setRangeStartFrame(value.toInt()); }
    QVariant minimumValue() const override { return range()->startFrame(); }
    QVariant maximumValue() const override { return range()->endFrame(); }

protected:
    QString valueText() const override
    {
        return QUxTimeLineRange::tr("%1 to %2").arg(range()->rangeStartFrame()).arg(range()->rangeEndFrame());
    }

private:
    QUxTimeLineRange* range() const { return static_cast<QUxTimeLineRange*>(widget()); }
};

} // namespace

class QUxTimeLineRangePrivate
{
public:
    explicit QUxTimeLineRangePrivate(QUxTimeLineRange* owner) : q(owner) {}

    QUxTimeLineRange* const q;
    int startFrame = 0;
    int rangeStart = 0;
    int endFrame = 50;
    int rangeEnd = 25;
    bool movingBar = false;
    bool draggingLeft = false;
    bool draggingRight = false;
    // 64-bit: frame differences of arbitrary ints do not fit an int.
    qint64 grabOffset = 0;      // left grip or bar: frame under the mouse minus range start
    qint64 rightGrabOffset = 0; // right grip: range end minus frame under the mouse

    // From the current width, as the timeline does; an interval of zero frames counts as one.
    double pixelsPerFrame() const
    {
        return uxTimeLineMath::pixelsPerFrame(q->width(), double(endFrame) - double(startFrame));
    }

    void notifyAccessibility()
    {
        QAccessibleValueChangeEvent event(q, rangeStart);
        QAccessible::updateAccessibility(&event);
    }

    void dragRightGrip(qint64 frame)
    {
        qint64 end = rightGrabOffset + frame;
        if (end == rangeEnd)
            return;
        end = qMin(qMax(end, qint64(rangeStart) + 1), qint64(endFrame));
        q->setRangeEndFrame(uxTimeLineMath::saturate(end));
    }

    void dragLeftGrip(qint64 frame)
    {
        qint64 start = frame - grabOffset;
        if (start == rangeStart)
            return;
        if (start < startFrame)
            start = startFrame;
        if (start >= rangeEnd)
            start = qint64(rangeEnd) - 1;
        q->setRangeStartFrame(uxTimeLineMath::saturate(start));
    }

    void moveBar(qint64 frame)
    {
        const qint64 start = frame - grabOffset;
        const qint64 length = qint64(rangeEnd) - rangeStart;
        if (start == rangeStart || start < startFrame || start + length > endFrame)
            return;
        // Both ends move before either signal, so receivers never see half a move.
        rangeStart = int(start);
        rangeEnd = int(start + length);
        emit q->rangeStartChanged(rangeStart);
        emit q->rangeEndChanged(rangeEnd);
        q->update();
        notifyAccessibility();
    }
};

QUxTimeLineRange::QUxTimeLineRange(QWidget* parent) : QWidget(parent), d(new QUxTimeLineRangePrivate(this))
{
    uxInstallFrameAccessible<QUxTimeLineRange, QUxTimeLineRangeAccessible>();

    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TranslucentBackground);
    setAccessibleName(tr("Time range"));
    setAccessibleDescription(tr("Drag the grips to move the range start or end, the bar to move the whole range"));
}

QUxTimeLineRange::~QUxTimeLineRange() = default;

int QUxTimeLineRange::rangeStartFrame() const { return d->rangeStart; }
int QUxTimeLineRange::rangeEndFrame() const { return d->rangeEnd; }
int QUxTimeLineRange::startFrame() const { return d->startFrame; }
int QUxTimeLineRange::endFrame() const { return d->endFrame; }

QSize QUxTimeLineRange::sizeHint() const
{
    return QSize(qRound(200 * uxPlatform::getDpiScaleX()), uxPlatform::getMediumIconSizeY());
}

QSize QUxTimeLineRange::minimumSizeHint() const
{
    return QSize(qRound(20 * uxPlatform::getDpiScaleX()), uxPlatform::getMediumIconSizeY());
}

void QUxTimeLineRange::setRangeStartFrame(int frame)
{
    d->rangeStart = frame;
    emit rangeStartChanged(frame);
    update();
    d->notifyAccessibility();
}

void QUxTimeLineRange::setRangeEndFrame(int frame)
{
    d->rangeEnd = frame;
    emit rangeEndChanged(frame);
    update();
    d->notifyAccessibility();
}

void QUxTimeLineRange::setStartFrame(int frame)
{
    d->startFrame = frame;
    update();
}

void QUxTimeLineRange::setEndFrame(int frame)
{
    d->endFrame = frame;
    update();
}

void QUxTimeLineRange::mousePressEvent(QMouseEvent* event)
{
    const int x = event->x();
    const int y = event->y();
    if (hasHitStretchControl(x, y, "left")) {
        d->draggingLeft = true;
        d->grabOffset = qint64(toLocal(x)) - d->rangeStart;
    } else if (hasHitStretchControl(x, y, "right")) {
        d->draggingRight = true;
        d->rightGrabOffset = qint64(d->rangeEnd) - toLocal(x);
    } else if (hasHitRangeControl(x, y)) {
        d->movingBar = true;
        d->grabOffset = qint64(toLocal(x)) - d->rangeStart;
    }
}

void QUxTimeLineRange::mouseMoveEvent(QMouseEvent* event)
{
    const qint64 frame = toLocal(event->x());
    if (d->draggingRight)
        d->dragRightGrip(frame);
    else if (d->draggingLeft)
        d->dragLeftGrip(frame);
    else
        d->moveBar(frame); // also a drag that began off the bar, with the last grab's offset
}

void QUxTimeLineRange::mouseReleaseEvent(QMouseEvent*)
{
    d->movingBar = false;
    d->draggingLeft = false;
    d->draggingRight = false;
}

void QUxTimeLineRange::paintEvent(QPaintEvent*)
{
    const int w = width();
    const int h = height() - 1;
    QPainter painter(this);
    QFont font = painter.font();
    font.setPointSize(9);
    painter.setFont(font);

    // Ends far outside stay far enough outside that neither grips nor labels show.
    const int margin = h + 16 + painter.fontMetrics().horizontalAdvance(QString::number(INT_MIN));
    const int xs = uxTimeLineMath::paintable(toPixel(d->rangeStart), w, margin);
    const int xe = uxTimeLineMath::paintable(toPixel(d->rangeEnd), w, margin);

    const QColor grey(127, 127, 127);
    painter.setPen(grey);
    painter.setBrush(palette().brush(palette().currentColorGroup(), QPalette::Base));
    painter.drawRoundedRect(0, 0, w - 1, h, 4, 4);
    painter.setBrush(QColor(45, 45, 45));
    painter.drawRoundedRect(xs, 0, xe - xs - 1, h, 4, 4);
    painter.fillRect(QRect(QPoint(xs + 4, 4), QPoint(xs + h - 4, h - 5)), grey);
    painter.fillRect(QRect(QPoint(xe - h + 2, 4), QPoint(xe - 6, h - 5)), grey);

    painter.setPen(QColor(200, 200, 200));
    const QRect between(QPoint(xs + h - 4 + 3, 0), QPoint(xe - h + 2 - 3, h));
    painter.drawText(between, Qt::AlignLeft | Qt::AlignVCenter, QString::number(d->rangeStart));
    painter.drawText(between, Qt::AlignRight | Qt::AlignVCenter, QString::number(d->rangeEnd));
}

bool QUxTimeLineRange::hasHitStretchControl(int x, int y, const std::string& side) const
{
    const qint64 h = height() - 1;
    if (y <= 3 || y > h - 5)
        return false;
    if (side == "left") {
        const qint64 xs = toPixel(d->rangeStart);
        return x >= xs + 4 && x <= xs + h - 4;
    }
    if (side == "right") {
        const qint64 xe = toPixel(d->rangeEnd);
        return x >= xe - 6 - h + 8 && x <= xe - 6;
    }
    return false;
}

bool QUxTimeLineRange::hasHitRangeControl(int x, int y) const
{
    const int h = height() - 1;
    const qint64 xs = toPixel(d->rangeStart);
    const qint64 xe = toPixel(d->rangeEnd);
    return y >= 0 && y <= h && x >= xs && x <= xe - 2;
}

int QUxTimeLineRange::d2i(double value) const { return uxTimeLineMath::d2i(value); }

int QUxTimeLineRange::toLocal(int x) const { return uxTimeLineMath::toLocal(x, d->startFrame, d->pixelsPerFrame()); }

int QUxTimeLineRange::toPixel(double frame) const { return d2i((frame - double(d->startFrame)) * d->pixelsPerFrame()); }
