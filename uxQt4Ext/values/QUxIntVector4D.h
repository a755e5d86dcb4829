#pragma once

#include "uxQt4ExtGlobal.h"

#include <QMetaType>

#include <cstddef>

/// A plain quadruple of 32-bit integers (x, y, z, w).
class UXQT4EXT_EXPORT QUxIntVector4D
{
public:
    QUxIntVector4D() = default;
    QUxIntVector4D(int x, int y, int z, int w) : m_v{x, y, z, w} {}
    QUxIntVector4D(const QUxIntVector4D&) = default;
    QUxIntVector4D& operator=(const QUxIntVector4D&) = default;

    QUxIntVector4D& setValue(const QUxIntVector4D& v) { return *this = v; }

    int getX() const { return m_v[0]; }
    int getY() const { return m_v[1]; }
    int getZ() const { return m_v[2]; }
    int getW() const { return m_v[3]; }
    QUxIntVector4D& setX(int x)
    {
        m_v[0] = x;
        return *this;
    }
    QUxIntVector4D& setY(int y)
    {
        m_v[1] = y;
        return *this;
    }
    QUxIntVector4D& setZ(int z)
    {
        m_v[2] = z;
        return *this;
    }
    QUxIntVector4D& setW(int w)
    {
        m_v[3] = w;
        return *this;
    }

    /// Component @p i (0 = x); not bounds-checked.
    int& operator[](size_t i) { return m_v[i]; }
    const int& operator[](size_t i) const { return m_v[i]; }

    bool operator==(const QUxIntVector4D& o) const
    {
        return m_v[0] == o.m_v[0] && m_v[1] == o.m_v[1] && m_v[2] == o.m_v[2] && m_v[3] == o.m_v[3];
    }
    bool operator!=(const QUxIntVector4D& o) const { return !(*this == o); }

private:
    int m_v[4] = {0, 0, 0, 0};
};

Q_DECLARE_METATYPE(QUxIntVector4D)
