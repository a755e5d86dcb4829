#include <QUxIntegerSlider.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QtTest>

namespace {

QWidget* widgetAt(QUxIntegerSlider& slider, int index) { return slider.layout()->itemAt(index)->widget(); }
QLabel* prefixLabel(QUxIntegerSlider& slider) { return qobject_cast<QLabel*>(widgetAt(slider, 0)); }
QSlider* innerSlider(QUxIntegerSlider& slider) { return qobject_cast<QSlider*>(widgetAt(slider, 1)); }
QLabel* specialSuffixLabel(QUxIntegerSlider& slider) { return qobject_cast<QLabel*>(widgetAt(slider, 2)); }
QSpinBox* innerSpinner(QUxIntegerSlider& slider) { return qobject_cast<QSpinBox*>(widgetAt(slider, 3)); }

} // namespace

class tst_QUxIntegerSlider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init() { uxPlatform::reset(); }

    void shouldLayOutAndSizeChildrenByScale_data()
    {
        QTest::addColumn<double>("scaleX");
        QTest::addColumn<double>("scaleY");
        QTest::addColumn<QList<QSize>>("sizes"); // slider minimum (its width not scaled), spin box minimum and maximum
        QTest::newRow("1") << 1.0 << 1.0 << QList<QSize>{{32, 16}, {62, 16}, {62, 32}};
        QTest::newRow("1.5 x 2") << 1.5 << 2.0 << QList<QSize>{{32, 32}, {93, 32}, {93, 64}};
    }

    void shouldLayOutAndSizeChildrenByScale()
    {
        QFETCH(double, scaleX);
        QFETCH(double, scaleY);
        QFETCH(QList<QSize>, sizes);
        uxPlatform::setDpiScale(scaleX, scaleY);
        QUxIntegerSlider slider(nullptr, "samples");
        QCOMPARE(slider.objectName(), QStringLiteral("samples"));
        // prefix label, slider, special-suffix label, spin box
        auto* layout = qobject_cast<QHBoxLayout*>(slider.layout());
        QVERIFY(layout && layout->count() == 4);
        QVERIFY(prefixLabel(slider) && innerSlider(slider) && specialSuffixLabel(slider) && innerSpinner(slider));

        const QSlider* handle = innerSlider(slider);
        const QSpinBox* spinner = innerSpinner(slider);
        QCOMPARE((QList<QSize>{handle->minimumSize(), spinner->minimumSize(), spinner->maximumSize()}), sizes);
        QCOMPARE(handle->maximumHeight(), spinner->maximumHeight());
        QCOMPARE((QList<QSizePolicy>{handle->sizePolicy(), spinner->sizePolicy()}),
                 (QList<QSizePolicy>{{QSizePolicy::MinimumExpanding, QSizePolicy::Preferred},
                                     {QSizePolicy::Minimum, QSizePolicy::Preferred}}));
        QCOMPARE(
            (QList<int>{handle->focusPolicy(), spinner->focusPolicy(), handle->orientation(), handle->tickPosition(),
                        int(spinner->alignment() & Qt::AlignHorizontal_Mask), spinner->buttonSymbols()}),
            (QList<int>{Qt::ClickFocus, Qt::StrongFocus, Qt::Horizontal, QSlider::NoTicks, Qt::AlignRight,
                        QAbstractSpinBox::UpDownArrows}));
    }

    void shouldShowLabelsOnlyWithText_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("specialSuffix");
        QTest::newRow("none") << QString() << QString();
        QTest::newRow("prefix only") << QStringLiteral("Samples") << QString();
        QTest::newRow("special suffix only") << QString() << QStringLiteral("auto");
        QTest::newRow("both") << QStringLiteral("Width") << QStringLiteral("x2");
    }

    void shouldShowLabelsOnlyWithText()
    {
        QFETCH(QString, prefix);
        QFETCH(QString, specialSuffix);
        QUxIntegerSlider slider;
        slider.setPrefix(prefix);
        slider.setSpecialSuffix(specialSuffix);
        slider.show();

        QCOMPARE((QStringList{slider.prefix(), prefixLabel(slider)->text()}), (QStringList{prefix, prefix}));
        QCOMPARE((QStringList{slider.specialSuffix(), specialSuffixLabel(slider)->text()}),
                 (QStringList{specialSuffix, specialSuffix}));
        QCOMPARE(std::make_pair(prefixLabel(slider)->isVisible(), specialSuffixLabel(slider)->isVisible()),
                 std::make_pair(!prefix.isEmpty(), !specialSuffix.isEmpty()));

        slider.setPrefix(QString());
        slider.setSpecialSuffix(QString());
        QVERIFY(!prefixLabel(slider)->isVisible() && !specialSuffixLabel(slider)->isVisible());
    }

    void shouldShowValueWithSuffixInSpinnerAndEmitOnlyOnChange()
    {
        QUxIntegerSlider slider;
        slider.setSuffix(QStringLiteral(" px"));
        QCOMPARE(slider.suffix(), QStringLiteral(" px"));
        QSignalSpy spy(&slider, &QUxIntegerSlider::valueChanged);
        slider.setValue(12);
        slider.setValue(12);
        QCOMPARE(spy, QList<QVariantList>{{12}});
        QCOMPARE(std::make_pair(slider.value(), innerSlider(slider)->value()), std::make_pair(12, 12));
        QCOMPARE(innerSpinner(slider)->text(), QStringLiteral("12 px"));
        QVERIFY(!specialSuffixLabel(slider)->isVisibleTo(&slider)); // the suffix is no label

        // the spin box follows the handle
        innerSlider(slider)->triggerAction(QAbstractSlider::SliderPageStepAdd);
        QCOMPARE(std::make_pair(slider.value(), innerSpinner(slider)->value()), std::make_pair(22, 22));
        QCOMPARE(spy, QList<QVariantList>({{12}, {22}}));
    }

    void shouldMoveBothRangesWithSoftLimitsAndOnlyTheSpinBoxWithHardOnes()
    {
        QUxIntegerSlider slider;
        slider.setHardMinimum(-50);
        QCOMPARE(std::make_pair(slider.minimum(), slider.hardMinimum()), std::make_pair(0, -50));
        slider.setMinimum(5);
        slider.setMaximum(20);
        // soft, hard and the handle's range
        QCOMPARE((QList<int>{slider.minimum(), slider.maximum(), slider.hardMinimum(), slider.hardMaximum(),
                             innerSlider(slider)->minimum(), innerSlider(slider)->maximum()}),
                 (QList<int>{5, 20, 5, 20, 5, 20}));
        QCOMPARE(slider.value(), 5); // pulled into the new range

        slider.setHardMaximum(100);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        QSignalSpy spy(&slider, &QUxIntegerSlider::valueChanged);
        uxTest::typeAndCommit(innerSpinner(slider), QStringLiteral("50"));
        QCOMPARE(std::make_pair(slider.value(), innerSlider(slider)->value()), std::make_pair(50, 20));
        slider.setValue(500);
        QCOMPARE(slider.value(), 100);
        QCOMPARE(spy, QList<QVariantList>({{50}, {100}}));
        QCOMPARE(std::make_pair(slider.maximum(), slider.hardMaximum()), std::make_pair(20, 100));
    }
};

QTEST_MAIN(tst_QUxIntegerSlider)
#include "tst_QUxIntegerSlider.moc"
