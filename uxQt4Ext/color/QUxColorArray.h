#pragma once

#include "uxQt4ExtGlobal.h"

#include "QUxColor.h"
#include "QUxColorCellData.h"

#include <QVector>
#include <QWidget>

#include <memory>

class QUxColorArrayPrivate;
class QUxColorCell;

/**
 * A row of eleven swatches showing the palette of remembered colours. The
 * palette is shared: every colour array of the process shows and edits the
 * same eleven colours, while each array has its own current swatch.
 *
 * Colours arrive through addColor() or by dropping any colour (QMimeData with
 * colour data) on a swatch; dragging a filled swatch carries its colour away.
 * Clicking a filled swatch, or pressing Return, Enter or Space on the current
 * one, emits selected().
 * @code
 * auto* palette = new QUxColorArray(panel);
 * palette->addColor(QUxColor(1.0f, 0.5f, 0.0f));
 * connect(palette, &QUxColorArray::selected, panel, [palette, field](int i) {
 *     field->setColor(palette->getColor(i));
 * });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxColorArray : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex)
public:
    /// Number of swatches in every array.
    static constexpr int CellCount = 11;

    /// The palette shared by all arrays; filled with free slots by the first array.
    static QVector<QUxColorCellData> s_cellData;

    explicit QUxColorArray(QWidget* parent = nullptr);
    ~QUxColorArray() override;

    /// Stores @p color in the current swatch, else the first free one, else swatch 0.
    void addColor(const QUxColor& color);
    /// The colour of swatch @p index (0 to 10); black for an index out of range.
    QUxColor getColor(int index) const;
    /// True when swatch @p index holds no colour (and for an index out of range).
    bool isFreeCell(int index) const;
    /// The current swatch, -1 when there is none.
    int currentIndex() const;

signals:
    /// A filled swatch was chosen by click or key.
    void selected(int index);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class QUxColorCell;

    void updateCells();
    void setCurrent(int index);
    void setSelected(int index);
    /// Repaints every live array after the shared palette changed.
    static void updateAllArrays();

    std::unique_ptr<QUxColorArrayPrivate> const d;
};
