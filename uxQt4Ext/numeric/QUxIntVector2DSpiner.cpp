#include "QUxIntVector2DSpiner.h"

QUxIntVector2DSpiner::QUxIntVector2DSpiner(QWidget* parent) : QUxIntVectorControlT(parent) {}

QUxIntVector2DSpiner::~QUxIntVector2DSpiner() = default;

void QUxIntVector2DSpiner::emitChanged() { emit changed(value()); }
