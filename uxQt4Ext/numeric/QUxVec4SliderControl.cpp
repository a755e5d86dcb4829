#include "QUxVec4SliderControl.h"

QUxVec4SliderControl::QUxVec4SliderControl(QWidget* parent) : QUxSliderVectorControlT(parent) {}

QUxVec4SliderControl::~QUxVec4SliderControl() = default;

void QUxVec4SliderControl::emitChanged() { emit changed(value()); }
