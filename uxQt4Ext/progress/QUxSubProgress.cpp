#include "QUxSubProgress.h"

#include "QUxProgressIndicator.h"
#include "uxFrameAccessible_p.h"

#include <uxPlatform.h>

#include <QBoxLayout>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QTimer>

#include <limits>

namespace {

/// A progress bar from 0 to the step count whose value is the step done.
class QUxSubProgressAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit QUxSubProgressAccessible(QUxSubProgress* row) : QAccessibleWidget(row, QAccessible::ProgressBar) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text type) const override
    {
        if (type == QAccessible::Name && widget()->accessibleName().isEmpty())
            return row()->description();
        if (type == QAccessible::Value)
            return row()->steps() > 0 ? QUxSubProgress::tr("%1%").arg(row()->percentage()) : QString();
        return QAccessibleWidget::text(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = row()->steps() < 1;
        return state;
    }

    QVariant currentValue() const override { return row()->step(); }
    void setCurrentValue(const QVariant&) override {} // read-only: the job moves it
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return qMax(0, row()->steps()); }
    QVariant minimumStepSize() const override { return 1; }

private:
    QUxSubProgress* row() const { return static_cast<QUxSubProgress*>(widget()); }
};

QUxSubProgress* _the = nullptr;

} // namespace

class QUxSubProgressPrivate
{
public:
    explicit QUxSubProgressPrivate(QUxSubProgress* row) : q(row) {}

    QUxSubProgress* const q;
    QLabel* description = nullptr;
    QLabel* percentLabel = nullptr;
    QLabel* percentSign = nullptr;
    QUxProgressIndicator* indicator = nullptr;
    QProgressBar* bar = nullptr;
    QTimer* refresh = nullptr;
    QElapsedTimer lastShown;
    int steps = 0;
    int step = 0;
    int percentage = 0;
    int interval = 16;
    bool pending = false;

    void build();
    void showNow();
    void showSoon();
};

void QUxSubProgressPrivate::build()
{
    description = new QLabel(QUxSubProgress::tr("Loading Shader References"), q);
    description->setWordWrap(true);
    description->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    percentLabel = new QLabel(q);
    percentLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    percentLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    percentLabel->hide();
    percentSign = new QLabel(QStringLiteral("%"), q);
    percentSign->hide();
    indicator = new QUxProgressIndicator(q);
    indicator->setDisplayedWhenStopped(true);
    indicator->startAnimation();
    bar = new QProgressBar(q);
    bar->setRange(0, 100);
    bar->setTextVisible(false);
    bar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    bar->hide();

    auto* head = new QHBoxLayout;
    head->setContentsMargins(0, 0, 0, 0);
    head->addWidget(indicator);
    head->addWidget(description);
    head->addWidget(percentLabel);
    head->addWidget(percentSign);
    auto* column = new QVBoxLayout(q);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(5);
    column->addLayout(head);
    column->addWidget(bar);
}

void QUxSubProgressPrivate::showNow()
{
    pending = false;
    if (refresh)
        refresh->stop();
    percentLabel->setNum(percentage);
    bar->setValue(step);
    lastShown.start();
    QAccessibleValueChangeEvent event(q, step);
    QAccessible::updateAccessibility(&event);
}

void QUxSubProgressPrivate::showSoon()
{
    if (pending)
        return; // the refresh already due shows this step too
    const qint64 elapsed = lastShown.isValid() ? lastShown.elapsed() : std::numeric_limits<qint64>::max();
    if (elapsed >= interval) {
        showNow();
        return;
    }
    if (!refresh) {
        refresh = new QTimer(q);
        refresh->setSingleShot(true);
        QObject::connect(refresh, &QTimer::timeout, q, [this] { showNow(); });
    }
    pending = true;
    refresh->start(int(interval - elapsed));
}

QUxSubProgress::QUxSubProgress(QWidget* parent) : QWidget(parent), d(new QUxSubProgressPrivate(this))
{
    uxInstallFrameAccessible<QUxSubProgress, QUxSubProgressAccessible>();
    const int width = qRound(350 * uxPlatform::getDpiScaleX());
    setMinimumWidth(width);
    setMaximumWidth(width);
    d->build();
    _the = this;
}

QUxSubProgress::~QUxSubProgress()
{
    if (_the == this)
        _the = nullptr;
}

QString QUxSubProgress::description() const { return d->description->text(); }
void QUxSubProgress::setDescription(const QString& description) { d->description->setText(description); }

void QUxSubProgress::setUseSmallProgressBar(bool small)
{
    d->bar->setMaximumHeight(small ? qRound(15 * uxPlatform::getDpiScaleY()) : QWIDGETSIZE_MAX);
}

int QUxSubProgress::steps() const { return d->steps; }
int QUxSubProgress::step() const { return d->step; }
int QUxSubProgress::percentage() const { return d->percentage; }
int QUxSubProgress::refreshInterval() const { return d->interval; }
void QUxSubProgress::setRefreshInterval(int milliseconds) { d->interval = qMax(0, milliseconds); }

void QUxSubProgress::setSteps(int steps)
{
    if (steps == d->steps)
        return;
    d->steps = steps;
    d->bar->setRange(0, qMax(0, steps));
    if (steps > 0) {
        d->step = 0;
        d->percentage = 0;
        d->showNow();
    }
    const bool known = steps >= 1;
    d->percentLabel->setVisible(known);
    d->bar->setVisible(known);
    d->percentSign->setVisible(known);
    d->indicator->setVisible(!known);
}

void QUxSubProgress::setStep(int step)
{
    if (step > d->steps || step < 0 || d->steps == 0)
        return;
    d->step = step;
    // in single precision and truncated, as the label has always shown it
    d->percentage = int(float(step) / float(d->steps) * 100.0f);
    if (step != d->steps) {
        d->showSoon();
        return;
    }
    d->showNow();
    emit finished(this); // last: a receiver may delete this row
}

void QUxSubProgress::increaseStep()
{
    if (d->step >= d->steps)
        return;
    setStep(d->step + 1);
}

void QUxSubProgress::setProgress(unsigned int step)
{
    if (_the && step <= unsigned(std::numeric_limits<int>::max()))
        _the->setStep(int(step));
}

void QUxSubProgress::foo()
{
    const QPointer<QUxSubProgress> self(this);
    increaseStep();
    if (self && d->step < d->steps)
        QTimer::singleShot(1000, this, &QUxSubProgress::foo);
}
