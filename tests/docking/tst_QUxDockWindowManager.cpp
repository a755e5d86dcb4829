#include <QUxDockWidget.h>
#include <QUxDockWindowManager.h>
#include <QUxQuickAccessBar.h>

#include <QContextMenuEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>
#include <QToolBar>

#include <memory>
#include <unistd.h>

namespace {

QStringList texts(const QWidget* widget)
{
    QStringList result;
    for (const QAction* action : widget->actions())
        result << action->text();
    return result;
}

// What @p call writes to standard output.
template<typename Call>
QByteArray capturedStdout(Call call)
{
    QTemporaryFile file;
    file.open();
    std::fflush(stdout);
    const int saved = dup(fileno(stdout));
    dup2(file.handle(), fileno(stdout));
    call();
    std::fflush(stdout);
    dup2(saved, fileno(stdout));
    close(saved);
    file.seek(0); // the descriptors shared one offset
    return file.readAll();
}

} // namespace

class tst_QUxDockWindowManager : public QObject
{
    Q_OBJECT

private slots:
    void shouldFileModulesIntoGroupMenus_data()
    {
        QTest::addColumn<QStringList>("groups");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QStringList>("order");
        QTest::addColumn<QString>("subGroup");
        QTest::newRow("sub-group reversed behind its first")
            << QStringList{"Rendering", "Rendering/Lights", "Rendering/Lights", "Rendering/Lights"} << "Rendering"
            << QStringList{"m0", "m1", "m3", "m2"} << "Lights";
        QTest::newRow("three parts: unknown group, fallback menu")
            << QStringList{"Rendering/a/b"} << "" << QStringList{"m0"} << "";
    }
    void shouldFileModulesIntoGroupMenus()
    {
        QFETCH(QStringList, groups);
        QFETCH(QString, menu);
        QMainWindow window;
        QUxDockWindowManager manager(&window);
        const auto menus = manager.createGroupMenus();
        QMenu fallback;
        for (int i = 0; i < groups.size(); ++i)
            manager.add(QByteArray("m" + QByteArray::number(i)).constData(), groups.at(i), new QLabel, {}, {}, {},
                        Qt::LeftDockWidgetArea, false, &fallback);
        const QMenu* target = menu.isEmpty() ? &fallback : menus.value(menu).first;
        QTEST(texts(target), "order");
        QTEST(target->actions().last()->property("subGroup").toString(), "subGroup");
    }

    void shouldPlaceDocksByAreaAndKeepFirstOfDuplicateTitles()
    {
        QMainWindow window;
        QUxDockWindowManager manager(&window);
        QUxDockWidget* floating = manager.add("A", "Scene", new QLabel, "key", {}, "Nick", Qt::NoDockWidgetArea);
        QUxDockWidget* closed = manager.add("B", "Scene", new QLabel, {}, {}, {}, Qt::BottomDockWidgetArea, true);
        QUxDockWidget* odd = manager.add("C", "Scene", new QLabel, {}, {}, {}, Qt::DockWidgetArea(3));
        QVERIFY(floating->isFloating() && closed->isHidden());
        QCOMPARE(floating->objectName() + floating->nickName() + closed->nickName(), "A_DockNickB");
        QCOMPARE(window.dockWidgetArea(closed), Qt::BottomDockWidgetArea);
        QCOMPARE(window.dockWidgetArea(odd), Qt::RightDockWidgetArea);
        QCOMPARE(manager.add("A", "Scene", new QLabel)->parentWidget(), &window);
        QCOMPARE(manager.getDockWidget("A"), floating);
        QCOMPARE(manager.getAllDockWidgets(), (QStringList{"A", "B", "C"}));
        QVERIFY(!manager.add("", "Scene", new QLabel(&window)) && !manager.add("D", "Scene", nullptr));
        QCOMPARE(QUxDockWindowManager::the(), &manager);
    }

    void shouldRemoveReplaceAndParkModules()
    {
        QMainWindow window;
        QUxDockWindowManager manager(&window);
        QLabel first;
        manager.add("A", "Scene", &first);
        QVERIFY(manager.sub(&first) && !first.parent() && !manager.getDockWidget("A") && !manager.sub(&first));
        manager.add("B", "Scene", new QLabel);
        QPointer<QWidget> old = manager.getDockWidget("B")->widget();
        QLabel replacement;
        QVERIFY(manager.change("B", &replacement) && !old);
        QCOMPARE(manager.getDockWidget("B")->widget(), &replacement);
        QVERIFY(!manager.change("nothing", &first) && manager.sub("B") && !manager.sub("B"));
        manager.setEnabled(false);
        QVERIFY(!manager.add("P", "Scene", &first) && manager.get("P") == &first && !manager.getDockWidget("P"));
        const std::unique_ptr<QWidget> parking(first.parentWidget());
        first.setParent(nullptr);
        QVERIFY(parking->isHidden() && !parking->parent());
    }

    void shouldShowOrCloseByCheckedAction()
    {
        QMainWindow window;
        window.show();
        QUxDockWindowManager manager(&window);
        QUxDockWidget* dock = manager.add("A", "Scene", new QLabel, {}, {}, {}, Qt::LeftDockWidgetArea);
        manager.show("A");
        QAction action("A");
        action.setCheckable(true);
        for (const bool checked : {true, false}) {
            action.setChecked(checked);
            QMetaObject::invokeMethod(&manager, "executeAction", Q_ARG(QAction*, &action));
            QCOMPARE(dock->isVisible(), checked);
            QVERIFY(!checked || dock->pos() == QPoint(200, 200));
        }
    }

    void shouldOpenAnimationToolsFloatingWithTheTimeline()
    {
        QMainWindow window;
        window.show();
        QUxDockWindowManager manager(&window);
        QUxDockWidget* curves =
            manager.add("Curve Editor", "Animation", new QLabel, {}, {}, {}, Qt::LeftDockWidgetArea);
        QUxDockWidget* clips = manager.add("Clip Maker", "Animation", new QLabel, {}, {}, {}, Qt::BottomDockWidgetArea);
        manager.addToolbar("Timeline", "Animation", new QLabel, true);
        QAction action("Animations");
        QMetaObject::invokeMethod(&manager, "executeAction", Q_ARG(QAction*, &action));
        for (QUxDockWidget* dock : {curves, clips})
            QVERIFY(dock->isFloating() && dock->isVisible());
        QVERIFY(manager.getToolbar("Timeline")->isVisible());
    }

    void shouldApplySwitchesToEveryModuleAndMenuItem()
    {
        QMainWindow window;
        window.show();
        QUxDockWindowManager manager(&window);
        const auto menus = manager.createGroupMenus();
        QUxDockWidget* docked = manager.add("A", "Scene", new QLabel, {}, {}, {}, Qt::LeftDockWidgetArea);
        QUxDockWidget* floating = manager.add("B", "Scene", new QLabel, {}, {}, {}, Qt::NoDockWidgetArea);
        manager.setWindowDocking(false);
        QCOMPARE(int(docked->allowedAreas()) + int(floating->allowedAreas()), 0);
        manager.setWindowDocking(true);
        QCOMPARE(int(floating->allowedAreas()), 11);
        QMenu* scene = menus.value("Scene").first;
        scene->addAction("A"), scene->addAction("a");
        manager.hideMenuItem("A", "Scene");
        QCOMPARE(QList<bool>({scene->actions().at(0)->isVisible(), scene->actions().at(2)->isVisible(),
                              scene->actions().at(3)->isVisible()}),
                 QList<bool>({false, false, true})); // every exact match, and only those
        manager.show("A"), manager.show("B");
        manager.closeAllFloating();
        QVERIFY(docked->isVisible() && !floating->isVisible());
        manager.closeAllDocked();
        QVERIFY(!docked->isVisible());
    }

    void shouldTrimMenuBarAndSwallowTimelineMouseMenu()
    {
        QMainWindow window;
        QUxDockWindowManager manager(&window);
        manager.createGroupMenus();
        manager.add("A", "Scene", new QLabel);
        manager.add("B", "Various", new QLabel);
        manager.createGroupMenus(); // a second set, not in the manager's map
        manager.updateMenus();      // empty groups and "Various" go
        QCOMPARE(texts(window.menuBar()).mid(0, 2) << QString::number(window.menuBar()->actions().size()),
                 (QStringList{"Scene", "Scene", "9"}));

        QVERIFY(manager.addToolbar("TimeLine", "Animation", new QLabel));
        QToolBar* bar = manager.getToolbar("TimeLine");
        bar->setContextMenuPolicy(Qt::CustomContextMenu);
        QSignalSpy requests(bar, &QWidget::customContextMenuRequested);
        for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
            QContextMenuEvent event(reason, QPoint(1, 1));
            QApplication::sendEvent(bar, &event);
        }
        QCOMPARE(requests.count(), 1);
        QCOMPARE(texts(manager.createGroupMenus().value("Animation").first), QStringList{"TimeLine"});
    }

    void shouldNotCrashWhenMainWindowIsGone()
    {
        auto* window = new QMainWindow;
        QUxDockWindowManager manager(window);
        delete window;
        QLabel widget;
        const QByteArray message = "Error: Could not add widget. No main window specified!\n";
        QCOMPARE(capturedStdout([&] { QVERIFY(!manager.add("A", "Scene", &widget)); }), message);
        QCOMPARE(capturedStdout([&] { QVERIFY(!manager.addToolbar("T", "Scene", &widget)); }), message);
        QVERIFY(manager.createGroupMenus().isEmpty());
        manager.updateMenus();
        manager.closeAll();
        QVERIFY(!manager.sub(&widget) && !manager.undock("A") && !manager.addQuickAccess(nullptr));
    }

    void shouldRestoreSavedLayoutAndQuickAccess()
    {
        const char* names[] = {"Scenegraph", "Transform", "Material Editor", "Clip Maker"};
        const Qt::DockWidgetArea areas[] = {Qt::LeftDockWidgetArea, Qt::NoDockWidgetArea, Qt::BottomDockWidgetArea,
                                            Qt::RightDockWidgetArea};
        QByteArray state;
        std::vector<QString> onBar;
        for (int skip = -2; skip < 2; ++skip) { // -2 saves, -1 restores all, 0 and 1 restore without that module
            QMainWindow window;
            QUxDockWindowManager manager(&window);
            QUxQuickAccessBar bar(&window);
            manager.setQuickAccessBar(&bar);
            for (int i = 0; i < 4; ++i) {
                if (i != skip)
                    manager.add(names[i], "Scene", new QLabel, {}, {}, {}, skip < -1 ? areas[i] : Qt::TopDockWidgetArea,
                                skip < -1 && i == 3);
            }
            window.show();
            if (skip < -1) {
                manager.show(manager.getDockWidget(names[0]));
                manager.show(names[2]);
                for (const char* name : {"Material Editor", "Scenegraph", "Clip Maker"})
                    QVERIFY(manager.addQuickAccess(name, {}, {}, {}));
                state = window.saveState();
                onBar = bar.moduleNames();
                continue;
            }
            QVERIFY(window.restoreState(state));
            for (const QString& name : onBar)
                manager.addQuickAccess(name.toUtf8().constData(), {}, {}, {});
            for (int i = 0; i < 4; ++i) {
                QUxDockWidget* dock = manager.getDockWidget(names[i]);
                QVERIFY2(i == skip
                             || (dock->isFloating() == (areas[i] == Qt::NoDockWidgetArea)
                                 && dock->isHidden() == (i % 2 == 1)
                                 && (dock->isFloating() || window.dockWidgetArea(dock) == areas[i])),
                         names[i]);
            }
            QVERIFY(skip >= 0 || bar.moduleNames() == onBar);
        }
    }
};

QTEST_MAIN(tst_QUxDockWindowManager)
#include "tst_QUxDockWindowManager.moc"
