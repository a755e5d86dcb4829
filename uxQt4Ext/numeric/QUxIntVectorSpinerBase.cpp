#include "QUxIntVectorSpinerBase.h"

#include "QUxSpiner.h"

namespace {
QUxSpiner* asSpiner(QWidget* editor) { return static_cast<QUxSpiner*>(editor); }
const QUxSpiner* asSpiner(const QWidget* editor) { return static_cast<const QUxSpiner*>(editor); }
} // namespace

QUxIntVectorSpinerBase::QUxIntVectorSpinerBase(int components, QWidget* parent)
    : QUxIntVectorControl(components, parent)
{
    init();
}

QUxIntVectorSpinerBase::~QUxIntVectorSpinerBase() = default;

QUxSpiner* QUxIntVectorSpinerBase::spiner(int axis) const { return asSpiner(editor(axis)); }

void QUxIntVectorSpinerBase::init()
{
    createSpiners();
    createLabels();
    createLayout();
    createSpinerConnections();
}

void QUxIntVectorSpinerBase::createSpiners()
{
    createEditors([this] { return new QUxSpiner(this); });
}

void QUxIntVectorSpinerBase::createSpinerConnections()
{
    for (int axis = 0; axis < componentCount(); ++axis)
        connect(spiner(axis), qOverload<int>(&QUxSpiner::valueChanged), this, &QUxIntVectorSpinerBase::componentEdited);
}

int QUxIntVectorSpinerBase::editorValue(const QWidget* editor) const { return asSpiner(editor)->value(); }
void QUxIntVectorSpinerBase::setEditorValue(QWidget* editor, int value) { asSpiner(editor)->setValue(value); }
void QUxIntVectorSpinerBase::setEditorMinimum(QWidget* editor, int value) { asSpiner(editor)->setMinimum(value); }
void QUxIntVectorSpinerBase::setEditorMaximum(QWidget* editor, int value) { asSpiner(editor)->setMaximum(value); }
void QUxIntVectorSpinerBase::setEditorStep(QWidget* editor, int value) { asSpiner(editor)->setSingleStep(value); }
