// One keystroke of completion over 100,000 words: find the first seven words
// that start with the typed text (case-insensitively) and show them in the
// popup, painted. Ours: a host answering needSuggestions with a plain scan,
// shown by QUxSuggestCompletion. Anchor: QCompleter over a QStringListModel of
// the same words, unsorted, case-insensitive, seven visible rows.
//
// Every keystroke types a three-letter text that was never typed before, so
// QCompleter's cache of earlier prefixes cannot answer it and both sides scan
// the list; three letters of random words match about six words in 100,000,
// so both sides usually scan all of it.
#include <QUxSuggestCompletion.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>
#include <QTreeWidget>
#include <QtTest>

namespace {

constexpr int wordCount = 100000;
constexpr int shownCount = 7;

/// Reproducible random lower-case words of 3 to 12 letters.
QStringList makeWords()
{
    QStringList words;
    words.reserve(wordCount);
    quint32 state = 12345;
    const auto next = [&state] { return (state = state * 1664525u + 1013904223u) >> 16; };
    for (int i = 0; i < wordCount; ++i) {
        QString word(int(3 + next() % 10), Qt::Uninitialized);
        for (QChar& c : word)
            c = QChar('a' + int(next() % 26));
        words << word;
    }
    return words;
}

/// All three-letter texts in a fixed order; none is a prefix of another.
QStringList makeKeystrokes()
{
    QStringList texts;
    for (char a = 'a'; a <= 'z'; ++a)
        for (char b = 'a'; b <= 'z'; ++b)
            for (char c = 'a'; c <= 'z'; ++c)
                texts << QString(QChar(c)) + QChar(b) + QChar(a);
    return texts;
}

QString firstMatch(const QStringList& words, const QString& text)
{
    for (const QString& word : words)
        if (word.startsWith(text, Qt::CaseInsensitive))
            return word;
    return QString();
}

} // namespace

class bench_QUxSuggestCompletion : public QObject
{
    Q_OBJECT

private slots:
    void filterAndShowFirstSeven_data()
    {
        QTest::addColumn<bool>("anchor");
        QTest::newRow("ours") << false;
        QTest::newRow("anchor") << true;
    }

    void filterAndShowFirstSeven()
    {
        QFETCH(bool, anchor);
        const QStringList words = makeWords();
        const QStringList keystrokes = makeKeystrokes();
        QLineEdit editor;
        editor.show();
        int next = 0;
        if (anchor) {
            QStringListModel model(words);
            QCompleter completer(&model);
            completer.setCaseSensitivity(Qt::CaseInsensitive);
            completer.setModelSorting(QCompleter::UnsortedModel);
            completer.setMaxVisibleItems(shownCount);
            editor.setCompleter(&completer);
            const auto type = [&] {
                const QString& text = keystrokes.at(next++ % keystrokes.size());
                editor.setText(text);
                completer.setCompletionPrefix(text);
                completer.complete();
                completer.popup()->repaint();
            };
            type();
            QCOMPARE(completer.currentCompletion(), firstMatch(words, keystrokes.at(0)));
            QBENCHMARK { type(); }
            return;
        }
        auto* completion = new QUxSuggestCompletion(&editor, 0, 1);
        connect(completion, &QUxSuggestCompletion::needSuggestions, completion, [&](const QString& text) {
            QStringList choices, hints;
            QList<QVariant> values;
            for (int i = 0; i < words.size() && choices.size() < shownCount; ++i) {
                if (words[i].startsWith(text, Qt::CaseInsensitive)) {
                    choices << words[i];
                    hints << QString::number(words[i].size());
                    values << i;
                }
            }
            completion->receivedSuggestions(choices, hints, values);
        });
        const auto type = [&] {
            editor.setText(keystrokes.at(next++ % keystrokes.size()));
            completion->autoSuggest();
            completion->popup()->repaint();
        };
        type();
        QCOMPARE(completion->popup()->topLevelItem(0)->text(0), firstMatch(words, keystrokes.at(0)));
        QBENCHMARK { type(); }
    }
};

QTEST_MAIN(bench_QUxSuggestCompletion)
#include "bench_QUxSuggestCompletion.moc"
