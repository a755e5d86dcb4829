#include "QUxSliderSwitch.h"

#include <uxPlatform.h>

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

namespace {

constexpr int AnimationIntervalMs = 10;

QLinearGradient verticalGradient(qreal y1, qreal y2, const QColor& from, const QColor& to)
{
    QLinearGradient gradient(0, y1, 0, y2);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0, from);
    gradient.setColorAt(1, to);
    return gradient;
}

} // namespace

class QUxSliderSwitchPrivate
{
public:
    QUxSliderSwitchPrivate()
        : trackWidth(float(25 * uxPlatform::getDpiScaleX())), trackHeight(float(16 * uxPlatform::getDpiScaleY())),
          radius(trackHeight / 2), knobOnX(trackWidth - radius), knobOffX(radius),
          offBrush(verticalGradient(0.1, 0.45, QColor(110, 110, 110), QColor(90, 90, 90))),
          onBrush(verticalGradient(0.45, 0.55, QColor(65, 65, 65), QColor(45, 45, 45))),
          disabledBrush(verticalGradient(0.1, 0.45, QColor(90, 90, 90), QColor(70, 70, 70)))
    {
        placeKnobAtRest();
    }

    float knobTarget() const { return on ? knobOnX : knobOffX; }

    void placeKnobAtRest()
    {
        knobX = qint16(knobTarget());
        knobY = qint16(radius);
    }

    bool on = false;
    qint16 knobX = 0;
    qint16 knobY = 0;
    QTimer animation;
    const float trackWidth;
    const float trackHeight;
    const float radius;
    const float knobOnX;
    const float knobOffX;
    const QLinearGradient offBrush;
    const QLinearGradient onBrush;
    const QLinearGradient disabledBrush;
};

QUxSliderSwitch::QUxSliderSwitch(QWidget* parent) : QWidget(parent), d(std::make_unique<QUxSliderSwitchPrivate>())
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setAttribute(Qt::WA_Hover);
    connect(&d->animation, &QTimer::timeout, this, &QUxSliderSwitch::animateSlider);
}

QUxSliderSwitch::~QUxSliderSwitch() = default;

void QUxSliderSwitch::setOn(bool on)
{
    d->on = on;
    d->animation.start(AnimationIntervalMs);
    emit toggled(on);
}

bool QUxSliderSwitch::isOn() const { return d->on; }

QSize QUxSliderSwitch::sizeHint() const { return QSize(int(d->trackWidth), int(d->trackHeight)); }

QSize QUxSliderSwitch::minimumSizeHint() const { return sizeHint(); }

void QUxSliderSwitch::animateSlider()
{
    d->knobX += d->on ? 1 : -1;
    if (d->knobX == qint16(d->knobOnX) || d->knobX == qint16(d->knobOffX))
        d->animation.stop();
    if (d->knobX < d->knobOffX || d->knobX > d->knobOnX) {
        d->knobX = qint16(d->knobTarget());
        d->animation.stop();
    }
    repaint();
}

void QUxSliderSwitch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    QColor penColor(127, 127, 127);
    QColor knobColor(Qt::white);
    if (!isEnabled()) {
        penColor = QColor(60, 60, 60);
        knobColor = QColor(QStringLiteral("#6B6B6B"));
    } else if (underMouse()) {
        penColor = QColor(244, 133, 22);
    }
    painter.setPen(penColor);

    const QLinearGradient& track = !isEnabled() ? d->disabledBrush : (d->on ? d->onBrush : d->offBrush);
    painter.setBrush(track);
    painter.drawRoundedRect(QRectF(0, 0, int(d->trackWidth), int(d->trackHeight)), d->radius, d->radius);

    painter.setBrush(knobColor);
    painter.drawEllipse(QPointF(d->knobX, d->knobY), d->radius, d->radius);
}

void QUxSliderSwitch::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isVisible() || !isEnabled() || event->button() != Qt::LeftButton || !rect().contains(event->pos())) {
        event->ignore();
        return;
    }
    event->accept();
    d->on = !d->on;
    d->animation.start(AnimationIntervalMs);
    emit toggled(d->on);
}

void QUxSliderSwitch::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->placeKnobAtRest();
}
