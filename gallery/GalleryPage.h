#pragma once

#include <QImage>
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

/// @p value with @p decimals fixed decimals, in the C locale, as every page shows numbers.
QString fixedNumber(double value, int decimals = 2);

/// A further screenshot of a page in some state its own PNG cannot show (an open dialog, say).
struct GalleryShot
{
    QString pageFileName; ///< the page it belongs to
    QString fileName;     ///< base name of this screenshot
    std::function<QImage(QWidget* page)> take;
};

/// Pages register themselves from their own source file (UX_GALLERY_PAGE, UX_GALLERY_SHOT).
class GalleryPages
{
public:
    static bool add(int order, const QString& title, const QString& fileName, std::function<QWidget*()> create);
    static QVector<GalleryPage> all();
    static bool addShot(const QString& pageFileName, const QString& fileName, std::function<QImage(QWidget*)> take);
    static QVector<GalleryShot> shotsOf(const QString& pageFileName);
};

#define UX_GALLERY_PAGE_CONCAT2(a, b) a##b
#define UX_GALLERY_PAGE_CONCAT(a, b) UX_GALLERY_PAGE_CONCAT2(a, b)
/// Registers a page; @p factory is a callable returning a new QWidget*.
#define UX_GALLERY_PAGE(order, title, fileName, factory)                                                               \
    static const bool UX_GALLERY_PAGE_CONCAT(s_galleryPage, __LINE__) =                                                \
        GalleryPages::add(order, QStringLiteral(title), QStringLiteral(fileName), factory)

/// Registers a further screenshot of page @p pageFileName; @p take gets the page widget and returns the image.
#define UX_GALLERY_SHOT(pageFileName, fileName, take)                                                                  \
    static const bool UX_GALLERY_PAGE_CONCAT(s_galleryShot, __LINE__) =                                                \
        GalleryPages::addShot(QStringLiteral(pageFileName), QStringLiteral(fileName), take)
