#include <QUxColorArray.h>
#include <QUxColorCell.h>

#include <uxTestSupport.h>

#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QVector3D>

#include <tuple>

namespace {

QUxColor hsv(float h, float s, float v)
{
    QUxColor color;
    color.setHSV(h, s, v);
    return color;
}

/// Empty when @p c is hue @p h within a thousandth of a degree and saturation @p s and value @p v within 1e-5.
QString hsvMismatch(const QUxColor& c, float h, float s, float v)
{
    if (qAbs(c.getHue() - h) < 1e-3f && qAbs(c.getSaturation() - s) < 1e-5f && qAbs(c.getValue() - v) < 1e-5f)
        return QString();
    return QString("got hsv(%1, %2, %3)").arg(c.getHue()).arg(c.getSaturation()).arg(c.getValue());
}

#define COMPARE_HSV(color, h, s, v)                                                                                    \
    QVERIFY2(hsvMismatch(color, h, s, v).isEmpty(), qPrintable(hsvMismatch(color, h, s, v)))

QList<QUxColorCell*> cellsOf(const QUxColorArray& array)
{
    QList<QUxColorCell*> cells = array.findChildren<QUxColorCell*>();
    std::sort(cells.begin(), cells.end(), [](QUxColorCell* a, QUxColorCell* b) { return a->index() < b->index(); });
    return cells;
}

// Drag events go straight to the swatch, never through the application's
// drag machinery.
bool deliver(QUxColorCell* cell, QEvent* event) { return static_cast<QObject*>(cell)->event(event); }

void dragMove(QUxColorCell* cell, const QPointF& pos)
{
    QMouseEvent move(QEvent::MouseMove, pos, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    deliver(cell, &move);
}

/// Offers @p mime to the swatch as a drag entering it or as a drop; true when the swatch accepts it.
template<typename Event>
bool offer(QUxColorCell* cell, const QMimeData* mime)
{
    Event event(QPoint(5, 5), Qt::CopyAction, mime, Qt::LeftButton, Qt::NoModifier);
    deliver(cell, &event);
    return event.isAccepted();
}
const auto dragEnter = offer<QDragEnterEvent>;
const auto drop = offer<QDropEvent>;

/// Records the keys that reach it, i.e. the ones its child passed on.
class KeyRecorder : public QWidget
{
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
};

/// The swatch chosen (-1: none) as the selected signals that announced it.
QList<QVariantList> chosen(int index) { return index < 0 ? QList<QVariantList>() : QList<QVariantList>{{index}}; }

/// Current swatch (-1: none), swatches filled from 0, swatch written, colour added and colour stored (h, s, v).
using Added = std::tuple<int, int, int, QVector3D, QVector3D>;
/// All swatches filled, current swatch, key, current swatch after it, swatch chosen, key passed to the parent.
using KeyPress = std::tuple<bool, int, int, int, int, bool>;
/// Swatch pressed at (8, 8), button, release point, current swatch after it, swatch chosen.
using Click = std::tuple<int, Qt::MouseButton, QPoint, int, int>;

} // namespace

Q_DECLARE_METATYPE(Added)
Q_DECLARE_METATYPE(KeyPress)
Q_DECLARE_METATYPE(Click)

class tst_QUxColorArray : public QObject
{
    Q_OBJECT

private slots:
    void init() { QUxColorArray::s_cellData.clear(); }

    void shouldStartWithElevenFreeSwatchesOfASharedPalette()
    {
        QUxColorArray first;
        const QList<QUxColorCell*> cells = cellsOf(first);
        QCOMPARE(cells.size(), 11);
        QCOMPARE(QUxColorArray::s_cellData.size(), 11);
        QCOMPARE(first.currentIndex(), -1);
        for (int i = 0; i < 11; ++i) {
            QVERIFY(first.isFreeCell(i));
            QCOMPARE(cells.at(i)->index(), i);
            QVERIFY(cells.at(i)->acceptDrops());
            QCOMPARE(cells.at(i)->size(), QSize(16, 16));
        }
        first.addColor(hsv(120.0f, 0.5f, 0.75f));
        QUxColorArray second; // a later array keeps the palette it finds
        QVERIFY(!second.isFreeCell(0));
        COMPARE_HSV(second.getColor(0), 120.0f, 0.5f, 0.75f);

        second.show();
        QVERIFY(QTest::qWaitForWindowExposed(&second));
        const QList<QUxColorCell*> shown = cellsOf(second);
        for (int i = 1; i < 11; ++i)
            QVERIFY(shown.at(i - 1)->x() < shown.at(i)->x());
        // Adding through one array repaints the others.
        const QPoint centre = shown.at(1)->geometry().center();
        QVERIFY(uxTest::grab(&second).pixelColor(centre) != QColor(187, 0, 0));
        first.addColor(QUxColor(0.5f, 0.0f, 0.0f)); // linear 0.5 is sRGB 187
        QTRY_COMPARE(uxTest::grab(&second).pixelColor(centre), QColor(187, 0, 0));
    }

    void shouldStoreAddedColorInTheExpectedSwatch_data()
    {
        QTest::addColumn<Added>("added");
        const QVector3D yellow(60, 1, 1);
        QTest::newRow("first free from the left") << Added{-1, 3, 3, yellow, yellow};
        QTest::newRow("last free swatch") << Added{-1, 10, 10, yellow, yellow};
        QTest::newRow("full palette overwrites swatch 0") << Added{-1, 11, 0, yellow, yellow};
        QTest::newRow("current free swatch") << Added{7, 2, 7, yellow, yellow};
        QTest::newRow("current filled swatch") << Added{1, 11, 1, yellow, yellow};
        // Stored after a round trip through RGB: black and grey lose their hue.
        QTest::newRow("black drops hue") << Added{-1, 0, 0, {120, 0.5f, 0}, {0, 0, 0}};
        QTest::newRow("grey drops hue") << Added{-1, 0, 0, {200, 0, 0.4f}, {0, 0, 0.4f}};
    }

    void shouldStoreAddedColorInTheExpectedSwatch()
    {
        QFETCH(Added, added);
        const auto& [current, filled, expected, color, stored] = added;
        QUxColorArray array;
        for (int i = 0; i < filled; ++i)
            array.addColor(hsv(0.0f, 0.0f, 0.5f));
        if (current >= 0)
            QTest::mouseClick(cellsOf(array).at(current), Qt::RightButton);
        QSignalSpy spy(&array, &QUxColorArray::selected);

        array.addColor(hsv(color.x(), color.y(), color.z()));

        COMPARE_HSV(array.getColor(expected), stored.x(), stored.y(), stored.z());
        for (int i = 0; i <= 10; ++i)
            QCOMPARE(array.isFreeCell(i), i != expected && i >= filled);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(array.currentIndex(), current);
    }

    void shouldHandleKeys_data()
    {
        QTest::addColumn<KeyPress>("press");
        const int right = Qt::Key_Right, left = Qt::Key_Left;
        QTest::newRow("right from none") << KeyPress{false, -1, right, 0, -1, false};
        QTest::newRow("left from none") << KeyPress{false, -1, left, -1, -1, false};
        QTest::newRow("right in the middle") << KeyPress{false, 4, right, 5, -1, false};
        QTest::newRow("left in the middle") << KeyPress{false, 4, left, 3, -1, false};
        QTest::newRow("right at the last") << KeyPress{false, 10, right, 10, -1, false};
        QTest::newRow("left at the first") << KeyPress{false, 0, left, 0, -1, false};
        for (const auto& [name, key] : {std::pair<const char*, int>{"Return", Qt::Key_Return},
                                        {"Enter", Qt::Key_Enter},
                                        {"Space", Qt::Key_Space}}) {
            QTest::addRow("%s on filled", name) << KeyPress{true, 3, key, 3, 3, false};
        }
        QTest::newRow("Return on free") << KeyPress{false, 3, Qt::Key_Return, 3, -1, false};
        QTest::newRow("Space without current") << KeyPress{true, -1, Qt::Key_Space, -1, -1, false};
        QTest::newRow("letter") << KeyPress{true, 3, Qt::Key_A, 3, -1, true};
        QTest::newRow("up") << KeyPress{true, 3, Qt::Key_Up, 3, -1, true};
    }

    void shouldHandleKeys()
    {
        QFETCH(KeyPress, press);
        const auto& [filled, start, key, current, selected, passed] = press;
        KeyRecorder parent;
        auto* array = new QUxColorArray(&parent);
        for (int i = 0; filled && i < 11; ++i)
            array->addColor(hsv(90.0f, 1.0f, 1.0f));
        if (start >= 0)
            QTest::mouseClick(cellsOf(*array).at(start), Qt::RightButton);
        QCOMPARE(array->currentIndex(), start);
        QSignalSpy spy(array, &QUxColorArray::selected);
        QTest::keyClick(array, Qt::Key(key));
        QCOMPARE(array->currentIndex(), current);
        QCOMPARE(QList<QVariantList>(spy), chosen(selected));
        QCOMPARE(parent.keys, passed ? QList<int>{key} : QList<int>());
    }

    void shouldHandleClicksOnSwatches_data()
    {
        QTest::addColumn<Click>("click");
        // Swatches 0 and 1 are filled.
        const QPoint inside(8, 8);
        QTest::newRow("left on filled") << Click{1, Qt::LeftButton, inside, 1, 1};
        QTest::newRow("left on free: current, not chosen") << Click{6, Qt::LeftButton, inside, 6, -1};
        QTest::newRow("right on filled") << Click{0, Qt::RightButton, inside, 0, -1};
        QTest::newRow("released outside") << Click{0, Qt::LeftButton, QPoint(17, 8), -1, -1};
        QTest::newRow("released on the far edge, still inside") << Click{0, Qt::LeftButton, QPoint(16, 16), 0, 0};
    }

    void shouldHandleClicksOnSwatches()
    {
        QFETCH(Click, click);
        const auto& [cell, button, release, current, selected] = click;
        QUxColorArray array;
        array.addColor(hsv(10.0f, 1.0f, 1.0f));
        array.addColor(hsv(20.0f, 1.0f, 1.0f));
        QSignalSpy spy(&array, &QUxColorArray::selected);
        QTest::mousePress(cellsOf(array).at(cell), button, Qt::NoModifier, QPoint(8, 8));
        QTest::mouseRelease(cellsOf(array).at(cell), button, Qt::NoModifier, release);
        QCOMPARE(array.currentIndex(), current);
        QCOMPARE(QList<QVariantList>(spy), chosen(selected));
    }

    void shouldOutlineCurrentSwatchInRedAndHatchFreeOnes()
    {
        QUxColorArray array;
        array.addColor(hsv(240.0f, 1.0f, 1.0f));
        array.addColor(hsv(240.0f, 1.0f, 1.0f));
        const QList<QUxColorCell*> cells = cellsOf(array);
        QTest::mouseClick(cells.at(1), Qt::RightButton);

        const QImage current = uxTest::grab(cells.at(1));
        const QImage other = uxTest::grab(cells.at(0));
        for (const QPoint& edge : {QPoint(0, 0), QPoint(15, 8), QPoint(8, 15), QPoint(0, 8)}) {
            QCOMPARE(current.pixelColor(edge), QColor(Qt::red));
            QCOMPARE(other.pixelColor(edge), QColor(Qt::black));
        }
        // Linear blue 1.0 encodes to 254 or 255 depending on float rounding.
        QVERIFY(uxTest::sameColor(current.pixelColor(8, 8), QColor(0, 0, 255), 1));

        const QImage free = uxTest::grab(cells.at(2));
        int black = 0; // of the 144 inner pixels
        for (int y = 2; y < 14; ++y) {
            for (int x = 2; x < 14; ++x)
                black += free.pixelColor(x, y) == QColor(Qt::black);
        }
        QVERIFY2(black > 20 && 144 - black > 20, qPrintable(QStringLiteral("%1 black").arg(black)));
    }

    void shouldDragSwatchColorsAndTakeOnlyColorDrops()
    {
        QUxColorArray array;
        QUxColorArray other;
        array.addColor(hsv(200.0f, 0.5f, 0.8f)); // linear (0.4, 0.6667, 0.8), in 8 bits (102, 170, 204)
        array.show();
        QVERIFY(QTest::qWaitForWindowExposed(&array));
        const QList<QUxColorCell*> cells = cellsOf(array);
        QUxColorCell* source = cells.at(0);
        const int distance = QApplication::startDragDistance();
        // The filled swatch 0 moved just to the threshold, the free swatch 1 well past it: no drag.
        for (const auto& [index, moved] : {std::pair{0, distance}, std::pair{1, distance + 5}}) {
            QTest::mousePress(cells.at(index), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
            dragMove(cells.at(index), QPointF(2 + moved, 2));
            QCOMPARE(array.currentIndex(), -1);
            QVERIFY(!cells.at(index)->findChild<QDrag*>());
        }

        // The offscreen platform ends the drag at once and leaves it to be deleted later.
        QTest::mousePress(source, Qt::LeftButton, Qt::NoModifier, QPoint(4, 4));
        dragMove(source, QPointF(4 + distance + 1, 4));
        QCOMPARE(array.currentIndex(), 0);
        const QDrag* drag = source->findChild<QDrag*>();
        QVERIFY(drag);
        const QColor dragged = qvariant_cast<QColor>(drag->mimeData()->colorData());
        QCOMPARE(dragged.rgb(), QColor::fromRgbF(0.4, 0.8 * (1.0 - 0.5 / 3.0), 0.8).rgb());
        QCOMPARE(drag->pixmap().size(), source->size());
        QCOMPARE(drag->supportedActions(), Qt::DropActions(Qt::CopyAction));

        QSignalSpy spy(&array, &QUxColorArray::selected);
        QUxColorCell* target = cells.at(3);
        QMimeData text;
        text.setText(QStringLiteral("#ff0000"));
        QMimeData garbled; // colour format, but no colour in it
        garbled.setData(QStringLiteral("application/x-color"), "not a colour");
        QVERIFY(!dragEnter(target, &text));
        QCOMPARE(array.currentIndex(), 0);
        QVERIFY(!drop(target, &text));
        QVERIFY(!drop(target, &garbled));
        QVERIFY(array.isFreeCell(3));

        QMimeData mime;
        mime.setColorData(dragged);
        QVERIFY(dragEnter(target, &mime));
        QCOMPARE(array.currentIndex(), 3);
        QVERIFY(array.isFreeCell(3)); // entering alone stores nothing
        QVERIFY(drop(target, &mime));
        // (102, 170, 204): hue 240 + 60 * (102 - 170) / 102 = 200, saturation 0.5, value 0.8; every array sees it.
        QVERIFY(!other.isFreeCell(3));
        COMPARE_HSV(other.getColor(3), 200.0f, 0.5f, 0.8f);
        QCOMPARE(qMakePair(array.currentIndex(), other.currentIndex()), qMakePair(3, -1));
        QCOMPARE(spy.count(), 0);
    }
};

QTEST_MAIN(tst_QUxColorArray)
#include "tst_QUxColorArray.moc"
