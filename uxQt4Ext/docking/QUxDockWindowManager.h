#pragma once

#include "uxQt4ExtGlobal.h"

#include <QIcon>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>
#include <QStringList>

#include <memory>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QUxDockWidget;
class QUxDockWindowManagerPrivate;
class QUxQuickAccessBar;

/**
 * The registry of a main window's module windows. Each module is handed over
 * by name; the manager wraps it in a QUxDockWidget, docks or floats it, files
 * its show/hide action into a group menu of the menu bar and can put it on a
 * quick access bar. Later calls address modules by name (untranslated) or by
 * title (translated); while the manager is switched off, widgets handed to it
 * are parked invisibly and every other call does nothing.
 * @code
 * auto* manager = new QUxDockWindowManager(mainWindow);
 * manager->createGroupMenus();
 * manager->setQuickAccessBar(bar);
 * manager->add("Material Editor", "Rendering/Shading", new MaterialEditor, "materialEditor", materialIcon);
 * manager->addQuickAccess("Material Editor", QString(), QString(), QIcon());
 * manager->updateMenus();
 * manager->show("Material Editor");
 * @endcode
 * Docks are named after their module (name + "_Dock") and tool bars after
 * theirs (name + "_Toolbar"), so QMainWindow::saveState() and restoreState()
 * bring a user's layout back. Outside the four dock areas and 0 (floating),
 * an area is taken as the right one. The manager holds its main window
 * weakly: once that is gone it behaves as if it had none.
 */
class UXQT4EXT_EXPORT QUxDockWindowManager : public QObject
{
    Q_OBJECT

public:
    using GroupMenus = QMap<QString, QPair<QMenu*, QAction*>>;

    explicit QUxDockWindowManager(QMainWindow* mainWindow);
    ~QUxDockWindowManager() override;

    /// The most recently constructed manager that is still alive, else null.
    static QUxDockWindowManager* the();

    void setEnabled(bool enabled);
    bool isEnabled() const;

    QUxDockWidget* add(const char* name, const QString& group, QWidget* widget, const QString& toolclipKey = QString(),
                       const QIcon& icon = QIcon(), const QString& nickName = QString(),
                       Qt::DockWidgetArea area = Qt::RightDockWidgetArea, bool closed = false, QMenu* menu = nullptr);
    bool addToolbar(const char* name, const QString& group, QWidget* widget, bool closed = false,
                    QMenu* menu = nullptr);

    /// By title while enabled (the dock), by name while disabled (the parked widget).
    QWidget* get(const QString& key) const;
    QUxDockWidget* getDockWidget(const QString& name) const;
    QStringList getAllDockWidgets() const;
    QToolBar* getToolbar(const QString& title) const;

    void show(const QString& name);
    void show(QUxDockWidget* dock);
    void hide(const QString& name);
    bool undock(const QString& title);
    void closeAllDocked();
    void closeAllFloating();
    void closeAll();

    /// Takes a module out; its content widget is handed back parentless and hidden.
    bool sub(QWidget* widget);
    bool sub(const QString& title);
    /// Replaces a module's content and deletes the previous one.
    bool change(const QString& title, QWidget* widget);

    GroupMenus createGroupMenus();
    void addGroupMenu(QMenu* menu, const QString& group);
    void addSeparator(const QString& group);
    void showMenuItem(const QString& text, const QString& group);
    void hideMenuItem(const QString& text, const QString& group);
    /// Takes empty group menus and "Various" off the menu bar.
    void updateMenus();

    void setQuickAccessBar(QUxQuickAccessBar* bar);
    QToolBar* getQuickAccessBar() const;
    bool addQuickAccess(QAction* action);
    bool addQuickAccess(const char* name, const QString& text1, const QString& text2, const QIcon& icon);
    bool addQuickAccessAction(const QString& name, QAction* action);
    void clearQuickAccess();
    void addDefaultQuickAccess();

    void setWindowOpacity(double opacity);
    void setWindowDocking(bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void executeAction(QAction* action);

private:
    std::unique_ptr<QUxDockWindowManagerPrivate> const d;
};
