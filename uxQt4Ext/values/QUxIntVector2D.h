#pragma once

#include "uxQt4ExtGlobal.h"

#include <QMetaType>

#include <cstddef>

class QUxIntVector3D;
class QUxIntVector4D;

/// A plain pair of 32-bit integers (x, y).
class UXQT4EXT_EXPORT QUxIntVector2D
{
public:
    QUxIntVector2D() = default;
    QUxIntVector2D(int x, int y) : m_v{x, y} {}
    QUxIntVector2D(const QUxIntVector2D&) = default;
    QUxIntVector2D(const QUxIntVector3D& v);
    QUxIntVector2D(const QUxIntVector4D& v);
    QUxIntVector2D& operator=(const QUxIntVector2D&) = default;

    QUxIntVector2D& setValue(const QUxIntVector2D& v) { return *this = v; }

    int getX() const { return m_v[0]; }
    int getY() const { return m_v[1]; }
    QUxIntVector2D& setX(int x)
    {
        m_v[0] = x;
        return *this;
    }
    QUxIntVector2D& setY(int y)
    {
        m_v[1] = y;
        return *this;
    }

    /// Component @p i (0 = x); not bounds-checked.
    int& operator[](size_t i) { return m_v[i]; }
    const int& operator[](size_t i) const { return m_v[i]; }

    bool operator==(const QUxIntVector2D& o) const { return m_v[0] == o.m_v[0] && m_v[1] == o.m_v[1]; }
    bool operator!=(const QUxIntVector2D& o) const { return !(*this == o); }

private:
    int m_v[2] = {0, 0};
};

Q_DECLARE_METATYPE(QUxIntVector2D)
