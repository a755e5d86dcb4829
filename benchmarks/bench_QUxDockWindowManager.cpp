// A host registering its modules at start. Ours: each module through the
// manager (group menus, a dock with its title bar, the menu entry, a quick
// access button), then one updateMenus. Anchor: the same content widgets in
// plain QDockWidgets added to the main window one by one. Both sides build
// and tear down their main window in the timed block. Running 200 and 400
// modules shows whether start-up grows linearly. The row "ours dock widgets
// alone" adds bare QUxDockWidgets the anchor's way: the part of our time that
// is the dock widget's own construction (title bar and its icons).
#include <QUxDockWidget.h>
#include <QUxDockWindowManager.h>
#include <QUxQuickAccessBar.h>

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QtTest>

namespace {

const QStringList kGroups{"Scene", "Animation", "Interaction", "Rendering/Lights", "Scripts"};

QList<QByteArray> moduleNames(int count)
{
    QList<QByteArray> names;
    for (int i = 0; i < count; ++i)
        names << "Module " + QByteArray::number(i);
    return names;
}

void registerWithManager(const QList<QByteArray>& names)
{
    QMainWindow window;
    QUxDockWindowManager manager(&window);
    manager.createGroupMenus();
    auto* bar = new QUxQuickAccessBar(&window);
    window.addToolBar(Qt::BottomToolBarArea, bar);
    manager.setQuickAccessBar(bar);
    for (int i = 0; i < names.size(); ++i) {
        const char* name = names.at(i).constData();
        manager.add(name, kGroups.at(i % kGroups.size()), new QLabel(QString::fromLatin1(name)));
        manager.addQuickAccess(name, QString(), QString(), QIcon());
    }
    manager.updateMenus();
}

void registerWithQt(const QList<QByteArray>& names)
{
    QMainWindow window;
    for (const QByteArray& name : names) {
        auto* dock = new QDockWidget(QString::fromLatin1(name), &window);
        dock->setObjectName(QString::fromLatin1(name + "_Dock"));
        dock->setWidget(new QLabel(QString::fromLatin1(name)));
        window.addDockWidget(Qt::RightDockWidgetArea, dock);
    }
}

void addDockWidgetsOnly(const QList<QByteArray>& names)
{
    QMainWindow window;
    for (const QByteArray& name : names) {
        auto* dock = new QUxDockWidget(QString::fromLatin1(name), QString::fromLatin1(name), QIcon(), &window);
        dock->setObjectName(QString::fromLatin1(name + "_Dock"));
        dock->setWidget(new QLabel(QString::fromLatin1(name)));
        window.addDockWidget(Qt::RightDockWidgetArea, dock);
    }
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
    QBENCHMARK
    {
        if (way == 0)
            registerWithManager(names);
        else if (way == 1)
            addDockWidgetsOnly(names);
        else
            registerWithQt(names);
    }
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
