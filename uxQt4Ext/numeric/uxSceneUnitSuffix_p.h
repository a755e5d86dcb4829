#pragma once

#include "uxUIUtils.h"

#include <QSet>

// The scene unit as a spin box suffix, shared by the double and integer spin
// boxes: each class keeps its own set of the boxes that show the unit, so
// that a change of unit reaches every one of them.
namespace uxSceneUnitSuffix {

template<typename Box>
void show(Box* box, bool on)
{
    const QString unit = on ? uxUIUtils::getSceneUnitString() : QString();
    if (unit != box->suffix())
        box->setSuffix(unit);
    box->update();
}

template<typename Box>
void track(QSet<Box*>& instances, Box* box, bool on)
{
    if (on)
        instances.insert(box);
    else
        instances.remove(box);
}

template<typename Box>
void updateAll(const QSet<Box*>& instances)
{
    const QSet<Box*> copy = instances; // an update may create or destroy boxes
    for (Box* box : copy)
        box->updateSceneUnit();
}

} // namespace uxSceneUnitSuffix
