#include "QUxFlowLayout.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <limits>

class QUxFlowLayoutPrivate
{
public:
    QList<QLayoutItem*> items;
    int hSpace = -1;
    int vSpace = -1;
    // Last heightForWidth answer; a width of -1 means none is held.
    mutable int cachedWidth = -1;
    mutable int cachedHeight = 0;
};

namespace {

constexpr qint64 kIntMax = std::numeric_limits<int>::max();

/// @p value as an int that leaves room for @p extent more without overflow.
int clampToInt(qint64 value, int extent = 0) { return int(std::clamp<qint64>(value, -kIntMax, kIntMax - extent)); }

/// The gap the item's own style asks for between two push buttons; never negative.
int styleGap(QLayoutItem* item, const QWidget* parent, Qt::Orientation orientation)
{
    const QWidget* widget = item->widget() ? item->widget() : parent;
    const QStyle* style = widget ? widget->style() : QApplication::style();
    if (!style)
        return 0;
    return std::max(
        0, style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation, nullptr, widget));
}

} // namespace

QUxFlowLayout::QUxFlowLayout(QWidget* parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent), d(std::make_unique<QUxFlowLayoutPrivate>())
{
    d->hSpace = hSpacing;
    d->vSpace = vSpacing;
    setContentsMargins(margin, margin, margin, margin);
}

QUxFlowLayout::QUxFlowLayout(int margin, int hSpacing, int vSpacing)
    : QUxFlowLayout(nullptr, margin, hSpacing, vSpacing)
{}

QUxFlowLayout::~QUxFlowLayout() { qDeleteAll(d->items); }

void QUxFlowLayout::addItem(QLayoutItem* item)
{
    if (!item)
        return;
    d->items.append(item);
    invalidate();
}

int QUxFlowLayout::count() const { return d->items.size(); }

QLayoutItem* QUxFlowLayout::itemAt(int index) const { return d->items.value(index, nullptr); }

QLayoutItem* QUxFlowLayout::takeAt(int index)
{
    if (index < 0 || index >= d->items.size())
        return nullptr;
    QLayoutItem* item = d->items.takeAt(index);
    invalidate();
    return item;
}

Qt::Orientations QUxFlowLayout::expandingDirections() const { return {}; }

bool QUxFlowLayout::hasHeightForWidth() const { return true; }

int QUxFlowLayout::heightForWidth(int width) const
{
    if (width != d->cachedWidth || d->cachedWidth < 0) {
        d->cachedHeight = doLayout(QRect(0, 0, std::max(0, width), 0), true);
        d->cachedWidth = width;
    }
    return d->cachedHeight;
}

void QUxFlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const int height = doLayout(rect, false);
    // The rows of a real pass do not depend on where the rectangle sits.
    if (rect.width() >= 0) {
        d->cachedWidth = rect.width();
        d->cachedHeight = height;
    }
}

QSize QUxFlowLayout::sizeHint() const { return minimumSize(); }

QSize QUxFlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* item : qAsConst(d->items))
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void QUxFlowLayout::invalidate()
{
    d->cachedWidth = -1;
    QLayout::invalidate();
}

int QUxFlowLayout::horizontalSpacing() const
{
    return d->hSpace >= 0 ? d->hSpace : smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int QUxFlowLayout::verticalSpacing() const
{
    return d->vSpace >= 0 ? d->vSpace : smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

int QUxFlowLayout::smartSpacing(QStyle::PixelMetric metric) const
{
    QObject* owner = parent();
    if (!owner)
        return -1;
    if (owner->isWidgetType()) {
        auto* widget = static_cast<QWidget*>(owner);
        return widget->style()->pixelMetric(metric, nullptr, widget);
    }
    return static_cast<QLayout*>(owner)->spacing();
}

int QUxFlowLayout::doLayout(const QRect& rect, bool testOnly) const
{
    // 64-bit throughout: thousands of wide items, or a rectangle far out, must not overflow.
    const QMargins margins = contentsMargins();
    const int spaceX = horizontalSpacing();
    const int spaceY = verticalSpacing();
    const QWidget* owner = parentWidget();
    const qint64 left = qint64(rect.left()) + margins.left();
    // The edge just past the last pixel: an item that ends exactly there still fits.
    const qint64 edge = qint64(rect.right()) + 1 - margins.right();
    qint64 x = left;
    qint64 y = qint64(rect.top()) + margins.top();
    qint64 lineHeight = 0;
    for (QLayoutItem* item : qAsConst(d->items)) {
        // Hidden widgets neither take room nor start rows.
        if (item->widget() && item->isEmpty())
            continue;
        const QSize hint = item->sizeHint().expandedTo(QSize(0, 0));
        const qint64 gapX = spaceX >= 0 ? spaceX : styleGap(item, owner, Qt::Horizontal);
        const qint64 gapY = spaceY >= 0 ? spaceY : styleGap(item, owner, Qt::Vertical);
        qint64 nextX = x + hint.width() + gapX;
        if (nextX - gapX > edge && lineHeight > 0) {
            x = left;
            y += lineHeight + gapY;
            nextX = x + hint.width() + gapX;
            lineHeight = 0;
        }
        if (!testOnly)
            item->setGeometry(QRect(QPoint(clampToInt(x, hint.width()), clampToInt(y, hint.height())), hint));
        x = nextX;
        lineHeight = std::max<qint64>(lineHeight, hint.height());
    }
    return clampToInt(y + lineHeight - rect.y() + margins.bottom());
}
