#pragma once

#include "QUxIntVectorControl.h"

class QUxIntegerSlider;

/// Integer vector editors whose components are QUxIntegerSlider.
class UXQT4EXT_EXPORT QUxIntVectorSliderBase : public QUxIntVectorControl
{
    Q_OBJECT
public:
    ~QUxIntVectorSliderBase() override;

    QUxIntegerSlider* slider(int axis) const;
    void setTracking(bool enable);

protected:
    QUxIntVectorSliderBase(int components, QWidget* parent);

    /// Builds the control: sliders, labels, layout and connections.
    void init();
    void createSliders();
    void createSliderConnections();

    int editorValue(const QWidget* editor) const override;
    void setEditorValue(QWidget* editor, int value) override;
    void setEditorMinimum(QWidget* editor, int value) override;
    void setEditorMaximum(QWidget* editor, int value) override;
    void setEditorStep(QWidget* editor, int value) override;
    void setEditorPageStep(QWidget* editor, int value);
};

/// The typed interface of an integer slider vector with @p N components.
template<typename IntVector, int N>
class QUxIntVectorSliderT : public QUxIntVectorControlT<QUxIntVectorSliderBase, IntVector, N>
{
public:
    void setPageStep(const IntVector& v)
    {
        this->changeEach([&](QWidget* e, int axis) { this->setEditorPageStep(e, v[size_t(axis)]); });
    }

protected:
    explicit QUxIntVectorSliderT(QWidget* parent) : QUxIntVectorControlT<QUxIntVectorSliderBase, IntVector, N>(parent)
    {}
};
