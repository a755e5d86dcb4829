#include "QUxIntVector2DSlider.h"

QUxIntVector2DSlider::QUxIntVector2DSlider(QWidget* parent) : QUxIntVectorSliderT(parent) {}

QUxIntVector2DSlider::~QUxIntVector2DSlider() = default;

void QUxIntVector2DSlider::emitChanged() { emit changed(value()); }
