#include "QUxProgressIndicator.h"

#include "uxFrameAccessible_p.h"

#include <uxPlatform.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

namespace {

/// Busy while the ring turns.
class QUxProgressIndicatorAccessible : public QAccessibleWidget
{
public:
    explicit QUxProgressIndicatorAccessible(QUxProgressIndicator* indicator)
        : QAccessibleWidget(indicator, QAccessible::Animation)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = static_cast<QUxProgressIndicator*>(widget())->isAnimated();
        return state;
    }
};

void notifyBusyChanged(QUxProgressIndicator* indicator)
{
    QAccessible::State changed;
    changed.busy = true;
    QAccessibleStateChangeEvent event(indicator, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

class QUxProgressIndicatorPrivate
{
public:
    int angle = 0;
    int timerId = -1;
    int delay = 40;
    bool displayedWhenStopped = false;
    QColor color = Qt::black;
};

QUxProgressIndicator::QUxProgressIndicator(QWidget* parent) : QWidget(parent), d(new QUxProgressIndicatorPrivate)
{
    uxInstallFrameAccessible<QUxProgressIndicator, QUxProgressIndicatorAccessible>();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(tr("Busy indicator"));
}

QUxProgressIndicator::~QUxProgressIndicator() = default;

bool QUxProgressIndicator::isAnimated() const { return d->timerId != -1; }
int QUxProgressIndicator::animationDelay() const { return d->delay; }
bool QUxProgressIndicator::isDisplayedWhenStopped() const { return d->displayedWhenStopped; }
QColor QUxProgressIndicator::color() const { return d->color; }

void QUxProgressIndicator::startAnimation()
{
    if (isAnimated())
        return;
    d->angle = 0;
    const int id = startTimer(d->delay, Qt::CoarseTimer);
    d->timerId = id > 0 ? id : -1;
    notifyBusyChanged(this);
}

void QUxProgressIndicator::stopAnimation()
{
    const bool wasAnimated = isAnimated();
    if (wasAnimated)
        killTimer(d->timerId);
    d->timerId = -1;
    d->angle = 0;
    update();
    if (wasAnimated)
        notifyBusyChanged(this);
}

void QUxProgressIndicator::setAnimationDelay(int delay)
{
    // A zero or negative interval would turn the ring on every pass of the event loop.
    d->delay = qMax(1, delay);
    if (!isAnimated())
        return;
    killTimer(d->timerId);
    const int id = startTimer(d->delay, Qt::CoarseTimer);
    d->timerId = id > 0 ? id : -1;
}

void QUxProgressIndicator::setDisplayedWhenStopped(bool state)
{
    d->displayedWhenStopped = state;
    update();
}

void QUxProgressIndicator::setColor(const QColor& color)
{
    if (!color.isValid())
        return;
    d->color = color;
    update();
}

QSize QUxProgressIndicator::sizeHint() const
{
    return QSize(uxPlatform::getMediumIconSizeX(), uxPlatform::getMediumIconSizeY());
}

int QUxProgressIndicator::heightForWidth(int w) const { return w; }

void QUxProgressIndicator::timerEvent(QTimerEvent*)
{
    d->angle = (d->angle + 30) % 360;
    update();
}

void QUxProgressIndicator::paintEvent(QPaintEvent*)
{
    if (!d->displayedWhenStopped && !isAnimated())
        return;
    const int side = qMin(width(), height());
    const int outerRadius = int((side - 1) * 0.5);
    const int innerRadius = int(outerRadius * 0.38);
    const int capsuleHeight = outerRadius - innerRadius;
    const int capsuleWidth = int(capsuleHeight * (side > 32 ? 0.23 : 0.35));
    const int capsuleRadius = capsuleWidth / 2;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 12; ++i) {
        QColor color = d->color;
        color.setAlphaF(1.0f - float(i) / 12.0f);
        painter.setBrush(color);
        painter.save();
        painter.translate(width() / 2, height() / 2);
        painter.rotate(d->angle - 30 * i);
        painter.drawRoundedRect(-int(capsuleWidth * 0.5), -outerRadius, capsuleWidth, capsuleHeight, capsuleRadius,
                                capsuleRadius);
        painter.restore();
    }
}
