#include "QUxVec2Control.h"

#include "QUxWheelPrec.h"

QUxVec2Control::QUxVec2Control(QWidget* parent) : QUxWheelVectorControl(2, parent)
{
    connect(wheelPrec(0), &QUxWheelPrec::valueChanged, this, &QUxVec2Control::passSignalSetX);
    connect(wheelPrec(0), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec2Control::appliedRelativeOperatorToX);
    connect(wheelPrec(1), &QUxWheelPrec::valueChanged, this, &QUxVec2Control::passSignalSetY);
    connect(wheelPrec(1), &QUxWheelPrec::relativeOperatorApplied, this, &QUxVec2Control::appliedRelativeOperatorToY);
}

QUxVec2Control::~QUxVec2Control() = default;

void QUxVec2Control::setXY(double x, double y)
{
    const double values[] = {x, y};
    setComponents(values);
}

void QUxVec2Control::emitChanged(int axis, double value)
{
    if (axis == 0)
        emit changedX(value);
    else
        emit changedY(value);
}

void QUxVec2Control::passSignalSetX(double value) { emit changedX(value); }
void QUxVec2Control::passSignalSetY(double value) { emit changedY(value); }

void QUxVec2Control::appliedRelativeOperatorToX(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(0, op, value);
}

void QUxVec2Control::appliedRelativeOperatorToY(QUxDoubleSpiner::RelativeOperator op, double value)
{
    forwardRelativeOperator(1, op, value);
}
