#include <QUxSpiner.h>
#include <uxPlatform.h>
#include <uxUIUtils.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

QLineEdit* editOf(QAbstractSpinBox& spin) { return spin.findChild<QLineEdit*>(QStringLiteral("qt_spinbox_lineedit")); }

void sendMouse(QWidget* target, QEvent::Type type, Qt::MouseButton button, int x)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, QPointF(x, 5), target->mapToGlobal(QPoint(x, 5)),
                      type == QEvent::MouseMove ? Qt::NoButton : button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

void dragWith(QUxSpiner& spin, Qt::MouseButton button, int fromX, int toX)
{
    QLineEdit* edit = editOf(spin);
    sendMouse(edit, QEvent::MouseButtonPress, button, fromX);
    sendMouse(edit, QEvent::MouseMove, button, toX);
    sendMouse(edit, QEvent::MouseButtonRelease, button, toX);
}

QAction* actionNamed(QMenu* menu, const QString& text)
{
    const auto actions = menu->actions();
    for (QAction* action : actions) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

/// Opens the context menu of @p spin and hands the running menu to @p inspect, which must close it.
void withContextMenu(QUxSpiner& spin, const std::function<void(QMenu*)>& inspect)
{
    bool inspected = false;
    QTimer::singleShot(0, &spin, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        inspected = true;
        inspect(menu);
    });
    QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(10, 10), spin.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&spin, &request);
    QVERIFY(inspected);
}

void choose(QMenu* menu, const QString& text)
{
    QAction* action = actionNamed(menu, text);
    QVERIFY(action);
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
}

QRect upButtonRect(QUxSpiner& spin)
{
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.rect = spin.rect();
    option.buttonSymbols = spin.buttonSymbols();
    option.subControls = QStyle::SC_All;
    option.frame = true;
    return spin.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &spin);
}

} // namespace

class tst_QUxSpiner : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void shouldStartWithItsDocumentedSetup();
    void shouldDeclareSignaturesHostsConnectByText();
    void shouldHintNinetyPixelsBySmallIconHeight();
    void shouldEmitEveryStepWithoutLowerLimit_data();
    void shouldEmitEveryStepWithoutLowerLimit();
    void shouldDragValueWithMiddleButton_data();
    void shouldDragValueWithMiddleButton();
    void shouldIgnoreDragsWhileDisabledOrReadOnly();
    void shouldOfferStepActionsInContextMenu();
    void shouldStepFromContextMenu();
    void shouldEditOwnStepAndRestoreAfterwards();
    void shouldEditStepWithoutHintWhenHintIsOff();
    void shouldKeepDraggedStepValueFromHost();
    void shouldStepOnceWhenAutoStepsAreOff();
    void shouldUpdateSceneUnitOnAllRegisteredInstances();
};

void tst_QUxSpiner::initTestCase() { QLocale::setDefault(QLocale::c()); }

void tst_QUxSpiner::init()
{
    uxUIUtils::setSceneUnitScale(1.0f);
    uxPlatform::reset();
}

void tst_QUxSpiner::shouldStartWithItsDocumentedSetup()
{
    QUxSpiner spin;
    QCOMPARE(spin.focusPolicy(), Qt::WheelFocus);
    QCOMPARE(spin.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(spin.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(spin.minimum(), -2147483647);
    QCOMPARE(spin.maximum(), 2147483647);
    QVERIFY(!spin.keyboardTracking());
    QVERIFY(spin.showStepHint());
    QVERIFY(spin.autoStepsOnMousePress());
    QVERIFY(!spin.displaySceneUnit());
    QVERIFY(!spin.isEditingStep());
}

void tst_QUxSpiner::shouldDeclareSignaturesHostsConnectByText()
{
    const QMetaObject& meta = QUxSpiner::staticMetaObject;
    QVERIFY(meta.indexOfSignal("singleStepChanged(int)") >= meta.methodOffset());
    QVERIFY(meta.indexOfSlot("setSingleStep(int)") >= meta.methodOffset());
    QVERIFY(meta.indexOfSlot("finishedEditing()") >= meta.methodOffset());
    for (const char* name : {"showStepHint", "autoStepsOnMousePress", "displaySceneUnit"})
        QVERIFY2(meta.indexOfProperty(name) >= meta.propertyOffset(), name);
}

void tst_QUxSpiner::shouldHintNinetyPixelsBySmallIconHeight()
{
    QUxSpiner spin;
    QCOMPARE(spin.sizeHint(), QSize(90, uxPlatform::getSmallIconSizeY()));
    uxPlatform::setDpiScale(2.0, 2.0);
    QCOMPARE(spin.sizeHint(), QSize(180, uxPlatform::getSmallIconSizeY()));
}

void tst_QUxSpiner::shouldEmitEveryStepWithoutLowerLimit_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("ordinary") << 5;
    QTest::newRow("zero") << 0;
    QTest::newRow("same as before") << 1;
}

void tst_QUxSpiner::shouldEmitEveryStepWithoutLowerLimit()
{
    QFETCH(int, step);
    QUxSpiner spin;
    QSignalSpy steps(&spin, &QUxSpiner::singleStepChanged);
    spin.setSingleStep(step);
    QCOMPARE(spin.singleStep(), step);
    QCOMPARE(steps.count(), 1);
    QCOMPARE(steps.at(0).at(0).toInt(), step);
}

void tst_QUxSpiner::shouldDragValueWithMiddleButton_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("fromX");
    QTest::addColumn<int>("toX");
    QTest::addColumn<int>("expected");

    const int middle = Qt::MiddleButton;
    QTest::newRow("middle left") << middle << 100 << 3 << 60 << 50 << 70;
    QTest::newRow("middle right") << middle << 100 << 3 << 60 << 64 << 112;
    QTest::newRow("middle still") << middle << 100 << 3 << 60 << 60 << 100;
    QTest::newRow("left selects text") << int(Qt::LeftButton) << 100 << 3 << 60 << 90 << 100;
    QTest::newRow("right") << int(Qt::RightButton) << 100 << 3 << 60 << 90 << 100;
    QTest::newRow("back button") << int(Qt::BackButton) << 100 << 3 << 60 << 90 << 100;
    QTest::newRow("clamped at the top") << middle << 2147483600 << 100 << 60 << 61 << 2147483647;
    QTest::newRow("clamped at the bottom") << middle << -2147483600 << 100 << 60 << 59 << -2147483647;
    QTest::newRow("huge step clamped") << middle << 0 << 1073741824 << 60 << 64 << 2147483647;
}

void tst_QUxSpiner::shouldDragValueWithMiddleButton()
{
    QFETCH(int, button);
    QFETCH(int, start);
    QFETCH(int, step);
    QFETCH(int, fromX);
    QFETCH(int, toX);
    QFETCH(int, expected);

    QUxSpiner spin;
    spin.resize(200, 30);
    spin.setValue(start);
    spin.setSingleStep(step);
    dragWith(spin, Qt::MouseButton(button), fromX, toX);
    QCOMPARE(spin.value(), expected);
}

void tst_QUxSpiner::shouldIgnoreDragsWhileDisabledOrReadOnly()
{
    QUxSpiner spin;
    spin.setValue(100);
    spin.setReadOnly(true);
    dragWith(spin, Qt::MiddleButton, 60, 90);
    QCOMPARE(spin.value(), 100);

    spin.setReadOnly(false);
    spin.setEnabled(false);
    dragWith(spin, Qt::MiddleButton, 60, 90);
    QCOMPARE(spin.value(), 100);
}

void tst_QUxSpiner::shouldOfferStepActionsInContextMenu()
{
    QUxSpiner spin;
    spin.setRange(0, 10);
    spin.setValue(10);
    withContextMenu(spin, [](QMenu* menu) {
        const auto actions = menu->actions();
        QVERIFY(actions.size() > 5);
        QCOMPARE(actions.last()->text(), QStringLiteral("Step..."));
        QVERIFY(actions.at(actions.size() - 2)->isSeparator());
        QCOMPARE(actions.at(actions.size() - 3)->text(), QStringLiteral("Step &down"));
        QCOMPARE(actions.at(actions.size() - 4)->text(), QStringLiteral("&Step up"));
        QVERIFY(actions.at(actions.size() - 5)->isSeparator());
        QVERIFY(!actions.at(actions.size() - 4)->isEnabled());
        QVERIFY(actions.at(actions.size() - 3)->isEnabled());
        menu->close();
    });
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_QUxSpiner::shouldStepFromContextMenu()
{
    QUxSpiner spin;
    spin.setValue(10);
    spin.setSingleStep(4);
    withContextMenu(spin, [](QMenu* menu) { choose(menu, QStringLiteral("Step &down")); });
    QCOMPARE(spin.value(), 6);
    withContextMenu(spin, [](QMenu* menu) { choose(menu, QStringLiteral("&Step up")); });
    QCOMPARE(spin.value(), 10);
}

void tst_QUxSpiner::shouldEditOwnStepAndRestoreAfterwards()
{
    QUxSpiner spin;
    spin.setRange(-5000, 5000);
    spin.setValue(2500);
    spin.setPrefix(QStringLiteral("x "));
    spin.setSuffix(QStringLiteral(" px"));
    spin.setSingleStep(7);
    QSignalSpy values(&spin, QOverload<int>::of(&QSpinBox::valueChanged));
    QSignalSpy steps(&spin, &QUxSpiner::singleStepChanged);

    withContextMenu(spin, [](QMenu* menu) { choose(menu, QStringLiteral("Step...")); });
    // asked twice, the box still comes back to its own value and range
    withContextMenu(spin, [](QMenu* menu) { choose(menu, QStringLiteral("Step...")); });
    QVERIFY(spin.isEditingStep());
    QCOMPARE(spin.prefix(), QStringLiteral("step "));
    QCOMPARE(spin.suffix(), QString());
    QCOMPARE(spin.minimum(), 1);
    QCOMPARE(spin.maximum(), 1000);
    QCOMPARE(spin.value(), 7);
    QCOMPARE(values.count(), 0);

    QTest::keyClicks(&spin, QStringLiteral("25"));
    QTest::keyClick(&spin, Qt::Key_Return);
    QVERIFY(!spin.isEditingStep());
    QCOMPARE(spin.singleStep(), 25);
    QCOMPARE(steps.count(), 1);
    QCOMPARE(steps.at(0).at(0).toInt(), 25);
    QCOMPARE(spin.prefix(), QStringLiteral("x "));
    QCOMPARE(spin.suffix(), QStringLiteral(" px"));
    QCOMPARE(spin.minimum(), -5000);
    QCOMPARE(spin.maximum(), 5000);
    QCOMPARE(spin.value(), 2500);
    // a host that heard the step value hears the way back as well
    QCOMPARE(values.count(), 2);
    QCOMPARE(values.last().at(0).toInt(), 2500);
}

void tst_QUxSpiner::shouldEditStepWithoutHintWhenHintIsOff()
{
    QUxSpiner spin;
    spin.setShowStepHint(false);
    spin.setPrefix(QStringLiteral("x "));
    withContextMenu(spin, [](QMenu* menu) { choose(menu, QStringLiteral("Step...")); });
    QCOMPARE(spin.prefix(), QString());
}

void tst_QUxSpiner::shouldKeepDraggedStepValueFromHost()
{
    QUxSpiner spin;
    spin.resize(200, 30);
    spin.setValue(300);
    spin.setSingleStep(2);
    withContextMenu(spin, [](QMenu* menu) { choose(menu, QStringLiteral("Step...")); });
    QSignalSpy values(&spin, QOverload<int>::of(&QSpinBox::valueChanged));

    dragWith(spin, Qt::MiddleButton, 60, 64);
    QCOMPARE(spin.value(), 10);
    QFocusEvent focusOut(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&spin, &focusOut);
    QCOMPARE(spin.singleStep(), 10);
    QCOMPARE(spin.value(), 300);
    QCOMPARE(values.count(), 0);
}

void tst_QUxSpiner::shouldStepOnceWhenAutoStepsAreOff()
{
    QUxSpiner spin;
    spin.resize(120, 30);
    spin.setAutoStepsOnMousePress(false);
    spin.show();
    QVERIFY(QTest::qWaitForWindowExposed(&spin));
    QSignalSpy values(&spin, QOverload<int>::of(&QSpinBox::valueChanged));

    QTest::mousePress(&spin, Qt::LeftButton, Qt::NoModifier, upButtonRect(spin).center());
    QCOMPARE(spin.value(), 1);
    // held well past the repeat delay, the arrow must not step again
    QVERIFY(!values.wait(1000));
    QTest::mouseRelease(&spin, Qt::LeftButton, Qt::NoModifier, upButtonRect(spin).center());
    QCOMPARE(spin.value(), 1);

    spin.setAutoStepsOnMousePress(true);
    QTest::mousePress(&spin, Qt::LeftButton, Qt::NoModifier, upButtonRect(spin).center());
    QTRY_VERIFY_WITH_TIMEOUT(spin.value() > 2, 5000);
    QTest::mouseRelease(&spin, Qt::LeftButton, Qt::NoModifier, upButtonRect(spin).center());
}

void tst_QUxSpiner::shouldUpdateSceneUnitOnAllRegisteredInstances()
{
    QUxSpiner first;
    QUxSpiner second;
    QUxSpiner plain;
    plain.setSuffix(QStringLiteral(" px"));
    first.setDisplaySceneUnit(true);
    second.setDisplaySceneUnit(true);
    QCOMPARE(first.suffix(), QStringLiteral(" mm"));
    {
        auto gone = std::make_unique<QUxSpiner>();
        gone->setDisplaySceneUnit(true);
    }

    uxUIUtils::setSceneUnitScale(10.0f);
    QUxSpiner::updateInstancesWithSceneUnit();
    QCOMPARE(first.suffix(), QStringLiteral(" cm"));
    QCOMPARE(second.suffix(), QStringLiteral(" cm"));
    QCOMPARE(plain.suffix(), QStringLiteral(" px"));

    second.setDisplaySceneUnit(false);
    QCOMPARE(second.suffix(), QString());
    uxUIUtils::setSceneUnitScale(1000.0f);
    QUxSpiner::updateInstancesWithSceneUnit();
    QCOMPARE(first.suffix(), QStringLiteral(" m"));
    QCOMPARE(second.suffix(), QString());

    // switching on again reads the unit anew, even without the class-wide update
    uxUIUtils::setSceneUnitScale(10.0f);
    first.setDisplaySceneUnit(true);
    QCOMPARE(first.suffix(), QStringLiteral(" cm"));
}

QTEST_MAIN(tst_QUxSpiner)
#include "tst_QUxSpiner.moc"
