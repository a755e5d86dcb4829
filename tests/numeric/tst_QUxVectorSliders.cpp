#include <QUxIntVector2DSpiner.h>
#include <QUxIntVector3DSlider.h>
#include <QUxIntVector3DSpiner.h>
#include <QUxIntVector4DSlider.h>
#include <QUxIntegerSlider.h>
#include <QUxSpiner.h>
#include <QUxVec2SliderControl.h>
#include <QUxVec3SliderControl.h>
#include <QUxVec4SliderControl.h>

#include <uxTestSupport.h>

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

namespace {
/// Focuses the field inside @p component and types @p text without committing it.
QLineEdit* typeWithoutCommit(QWidget* window, QWidget* component, const QString& text)
{
    window->show();
    if (!QTest::qWaitForWindowActive(window))
        return nullptr;
    auto* edit = component->findChild<QLineEdit*>();
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
    return edit->hasFocus() ? edit : nullptr;
}

/// Emissions of a changed() signal carrying @p vectors, as a spy holds them.
template<typename Vector>
QList<QVariantList> emitted(std::initializer_list<Vector> vectors)
{
    QList<QVariantList> emissions;
    for (const Vector& vector : vectors)
        emissions << QVariantList{QVariant::fromValue(vector)};
    return emissions;
}

} // namespace

// The slider and integer members of the vector family: one changed(vector)
// signal that always carries every component.
class tst_QUxVectorSliders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void shouldReportWholeVectorOncePerEdit()
    {
        QUxVec3SliderControl control;
        QSignalSpy changed(&control, &QUxVec3SliderControl::changed);
        control.setValue(QVector3D(0.25f, 0.5f, 0.75f));
        QCOMPARE(control.value(), QVector3D(0.25f, 0.5f, 0.75f));
        control.slider(1)->setValue(0.9); // what a commit in the Y field does
        QCOMPARE(changed, emitted({QVector3D(0.25f, 0.5f, 0.75f), QVector3D(0.25f, 0.9f, 0.75f)}));

        QUxIntVector3DSlider sliders;
        sliders.setMaximum(QUxIntVector3D(100, 100, 100));
        QSignalSpy slidersChanged(&sliders, &QUxIntVector3DSlider::changed);
        sliders.setValue(QUxIntVector3D(10, 20, 30));
        sliders.slider(2)->setValue(99);
        QCOMPARE(slidersChanged, emitted({QUxIntVector3D(10, 20, 30), QUxIntVector3D(10, 20, 99)}));

        QUxIntVector2DSpiner spiners;
        spiners.show();
        QSignalSpy spinersChanged(&spiners, &QUxIntVector2DSpiner::changed);
        spiners.setValue(QUxIntVector2D(640, 480));
        QCOMPARE(spiners.value(), QUxIntVector2D(640, 480));
        uxTest::typeAndCommit(spiners.spiner(1), QStringLiteral("720"));
        QCOMPARE(spinersChanged, emitted({QUxIntVector2D(640, 480), QUxIntVector2D(640, 720)}));
    }

    void shouldPassRangesAndStepsToEveryComponent()
    {
        QUxVec4SliderControl control;
        QSignalSpy changed(&control, &QUxVec4SliderControl::changed);
        control.setMinimum(QVector4D(-1, -2, -3, -4));
        control.setMaximum(QVector4D(1, 2, 3, 4));
        control.setHardMinimum(QVector4D(-10, -20, -30, -40));
        control.setHardMaximum(QVector4D(10, 20, 30, 40));
        control.setLineStep(QVector4D(0.5f, 0.25f, 0.125f, 1));
        QCOMPARE(changed.count(), 0);
        for (int axis = 0; axis < 4; ++axis) {
            const QUxSlider* s = control.slider(axis);
            const double k = axis + 1;
            QCOMPARE((QList<double>{s->minValue(), s->maxValue(), s->hardMinValue(), s->hardMaxValue()}),
                     (QList<double>{-k, k, -10 * k, 10 * k}));
        }
        QCOMPARE(control.slider(2)->lineStep(), 0.125);
        // Values beyond the soft range but inside the hard one are kept.
        control.setValue(QVector4D(5, 5, 5, 5));
        QCOMPARE(control.value(), QVector4D(5, 5, 5, 5));
        control.setValue(QVector4D(50, 50, 50, 50));
        QCOMPARE(control.value(), QVector4D(10, 20, 30, 40));

        QUxIntVector4DSlider sliders;
        sliders.setMinimum(QUxIntVector4D(1, 2, 3, 4));
        sliders.setMaximum(QUxIntVector4D(10, 20, 30, 40));
        sliders.setStep(QUxIntVector4D(1, 2, 3, 4));
        sliders.setPageStep(QUxIntVector4D(5, 6, 7, 8));
        sliders.setTracking(false);
        for (int axis = 0; axis < 4; ++axis) {
            const QUxIntegerSlider* s = sliders.slider(axis);
            QCOMPARE((QList<int>{s->minimum(), s->maximum(), s->step(), s->pageStep()}),
                     (QList<int>{axis + 1, 10 * (axis + 1), axis + 1, axis + 5}));
            QVERIFY(!s->hasTracking());
        }
        QUxIntVector3DSpiner spiners;
        spiners.setMinimum(QUxIntVector3D(-5, -6, -7));
        spiners.setStep(QUxIntVector3D(2, 3, 4));
        QCOMPARE(std::make_pair(spiners.spiner(1)->minimum(), spiners.spiner(2)->singleStep()), std::make_pair(-6, 4));
    }

    void shouldPassDecimalsSuffixesAndSliderPosition()
    {
        QUxVec3SliderControl control;
        control.setDisplayDecimals(QUxIntVector3D(1, 2, 3));
        control.setSuffix({QStringLiteral(" m"), QStringLiteral(" s")});
        control.setSliderPos(QUxSlider::Right);
        control.setTracking(false);
        QCOMPARE(std::make_pair(control.slider(0)->sliderPos(), control.slider(2)->sliderPos()),
                 std::make_pair(QUxSlider::Right, QUxSlider::Right));
        QVERIFY(!control.slider(1)->hasTracking());
        const auto field = [&](int axis) { return control.slider(axis)->findChild<QUxDoubleSpiner*>(); };
        QCOMPARE((QStringList{field(1)->suffix(), field(2)->suffix()}), (QStringList{" s", ""}));
        QCOMPARE(field(1)->displayDecimals(), 2);
    }

    void shouldBuildAllComponentsForEverySizeAndShowOnlyNonEmptySubLabels()
    {
        QUxVec3SliderControl control;
        control.show();
        QList<QLabel*> labels = control.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(labels.size(), 3);
        for (QLabel* l : labels)
            QVERIFY(!l->isVisible());
        control.setSubLabels({QStringLiteral("R"), QString(), QStringLiteral("B")});
        QCOMPARE(control.subLabels(), (QStringList{"R", "", "B"}));
        QCOMPARE(std::count_if(labels.begin(), labels.end(), [](QLabel* l) { return l->isVisible(); }), 2);

        QUxVec2SliderControl two;
        QUxIntVector4DSlider four;
        QVERIFY(two.isValid() && four.isValid() && QUxIntVector2DSpiner().isValid());
        QCOMPARE(std::make_pair(two.componentCount(), four.componentCount()), std::make_pair(2, 4));
        QVERIFY(two.slider(1) && !two.slider(2));
        QVERIFY(four.slider(3) && !four.slider(4));
    }

    void shouldDeliverIntegerVectorThroughQueuedConnection()
    {
        QUxIntVector3DSlider control;
        QUxIntVector3D received;
        QObject receiver;
        connect(
            &control, &QUxIntVector3DSlider::changed, &receiver, [&received](const QUxIntVector3D& v) { received = v; },
            Qt::QueuedConnection);
        control.setMaximum(QUxIntVector3D(10, 10, 10));
        control.setValue(QUxIntVector3D(1, 2, 3));
        QTRY_COMPARE(received, QUxIntVector3D(1, 2, 3));
        for (const char* name : {"QUxIntVector2D", "QUxIntVector3D", "QUxIntVector4D"})
            QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
    }

    void shouldStayQuietWhileBeingDestroyed()
    {
        QObject host;
        int reports = 0;
        auto* sliders = new QUxVec3SliderControl;
        QVERIFY(typeWithoutCommit(sliders, sliders->slider(0), QStringLiteral("0.5")));
        connect(sliders, &QUxVec3SliderControl::changed, &host, [&] { reports += 1 + int(sliders->value().x()); });
        delete sliders; // closing commits the typed text
        auto* spiners = new QUxIntVector2DSpiner;
        QVERIFY(typeWithoutCommit(spiners, spiners->spiner(1), QStringLiteral("7")));
        connect(spiners, &QUxIntVector2DSpiner::changed, &host, [&] { reports += 1 + spiners->value().getY(); });
        delete spiners;
        QCOMPARE(reports, 0);
    }
};

QTEST_MAIN(tst_QUxVectorSliders)
#include "tst_QUxVectorSliders.moc"
