#include "QUxIntVector3DSpiner.h"

QUxIntVector3DSpiner::QUxIntVector3DSpiner(QWidget* parent) : QUxIntVectorControlT(parent) {}

QUxIntVector3DSpiner::~QUxIntVector3DSpiner() = default;

void QUxIntVector3DSpiner::emitChanged() { emit changed(value()); }
