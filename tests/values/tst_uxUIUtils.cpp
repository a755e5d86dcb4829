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
    int polishes = 0;
    int unpolishes = 0;
    void polish(QWidget* w) override
    {
        ++polishes;
        QCommonStyle::polish(w);
    }
    void unpolish(QWidget* w) override
    {
        ++unpolishes;
        QCommonStyle::unpolish(w);
    }
    using QCommonStyle::polish;
    using QCommonStyle::unpolish;
};
} // namespace

class tst_uxUIUtils : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void shouldNameSceneUnitByExactScale_data();
    void shouldNameSceneUnitByExactScale();
    void shouldSortNumerically_data();
    void shouldSortNumerically();
    void shouldSortNumericallyInAnotherLocale();

    void shouldShowWaitCursorWhileAlive();
    void shouldNestWaitCursors();
    void shouldRestoreWaitCursorWhenParentDies();

    void shouldApplyFontFamilyAndSizeButKeepOtherAttributes_data();
    void shouldApplyFontFamilyAndSizeButKeepOtherAttributes();
    void shouldLeaveTargetFontAloneWhenFamilyAndSizesMatch();
    void shouldSetControlPropertyOnlyOnChange();
    void shouldClearMultiSelectInsteadOfStoringFalse();
    void shouldIgnoreNullWidgets();
};

void tst_uxUIUtils::init()
{
    uxUIUtils::setSceneUnitScale(1.0f);
    QLocale::setDefault(QLocale::c());
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

void tst_uxUIUtils::shouldNameSceneUnitByExactScale_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<QString>("unit");
    QTest::newRow("millimetre") << 1.0f << " mm";
    QTest::newRow("centimetre") << 10.0f << " cm";
    QTest::newRow("metre") << 1000.0f << " m";
    QTest::newRow("odd scale") << 2.5f << "";
    QTest::newRow("nearly a metre") << 999.99f << "";
    QTest::newRow("zero") << 0.0f << "";
}

void tst_uxUIUtils::shouldNameSceneUnitByExactScale()
{
    QFETCH(float, scale);
    QFETCH(QString, unit);
    uxUIUtils::setSceneUnitScale(scale);
    QCOMPARE(uxUIUtils::getSceneUnitScale(), scale);
    QCOMPARE(uxUIUtils::s_sceneUnitScale, scale);
    QCOMPARE(uxUIUtils::getSceneUnitString(), unit);
}

void tst_uxUIUtils::shouldSortNumerically_data()
{
    QTest::addColumn<QStringList>("input");
    QTest::addColumn<QStringList>("sorted");
    QTest::newRow("empty") << QStringList() << QStringList();
    QTest::newRow("single") << QStringList{"b10"} << QStringList{"b10"};
    QTest::newRow("numbers by value") << QStringList{"item10", "item2", "item1"}
                                      << QStringList{"item1", "item2", "item10"};
    QTest::newRow("prefix then number") << QStringList{"part 3", "body 12", "part 20", "body 2"}
                                        << QStringList{"body 2", "body 12", "part 3", "part 20"};
}

void tst_uxUIUtils::shouldSortNumerically()
{
    QFETCH(QStringList, input);
    QFETCH(QStringList, sorted);
    uxUIUtils::sortNumeric(input);
    QCOMPARE(input, sorted);
}

void tst_uxUIUtils::shouldSortNumericallyInAnotherLocale()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QStringList list{"Layer 11", "Layer 9", "Layer 100"};
    uxUIUtils::sortNumeric(list);
    QCOMPARE(list, (QStringList{"Layer 9", "Layer 11", "Layer 100"}));
}

void tst_uxUIUtils::shouldShowWaitCursorWhileAlive()
{
    {
        uxWaitCursor wait;
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    QVERIFY(!QApplication::overrideCursor());
}

void tst_uxUIUtils::shouldNestWaitCursors()
{
    QApplication::setOverrideCursor(Qt::CrossCursor);
    {
        uxWaitCursor outer;
        {
            uxWaitCursor inner;
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        }
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
    QApplication::restoreOverrideCursor();
}

void tst_uxUIUtils::shouldRestoreWaitCursorWhenParentDies()
{
    auto* owner = new QObject;
    new uxWaitCursor(owner);
    QVERIFY(QApplication::overrideCursor());
    delete owner;
    QVERIFY(!QApplication::overrideCursor());
}

void tst_uxUIUtils::shouldApplyFontFamilyAndSizeButKeepOtherAttributes_data()
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

void tst_uxUIUtils::shouldApplyFontFamilyAndSizeButKeepOtherAttributes()
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
    if (pointSizeF > 0)
        QCOMPARE(target.font().pointSizeF(), pointSizeF);
    else
        QCOMPARE(target.font().pixelSize(), pixelSize);
    QVERIFY(target.font().bold());
    QVERIFY(target.font().italic());
}

void tst_uxUIUtils::shouldLeaveTargetFontAloneWhenFamilyAndSizesMatch()
{
    QLabel source, target;
    QFont bold = target.font();
    bold.setBold(true);
    source.setFont(bold); // same family and size, other weight
    uxUIStyle::applyFont(&source, &target);
    QVERIFY(!target.testAttribute(Qt::WA_SetFont));
    QVERIFY(!target.font().bold());
}

void tst_uxUIUtils::shouldSetControlPropertyOnlyOnChange()
{
    CountingStyle style;
    QLineEdit edit;
    edit.setStyle(&style);
    style.polishes = style.unpolishes = 0;

    uxUIStyle::setControlProperty(&edit, "inputAcceptable", false);
    QCOMPARE(edit.property("inputAcceptable"), QVariant(false));
    QCOMPARE(style.unpolishes, 1);
    QCOMPARE(style.polishes, 1);

    uxUIStyle::setControlProperty(&edit, "inputAcceptable", false);
    QCOMPARE(style.polishes, 1);

    uxUIStyle::setControlProperty(&edit, "inputAcceptable", true);
    QCOMPARE(edit.property("inputAcceptable"), QVariant(true));
    QCOMPARE(style.polishes, 2);

    uxUIStyle::setControlProperty(&edit, "neverSet", QVariant());
    QCOMPARE(style.polishes, 2);
    edit.setStyle(nullptr);
}

void tst_uxUIUtils::shouldClearMultiSelectInsteadOfStoringFalse()
{
    CountingStyle style;
    QLineEdit edit;
    edit.setStyle(&style);
    style.polishes = 0;

    uxUIStyle::setMultiSelectHighlight(&edit, false);
    QCOMPARE(style.polishes, 0); // never had it: no repolish
    QVERIFY(!edit.property("multiselect").isValid());

    uxUIStyle::setMultiSelectHighlight(&edit, true);
    QCOMPARE(edit.property("multiselect"), QVariant(true));
    QCOMPARE(style.polishes, 1);

    uxUIStyle::setMultiSelectHighlight(&edit, false);
    QVERIFY(!edit.property("multiselect").isValid());
    QCOMPARE(style.polishes, 2);
    edit.setStyle(nullptr);
}

void tst_uxUIUtils::shouldIgnoreNullWidgets()
{
    QLabel label;
    uxUIStyle::applyFont(&label, nullptr);
    uxUIStyle::applyFont(nullptr, &label);
    uxUIStyle::setControlProperty(nullptr, "multiselect", true);
    uxUIStyle::setControlProperty(&label, nullptr, true);
    uxUIStyle::setMultiSelectHighlight(nullptr, true);
    QVERIFY(!label.property("multiselect").isValid());
}

QTEST_MAIN(tst_uxUIUtils)
#include "tst_uxUIUtils.moc"
