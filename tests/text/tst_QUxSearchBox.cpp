#include <QUxSearchBox.h>

#include <QLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QToolButton>
#include <QtTest>

#include <cstdio>
#include <unistd.h>

namespace {

/// Every signal of @p box in order, "searchChanged:<text>" or the signal's name.
void record(QUxSearchBox& box, QStringList* log)
{
    QObject::connect(&box, &QUxSearchBox::searchChanged, &box, [log](const QString& t) { *log << "changed:" + t; });
    QObject::connect(&box, &QUxSearchBox::searchPressedReturn, &box, [log] { *log << "return"; });
    QObject::connect(&box, &QUxSearchBox::searchButtonPress, &box, [log] { *log << "button"; });
}

QToolButton* button(QUxSearchBox& box) { return box.findChild<QToolButton*>(QStringLiteral("SearchButton")); }

} // namespace

class tst_QUxSearchBox : public QObject
{
    Q_OBJECT

private slots:
    void shouldReportTypingInEachMode_data()
    {
        QTest::addColumn<bool>("live");
        QTest::addColumn<bool>("delayed");
        QTest::addColumn<QStringList>("atOnce");
        QTest::addColumn<QStringList>("afterPause");
        const QStringList each{"changed:a", "changed:ab", "changed:abc", "return"};
        QTest::newRow("live") << true << false << each << each;
        QTest::newRow("delayed") << true << true << QStringList{"return"} << QStringList{"return"};
        QTest::newRow("Return only") << false << true << QStringList{"return"} << QStringList{"return"};
        QTest::newRow("pause") << true << true << QStringList() << QStringList{"changed:abc"};
    }

    void shouldReportTypingInEachMode()
    {
        QFETCH(bool, live);
        QFETCH(bool, delayed);
        QFETCH(QStringList, atOnce);
        QFETCH(QStringList, afterPause);
        QUxSearchBox box;
        box.setDelayInterval(5);
        box.enableLiveSearch(live);
        box.setDelayedLiveSearch(delayed);
        QStringList log;
        record(box, &log);
        QTest::keyClicks(box.findChild<QLineEdit*>(), "abc");
        if (!atOnce.isEmpty()) // Return stops the pause, so a delayed report never comes
            QTest::keyClick(box.findChild<QLineEdit*>(), Qt::Key_Return);
        QCOMPARE(log, atOnce);
        QTRY_COMPARE_WITH_TIMEOUT(log, afterPause, 2000);
        QVERIFY(button(box)->isChecked());
    }

    void shouldClearWithTheButton_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("signals_");
        QTest::newRow("with text") << "abc" << QStringList{"changed:", "button"};
        QTest::newRow("empty") << "" << QStringList{"button"};
        QTest::newRow("1 MB") << QString(1 << 20, 'x') << QStringList{"changed:", "button"};
    }

    void shouldClearWithTheButton()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, signals_);
        QUxSearchBox box;
        QStringList log;
        record(box, &log);
        box.setText(text);
        QCOMPARE(box.text(), text.left(box.findChild<QLineEdit*>()->maxLength())); // a line edit's own limit
        QCOMPARE(button(box)->isChecked(), !text.isEmpty());
        QCOMPARE(log, QStringList());
        QTest::mouseClick(button(box), Qt::LeftButton);
        QCOMPARE(log, signals_);
        QCOMPARE(box.text(), QString());
        QVERIFY(!button(box)->isChecked());
    }

    void shouldReportClearAndTraceIt()
    {
        QUxSearchBox box;
        QStringList log;
        record(box, &log);
        box.setText("abc");
        QTemporaryFile capture;
        QVERIFY(capture.open());
        std::fflush(stdout);
        const int saved = dup(STDOUT_FILENO);
        dup2(capture.handle(), STDOUT_FILENO);
        box.clear();
        std::fflush(stdout);
        dup2(saved, STDOUT_FILENO);
        close(saved);
        capture.seek(0);
        QCOMPARE(capture.readAll(), QByteArray("QUxSearchBox::clear\n"));
        QCOMPARE(log, QStringList{"changed:"});
    }

    void shouldNameItsPartsForTheStyleSheet()
    {
        QUxSearchBox box;
        QCOMPARE(box.layout()->objectName(), QStringLiteral("searchlayout"));
        box.setSearchLineStyle(true);
        QCOMPARE(box.findChild<QLineEdit*>()->objectName(), QStringLiteral("SearchLineOpen"));
        box.setSearchLineStyle(false);
        QCOMPARE(box.findChild<QLineEdit*>()->objectName(), QStringLiteral("SearchLine"));
        QVERIFY(!button(box)->icon().isNull());
    }
};

QTEST_MAIN(tst_QUxSearchBox)
#include "tst_QUxSearchBox.moc"
