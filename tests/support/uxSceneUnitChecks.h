#pragma once

#include <uxUIUtils.h>

#include <QtTest>

#include <memory>

namespace uxTest {

/// Both spin box classes keep a registry of the boxes that show the scene unit;
/// the class-wide update must reach exactly those, and a deleted box must leave it.
template<typename Spin>
void verifySceneUnitFollowers(const QString& ownSuffix)
{
    Spin first;
    Spin second;
    Spin plain;
    plain.setSuffix(ownSuffix);
    first.setDisplaySceneUnit(true);
    second.setDisplaySceneUnit(true);
    QCOMPARE(first.suffix(), QStringLiteral(" mm"));
    std::make_unique<Spin>()->setDisplaySceneUnit(true);

    const auto rescale = [](float scale) {
        uxUIUtils::setSceneUnitScale(scale);
        Spin::updateInstancesWithSceneUnit();
    };
    rescale(10.0f);
    QCOMPARE(first.suffix(), QStringLiteral(" cm"));
    QCOMPARE(second.suffix(), QStringLiteral(" cm"));
    QCOMPARE(plain.suffix(), ownSuffix);

    second.setDisplaySceneUnit(false);
    QCOMPARE(second.suffix(), QString());
    rescale(2.5f); // no unit of its own
    QCOMPARE(first.suffix(), QString());
    rescale(1000.0f);
    QCOMPARE(first.suffix(), QStringLiteral(" m"));
    QCOMPARE(second.suffix(), QString());

    // switching on again reads the unit anew, even without the class-wide update
    uxUIUtils::setSceneUnitScale(10.0f);
    first.setDisplaySceneUnit(true);
    QCOMPARE(first.suffix(), QStringLiteral(" cm"));
}

} // namespace uxTest
