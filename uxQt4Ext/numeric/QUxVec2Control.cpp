#include "QUxVec2Control.h"

QUxVec2Control::QUxVec2Control(QWidget* parent) : QUxWheelVectorControl(2, parent)
{
    connectComponent(0, &QUxVec2Control::passSignalSetX, &QUxVec2Control::appliedRelativeOperatorToX);
    connectComponent(1, &QUxVec2Control::passSignalSetY, &QUxVec2Control::appliedRelativeOperatorToY);
}

QUxVec2Control::~QUxVec2Control() = default;

void QUxVec2Control::setXY(double x, double y)
{
    const double values[] = {x, y};
    setComponents(values);
}
