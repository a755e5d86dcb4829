#pragma once

#include "uxQt4ExtGlobal.h"

#include <QObject>
#include <QPointer>

#include <initializer_list>
#include <utility>
#include <vector>

/**
 * Blocks the signals of any number of objects for the lifetime of the
 * blocker, then gives each object back the blocked state it had before.
 * @code
 * {
 *     uxSignalBlocker blocker{m_slider, m_spinBox};
 *     m_slider->setValue(v);   // no valueChanged reaches the outside
 *     m_spinBox->setValue(v);
 * } // both restored, in the order they were blocked
 * @endcode
 * Copying transfers ownership of the entries, so exactly one blocker restores
 * each object. An object destroyed meanwhile is forgotten.
 */
class UXQT4EXT_EXPORT uxSignalBlocker : public QObject
{
    Q_OBJECT
public:
    uxSignalBlocker();
    explicit uxSignalBlocker(QObject* o);
    uxSignalBlocker(std::initializer_list<QObject*> objects);
    explicit uxSignalBlocker(const std::vector<QObject*>& objects);
    /// Takes over @p other's entries and leaves it empty.
    uxSignalBlocker(uxSignalBlocker& other);
    ~uxSignalBlocker() override;

    /// Takes over @p other's entries, placing them before the ones held.
    uxSignalBlocker& operator=(uxSignalBlocker& other);

    uxSignalBlocker& block(QObject* o);
    uxSignalBlocker& operator<<(QObject* o) { return block(o); }
    uxSignalBlocker& operator+=(QObject* o) { return block(o); }

    /// Restores the first entry held for @p o and forgets it.
    bool unblock(QObject* o);
    bool isAssigned(QObject* o) const;

protected:
    void move(uxSignalBlocker& other);

private:
    // Guarded, so that an object destroyed while blocked is simply skipped.
    std::vector<std::pair<QPointer<QObject>, bool>> m_entries;
};
