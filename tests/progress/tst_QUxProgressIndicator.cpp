#include <QUxProgressDialogGUII.h>
#include <QUxProgressIndicator.h>

#include "uxTestSupport.h"

#include <QAccessible>
#include <QLabel>
#include <QPointer>
#include <QTest>

#include <cmath>

namespace {

/// Angle (a multiple of 30) of the darkest capsule of a black ring on a 100-pixel indicator.
int darkestCapsuleAngle(QUxProgressIndicator& indicator)
{
    const QImage image = uxTest::grab(&indicator);
    int best = -1, bestGray = 256;
    for (int angle = 0; angle < 360; angle += 30) {
        const double radians = angle * M_PI / 180.0; // mid-capsule, 33 pixels out, clockwise from the top
        const QPoint p(50 + int(std::lround(33 * std::sin(radians))), 50 - int(std::lround(33 * std::cos(radians))));
        const int gray = qGray(image.pixel(p));
        if (gray < bestGray) {
            bestGray = gray;
            best = angle;
        }
    }
    return best;
}

void tick(QUxProgressIndicator& indicator)
{
    QTimerEvent event(0);
    QCoreApplication::sendEvent(&indicator, &event);
}

} // namespace

class tst_QUxProgressIndicator : public QObject
{
    Q_OBJECT

private slots:
    void shouldTurnThirtyDegreesPerTick_data()
    {
        QTest::addColumn<int>("ticks");
        QTest::addColumn<int>("angle");
        QTest::newRow("start") << 0 << 0;
        QTest::newRow("one") << 1 << 30;
        QTest::newRow("five") << 5 << 150;
        QTest::newRow("full turn") << 12 << 0;
        QTest::newRow("past a turn") << 14 << 60;
    }

    void shouldTurnThirtyDegreesPerTick()
    {
        QFETCH(int, ticks);
        QUxProgressIndicator indicator;
        QCOMPARE((QList<QVariant>{indicator.animationDelay(), indicator.isDisplayedWhenStopped(), indicator.color(),
                                  indicator.heightForWidth(77)}),
                 (QList<QVariant>{40, false, QColor(Qt::black), 77}));
        indicator.resize(100, 100);
        indicator.setAnimationDelay(INT_MAX); // ticks come from the test
        indicator.startAnimation();
        QVERIFY(indicator.isAnimated());
        for (int i = 0; i < ticks; ++i)
            tick(indicator);
        QTEST(darkestCapsuleAngle(indicator), "angle");
        indicator.startAnimation(); // already turning: keeps its angle
        QTEST(darkestCapsuleAngle(indicator), "angle");
    }

    void shouldPaintNothingWhenStoppedUnlessDisplayedAndReportBusyState()
    {
        QUxProgressIndicator indicator;
        indicator.resize(100, 100);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&indicator);
        const QImage blank = uxTest::grab(&indicator);
        QVERIFY(!iface->state().busy);
        indicator.startAnimation();
        tick(indicator);
        QVERIFY(iface->state().busy);
        QVERIFY(uxTest::grab(&indicator) != blank);
        indicator.stopAnimation();
        QVERIFY(!iface->state().busy && !indicator.isAnimated());
        QCOMPARE(uxTest::grab(&indicator), blank);
        indicator.setDisplayedWhenStopped(true);
        QCOMPARE(darkestCapsuleAngle(indicator), 0); // back at the start
        indicator.setAnimationDelay(-5);
        indicator.setColor(QColor());
        QCOMPARE(indicator.animationDelay(), 1);
        QCOMPARE(indicator.color(), QColor(Qt::black));
    }

    void shouldCoverTheWorkspaceWithABusyOverlay()
    {
        QWidget workspace;
        workspace.setGeometry(40, 30, 200, 120);
        QUxProgressDialogGUII::setWorkspace(&workspace);
        QUxProgressDialogGUII::start(QStringLiteral("Hidden"), &workspace); // not visible: nothing at all
        QVERIFY(!QUxProgressDialogGUII::the());
        workspace.show();
        QUxProgressDialogGUII::start(QStringLiteral("Preparing"));
        const QPointer<QUxProgressDialogGUII> overlay = QUxProgressDialogGUII::the();
        QVERIFY(overlay && overlay->isVisible() && overlay->isModal());
        QCOMPARE(overlay->objectName(), QStringLiteral("QUxProgressDialogGUI"));
        QCOMPARE(overlay->windowTitle(), QStringLiteral("Dialog"));
        QCOMPARE(overlay->geometry(), QRect(workspace.mapToGlobal(QPoint(0, 0)), workspace.frameSize()));
        auto* indicator = overlay->findChild<QUxProgressIndicator*>(QStringLiteral("_progress"));
        QVERIFY(indicator->isAnimated() && indicator->isDisplayedWhenStopped() && indicator->isVisible());
        QCOMPARE(indicator->color(), QColor(227, 227, 227));
        QCOMPARE(indicator->maximumSize(), QSize(150, 150));
        QUxProgressDialogGUII::setProgressVisible(false);
        QVERIFY(indicator->isHidden());
        QUxProgressDialogGUII::start(QStringLiteral("Loading"), &workspace);
        QCOMPARE(QUxProgressDialogGUII::the(), overlay.data());
        QCOMPARE(overlay->findChild<QLabel*>(QStringLiteral("_status"))->text(), QStringLiteral("Loading"));
        const QColor veil = uxTest::grab(overlay).pixelColor(3, 3);
        QVERIFY2(veil.red() == 0 && qAbs(veil.alpha() - 125) <= 1, qPrintable(veil.name(QColor::HexArgb)));
        QUxProgressDialogGUII::stop();
        QVERIFY(!overlay && !QUxProgressDialogGUII::the());
        QUxProgressDialogGUII::stop();
        QUxProgressDialogGUII::setProgressVisible(true);
        QUxProgressDialogGUII::start(QStringLiteral("Shutdown"));
        QUxProgressDialogGUII::destroy();
        QVERIFY(!QUxProgressDialogGUII::the());
    }
};

QTEST_MAIN(tst_QUxProgressIndicator)
#include "tst_QUxProgressIndicator.moc"
