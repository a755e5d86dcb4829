#include "QUxIntVector3D.h"

#include "QUxIntVector2D.h"
#include "QUxIntVector4D.h"

QUxIntVector3D::QUxIntVector3D(const QUxIntVector2D& v) : m_v{v.getX(), v.getY(), 0} {}

QUxIntVector3D::QUxIntVector3D(const QUxIntVector4D& v) : m_v{v.getX(), v.getY(), v.getZ()} {}
