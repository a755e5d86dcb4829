#include "GalleryPage.h"

#include <QLocale>

#include <algorithm>

namespace {
QVector<GalleryPage>& registry()
{
    static QVector<GalleryPage> pages;
    return pages;
}

QVector<GalleryShot>& shots()
{
    static QVector<GalleryShot> all;
    return all;
}
} // namespace

bool GalleryPages::add(int order, const QString& title, const QString& fileName, std::function<QWidget*()> create)
{
    registry().append(GalleryPage{order, title, fileName, std::move(create)});
    return true;
}

QVector<GalleryPage> GalleryPages::all()
{
    QVector<GalleryPage> pages = registry();
    std::stable_sort(pages.begin(), pages.end(),
                     [](const GalleryPage& a, const GalleryPage& b) { return a.order < b.order; });
    return pages;
}

bool GalleryPages::addShot(const QString& pageFileName, const QString& fileName, std::function<QImage(QWidget*)> take)
{
    shots().append(GalleryShot{pageFileName, fileName, std::move(take)});
    return true;
}

QVector<GalleryShot> GalleryPages::shotsOf(const QString& pageFileName)
{
    QVector<GalleryShot> found;
    for (const GalleryShot& shot : qAsConst(shots()))
        if (shot.pageFileName == pageFileName)
            found << shot;
    return found;
}

QString fixedNumber(double value, int decimals) { return QLocale::c().toString(value, 'f', decimals); }
