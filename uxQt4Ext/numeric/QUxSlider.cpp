#include "QUxSlider.h"

#include "uxChildSignals_p.h"
#include "uxSignalBlocker.h"

#include <uxPlatform.h>

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QSlider>
#include <QStyle>

#include <cfloat>
#include <climits>
#include <cmath>

namespace {

/// Tick counts beyond this would overflow the slider's int range; such a
/// travel is as good as continuous anyway.
constexpr double MaximumTicks = 1e9;
/// Positions this close to a whole tick are that tick, so that 0.3 with a
/// line step of 0.1 lands on tick 3 and not on 2.9999999999999996.
constexpr double TickTolerance = 1e-6;
constexpr double MinimumSpinnerStep = 1e-8;

enum class Rounding { Down, Up, Nearest };

int roundTicks(double ticks, Rounding rounding)
{
    if (!(ticks > 0)) // also catches NaN
        return 0;
    if (ticks >= MaximumTicks)
        return int(MaximumTicks);
    const double nearest = std::round(ticks);
    if (std::abs(ticks - nearest) < TickTolerance || rounding == Rounding::Nearest)
        return int(nearest);
    return int(rounding == Rounding::Down ? std::floor(ticks) : std::ceil(ticks));
}

/// @p requested, or @p current when NaN was requested: no bound or step can be made of NaN.
double unlessNaN(double requested, double current) { return std::isnan(requested) ? current : requested; }

/// (int) @p pageStep, kept inside the int range.
int pageTicksOf(double pageStep)
{
    if (std::isnan(pageStep))
        return 0;
    return int(qBound(-double(INT_MAX), pageStep, double(INT_MAX)));
}

} // namespace

class QUxSliderPrivate
{
public:
    int tickCount() const
    {
        if (!(lineStep > 0))
            return 0;
        return roundTicks(std::abs(maxValue - minValue) / lineStep, Rounding::Nearest);
    }

    int tickOf(double v, Rounding rounding) const
    {
        if (!(lineStep > 0))
            return 0;
        const double low = qMin(minValue, maxValue);
        const double high = qMax(minValue, maxValue);
        return qMin(roundTicks((qBound(low, v, high) - minValue) / lineStep, rounding), tickCount());
    }

    double valueOf(int tick) const { return qBound(hardMinValue, tick * lineStep + minValue, hardMaxValue); }

    QSlider* slider = nullptr;
    QUxDoubleSpiner* spinner = nullptr;
    QGridLayout* layout = nullptr;
    double minValue = 0.0;
    double maxValue = 1.0;
    double hardMinValue = -double(FLT_MAX);
    double hardMaxValue = double(FLT_MAX);
    double lineStep = 0.1;
    int pageTicks = 0;
    double value = 0.0;
    bool updating = false;
    bool returnPressed = false;
    QUxSlider::SliderPosition sliderPos = QUxSlider::Left;
};

QUxSlider::QUxSlider(QWidget* parent, const char* name) : QWidget(parent), d(std::make_unique<QUxSliderPrivate>())
{
    init(Qt::Horizontal, name);
}

QUxSlider::QUxSlider(double minimum, double maximum, double lineStep, double value, Qt::Orientation orientation,
                     QWidget* parent, const char* name)
    : QWidget(parent), d(std::make_unique<QUxSliderPrivate>())
{
    init(orientation, name);
    setRange(minimum, maximum);
    setSteps(lineStep, lineStep);
    setValue(value);
}

QUxSlider::~QUxSlider() { uxDisconnectChildSignals(this); }

void QUxSlider::init(Qt::Orientation orientation, const char* name)
{
    // Lets hosts connect relativeOperatorApplied() queued and spy on it by the name it is declared with.
    qRegisterMetaType<RelativeOperator>("RelativeOperator");
    if (name)
        setObjectName(QString::fromLatin1(name));

    const double dpiX = uxPlatform::getDpiScaleX();
    const double dpiY = uxPlatform::getDpiScaleY();

    // The same bounds in either orientation: the slider shares one row with the spin box.
    d->slider = new QSlider(orientation, this);
    d->slider->setMinimumHeight(int(16 * dpiY));
    d->slider->setMaximumHeight(int(32 * dpiY));
    d->slider->setMinimumWidth(int(32 * dpiX));
    d->pageTicks = d->slider->pageStep();

    d->spinner = new QUxDoubleSpiner(this);
    d->spinner->setFixedWidth(int(62 * dpiX));
    d->spinner->setMinimumHeight(int(16 * dpiY));
    d->spinner->setMaximumHeight(int(32 * dpiY));
    d->spinner->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->spinner->setButtonSymbols(QAbstractSpinBox::NoButtons);
    d->spinner->installEventFilter(this);

    d->layout = new QGridLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->addWidget(d->slider, 0, 0);
    d->layout->addWidget(d->spinner, 0, 1);
    d->layout->setColumnStretch(0, 1);
    d->layout->setColumnStretch(1, 0);

    connect(d->slider, SIGNAL(valueChanged(int)), this, SLOT(onValueChanged(int)));
    connect(d->slider, SIGNAL(sliderPressed()), this, SLOT(onSliderPressed()));
    connect(d->slider, SIGNAL(sliderMoved(int)), this, SLOT(onSliderMoved(int)));
    connect(d->slider, SIGNAL(sliderReleased()), this, SLOT(onSliderReleased()));
    connect(d->spinner, SIGNAL(valueChanged(double)), this, SLOT(setValue(double)));
    connect(d->spinner, SIGNAL(relativeOperatorApplied(RelativeOperator, double)), this,
            SLOT(appliedRelativeOperator(RelativeOperator, double)));
    connect(d->spinner, &QAbstractSpinBox::editingFinished, this, &QUxSlider::onSpinnerEditingFinished);

    adjustSlider();
    showInSpinner(d->value);
}

double QUxSlider::value() const { return d->value; }

void QUxSlider::setValue(double value)
{
    if (std::isnan(value))
        return; // no clamp can make a number of it
    const double previous = d->value;
    d->value = qBound(d->hardMinValue, value, d->hardMaxValue);
    showInSpinner(d->value);

    // The handle never overtakes the value in the direction of the change.
    const int tick = d->tickOf(d->value, d->value > previous ? Rounding::Down : Rounding::Up);
    d->updating = true;
    {
        uxSignalBlocker blocker;
        if (signalsBlocked())
            blocker.block(d->slider);
        d->slider->setValue(tick);
    }
    d->updating = false;
    emit valueChanged(d->value);
}

void QUxSlider::setRange(double minimum, double maximum)
{
    d->minValue = unlessNaN(minimum, d->minValue);
    d->maxValue = unlessNaN(maximum, d->maxValue);
    adjustSlider();
}

void QUxSlider::setMinimum(double minimum) { setRange(minimum, d->maxValue); }

void QUxSlider::setMaximum(double maximum) { setRange(d->minValue, maximum); }

double QUxSlider::minValue() const { return d->minValue; }

double QUxSlider::maxValue() const { return d->maxValue; }

void QUxSlider::setHardRange(double minimum, double maximum)
{
    // As in Qt's ranges: a maximum below the minimum leaves the minimum as the only value.
    d->hardMinValue = unlessNaN(minimum, d->hardMinValue);
    d->hardMaxValue = qMax(d->hardMinValue, unlessNaN(maximum, d->hardMaxValue));
    adjustSlider();
    if (d->value < d->hardMinValue || d->value > d->hardMaxValue)
        setValue(d->value);
}

void QUxSlider::setHardMinimum(double minimum) { setHardRange(minimum, qMax(d->hardMaxValue, minimum)); }

void QUxSlider::setHardMaximum(double maximum) { setHardRange(qMin(d->hardMinValue, maximum), maximum); }

double QUxSlider::hardMinValue() const { return d->hardMinValue; }

double QUxSlider::hardMaxValue() const { return d->hardMaxValue; }

void QUxSlider::setSteps(double lineStep, double pageStep)
{
    setLineStep(lineStep);
    setPageStep(pageStep);
}

void QUxSlider::setLineStep(double lineStep)
{
    d->lineStep = unlessNaN(lineStep, d->lineStep);
    adjustSlider();
}

double QUxSlider::lineStep() const { return d->lineStep; }

void QUxSlider::setPageStep(double pageStep)
{
    d->pageTicks = pageTicksOf(pageStep);
    adjustSlider();
}

double QUxSlider::pageStep() const { return d->slider->pageStep() * d->lineStep; }

void QUxSlider::setTracking(bool enable) { d->slider->setTracking(enable); }

bool QUxSlider::hasTracking() const { return d->slider->hasTracking(); }

void QUxSlider::showValue(bool show) { d->spinner->setVisible(show); }

void QUxSlider::setDecimals(int decimals) { d->spinner->setDecimals(decimals); }

void QUxSlider::setDisplayDecimals(int decimals) { d->spinner->setDisplayDecimals(decimals); }

void QUxSlider::setUseExactDisplayDecimals(bool enabled) { d->spinner->setUseExactDisplayDecimals(enabled); }

void QUxSlider::setSuffix(const QString& suffix) { d->spinner->setSuffix(suffix); }

void QUxSlider::setRelativeOperatorHandlingMode(RelativeOperatorHandlingMode mode)
{
    d->spinner->setRelativeOperatorHandlingMode(mode);
}

void QUxSlider::setSliderPos(SliderPosition position)
{
    if (position == d->sliderPos || (position != Left && position != Right))
        return;
    d->sliderPos = position;
    d->layout->removeWidget(d->slider);
    d->layout->removeWidget(d->spinner);
    const int sliderColumn = position == Left ? 0 : 1;
    d->layout->addWidget(d->slider, 0, sliderColumn);
    d->layout->addWidget(d->spinner, 0, 1 - sliderColumn);
    d->layout->setColumnStretch(sliderColumn, 1);
    d->layout->setColumnStretch(1 - sliderColumn, 0);
}

QUxSlider::SliderPosition QUxSlider::sliderPos() const { return d->sliderPos; }

void QUxSlider::propagateMultiselectProperty()
{
    const QVariant multiselect = property("multiselect");
    for (QWidget* child : {static_cast<QWidget*>(d->slider), static_cast<QWidget*>(d->spinner)}) {
        child->setProperty("multiselect", multiselect);
        child->style()->unpolish(child);
        child->style()->polish(child);
        child->update();
    }
}

QSize QUxSlider::sizeHint() const
{
    return QSize(int(130 * uxPlatform::getDpiScaleX()), uxPlatform::getSmallIconSizeY());
}

void QUxSlider::setEnabled(bool enable)
{
    QWidget::setEnabled(enable);
    d->slider->setEnabled(enable);
    d->spinner->setEnabled(enable);
}

void QUxSlider::onValueChanged(int position)
{
    if (d->updating) {
        // Listeners rely on this pair following every handle move made by setValue().
        emit valueChanged(d->value);
        emit sliderReleased();
        return;
    }
    d->value = d->valueOf(position);
    showInSpinner(d->value);
    emit valueChanged(d->value);
}

void QUxSlider::onSliderPressed() { emit sliderPressed(); }

void QUxSlider::onSliderMoved(int position)
{
    if (!d->updating) {
        d->value = d->valueOf(position);
        showInSpinner(d->value);
    }
    emit sliderMoved(d->value);
}

void QUxSlider::onSliderReleased() { emit sliderReleased(); }

void QUxSlider::appliedRelativeOperator(RelativeOperator op, double value) { emit relativeOperatorApplied(op, value); }

void QUxSlider::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showInSpinner(d->value);
}

bool QUxSlider::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->spinner && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        d->returnPressed = key == Qt::Key_Return || key == Qt::Key_Enter;
    }
    return QWidget::eventFilter(watched, event);
}

void QUxSlider::onSpinnerEditingFinished()
{
    // Focus leaving the spin box also finishes editing; only a Return counts.
    if (!d->returnPressed)
        return;
    d->returnPressed = false;
    emit changedReturn();
}

void QUxSlider::adjustSlider()
{
    {
        uxSignalBlocker blocker(d->slider);
        d->slider->setRange(0, d->tickCount());
        d->slider->setSingleStep(1);
        d->slider->setPageStep(d->pageTicks);
        d->slider->setValue(d->tickOf(d->value, Rounding::Nearest));
    }
    if (d->lineStep >= MinimumSpinnerStep)
        d->spinner->setSingleStep(d->lineStep);
}

void QUxSlider::showInSpinner(double value)
{
    uxSignalBlocker blocker(d->spinner);
    d->spinner->setValue(value);
}
