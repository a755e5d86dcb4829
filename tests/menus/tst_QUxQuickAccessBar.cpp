#include <QUxDockWidget.h>
#include <QUxQuickAccessBar.h>
#include <QUxQuickAccessButton.h>

#include <QFrame>
#include <QMimeData>
#include <QPushButton>
#include <QtTest>
#include <uxTestSupport.h>

#include <memory>

namespace {

const QString kModule = QStringLiteral("application/corva-module-icon");
const QString kButton = QStringLiteral("application/corva-quickAccess-button");

QUxDockWidget* dock(const QString& name, QWidget* parent)
{
    auto* widget = new QUxDockWidget(name, name, QIcon(), parent);
    widget->setIntName(name);
    widget->setNickName(name.toLower());
    return widget;
}

QStringList names(const QUxQuickAccessBar& bar)
{
    const std::vector<QString> list = bar.moduleNames();
    return QStringList(list.begin(), list.end());
}

QUxQuickAccessButton* buttonOf(QUxQuickAccessBar& bar, const QString& name)
{
    const QList<QAction*> actions = bar.actions();
    auto found = std::find_if(actions.begin(), actions.end(), [&](QAction* a) { return a->text() == name; });
    return found == actions.end() ? nullptr : qobject_cast<QUxQuickAccessButton*>(bar.widgetForAction(*found));
}

QWidget* done(QUxQuickAccessBar& bar) { return bar.findChild<QPushButton*>("QuickAccessDoneButton"); }
bool doneShown(QUxQuickAccessBar& bar) { return bar.actions().last()->isVisible(); }

/// Enter, move and drop at @p x, sent by code of this process (as a drag started here).
void dropOn(QUxQuickAccessBar& bar, const QString& format, const QByteArray& data, int x)
{
    QMimeData mime;
    mime.setData(format, data);
    const QPoint pos(x, bar.height() / 2);
    QDragEnterEvent enter(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&bar, &enter);
    QApplication::sendEvent(&bar, &move);
    QApplication::sendEvent(&bar, &drop);
}

} // namespace

class tst_QUxQuickAccessBar : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> window;
    QUxQuickAccessBar* bar = nullptr;
    QStringList signalLog;

    void longPress(QUxQuickAccessButton* button, const QPoint& pos)
    {
        QUxQuickAccessButton::setLongPressInterval(0);
        QTest::mousePress(button, Qt::LeftButton, {}, pos);
        QTRY_VERIFY(QUxQuickAccessButton::editMode());
    }

private slots:
    void init()
    {
        QUxQuickAccessButton::finishEditing();
        QUxQuickAccessButton::setLongPressInterval(1500);
        window = std::make_unique<QWidget>();
        bar = new QUxQuickAccessBar(tr("Quick"), window.get());
        bar->setGeometry(0, 0, 600, 48);
        for (const char* name : {"A", "B", "C"})
            bar->addModule(dock(name, window.get()), nullptr, QIcon(), QString(), QString(), false);
        signalLog.clear();
        connect(bar, &QUxQuickAccessBar::moduleAdded, this, [this] { signalLog << "moduleAdded"; });
        connect(bar, &QUxQuickAccessBar::moduleRemoved, this, [this] { signalLog << "moduleRemoved"; });
        connect(bar, &QUxQuickAccessBar::moduleDropped, this, [this] { signalLog << "moduleDropped"; });
        connect(bar, &QUxQuickAccessBar::orderChanged, this, [this] { signalLog << "orderChanged"; });
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }
    void cleanup() { window.reset(); }

    void shouldKeepButtonsBetweenSpacersAndBeforeDone()
    {
        QAction plain(tr("Plain")), special;
        bar->addButton(&plain, QIcon());
        bar->addSpecial(&special);
        bar->addModule(buttonOf(*bar, "A")->dockWidget(), nullptr, QIcon(), "Again", QString(), false);
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
        QUxQuickAccessButton* a = buttonOf(*bar, "A");
        QTest::mouseClick(a, Qt::LeftButton); // short press: toggles the visible dock off
        QVERIFY(!a->isChecked() && !a->dockWidget()->isVisible() && !QUxQuickAccessButton::editMode());
        longPress(a, QPoint(2, 2));
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
        longPress(b, QPoint(b->width() / 3, 30));
        QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(b->width() / 3, 30));
        QTest::mouseClick(b, Qt::LeftButton, {}, point);
        QCOMPARE(names(*bar), removed ? QStringList({"A", "C"}) : QStringList({"A", "B", "C"}));
        QCOMPARE(signalLog, removed ? QStringList({"moduleRemoved"}) : QStringList());
    }

    void shouldReorderByDrop_data()
    {
        QTest::addColumn<char>("moved");
        QTest::addColumn<char>("target");
        QTest::addColumn<int>("offset"); // from the target's left edge, negative from its right; 1000: bar's end
        QTest::addColumn<QStringList>("order");
        QTest::newRow("left half") << 'C' << 'A' << 1 << QStringList({"C", "A", "B"});
        QTest::newRow("right half") << 'C' << 'A' << -2 << QStringList({"A", "C", "B"});
        QTest::newRow("past the end") << 'A' << 'C' << 1000 << QStringList({"B", "C", "A"});
        QTest::newRow("own left half") << 'B' << 'B' << 0 << QStringList({"A", "B", "C"});
    }
    void shouldReorderByDrop()
    {
        QFETCH(char, moved);
        QFETCH(char, target);
        QFETCH(int, offset);
        QFETCH(QStringList, order);
        QUxQuickAccessButton* t = buttonOf(*bar, QString(target));
        const int x = offset == 1000 ? bar->width() - 5 : t->x() + (offset < 0 ? t->width() + offset : offset);
        dropOn(*bar, kButton, QUxQuickAccessButton::payload(buttonOf(*bar, QString(moved))), x);
        QCOMPARE(signalLog, QStringList({"moduleRemoved", "moduleAdded", "orderChanged"}));
        QCOMPARE(names(*bar), order);
        QCOMPARE(buttonOf(*bar, QString(moved))->text(), QString(moved).toLower()); // rebuilt from its dock
    }

    void shouldPaintOrangeBandAtDropPlaceUntilTheDrop()
    {
        QUxQuickAccessButton* b = buttonOf(*bar, "B");
        const QPoint place(b->x(), 2); // a left-half hover puts the band's middle on B's left edge
        const QColor background = uxTest::grab(bar).pixelColor(place);
        QMimeData mime;
        mime.setData(kButton, QUxQuickAccessButton::payload(b));
        QDragEnterEvent enter(QPoint(b->x() + 1, 5), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QDragMoveEvent move(QPoint(b->x() + 1, 5), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &enter);
        QApplication::sendEvent(bar, &move);
        const double a = 150 / 255.0; // orange (244, 133, 22) at its most opaque over the bar
        const QColor band(qRound(244 * a + background.red() * (1 - a)), qRound(133 * a + background.green() * (1 - a)),
                          qRound(22 * a + background.blue() * (1 - a)));
        QVERIFY(uxTest::sameColor(uxTest::grab(bar).pixelColor(place), band, 8));
        dropOn(*bar, kButton, QUxQuickAccessButton::payload(b), b->x() + 1);
        QVERIFY(uxTest::sameColor(uxTest::grab(bar).pixelColor(place), background, 2));
    }

    void shouldAppendDroppedModuleWhereverDropped()
    {
        dropOn(*bar, kModule, QUxDockWidget::payload(dock("D", window.get())), 1);
        QCOMPARE(names(*bar), QStringList({"A", "B", "C", "D"}));
        QCOMPARE(signalLog, QStringList({"moduleAdded", "moduleDropped"}));
    }

    void shouldIgnoreForgedAndStalePayloads_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QStringList>("log");
        auto* stale = new QUxQuickAccessButton;
        const QByteArray staleButton = QUxQuickAccessButton::payload(stale);
        delete stale;
        QTest::newRow("forged dock") << kModule << QByteArray("0x1234") << QStringList("moduleDropped");
        QTest::newRow("garbage dock") << kModule << QByteArray("\xff\0zz", 4) << QStringList("moduleDropped");
        QTest::newRow("empty dock") << kModule << QByteArray() << QStringList();
        QTest::newRow("stale button") << kButton << staleButton << QStringList();
        QTest::newRow("other format") << "text/plain" << QByteArray("0x1") << QStringList();
    }
    void shouldIgnoreForgedAndStalePayloads()
    {
        QFETCH(QString, format);
        QFETCH(QByteArray, data);
        QFETCH(QStringList, log);
        dropOn(*bar, format, data, 5);
        QCOMPARE(names(*bar), QStringList({"A", "B", "C"}));
        QCOMPARE(signalLog, log);
    }

    void shouldForgetDeletedDocksAndButtons()
    {
        QUxQuickAccessButton* a = buttonOf(*bar, "A");
        QUxDockWidget* b = buttonOf(*bar, "B")->dockWidget();
        const QByteArray stale = QUxDockWidget::payload(b);
        delete b;
        QCOMPARE(names(*bar), QStringList({"A", "C"}));
        dropOn(*bar, kModule, stale, 5);
        emit a->removeButton(a);
        QMetaObject::invokeMethod(bar, "removeModule", Q_ARG(QUxQuickAccessButton*, a)); // twice: reported, harmless
        QMetaObject::invokeMethod(bar, "removeModule", Q_ARG(QUxQuickAccessButton*, nullptr));
        QCOMPARE(names(*bar), QStringList({"C"}));
        delete buttonOf(*bar, "C");
        QCOMPARE(names(*bar), QStringList());
        QCOMPARE(signalLog, QStringList({"moduleDropped", "moduleRemoved", "moduleRemoved"}));
    }

    void shouldNotCrashWhenButtonIsDeletedAfterItsDragStarted()
    {
        QUxQuickAccessButton* a = buttonOf(*bar, "A");
        const QByteArray data = QUxQuickAccessButton::payload(a);
        longPress(a, QPoint(2, 2));
        uxTest::moveMouse(a, QPoint(40, 40)); // starts the drag
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
