#include <QUxTagArea.h>
#include <QUxTagLabel.h>

#include <uxTestSupport.h>

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// The tags of the shown chips in reading order: top to bottom, left to right.
QStringList shownTags(const QUxTagArea& area)
{
    QMap<QPair<int, int>, QString> tags;
    for (const QUxTagLabel* chip : area.findChildren<QUxTagLabel*>())
        if (chip->isVisible())
            tags.insert({chip->y(), chip->x()}, chip->getTag());
    return tags.values();
}

QUxTagLabel* chipOf(const QUxTagArea& area, const QString& tag)
{
    for (QUxTagLabel* chip : area.findChildren<QUxTagLabel*>())
        if (chip->isVisible() && chip->getTag() == tag)
            return chip;
    return nullptr;
}

} // namespace

class tst_QUxTagArea : public QObject
{
    Q_OBJECT

private slots:
    void shouldReuseChips()
    {
        QUxTagArea area;
        area.resize(60, 200);
        area.show();
        for (const QStringList& list :
             {QStringList{"a", "b", "c", "d", "e"}, QStringList{"x", "y"}, QStringList{"1", "2", "3", "4"}}) {
            area.setTags(list);
            QCOMPARE(shownTags(area), list);
        }
        QCOMPARE(area.findChildren<QUxTagLabel*>().size(), 5);
        area.setUsedLabelCount(-1);
        QCOMPARE(shownTags(area), QStringList());
    }

    void shouldAskForRemovalOnly_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("asked");
        QTest::newRow("left click") << int(Qt::LeftButton) << 0 << true;
        QTest::newRow("right click") << int(Qt::RightButton) << 0 << false;
        QTest::newRow("Return") << 0 << int(Qt::Key_Return) << true;
        QTest::newRow("Enter") << 0 << int(Qt::Key_Enter) << true;
    }

    void shouldAskForRemovalOnly()
    {
        QFETCH(int, button);
        QFETCH(int, key);
        QFETCH(bool, asked);
        QUxTagArea area;
        area.show();
        area.setTags({"red", "green", "blue"});
        QSignalSpy spy(&area, &QUxTagArea::tagRemove);
        QUxTagLabel* chip = chipOf(area, "green");
        if (button)
            QTest::mousePress(chip, Qt::MouseButton(button), {}, QPoint(2, 2));
        else
            QTest::keyClick(chip, Qt::Key(key));
        QCOMPARE(spy.size(), int(asked));
        QCOMPARE(spy.value(0).value(0).toString(), asked ? QStringLiteral("green") : QString());
        QCOMPARE(shownTags(area), QStringList({"red", "green", "blue"}));
    }

    void shouldKeepOrderOfRemainingTags()
    {
        QUxTagArea area;
        area.resize(80, 300);
        area.show();
        area.setTags({"one", "two", "three", "four", "five"});
        connect(&area, &QUxTagArea::tagRemove, &area, [&area](const QString& tag) {
            QStringList tags = area.getTags();
            tags.removeAll(tag);
            area.setTags(tags);
        });
        for (const char* tag : {"two", "five", "one"})
            QTest::mousePress(chipOf(area, tag), Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(shownTags(area), QStringList({"three", "four"}));
    }

    void shouldShowTagsAsPlainText_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::newRow("html") << QStringLiteral("<b>bold</b>&amp;");
        QTest::newRow("1 MB") << QString(1 << 20, QLatin1Char('m'));
    }

    void shouldShowTagsAsPlainText()
    {
        QFETCH(QString, tag);
        QUxTagArea area;
        area.resize(200, 100);
        area.show();
        area.setTags({tag, "x"});
        const QUxTagLabel* chip = chipOf(area, tag);
        QVERIFY(chip);
        QCOMPARE(chip->findChild<QLabel*>()->text(), tag);
        // Markup would render narrower than its literal text.
        QVERIFY(chip->width() >= QFontMetrics(chip->font()).horizontalAdvance(tag.left(20)));
        QVERIFY(!uxTest::grab(&area).isNull());
    }
};

QTEST_MAIN(tst_QUxTagArea)
#include "tst_QUxTagArea.moc"
