#include "GalleryWindow.h"

#include "GalleryPage.h"

#include <QUxAction.h>
#include <QUxDockWidget.h>
#include <QUxDockWindowManager.h>
#include <QUxQuickAccessBar.h>
#include <QUxSAMenu.h>
#include <QUxToolBar.h>
#include <QUxToolButton.h>
#include <uxIconManager.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QMenuBar>
#include <QScrollArea>
#include <QSettings>

namespace {

/// Where each page is filed among the host's group menus ("group/sub-group").
QString groupOf(const QString& fileName)
{
    static const QHash<QString, QString> groups{
        {QStringLiteral("values"), QStringLiteral("Rendering/Colour")},
        {QStringLiteral("colour"), QStringLiteral("Rendering/Colour")},
        {QStringLiteral("numeric"), QStringLiteral("Interaction/Fields")},
        {QStringLiteral("vectors"), QStringLiteral("Interaction/Fields")},
        {QStringLiteral("curves"), QStringLiteral("Animation")},
        {QStringLiteral("itemviews"), QStringLiteral("Scene")},
        {QStringLiteral("docking"), QStringLiteral("Interaction/Windows")},
        {QStringLiteral("docking-150"), QStringLiteral("Interaction/Windows")},
        {QStringLiteral("layout"), QStringLiteral("Interaction/Windows")},
        {QStringLiteral("search-progress"), QStringLiteral("Interaction/Fields")},
        {QStringLiteral("panels"), QStringLiteral("Rendering/Materials")},
    };
    return groups.value(fileName, QStringLiteral("Scene"));
}

QIcon pageIcon(int index)
{
    static const char* const images[] = {"General/GridView.svg", "General/ListView.svg", "General/Search.svg",
                                         "General/LockOffNormal.svg", "Various/Module.svg"};
    return uxIconManager::getIcon(images[index % 5], 32, 32, "");
}

const QString settingsLayout = QStringLiteral("layout");
const QString settingsQuickAccess = QStringLiteral("quickAccess");

} // namespace

GalleryWindow::GalleryWindow(bool keepLayout, QWidget* parent)
    : QMainWindow(parent), m_manager(new QUxDockWindowManager(this)), m_keepLayout(keepLayout)
{
    m_manager->setParent(this); // made parentless, like a host's; lives as long as the window
    setWindowTitle(tr("uxQt4Ext Gallery"));
    setObjectName(QStringLiteral("GalleryWindow"));
    setDockOptions(AnimatedDocks | AllowTabbedDocks | AllowNestedDocks);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    m_manager->createGroupMenus();
    m_bar = new QUxQuickAccessBar(tr("Quick access"), this);
    m_bar->setObjectName(QStringLiteral("QuickActionBar"));
    addToolBar(Qt::BottomToolBarArea, m_bar);
    m_manager->setQuickAccessBar(m_bar);

    addPages();
    addMenus();
    addGalleryToolBar();
    fillQuickAccess(m_names);
    resize(1180, 860);
    m_defaultLayout = saveState();
    if (m_keepLayout)
        restoreLayout();
    if (!m_docks.isEmpty())
        m_docks.first()->raise();
}

void GalleryWindow::addPages()
{
    const QVector<GalleryPage> pages = GalleryPages::all();
    for (int i = 0; i < pages.size(); ++i) {
        const GalleryPage& page = pages.at(i);
        auto* scroll = new QScrollArea;
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidget(page.create());
        const QByteArray name = page.title.toUtf8();
        QUxDockWidget* dock = m_manager->add(name.constData(), groupOf(page.fileName), scroll, page.fileName,
                                             pageIcon(i), page.title, Qt::LeftDockWidgetArea, false, nullptr);
        if (!dock)
            continue;
        if (!m_docks.isEmpty())
            tabifyDockWidget(m_docks.first(), dock);
        dock->show();
        m_docks << dock;
        m_names << page.title;
        m_fileNames << page.fileName;
    }
}

void GalleryWindow::addMenus()
{
    // Filed by group as the manager does; a search menu finds any page by a part of its name.
    auto* pages = new QUxSAMenu(tr("Pages"), this);
    for (const QString& name : qAsConst(m_names)) {
        QAction* open = pages->addAction(name);
        connect(open, &QAction::triggered, this, [this, name] { m_manager->show(name); });
    }
    menuBar()->addMenu(pages);
    m_manager->updateMenus();
}

void GalleryWindow::addGalleryToolBar()
{
    auto* bar = new QUxToolBar(tr("Gallery"), this);
    bar->setObjectName(QStringLiteral("GalleryToolBar"));
    auto* text = new QUxAction(uxIconManager::getIcon("General/ListView.svg", 32, 32, ""), tr("Text"), bar);
    text->setToolTip(tr("Show tool button text"));
    text->setCheckable(true);
    connect(text, &QAction::toggled, this, [](bool on) {
        QUxToolBar::showButtonText(on);
        QUxToolButton::showButtonText(on);
        QUxAction::showIconText(on);
    });
    auto* undock = new QUxAction(uxIconManager::getIcon("Various/Module.svg", 32, 32, ""), tr("Float"), bar);
    undock->setToolTip(tr("Float the page in front"));
    connect(undock, &QAction::triggered, this, [this] {
        for (QUxDockWidget* dock : qAsConst(m_docks))
            if (!dock->visibleRegion().isEmpty() && !dock->isFloating()) {
                m_manager->undock(dock->windowTitle());
                return;
            }
    });
    auto* reset = new QUxAction(uxIconManager::getIcon("General/GridView.svg", 32, 32, ""), tr("Reset"), bar);
    reset->setToolTip(tr("Put every page and the quick access bar back as they were at first start"));
    connect(reset, &QAction::triggered, this, [this] {
        restoreState(m_defaultLayout);
        for (QUxDockWidget* dock : qAsConst(m_docks))
            dock->setDockingEnabled(true);
        fillQuickAccess(m_names);
    });
    for (QAction* action : {static_cast<QAction*>(text), static_cast<QAction*>(undock), static_cast<QAction*>(reset)})
        bar->addAction(action);
    addToolBar(Qt::TopToolBarArea, bar);
}

void GalleryWindow::fillQuickAccess(const QStringList& names)
{
    m_manager->clearQuickAccess();
    for (const QString& name : names) {
        const QByteArray utf8 = name.toUtf8();
        m_manager->addQuickAccess(utf8.constData(), QString(), QString(), QIcon()); // unknown names are skipped
    }
}

void GalleryWindow::restoreLayout()
{
    const QSettings settings;
    const QStringList saved = settings.value(settingsQuickAccess).toStringList();
    if (!saved.isEmpty())
        fillQuickAccess(saved);
    restoreState(settings.value(settingsLayout).toByteArray());
}

void GalleryWindow::saveLayout() const
{
    QSettings settings;
    settings.setValue(settingsLayout, saveState());
    QStringList names;
    for (const QString& name : m_bar->moduleNames())
        names << name;
    settings.setValue(settingsQuickAccess, names);
}

void GalleryWindow::closeEvent(QCloseEvent* event)
{
    if (m_keepLayout)
        saveLayout();
    QMainWindow::closeEvent(event);
}

QStringList GalleryWindow::saveScreenshots(const QString& directory)
{
    QDir().mkpath(directory);
    QStringList written;
    for (int i = 0; i < m_docks.size(); ++i) {
        QUxDockWidget* dock = m_docks.at(i);
        dock->show();
        dock->raise();
        QApplication::processEvents();
        const QString path = QDir(directory).filePath(m_fileNames.at(i) + QStringLiteral(".png"));
        if (dock->widget()->grab().save(path))
            written << path;
        auto* scroll = qobject_cast<QScrollArea*>(dock->widget());
        for (const GalleryShot& shot : GalleryPages::shotsOf(m_fileNames.at(i))) {
            const QString extra = QDir(directory).filePath(shot.fileName + QStringLiteral(".png"));
            if (scroll && shot.take(scroll->widget()).save(extra))
                written << extra;
        }
    }
    if (!m_docks.isEmpty()) {
        m_docks.first()->raise();
        QApplication::processEvents();
    }
    const QString whole = QDir(directory).filePath(QStringLiteral("gallery.png"));
    if (grab().save(whole))
        written << whole;
    return written;
}
