#pragma once

#include "uxQt4ExtGlobal.h"

#include "QUxSlider.h"

#include <QStringList>
#include <QWidget>
#include <functional>

#include <memory>

class QLabel;
class QUxSliderVectorControlPrivate;

/**
 * Common part of the slider vector editors (QUxVec2SliderControl,
 * QUxVec3SliderControl, QUxVec4SliderControl): one QUxSlider per component,
 * one row each, with an optional sub-label before it. The typed interface
 * (values as QVector2D/3D/4D) comes from QUxSliderVectorControlT.
 */
class UXQT4EXT_EXPORT QUxSliderVectorControl : public QWidget
{
    Q_OBJECT
public:
    ~QUxSliderVectorControl() override;

    int componentCount() const;
    /// The slider of component @p axis, or null for another axis.
    QUxSlider* slider(int axis) const;
    /// True when every component has its slider.
    bool isValid() const;

    /// One suffix per component, in axis order; missing entries clear the suffix.
    void setSuffix(const QStringList& suffixes);
    /// One label text per component; a component with an empty text shows no label.
    void setSubLabels(const QStringList& labels);
    QStringList subLabels() const;
    void setSliderPos(QUxSlider::SliderPosition position);
    void setTracking(bool enable);

protected:
    QUxSliderVectorControl(int components, QWidget* parent);

    /// Builds the control: sliders, labels, layout and connections.
    void init();
    void createSlider();
    void createLabel();
    void createLayout();
    void createConnections();
    /// Emits the typed change signal with the whole vector.
    virtual void emitChanged() = 0;

    double componentValue(int axis) const;
    /// Sets every component silently, then reports the vector once.
    void setComponentValues(const double* values);
    /// Runs @p change on every slider with its signals blocked.
    template<typename Change>
    void changeEach(Change change)
    {
        for (int axis = 0; axis < componentCount(); ++axis)
            changeSlider(axis, [&](QUxSlider* s) { change(s, axis); });
    }

private:
    void changeSlider(int axis, const std::function<void(QUxSlider*)>& change);
    void componentEdited();

    std::unique_ptr<QUxSliderVectorControlPrivate> const d;
};

/// The typed interface of a slider vector editor with @p N components.
template<typename Vector, typename IntVector, int N>
class QUxSliderVectorControlT : public QUxSliderVectorControl
{
public:
    void setValue(const Vector& v)
    {
        double values[N];
        for (int i = 0; i < N; ++i)
            values[i] = v[i];
        setComponentValues(values);
    }
    Vector value() const
    {
        Vector v;
        for (int i = 0; i < N; ++i)
            v[i] = static_cast<float>(componentValue(i));
        return v;
    }
    void setMinimum(const Vector& v) { apply(&QUxSlider::setMinimum, v); }
    void setMaximum(const Vector& v) { apply(&QUxSlider::setMaximum, v); }
    void setHardMinimum(const Vector& v) { apply(&QUxSlider::setHardMinimum, v); }
    void setHardMaximum(const Vector& v) { apply(&QUxSlider::setHardMaximum, v); }
    void setLineStep(const Vector& v) { apply(&QUxSlider::setLineStep, v); }
    void setPageStep(const Vector& v) { apply(&QUxSlider::setPageStep, v); }
    void setDecimals(const IntVector& v) { apply(&QUxSlider::setDecimals, v); }
    void setDisplayDecimals(const IntVector& v) { apply(&QUxSlider::setDisplayDecimals, v); }

protected:
    explicit QUxSliderVectorControlT(QWidget* parent) : QUxSliderVectorControl(N, parent) {}

private:
    template<typename Arg, typename Values>
    void apply(void (QUxSlider::*setter)(Arg), const Values& values)
    {
        changeEach([&](QUxSlider* s, int axis) { (s->*setter)(values[axis]); });
    }
};
