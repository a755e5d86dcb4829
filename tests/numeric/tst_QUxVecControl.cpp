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

QPoint cellOf(QWidget* control, QWidget* child)
{
    auto* grid = qobject_cast<QGridLayout*>(control->layout());
    const int index = grid->indexOf(child);
    if (index < 0)
        return QPoint(-1, -1);
    int row, column, rowSpan, columnSpan;
    grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
    return QPoint(column, row);
}

QList<QLabel*> labelsOf(QWidget* control)
{
    return control->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
}

/// A user's entry in one component's field; a relative entry (op >= 0) is reported, not applied.
struct Entry
{
    int size, axis;
    const char* text;
    int op;
    double amount;
    const char* change;
};

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

    void shouldEmitEachComponentOnceInAxisOrderForSetAll()
    {
        QUxVec2Control two;
        QUxVec3Control three;
        QUxVec4Control four;
        ChangeLog log2(&two), log3(&three), log4(&four);
        two.setXY(0.5, -2);
        three.setXYZ(1, 2, 3);
        four.setXYZW(1, 2, 3, 4);
        QCOMPARE(log2.entries, (QStringList{"X=0.5", "Y=-2"}));
        QCOMPARE(log3.entries, (QStringList{"X=1", "Y=2", "Z=3"}));
        QCOMPARE(log4.entries, (QStringList{"X=1", "Y=2", "Z=3", "W=4"}));
        QCOMPARE(three.getX(), 1.0);
        QCOMPARE(three.getY(), 2.0);
        QCOMPARE(three.getZ(), 3.0);
        QCOMPARE(four.getW(), 4.0);
    }

    void shouldEmitOnlyTheSetComponent_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("setter");
        QTest::addColumn<QString>("expected");
        QTest::newRow("3: x") << 3 << QByteArray("setX") << "X=4.5";
        QTest::newRow("3: y") << 3 << QByteArray("setY") << "Y=4.5";
        QTest::newRow("3: z") << 3 << QByteArray("setZ") << "Z=4.5";
        QTest::newRow("4: w") << 4 << QByteArray("setW") << "W=4.5";
    }

    void shouldEmitOnlyTheSetComponent()
    {
        QFETCH(int, size);
        QFETCH(QByteArray, setter);
        QFETCH(QString, expected);
        const auto control = makeControl(size);
        ChangeLog log(control.get());
        QVERIFY(QMetaObject::invokeMethod(control.get(), setter.constData(), Q_ARG(double, 4.5)));
        QCOMPARE(log.entries, QStringList{expected});
        // Setting the same value again still reports it once: the host asked for it.
        QVERIFY(QMetaObject::invokeMethod(control.get(), setter.constData(), Q_ARG(double, 4.5)));
        QCOMPARE(log.entries.size(), 2);
    }

    void shouldRelayTypedEntryWithAxis_data()
    {
        QTest::addColumn<Entry>("entry");
        // size, axis, text, relative operator, amount, change reported
        QTest::newRow("3: expression in y") << Entry{3, 1, "2*3+1", -1, 0, "Y=7"};
        QTest::newRow("2: number in x") << Entry{2, 0, "3", -1, 0, "X=3"};
        QTest::newRow("3: add to z") << Entry{3, 2, "+=2", QUxDoubleSpiner::RelativeAdd, 2, nullptr};
        QTest::newRow("3: subtract from y") << Entry{3, 1, "-=4", QUxDoubleSpiner::RelativeSubtract, 4, nullptr};
        QTest::newRow("4: multiply w") << Entry{4, 3, "*=2", QUxDoubleSpiner::RelativeMultiply, 2, nullptr};
    }

    void shouldRelayTypedEntryWithAxis()
    {
        QFETCH(Entry, entry);
        const auto control = makeControl(entry.size);
        control->show();
        control->wheelPrec(entry.axis)->setValue(1.0);
        if (entry.op >= 0)
            control->setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        QSignalSpy relative(control.get(), SIGNAL(relativeOperatorApplied(int, RelativeOperator, double)));
        QVERIFY(relative.isValid());
        QSignalSpy finished(control.get(), &QUxWheelVectorControl::editingFinished);
        ChangeLog log(control.get());
        uxTest::typeAndCommit(control->wheelPrec(entry.axis), QString::fromLatin1(entry.text));
        QVERIFY(finished.count() >= 1);
        if (entry.op < 0) {
            QCOMPARE(log.entries, QStringList{QString::fromLatin1(entry.change)});
            QCOMPARE(relative.count(), 0);
            return;
        }
        QCOMPARE(relative.count(), 1);
        QCOMPARE(relative.at(0).at(0).toInt(), entry.axis);
        QCOMPARE(int(relative.at(0).at(1).value<Operator>()), entry.op);
        QCOMPARE(relative.at(0).at(2).toDouble(), entry.amount);
        QCOMPARE(control->wheelPrec(entry.axis)->value(), 1.0); // the host applies it to its selection
        QCOMPARE(log.entries, QStringList());
    }

    void shouldShareSingleStepAcrossComponentsAndReportOnce()
    {
        QUxVec3Control control;
        QSignalSpy steps(&control, &QUxVec3Control::singleStepChanged);
        QSignalSpy componentSteps(control.wheelPrec(2), &QUxWheelPrec::singleStepChanged);
        control.setSingleStep(0.5);
        QCOMPARE(steps.count(), 1);
        QCOMPARE(steps.at(0).at(0).toDouble(), 0.5);
        QCOMPARE(componentSteps.count(), 0);
        QCOMPARE(control.singleStepX(), 0.5);
        QCOMPARE(control.singleStepZ(), 0.5);

        // What the step editor of the Y field does when a new step is entered.
        control.wheelPrec(1)->spiner()->setSingleStep(0.25);
        QCOMPARE(steps.count(), 2);
        QCOMPARE(steps.at(1).at(0).toDouble(), 0.25);
        QCOMPARE(control.singleStepX(), 0.25);
        QCOMPARE(control.singleStepY(), 0.25);
        QCOMPARE(control.singleStepZ(), 0.25);
        QCOMPARE(control.singleStep(), 0.25);
    }

    void shouldPassRangeDecimalsAndSuffixSilently()
    {
        QUxVec3Control control;
        control.setXYZ(50, -50, 0);
        ChangeLog log(&control);
        control.setMinimum(-10);
        control.setMaximum(10);
        control.setDecimals(3);
        control.setSuffix(QStringLiteral(" mm"));
        control.setDisplayDecimals(2);
        QCOMPARE(log.entries, QStringList());
        for (int axis = 0; axis < 3; ++axis) {
            const QUxWheelPrec* component = control.wheelPrec(axis);
            QCOMPARE(component->minimum(), -10.0);
            QCOMPARE(component->maximum(), 10.0);
            QCOMPARE(component->decimals(), 3);
            QCOMPARE(component->displayDecimals(), 2);
            QCOMPARE(component->suffix(), QStringLiteral(" mm"));
        }
        QCOMPARE(control.getX(), 10.0);
        QCOMPARE(control.getY(), -10.0);
        QCOMPARE(control.minimum(), -10.0);
        QCOMPARE(control.decimals(), 3);
        QVERIFY(!control.wheelPrec(3));
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
        const QList<QLabel*> labels = labelsOf(control.get());
        QCOMPARE(labels.size(), size);
        QCOMPARE(control->property("vecLabel").toInt(), int(QUxVec3Control::XYZ));
        for (QLabel* l : labels)
            QVERIFY(!l->isVisible());

        QVERIFY(control->setProperty("vecLabel", label));
        QCOMPARE(control->property("vecLabel").toInt(), label);
        for (int axis = 0; axis < size; ++axis) {
            QLabel* atRow = nullptr;
            for (QLabel* l : labels)
                if (cellOf(control.get(), l) == QPoint(0, axis))
                    atRow = l;
            QVERIFY(atRow);
            QCOMPARE(atRow->text(), texts[axis]);
            QCOMPARE(atRow->isVisible(), shown);
        }
        // An unknown label set is remembered but changes nothing.
        for (int unknown : {7, -1}) {
            QVERIFY(control->setProperty("vecLabel", unknown));
            QCOMPARE(control->property("vecLabel").toInt(), unknown);
            for (QLabel* l : labels)
                QCOMPARE(l->isVisible(), shown);
        }
        QCOMPARE(labels.first()->text().isEmpty(), !shown);
    }

    void shouldLayOutPerOrientation_data()
    {
        using Cells = QList<QPoint>; // QPoint(column, row)
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("mirrored");
        QTest::addColumn<Cells>("labelCells");
        QTest::addColumn<Cells>("editorCells");
        const int vertical = QUxVec3Control::VERTICAL, horizontal = QUxVec3Control::HORIZONTAL;
        QTest::newRow("vertical") << vertical << false << Cells{{0, 0}, {0, 1}, {0, 2}}
                                  << Cells{{1, 0}, {1, 1}, {1, 2}};
        QTest::newRow("horizontal") << horizontal << false << Cells{{0, 0}, {2, 0}, {4, 0}}
                                    << Cells{{1, 0}, {3, 0}, {5, 0}};
        QTest::newRow("vertical mirrored")
            << vertical << true << Cells{{1, 0}, {1, 1}, {1, 2}} << Cells{{0, 0}, {0, 1}, {0, 2}};
        QTest::newRow("horizontal mirrored")
            << horizontal << true << Cells{{1, 0}, {3, 0}, {5, 0}} << Cells{{0, 0}, {2, 0}, {4, 0}};
        const Cells none{{-1, -1}, {-1, -1}, {-1, -1}};
        QTest::newRow("unknown leaves the grid empty") << 9 << false << none << none;
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
        const QStringList names{"X", "Y", "Z"};
        for (int axis = 0; axis < 3; ++axis) {
            QLabel* label = nullptr;
            for (QLabel* l : labelsOf(&control))
                if (l->text() == names[axis])
                    label = l;
            QVERIFY(label);
            QCOMPARE(cellOf(&control, label), labelCells[axis]);
            QCOMPARE(cellOf(&control, control.wheelPrec(axis)), editorCells[axis]);
        }
        auto* grid = qobject_cast<QGridLayout*>(control.layout());
        QCOMPARE(grid->spacing(), 6);
        QCOMPARE(grid->contentsMargins(), QMargins());
    }

    void shouldHideComponentWithItsLabel()
    {
        QUxVec3Control control;
        control.setLabel(QUxVec3Control::RGB);
        control.show();
        control.setYVisible(false);
        QVERIFY(!control.isYVisible());
        QVERIFY(!control.wheelPrec(1)->isVisible());
        for (QLabel* l : labelsOf(&control))
            QCOMPARE(l->isVisible(), l->text() != QLatin1String("G"));
        control.setYVisible(true);
        QVERIFY(control.wheelPrec(1)->isVisible());
        QVERIFY(control.property("yVisible").toBool());

        QUxVec4Control four;
        four.show();
        four.setWVisible(false);
        QVERIFY(!four.isWVisible());
        QVERIFY(!four.wheelPrec(3)->isVisible());
    }

    void shouldHighlightOnlyValidAxis()
    {
        QUxVec3Control control;
        control.setMultiSelectHighlight(3, true);
        control.setMultiSelectHighlight(-1, true);
        for (int axis = 0; axis < 3; ++axis)
            QVERIFY(!control.wheelPrec(axis)->spiner()->property("multiselect").isValid());
        control.setMultiSelectHighlight(1, true);
        QCOMPARE(control.wheelPrec(1)->spiner()->property("multiselect"), QVariant(true));
        QVERIFY(!control.wheelPrec(0)->spiner()->property("multiselect").isValid());
        control.setMultiSelectHighlight(1, false);
        QVERIFY(!control.wheelPrec(1)->spiner()->property("multiselect").isValid());
    }

    void shouldProxyFocusToLastComponent()
    {
        QUxVec3Control three;
        QUxVec4Control four;
        QCOMPARE(three.focusProxy(), static_cast<QWidget*>(three.wheelPrec(2)));
        QCOMPARE(four.focusProxy(), static_cast<QWidget*>(four.wheelPrec(3)));
        QCOMPARE(three.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(three.wheelPrec(0)->focusPolicy(), Qt::StrongFocus);
    }

    // The change signals are connected by text throughout (ChangeLog); these are the other members.
    void shouldDeclareMembersHostsConnectByText_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("member");
        QTest::addColumn<QString>("kind");
        const auto row = [](int size, const char* member, const char* kind) {
            QTest::addRow("%d: %s", size, member) << size << QByteArray(member) << QString::fromLatin1(kind);
        };
        row(3, "relativeOperatorApplied(int,RelativeOperator,double)", "public signal");
        row(3, "setLabel(VectorLabel)", "public slot");
        row(3, "setOrientation(Orientation)", "public slot");
        row(3, "setXYZ(double,double,double)", "public slot");
        row(3, "setZVisible(bool)", "public slot");
    }

    void shouldDeclareMembersHostsConnectByText()
    {
        QFETCH(int, size);
        QFETCH(QByteArray, member);
        QFETCH(QString, kind);
        const QMetaObject* meta = makeControl(size)->metaObject();
        const QMetaMethod method = meta->method(meta->indexOfMethod(member.constData()));
        const char* access[] = {"private", "protected", "public"};
        const char* type[] = {"method", "signal", "slot", "constructor"};
        QCOMPARE(method.isValid() ? QStringLiteral("%1 %2").arg(access[method.access()], type[method.methodType()])
                                  : QString(),
                 kind);
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
