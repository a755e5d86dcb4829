#pragma once

#include <QString>
#include <QVector>

#include <functional>

class QWidget;

/// One page of the gallery: its place in the list, its title and how to build it.
struct GalleryPage
{
    int order = 0;
    QString title;
    QString fileName; ///< base name of the page's screenshot
    std::function<QWidget*()> create;
};

/// Pages register themselves from their own source file (UX_GALLERY_PAGE).
class GalleryPages
{
public:
    static bool add(int order, const QString& title, const QString& fileName, std::function<QWidget*()> create);
    static QVector<GalleryPage> all();
};

#define UX_GALLERY_PAGE_CONCAT2(a, b) a##b
#define UX_GALLERY_PAGE_CONCAT(a, b) UX_GALLERY_PAGE_CONCAT2(a, b)
/// Registers a page; @p factory is a callable returning a new QWidget*.
#define UX_GALLERY_PAGE(order, title, fileName, factory)                                                               \
    static const bool UX_GALLERY_PAGE_CONCAT(s_galleryPage, __LINE__) =                                                \
        GalleryPages::add(order, QStringLiteral(title), QStringLiteral(fileName), factory)
