#include "GalleryPage.h"

#include <algorithm>

namespace {
QVector<GalleryPage>& registry()
{
    static QVector<GalleryPage> pages;
    return pages;
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
