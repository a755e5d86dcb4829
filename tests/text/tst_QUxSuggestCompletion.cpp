#include <QUxSuggestCompletion.h>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

namespace {

/// A shown editor whose completer answers each request with @p count entries "<text>0", "<text>1", ...
/// with hints "h<i>" and values i.
struct Fixture
{
    explicit Fixture(int count) : entries(count)
    {
        editor.show();
        QObject::connect(completion, &QUxSuggestCompletion::needSuggestions, completion, [this](const QString& text) {
            QStringList choices, hints;
            QList<QVariant> values;
            for (int i = 0; i < entries; ++i) {
                choices << text + QString::number(i);
                hints << QStringLiteral("h%1").arg(i);
                values << i;
            }
            completion->receivedSuggestions(choices, hints, values);
        });
    }

    /// Puts @p text into the editor and asks at once, as the pause would.
    void ask(const QString& text)
    {
        editor.setText(text);
        completion->autoSuggest();
    }

    QTreeWidget* popup() const { return completion->popup(); }

    QLineEdit editor;
    QUxSuggestCompletion* completion = new QUxSuggestCompletion(&editor, 5, 1);
    int entries = 0;
};

/// The rows of @p popup that the viewport shows in full.
int wholeRowsShown(QTreeWidget* popup)
{
    int rows = 0;
    for (int i = 0; i < qMin(popup->topLevelItemCount(), 8); ++i)
        rows += popup->viewport()->rect().contains(popup->visualItemRect(popup->topLevelItem(i)));
    return rows;
}

} // namespace

class tst_QUxSuggestCompletion : public QObject
{
    Q_OBJECT

private slots:
    void shouldAskAfterThePauseInTyping()
    {
        Fixture f(3);
        QSignalSpy asked(f.completion, &QUxSuggestCompletion::needSuggestions);
        QTest::keyClicks(&f.editor, "ab");
        QTRY_COMPARE_WITH_TIMEOUT(asked.count(), 1, 2000);
        QCOMPARE(asked.at(0).at(0).toString(), QStringLiteral("ab"));
        QTRY_VERIFY(f.popup()->isVisible());
        QCOMPARE(f.popup()->topLevelItem(2)->text(0), QStringLiteral("ab2"));
        QCOMPARE(f.popup()->topLevelItem(2)->text(1), QStringLiteral("h2"));
    }

    void shouldShowAtMostSevenRows_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("rows");
        QTest::newRow("three") << 3 << 3;
        QTest::newRow("ten") << 10 << 7;
        QTest::newRow("100,000") << 100000 << 7;
    }

    void shouldShowAtMostSevenRows()
    {
        QFETCH(int, count);
        QFETCH(int, rows);
        Fixture f(count);
        f.ask("w");
        QVERIFY(f.popup()->isVisible());
        QCOMPARE(f.popup()->topLevelItemCount(), count);
        QCOMPARE(wholeRowsShown(f.popup()), rows);
        QTRY_COMPARE_WITH_TIMEOUT(f.popup()->verticalScrollBar()->isVisible(), count > 7, 2000);
    }

    void shouldIgnoreAnswersOutsideTheRequest_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("late") << 0;
        QTest::newRow("unequal lists") << 1;
        QTest::newRow("text changed since") << 2;
        QTest::newRow("too short") << 3;
    }

    void shouldIgnoreAnswersOutsideTheRequest()
    {
        QFETCH(int, how);
        Fixture f(0);
        QObject::connect(f.completion, &QUxSuggestCompletion::needSuggestions, f.completion, [&] {
            if (how == 0)
                return;
            if (how == 2)
                f.editor.setText("other");
            const QStringList hints = how == 1 ? QStringList{"x"} : QStringList{"x", "y"};
            f.completion->receivedSuggestions({"a", "b"}, hints, {1, 2});
        });
        f.ask(how == 3 ? "" : "w");
        f.completion->receivedSuggestions({"late"}, {""}, {0});
        QVERIFY(!f.popup()->isVisible());
    }

    void shouldHandleKeys_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<QList<int>>("intermediate");
        QTest::addColumn<QList<int>>("chosen");
        QTest::addColumn<QString>("text");
        QTest::newRow("Return") << QList<int>{Qt::Key_Return} << QList<int>{0} << QList<int>{0} << "w0";
        QTest::newRow("Down Down Up Enter") << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Enter}
                                            << QList<int>{0, 1, 2, 1} << QList<int>{1} << "w1";
        QTest::newRow("Up at the top") << QList<int>{Qt::Key_Up, Qt::Key_Return} << QList<int>{0} << QList<int>{0}
                                       << "w0";
        QTest::newRow("Escape") << QList<int>{Qt::Key_Down, Qt::Key_Escape} << QList<int>{0, 1} << QList<int>() << "w";
        QTest::newRow("Tab") << QList<int>{Qt::Key_Tab} << QList<int>{0} << QList<int>() << "w";
        QTest::newRow("typing goes on") << QList<int>{Qt::Key_X} << QList<int>{0} << QList<int>() << "wx";
    }

    void shouldHandleKeys()
    {
        QFETCH(QList<int>, keys);
        QFETCH(QList<int>, intermediate);
        QFETCH(QList<int>, chosen);
        QFETCH(QString, text);
        Fixture f(3);
        QList<int> steps, choices;
        connect(f.completion, &QUxSuggestCompletion::intermediateChoice, this,
                [&](const QVariant& v) { steps << v.toInt(); });
        connect(f.completion, &QUxSuggestCompletion::completionChosen, this,
                [&](const QVariant& v) { choices << v.toInt(); });
        QSignalSpy hidden(f.completion, &QUxSuggestCompletion::completionHidden);
        f.ask("w");
        for (int key : keys)
            QTest::keyClick(f.popup(), Qt::Key(key), {});
        QCOMPARE(steps, intermediate);
        QCOMPARE(choices, chosen);
        QCOMPARE(f.editor.text(), text);
        QVERIFY(!f.popup()->isVisible());
        QCOMPARE(hidden.count(), 1);
    }

    void shouldChooseWithTheMouse()
    {
        Fixture f(5);
        QSignalSpy chosen(f.completion, &QUxSuggestCompletion::completionChosen);
        f.ask("w");
        const QPoint third = f.popup()->visualItemRect(f.popup()->topLevelItem(2)).center();
        QTest::mouseClick(f.popup()->viewport(), Qt::LeftButton, {}, third); // a double click starts as a click
        QTest::mouseDClick(f.popup()->viewport(), Qt::LeftButton, {}, third);
        QCOMPARE(chosen.value(0).value(0).toInt(), 2);
        QCOMPARE(f.editor.text(), QStringLiteral("w2"));
        f.ask("v");
        QTest::mousePress(f.popup(), Qt::LeftButton, {}, QPoint(-5, -5)); // outside
        QVERIFY(!f.popup()->isVisible());
        QCOMPARE(chosen.count(), 1);
    }

    void shouldNotCrashWhenDeletedByItsOwnSignal_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("chosen") << int(Qt::Key_Return);
        QTest::newRow("hidden") << int(Qt::Key_Escape);
    }

    void shouldNotCrashWhenDeletedByItsOwnSignal()
    {
        QFETCH(int, key);
        Fixture f(2);
        QPointer<QUxSuggestCompletion> completion = f.completion;
        connect(f.completion, &QUxSuggestCompletion::completionHidden, this, [&] { delete completion; });
        f.ask(QString(1 << 20, 'm')); // a megabyte of text
        QTest::keyClick(f.popup(), Qt::Key(key));
        QVERIFY(completion.isNull());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

QTEST_MAIN(tst_QUxSuggestCompletion)
#include "tst_QUxSuggestCompletion.moc"
