#include <QUxIntegerSlider.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalSpy>
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
        QTest::newRow("1") << 1.0 << 1.0;
        QTest::newRow("1.5 x 2") << 1.5 << 2.0;
    }

    void shouldLayOutAndSizeChildrenByScale()
    {
        QFETCH(double, scaleX);
        QFETCH(double, scaleY);
        uxPlatform::setDpiScale(scaleX, scaleY);
        QUxIntegerSlider slider(nullptr, "samples");
        QCOMPARE(slider.objectName(), QStringLiteral("samples"));
        // prefix label, slider, special-suffix label, spin box
        auto* layout = qobject_cast<QHBoxLayout*>(slider.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 4);
        QVERIFY(prefixLabel(slider) && innerSlider(slider) && specialSuffixLabel(slider) && innerSpinner(slider));
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 6);

        const QSlider* handle = innerSlider(slider);
        QCOMPARE(handle->orientation(), Qt::Horizontal);
        QCOMPARE(handle->sizePolicy(), QSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred));
        QCOMPARE(handle->minimumSize(), QSize(32, int(16 * scaleY))); // the width is not scaled
        QCOMPARE(handle->maximumHeight(), int(32 * scaleY));
        QCOMPARE(handle->focusPolicy(), Qt::ClickFocus);
        QCOMPARE(handle->tickPosition(), QSlider::NoTicks);

        const QSpinBox* spinner = innerSpinner(slider);
        QCOMPARE(spinner->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred));
        QCOMPARE(spinner->minimumSize(), QSize(int(62 * scaleX), int(16 * scaleY)));
        QCOMPARE(spinner->maximumSize(), QSize(int(62 * scaleX), int(32 * scaleY)));
        QVERIFY(spinner->alignment() & Qt::AlignRight);
        QCOMPARE(spinner->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
        QCOMPARE(spinner->focusPolicy(), Qt::StrongFocus);
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

        QCOMPARE(slider.prefix(), prefix);
        QCOMPARE(slider.specialSuffix(), specialSuffix);
        QCOMPARE(prefixLabel(slider)->text(), prefix);
        QCOMPARE(specialSuffixLabel(slider)->text(), specialSuffix);
        QCOMPARE(prefixLabel(slider)->isVisible(), !prefix.isEmpty());
        QCOMPARE(specialSuffixLabel(slider)->isVisible(), !specialSuffix.isEmpty());

        slider.setPrefix(QString());
        slider.setSpecialSuffix(QString());
        QVERIFY(!prefixLabel(slider)->isVisible());
        QVERIFY(!specialSuffixLabel(slider)->isVisible());
    }

    void shouldShowValueWithSuffixInSpinnerAndEmitOnlyOnChange()
    {
        QUxIntegerSlider slider;
        slider.setSuffix(QStringLiteral(" px"));
        QCOMPARE(slider.suffix(), QStringLiteral(" px"));
        QSignalSpy spy(&slider, &QUxIntegerSlider::valueChanged);
        slider.setValue(12);
        slider.setValue(12);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 12);
        QCOMPARE(slider.value(), 12);
        QCOMPARE(innerSlider(slider)->value(), 12);
        QCOMPARE(innerSpinner(slider)->text(), QStringLiteral("12 px"));
        QVERIFY(!specialSuffixLabel(slider)->isVisibleTo(&slider)); // the suffix is no label

        // the spin box follows the handle
        innerSlider(slider)->triggerAction(QAbstractSlider::SliderPageStepAdd);
        QCOMPARE(innerSpinner(slider)->value(), 22);
        QCOMPARE(slider.value(), 22);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).toInt(), 22);
    }

    void shouldKeepTypedValueBeyondTravelWithinHardRange()
    {
        QUxIntegerSlider slider;
        slider.setMinimum(0);
        slider.setMaximum(10);
        slider.setHardMaximum(100);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        QSignalSpy spy(&slider, &QUxIntegerSlider::valueChanged);

        uxTest::typeAndCommit(innerSpinner(slider), QStringLiteral("50"));
        QCOMPARE(slider.value(), 50);
        QCOMPARE(innerSlider(slider)->value(), 10);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 50);

        slider.setValue(500);
        QCOMPARE(slider.value(), 100);
        QCOMPARE(spy.last().at(0).toInt(), 100);
        QCOMPARE(slider.maximum(), 10);
        QCOMPARE(slider.hardMaximum(), 100);
    }

    void shouldMoveBothRangesWithSoftLimits()
    {
        QUxIntegerSlider slider;
        slider.setHardMinimum(-50);
        QCOMPARE(slider.hardMinimum(), -50);
        QCOMPARE(slider.minimum(), 0);

        slider.setMinimum(5);
        slider.setMaximum(20);
        QCOMPARE(slider.minimum(), 5);
        QCOMPARE(slider.maximum(), 20);
        QCOMPARE(slider.hardMinimum(), 5);
        QCOMPARE(slider.hardMaximum(), 20);
        QCOMPARE(innerSlider(slider)->minimum(), 5);
        QCOMPARE(innerSlider(slider)->maximum(), 20);
        QCOMPARE(slider.value(), 5); // pulled into the new range
    }
};

QTEST_MAIN(tst_QUxIntegerSlider)
#include "tst_QUxIntegerSlider.moc"
