#include <uxUIStyle.h>
#include <uxUIUtils.h>
#include <uxWaitCursor.h>

#include <QApplication>
#include <QCommonStyle>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

namespace {
// Counts polish/unpolish calls so a test can tell whether a widget was repolished.
class CountingStyle : public QCommonStyle
{
public:
    int polishes = 0, unpolishes = 0;
    void polish(QWidget* w) override { ++polishes, QCommonStyle::polish(w); }
    void unpolish(QWidget* w) override { ++unpolishes, QCommonStyle::unpolish(w); }
    using QCommonStyle::polish;
    using QCommonStyle::unpolish;
};

// Shape of the current override cursor; an out-of-range value when there is none.
Qt::CursorShape overrideShape()
{
    const QCursor* cursor = QApplication::overrideCursor();
    return cursor ? cursor->shape() : Qt::CursorShape(-1);
}
} // namespace

// A composite the style helpers know only by the name of its operation.
class Composite : public QWidget
{
    Q_OBJECT
public:
    QVariantList propagated;
    Q_INVOKABLE void propagateMultiselectProperty() { propagated << property("multiselect"); }
};

class tst_uxUIUtils : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        uxUIUtils::setSceneUnitScale(1.0f);
        QLocale::setDefault(QLocale::c());
        while (QApplication::overrideCursor())
            QApplication::restoreOverrideCursor();
    }

    void shouldNameSceneUnitByExactScale_data()
    {
        QTest::addColumn<float>("scale");
        QTest::addColumn<QString>("unit");
        QTest::newRow("millimetre") << 1.0f << " mm";
        QTest::newRow("centimetre") << 10.0f << " cm";
        QTest::newRow("metre") << 1000.0f << " m";
        QTest::newRow("odd scale") << 2.5f << "";
        QTest::newRow("nearly a metre") << 999.99f << "";
    }

    void shouldNameSceneUnitByExactScale()
    {
        QFETCH(float, scale);
        QFETCH(QString, unit);
        uxUIUtils::setSceneUnitScale(scale);
        QCOMPARE(uxUIUtils::getSceneUnitScale(), scale);
        QCOMPARE(uxUIUtils::s_sceneUnitScale, scale);
        QCOMPARE(uxUIUtils::getSceneUnitString(), unit);
    }

    void shouldSortNumerically_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QStringList>("input");
        QTest::addColumn<QStringList>("sorted");
        const QLocale c = QLocale::c();
        QTest::newRow("empty") << c << QStringList() << QStringList();
        QTest::newRow("numbers by value")
            << c << QStringList{"item10", "item2", "item1"} << QStringList{"item1", "item2", "item10"};
        QTest::newRow("prefix then number") << c << QStringList{"part 3", "body 12", "part 20", "body 2"}
                                            << QStringList{"body 2", "body 12", "part 3", "part 20"};
        QTest::newRow("another locale") << QLocale(QLocale::German, QLocale::Germany)
                                        << QStringList{"Layer 11", "Layer 9", "Layer 100"}
                                        << QStringList{"Layer 9", "Layer 11", "Layer 100"};
    }

    void shouldSortNumerically()
    {
        QFETCH(QLocale, locale);
        QFETCH(QStringList, input);
        QFETCH(QStringList, sorted);
        QLocale::setDefault(locale);
        uxUIUtils::sortNumeric(input);
        QCOMPARE(input, sorted);
    }

    void shouldShowWaitCursorWhileAliveOrParentedAndNest()
    {
        QApplication::setOverrideCursor(Qt::CrossCursor);
        {
            uxWaitCursor outer;
            QCOMPARE(overrideShape(), Qt::WaitCursor);
            {
                uxWaitCursor inner;
                QCOMPARE(overrideShape(), Qt::WaitCursor);
            }
            QCOMPARE(overrideShape(), Qt::WaitCursor);
        }
        QCOMPARE(overrideShape(), Qt::CrossCursor);
        QApplication::restoreOverrideCursor();
        QVERIFY(!QApplication::overrideCursor()); // each wait cursor restored exactly once

        auto* owner = new QObject;
        new uxWaitCursor(owner);
        QCOMPARE(overrideShape(), Qt::WaitCursor);
        delete owner;
        QVERIFY(!QApplication::overrideCursor());
    }

    void shouldApplyFontFamilyAndSizeButKeepOtherAttributes_data()
    {
        QTest::addColumn<QFont>("sourceFont");
        QTest::addColumn<qreal>("pointSizeF");
        QTest::addColumn<int>("pixelSize");
        QFont points(QStringLiteral("DejaVu Serif"));
        points.setPointSizeF(13.5);
        QTest::newRow("point size") << points << 13.5 << -1;
        QFont pixels(QStringLiteral("DejaVu Serif"));
        pixels.setPixelSize(21);
        QTest::newRow("pixel size") << pixels << -1.0 << 21;
    }

    void shouldApplyFontFamilyAndSizeButKeepOtherAttributes()
    {
        QFETCH(QFont, sourceFont);
        QFETCH(qreal, pointSizeF);
        QFETCH(int, pixelSize);
        QLabel source, target;
        source.setFont(sourceFont);
        QFont targetFont(QStringLiteral("DejaVu Sans"), 8);
        targetFont.setBold(true);
        targetFont.setItalic(true);
        target.setFont(targetFont);

        uxUIStyle::applyFont(&source, &target);
        QCOMPARE(target.font().family(), sourceFont.family());
        QCOMPARE(target.font().pointSizeF(), pointSizeF);
        QCOMPARE(target.font().pixelSize(), pixelSize);
        QVERIFY(target.font().bold());
        QVERIFY(target.font().italic());
    }

    void shouldLeaveTargetFontAloneWhenFamilyAndSizesMatch()
    {
        QLabel source, target;
        QFont bold = target.font();
        bold.setBold(true);
        source.setFont(bold); // same family and size, other weight
        uxUIStyle::applyFont(&source, &target);
        QVERIFY(!target.testAttribute(Qt::WA_SetFont));
        QVERIFY(!target.font().bold());
    }

    void shouldRepolishOnlyWhenAStylePropertyChanges()
    {
        CountingStyle style;
        QLineEdit edit;
        edit.setStyle(&style);
        style.polishes = style.unpolishes = 0;
        const auto state = [&](const char* name) {
            return QVariantList{edit.property(name), style.unpolishes, style.polishes};
        };
        uxUIStyle::setMultiSelectHighlight(&edit, false); // never had it: no repolish
        QCOMPARE(state("multiselect"), (QVariantList{QVariant(), 0, 0}));
        uxUIStyle::setControlProperty(&edit, "inputAcceptable", false);
        QCOMPARE(state("inputAcceptable"), (QVariantList{false, 1, 1}));
        uxUIStyle::setControlProperty(&edit, "inputAcceptable", false);
        QCOMPARE(state("inputAcceptable"), (QVariantList{false, 1, 1}));
        uxUIStyle::setControlProperty(&edit, "inputAcceptable", true);
        QCOMPARE(state("inputAcceptable"), (QVariantList{true, 2, 2}));
        uxUIStyle::setControlProperty(&edit, "neverSet", QVariant());
        QCOMPARE(state("neverSet"), (QVariantList{QVariant(), 2, 2}));
        // Switching the highlight off clears the property instead of storing false.
        uxUIStyle::setMultiSelectHighlight(&edit, true);
        QCOMPARE(state("multiselect"), (QVariantList{true, 3, 3}));
        uxUIStyle::setMultiSelectHighlight(&edit, false);
        QCOMPARE(state("multiselect"), (QVariantList{QVariant(), 4, 4}));
        edit.setStyle(nullptr);
    }

    void shouldReachCompositesThroughTheirPropagateOperation()
    {
        Composite composite;
        uxUIStyle::setMultiSelectHighlight(&composite, true);
        uxUIStyle::setMultiSelectHighlight(&composite, false);
        QCOMPARE(composite.propagated, (QVariantList{true, QVariant()}));
        uxUIStyle::setMultiSelectHighlight(nullptr, true);
    }
};

QTEST_MAIN(tst_uxUIUtils)
#include "tst_uxUIUtils.moc"
