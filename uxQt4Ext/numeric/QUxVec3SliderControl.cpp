#include "QUxVec3SliderControl.h"

QUxVec3SliderControl::QUxVec3SliderControl(QWidget* parent) : QUxSliderVectorControlT(parent) {}

QUxVec3SliderControl::~QUxVec3SliderControl() = default;

void QUxVec3SliderControl::emitChanged() { emit changed(value()); }
