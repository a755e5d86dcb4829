#pragma once

#include "uxQt4ExtGlobal.h"

#include <QString>
#include <QStringList>

/**
 * Application-wide interface helpers: the scene unit (millimetres per scene
 * unit) and natural-order sorting of strings.
 * @code
 * uxUIUtils::setSceneUnitScale(10.0f);
 * uxUIUtils::getSceneUnitString(); // " cm"
 * QStringList names{"item10", "item2"};
 * uxUIUtils::sortNumeric(names);   // item2, item10
 * @endcode
 */
class UXQT4EXT_EXPORT uxUIUtils
{
public:
    static float s_sceneUnitScale;

    static void setSceneUnitScale(float scale);
    static float getSceneUnitScale();
    /// " mm", " cm" or " m" for the scales 1, 10 and 1000; empty otherwise.
    static QString getSceneUnitString();

    /// Sorts ascending with numbers compared by value ("item2" before "item10").
    static void sortNumeric(QStringList& list);
};
