#include "QUxWheelVectorControl.h"

#include "uxChildSignals_p.h"
#include "uxSignalBlocker.h"
#include "uxUIStyle.h"
#include "uxVectorRows_p.h"

#include <QGridLayout>
#include <QLabel>

#include <vector>

class QUxWheelVectorControlPrivate
{
public:
    QUxWheelVectorControl::VectorLabel label = QUxWheelVectorControl::XYZ;
    QUxWheelVectorControl::Orientation orientation = QUxWheelVectorControl::VERTICAL;
    std::vector<QUxWheelPrec*> editors;
    std::vector<std::function<void(double)>> reporters; // emit each component's change signal
    std::vector<QLabel*> labels;
    std::vector<bool> visible;
    QGridLayout* layout = nullptr;
    bool labelsShown = false; // a new control keeps its labels hidden until setLabel()
    bool mirrored = false;

    bool validAxis(int axis) const { return axis >= 0 && axis < static_cast<int>(editors.size()); }
    QUxWheelPrec* first() const { return editors.front(); }
    void report(int axis, double value) const
    {
        if (reporters[axis])
            reporters[axis](value);
    }

    std::vector<QWidget*> editorWidgets() const { return std::vector<QWidget*>(editors.begin(), editors.end()); }
};

QUxWheelVectorControl::QUxWheelVectorControl(int components, QWidget* parent)
    : QWidget(parent), d(std::make_unique<QUxWheelVectorControlPrivate>())
{
    const QStringList texts = uxVectorRows::labelTexts(XYZ);
    for (int axis = 0; axis < components; ++axis) {
        d->labels.push_back(uxVectorRows::makeLabel(this, texts.value(axis)));
        auto* editor = new QUxWheelPrec(this);
        editor->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
        d->editors.push_back(editor);
        d->reporters.emplace_back();
        d->visible.push_back(true);
    }
    d->layout = new QGridLayout(this);
    relayout();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);

    for (QUxWheelPrec* editor : d->editors) {
        editor->setFocusPolicy(Qt::StrongFocus);
        setFocusProxy(editor); // the last component stays the proxy
        connect(editor, &QUxWheelPrec::sliderPressed, this, &QUxWheelVectorControl::setMousePressed);
        connect(editor, &QUxWheelPrec::mouseButtonPressed, this, &QUxWheelVectorControl::setMousePressed);
        connect(editor, &QUxWheelPrec::sliderReleased, this, &QUxWheelVectorControl::setMouseReleased);
        connect(editor, &QUxWheelPrec::mouseButtonReleased, this, &QUxWheelVectorControl::setMouseReleased);
        connect(editor, &QUxWheelPrec::focusGained, this, &QUxWheelVectorControl::setFocusGained);
        connect(editor, &QUxWheelPrec::singleStepChanged, this, &QUxWheelVectorControl::setSingleStep);
        connect(editor, &QUxWheelPrec::editingFinished, this, &QUxWheelVectorControl::finishedEditing);
    }
    setFocusPolicy(Qt::StrongFocus);
}

QUxWheelVectorControl::~QUxWheelVectorControl()
{
    // Hiding this widget moves the focus out of a component, which may commit
    // its text after this destructor has run.
    uxDisconnectChildSignals(this);
}

int QUxWheelVectorControl::componentCount() const { return static_cast<int>(d->editors.size()); }

QUxWheelPrec* QUxWheelVectorControl::wheelPrec(int axis) const
{
    return d->validAxis(axis) ? d->editors[axis] : nullptr;
}

double QUxWheelVectorControl::singleStep() const { return d->first()->singleStep(); }
double QUxWheelVectorControl::minimum() const { return d->first()->minimum(); }
double QUxWheelVectorControl::maximum() const { return d->first()->maximum(); }
int QUxWheelVectorControl::decimals() const { return d->first()->decimals(); }
int QUxWheelVectorControl::displayDecimals() const { return d->first()->displayDecimals(); }
bool QUxWheelVectorControl::useExactDisplayDecimals() const { return d->first()->useExactDisplayDecimals(); }
bool QUxWheelVectorControl::showStepHint() const { return d->first()->showStepHint(); }
bool QUxWheelVectorControl::isWheelVisible() const { return d->first()->isWheelVisible(); }
QUxWheelVectorControl::Orientation QUxWheelVectorControl::orientation() const { return d->orientation; }
QAbstractSpinBox::ButtonSymbols QUxWheelVectorControl::buttonSymbols() const { return d->first()->buttonSymbols(); }
QSize QUxWheelVectorControl::minimumWheelSize() const { return d->first()->minimumWheelSize(); }
QSize QUxWheelVectorControl::maximumWheelSize() const { return d->first()->maximumWheelSize(); }
QSize QUxWheelVectorControl::minimumSpinerSize() const { return d->first()->minimumSpinerSize(); }
QSize QUxWheelVectorControl::maximumSpinerSize() const { return d->first()->maximumSpinerSize(); }

template<typename Change>
void QUxWheelVectorControl::changeEach(Change change, bool silently)
{
    for (QUxWheelPrec* editor : d->editors) {
        uxSignalBlocker blocker(silently ? editor : nullptr);
        change(editor);
    }
}

void QUxWheelVectorControl::setSingleStep(double step)
{
    changeEach([step](QUxWheelPrec* e) { e->setSingleStep(step); }, true);
    emit singleStepChanged(step);
}

void QUxWheelVectorControl::setMinimum(double minimum)
{
    changeEach([minimum](QUxWheelPrec* e) { e->setMinimum(minimum); }, true);
}

void QUxWheelVectorControl::setMaximum(double maximum)
{
    changeEach([maximum](QUxWheelPrec* e) { e->setMaximum(maximum); }, true);
}

void QUxWheelVectorControl::setDecimals(int decimals)
{
    changeEach([decimals](QUxWheelPrec* e) { e->setDecimals(decimals); }, true);
}

void QUxWheelVectorControl::setSuffix(const QString& suffix)
{
    changeEach([&suffix](QUxWheelPrec* e) { e->setSuffix(suffix); }, true);
}

void QUxWheelVectorControl::setShowStepHint(bool show)
{
    changeEach([show](QUxWheelPrec* e) { e->setShowStepHint(show); }, false);
}

void QUxWheelVectorControl::setWheelVisible(bool on)
{
    changeEach([on](QUxWheelPrec* e) { e->setWheelVisible(on); }, false);
}

void QUxWheelVectorControl::setDisplayDecimals(int decimals)
{
    changeEach([decimals](QUxWheelPrec* e) { e->setDisplayDecimals(decimals); }, false);
}

void QUxWheelVectorControl::setUseExactDisplayDecimals(bool enabled)
{
    changeEach([enabled](QUxWheelPrec* e) { e->setUseExactDisplayDecimals(enabled); }, false);
}

void QUxWheelVectorControl::setButtonSymbols(QAbstractSpinBox::ButtonSymbols symbols)
{
    changeEach([symbols](QUxWheelPrec* e) { e->setButtonSymbols(symbols); }, false);
}

void QUxWheelVectorControl::setMinimumWheelSize(const QSize& size)
{
    changeEach([&size](QUxWheelPrec* e) { e->setMinimumWheelSize(size); }, false);
}

void QUxWheelVectorControl::setMaximumWheelSize(const QSize& size)
{
    changeEach([&size](QUxWheelPrec* e) { e->setMaximumWheelSize(size); }, false);
}

void QUxWheelVectorControl::setMinimumSpinerSize(const QSize& size)
{
    changeEach([&size](QUxWheelPrec* e) { e->setMinimumSpinerSize(size); }, false);
}

void QUxWheelVectorControl::setMaximumSpinerSize(const QSize& size)
{
    changeEach([&size](QUxWheelPrec* e) { e->setMaximumSpinerSize(size); }, false);
}

void QUxWheelVectorControl::setRelativeOperatorHandlingMode(RelativeOperatorHandlingMode mode)
{
    changeEach([mode](QUxWheelPrec* e) { e->setRelativeOperatorHandlingMode(mode); }, false);
}

void QUxWheelVectorControl::setMultiSelectHighlight(int axis, bool on)
{
    if (d->validAxis(axis))
        uxUIStyle::setMultiSelectHighlight(d->editors[axis]->spiner(), on);
}

void QUxWheelVectorControl::setControlProperty(int axis, const char* name, const QVariant& value)
{
    if (d->validAxis(axis))
        d->editors[axis]->setControlProperty(name, value);
}

void QUxWheelVectorControl::setStyleSheet(int axis, const QString& styleSheet)
{
    if (d->validAxis(axis))
        d->editors[axis]->setStyleSheet(styleSheet);
}

QSize QUxWheelVectorControl::sizeHint() const { return d->layout->sizeHint(); }

void QUxWheelVectorControl::setMousePressed() { emit mouseButtonPressed(); }
void QUxWheelVectorControl::setMouseReleased() { emit mouseButtonReleased(); }
void QUxWheelVectorControl::setFocusGained() { emit focusGained(); }
void QUxWheelVectorControl::finishedEditing() { emit editingFinished(); }

void QUxWheelVectorControl::forwardRelativeOperator(int axis, RelativeOperator op, double value)
{
    emit relativeOperatorApplied(axis, op, value);
}

double QUxWheelVectorControl::component(int axis) const { return d->validAxis(axis) ? d->editors[axis]->value() : 0.0; }

double QUxWheelVectorControl::componentSingleStep(int axis) const
{
    return d->validAxis(axis) ? d->editors[axis]->singleStep() : 0.0;
}

void QUxWheelVectorControl::setComponent(int axis, double value)
{
    if (!d->validAxis(axis))
        return;
    {
        uxSignalBlocker blocker(d->editors[axis]);
        d->editors[axis]->setValue(value);
    }
    d->report(axis, value);
}

void QUxWheelVectorControl::setComponents(const double* values)
{
    for (int axis = 0; axis < componentCount(); ++axis) {
        uxSignalBlocker blocker(d->editors[axis]);
        d->editors[axis]->setValue(values[axis]);
    }
    for (int axis = 0; axis < componentCount(); ++axis)
        d->report(axis, values[axis]);
}

void QUxWheelVectorControl::setChangeReporter(int axis, const std::function<void(double)>& report)
{
    if (d->validAxis(axis))
        d->reporters[axis] = report;
}

QUxWheelVectorControl::VectorLabel QUxWheelVectorControl::vectorLabel() const { return d->label; }

void QUxWheelVectorControl::setVectorLabel(VectorLabel label)
{
    d->label = label;
    if (label < NONE || label > SHEAR)
        return;
    d->labelsShown = label != NONE;
    const QStringList texts = uxVectorRows::labelTexts(label);
    for (size_t axis = 0; axis < d->labels.size(); ++axis)
        d->labels[axis]->setText(texts.value(static_cast<int>(axis)));
    updateLabels();
}

void QUxWheelVectorControl::setOrientation(const Orientation& orientation)
{
    d->orientation = orientation;
    relayout();
}

bool QUxWheelVectorControl::isComponentVisible(int axis) const { return d->validAxis(axis) && d->visible[axis]; }

void QUxWheelVectorControl::setComponentVisible(int axis, bool visible)
{
    if (!d->validAxis(axis))
        return;
    d->visible[axis] = visible;
    d->editors[axis]->setVisible(visible);
    updateLabels();
}

bool QUxWheelVectorControl::isMirroredLayout() const { return d->mirrored; }

void QUxWheelVectorControl::setMirroredLayout(bool mirrored)
{
    if (d->mirrored == mirrored)
        return;
    d->mirrored = mirrored;
    relayout();
}

void QUxWheelVectorControl::relayout()
{
    using uxVectorRows::Arrangement;
    const Arrangement arrangement = d->orientation == VERTICAL     ? Arrangement::Column
                                    : d->orientation == HORIZONTAL ? Arrangement::Row
                                                                   : Arrangement::Detached;
    uxVectorRows::place(d->layout, d->labels, d->editorWidgets(), arrangement, d->mirrored);
}

void QUxWheelVectorControl::updateLabels()
{
    for (size_t axis = 0; axis < d->labels.size(); ++axis)
        d->labels[axis]->setVisible(d->labelsShown && d->visible[axis]);
}
