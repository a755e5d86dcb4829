#pragma once

#include "uxQt4ExtGlobal.h"

#include <QMetaType>

#include <cstddef>

class QUxIntVector2D;
class QUxIntVector4D;

/// A plain triple of 32-bit integers (x, y, z).
class UXQT4EXT_EXPORT QUxIntVector3D
{
public:
    QUxIntVector3D() = default;
    QUxIntVector3D(int x, int y, int z) : m_v{x, y, z} {}
    QUxIntVector3D(const QUxIntVector3D&) = default;
    /// Takes x and y; z is 0.
    QUxIntVector3D(const QUxIntVector2D& v);
    QUxIntVector3D(const QUxIntVector4D& v);
    QUxIntVector3D& operator=(const QUxIntVector3D&) = default;

    QUxIntVector3D& setValue(const QUxIntVector3D& v) { return *this = v; }

    int getX() const { return m_v[0]; }
    int getY() const { return m_v[1]; }
    int getZ() const { return m_v[2]; }
    QUxIntVector3D& setX(int x)
    {
        m_v[0] = x;
        return *this;
    }
    QUxIntVector3D& setY(int y)
    {
        m_v[1] = y;
        return *this;
    }
    QUxIntVector3D& setZ(int z)
    {
        m_v[2] = z;
        return *this;
    }

    /// Component @p i (0 = x); not bounds-checked.
    int& operator[](size_t i) { return m_v[i]; }
    const int& operator[](size_t i) const { return m_v[i]; }

    bool operator==(const QUxIntVector3D& o) const
    {
        return m_v[0] == o.m_v[0] && m_v[1] == o.m_v[1] && m_v[2] == o.m_v[2];
    }
    bool operator!=(const QUxIntVector3D& o) const { return !(*this == o); }

private:
    int m_v[3] = {0, 0, 0};
};

Q_DECLARE_METATYPE(QUxIntVector3D)
