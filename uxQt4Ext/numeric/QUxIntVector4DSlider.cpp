#include "QUxIntVector4DSlider.h"

QUxIntVector4DSlider::QUxIntVector4DSlider(QWidget* parent) : QUxIntVectorSliderT(parent) {}

QUxIntVector4DSlider::~QUxIntVector4DSlider() = default;

void QUxIntVector4DSlider::emitChanged() { emit changed(value()); }
