#include <uxHostileInput.h>
#include <uxTestSupport.h>

#include <QUxAdvancedProgressDialog.h>
#include <QUxComboBox.h>
#include <QUxComboBoxMenu.h>
#include <QUxMultiLevelComboBox.h>
#include <QUxProgressDialogGUII.h>
#include <QUxProgressIndicator.h>
#include <QUxSearchBox.h>
#include <QUxSubProgress.h>
#include <QUxSuggestCompletion.h>
#include <QUxTextureControls.h>
#include <uxTesselationSettings.h>

#include <QUxAction.h>
#include <QUxAnimatedMenu.h>
#include <QUxCachedSelectionModel.h>
#include <QUxCachedTreeView.h>
#include <QUxClickableLabel.h>
#include <QUxCollapsibleFrame.h>
#include <QUxColor.h>
#include <QUxColorArray.h>
#include <QUxColorCell.h>
#include <QUxColorCellData.h>
#include <QUxColorField.h>
#include <QUxCustomDelegate.h>
#include <QUxDataWidgetMapper.h>
#include <QUxDockWidget.h>
#include <QUxDockWindowManager.h>
#include <QUxDoubleSpiner.h>
#include <QUxDragModuleLabel.h>
#include <QUxElidedLabel.h>
#include <QUxFileDropLineEdit.h>
#include <QUxFlowLayout.h>
#include <QUxGraphEditor.h>
#include <QUxIntVector2DSlider.h>
#include <QUxIntVector2DSpiner.h>
#include <QUxIntVector3DSlider.h>
#include <QUxIntVector3DSpiner.h>
#include <QUxIntVector4DSlider.h>
#include <QUxIntVector4DSpiner.h>
#include <QUxIntegerSlider.h>
#include <QUxLed.h>
#include <QUxOpenMenu.h>
#include <QUxPushButton.h>
#include <QUxQuadSplitter.h>
#include <QUxQuickAccessBar.h>
#include <QUxQuickAccessButton.h>
#include <QUxSAMenu.h>
#include <QUxScrollBarPositionSaver.h>
#include <QUxScrollableMessageBox.h>
#include <QUxSlider.h>
#include <QUxSliderSwitch.h>
#include <QUxSortFilterProxyModel.h>
#include <QUxSpiner.h>
#include <QUxTagArea.h>
#include <QUxTagLabel.h>
#include <QUxTimeLine.h>
#include <QUxTimeLineRange.h>
#include <QUxTitleBarGUIW.h>
#include <QUxToolBar.h>
#include <QUxToolButton.h>
#include <QUxTreeWidget.h>
#include <QUxVec2Control.h>
#include <QUxVec2SliderControl.h>
#include <QUxVec3Control.h>
#include <QUxVec3SliderControl.h>
#include <QUxVec4Control.h>
#include <QUxVec4SliderControl.h>
#include <QUxWheel.h>
#include <QUxWheelPrec.h>
#include <QUxWhiteBalance.h>
#include <uxHeaderViewBase.h>
#include <uxHighlightWidget.h>
#include <uxSignalBlocker.h>
#include <uxUIStyle.h>
#include <uxUIUtils.h>

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMimeData>
#include <QScrollBar>
#include <QSlider>
#include <QStandardItemModel>
#include <QToolButton>
#include <QTreeView>
#include <QUrl>
#include <QWidgetAction>

#include <cmath>

using uxHostile::Enum;

namespace {

template<typename W, int width = 200, int height = 24>
std::shared_ptr<W> sized()
{
    auto w = std::make_shared<W>();
    w->resize(width, height);
    return w;
}

/// Every component of a vector set to @p x.
template<typename V, typename T>
V filled(T x)
{
    V v;
    for (int i = 0; i < int(sizeof(V) / sizeof(v[0])); ++i)
        v[i] = x;
    return v;
}

void send(QWidget* target, QEvent::Type type, Qt::MouseButton button, QPoint at)
{
    QMouseEvent event(type, at, target->mapToGlobal(at), button, type == QEvent::MouseMove ? button : Qt::NoButton,
                      Qt::NoModifier);
    static_cast<QObject*>(target)->event(&event);
}

/// Presses @p button at (10, 10) of @p target, moves diagonally to (@p to, @p to) and releases there.
void drag(QWidget* target, Qt::MouseButton button, int to)
{
    send(target, QEvent::MouseButtonPress, button, {10, 10});
    send(target, QEvent::MouseMove, button, {to, to});
    send(target, QEvent::MouseButtonRelease, button, {to, to});
}

void click(QWidget* target)
{
    send(target, QEvent::MouseButtonPress, Qt::LeftButton, {2, 2});
    send(target, QEvent::MouseButtonRelease, Qt::LeftButton, {2, 2});
}

/// One notch of the mouse wheel.
void turn(QWidget* target)
{
    QWheelEvent notch(QPointF(5, 5), QPointF(5, 5), {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    static_cast<QObject*>(target)->event(&notch);
}

/// Far more animation steps than a switch has pixels to travel.
void animate(QUxSliderSwitch& s)
{
    for (int i = 0; i < 100; ++i)
        s.animateSlider();
}

void dropColor(QWidget* target, const QColor& color)
{
    QMimeData data;
    data.setColorData(color);
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    static_cast<QObject*>(target)->event(&drop);
}

QUxColor hsv(float h, float s, float v)
{
    QUxColor c;
    c.setHSV(h, s, v);
    return c;
}

/// A vector setter fed vectors whose components all take one hostile @p Scalar.
template<typename Scalar, typename V, typename Vector>
auto filledOp(void (V::*setter)(const Vector&))
{
    return [setter](V& v, Scalar x) { (v.*setter)(filled<Vector>(x)); };
}

template<typename W>
std::shared_ptr<W> named(const QString& name)
{
    return std::make_shared<W>(nullptr, name.toLatin1().constData());
}

void addValues(uxHostile::Sweep& sweep)
{
    using C = QUxColor;
    auto color = sweep.add<C>(
        "QUxColor", [] { return std::make_shared<C>(0.0f, 0.0f, 0.0f); },
        [](C& c) {
            QVERIFY(c.getQColor().isValid() && c.getClampedQColor().isValid() && c.getGammaQColor().isValid());
            c.setRGB(1.0f, 0.5f, 0.0f);
            QCOMPARE(c.getQColor(), QColor(255, 127, 0));
        });
    color
        .ops("setHue", &C::setHue, "setSaturation", &C::setSaturation, "setValue", &C::setValue, "setRed", &C::setRed,
             "setGreen", &C::setGreen, "setBlue", &C::setBlue, "setLstar", &C::setLstar, "setAstar", &C::setAstar,
             "setBstar", &C::setBstar)
        .op("setHSV", [](C& c, float v) { c.setHSV(v, 0.5f, v); })
        .op("setRGB", [](C& c, float v) { c.setRGB(v, 0.5f, v); })
        .op("setSRGB", [](C& c, float v) { c.setSRGB(v, v, 0.5f); })
        .op("setGammaRGB", [](C& c, float v) { c.setGammaRGB(v, v, 0.5f); })
        .op("setXYZ", [](C& c, float v) { c.setXYZ(v, 0.5f, v); })
        .op("setLab", [](C& c, float v) { c.setLab(50.0f, v, v); })
        .op("setGammaColor", [](C& c, float v) { c.setGammaColor(C(v, v, v)); })
        .op("setColor(QColor)", [](C& c, int v) { c.setColor(QColor(v, 0, v)); })
        .op("getClamped8Bit", [](C&, float v) { QVERIFY(C::getClamped8Bit(v) >= 0); })
        .op("getClamped", [](C&, float v) { QVERIFY(C::getClamped(v) >= 0.0f); })
        .op("clampRGB8Bit",
            [](C&, int v) {
                C::clampRGB8Bit(v, v, v);
                QVERIFY(v >= 0 && v <= 255);
            })
        .ctor("QUxColor(r,g,b)", [](float v) { return std::make_shared<C>(v, v, 0.5f); })
        .ctor("QUxColor(int r,g,b)", [](int v) { return std::make_shared<C>(v, 0, v); });
    using Conversion = void (*)(float, float, float, float&, float&, float&);
    const std::pair<const char*, Conversion> conversions[] = {
        {"RGBtoHSV", &C::RGBtoHSV},     {"HSVtoRGB", &C::HSVtoRGB}, {"RGBtoSRGB", &C::RGBtoSRGB},
        {"SRGBtoRGB", &C::SRGBtoRGB},   {"RGBtoXYZ", &C::RGBtoXYZ}, {"XYZtoRGB", &C::XYZtoRGB},
        {"RGBtoXYZ_E", &C::RGBtoXYZ_E}, {"XYZtoLAB", &C::XYZtoLAB}, {"LABtoXYZ", &C::LABtoXYZ},
        {"LABtoXYZ_E", &C::LABtoXYZ_E}, {"RGBtoLAB", &C::RGBtoLAB}, {"LABtoRGB", &C::LABtoRGB},
        {"HSVtoXYZ", &C::HSVtoXYZ},     {"XYZtoHSV", &C::XYZtoHSV}, {"HSVtoLAB", &C::HSVtoLAB},
        {"LABtoHSV", &C::LABtoHSV}};
    for (const auto& [name, convert] : conversions)
        color.op(name, [convert = convert](C&, float v) { convert(v, 0.5f, v, v, v, v); });

    const auto intVector = [&sweep](auto tag, const char* name) {
        using V = decltype(tag);
        sweep.add<V>(name, [](V& v) { QCOMPARE(v.setValue(filled<V>(7)), filled<V>(7)); })
            .op("setX", [](V& v, int x) { QCOMPARE(v.setX(x).getX(), x); })
            .op("setY", [](V& v, int x) { QCOMPARE(v.setY(x).getY(), x); });
    };
    intVector(QUxIntVector2D(), "QUxIntVector2D");
    intVector(QUxIntVector3D(), "QUxIntVector3D");
    intVector(QUxIntVector4D(), "QUxIntVector4D");

    using B = uxSignalBlocker;
    sweep
        .add<B>("uxSignalBlocker",
                [](B& blocker) {
                    QObject o;
                    blocker << &o;
                    QVERIFY(o.signalsBlocked() && blocker.isAssigned(&o) && blocker.unblock(&o));
                    QVERIFY(!o.signalsBlocked());
                })
        .op("block,<<,+=", [](B& b, std::nullptr_t p) { b.block(p) << p += p; })
        .op("unblock", [](B& b, std::nullptr_t p) { QVERIFY(!b.unblock(p)); })
        .op("isAssigned", [](B& b, std::nullptr_t p) { QVERIFY(!b.isAssigned(p)); })
        .ctor("uxSignalBlocker(QObject*)", [](QObject* p) { return std::make_shared<B>(p); })
        .ctor("uxSignalBlocker({..})",
              [](QObject* p) { return std::make_shared<B>(std::initializer_list<QObject*>{p}); })
        .ctor("uxSignalBlocker(vector)", [](QObject* p) {
            return std::make_shared<B>(std::vector<QObject*>{p, p});
        });

    using U = uxUIUtils;
    sweep
        .add<U>("uxUIUtils",
                [](U&) {
                    U::setSceneUnitScale(10.0f);
                    QCOMPARE(U::getSceneUnitString(), QStringLiteral(" cm"));
                    U::setSceneUnitScale(1.0f);
                })
        .op("setSceneUnitScale",
            [](U&, float v) {
                QUxDoubleSpiner shown;
                shown.setDisplaySceneUnit(true);
                U::setSceneUnitScale(v);
                QUxDoubleSpiner::updateInstancesWithSceneUnit();
                QCOMPARE(shown.suffix(), QString());
            })
        .op("sortNumeric", [](U&, const QString& s) {
            QStringList list{s, QStringLiteral("item10"), s, QStringLiteral("item2")};
            U::sortNumeric(list);
            QVERIFY(list.indexOf(QStringLiteral("item2")) < list.indexOf(QStringLiteral("item10")));
        });

    sweep
        .add<QWidget>("uxUIStyle",
                      [](QWidget& w) {
                          uxUIStyle::setMultiSelectHighlight(&w, true);
                          QCOMPARE(w.property("multiselect"), QVariant(true));
                      })
        .op("applyFont(nullptr,w)", [](QWidget& w, QWidget* p) { uxUIStyle::applyFont(p, &w); })
        .op("applyFont(w,nullptr)", [](QWidget& w, QWidget* p) { uxUIStyle::applyFont(&w, p); })
        .op("setControlProperty(nullptr,..)", [](QWidget&, QWidget* p) { uxUIStyle::setControlProperty(p, "a", 1); })
        .op("setControlProperty(w,nullptr,..)",
            [](QWidget& w, std::nullptr_t p) { uxUIStyle::setControlProperty(&w, p, 1); })
        .op("setControlProperty(w,name,..)",
            [](QWidget& w, const QString& s) { uxUIStyle::setControlProperty(&w, s.toLatin1().constData(), s); })
        .op("setMultiSelectHighlight", [](QWidget&, QWidget* p) { uxUIStyle::setMultiSelectHighlight(p, true); });
}

// ---------------------------------------------------------------------------

void addSpinBoxes(uxHostile::Sweep& sweep)
{
    using S = QUxDoubleSpiner;
    sweep
        .add<S>("QUxDoubleSpiner", sized<S>,
                [](S& s) {
                    QVERIFY(!std::isnan(s.value()) && s.minimum() <= s.maximum());
                    QVERIFY(s.displayDecimals() >= 0 && s.displayDecimals() <= 323);
                    QVERIFY(std::isfinite(s.singleStep()) && s.singleStep() > 0);
                    s.stepBy(1);
                    QVERIFY(!std::isnan(s.valueFromText(s.text())) && !std::isnan(s.value()));
                    s.setRange(-100, 100);
                    s.setValue(12);
                    QCOMPARE(s.value(), 12.0);
                })
        .ops("setValue", &S::setValue, "setSingleStep", &S::setSingleStep, "setMinimum", &S::setMinimum, "setMaximum",
             &S::setMaximum, "setRange", &S::setRange, "setDecimals", &S::setDecimals, "setDisplayDecimals",
             &S::setDisplayDecimals, "setPrefix", &S::setPrefix, "setSuffix", &S::setSuffix,
             "setRelativeOperatorHandlingMode", &S::setRelativeOperatorHandlingMode, "stepBy", &S::stepBy)
        .op("validate",
            [](S& s, QString text) {
                int pos = 0;
                s.validate(text, pos);
            })
        .op("valueFromText", [](S& s, const QString& text) { QVERIFY(!std::isnan(s.valueFromText(text))); })
        .op("textFromValue", [](S& s, double v) { s.textFromValue(v); })
        .op("applyRelativeOperator(v,op,operand)",
            [](S&, double v) {
                for (int op = S::NoRelativeOperator; op <= S::RelativeSet; ++op)
                    QVERIFY(!std::isnan(S::applyRelativeOperator(1.0, S::RelativeOperator(op), v)));
            })
        .op("applyRelativeOperator(v,op,2)",
            [](S&, Enum e) { QCOMPARE(S::applyRelativeOperator(1.0, e.as<S::RelativeOperator>(), 2.0), 1.0); })
        .op("relativeOperatorChanged then emitRelativeValue",
            [](S& s, Enum e) {
                s.setRelativeOperatorHandlingMode(S::EmitRelativeOperator);
                emit s.relativeOperatorChanged(e.as<S::RelativeOperator>(), qQNaN());
                s.emitRelativeValue();
                s.setRelativeOperatorHandlingMode(S::ApplyRelativeOperator);
            })
        .op("setSingleStep then middle drag", [](S& s, double step) {
            s.setSingleStep(step);
            drag(s.findChild<QLineEdit*>(), Qt::MiddleButton, 60);
        });

    using I = QUxSpiner;
    sweep
        .add<I>("QUxSpiner", sized<I>,
                [](I& s) {
                    QVERIFY(s.minimum() <= s.value() && s.value() <= s.maximum());
                    s.stepBy(1);
                    s.setRange(-100, 100);
                    s.setValue(12);
                    QCOMPARE(s.value(), 12);
                })
        .ops("setValue", &I::setValue, "setSingleStep", &I::setSingleStep, "setMinimum", &I::setMinimum, "setMaximum",
             &I::setMaximum, "setRange", &I::setRange, "setPrefix", &I::setPrefix, "setSuffix", &I::setSuffix, "stepBy",
             &I::stepBy)
        .op("setSingleStep then middle drag", [](I& s, int step) {
            s.setSingleStep(step);
            drag(s.findChild<QLineEdit*>(), Qt::MiddleButton, 60);
        });
}

void addSliders(uxHostile::Sweep& sweep)
{
    using S = QUxSlider;
    sweep
        .add<S>("QUxSlider", sized<S>,
                [](S& s) {
                    for (double v : {s.value(), 0.5}) {
                        s.setValue(v);
                        QVERIFY(s.hardMinValue() <= s.value() && s.value() <= s.hardMaxValue());
                    }
                    s.setHardRange(-100, 100);
                    s.setRange(0, 10);
                    s.setSteps(0.5, 2);
                    s.setValue(2.5);
                    QCOMPARE(s.value(), 2.5);
                    QCOMPARE(s.findChild<QSlider*>()->value(), 5);
                })
        .ops("setValue", &S::setValue, "setMinimum", &S::setMinimum, "setMaximum", &S::setMaximum, "setHardMinimum",
             &S::setHardMinimum, "setHardMaximum", &S::setHardMaximum, "setLineStep", &S::setLineStep, "setPageStep",
             &S::setPageStep, "setRange", &S::setRange, "setHardRange", &S::setHardRange, "setSteps", &S::setSteps,
             "setDecimals", &S::setDecimals, "setDisplayDecimals", &S::setDisplayDecimals, "setSuffix", &S::setSuffix,
             "setSliderPos", &S::setSliderPos, "onValueChanged", &S::onValueChanged, "onSliderMoved", &S::onSliderMoved)
        .op("setLineStep then slider to the end",
            [](S& s, double step) {
                s.setLineStep(step);
                s.findChild<QSlider*>()->triggerAction(QAbstractSlider::SliderToMaximum);
            })
        .ctor("QUxSlider(min,..)", [](double v) { return std::make_shared<S>(v, 1, 0.1, 0.5, Qt::Horizontal); })
        .ctor("QUxSlider(..,max,..)", [](double v) { return std::make_shared<S>(0, v, 0.1, 0.5, Qt::Vertical); })
        .ctor("QUxSlider(..,lineStep,..)", [](double v) { return std::make_shared<S>(0, 1, v, 0.5, Qt::Horizontal); })
        .ctor("QUxSlider(..,value,..)", [](double v) { return std::make_shared<S>(0, 1, 0.1, v, Qt::Horizontal); })
        .ctor("QUxSlider(..,orientation)",
              [](Enum e) { return std::make_shared<S>(0, 1, 0.1, 0, e.masked<Qt::Orientation>(3)); })
        .ctor("QUxSlider(parent,name)", named<S>);

    using I = QUxIntegerSlider;
    sweep
        .add<I>("QUxIntegerSlider", sized<I>,
                [](I& s) {
                    QVERIFY(s.hardMinimum() <= s.value() && s.value() <= s.hardMaximum());
                    s.setMinimum(-100);
                    s.setMaximum(100);
                    s.setValue(12);
                    QCOMPARE(s.value(), 12);
                    QCOMPARE(s.findChild<QSlider*>()->value(), 12);
                })
        .ops("setValue", &I::setValue, "setMinimum", &I::setMinimum, "setMaximum", &I::setMaximum, "setStep",
             &I::setStep, "setPageStep", &I::setPageStep, "setHardMinimum", &I::setHardMinimum, "setHardMaximum",
             &I::setHardMaximum, "setPrefix", &I::setPrefix, "setSuffix", &I::setSuffix, "setSpecialSuffix",
             &I::setSpecialSuffix, "setTicks", &I::setTicks)
        .op("setMinimum,setMaximum",
            [](I& s, uxHostile::Range<int> r) {
                s.setMinimum(r.low);
                s.setMaximum(r.high);
            })
        .ctor("QUxIntegerSlider(parent,name)", named<I>);

    sweep
        .add<QUxSliderSwitch>("QUxSliderSwitch", sized<QUxSliderSwitch>,
                              [](QUxSliderSwitch& s) {
                                  s.setOn(true);
                                  animate(s);
                                  QVERIFY(s.isOn());
                              })
        .op("release at (v,v), animateSlider", [](QUxSliderSwitch& s, int v) {
            send(&s, QEvent::MouseButtonRelease, Qt::LeftButton, {v, v});
            animate(s);
        });
}

void addWheels(uxHostile::Sweep& sweep)
{
    using W = QUxWheel;
    using Range = uxHostile::Range<double>;
    sweep
        .add<W>("QUxWheel", sized<W>,
                [](W& w) {
                    QTest::keyClick(&w, Qt::Key_Right);
                    w.setRange(-10, 10);
                    w.setSingleStep(1);
                    w.setValue(3);
                    drag(&w, Qt::LeftButton, 12);
                    QCOMPARE(w.value(), 5.0);
                })
        .ops("setValue", &W::setValue, "updateValue", &W::updateValue, "setMinimum", &W::setMinimum, "setMaximum",
             &W::setMaximum, "setRange", &W::setRange, "setSingleStep", &W::setSingleStep, "setTransmissionRatio",
             &W::setTransmissionRatio, "setCogCount", &W::setCogCount, "setPageStep", &W::setPageStep)
        .op("setRange, wrapping drag",
            [](W& w, Range r) {
                w.setRange(r.low, r.high);
                w.setWrapsAround(true);
                drag(&w, Qt::LeftButton, 100);
            })
        .op("setRange, Home, End",
            [](W& w, Range r) {
                w.setRange(r.low, r.high);
                QTest::keyClick(&w, Qt::Key_Home);
                QTest::keyClick(&w, Qt::Key_End);
            })
        .op("setSingleStep, drag",
            [](W& w, double step) {
                w.setSingleStep(step);
                drag(&w, Qt::LeftButton, 100);
            })
        .op("setPageStep, mouse wheel",
            [](W& w, int step) {
                w.setPageStep(step);
                turn(&w);
            })
        .ctor("QUxWheel(..,pageStep,..)", [](int v) { return std::make_shared<W>(0, 0, v, 0, Qt::Horizontal); })
        .ctor("QUxWheel(..,value,..)", [](int v) { return std::make_shared<W>(0, 0, 10, v, Qt::Vertical); })
        .ctor("QUxWheel(..,orientation)",
              [](Enum e) { return std::make_shared<W>(0, 0, 10, 0, e.masked<Qt::Orientation>(3)); });

    using P = QUxWheelPrec;
    sweep
        .add<P>("QUxWheelPrec", sized<P>,
                [](P& p) {
                    p.setValue(0.5);
                    QVERIFY(!std::isnan(p.value()));
                    p.setRange(-100, 100);
                    p.setSingleStep(0.5);
                    p.setValue(12);
                    p.wheel()->setValue(p.wheel()->value() + 2); // as a drag of two pixels does
                    QCOMPARE(p.value(), 13.0);
                })
        .ops("setValue", &P::setValue, "setSingleStep", &P::setSingleStep, "setMinimum", &P::setMinimum, "setMaximum",
             &P::setMaximum, "setRange", &P::setRange, "setDecimals", &P::setDecimals, "setDisplayDecimals",
             &P::setDisplayDecimals, "setSuffix", &P::setSuffix, "setMinimumWheelSize", &P::setMinimumWheelSize,
             "setMaximumWheelSize", &P::setMaximumWheelSize, "setMinimumSpinerSize", &P::setMinimumSpinerSize,
             "setMaximumSpinerSize", &P::setMaximumSpinerSize, "setRelativeOperatorHandlingMode",
             &P::setRelativeOperatorHandlingMode)
        .op("setButtonSymbols", [](P& p, Enum e) { p.setButtonSymbols(e.masked<QAbstractSpinBox::ButtonSymbols>(3)); })
        .op("setControlProperty(nullptr,..)", [](P& p, std::nullptr_t n) { p.setControlProperty(n, 1); })
        .op("wheel()->setValue", [](P& p, double v) { p.wheel()->setValue(v); })
        .op("wheel()->setSingleStep, drag", [](P& p, double v) {
            p.wheel()->setSingleStep(v);
            drag(p.wheel(), Qt::LeftButton, 40);
        });
}

template<typename V>
uxHostile::Sweep::Class<V> addWheelVector(uxHostile::Sweep& sweep, const char* name)
{
    return sweep
        .add<V>(name, sized<V>,
                [](V& v) {
                    v.setMinimum(-100);
                    v.setMaximum(100);
                    v.setX(12);
                    QCOMPARE(v.getX(), 12.0);
                    QVERIFY(!std::isnan(v.getY()));
                })
        .ops("setX", &V::setX, "setY", &V::setY, "setSingleStep", &V::setSingleStep, "setMinimum", &V::setMinimum,
             "setMaximum", &V::setMaximum, "setDecimals", &V::setDecimals, "setDisplayDecimals", &V::setDisplayDecimals,
             "setSuffix", &V::setSuffix, "setOrientation", &V::setOrientation, "setMinimumWheelSize",
             &V::setMinimumWheelSize, "setMaximumSpinerSize", &V::setMaximumSpinerSize,
             "setRelativeOperatorHandlingMode", &V::setRelativeOperatorHandlingMode)
        .op("setButtonSymbols", [](V& v, Enum e) { v.setButtonSymbols(e.masked<QAbstractSpinBox::ButtonSymbols>(3)); })
        .op("wheelPrec", [](V& v, int axis) { QVERIFY(!v.wheelPrec(axis) || (axis >= 0 && axis < 4)); })
        .op("setMultiSelectHighlight", [](V& v, int axis) { v.setMultiSelectHighlight(axis, true); })
        .op("setControlProperty(axis,..)", [](V& v, int axis) { v.setControlProperty(axis, "multiselect", true); })
        .op("setControlProperty(0,nullptr,..)", [](V& v, std::nullptr_t n) { v.setControlProperty(0, n, true); })
        .op("setStyleSheet(axis,..)", [](V& v, int axis) { v.setStyleSheet(axis, QStringLiteral("color: red")); })
        .op("setStyleSheet(0,..)", [](V& v, const QString& s) { v.setStyleSheet(0, s); });
}

template<typename V, typename Vector, typename IntVector>
void addSliderVector(uxHostile::Sweep& sweep, const char* name)
{
    sweep
        .add<V>(name, sized<V>,
                [](V& v) {
                    v.setHardMinimum(filled<Vector>(-100.0f));
                    v.setHardMaximum(filled<Vector>(100.0f));
                    v.setMaximum(filled<Vector>(10.0f));
                    v.setMinimum(filled<Vector>(0.0f));
                    v.setLineStep(filled<Vector>(0.5f));
                    v.setValue(filled<Vector>(2.5f));
                    QCOMPARE(v.value(), filled<Vector>(2.5f));
                })
        .ops("setValue", filledOp<float>(&V::setValue), "setMinimum", filledOp<float>(&V::setMinimum), "setMaximum",
             filledOp<float>(&V::setMaximum), "setLineStep", filledOp<float>(&V::setLineStep), "setHardMinimum",
             filledOp<float>(&V::setHardMinimum), "setHardMaximum", filledOp<float>(&V::setHardMaximum), "setPageStep",
             filledOp<float>(&V::setPageStep), "setDecimals", filledOp<int>(&V::setDecimals), "setDisplayDecimals",
             filledOp<int>(&V::setDisplayDecimals), "setSliderPos", &V::setSliderPos)
        .op("setSuffix", [](V& v, const QString& s) { v.setSuffix({s}); })
        .op("setSubLabels",
            [](V& v, const QString& s) {
                v.setSubLabels({s, s, s, s, s});
            })
        .op("slider", [](V& v, int axis) { QVERIFY(!v.slider(axis) || (axis >= 0 && axis < 4)); });
}

template<typename V, typename IntVector = std::decay_t<decltype(std::declval<V>().value())>>
uxHostile::Sweep::Class<V> addIntVector(uxHostile::Sweep& sweep, const char* name)
{
    return sweep
        .add<V>(name, sized<V>,
                [](V& v) {
                    v.setMinimum(filled<IntVector>(-100));
                    v.setMaximum(filled<IntVector>(100));
                    v.setValue(filled<IntVector>(12));
                    QCOMPARE(v.value(), filled<IntVector>(12));
                })
        .ops("setValue", filledOp<int>(&V::setValue), "setMinimum", filledOp<int>(&V::setMinimum), "setMaximum",
             filledOp<int>(&V::setMaximum), "setStep", filledOp<int>(&V::setStep))
        .op("setSubLabels", [](V& v, const QString& s) { v.setSubLabels({s}); })
        .op("editor", [](V& v, int axis) { QVERIFY(!v.editor(axis) || (axis >= 0 && axis < 4)); });
}

void addVectors(uxHostile::Sweep& sweep)
{
    addWheelVector<QUxVec2Control>(sweep, "QUxVec2Control")
        .ops("setLabel", &QUxVec2Control::setLabel)
        .op("setXY", [](QUxVec2Control& v, double x) { v.setXY(x, x); });
    addWheelVector<QUxVec3Control>(sweep, "QUxVec3Control")
        .ops("setLabel", &QUxVec3Control::setLabel)
        .op("setXYZ", [](QUxVec3Control& v, double x) { v.setXYZ(x, x, x); });
    addWheelVector<QUxVec4Control>(sweep, "QUxVec4Control").op("setXYZW", [](QUxVec4Control& v, double x) {
        v.setXYZW(x, x, x, x);
    });
    addSliderVector<QUxVec2SliderControl, QVector2D, QUxIntVector2D>(sweep, "QUxVec2SliderControl");
    addSliderVector<QUxVec3SliderControl, QVector3D, QUxIntVector3D>(sweep, "QUxVec3SliderControl");
    addSliderVector<QUxVec4SliderControl, QVector4D, QUxIntVector4D>(sweep, "QUxVec4SliderControl");
    addIntVector<QUxIntVector2DSlider>(sweep, "QUxIntVector2DSlider")
        .ops("setPageStep", filledOp<int>(&QUxIntVector2DSlider::setPageStep));
    addIntVector<QUxIntVector3DSlider>(sweep, "QUxIntVector3DSlider")
        .ops("setPageStep", filledOp<int>(&QUxIntVector3DSlider::setPageStep));
    addIntVector<QUxIntVector4DSlider>(sweep, "QUxIntVector4DSlider")
        .ops("setPageStep", filledOp<int>(&QUxIntVector4DSlider::setPageStep));
    addIntVector<QUxIntVector2DSpiner>(sweep, "QUxIntVector2DSpiner");
    addIntVector<QUxIntVector3DSpiner>(sweep, "QUxIntVector3DSpiner");
    addIntVector<QUxIntVector4DSpiner>(sweep, "QUxIntVector4DSpiner");
}

// ---------------------------------------------------------------------------

void addColorControls(uxHostile::Sweep& sweep)
{
    using F = QUxColorField;
    auto field = sweep.add<F>("QUxColorField", sized<F, 64, 64>, [](F& f) {
        QVERIFY(!std::isnan(f.getConstantChannel()));
        f.setMode(F::Hue);
        f.setHSV(120.0f, 0.5f, 0.25f);
        QCOMPARE(f.getSaturation(), 0.5f);
        QCOMPARE(f.getConstantChannel(), 120.0f);
    });
    field
        .ops("setHue", &F::setHue, "setSaturation", &F::setSaturation, "setValue", &F::setValue, "setRed", &F::setRed,
             "setGreen", &F::setGreen, "setBlue", &F::setBlue, "setLstar", &F::setLstar, "setAstar", &F::setAstar,
             "setBstar", &F::setBstar, "setMode", &F::setMode)
        .op("setHSV", [](F& f, float v) { f.setHSV(v, v, 0.5f); })
        .op("setRGB", [](F& f, float v) { f.setRGB(v, 0.5f, v); })
        .op("setLab", [](F& f, float v) { f.setLab(v, v, 0.0f); })
        .op("setColor", [](F& f, float v) { f.setColor(hsv(v, v, v)); })
        .op("updateConstantChannel", [](F& f, float v) { f.updateConstantChannel(hsv(v, 0.5f, v)); })
        .op("renderField(mode)",
            [](F&, Enum e) {
                QVERIFY(F::renderField(e.as<F::Mode>(), 0, {8, 8}).isNull());
            })
        .op("renderField(constant)",
            [](F&, float v) {
                QVERIFY(!F::renderField(F::Lstar, v, {8, 8}).isNull());
            })
        .op("renderField(size)", [](F&, QSize size) { F::renderField(F::Hue, 0, size); })
        .op("renderField(ratio)",
            [](F&, double ratio) {
                F::renderField(F::Hue, 0, {8, 8}, ratio);
            })
        .ctor("QUxColorField(r,g,b)", [](float v) { return std::make_shared<F>(v, 0.5f, v); })
        .ctor("QUxColorField(parent,name)", named<F>);
    const QMetaEnum modes = QMetaEnum::fromType<F::Mode>();
    for (int m = F::Hue; m <= F::Bstar; ++m) {
        field.op(QByteArray("setConstantChannel in ") + modes.key(m), [m](F& f, float v) {
            f.setMode(F::Mode(m));
            f.setConstantChannel(v);
        });
        field.op(QByteArray("pick at (v,v) in ") + modes.key(m), [m](F& f, int v) {
            f.setMode(F::Mode(m));
            send(&f, QEvent::MouseButtonPress, Qt::LeftButton, {v, v});
            QVERIFY(!std::isnan(f.getHue()) && !std::isnan(f.getValue()));
        });
    }

    const auto palette = [] {
        QUxColorArray::s_cellData.clear(); // every case starts from an empty palette
        return std::make_shared<QUxColorArray>();
    };
    sweep
        .add<QUxColorArray>("QUxColorArray", palette,
                            [](QUxColorArray& a) {
                                a.addColor(QUxColor(1.0f, 0.0f, 0.0f));
                                bool red = false;
                                for (int i = 0; i < QUxColorArray::CellCount; ++i)
                                    red = red || (!a.isFreeCell(i) && a.getColor(i).getQColor() == Qt::red);
                                QVERIFY(red);
                            })
        .op("addColor", [](QUxColorArray& a, float v) { a.addColor(hsv(v, v, v)); })
        .op("getColor", [](QUxColorArray& a, int i) { a.getColor(i); })
        .op("isFreeCell", [](QUxColorArray& a, int i) { QVERIFY(a.isFreeCell(i)); });

    const auto cellOf = [palette](int index) {
        const std::shared_ptr<QUxColorArray> array = palette();
        return std::shared_ptr<QUxColorCell>(array, new QUxColorCell(array.get(), index));
    };
    sweep
        .add<QUxColorCell>(
            "QUxColorCell", [cellOf] { return cellOf(0); },
            [](QUxColorCell& cell) {
                dropColor(&cell, Qt::green);
                click(&cell);
                if (cell.colorArray() && cell.index() >= 0 && cell.index() < QUxColorArray::CellCount)
                    QCOMPARE(cell.colorArray()->getColor(cell.index()).getQColor(), QColor(Qt::green));
            })
        .ctor("QUxColorCell(array,index)", cellOf)
        .ctor("QUxColorCell(nullptr,index)", [](QUxColorArray* p) { return std::make_shared<QUxColorCell>(p, 0); });

    using D = QUxColorCellData;
    sweep
        .add<D>("QUxColorCellData",
                [](D& data) {
                    data.setColor(QUxColor(0.0f, 0.0f, 1.0f));
                    QCOMPARE(data.color().getQColor(), QColor(Qt::blue));
                })
        .op("setColor", [](D& data, float v) {
            data.setColor(hsv(v, v, v));
            data.color().getGammaQColor();
        });

    using B = QUxWhiteBalance;
    sweep
        .add<B>("QUxWhiteBalance", sized<B>,
                [](B& b) {
                    QVERIFY(b.minimum() <= b.value() && b.value() <= b.maximum());
                    b.setMinimum(1000);
                    b.setMaximum(15000);
                    b.setValue(5000);
                    QCOMPARE(b.value(), 5000);
                    QCOMPARE(b.findChild<QSlider*>()->value(), 5000);
                })
        .ops("setValue", &B::setValue, "setMinimum", &B::setMinimum, "setMaximum", &B::setMaximum, "setStep",
             &B::setStep, "setTicks", &B::setTicks, "setSuffix", &B::setSuffix, "setTrailer", &B::setTrailer,
             "setEpilog", &B::setEpilog)
        .op("setMinimum,setMaximum",
            [](B& b, uxHostile::Range<int> r) {
                b.setMinimum(r.low);
                b.setMaximum(r.high);
            })
        .ctor("QUxWhiteBalance(parent,name)", named<B>)
        .ctor("QUxWhiteBalance(parent,nullptr)", [](const char* p) { return std::make_shared<B>(nullptr, p); });

    using L = QUxLed;
    sweep
        .add<L>("QUxLed", sized<L, 16, 16>,
                [](L& led) {
                    led.setValue(true);
                    led.setOnColor(L::GREEN);
                    led.setOnShape(L::SQUARE);
                    const QColor centre = uxTest::grab(&led).pixelColor(8, 8);
                    QVERIFY(centre.green() > centre.red());
                })
        .ops("setOnColor", &L::setOnColor, "setOffColor", &L::setOffColor, "setOnShape", &L::setOnShape, "setOffShape",
             &L::setOffShape)
        .op("iconPath", [](L&, Enum e) {
            QVERIFY(L::iconPath(e.as<L::ledShape>(), L::RED).isEmpty());
            QVERIFY(L::iconPath(L::CIRCLE, e.as<L::ledColor>()).isEmpty());
        });
}

// The class tests hold the exact answers to bad frames, ranges and curves; here every setter meets every input.
void addCurvesAndTime(uxHostile::Sweep& sweep)
{
    using G = QUxGraphEditor;
    sweep
        .add<G>("QUxGraphEditor", sized<G, 120, 120>,
                [](G& g) {
                    g.setMinX(0), g.setMaxX(1), g.setMinY(0), g.setMaxY(1);
                    g.setLuminanceCurve({{0.0f, 0.0f}, {1.0f, 1.0f}});
                    g.setLuminanceCurve({{0.0f, 0.5f}, {1.0f, 2.0f}}); // same count: a move, held in range
                    QCOMPARE(g.luminanceCurve(), (QList<QVector2D>{{0.0f, 0.5f}, {1.0f, 1.0f}}));
                })
        .ops("setMode", &G::setMode, "setPointSize", &G::setPointSize, "setLineWidth", &G::setLineWidth, "setMinX",
             &G::setMinX, "setMaxX", &G::setMaxX, "setMinY", &G::setMinY, "setMaxY", &G::setMaxY)
        .op("setLuminanceCurve", [](G& g, float v) {
            g.setLuminanceCurve({{v, v}, {0.5f, v}, {v, 0.5f}});
        });

    using T = QUxTimeLine;
    sweep
        .add<T>("QUxTimeLine", sized<T, 300, 30>,
                [](T& t) {
                    t.setStartFrame(0);
                    t.setEndFrame(99); // 3 pixels a frame
                    send(&t, QEvent::MouseButtonPress, Qt::LeftButton, {31, 10});
                    QCOMPARE(t.currentFrame(), 10);
                })
        .ops("setStartFrame", &T::setStartFrame, "setEndFrame", &T::setEndFrame, "setFps", &T::setFps,
             "setCurrentFrame", qOverload<int>(&T::setCurrentFrame))
        .op("setKeyFrames", [](T& t, float v) {
            t.setKeyFrames({{v, Qt::red}, {-v, QColor()}});
        });

    using R = QUxTimeLineRange;
    sweep
        .add<R>("QUxTimeLineRange", sized<R, 200, 24>,
                [](R& r) {
                    r.setStartFrame(0);
                    r.setEndFrame(50);
                    r.setRangeEndFrame(20);
                    QCOMPARE(r.rangeEndFrame(), 20);
                })
        .ops("setStartFrame", &R::setStartFrame, "setEndFrame", &R::setEndFrame, "setRangeStartFrame",
             &R::setRangeStartFrame, "setRangeEndFrame", &R::setRangeEndFrame);
}

/// Three columns of text, one row per text.
std::shared_ptr<QStandardItemModel> table(const QStringList& texts)
{
    auto model = std::make_shared<QStandardItemModel>(0, 3);
    for (const QString& text : texts)
        model->appendRow({new QStandardItem(text), new QStandardItem(text), new QStandardItem(text)});
    return model;
}

/// @p model in a painted tree view, each cell painted by @p delegate.
void paintThrough(QAbstractItemDelegate& delegate, const std::shared_ptr<QStandardItemModel>& model)
{
    QTreeView view;
    view.setModel(model.get());
    view.setItemDelegate(&delegate);
    view.resize(100, 60);
    QVERIFY(!uxTest::grab(&view).isNull());
}

void addItemViews(uxHostile::Sweep& sweep)
{
    using P = QUxSortFilterProxyModel;
    // Each case sorts a table of its own: the input goes into the table or the sort.
    const auto sorted = [](P& p, const QStringList& rows, int role, int column) {
        const auto model = table(rows);
        p.setSourceModel(model.get());
        p.setSortRole(role);
        p.sort(column);
        const QString first = p.index(0, 0).data().toString();
        p.setSourceModel(nullptr);
        return first;
    };
    sweep
        .add<P>("QUxSortFilterProxyModel",
                [sorted](P& p) {
                    QCOMPARE(sorted(p, {"item10", "item2"}, Qt::DisplayRole, 0), QString("item2"));
                })
        .op("sort rows of",
            [sorted](P& p, const QString& s) {
                sorted(p, {s, s.left(64), "1", s}, Qt::DisplayRole, 0);
            })
        .op("setSortRole, sort",
            [sorted](P& p, int role) {
                sorted(p, {"b", "a"}, role, 0);
            })
        .op("sort column", [sorted](P& p, int column) {
            sorted(p, {"b", "a"}, Qt::DisplayRole, column);
        });

    using H = uxHeaderViewBase;
    struct Header
    {
        std::shared_ptr<QStandardItemModel> model = table({QStringLiteral("x")});
        H view{model.get()};
    };
    const auto header = [] {
        const auto owner = std::make_shared<Header>();
        return std::shared_ptr<H>(owner, &owner->view);
    };
    sweep
        .add<H>("uxHeaderViewBase", header,
                [](H& h) {
                    for (int column : {0, 1, 2})
                        h.setColumnVisible(column, column != 1);
                    QCOMPARE(h.getVisibleColumnCount(), 2);
                })
        .ops(
            "setSectionHideable(v,false)", [](H& h, int v) { h.setSectionHideable(v, false); }, "sectionHideable",
            [](H& h, int v) { h.sectionHideable(v); }, "getHeaderName", [](H& h, int v) { h.getHeaderName(v); },
            "setColumnVisible(v,false)", [](H& h, int v) { h.setColumnVisible(v, false); });

    using D = QUxCustomDelegate;
    sweep.add<D>("QUxCustomDelegate", [](D& d) { QCOMPARE(d.underlinePenStyle(), Qt::DotLine); })
        .op("setUnderlinePenStyle, paint",
            [](D& d, Enum e) {
                d.setUnderlinePenStyle(e.masked<Qt::PenStyle>(0xf));
                d.setIsUnderlinedFunction([](const QModelIndex&) { return true; });
                paintThrough(d, table({QStringLiteral("<b>x</b>")}));
                d.setUnderlinePenStyle(Qt::DotLine);
            })
        .op("paint text", [](D& d, const QString& s) { paintThrough(d, table({s.left(4096)})); });

    using V = QUxCachedTreeView;
    sweep
        .add<V>("QUxCachedTreeView", sized<V>,
                [](V& v) {
                    const auto model = table({QStringLiteral("x")});
                    v.setModel(model.get());
                    QCOMPARE(v.model()->rowCount(), 1);
                    v.setModel(nullptr);
                })
        .op("setModel", [](V& v, QAbstractItemModel* model) { v.setModel(model); })
        .op("setParentsExpanded(row)", [](V& v, int row) {
            const auto model = table({QStringLiteral("x")});
            v.setModel(model.get());
            v.setParentsExpanded(model->index(row, 0), true);
            v.setModel(nullptr);
        });
    using S = QUxCachedSelectionModel;
    sweep
        .add<S>(
            "QUxCachedSelectionModel", [] { return std::make_shared<S>(nullptr); },
            [](S& s) {
                s.deselectAll();
                QVERIFY(s.sourceModelSelection().isEmpty());
            })
        .ctor("QUxCachedSelectionModel(nullptr)", [](QAbstractItemModel* model) { return std::make_shared<S>(model); })
        .op("select(row)", [](S& s, int row) {
            const auto model = table({QStringLiteral("x")});
            s.setModel(model.get());
            s.select(model->index(row, 0), QItemSelectionModel::Select);
            model->clear();
            s.setModel(nullptr);
        });

    using T = QUxTreeWidget;
    sweep.add<T>("QUxTreeWidget", sized<T>, [](T& t) { QVERIFY(t.popupMenu()); })
        .op("initWidget", [](T& t, QWidget* owner) { t.initWidget(owner); })
        .op("addAcceptedDropFormat", [](T& t, const QString& s) { t.initWidget(&t), t.addAcceptedDropFormat(s); });

    using M = QUxDataWidgetMapper;
    const auto mapped = [](M& m, QWidget* widget, int section) {
        const auto model = table({QStringLiteral("x")});
        m.setModel(model.get());
        m.addMapping(widget, section);
        m.toFirst();
        m.clearMapping();
    };
    sweep
        .add<M>("QUxDataWidgetMapper",
                [mapped](M& m) {
                    QLineEdit edit;
                    mapped(m, &edit, 0);
                    QCOMPARE(edit.text(), QStringLiteral("x"));
                })
        .op("addMapping(nullptr,..)", [mapped](M& m, QWidget* w) { mapped(m, w, 0); })
        .op("addMapping(combo,section)", [mapped](M& m, int section) {
            QComboBox combo;
            mapped(m, &combo, section);
        });

    sweep
        .add<QScrollBar>("QUxScrollBarPositionSaver",
                         [](QScrollBar& bar) {
                             bar.setRange(0, 100);
                             bar.setValue(40);
                             {
                                 const QUxScrollBarPositionSaver keep(&bar);
                                 bar.setValue(90);
                             }
                             QCOMPARE(bar.value(), 40);
                         })
        .op("QUxScrollBarPositionSaver(nullptr)",
            [](QScrollBar&, QScrollBar* bar) { const QUxScrollBarPositionSaver keep(bar); });
}

/// A drag of @p data entering @p target, moving to @p x and dropped there, delivered straight to its handlers.
void deliverDrop(QWidget* target, const QMimeData& data, int x)
{
    QDragEnterEvent enter(QPoint(2, 2), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    QDragMoveEvent move(QPoint(x, 2), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    QDropEvent drop(QPointF(x, 2), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
}

/// A drop of @p urls on @p target.
void dropUrls(QWidget* target, const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    deliverDrop(target, data, 2);
}

/// The search field of a search menu, typed into.
void typeSearch(QUxSAMenu& menu, const QString& text)
{
    auto* search = qobject_cast<QWidgetAction*>(menu.actions().value(0));
    auto* field = search ? qobject_cast<QLineEdit*>(search->defaultWidget()) : nullptr;
    QVERIFY(field);
    field->setText(text);
}

/// Text that only passes through to Qt's own labels and menus: laying out a
/// megabyte there costs Qt about a second and tells nothing about our code.
QString qtText(const QString& s) { return s.left(1 << 16); }

void addDockingAndLabels(uxHostile::Sweep& sweep)
{
    using D = QUxDockWidget;
    sweep
        .add<D>("QUxDockWidget", sized<D, 200, 120>,
                [](D& d) {
                    d.setDockingEnabled(false);
                    QCOMPARE(int(d.allowedAreas()), 0);
                    d.setDockingEnabled(true);
                    QCOMPARE(D::fromPayload(D::payload(&d)), &d);
                })
        .op("setTitle", [](D& d, const QString& s) { d.setTitle(qtText(s)); })
        .ops("setNickName", &D::setNickName, "setIntName", &D::setIntName, "setToolclipKey", &D::setToolclipKey)
        .op("fromPayload", [](D&, const QString& s) { QCOMPARE(D::fromPayload(s.toLatin1()), nullptr); })
        .op("setWidget", [](D& d, QWidget* w) { d.setWidget(w), d.setFloating(true), d.setFloating(false); })
        .ctor("QUxDockWidget(title,name)", [](const QString& s) { return new D(qtText(s), s, QIcon(), nullptr); });

    using TB = QUxTitleBarGUIW;
    sweep
        .add<TB>(
            "QUxTitleBarGUIW", [] { return std::make_shared<TB>(nullptr, QString()); },
            [](TB& t) { QCOMPARE(t.objectName(), QStringLiteral("QUxTitleBar")); })
        .ctor("QUxTitleBarGUIW(nullptr,title)", [](const QString& s) { return new TB(nullptr, qtText(s)); });

    using E = QUxElidedLabel;
    sweep
        .add<E>(
            "QUxElidedLabel", [] { return std::make_shared<E>(QString(), nullptr); },
            [](E& e) {
                e.setText(QStringLiteral("abc"));
                QCOMPARE(e.text(), QStringLiteral("abc"));
            })
        .op("setText, width 0",
            [](E& e, const QString& s) {
                e.setText(s);
                e.resize(0, 20);
                e.grab();
                e.resize(40, 20);
            })
        .op("setElideMode", [](E& e, Enum m) { e.setElideMode(m.masked<Qt::TextElideMode>(3)); })
        .op("resize", [](E& e, QSize size) {
            e.setText(QStringLiteral("long text"));
            e.resize(size);
            e.grab(QRect(0, 0, 40, 20)); // paints at that size; a whole grab of INT_MAX^2 would not fit in memory
            e.resize(40, 20);
        });

    using C = QUxClickableLabel;
    sweep.add<C>("QUxClickableLabel", sized<C>, [](C& c) {
        QSignalSpy clicked(&c, &C::clicked);
        QTest::mousePress(&c, Qt::RightButton);
        QCOMPARE(clicked.count(), 1);
    });

    using M = QUxDragModuleLabel;
    sweep.add<M>("QUxDragModuleLabel", sized<M>, [](M& m) { QVERIFY(m.pixmap(Qt::ReturnByValue).isNull()); })
        .op("setModule", [](M& m, QUxDockWidget* d) { m.setModule(d); });

    using F = QUxFileDropLineEdit;
    sweep
        .add<F>("QUxFileDropLineEdit", sized<F>,
                [](F& f) {
                    QSignalSpy dropped(&f, &F::fileDropped);
                    dropUrls(&f, {QUrl::fromLocalFile("/tmp/a.scene"), QUrl::fromLocalFile("/tmp/b.scene")});
                    QCOMPARE(dropped.count(), 1);
                    QCOMPARE(dropped.at(0).at(0).toString(), QStringLiteral("/tmp/a.scene"));
                })
        .op("drop url",
            [](F& f, const QString& s) {
                dropUrls(&f, {QUrl(s), QUrl::fromLocalFile(s)});
            })
        .op("drop urls",
            [](F& f, int n) { dropUrls(&f, QVector<QUrl>(qBound(0, n, 500), QUrl("https://x.org")).toList()); });

    using B = QUxScrollableMessageBox;
    sweep
        .add<B>("QUxScrollableMessageBox",
                [](B& b) {
                    b.setText(QStringLiteral("done"));
                    QVERIFY(b.findChild<QLabel*>(QStringLiteral("qt_msgbox_label")));
                })
        .op("setText, makeScrollable", [](B& b, const QString& s) { b.setText(s.left(65536)), b.makeScrollable(); });
}

/// A splitter of @p views painted frames, 400 x 300.
std::shared_ptr<QUxQuadSplitter> quad(int views = 4)
{
    auto q = std::make_shared<QUxQuadSplitter>();
    q->resize(400, 300);
    for (int i = 0; i < views; ++i)
        q->insertWidget(new QWidget, -1);
    return q;
}

/// A widget laid out by a flow layout of @p count fixed-size items.
QWidget* newFlow(int count, int spacing)
{
    auto* w = new QWidget;
    auto* flow = new QUxFlowLayout(w, 2, spacing, spacing);
    for (int i = 0; i < count; ++i) {
        auto* item = new QWidget;
        item->setFixedSize(30 + i % 7, 20);
        flow->addWidget(item);
    }
    w->resize(200, 120);
    return w;
}

std::shared_ptr<QWidget> flowOf(int count, int spacing = 3)
{
    return std::shared_ptr<QWidget>(newFlow(count, spacing));
}

QUxFlowLayout* flowIn(QWidget& w) { return static_cast<QUxFlowLayout*>(w.layout()); }

void addLayouts(uxHostile::Sweep& sweep)
{
    using Q = QUxQuadSplitter;
    sweep
        .add<Q>(
            "QUxQuadSplitter", [] { return quad(); },
            [](Q& q) {
                QCOMPARE(q.count(), 4);
                QWidget fifth;
                QCOMPARE(q.insertWidget(&fifth, -1), nullptr); // a fifth view is refused
                QVERIFY(q.ratioX() >= 0.0 && q.ratioX() <= 1.0 && q.ratioY() >= 0.0 && q.ratioY() <= 1.0);
            })
        .op("insertWidget(nullptr)", [](Q& q, QWidget* w) { QCOMPARE(q.insertWidget(w, 0), nullptr); })
        .op("removeWidget(unknown)", [](Q& q, QWidget* w) { q.removeWidget(w), q.removeWidget(&q); })
        .op("resize", [](Q& q, QSize size) { q.resize(size), q.update(), q.resize(400, 300), q.update(); })
        .op("setChildFixedSize", [](Q& q, QSize size) { q.setChildFixedSize(size.width(), size.height()), q.update(); })
        .op("drag by",
            [](Q& q, int by) {
                send(&q, QEvent::MouseButtonPress, Qt::LeftButton, {200, 150});
                q.setPosition(by, by);
                send(&q, QEvent::MouseMove, Qt::LeftButton, {by, by});
                send(&q, QEvent::MouseButtonRelease, Qt::LeftButton, {by, 0});
            })
        .op("getOrientation", [](Q& q, int at) { q.getOrientation(at, at), q.getOrientation(at, 150); })
        .op("setCursorSplit", [](Q& q, Enum e) { q.setCursorSplit(e.masked<Q::Orientation>(3)); });
    sweep
        .add<Q>(
            "QUxQuadSplitter with one view", [] { return quad(1); }, [](Q& q) { QCOMPARE(q.count(), 1); })
        .op("drag by", [](Q& q, int by) { q.setPosition(by, by), drag(&q, Qt::LeftButton, by); });

    using H = uxHighlightWidget;
    sweep
        .add<H>(
            "uxHighlightWidget", [] { return std::make_shared<H>(nullptr); }, [](H&) {})
        .op("setWidget", [](H& h, QWidget* w) { h.setWidget(w); });

    using F = QUxCollapsibleFrame;
    sweep
        .add<F>("QUxCollapsibleFrame",
                [](F& f) {
                    f.setCollapsed(true);
                    QVERIFY(f.isCollapsed());
                    f.setCollapsed(false);
                    QVERIFY(!f.isCollapsed());
                })
        .op("setCaption", [](F& f, const QString& s) { f.setCaption(qtText(s)); })
        .op("setPageTitle", [](F& f, const QString& s) { f.setPageTitle(qtText(s)); })
        .op("setCurrentIndex", [](F& f, int i) { f.addPage(new QWidget), f.setCurrentIndex(i); })
        .op("removePage", [](F& f, int i) { f.addPage(new QWidget), f.removePage(i), f.removePage(i); })
        .op("insertPage", [](F& f, int i) { f.insertPage(i, new QWidget), f.insertPage(i, nullptr); })
        .op("addPage(nullptr)", [](F& f, QWidget* w) { f.addPage(w), f.widget(-1), f.widget(INT_MAX); })
        .op("setCaptionAlignment", [](F& f, Enum e) { f.setCaptionAlignment(e.masked<Qt::Alignment>(0xffff)); })
        .ops("setLedOnColor", &F::setLedOnColor, "setLedOffColor", &F::setLedOffColor, "setLedOnShape",
             &F::setLedOnShape, "setLedOffShape", &F::setLedOffShape)
        .op("fixLayouts",
            [](F& f, int width) {
                auto* page = new QWidget;
                auto* grid = new QGridLayout(page);
                grid->addWidget(new QLabel(QStringLiteral("a")), 0, 0);
                grid->addWidget(new QLabel(QStringLiteral("b")), 0, 2);
                f.addPage(page);
                F::fixLayouts(&f, width, nullptr);
                F::fixLayouts(nullptr, width, nullptr);
                F::fixLayout(page, width);
                F::fixLayout(nullptr, width);
            })
        .ctor("QUxCollapsibleFrame(caption)", [](const QString& s) { return new F(qtText(s), true, nullptr); });

    using W = QWidget;
    sweep
        .add<W>(
            "QUxFlowLayout", [] { return flowOf(40); },
            [](W& w) {
                QVERIFY(flowIn(w)->count() >= 11);
                QVERIFY(flowIn(w)->heightForWidth(200) > 0);
            })
        .op("resize", [](W& w, QSize size) { w.resize(size), flowIn(w)->activate(), w.resize(200, 120); })
        .op("heightForWidth", [](W& w, int width) { flowIn(w)->heightForWidth(width); })
        .op("setGeometry",
            [](W& w, QSize size) {
                flowIn(w)->setGeometry(QRect(QPoint(-5, -5), QPoint(size.width() / 2, size.height() / 2)));
            })
        .op("takeAt", [](W& w, int i) { delete flowIn(w)->takeAt(i), flowIn(w)->itemAt(i); })
        .op("addWidget, width",
            [](W& w, int width) {
                auto* item = new QWidget;
                item->setMinimumWidth(qBound(0, width, QWIDGETSIZE_MAX));
                flowIn(w)->addWidget(item);
                flowIn(w)->activate();
                delete item;
            })
        .ctor("QUxFlowLayout(spacing)", [](int spacing) { return newFlow(12, spacing); });
    sweep.add<W>(
        "QUxFlowLayout, empty", [] { return flowOf(0, -1); },
        [](W& w) {
            QCOMPARE(flowIn(w)->count(), 0);
            QCOMPARE(flowIn(w)->itemAt(0), nullptr);
            QCOMPARE(flowIn(w)->takeAt(0), nullptr);
        });

    using T = QUxTagArea;
    sweep
        .add<T>("QUxTagArea", sized<T, 200, 80>,
                [](T& t) {
                    t.setTags({QStringLiteral("a"), QStringLiteral("b")});
                    QCOMPARE(t.getTags(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
                })
        .op("setTags",
            [](T& t, const QString& s) {
                t.setTags({s, s.left(3), QStringLiteral("<b>x</b>")});
            })
        .op("setUsedLabelCount", [](T& t, int n) { t.setUsedLabelCount(n); })
        .op("createLabel(nullptr)", [](T& t, QUxTagLabel* l) { t.createLabel(l); })
        .op("updateLabels, many",
            [](T& t, int n) { t.updateLabels(QVector<QString>(qBound(0, n, 2000), QStringLiteral("tag")).toList()); });

    using L = QUxTagLabel;
    sweep
        .add<L>("QUxTagLabel",
                [](L& l) {
                    l.setTag(QStringLiteral("metal"));
                    QSignalSpy removed(&l, &L::tagRemove);
                    l.emitTagRemove();
                    QCOMPARE(removed.count(), 1);
                })
        .op("setTag", [](L& l, const QString& s) { l.setTag(s), l.adjustSize(); });
}

/// A plain multi-level box whose text is the value in words; it never pops up in the sweep.
class SweepLevelBox : public QUxMultiLevelComboBox
{
public:
    SweepLevelBox()
    {
        addItem(QString());
        reset();
    }

protected:
    QUxComboBoxMenu* createMenu() override { return new QUxComboBoxMenu(font(), currentData(), this); }
    QString defaultText() const override { return QStringLiteral("none"); }
    QVariant defaultData() const override { return 0; }
    QString toText(const QVariant& value) const override { return value.toString().left(64); }
};

/// A line edit with a completer that answers every request with @p count entries.
std::shared_ptr<QLineEdit> completedEdit(int count = 3)
{
    auto edit = std::make_shared<QLineEdit>();
    auto* completer = new QUxSuggestCompletion(edit.get(), 0, 1);
    QObject::connect(completer, &QUxSuggestCompletion::needSuggestions, completer,
                     [completer, count](const QString& s) {
                         const QStringList choices(QVector<QString>(count, s.left(100)).toList());
                         completer->receivedSuggestions(choices, choices, QVector<QVariant>(count, 1).toList());
                     });
    return edit;
}

QUxSuggestCompletion* completerOf(QLineEdit& e) { return e.findChild<QUxSuggestCompletion*>(); }

void addSearchAndProgress(uxHostile::Sweep& sweep)
{
    using S = QUxSearchBox;
    sweep
        .add<S>(
            "QUxSearchBox", [] { return std::make_shared<S>(nullptr); },
            [](S& s) {
                QSignalSpy changed(&s, &S::searchChanged);
                s.setText(QStringLiteral("door"));
                QCOMPARE(s.text(), QStringLiteral("door"));
                QCOMPARE(changed.count(), 0);
            })
        .op("setText", [](S& s, const QString& t) { s.setText(t), s.beginSearch(); })
        .op("type and Return",
            [](S& s, const QString& t) {
                s.setDelayedLiveSearch(true);
                s.findChild<QLineEdit*>()->setText(t);
                QTest::keyClick(s.findChild<QLineEdit*>(), Qt::Key_Return);
            })
        .op("setDelayInterval", [](S& s, int ms) { s.setDelayedLiveSearch(true), s.setDelayInterval(ms); })
        .op("addWidget(nullptr)", [](S& s, QWidget* w) { s.addWidget(w); });

    using E = QLineEdit;
    sweep
        .add<E>(
            "QUxSuggestCompletion", [] { return completedEdit(); },
            [](E& e) {
                QUxSuggestCompletion* c = completerOf(e);
                c->popup()->hide();
                c->receivedSuggestions({QStringLiteral("late")}, {QString()}, {1}); // outside a request
                QVERIFY(!c->popup()->isVisible());
            })
        .op("autoSuggest", [](E& e, const QString& t) { e.setText(t), completerOf(e)->autoSuggest(); })
        .op("unequal lists",
            [](E& e, int n) {
                const QStringList three{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
                completerOf(e)->showCompletion(three, QVector<QString>(qBound(0, n, 5)).toList(), {1, 2});
            })
        .op("many, then keys",
            [](E& e, int n) {
                const int count = qBound(0, n, 2000);
                completerOf(e)->showCompletion(QVector<QString>(count, QStringLiteral("x")).toList(),
                                               QVector<QString>(count, QStringLiteral("y")).toList(),
                                               QVector<QVariant>(count, 0).toList());
                QTest::keyClick(completerOf(e)->popup(), Qt::Key_Down);
                QTest::keyClick(completerOf(e)->popup(), Qt::Key_Return);
            })
        .op("setPauseInterval", [](E& e, int ms) { completerOf(e)->setPauseInterval(ms); })
        .ctor("QUxSuggestCompletion(editor, pause, length)", [](int n) {
            auto* edit = new QLineEdit;
            new QUxSuggestCompletion(edit, n, n);
            return edit;
        });

    using R = QUxSubProgress;
    sweep
        .add<R>("QUxSubProgress",
                [](R& r) {
                    r.setSteps(7);
                    r.setStep(3);
                    QCOMPARE(r.percentage(), 42);
                })
        .ops("setSteps", &R::setSteps, "setStep", &R::setStep, "setRefreshInterval", &R::setRefreshInterval)
        .op("setDescription", [](R& r, const QString& t) { r.setDescription(qtText(t)); })
        .op("finish twice",
            [](R& r, int steps) { r.setSteps(steps), r.setStep(steps), r.setStep(steps), r.increaseStep(); })
        .op("setProgress", [](R&, int step) { R::setProgress(unsigned(step)); });

    using D = QUxAdvancedProgressDialog;
    sweep
        .add<D>("QUxAdvancedProgressDialog",
                [](D&) {
                    QUxSubProgress* row = D::addProgress(QStringLiteral("load"), 3, nullptr);
                    QCOMPARE(D::progressCount(), 1);
                    D::destroyProgress(row);
                    QCOMPARE(D::progressCount(), 0);
                })
        .op("addSubProgress",
            [](D& d, int steps) { d.removeSubProgress(d.addSubProgress(QStringLiteral("x"), steps, true)); })
        .op("addProgress, close out of order",
            [](D&, int steps) {
                QUxSubProgress* outer = D::addProgress(QStringLiteral("outer"), steps, nullptr);
                D::addProgress(QStringLiteral("inner"), steps, nullptr);
                D::destroyProgress(outer);
                D::increaseLastProgress();
                D::destroyProgress(outer);
                D::destroyLastProgress();
                D::destroyLastProgress();
            })
        .op("destroyProgress(nullptr)", [](D&, QUxSubProgress* r) { D::destroyProgress(r), D::destroyLastProgress(); })
        .op("roundedRect", [](D&, int radius) {
            D::roundedRect(QRect(QPoint(0, 0), QPoint(40, 20)), radius);
            D::roundedRect(QRect(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX)), radius);
        });

    using I = QUxProgressIndicator;
    sweep
        .add<I>("QUxProgressIndicator",
                [](I& i) {
                    i.startAnimation();
                    QVERIFY(i.isAnimated());
                    i.stopAnimation();
                })
        .op("setAnimationDelay", [](I& i, int ms) { i.startAnimation(), i.setAnimationDelay(ms); })
        .op("resize",
            [](I& i, QSize size) {
                i.setDisplayedWhenStopped(true), i.resize(size), i.heightForWidth(size.width()),
                    i.grab(QRect(0, 0, 32, 32)), i.resize(32, 32);
            })
        .op("setColor", [](I& i, int v) { i.setColor(QColor(v, v, v)); });

    using G = QUxProgressDialogGUII;
    sweep
        .add<G>("QUxProgressDialogGUII",
                [](G&) {
                    G::start(QStringLiteral("busy"), nullptr);
                    G::stop();
                    QCOMPARE(G::the(), nullptr);
                })
        .op("start",
            [](G&, const QString& t) { G::start(qtText(t), nullptr), G::setProgressVisible(false), G::stop(); })
        .op("start over a hidden parent",
            [](G& g, QWidget* w) { G::setWorkspace(w), G::start(QString(), &g), G::stop(); });
}

void addPanelsAndCombos(uxHostile::Sweep& sweep)
{
    using T = QUxTextureControls;
    sweep
        .add<T>("QUxTextureControls",
                [](T& t) {
                    QSignalSpy projection(&t, &T::changedProjectionType);
                    t.setProjectionType(5);
                    QCOMPARE(projection.count(), 1);
                })
        .ops("setTextureRepeatU", &T::setTextureRepeatU, "setTextureRepeatV", &T::setTextureRepeatV,
             "setTextureOffsetU", &T::setTextureOffsetU, "setTextureOffsetV", &T::setTextureOffsetV, "setTextureRotate",
             &T::setTextureRotate, "setAnisotropy", &T::setAnisotropy, "setGamma", &T::setGamma,
             "setPlanarProjectionScaleX", &T::setPlanarProjectionScaleX, "setTriplanarEdgeBlend",
             &T::setTriplanarEdgeBlend)
        .ops("setRepeatModeU", &T::setRepeatModeU, "setRepeatModeV", &T::setRepeatModeV, "setProjectionType",
             &T::setProjectionType, "setFrameOffset", &T::setFrameOffset)
        .op("vectors",
            [](T& t, double v) {
                t.setPlanarProjectionCenter(v, v, v);
                t.setPlanarProjectionRotation(v, v);
                t.setTriplanarTextureSize(v, v);
                t.setTriplanarTextureRepeatU(v, v, v);
                t.setTriplanarTextureOffsetV(v, v, v);
                t.setTriplanarTextureRotation(v, v, v);
            })
        .op("setTexture, droppedFile",
            [](T& t, const QString& s) { t.setTexture(qtText(s)), t.droppedFile(s), t.setTextureEdited(); })
        .op("link, then mode", [](T& t, int mode) {
            t.setConnectRepeatModes(true), t.setRepeatModeU(mode), t.setUseRealWorldScale(true);
        });

    using U = uxTesselationSettings;
    sweep
        .add<U>("uxTesselationSettings",
                [](U& u) {
                    u.setStitchingEnabled(true);
                    QVERIFY(u.stitchingEnabled());
                })
        .ops("setChordDeviation", &U::setChordDeviation, "setNormalTolerance", &U::setNormalTolerance,
             "setMaxChordLength", &U::setMaxChordLength, "setStitchingTolerance", &U::setStitchingTolerance)
        .op("enableGroups", [](U& u, int mask) { u.enableGroups(unsigned(mask)); })
        .op("typed", [](U& u, double v) {
            auto* field = u.findChild<QDoubleSpinBox*>(QStringLiteral("_chord_deviation"));
            field->setValue(v);
            u.updateQualityPreset();
        });

    using C = QUxComboBox;
    sweep
        .add<C>("QUxComboBox", sized<C>,
                [](C& c) {
                    QSignalSpy shown(&c, &C::popupShown);
                    c.showPopup();
                    QCOMPARE(shown.count(), 1);
                    c.hidePopup();
                })
        .op("addItems, showPopup",
            [](C& c, const QString& s) {
                c.addItems({qtText(s), QStringLiteral("b")});
                c.showPopup();
                c.hidePopup();
            })
        .op("many, showPopup", [](C& c, int n) {
            c.addItems(QVector<QString>(qBound(0, n, 10000), QStringLiteral("entry")).toList());
            c.showPopup();
            c.hidePopup();
        });

    using M = QUxComboBoxMenu;
    sweep
        .add<M>(
            "QUxComboBoxMenu", [] { return std::make_shared<M>(QFont(), QVariant(1), nullptr); },
            [](M& m) {
                QAction* current = m.addItem(&m, QStringLiteral("one"), 1);
                QVERIFY(current->isChecked());
            })
        .op("nested 20 deep",
            [](M& m, const QString& s) {
                QMenu* menu = &m;
                for (int depth = 0; depth < 20; ++depth)
                    menu = m.addMenu(menu, qtText(s), depth);
                m.addItem(menu, qtText(s), s);
            })
        .op("addItem(nullptr)", [](M& m, QMenu* menu) {
            m.addItem(menu, QString(), QVariant()), m.addMenu(menu, QString(), 0), m.setFontSettings(menu);
        });

    using L = SweepLevelBox;
    sweep
        .add<L>("QUxMultiLevelComboBox",
                [](L& l) {
                    if (l.count() == 0) // a box without its one item changes nothing
                        l.addItem(QString());
                    l.change(QStringLiteral("two"), 2);
                    l.reset();
                    l.undo();
                    QCOMPARE(l.currentData(), QVariant(2));
                })
        .op("change", [](L& l, const QString& s) { l.change(qtText(s), s), l.update(), l.undo(), l.reset(); })
        .op("change, no item", [](L& l, int v) { l.clear(), l.change(QString::number(v), v), l.reset(), l.undo(); });
}

void addMenusAndToolBars(uxHostile::Sweep& sweep)
{
    using S = QUxSAMenu;
    sweep
        .add<S>(
            "QUxSAMenu", [] { return std::make_shared<S>(nullptr); },
            [](S& s) {
                s.addAction(QStringLiteral("Lights"));
                typeSearch(s, QStringLiteral("IGH"));
                QVERIFY(s.actions().last()->isVisible());
            })
        .op("type into empty menu", [](S& s, const QString& t) { typeSearch(s, t); })
        .op("type", [](S& s, const QString& t) {
            for (const char* text : {"a(b", "*", "\\", "Lights"})
                s.addAction(QString::fromLatin1(text));
            s.addSeparator();
            typeSearch(s, t);
            s.setVisible(true);
            s.setVisible(false);
        });

    using A = QUxAnimatedMenu;
    sweep
        .add<A>(
            "QUxAnimatedMenu", [] { return std::make_shared<A>(nullptr); },
            [](A& a) {
                a.makeTransparent();
                a.fadeIn();
                QCOMPARE(a.windowOpacity(), 0.0);
            })
        .op("addAction", [](A& a, const QString& s) { a.addAction(qtText(s)); });

    using O = QUxOpenMenu;
    sweep
        .add<O>(
            "QUxOpenMenu", [] { return std::make_shared<O>(QString(), nullptr); },
            [](O& o) {
                o.setVisible(true);
                o.setVisible(false);
                QVERIFY(o.isVisible());
                o.setVisibleNow(false);
                QVERIFY(!o.isVisible());
            })
        .op("setTitle", [](O& o, const QString& s) { o.setTitle(s); });

    using T = QUxToolBar;
    sweep
        .add<T>(
            "QUxToolBar", [] { return std::make_shared<T>(nullptr); },
            [](T& t) {
                auto* action = new QAction(QStringLiteral("x"), &t);
                t.addAction(action);
                QCOMPARE(qobject_cast<QToolButton*>(t.widgetForAction(action))->autoRaise(), false);
            })
        .op("addAction", [](T& t, const QString& s) { t.addAction(new QUxAction(qtText(s), &t)); })
        .op("addWidget", [](T& t, QWidget* w) { t.addWidget(w); })
        .op("insertAction", [](T& t, QAction* a) { t.insertAction(a, new QAction(&t)); })
        .op("clear while the text switch changes", [](T& t, const QString& s) {
            t.addAction(new QUxAction(s, &t));
            t.setObjectName(s);
            T::showButtonText(true);
            t.clear();
            QUxAction::showIconText(true);
            T::showButtonText(false);
            QUxAction::showIconText(false);
        });

    using B = QUxToolButton;
    sweep.add<B>("QUxToolButton", sized<B, 40, 40>, [](B& b) { QCOMPARE(b.toolButtonStyle(), Qt::ToolButtonIconOnly); })
        .op("setText with menu", [](B& b, const QString& s) {
            b.setMenu(new QMenu(&b));
            b.setText(qtText(s));
        });

    using P = QUxPushButton;
    sweep.add<P>("QUxPushButton", sized<P>, [](P& p) {
        QSignalSpy clicked(&p, &QPushButton::clicked);
        QTest::mouseClick(&p, Qt::RightButton);
        QCOMPARE(clicked.count(), 1);
    });
}

/// @p payload under @p format dropped on @p target at @p x.
void dropPayload(QWidget* target, const QString& format, const QByteArray& payload, int x)
{
    QMimeData data;
    data.setData(format, payload);
    deliverDrop(target, data, x);
}

void addQuickAccessAndManager(uxHostile::Sweep& sweep)
{
    using Q = QUxQuickAccessBar;
    const QString module = QStringLiteral("application/corva-module-icon");
    const QString button = QStringLiteral("application/corva-quickAccess-button");
    sweep
        .add<Q>("QUxQuickAccessBar", sized<Q, 300, 40>,
                [](Q& q) {
                    QUxDockWidget dock(QStringLiteral("Lights"), QStringLiteral("Lights"));
                    dock.setIntName(QStringLiteral("Lights"));
                    q.addModule(&dock, nullptr, QIcon(), QString(), QString(), false);
                    QCOMPARE(q.moduleNames(), std::vector<QString>{QStringLiteral("Lights")});
                })
        .op("addModule(named)",
            [](Q& q, const QString& s) {
                QUxDockWidget dock(qtText(s), s);
                dock.setIntName(s);
                q.addModule(&dock, nullptr, QIcon(), qtText(s), qtText(s), true);
                q.grab();
            })
        .op("addModule", [](Q& q, QUxDockWidget* d) { q.addModule(d, nullptr, QIcon(), {}, {}, false); })
        .op("addButton, addSpecial, clear",
            [](Q& q, QAction* a) {
                q.addButton(a, QIcon());
                q.addSpecial(a);
                q.clear();
            })
        .op("drop payloads",
            [module, button](Q& q, const QString& s) {
                dropPayload(&q, module, s.toLatin1(), 10);
                dropPayload(&q, button, s.toLatin1(), 10);
            })
        .op("drag a button to x", [button](Q& q, int x) {
            QUxDockWidget dock;
            q.addModule(&dock, nullptr, QIcon(), {}, {}, false);
            dropPayload(&q, button, QUxQuickAccessButton::payload(QUxQuickAccessButton::lastCreated()), x);
        });

    using B = QUxQuickAccessButton;
    sweep.add<B>("QUxQuickAccessButton", sized<B, 40, 40>, [](B& b) { QCOMPARE(B::fromPayload(B::payload(&b)), &b); })
        .op("setDockWidget",
            [](B& b, QUxDockWidget* d) { b.setDockWidget(d), b.toggle(), b.changedWidgetVisibility(true); })
        .op("fromPayload", [](B&, const QString& s) { QCOMPARE(B::fromPayload(s.toLatin1()), nullptr); });

    using M = QUxDockWindowManager;
    struct Host
    {
        QMainWindow window;
        M manager{&window};
    };
    const auto host = [] {
        const auto owner = std::make_shared<Host>();
        return std::shared_ptr<M>(owner, &owner->manager);
    };
    sweep
        .add<M>("QUxDockWindowManager", host,
                [](M& m) {
                    auto* lights = new QLabel;
                    QUxDockWidget* dock = m.add("Lights", QStringLiteral("Rendering/Lamps"), lights);
                    QVERIFY(dock);
                    QCOMPARE(m.getDockWidget(QStringLiteral("Lights")), dock);
                    const bool removed = m.sub(QStringLiteral("Lights"));
                    if (removed)
                        delete lights; // given back to the caller
                    QVERIFY(removed);
                })
        .op("add(name, group)",
            [](M& m, const QString& s) {
                const QByteArray name = qtText(s).toUtf8();
                auto* widget = new QLabel;
                if (!m.add(name.constData(), s, widget, s, QIcon(), s, Qt::NoDockWidgetArea, true, nullptr))
                    delete widget; // refused: still the caller's
                auto* duplicate = new QLabel;
                if (!m.add(name.constData(), s, duplicate)) // docked, but the first keeps the name
                    delete duplicate;
                m.updateMenus();
            })
        .op("add(area)",
            [](M& m, Enum area) {
                m.createGroupMenus();
                m.add("Lamps", QStringLiteral("Rendering"), new QLabel, {}, {}, {},
                      area.masked<Qt::DockWidgetArea>(Qt::AllDockWidgetAreas));
            })
        .op("add(nullptr)",
            [](M& m, QWidget* w) {
                QVERIFY(!m.add("Lights", {}, w));
                QVERIFY(!m.addToolbar("Bar", {}, w));
            })
        .op("by unknown name",
            [](M& m, const QString& s) {
                m.show(s), m.hide(s), m.showMenuItem(s, s), m.hideMenuItem(s, s);
                QVERIFY(!m.getDockWidget(s) && !m.get(s) && !m.getToolbar(s));
                QVERIFY(!m.undock(s) && !m.sub(s) && !m.change(s, nullptr));
            })
        .ops("setWindowOpacity", &M::setWindowOpacity, "sub(widget)", qOverload<QWidget*>(&M::sub));
}

const uxHostile::Sweep& theSweep()
{
    static const uxHostile::Sweep sweep = [] {
        uxHostile::Sweep s;
        addValues(s);
        addSpinBoxes(s);
        addSliders(s);
        addWheels(s);
        addVectors(s);
        addColorControls(s);
        addCurvesAndTime(s);
        addItemViews(s);
        addDockingAndLabels(s);
        addMenusAndToolBars(s);
        addQuickAccessAndManager(s);
        addLayouts(s);
        addSearchAndProgress(s);
        addPanelsAndCombos(s);
        return s;
    }();
    return sweep;
}

using FieldMaker = std::function<std::shared_ptr<QWidget>()>;

} // namespace

Q_DECLARE_METATYPE(FieldMaker)

class tst_hostileInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::c());
        qInfo("%d hostile (class, operation, input) cases", theSweep().size());
    }

    void everyOperationSurvivesHostileInput_data() { theSweep().addRows(); }
    void everyOperationSurvivesHostileInput() { theSweep().runRow(); }

    void shouldSurvivePastedTextInEveryNumericField_data()
    {
        QTest::addColumn<FieldMaker>("make");
        QTest::addColumn<QString>("text");
        const std::pair<const char*, FieldMaker> fields[] = {
            {"QUxDoubleSpiner", [] { return std::make_shared<QUxDoubleSpiner>(); }},
            {"QUxSpiner", [] { return std::make_shared<QUxSpiner>(); }},
            {"QUxSlider", [] { return std::make_shared<QUxSlider>(); }},
            {"QUxIntegerSlider", [] { return std::make_shared<QUxIntegerSlider>(); }},
            {"QUxWheelPrec", [] { return std::make_shared<QUxWheelPrec>(); }},
            {"QUxWhiteBalance", [] { return std::make_shared<QUxWhiteBalance>(); }}};
        const int half = 1 << 19;
        const std::pair<const char*, QString> texts[] = {
            {"1MB letters", uxHostile::megabyte()},
            {"1MB sums", QStringLiteral("1+").repeated(half) + QLatin1Char('1')},
            {"1MB relative sums", QStringLiteral("+=") + QStringLiteral("1+").repeated(half) + QLatin1Char('1')},
            {"1MB points and blanks", QStringLiteral(". ").repeated(half)},
            {"100KB parentheses",
             QString(50000, QLatin1Char('(')) + QLatin1Char('1') + QString(50000, QLatin1Char(')'))}};
        for (const auto& [field, make] : fields)
            for (const auto& [name, text] : texts)
                QTest::addRow("%s %s", field, name) << make << text;
    }

    void shouldSurvivePastedTextInEveryNumericField()
    {
        QFETCH(FieldMaker, make);
        QFETCH(QString, text);
        const std::shared_ptr<QWidget> field = make();
        auto* spin = qobject_cast<QAbstractSpinBox*>(field.get());
        spin = spin ? spin : field->findChild<QAbstractSpinBox*>();
        // A paste ends in insert(), which keeps what fits the line edit; the evaluator gets the whole text too.
        if (auto* ux = qobject_cast<QUxDoubleSpiner*>(spin)) {
            int pos = 0;
            QString whole = text;
            ux->validate(whole, pos);
            QVERIFY(!std::isnan(ux->valueFromText(text)));
        }
        auto* edit = spin->findChild<QLineEdit*>();
        edit->selectAll();
        edit->insert(text);
        QTest::keyClick(spin, Qt::Key_Return);
        QVERIFY(!uxTest::grab(field.get()).isNull());
        if (auto* d = qobject_cast<QDoubleSpinBox*>(spin)) {
            QVERIFY(!std::isnan(d->value()));
            d->setValue(d->minimum() + 1);
            QCOMPARE(d->value(), d->minimum() + 1);
        } else if (auto* i = qobject_cast<QSpinBox*>(spin)) {
            i->setValue(i->minimum() + 1);
            QCOMPARE(i->value(), i->minimum() + 1);
        }
    }

    // Regressions of crashes the sweep found.

    void shouldNotCrashOnInfiniteConstantChannel()
    {
        // each infinity re-entered the channel setter until the stack ran out
        QUxColorField field;
        field.setMode(QUxColorField::Green);
        field.setConstantChannel(-qInf());
        QCOMPARE(field.getConstantChannel(), -FLT_MAX);
        field.setMode(QUxColorField::Hue);
        field.setConstantChannel(qInf());
        QCOMPARE(field.getConstantChannel(), FLT_MAX);
    }

    void shouldNotCrashOnColorDropOnSwatchOutsidePalette()
    {
        QUxColorArray array;
        QUxColorCell cell(&array, -1);
        dropColor(&cell, Qt::red);
        QCOMPARE(array.currentIndex(), -1);
    }

    void shouldNotCrashOnSortByLargeNegativeColumn()
    {
        const auto model = table({QStringLiteral("b"), QStringLiteral("a")});
        QUxSortFilterProxyModel proxy;
        proxy.setSourceModel(model.get());
        proxy.sort(0);
        proxy.sort(INT_MIN);
        QCOMPARE(proxy.index(0, 0).data().toString(), QStringLiteral("a"));
    }

    void shouldNotCrashOnSwatchWithoutArray()
    {
        QUxColorCell cell(nullptr, 0);
        QVERIFY(!uxTest::grab(&cell).isNull());
        dropColor(&cell, Qt::red);
        click(&cell);
        QCOMPARE(cell.colorArray(), nullptr);
    }
};

QTEST_MAIN(tst_hostileInput)
#include "tst_hostileInput.moc"
