// A host registering its modules at start. Ours: each module through the
// manager (group menus, a dock with its title bar, the menu entry, a quick
// access button), then one updateMenus. Anchor: the same content widgets in
// plain QDockWidgets added to the main window one by one. Both sides build
// their main window in the timed block; tearing it down is left out of the
// timing on both sides (Qt's own clean-up of thousands of widgets with their
// posted events would otherwise dominate both). Running 200 and 400 modules
// shows whether start-up grows linearly. The row "ours dock widgets
// alone" adds bare QUxDockWidgets the anchor's way: the part of our time that
// is the dock widget's own construction (title bar and its icons).
#include <QUxDockWidget.h>
#include <QUxDockWindowManager.h>
#include <QUxQuickAccessBar.h>

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QtTest>

#include <memory>
#include <type_traits>
#include <vector>

namespace {

const QStringList kGroups{"Scene", "Animation", "Interaction", "Rendering/Lights", "Scripts"};

QList<QByteArray> moduleNames(int count)
{
    QList<QByteArray> names;
    for (int i = 0; i < count; ++i)
        names << "Module " + QByteArray::number(i);
    return names;
}

/// A main window and, on our side, its manager; destroyed after the timing.
struct Host
{
    std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
    std::unique_ptr<QUxDockWindowManager> manager;
};

Host registerWithManager(const QList<QByteArray>& names)
{
    Host host;
    host.manager = std::make_unique<QUxDockWindowManager>(host.window.get());
    host.manager->createGroupMenus();
    auto* bar = new QUxQuickAccessBar(host.window.get());
    host.window->addToolBar(Qt::BottomToolBarArea, bar);
    host.manager->setQuickAccessBar(bar);
    for (int i = 0; i < names.size(); ++i) {
        const char* name = names.at(i).constData();
        host.manager->add(name, kGroups.at(i % kGroups.size()), new QLabel(QString::fromLatin1(name)));
        host.manager->addQuickAccess(name, QString(), QString(), QIcon());
    }
    host.manager->updateMenus();
    return host;
}

template<typename Dock>
Host addDocks(const QList<QByteArray>& names)
{
    Host host;
    for (const QByteArray& name : names) {
        Dock* dock;
        if constexpr (std::is_same_v<Dock, QUxDockWidget>)
            dock = new Dock(QString::fromLatin1(name), QString::fromLatin1(name), QIcon(), host.window.get());
        else
            dock = new Dock(QString::fromLatin1(name), host.window.get());
        dock->setObjectName(QString::fromLatin1(name + "_Dock"));
        dock->setWidget(new QLabel(QString::fromLatin1(name)));
        host.window->addDockWidget(Qt::RightDockWidgetArea, dock);
    }
    return host;
}

void addRows()
{
    QTest::addColumn<int>("way");
    QTest::newRow("ours") << 0;
    QTest::newRow("ours dock widgets alone") << 1;
    QTest::newRow("anchor") << 2;
}

void run(int count)
{
    QFETCH(int, way);
    const QList<QByteArray> names = moduleNames(count);
    std::vector<Host> built;
    QBENCHMARK
    {
        if (way == 0)
            built.push_back(registerWithManager(names));
        else if (way == 1)
            built.push_back(addDocks<QUxDockWidget>(names));
        else
            built.push_back(addDocks<QDockWidget>(names));
    }
    built.clear();
}

} // namespace

class bench_QUxDockWindowManager : public QObject
{
    Q_OBJECT

private slots:
    void register200Modules_data() { addRows(); }
    void register200Modules() { run(200); }
    void register400Modules_data() { addRows(); }
    void register400Modules() { run(400); }
};

QTEST_MAIN(bench_QUxDockWindowManager)
#include "bench_QUxDockWindowManager.moc"
