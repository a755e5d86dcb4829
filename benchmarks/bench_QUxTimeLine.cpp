// Painting a timeline. Ours: the ruler with its labels, tick lines and cursor,
// once for a 25-frame clip and once for a million frames; the label spacing
// grows with the interval, so both should cost about the same. Two anchors,
// each rendered into the same image: a stock QSlider of the same size with a
// tick mark on each of 26 steps and its handle (the stock widget, which paints
// no numbers), and a bare QPainter drawing what the ruler draws for the short
// clip: gradient background, 25 numbered ticks and a gradient cursor.
#include <QUxTimeLine.h>

#include <QImage>
#include <QPainter>
#include <QSlider>
#include <QtTest>

#include <memory>

namespace {

const QSize kSize(600, 32);

std::unique_ptr<QWidget> makeWidget(int frames)
{
    if (frames == 0) {
        auto slider = std::make_unique<QSlider>(Qt::Horizontal);
        slider->setRange(0, 25);
        slider->setTickPosition(QSlider::TicksBothSides);
        slider->setTickInterval(1);
        slider->setValue(12);
        return slider;
    }
    auto timeLine = std::make_unique<QUxTimeLine>();
    timeLine->setEndFrame(frames - 1);
    timeLine->setCurrentFrame(frames / 2);
    return timeLine;
}

/// The short clip's ruler painted straight away with the same QPainter calls.
void paintRulerByHand(QImage& target)
{
    QPainter painter(&target);
    QLinearGradient back(0.5, 1.0, 0.5, 0.5);
    back.setCoordinateMode(QGradient::ObjectBoundingMode);
    back.setSpread(QGradient::ReflectSpread);
    back.setColorAt(0.0, QColor(25, 25, 25));
    back.setColorAt(1.0, QColor(60, 60, 60, 200));
    painter.setPen(QColor(127, 127, 127));
    painter.setBrush(back);
    painter.drawRoundedRect(0, 0, kSize.width() - 1, kSize.height() - 1, 4, 4);
    QFont font = painter.font();
    font.setPointSize(9);
    painter.setFont(font);
    const int ascent = painter.fontMetrics().ascent();
    const int h = kSize.height();
    const double step = kSize.width() / 26.0;
    painter.setPen(QColor(10, 10, 10));
    painter.drawText(QPoint(2, 2 + ascent), QStringLiteral("Frame"));
    for (int frame = 1; frame <= 25; ++frame) {
        const int x = int(frame * step + 0.5);
        painter.setPen(QColor(10, 10, 10));
        painter.drawText(QPoint(x + 2, 2 + ascent), QString::number(frame));
        painter.setPen(QColor(127, 127, 127));
        painter.drawLine(x, 0, x, h / 3 - 1);
        painter.drawLine(x, h / 3 * 2 - 1, x, h - 1);
    }
    QLinearGradient cursor(0.2, 0.5, 1.0, 0.5);
    cursor.setCoordinateMode(QGradient::ObjectBoundingMode);
    cursor.setColorAt(0.0, QColor(234, 134, 47, 200));
    cursor.setColorAt(1.0, QColor(234, 134, 47, 15));
    painter.translate(int(12 * step + 0.5), 0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(cursor);
    painter.drawRect(0, 0, int(step), h);
    painter.setPen(Qt::white);
    painter.drawText(QPoint(2, 2 + ascent), QStringLiteral("12"));
}

} // namespace

class bench_QUxTimeLine : public QObject
{
    Q_OBJECT

private slots:
    void paintTimeLine_data()
    {
        QTest::addColumn<int>("frames"); // 0: the anchor
        QTest::newRow("ours 25 frames") << 25;
        QTest::newRow("ours 1000000 frames") << 1000000;
        QTest::newRow("anchor") << 0;
    }

    void paintTimeLine()
    {
        QFETCH(int, frames);
        const std::unique_ptr<QWidget> widget = makeWidget(frames);
        widget->resize(kSize);
        QImage target(kSize, QImage::Format_ARGB32_Premultiplied);
        target.fill(Qt::transparent);
        widget->render(&target); // polish and lay out outside the measurement
        QBENCHMARK { widget->render(&target); }
    }

    void paintTimeLineVsPainter_data() { paintTimeLine_data(); }

    void paintTimeLineVsPainter()
    {
        QFETCH(int, frames);
        QImage target(kSize, QImage::Format_ARGB32_Premultiplied);
        target.fill(Qt::transparent);
        if (frames == 0) {
            QBENCHMARK { paintRulerByHand(target); }
            return;
        }
        const std::unique_ptr<QWidget> widget = makeWidget(frames);
        widget->resize(kSize);
        widget->render(&target);
        QBENCHMARK { widget->render(&target); }
    }
};

QTEST_MAIN(bench_QUxTimeLine)
#include "bench_QUxTimeLine.moc"
