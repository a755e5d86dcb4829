#pragma once

#include <QObject>

// A composite widget's children outlive its destructor body: QWidget's own
// destructor deletes them later and may first move the keyboard focus, so a
// child can still emit (editingFinished on focus-out) into an owner that is
// already half destroyed. Composites call this first in their destructor.
inline void uxDisconnectChildSignals(QObject* owner)
{
    for (QObject* child : owner->findChildren<QObject*>())
        QObject::disconnect(child, nullptr, owner, nullptr);
}
