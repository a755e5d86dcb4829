#include "QUxIntVector3DSlider.h"

QUxIntVector3DSlider::QUxIntVector3DSlider(QWidget* parent) : QUxIntVectorSliderT(parent) {}

QUxIntVector3DSlider::~QUxIntVector3DSlider() = default;

void QUxIntVector3DSlider::emitChanged() { emit changed(value()); }
