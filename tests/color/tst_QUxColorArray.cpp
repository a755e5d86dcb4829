#include <QUxColorArray.h>
#include <QUxColorCell.h>

#include <uxTestSupport.h>

#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

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

} // namespace

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
        QCOMPARE(QUxColorArray::s_cellData.size(), 11);
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
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("filled"); // swatches 0 .. filled-1 already hold colours
        QTest::addColumn<int>("expected");
        QTest::addColumn<QVector<float>>("added"); // hue, saturation, value
        QTest::addColumn<QVector<float>>("stored");
        const QVector<float> yellow{60.0f, 1.0f, 1.0f};
        QTest::newRow("empty palette") << -1 << 0 << 0 << yellow << yellow;
        QTest::newRow("first free from the left") << -1 << 3 << 3 << yellow << yellow;
        QTest::newRow("last free swatch") << -1 << 10 << 10 << yellow << yellow;
        QTest::newRow("full palette overwrites swatch 0") << -1 << 11 << 0 << yellow << yellow;
        QTest::newRow("current free swatch") << 7 << 2 << 7 << yellow << yellow;
        QTest::newRow("current filled swatch") << 1 << 11 << 1 << yellow << yellow;
        // Black and grey lose their hue; a hue of 360 or more stays at the end of
        // the last sector (1, 0, 0.000167 in RGB is hue 359.99), it does not wrap.
        QTest::newRow("black drops hue") << -1 << 0 << 0 << QVector<float>{120, 0.5f, 0} << QVector<float>{0, 0, 0};
        QTest::newRow("grey drops hue") << -1 << 0 << 0 << QVector<float>{200, 0, 0.4f} << QVector<float>{0, 0, 0.4f};
        QTest::newRow("hue 720 held near red")
            << -1 << 0 << 0 << QVector<float>{720, 1, 1} << QVector<float>{359.99f, 1, 1};
        QTest::newRow("magenta-red keeps positive hue")
            << -1 << 0 << 0 << QVector<float>{330, 1, 1} << QVector<float>{330, 1, 1};
        QTest::newRow("negative hue read as 0") << -1 << 0 << 0 << QVector<float>{-30, 1, 1} << QVector<float>{0, 1, 1};
    }

    void shouldStoreAddedColorInTheExpectedSwatch()
    {
        QFETCH(int, current);
        QFETCH(int, filled);
        QFETCH(int, expected);
        QFETCH(QVector<float>, added);
        QFETCH(QVector<float>, stored);
        QUxColorArray array;
        for (int i = 0; i < filled; ++i)
            array.addColor(hsv(0.0f, 0.0f, 0.5f));
        if (current >= 0)
            QTest::mouseClick(cellsOf(array).at(current), Qt::RightButton);
        QSignalSpy spy(&array, &QUxColorArray::selected);

        array.addColor(hsv(added[0], added[1], added[2]));

        COMPARE_HSV(array.getColor(expected), stored[0], stored[1], stored[2]);
        for (int i = 0; i <= 10; ++i)
            QCOMPARE(array.isFreeCell(i), i != expected && i >= filled);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(array.currentIndex(), current);
    }

    void shouldHandleKeys_data()
    {
        QTest::addColumn<bool>("filled"); // all swatches
        QTest::addColumn<int>("start");   // current swatch
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("selected"); // -1: no signal
        QTest::addColumn<bool>("passed");  // on to the parent
        QTest::newRow("right from none") << false << -1 << int(Qt::Key_Right) << 0 << -1 << false;
        QTest::newRow("left from none") << false << -1 << int(Qt::Key_Left) << -1 << -1 << false;
        QTest::newRow("right in the middle") << false << 4 << int(Qt::Key_Right) << 5 << -1 << false;
        QTest::newRow("left in the middle") << false << 4 << int(Qt::Key_Left) << 3 << -1 << false;
        QTest::newRow("right at the last") << false << 10 << int(Qt::Key_Right) << 10 << -1 << false;
        QTest::newRow("right before the last") << false << 9 << int(Qt::Key_Right) << 10 << -1 << false;
        QTest::newRow("left at the first") << false << 0 << int(Qt::Key_Left) << 0 << -1 << false;
        QTest::newRow("left after the first") << false << 1 << int(Qt::Key_Left) << 0 << -1 << false;
        const QList<QPair<const char*, int>> keys{
            {"Return", Qt::Key_Return}, {"Enter", Qt::Key_Enter}, {"Space", Qt::Key_Space}};
        for (const auto& key : keys) {
            QTest::addRow("%s on filled", key.first) << true << 3 << key.second << 3 << 3 << false;
            QTest::addRow("%s on free", key.first) << false << 3 << key.second << 3 << -1 << false;
            QTest::addRow("%s without current", key.first) << true << -1 << key.second << -1 << -1 << false;
        }
        QTest::newRow("letter") << true << 3 << int(Qt::Key_A) << 3 << -1 << true;
        QTest::newRow("up") << true << 3 << int(Qt::Key_Up) << 3 << -1 << true;
    }

    void shouldHandleKeys()
    {
        QFETCH(bool, filled);
        QFETCH(int, start);
        QFETCH(int, key);
        QFETCH(int, current);
        QFETCH(int, selected);
        QFETCH(bool, passed);
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
        QCOMPARE(spy.count(), selected < 0 ? 0 : 1);
        if (selected >= 0)
            QCOMPARE(spy.at(0).at(0).toInt(), selected);
        QCOMPARE(parent.keys, passed ? QList<int>{key} : QList<int>());
    }

    void shouldHandleClicksOnSwatches_data()
    {
        QTest::addColumn<int>("cell");
        QTest::addColumn<int>("button");
        QTest::addColumn<QPoint>("release");
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("selected"); // -1: no signal
        // Swatches 0 and 1 are filled; presses land on (8, 8).
        QTest::newRow("left on filled") << 1 << int(Qt::LeftButton) << QPoint(8, 8) << 1 << 1;
        QTest::newRow("left on free: current, not chosen") << 6 << int(Qt::LeftButton) << QPoint(8, 8) << 6 << -1;
        QTest::newRow("right on filled") << 0 << int(Qt::RightButton) << QPoint(8, 8) << 0 << -1;
        QTest::newRow("released outside") << 0 << int(Qt::LeftButton) << QPoint(17, 8) << -1 << -1;
        QTest::newRow("released on the far edge, still inside") << 0 << int(Qt::LeftButton) << QPoint(16, 16) << 0 << 0;
    }

    void shouldHandleClicksOnSwatches()
    {
        QFETCH(int, cell);
        QFETCH(int, button);
        QFETCH(QPoint, release);
        QFETCH(int, current);
        QFETCH(int, selected);
        QUxColorArray array;
        array.addColor(hsv(10.0f, 1.0f, 1.0f));
        array.addColor(hsv(20.0f, 1.0f, 1.0f));
        QSignalSpy spy(&array, &QUxColorArray::selected);
        QTest::mousePress(cellsOf(array).at(cell), Qt::MouseButton(button), Qt::NoModifier, QPoint(8, 8));
        QTest::mouseRelease(cellsOf(array).at(cell), Qt::MouseButton(button), Qt::NoModifier, release);
        QCOMPARE(array.currentIndex(), current);
        QCOMPARE(spy.count(), selected < 0 ? 0 : 1);
        if (selected >= 0)
            QCOMPARE(spy.at(0).at(0).toInt(), selected);
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
        QCOMPARE(array.currentIndex(), 3);
        QCOMPARE(other.currentIndex(), -1);
        QCOMPARE(spy.count(), 0);
    }
};

QTEST_MAIN(tst_QUxColorArray)
#include "tst_QUxColorArray.moc"
