#include <QUxColorArray.h>
#include <QUxColorCell.h>

#include <uxTestSupport.h>

#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

namespace {

QUxColor hsv(float h, float s, float v)
{
    QUxColor color;
    color.setHSV(h, s, v);
    return color;
}

QList<QUxColorCell*> cellsOf(const QUxColorArray& array)
{
    QList<QUxColorCell*> cells = array.findChildren<QUxColorCell*>();
    std::sort(cells.begin(), cells.end(), [](QUxColorCell* a, QUxColorCell* b) { return a->index() < b->index(); });
    return cells;
}

QColor pixelAt(QWidget* widget, const QPoint& pos) { return uxTest::grab(widget).pixelColor(pos); }

// Drag events go straight to the swatch, never through the application's
// drag machinery.
bool deliver(QUxColorCell* cell, QEvent* event) { return static_cast<QObject*>(cell)->event(event); }

bool dragEnter(QUxColorCell* cell, const QMimeData* mime)
{
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, mime, Qt::LeftButton, Qt::NoModifier);
    deliver(cell, &enter);
    return enter.isAccepted();
}

bool drop(QUxColorCell* cell, const QMimeData* mime)
{
    QDropEvent dropEvent(QPointF(5, 5), Qt::CopyAction, mime, Qt::LeftButton, Qt::NoModifier);
    deliver(cell, &dropEvent);
    return dropEvent.isAccepted();
}

std::unique_ptr<QMimeData> colorMime(const QColor& color)
{
    auto mime = std::make_unique<QMimeData>();
    mime->setColorData(color);
    return mime;
}

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
    void init();

    void shouldStartWithElevenFreeSwatches();
    void shouldShareThePaletteBetweenArrays();
    void shouldRepaintOtherArraysWhenThePaletteChanges();
    void shouldStoreAddedColorInTheExpectedSwatch_data();
    void shouldStoreAddedColorInTheExpectedSwatch();
    void shouldNormaliseAddedColors_data();
    void shouldNormaliseAddedColors();
    void shouldAnswerDefaultsForIndicesOutOfRange();

    void shouldMoveCurrentSwatchWithArrowKeys_data();
    void shouldMoveCurrentSwatchWithArrowKeys();
    void shouldSelectCurrentSwatchWithActivationKeys_data();
    void shouldSelectCurrentSwatchWithActivationKeys();
    void shouldPassOtherKeysToTheParent();

    void shouldSelectFilledSwatchOnLeftClick();
    void shouldMakeSwatchCurrentWithoutSignalOnRightClick();
    void shouldIgnoreReleaseOutsideTheSwatch();
    void shouldOutlineCurrentSwatchInRed();
    void shouldHatchFreeSwatches();

    void shouldAcceptOnlyColorDragsAndMakeTheSwatchCurrent();
    void shouldStoreDroppedColorWithoutSignal();
    void shouldDragSwatchColorToAnotherSwatch();
    void shouldNotDragBeforeThresholdOrFromFreeSwatch();
};

void tst_QUxColorArray::init() { QUxColorArray::s_cellData.clear(); }

void tst_QUxColorArray::shouldStartWithElevenFreeSwatches()
{
    QUxColorArray array;
    const QList<QUxColorCell*> cells = cellsOf(array);
    QCOMPARE(cells.size(), 11);
    QCOMPARE(QUxColorArray::s_cellData.size(), 11);
    QCOMPARE(array.currentIndex(), -1);
    for (int i = 0; i < 11; ++i) {
        QVERIFY(array.isFreeCell(i));
        QCOMPARE(cells.at(i)->index(), i);
        QVERIFY(cells.at(i)->acceptDrops());
        QCOMPARE(cells.at(i)->size(), QSize(16, 16));
    }
    array.show();
    QVERIFY(QTest::qWaitForWindowExposed(&array));
    for (int i = 1; i < 11; ++i)
        QVERIFY(cells.at(i - 1)->x() < cells.at(i)->x());
}

void tst_QUxColorArray::shouldShareThePaletteBetweenArrays()
{
    QUxColorArray first;
    first.addColor(hsv(120.0f, 0.5f, 0.75f));
    QUxColorArray second;
    QCOMPARE(QUxColorArray::s_cellData.size(), 11);
    QVERIFY(!second.isFreeCell(0));
    QVERIFY(qFuzzyCompare(second.getColor(0).getHue(), 120.0f));
    QVERIFY(qFuzzyCompare(second.getColor(0).getSaturation(), 0.5f));
    QVERIFY(qFuzzyCompare(second.getColor(0).getValue(), 0.75f));

    second.addColor(hsv(240.0f, 1.0f, 1.0f));
    QVERIFY(!first.isFreeCell(1));
    QVERIFY(qFuzzyCompare(first.getColor(1).getHue(), 240.0f));
    QCOMPARE(first.currentIndex(), -1);
}

void tst_QUxColorArray::shouldRepaintOtherArraysWhenThePaletteChanges()
{
    QUxColorArray first;
    QUxColorArray second;
    second.show();
    QVERIFY(QTest::qWaitForWindowExposed(&second));
    const QUxColorCell* cell = cellsOf(second).at(0);
    const QPoint centre = cell->geometry().center();
    QVERIFY(pixelAt(&second, centre) != QColor(187, 0, 0));

    first.addColor(QUxColor(0.5f, 0.0f, 0.0f)); // linear 0.5 is sRGB 187
    QTRY_COMPARE(pixelAt(&second, centre), QColor(187, 0, 0));
}

void tst_QUxColorArray::shouldStoreAddedColorInTheExpectedSwatch_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("filled"); // swatches 0 .. filled-1 already hold colours
    QTest::addColumn<int>("expected");
    QTest::newRow("empty palette") << -1 << 0 << 0;
    QTest::newRow("first free from the left") << -1 << 3 << 3;
    QTest::newRow("last free swatch") << -1 << 10 << 10;
    QTest::newRow("full palette overwrites swatch 0") << -1 << 11 << 0;
    QTest::newRow("current free swatch") << 7 << 2 << 7;
    QTest::newRow("current filled swatch") << 1 << 11 << 1;
}

void tst_QUxColorArray::shouldStoreAddedColorInTheExpectedSwatch()
{
    QFETCH(int, current);
    QFETCH(int, filled);
    QFETCH(int, expected);
    QUxColorArray array;
    for (int i = 0; i < filled; ++i)
        array.addColor(hsv(0.0f, 0.0f, 0.5f));
    if (current >= 0)
        QTest::mouseClick(cellsOf(array).at(current), Qt::RightButton);
    QSignalSpy spy(&array, &QUxColorArray::selected);

    array.addColor(hsv(60.0f, 1.0f, 1.0f));

    QVERIFY(!array.isFreeCell(expected));
    QVERIFY(qFuzzyCompare(array.getColor(expected).getHue(), 60.0f));
    for (int i = 0; i < 11; ++i)
        QCOMPARE(array.isFreeCell(i), i != expected && i >= filled);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(array.currentIndex(), current);
}

void tst_QUxColorArray::shouldNormaliseAddedColors_data()
{
    QTest::addColumn<float>("addedHue");
    QTest::addColumn<float>("addedSaturation");
    QTest::addColumn<float>("addedValue");
    QTest::addColumn<float>("hue");
    QTest::addColumn<float>("saturation");
    QTest::addColumn<float>("value");
    // Black and grey lose their hue; a hue of 360 or more stays at the end of
    // the last sector (1, 0, 0.000167 in RGB is hue 359.99), it does not wrap.
    QTest::newRow("black drops hue") << 120.0f << 0.5f << 0.0f << 0.0f << 0.0f << 0.0f;
    QTest::newRow("grey drops hue") << 200.0f << 0.0f << 0.4f << 0.0f << 0.0f << 0.4f;
    QTest::newRow("hue 720 held near red") << 720.0f << 1.0f << 1.0f << 359.99f << 1.0f << 1.0f;
    QTest::newRow("magenta-red keeps positive hue") << 330.0f << 1.0f << 1.0f << 330.0f << 1.0f << 1.0f;
    QTest::newRow("negative hue read as 0") << -30.0f << 1.0f << 1.0f << 0.0f << 1.0f << 1.0f;
}

void tst_QUxColorArray::shouldNormaliseAddedColors()
{
    QFETCH(float, addedHue);
    QFETCH(float, addedSaturation);
    QFETCH(float, addedValue);
    QFETCH(float, hue);
    QFETCH(float, saturation);
    QFETCH(float, value);
    QUxColorArray array;
    array.addColor(hsv(addedHue, addedSaturation, addedValue));
    const QUxColor stored = array.getColor(0);
    QVERIFY2(qAbs(stored.getHue() - hue) < 0.001f, qPrintable(QString::number(stored.getHue())));
    QVERIFY(qAbs(stored.getSaturation() - saturation) < 1e-5f);
    QVERIFY(qAbs(stored.getValue() - value) < 1e-5f);
}

void tst_QUxColorArray::shouldAnswerDefaultsForIndicesOutOfRange()
{
    QUxColorArray array;
    for (int i = 0; i < 11; ++i)
        array.addColor(hsv(30.0f, 1.0f, 1.0f));
    QVERIFY(array.isFreeCell(11));
    QVERIFY(array.isFreeCell(-1));
    QCOMPARE(array.getColor(11).getValue(), 0.0f);
    QCOMPARE(array.getColor(-1).getValue(), 0.0f);
}

void tst_QUxColorArray::shouldMoveCurrentSwatchWithArrowKeys_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("expected");
    QTest::newRow("right from none") << -1 << int(Qt::Key_Right) << 0;
    QTest::newRow("left from none") << -1 << int(Qt::Key_Left) << -1;
    QTest::newRow("right in the middle") << 4 << int(Qt::Key_Right) << 5;
    QTest::newRow("left in the middle") << 4 << int(Qt::Key_Left) << 3;
    QTest::newRow("right at the last") << 10 << int(Qt::Key_Right) << 10;
    QTest::newRow("right before the last") << 9 << int(Qt::Key_Right) << 10;
    QTest::newRow("left at the first") << 0 << int(Qt::Key_Left) << 0;
    QTest::newRow("left after the first") << 1 << int(Qt::Key_Left) << 0;
}

void tst_QUxColorArray::shouldMoveCurrentSwatchWithArrowKeys()
{
    QFETCH(int, start);
    QFETCH(int, key);
    QFETCH(int, expected);
    QUxColorArray array;
    if (start >= 0)
        QTest::mouseClick(cellsOf(array).at(start), Qt::RightButton);
    QCOMPARE(array.currentIndex(), start);
    QSignalSpy spy(&array, &QUxColorArray::selected);
    QTest::keyClick(&array, Qt::Key(key));
    QCOMPARE(array.currentIndex(), expected);
    QCOMPARE(spy.count(), 0);
}

void tst_QUxColorArray::shouldSelectCurrentSwatchWithActivationKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("filled");
    QTest::addColumn<bool>("emits");
    const QList<QPair<const char*, int>> keys{
        {"Return", Qt::Key_Return}, {"Enter", Qt::Key_Enter}, {"Space", Qt::Key_Space}};
    for (const auto& key : keys) {
        QTest::addRow("%s on filled", key.first) << key.second << 3 << true << true;
        QTest::addRow("%s on free", key.first) << key.second << 3 << false << false;
        QTest::addRow("%s without current", key.first) << key.second << -1 << true << false;
    }
}

void tst_QUxColorArray::shouldSelectCurrentSwatchWithActivationKeys()
{
    QFETCH(int, key);
    QFETCH(int, current);
    QFETCH(bool, filled);
    QFETCH(bool, emits);
    QUxColorArray array;
    if (filled) {
        for (int i = 0; i < 11; ++i)
            array.addColor(hsv(90.0f, 1.0f, 1.0f));
    }
    if (current >= 0)
        QTest::mouseClick(cellsOf(array).at(current), Qt::RightButton);
    QSignalSpy spy(&array, &QUxColorArray::selected);
    QTest::keyClick(&array, Qt::Key(key));
    QCOMPARE(spy.count(), emits ? 1 : 0);
    if (emits)
        QCOMPARE(spy.at(0).at(0).toInt(), current);
}

void tst_QUxColorArray::shouldPassOtherKeysToTheParent()
{
    KeyRecorder parent;
    auto* array = new QUxColorArray(&parent);
    QTest::keyClick(array, Qt::Key_A);
    QTest::keyClick(array, Qt::Key_Up);
    QTest::keyClick(array, Qt::Key_Right);
    QTest::keyClick(array, Qt::Key_Return);
    QCOMPARE(parent.keys, (QList<int>{Qt::Key_A, Qt::Key_Up}));
}

void tst_QUxColorArray::shouldSelectFilledSwatchOnLeftClick()
{
    QUxColorArray array;
    array.addColor(hsv(10.0f, 1.0f, 1.0f));
    array.addColor(hsv(20.0f, 1.0f, 1.0f));
    QSignalSpy spy(&array, &QUxColorArray::selected);
    const QList<QUxColorCell*> cells = cellsOf(array);

    QTest::mouseClick(cells.at(1), Qt::LeftButton);
    QCOMPARE(array.currentIndex(), 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 1);

    QTest::mouseClick(cells.at(6), Qt::LeftButton); // free: current, but not chosen
    QCOMPARE(array.currentIndex(), 6);
    QCOMPARE(spy.count(), 1);
}

void tst_QUxColorArray::shouldMakeSwatchCurrentWithoutSignalOnRightClick()
{
    QUxColorArray array;
    array.addColor(hsv(10.0f, 1.0f, 1.0f));
    QSignalSpy spy(&array, &QUxColorArray::selected);
    QTest::mouseClick(cellsOf(array).at(0), Qt::RightButton);
    QCOMPARE(array.currentIndex(), 0);
    QCOMPARE(spy.count(), 0);
}

void tst_QUxColorArray::shouldIgnoreReleaseOutsideTheSwatch()
{
    QUxColorArray array;
    array.addColor(hsv(10.0f, 1.0f, 1.0f));
    QSignalSpy spy(&array, &QUxColorArray::selected);
    QUxColorCell* cell = cellsOf(array).at(0);
    QTest::mousePress(cell, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QTest::mouseRelease(cell, Qt::LeftButton, Qt::NoModifier, QPoint(17, 8));
    QCOMPARE(array.currentIndex(), -1);
    QCOMPARE(spy.count(), 0);

    // The far edge itself still counts as inside.
    QTest::mousePress(cell, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QTest::mouseRelease(cell, Qt::LeftButton, Qt::NoModifier, QPoint(16, 16));
    QCOMPARE(spy.count(), 1);
}

void tst_QUxColorArray::shouldOutlineCurrentSwatchInRed()
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
}

void tst_QUxColorArray::shouldHatchFreeSwatches()
{
    QUxColorArray array;
    const QImage image = uxTest::grab(cellsOf(array).at(0));
    int black = 0;
    int other = 0;
    for (int y = 2; y < 14; ++y) {
        for (int x = 2; x < 14; ++x)
            ++(image.pixelColor(x, y) == QColor(Qt::black) ? black : other);
    }
    QVERIFY2(black > 20 && other > 20, qPrintable(QStringLiteral("%1 black, %2 other").arg(black).arg(other)));
}

void tst_QUxColorArray::shouldAcceptOnlyColorDragsAndMakeTheSwatchCurrent()
{
    QUxColorArray array;
    QUxColorCell* cell = cellsOf(array).at(4);

    QMimeData text;
    text.setText(QStringLiteral("#ff0000"));
    QVERIFY(!dragEnter(cell, &text));
    QCOMPARE(array.currentIndex(), -1);

    const auto mime = colorMime(Qt::green);
    QVERIFY(dragEnter(cell, mime.get()));
    QCOMPARE(array.currentIndex(), 4);
    QVERIFY(array.isFreeCell(4));
}

void tst_QUxColorArray::shouldStoreDroppedColorWithoutSignal()
{
    QUxColorArray array;
    QUxColorArray other;
    QSignalSpy spy(&array, &QUxColorArray::selected);
    QUxColorCell* cell = cellsOf(array).at(5);
    QMimeData text;
    text.setText(QStringLiteral("orange"));
    QVERIFY(!drop(cell, &text));
    QVERIFY(array.isFreeCell(5));
    QMimeData garbled; // colour format, but no colour in it
    garbled.setData(QStringLiteral("application/x-color"), "not a colour");
    QVERIFY(!drop(cell, &garbled));
    QVERIFY(array.isFreeCell(5));

    // (255, 128, 0): hue = 60 * (128/255) = 30.1176, saturation 1, value 1.
    const auto mime = colorMime(QColor(255, 128, 0));
    QVERIFY(dragEnter(cell, mime.get()));
    QVERIFY(drop(cell, mime.get()));

    QVERIFY(!other.isFreeCell(5));
    const QUxColor stored = other.getColor(5);
    QVERIFY(qAbs(stored.getHue() - 30.1176f) < 1e-3f);
    QVERIFY(qFuzzyCompare(stored.getSaturation(), 1.0f));
    QVERIFY(qFuzzyCompare(stored.getValue(), 1.0f));
    QCOMPARE(array.currentIndex(), 5);
    QCOMPARE(other.currentIndex(), -1);
    QCOMPARE(spy.count(), 0);
}

void tst_QUxColorArray::shouldDragSwatchColorToAnotherSwatch()
{
    QUxColorArray array;
    array.addColor(hsv(200.0f, 0.5f, 0.8f)); // linear (0.4, 0.6667, 0.8)
    array.show();
    QVERIFY(QTest::qWaitForWindowExposed(&array));
    const QList<QUxColorCell*> cells = cellsOf(array);
    QUxColorCell* source = cells.at(0);

    QColor dragged;
    QPixmap pixmap;
    Qt::DropActions actions;
    const auto capture = [source, &dragged, &pixmap, &actions] {
        if (QDrag* drag = source->findChild<QDrag*>()) {
            dragged = qvariant_cast<QColor>(drag->mimeData()->colorData());
            pixmap = drag->pixmap();
            actions = drag->supportedActions();
        }
    };
    // A platform that runs a drag loop gets the drag inspected and cancelled
    // from inside it; the offscreen platform returns at once and leaves the
    // finished drag to be deleted later.
    QTimer::singleShot(0, source, [&capture] {
        capture();
        QDrag::cancel();
    });
    QTest::mousePress(source, Qt::LeftButton, Qt::NoModifier, QPoint(4, 4));
    QMouseEvent move(QEvent::MouseMove, QPointF(4 + QApplication::startDragDistance() + 1, 4), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    deliver(source, &move);
    if (!dragged.isValid())
        capture();

    QCOMPARE(array.currentIndex(), 0);
    QVERIFY(dragged.isValid());
    QCOMPARE(dragged.rgb(), QColor::fromRgbF(0.4, 0.8 * (1.0 - 0.5 / 3.0), 0.8).rgb());
    QCOMPARE(pixmap.size(), source->size());
    QCOMPARE(actions, Qt::DropActions(Qt::CopyAction));

    const auto mime = colorMime(dragged);
    QVERIFY(drop(cells.at(3), mime.get()));
    QVERIFY(qAbs(array.getColor(3).getHue() - 200.0f) < 1.0f);
    QCOMPARE(array.currentIndex(), 3);
}

void tst_QUxColorArray::shouldNotDragBeforeThresholdOrFromFreeSwatch()
{
    QUxColorArray array;
    array.addColor(hsv(200.0f, 0.5f, 0.8f));
    const QList<QUxColorCell*> cells = cellsOf(array);
    const int distance = QApplication::startDragDistance();

    QTest::mousePress(cells.at(0), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QMouseEvent shortMove(QEvent::MouseMove, QPointF(2 + distance, 2), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    deliver(cells.at(0), &shortMove);
    QCOMPARE(array.currentIndex(), -1);
    QVERIFY(!cells.at(0)->findChild<QDrag*>());

    QTest::mousePress(cells.at(1), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QMouseEvent longMove(QEvent::MouseMove, QPointF(2 + distance + 5, 2), Qt::LeftButton, Qt::LeftButton,
                         Qt::NoModifier);
    deliver(cells.at(1), &longMove);
    QCOMPARE(array.currentIndex(), -1);
    QVERIFY(!cells.at(1)->findChild<QDrag*>());
}

QTEST_MAIN(tst_QUxColorArray)
#include "tst_QUxColorArray.moc"
