// Dragging one control point of a 32-point tone curve: each mouse move moves
// the point, re-sorts the curve and rebuilds its 1024-sample path. The anchor
// is the stock way to draw a smooth curve through the same 32 points: one
// QPainterPath::cubicTo per span, with the same tangents, after the same move.
#include <QUxCurve.h>
#include <QUxCurvePoint.h>
#include <QUxGraphEditor.h>

#include <QGraphicsScene>
#include <QtTest>

#include <cmath>

namespace {

constexpr int kPoints = 32;
constexpr int kDragged = 13;

QList<QVector2D> wave()
{
    QList<QVector2D> points;
    for (int i = 0; i < kPoints; ++i)
        points.append(QVector2D(float(i) / (kPoints - 1), 0.5f + 0.4f * std::sin(0.7f * i)));
    return points;
}

/// Cubic spans through @p points, tangents a third of the neighbours' chord.
QPainterPath cubicPath(const QList<QVector2D>& points)
{
    QPainterPath path;
    path.moveTo(points.first().toPointF());
    const auto tangent = [&points](int i) {
        if (i == 0 || i == points.size() - 1)
            return QPointF();
        return (points.at(i + 1) - points.at(i - 1)).toPointF() / 3.0;
    };
    for (int i = 0; i + 1 < points.size(); ++i) {
        const QPointF a = points.at(i).toPointF(), b = points.at(i + 1).toPointF();
        path.cubicTo(a + tangent(i), b - tangent(i + 1), b);
    }
    return path;
}

QUxCurve* luminanceCurve(const QUxGraphEditor& editor)
{
    for (QGraphicsItem* item : editor.scene()->items()) {
        if (item->zValue() == 2)
            return dynamic_cast<QUxCurve*>(item);
    }
    return nullptr;
}

} // namespace

class bench_QUxGraphEditor : public QObject
{
    Q_OBJECT

private slots:
    void dragPointAndRebuild_data()
    {
        QTest::addColumn<bool>("anchor");
        QTest::newRow("ours") << false;
        QTest::newRow("anchor") << true;
    }

    void dragPointAndRebuild()
    {
        QFETCH(bool, anchor);
        QList<QVector2D> points = wave();
        const float x = points.at(kDragged).x();
        bool up = false;
        if (anchor) {
            QBENCHMARK
            {
                up = !up;
                points[kDragged] = QVector2D(x, up ? 0.8f : 0.2f);
                const QPainterPath path = cubicPath(points);
                Q_UNUSED(path)
            }
            return;
        }
        QUxGraphEditor editor;
        editor.setLuminanceCurve(points);
        QUxCurve* curve = luminanceCurve(editor);
        QVERIFY(curve);
        QUxCurvePoint* point = curve->points().at(kDragged);
        int changes = 0;
        connect(&editor, &QUxGraphEditor::luminanceCurveChanged, this, [&changes] { ++changes; });
        QBENCHMARK
        {
            up = !up;
            point->setPos(x, up ? 0.8 : 0.2);
        }
        QVERIFY(changes > 0);
        QCOMPARE(curve->path().elementCount(), 1024);
    }
};

QTEST_MAIN(bench_QUxGraphEditor)
#include "bench_QUxGraphEditor.moc"
