#include <QUxDoubleSpiner.h>
#include <QUxVec2Control.h>
#include <QUxVec3Control.h>
#include <QUxVec4Control.h>
#include <QUxWheelPrec.h>

#include <uxTestSupport.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(QUxDoubleSpiner::RelativeOperator)

/// Records the changedX ... changedW signals of any wheel vector control as "X=1" strings, in order.
class ChangeLog : public QObject
{
    Q_OBJECT

public:
    explicit ChangeLog(QUxWheelVectorControl* control)
    {
        for (int axis = 0; axis < control->componentCount(); ++axis)
            connect(control, QByteArray("2changed") + "XYZW"[axis] + "(double)", this, SLOT(record(double)));
    }
    QStringList entries;

private slots:
    void record(double value)
    {
        const QByteArray name = sender()->metaObject()->method(senderSignalIndex()).name();
        entries << QStringLiteral("%1=%2").arg(QLatin1Char(name.back())).arg(value);
    }
};

namespace {

using Operator = QUxDoubleSpiner::RelativeOperator;

std::unique_ptr<QUxWheelVectorControl> makeControl(int size)
{
    if (size == 2)
        return std::make_unique<QUxVec2Control>();
    if (size == 3)
        return std::make_unique<QUxVec3Control>();
    return std::make_unique<QUxVec4Control>();
}

/// The widget in grid cell (@p column, @p row) of @p control, or null.
QWidget* at(QWidget* control, const QPoint& cell)
{
    QLayoutItem* item = qobject_cast<QGridLayout*>(control->layout())->itemAtPosition(cell.y(), cell.x());
    return item ? item->widget() : nullptr;
}

/// The components holding a value other than 0, as "X=1" strings in axis order.
QStringList nonZeroComponents(QUxWheelVectorControl* control)
{
    QStringList components;
    for (int axis = 0; axis < control->componentCount(); ++axis)
        if (control->wheelPrec(axis)->value() != 0.0)
            components << QStringLiteral("%1=%2").arg(QLatin1Char("XYZW"[axis])).arg(control->wheelPrec(axis)->value());
    return components;
}

/// A user's entry in one component's field: control size, axis, text, relative operator (-1 for none), its amount
/// and the change reported otherwise. A relative entry is reported, not applied.
using Entry = std::tuple<int, int, const char*, int, double, const char*>;

} // namespace

Q_DECLARE_METATYPE(Entry)

class tst_QUxVecControl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::c());
        qRegisterMetaType<QUxDoubleSpiner::RelativeOperator>();
    }

    void shouldSetAndEmitComponentsInAxisOrder_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("setter");
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("2: setXY") << 2 << QByteArray("setXY") << QList<double>{0.5, -2} << QStringList{"X=0.5", "Y=-2"};
        QTest::newRow("3: setXYZ") << 3 << QByteArray("setXYZ") << QList<double>{1, 2, 3}
                                   << QStringList{"X=1", "Y=2", "Z=3"};
        QTest::newRow("4: setXYZW") << 4 << QByteArray("setXYZW") << QList<double>{1, 2, 3, 4}
                                    << QStringList{"X=1", "Y=2", "Z=3", "W=4"};
        for (const QString axis : {"X", "Y", "Z", "W"})
            QTest::addRow("set%s", qPrintable(axis)) << (axis == "W" ? 4 : 3) << ("set" + axis).toLatin1()
                                                     << QList<double>{4.5} << QStringList{axis + "=4.5"};
    }

    void shouldSetAndEmitComponentsInAxisOrder()
    {
        QFETCH(int, size);
        QFETCH(QByteArray, setter);
        QFETCH(QList<double>, values);
        QFETCH(QStringList, expected);
        const auto control = makeControl(size);
        ChangeLog log(control.get());
        QGenericArgument arguments[4];
        for (int i = 0; i < values.size(); ++i)
            arguments[i] = Q_ARG(double, values[i]);
        const auto set = [&] {
            return QMetaObject::invokeMethod(control.get(), setter.constData(), arguments[0], arguments[1],
                                             arguments[2], arguments[3]);
        };
        QVERIFY(set());
        QCOMPARE(log.entries, expected);
        QCOMPARE(nonZeroComponents(control.get()), expected);
        // The same values again are reported again: the host asked for them.
        QVERIFY(set());
        QCOMPARE(log.entries, expected + expected);
    }

    void shouldRelayTypedEntryWithAxis_data()
    {
        QTest::addColumn<Entry>("entry");
        QTest::newRow("3: expression in y") << Entry{3, 1, "2*3+1", -1, 0, "Y=7"};
        QTest::newRow("2: number in x") << Entry{2, 0, "3", -1, 0, "X=3"};
        QTest::newRow("3: add to z") << Entry{3, 2, "+=2", QUxDoubleSpiner::RelativeAdd, 2, nullptr};
        QTest::newRow("3: subtract from y") << Entry{3, 1, "-=4", QUxDoubleSpiner::RelativeSubtract, 4, nullptr};
        QTest::newRow("4: multiply w") << Entry{4, 3, "*=2", QUxDoubleSpiner::RelativeMultiply, 2, nullptr};
    }

    void shouldRelayTypedEntryWithAxis()
    {
        QFETCH(Entry, entry);
        const auto [size, axis, text, op, amount, change] = entry;
        const auto control = makeControl(size);
        control->show();
        control->wheelPrec(axis)->setValue(1.0);
        if (op >= 0)
            control->setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        QSignalSpy relative(control.get(), SIGNAL(relativeOperatorApplied(int, RelativeOperator, double)));
        QVERIFY(relative.isValid());
        QSignalSpy finished(control.get(), &QUxWheelVectorControl::editingFinished);
        ChangeLog log(control.get());
        uxTest::typeAndCommit(control->wheelPrec(axis), QString::fromLatin1(text));
        QVERIFY(finished.count() >= 1);
        if (op < 0) {
            QCOMPARE(log.entries, QStringList{QString::fromLatin1(change)});
            QCOMPARE(relative.count(), 0);
            return;
        }
        QCOMPARE(relative, QList<QVariantList>({{axis, QVariant::fromValue(Operator(op)), amount}}));
        QCOMPARE(control->wheelPrec(axis)->value(), 1.0); // the host applies it to its selection
        QCOMPARE(log.entries, QStringList());
    }

    void shouldPassSettingsSilentlyAndShareSingleStepAcrossComponents()
    {
        QUxVec3Control control;
        control.setXYZ(50, -50, 0);
        ChangeLog log(&control);
        QSignalSpy steps(&control, &QUxVec3Control::singleStepChanged);
        QSignalSpy componentSteps(control.wheelPrec(2), &QUxWheelPrec::singleStepChanged);
        control.setMinimum(-10);
        control.setMaximum(10);
        control.setDecimals(3);
        control.setSuffix(QStringLiteral(" mm"));
        control.setDisplayDecimals(2);
        control.setSingleStep(0.5);
        QCOMPARE(log.entries, QStringList());
        QCOMPARE(componentSteps.count(), 0);
        for (int axis = 0; axis < 3; ++axis) {
            const QUxWheelPrec* c = control.wheelPrec(axis);
            QCOMPARE((QVariantList{c->minimum(), c->maximum(), c->decimals(), c->displayDecimals(), c->suffix(),
                                   c->singleStep()}),
                     (QVariantList{-10.0, 10.0, 3, 2, QStringLiteral(" mm"), 0.5}));
        }
        QCOMPARE((QList<double>{control.getX(), control.getY(), control.minimum()}), (QList<double>{10, -10, -10}));
        QCOMPARE(control.decimals(), 3);

        // What the step editor of the Y field does when a new step is entered.
        control.wheelPrec(1)->spiner()->setSingleStep(0.25);
        QCOMPARE(steps, QList<QVariantList>({{0.5}, {0.25}}));
        QCOMPARE(
            (QList<double>{control.singleStepX(), control.singleStepY(), control.singleStepZ(), control.singleStep()}),
            (QList<double>{0.25, 0.25, 0.25, 0.25}));
    }

    void shouldKeepLabelsHiddenUntilSetLabelThenShowLabelSet_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("label");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("NONE") << 3 << int(QUxVec3Control::NONE) << QStringList{"", "", ""};
        QTest::newRow("XYZ") << 3 << int(QUxVec3Control::XYZ) << QStringList{"X", "Y", "Z"};
        QTest::newRow("RGB") << 3 << int(QUxVec3Control::RGB) << QStringList{"R", "G", "B"};
        QTest::newRow("UVW") << 3 << int(QUxVec3Control::UVW) << QStringList{"U", "V", "W"};
        QTest::newRow("SHEAR") << 3 << int(QUxVec3Control::SHEAR) << QStringList{"XY", "XZ", "YZ"};
        QTest::newRow("2: UVW") << 2 << int(QUxVec2Control::UVW) << QStringList{"U", "V"};
    }

    void shouldKeepLabelsHiddenUntilSetLabelThenShowLabelSet()
    {
        QFETCH(int, size);
        QFETCH(int, label);
        QFETCH(QStringList, texts);
        const bool shown = label != QUxVec3Control::NONE;
        const auto control = makeControl(size);
        control->show();
        const QList<QLabel*> labels = control->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(labels.size(), size);
        QCOMPARE(control->property("vecLabel").toInt(), int(QUxVec3Control::XYZ));
        for (QLabel* l : labels)
            QVERIFY(!l->isVisible());

        // An unknown label set after a known one is remembered but changes nothing.
        for (int set : {label, 7}) {
            QVERIFY(control->setProperty("vecLabel", set));
            QCOMPARE(control->property("vecLabel").toInt(), set);
            for (int axis = 0; axis < size; ++axis) {
                auto* atRow = qobject_cast<QLabel*>(at(control.get(), QPoint(0, axis)));
                QVERIFY(atRow);
                QCOMPARE(atRow->text(), texts[axis]);
                QCOMPARE(atRow->isVisible(), shown);
            }
        }
    }

    void shouldLayOutPerOrientation_data()
    {
        using C = QList<QPoint>; // QPoint(column, row)
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("mirrored");
        QTest::addColumn<C>("labelCells");
        QTest::addColumn<C>("editorCells");
        const int v = QUxVec3Control::VERTICAL, h = QUxVec3Control::HORIZONTAL;
        QTest::newRow("vertical") << v << false << C{{0, 0}, {0, 1}, {0, 2}} << C{{1, 0}, {1, 1}, {1, 2}};
        QTest::newRow("horizontal") << h << false << C{{0, 0}, {2, 0}, {4, 0}} << C{{1, 0}, {3, 0}, {5, 0}};
        QTest::newRow("vertical mirrored") << v << true << C{{1, 0}, {1, 1}, {1, 2}} << C{{0, 0}, {0, 1}, {0, 2}};
        QTest::newRow("horizontal mirrored") << h << true << C{{1, 0}, {3, 0}, {5, 0}} << C{{0, 0}, {2, 0}, {4, 0}};
        QTest::newRow("unknown leaves the grid empty") << 9 << false << C() << C();
    }

    void shouldLayOutPerOrientation()
    {
        QFETCH(int, orientation);
        QFETCH(bool, mirrored);
        QFETCH(QList<QPoint>, labelCells);
        QFETCH(QList<QPoint>, editorCells);
        QUxVec3Control control;
        control.setLabel(QUxVec3Control::XYZ);
        control.setMirroredLayout(mirrored);
        control.setOrientation(QUxVec3Control::HORIZONTAL);
        control.setOrientation(QUxVec3Control::Orientation(orientation));
        QCOMPARE(int(control.orientation()), orientation);
        auto* grid = qobject_cast<QGridLayout*>(control.layout());
        QCOMPARE(grid->count(), labelCells.size() + editorCells.size());
        for (int axis = 0; axis < labelCells.size(); ++axis) {
            QCOMPARE(qobject_cast<QLabel*>(at(&control, labelCells[axis]))->text(), QString("XYZ"[axis]));
            QCOMPARE(at(&control, editorCells[axis]), control.wheelPrec(axis));
        }
    }

    void shouldHideComponentWithItsLabelAndProxyFocusToLastComponent()
    {
        QUxVec3Control control;
        control.setLabel(QUxVec3Control::RGB);
        control.show();
        control.setYVisible(false);
        QVERIFY(!control.isYVisible() && !control.wheelPrec(1)->isVisible());
        for (QLabel* l : control.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
            QCOMPARE(l->isVisible(), l->text() != QLatin1String("G"));
        control.setYVisible(true);
        QVERIFY(control.wheelPrec(1)->isVisible() && control.property("yVisible").toBool());

        QUxVec4Control four;
        four.show();
        four.setWVisible(false);
        QVERIFY(!four.isWVisible() && !four.wheelPrec(3)->isVisible());
        QCOMPARE((QList<QWidget*>{control.focusProxy(), four.focusProxy()}),
                 (QList<QWidget*>{control.wheelPrec(2), four.wheelPrec(3)}));
        QCOMPARE(std::make_pair(control.focusPolicy(), control.wheelPrec(0)->focusPolicy()),
                 std::make_pair(Qt::StrongFocus, Qt::StrongFocus));
    }

    void shouldHighlightOnlyValidAxis()
    {
        QUxVec3Control control;
        const auto marks = [&] {
            QVariantList marks;
            for (int axis = 0; axis < 3; ++axis)
                marks << control.wheelPrec(axis)->spiner()->property("multiselect");
            return marks;
        };
        control.setMultiSelectHighlight(3, true); // no such axis
        control.setMultiSelectHighlight(1, true);
        QCOMPARE(marks(), (QVariantList{QVariant(), true, QVariant()}));
        control.setMultiSelectHighlight(1, false);
        QCOMPARE(marks(), QVariantList({QVariant(), QVariant(), QVariant()}));
    }

    // The other signals and setters are reached by text throughout (ChangeLog, spies, invokeMethod).
    void shouldDeclarePublicSlotsHostsConnectByText()
    {
        const QMetaObject& m = QUxVec3Control::staticMetaObject;
        for (const char* text : {"setLabel(VectorLabel)", "setOrientation(Orientation)", "setZVisible(bool)"})
            QVERIFY2(m.indexOfMethod(text) >= 0 && m.method(m.indexOfMethod(text)).access() == QMetaMethod::Public,
                     text);
    }

    void shouldStayQuietWhileBeingDestroyed()
    {
        QObject host;
        auto* control = new QUxVec3Control;
        control->show();
        QVERIFY(QTest::qWaitForWindowActive(control));
        auto* edit = control->wheelPrec(0)->spiner()->findChild<QLineEdit*>();
        edit->setFocus();
        QTest::keyClicks(edit, QStringLiteral("5")); // typed, not committed: closing commits it
        QVERIFY(edit->hasFocus());
        int reports = 0;
        connect(control, &QUxVec3Control::changedX, &host, [&] { reports += 1 + int(control->getX()); });
        connect(control, &QUxVec3Control::editingFinished, &host, [&] { ++reports; });
        delete control;
        QCOMPARE(reports, 0);
    }
};

QTEST_MAIN(tst_QUxVecControl)
#include "tst_QUxVecControl.moc"
