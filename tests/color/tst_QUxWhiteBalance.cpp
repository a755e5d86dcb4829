#include <QUxWhiteBalance.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <tuple>

namespace {

QSlider* sliderOf(const QUxWhiteBalance& balance) { return balance.findChild<QSlider*>(); }
QSpinBox* spinBoxOf(const QUxWhiteBalance& balance) { return balance.findChild<QSpinBox*>(); }

QList<int> values(const QSignalSpy& spy)
{
    QList<int> result;
    for (const QList<QVariant>& arguments : spy)
        result << arguments.at(0).toInt();
    return result;
}

/// Value, minimum and maximum before; value requested; value, slider value and signals after.
using Change = std::tuple<int, int, int, int, int, int, QList<int>>;

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_QUxWhiteBalance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init() { uxPlatform::reset(); }

    void shouldStartAtTheMinimumWithColdSliderWarmSpinBoxLeftToRight()
    {
        QUxWhiteBalance balance(nullptr, "SceneWhiteBalance");
        QCOMPARE(balance.objectName(), QStringLiteral("SceneWhiteBalance"));
        QSlider* slider = sliderOf(balance);
        QCOMPARE((QList<int>{balance.value(), balance.minimum(), balance.maximum(), balance.step(), slider->value(),
                             slider->minimum(), slider->maximum(), slider->pageStep()}),
                 (QList<int>{1000, 1000, 15000, 10, 1000, 1000, 15000, 100}));
        QCOMPARE(balance.ticks(), QUxWhiteBalance::NoTicks);
        QCOMPARE(slider->orientation(), Qt::Horizontal);
        QCOMPARE(balance.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(slider->focusPolicy(), Qt::ClickFocus);
        QCOMPARE(balance.focusProxy(), spinBoxOf(balance));
        QCOMPARE(spinBoxOf(balance)->alignment(), Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(balance.toolTip(),
                 QStringLiteral("Shifts the content's white balance to match the color temperature of the scene in "
                                "Kelvin. Lower values produce cooler (bluish) colors. Higher values produce warmer "
                                "(yellowish) colors."));
        QVERIFY(QUxWhiteBalance(nullptr, nullptr).objectName().isEmpty());

        balance.resize(400, 30);
        balance.show();
        QVERIFY(QTest::qWaitForWindowExposed(&balance));
        QList<QWidget*> children = balance.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        std::sort(children.begin(), children.end(), [](QWidget* a, QWidget* b) { return a->x() < b->x(); });
        QStringList order;
        for (QWidget* child : children)
            order << (qobject_cast<QLabel*>(child) ? qobject_cast<QLabel*>(child)->text()
                                                   : child->metaObject()->className());
        QCOMPARE(order, (QStringList{"Cold", "QSlider", "Warm", "QSpinBox"}));
        QCOMPARE((QStringList{balance.trailer(), balance.epilog(), balance.suffix(), spinBoxOf(balance)->text()}),
                 (QStringList{"Cold", "Warm", "K", "1000K"}));
    }

    void shouldScaleFixedSizesWithDpi()
    {
        uxPlatform::setDpiScale(1.5, 2.0);
        QUxWhiteBalance balance;
        QSpinBox* spinBox = spinBoxOf(balance);
        QSlider* slider = sliderOf(balance);
        // Spin box width 62 * 1.5; heights 16 to 32 scaled by 2.
        QCOMPARE((QList<int>{spinBox->width(), spinBox->minimumHeight(), spinBox->maximumHeight(),
                             slider->minimumHeight(), slider->maximumHeight()}),
                 (QList<int>{93, 32, 64, 32, 64}));
    }

    void shouldReportProgrammaticChanges_data()
    {
        QTest::addColumn<Change>("change");
        // The spin box reports what it holds, then the control repeats the request as it came.
        QTest::newRow("inside") << Change{1000, 1000, 15000, 6500, 6500, 6500, {6500, 6500}};
        QTest::newRow("unchanged") << Change{4200, 1000, 15000, 4200, 4200, 4200, {}};
        QTest::newRow("above the maximum") << Change{1000, 1000, 15000, 30000, 15000, 15000, {15000, 30000}};
        QTest::newRow("below the minimum, already there") << Change{1000, 1000, 15000, 10, 1000, 1000, {10}};
        // The slider keeps its 1000 to 15000 range whatever limits the spin box gets.
        QTest::newRow("beyond the slider, from the middle")
            << Change{5000, 1000, 20000, 20000, 20000, 15000, {20000, 20000}};
        QTest::newRow("beyond the slider, from its end")
            << Change{15000, 1000, 20000, 18000, 18000, 15000, {18000, 18000}};
        QTest::newRow("below the slider, from the middle") << Change{5000, 500, 15000, 500, 500, 1000, {500, 500}};
    }

    void shouldReportProgrammaticChanges()
    {
        QFETCH(Change, change);
        const auto& [start, minimum, maximum, requested, expected, sliderValue, emitted] = change;
        QUxWhiteBalance balance;
        balance.setValue(start);
        balance.setMinimum(minimum);
        balance.setMaximum(maximum);
        QSignalSpy spy(&balance, &QUxWhiteBalance::valueChanged);

        balance.setValue(requested);

        QCOMPARE(balance.value(), expected);
        const QSlider* slider = sliderOf(balance);
        QCOMPARE((QList<int>{slider->value(), slider->minimum(), slider->maximum()}),
                 (QList<int>{sliderValue, 1000, 15000}));
        QCOMPARE(values(spy), emitted);
    }

    void shouldFollowTypedValuesTheSliderOnceAndTheStep()
    {
        QUxWhiteBalance balance;
        QSignalSpy spy(&balance, &QUxWhiteBalance::valueChanged);
        uxTest::typeAndCommit(spinBoxOf(balance), QStringLiteral("6500"));
        QCOMPARE(qMakePair(balance.value(), sliderOf(balance)->value()), qMakePair(6500, 6500));
        QCOMPARE(values(spy).value(spy.size() - 1), 6500);

        spy.clear();
        balance.setStep(50);
        sliderOf(balance)->triggerAction(QAbstractSlider::SliderPageStepAdd);
        sliderOf(balance)->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QTest::keyClick(spinBoxOf(balance), Qt::Key_Up);
        QCOMPARE(balance.value(), 6700);
        QCOMPARE(values(spy), (QList<int>{6600, 6650, 6700}));
    }
};

QTEST_MAIN(tst_QUxWhiteBalance)
#include "tst_QUxWhiteBalance.moc"
