#include "QUxDockWindowManager.h"

#include <QUxDockWidget.h>
#include <QUxMenu.h>
#include <QUxQuickAccessBar.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QPointer>
#include <QToolBar>

#include <cstdio>

namespace {

const Qt::DockWidgetAreas kDockableAreas = Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea | Qt::BottomDockWidgetArea;
const char kSubGroupProperty[] = "subGroup";

// Anything but the four areas would make QMainWindow refuse the dock.
Qt::DockWidgetArea validArea(Qt::DockWidgetArea area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
    case Qt::RightDockWidgetArea:
    case Qt::TopDockWidgetArea:
    case Qt::BottomDockWidgetArea:
        return area;
    default:
        return Qt::RightDockWidgetArea;
    }
}

bool isTopLevel(const QWidget* widget) { return (widget->windowType() & Qt::Window) == Qt::Window; }

// The parking place of a widget handed over while the manager is off; it is never deleted.
void park(QWidget* widget)
{
    auto* parking = new QWidget;
    parking->hide();
    widget->setParent(parking);
}

template<typename Map, typename Value>
void insertNew(Map& map, const QString& key, const Value& value)
{
    if (!map.contains(key))
        map.insert(key, value);
}

} // namespace

class QUxDockWindowManagerPrivate
{
public:
    struct GroupMenu
    {
        QPointer<QMenu> menu;
        QPointer<QAction> action;
    };

    QPointer<QMainWindow> mainWindow;
    bool enabled = true;
    QMap<QString, QPointer<QUxDockWidget>> docks;
    QMap<QString, QPointer<QWidget>> parked;
    QMap<QString, QPointer<QToolBar>> toolbars;
    QMap<QString, GroupMenu> groupMenus;
    QMap<QString, QPointer<QAction>> quickAccessActions;
    QMap<QString, QString> names;
    QPointer<QUxQuickAccessBar> bar;

    static QPointer<QUxDockWindowManager> _the;

    QString titleOf(const QString& name) const { return names.value(name, name); }
    QMenu* groupMenu(const QString& group) const { return groupMenus.value(group).menu; }

    static QUxDockWidget* createDock(const char* name, const QString& title, const QString& groupName, QWidget* widget,
                                     const QString& toolclipKey, const QIcon& icon, const QString& nickName,
                                     QMainWindow* mainWindow)
    {
        auto* dock = new QUxDockWidget(title, groupName, icon, mainWindow);
        dock->setNickName(nickName.isEmpty() ? title : nickName);
        dock->setIntName(QString::fromUtf8(name));
        dock->setToolclipKey(toolclipKey);
        dock->setObjectName(QString::fromUtf8(name) + QStringLiteral("_Dock"));
        dock->setWidget(widget);
        dock->setAllowedAreas(kDockableAreas);
        dock->hide();
        return dock;
    }

    // Later members of a sub-group go directly behind its first member, so they
    // stand in reverse order of addition; hosts rely on that order.
    static void fileAction(QMenu* menu, QAction* action, const QString& subGroup)
    {
        if (!subGroup.isEmpty()) {
            const QList<QAction*> actions = menu->actions();
            for (int i = 0; i < actions.size(); ++i) {
                if (actions.at(i)->property(kSubGroupProperty).toString() != subGroup)
                    continue;
                if (i + 1 < actions.size()) {
                    menu->insertAction(actions.at(i + 1), action);
                    return;
                }
                break;
            }
        }
        menu->addAction(action);
    }

    static void release(QUxDockWidget* dock)
    {
        if (QWidget* content = dock->widget()) {
            dock->setWidget(nullptr);
            content->hide();
            content->setParent(nullptr);
        }
        delete dock;
    }

    void closeDocks(bool docked, bool floating)
    {
        if (!enabled || docks.isEmpty())
            return;
        for (const QPointer<QUxDockWidget>& dock : qAsConst(docks)) {
            if (!dock)
                continue;
            if (isTopLevel(dock)) {
                if (floating)
                    dock->close();
            } else if (docked && mainWindow) {
                mainWindow->removeDockWidget(dock);
            }
        }
    }

    void setMenuItemVisible(const QString& text, const QString& group, bool visible) const
    {
        if (!enabled || text.isEmpty() || groupMenus.isEmpty())
            return;
        if (QMenu* menu = groupMenu(group)) {
            const QList<QAction*> actions = menu->actions();
            for (QAction* action : actions) {
                if (action->text() == text)
                    action->setVisible(visible);
            }
        }
    }

    void showAnimationTools(const QUxDockWindowManager* manager)
    {
        for (const char* name : {"Curve Editor", "Clip Maker"}) {
            if (QUxDockWidget* dock = manager->getDockWidget(QUxDockWindowManager::tr(name))) {
                if (!isTopLevel(dock))
                    dock->setFloating(true);
                dock->show();
                dock->raise();
            }
        }
        if (QToolBar* timeline = manager->getToolbar(QUxDockWindowManager::tr("Timeline"))) {
            timeline->setVisible(true);
            timeline->raise();
        }
    }
};

QPointer<QUxDockWindowManager> QUxDockWindowManagerPrivate::_the;

QUxDockWindowManager::QUxDockWindowManager(QMainWindow* mainWindow)
    : QObject(nullptr), d(std::make_unique<QUxDockWindowManagerPrivate>())
{
    d->mainWindow = mainWindow;
    QUxDockWindowManagerPrivate::_the = this;
}

QUxDockWindowManager::~QUxDockWindowManager() = default;

QUxDockWindowManager* QUxDockWindowManager::the() { return QUxDockWindowManagerPrivate::_the; }

void QUxDockWindowManager::setEnabled(bool enabled) { d->enabled = enabled; }

bool QUxDockWindowManager::isEnabled() const { return d->enabled; }

QUxDockWidget* QUxDockWindowManager::add(const char* name, const QString& group, QWidget* widget,
                                         const QString& toolclipKey, const QIcon& icon, const QString& nickName,
                                         Qt::DockWidgetArea area, bool closed, QMenu* menu)
{
    const QStringList parts = group.split(QLatin1Char('/'));
    const bool hasSubGroup = parts.size() == 2;
    const QString groupName = hasSubGroup ? parts.at(0) : group;
    const QString subGroup = hasSubGroup ? parts.at(1) : QString();

    if (!d->enabled) {
        if (widget) {
            park(widget);
            insertNew(d->parked, QString::fromUtf8(name), QPointer<QWidget>(widget));
        }
        return nullptr;
    }
    if (!d->mainWindow) {
        std::printf("Error: Could not add widget. No main window specified!\n");
        std::fflush(stdout);
        return nullptr;
    }
    const QString title = name ? tr(name) : QString();
    if (!widget || title.isEmpty())
        return nullptr;

    QUxDockWidget* dock = QUxDockWindowManagerPrivate::createDock(name, title, groupName, widget, toolclipKey, icon,
                                                                  nickName, d->mainWindow);
    if (area == Qt::NoDockWidgetArea) {
        d->mainWindow->addDockWidget(Qt::RightDockWidgetArea, dock);
        dock->setFloating(true);
    } else {
        d->mainWindow->addDockWidget(validArea(area), dock);
    }
    if (closed)
        dock->close();

    QAction* action = dock->toggleViewAction();
    if (!subGroup.isEmpty())
        action->setProperty(kSubGroupProperty, subGroup);
    QMenu* target = d->groupMenu(groupName);
    if (!target)
        target = menu;
    if (target)
        QUxDockWindowManagerPrivate::fileAction(target, action, subGroup);

    insertNew(d->docks, title, QPointer<QUxDockWidget>(dock));
    insertNew(d->names, QString::fromUtf8(name), title);
    return dock;
}

bool QUxDockWindowManager::addToolbar(const char* name, const QString& group, QWidget* widget, bool closed, QMenu* menu)
{
    if (!d->enabled) {
        if (widget)
            park(widget);
        return false;
    }
    if (!d->mainWindow) {
        std::puts("Error: Could not add widget. No main window specified!");
        std::fflush(stdout);
        return false;
    }
    const QString title = name ? tr(name) : QString();
    if (!widget || title.isEmpty())
        return false;

    auto* toolbar = new QToolBar(title);
    toolbar->setObjectName(QString::fromUtf8(name) + QStringLiteral("_Toolbar"));
    toolbar->addWidget(widget);
    toolbar->hide();
    toolbar->installEventFilter(this);
    d->mainWindow->addToolBar(Qt::BottomToolBarArea, toolbar);
    if (closed)
        toolbar->close();

    QMenu* target = d->groupMenu(group);
    if (!target)
        target = menu;
    if (target)
        target->addAction(toolbar->toggleViewAction());

    insertNew(d->toolbars, title, QPointer<QToolBar>(toolbar));
    return true;
}

QWidget* QUxDockWindowManager::get(const QString& key) const
{
    if (!d->enabled)
        return d->parked.value(key);
    return d->docks.value(key);
}

QUxDockWidget* QUxDockWindowManager::getDockWidget(const QString& name) const
{
    if (!d->enabled || name.isEmpty())
        return nullptr;
    return d->docks.value(d->titleOf(name));
}

QStringList QUxDockWindowManager::getAllDockWidgets() const { return d->docks.keys(); }

QToolBar* QUxDockWindowManager::getToolbar(const QString& title) const
{
    if (!d->enabled || title.isEmpty())
        return nullptr;
    return d->toolbars.value(title);
}

void QUxDockWindowManager::show(const QString& name)
{
    if (d->enabled)
        show(getDockWidget(name));
}

void QUxDockWindowManager::show(QUxDockWidget* dock)
{
    if (!dock)
        return;
    dock->setVisible(true);
    dock->raise();
}

void QUxDockWindowManager::hide(const QString& name)
{
    if (QUxDockWidget* dock = getDockWidget(name))
        dock->setVisible(false);
}

bool QUxDockWindowManager::undock(const QString& title)
{
    if (!d->enabled || title.isEmpty())
        return false;
    QUxDockWidget* dock = d->docks.value(title);
    if (!dock)
        return false;
    dock->setFloating(true);
    dock->show();
    dock->raise();
    return true;
}

void QUxDockWindowManager::closeAllDocked() { d->closeDocks(true, false); }

void QUxDockWindowManager::closeAllFloating() { d->closeDocks(false, true); }

void QUxDockWindowManager::closeAll() { d->closeDocks(true, true); }

bool QUxDockWindowManager::sub(QWidget* widget)
{
    if (!widget || !d->enabled)
        return false;
    for (auto it = d->docks.begin(); it != d->docks.end(); ++it) {
        if (it.value() && it.value()->widget() == widget) {
            QUxDockWindowManagerPrivate::release(it.value());
            d->docks.erase(it);
            return true;
        }
    }
    return false;
}

bool QUxDockWindowManager::sub(const QString& title)
{
    if (!d->enabled)
        return false;
    const auto it = d->docks.find(title);
    if (it == d->docks.end() || !it.value())
        return false;
    QUxDockWindowManagerPrivate::release(it.value());
    d->docks.erase(it);
    return true;
}

bool QUxDockWindowManager::change(const QString& title, QWidget* widget)
{
    if (!d->enabled || d->docks.isEmpty())
        return false;
    QUxDockWidget* dock = d->docks.value(title);
    if (!dock)
        return false;
    QWidget* previous = dock->widget();
    dock->setWidget(widget);
    if (previous != widget)
        delete previous;
    return true;
}

QUxDockWindowManager::GroupMenus QUxDockWindowManager::createGroupMenus()
{
    if (d->mainWindow) {
        QMenuBar* menuBar = d->mainWindow->menuBar();
        for (const char* group :
             {"Scene", "Animation", "Interaction", "Rendering", "Teamcenter", "PDM", "Scripts", "Various"}) {
            // Parentless like any menu of the bar's own making, but gone with the main window.
            auto* menu = new QUxMenu(tr(group));
            menu->setTearOffEnabled(true);
            connect(d->mainWindow, &QObject::destroyed, menu, [menu] { delete menu; });
            QAction* action = menuBar->addMenu(menu);
            insertNew(d->groupMenus, QString::fromUtf8(group), QUxDockWindowManagerPrivate::GroupMenu{menu, action});
        }
    }
    GroupMenus copy;
    for (auto it = d->groupMenus.cbegin(); it != d->groupMenus.cend(); ++it)
        copy.insert(it.key(), qMakePair(it.value().menu.data(), it.value().action.data()));
    return copy;
}

void QUxDockWindowManager::addGroupMenu(QMenu* menu, const QString& group)
{
    if (menu && d->enabled && d->mainWindow && !d->groupMenus.contains(group))
        d->groupMenus.insert(group, QUxDockWindowManagerPrivate::GroupMenu{menu, menu->menuAction()});
}

void QUxDockWindowManager::addSeparator(const QString& group)
{
    if (!d->enabled)
        return;
    if (QMenu* menu = d->groupMenu(group))
        menu->addSeparator();
}

void QUxDockWindowManager::showMenuItem(const QString& text, const QString& group)
{
    d->setMenuItemVisible(text, group, true);
}

void QUxDockWindowManager::hideMenuItem(const QString& text, const QString& group)
{
    d->setMenuItemVisible(text, group, false);
}

void QUxDockWindowManager::updateMenus()
{
    if (!d->enabled || !d->mainWindow || d->groupMenus.isEmpty())
        return;
    QMenuBar* menuBar = d->mainWindow->menuBar();
    for (auto it = d->groupMenus.cbegin(); it != d->groupMenus.cend(); ++it) {
        const QMenu* menu = it.value().menu;
        const bool keep = menu && !menu->actions().isEmpty() && it.key() != QLatin1String("Various");
        if (!keep && it.value().action)
            menuBar->removeAction(it.value().action);
    }
}

void QUxDockWindowManager::setQuickAccessBar(QUxQuickAccessBar* bar)
{
    if (d->enabled)
        d->bar = bar;
}

QToolBar* QUxDockWindowManager::getQuickAccessBar() const { return d->enabled ? d->bar.data() : nullptr; }

bool QUxDockWindowManager::addQuickAccess(QAction* action)
{
    if (!action || !d->bar)
        return false;
    d->bar->addButton(action, QIcon());
    return true;
}

bool QUxDockWindowManager::addQuickAccess(const char* name, const QString& text1, const QString& text2,
                                          const QIcon& icon)
{
    if (!d->enabled || !d->bar || !name)
        return false;
    const QString key = d->titleOf(QString::fromUtf8(name));
    if (QUxDockWidget* dock = d->docks.value(key)) {
        d->bar->addModule(dock, nullptr, icon, text1, text2, true);
        return true;
    }
    if (QAction* action = d->quickAccessActions.value(key)) {
        d->bar->addSpecial(action);
        return true;
    }
    return false;
}

bool QUxDockWindowManager::addQuickAccessAction(const QString& name, QAction* action)
{
    if (!d->enabled || !action || name.isEmpty())
        return false;
    insertNew(d->quickAccessActions, name, QPointer<QAction>(action));
    return true;
}

void QUxDockWindowManager::clearQuickAccess()
{
    if (d->bar)
        d->bar->clear();
}

void QUxDockWindowManager::addDefaultQuickAccess()
{
    if (!d->enabled)
        return;
    for (const char* name : {"Scenegraph", "Transform", "Material Editor", "Camera Editor", "Curve Editor",
                             "Clip Maker", "Variant Sets", "Render Settings"})
        addQuickAccess(name, QString(), QString(), QIcon());
}

void QUxDockWindowManager::setWindowOpacity(double opacity)
{
    if (!d->enabled || !qIsFinite(opacity))
        return;
    for (const QPointer<QUxDockWidget>& dock : qAsConst(d->docks)) {
        if (dock)
            dock->setWindowOpacity(opacity);
    }
}

void QUxDockWindowManager::setWindowDocking(bool on)
{
    if (!d->enabled)
        return;
    for (const QPointer<QUxDockWidget>& dock : qAsConst(d->docks)) {
        if (dock)
            dock->setAllowedAreas(on ? kDockableAreas : Qt::NoDockWidgetArea);
    }
}

bool QUxDockWindowManager::eventFilter(QObject* watched, QEvent* event)
{
    // The timeline's tool bar offers no right-click menu; the keyboard one stays.
    if (event->type() == QEvent::ContextMenu && watched->objectName() == QLatin1String("TimeLine_Toolbar"))
        return static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Mouse;
    return QObject::eventFilter(watched, event);
}

void QUxDockWindowManager::executeAction(QAction* action)
{
    if (!action || !d->enabled)
        return;
    const QString text = action->text();
    if (text == QLatin1String("Render"))
        return;
    if (text == QLatin1String("Animations")) {
        d->showAnimationTools(this);
        return;
    }
    QUxDockWidget* dock = getDockWidget(text);
    if (!dock)
        return;
    if (action->isChecked()) {
        dock->move(200, 200);
        dock->show();
        dock->raise();
    } else {
        dock->close();
    }
}
