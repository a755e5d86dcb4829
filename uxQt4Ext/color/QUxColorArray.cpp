#include "QUxColorArray.h"

#include "QUxColorCell.h"

#include <uxPlatform.h>

#include <QHBoxLayout>
#include <QKeyEvent>

QVector<QUxColorCellData> QUxColorArray::s_cellData;

namespace {

// Every live array, so that a palette change made through one of them shows
// in all the others at once.
QList<QUxColorArray*>& liveArrays()
{
    static QList<QUxColorArray*> arrays;
    return arrays;
}

bool isValidIndex(int index) { return index >= 0 && index < QUxColorArray::CellCount; }

bool holdsPaletteSlot(int index) { return index >= 0 && index < QUxColorArray::s_cellData.size(); }

QUxColor normalised(const QUxColor& color)
{
    float r = 0.0f;
    float g = 0.0f;
    float b = 0.0f;
    QUxColor::HSVtoRGB(color.getHue(), color.getSaturation(), color.getValue(), r, g, b);
    return QUxColor(r, g, b);
}

} // namespace

class QUxColorArrayPrivate
{
public:
    int current = -1;
    QVector<QUxColorCell*> cells;

    int targetForNewColor() const
    {
        if (isValidIndex(current))
            return current;
        for (int i = 0; i < QUxColorArray::CellCount; ++i) {
            if (holdsPaletteSlot(i) && QUxColorArray::s_cellData.at(i).free)
                return i;
        }
        return 0;
    }
};

QUxColorArray::QUxColorArray(QWidget* parent) : QWidget(parent), d(new QUxColorArrayPrivate)
{
    // The first call scales; the second, kept from the original layout code,
    // pins the row to 16 pixels so that existing panels keep their height.
    setMinimumHeight(qRound(16 * uxPlatform::getDpiScaleY()));
    setMinimumHeight(16);
    setFocusPolicy(Qt::StrongFocus);

    while (s_cellData.size() < CellCount)
        s_cellData.append(QUxColorCellData());

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < CellCount; ++i) {
        auto* cell = new QUxColorCell(this, i);
        d->cells.append(cell);
        layout->addWidget(cell);
    }
    liveArrays().append(this);
}

QUxColorArray::~QUxColorArray() { liveArrays().removeAll(this); }

void QUxColorArray::addColor(const QUxColor& color)
{
    const int target = d->targetForNewColor();
    if (!holdsPaletteSlot(target))
        return;
    s_cellData[target].setColor(normalised(color));
    updateAllArrays();
}

QUxColor QUxColorArray::getColor(int index) const
{
    if (!isValidIndex(index) || !holdsPaletteSlot(index))
        return QUxColorCellData().color();
    return s_cellData.at(index).color();
}

bool QUxColorArray::isFreeCell(int index) const
{
    return !isValidIndex(index) || !holdsPaletteSlot(index) || s_cellData.at(index).free;
}

int QUxColorArray::currentIndex() const { return d->current; }

void QUxColorArray::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (isValidIndex(d->current))
            setSelected(d->current);
        break;
    case Qt::Key_Left:
        if (d->current >= 1)
            setCurrent(d->current - 1);
        break;
    case Qt::Key_Right:
        if (d->current <= CellCount - 2)
            setCurrent(d->current + 1);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void QUxColorArray::updateCells()
{
    for (QUxColorCell* cell : qAsConst(d->cells))
        cell->update();
}

void QUxColorArray::setCurrent(int index)
{
    d->current = index;
    updateCells();
}

void QUxColorArray::setSelected(int index)
{
    setCurrent(index);
    if (!isFreeCell(index))
        emit selected(index);
}

void QUxColorArray::updateAllArrays()
{
    for (QUxColorArray* array : qAsConst(liveArrays()))
        array->updateCells();
}
