#include <QUxSpiner.h>
#include <uxPlatform.h>
#include <uxSceneUnitChecks.h>
#include <uxUIUtils.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QTimer>

#include <algorithm>
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
    const auto actions = menu->actions();
    const auto action = std::find_if(actions.begin(), actions.end(), [&](QAction* a) { return a->text() == text; });
    QVERIFY(action != actions.end());
    menu->setActiveAction(*action);
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
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init()
    {
        uxUIUtils::setSceneUnitScale(1.0f);
        uxPlatform::reset();
    }

    void shouldStartWithItsDocumentedSetup()
    {
        QUxSpiner spin;
        QCOMPARE(spin.focusPolicy(), Qt::WheelFocus);
        QCOMPARE(spin.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
        QCOMPARE(spin.minimum(), -2147483647);
        QCOMPARE(spin.maximum(), 2147483647);
        QVERIFY(!spin.keyboardTracking());
        QVERIFY(spin.showStepHint());
        QVERIFY(spin.autoStepsOnMousePress());
        QVERIFY(!spin.displaySceneUnit());
        QVERIFY(!spin.isEditingStep());

        QCOMPARE(spin.sizeHint(), QSize(90, 20));
        uxPlatform::setDpiScale(2.0, 2.0);
        QCOMPARE(spin.sizeHint(), QSize(180, 40));

        // the texts hosts connect and set by
        const QMetaObject& meta = QUxSpiner::staticMetaObject;
        QVERIFY(meta.indexOfSignal("singleStepChanged(int)") >= meta.methodOffset());
        QVERIFY(meta.indexOfSlot("setSingleStep(int)") >= meta.methodOffset());
        for (const char* name : {"showStepHint", "autoStepsOnMousePress", "displaySceneUnit"})
            QVERIFY2(meta.indexOfProperty(name) >= meta.propertyOffset(), name);
    }

    void shouldEmitEveryStepWithoutLowerLimit_data()
    {
        QTest::addColumn<int>("step");
        QTest::newRow("ordinary") << 5;
        QTest::newRow("zero") << 0;
        QTest::newRow("same as before") << 1;
    }

    void shouldEmitEveryStepWithoutLowerLimit()
    {
        QFETCH(int, step);
        QUxSpiner spin;
        QSignalSpy steps(&spin, &QUxSpiner::singleStepChanged);
        spin.setSingleStep(step);
        QCOMPARE(spin.singleStep(), step);
        QCOMPARE(steps.count(), 1);
        QCOMPARE(steps.at(0).at(0).toInt(), step);
    }

    void shouldDragValueWithMiddleButton_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("state");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("toX"); // from x 60
        QTest::addColumn<int>("expected");
        const int middle = Qt::MiddleButton;
        // one step per pixel, clamped to the range even where the sum leaves int
        const std::tuple<const char*, int, const char*, int, int, int, int> drags[] = {
            {"middle left", middle, "", 100, 3, 50, 70},
            {"middle right", middle, "", 100, 3, 64, 112},
            {"middle still", middle, "", 100, 3, 60, 100},
            {"left selects text", Qt::LeftButton, "", 100, 3, 90, 100},
            {"right", Qt::RightButton, "", 100, 3, 90, 100},
            {"back button", Qt::BackButton, "", 100, 3, 90, 100},
            {"read-only", middle, "read-only", 100, 3, 90, 100},
            {"disabled", middle, "disabled", 100, 3, 90, 100},
            {"clamped at the top", middle, "", 2147483600, 100, 61, 2147483647},
            {"clamped at the bottom", middle, "", -2147483600, 100, 59, -2147483647},
            {"huge step clamped", middle, "", 0, 1073741824, 64, 2147483647}};
        for (const auto& [name, button, state, start, step, toX, expected] : drags)
            QTest::newRow(name) << button << QString(state) << start << step << toX << expected;
    }

    void shouldDragValueWithMiddleButton()
    {
        QFETCH(int, button);
        QFETCH(QString, state);
        QFETCH(int, start);
        QFETCH(int, step);
        QFETCH(int, toX);
        QFETCH(int, expected);
        QUxSpiner spin;
        spin.resize(200, 30);
        spin.setValue(start);
        spin.setSingleStep(step);
        spin.setReadOnly(state == QLatin1String("read-only"));
        spin.setEnabled(state != QLatin1String("disabled"));
        dragWith(spin, Qt::MouseButton(button), 60, toX);
        QCOMPARE(spin.value(), expected);
    }

    void shouldStepFromContextMenu()
    {
        QUxSpiner spin;
        spin.setRange(0, 10);
        spin.setValue(10);
        spin.setSingleStep(4);
        withContextMenu(spin, [](QMenu* menu) {
            const auto actions = menu->actions().mid(menu->actions().size() - 5); // after the line edit's own
            QStringList texts;
            for (QAction* action : actions)
                texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
            QCOMPARE(texts, QStringList({"|", "&Step up", "Step &down", "|", "Step..."}));
            QVERIFY(!actions.at(1)->isEnabled()); // at the maximum
            QVERIFY(actions.at(2)->isEnabled());
            choose(menu, QStringLiteral("Step &down"));
        });
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(spin.value(), 6);
        withContextMenu(spin, [](QMenu* menu) { choose(menu, QStringLiteral("&Step up")); });
        QCOMPARE(spin.value(), 10);
    }

    void shouldEditOwnStepAndRestoreAfterwards()
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

        // without the hint the step shows no prefix
        spin.setShowStepHint(false);
        withContextMenu(spin, [](QMenu* menu) { choose(menu, QStringLiteral("Step...")); });
        QCOMPARE(spin.prefix(), QString());
    }

    void shouldKeepDraggedStepValueFromHost()
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

    void shouldAutoRepeatHeldArrowOnlyWhenAutoStepsAreOn_data()
    {
        QTest::addColumn<bool>("autoSteps");
        QTest::addColumn<int>("afterRepeats");
        QTest::newRow("on") << true << 3;
        QTest::newRow("off") << false << 1;
    }

    void shouldAutoRepeatHeldArrowOnlyWhenAutoStepsAreOn()
    {
        QFETCH(bool, autoSteps);
        QFETCH(int, afterRepeats);
        QUxSpiner spin;
        spin.resize(120, 30);
        spin.setAutoStepsOnMousePress(autoSteps);
        const QPoint up = upButtonRect(spin).center();
        QTest::mousePress(&spin, Qt::LeftButton, Qt::NoModifier, up);
        QCOMPARE(spin.value(), 1);
        // Fire the repeat timers at once instead of holding the button past their delay.
        for (int round = 0; round < 2; ++round) {
            const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&spin);
            QVERIFY(!timers.isEmpty());
            for (const auto& timer : timers) {
                QTimerEvent tick(timer.timerId);
                QApplication::sendEvent(&spin, &tick);
            }
        }
        QCOMPARE(spin.value(), afterRepeats);
        QTest::mouseRelease(&spin, Qt::LeftButton, Qt::NoModifier, up);
    }

    void shouldUpdateSceneUnitOnAllRegisteredInstances()
    {
        uxTest::verifySceneUnitFollowers<QUxSpiner>(QStringLiteral(" px"));
    }
};

QTEST_MAIN(tst_QUxSpiner)
#include "tst_QUxSpiner.moc"
