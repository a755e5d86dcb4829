// Computing the colour plane of a field. The HSV and RGB modes are held
// against Qt's own per-pixel HSV conversion (QColor). The L*a*b* modes are
// held against a textbook per-pixel L*a*b* to RGB conversion of the same
// plane, so that both sides turn the same values into the same pixels.
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

/// CIE 1976 L*a*b* to linear sRGB (D65), one pixel at a time.
QRgb labToLinearRgb(double L, double a, double b)
{
    const auto inverse = [](double f) { return f > 6.0 / 29.0 ? f * f * f : 3.0 * 36.0 / 841.0 * (f - 4.0 / 29.0); };
    const double fy = (L + 16.0) / 116.0;
    const double X = 0.95047 * inverse(fy + a / 500.0);
    const double Y = inverse(fy);
    const double Z = 1.08883 * inverse(fy - b / 200.0);
    const auto level = [](double c) { return c <= 0.0 ? 0 : c >= 1.0 ? 255 : int(c * 255.0); };
    return qRgb(level(3.2404542 * X - 1.5371385 * Y - 0.4985314 * Z),
                level(-0.969266 * X + 1.8760108 * Y + 0.041556 * Z),
                level(0.0556434 * X - 0.2040259 * Y + 1.0572252 * Z));
}

/// The L*a*b* plane of @p mode with the same axes as the field: a* and b* span
/// -128 to 128, L* 0 to 100, x left to right and y bottom to top.
QImage fillWithTextbookLab(QUxColorField::Mode mode, float constant)
{
    QImage image(kPlaneSize, QImage::Format_RGB32);
    const int width = image.width();
    const int height = image.height();
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double up = 1.0 - double(y) / height;
        for (int x = 0; x < width; ++x) {
            const double across = (double(x) / width - 0.5) * 256.0;
            if (mode == QUxColorField::Lstar)
                line[x] = labToLinearRgb(constant, across, (up - 0.5) * 256.0);
            else if (mode == QUxColorField::Astar)
                line[x] = labToLinearRgb(up * 100.0, constant, across);
            else
                line[x] = labToLinearRgb(up * 100.0, across, constant);
        }
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

bool isLabMode(int mode) { return mode >= QUxColorField::Lstar; }

void addLabRows(QUxColorField::Mode mode)
{
    QTest::addColumn<bool>("anchor");
    QTest::addRow("ours %s", QMetaEnum::fromType<QUxColorField::Mode>().valueToKey(mode)) << false;
    QTest::newRow("anchor") << true;
}

/// Both sides of one L*a*b* mode; they must paint the same plane, give or take rounding.
void runLabPlane(QUxColorField::Mode mode)
{
    QFETCH(bool, anchor);
    const float constant = constantFor(mode);
    const QImage ours = QUxColorField::renderField(mode, constant, kPlaneSize);
    const QImage textbook = fillWithTextbookLab(mode, constant);
    for (const QPoint& p : {QPoint(0, 0), QPoint(256, 256), QPoint(100, 400), QPoint(511, 511)}) {
        const QColor a = ours.pixelColor(p), b = textbook.pixelColor(p);
        QVERIFY2(qAbs(a.red() - b.red()) <= 1 && qAbs(a.green() - b.green()) <= 1 && qAbs(a.blue() - b.blue()) <= 1,
                 qPrintable(a.name() + " " + b.name()));
    }
    if (anchor) {
        QBENCHMARK
        {
            const QImage image = fillWithTextbookLab(mode, constant);
            Q_UNUSED(image)
        }
        return;
    }
    QBENCHMARK
    {
        const QImage image = QUxColorField::renderField(mode, constant, kPlaneSize);
        Q_UNUSED(image)
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
        for (int m = 0; m < modes.keyCount(); ++m) {
            if (!isLabMode(modes.value(m)))
                QTest::addRow("ours %s", modes.key(m)) << modes.value(m);
        }
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

    void computeLstarPlane_data() { addLabRows(QUxColorField::Lstar); }
    void computeLstarPlane() { runLabPlane(QUxColorField::Lstar); }
    void computeAstarPlane_data() { addLabRows(QUxColorField::Astar); }
    void computeAstarPlane() { runLabPlane(QUxColorField::Astar); }
    void computeBstarPlane_data() { addLabRows(QUxColorField::Bstar); }
    void computeBstarPlane() { runLabPlane(QUxColorField::Bstar); }

    // Not like for like: ours repaints from its cached plane, the anchor
    // computes the same L* plane afresh. The ratio shows what the cache saves.
    void cachedRepaintVsRecompute_data()
    {
        QTest::addColumn<QString>("variant");
        QTest::newRow("ours cached render") << "render";
        QTest::newRow("ours cached grab") << "grab";
        QTest::newRow("anchor") << "anchor";
    }

    void cachedRepaintVsRecompute()
    {
        QFETCH(QString, variant);
        if (variant == "anchor") {
            QBENCHMARK
            {
                const QImage image = fillWithTextbookLab(QUxColorField::Lstar, constantFor(QUxColorField::Lstar));
                Q_UNUSED(image)
            }
            return;
        }
        QUxColorField field;
        field.resize(kPlaneSize);
        field.setMode(QUxColorField::Lstar);
        field.setConstantChannel(constantFor(QUxColorField::Lstar));
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
