#include <QUxQuadSplitter.h>

#include "uxTestSupport.h"

#include <QApplication>
#include <QRubberBand>
#include <QSignalSpy>
#include <QTest>

using Rects = QVector<QRect>;
Q_DECLARE_METATYPE(Rects)

namespace {

// A shown 400 x 300 splitter (cross point at 200, 150) with @p panes views named "Render".
struct Fixture
{
    QUxQuadSplitter splitter;
    QVector<QWidget*> frames;
    explicit Fixture(int panes)
    {
        for (int i = 0; i < panes; ++i) {
            auto* view = new QWidget;
            view->setObjectName("Render");
            frames << splitter.insertWidget(view, -1);
        }
        splitter.resize(400, 300);
        splitter.show();
    }
    Rects geometries() const
    {
        Rects rects;
        for (const QWidget* frame : frames)
            rects << frame->geometry();
        return rects;
    }
    // Left edges of the rubber bands on show.
    QVector<int> visibleBands() const
    {
        QVector<int> lefts;
        for (const QRubberBand* band : splitter.findChildren<QRubberBand*>())
            if (band->isVisible())
                lefts << band->x();
        return lefts;
    }
};

} // namespace

class tst_QUxQuadSplitter : public QObject
{
    Q_OBJECT

private slots:
    void shouldTilePanesAroundTheCrossPoint_data()
    {
        QTest::addColumn<int>("panes");
        QTest::addColumn<QSize>("fixed");
        QTest::addColumn<Rects>("expected");
        QTest::newRow("one of fixed size") << 1 << QSize(100, 50) << Rects{{148, 123, 104, 54}};
        QTest::newRow("one, fixed height 0: whole area") << 1 << QSize(100, 0) << Rects{{0, 0, 400, 300}};
        QTest::newRow("two") << 2 << QSize() << Rects{{2, 2, 197, 296}, {201, 2, 197, 296}};
        QTest::newRow("three") << 3 << QSize() << Rects{{2, 2, 197, 147}, {201, 2, 197, 147}, {2, 151, 396, 147}};
        QTest::newRow("four") << 4 << QSize(100, 50)
                              << Rects{{2, 2, 197, 147}, {201, 2, 197, 147}, {2, 151, 197, 147}, {201, 151, 197, 147}};
    }
    void shouldTilePanesAroundTheCrossPoint()
    {
        QFETCH(int, panes);
        QFETCH(QSize, fixed);
        QFETCH(Rects, expected);
        Fixture f(panes);
        f.splitter.setChildFixedSize(fixed.width(), fixed.height());
        QCOMPARE(f.geometries(), expected);
        const QWidget* view = f.frames.last()->findChild<QWidget*>("Render");
        QCOMPARE(view->geometry(), QRect(QPoint(2, 2), f.frames.last()->size() - QSize(4, 4)));
    }

    void shouldShowTheCursorOfTheBarUnderTheMouse_data()
    {
        QTest::addColumn<int>("panes");
        QTest::addColumn<QPoint>("pos");
        QTest::addColumn<Qt::CursorShape>("cursor");
        QTest::newRow("crossing") << 4 << QPoint(201, 149) << Qt::SizeAllCursor;
        QTest::newRow("vertical bar") << 4 << QPoint(199, 40) << Qt::SplitHCursor;
        QTest::newRow("horizontal bar") << 4 << QPoint(40, 150) << Qt::SplitVCursor;
        QTest::newRow("beside the bar") << 4 << QPoint(202, 40) << Qt::ArrowCursor;
        QTest::newRow("one pane, y only") << 1 << QPoint(200, 150) << Qt::SplitVCursor;
    }
    void shouldShowTheCursorOfTheBarUnderTheMouse()
    {
        QFETCH(int, panes);
        Fixture f(panes);
        QFETCH(QPoint, pos);
        QFETCH(Qt::CursorShape, cursor);
        uxTest::moveMouse(&f.splitter, pos, Qt::NoButton);
        QCOMPARE(f.splitter.cursor().shape(), cursor);
    }

    void shouldApplyADragWhenItEndsKeepRatiosOnResizeAndDropItOnEscape_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<QRect>("topLeft");
        QTest::addColumn<QRect>("bottomRightAfterResize");
        QTest::newRow("released") << "release" << QRect(2, 2, 297, 72) << QRect(601, 151, 197, 447);
        QTest::newRow("released outside, pointer back over a view")
            << "enter" << QRect(2, 2, 297, 72) << QRect(601, 151, 197, 447);
        QTest::newRow("escape") << "escape" << QRect(2, 2, 197, 147) << QRect(401, 301, 397, 297);
    }
    void shouldApplyADragWhenItEndsKeepRatiosOnResizeAndDropItOnEscape()
    {
        QFETCH(QString, end);
        Fixture f(4);
        QTest::mousePress(&f.splitter, Qt::LeftButton, Qt::NoModifier, QPoint(200, 150));
        QCOMPARE(f.visibleBands().size(), 2);
        uxTest::moveMouse(&f.splitter, QPoint(300, 75));
        QVERIFY(f.visibleBands().contains(298));               // the vertical band follows the mouse
        uxTest::moveMouse(&f.splitter, QPoint(900, 75));       // beyond the bounds: ignored
        QCOMPARE(f.geometries().at(0), QRect(2, 2, 197, 147)); // nothing moves before the end
        QEvent enter(QEvent::Enter);
        if (end == "enter")
            QApplication::sendEvent(f.frames.at(0), &enter);
        if (end == "escape")
            QTest::keyClick(&f.splitter, Qt::Key_Escape);
        QTest::mouseRelease(&f.splitter, Qt::LeftButton, Qt::NoModifier, QPoint(900, 75));
        QVERIFY(f.visibleBands().isEmpty());
        QFETCH(QRect, topLeft);
        QCOMPARE(f.geometries().at(0), topLeft);
        f.splitter.resize(800, 600);
        QFETCH(QRect, bottomRightAfterResize);
        QCOMPARE(f.geometries().at(3), bottomRightAfterResize);
    }

    void shouldIgnoreBadPanesAndSizes()
    {
        Fixture f(4);
        QWidget fifth;
        QVERIFY(!f.splitter.insertWidget(&fifth, 0));
        QVERIFY(!f.splitter.insertWidget(nullptr, -1));
        QCOMPARE(fifth.parentWidget(), nullptr);
        f.splitter.removeWidget(&fifth);
        f.splitter.removeWidget(nullptr);
        QCOMPARE(f.splitter.count(), 4);
        QVERIFY(f.splitter.hasWidget(3) && !f.splitter.hasWidget(4) && !f.splitter.hasWidget(nullptr));
        for (const QSize& size : {QSize(0, 0), QSize(-10, -10), QSize(1, 1)})
            f.splitter.resize(size);
        QTest::mousePress(&f.splitter, Qt::LeftButton, Qt::NoModifier, QPoint(0, 0)); // on the crossing
        f.splitter.setPosition(INT_MAX, INT_MIN);
        QTest::keyClick(&f.splitter, Qt::Key_Escape);
        Fixture lone(1);
        lone.splitter.setChildFixedSize(INT_MAX, INT_MAX);
        QVERIFY(lone.frames.at(0)->width() > 400);
        f.splitter.resize(400, 300);
        QCOMPARE(f.geometries().at(3), QRect(201, 151, 197, 147));
        f.splitter.removeWidget(f.frames.takeAt(1));
        QVERIFY(!f.splitter.hasWidget(3));
        QCOMPARE(f.geometries(), (Rects{{2, 2, 197, 147}, {201, 2, 197, 147}, {2, 151, 396, 147}}));
    }

    void shouldOutlineTheCurrentViewInTheHighlightColour()
    {
        Fixture f(2);
        QWidget* current = f.frames.at(1)->findChild<QWidget*>("Render");
        int asked = 0;
        f.splitter.setCurrentWidgetCallback([&](int argument) {
            asked = argument;
            return current;
        });
        QSignalSpy focusChanged(&f.splitter, &QUxQuadSplitter::focusChanged);
        f.splitter.setFocus(current);
        f.splitter.updateFocus(current); // already the focus widget: nothing happens
        QCOMPARE(asked, 0);
        f.splitter.updateFocus(nullptr);
        QCOMPARE(asked, -1);
        QCOMPARE(focusChanged.count(), 0); // the focus widget was never emitted as set
        const QPalette pal = f.splitter.palette();
        QCOMPARE(uxTest::grab(f.frames.at(1)).pixelColor(0, 0), pal.color(QPalette::Highlight));
        QCOMPARE(uxTest::grab(f.frames.at(0)).pixelColor(0, 0), pal.color(QPalette::Window));
    }

    void shouldPaintTheGridBackgroundAndHaveAnAccessibleName()
    {
        Fixture f(0);
        const QImage image = uxTest::grab(&f.splitter);
        const QVector<QPair<QPoint, QRgb>> samples{{{5, 5}, 0x2F2F2F},     {{0, 37}, 0x232323},  {{10, 0}, 0x232323},
                                                   {{10, 20}, 0x2B2B2B},   {{50, 20}, 0x272727}, {{20, 50}, 0x272727},
                                                   {{150, 110}, 0x272727}, {{130, 7}, 0x2B2B2B}};
        for (const auto& sample : samples)
            QCOMPARE(image.pixel(sample.first) & 0xFFFFFF, sample.second);
        QVERIFY(!f.splitter.accessibleName().isEmpty());
    }
};

QTEST_MAIN(tst_QUxQuadSplitter)
#include "tst_QUxQuadSplitter.moc"
