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

    /// Builds the control: spin boxes, labels, layout and connections.
    void init();
    void createSpiners();
    void createSpinerConnections();

    int editorValue(const QWidget* editor) const override;
    void setEditorValue(QWidget* editor, int value) override;
    void setEditorMinimum(QWidget* editor, int value) override;
    void setEditorMaximum(QWidget* editor, int value) override;
    void setEditorStep(QWidget* editor, int value) override;
};
