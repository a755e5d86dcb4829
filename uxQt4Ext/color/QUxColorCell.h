#pragma once

#include "uxQt4ExtGlobal.h"

#include <QAbstractButton>

#include <memory>

class QMimeData;
class QUxColorArray;
class QUxColorCellPrivate;

/**
 * One swatch of a QUxColorArray. It paints its palette slot (a hatched square
 * while the slot is free), reports clicks to its array, starts a colour drag
 * when a filled swatch is dragged and accepts any colour dropped on it.
 * Swatches are created by their array; hosts find them as its children.
 */
class UXQT4EXT_EXPORT QUxColorCell : public QAbstractButton
{
    Q_OBJECT
public:
    QUxColorCell(QUxColorArray* array, int index);
    ~QUxColorCell() override;

    /// Position of the swatch in its array, 0 to 10.
    int index() const;
    QUxColorArray* colorArray() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool isCurrent() const;
    bool holdsColor() const;
    void startDrag();
    QPixmap dragPixmap(const QColor& color) const;

    std::unique_ptr<QUxColorCellPrivate> const d;
};
