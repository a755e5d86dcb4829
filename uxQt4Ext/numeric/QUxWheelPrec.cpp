#include "QUxWheelPrec.h"

#include "QUxWheel.h"
#include "uxChildSignals_p.h"
#include "uxSignalBlocker.h"
#include "uxUIStyle.h"

#include <uxPlatform.h>

#include <QHBoxLayout>

#include <cmath>

namespace {

constexpr int Spacing = 3;
constexpr int FieldStretch = 3;
constexpr int WheelStretch = 2;
constexpr double WheelRestartValue = 1e15;
/// Largest minimum size, at scale 1, that the field or the wheel takes. Beyond it a host's
/// request is clamped: a field stretched to millions of pixels makes the style paint it
/// through a pixmap of that size.
constexpr int LargestMinimumSize = 1024;

QSize boundedMinimumSize(const QSize& size)
{
    const QSize largest(qRound(LargestMinimumSize * uxPlatform::getDpiScaleX()),
                        qRound(LargestMinimumSize * uxPlatform::getDpiScaleY()));
    return size.boundedTo(largest);
}

} // namespace

class QUxWheelPrecPrivate
{
public:
    QUxDoubleSpiner* spiner = nullptr;
    QUxWheel* wheel = nullptr;
    /// The wheel counts in steps; the field's singleStep turns them into value changes.
    double lastWheelValue = 0.0;
};

QUxWheelPrec::QUxWheelPrec(QWidget* parent) : QWidget(parent), d(std::make_unique<QUxWheelPrecPrivate>())
{
    d->spiner = new QUxDoubleSpiner(this);
    d->spiner->setButtonSymbols(QAbstractSpinBox::NoButtons);
    d->spiner->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    d->wheel = new QUxWheel(this);
    d->wheel->setIgnoreRange(true);
    d->wheel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    // The field is the keyboard face of the control; the wheel serves the mouse only.
    d->wheel->setFocusPolicy(Qt::NoFocus);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(qRound(Spacing * uxPlatform::getDpiScaleX()));
    layout->addWidget(d->spiner, FieldStretch);
    layout->addWidget(d->wheel, WheelStretch);

    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(d->spiner);
    connectField();
    connectWheel();
}

QUxWheelPrec::~QUxWheelPrec() { uxDisconnectChildSignals(this); }

void QUxWheelPrec::connectField()
{
    QUxDoubleSpiner* field = d->spiner;
    connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &QUxWheelPrec::valueChanged);
    connect(field, &QUxDoubleSpiner::relativeOperatorApplied, this, &QUxWheelPrec::relativeOperatorApplied);
    connect(field, &QUxDoubleSpiner::mouseButtonPressed, this, &QUxWheelPrec::mouseButtonPressed);
    connect(field, &QUxDoubleSpiner::mouseButtonReleased, this, &QUxWheelPrec::mouseButtonReleased);
    connect(field, &QUxDoubleSpiner::focusGained, this, &QUxWheelPrec::focusGained);
    connect(field, &QUxDoubleSpiner::singleStepChanged, this, &QUxWheelPrec::singleStepChanged);
    connect(field, &QAbstractSpinBox::editingFinished, this, &QUxWheelPrec::editingFinished);
}

void QUxWheelPrec::connectWheel()
{
    connect(d->wheel, &QUxWheel::valueChanged, this, &QUxWheelPrec::turnWheel);
    connect(d->wheel, &QAbstractSlider::sliderPressed, this, &QUxWheelPrec::sliderPressed);
    connect(d->wheel, &QAbstractSlider::sliderReleased, this, &QUxWheelPrec::sliderReleased);
}

void QUxWheelPrec::turnWheel(double wheelValue)
{
    const double steps = wheelValue - d->lastWheelValue;
    d->lastWheelValue = wheelValue;
    // Steps are differences of the wheel's value: one that is not finite or so large that a
    // step of one is lost in it would swallow every later turn, so the wheel starts over at 0.
    if (!(std::abs(wheelValue) < WheelRestartValue)) {
        d->wheel->updateValue(0.0);
        d->lastWheelValue = 0.0;
    }
    if (!std::isfinite(steps) || steps == 0.0 || d->spiner->isReadOnly())
        return;
    const double increment = steps * d->spiner->singleStep();
    // A turn is a relative entry like a typed "+=increment": a multi-selection host applies it to every object.
    if (d->spiner->relativeOperatorHandlingMode() == QUxDoubleSpiner::EmitRelativeOperator) {
        emit relativeOperatorApplied(QUxDoubleSpiner::RelativeAdd, increment);
        return;
    }
    d->spiner->setValue(d->spiner->value() + increment);
}

template<typename Change>
void QUxWheelPrec::changeField(Change change)
{
    const double before = d->spiner->value();
    {
        uxSignalBlocker blocker(d->spiner);
        change();
    }
    const double after = d->spiner->value();
    if (after != before)
        emit valueChanged(after);
}

double QUxWheelPrec::value() const { return d->spiner->value(); }

void QUxWheelPrec::setValue(double value)
{
    if (std::isnan(value))
        return; // the field would take it for its maximum
    changeField([&] { d->spiner->setValue(value); });
}

double QUxWheelPrec::singleStep() const { return d->spiner->singleStep(); }

void QUxWheelPrec::setSingleStep(double step)
{
    {
        uxSignalBlocker blocker(d->spiner);
        d->spiner->setSingleStep(step);
    }
    if (d->spiner->singleStep() == step)
        emit singleStepChanged(step);
}

double QUxWheelPrec::minimum() const { return d->spiner->minimum(); }

double QUxWheelPrec::maximum() const { return d->spiner->maximum(); }

void QUxWheelPrec::setMinimum(double minimum)
{
    changeField([&] { d->spiner->setMinimum(minimum); });
}

void QUxWheelPrec::setMaximum(double maximum)
{
    changeField([&] { d->spiner->setMaximum(maximum); });
}

void QUxWheelPrec::setRange(double minimum, double maximum)
{
    changeField([&] { d->spiner->setRange(minimum, maximum); });
}

int QUxWheelPrec::decimals() const { return d->spiner->decimals(); }

void QUxWheelPrec::setDecimals(int decimals)
{
    changeField([&] { d->spiner->setDecimals(decimals); });
}

int QUxWheelPrec::displayDecimals() const { return d->spiner->displayDecimals(); }

void QUxWheelPrec::setDisplayDecimals(int decimals) { d->spiner->setDisplayDecimals(decimals); }

bool QUxWheelPrec::useExactDisplayDecimals() const { return d->spiner->useExactDisplayDecimals(); }

void QUxWheelPrec::setUseExactDisplayDecimals(bool enabled) { d->spiner->setUseExactDisplayDecimals(enabled); }

bool QUxWheelPrec::showStepHint() const { return d->spiner->showStepHint(); }

void QUxWheelPrec::setShowStepHint(bool show) { d->spiner->setShowStepHint(show); }

bool QUxWheelPrec::isWheelVisible() const { return !d->wheel->isHidden(); }

void QUxWheelPrec::setWheelVisible(bool on) { d->wheel->setVisible(on); }

QString QUxWheelPrec::suffix() const { return d->spiner->suffix(); }

void QUxWheelPrec::setSuffix(const QString& suffix)
{
    uxSignalBlocker blocker(d->spiner);
    d->spiner->setSuffix(suffix);
}

QAbstractSpinBox::ButtonSymbols QUxWheelPrec::buttonSymbols() const { return d->spiner->buttonSymbols(); }

void QUxWheelPrec::setButtonSymbols(QAbstractSpinBox::ButtonSymbols symbols) { d->spiner->setButtonSymbols(symbols); }

QSize QUxWheelPrec::minimumWheelSize() const { return d->wheel->minimumSize(); }

void QUxWheelPrec::setMinimumWheelSize(const QSize& size) { d->wheel->setMinimumSize(boundedMinimumSize(size)); }

QSize QUxWheelPrec::maximumWheelSize() const { return d->wheel->maximumSize(); }

void QUxWheelPrec::setMaximumWheelSize(const QSize& size) { d->wheel->setMaximumSize(size); }

QSize QUxWheelPrec::minimumSpinerSize() const { return d->spiner->minimumSize(); }

void QUxWheelPrec::setMinimumSpinerSize(const QSize& size) { d->spiner->setMinimumSize(boundedMinimumSize(size)); }

QSize QUxWheelPrec::maximumSpinerSize() const { return d->spiner->maximumSize(); }

void QUxWheelPrec::setMaximumSpinerSize(const QSize& size) { d->spiner->setMaximumSize(size); }

void QUxWheelPrec::setRelativeOperatorHandlingMode(QUxDoubleSpiner::RelativeOperatorHandlingMode mode)
{
    d->spiner->setRelativeOperatorHandlingMode(mode);
}

QUxDoubleSpiner::RelativeOperatorHandlingMode QUxWheelPrec::relativeOperatorHandlingMode() const
{
    return d->spiner->relativeOperatorHandlingMode();
}

void QUxWheelPrec::setControlProperty(const char* name, const QVariant& value)
{
    uxUIStyle::setControlProperty(d->spiner, name, value);
}

void QUxWheelPrec::setMultiSelectHighlight(bool on) { uxUIStyle::setMultiSelectHighlight(d->spiner, on); }

QUxDoubleSpiner* QUxWheelPrec::spiner() const { return d->spiner; }

QUxWheel* QUxWheelPrec::wheel() const { return d->wheel; }
