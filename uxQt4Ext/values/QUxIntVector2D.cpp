#include "QUxIntVector2D.h"

#include "QUxIntVector3D.h"
#include "QUxIntVector4D.h"

QUxIntVector2D::QUxIntVector2D(const QUxIntVector3D& v) : m_v{v.getX(), v.getY()} {}

QUxIntVector2D::QUxIntVector2D(const QUxIntVector4D& v) : m_v{v.getX(), v.getY()} {}
