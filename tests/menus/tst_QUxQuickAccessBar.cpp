#include <QUxDockWidget.h>
#include <QUxQuickAccessBar.h>
#include <QUxQuickAccessButton.h>

#include <QFrame>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

const QString kModule = QStringLiteral("application/corva-module-icon");
const QString kButton = QStringLiteral("application/corva-quickAccess-button");

QUxDockWidget* dock(const QString& name, QWidget* parent = nullptr)
{
    auto* widget = new QUxDockWidget(name, name, QIcon(), parent);
    widget->setIntName(name);
    widget->setNickName(name.toLower());
    return widget;
}

QStringList names(const QUxQuickAccessBar& bar)
{
    QStringList list;
    for (const QString& name : bar.moduleNames())
        list << name;
    return list;
}

QUxQuickAccessButton* buttonOf(QUxQuickAccessBar& bar, const QString& name)
{
    for (QAction* action : bar.actions()) {
        if (action->text() == name)
            return qobject_cast<QUxQuickAccessButton*>(bar.widgetForAction(action));
    }
    return nullptr;
}

QWidget* done(QUxQuickAccessBar& bar) { return bar.findChild<QPushButton*>("QuickAccessDoneButton"); }

bool doneShown(QUxQuickAccessBar& bar) { return bar.actions().last()->isVisible(); }

/// Enter, move and drop at @p x, as the window system delivers them.
void dropOn(QUxQuickAccessBar& bar, const QString& format, const QByteArray& data, int x)
{
    QMimeData mime;
    mime.setData(format, data);
    const QPoint pos(x, bar.height() / 2);
    QDragEnterEvent enter(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    for (QEvent* event : {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&move), static_cast<QEvent*>(&drop)})
        QApplication::sendEvent(&bar, event);
}

} // namespace

class tst_QUxQuickAccessBar : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> window;
    QUxQuickAccessBar* bar = nullptr;
    QList<QUxDockWidget*> docks;
    QStringList signalLog;

private slots:
    void init()
    {
        QUxQuickAccessButton::finishEditing();
        QUxQuickAccessButton::setLongPressInterval(1500);
        window = std::make_unique<QWidget>();
        bar = new QUxQuickAccessBar(tr("Quick"), window.get());
        bar->setGeometry(0, 0, 600, 48);
        docks = {dock("A", window.get()), dock("B", window.get()), dock("C", window.get())};
        for (QUxDockWidget* module : docks)
            bar->addModule(module, nullptr, QIcon(), QString(), QString(), false);
        signalLog.clear();
        connect(bar, &QUxQuickAccessBar::moduleAdded, this, [this] { signalLog << "added"; });
        connect(bar, &QUxQuickAccessBar::moduleRemoved, this, [this] { signalLog << "removed"; });
        connect(bar, &QUxQuickAccessBar::moduleDropped, this, [this] { signalLog << "dropped"; });
        connect(bar, &QUxQuickAccessBar::orderChanged, this, [this] { signalLog << "order"; });
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }
    void cleanup() { window.reset(); }

    void shouldKeepButtonsBetweenSpacersAndBeforeDone()
    {
        QAction plain(tr("Plain"));
        bar->addButton(&plain, QIcon());
        QAction special;
        bar->addSpecial(&special);
        bar->addModule(docks[0], nullptr, QIcon(), "Again", QString(), false);
        bar->addModule(nullptr, nullptr, QIcon(), QString(), QString(), false);
        QCOMPARE(names(*bar), QStringList({"A", "B", "C", "Title"}));
        QVERIFY(signalLog.isEmpty());
        const QList<QAction*> actions = bar->actions();
        QCOMPARE(actions.size(), 8);
        QVERIFY(qobject_cast<QFrame*>(bar->widgetForAction(actions.first())));
        QCOMPARE(actions.at(5), &special);
        QVERIFY(qobject_cast<QFrame*>(bar->widgetForAction(actions.at(6))));
        QCOMPARE(bar->widgetForAction(actions.last()), done(*bar));
        QVERIFY(!doneShown(*bar));
        QCOMPARE(buttonOf(*bar, "B")->text(), QString("b"));
        bar->clear();
        QCOMPARE(names(*bar), QStringList());
    }

    void shouldShareEditModeButShowDoneOnlyOnPressedBar()
    {
        QUxQuickAccessBar other(window.get());
        other.addModule(dock("D", window.get()), nullptr, QIcon(), QString(), QString(), false);
        QUxQuickAccessButton* a = buttonOf(*bar, "A");
        QTest::mouseClick(a, Qt::LeftButton); // short press: toggles
        QVERIFY(!a->isChecked() && !docks[0]->isVisible() && !QUxQuickAccessButton::editMode());
        QUxQuickAccessButton::setLongPressInterval(0);
        QTest::mousePress(a, Qt::LeftButton);
        QTRY_VERIFY(QUxQuickAccessButton::editMode());
        QTest::mouseRelease(a, Qt::LeftButton);
        QVERIFY(doneShown(*bar) && !doneShown(other));
        QTest::mouseClick(a, Qt::LeftButton, {}, QPoint(2, 2)); // no toggle in edit mode
        QVERIFY(!a->isChecked());
        QCoreApplication::sendPostedEvents(); // lays out the shown Done button
        QTest::mouseClick(done(*bar), Qt::LeftButton);
        QVERIFY(!doneShown(*bar) && !QUxQuickAccessButton::editMode());
    }

    void shouldRemoveOnlyOnBadge_data()
    {
        QTest::addColumn<int>("fromRight");
        QTest::addColumn<int>("y");
        QTest::addColumn<bool>("removed");
        QTest::newRow("badge top left") << 19 << 3 << true;
        QTest::newRow("badge bottom right") << 1 << 20 << true;
        QTest::newRow("left of badge") << 20 << 10 << false;
        QTest::newRow("above badge") << 10 << 2 << false;
        QTest::newRow("below badge") << 10 << 21 << false;
    }
    void shouldRemoveOnlyOnBadge()
    {
        QFETCH(int, fromRight);
        QFETCH(int, y);
        QFETCH(bool, removed);
        QUxQuickAccessButton* b = buttonOf(*bar, "B");
        const QPoint point(b->width() - fromRight, y);
        QTest::mouseClick(b, Qt::LeftButton, {}, point); // out of edit mode the badge is button
        QVERIFY(!b->isChecked());
        emit b->startedEditing(); // as after a long press
        QUxQuickAccessButton::setLongPressInterval(0);
        QTest::mousePress(b, Qt::LeftButton);
        QTRY_VERIFY(QUxQuickAccessButton::editMode());
        QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(b->width() / 3, 30));
        QTest::mouseClick(b, Qt::LeftButton, {}, point);
        QCOMPARE(names(*bar), removed ? QStringList({"A", "C"}) : QStringList({"A", "B", "C"}));
        QCOMPARE(signalLog, removed ? QStringList({"removed"}) : QStringList());
    }

    void shouldReorderByDrop_data()
    {
        QTest::addColumn<QString>("moved");
        QTest::addColumn<QString>("target");
        QTest::addColumn<int>("offset"); // from the target's left edge; 1000: far right of the bar
        QTest::addColumn<QStringList>("order");
        QTest::newRow("left half") << "C"
                                   << "A" << 1 << QStringList({"C", "A", "B"});
        QTest::newRow("right half") << "C"
                                    << "A" << -2 << QStringList({"A", "C", "B"});
        QTest::newRow("past the end") << "A"
                                      << "C" << 1000 << QStringList({"B", "C", "A"});
        QTest::newRow("own left half") << "B"
                                       << "B" << 0 << QStringList({"A", "B", "C"});
    }
    void shouldReorderByDrop()
    {
        QFETCH(QString, moved);
        QFETCH(QString, target);
        QFETCH(int, offset);
        QFETCH(QStringList, order);
        QUxQuickAccessButton* t = buttonOf(*bar, target);
        const int x = offset == 1000 ? bar->width() - 5 : t->x() + (offset < 0 ? t->width() + offset : offset);
        const QByteArray data = QUxQuickAccessButton::payload(buttonOf(*bar, moved));
        dropOn(*bar, kButton, data, x);
        QCOMPARE(signalLog, QStringList({"removed", "added", "order"}));
        QCOMPARE(names(*bar), order);
        QCOMPARE(buttonOf(*bar, moved)->dockWidget()->getIntName(), moved);
    }

    void shouldAppendDroppedModuleWhereverDropped()
    {
        QUxDockWidget* d = dock("D", window.get());
        dropOn(*bar, kModule, QUxDockWidget::payload(d), 1);
        QCOMPARE(names(*bar), QStringList({"A", "B", "C", "D"}));
        QCOMPARE(signalLog, QStringList({"added", "dropped"}));
    }

    void shouldIgnoreForgedStaleAndForeignPayloads_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QStringList>("log");
        auto* stale = new QUxQuickAccessButton;
        const QByteArray staleButton = QUxQuickAccessButton::payload(stale);
        delete stale;
        QTest::newRow("forged dock") << kModule << QByteArray("0x1234") << QStringList("dropped");
        QTest::newRow("garbage dock") << kModule << QByteArray("\xff\0zz", 4) << QStringList("dropped");
        QTest::newRow("empty dock") << kModule << QByteArray() << QStringList();
        QTest::newRow("stale button") << kButton << staleButton << QStringList();
        QTest::newRow("too long") << kButton << QByteArray("0x").append(40, 'f') << QStringList();
        QTest::newRow("other format") << "text/plain" << QByteArray("0x1") << QStringList();
    }
    void shouldIgnoreForgedStaleAndForeignPayloads()
    {
        QFETCH(QString, format);
        QFETCH(QByteArray, data);
        QFETCH(QStringList, log);
        dropOn(*bar, format, data, 5);
        QCOMPARE(names(*bar), QStringList({"A", "B", "C"}));
        QCOMPARE(signalLog, log);
    }

    void shouldNotKeepDeletedDockOrRemovedButton()
    {
        QUxQuickAccessButton* a = buttonOf(*bar, "A");
        const QByteArray stale = QUxDockWidget::payload(docks[1]);
        delete docks[1];
        QCOMPARE(names(*bar), QStringList({"A", "C"}));
        dropOn(*bar, kModule, stale, 5);
        emit a->removeButton(a);
        QMetaObject::invokeMethod(bar, "removeModule", Q_ARG(QUxQuickAccessButton*, a)); // twice: reported, harmless
        QMetaObject::invokeMethod(bar, "removeModule", Q_ARG(QUxQuickAccessButton*, nullptr));
        QCOMPARE(names(*bar), QStringList({"C"}));
        QCOMPARE(signalLog, QStringList({"dropped", "removed", "removed"}));
    }

    void shouldNotCrashWhenButtonIsDeletedAfterItsDragStarted()
    {
        QUxQuickAccessButton* a = buttonOf(*bar, "A");
        const QByteArray data = QUxQuickAccessButton::payload(a);
        QUxQuickAccessButton::setLongPressInterval(0);
        QTest::mousePress(a, Qt::LeftButton, {}, QPoint(2, 2));
        QTRY_VERIFY(QUxQuickAccessButton::editMode());
        emit a->startedEditing();
        QTest::mouseMove(a, QPoint(40, 40)); // starts the drag
        QTest::mouseClick(done(*bar), Qt::LeftButton);
        bar->clear();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        dropOn(*bar, kButton, data, 5);
        QCOMPARE(names(*bar), QStringList());
        QVERIFY(signalLog.isEmpty());
    }
};

QTEST_MAIN(tst_QUxQuickAccessBar)
#include "tst_QUxQuickAccessBar.moc"
