#include <QUxCurve.h>
#include <QUxGraphEditor.h>

#include <uxTestSupport.h>

#include <QGraphicsScene>
#include <QSignalSpy>
#include <QtTest>

#include <array>

using Editor = QUxGraphEditor;
using Points = QList<QVector2D>;

namespace {

enum Which { Lum, Red, Green, Blue };

QUxCurve* curveOf(const Editor& editor, int which = Lum)
{
    const qreal z[] = {2, 5, 4, 3};
    for (QGraphicsItem* item : editor.scene()->items())
        if (item->zValue() == z[which])
            return dynamic_cast<QUxCurve*>(item);
    return nullptr;
}

QList<QPointF> pathOf(const Editor& editor, int which = Lum)
{
    const QPainterPath path = curveOf(editor, which)->path();
    QList<QPointF> points;
    for (int i = 0; i < path.elementCount(); ++i)
        points << QPointF(path.elementAt(i));
    return points;
}

/// Bezier y at @p x of the span with control points @p c, by bisection on the parameter, held in 0..1.
double spanY(const QPointF (&c)[4], double x)
{
    const auto at = [&c](double u, bool y) {
        const auto k = [y](QPointF p) { return y ? p.y() : p.x(); };
        const double v = 1 - u;
        return v * v * v * k(c[0]) + 3 * v * v * u * k(c[1]) + 3 * v * u * u * k(c[2]) + u * u * u * k(c[3]);
    };
    double lo = 0, hi = 1;
    for (int i = 0; i < 60; ++i)
        (at((lo + hi) / 2, false) < x ? lo : hi) = (lo + hi) / 2;
    return qBound(0.0, at(lo, true), 1.0);
}

bool near(QVector2D a, QPointF b) { return qAbs(a.x() - b.x()) < 0.01 && qAbs(a.y() - b.y()) < 0.01; }

/// A shown, active editor on a 220-pixel square with @p points on its luminance curve.
struct Shown
{
    Editor editor;
    explicit Shown(const Points& points = {})
    {
        editor.resize(220, 220);
        editor.setLuminanceCurve(points);
        editor.show();
        QApplication::setActiveWindow(&editor);
    }
    QPoint px(QPointF scene) const { return editor.mapFromScene(scene); }
    QWidget* port() const { return editor.viewport(); }
};

} // namespace

class tst_QUxGraphEditor : public QObject
{
    Q_OBJECT

private slots:
    void shouldShowCurvesByMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QList<bool>>("visible"); // luminance, red, green, blue
        QTest::newRow("as constructed, reading RGB") << -1 << QList<bool>{true, false, false, false};
        QTest::newRow("Luminance") << 0 << QList<bool>{true, false, false, false};
        QTest::newRow("Red") << 1 << QList<bool>{false, true, false, false};
        QTest::newRow("Green") << 2 << QList<bool>{false, false, true, false};
        QTest::newRow("Blue") << 3 << QList<bool>{false, false, false, true};
        QTest::newRow("RGB") << 4 << QList<bool>{false, true, true, true};
        QTest::newRow("7 stored, nothing else changes") << 7 << QList<bool>{true, false, false, false};
        QTest::newRow("-3 stored, nothing else changes") << -3 << QList<bool>{true, false, false, false};
    }

    void shouldShowCurvesByMode()
    {
        QFETCH(int, mode);
        QFETCH(QList<bool>, visible);
        Editor editor;
        QVERIFY(mode == -1 || editor.setProperty("mode", mode));
        QCOMPARE(int(editor.getMode()), mode == -1 ? 4 : mode);
        const QColor colours[] = {QColor(127, 127, 127), Qt::red, Qt::green, Qt::blue};
        for (int which : {Lum, Red, Green, Blue}) {
            QCOMPARE(curveOf(editor, which)->isVisible(), visible.at(which));
            QCOMPARE(curveOf(editor, which)->pen().color(), colours[which]);
        }
    }

    void shouldSampleBezierSpansWithinUnitRange_data()
    {
        QTest::addColumn<double>("x");
        for (double x : {0.0, 0.25, 0.5, 0.6, 0.75, 0.9, 1.0}) // 0.9 is where the right span overshoots 1
            QTest::addRow("x %g", x) << x;
    }

    void shouldSampleBezierSpansWithinUnitRange()
    {
        QFETCH(double, x);
        Editor editor;
        editor.setLuminanceCurve({{0, 0}, {0.5f, 0.8f}, {1, 1}});
        // The middle point's tangents are a third of the chord from (0, 0) to (1, 1).
        const double t = 1.0 / 3, y = double(0.8f);
        const QPointF left[4] = {{0, 0}, {0, 0}, {0.5 - t, y - t}, {0.5, y}};
        const QPointF right[4] = {{0.5, y}, {0.5 + t, y + t}, {1, 1}, {1, 1}};
        const QList<QPointF> path = pathOf(editor);
        QVERIFY(std::all_of(path.begin(), path.end(), [](QPointF p) { return p.y() >= 0 && p.y() <= 1; }));
        const QPointF sample = path.at(qRound(x * 1023));
        QVERIFY(qAbs(sample.x() - x) <= 0.5 / 1023);
        QVERIFY2(qAbs(sample.y() - spanY(sample.x() < 0.5 ? left : right, sample.x())) < 1e-5,
                 qPrintable(QString::number(sample.y())));
    }

    void shouldFollowSetCurveRulesOnAnyInput_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QList<Points>>("steps");
        QTest::addColumn<Points>("result");
        QTest::addColumn<int>("emitted");
        QTest::addColumn<int>("elements"); // of the path; -1 for 1024 samples
        const Points diagonal{{0, 0}, {0.5f, 0.5f}, {1, 1}};
        const float nan = qQNaN(), inf = qInf();
        const auto row = [](const char* name, Which which, QList<Points> steps, Points result, int emitted,
                            int elements = -1) {
            QTest::newRow(name) << int(which) << steps << result << emitted << (elements < 0 ? 1024 : elements);
        };
        row("another count rebuilds silently", Lum, {diagonal}, diagonal, 0);
        row("same count moves points", Red, {diagonal, {{0, 0.25f}, {0.5f, 0.75f}, {1, 1}}},
            {{0, 0.25f}, {0.5f, 0.75f}, {1, 1}}, 2);
        row("moves held in range", Green, {diagonal, {{-1, 0}, {0.5f, 2}, {1, 1}}}, {{0, 0}, {0.5f, 1}, {1, 1}}, 2);
        row("unsorted kept in order", Blue, {{{1, 1}, {0, 0}}}, {{1, 1}, {0, 0}}, 0, 2);
        row("first move sorts", Lum, {{{1, 1}, {0, 0}}, {{1, 1}, {0, 0.5f}}}, {{0, 0.5f}, {1, 1}}, 1, 2);
        row("empty list", Lum, {diagonal, {}}, {}, 0, 0);
        row("one point, flat both sides", Lum, {{{0.25f, 0.5f}}}, {{0.25f, 0.5f}}, 0, 3);
        row("two points, a line", Lum, {{{0.25f, 0.5f}, {0.75f, 0.25f}}}, {{0.25f, 0.5f}, {0.75f, 0.25f}}, 0, 4);
        row("NaN entries left out", Lum, {{{nan, 0}, {0.5f, nan}, {0.5f, 0.5f}}}, {{0.5f, 0.5f}}, 0, 3);
        row("infinite and huge capped", Lum, {{{inf, -inf}, {1e30f, 0}}}, {{1e6f, -1e6f}, {1e6f, 0}}, 0, 3);
        row("infinite move held in range", Lum, {{{0, 0}, {1, 1}}, {{0, 0}, {inf, -inf}}}, {{0, 0}, {1, 0}}, 1, 2);
        row("duplicate x", Lum, {{{0, 0}, {0.5f, 0.2f}, {0.5f, 0.8f}, {1, 1}}},
            {{0, 0}, {0.5f, 0.2f}, {0.5f, 0.8f}, {1, 1}}, 0);
        row("all on one x", Lum, {{{0.5f, 0}, {0.5f, 0.5f}, {0.5f, 1}}}, {{0.5f, 0}, {0.5f, 0.5f}, {0.5f, 1}}, 0, 4);
        row("span folding back in x", Lum, {{{0, 0}, {0.999f, 0.5f}, {1, 1}}}, {{0, 0}, {0.999f, 0.5f}, {1, 1}}, 0);
    }

    void shouldFollowSetCurveRulesOnAnyInput()
    {
        QFETCH(int, which);
        QFETCH(QList<Points>, steps);
        QFETCH(Points, result);
        QFETCH(int, emitted);
        QFETCH(int, elements);
        Editor editor;
        const auto set = std::array{&Editor::setLuminanceCurve, &Editor::setRedCurve, &Editor::setGreenCurve,
                                    &Editor::setBlueCurve}[which];
        const auto get =
            std::array{&Editor::luminanceCurve, &Editor::redCurve, &Editor::greenCurve, &Editor::blueCurve}[which];
        const char* names[] = {SIGNAL(luminanceCurveChanged()), SIGNAL(redCurveChanged()), SIGNAL(greenCurveChanged()),
                               SIGNAL(blueCurveChanged())};
        QList<QSharedPointer<QSignalSpy>> spies;
        for (const char* name : names)
            spies << QSharedPointer<QSignalSpy>::create(&editor, name);
        for (const Points& step : steps)
            (editor.*set)(step);
        QCOMPARE((editor.*get)(), result);
        for (int i : {Lum, Red, Green, Blue})
            QCOMPARE(spies.at(i)->count(), i == which ? emitted : 0);
        // Drawn as a finite function of x in every case.
        const QList<QPointF> path = pathOf(editor, which);
        QCOMPARE(path.size(), elements);
        for (int i = 0; i < path.size(); ++i)
            QVERIFY(qIsFinite(path[i].y()) && (i == 0 || path[i].x() >= path[i - 1].x()));
    }

    void shouldKeepCurveAFunctionOfXWhileDragging_data()
    {
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QPointF>("expected");
        QTest::addColumn<int>("index"); // of the dragged point afterwards
        QTest::newRow("past a neighbour") << QPointF(0.25, 0.25) << QPointF(0.6, 0.5) << QPointF(0.6, 0.5) << 2;
        // Stops on x = 1 exactly, ahead of the point already there.
        QTest::newRow("beyond maxX") << QPointF(0.75, 0.75) << QPointF(1.4, 0.8) << QPointF(1, 0.8) << 3;
        QTest::newRow("beyond minY") << QPointF(0.5, 0.5) << QPointF(0.4, -0.3) << QPointF(0.4, 0) << 2;
    }

    void shouldKeepCurveAFunctionOfXWhileDragging()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QPointF, expected);
        QFETCH(int, index);
        Shown shown(Points{{0, 0}, {0.25f, 0.25f}, {0.5f, 0.5f}, {0.75f, 0.75f}, {1, 1}});
        QSignalSpy changed(&shown.editor, &Editor::luminanceCurveChanged);
        uxTest::drag(shown.port(), shown.px(from), shown.px(to));
        QVERIFY(changed.count() > 0);
        const Points points = shown.editor.luminanceCurve();
        QVERIFY(std::is_sorted(points.begin(), points.end(), [](auto a, auto b) { return a.x() < b.x(); }));
        QVERIFY(near(points.at(index), expected));
        QVERIFY((expected.x() == 1) <= (points.at(index).x() == 1.0f));
        QVERIFY((expected.y() == 0) <= (points.at(index).y() == 0.0f));
    }

    void shouldAddPointOnClickAndDeleteOneWithDeleteKey()
    {
        Shown shown(Points{{0, 0}, {1, 1}});
        QSignalSpy changed(&shown.editor, &Editor::luminanceCurveChanged);
        QTest::mouseClick(shown.port(), Qt::LeftButton, Qt::NoModifier, shown.px({0.5, 0.5}));
        const Points points = shown.editor.luminanceCurve();
        QCOMPARE(points.size(), 3);
        QVERIFY(near(points.at(1), {0.5, 0.5}));
        QCOMPARE(changed.count(), 1);
        QTest::mouseClick(shown.port(), Qt::LeftButton, Qt::NoModifier, shown.px({0, 0}));
        QTest::keyClick(shown.port(), Qt::Key_Delete);
        QCOMPARE(shown.editor.luminanceCurve(), (Points{points.at(1), points.at(2)}));
        QCOMPARE(changed.count(), 2);
    }

    void shouldPaintDarkGroundUnderBlackGrid()
    {
        Shown shown;
        QCOMPARE(shown.editor.accessibleName(), QStringLiteral("Tone curves"));
        const QImage image = uxTest::grab(shown.port());
        QCOMPARE(image.pixelColor(shown.px({0.125, 0.375})), QColor(52, 52, 52));
        const QPoint line = shown.px({0.5, 0.375});
        QCOMPARE(qMin(qGray(image.pixel(line)), qGray(image.pixel(line - QPoint(1, 0)))), 0);
    }

    void shouldStayUsableOnBadSettings_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("expected");
        const double nan = qQNaN(), inf = qInf();
        QTest::newRow("minX NaN ignored") << QByteArray("minX") << nan << 0.0;
        QTest::newRow("maxX infinite ignored") << QByteArray("maxX") << inf << 1.0;
        QTest::newRow("maxY huge capped") << QByteArray("maxY") << 1e300 << 1e6;
        QTest::newRow("maxX below minX") << QByteArray("maxX") << -0.5 << -0.5;
        QTest::newRow("maxY zero") << QByteArray("maxY") << 0.0 << 0.0;
        QTest::newRow("pointSize NaN ignored") << QByteArray("pointSize") << nan << 0.05;
        QTest::newRow("pointSize negative") << QByteArray("pointSize") << -1.0 << 0.0;
        QTest::newRow("pointSize huge") << QByteArray("pointSize") << 1e300 << 1.0;
        QTest::newRow("lineWidth infinite ignored") << QByteArray("lineWidth") << -inf << 0.01;
        QTest::newRow("lineWidth huge") << QByteArray("lineWidth") << 1e300 << 0.1;
    }

    void shouldStayUsableOnBadSettings()
    {
        QFETCH(QByteArray, property);
        QFETCH(double, value);
        QFETCH(double, expected);
        Shown shown(Points{{0, 0}, {0.5f, 0.5f}, {1, 1}});
        QVERIFY(shown.editor.setProperty(property, value));
        QCOMPARE(shown.editor.property(property).toDouble(), expected);
        // Moves land inside the range, however its ends are ordered.
        shown.editor.setLuminanceCurve({{-5, -5}, {0.4f, 0.4f}, {5, 5}});
        const Editor& e = shown.editor;
        for (const QVector2D& p : e.luminanceCurve())
            QVERIFY(p.x() >= qMin(e.minX(), e.maxX()) && p.x() <= qMax(e.minX(), e.maxX())
                    && p.y() >= qMin(e.minY(), e.maxY()) && p.y() <= qMax(e.minY(), e.maxY()));
        QVERIFY(!uxTest::grab(&shown.editor).isNull());
    }
};

QTEST_MAIN(tst_QUxGraphEditor)
#include "tst_QUxGraphEditor.moc"
