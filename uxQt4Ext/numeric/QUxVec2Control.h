#pragma once

#include "QUxWheelVectorControl.h"

/**
 * Edits a two-component value (a size, a texture offset) with one precise
 * wheel per component.
 * @code
 * auto* offset = new QUxVec2Control(panel);
 * offset->setLabel(QUxVec2Control::UVW);   // "U", "V"
 * offset->setXY(0.5, 0.25);                // emits changedX, then changedY
 * @endcode
 */
class UXQT4EXT_EXPORT QUxVec2Control : public QUxWheelVectorControl
{
    Q_OBJECT
    Q_PROPERTY(QUxWheelVectorControl::VectorLabel vecLabel READ getLabel WRITE setLabel)

public:
    explicit QUxVec2Control(QWidget* parent = nullptr);
    ~QUxVec2Control() override;

    double getX() const { return component(0); }
    double getY() const { return component(1); }
    double singleStepX() const { return componentSingleStep(0); }
    double singleStepY() const { return componentSingleStep(1); }
    VectorLabel getLabel() const { return vectorLabel(); }

public slots:
    void setLabel(const VectorLabel& label) { setVectorLabel(label); }
    void setX(double value) { setComponent(0, value); }
    void setY(double value) { setComponent(1, value); }
    void setXY(double x, double y);

signals:
    void changedX(double value);
    void changedY(double value);

private slots:
    void passSignalSetX(double value) { emit changedX(value); }
    void passSignalSetY(double value) { emit changedY(value); }
    void appliedRelativeOperatorToX(RelativeOperator op, double value) { forwardRelativeOperator(0, op, value); }
    void appliedRelativeOperatorToY(RelativeOperator op, double value) { forwardRelativeOperator(1, op, value); }
};
