#include <uxTesselationSettings.h>

#include <uxTestSupport.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QToolBox>
#include <QtTest>

#include <limits>

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
const QStringList kFields{"_chord_deviation", "_normal_tolerance", "_max_chord_length"};

QDoubleSpinBox* field(const uxTesselationSettings& panel, const QString& name)
{
    return panel.findChild<QDoubleSpinBox*>(name);
}

QComboBox* presets(const uxTesselationSettings& panel)
{
    return panel.findChild<QComboBox*>(QStringLiteral("_tessellation_presets"));
}

QList<double> values(const uxTesselationSettings& panel)
{
    return {panel.chordDeviation(), panel.normalTolerance(), panel.maxChordLength()};
}

} // namespace

class tst_uxTesselationSettings : public QObject
{
    Q_OBJECT

private slots:
    void shouldOpenWithMediumValuesAndTheFormTexts()
    {
        uxTesselationSettings panel;
        QCOMPARE(values(panel), (QList<double>{0.075, 10.0, 200.0}));
        QCOMPARE(panel.qualityPreset(), 2);
        QStringList items;
        for (int i = 0; i < presets(panel)->count(); ++i)
            items << presets(panel)->itemText(i);
        QCOMPARE(items, (QStringList{"Coarse", "Low", "Medium", "High", "Custom"}));
        const auto* pages = panel.findChild<QToolBox*>(QStringLiteral("_tesselation_settings"));
        QCOMPARE(pages->itemText(0) + '|' + pages->itemText(1), QStringLiteral("Tessellation|Advanced Options"));
        QCOMPARE(panel.findChild<QLabel*>(QStringLiteral("_stitching_tolerance_label"))->text(),
                 QStringLiteral("&Stitching Tolerance"));
        QCOMPARE(panel.findChild<QCheckBox*>(QStringLiteral("_remove_groups"))->toolTip(),
                 QStringLiteral("Removes groups without children"));
    }

    void typedValuesSelectPresets_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<int>("preset");
        QTest::addColumn<QList<double>>("expected");
        QTest::newRow("low") << QStringList{"0.15", "20", "300"} << 1 << QList<double>{0.15, 20, 300};
        QTest::newRow("coarse") << QStringList{"1", "30", "400"} << 0 << QList<double>{1, 30, 400};
        QTest::newRow("high by expression")
            << QStringList{"0.075/2", "7.5", "100"} << 3 << QList<double>{0.0375, 7.5, 100};
        QTest::newRow("low within tolerance")
            << QStringList{"0.15", "20", "300.00005"} << 1 << QList<double>{0.15, 20, 300.00005};
        QTest::newRow("low beyond tolerance")
            << QStringList{"0.15", "20", "300.0002"} << 4 << QList<double>{0.15, 20, 300.0002};
        QTest::newRow("far outside clamps")
            << QStringList{"0.15", "99999*999", "300"} << 4 << QList<double>{0.15, 90, 300};
    }

    void typedValuesSelectPresets()
    {
        QFETCH(QStringList, typed);
        QFETCH(int, preset);
        QFETCH(QList<double>, expected);
        uxTesselationSettings panel;
        for (int i = 0; i < 3; ++i)
            uxTest::typeAndCommit(field(panel, kFields[i]), typed[i]);
        QCOMPARE(panel.qualityPreset(), preset);
        QCOMPARE(values(panel), expected);
    }

    void choosingAPresetSetsTheValues_data()
    {
        QTest::addColumn<int>("preset");
        QTest::addColumn<QList<double>>("expected");
        QTest::newRow("coarse") << 0 << QList<double>{1.0, 30.0, 400.0};
        QTest::newRow("low") << 1 << QList<double>{0.15, 20.0, 300.0};
        QTest::newRow("hight") << 3 << QList<double>{0.0375, 7.5, 100.0};
        QTest::newRow("custom keeps the numbers") << 4 << QList<double>{0.5, 10.0, 200.0};
    }

    void choosingAPresetSetsTheValues()
    {
        QFETCH(int, preset);
        QFETCH(QList<double>, expected);
        uxTesselationSettings panel;
        uxTest::typeAndCommit(field(panel, kFields[0]), QStringLiteral("0.5"));
        QCOMPARE(panel.qualityPreset(), 4);
        presets(panel)->setCurrentIndex(preset);
        QCOMPARE(values(panel), expected);
        QCOMPARE(panel.qualityPreset(), preset);
    }

    void settersClampAndLeaveThePresetBox_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<double>("input");
        QTest::addColumn<double>("expected");
        QTest::newRow("matching low") << QByteArray("chordDeviation") << 0.15 << 0.15;
        QTest::newRow("NaN ignored") << QByteArray("normalTolerance") << qQNaN() << 10.0;
        QTest::newRow("infinity") << QByteArray("normalTolerance") << kInf << 90.0;
        QTest::newRow("minus infinity") << QByteArray("maxChordLength") << -kInf << 0.0;
        QTest::newRow("huge") << QByteArray("maxChordLength") << 1e300 << 65535.0;
        QTest::newRow("stitching NaN") << QByteArray("stitchingTolerance") << qQNaN() << 0.1;
        QTest::newRow("stitching negative") << QByteArray("stitchingTolerance") << -3.0 << 0.0;
    }

    void settersClampAndLeaveThePresetBox()
    {
        QFETCH(QByteArray, property);
        QFETCH(double, input);
        QFETCH(double, expected);
        uxTesselationSettings panel;
        QSignalSpy presetSpy(presets(panel), SIGNAL(currentIndexChanged(int)));
        QVERIFY(panel.setProperty(property, input));
        QCOMPARE(panel.property(property).toDouble(), expected);
        QCOMPARE(panel.qualityPreset(), 2);
        QCOMPARE(presetSpy.count(), 0);
        QVERIFY(!uxTest::grab(&panel).isNull());
    }

    void stitchingSwitchEnablesItsTolerance()
    {
        uxTesselationSettings panel;
        auto* tolerance = field(panel, QStringLiteral("_stitching_tolerance"));
        auto* label = panel.findChild<QLabel*>(QStringLiteral("_stitching_tolerance_label"));
        QVERIFY(!panel.stitchingEnabled() && !tolerance->isEnabled() && !label->isEnabled());
        panel.setStitchingEnabled(true);
        QVERIFY(tolerance->isEnabled() && label->isEnabled());
        auto* box = panel.findChild<QCheckBox*>(QStringLiteral("_stitching"));
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(5, box->height() / 2));
        QVERIFY(!panel.stitchingEnabled() && !tolerance->isEnabled() && !label->isEnabled());
    }

    void enableGroupsFollowsTheMask_data()
    {
        QTest::addColumn<uint>("mask");
        QTest::addColumn<QString>("enabled");
        const QString all = "_chord_deviation _use_previous_tessellation _retis _create_convex_primitives _keep_nurbs";
        QTest::newRow("none") << 0u << QString();
        QTest::newRow("all") << 0x1fu << all;
        QTest::newRow("quality and import options") << 0x11u << "_chord_deviation _keep_nurbs";
        QTest::newRow("node with unknown bits") << 0xffffff04u << "_retis";
        QTest::newRow("unknown bits only") << 0xffffffe0u << QString();
    }

    void enableGroupsFollowsTheMask()
    {
        QFETCH(uint, mask);
        QFETCH(QString, enabled);
        uxTesselationSettings panel;
        panel.setStitchingEnabled(true);
        panel.enableGroups(mask);
        QStringList found;
        for (const QString& name : QStringList{"_chord_deviation", "_use_previous_tessellation", "_retis",
                                               "_create_convex_primitives", "_keep_nurbs"})
            if (panel.findChild<QWidget*>(name)->isEnabled())
                found << name;
        QCOMPARE(found.join(' '), enabled);
        // No group: the stitching tolerance follows its switch only.
        QVERIFY(field(panel, QStringLiteral("_stitching_tolerance"))->isEnabled());
    }
};

QTEST_MAIN(tst_uxTesselationSettings)
#include "tst_uxTesselationSettings.moc"
