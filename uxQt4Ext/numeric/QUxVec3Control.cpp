#include "QUxVec3Control.h"

QUxVec3Control::QUxVec3Control(QWidget* parent) : QUxWheelVectorControl(3, parent)
{
    // Signal to signal: every change of a component reaches the host at once.
    connectComponent(0, &QUxVec3Control::changedX, &QUxVec3Control::appliedRelativeOperatorToX);
    connectComponent(1, &QUxVec3Control::changedY, &QUxVec3Control::appliedRelativeOperatorToY);
    connectComponent(2, &QUxVec3Control::changedZ, &QUxVec3Control::appliedRelativeOperatorToZ);
}

QUxVec3Control::~QUxVec3Control() = default;

void QUxVec3Control::setXYZ(double x, double y, double z)
{
    const double values[] = {x, y, z};
    setComponents(values);
}
