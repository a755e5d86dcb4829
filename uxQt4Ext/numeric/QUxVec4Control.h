#pragma once

#include "QUxWheelVectorControl.h"

/**
 * Edits a four-component value (a quaternion, a plane equation) with one
 * precise wheel per component. Unlike the two- and three-component controls
 * it shows no component labels.
 * @code
 * auto* plane = new QUxVec4Control(panel);
 * plane->setXYZW(0.0, 1.0, 0.0, -2.5);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxVec4Control : public QUxWheelVectorControl
{
    Q_OBJECT
    Q_PROPERTY(bool mirroredLayout READ isMirroredLayout WRITE setMirroredLayout)
    Q_PROPERTY(bool xVisible READ isXVisible WRITE setXVisible)
    Q_PROPERTY(bool yVisible READ isYVisible WRITE setYVisible)
    Q_PROPERTY(bool zVisible READ isZVisible WRITE setZVisible)
    Q_PROPERTY(bool wVisible READ isWVisible WRITE setWVisible)

public:
    explicit QUxVec4Control(QWidget* parent = nullptr);
    ~QUxVec4Control() override;

    double getX() const { return component(0); }
    double getY() const { return component(1); }
    double getZ() const { return component(2); }
    double getW() const { return component(3); }
    double singleStepX() const { return componentSingleStep(0); }
    double singleStepY() const { return componentSingleStep(1); }
    double singleStepZ() const { return componentSingleStep(2); }
    double singleStepW() const { return componentSingleStep(3); }
    bool isXVisible() const { return isComponentVisible(0); }
    bool isYVisible() const { return isComponentVisible(1); }
    bool isZVisible() const { return isComponentVisible(2); }
    bool isWVisible() const { return isComponentVisible(3); }
    using QUxWheelVectorControl::isMirroredLayout;
    using QUxWheelVectorControl::setMirroredLayout;

public slots:
    void setX(double value) { setComponent(0, value); }
    void setY(double value) { setComponent(1, value); }
    void setZ(double value) { setComponent(2, value); }
    void setW(double value) { setComponent(3, value); }
    void setXYZW(double x, double y, double z, double w);
    void setXVisible(bool visible) { setComponentVisible(0, visible); }
    void setYVisible(bool visible) { setComponentVisible(1, visible); }
    void setZVisible(bool visible) { setComponentVisible(2, visible); }
    void setWVisible(bool visible) { setComponentVisible(3, visible); }

signals:
    void changedX(double value);
    void changedY(double value);
    void changedZ(double value);
    void changedW(double value);

private slots:
    void appliedRelativeOperatorToX(RelativeOperator op, double value) { forwardRelativeOperator(0, op, value); }
    void appliedRelativeOperatorToY(RelativeOperator op, double value) { forwardRelativeOperator(1, op, value); }
    void appliedRelativeOperatorToZ(RelativeOperator op, double value) { forwardRelativeOperator(2, op, value); }
    void appliedRelativeOperatorToW(RelativeOperator op, double value) { forwardRelativeOperator(3, op, value); }
};
