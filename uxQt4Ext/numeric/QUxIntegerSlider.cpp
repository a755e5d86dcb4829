#include "QUxIntegerSlider.h"

#include "uxChildSignals_p.h"
#include "uxLabelText_p.h"
#include "uxSignalBlocker.h"

#include <uxPlatform.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

class QUxIntegerSliderPrivate
{
public:
    double dpiX = 1.0;
    double dpiY = 1.0;
    int value = 0;
    int minimum = 0;
    int maximum = 100;
    int step = 1;
    int pageStep = 10;

    QHBoxLayout* layout = nullptr;
    QLabel* prefixLabel = nullptr;
    QSlider* slider = nullptr;
    QLabel* specialSuffixLabel = nullptr;
    QString prefix;
    QString specialSuffix;
    QSpinBox* spinner = nullptr;
};

namespace {

void setLabelText(QLabel* label, QString& stored, const QString& text)
{
    stored = text;
    label->setText(uxLabelText::shown(text));
    label->setVisible(!text.isEmpty());
}

} // namespace

QUxIntegerSlider::QUxIntegerSlider(QWidget* parent, const char* name)
    : QWidget(parent), d(std::make_unique<QUxIntegerSliderPrivate>())
{
    setName(name);
    init();
}

QUxIntegerSlider::~QUxIntegerSlider() { uxDisconnectChildSignals(this); }

void QUxIntegerSlider::init()
{
    d->dpiX = uxPlatform::getDpiScaleX();
    d->dpiY = uxPlatform::getDpiScaleY();
    createLayout();
    createSlider();
    createSpinner();
    propagateLayout();

    d->slider->setValue(d->spinner->value());
    connect(d->slider, &QSlider::valueChanged, this, &QUxIntegerSlider::onSliderValueChanged);
    connect(d->spinner, qOverload<int>(&QSpinBox::valueChanged), this, &QUxIntegerSlider::onSpinnerValueChanged);
}

void QUxIntegerSlider::createLayout()
{
    d->layout = new QHBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(6);
    d->prefixLabel = new QLabel(this);
    d->prefixLabel->setVisible(false);
    d->specialSuffixLabel = new QLabel(this);
    d->specialSuffixLabel->setVisible(false);
}

void QUxIntegerSlider::createSlider()
{
    d->slider = new QSlider(Qt::Horizontal, this);
    d->slider->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
    d->slider->setMinimumHeight(int(16 * d->dpiY));
    d->slider->setMaximumHeight(int(32 * d->dpiY));
    d->slider->setMinimumWidth(32);
    d->slider->setFocusPolicy(Qt::ClickFocus);
    d->slider->setTickPosition(QSlider::NoTicks);
    d->slider->setRange(d->minimum, d->maximum);
    d->slider->setValue(d->value);
    d->slider->setSingleStep(d->step);
    d->slider->setPageStep(d->pageStep);
}

void QUxIntegerSlider::createSpinner()
{
    d->spinner = new QSpinBox(this);
    d->spinner->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    d->spinner->setFixedWidth(int(62 * d->dpiX));
    d->spinner->setMinimumHeight(int(16 * d->dpiY));
    d->spinner->setMaximumHeight(int(32 * d->dpiY));
    d->spinner->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->spinner->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    d->spinner->setFocusPolicy(Qt::StrongFocus);
    // Typing "150" should commit 150, not pass through 1 and 15 on the way.
    d->spinner->setKeyboardTracking(false);
    d->spinner->setSingleStep(d->step);
    d->spinner->setRange(d->minimum, d->maximum);
    d->spinner->setValue(d->value);
}

void QUxIntegerSlider::propagateLayout()
{
    d->layout->addWidget(d->prefixLabel);
    d->layout->addWidget(d->slider, 1);
    d->layout->addWidget(d->specialSuffixLabel);
    d->layout->addWidget(d->spinner);
}

void QUxIntegerSlider::setName(const char* name)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

void QUxIntegerSlider::onSliderValueChanged(int value)
{
    // Reaches onSpinnerValueChanged(), which reports the change once.
    d->spinner->setValue(value);
}

void QUxIntegerSlider::onSpinnerValueChanged(int value)
{
    d->value = value;
    {
        // A typed value beyond the travel leaves the handle at the end
        // without pulling the spin box back to it.
        uxSignalBlocker blocker(d->slider);
        d->slider->setValue(value);
    }
    emit valueChanged(value);
}

void QUxIntegerSlider::setValue(int value)
{
    if (value == d->spinner->value())
        return;
    {
        uxSignalBlocker blocker{d->spinner, d->slider};
        d->spinner->setValue(value);
        d->slider->setValue(d->spinner->value());
    }
    d->value = d->spinner->value();
    emit valueChanged(d->value);
}

int QUxIntegerSlider::value() const { return d->spinner->value(); }

void QUxIntegerSlider::setMinimum(int minimum)
{
    d->minimum = minimum;
    d->spinner->setMinimum(minimum);
    d->slider->setMinimum(minimum);
}

int QUxIntegerSlider::minimum() const { return d->slider->minimum(); }

void QUxIntegerSlider::setMaximum(int maximum)
{
    d->maximum = maximum;
    d->spinner->setMaximum(maximum);
    d->slider->setMaximum(maximum);
}

int QUxIntegerSlider::maximum() const { return d->slider->maximum(); }

void QUxIntegerSlider::setStep(int step)
{
    d->step = step;
    d->spinner->setSingleStep(step);
    d->slider->setSingleStep(step);
}

int QUxIntegerSlider::step() const { return d->step; }

void QUxIntegerSlider::setPageStep(int pageStep)
{
    d->pageStep = pageStep;
    d->slider->setPageStep(pageStep);
}

int QUxIntegerSlider::pageStep() const { return d->slider->pageStep(); }

void QUxIntegerSlider::setHardMinimum(int minimum) { d->spinner->setMinimum(minimum); }

int QUxIntegerSlider::hardMinimum() const { return d->spinner->minimum(); }

void QUxIntegerSlider::setHardMaximum(int maximum) { d->spinner->setMaximum(maximum); }

int QUxIntegerSlider::hardMaximum() const { return d->spinner->maximum(); }

void QUxIntegerSlider::setPrefix(const QString& text) { setLabelText(d->prefixLabel, d->prefix, text); }

QString QUxIntegerSlider::prefix() const { return d->prefix; }

void QUxIntegerSlider::setSuffix(const QString& text) { d->spinner->setSuffix(text); }

QString QUxIntegerSlider::suffix() const { return d->spinner->suffix(); }

void QUxIntegerSlider::setSpecialSuffix(const QString& text)
{
    setLabelText(d->specialSuffixLabel, d->specialSuffix, text);
}

QString QUxIntegerSlider::specialSuffix() const { return d->specialSuffix; }

void QUxIntegerSlider::setTicks(SliderTicks ticks) { d->slider->setTickPosition(QSlider::TickPosition(ticks)); }

QUxIntegerSlider::SliderTicks QUxIntegerSlider::ticks() const { return SliderTicks(d->slider->tickPosition()); }

void QUxIntegerSlider::setTracking(bool enable) { d->slider->setTracking(enable); }

bool QUxIntegerSlider::hasTracking() const { return d->slider->hasTracking(); }
