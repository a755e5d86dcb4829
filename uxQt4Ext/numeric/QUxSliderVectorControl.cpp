#include "QUxSliderVectorControl.h"

#include "uxChildSignals_p.h"
#include "uxSignalBlocker.h"
#include "uxVectorRows_p.h"

#include <QGridLayout>
#include <QLabel>

#include <vector>

class QUxSliderVectorControlPrivate
{
public:
    explicit QUxSliderVectorControlPrivate(int components) : count(components) {}

    const int count;
    std::vector<QUxSlider*> sliders;
    std::vector<QLabel*> labels;
    QStringList subLabels;
    QGridLayout* layout = nullptr;
    std::vector<double> lastReported; // the vector the host last heard of
};

QUxSliderVectorControl::QUxSliderVectorControl(int components, QWidget* parent)
    : QWidget(parent), d(std::make_unique<QUxSliderVectorControlPrivate>(components))
{
    init();
}

QUxSliderVectorControl::~QUxSliderVectorControl()
{
    // Hiding this widget moves the focus out of a component, which may commit
    // its text after the subclass is gone.
    uxDisconnectChildSignals(this);
}

void QUxSliderVectorControl::init()
{
    createSlider();
    createLabel();
    createLayout();
    createConnections();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    for (int axis = 0; axis < componentCount(); ++axis)
        d->lastReported.push_back(componentValue(axis));
}

void QUxSliderVectorControl::createSlider()
{
    for (int axis = 0; axis < d->count; ++axis)
        d->sliders.push_back(new QUxSlider(this));
}

void QUxSliderVectorControl::createLabel()
{
    for (int axis = 0; axis < d->count; ++axis)
        d->labels.push_back(uxVectorRows::makeLabel(this, QString()));
}

void QUxSliderVectorControl::createLayout()
{
    d->layout = new QGridLayout(this);
    uxVectorRows::place(d->layout, d->labels, std::vector<QWidget*>(d->sliders.begin(), d->sliders.end()),
                        uxVectorRows::Arrangement::Column, false);
}

void QUxSliderVectorControl::createConnections()
{
    for (QUxSlider* slider : d->sliders)
        connect(slider, &QUxSlider::valueChanged, this, &QUxSliderVectorControl::componentEdited);
}

int QUxSliderVectorControl::componentCount() const { return static_cast<int>(d->sliders.size()); }

QUxSlider* QUxSliderVectorControl::slider(int axis) const
{
    return axis >= 0 && axis < componentCount() ? d->sliders[axis] : nullptr;
}

bool QUxSliderVectorControl::isValid() const
{
    return componentCount() == d->count
           && std::all_of(d->sliders.begin(), d->sliders.end(), [](const QUxSlider* s) { return s != nullptr; });
}

double QUxSliderVectorControl::componentValue(int axis) const
{
    const QUxSlider* s = slider(axis);
    return s ? s->value() : 0.0;
}

void QUxSliderVectorControl::changeSlider(int axis, const std::function<void(QUxSlider*)>& change)
{
    uxSignalBlocker blocker(d->sliders[axis]);
    change(d->sliders[axis]);
}

void QUxSliderVectorControl::setComponentValues(const double* values)
{
    changeEach([values](QUxSlider* s, int axis) { s->setValue(values[axis]); });
    uxVectorRows::takeChanges(d->lastReported, [this](int axis) { return componentValue(axis); });
    emitChanged();
}

void QUxSliderVectorControl::componentEdited()
{
    // A slider reports one edit more than once (its field and its handle);
    // the host hears of each new vector once.
    if (uxVectorRows::takeChanges(d->lastReported, [this](int axis) { return componentValue(axis); }))
        emitChanged();
}

void QUxSliderVectorControl::setSuffix(const QStringList& suffixes)
{
    changeEach([&suffixes](QUxSlider* s, int axis) { s->setSuffix(suffixes.value(axis)); });
}

void QUxSliderVectorControl::setSubLabels(const QStringList& labels)
{
    d->subLabels = labels;
    uxVectorRows::applySubLabels(d->labels, labels);
}

QStringList QUxSliderVectorControl::subLabels() const { return d->subLabels; }

void QUxSliderVectorControl::setSliderPos(QUxSlider::SliderPosition position)
{
    changeEach([position](QUxSlider* s, int) { s->setSliderPos(position); });
}

void QUxSliderVectorControl::setTracking(bool enable)
{
    changeEach([enable](QUxSlider* s, int) { s->setTracking(enable); });
}
