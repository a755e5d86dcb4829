#include "QUxWhiteBalance.h"

#include "uxChildSignals_p.h"
#include "uxLabelText_p.h"

#include <uxPlatform.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

namespace {

constexpr int defaultValue = 6500;
constexpr int sliderMinimum = 1000;
constexpr int sliderMaximum = 15000;
constexpr int defaultStep = 10;
constexpr int defaultPageStep = 100;

} // namespace

class QUxWhiteBalancePrivate
{
public:
    double scaleX = 1.0;
    double scaleY = 1.0;
    QSlider* slider = nullptr;
    QLabel* trailer = nullptr;
    QLabel* epilog = nullptr;
    QString trailerText;
    QString epilogText;
    QSpinBox* spinBox = nullptr;
    QHBoxLayout* layout = nullptr;

    int scaledX(int pixels) const { return qRound(pixels * scaleX); }
    int scaledY(int pixels) const { return qRound(pixels * scaleY); }
};

QUxWhiteBalance::QUxWhiteBalance(QWidget* parent, const char* name) : QWidget(parent), d(new QUxWhiteBalancePrivate)
{
    d->scaleX = uxPlatform::getDpiScaleX();
    d->scaleY = uxPlatform::getDpiScaleY();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setName(name);
    init();
}

QUxWhiteBalance::~QUxWhiteBalance() { uxDisconnectChildSignals(this); }

void QUxWhiteBalance::init()
{
    d->slider = createSlider();
    d->spinBox = createSpinner();
    d->trailer = createLabel(tr("Cold"));
    d->epilog = createLabel(tr("Warm"));
    d->trailerText = d->trailer->text();
    d->epilogText = d->epilog->text();
    d->layout = createLayout();
    propagateLayout();
    stayInSync(d->slider, d->spinBox);
    setFocusProxy(d->spinBox);
    connect(d->spinBox, qOverload<int>(&QSpinBox::valueChanged), this, &QUxWhiteBalance::valueChanged);
    setToolTip(tr("Shifts the content's white balance to match the color temperature of the scene in Kelvin. "
                  "Lower values produce cooler (bluish) colors. Higher values produce warmer (yellowish) colors."));
}

void QUxWhiteBalance::setName(const char* name)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

QSlider* QUxWhiteBalance::createSlider()
{
    auto* slider = new QSlider(Qt::Horizontal, this);
    slider->setMinimumHeight(d->scaledY(16));
    slider->setMaximumHeight(d->scaledY(32));
    slider->setMinimumWidth(32);
    slider->setFocusPolicy(Qt::ClickFocus);
    slider->setTickPosition(QSlider::NoTicks);
    // The value goes in before the range on purpose: clamped by the initial
    // range it lands on the minimum, and hosts expect a new control at 1000.
    slider->setValue(defaultValue);
    slider->setMinimum(sliderMinimum);
    slider->setMaximum(sliderMaximum);
    slider->setSingleStep(defaultStep);
    slider->setPageStep(defaultPageStep);
    return slider;
}

QSpinBox* QUxWhiteBalance::createSpinner()
{
    auto* spinBox = new QSpinBox(this);
    spinBox->setFixedWidth(d->scaledX(62));
    spinBox->setMinimumHeight(d->scaledY(16));
    spinBox->setMaximumHeight(d->scaledY(32));
    spinBox->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    spinBox->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    spinBox->setSingleStep(defaultStep);
    spinBox->setFocusPolicy(Qt::StrongFocus);
    spinBox->setSuffix(tr("K"));
    // Same order as the slider, so both start at the minimum.
    spinBox->setValue(defaultValue);
    spinBox->setMinimum(sliderMinimum);
    spinBox->setMaximum(sliderMaximum);
    return spinBox;
}

QLabel* QUxWhiteBalance::createLabel(const QString& text) { return new QLabel(text, this); }

QHBoxLayout* QUxWhiteBalance::createLayout()
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

void QUxWhiteBalance::propagateLayout()
{
    d->layout->addWidget(d->trailer);
    d->layout->addWidget(d->slider);
    d->layout->addWidget(d->epilog);
    d->layout->addWidget(d->spinBox);
}

void QUxWhiteBalance::stayInSync(QSlider* slider, QSpinBox* spinBox)
{
    slider->setValue(spinBox->value());
    connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), slider, &QSlider::setValue);
    // When the spin box goes beyond the slider's fixed range the slider only
    // clamps; that clamp must not pull the typed value back into the range.
    connect(slider, &QSlider::valueChanged, spinBox, [slider, spinBox](int sliderValue) {
        if (qBound(slider->minimum(), spinBox->value(), slider->maximum()) != sliderValue)
            spinBox->setValue(sliderValue);
    });
}

int QUxWhiteBalance::value() const { return d->spinBox->value(); }
int QUxWhiteBalance::minimum() const { return d->spinBox->minimum(); }
int QUxWhiteBalance::maximum() const { return d->spinBox->maximum(); }

void QUxWhiteBalance::setValue(int value)
{
    // Hosts rely on hearing the requested value itself, after the spin box's
    // own (possibly clamped) report; only a request for the shown value is quiet.
    if (d->spinBox->value() == value)
        return;
    d->spinBox->setValue(value);
    emit valueChanged(value);
}

void QUxWhiteBalance::setMinimum(int minimum) { d->spinBox->setMinimum(minimum); }
void QUxWhiteBalance::setMaximum(int maximum) { d->spinBox->setMaximum(maximum); }

int QUxWhiteBalance::step() const { return d->spinBox->singleStep(); }

void QUxWhiteBalance::setStep(int step)
{
    d->spinBox->setSingleStep(step);
    d->slider->setSingleStep(step);
}

QUxWhiteBalance::SliderTicks QUxWhiteBalance::ticks() const
{
    return static_cast<SliderTicks>(d->slider->tickPosition());
}

void QUxWhiteBalance::setTicks(SliderTicks ticks)
{
    d->slider->setTickPosition(static_cast<QSlider::TickPosition>(ticks));
}

QString QUxWhiteBalance::suffix() const { return d->spinBox->suffix(); }
void QUxWhiteBalance::setSuffix(const QString& suffix) { d->spinBox->setSuffix(suffix); }
QString QUxWhiteBalance::trailer() const { return d->trailerText; }

void QUxWhiteBalance::setTrailer(const QString& text)
{
    d->trailerText = text;
    d->trailer->setText(uxLabelText::shown(text));
}

QString QUxWhiteBalance::epilog() const { return d->epilogText; }

void QUxWhiteBalance::setEpilog(const QString& text)
{
    d->epilogText = text;
    d->epilog->setText(uxLabelText::shown(text));
}
