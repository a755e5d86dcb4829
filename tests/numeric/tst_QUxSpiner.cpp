#include <QUxSpiner.h>
#include <uxPlatform.h>
#include <uxSceneUnitChecks.h>
#include <uxUIUtils.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

void sendMouse(QWidget* target, QEvent::Type type, Qt::MouseButton button, int x)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, QPointF(x, 5), target->mapToGlobal(QPoint(x, 5)),
                      type == QEvent::MouseMove ? Qt::NoButton : button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

void dragWith(QUxSpiner& spin, Qt::MouseButton button, int fromX, int toX)
{
    QLineEdit* edit = spin.findChild<QLineEdit*>();
    sendMouse(edit, QEvent::MouseButtonPress, button, fromX);
    sendMouse(edit, QEvent::MouseMove, button, toX);
    sendMouse(edit, QEvent::MouseButtonRelease, button, toX);
}

/// Opens the context menu of @p spin, hands it to @p inspect and chooses the action titled @p text.
void chooseFromContextMenu(QUxSpiner& spin, const QString& text, const std::function<void(QMenu*)>& inspect = {})
{
    bool chosen = false;
    QTimer::singleShot(0, &spin, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        if (inspect)
            inspect(menu);
        const auto actions = menu->actions();
        const auto action = std::find_if(actions.begin(), actions.end(), [&](QAction* a) { return a->text() == text; });
        QVERIFY(action != actions.end());
        menu->setActiveAction(*action);
        QTest::keyClick(menu, Qt::Key_Return);
        chosen = true;
    });
    QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(10, 10), spin.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&spin, &request);
    QVERIFY(chosen);
}

QPoint upButtonCentre(QUxSpiner& spin)
{
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.subControls = QStyle::SC_All;
    option.frame = true;
    return spin.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &spin).center();
}

/// The button pressed at x 60 on the line edit, the state ("read-only", "disabled" or ""), start value, single
/// step, x of the move and the release, expected value.
using SpinDrag = std::tuple<Qt::MouseButton, const char*, int, int, int, int>;

} // namespace

Q_DECLARE_METATYPE(SpinDrag)

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
        QCOMPARE(std::make_pair(spin.minimum(), spin.maximum()), std::make_pair(-2147483647, 2147483647));
        QVERIFY(!spin.keyboardTracking() && spin.showStepHint() && spin.autoStepsOnMousePress());
        QVERIFY(!spin.displaySceneUnit() && !spin.isEditingStep());
        QCOMPARE(spin.sizeHint(), QSize(90, 20));
        uxPlatform::setDpiScale(2.0, 2.0);
        QCOMPARE(spin.sizeHint(), QSize(180, 40));
        for (const char* text : {"singleStepChanged(int)", "setSingleStep(int)"}) // hosts connect these by text
            QVERIFY2(QUxSpiner::staticMetaObject.indexOfMethod(text) >= 0, text);
    }

    void shouldEmitEveryStepWithoutLowerLimit_data()
    {
        QTest::addColumn<int>("step");
        for (int step : {5, 0, 1}) // ordinary, zero, the same as before
            QTest::addRow("%d", step) << step;
    }

    void shouldEmitEveryStepWithoutLowerLimit()
    {
        QFETCH(int, step);
        QUxSpiner spin;
        QSignalSpy steps(&spin, &QUxSpiner::singleStepChanged);
        spin.setSingleStep(step);
        QCOMPARE(spin.singleStep(), step);
        QCOMPARE(steps, QList<QVariantList>{{step}});
    }

    void shouldDragValueWithMiddleButton_data()
    {
        QTest::addColumn<SpinDrag>("drag");
        const Qt::MouseButton middle = Qt::MiddleButton;
        // one step per pixel, clamped even where the sum leaves int
        QTest::newRow("middle left") << SpinDrag{middle, "", 100, 3, 50, 70};
        QTest::newRow("middle right") << SpinDrag{middle, "", 100, 3, 64, 112};
        QTest::newRow("middle still") << SpinDrag{middle, "", 100, 3, 60, 100};
        QTest::newRow("left selects text") << SpinDrag{Qt::LeftButton, "", 100, 3, 90, 100};
        QTest::newRow("right") << SpinDrag{Qt::RightButton, "", 100, 3, 90, 100};
        QTest::newRow("back button") << SpinDrag{Qt::BackButton, "", 100, 3, 90, 100};
        QTest::newRow("read-only") << SpinDrag{middle, "read-only", 100, 3, 90, 100};
        QTest::newRow("disabled") << SpinDrag{middle, "disabled", 100, 3, 90, 100};
        QTest::newRow("clamped at the top") << SpinDrag{middle, "", 2147483600, 100, 61, 2147483647};
        QTest::newRow("clamped at the bottom") << SpinDrag{middle, "", -2147483600, 100, 59, -2147483647};
        QTest::newRow("huge step clamped") << SpinDrag{middle, "", 0, 1073741824, 64, 2147483647};
    }

    void shouldDragValueWithMiddleButton()
    {
        QFETCH(SpinDrag, drag);
        const auto [button, state, start, step, toX, expected] = drag;
        QUxSpiner spin;
        spin.resize(200, 30);
        spin.setValue(start);
        spin.setSingleStep(step);
        spin.setReadOnly(qstrcmp(state, "read-only") == 0);
        spin.setEnabled(qstrcmp(state, "disabled") != 0);
        dragWith(spin, button, 60, toX);
        QCOMPARE(spin.value(), expected);
    }

    void shouldStepFromContextMenu()
    {
        QUxSpiner spin;
        spin.setRange(0, 10);
        spin.setValue(10);
        spin.setSingleStep(4);
        chooseFromContextMenu(spin, QStringLiteral("Step &down"), [](QMenu* menu) {
            const auto actions = menu->actions().mid(menu->actions().size() - 5); // after the line edit's own
            QStringList texts;
            for (QAction* action : actions)
                texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
            QCOMPARE(texts, QStringList({"|", "&Step up", "Step &down", "|", "Step..."}));
            QVERIFY(!actions.at(1)->isEnabled()); // at the maximum
            QVERIFY(actions.at(2)->isEnabled());
        });
        QCOMPARE(spin.value(), 6);
        chooseFromContextMenu(spin, QStringLiteral("&Step up"));
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

        chooseFromContextMenu(spin, QStringLiteral("Step..."));
        // asked twice, the box still comes back to its own value and range
        chooseFromContextMenu(spin, QStringLiteral("Step..."));
        QVERIFY(spin.isEditingStep());
        QCOMPARE(spin.text(), QStringLiteral("step 7"));
        QCOMPARE(std::make_pair(spin.minimum(), spin.maximum()), std::make_pair(1, 1000));
        QCOMPARE(values.count(), 0);

        QTest::keyClicks(&spin, QStringLiteral("25"));
        QTest::keyClick(&spin, Qt::Key_Return);
        QVERIFY(!spin.isEditingStep());
        QCOMPARE(spin.singleStep(), 25);
        QCOMPARE(steps, QList<QVariantList>{{25}});
        QCOMPARE(spin.text(), QStringLiteral("x 2500 px"));
        QCOMPARE(std::make_pair(spin.minimum(), spin.maximum()), std::make_pair(-5000, 5000));
        // a host that heard the step value hears the way back as well
        QCOMPARE(values, QList<QVariantList>({{25}, {2500}}));

        // Without the hint the step shows bare; a middle drag changes it silently and leaving the field keeps it.
        spin.setShowStepHint(false);
        spin.resize(200, 30);
        chooseFromContextMenu(spin, QStringLiteral("Step..."));
        QCOMPARE(spin.text(), QStringLiteral("25"));
        dragWith(spin, Qt::MiddleButton, 60, 64);
        QCOMPARE(spin.value(), 125);
        QFocusEvent focusOut(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(&spin, &focusOut);
        QCOMPARE(spin.singleStep(), 125);
        QCOMPARE(spin.value(), 2500);
        QCOMPARE(values.count(), 2);
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
        QTest::mousePress(&spin, Qt::LeftButton, Qt::NoModifier, upButtonCentre(spin));
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
        QTest::mouseRelease(&spin, Qt::LeftButton, Qt::NoModifier, upButtonCentre(spin));
    }

    void shouldUpdateSceneUnitOnAllRegisteredInstances()
    {
        uxTest::verifySceneUnitFollowers<QUxSpiner>(QStringLiteral(" px"));
    }
};

QTEST_MAIN(tst_QUxSpiner)
#include "tst_QUxSpiner.moc"
