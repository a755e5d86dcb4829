#include <QUxTagArea.h>
#include <QUxTagLabel.h>

#include <uxTestSupport.h>

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// The shown chips in reading order: top to bottom, left to right.
QList<QUxTagLabel*> shownChips(const QUxTagArea& area)
{
    QMap<QPair<int, int>, QUxTagLabel*> chips;
    for (QUxTagLabel* chip : area.findChildren<QUxTagLabel*>())
        if (chip->isVisible())
            chips.insert({chip->y(), chip->x()}, chip);
    return chips.values();
}

QStringList shownTags(const QUxTagArea& area)
{
    QStringList tags;
    for (const QUxTagLabel* chip : shownChips(area))
        tags << chip->getTag();
    return tags;
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

    void shouldAskForRemovalAndKeepOrder_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("key");
        QTest::addColumn<QStringList>("remaining");
        QTest::newRow("left click") << int(Qt::LeftButton) << 0 << QStringList{"red", "blue"};
        QTest::newRow("right click") << int(Qt::RightButton) << 0 << QStringList{"red", "green", "blue"};
        QTest::newRow("Return") << 0 << int(Qt::Key_Return) << QStringList{"red", "blue"};
        QTest::newRow("Enter") << 0 << int(Qt::Key_Enter) << QStringList{"red", "blue"};
    }

    void shouldAskForRemovalAndKeepOrder()
    {
        QFETCH(int, button);
        QFETCH(int, key);
        QFETCH(QStringList, remaining);
        const QStringList tags{"red", "green", "blue"};
        QUxTagArea area;
        area.show();
        area.setTags(tags);
        area.setTags(tags); // the same list: nothing to do
        QSignalSpy spy(&area, &QUxTagArea::tagRemove);
        if (button)
            QTest::mousePress(shownChips(area).at(1), Qt::MouseButton(button), {}, QPoint(2, 2));
        else
            QTest::keyClick(shownChips(area).at(1), Qt::Key(key));
        QCOMPARE(spy.value(0).value(0).toString(), remaining == tags ? QString() : QStringLiteral("green"));
        QCOMPARE(shownTags(area), tags); // the area itself removes nothing
        QStringList left = tags;
        left.removeAll(spy.value(0).value(0).toString());
        area.setTags(left);
        QCOMPARE(shownTags(area), remaining);
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
        const QUxTagLabel* chip = shownChips(area).at(0);
        QCOMPARE(chip->findChild<QLabel*>()->text(), tag);
        // Markup would render narrower than its literal text.
        QVERIFY(chip->width() >= QFontMetrics(chip->font()).horizontalAdvance(tag.left(20)));
        QVERIFY(!uxTest::grab(&area).isNull());
    }
};

QTEST_MAIN(tst_QUxTagArea)
#include "tst_QUxTagArea.moc"
