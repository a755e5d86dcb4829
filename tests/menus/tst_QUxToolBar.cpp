#include <QUxPushButton.h>
#include <QUxToolBar.h>
#include <QUxToolButton.h>

#include <uxIconManager.h>
#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

namespace {

const QString kWithText = QStringLiteral(
    "QToolButton { min-height: 3.8em; min-width: 4.2em; border: none; background: rgba(0, 0, 0, 0);}"
    "QToolButton:on, QToolButton:hover { background: rgba(30, 30, 30, 120);}QToolButton:on:hover { background: "
    "rgba(0, 0, 0, 120);}QToolButton::menu-indicator { background: rgba(0, 0, 0, 0);}");
const QString kWithoutText = QStringLiteral(
    "QToolButton { min-width: 3.1em; border: none; background: rgba(0, 0, 0, 0);}QToolButton:on, "
    "QToolButton:hover { min-width: 3.1em; border: none; background: rgba(30, 30, 30, 120);}QToolButton:on:hover { "
    "background: rgba(0, 0, 0, 120);}QToolButton::menu-indicator { background: rgba(0, 0, 0, 0);}");
const QString kQuickAccess = QStringLiteral(
    "QToolButton { min-width: 2.5em; min-height: 2.0em; border: none; background: rgba(0, 0, 0, 0);}QToolButton:on, "
    "QToolButton:hover { min-width: 2.5em; border: none; background: rgba(30, 30, 30, 120);}QToolButton:on:hover { "
    "background: rgba(0, 0, 0, 120);}QToolButton::menu-indicator { background: rgba(0, 0, 0, 0);}"
    "QToolButton::menu-button { background: rgba(0, 0, 0, 0);}QToolButton::menu-arrow { background: rgba(0, 0, 0, "
    "0);}");

QWidget* buttonFor(QToolBar* bar, QAction* action) { return bar->widgetForAction(action); }

/// Records the keys that reach it, releases negated.
struct KeyRecorder : QWidget
{
    QList<int> keys;
    void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
    void keyReleaseEvent(QKeyEvent* event) override { keys << -event->key(); }
};

} // namespace

class tst_QUxToolBar : public QObject
{
    Q_OBJECT

private slots:
    void init() { uxPlatform::setIconBaseSize(uxPlatform::LargeIcon, 32, 32); }

    void cleanup()
    {
        QUxToolBar::showButtonText(false);
        QUxToolButton::showButtonText(false);
        uxPlatform::reset();
    }

    void shouldRestyleEveryButtonOnSwitchAndEachAdd_data()
    {
        QTest::addColumn<QString>("barName");
        QTest::addColumn<bool>("withText");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QString>("styleSheet");
        QTest::addColumn<int>("minimumWidth");
        QTest::addColumn<int>("barStyle");
        // Large icons are 32 at scale 1, 48 at 1.5; the quick access bar keeps the style it was given.
        QTest::newRow("plain") << "" << false << 1.5 << kWithoutText << 66 << int(Qt::ToolButtonIconOnly);
        QTest::newRow("text") << "" << true << 1.0 << kWithText << 44 << int(Qt::ToolButtonTextUnderIcon);
        QTest::newRow("quick") << "QuickActionBar" << false << 1.0 << kQuickAccess << 36 << int(Qt::ToolButtonTextOnly);
        QTest::newRow("quick, text") << "QuickActionBar" << true << 1.5 << kQuickAccess << 52
                                     << int(Qt::ToolButtonTextOnly);
    }

    void shouldRestyleEveryButtonOnSwitchAndEachAdd()
    {
        QFETCH(QString, barName);
        QFETCH(bool, withText);
        QFETCH(double, scale);
        QFETCH(QString, styleSheet);
        QFETCH(int, minimumWidth);
        QFETCH(int, barStyle);
        uxPlatform::setDpiScale(scale, scale);
        QUxToolBar bar(QStringLiteral("Tools"));
        bar.setObjectName(barName);
        bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
        QAction first(QStringLiteral("Orbit"));
        bar.addAction(&first);
        auto* button = qobject_cast<QToolButton*>(buttonFor(&bar, &first));
        QUxToolBar::showButtonText(withText);
        QVERIFY(QUxToolBar::buttonTextShown() == withText && bar.toolButtonStyle() == barStyle);
        QCOMPARE(button->styleSheet(), styleSheet);
        button->setStyleSheet(QString());
        button->setMinimumWidth(0);
        button->setAutoRaise(true);

        bar.addWidget(new QLabel(QStringLiteral("label")));
        QCOMPARE(button->styleSheet(), styleSheet);
        QVERIFY(button->minimumWidth() == minimumWidth && !button->autoRaise());
        QAction second(QStringLiteral("Pan"));
        bar.insertAction(&first, &second);
        QCOMPARE(buttonFor(&bar, &second)->styleSheet(), styleSheet);
    }

    // Also: the overflow button keeps its look through the switch and gets its icon from the next add.
    void shouldNotCrashWhenBarIsClearedOrDeletedWhileSwitching()
    {
        auto* doomed = new QUxToolBar;
        QUxToolBar cleared;
        for (QUxToolBar* bar : {doomed, &cleared}) {
            bar->addAction(new QAction(QStringLiteral("Orbit"), bar));
            bar->addWidget(new QLabel(QStringLiteral("label")));
        }
        cleared.clear();
        delete doomed;
        QToolButton* overflow = cleared.findChild<QToolButton*>("qt_toolbar_ext_button");
        overflow->setIcon(QIcon());
        const QString ownStyle = overflow->styleSheet();
        QUxToolBar::showButtonText(true);
        QCOMPARE(cleared.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QVERIFY(overflow->icon().isNull());

        cleared.addAction(new QAction(QStringLiteral("Pan"), &cleared));
        QCOMPARE(buttonFor(&cleared, cleared.actions().constFirst())->styleSheet(), kWithText);
        const QImage expected = uxIconManager::get("General/ToolButtonExtension.svg").toImage();
        QCOMPARE(overflow->icon().pixmap(expected.size()).toImage().convertToFormat(expected.format()), expected);
        QCOMPARE(overflow->styleSheet(), ownStyle);
    }

    void shouldPassOnlySpaceToParentAndIgnoreOtherKeys()
    {
        KeyRecorder parent;
        auto* button = new QUxToolButton(&parent);
        QSignalSpy clicks(button, &QToolButton::clicked);
        for (Qt::Key key : {Qt::Key_Return, Qt::Key_A, Qt::Key_Space, Qt::Key_Enter})
            QTest::keyClick(button, key);
        QCOMPARE(parent.keys, (QList<int>{Qt::Key_Space, -Qt::Key_Space}));
        QVERIFY(clicks.isEmpty());
    }

    void shouldPaintMenuArrow_data()
    {
        QTest::addColumn<bool>("withText");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QPoint>("inside");
        // A 40 x 30 button: the arrow's top edge is at 2/3 (or half) of the height, its tip 4 scaled pixels lower.
        QTest::newRow("icon only") << false << 1.0 << QPoint(35, 22);
        QTest::newRow("icon only at 1.5") << false << 1.5 << QPoint(32, 23);
        QTest::newRow("text under icon") << true << 1.0 << QPoint(34, 17);
        QTest::newRow("text under icon at 1.5") << true << 1.5 << QPoint(31, 18);
    }

    void shouldPaintMenuArrow()
    {
        QFETCH(bool, withText);
        QFETCH(double, scale);
        QFETCH(QPoint, inside);
        uxPlatform::setDpiScale(scale, scale);
        QUxToolButton older;
        QUxToolButton::showButtonText(withText);
        QUxToolButton button;
        const auto style = withText ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly;
        QVERIFY(QUxToolButton::buttonTextShown() == withText && older.toolButtonStyle() == style);
        QCOMPARE(button.toolButtonStyle(), style);
        button.resize(40, 30);
        QVERIFY(uxTest::grab(&button).pixelColor(inside) != QColor(155, 155, 155));
        QMenu menu;
        button.setMenu(&menu);
        QCOMPARE(uxTest::grab(&button).pixelColor(inside), QColor(155, 155, 155));
    }

    void shouldClickOnLeftAndRightReleaseOnly()
    {
        QUxPushButton button;
        QUxPushButton::setLastMouseReleaseButton(Qt::BackButton);
        QSignalSpy clicked(&button, &QPushButton::clicked);
        QList<int> counts;
        for (Qt::MouseButton mouseButton : {Qt::MiddleButton, Qt::RightButton, Qt::MiddleButton, Qt::LeftButton}) {
            QTest::mouseClick(&button, mouseButton);
            counts << clicked.count();
        }
        QCOMPARE(counts, (QList<int>{0, 1, 1, 2}));
        QCOMPARE(QUxPushButton::getLastMouseReleaseButton(), Qt::BackButton);
    }
};

QTEST_MAIN(tst_QUxToolBar)
#include "tst_QUxToolBar.moc"
