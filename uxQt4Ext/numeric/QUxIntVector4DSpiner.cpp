#include "QUxIntVector4DSpiner.h"

QUxIntVector4DSpiner::QUxIntVector4DSpiner(QWidget* parent) : QUxIntVectorControlT(parent) {}

QUxIntVector4DSpiner::~QUxIntVector4DSpiner() = default;

void QUxIntVector4DSpiner::emitChanged() { emit changed(value()); }
