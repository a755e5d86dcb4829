#include <QUxDoubleSpiner.h>
#include <QUxVec2Control.h>
#include <QUxVec3Control.h>
#include <QUxVec4Control.h>
#include <QUxWheelPrec.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

Q_DECLARE_METATYPE(QUxDoubleSpiner::RelativeOperator)

namespace {

/// Records the change signals of a wheel vector control as "X=1" strings, in order.
template<typename Control>
QStringList* recordChanges(Control* control)
{
    auto* log = new QStringList;
    QObject::connect(control, &QObject::destroyed, [log] { delete log; });
    QObject::connect(control, &Control::changedX, control, [log](double v) { *log << QStringLiteral("X=%1").arg(v); });
    QObject::connect(control, &Control::changedY, control, [log](double v) { *log << QStringLiteral("Y=%1").arg(v); });
    if constexpr (!std::is_same_v<Control, QUxVec2Control>)
        QObject::connect(control, &Control::changedZ, control,
                         [log](double v) { *log << QStringLiteral("Z=%1").arg(v); });
    if constexpr (std::is_same_v<Control, QUxVec4Control>)
        QObject::connect(control, &Control::changedW, control,
                         [log](double v) { *log << QStringLiteral("W=%1").arg(v); });
    return log;
}

/// Types @p text into a component's field and commits it with Enter, as a user does.
void typeInto(QUxWheelPrec* component, const QString& text)
{
    QUxDoubleSpiner* field = component->spiner();
    auto* edit = field->findChild<QLineEdit*>();
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
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

} // namespace

class tst_QUxVecControl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void shouldEmitEachComponentOnceInAxisOrderForSetXYZ();
    void shouldEmitOnlyTheSetComponent_data();
    void shouldEmitOnlyTheSetComponent();
    void shouldRelayTypedComponentValue();
    void shouldShareStepChangedInOneComponent();
    void shouldSetStepSilentlyOnEveryComponentAndReportOnce();
    void shouldPassRangeDecimalsAndSuffixSilently();
    void shouldKeepLabelsHiddenUntilSetLabel();
    void shouldShowLabelSet_data();
    void shouldShowLabelSet();
    void shouldLayOutPerOrientation_data();
    void shouldLayOutPerOrientation();
    void shouldHideComponentWithItsLabel();
    void shouldForwardRelativeEntryWithAxis();
    void shouldHighlightOnlyValidAxis();
    void shouldProxyFocusToLastComponent();
    void shouldDeclareMembersHostsConnectByText_data();
    void shouldDeclareMembersHostsConnectByText();
    void shouldRelayRelativeEntryToTextConnection();
    void shouldStayQuietWhileBeingDestroyed();

    void shouldSetBothComponentsOfVec2();
    void shouldHandleFourthComponentOfVec4();
};

void tst_QUxVecControl::initTestCase()
{
    QLocale::setDefault(QLocale::c());
    qRegisterMetaType<QUxDoubleSpiner::RelativeOperator>();
}

void tst_QUxVecControl::shouldEmitEachComponentOnceInAxisOrderForSetXYZ()
{
    QUxVec3Control control;
    QStringList* log = recordChanges(&control);
    control.setXYZ(1, 2, 3);
    QCOMPARE(*log, (QStringList{"X=1", "Y=2", "Z=3"}));
    QCOMPARE(control.getX(), 1.0);
    QCOMPARE(control.getY(), 2.0);
    QCOMPARE(control.getZ(), 3.0);
}

void tst_QUxVecControl::shouldEmitOnlyTheSetComponent_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QString>("expected");
    QTest::newRow("x") << 0 << "X=4.5";
    QTest::newRow("y") << 1 << "Y=4.5";
    QTest::newRow("z") << 2 << "Z=4.5";
}

void tst_QUxVecControl::shouldEmitOnlyTheSetComponent()
{
    QFETCH(int, axis);
    QFETCH(QString, expected);
    QUxVec3Control control;
    QStringList* log = recordChanges(&control);
    const std::array<void (QUxVec3Control::*)(double), 3> setters{&QUxVec3Control::setX, &QUxVec3Control::setY,
                                                                  &QUxVec3Control::setZ};
    (control.*setters[size_t(axis)])(4.5);
    QCOMPARE(*log, QStringList{expected});
    // Setting the same value again still reports it once: the host asked for it.
    (control.*setters[size_t(axis)])(4.5);
    QCOMPARE(log->size(), 2);
}

void tst_QUxVecControl::shouldRelayTypedComponentValue()
{
    QUxVec3Control control;
    control.show();
    QStringList* log = recordChanges(&control);
    QSignalSpy finished(&control, &QUxVec3Control::editingFinished);
    typeInto(control.wheelPrec(1), QStringLiteral("2*3+1"));
    QCOMPARE(*log, QStringList{"Y=7"});
    QCOMPARE(control.getY(), 7.0);
    QVERIFY(finished.count() >= 1);
}

void tst_QUxVecControl::shouldShareStepChangedInOneComponent()
{
    QUxVec3Control control;
    QSignalSpy steps(&control, &QUxVec3Control::singleStepChanged);
    // What the step editor of the Y field does when a new step is entered.
    control.wheelPrec(1)->spiner()->setSingleStep(0.25);
    QCOMPARE(steps.count(), 1);
    QCOMPARE(steps.at(0).at(0).toDouble(), 0.25);
    QCOMPARE(control.singleStepX(), 0.25);
    QCOMPARE(control.singleStepY(), 0.25);
    QCOMPARE(control.singleStepZ(), 0.25);
    QCOMPARE(control.singleStep(), 0.25);
}

void tst_QUxVecControl::shouldSetStepSilentlyOnEveryComponentAndReportOnce()
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
}

void tst_QUxVecControl::shouldPassRangeDecimalsAndSuffixSilently()
{
    QUxVec3Control control;
    control.setXYZ(50, -50, 0);
    QStringList* log = recordChanges(&control);
    control.setMinimum(-10);
    control.setMaximum(10);
    control.setDecimals(3);
    control.setSuffix(QStringLiteral(" mm"));
    control.setDisplayDecimals(2);
    QCOMPARE(*log, QStringList());
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

void tst_QUxVecControl::shouldKeepLabelsHiddenUntilSetLabel()
{
    QUxVec3Control control;
    control.show();
    QCOMPARE(control.getLabel(), QUxVec3Control::XYZ);
    const QList<QLabel*> labels = labelsOf(&control);
    QCOMPARE(labels.size(), 3);
    for (QLabel* label : labels)
        QVERIFY(!label->isVisible());
    control.setLabel(QUxVec3Control::XYZ);
    for (QLabel* label : labels)
        QVERIFY(label->isVisible());
}

void tst_QUxVecControl::shouldShowLabelSet_data()
{
    QTest::addColumn<int>("label");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<bool>("shown");
    QTest::newRow("NONE") << int(QUxVec3Control::NONE) << QStringList{"", "", ""} << false;
    QTest::newRow("XYZ") << int(QUxVec3Control::XYZ) << QStringList{"X", "Y", "Z"} << true;
    QTest::newRow("RGB") << int(QUxVec3Control::RGB) << QStringList{"R", "G", "B"} << true;
    QTest::newRow("UVW") << int(QUxVec3Control::UVW) << QStringList{"U", "V", "W"} << true;
    QTest::newRow("SHEAR") << int(QUxVec3Control::SHEAR) << QStringList{"XY", "XZ", "YZ"} << true;
}

void tst_QUxVecControl::shouldShowLabelSet()
{
    QFETCH(int, label);
    QFETCH(QStringList, texts);
    QFETCH(bool, shown);
    QUxVec3Control control;
    control.show();
    control.setLabel(QUxVec3Control::VectorLabel(label));
    QCOMPARE(int(control.getLabel()), label);
    QCOMPARE(control.property("vecLabel").toInt(), label);
    const QList<QLabel*> labels = labelsOf(&control);
    for (int axis = 0; axis < 3; ++axis) {
        QLabel* atRow = nullptr;
        for (QLabel* l : labels)
            if (cellOf(&control, l) == QPoint(0, axis))
                atRow = l;
        QVERIFY(atRow);
        QCOMPARE(atRow->text(), texts[axis]);
        QCOMPARE(atRow->isVisible(), shown);
    }
    // An unknown label set is remembered but changes nothing.
    control.setLabel(QUxVec3Control::VectorLabel(7));
    QCOMPARE(int(control.getLabel()), 7);
    QCOMPARE(labels.first()->isVisible(), shown);
    control.setLabel(QUxVec3Control::VectorLabel(-1));
    QCOMPARE(int(control.getLabel()), -1);
    for (QLabel* l : labels)
        QCOMPARE(l->isVisible(), shown);
    QCOMPARE(labels.first()->text().isEmpty(), !shown);
}

void tst_QUxVecControl::shouldLayOutPerOrientation_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<QList<QPoint>>("labelCells");
    QTest::addColumn<QList<QPoint>>("editorCells");
    // QPoint(column, row)
    QTest::newRow("vertical") << int(QUxVec3Control::VERTICAL) << false << QList<QPoint>{{0, 0}, {0, 1}, {0, 2}}
                              << QList<QPoint>{{1, 0}, {1, 1}, {1, 2}};
    QTest::newRow("horizontal") << int(QUxVec3Control::HORIZONTAL) << false << QList<QPoint>{{0, 0}, {2, 0}, {4, 0}}
                                << QList<QPoint>{{1, 0}, {3, 0}, {5, 0}};
    QTest::newRow("vertical mirrored") << int(QUxVec3Control::VERTICAL) << true << QList<QPoint>{{1, 0}, {1, 1}, {1, 2}}
                                       << QList<QPoint>{{0, 0}, {0, 1}, {0, 2}};
    QTest::newRow("horizontal mirrored") << int(QUxVec3Control::HORIZONTAL) << true
                                         << QList<QPoint>{{1, 0}, {3, 0}, {5, 0}}
                                         << QList<QPoint>{{0, 0}, {2, 0}, {4, 0}};
    QTest::newRow("unknown leaves the grid empty")
        << 9 << false << QList<QPoint>{{-1, -1}, {-1, -1}, {-1, -1}} << QList<QPoint>{{-1, -1}, {-1, -1}, {-1, -1}};
}

void tst_QUxVecControl::shouldLayOutPerOrientation()
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

void tst_QUxVecControl::shouldHideComponentWithItsLabel()
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
}

void tst_QUxVecControl::shouldForwardRelativeEntryWithAxis()
{
    QUxVec3Control control;
    control.show();
    control.setXYZ(1, 1, 1);
    control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    QSignalSpy relative(&control, &QUxVec3Control::relativeOperatorApplied);
    QStringList* log = recordChanges(&control);
    typeInto(control.wheelPrec(2), QStringLiteral("+=2"));
    QCOMPARE(relative.count(), 1);
    QCOMPARE(relative.at(0).at(0).toInt(), 2);
    QCOMPARE(relative.at(0).at(1).value<QUxDoubleSpiner::RelativeOperator>(), QUxDoubleSpiner::RelativeAdd);
    QCOMPARE(relative.at(0).at(2).toDouble(), 2.0);
    QCOMPARE(control.getZ(), 1.0); // the host applies it to its selection
    QCOMPARE(*log, QStringList());
}

void tst_QUxVecControl::shouldHighlightOnlyValidAxis()
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

void tst_QUxVecControl::shouldProxyFocusToLastComponent()
{
    QUxVec3Control control;
    QCOMPARE(control.focusProxy(), static_cast<QWidget*>(control.wheelPrec(2)));
    QCOMPARE(control.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(control.wheelPrec(0)->focusPolicy(), Qt::StrongFocus);
}

void tst_QUxVecControl::shouldDeclareMembersHostsConnectByText_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("access"); // -1: must not exist
    const int signal = QMetaMethod::Signal, slot = QMetaMethod::Slot;
    const int isPublic = QMetaMethod::Public, isPrivate = QMetaMethod::Private;
    QTest::newRow("3: relative signal") << "3" << QByteArray("relativeOperatorApplied(int,RelativeOperator,double)")
                                        << signal << isPublic;
    QTest::newRow("3: changedZ") << "3" << QByteArray("changedZ(double)") << signal << isPublic;
    QTest::newRow("3: setLabel") << "3" << QByteArray("setLabel(VectorLabel)") << slot << isPublic;
    QTest::newRow("3: setOrientation") << "3" << QByteArray("setOrientation(Orientation)") << slot << isPublic;
    QTest::newRow("3: setXYZ") << "3" << QByteArray("setXYZ(double,double,double)") << slot << isPublic;
    QTest::newRow("3: setZVisible") << "3" << QByteArray("setZVisible(bool)") << slot << isPublic;
    QTest::newRow("3: relative to Z") << "3" << QByteArray("appliedRelativeOperatorToZ(RelativeOperator,double)")
                                      << slot << isPrivate;
    QTest::newRow("3: finishedEditing") << "3" << QByteArray("finishedEditing()") << slot << isPrivate;
    QTest::newRow("2: relay Y") << "2" << QByteArray("passSignalSetY(double)") << slot << isPrivate;
    QTest::newRow("2: relative to Y") << "2" << QByteArray("appliedRelativeOperatorToY(RelativeOperator,double)")
                                      << slot << isPrivate;
    QTest::newRow("2: no visibility") << "2" << QByteArray("setXVisible(bool)") << slot << -1;
    QTest::newRow("4: relative to W") << "4" << QByteArray("appliedRelativeOperatorToW(RelativeOperator,double)")
                                      << slot << isPrivate;
    QTest::newRow("4: changedW") << "4" << QByteArray("changedW(double)") << signal << isPublic;
    QTest::newRow("4: no labels") << "4" << QByteArray("setLabel(VectorLabel)") << slot << -1;
}

void tst_QUxVecControl::shouldDeclareMembersHostsConnectByText()
{
    QFETCH(QString, control);
    QFETCH(QByteArray, member);
    QFETCH(int, type);
    QFETCH(int, access);
    const QMetaObject* meta = control == "2"   ? &QUxVec2Control::staticMetaObject
                              : control == "3" ? &QUxVec3Control::staticMetaObject
                                               : &QUxVec4Control::staticMetaObject;
    const int index = meta->indexOfMethod(member.constData());
    if (access < 0) {
        QCOMPARE(index, -1);
        return;
    }
    QVERIFY2(index >= 0, member.constData());
    QCOMPARE(int(meta->method(index).methodType()), type);
    QCOMPARE(int(meta->method(index).access()), access);
}

void tst_QUxVecControl::shouldRelayRelativeEntryToTextConnection()
{
    QUxVec3Control control;
    control.show();
    control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    QSignalSpy relative(&control, SIGNAL(relativeOperatorApplied(int, RelativeOperator, double)));
    QVERIFY(relative.isValid());
    typeInto(control.wheelPrec(1), QStringLiteral("-=4"));
    QCOMPARE(relative.count(), 1);
    QCOMPARE(relative.at(0).at(0).toInt(), 1);
    QCOMPARE(relative.at(0).at(1).value<QUxDoubleSpiner::RelativeOperator>(), QUxDoubleSpiner::RelativeSubtract);
    QCOMPARE(relative.at(0).at(2).toDouble(), 4.0);
}

void tst_QUxVecControl::shouldStayQuietWhileBeingDestroyed()
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

void tst_QUxVecControl::shouldSetBothComponentsOfVec2()
{
    QUxVec2Control control;
    control.show();
    QStringList* log = recordChanges(&control);
    control.setXY(0.5, -2);
    QCOMPARE(*log, (QStringList{"X=0.5", "Y=-2"}));
    typeInto(control.wheelPrec(0), QStringLiteral("3"));
    QCOMPARE(log->last(), QStringLiteral("X=3"));
    QCOMPARE(log->size(), 3);
    control.setLabel(QUxVec2Control::UVW);
    QStringList texts;
    for (QLabel* l : labelsOf(&control))
        texts << l->text();
    texts.sort();
    QCOMPARE(texts, (QStringList{"U", "V"}));
}

void tst_QUxVecControl::shouldHandleFourthComponentOfVec4()
{
    QUxVec4Control control;
    control.show();
    QStringList* log = recordChanges(&control);
    control.setXYZW(1, 2, 3, 4);
    QCOMPARE(*log, (QStringList{"X=1", "Y=2", "Z=3", "W=4"}));
    control.setW(9);
    QCOMPARE(control.getW(), 9.0);
    QCOMPARE(log->last(), QStringLiteral("W=9"));
    control.setWVisible(false);
    QVERIFY(!control.isWVisible());
    QVERIFY(!control.wheelPrec(3)->isVisible());

    control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    control.setWVisible(true);
    QSignalSpy relative(&control, &QUxVec4Control::relativeOperatorApplied);
    typeInto(control.wheelPrec(3), QStringLiteral("*=2"));
    QCOMPARE(relative.count(), 1);
    QCOMPARE(relative.at(0).at(0).toInt(), 3);
    QCOMPARE(relative.at(0).at(1).value<QUxDoubleSpiner::RelativeOperator>(), QUxDoubleSpiner::RelativeMultiply);
    QCOMPARE(control.focusProxy(), static_cast<QWidget*>(control.wheelPrec(3)));
}

QTEST_MAIN(tst_QUxVecControl)
#include "tst_QUxVecControl.moc"
