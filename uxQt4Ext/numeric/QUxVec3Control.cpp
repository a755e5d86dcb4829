#include "QUxVec3Control.h"

#include "QUxWheelPrec.h"

QUxVec3Control::QUxVec3Control(QWidget* parent) : QUxWheelVectorControl(3, parent)
{
    // Signal to signal: every change of a component reaches the host at once.
    connect(wheelPrec(0), &QUxWheelPrec::valueChanged, this, &QUxVec3Control::changedX);
    connect(wheelPrec(0), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec3Control::appliedRelativeOperatorToX);
    connect(wheelPrec(1), &QUxWheelPrec::valueChanged, this, &QUxVec3Control::changedY);
    connect(wheelPrec(1), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec3Control::appliedRelativeOperatorToY);
    connect(wheelPrec(2), &QUxWheelPrec::valueChanged, this, &QUxVec3Control::changedZ);
    connect(wheelPrec(2), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec3Control::appliedRelativeOperatorToZ);
}

QUxVec3Control::~QUxVec3Control() = default;

void QUxVec3Control::setXYZ(double x, double y, double z)
{
    const double values[] = {x, y, z};
    setComponents(values);
}

void QUxVec3Control::emitChanged(int axis, double value)
{
    switch (axis) {
    case 0:
        emit changedX(value);
        break;
    case 1:
        emit changedY(value);
        break;
    default:
        emit changedZ(value);
        break;
    }
}

void QUxVec3Control::appliedRelativeOperatorToX(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(0, op, value);
}

void QUxVec3Control::appliedRelativeOperatorToY(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(1, op, value);
}

void QUxVec3Control::appliedRelativeOperatorToZ(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(2, op, value);
}
