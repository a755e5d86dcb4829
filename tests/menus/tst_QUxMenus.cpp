#include <QUxAction.h>
#include <QUxAnimatedMenu.h>
#include <QUxOpenMenu.h>
#include <QUxSAMenu.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTimer>
#include <QToolBar>
#include <QWidgetAction>
#include <QtTest>

namespace {

QLineEdit* searchField(QMenu* menu)
{
    return qobject_cast<QLineEdit*>(qobject_cast<QWidgetAction*>(menu->actions().value(0))->defaultWidget());
}

/// Texts of the visible entries after the search field, a separator written as "|".
QStringList visibleEntries(QMenu* menu)
{
    QStringList texts;
    for (QAction* action : menu->actions().mid(1)) {
        if (action->isVisible())
            texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
    }
    return texts;
}

/// Window opacity is kept in 255 levels, rounded down.
bool opacityNear(double actual, double expected) { return actual <= expected + 1e-9 && actual > expected - 1.0 / 255; }

} // namespace

class tst_QUxMenus : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QUxAction::showIconText(false); }

    void shouldSwitchOnlyToolBarsShowingQUxActions()
    {
        QToolBar withOurs, plainOnly, later;
        withOurs.addAction(new QUxAction(QStringLiteral("Orbit"), &withOurs));
        plainOnly.addAction(new QAction(QStringLiteral("Zoom"), &plainOnly));
        auto* deleted = new QUxAction(QIcon(), QStringLiteral("Gone"), &plainOnly);
        plainOnly.addAction(deleted);
        delete deleted;
        QUxAction::showIconText(true);
        QVERIFY(QUxAction::iconTextShown() && withOurs.toolButtonStyle() == Qt::ToolButtonTextUnderIcon);
        QCOMPARE(plainOnly.toolButtonStyle(), Qt::ToolButtonIconOnly);

        // A later action leaves its bar alone until the next switch.
        later.addAction(new QUxAction(&later));
        QCOMPARE(later.toolButtonStyle(), Qt::ToolButtonIconOnly);
        QUxAction::showIconText(true);
        QCOMPARE(later.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    }

    void shouldFilterEntriesByTypedText_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("visible");
        QTest::newRow("empty shows all") << "" << QStringList{"Open File", "Save", "|", "Save As", "a(b c", "b*\\"};
        QTest::newRow("substring, any case") << "sAV" << QStringList{"Save", "Save As"};
        QTest::newRow("letters apart do not match") << "ofe" << QStringList();
        QTest::newRow("parenthesis is plain") << "a(b" << QStringList{"a(b c"};
        QTest::newRow("star is plain") << "*" << QStringList{"b*\\"};
        QTest::newRow("backslash is plain") << "\\" << QStringList{"b*\\"};
    }

    // Filtering a closed and an open menu, then reopening it.
    void shouldFilterEntriesByTypedText()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, visible);
        for (bool shown : {false, true}) {
            QUxSAMenu menu;
            QAction* open = menu.addAction(QStringLiteral("Open File"));
            menu.addAction(QStringLiteral("Save"));
            menu.addSeparator();
            for (const char* text : {"Save As", "a(b c", "b*\\"})
                menu.addAction(text);
            if (shown)
                menu.popup(QPoint(0, 0));
            QLineEdit* field = searchField(&menu);
            const int fullHeight = menu.sizeHint().height();
            QTest::keyClicks(field, typed);
            QCOMPARE(visibleEntries(&menu), visible);
            QVERIFY(menu.actions().constFirst()->isVisible());
            QVERIFY(!shown || (menu.height() < fullHeight) == (visible.size() < 6));

            menu.hide();
            open->setEnabled(false);
            QSignalSpy edits(field, &QLineEdit::textChanged);
            menu.popup(QPoint(10, 10));
            QCOMPARE(visibleEntries(&menu).size(), 6);
            QCOMPARE(menu.height(), fullHeight);
            QVERIFY(open->isEnabled() && field->text().isEmpty() && edits.isEmpty());
            QCOMPARE(menu.focusWidget(), field);
        }
    }

    void shouldWorkWithoutEntriesAndActivateFieldWhenPointedAt()
    {
        QUxSAMenu menu;
        menu.popup(QPoint(0, 0));
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(searchField(&menu), &enter);
        QCOMPARE(menu.activeAction(), menu.actions().constFirst());
        QTest::keyClicks(searchField(&menu), QStringLiteral("a(b"));
        QCOMPARE(menu.actions().size(), 1);
        QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground));
    }

    void shouldFadeInInSteps_data()
    {
        QTest::addColumn<int>("steps");
        QTest::addColumn<double>("opacity");
        QTest::addColumn<bool>("timerRunning");
        QTest::newRow("first step") << 1 << 0.0 << true;
        QTest::newRow("last step before the end") << 300 << 299.0 / 300.0 << true;
        QTest::newRow("end") << 301 << 1.0 << false;
        QTest::newRow("called on after the end") << 320 << 1.0 << false;
    }

    void shouldFadeInInSteps()
    {
        QFETCH(int, steps);
        QFETCH(double, opacity);
        QFETCH(bool, timerRunning);
        QUxAnimatedMenu menu(QStringLiteral("Recent"));
        menu.addAction(QStringLiteral("scene"));
        auto* timer = menu.findChild<QTimer*>();
        for (int reopen = 0; reopen < 2; ++reopen) {
            menu.setWindowOpacity(0.7);
            menu.popup(QPoint(0, 0));
            QVERIFY(menu.windowOpacity() == 0.0 && timer->isActive());
            for (int i = 0; i < steps; ++i)
                menu.fadeIn();
            QVERIFY(opacityNear(menu.windowOpacity(), opacity) && timer->isActive() == timerRunning);
            menu.hide();
        }
    }

    void shouldStayOpenUntilClosed_data()
    {
        QTest::addColumn<int>("closing");
        QTest::newRow("focus lost") << int(QEvent::FocusOut);
        QTest::newRow("mouse left") << int(QEvent::Leave);
        QTest::newRow("explicit") << int(QEvent::None);
    }

    void shouldStayOpenUntilClosed()
    {
        QFETCH(int, closing);
        QUxOpenMenu menu(QStringLiteral("Layers"));
        QAction* layer = menu.addAction(QStringLiteral("Terrain"));
        menu.popup(QPoint(0, 0));
        QSignalSpy triggered(layer, &QAction::triggered);
        QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(layer).center());
        menu.hide();
        QVERIFY(triggered.count() == 1 && menu.isVisible());
        QFocusEvent focusOut(QEvent::FocusOut);
        QEvent leave(QEvent::Leave);
        if (closing == QEvent::None)
            menu.setVisibleNow(false);
        else
            QCoreApplication::sendEvent(&menu, closing == QEvent::Leave ? &leave : &focusOut);
        QVERIFY(!menu.isVisible());
    }
};

QTEST_MAIN(tst_QUxMenus)
#include "tst_QUxMenus.moc"
