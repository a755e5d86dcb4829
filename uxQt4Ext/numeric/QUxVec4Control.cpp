#include "QUxVec4Control.h"

#include "QUxWheelPrec.h"

QUxVec4Control::QUxVec4Control(QWidget* parent) : QUxWheelVectorControl(4, parent)
{
    connect(wheelPrec(0), &QUxWheelPrec::valueChanged, this, &QUxVec4Control::changedX);
    connect(wheelPrec(0), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec4Control::appliedRelativeOperatorToX);
    connect(wheelPrec(1), &QUxWheelPrec::valueChanged, this, &QUxVec4Control::changedY);
    connect(wheelPrec(1), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec4Control::appliedRelativeOperatorToY);
    connect(wheelPrec(2), &QUxWheelPrec::valueChanged, this, &QUxVec4Control::changedZ);
    connect(wheelPrec(2), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec4Control::appliedRelativeOperatorToZ);
    connect(wheelPrec(3), &QUxWheelPrec::valueChanged, this, &QUxVec4Control::changedW);
    connect(wheelPrec(3), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec4Control::appliedRelativeOperatorToW);
}

QUxVec4Control::~QUxVec4Control() = default;

void QUxVec4Control::setXYZW(double x, double y, double z, double w)
{
    const double values[] = {x, y, z, w};
    setComponents(values);
}

void QUxVec4Control::emitChanged(int axis, double value)
{
    switch (axis) {
    case 0:
        emit changedX(value);
        break;
    case 1:
        emit changedY(value);
        break;
    case 2:
        emit changedZ(value);
        break;
    default:
        emit changedW(value);
        break;
    }
}

void QUxVec4Control::appliedRelativeOperatorToX(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(0, op, value);
}

void QUxVec4Control::appliedRelativeOperatorToY(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(1, op, value);
}

void QUxVec4Control::appliedRelativeOperatorToZ(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(2, op, value);
}

void QUxVec4Control::appliedRelativeOperatorToW(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(3, op, value);
}
