#include <QUxColorField.h>

#include <QImage>
#include <QMetaEnum>
#include <QtTest>

namespace {

const QSize kPlaneSize(512, 512);

/// The stock way: one QColor per pixel, converted to RGB by Qt.
QImage fillWithQColorHsv()
{
    QImage image(kPlaneSize, QImage::Format_RGB32);
    const int width = image.width();
    const int height = image.height();
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const qreal s = 1.0 - qreal(y) / height;
        for (int x = 0; x < width; ++x)
            line[x] = QColor::fromHsvF(qreal(x) / width * 0.99997, s, 0.9).rgb();
    }
    return image;
}

/// A held value for each mode that keeps its plane well inside the gamut edges.
float constantFor(QUxColorField::Mode mode)
{
    switch (mode) {
    case QUxColorField::Hue:
        return 200.0f;
    case QUxColorField::Saturation:
        return 0.8f;
    case QUxColorField::Value:
        return 0.9f;
    case QUxColorField::Lstar:
        return 60.0f;
    case QUxColorField::Astar:
        return 20.0f;
    case QUxColorField::Bstar:
        return -20.0f;
    default:
        return 0.5f;
    }
}

} // namespace

class bench_QUxColorField : public QObject
{
    Q_OBJECT

private slots:
    void computePlane_data()
    {
        QTest::addColumn<int>("mode");
        const auto modes = QMetaEnum::fromType<QUxColorField::Mode>();
        for (int m = 0; m < modes.keyCount(); ++m)
            QTest::addRow("ours %s", modes.key(m)) << modes.value(m);
        QTest::newRow("anchor") << -1;
    }

    void computePlane()
    {
        QFETCH(int, mode);
        if (mode < 0) {
            QBENCHMARK
            {
                const QImage image = fillWithQColorHsv();
                Q_UNUSED(image)
            }
            return;
        }
        const auto m = QUxColorField::Mode(mode);
        QBENCHMARK
        {
            const QImage image = QUxColorField::renderField(m, constantFor(m), kPlaneSize);
            Q_UNUSED(image)
        }
    }

    void repaintUnchanged_data()
    {
        QTest::addColumn<QString>("variant");
        QTest::newRow("ours") << "render";
        QTest::newRow("ours grab") << "grab";
        QTest::newRow("anchor") << "anchor";
    }

    void repaintUnchanged()
    {
        QFETCH(QString, variant);
        if (variant == "anchor") {
            QBENCHMARK
            {
                const QImage image = fillWithQColorHsv();
                Q_UNUSED(image)
            }
            return;
        }
        QUxColorField field;
        field.resize(kPlaneSize);
        field.setMode(QUxColorField::Lstar);
        QImage target(kPlaneSize, QImage::Format_ARGB32_Premultiplied);
        field.render(&target); // builds the plane once
        if (variant == "render") {
            QBENCHMARK { field.render(&target); }
        } else {
            QBENCHMARK
            {
                const QPixmap shot = field.grab();
                Q_UNUSED(shot)
            }
        }
    }
};

QTEST_MAIN(bench_QUxColorField)
#include "bench_QUxColorField.moc"
