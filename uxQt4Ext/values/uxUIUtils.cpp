#include "uxUIUtils.h"

#include <QCollator>
#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

float uxUIUtils::s_sceneUnitScale = 1.0f;

void uxUIUtils::setSceneUnitScale(float scale) { s_sceneUnitScale = scale; }

float uxUIUtils::getSceneUnitScale() { return s_sceneUnitScale; }

QString uxUIUtils::getSceneUnitString()
{
    if (s_sceneUnitScale == 1.0f)
        return QCoreApplication::translate("SceneUnit", " mm");
    if (s_sceneUnitScale == 10.0f)
        return QCoreApplication::translate("SceneUnit", " cm");
    if (s_sceneUnitScale == 1000.0f)
        return QCoreApplication::translate("SceneUnit", " m");
    return QString();
}

void uxUIUtils::sortNumeric(QStringList& list)
{
    if (list.size() < 2)
        return;
    // The C locale's collator ignores numeric mode, which would put "item10"
    // before "item2"; fall back to a locale that honours it.
    QLocale locale;
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English, QLocale::UnitedStates);
    QCollator collator(locale);
    collator.setNumericMode(true);
    std::sort(list.begin(), list.end(),
              [&collator](const QString& a, const QString& b) { return collator.compare(a, b) < 0; });
}
