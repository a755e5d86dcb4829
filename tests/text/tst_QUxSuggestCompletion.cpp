#include <QUxSuggestCompletion.h>

#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

/// A shown editor whose completer answers @p count entries "<text>0", "<text>1"... hints "h<i>", values i.
struct Fixture
{
    explicit Fixture(int count)
    {
        editor.show();
        QObject::connect(completion, &QUxSuggestCompletion::needSuggestions, completion, [=](const QString& text) {
            QStringList choices, hints;
            QList<QVariant> values;
            for (int i = 0; i < count; ++i)
                choices << text + QString::number(i), hints << QStringLiteral("h%1").arg(i), values << i;
            completion->receivedSuggestions(choices, hints, values);
        });
    }
    QTreeWidget* ask(const QString& text) // at once, as the pause would
    {
        editor.setText(text);
        completion->autoSuggest();
        return completion->popup();
    }
    QLineEdit editor;
    QUxSuggestCompletion* completion = new QUxSuggestCompletion(&editor, 5, 1);
};

class tst_QUxSuggestCompletion : public QObject
{
    Q_OBJECT

private slots:
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
        QSignalSpy asked(f.completion, &QUxSuggestCompletion::needSuggestions);
        QTest::keyClicks(&f.editor, "wv"); // one request after the pause
        QTreeWidget* popup = f.completion->popup();
        QTRY_VERIFY_WITH_TIMEOUT(popup->isVisible(), 2000);
        QCOMPARE(asked, QList<QVariantList>{{"wv"}});
        QCOMPARE(popup->topLevelItem(2)->text(1), QStringLiteral("h2"));
        int whole = 0;
        for (int i = 0; i < qMin(count, 8); ++i)
            whole += popup->viewport()->rect().contains(popup->visualItemRect(popup->topLevelItem(i)));
        QCOMPARE(whole, rows);
        QTRY_COMPARE_WITH_TIMEOUT(popup->verticalScrollBar()->isVisible(), count > 7, 2000);
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
        connect(f.completion, &QUxSuggestCompletion::needSuggestions, this, [&] {
            if (how == 2)
                f.editor.setText("other");
            if (how > 0)
                f.completion->receivedSuggestions({"a", "b"}, {"x", "y"},
                                                  how == 1 ? QVariantList{1} : QVariantList{1, 2});
        });
        f.completion->receivedSuggestions({"late"}, {""}, {0});
        QVERIFY(!f.ask(how == 3 ? "" : "w")->isVisible());
    }

    void shouldHandleKeys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("intermediate"); // values in order
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("text");
        // clang-format off
        QTest::newRow("Return") << "Return" << "0" << "0" << "w0";
        QTest::newRow("Down Down Up Enter") << "Down, Down, Up, Enter" << "0121" << "1" << "w1";
        QTest::newRow("Escape") << "Down, Esc" << "01" << "" << "w";
        QTest::newRow("Tab") << "Tab" << "0" << "" << "w";
        QTest::newRow("typing goes on") << "X" << "0" << "" << "wx";
        // clang-format on
    }

    void shouldHandleKeys()
    {
        QFETCH(QString, keys);
        QFETCH(QString, text);
        Fixture f(3);
        QString steps, choices;
        connect(f.completion, &QUxSuggestCompletion::intermediateChoice, this,
                [&](const QVariant& v) { steps += v.toString(); });
        connect(f.completion, &QUxSuggestCompletion::completionChosen, this,
                [&](const QVariant& v) { choices += v.toString(); });
        QSignalSpy hidden(f.completion, &QUxSuggestCompletion::completionHidden);
        QTreeWidget* popup = f.ask("w");
        const QKeySequence sequence(keys);
        for (int i = 0; i < sequence.count(); ++i)
            QTest::keyClick(popup, Qt::Key(sequence[i]));
        QTEST(steps, "intermediate");
        QTEST(choices, "chosen");
        QCOMPARE(f.editor.text(), text);
        QCOMPARE(hidden.count(), 1);
        QVERIFY(!popup->isVisible());
    }

    void shouldChooseWithTheMouse()
    {
        Fixture f(5);
        QSignalSpy chosen(f.completion, &QUxSuggestCompletion::completionChosen);
        QTreeWidget* popup = f.ask("w");
        const QPoint third = popup->visualItemRect(popup->topLevelItem(2)).center();
        QTest::mouseClick(popup->viewport(), Qt::LeftButton, {}, third); // a double click starts as a click
        QTest::mouseDClick(popup->viewport(), Qt::LeftButton, {}, third);
        QCOMPARE(chosen.value(0).value(0).toInt(), 2);
        QCOMPARE(f.editor.text(), QStringLiteral("w2"));
        QTest::mousePress(f.ask("v"), Qt::LeftButton, {}, QPoint(-5, -5)); // outside
        QVERIFY(!popup->isVisible());
        QCOMPARE(chosen.count(), 1);
    }

    void shouldNotCrashWhenDeletedByItsOwnSignal()
    {
        Fixture f(2);
        QPointer<QUxSuggestCompletion> completion = f.completion;
        connect(f.completion, &QUxSuggestCompletion::completionHidden, this, [&] { delete completion; });
        QTest::keyClick(f.ask(QString(1 << 20, 'm')), Qt::Key_Return); // a megabyte of text
        QVERIFY(completion.isNull());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

QTEST_MAIN(tst_QUxSuggestCompletion)
#include "tst_QUxSuggestCompletion.moc"
