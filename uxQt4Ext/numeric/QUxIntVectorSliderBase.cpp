#include "QUxIntVectorSliderBase.h"

#include "QUxIntegerSlider.h"

namespace {
QUxIntegerSlider* asSlider(QWidget* editor) { return static_cast<QUxIntegerSlider*>(editor); }
const QUxIntegerSlider* asSlider(const QWidget* editor) { return static_cast<const QUxIntegerSlider*>(editor); }
} // namespace

QUxIntVectorSliderBase::QUxIntVectorSliderBase(int components, QWidget* parent)
    : QUxIntVectorControl(components, parent)
{
    init();
}

QUxIntVectorSliderBase::~QUxIntVectorSliderBase() = default;

QUxIntegerSlider* QUxIntVectorSliderBase::slider(int axis) const { return asSlider(editor(axis)); }

void QUxIntVectorSliderBase::setTracking(bool enable)
{
    changeEach([enable](QWidget* e, int) { asSlider(e)->setTracking(enable); });
}

void QUxIntVectorSliderBase::init()
{
    createSliders();
    createLabels();
    createLayout();
    createSliderConnections();
}

void QUxIntVectorSliderBase::createSliders()
{
    createEditors([this] { return new QUxIntegerSlider(this); });
}

void QUxIntVectorSliderBase::createSliderConnections()
{
    for (int axis = 0; axis < componentCount(); ++axis)
        connect(slider(axis), &QUxIntegerSlider::valueChanged, this, &QUxIntVectorSliderBase::componentEdited);
}

int QUxIntVectorSliderBase::editorValue(const QWidget* editor) const { return asSlider(editor)->value(); }
void QUxIntVectorSliderBase::setEditorValue(QWidget* editor, int value) { asSlider(editor)->setValue(value); }
void QUxIntVectorSliderBase::setEditorMinimum(QWidget* editor, int value) { asSlider(editor)->setMinimum(value); }
void QUxIntVectorSliderBase::setEditorMaximum(QWidget* editor, int value) { asSlider(editor)->setMaximum(value); }
void QUxIntVectorSliderBase::setEditorStep(QWidget* editor, int value) { asSlider(editor)->setStep(value); }
void QUxIntVectorSliderBase::setEditorPageStep(QWidget* editor, int value) { asSlider(editor)->setPageStep(value); }
