#pragma once

#include "uxQt4ExtGlobal.h"

#include "QUxDoubleSpiner.h"
#include "QUxWheelPrec.h"

#include <QAbstractSpinBox>
#include <QWidget>

#include <functional>
#include <memory>

class QUxWheelVectorControlPrivate;

/**
 * Common part of the wheel vector editors (QUxVec2Control, QUxVec3Control,
 * QUxVec4Control): one QUxWheelPrec per component, each with an optional
 * label, in a column or a row. Settings that all components share (range,
 * step, decimals, suffix, sizes) are set on every component and read back
 * from the first one.
 *
 * Changing the step in one component's step editor changes it in all of them
 * and is reported once through singleStepChanged(). Relative entries typed
 * into a component arrive as relativeOperatorApplied(axis, op, value), which
 * lets a host apply "+=2" to every selected object:
 * @code
 * auto* position = new QUxVec3Control(panel);
 * position->setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
 * position->setMultiSelectHighlight(0, selectionDiffersInX);
 * connect(position, &QUxVec3Control::relativeOperatorApplied, selection, &Selection::applyToAxis);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxWheelVectorControl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool showStepHint READ showStepHint WRITE setShowStepHint)
    Q_PROPERTY(int displayDecimals READ displayDecimals WRITE setDisplayDecimals)
    Q_PROPERTY(bool useExactDisplayDecimals READ useExactDisplayDecimals WRITE setUseExactDisplayDecimals)
    Q_PROPERTY(bool showWheel READ isWheelVisible WRITE setWheelVisible)
    Q_PROPERTY(Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(QAbstractSpinBox::ButtonSymbols buttonSymbols READ buttonSymbols WRITE setButtonSymbols)
    Q_PROPERTY(QSize minimumWheelSize READ minimumWheelSize WRITE setMinimumWheelSize)
    Q_PROPERTY(QSize maximumWheelSize READ maximumWheelSize WRITE setMaximumWheelSize)
    Q_PROPERTY(QSize minimumSpinerSize READ minimumSpinerSize WRITE setMinimumSpinerSize)
    Q_PROPERTY(QSize maximumSpinerSize READ maximumSpinerSize WRITE setMaximumSpinerSize)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep NOTIFY singleStepChanged)

public:
    // A fixed underlying type: hosts may store values outside the named ones.
    enum VectorLabel : int { NONE = 0, XYZ = 1, RGB = 2, UVW = 3, SHEAR = 4 };
    Q_ENUM(VectorLabel)
    enum Orientation : int { HORIZONTAL = 0, VERTICAL = 1 };
    Q_ENUM(Orientation)
    // Hosts connect the relative-entry signal by its text, which names the
    // operator type without its class.
    using RelativeOperator = QUxDoubleSpiner::RelativeOperator;
    using RelativeOperatorHandlingMode = QUxDoubleSpiner::RelativeOperatorHandlingMode;

    ~QUxWheelVectorControl() override;

    int componentCount() const;
    /// The editor of component @p axis (0 = X), or null for another axis.
    QUxWheelPrec* wheelPrec(int axis) const;

    double singleStep() const;
    double minimum() const;
    double maximum() const;
    int decimals() const;
    int displayDecimals() const;
    bool useExactDisplayDecimals() const;
    bool showStepHint() const;
    bool isWheelVisible() const;
    Orientation orientation() const;
    QAbstractSpinBox::ButtonSymbols buttonSymbols() const;
    QSize minimumWheelSize() const;
    QSize maximumWheelSize() const;
    QSize minimumSpinerSize() const;
    QSize maximumSpinerSize() const;

    void setRelativeOperatorHandlingMode(RelativeOperatorHandlingMode mode);
    /// Marks one component as showing mixed values of a multi-selection.
    void setMultiSelectHighlight(int axis, bool on);
    void setControlProperty(int axis, const char* name, const QVariant& value);
    using QWidget::setStyleSheet;
    void setStyleSheet(int axis, const QString& styleSheet);

    QSize sizeHint() const override;

public slots:
    void setSingleStep(double step);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setOrientation(const Orientation& orientation);
    void setShowStepHint(bool show);
    void setDecimals(int decimals);
    void setDisplayDecimals(int decimals);
    void setUseExactDisplayDecimals(bool enabled);
    void setWheelVisible(bool on);
    void setMousePressed();
    void setMouseReleased();
    void setFocusGained();
    void setSuffix(const QString& suffix);
    void setButtonSymbols(QAbstractSpinBox::ButtonSymbols symbols);
    void setMinimumWheelSize(const QSize& size);
    void setMaximumWheelSize(const QSize& size);
    void setMinimumSpinerSize(const QSize& size);
    void setMaximumSpinerSize(const QSize& size);

signals:
    void relativeOperatorApplied(int axis, RelativeOperator op, double value);
    void mouseButtonPressed();
    void mouseButtonReleased();
    void editingFinished();
    void focusGained();
    void singleStepChanged(double value);

protected:
    QUxWheelVectorControl(int components, QWidget* parent);

    /// Wires component @p axis: its value changes go to @p changed (the
    /// control's signal, or a slot relaying to it), which also reports the
    /// values set through setComponent(); its relative entries go to @p relative.
    template<typename Control>
    void connectComponent(int axis, void (Control::*changed)(double),
                          void (Control::*relative)(RelativeOperator, double))
    {
        auto* control = static_cast<Control*>(this);
        connect(wheelPrec(axis), &QUxWheelPrec::valueChanged, control, changed);
        connect(wheelPrec(axis), &QUxWheelPrec::relativeOperatorApplied, control, relative);
        setChangeReporter(axis, [control, changed](double value) { (control->*changed)(value); });
    }

    double component(int axis) const;
    double componentSingleStep(int axis) const;
    /// Sets one component without its editor echoing, then reports it once.
    void setComponent(int axis, double value);
    /// Sets every component silently, then reports each in axis order.
    void setComponents(const double* values);

    VectorLabel vectorLabel() const;
    void setVectorLabel(VectorLabel label);
    bool isComponentVisible(int axis) const;
    void setComponentVisible(int axis, bool visible);
    bool isMirroredLayout() const;
    void setMirroredLayout(bool mirrored);

    /// Reports a relative entry of component @p axis.
    void forwardRelativeOperator(int axis, RelativeOperator op, double value);

private slots:
    void finishedEditing();

private:
    void setChangeReporter(int axis, const std::function<void(double)>& report);
    void relayout();
    void updateLabels();
    template<typename Change>
    void changeEach(Change change, bool silently);

    std::unique_ptr<QUxWheelVectorControlPrivate> const d;
};
