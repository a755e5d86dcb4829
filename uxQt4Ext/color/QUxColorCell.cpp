#include "QUxColorCell.h"

#include "QUxColorArray.h"

#include <uxPlatform.h>

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace {

const QPoint noPress(-1, -1);

QUxColor colorFromRgb(const QColor& rgb)
{
    return QUxColor(static_cast<float>(rgb.redF()), static_cast<float>(rgb.greenF()), static_cast<float>(rgb.blueF()));
}

} // namespace

class QUxColorCellPrivate
{
public:
    QUxColorCellPrivate(QUxColorArray* array, int index) : array(array), index(index) {}

    QUxColorArray* const array;
    const int index;
    QPoint pressPosition = noPress;
};

QUxColorCell::QUxColorCell(QUxColorArray* array, int index)
    : QAbstractButton(array), d(new QUxColorCellPrivate(array, index))
{
    // The array takes the keyboard; a focusable swatch would swallow Space.
    setFocusPolicy(Qt::NoFocus);
    setAcceptDrops(true);
    setFixedSize(qRound(16 * uxPlatform::getDpiScaleX()), qRound(16 * uxPlatform::getDpiScaleY()));
}

QUxColorCell::~QUxColorCell() = default;

int QUxColorCell::index() const { return d->index; }

QUxColorArray* QUxColorCell::colorArray() const { return d->array; }

bool QUxColorCell::isCurrent() const { return d->array && d->array->currentIndex() == d->index; }

bool QUxColorCell::holdsColor() const { return d->array && !d->array->isFreeCell(d->index); }

void QUxColorCell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(isCurrent() ? Qt::red : Qt::black);
    if (!holdsColor())
        painter.setBrush(QBrush(Qt::black, Qt::Dense4Pattern));
    else
        painter.setBrush(d->array->getColor(d->index).getGammaQColor());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void QUxColorCell::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        d->pressPosition = event->pos();
    event->accept();
}

void QUxColorCell::mouseMoveEvent(QMouseEvent* event)
{
    if (!holdsColor() || d->pressPosition == noPress)
        return;
    if ((event->pos() - d->pressPosition).manhattanLength() <= QApplication::startDragDistance())
        return;
    d->array->setCurrent(d->index);
    d->pressPosition = noPress;
    startDrag();
}

void QUxColorCell::mouseReleaseEvent(QMouseEvent* event)
{
    d->pressPosition = noPress;
    const QPoint pos = event->pos();
    const bool inside = pos.x() >= 0 && pos.x() <= width() && pos.y() >= 0 && pos.y() <= height();
    if (!inside || !d->array)
        return;
    if (event->button() == Qt::RightButton)
        d->array->setCurrent(d->index);
    else if (event->button() == Qt::LeftButton)
        d->array->setSelected(d->index);
}

void QUxColorCell::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasColor() || !d->array) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    d->array->setCurrent(d->index);
}

void QUxColorCell::dropEvent(QDropEvent* event)
{
    const bool inPalette = d->index >= 0 && d->index < QUxColorArray::s_cellData.size();
    if (!event->mimeData()->hasColor() || !d->array || !inPalette) {
        event->ignore();
        return;
    }
    // Colour data that does not parse gives an invalid QColor, which would
    // otherwise fill the swatch with black.
    const QColor rgb = qvariant_cast<QColor>(event->mimeData()->colorData());
    if (!rgb.isValid()) {
        event->ignore();
        return;
    }
    QUxColorArray::s_cellData[d->index].setColor(colorFromRgb(rgb));
    event->acceptProposedAction();
    d->array->setCurrent(d->index);
    QUxColorArray::updateAllArrays();
}

void QUxColorCell::startDrag()
{
    const QColor color = d->array->getColor(d->index).getClampedQColor();
    auto* mimeData = new QMimeData;
    mimeData->setColorData(color);
    auto* drag = new QDrag(this);
    drag->setMimeData(mimeData);
    drag->setPixmap(dragPixmap(color));
    drag->exec(Qt::CopyAction);
}

QPixmap QUxColorCell::dragPixmap(const QColor& color) const
{
    QPixmap pixmap(size());
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
    return pixmap;
}
