#include "QUxVec2SliderControl.h"

QUxVec2SliderControl::QUxVec2SliderControl(QWidget* parent) : QUxSliderVectorControlT(parent) {}

QUxVec2SliderControl::~QUxVec2SliderControl() = default;

void QUxVec2SliderControl::emitChanged() { emit changed(value()); }
