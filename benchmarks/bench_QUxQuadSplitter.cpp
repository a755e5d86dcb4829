// Resizing four views through 100 widths. The anchor is the stock way to tile
// four views: a vertical QSplitter holding two horizontal QSplitters of two
// views each. Both sides are shown, hold the same plain views and are resized
// through the same widths, so each lays its views out 100 times.
#include <QUxQuadSplitter.h>

#include <QSplitter>
#include <QtTest>

namespace {

const int kSteps = 100;

void resizeThroughWidths(QWidget& widget)
{
    for (int i = 0; i < kSteps; ++i)
        widget.resize(400 + 4 * i, 300);
}

} // namespace

class bench_QUxQuadSplitter : public QObject
{
    Q_OBJECT

private slots:
    void resizeFourViews_data()
    {
        QTest::addColumn<bool>("anchor");
        QTest::newRow("ours") << false;
        QTest::newRow("anchor") << true;
    }

    void resizeFourViews()
    {
        QFETCH(bool, anchor);
        if (anchor) {
            QSplitter outer(Qt::Vertical);
            for (int row = 0; row < 2; ++row) {
                auto* inner = new QSplitter(Qt::Horizontal, &outer);
                inner->addWidget(new QWidget);
                inner->addWidget(new QWidget);
            }
            outer.resize(800, 300);
            outer.show();
            QBENCHMARK { resizeThroughWidths(outer); }
            return;
        }
        QUxQuadSplitter splitter;
        for (int i = 0; i < 4; ++i)
            splitter.insertWidget(new QWidget, -1);
        splitter.resize(800, 300);
        splitter.show();
        QBENCHMARK { resizeThroughWidths(splitter); }
    }
};

QTEST_MAIN(bench_QUxQuadSplitter)
#include "bench_QUxQuadSplitter.moc"
