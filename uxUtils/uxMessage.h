#pragma once

#include "uxUtilsGlobal.h"

#include <QHash>
#include <QString>
#include <QVariant>

/**
 * A host message: a set of named, typed attributes. The library only reads
 * attributes by name; a missing name gives an invalid QVariant.
 */
class UXUTILS_EXPORT uxMessage
{
public:
    uxMessage() = default;

    QVariant get(const QString& name) const;
    void set(const QString& name, const QVariant& value);
    bool contains(const QString& name) const;

    /// Prints a backtrace of the calling thread to standard error.
    static void printBT();

private:
    QHash<QString, QVariant> m_attributes;
};
