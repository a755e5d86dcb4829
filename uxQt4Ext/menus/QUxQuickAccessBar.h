#pragma once

#include "uxQt4ExtGlobal.h"

#include <QUxToolBar.h>

#include <QIcon>
#include <QString>

#include <memory>
#include <vector>

class QUxDockWidget;
class QUxQuickAccessBarPrivate;
class QUxQuickAccessButton;

/**
 * The bottom bar of the host's main window, holding one checkable button per
 * module, centred between two spacers. Module icons dropped on it are added
 * at the end; in edit mode (a long press on any button) its buttons can be
 * removed by their badge or dragged to a new place, and "Done" ends editing.
 * Every change is reported by a signal; moduleNames() is what a host saves
 * to rebuild the bar.
 * @code
 * auto* bar = new QUxQuickAccessBar(tr("Quick access"), mainWindow);
 * bar->setObjectName("QuickActionBar");
 * mainWindow->addToolBar(Qt::BottomToolBarArea, bar);
 * bar->addModule(materialsDock, nullptr, QIcon(), QString(), QString(), false);
 * connect(bar, &QUxQuickAccessBar::orderChanged, host, &Host::saveQuickAccess);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxQuickAccessBar : public QUxToolBar
{
    Q_OBJECT

public:
    explicit QUxQuickAccessBar(QWidget* parent = nullptr);
    explicit QUxQuickAccessBar(const QString& title, QWidget* parent = nullptr);
    ~QUxQuickAccessBar() override;

    /// Adds a button for @p widget before @p before (null: after the other buttons); one button per dock.
    void addModule(QUxDockWidget* widget, QAction* before, const QIcon& icon, const QString& name,
                   const QString& toolTip, bool unused);
    void addButton(QAction* action, const QIcon& icon);
    void addSpecial(QAction* action);
    /// Removes every module and plain button; special actions stay.
    virtual void clear();
    /// Internal names of the module buttons (and "Title" per plain button), in the bar's order.
    std::vector<QString> moduleNames() const;

signals:
    void moduleAdded();
    void moduleRemoved();
    void moduleDropped();
    void orderChanged();

private slots:
    void removeModule(QUxQuickAccessButton* button);
    void finishEditing();
    void editingMode();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void init();
    void calculateHighlightPosition(int x);
    QAction* calculateNextAction() const;
    void updateButtonStates();
    /// A button of this bar is being destroyed while still a whole widget.
    void buttonDestroyed(QUxQuickAccessButton* button);

    friend class QUxQuickAccessButton;

    std::unique_ptr<QUxQuickAccessBarPrivate> const d;
};
