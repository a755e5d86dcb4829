#include <QUxSearchBox.h>

#include <QLineEdit>
#include <QTemporaryFile>
#include <QToolButton>
#include <QtTest>

#include <cstdio>
#include <unistd.h>

class tst_QUxSearchBox : public QObject
{
    Q_OBJECT

private slots:
    void shouldReportInEachMode_data()
    {
        QTest::addColumn<bool>("live");
        QTest::addColumn<bool>("delayed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("action");
        QTest::addColumn<QStringList>("reports");
        const QStringList cleared{"changed:", "button"};
        // clang-format off
        QTest::newRow("live") << true << false << "" << "type" << QStringList{"changed:a", "changed:ab", "changed:abc"};
        QTest::newRow("delayed") << true << true << "" << "type" << QStringList{"changed:abc"};
        QTest::newRow("Return only") << false << false << "" << "return" << QStringList{"return"};
        QTest::newRow("button") << true << true << "abc" << "click" << cleared;
        QTest::newRow("button, empty") << true << false << "" << "click" << QStringList{"button"};
        QTest::newRow("button, 1 MB") << true << false << QString(1 << 20, 'x') << "click" << cleared;
        QTest::newRow("clear") << true << false << "abc" << "clear" << QStringList{"changed:"};
        // clang-format on
    }

    void shouldReportInEachMode()
    {
        QFETCH(bool, live);
        QFETCH(bool, delayed);
        QFETCH(QString, text);
        QFETCH(QString, action);
        QFETCH(QStringList, reports);
        QUxSearchBox box;
        box.setDelayInterval(5);
        box.enableLiveSearch(live);
        box.setDelayedLiveSearch(delayed);
        QStringList log;
        connect(&box, &QUxSearchBox::searchChanged, this, [&](const QString& t) { log << "changed:" + t; });
        connect(&box, &QUxSearchBox::searchPressedReturn, this, [&] { log << "return"; });
        connect(&box, &QUxSearchBox::searchButtonPress, this, [&] { log << "button"; });
        auto* line = box.findChild<QLineEdit*>();
        auto* button = box.findChild<QToolButton*>(QStringLiteral("SearchButton"));
        box.setText(text);                                  // silent
        QCOMPARE(box.text(), text.left(line->maxLength())); // a line edit's own limit
        if (action == "type" || action == "return")
            QTest::keyClicks(line, "abc");
        if (action == "return")
            QTest::keyClick(line, Qt::Key_Return);
        else if (action == "click")
            QTest::mouseClick(button, Qt::LeftButton);
        else if (action == "clear")
            box.clear();
        QCOMPARE(log.isEmpty(), delayed && action == "type"); // the pause has not passed yet
        QTRY_COMPARE_WITH_TIMEOUT(log, reports, 2000);
        QCOMPARE(button->isChecked(), !box.text().isEmpty());
    }

    void shouldTraceClear()
    {
        QUxSearchBox box;
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
    }
};

QTEST_MAIN(tst_QUxSearchBox)
#include "tst_QUxSearchBox.moc"
