#include <QUxColorField.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

#include <array>
#include <functional>
#include <tuple>

namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 100;

/// Records every signal of a field by name, in emission order, with its value (the hue for colorChanged).
class SignalLog : public QObject
{
public:
    explicit SignalLog(QUxColorField* field)
    {
        using Signal = void (QUxColorField::*)(float);
#define ENTRY(name) std::pair<const char*, Signal>(#name, &QUxColorField::name)
        const std::pair<const char*, Signal> channelSignals[] = {
            ENTRY(hueChanged),   ENTRY(saturationChanged),     ENTRY(valueChanged), ENTRY(redChanged),
            ENTRY(greenChanged), ENTRY(blueChanged),           ENTRY(lstarChanged), ENTRY(astarChanged),
            ENTRY(bstarChanged), ENTRY(constantChannelChanged)};
#undef ENTRY
        for (const auto& [name, signal] : channelSignals)
            connect(field, signal, this, [this, name = QString(name)](float value) { record(name, value); });
        connect(field, &QUxColorField::colorChanged, this,
                [this](const QUxColor& color) { record(QStringLiteral("colorChanged"), color.getHue()); });
    }

    void record(const QString& name, float value) { names << name, values << value; }
    void clear() { names.clear(), values.clear(); }

    QStringList names;
    QList<float> values;
};

/// Signal names from words, where "hsv", "rgb" and "lab" stand for their three channel signals in order.
QStringList signalNames(const QString& words)
{
    const QMap<QString, QStringList> groups{{"hsv", {"hueChanged", "saturationChanged", "valueChanged"}},
                                            {"rgb", {"redChanged", "greenChanged", "blueChanged"}},
                                            {"lab", {"lstarChanged", "astarChanged", "bstarChanged"}}};
    QStringList names;
    for (const QString& word : words.split(' '))
        names += groups.value(word, {word});
    return names;
}

const QString kAllTen = QStringLiteral("colorChanged hsv rgb lab");

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

/// Compares each component within @p tol, naming the first that differs.
#define COMPARE_TRIPLE(got, expected, tol)                                                                             \
    for (size_t i_ = 0; i_ < 3; ++i_)                                                                                  \
    QVERIFY2(fuzzyEqual((got)[i_], (expected)[i_], tol),                                                               \
             qPrintable(QString("component %1: got %2, expected %3").arg(i_).arg((got)[i_]).arg((expected)[i_])))

constexpr int HSV = 0, RGB = 1, Lab = 2; // colour models, as table columns

Triple colorIn(const QUxColorField& field, int model)
{
    float a, b, c;
    model == HSV ? field.getHSV(a, b, c) : model == RGB ? field.getRGB(a, b, c) : field.getLab(a, b, c);
    return {a, b, c};
}

void setColorIn(QUxColorField& field, int model, float a, float b, float c)
{
    model == HSV ? field.setHSV(a, b, c) : model == RGB ? field.setRGB(a, b, c) : field.setLab(a, b, c);
}

/// Mode, constant channel, pressed pixel, colour model read back, its triple, tolerance, level painted there.
using Pick = std::tuple<QUxColorField::Mode, float, QPoint, int, Triple, float, QColor>;
/// Mode, slot invoked by its text, its arguments, the signals expected.
using Emission = std::tuple<QUxColorField::Mode, QString, QVector<float>, QStringList>;
/// Mode, colour model, colour set in it, where the marker's centre lands.
using Marker = std::tuple<QUxColorField::Mode, int, Triple, QPoint>;

} // namespace

Q_DECLARE_METATYPE(Triple)
Q_DECLARE_METATYPE(Pick)
Q_DECLARE_METATYPE(Emission)
Q_DECLARE_METATYPE(Marker)

class tst_QUxColorField : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void init()
    {
        uxPlatform::reset();
        QUxColor::s_useGamma = true;
        QUxColor::s_reference_white_X = 0.95045596f;
        QUxColor::s_reference_white_Z = 1.0890578f;
    }

    void shouldConstructMidGreyOrFromRgbInHueMode()
    {
        QUxColorField field;
        COMPARE_TRIPLE(colorIn(field, HSV), (Triple{0.0f, 0.0f, 0.5f}), 0.0f);
        QCOMPARE(qMakePair(field.getMode(), field.getConstantChannel()), qMakePair(QUxColorField::Hue, 0.0f));
        QCOMPARE(field.sizeHint(), QSize(256, 256));
        QVERIFY(field.hasMouseTracking());

        // Blue is largest: hue = (r - g) * 60 / (b - min) + 240 = 220, s = 0.6 / 0.8.
        QUxColorField picker(0.2f, 0.4f, 0.8f, nullptr, "picker");
        COMPARE_TRIPLE(colorIn(picker, HSV), (Triple{220.0f, 0.75f, 0.8f}), 1e-4f);
        QCOMPARE(picker.objectName(), QStringLiteral("picker"));
    }

    void shouldPickAndPaintHandComputedColourInEachMode_data()
    {
        using F = QUxColorField;
        QTest::addColumn<Pick>("pick");
        const auto row = [](const char* name, F::Mode mode, float constant, QPoint pos, int model, Triple picked,
                            float tolerance, QColor level = QColor()) {
            QTest::newRow(name) << Pick{mode, constant, pos, model, picked, tolerance, level};
        };
        // On a 200 x 100 field the pixel (50, 25) is x fraction 0.25 and y fraction 0.75.
        const QPoint p(50, 25);
        row("Hue", F::Hue, 120, p, HSV, {120, 0.25f, 0.75f}, 1e-5f);
        row("Saturation", F::Saturation, 0.6f, p, HSV, {89.9975f, 0.6f, 0.75f}, 1e-3f);
        row("Value", F::Value, 0.4f, p, HSV, {89.9975f, 0.75f, 0.4f}, 1e-3f);
        row("Red", F::Red, 0.3f, p, RGB, {0.3f, 0.25f, 0.75f}, 1e-5f);
        row("Green", F::Green, 0.3f, p, RGB, {0.25f, 0.3f, 0.75f}, 1e-5f);
        row("Blue", F::Blue, 0.3f, p, RGB, {0.25f, 0.75f, 0.3f}, 1e-5f);
        row("Lstar", F::Lstar, 50, p, Lab, {50, -64, 64}, 0.01f);
        row("Astar", F::Astar, 20, p, Lab, {75, 20, -64}, 0.01f);
        row("Bstar", F::Bstar, -30, p, Lab, {75, -64, -30}, 0.01f);
        row("Hue top left", F::Hue, 300, QPoint(0, 0), HSV, {300, 0, 1}, 0.0f);
        // The hue axis stops at 359.99, so a press beyond the edge never wraps to red; the last column is
        // one step short of that: 359.99 * 199 / 200.
        row("Saturation past the edge", F::Saturation, 1, QPoint(240, 10), HSV, {359.99f, 1, 0.9f}, 0.0f);
        row("Saturation last column", F::Saturation, 1, QPoint(199, 10), HSV, {358.19005f, 1, 0.9f}, 1e-3f);
        // Levels are linear channel * 255, truncated, whatever the gamma switch; sRGB would turn 0.5 into 187.
        // The centre of an L* 50 plane is neutral: Y = ((50 + 16) / 116)^3 = 0.184187 (46.97).
        const QPoint centre(100, 50);
        row("Lstar centre", F::Lstar, 50, centre, RGB, {0.184187f, 0.184187f, 0.184187f}, 1e-4f, QColor(46, 46, 46));
        // HSV (0, 0.5, 0.5) is RGB (0.5, 0.25, 0.25); hue 0, saturation 0.5, value 1 is RGB (1, 0.5, 0.5).
        row("Hue centre", F::Hue, 0, centre, RGB, {0.5f, 0.25f, 0.25f}, 1e-5f, QColor(127, 63, 63));
        row("Value left", F::Value, 1, QPoint(0, 50), RGB, {1, 0.5f, 0.5f}, 1e-5f, QColor(255, 127, 127));
        // Green 199 / 200 = 0.995 (253.7), blue 1.
        row("Red top right", F::Red, 0.5f, QPoint(199, 0), RGB, {0.5f, 0.995f, 1}, 1e-5f, QColor(127, 253, 255));
    }

    void shouldPickAndPaintHandComputedColourInEachMode()
    {
        QFETCH(Pick, pick);
        const auto& [mode, constant, pos, model, picked, tolerance, level] = pick;
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(10.0f, 0.9f, 0.9f); // keeps the marker away from the probed pixels
        field.setMode(mode);
        field.setConstantChannel(constant);
        if (level.isValid()) {
            QCOMPARE(uxTest::grab(&field).pixelColor(pos), level);
            QUxColor::s_useGamma = false;
            QCOMPARE(uxTest::grab(&field).pixelColor(pos), level);
        }
        click(&field, pos);
        COMPARE_TRIPLE(colorIn(field, model), picked, tolerance);
    }

    void shouldPickOnlyWithLeftButtonAlone_data()
    {
        QTest::addColumn<bool>("press"); // else a move with the buttons held
        QTest::addColumn<int>("buttons");
        QTest::addColumn<bool>("picks");
        QTest::newRow("move, left") << false << int(Qt::LeftButton) << true;
        QTest::newRow("move, right") << false << int(Qt::RightButton) << false;
        QTest::newRow("move, left and right") << false << int(Qt::LeftButton | Qt::RightButton) << false;
        QTest::newRow("move, none") << false << int(Qt::NoButton) << false;
        QTest::newRow("press, right") << true << int(Qt::RightButton) << false;
    }

    void shouldPickOnlyWithLeftButtonAlone()
    {
        QFETCH(bool, press);
        QFETCH(int, buttons);
        QFETCH(bool, picks);
        QUxColorField field;
        field.resize(kWidth, kHeight);
        QSignalSpy spy(&field, &QUxColorField::hueChanged);
        const QPoint beyond(kWidth + 40, 50); // a drag that leaves the field picks at its edge
        if (press)
            click(&field, beyond, Qt::MouseButton(buttons));
        else
            uxTest::moveMouse(&field, beyond, Qt::MouseButtons(buttons));
        QCOMPARE(spy.count(), picks ? 1 : 0);
        QCOMPARE(field.getSaturation(), picks ? 1.0f : 0.0f);
    }

    void shouldEmitAffectedSignalsInOrderOnce_data()
    {
        using F = QUxColorField;
        QTest::addColumn<Emission>("emission");
        // Whole-colour setters announce all ten; channel setters all but their siblings.
        const auto row = [](const char* slot, F::Mode mode, const QVector<float>& args, const QString& names) {
            QTest::addRow("%s in %d", slot, int(mode)) << Emission{mode, slot, args, signalNames(names)};
        };
        row("setHSV", F::Hue, {200, 0.3f, 0.6f}, kAllTen);
        row("setRGB", F::Hue, {0.1f, 0.7f, 0.2f}, kAllTen);
        row("setLab", F::Hue, {40, 10, -20}, kAllTen);
        row("setColor", F::Hue, {0.9f, 0.1f, 0.4f}, kAllTen);
        row("setHue", F::Hue, {200}, "colorChanged hueChanged rgb lab");
        row("setSaturation", F::Value, {0.2f}, "colorChanged saturationChanged rgb lab");
        row("setValue", F::Lstar, {0.3f}, "colorChanged valueChanged rgb lab");
        row("setRed", F::Hue, {0.9f}, "colorChanged hsv redChanged lab");
        row("setGreen", F::Blue, {0.1f}, "colorChanged hsv greenChanged lab");
        row("setBlue", F::Saturation, {0.6f}, "colorChanged hsv blueChanged lab");
        row("setLstar", F::Astar, {40}, "colorChanged hsv rgb lstarChanged");
        row("setAstar", F::Hue, {-10}, "colorChanged hsv rgb astarChanged");
        row("setBstar", F::Green, {20}, "colorChanged hsv rgb bstarChanged");
    }

    void shouldEmitAffectedSignalsInOrderOnce()
    {
        QFETCH(Emission, emission);
        const auto& [mode, slot, args, expected] = emission;
        QUxColorField field;
        field.setHSV(30.0f, 0.5f, 0.8f);
        field.setMode(mode);
        SignalLog log(&field);
        // Invoked by signature text, as hosts connect them; the same call again changes nothing.
        for (const QStringList& names : {expected, QStringList()}) {
            if (slot == "setColor")
                field.setColor(QUxColor(args[0], args[1], args[2]));
            else if (args.size() == 3)
                QVERIFY(QMetaObject::invokeMethod(&field, qPrintable(slot), Q_ARG(float, args[0]),
                                                  Q_ARG(float, args[1]), Q_ARG(float, args[2])));
            else
                QVERIFY(QMetaObject::invokeMethod(&field, qPrintable(slot), Q_ARG(float, args[0])));
            QCOMPARE(log.names, names);
            log.clear();
        }
    }

    void shouldCarryDerivedValuesInSignals()
    {
        QUxColorField field;
        SignalLog log(&field);
        field.setHSV(240.0f, 1.0f, 1.0f);
        // colorChanged is logged with its hue; then H, S, V and R, G, B
        QCOMPARE(log.values.mid(0, 7), (QList<float>{240, 240, 1, 1, 0, 0, 1}));
        // CIE L*a*b* of the linear blue primary against D65.
        COMPARE_TRIPLE(log.values.mid(7), (Triple{32.297f, 79.189f, -107.847f}), 0.01f);
    }

    void shouldIgnoreTinyConstantChannelChangesAndStoreNanAsZero()
    {
        QUxColorField field;
        field.setMode(QUxColorField::Value);
        QCOMPARE(field.getConstantChannel(), 0.5f);
        SignalLog log(&field);
        field.setConstantChannel(0.5009f);
        QCOMPARE(log.names, QStringList());
        QCOMPARE(qMakePair(field.getValue(), field.getConstantChannel()), qMakePair(0.5f, 0.5f));
        field.setConstantChannel(0.6f);
        QCOMPARE(log.names, signalNames("colorChanged valueChanged rgb lab"));
        QCOMPARE(qMakePair(field.getValue(), field.getConstantChannel()), qMakePair(0.6f, 0.6f));
        field.setConstantChannel(qQNaN());
        QCOMPARE(qMakePair(field.getValue(), field.getConstantChannel()), qMakePair(0.0f, 0.0f));
    }

    void shouldHoldAndMoveTheChannelOfEachMode_data()
    {
        using F = QUxColorField;
        QTest::addColumn<QUxColorField::Mode>("mode");
        QTest::addColumn<float>("held");
        QTest::addColumn<float>("moved");
        // The colour is linear RGB (0.2, 0.4, 0.8); its L*a*b* worked out with the CIE 1976 formulas.
        QTest::newRow("setHueMode") << F::Hue << 220.0f << 150.0f;
        QTest::newRow("setSaturationMode") << F::Saturation << 0.75f << 0.25f;
        QTest::newRow("setValueMode") << F::Value << 0.8f << 0.25f;
        QTest::newRow("setRedMode") << F::Red << 0.2f << 0.1f;
        QTest::newRow("setGreenMode") << F::Green << 0.4f << 0.1f;
        QTest::newRow("setBlueMode") << F::Blue << 0.8f << 0.1f;
        QTest::newRow("setLstarMode") << F::Lstar << 68.485f << 30.0f;
        QTest::newRow("setAstarMode") << F::Astar << 0.8828f << -40.0f;
        QTest::newRow("setBstarMode") << F::Bstar << -35.676f << 45.0f;
    }

    void shouldHoldAndMoveTheChannelOfEachMode()
    {
        QFETCH(QUxColorField::Mode, mode);
        QFETCH(float, held);
        QFETCH(float, moved);
        const char* slot = QTest::currentDataTag(); // the slot a host calls, by its name
        QUxColorField field(0.2f, 0.4f, 0.8f);
        field.setMode(mode == QUxColorField::Hue ? QUxColorField::Bstar : QUxColorField::Hue);
        const QUxColor before = field.getColor();
        SignalLog log(&field);
        QVERIFY(QMetaObject::invokeMethod(&field, slot, Q_ARG(bool, false)));
        QCOMPARE(log.names, QStringList());
        QVERIFY(field.getMode() != mode);

        QVERIFY(QMetaObject::invokeMethod(&field, slot, Q_ARG(bool, true)));
        QCOMPARE(log.names, QStringList{"constantChannelChanged"});
        QVERIFY(fuzzyEqual(log.values.at(0), held, 2e-3f));
        QCOMPARE(field.getMode(), mode);
        QVERIFY(fuzzyEqual(field.getConstantChannel(), held, 2e-3f));
        QVERIFY(field.getColor() == before); // switching mode never moves the colour

        log.clear();
        QVERIFY(QMetaObject::invokeMethod(&field, slot, Q_ARG(bool, true)));
        field.setMode(mode);
        QCOMPARE(log.names, QStringList());

        // Moving the held channel moves the colour, without a mode signal. Modes come three to a colour model.
        field.setConstantChannel(moved);
        const float result = colorIn(field, mode / 3)[mode % 3];
        QVERIFY2(fuzzyEqual(result, moved, 1e-3f), qPrintable(QString::number(double(result))));
        QCOMPARE(field.getConstantChannel(), moved);
        QVERIFY(!log.names.contains("constantChannelChanged"));
    }

    void shouldFollowColourWithConstantChannelConnectedByText()
    {
        QUxColorField field;
        QSignalSpy spy(&field, SIGNAL(constantChannelChanged(float)));
        field.setMode(QUxColorField::Red);
        field.setRGB(0.7f, 0.2f, 0.1f);
        QVERIFY(fuzzyEqual(field.getConstantChannel(), 0.7f, 1e-5f));
        field.updateConstantChannel(QUxColor(0.25f, 0.5f, 0.5f));
        QVERIFY(fuzzyEqual(field.getRed(), 0.25f, 1e-5f));
        QVERIFY(fuzzyEqual(field.getGreen(), 0.2f, 1e-5f)); // only the held channel is taken

        QVERIFY(connect(&field, SIGNAL(colorChanged(QUxColor)), &field, SLOT(updateConstantChannel(QUxColor))));
        QVERIFY(QMetaObject::invokeMethod(&field, "setMode", Q_ARG(QUxColorField::Mode, QUxColorField::Blue)));
        QCOMPARE(field.getMode(), QUxColorField::Blue);
        QCOMPARE(spy.count(), 2); // Red, then Blue
    }

    void shouldPaintCornersAndCentreInThePickedColour_data()
    {
        QTest::addColumn<QUxColorField::Mode>("mode");
        const auto modes = QMetaEnum::fromType<QUxColorField::Mode>();
        for (int m = 0; m < modes.keyCount(); ++m)
            QTest::newRow(modes.key(m)) << QUxColorField::Mode(modes.value(m));
    }

    void shouldPaintCornersAndCentreInThePickedColour()
    {
        QFETCH(QUxColorField::Mode, mode);
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(200.0f, 0.7f, 0.6f);
        field.setMode(mode);
        click(&field, QPoint(60, 70)); // marker out of the way
        const QImage painted = uxTest::grab(&field);
        for (const QPoint& p : {QPoint(0, 0), QPoint(kWidth - 1, 0), QPoint(0, kHeight - 1),
                                QPoint(kWidth - 1, kHeight - 1), QPoint(100, 50)}) {
            click(&field, p);
            const QColor picked = field.getColor().getQColor(), shown = painted.pixelColor(p);
            QVERIFY2(uxTest::sameColor(shown, picked, 1),
                     qPrintable(QString("at %1,%2: %3 %4").arg(p.x()).arg(p.y()).arg(shown.name(), picked.name())));
        }
    }

    void shouldDrawMarkerOnCurrentColourKeptInsideThePlane_data()
    {
        using F = QUxColorField;
        QTest::addColumn<Marker>("marker");
        const QPoint topLeft(0, 0), topRight(kWidth - 1, 0), bottomLeft(0, kHeight - 1),
            bottomRight(kWidth - 1, kHeight - 1);
        // x = 0.25 * 200, y = (1 - 0.75) * 100
        QTest::newRow("inside") << Marker{F::Hue, HSV, {120, 0.25f, 0.75f}, QPoint(50, 25)};
        QTest::newRow("on a light plane") << Marker{F::Hue, HSV, {60, 0.1f, 0.95f}, QPoint(20, 5)};
        QTest::newRow("Lab beyond a* and below b*") << Marker{F::Lstar, Lab, {50, 200, -200}, bottomRight};
        QTest::newRow("Lab before a* and above b*") << Marker{F::Lstar, Lab, {50, -400, 400}, topLeft};
        QTest::newRow("L* above 100") << Marker{F::Bstar, Lab, {140, -300, 0}, topLeft};
        QTest::newRow("RGB above 1") << Marker{F::Red, RGB, {0.5f, 3, 2}, topRight};
        QTest::newRow("RGB below 0") << Marker{F::Blue, RGB, {-0.5f, -0.2f, 0.5f}, bottomLeft};
        QTest::newRow("value above 1") << Marker{F::Hue, HSV, {10, 1.5f, 4}, topRight};
        QTest::newRow("hue beyond 360") << Marker{F::Saturation, HSV, {720, 0.5f, -1}, bottomRight};
    }

    void shouldDrawMarkerOnCurrentColourKeptInsideThePlane()
    {
        QFETCH(Marker, marker);
        const auto& [mode, model, color, centre] = marker;
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setMode(mode);
        setColorIn(field, model, color[0], color[1], color[2]);
        const QImage painted = uxTest::grab(&field);
        QCOMPARE(painted.pixelColor(centre), QColor(Qt::black));
        if (!QRect(3, 3, kWidth - 6, kHeight - 6).contains(centre))
            return; // the white ring is cut at the edges
        // Aliased: every pixel near the marker is the plane's, pure white or pure black.
        const QImage plane = field.fieldImage();
        for (int y = centre.y() - 4; y <= centre.y() + 4; ++y)
            for (int x = centre.x() - 4; x <= centre.x() + 4; ++x) {
                const QRgb pixel = painted.pixel(x, y);
                QVERIFY2(pixel == plane.pixel(x, y) || pixel == qRgb(255, 255, 255) || pixel == qRgb(0, 0, 0),
                         qPrintable(QStringLiteral("%1,%2: %3").arg(x).arg(y).arg(pixel, 0, 16)));
            }
        for (const QPoint& ringTip : {QPoint(0, -3), QPoint(-3, 0), QPoint(0, 3), QPoint(3, 0)})
            QCOMPARE(painted.pixelColor(centre + ringTip), QColor(Qt::white));
        for (const QPoint& ringTip : {QPoint(0, -2), QPoint(-2, 0), QPoint(0, 2), QPoint(2, 0)})
            QCOMPARE(painted.pixelColor(centre + ringTip), QColor(Qt::black));
    }

    void shouldRepaintPlaneAfterEachOfItsInputsChanges()
    {
        QUxColorField field;
        field.resize(kWidth, kHeight);
        field.setHSV(40.0f, 0.5f, 0.5f);
        field.setMode(QUxColorField::Astar);
        const std::function<void()> changes[] = {
            [&] { field.setConstantChannel(-50.0f); }, [&] { field.resize(kWidth + 30, kHeight - 20); },
            [&] { field.setMode(QUxColorField::Lstar); },
            [] { QUxColor::s_reference_white_X = 0.9642f, QUxColor::s_reference_white_Z = 0.8249f; }}; // D50
        for (const auto& change : changes) {
            uxTest::grab(&field);
            const QImage before = field.fieldImage();
            change();
            uxTest::grab(&field);
            QVERIFY(field.fieldImage() != before);
            QCOMPARE(field.fieldImage(),
                     QUxColorField::renderField(field.getMode(), field.getConstantChannel(), field.size(), 1.0));
        }
    }

    void shouldRenderSharpPlaneAtDevicePixelRatio()
    {
        const QSize logical(50, 40);
        const QImage single = QUxColorField::renderField(QUxColorField::Value, 0.8f, logical, 1.0);
        const QImage doubled = QUxColorField::renderField(QUxColorField::Value, 0.8f, logical, 2.0);
        QCOMPARE(doubled.size(), QSize(100, 80));
        QCOMPARE(doubled.devicePixelRatio(), 2.0);
        for (const QPoint& p : {QPoint(0, 0), QPoint(49, 0), QPoint(25, 20), QPoint(0, 39), QPoint(49, 39)})
            QCOMPARE(doubled.pixel(2 * p.x(), 2 * p.y()), single.pixel(p));
        // The in-between pixels carry detail of their own rather than repeating a neighbour.
        QVERIFY(doubled.pixel(51, 40) != doubled.pixel(50, 40));

        QCOMPARE(QUxColorField::renderField(QUxColorField::Hue, 0.0f, logical, 1.5).size(), QSize(75, 60));
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
