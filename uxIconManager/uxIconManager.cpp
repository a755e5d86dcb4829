#include "uxIconManager.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

const QString& iconRoot()
{
    static const QString root = QStringLiteral(":/iconmanager/resources/");
    return root;
}

QString findInFolders(const QString& fileName)
{
    const QDir root(iconRoot());
    for (const QString& folder : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString candidate = iconRoot() + folder + QLatin1Char('/') + fileName;
        if (QFileInfo::exists(candidate))
            return candidate;
    }
    return QString();
}

QPixmap renderSvg(const QString& path, int width, int height)
{
    if (path.isEmpty() || width <= 0 || height <= 0)
        return QPixmap();
    QSvgRenderer renderer(path);
    if (!renderer.isValid())
        return QPixmap();
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return QPixmap::fromImage(image);
}

QIcon iconFromPaths(const QString& normal, const QString& checked, const QSize& size)
{
    if (normal.isEmpty())
        return QIcon();
    QIcon icon;
    if (size.isValid()) {
        icon.addPixmap(renderSvg(normal, size.width(), size.height()), QIcon::Normal, QIcon::Off);
        if (!checked.isEmpty())
            icon.addPixmap(renderSvg(checked, size.width(), size.height()), QIcon::Normal, QIcon::On);
    } else {
        icon.addFile(normal, QSize(), QIcon::Normal, QIcon::Off);
        if (!checked.isEmpty())
            icon.addFile(checked, QSize(), QIcon::Normal, QIcon::On);
    }
    return icon;
}

} // namespace

QString uxIconManager::resolve(const QString& name)
{
    if (name.isEmpty())
        return QString();
    static QHash<QString, QString> cache;
    const auto hit = cache.constFind(name);
    if (hit != cache.constEnd())
        return *hit;

    QString relative = name;
    if (relative.startsWith(iconRoot()))
        relative = relative.mid(iconRoot().size());
    if (!relative.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        relative += QLatin1String(".svg");

    QString path = iconRoot() + relative;
    if (!QFileInfo::exists(path))
        path = relative.contains(QLatin1Char('/')) ? QString() : findInFolders(relative);
    cache.insert(name, path);
    return path;
}

QIcon uxIconManager::getIcon(const std::string& name, const std::string& secondName)
{
    return iconFromPaths(resolve(QString::fromStdString(name)), resolve(QString::fromStdString(secondName)), QSize());
}

QIcon uxIconManager::getIcon(const std::string& name, int width, int height, const std::string& secondName)
{
    return iconFromPaths(resolve(QString::fromStdString(name)), resolve(QString::fromStdString(secondName)),
                         QSize(width, height));
}

QPixmap uxIconManager::get(const char* name)
{
    if (!name)
        return QPixmap();
    const QString path = resolve(QString::fromUtf8(name));
    if (path.isEmpty())
        return QPixmap();
    // Tool bars ask for the same image on every button they add.
    const QString key = QStringLiteral("uxIconManager:") + path;
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    QSvgRenderer renderer(path);
    const QSize size = renderer.isValid() ? renderer.defaultSize() : QSize();
    pixmap = renderSvg(path, size.width(), size.height());
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QPixmap uxIconManager::renderPixmap(const QString& name, int width, int height)
{
    return renderSvg(resolve(name), width, height);
}
