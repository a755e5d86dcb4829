#pragma once

#include "QUxIntVectorControl.h"

class QUxSpiner;

/// Integer vector editors whose components are QUxSpiner.
class UXQT4EXT_EXPORT QUxIntVectorSpinerBase : public QUxIntVectorControl
{
    Q_OBJECT
public:
    ~QUxIntVectorSpinerBase() override;

    QUxSpiner* spiner(int axis) const;

protected:
    QUxIntVectorSpinerBase(int components, QWidget* parent);

    QWidget* createEditor() override;
    void connectEditor(QWidget* editor) override;
    int editorValue(const QWidget* editor) const override;
    void setEditorValue(QWidget* editor, int value) override;
    void setEditorMinimum(QWidget* editor, int value) override;
    void setEditorMaximum(QWidget* editor, int value) override;
    void setEditorStep(QWidget* editor, int value) override;
};
