#include <QUxTimeLine.h>
#include <QUxTimeLineRange.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QMenu>
#include <QSignalSpy>
#include <QtTest>

#include <array>
#include <climits>
#include <cmath>
#include <functional>

namespace {

constexpr int kHeight = 60; // tall enough that the middle row holds neither text nor tick lines

bool isCursor(const QColor& c) { return c.red() - c.blue() > 20; } // the orange highlight

QList<int> frames(const QSignalSpy& spy)
{
    QList<int> list;
    for (const QList<QVariant>& args : spy)
        list << args.at(0).toInt();
    return list;
}

using Ints5 = std::array<int, 5>;
using Ints7 = std::array<int, 7>;
using Mutation = std::function<void(QUxTimeLine&, QUxTimeLineRange&)>;

} // namespace

Q_DECLARE_METATYPE(Ints5)
Q_DECLARE_METATYPE(Ints7)
Q_DECLARE_METATYPE(Mutation)

class tst_QUxTimeLine : public QObject
{
    Q_OBJECT

private slots:
    void init() { uxPlatform::reset(); }

    void pressReportsFrameAndPaintsCursorThere_data()
    {
        QTest::addColumn<Ints7>("v"); // start, end, width, pressed x, frame, cursor left, cursor width
        // width / (end - start + 1) pixels per frame: 10 in most rows, 2^-10 for 2^20 frames.
        QTest::newRow("first frame") << Ints7{0, 25, 260, 9, 0, 0, 10};
        QTest::newRow("second frame") << Ints7{0, 25, 260, 10, 1, 10, 10};
        QTest::newRow("last frame") << Ints7{0, 25, 260, 259, 25, 250, 10};
        QTest::newRow("offset start") << Ints7{10, 19, 100, 55, 15, 50, 10};
        QTest::newRow("negative start") << Ints7{-5, 4, 100, 3, -5, 0, 10};
        QTest::newRow("one frame fills the width") << Ints7{7, 7, 100, 99, 7, 0, 100};
        QTest::newRow("2^20 frames") << Ints7{0, 1048575, 1024, 512, 524288, 512, 1};
    }

    void pressReportsFrameAndPaintsCursorThere()
    {
        QFETCH(Ints7, v);
        const auto [start, end, width, x, frame, left, cursorWidth] = v;
        QUxTimeLine timeLine;
        timeLine.resize(width, kHeight);
        timeLine.setStartFrame(start), timeLine.setEndFrame(end), timeLine.setCurrentFrame(INT_MIN);
        QSignalSpy spy(&timeLine, &QUxTimeLine::currentFrameChanged);
        QTest::mousePress(&timeLine, Qt::LeftButton, {}, QPoint(x, kHeight / 2));
        QCOMPARE(frames(spy), QList<int>{frame});
        const QImage image = uxTest::grab(&timeLine);
        const auto cursorAt = [&](int px) { return isCursor(image.pixelColor(px, kHeight / 2)); };
        QVERIFY(cursorAt(left) && cursorAt(left + cursorWidth * 6 / 10));
        QVERIFY((left == 0 || !cursorAt(left - 1)) && (left + cursorWidth == width || !cursorAt(left + cursorWidth)));
    }

    void ticksAreSpacedByDecade_data()
    {
        QTest::addColumn<Ints5>("v"); // end frame (start 0), width, first tick's x, x step, tick count
        // Ticks every 1, 5, 5, 10, 50 and 50000 frames, none on the start frame.
        QTest::newRow("5 frames, 50 px each") << Ints5{5, 300, 50, 50, 5};
        QTest::newRow("15 frames, 20 px each") << Ints5{15, 320, 100, 100, 3};
        QTest::newRow("100 frames, 3 px each") << Ints5{100, 303, 15, 15, 20};
        QTest::newRow("250 frames, 2 px each") << Ints5{250, 502, 20, 20, 25};
        QTest::newRow("1000 frames, 2 px each") << Ints5{1000, 2002, 100, 100, 20};
        QTest::newRow("1000000 frames") << Ints5{999999, 1000, 50, 50, 19};
        QTest::newRow("one frame") << Ints5{0, 100, 0, 0, 0};
    }

    void ticksAreSpacedByDecade()
    {
        QFETCH(Ints5, v);
        const auto [end, width, firstX, step, count] = v;
        QUxTimeLine timeLine;
        timeLine.resize(width, kHeight);
        timeLine.setEndFrame(end);
        const QImage image = uxTest::grab(&timeLine);
        QList<int> ticks, expected;
        for (int x = 1; x < width - 1; ++x) {
            if (image.pixel(x, kHeight - 10) == qRgb(127, 127, 127))
                ticks << x;
        }
        for (int i = 0; i < count; ++i)
            expected << firstX + i * step;
        QCOMPARE(ticks, expected);
    }

    void scrubbingReportsFramesAndClampsAtEdges_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QList<int>>("reported");
        // 10 px per frame: press at 35 (frame 3), moves to 75 (7), far left (start) and far right (end).
        QTest::newRow("left") << int(Qt::LeftButton) << QList<int>{3, 7, 0, 25};
        QTest::newRow("middle") << int(Qt::MiddleButton) << QList<int>{3, 7, 0, 25};
        QTest::newRow("right: no slide, menu") << int(Qt::RightButton) << QList<int>{7, 0, 25};
    }

    void scrubbingReportsFramesAndClampsAtEdges()
    {
        QFETCH(int, button);
        QFETCH(QList<int>, reported);
        const bool slides = button != Qt::RightButton;
        QUxTimeLine timeLine;
        timeLine.resize(260, kHeight);
        QSignalSpy changed(&timeLine, &QUxTimeLine::currentFrameChanged);
        QSignalSpy finished(&timeLine, &QUxTimeLine::finishedSliding);
        QTest::mousePress(&timeLine, Qt::MouseButton(button), {}, QPoint(35, 5));
        for (int x : {75, -20, 300})
            uxTest::moveMouse(&timeLine, QPoint(x, 5), Qt::MouseButton(button));
        QTest::mouseRelease(&timeLine, Qt::MouseButton(button), {}, QPoint(300, 5));
        QCOMPARE(frames(changed), reported);
        QCOMPARE(finished.count(), slides ? 1 : 0);
        auto* menu = timeLine.findChild<QMenu*>();
        QCOMPARE(menu->isVisible(), !slides);
        menu->hide();
    }

    void setCurrentFrameReportsChangesOrWhenForced_data()
    {
        QTest::addColumn<QString>("calls"); // frames set in turn; "!" sets the flag
        QTest::addColumn<QList<int>>("reported");
        QTest::newRow("same frame twice reports once") << "5 5" << QList<int>{5};
        QTest::newRow("flag reports again") << "5 5!" << QList<int>{5, 5};
        QTest::newRow("initial frame is no change") << "0" << QList<int>{};
        QTest::newRow("flag reports the initial frame") << "0!" << QList<int>{0};
    }

    void setCurrentFrameReportsChangesOrWhenForced()
    {
        QFETCH(QString, calls);
        QFETCH(QList<int>, reported);
        QUxTimeLine timeLine;
        QSignalSpy spy(&timeLine, &QUxTimeLine::currentFrameChanged);
        for (const QString& call : calls.split(' ')) {
            const int frame = call.leftRef(call.indexOf('!')).toInt();
            call.endsWith('!') ? timeLine.setCurrentFrame(frame, true) : timeLine.setCurrentFrame(frame);
        }
        QCOMPARE(frames(spy), reported);
    }

    void optionsMenuSwitchesLabels_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<bool>("top");    // frame labels
        QTest::addColumn<bool>("bottom"); // seconds labels
        QTest::newRow("Show Frames") << 0 << true << false;
        QTest::newRow("Show Seconds") << 1 << false << true;
        QTest::newRow("Show Frames and Seconds") << 2 << true << true;
    }

    void optionsMenuSwitchesLabels()
    {
        QFETCH(int, entry);
        QFETCH(bool, top);
        QFETCH(bool, bottom);
        QUxTimeLine timeLine;
        timeLine.resize(260, kHeight);
        timeLine.setForegroundColor(Qt::blue);
        auto* menu = timeLine.findChild<QMenu*>();
        const QList<QAction*> actions = menu->actions();
        QCOMPARE(menu->title() + ": " + actions.at(entry)->text(), "Options: " + QString(QTest::currentDataTag()));
        QVERIFY(actions.at(0)->isChecked());
        actions.at((entry + 1) % 3)->trigger(), actions.at(entry)->trigger();
        bool inTop = false, inBottom = false;
        const QImage image = uxTest::grab(&timeLine);
        for (int y = 2; y < kHeight - 2; ++y) {
            for (int x = 2; x < 258; ++x)
                (y < kHeight / 2 ? inTop : inBottom) |= qBlue(image.pixel(x, y)) - qRed(image.pixel(x, y)) > 40;
        }
        QCOMPARE(qMakePair(inTop, inBottom), qMakePair(top, bottom));
        QCOMPARE(actions.at(0)->isChecked() + actions.at(1)->isChecked() + actions.at(2)->isChecked(), 1);
    }

    void sizesNamesAndValueForTheHost_data()
    {
        QTest::addColumn<bool>("range");
        QTest::addColumn<QList<QSize>>("sizes"); // hint and minimum at DPI scale 1.5: large icons 48, medium 36
        QTest::addColumn<QString>("accessible"); // name, value text, value, minimum, maximum
        QTest::newRow("timeline") << false << QList<QSize>{{450, 48}, {45, 48}} << "Timeline|7|7|2|40";
        QTest::newRow("range") << true << QList<QSize>{{300, 36}, {30, 36}} << "Time range|7 to 25|7|0|40";
    }

    void sizesNamesAndValueForTheHost()
    {
        QFETCH(bool, range);
        QFETCH(QList<QSize>, sizes);
        QFETCH(QString, accessible);
        uxPlatform::setDpiScale(1.5, 1.5);
        QUxTimeLine timeLine;
        QUxTimeLineRange rangeBar;
        QWidget* widget = range ? static_cast<QWidget*>(&rangeBar) : &timeLine;
        QCOMPARE((QList<QSize>{widget->sizeHint(), widget->minimumSizeHint()}), sizes);
        QCOMPARE(widget->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
        QVERIFY(widget->testAttribute(Qt::WA_TranslucentBackground));
        timeLine.setStartFrame(2), timeLine.setEndFrame(40), rangeBar.setEndFrame(40);
        range ? rangeBar.setRangeStartFrame(7) : timeLine.setCurrentFrame(7);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(widget);
        QAccessibleValueInterface* value = iface->valueInterface();
        QCOMPARE(QStringList({iface->text(QAccessible::Name), iface->text(QAccessible::Value),
                              value->currentValue().toString(), value->minimumValue().toString(),
                              value->maximumValue().toString()})
                     .join('|'),
                 accessible);
    }

    void rangeDragsGripsAndBar_data()
    {
        QTest::addColumn<QList<int>>("xs"); // pressed, then released at (no move), ..., drag from and to
        QTest::addColumn<QString>("log");
        // Frames 0 to 50 on 250 px (5 px a frame), range 10 to 30: left grip 54-69, right grip 129-144, bar 50-148.
        QTest::newRow("left grip") << QList<int>{60, 85} << "start 15";
        QTest::newRow("left grip past start frame") << QList<int>{60, -50} << "start 0";
        QTest::newRow("left grip onto right grip") << QList<int>{60, 240} << "start 29";
        QTest::newRow("right grip") << QList<int>{140, 110} << "end 24";
        QTest::newRow("right grip past end frame") << QList<int>{140, 400} << "end 50";
        QTest::newRow("right grip onto left grip") << QList<int>{140, 0} << "end 11";
        QTest::newRow("bar") << QList<int>{100, 125} << "start 15 end 35";
        QTest::newRow("bar onto end frame") << QList<int>{100, 200} << "start 30 end 50";
        QTest::newRow("bar past end frame stays") << QList<int>{100, 225} << "";
        QTest::newRow("bar before start frame stays") << QList<int>{100, 40} << "";
        QTest::newRow("outside moves bar with last grab") << QList<int>{100, 200, 125} << "start 15 end 35";
        QTest::newRow("setters emit even unchanged") << QList<int>{} << "start 10 end 30";
    }

    void rangeDragsGripsAndBar()
    {
        QFETCH(QList<int>, xs);
        QFETCH(QString, log);
        QUxTimeLineRange range;
        range.resize(250, 24);
        range.setRangeStartFrame(10), range.setRangeEndFrame(30);
        QStringList got;
        connect(&range, &QUxTimeLineRange::rangeStartChanged, this,
                [&](int f) { got << "start " + QString::number(f); });
        connect(&range, &QUxTimeLineRange::rangeEndChanged, this, [&](int f) { got << "end " + QString::number(f); });
        if (xs.isEmpty())
            range.setRangeStartFrame(10), range.setRangeEndFrame(30);
        for (int i = 0; i + 2 < xs.size(); ++i)
            QTest::mouseClick(&range, Qt::LeftButton, {}, QPoint(xs.at(i), 10));
        if (!xs.isEmpty())
            uxTest::drag(&range, QPoint(xs.at(xs.size() - 2), 10), QPoint(xs.last(), 10));
        QCOMPARE(got.join(' '), log);
    }

    void rangePaintsBarAndGrips_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<QColor>("color"); // invalid: the palette's base colour
        QTest::newRow("left grip") << QPoint(61, 11) << QColor(127, 127, 127);
        QTest::newRow("right grip") << QPoint(136, 11) << QColor(127, 127, 127);
        QTest::newRow("bar") << QPoint(72, 2) << QColor(45, 45, 45);
        QTest::newRow("outside the range") << QPoint(200, 12) << QColor();
    }

    void rangePaintsBarAndGrips()
    {
        QFETCH(QPoint, point);
        QFETCH(QColor, color);
        QUxTimeLineRange range;
        range.resize(250, 24);
        range.setRangeStartFrame(10), range.setRangeEndFrame(30);
        QCOMPARE(uxTest::grab(&range).pixelColor(point),
                 color.isValid() ? color : range.palette().color(QPalette::Base));
    }

    void badInputIsClampedOrIgnored_data()
    {
        QTest::addColumn<Mutation>("mutate");
        QTest::addColumn<double>("fps");
        for (double fps : {std::nan(""), HUGE_VAL, 0.0, -30.0, 1e-300, 1e300})
            QTest::addRow("fps %g", fps) << Mutation([fps](QUxTimeLine& t, QUxTimeLineRange&) { t.setFps(fps); })
                                         << (std::isfinite(fps) && fps > 0 ? fps : 25.0);
        const auto frames = [](int start, int end, int from, int to) {
            return Mutation([=](QUxTimeLine& t, QUxTimeLineRange& r) {
                t.setStartFrame(start), t.setEndFrame(end), t.setCurrentFrame(to);
                r.setStartFrame(start), r.setEndFrame(end), r.setRangeStartFrame(from), r.setRangeEndFrame(to);
            });
        };
        QTest::newRow("int limits") << frames(INT_MIN, INT_MAX, INT_MIN, INT_MAX) << 25.0;
        QTest::newRow("inverted at int limits") << frames(INT_MAX, INT_MIN, INT_MAX, INT_MIN) << 25.0;
        QTest::newRow("inverted") << frames(100, 0, 80, 20) << 25.0;
        QTest::newRow("start equals end") << frames(5, 5, 5, 5) << 25.0;
        QTest::newRow("range outside interval") << frames(0, 10, -500000, 900000) << 25.0;
        QTest::newRow("key frames not finite") << Mutation([](QUxTimeLine& t, QUxTimeLineRange&) {
            t.setKeyFrames({{NAN, Qt::red}, {INFINITY, Qt::red}, {-INFINITY, Qt::red}, {1e30f, Qt::red}});
        }) << 25.0;
        QTest::newRow("zero size") << Mutation([](QUxTimeLine& t, QUxTimeLineRange& r) {
            t.resize(0, 0), r.resize(0, 0);
        }) << 25.0;
    }

    void badInputIsClampedOrIgnored()
    {
        QFETCH(Mutation, mutate);
        QFETCH(double, fps);
        QUxTimeLine timeLine;
        QUxTimeLineRange range;
        timeLine.resize(300, 32), range.resize(200, 24);
        mutate(timeLine, range);
        timeLine.findChild<QMenu*>()->actions().at(2)->trigger(); // frames and seconds
        QCOMPARE(timeLine.fps(), fps);
        for (QWidget* widget : std::initializer_list<QWidget*>{&timeLine, &range}) {
            for (int x : {-100000, 0, widget->width() / 2, widget->width() + 100000})
                uxTest::drag(widget, QPoint(widget->width() / 2, 10), QPoint(x, 10));
            const QImage image = uxTest::grab(widget); // paints, and in bounded time
            QVERIFY(image.isNull() || qAlpha(image.pixel(image.width() / 2, image.height() - 3)) > 0);
        }
    }
};

QTEST_MAIN(tst_QUxTimeLine)
#include "tst_QUxTimeLine.moc"
