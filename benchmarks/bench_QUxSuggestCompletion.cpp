// One keystroke of completion over 100,000 words: find the first seven words
// that start with the typed text (case-insensitively) and show them in the
// popup, painted (grabbed into a pixmap: an offscreen popup is never exposed).
// Ours: a host answering needSuggestions, shown by QUxSuggestCompletion.
// Anchor: QCompleter over a QStringListModel of the same words,
// case-insensitive, seven visible rows.
//
// Two cases: an unsorted list, which both sides scan from the start, and a
// sorted one, which both sides search by bisection (QCompleter with
// CaseInsensitivelySortedModel, the host with std::lower_bound).
//
// Every keystroke types a three-letter text that was never typed before, so
// QCompleter's cache of earlier prefixes cannot answer it; three letters of
// random words match about six words in 100,000, so an unsorted scan usually
// reads all of it.
#include <QUxSuggestCompletion.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>

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

/// The host's answer: up to seven matches of @p text, the first found first.
void answer(QUxSuggestCompletion* completion, const QStringList& words, const QString& text, bool sorted)
{
    QStringList choices, hints;
    QList<QVariant> values;
    int i = 0;
    if (sorted)
        i = int(std::lower_bound(words.begin(), words.end(), text.toLower()) - words.begin());
    for (; i < words.size() && choices.size() < shownCount; ++i) {
        if (words[i].startsWith(text, Qt::CaseInsensitive)) {
            choices << words[i];
            hints << QString::number(words[i].size());
            values << i;
        } else if (sorted) {
            break;
        }
    }
    completion->receivedSuggestions(choices, hints, values);
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
    void filterAndShowFirstSeven_data() { addRows(); }
    void filterAndShowFirstSeven() { run(false); }
    void filterAndShowFirstSevenSorted_data() { addRows(); }
    void filterAndShowFirstSevenSorted() { run(true); }

private:
    static void addRows()
    {
        QTest::addColumn<bool>("anchor");
        QTest::newRow("ours") << false;
        QTest::newRow("anchor") << true;
    }

    void run(bool sorted)
    {
        QFETCH(bool, anchor);
        QStringList words = makeWords();
        if (sorted)
            words.sort(); // all lower case: the case-insensitive order too
        const QStringList keystrokes = makeKeystrokes();
        QLineEdit editor;
        editor.show();
        int next = 0;
        if (anchor) {
            QStringListModel model(words);
            QCompleter completer(&model);
            completer.setCaseSensitivity(Qt::CaseInsensitive);
            completer.setModelSorting(sorted ? QCompleter::CaseInsensitivelySortedModel : QCompleter::UnsortedModel);
            completer.setMaxVisibleItems(shownCount);
            editor.setCompleter(&completer);
            const auto type = [&] {
                const QString& text = keystrokes.at(next++ % keystrokes.size());
                editor.setText(text);
                completer.setCompletionPrefix(text);
                completer.complete();
                completer.popup()->grab(); // painted
            };
            type();
            QCOMPARE(completer.currentCompletion(), firstMatch(words, keystrokes.at(0)));
            QBENCHMARK { type(); }
            return;
        }
        auto* completion = new QUxSuggestCompletion(&editor, 0, 1);
        connect(completion, &QUxSuggestCompletion::needSuggestions, completion,
                [&](const QString& text) { answer(completion, words, text, sorted); });
        const auto type = [&] {
            editor.setText(keystrokes.at(next++ % keystrokes.size()));
            completion->autoSuggest();
            completion->popup()->grab(); // painted
        };
        type();
        QCOMPARE(completion->popup()->topLevelItem(0)->text(0), firstMatch(words, keystrokes.at(0)));
        QBENCHMARK { type(); }
    }
};

QTEST_MAIN(bench_QUxSuggestCompletion)
#include "bench_QUxSuggestCompletion.moc"
