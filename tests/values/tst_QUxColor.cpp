#include <QUxColor.h>

#include <QVector3D>
#include <QtTest>

#include <cmath>

namespace {
using V = QVector3D;
constexpr float kTight = 1e-5f;

bool near(float a, float b, float tolerance) { return std::fabs(a - b) <= tolerance; }
bool near3(const V& a, const V& b, float tol)
{
    return near(a.x(), b.x(), tol) && near(a.y(), b.y(), tol) && near(a.z(), b.z(), tol);
}
QString str(const V& v) { return QStringLiteral("(%1, %2, %3)").arg(v.x()).arg(v.y()).arg(v.z()); }

// Triples through the out-parameter getters and the static converters.
V get(const QUxColor& c, void (QUxColor::*getter)(float&, float&, float&) const)
{
    float a, b, d;
    (c.*getter)(a, b, d);
    return {a, b, d};
}

V convert(void (*f)(float, float, float, float&, float&, float&), const V& in)
{
    float a, b, d;
    f(in.x(), in.y(), in.z(), a, b, d);
    return {a, b, d};
}

QUxColor fromHsv(const V& hsv)
{
    QUxColor c;
    c.setHSV(hsv.x(), hsv.y(), hsv.z());
    return c;
}
} // namespace

#define VERIFY_NEAR3(actual, expected, tol)                                                                            \
    QVERIFY2(near3(actual, expected, tol), qPrintable(str(actual) + QStringLiteral(" != ") + str(expected)))

// Reference values are published colour-science figures for sRGB with a D65
// white (CIE 1976 L*a*b*), not values produced by the code under test.
class tst_QUxColor : public QObject
{
    Q_OBJECT

private slots:
    void init() { QUxColor::s_useGamma = true; }

    void shouldConvertBetweenRgbAndHsv_data()
    {
        QTest::addColumn<V>("rgb");
        QTest::addColumn<V>("hsv");
        QTest::newRow("red") << V(1, 0, 0) << V(0, 1, 1);
        QTest::newRow("orange, sector 0") << V(1, 0.5f, 0) << V(30, 1, 1);
        QTest::newRow("yellow: red-green tie takes red branch") << V(1, 1, 0) << V(60, 1, 1);
        QTest::newRow("sector 1") << V(0.5f, 1, 0) << V(90, 1, 1);
        QTest::newRow("green") << V(0, 1, 0) << V(120, 1, 1);
        QTest::newRow("sector 2") << V(0, 1, 0.5f) << V(150, 1, 1);
        QTest::newRow("cyan: green-blue tie takes green branch") << V(0, 1, 1) << V(180, 1, 1);
        QTest::newRow("sector 3") << V(0, 0.5f, 1) << V(210, 1, 1);
        QTest::newRow("blue") << V(0, 0, 1) << V(240, 1, 1);
        QTest::newRow("sector 4") << V(0.5f, 0, 1) << V(270, 1, 1);
        QTest::newRow("magenta") << V(1, 0, 1) << V(300, 1, 1);
        QTest::newRow("rose wraps negative hue, sector 5") << V(1, 0, 0.5f) << V(330, 1, 1);
        QTest::newRow("grey") << V(0.5f, 0.5f, 0.5f) << V(0, 0, 0.5f);
        QTest::newRow("black") << V(0, 0, 0) << V(0, 0, 0);
        QTest::newRow("pastel, half saturation") << V(0.8f, 0.4f, 0.4f) << V(0, 0.5f, 0.8f);
        QTest::newRow("hdr above one") << V(4, 2, 2) << V(0, 0.5f, 4);
    }

    void shouldConvertBetweenRgbAndHsv()
    {
        QFETCH(V, rgb);
        QFETCH(V, hsv);
        const QUxColor c(rgb.x(), rgb.y(), rgb.z());
        VERIFY_NEAR3(V(c.getHue(), c.getSaturation(), c.getValue()), hsv, kTight);
        QCOMPARE(get(c, &QUxColor::getHSV), V(c.getHue(), c.getSaturation(), c.getValue()));
        QCOMPARE(convert(&QUxColor::RGBtoHSV, rgb), get(c, &QUxColor::getHSV));
        QUxColor viaSetter;
        viaSetter.setRGB(rgb.x(), rgb.y(), rgb.z());
        QCOMPARE(viaSetter, c);

        QUxColor back;
        back.setHue(hsv.x());
        back.setSaturation(hsv.y());
        back.setValue(hsv.z());
        QCOMPARE(back, fromHsv(hsv));
        const V out = get(back, &QUxColor::getRGB);
        VERIFY_NEAR3(out, rgb, kTight);
        QCOMPARE(V(back.getRed(), back.getGreen(), back.getBlue()), out);
        QCOMPARE(convert(&QUxColor::HSVtoRGB, hsv), out);
    }

    void shouldHoldHueAtOrAbove360NearRedAndTreatNegativeHueAsZero()
    {
        // 5.999833 sectors: f = 0.999833, so blue = 1 - 0.999833 = 0.000167.
        for (float hue : {360.f, 720.f, 359.99f}) {
            const V rgb = get(fromHsv({hue, 1, 1}), &QUxColor::getRGB);
            QCOMPARE(QPointF(rgb.x(), rgb.y()), QPointF(1, 0));
            QVERIFY2(rgb.z() > 0.f && rgb.z() < 0.001f, qPrintable(QString::number(rgb.z())));
        }
        QUxColor negative = fromHsv({-30, 1, 1});
        QCOMPARE(negative.getQColor(), fromHsv({0, 1, 1}).getQColor());
        QCOMPARE(negative.getHue(), -30.f); // stored as given
    }

    void shouldMatchReferenceXyzAndLab_data()
    {
        QTest::addColumn<V>("rgb");
        QTest::addColumn<V>("xyz");
        QTest::addColumn<V>("lab");
        const auto row = [](const char* name, V rgb, V xyz, V lab) { QTest::newRow(name) << rgb << xyz << lab; };
        // sRGB primaries and white: XYZ columns of the sRGB matrix, CIELAB (D65).
        row("white", {1, 1, 1}, {0.95047f, 1.0f, 1.08883f}, {100, 0, 0});
        row("red", {1, 0, 0}, {0.4125f, 0.2127f, 0.0193f}, {53.2408f, 80.0925f, 67.2032f});
        row("green", {0, 1, 0}, {0.3576f, 0.7152f, 0.1192f}, {87.7347f, -86.1827f, 83.1793f});
        row("blue", {0, 0, 1}, {0.1804f, 0.0722f, 0.9503f}, {32.2970f, 79.1875f, -107.8602f});
        // #808080: sRGB 128/255 decodes to linear 0.21586.
        row("mid grey #808080", {0.21586f, 0.21586f, 0.21586f}, {0.2052f, 0.21586f, 0.2351f}, {53.5850f, 0, 0});
        // Dark colours use the linear segment of the L* curve: Y = 0.001 gives L = 903.3 * 0.001.
        const V dark(0.001f, 0.001f, 0.001f);
        row("dark grey, linear segment", dark, {0.00095047f, 0.001f, 0.00108883f}, {0.9033f, 0, 0});
        row("black", {0, 0, 0}, {0, 0, 0}, {0, 0, 0});
    }

    void shouldMatchReferenceXyzAndLab()
    {
        QFETCH(V, rgb);
        QFETCH(V, xyz);
        QFETCH(V, lab);
        const float labTolerance = 0.05f; // published tables differ in the second decimal with their white point
        const QUxColor c(rgb.x(), rgb.y(), rgb.z());
        const V hsv = get(c, &QUxColor::getHSV);
        VERIFY_NEAR3(get(c, &QUxColor::getXYZ), xyz, 1e-4f);
        VERIFY_NEAR3(convert(&QUxColor::RGBtoXYZ, rgb), xyz, 1e-4f);
        QCOMPARE(convert(&QUxColor::HSVtoXYZ, hsv), get(c, &QUxColor::getXYZ));
        const V cLab = get(c, &QUxColor::getLab);
        VERIFY_NEAR3(cLab, lab, labTolerance);
        QCOMPARE(V(c.getLstar(), c.getAstar(), c.getBstar()), cLab);
        VERIFY_NEAR3(convert(&QUxColor::RGBtoLAB, rgb), lab, labTolerance);
        VERIFY_NEAR3(convert(&QUxColor::XYZtoLAB, xyz), lab, labTolerance);
        QCOMPARE(convert(&QUxColor::HSVtoLAB, hsv), cLab);

        // Back to linear RGB from the reference XYZ, and from the computed L*a*b*.
        QUxColor fromXyz, fromLab;
        fromXyz.setXYZ(xyz.x(), xyz.y(), xyz.z());
        VERIFY_NEAR3(get(fromXyz, &QUxColor::getRGB), rgb, 1e-3f);
        VERIFY_NEAR3(convert(&QUxColor::XYZtoRGB, xyz), rgb, 1e-3f);
        QCOMPARE(convert(&QUxColor::XYZtoHSV, xyz), get(fromXyz, &QUxColor::getHSV));
        fromLab.setLab(cLab.x(), cLab.y(), cLab.z());
        VERIFY_NEAR3(get(fromLab, &QUxColor::getRGB), rgb, 1e-4f);
        VERIFY_NEAR3(convert(&QUxColor::LABtoRGB, cLab), rgb, 1e-4f);
        QCOMPARE(convert(&QUxColor::LABtoHSV, cLab), get(fromLab, &QUxColor::getHSV));
        const V absolute = convert(&QUxColor::LABtoXYZ, cLab);
        VERIFY_NEAR3(absolute, xyz, 1e-4f);
        const V white(QUxColor::s_reference_white_X, 1, QUxColor::s_reference_white_Z);
        VERIFY_NEAR3(absolute, convert(&QUxColor::LABtoXYZ_E, cLab) * white, 1e-6f);
    }

    void shouldMapWhiteToUnitXyzWithEqualEnergyMatrix()
    {
        VERIFY_NEAR3(get(QUxColor(1.f, 1.f, 1.f), &QUxColor::getXYZ_E), V(1, 1, 1), 1e-6f);
        // The first column of the published equal-energy matrix.
        VERIFY_NEAR3(convert(&QUxColor::RGBtoXYZ_E, {1, 0, 0}), V(0.43849581f, 0.22285376f, 0.01732081f), 1e-7f);
    }

    void shouldReplaceSingleRgbChannelOrLabCoordinate()
    {
        QUxColor c(0.2f, 0.4f, 0.6f);
        c.setRed(0.9f);
        c.setBlue(0.1f);
        VERIFY_NEAR3(get(c, &QUxColor::getRGB), V(0.9f, 0.4f, 0.1f), kTight);
        c.setGreen(0.f);
        VERIFY_NEAR3(get(c, &QUxColor::getRGB), V(0.9f, 0.f, 0.1f), kTight);

        QUxColor l(0.2f, 0.4f, 0.6f);
        const float a = l.getAstar(), b = l.getBstar();
        l.setLstar(60.f);
        VERIFY_NEAR3(get(l, &QUxColor::getLab), V(60.f, a, b), 1e-3f);
        l.setAstar(0.f);
        l.setBstar(0.f);
        // a* = b* = 0 is neutral grey, up to the rounding of the published matrices.
        QVERIFY2(near(l.getSaturation(), 0.f, 1e-3f), qPrintable(QString::number(l.getSaturation())));
        QVERIFY(near(l.getLstar(), 60.f, 1e-3f));
    }

    void shouldEncodeAndDecodeSrgb_data()
    {
        QTest::addColumn<float>("linear");
        QTest::addColumn<float>("encoded");
        QTest::newRow("0") << 0.f << 0.f;
        QTest::newRow("linear segment") << 0.002f << 0.02584f;
        QTest::newRow("0.5") << 0.5f << 0.735357f;
        QTest::newRow("0.2140 (0.5 encoded)") << 0.214041f << 0.5f;
        QTest::newRow("1") << 1.f << 1.f;
        QTest::newRow("above one kept") << 2.f << 1.353256f;
    }

    void shouldEncodeAndDecodeSrgb()
    {
        QFETCH(float, linear);
        QFETCH(float, encoded);
        const float e = convert(&QUxColor::RGBtoSRGB, {linear, 0, 0}).x();
        QVERIFY2(near(e, encoded, 1e-5f), qPrintable(QString::number(e, 'g', 9)));
        QVERIFY(near(convert(&QUxColor::SRGBtoRGB, {encoded, 0, 0}).x(), linear, 1e-5f));
        QUxColor c;
        c.setSRGB(encoded, encoded, encoded);
        QVERIFY(near(c.getValue(), linear, 1e-5f));
    }

    void shouldClampNegativeChannelOnlyInGammaGetters()
    {
        const QUxColor c(-0.1f, 0.5f, 0.2f);
        QVERIFY(near(get(c, &QUxColor::getSRGB).x(), -1.292f, 1e-5f));
        const V gammaRgb = get(c, &QUxColor::getGammaRGB);
        QCOMPARE(gammaRgb.x(), 0.f);
        QVERIFY(near(gammaRgb.y(), 0.735357f, 1e-5f));
        const V gammaHsv = get(c, &QUxColor::getGammaHSV);
        QVERIFY(near(gammaHsv.z(), 0.735357f, 1e-5f));
        const QUxColor gamma = c.getGammaColor();
        QCOMPARE(get(gamma, &QUxColor::getHSV), gammaHsv);

        // The gamma setters take their linear-RGB argument as encoded.
        QUxColor decoded, viaRgb;
        decoded.setGammaColor(QUxColor(0.5f, 0.5f, 0.5f));
        QVERIFY(near(decoded.getValue(), 0.214041f, 1e-5f));
        viaRgb.setGammaRGB(0.5f, 0.5f, 0.5f);
        QCOMPARE(decoded, viaRgb);
    }

    void shouldEncodeGammaQColorOnlyWhileGammaIsOn()
    {
        QUxColor grey(0.5f, 0.5f, 0.5f);
        QCOMPARE(grey.getGammaQColor(), QColor(187, 187, 187));
        QCOMPARE(grey.getQColor(), QColor(127, 127, 127));
        QCOMPARE(fromHsv({240, 1, 1}).getGammaQColor(), QColor(0, 0, 255));
        QUxColor::s_useGamma = false;
        QCOMPARE(grey.getGammaQColor(), grey.getQColor());
    }

    void shouldClampTo8BitAndUnit_data()
    {
        QTest::addColumn<float>("x");
        QTest::addColumn<int>("expected8Bit");
        QTest::addColumn<float>("expectedUnit");
        QTest::newRow("negative") << -0.1f << 0 << 0.f;
        QTest::newRow("half truncates") << 0.5f << 127 << 0.5f;
        QTest::newRow("0.999 truncates") << 0.999f << 254 << 0.999f;
        QTest::newRow("one") << 1.f << 255 << 1.f;
        QTest::newRow("above one") << 1.5f << 255 << 1.f;
    }

    void shouldClampTo8BitAndUnit()
    {
        QFETCH(float, x);
        QFETCH(int, expected8Bit);
        QFETCH(float, expectedUnit);
        QCOMPARE(QUxColor::getClamped8Bit(x), expected8Bit);
        QCOMPARE(QUxColor::getClamped(x), expectedUnit);
    }

    void shouldClampOnlyInQColorGetters()
    {
        QUxColor hdr = fromHsv({0, 0.75f, 2});
        QCOMPARE(get(hdr, &QUxColor::getRGB), V(2, 0.5f, 0.5f));
        QCOMPARE(hdr.getQColor(), QColor(255, 127, 127));
        QCOMPARE(QColor(hdr.getRedInt(), hdr.getGreenInt(), hdr.getBlueInt()), QColor(255, 127, 127));
        const QColor clamped = hdr.getClampedQColor();
        QCOMPARE(clamped.redF(), 1.0);
        QVERIFY(qAbs(clamped.greenF() - 0.5) < 1e-4);
        QCOMPARE(clamped.alpha(), 255);

        int r = -5, g = 256, b = 255;
        QUxColor::clampRGB8Bit(r, g, b);
        QCOMPARE(QColor(r, g, b), QColor(0, 255, 255));
    }

    void shouldBuildFromIntegersAndQColor()
    {
        const QUxColor fromInts(255, 128, 0);
        QVERIFY(near(fromInts.getValue(), 1.f, kTight));
        QVERIFY(near(fromInts.getHue(), 128.f / 255.f * 60.f, 1e-4f));
        QCOMPARE(QUxColor(QColor(255, 128, 0, 10)), fromInts);
        QUxColor set, copy;
        set.setColor(QColor(255, 128, 0));
        QCOMPARE(set, fromInts);
        copy.setColor(fromInts);
        QCOMPARE(copy, fromInts);
        QCOMPARE(QUxColor(QColor(12, 200, 99)).getQColor(), QColor(12, 200, 99));
        // Integers are scaled, not clamped: 510 is linear 2.0.
        QVERIFY(near(QUxColor(510, 0, 0).getValue(), 2.f, kTight));
    }

    void shouldCompareStoredComponentsExactly()
    {
        QUxColor blackA = fromHsv({0, 0, 0}), blackB = fromHsv({200, 0, 0});
        QCOMPARE(blackA.getQColor(), blackB.getQColor());
        QVERIFY(blackA != blackB && !(blackA == blackB));
        const QUxColor nan = fromHsv({std::nanf(""), 0, 0});
        QVERIFY(nan != nan && !(nan == nan));
    }

    void shouldStartWithDocumentedClassWideSettings()
    {
        QCOMPARE((QVector<float>{QUxColor::s_gamma, QUxColor::s_LabRange, QUxColor::s_reference_white_X,
                                 QUxColor::s_reference_white_Y, QUxColor::s_reference_white_Z}),
                 (QVector<float>{2.2f, 256.0f, 0.95045596f, 1.0f, 1.0890578f}));
        QCOMPARE(sizeof(QUxColor), 3 * sizeof(float));
    }
};

QTEST_GUILESS_MAIN(tst_QUxColor)
#include "tst_QUxColor.moc"
