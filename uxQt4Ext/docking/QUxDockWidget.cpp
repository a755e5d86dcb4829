#include "QUxDockWidget.h"

#include "QUxTitleBarGUIW.h"
#include "uxLiveObjects_p.h"

#include <QUxDragModuleLabel.h>
#include <uxIconManager.h>
#include <uxPlatform.h>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMainWindow>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <QStatusBar>
#include <QSvgRenderer>
#include <QToolButton>

#include <cmath>

namespace {

const QString generalImages = QStringLiteral(":/iconmanager/resources/General/");

// Scale factors arrive from the host; a size of at most 4096 keeps the
// conversion defined and the pixmaps allocatable whatever they say.
int scaledSize(int base, double scale)
{
    const double size = base * scale;
    if (!std::isfinite(size))
        return base;
    return int(qBound(1.0, size, 4096.0));
}

QRegion roundedRegion(const QRect& rect, int radius)
{
    const int diameter = 2 * radius;
    QRegion region(rect.adjusted(radius, 0, -radius, 0));
    region += rect.adjusted(0, radius, 0, -radius);
    region += QRegion(rect.left(), rect.top(), diameter, diameter, QRegion::Ellipse);
    region += QRegion(rect.right() + 1 - diameter, rect.top(), diameter, diameter, QRegion::Ellipse);
    region += QRegion(rect.left(), rect.bottom() + 1 - diameter, diameter, diameter, QRegion::Ellipse);
    region += QRegion(rect.right() + 1 - diameter, rect.bottom() + 1 - diameter, diameter, diameter, QRegion::Ellipse);
    return region;
}

struct IconImage
{
    const char* file;
    QIcon::Mode mode;
    QIcon::State state;
};

} // namespace

class QUxDockWidgetPrivate
{
public:
    QPointer<QUxTitleBarGUIW> titleBar;
    QIcon icon;
    QString nickName = QStringLiteral("Dock");
    QString intName;
    bool dockingEnabled = true;
    QString toolclipKey;

    static QPixmap renderPixmap(const QString& path, int width, int height);
    static QIcon buttonIcon(const QString& stem, const QSize& size);
    QPixmap moduleImage(const QSize& size) const;
};

QPixmap QUxDockWidgetPrivate::renderPixmap(const QString& path, int width, int height)
{
    // The images are the host icon module's resources; asking it for one keeps
    // that module (and so its resource tree) loaded with this library.
    static const bool iconModuleLoaded = !uxIconManager::resolve(QStringLiteral("Various/Module.svg")).isEmpty();
    Q_UNUSED(iconModuleLoaded)
    const qreal ratio = qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
    // Every dock shows the same few images: rendering each SVG once per size
    // keeps a host's start-up with hundreds of modules fast.
    const QString key = QStringLiteral("QUxDockWidget:%1:%2x%3@%4").arg(path).arg(width).arg(height).arg(ratio);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    if (!QFile::exists(path))
        return QPixmap();
    pixmap = QPixmap(int(ratio * width), int(ratio * height));
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(QColor(0, 0, 0, 0));
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (QFileInfo(path).suffix().toLower() == QLatin1String("svg")) {
        QSvgRenderer renderer(path);
        renderer.render(&painter, QRectF(pixmap.rect()));
    } else {
        const QImage image = QImage(path).scaled(pixmap.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        painter.drawImage(0, 0, image);
    }
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

// Three images per button: unchecked, checked and disabled.
QIcon QUxDockWidgetPrivate::buttonIcon(const QString& stem, const QSize& size)
{
    const IconImage images[] = {
        {"OffNormal.svg", QIcon::Normal, QIcon::Off}, {"OffNormal.svg", QIcon::Active, QIcon::Off},
        {"OnNormal.svg", QIcon::Normal, QIcon::On},   {"OnNormal.svg", QIcon::Active, QIcon::On},
        {"Disabled.svg", QIcon::Disabled, QIcon::On}, {"Disabled.svg", QIcon::Disabled, QIcon::Off},
    };
    QIcon icon;
    for (const IconImage& image : images) {
        const QString path = generalImages + stem + QLatin1String(image.file);
        icon.addPixmap(renderPixmap(path, size.width(), size.height()), image.mode, image.state);
    }
    return icon;
}

QPixmap QUxDockWidgetPrivate::moduleImage(const QSize& size) const
{
    if (icon.isNull())
        return renderPixmap(QStringLiteral(":/iconmanager/resources/Various/Module.svg"), size.width(), size.height());
    const QSize small(uxPlatform::getSmallIconSizeX(), uxPlatform::getSmallIconSizeY());
    return icon.pixmap(small, QIcon::Normal, QIcon::Off);
}

QUxDockWidget::QUxDockWidget(const QString& title, const QString& name, const QIcon& icon, QWidget* parent,
                             Qt::WindowFlags flags)
    : QDockWidget(title, parent, flags), d(new QUxDockWidgetPrivate)
{
    uxLiveObjects<QUxDockWidget>::add(this);
    setIcon(icon);
    init(title, name);
}

QUxDockWidget::QUxDockWidget(QWidget* parent, Qt::WindowFlags flags)
    : QDockWidget(parent, flags), d(new QUxDockWidgetPrivate)
{
    uxLiveObjects<QUxDockWidget>::add(this);
    init(QString(), QString());
}

QUxDockWidget::~QUxDockWidget()
{
    uxLiveObjects<QUxDockWidget>::remove(this);
    delete d->titleBar.data();
}

void QUxDockWidget::init(const QString& title, const QString& name)
{
    const QSize size(scaledSize(20, uxPlatform::getDpiScaleX()), scaledSize(20, uxPlatform::getDpiScaleY()));
    delete d->titleBar.data(); // a second init replaces the bar

    auto* bar = new QUxTitleBarGUIW(nullptr, title);
    d->titleBar = bar;
    bar->setObjectName(QStringLiteral("DockWidgetTitleBar"));
    bar->titleLabel()->setContentsMargins(8, 0, 0, 0);
    if (!name.isEmpty())
        bar->titleLabel()->setObjectName(name + QLatin1String("_TitleLabel"));
    const QPair<QToolButton*, const char*> buttons[] = {
        {bar->closeButton(), "Close"}, {bar->dockButton(), "DockOnOff"}, {bar->dockingButton(), "EnableDocking"}};
    for (const auto& button : buttons) {
        button.first->setIcon(QUxDockWidgetPrivate::buttonIcon(QLatin1String(button.second), size));
        button.first->setMinimumSize(size);
        button.first->setMaximumSize(size);
        // The images are drawn a little inside the button's frame, so they grow with the display scale too.
        button.first->setIconSize(size * 4 / 5);
    }
    bar->iconLabel()->setPixmap(d->moduleImage(size));
    bar->iconLabel()->setModule(this);
    bar->installEventFilter(this);

    connect(this, SIGNAL(topLevelChanged(bool)), this, SLOT(changedTopLevel(bool)), Qt::UniqueConnection);
    connect(bar->closeButton(), SIGNAL(clicked()), this, SLOT(close()));
    connect(bar->dockButton(), SIGNAL(clicked(void)), this, SLOT(toggleDock(void)));
    connect(bar->dockingButton(), SIGNAL(toggled(bool)), this, SLOT(setDockingEnabled(bool)));
    bar->dockingButton()->setChecked(true);
    setTitleBarWidget(bar);
}

void QUxDockWidget::setIcon(const QIcon& icon)
{
    d->icon = icon;
    setWindowIcon(icon);
    if (d->titleBar) {
        const QSize small(uxPlatform::getSmallIconSizeX(), uxPlatform::getSmallIconSizeY());
        d->titleBar->iconLabel()->setPixmap(icon.pixmap(small, QIcon::Normal, QIcon::Off));
    }
}

QIcon QUxDockWidget::icon() const { return d->icon; }

void QUxDockWidget::setTitle(const QString& title)
{
    setWindowTitle(title);
    if (d->titleBar)
        d->titleBar->titleLabel()->setText(title);
}

void QUxDockWidget::setNickName(const QString& nickName) { d->nickName = nickName; }
QString QUxDockWidget::nickName() const { return d->nickName; }
void QUxDockWidget::setIntName(const QString& name) { d->intName = name; }
const QString& QUxDockWidget::getIntName() const { return d->intName; }
void QUxDockWidget::setToolclipKey(const QString& key) { d->toolclipKey = key; }
QString QUxDockWidget::getToolclipKey() const { return d->toolclipKey; }
bool QUxDockWidget::dockingEnabled() const { return d->dockingEnabled; }
QUxTitleBarGUIW* QUxDockWidget::titleBar() const { return d->titleBar.data(); }

void QUxDockWidget::setDockingEnabled(bool value)
{
    d->dockingEnabled = value;
    setAllowedAreas(value ? Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea | Qt::BottomDockWidgetArea
                          : Qt::NoDockWidgetArea);
    // A host's call keeps the switch, and through the form the dock button, in step.
    if (d->titleBar && d->titleBar->dockingButton()->isChecked() != value)
        d->titleBar->dockingButton()->setChecked(value);
}

void QUxDockWidget::showDockingButtons(bool show)
{
    if (!d->titleBar)
        return;
    d->titleBar->dockButton()->setVisible(show);
    d->titleBar->dockingButton()->setVisible(show);
}

void QUxDockWidget::setFloating(bool floating)
{
    if (!floating && !d->dockingEnabled)
        return;
    QDockWidget::setFloating(floating);
}

void QUxDockWidget::toggleDock() { setFloating(!(windowType() & Qt::Window)); }

void QUxDockWidget::changedTopLevel(bool topLevel)
{
    auto* module = qobject_cast<QMainWindow*>(widget());
    if (!module)
        return;
    // Looked up rather than QMainWindow::statusBar(), which would give a module one it never had.
    if (auto* status = module->findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly))
        status->setVisible(topLevel);
    if (QWidget* central = module->centralWidget())
        central->setContentsMargins(0, topLevel ? 0 : 4, 0, topLevel ? 0 : 4);
}

QByteArray QUxDockWidget::payload(const QUxDockWidget* dock) { return uxLiveObjects<QUxDockWidget>::payload(dock); }

QUxDockWidget* QUxDockWidget::fromPayload(const QByteArray& data)
{
    return uxLiveObjects<QUxDockWidget>::fromPayload(data);
}

bool QUxDockWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick && !d->dockingEnabled
        && watched->objectName() == QLatin1String("DockWidgetTitleBar"))
        return true;
    return QDockWidget::eventFilter(watched, event);
}

void QUxDockWidget::paintEvent(QPaintEvent* event)
{
    QDockWidget::paintEvent(event);
    if (!(windowType() & Qt::Window)) {
        clearMask();
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QBrush(QColor(127, 127, 127, 255)), 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRoundedRect(QRectF(0, 0, width(), height()), 4.0, 4.0, Qt::AbsoluteSize);
    const QRegion region = roundedRegion(rect(), 4);
    setMask(region);
    painter.setClipRegion(region, Qt::ReplaceClip);
}
