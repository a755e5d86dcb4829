#include <QUxComboBox.h>
#include <QUxComboBoxMenu.h>
#include <QUxMultiLevelComboBox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QStyle>
#include <QTimer>
#include <QtTest>

#include <functional>

namespace {

/// Default 1 mm; "Metric" opens a chain of @p depth sub-menus, the innermost holding 1 cm.
class LengthMenu : public QUxComboBoxMenu
{
public:
    LengthMenu(const QFont& font, const QVariant& current, int depth, QWidget* parent)
        : QUxComboBoxMenu(font, current, parent), m_depth(depth)
    {}

    void init(const QString& text, const QVariant& data) override
    {
        addItem(this, text, data);
        addItem(this, QStringLiteral("1 m"), 1000.0);
        QMenu* level = addMenu(this, QStringLiteral("Metric"), 1000.0);
        for (int i = 1; i < m_depth; ++i)
            level = addMenu(level, QStringLiteral("Level %1").arg(i), i);
        addItem(level, QStringLiteral("1 cm"), 10.0);
    }

private:
    int m_depth;
};

class LengthBox : public QUxMultiLevelComboBox
{
public:
    int menusCreated = 0;
    int depth = 1;

protected:
    QUxComboBoxMenu* createMenu() override
    {
        ++menusCreated;
        return new LengthMenu(font(), currentData(), depth, this);
    }
    QString defaultText() const override { return QStringLiteral("1 mm"); }
    QVariant defaultData() const override { return 1.0; }
    QString toText(const QVariant& value) const override
    {
        const QMap<double, QString> texts{{1.0, "1 mm"}, {10.0, "1 cm"}, {1000.0, "1 m"}};
        return texts.value(value.toDouble());
    }
};

/// Runs @p step on the open pop-up menu once showPopup() has opened it.
void onPopup(QObject* context, const std::function<void(QMenu*)>& step)
{
    QTimer::singleShot(0, context, [step] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
            step(menu);
    });
}

QAction* findEntry(QMenu* menu, const QString& text)
{
    for (QAction* action : menu->actions())
        if (action->text() == text)
            return action;
    return nullptr;
}

void clickEntry(QMenu* menu, const QString& text)
{
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(findEntry(menu, text)).center());
}

QString changes(const QSignalSpy& spy)
{
    QStringList out;
    for (const QList<QVariant>& args : spy)
        out << args[0].toString() + '=' + args[1].toString();
    return out.join(' ');
}

} // namespace

class tst_QUxComboBoxes : public QObject
{
    Q_OBJECT

private slots:
    void listFitsTheLongestEntry_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("scrolls");
        QTest::addColumn<QString>("closing");
        QTest::newRow("none") << 0 << false << "escape";
        QTest::newRow("few") << 3 << false << "click outside";
        QTest::newRow("as many as shown") << 10 << false << "escape";
        QTest::newRow("more than shown") << 11 << true << "hidden by the system";
        QTest::newRow("ten thousand") << 10000 << true << "escape";
    }

    void listFitsTheLongestEntry()
    {
        QFETCH(int, count);
        QFETCH(bool, scrolls);
        QFETCH(QString, closing);
        QUxComboBox box;
        const QString longest = QStringLiteral("A considerably longer entry");
        for (int i = 0; i < count; ++i)
            box.addItem(i == count / 2 ? longest : QStringLiteral("x%1").arg(i));
        QSignalSpy shown(&box, &QUxComboBox::popupShown);
        QSignalSpy hidden(&box, &QUxComboBox::popupHidden);
        box.show();
        box.showPopup();
        const int text = count ? box.view()->fontMetrics().horizontalAdvance(longest) : 0;
        const int bar = scrolls ? box.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &box) : 0;
        QCOMPARE(box.view()->minimumWidth(), text + bar);
        QCOMPARE(shown.count(), 1);
        QCOMPARE(shown[0][0].toInt(), box.currentIndex());
        QWidget* list = box.view()->parentWidget();
        if (closing == "escape")
            QTest::keyClick(box.view(), Qt::Key_Escape);
        else if (closing == "click outside")
            QTest::mouseClick(list, Qt::LeftButton, {}, QPoint(-20, -20));
        else
            list->hide();
        QCOMPARE(hidden.count(), 1);
        QVERIFY(!box.view()->isVisible());
    }

    void menuChecksOnlyTheCurrentValueAndTakesTheFont_data()
    {
        QTest::addColumn<QFont>("font");
        QFont pixels(QStringLiteral("Serif"));
        pixels.setPixelSize(17);
        QTest::newRow("point size") << QFont(QStringLiteral("Serif"), 13);
        QTest::newRow("pixel size") << pixels;
    }

    void menuChecksOnlyTheCurrentValueAndTakesTheFont()
    {
        QFETCH(QFont, font);
        QUxComboBoxMenu menu(font, 2, nullptr);
        for (int value : {1, 2, 3})
            menu.addItem(&menu, QString::number(value), value);
        QMenu* sub = menu.addMenu(&menu, QStringLiteral("More"), 4);
        QStringList flags;
        for (QAction* action : menu.actions())
            flags << QStringLiteral("%1%2").arg(action->isCheckable()).arg(action->isChecked());
        QCOMPARE(flags.join(' '), QStringLiteral("00 11 00 00"));
        QCOMPARE(sub->menuAction()->data(), QVariant(4));
        for (QMenu* m : {static_cast<QMenu*>(&menu), sub}) {
            QCOMPARE(m->property("ComboBoxAlike"), QVariant(true));
            QCOMPARE(m->font().family(), font.family());
            QCOMPARE(QSize(m->font().pointSize(), m->font().pixelSize()), QSize(font.pointSize(), font.pixelSize()));
        }
        QVERIFY(!menu.addItem(nullptr, QStringLiteral("lost"), 5) && !menu.addMenu(nullptr, QString(), 5));
    }

    void popupMenuChoosesEntriesAtAnyDepth_data()
    {
        QTest::addColumn<int>("depth");
        QTest::addColumn<QStringList>("path");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("expected");
        QStringList deep{"Metric"};
        for (int i = 1; i < 19; ++i)
            deep << QStringLiteral("Level %1").arg(i);
        QTest::newRow("plain entry") << 1 << QStringList() << "1 m"
                                     << "1 m=1000";
        QTest::newRow("sub-menu entry itself") << 1 << QStringList() << "Metric"
                                               << "Metric=1000";
        QTest::newRow("current entry") << 1 << QStringList() << "1 mm"
                                       << "";
        QTest::newRow("entry of a sub-menu") << 2 << QStringList{"Metric", "Level 1"} << "1 cm"
                                             << "1 cm=10";
        QTest::newRow("sub-menu entry twenty deep") << 20 << deep << "Level 19"
                                                    << "Level 19=19";
    }

    void popupMenuChoosesEntriesAtAnyDepth()
    {
        QFETCH(int, depth);
        QFETCH(QStringList, path);
        QFETCH(QString, entry);
        QFETCH(QString, expected);
        LengthBox box;
        box.depth = depth;
        box.addItem(QString());
        box.reset();
        box.show();
        QSignalSpy changed(&box, &QUxMultiLevelComboBox::changed);
        QString checked;
        onPopup(this, [&](QMenu* menu) {
            for (QAction* action : menu->actions())
                checked += action->isChecked() ? action->text() : QString();
            for (const QString& step : path) { // opened from the keyboard, as a user walks in
                menu->setActiveAction(findEntry(menu, step));
                QTest::keyClick(menu, Qt::Key_Right);
                menu = findEntry(menu, step)->menu();
            }
            clickEntry(menu, entry);
        });
        box.showPopup();
        QCOMPARE(checked, QStringLiteral("1 mm"));
        QCOMPARE(changes(changed), expected);
    }

    void dismissedMenuNeedsASecondClick()
    {
        LengthBox box;
        box.addItem(QString());
        box.show();
        onPopup(this, [](QMenu* menu) { QTest::keyClick(menu, Qt::Key_Escape); });
        box.showPopup();
        box.showPopup();
        QCOMPARE(box.menusCreated, 1);
        onPopup(this, [](QMenu* menu) { clickEntry(menu, QStringLiteral("1 m")); });
        box.showPopup();
        QCOMPARE(box.menusCreated, 2);
        QCOMPARE(box.currentText(), QStringLiteral("1 m"));
    }

    void resetUndoAndUpdate()
    {
        LengthBox box;
        QSignalSpy changed(&box, &QUxMultiLevelComboBox::changed);
        box.reset();
        box.change(QStringLiteral("1 cm"), 10.0);
        QVERIFY(changed.isEmpty()); // no item to change
        box.addItem(QString());
        box.change(QStringLiteral("1 cm"), 10.0);
        box.change(QStringLiteral("1 cm"), 10.0);
        QVERIFY(!box.isDefault());
        box.reset();
        QVERIFY(box.isDefault());
        box.undo();
        box.undo();
        box.change(QStringLiteral("odd"), 42.0);
        box.update();
        QCOMPARE(changes(changed), QStringLiteral("1 cm=10 1 mm=1 1 cm=10 odd=42 1 mm=1"));
        box.undo(); // back to 42, which has no text: nothing
        QCOMPARE(changed.count(), 5);
    }
};

QTEST_MAIN(tst_QUxComboBoxes)
#include "tst_QUxComboBoxes.moc"
