// Filtering a search menu of 2,000 entries by one typed character. Ours types
// into the menu's search field; the anchor sets the same entries' visibility
// with a plain loop over QMenu::actions() and QString::contains. Both sides
// alternate between the same two texts, so every iteration hides and shows
// the same entries, on a hidden menu and on an open one.
#include <QUxSAMenu.h>

#include <QLineEdit>
#include <QWidgetAction>
#include <QtTest>

namespace {

constexpr int kEntries = 2000;
const QString kTexts[2] = {QStringLiteral("x"), QStringLiteral("y")};

/// Half of the entries hold an "x", the other half a "y", so each text shows one half.
void fill(QMenu* menu)
{
    for (int i = 0; i < kEntries; ++i)
        menu->addAction(QStringLiteral("Module %1 %2").arg(i, 4, 10, QChar('0')).arg(i % 2 ? "Xeno" : "Yolk"));
}

/// The stock way, leaving out the search field in front as ours does.
void filterPlain(QMenu* menu, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    for (int i = 1; i < actions.size(); ++i)
        actions.at(i)->setVisible(actions.at(i)->text().contains(text, Qt::CaseInsensitive));
}

QLineEdit* searchField(QMenu* menu)
{
    return qobject_cast<QLineEdit*>(qobject_cast<QWidgetAction*>(menu->actions().constFirst())->defaultWidget());
}

int visibleCount(QMenu* menu)
{
    const QList<QAction*> actions = menu->actions();
    return int(std::count_if(actions.begin(), actions.end(), [](QAction* a) { return a->isVisible(); }));
}

} // namespace

class BenchQUxSAMenu : public QObject
{
    Q_OBJECT

private slots:
    void typeCharacter_data() { addRows(); }
    void typeCharacter() { run(false); }
    void typeCharacterOpenMenu_data() { addRows(); }
    void typeCharacterOpenMenu() { run(true); }

private:
    static void addRows()
    {
        QTest::addColumn<bool>("anchor");
        QTest::newRow("ours") << false;
        QTest::newRow("anchor") << true;
    }

    static void run(bool open)
    {
        QFETCH(bool, anchor);
        QUxSAMenu menu;
        fill(&menu);
        QLineEdit* field = searchField(&menu);
        if (open)
            menu.popup(QPoint(0, 0));
        int turn = 0;
        if (anchor) {
            QBENCHMARK { filterPlain(&menu, kTexts[turn++ % 2]); }
        } else {
            QBENCHMARK
            {
                field->selectAll();
                QTest::keyClick(field, kTexts[turn++ % 2].at(0).toLatin1());
            }
        }
        // The search field and half of the entries stay visible.
        QCOMPARE(visibleCount(&menu), kEntries / 2 + 1);
    }
};

QTEST_MAIN(BenchQUxSAMenu)
#include "bench_QUxSAMenu.moc"
