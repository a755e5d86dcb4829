#include "QUxIntVectorControl.h"

#include "QUxIntVector2D.h"
#include "QUxIntVector3D.h"
#include "QUxIntVector4D.h"
#include "uxChildSignals_p.h"
#include "uxSignalBlocker.h"
#include "uxVectorRows_p.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>
#include <vector>

class QUxIntVectorControlPrivate
{
public:
    explicit QUxIntVectorControlPrivate(int components) : count(components) {}

    const int count;
    std::vector<QWidget*> editors;
    std::vector<QLabel*> labels;
    std::vector<int> lastReported; // the vector the host last heard of
    QStringList subLabels;
    QGridLayout* layout = nullptr;
};

QUxIntVectorControl::QUxIntVectorControl(int components, QWidget* parent)
    : QWidget(parent), d(std::make_unique<QUxIntVectorControlPrivate>(components))
{
    // The change signals carry these by value, also through queued and by-name connections.
    qRegisterMetaType<QUxIntVector2D>();
    qRegisterMetaType<QUxIntVector3D>();
    qRegisterMetaType<QUxIntVector4D>();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QUxIntVectorControl::~QUxIntVectorControl()
{
    // Hiding this widget moves the focus out of a component, which may commit
    // its text after the subclass is gone.
    uxDisconnectChildSignals(this);
}

void QUxIntVectorControl::createEditors(const std::function<QWidget*()>& make)
{
    for (int axis = 0; axis < d->count; ++axis) {
        QWidget* editor = make();
        d->editors.push_back(editor);
        d->lastReported.push_back(editorValue(editor));
    }
}

void QUxIntVectorControl::createLabels()
{
    for (int axis = 0; axis < d->count; ++axis)
        d->labels.push_back(uxVectorRows::makeLabel(this, QString()));
}

void QUxIntVectorControl::createLayout()
{
    d->layout = new QGridLayout(this);
    uxVectorRows::place(d->layout, d->labels, d->editors, uxVectorRows::Arrangement::Column, false);
}

int QUxIntVectorControl::componentCount() const { return static_cast<int>(d->editors.size()); }

QWidget* QUxIntVectorControl::editor(int axis) const
{
    return axis >= 0 && axis < componentCount() ? d->editors[axis] : nullptr;
}

bool QUxIntVectorControl::isValid() const
{
    return componentCount() == d->count
           && std::all_of(d->editors.begin(), d->editors.end(), [](const QWidget* e) { return e != nullptr; });
}

void QUxIntVectorControl::setSubLabels(const QStringList& labels)
{
    d->subLabels = labels;
    uxVectorRows::applySubLabels(d->labels, labels);
}

QStringList QUxIntVectorControl::subLabels() const { return d->subLabels; }

int QUxIntVectorControl::componentValue(int axis) const
{
    const QWidget* e = editor(axis);
    return e ? editorValue(e) : 0;
}

void QUxIntVectorControl::changeEach(const std::function<void(QWidget*, int)>& change)
{
    for (int axis = 0; axis < componentCount(); ++axis) {
        uxSignalBlocker blocker(d->editors[axis]);
        change(d->editors[axis], axis);
    }
}

void QUxIntVectorControl::setComponentValues(const int* values)
{
    changeEach([this, values](QWidget* e, int axis) { setEditorValue(e, values[axis]); });
    uxVectorRows::takeChanges(d->lastReported, [this](int axis) { return componentValue(axis); });
    emitChanged();
}

void QUxIntVectorControl::componentEdited()
{
    if (uxVectorRows::takeChanges(d->lastReported, [this](int axis) { return componentValue(axis); }))
        emitChanged();
}
