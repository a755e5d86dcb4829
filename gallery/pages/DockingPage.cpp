#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxAction.h>
#include <QUxAnimatedMenu.h>
#include <QUxClickableLabel.h>
#include <QUxDockWidget.h>
#include <QUxElidedLabel.h>
#include <QUxFileDropLineEdit.h>
#include <QUxOpenMenu.h>
#include <QUxPushButton.h>
#include <QUxSAMenu.h>
#include <QUxScrollableMessageBox.h>
#include <QUxToolBar.h>
#include <QUxToolButton.h>
#include <uxIconManager.h>
#include <uxPlatform.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

namespace {

/// The host's image at the current display scale, sharp at tool bar size.
QIcon icon(const char* name)
{
    return uxIconManager::getIcon(name, uxPlatform::getMediumIconSizeX(), uxPlatform::getMediumIconSizeY(), "");
}

/// Records which button released last, as a host does before a push button handles the click.
class ReleaseRecorder : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease)
            QUxPushButton::setLastMouseReleaseButton(static_cast<QMouseEvent*>(event)->button());
        return QObject::eventFilter(watched, event);
    }
};

/// A module that is a main window of its own: its status bar shows only while it floats.
QMainWindow* sceneModule(QWidget* parent)
{
    auto* module = new QMainWindow(parent);
    module->setWindowFlags(Qt::Widget);
    auto* list = new QListWidget(module);
    for (const char* name : {"Chassis", "Front axle", "Rear axle", "Cabin", "Wheel FL", "Wheel FR", "Wheel RL",
                             "Wheel RR", "Headlights", "Mirrors"})
        list->addItem(QCoreApplication::translate("DockingPage", name));
    module->setCentralWidget(list);
    module->statusBar()->showMessage(QCoreApplication::translate("DockingPage", "10 parts"));
    return module;
}

QListWidget* listModule(const QStringList& entries, QWidget* parent)
{
    auto* list = new QListWidget(parent);
    list->addItems(entries);
    return list;
}

class DockingPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(DockingPage)

public:
    DockingPage()
    {
        m_log = new GalleryLog(this);
        m_log->setMaximumWidth(280);
        m_window = new QMainWindow(this);
        m_window->setWindowFlags(Qt::Widget);
        m_window->setDockOptions(QMainWindow::AnimatedDocks | QMainWindow::AllowTabbedDocks);
        m_window->setCentralWidget(labelsPanel());

        addModules();
        addToolBar();
        addMenus();

        auto* textSwitch = new QCheckBox(tr("Show button text"), this);
        connect(textSwitch, &QCheckBox::toggled, this, [this](bool on) {
            QUxToolBar::showButtonText(on);
            QUxToolButton::showButtonText(on);
            QUxAction::showIconText(on);
            m_log->log(QStringLiteral("showButtonText(%1)").arg(on ? "true" : "false"));
        });
        auto* hint = new QLabel(tr("Drag a title bar out to float a module; its first title button forbids docking "
                                   "back. Drag a module icon from a title bar; open Modules and type to search."),
                                this);
        hint->setWordWrap(true);

        auto* left = new QVBoxLayout;
        left->addWidget(m_window, 1);
        auto* bottom = new QHBoxLayout;
        bottom->addWidget(textSwitch);
        bottom->addWidget(hint, 1);
        left->addLayout(bottom);
        auto* page = new QHBoxLayout(this);
        page->addLayout(left, 1);
        page->addWidget(m_log);
    }

private:
    void addModules()
    {
        auto* scene = new QUxDockWidget(tr("Scene"), QStringLiteral("Scene"), icon("General/ListView.svg"), m_window);
        scene->setWidget(sceneModule(scene));
        auto* materials =
            new QUxDockWidget(tr("Materials"), QStringLiteral("Materials"), icon("General/GridView.svg"), m_window);
        materials->setWidget(listModule(
            {tr("Brushed steel"), tr("Car paint, red"), tr("Glass"), tr("Rubber"), tr("Chrome")}, materials));
        auto* notes = new QUxDockWidget(tr("Review notes"), QStringLiteral("Notes"), QIcon(), m_window);
        notes->setWidget(listModule({tr("Check the mirror gap"), tr("Wheel arch too tight")}, notes));
        m_window->addDockWidget(Qt::LeftDockWidgetArea, scene);
        m_window->addDockWidget(Qt::RightDockWidgetArea, materials);
        m_window->addDockWidget(Qt::BottomDockWidgetArea, notes);
        for (QUxDockWidget* dock : {scene, materials, notes}) {
            dock->setNickName(dock->windowTitle());
            dock->show();
            m_docks << dock;
            connect(dock, &QDockWidget::topLevelChanged, m_log, [this, dock](bool floating) {
                m_log->log(QStringLiteral("%1: topLevelChanged(%2)")
                               .arg(dock->getIntName(), floating ? QStringLiteral("true") : QStringLiteral("false")));
            });
        }
    }

    void addToolBar()
    {
        auto* bar = new QUxToolBar(tr("Review"), m_window);
        bar->setObjectName(QStringLiteral("ReviewToolBar"));
        bar->setIconSize(QSize(uxPlatform::getMediumIconSizeX(), uxPlatform::getMediumIconSizeY()));
        const std::pair<const char*, const char*> actions[] = {{"General/Search.svg", "Find"},
                                                               {"General/GridView.svg", "Grid"},
                                                               {"General/ListView.svg", "List"},
                                                               {"General/LockOffNormal.svg", "Lock"},
                                                               {"General/UnlockOffNormal.svg", "Unlock"}};
        for (const auto& [image, text] : actions) {
            auto* action = new QUxAction(icon(image), tr(text), bar);
            bar->addAction(action);
            connect(action, &QAction::triggered, m_log,
                    [this, action] { m_log->log(QStringLiteral("triggered(%1)").arg(action->text())); });
        }
        auto* layouts = new QUxToolButton(bar);
        layouts->setIcon(icon("Various/Module.svg"));
        layouts->setText(tr("Layouts"));
        layouts->setPopupMode(QToolButton::InstantPopup);
        auto* menu = new QUxAnimatedMenu(tr("Layouts"), layouts);
        for (const char* name : {"Review", "Modelling", "Presentation"})
            menu->addAction(tr(name));
        layouts->setMenu(menu);
        bar->addWidget(layouts);
        m_window->addToolBar(bar);
    }

    void addMenus()
    {
        auto* modules = new QUxSAMenu(tr("Modules"), m_window);
        for (QUxDockWidget* dock : m_docks)
            modules->addAction(dock->toggleViewAction());
        modules->addSeparator();
        for (const char* name : {"Annotations", "Cameras", "Clipping planes", "Colour grading", "Environment",
                                 "Explode view", "Lights", "Measurements", "Render settings", "Sections", "Snapshots",
                                 "Textures", "Turntable", "Variants", "Viewpoints"})
            modules->addAction(tr(name));
        connect(modules, &QMenu::triggered, m_log,
                [this](QAction* action) { m_log->log(QStringLiteral("Modules: %1").arg(action->text())); });

        auto* view = new QUxAnimatedMenu(tr("View"), m_window);
        for (const char* name : {"Fit all", "Front", "Top", "Isometric"})
            view->addAction(tr(name));

        auto* options = new QUxOpenMenu(tr("Options"), m_window);
        for (const char* name : {"Shadows", "Reflections", "Edges", "Grid"}) {
            QAction* option = options->addAction(tr(name));
            option->setCheckable(true);
        }
        connect(options, &QMenu::triggered, m_log, [this](QAction* action) {
            m_log->log(QStringLiteral("Options: %1 %2").arg(action->text(), action->isChecked() ? "on" : "off"));
        });

        m_window->menuBar()->addMenu(modules);
        m_window->menuBar()->addMenu(view);
        m_window->menuBar()->addMenu(options);
    }

    QWidget* labelsPanel()
    {
        auto* panel = new QGroupBox(tr("Labels and inputs"));
        auto* form = new QFormLayout(panel);

        auto* path = new QUxElidedLabel(
            QStringLiteral("/projects/trucks/2026/review/assemblies/chassis/rear-axle/final-v12.scene"), panel);
        path->setElideMode(Qt::ElideMiddle);
        auto* mode = new QComboBox(panel);
        mode->addItems({tr("Left"), tr("Right"), tr("Middle"), tr("None")});
        mode->setCurrentIndex(Qt::ElideMiddle);
        connect(mode, qOverload<int>(&QComboBox::currentIndexChanged), path,
                [path](int index) { path->setElideMode(Qt::TextElideMode(index)); });
        auto* pathRow = new QHBoxLayout;
        pathRow->addWidget(path, 1);
        pathRow->addWidget(mode);
        form->addRow(tr("Elided path:"), pathRow);

        auto* clickable = new QUxClickableLabel(panel);
        clickable->setText(tr("Press me with any button"));
        connect(clickable, &QUxClickableLabel::clicked, m_log, [this, clickable] {
            clickable->setText(tr("Pressed %n time(s)", nullptr, ++m_presses));
            m_log->log(QStringLiteral("clicked()"));
        });
        form->addRow(tr("Clickable label:"), clickable);

        auto* drop = new QUxFileDropLineEdit(panel);
        drop->setPlaceholderText(tr("Drop a file from the desktop here"));
        connect(drop, &QUxFileDropLineEdit::fileDropped, drop, [this, drop](const QString& file) {
            drop->setText(file);
            m_log->log(QStringLiteral("fileDropped(%1)").arg(file));
        });
        form->addRow(tr("File:"), drop);

        auto* push = new QUxPushButton(panel);
        push->setText(tr("Left- or right-click"));
        push->installEventFilter(new ReleaseRecorder(push));
        connect(push, &QPushButton::clicked, m_log, [this] {
            const bool right = QUxPushButton::getLastMouseReleaseButton() == Qt::RightButton;
            m_log->log(QStringLiteral("clicked() by the %1 button").arg(right ? "right" : "left"));
        });
        form->addRow(tr("Push button:"), push);

        auto* notes = new QPushButton(tr("Show the review log..."), panel);
        connect(notes, &QPushButton::clicked, this, [this] { showLongMessage(); });
        form->addRow(tr("Message box:"), notes);
        return panel;
    }

    void showLongMessage()
    {
        QStringList lines;
        for (int i = 1; i <= 120; ++i)
            lines << tr("%1. Part %2 checked against drawing R-%3: gap %4 mm, within tolerance.")
                         .arg(i)
                         .arg(1000 + 7 * i)
                         .arg(400 + i)
                         .arg(0.1 * (i % 9), 0, 'f', 1);
        auto* box = new QUxScrollableMessageBox(QMessageBox::Information, tr("Review log"), lines.join('\n'),
                                                QMessageBox::Ok, this, Qt::Dialog);
        box->makeScrollable();
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
        m_log->log(QStringLiteral("makeScrollable()"));
    }

    GalleryLog* m_log = nullptr;
    QMainWindow* m_window = nullptr;
    QList<QUxDockWidget*> m_docks;
    int m_presses = 0;
};

/// The page as a display at 150% scale builds it: larger title buttons and tool buttons.
QWidget* scaledDockingPage()
{
    const double x = uxPlatform::getDpiScaleX();
    const double y = uxPlatform::getDpiScaleY();
    uxPlatform::setDpiScale(1.5, 1.5);
    QWidget* page = new DockingPage;
    uxPlatform::setDpiScale(x, y);
    return page;
}

} // namespace

UX_GALLERY_PAGE(60, "Docking", "docking", [] { return new DockingPage; });
UX_GALLERY_PAGE(61, "Docking at 150%", "docking-150", scaledDockingPage);
