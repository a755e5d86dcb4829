#pragma once

#include "QUxWheelVectorControl.h"

/**
 * Edits a three-component value (a position, a rotation, a scale) with one
 * precise wheel per component.
 * @code
 * auto* scale = new QUxVec3Control(panel);
 * scale->setLabel(QUxVec3Control::XYZ);
 * scale->setOrientation(QUxVec3Control::HORIZONTAL);
 * scale->setXYZ(1.0, 1.0, 1.0);   // emits changedX, changedY, changedZ
 * connect(scale, &QUxVec3Control::changedY, node, &Node::setScaleY);
 * @endcode
 * A new control keeps its labels hidden until setLabel() is called.
 */
class UXQT4EXT_EXPORT QUxVec3Control : public QUxWheelVectorControl
{
    Q_OBJECT
    Q_PROPERTY(QUxWheelVectorControl::VectorLabel vecLabel READ getLabel WRITE setLabel)
    Q_PROPERTY(bool mirroredLayout READ isMirroredLayout WRITE setMirroredLayout)
    Q_PROPERTY(bool xVisible READ isXVisible WRITE setXVisible)
    Q_PROPERTY(bool yVisible READ isYVisible WRITE setYVisible)
    Q_PROPERTY(bool zVisible READ isZVisible WRITE setZVisible)

public:
    explicit QUxVec3Control(QWidget* parent = nullptr);
    ~QUxVec3Control() override;

    double getX() const { return component(0); }
    double getY() const { return component(1); }
    double getZ() const { return component(2); }
    double singleStepX() const { return componentSingleStep(0); }
    double singleStepY() const { return componentSingleStep(1); }
    double singleStepZ() const { return componentSingleStep(2); }
    VectorLabel getLabel() const { return vectorLabel(); }
    bool isXVisible() const { return isComponentVisible(0); }
    bool isYVisible() const { return isComponentVisible(1); }
    bool isZVisible() const { return isComponentVisible(2); }
    using QUxWheelVectorControl::isMirroredLayout;
    /// Puts each label after its editor instead of before it.
    using QUxWheelVectorControl::setMirroredLayout;

public slots:
    void setLabel(const VectorLabel& label) { setVectorLabel(label); }
    void setX(double value) { setComponent(0, value); }
    void setY(double value) { setComponent(1, value); }
    void setZ(double value) { setComponent(2, value); }
    void setXYZ(double x, double y, double z);
    void setXVisible(bool visible) { setComponentVisible(0, visible); }
    void setYVisible(bool visible) { setComponentVisible(1, visible); }
    void setZVisible(bool visible) { setComponentVisible(2, visible); }

signals:
    void changedX(double value);
    void changedY(double value);
    void changedZ(double value);

private slots:
    void appliedRelativeOperatorToX(RelativeOperator op, double value) { forwardRelativeOperator(0, op, value); }
    void appliedRelativeOperatorToY(RelativeOperator op, double value) { forwardRelativeOperator(1, op, value); }
    void appliedRelativeOperatorToZ(RelativeOperator op, double value) { forwardRelativeOperator(2, op, value); }
};
