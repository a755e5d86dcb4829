#include <QUxColorField.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

#include <array>

namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 100;

/// Records every signal of a field by name, in emission order.
class SignalLog : public QObject
{
public:
    explicit SignalLog(QUxColorField* field)
    {
        const auto record = [this](const char* name) {
            return [this, name](float value) { entries.append({QString::fromLatin1(name), value}); };
        };
        connect(field, &QUxColorField::hueChanged, this, record("hueChanged"));
        connect(field, &QUxColorField::saturationChanged, this, record("saturationChanged"));
        connect(field, &QUxColorField::valueChanged, this, record("valueChanged"));
        connect(field, &QUxColorField::redChanged, this, record("redChanged"));
        connect(field, &QUxColorField::greenChanged, this, record("greenChanged"));
        connect(field, &QUxColorField::blueChanged, this, record("blueChanged"));
        connect(field, &QUxColorField::lstarChanged, this, record("lstarChanged"));
        connect(field, &QUxColorField::astarChanged, this, record("astarChanged"));
        connect(field, &QUxColorField::bstarChanged, this, record("bstarChanged"));
        connect(field, &QUxColorField::constantChannelChanged, this, record("constantChannelChanged"));
        connect(field, &QUxColorField::colorChanged, this, [this](const QUxColor& color) {
            entries.append({QStringLiteral("colorChanged"), color.getHue()});
        });
    }

    QStringList names() const
    {
        QStringList result;
        for (const auto& entry : entries)
            result << entry.first;
        return result;
    }

    float valueOf(const QString& name) const
    {
        for (const auto& entry : entries)
            if (entry.first == name)
                return entry.second;
        return std::numeric_limits<float>::quiet_NaN();
    }

    QVector<QPair<QString, float>> entries;
};

const QStringList kAllTen{"colorChanged", "hueChanged",  "saturationChanged", "valueChanged", "redChanged",
                          "greenChanged", "blueChanged", "lstarChanged",      "astarChanged", "bstarChanged"};

void sendMove(QUxColorField* field, const QPoint& pos, Qt::MouseButtons buttons)
{
    QMouseEvent move(QEvent::MouseMove, pos, field->mapToGlobal(pos), Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(field, &move);
}

/// QTest::mouseClick takes QPoint(0, 0) for "the centre", so corners are clicked with plain events.
void click(QUxColorField* field, const QPoint& pos, Qt::MouseButton button = Qt::LeftButton)
{
    const QPoint global = field->mapToGlobal(pos);
    QMouseEvent press(QEvent::MouseButtonPress, pos, global, button, button, Qt::NoModifier);
    QApplication::sendEvent(field, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, pos, global, button, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(field, &release);
}

bool fuzzyEqual(float a, float b, float tolerance) { return qAbs(a - b) <= tolerance; }

using Triple = std::array<float, 3>;

/// Empty when each component is within @p tolerance, else a readable mismatch.
QString mismatch(const Triple& got, const Triple& expected, float tolerance)
{
    for (size_t i = 0; i < 3; ++i)
        if (!fuzzyEqual(got[i], expected[i], tolerance))
            return QString("got (%1, %2, %3), expected (%4, %5, %6)")
                .arg(double(got[0]))
                .arg(double(got[1]))
                .arg(double(got[2]))
                .arg(double(expected[0]))
                .arg(double(expected[1]))
                .arg(double(expected[2]));
    return QString();
}

#define COMPARE_TRIPLE(got, expected, tolerance)                                                                       \
    do {                                                                                                               \
        const QString failure = mismatch(got, expected, tolerance);                                                    \
        QVERIFY2(failure.isEmpty(), qPrintable(failure));                                                              \
    } while (false)

enum Model { HSV, RGB, Lab };

} // namespace

class tst_QUxColorField : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void init()
    {
        uxPlatform::reset();
        QUxColor::s_useGamma = true;
        QUxColor::s_LabRange = 256.0f;
        QUxColor::s_reference_white_X = 0.95045596f;
        QUxColor::s_reference_white_Y = 1.0f;
        QUxColor::s_reference_white_Z = 1.0890578f;
    }

    void shouldStartAsMidGreyInHueMode()
    {
        QUxColorField field;
        QCOMPARE(field.getHue(), 0.0f);
        QCOMPARE(field.getSaturation(), 0.0f);
        QCOMPARE(field.getValue(), 0.5f);
        QCOMPARE(field.getMode(), QUxColorField::Hue);
        QCOMPARE(field.getConstantChannel(), 0.0f);
        QCOMPARE(field.sizeHint(), QSize(256, 256));
        QVERIFY(field.hasMouseTracking());
        QVERIFY(field.objectName().isEmpty());
    }

    void shouldTakeRgbComponentsAndNameInConstructor()
    {
        // Blue is largest: hue = (r - g) * 60 / (b - min) + 240 = 220, s = 0.6 / 0.8.
        QUxColorField field(0.2f, 0.4f, 0.8f, nullptr, "picker");
        float h, s, v;
        field.getHSV(h, s, v);
        COMPARE_TRIPLE((Triple{h, s, v}), (Triple{220.0f, 0.75f, 0.8f}), 1e-4f);
        QCOMPARE(field.objectName(), QStringLiteral("picker"));
        QVERIFY(field.hasMouseTracking());
        QCOMPARE(field.getMode(), QUxColorField::Hue);

        QUxColorField black(0.0f, 0.0f, 0.0f);
        QCOMPARE(black.getSaturation(), 0.0f);
        QCOMPARE(black.getValue(), 0.0f);
    }

    void shouldPickHandComputedColourInEachMode_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<float>("constant");
        QTest::addColumn<QPoint>("pos");
        QTest::addColumn<int>("model");
        QTest::addColumn<float>("e1");
        QTest::addColumn<float>("e2");
        QTest::addColumn<float>("e3");
        QTest::addColumn<float>("tolerance");
        // On a 200 x 100 field the pixel (50, 25) is x fraction 0.25 and y fraction 0.75.
        const QPoint p(50, 25);
        QTest::newRow("Hue") << QUxColorField::Hue << 120.0f << p << int(HSV) << 120.0f << 0.25f << 0.75f << 1e-5f;
        QTest::newRow("Saturation") << QUxColorField::Saturation << 0.6f << p << int(HSV) << 89.9975f << 0.6f << 0.75f
                                    << 1e-3f;
        QTest::newRow("Value") << QUxColorField::Value << 0.4f << p << int(HSV) << 89.9975f << 0.75f << 0.4f << 1e-3f;
        QTest::newRow("Red") << QUxColorField::Red << 0.3f << p << int(RGB) << 0.3f << 0.25f << 0.75f << 1e-5f;
        // (0.3, 0.25, 0.75): blue largest, hue = 0.05 * 60 / 0.5 + 240, s = 0.5 / 0.75.
        QTest::newRow("Red as HSV") << QUxColorField::Red << 0.3f << p << int(HSV) << 246.0f << 0.666667f << 0.75f
                                    << 1e-4f;
        QTest::newRow("Green") << QUxColorField::Green << 0.3f << p << int(RGB) << 0.25f << 0.3f << 0.75f << 1e-5f;
        QTest::newRow("Blue") << QUxColorField::Blue << 0.3f << p << int(RGB) << 0.25f << 0.75f << 0.3f << 1e-5f;
        QTest::newRow("Lstar") << QUxColorField::Lstar << 50.0f << p << int(Lab) << 50.0f << -64.0f << 64.0f << 0.01f;
        QTest::newRow("Astar") << QUxColorField::Astar << 20.0f << p << int(Lab) << 75.0f << 20.0f << -64.0f << 0.01f;
        QTest::newRow("Bstar") << QUxColorField::Bstar << -30.0f << p << int(Lab) << 75.0f << -64.0f << -30.0f << 0.01f;
        // The centre of an L* 50 plane is neutral: Y = ((50 + 16) / 116)^3 = 0.184187.
        QTest::newRow("Lstar centre") << QUxColorField::Lstar << 50.0f << QPoint(100, 50) << int(RGB) << 0.184187f
                                      << 0.184187f << 0.184187f << 1e-4f;
        QTest::newRow("Hue top left") << QUxColorField::Hue << 300.0f << QPoint(0, 0) << int(HSV) << 300.0f << 0.0f
                                      << 1.0f << 0.0f;
    }

    void shouldPickHandComputedColourInEachMode()
    {
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(float, constant);
        QFETCH(QPoint, pos);
        QFETCH(int, model);
        QFETCH(float, e1);
        QFETCH(float, e2);
        QFETCH(float, e3);
        QFETCH(float, tolerance);

        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(10.0f, 0.9f, 0.9f);
        field.setMode(mode);
        field.setConstantChannel(constant);
        click(&field, pos);

        float a, b, c;
        if (model == HSV)
            field.getHSV(a, b, c);
        else if (model == RGB)
            field.getRGB(a, b, c);
        else
            field.getLab(a, b, c);
        COMPARE_TRIPLE((Triple{a, b, c}), (Triple{e1, e2, e3}), tolerance);
    }

    void shouldStopHueAxisShortOfRedAtRightEdge_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::newRow("Saturation") << QUxColorField::Saturation;
        QTest::newRow("Value") << QUxColorField::Value;
    }

    void shouldStopHueAxisShortOfRedAtRightEdge()
    {
        QFETCH(QUxColorField::Mode, mode);
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(100.0f, 1.0f, 1.0f);
        field.setMode(mode);
        QTest::mousePress(&field, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        sendMove(&field, QPoint(kWidth + 40, 10), Qt::LeftButton); // dragged past the edge
        QCOMPARE(field.getHue(), 359.99f);
        QVERIFY(field.getBlue() > 0.0f); // a trace of blue: red-magenta, not the red of hue 0
        QTest::mouseRelease(&field, Qt::LeftButton, Qt::NoModifier, QPoint(kWidth + 40, 10));

        // The last pixel column is one step short of the end of the axis.
        click(&field, QPoint(kWidth - 1, 10));
        QVERIFY(fuzzyEqual(field.getHue(), 359.99f * 199.0f / 200.0f, 1e-3f));
    }

    void shouldPickOnlyWhileLeftButtonAloneIsHeld_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<bool>("picks");
        QTest::newRow("left") << int(Qt::LeftButton) << true;
        QTest::newRow("right") << int(Qt::RightButton) << false;
        QTest::newRow("left and right") << int(Qt::LeftButton | Qt::RightButton) << false;
        QTest::newRow("middle") << int(Qt::MiddleButton) << false;
        QTest::newRow("none") << int(Qt::NoButton) << false;
    }

    void shouldPickOnlyWhileLeftButtonAloneIsHeld()
    {
        QFETCH(int, buttons);
        QFETCH(bool, picks);
        QUxColorField field;
        field.resize(kWidth, kHeight);
        QSignalSpy spy(&field, &QUxColorField::hueChanged);
        sendMove(&field, QPoint(100, 50), Qt::MouseButtons(buttons));
        QCOMPARE(spy.count(), picks ? 1 : 0);
        QCOMPARE(field.getSaturation(), picks ? 0.5f : 0.0f);
    }

    void shouldNotPickWithRightPress()
    {
        QUxColorField field;
        field.resize(kWidth, kHeight);
        QSignalSpy spy(&field, &QUxColorField::hueChanged);
        click(&field, QPoint(100, 50), Qt::RightButton);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(field.getValue(), 0.5f);
    }

    void shouldEmitAllTenSignalsInOrderOnceForWholeColourSetters_data()
    {
        QTest::addColumn<QString>("setter");
        QTest::newRow("setHSV") << "setHSV";
        QTest::newRow("setRGB") << "setRGB";
        QTest::newRow("setLab") << "setLab";
        QTest::newRow("setColor") << "setColor";
    }

    void shouldEmitAllTenSignalsInOrderOnceForWholeColourSetters()
    {
        QFETCH(QString, setter);
        QUxColorField field;
        field.setHSV(30.0f, 0.5f, 0.8f);
        SignalLog log(&field);
        const auto apply = [&] {
            if (setter == "setHSV")
                field.setHSV(200.0f, 0.3f, 0.6f);
            else if (setter == "setRGB")
                field.setRGB(0.1f, 0.7f, 0.2f);
            else if (setter == "setLab")
                field.setLab(40.0f, 10.0f, -20.0f);
            else
                field.setColor(QUxColor(0.9f, 0.1f, 0.4f));
        };
        apply();
        QCOMPARE(log.names(), kAllTen);
        log.entries.clear();
        apply();
        QCOMPARE(log.names(), QStringList());
    }

    void shouldCarryDerivedValuesInSignals()
    {
        QUxColorField field;
        SignalLog log(&field);
        QUxColor received;
        connect(&field, &QUxColorField::colorChanged, &log, [&](const QUxColor& c) { received = c; });
        field.setHSV(240.0f, 1.0f, 1.0f);
        QCOMPARE(log.valueOf("hueChanged"), 240.0f);
        QCOMPARE(log.valueOf("saturationChanged"), 1.0f);
        QCOMPARE(log.valueOf("valueChanged"), 1.0f);
        QCOMPARE(log.valueOf("redChanged"), 0.0f);
        QCOMPARE(log.valueOf("greenChanged"), 0.0f);
        QCOMPARE(log.valueOf("blueChanged"), 1.0f);
        // CIE L*a*b* of the linear blue primary against D65.
        const Triple lab{log.valueOf("lstarChanged"), log.valueOf("astarChanged"), log.valueOf("bstarChanged")};
        COMPARE_TRIPLE(lab, (Triple{32.297f, 79.189f, -107.847f}), 0.01f);
        QCOMPARE(received.getHue(), 240.0f);
        QCOMPARE(received.getValue(), 1.0f);
    }

    void shouldEmitOnlyAffectedSignalsForChannelSetters_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<QString>("slot");
        QTest::addColumn<float>("value");
        QTest::addColumn<QStringList>("expected");
        const QStringList rgb{"redChanged", "greenChanged", "blueChanged"};
        const QStringList lab{"lstarChanged", "astarChanged", "bstarChanged"};
        const QStringList hsv{"hueChanged", "saturationChanged", "valueChanged"};
        const QStringList color{"colorChanged"};
        QTest::newRow("setHue in Hue mode")
            << QUxColorField::Hue << "setHue" << 200.0f << color + QStringList{"hueChanged"} + rgb + lab;
        QTest::newRow("setHue in Red mode")
            << QUxColorField::Red << "setHue" << 200.0f << color + QStringList{"hueChanged"} + rgb + lab;
        QTest::newRow("setSaturation") << QUxColorField::Value << "setSaturation" << 0.2f
                                       << color + QStringList{"saturationChanged"} + rgb + lab;
        QTest::newRow("setValue") << QUxColorField::Lstar << "setValue" << 0.3f
                                  << color + QStringList{"valueChanged"} + rgb + lab;
        QTest::newRow("setRed") << QUxColorField::Hue << "setRed" << 0.9f
                                << color + hsv + QStringList{"redChanged"} + lab;
        QTest::newRow("setGreen") << QUxColorField::Blue << "setGreen" << 0.1f
                                  << color + hsv + QStringList{"greenChanged"} + lab;
        QTest::newRow("setBlue") << QUxColorField::Saturation << "setBlue" << 0.6f
                                 << color + hsv + QStringList{"blueChanged"} + lab;
        QTest::newRow("setLstar") << QUxColorField::Astar << "setLstar" << 40.0f
                                  << color + hsv + rgb + QStringList{"lstarChanged"};
        QTest::newRow("setAstar") << QUxColorField::Hue << "setAstar" << -10.0f
                                  << color + hsv + rgb + QStringList{"astarChanged"};
        QTest::newRow("setBstar") << QUxColorField::Green << "setBstar" << 20.0f
                                  << color + hsv + rgb + QStringList{"bstarChanged"};
    }

    void shouldEmitOnlyAffectedSignalsForChannelSetters()
    {
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(QString, slot);
        QFETCH(float, value);
        QFETCH(QStringList, expected);
        QUxColorField field;
        field.setHSV(30.0f, 0.5f, 0.8f);
        field.setMode(mode);
        SignalLog log(&field);
        // Invoked by signature text, as hosts connect them.
        QVERIFY(QMetaObject::invokeMethod(&field, qPrintable(slot), Q_ARG(float, value)));
        QCOMPARE(log.names(), expected);
        log.entries.clear();
        QVERIFY(QMetaObject::invokeMethod(&field, qPrintable(slot), Q_ARG(float, value)));
        QCOMPARE(log.names(), QStringList());
    }

    void shouldIgnoreConstantChannelChangesWithinTolerance()
    {
        QUxColorField field;
        field.setMode(QUxColorField::Value);
        QCOMPARE(field.getConstantChannel(), 0.5f);
        SignalLog log(&field);
        field.setConstantChannel(0.5009f);
        QCOMPARE(log.names(), QStringList());
        QCOMPARE(field.getValue(), 0.5f);
        QCOMPARE(field.getConstantChannel(), 0.5f);

        field.setConstantChannel(0.6f);
        QCOMPARE(log.names(), (QStringList{"colorChanged", "valueChanged", "redChanged", "greenChanged", "blueChanged",
                                           "lstarChanged", "astarChanged", "bstarChanged"}));
        QCOMPARE(field.getValue(), 0.6f);
        QCOMPARE(field.getConstantChannel(), 0.6f);
    }

    void shouldStoreNanConstantChannelAsZero()
    {
        QUxColorField field;
        field.setHSV(0.0f, 0.0f, 0.7f);
        field.setMode(QUxColorField::Value);
        field.setConstantChannel(std::numeric_limits<float>::quiet_NaN());
        QCOMPARE(field.getConstantChannel(), 0.0f);
        QCOMPARE(field.getValue(), 0.0f);
    }

    void shouldSettleOnUndefinedOrHugeInput_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<QString>("input");
        const auto modes = QMetaEnum::fromType<QUxColorField::Mode>();
        for (int m = 0; m < modes.keyCount(); ++m) {
            const auto mode = QUxColorField::Mode(modes.value(m));
            QTest::addRow("%s NaN saturation", modes.key(m)) << mode << "hsv";
            QTest::addRow("%s NaN green", modes.key(m)) << mode << "rgb";
            QTest::addRow("%s huge L*", modes.key(m)) << mode << "lab";
            QTest::addRow("%s huge constant", modes.key(m)) << mode << "constant";
        }
    }

    void shouldSettleOnUndefinedOrHugeInput()
    {
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(QString, input);
        const float nan = std::numeric_limits<float>::quiet_NaN();
        const float huge = std::numeric_limits<float>::max();
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(30.0f, 0.5f, 0.8f);
        field.setMode(mode);
        QSignalSpy spy(&field, &QUxColorField::colorChanged);
        if (input == "hsv")
            field.setHSV(0.0f, nan, 0.5f);
        else if (input == "rgb")
            field.setRGB(0.5f, nan, 0.2f);
        else if (input == "lab")
            field.setLab(huge, 0.0f, 0.0f);
        else
            field.setConstantChannel(huge);
        QVERIFY(spy.count() >= 1);
        QVERIFY(spy.count() < 10); // returned instead of recursing
        QVERIFY(!std::isnan(field.getConstantChannel()));
        QCOMPARE(uxTest::grab(&field).size(), QSize(kWidth, kHeight));
    }

    void shouldMoveHeldChannelWithConstantChannel_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<float>("constant");
        QTest::newRow("Hue") << QUxColorField::Hue << 150.0f;
        QTest::newRow("Saturation") << QUxColorField::Saturation << 0.25f;
        QTest::newRow("Value") << QUxColorField::Value << 0.25f;
        QTest::newRow("Red") << QUxColorField::Red << 0.1f;
        QTest::newRow("Green") << QUxColorField::Green << 0.1f;
        QTest::newRow("Blue") << QUxColorField::Blue << 0.1f;
        QTest::newRow("Lstar") << QUxColorField::Lstar << 30.0f;
        QTest::newRow("Astar") << QUxColorField::Astar << -40.0f;
        QTest::newRow("Bstar") << QUxColorField::Bstar << 45.0f;
    }

    void shouldMoveHeldChannelWithConstantChannel()
    {
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(float, constant);
        using Getter = float (QUxColorField::*)() const;
        const Getter getters[] = {&QUxColorField::getHue,   &QUxColorField::getSaturation, &QUxColorField::getValue,
                                  &QUxColorField::getRed,   &QUxColorField::getGreen,      &QUxColorField::getBlue,
                                  &QUxColorField::getLstar, &QUxColorField::getAstar,      &QUxColorField::getBstar};
        QUxColorField field;
        field.setHSV(30.0f, 0.5f, 0.8f);
        field.setMode(mode);
        QSignalSpy modeSpy(&field, &QUxColorField::constantChannelChanged);
        field.setConstantChannel(constant);
        const float result = (field.*getters[mode])();
        QVERIFY2(fuzzyEqual(result, constant, 1e-3f), qPrintable(QString::number(double(result))));
        QCOMPARE(field.getConstantChannel(), constant);
        QCOMPARE(modeSpy.count(), 0);
    }

    void shouldHoldChannelOfNewModeWhenSwitching_data()
    {
        QTest::addColumn<QString>("slot");
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<float>("held");
        // The colour is linear RGB (0.2, 0.4, 0.8); its L*a*b* worked out with the CIE 1976 formulas.
        QTest::newRow("Hue") << "setHueMode" << QUxColorField::Hue << 220.0f;
        QTest::newRow("Saturation") << "setSaturationMode" << QUxColorField::Saturation << 0.75f;
        QTest::newRow("Value") << "setValueMode" << QUxColorField::Value << 0.8f;
        QTest::newRow("Red") << "setRedMode" << QUxColorField::Red << 0.2f;
        QTest::newRow("Green") << "setGreenMode" << QUxColorField::Green << 0.4f;
        QTest::newRow("Blue") << "setBlueMode" << QUxColorField::Blue << 0.8f;
        QTest::newRow("Lstar") << "setLstarMode" << QUxColorField::Lstar << 68.485f;
        QTest::newRow("Astar") << "setAstarMode" << QUxColorField::Astar << 0.8828f;
        QTest::newRow("Bstar") << "setBstarMode" << QUxColorField::Bstar << -35.676f;
    }

    void shouldHoldChannelOfNewModeWhenSwitching()
    {
        QFETCH(QString, slot);
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(float, held);
        QUxColorField field(0.2f, 0.4f, 0.8f);
        field.setMode(mode == QUxColorField::Hue ? QUxColorField::Bstar : QUxColorField::Hue);
        const QUxColor before = field.getColor();
        SignalLog log(&field);

        QVERIFY(QMetaObject::invokeMethod(&field, qPrintable(slot), Q_ARG(bool, false)));
        QCOMPARE(log.names(), QStringList());
        QVERIFY(field.getMode() != mode);

        QVERIFY(QMetaObject::invokeMethod(&field, qPrintable(slot), Q_ARG(bool, true)));
        QCOMPARE(log.names(), QStringList{"constantChannelChanged"});
        QVERIFY(fuzzyEqual(log.valueOf("constantChannelChanged"), held, 2e-3f));
        QCOMPARE(field.getMode(), mode);
        QVERIFY(fuzzyEqual(field.getConstantChannel(), held, 2e-3f));
        QVERIFY(field.getColor() == before); // switching mode never moves the colour

        log.entries.clear();
        QVERIFY(QMetaObject::invokeMethod(&field, qPrintable(slot), Q_ARG(bool, true)));
        field.setMode(mode);
        QCOMPARE(log.names(), QStringList());
    }

    void shouldConnectModeSlotsBySignatureText()
    {
        QUxColorField field;
        QSignalSpy spy(&field, SIGNAL(constantChannelChanged(float)));
        QVERIFY(connect(&field, SIGNAL(colorChanged(QUxColor)), &field, SLOT(updateConstantChannel(QUxColor))));
        QVERIFY(QMetaObject::invokeMethod(&field, "setMode", Q_ARG(QUxColorField::Mode, QUxColorField::Blue)));
        QCOMPARE(field.getMode(), QUxColorField::Blue);
        QCOMPARE(spy.count(), 1);
    }

    void shouldFollowColourWithConstantChannel()
    {
        QUxColorField field;
        field.setMode(QUxColorField::Red);
        field.setRGB(0.7f, 0.2f, 0.1f);
        QVERIFY(fuzzyEqual(field.getConstantChannel(), 0.7f, 1e-5f));
        QUxColor other(0.25f, 0.5f, 0.5f);
        field.updateConstantChannel(other);
        QVERIFY(fuzzyEqual(field.getRed(), 0.25f, 1e-5f));
        QVERIFY(fuzzyEqual(field.getGreen(), 0.2f, 1e-5f)); // only the held channel is taken
    }

    void shouldPaintCornersAndCentreInThePickedColour_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<bool>("gamma");
        const auto modes = QMetaEnum::fromType<QUxColorField::Mode>();
        for (int m = 0; m < modes.keyCount(); ++m) {
            const auto mode = QUxColorField::Mode(modes.value(m));
            QTest::addRow("%s gamma", modes.key(m)) << mode << true;
            QTest::addRow("%s linear", modes.key(m)) << mode << false;
        }
    }

    void shouldPaintCornersAndCentreInThePickedColour()
    {
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(bool, gamma);
        QUxColor::s_useGamma = gamma;
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(200.0f, 0.7f, 0.6f);
        field.setMode(mode);
        click(&field, QPoint(60, 70)); // marker out of the way
        const QImage painted = uxTest::grab(&field);
        QCOMPARE(painted.size(), QSize(kWidth, kHeight));

        const QVector<QPoint> points{{0, 0}, {kWidth - 1, 0}, {0, kHeight - 1}, {kWidth - 1, kHeight - 1}, {100, 50}};
        for (const QPoint& p : points) {
            click(&field, p);
            const QColor picked = field.getColor().getQColor();
            const QColor shown = painted.pixelColor(p);
            QVERIFY2(uxTest::sameColor(shown, picked, 1), qPrintable(QString("at (%1, %2): painted %3, picked %4")
                                                                         .arg(p.x())
                                                                         .arg(p.y())
                                                                         .arg(shown.name(), picked.name())));
        }
    }

    void shouldPaintLinearLevelsWhateverTheGammaSwitch_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<float>("constant");
        QTest::addColumn<QPoint>("pos");
        QTest::addColumn<QColor>("expected");
        // Levels are linear channel * 255, truncated; sRGB encoding would turn 0.5 into 187.
        // HSV (0, 0.5, 0.5) is RGB (0.5, 0.25, 0.25).
        QTest::newRow("Hue centre") << QUxColorField::Hue << 0.0f << QPoint(100, 50) << QColor(127, 63, 63);
        // Hue 0, saturation 0.5, value 1 is RGB (1, 0.5, 0.5).
        QTest::newRow("Value left") << QUxColorField::Value << 1.0f << QPoint(0, 50) << QColor(255, 127, 127);
        // Green 199 / 200 = 0.995 (253.7), blue 1.
        QTest::newRow("Red top right") << QUxColorField::Red << 0.5f << QPoint(199, 0) << QColor(127, 253, 255);
        // The neutral grey of L* 50: Y = ((50 + 16) / 116)^3 = 0.184187 (46.97).
        QTest::newRow("Lstar centre") << QUxColorField::Lstar << 50.0f << QPoint(100, 50) << QColor(46, 46, 46);
    }

    void shouldPaintLinearLevelsWhateverTheGammaSwitch()
    {
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(float, constant);
        QFETCH(QPoint, pos);
        QFETCH(QColor, expected);
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(0.0f, 0.9f, 0.9f); // keeps the marker away from the probed pixels
        field.setMode(mode);
        field.setConstantChannel(constant);
        QCOMPARE(uxTest::grab(&field).pixelColor(pos), expected);
        QUxColor::s_useGamma = false;
        QCOMPARE(uxTest::grab(&field).pixelColor(pos), expected);
    }

    void shouldDrawMarkerOnCurrentColour()
    {
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(120.0f, 0.25f, 0.75f); // x = 0.25 * 200, y = (1 - 0.75) * 100
        const QImage painted = uxTest::grab(&field);
        QCOMPARE(painted.pixelColor(50, 25), QColor(Qt::black));
        const QColor ring = painted.pixelColor(50, 22);
        QVERIFY2(ring.red() > 200 && ring.green() > 200 && ring.blue() > 200, qPrintable(ring.name()));
    }

    void shouldKeepMarkerInsideForOutOfRangeColours_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<int>("model");
        QTest::addColumn<float>("c1");
        QTest::addColumn<float>("c2");
        QTest::addColumn<float>("c3");
        QTest::addColumn<QPoint>("corner");
        const QPoint topLeft(0, 0), topRight(kWidth - 1, 0), bottomLeft(0, kHeight - 1),
            bottomRight(kWidth - 1, kHeight - 1);
        QTest::newRow("Lab beyond a* and below b*")
            << QUxColorField::Lstar << int(Lab) << 50.0f << 200.0f << -200.0f << bottomRight;
        QTest::newRow("Lab before a* and above b*")
            << QUxColorField::Lstar << int(Lab) << 50.0f << -400.0f << 400.0f << topLeft;
        QTest::newRow("L* above 100") << QUxColorField::Bstar << int(Lab) << 140.0f << -300.0f << 0.0f << topLeft;
        QTest::newRow("RGB above 1") << QUxColorField::Red << int(RGB) << 0.5f << 3.0f << 2.0f << topRight;
        QTest::newRow("RGB below 0") << QUxColorField::Blue << int(RGB) << -0.5f << -0.2f << 0.5f << bottomLeft;
        QTest::newRow("value above 1") << QUxColorField::Hue << int(HSV) << 10.0f << 1.5f << 4.0f << topRight;
        QTest::newRow("hue beyond 360") << QUxColorField::Saturation << int(HSV) << 720.0f << 0.5f << -1.0f
                                        << bottomRight;
    }

    void shouldKeepMarkerInsideForOutOfRangeColours()
    {
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(int, model);
        QFETCH(float, c1);
        QFETCH(float, c2);
        QFETCH(float, c3);
        QFETCH(QPoint, corner);
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setMode(mode);
        if (model == HSV)
            field.setHSV(c1, c2, c3);
        else if (model == RGB)
            field.setRGB(c1, c2, c3);
        else
            field.setLab(c1, c2, c3);
        const QImage painted = uxTest::grab(&field);
        QCOMPARE(painted.pixelColor(corner), QColor(Qt::black));
    }

    void shouldReusePlaneWhileOnlyTheMarkerMoves()
    {
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(40.0f, 0.5f, 0.5f);
        field.setMode(QUxColorField::Saturation);
        const QImage first = field.fieldImage();
        uxTest::grab(&field);
        field.setHSV(300.0f, 0.5f, 0.9f); // same saturation: the plane stays
        click(&field, QPoint(20, 30));
        uxTest::grab(&field);
        QCOMPARE(field.fieldImage().cacheKey(), first.cacheKey());
        QCOMPARE(field.fieldImage(),
                 QUxColorField::renderField(QUxColorField::Saturation, 0.5f, QSize(kWidth, kHeight), 1.0));
    }

    void shouldRecomputePlaneWhenItsInputsChange_data()
    {
        QTest::addColumn<int>("change");
        QTest::newRow("constant channel") << 0;
        QTest::newRow("size") << 1;
        QTest::newRow("mode") << 2;
        QTest::newRow("reference white") << 3;
    }

    void shouldRecomputePlaneWhenItsInputsChange()
    {
        QFETCH(int, change);
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(40.0f, 0.5f, 0.5f);
        field.setMode(QUxColorField::Astar);
        const QImage before = field.fieldImage();
        uxTest::grab(&field);
        switch (change) {
        case 0:
            field.setConstantChannel(-50.0f);
            break;
        case 1:
            field.resize(kWidth + 30, kHeight - 20);
            break;
        case 2:
            field.setMode(QUxColorField::Lstar);
            break;
        default:
            QUxColor::s_reference_white_X = 0.9642f; // D50
            QUxColor::s_reference_white_Z = 0.8249f;
            break;
        }
        uxTest::grab(&field);
        const QImage cached = field.fieldImage();
        QVERIFY(cached != before);
        const QImage fresh = QUxColorField::renderField(field.getMode(), field.getConstantChannel(), field.size(), 1.0);
        QCOMPARE(cached, fresh);
    }

    void shouldRenderSharpPlaneAtDevicePixelRatio()
    {
        const QSize logical(50, 40);
        const QImage single = QUxColorField::renderField(QUxColorField::Value, 0.8f, logical, 1.0);
        const QImage doubled = QUxColorField::renderField(QUxColorField::Value, 0.8f, logical, 2.0);
        QCOMPARE(doubled.size(), QSize(100, 80));
        QCOMPARE(doubled.devicePixelRatio(), 2.0);
        QCOMPARE(doubled.format(), QImage::Format_RGB32);
        for (const QPoint& p : {QPoint(0, 0), QPoint(49, 0), QPoint(25, 20), QPoint(0, 39), QPoint(49, 39)})
            QCOMPARE(doubled.pixel(2 * p.x(), 2 * p.y()), single.pixel(p));
        // The in-between pixels carry detail of their own rather than repeating a neighbour.
        QVERIFY(doubled.pixel(51, 40) != doubled.pixel(50, 40));

        QCOMPARE(QUxColorField::renderField(QUxColorField::Hue, 0.0f, logical, 1.5).size(), QSize(75, 60));
        QVERIFY(QUxColorField::renderField(QUxColorField::Hue, 0.0f, QSize(0, 10), 1.0).isNull());
    }

    void shouldShowColourUnderPointerAsToolTip()
    {
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(120.0f, 0.1f, 0.1f);
        field.show();
        QVERIFY(QTest::qWaitForWindowExposed(&field));
        const QPoint pos(50, 25);
        QHelpEvent help(QEvent::ToolTip, pos, field.mapToGlobal(pos));
        QApplication::sendEvent(&field, &help);
        QCOMPARE(QToolTip::text(), QStringLiteral("H 120.0\u00b0  S 0.250  V 0.750"));
        QCOMPARE(field.getSaturation(), 0.1f); // hovering never picks
        QToolTip::hideText();
    }
};

QTEST_MAIN(tst_QUxColorField)
#include "tst_QUxColorField.moc"
