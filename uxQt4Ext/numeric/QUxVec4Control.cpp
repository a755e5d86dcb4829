#include "QUxVec4Control.h"

QUxVec4Control::QUxVec4Control(QWidget* parent) : QUxWheelVectorControl(4, parent)
{
    // Signal to signal: every change of a component reaches the host at once.
    connectComponent(0, &QUxVec4Control::changedX, &QUxVec4Control::appliedRelativeOperatorToX);
    connectComponent(1, &QUxVec4Control::changedY, &QUxVec4Control::appliedRelativeOperatorToY);
    connectComponent(2, &QUxVec4Control::changedZ, &QUxVec4Control::appliedRelativeOperatorToZ);
    connectComponent(3, &QUxVec4Control::changedW, &QUxVec4Control::appliedRelativeOperatorToW);
}

QUxVec4Control::~QUxVec4Control() = default;

void QUxVec4Control::setXYZW(double x, double y, double z, double w)
{
    const double values[] = {x, y, z, w};
    setComponents(values);
}
