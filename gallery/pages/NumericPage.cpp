#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxDoubleSpiner.h>
#include <QUxIntegerSlider.h>
#include <QUxSlider.h>
#include <QUxSliderSwitch.h>
#include <QUxSpiner.h>
#include <QUxWheel.h>
#include <QUxWheelPrec.h>
#include <uxUIUtils.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

#include <array>

namespace {

QString number(double v) { return QString::number(v, 'g', 8); }

QString operatorText(QUxDoubleSpiner::RelativeOperator op)
{
    switch (op) {
    case QUxDoubleSpiner::RelativeAdd:
        return QStringLiteral("+=");
    case QUxDoubleSpiner::RelativeSubtract:
        return QStringLiteral("-=");
    case QUxDoubleSpiner::RelativeMultiply:
        return QStringLiteral("*=");
    case QUxDoubleSpiner::RelativeDivide:
        return QStringLiteral("/=");
    case QUxDoubleSpiner::RelativeSet:
        return QStringLiteral("=");
    case QUxDoubleSpiner::NoRelativeOperator:
        break;
    }
    return QStringLiteral("none");
}

QLabel* hint(const QString& text, QWidget* parent, bool wrap = false)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(wrap);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Disabled, QPalette::WindowText));
    label->setPalette(palette);
    return label;
}

/// A label | field | note grid, installed on @p owner when given.
QGridLayout* formGrid(QWidget* owner = nullptr)
{
    auto* grid = owner ? new QGridLayout(owner) : new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    return grid;
}

void addRow(QGridLayout* grid, const QString& label, QWidget* field, QWidget* note = nullptr)
{
    const int row = grid->rowCount();
    auto* title = new QLabel(label, field->parentWidget());
    title->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(title, row, 0);
    grid->addWidget(field, row, 1, 1, note ? 1 : 2);
    if (note)
        grid->addWidget(note, row, 2);
}

class NumericPage : public QWidget
{
public:
    NumericPage()
    {
        m_log = new GalleryLog(this);

        auto* columns = new QHBoxLayout(this);
        columns->setSpacing(12);
        auto* left = new QVBoxLayout;
        left->setSpacing(12);
        left->addWidget(buildFields());
        left->addWidget(buildSliders());
        left->addWidget(buildSwitches());
        left->addStretch(1);
        auto* right = new QVBoxLayout;
        right->setSpacing(12);
        right->addWidget(buildWheels());
        auto* logBox = new QGroupBox(tr("Signals"), this);
        auto* logLayout = new QVBoxLayout(logBox);
        logLayout->addWidget(m_log);
        right->addWidget(logBox, 1);
        columns->addLayout(left, 3);
        columns->addLayout(right, 2);
    }

private:
    void log(const QObject* sender, const QString& signal)
    {
        m_log->log(QStringLiteral("%1.%2").arg(sender->objectName(), signal));
    }

    void logValue(const QObject* sender, const char* signal, double value)
    {
        log(sender, QStringLiteral("%1(%2)").arg(QLatin1String(signal), number(value)));
    }

    QWidget* buildFields()
    {
        auto* box = new QGroupBox(tr("Expression fields"), this);
        auto* grid = formGrid(box);

        auto* unit = new QComboBox(box);
        unit->addItem(tr("Millimetres (mm)"), 1.0);
        unit->addItem(tr("Centimetres (cm)"), 10.0);
        unit->addItem(tr("Metres (m)"), 1000.0);
        unit->setCurrentIndex(qMax(0, unit->findData(double(uxUIUtils::getSceneUnitScale()))));
        connect(unit, qOverload<int>(&QComboBox::currentIndexChanged), this, [this, unit] {
            uxUIUtils::setSceneUnitScale(float(unit->currentData().toDouble()));
            QUxDoubleSpiner::updateInstancesWithSceneUnit();
            QUxSpiner::updateInstancesWithSceneUnit();
            m_log->log(QStringLiteral("scene unit \"%1\"").arg(uxUIUtils::getSceneUnitString()));
        });
        addRow(grid, tr("Scene unit"), unit, hint(tr("every field follows"), box));

        auto* length = new QUxDoubleSpiner(box);
        length->setObjectName(QStringLiteral("length"));
        length->setRange(0.0, 100000.0);
        length->setValue(250.0);
        length->setDisplaySceneUnit(true);
        connectDoubleSpiner(length);
        addRow(grid, tr("Length"), length, hint(tr("try 2*(3+4) or +=5"), box));

        // Starts with an unfinished entry, typed as a user would, so the mark shows at once.
        auto* unfinished = new QUxDoubleSpiner(box);
        unfinished->setObjectName(QStringLiteral("unfinished"));
        unfinished->setInputFeedbackDelay(0);
        unfinished->selectAll();
        for (const QChar c : QStringLiteral("2*(")) {
            QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QCoreApplication::sendEvent(unfinished, &key);
        }
        unfinished->setInputFeedbackDelay(800);
        addRow(grid, tr("Unfinished entry"), unfinished, hint(tr("marked until it reads as a number"), box));

        auto* offset = new QUxDoubleSpiner(box);
        offset->setObjectName(QStringLiteral("offset"));
        offset->setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        offset->setDisplaySceneUnit(true);
        connectDoubleSpiner(offset);
        auto* selection = new QLabel(box);
        const auto showSelection = [this, selection] {
            selection->setText(tr("Selection: %1, %2, %3")
                                   .arg(number(m_selection[0]), number(m_selection[1]), number(m_selection[2])));
        };
        connect(offset, &QUxDoubleSpiner::relativeOperatorApplied, this,
                [this, showSelection](QUxDoubleSpiner::RelativeOperator op, double operand) {
                    for (double& value : m_selection)
                        value = QUxDoubleSpiner::applyRelativeOperator(value, op, operand);
                    showSelection();
                });
        showSelection();
        addRow(grid, tr("Move selection"), offset, selection);

        auto* count = new QUxSpiner(box);
        count->setObjectName(QStringLiteral("count"));
        count->setRange(0, 500);
        count->setValue(12);
        connect(count, qOverload<int>(&QSpinBox::valueChanged), this,
                [this, count](int v) { logValue(count, "valueChanged", v); });
        connect(count, &QUxSpiner::singleStepChanged, this,
                [this, count](int step) { logValue(count, "singleStepChanged", step); });
        addRow(grid, tr("Copies"), count, hint(tr("integer field"), box));

        auto* decimals = new QSpinBox(box);
        decimals->setRange(0, 10);
        decimals->setValue(length->displayDecimals());
        auto* exact = new QCheckBox(tr("Exactly this many"), box);
        auto* precision = new QWidget(box);
        auto* precisionLayout = new QHBoxLayout(precision);
        precisionLayout->setContentsMargins(0, 0, 0, 0);
        precisionLayout->addWidget(decimals);
        precisionLayout->addWidget(exact);
        precisionLayout->addStretch(1);
        for (QUxDoubleSpiner* field : {length, offset}) {
            connect(decimals, qOverload<int>(&QSpinBox::valueChanged), field, &QUxDoubleSpiner::setDisplayDecimals);
            connect(exact, &QCheckBox::toggled, field, &QUxDoubleSpiner::setUseExactDisplayDecimals);
        }
        addRow(grid, tr("Decimals shown"), precision);

        grid->addWidget(hint(tr("Right-click a field to set its step size. Drag with the middle mouse button to "
                                "scrub the value, one step per pixel."),
                             box, true),
                        grid->rowCount(), 0, 1, 3);
        return box;
    }

    void connectDoubleSpiner(QUxDoubleSpiner* field)
    {
        connect(field, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                [this, field](double v) { logValue(field, "valueChanged", v); });
        connect(field, &QUxDoubleSpiner::singleStepChanged, this,
                [this, field](double step) { logValue(field, "singleStepChanged", step); });
        connect(field, &QUxDoubleSpiner::relativeOperatorApplied, this,
                [this, field](QUxDoubleSpiner::RelativeOperator op, double operand) {
                    log(field,
                        QStringLiteral("relativeOperatorApplied(%1, %2)").arg(operatorText(op), number(operand)));
                });
    }

    QWidget* buildSliders()
    {
        auto* box = new QGroupBox(tr("Sliders"), this);
        auto* grid = formGrid(box);

        auto* opacity = new QUxSlider(0.0, 1.0, 0.05, 0.8, Qt::Horizontal, box, "opacity");
        opacity->setHardRange(0.0, 1.0);
        connectSlider(opacity);
        addRow(grid, tr("Opacity"), opacity, hint(tr("steps of 0.05"), box));

        auto* exposure = new QUxSlider(-2.0, 2.0, 0.1, 0.0, Qt::Horizontal, box, "exposure");
        exposure->setHardRange(-10.0, 10.0);
        connectSlider(exposure);
        addRow(grid, tr("Exposure (EV)"), exposure, hint(tr("type up to ±10"), box));

        auto* roughness = new QUxSlider(0.0, 1.0, 0.01, 0.35, Qt::Horizontal, box, "roughness");
        roughness->setHardRange(0.0, 1.0);
        roughness->setSliderPos(QUxSlider::Right);
        connectSlider(roughness);
        addRow(grid, tr("Roughness"), roughness, hint(tr("field first"), box));

        auto* samples = new QUxIntegerSlider(box, "samples");
        samples->setMinimum(1);
        samples->setMaximum(64);
        samples->setHardMaximum(4096);
        samples->setValue(16);
        connectIntegerSlider(samples);
        addRow(grid, tr("Samples"), samples, hint(tr("type up to 4096"), box));

        auto* threads = new QUxIntegerSlider(box, "threads");
        threads->setMinimum(1);
        threads->setMaximum(8);
        threads->setValue(4);
        threads->setPrefix(tr("use"));
        threads->setSpecialSuffix(tr("of 8"));
        threads->setPageStep(1);
        threads->setTicks(QUxIntegerSlider::TicksBelow);
        connectIntegerSlider(threads);
        addRow(grid, tr("Threads"), threads, hint(tr("prefix, special suffix"), box));

        auto* quality = new QUxIntegerSlider(box, "quality");
        quality->setMaximum(100);
        quality->setStep(5);
        quality->setPageStep(25);
        quality->setValue(75);
        quality->setSuffix(tr("%"));
        connectIntegerSlider(quality);
        addRow(grid, tr("Quality"), quality, hint(tr("steps of 5"), box));
        return box;
    }

    void connectSlider(QUxSlider* slider)
    {
        connect(slider, &QUxSlider::valueChanged, this,
                [this, slider](double v) { logValue(slider, "valueChanged", v); });
        connect(slider, &QUxSlider::sliderPressed, this,
                [this, slider] { log(slider, QStringLiteral("sliderPressed()")); });
        connect(slider, &QUxSlider::sliderReleased, this,
                [this, slider] { log(slider, QStringLiteral("sliderReleased()")); });
        connect(slider, &QUxSlider::changedReturn, this,
                [this, slider] { log(slider, QStringLiteral("changedReturn()")); });
    }

    void connectIntegerSlider(QUxIntegerSlider* slider)
    {
        connect(slider, &QUxIntegerSlider::valueChanged, this,
                [this, slider](int v) { logValue(slider, "valueChanged", v); });
    }

    QWidget* buildSwitches()
    {
        auto* box = new QGroupBox(tr("Switches"), this);
        auto* row = new QHBoxLayout(box);
        row->setSpacing(8);
        const struct
        {
            const char* name;
            QString label;
            bool on;
            bool enabled;
        } switches[] = {{"shadows", tr("Shadows"), true, true},
                        {"reflections", tr("Reflections"), false, true},
                        {"caustics", tr("Caustics (locked on)"), true, false}};
        for (const auto& entry : switches) {
            auto* sw = new QUxSliderSwitch(box);
            sw->setObjectName(QLatin1String(entry.name));
            sw->setOn(entry.on);
            sw->setEnabled(entry.enabled);
            connect(sw, &QUxSliderSwitch::toggled, this,
                    [this, sw](bool on) { log(sw, QStringLiteral("toggled(%1)").arg(on ? "true" : "false")); });
            auto* label = new QLabel(entry.label, box);
            label->setEnabled(entry.enabled);
            row->addWidget(sw);
            row->addWidget(label);
            row->addSpacing(16);
        }
        row->addStretch(1);
        return box;
    }

    QWidget* buildWheels()
    {
        auto* box = new QGroupBox(tr("Jog wheels"), this);
        auto* layout = new QVBoxLayout(box);
        layout->setSpacing(12);

        auto* grid = formGrid();
        auto* yaw = new QUxWheel(box);
        yaw->setObjectName(QStringLiteral("yaw"));
        yaw->setRange(0.0, 360.0);
        yaw->setWrapsAround(true);
        yaw->setSingleStep(0.5);
        yaw->setValue(90.0);
        auto* yawValue = new QLabel(QStringLiteral("90.0°"), box);
        yawValue->setMinimumWidth(50);
        yawValue->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        connect(yaw, &QUxWheel::valueChanged, this, [this, yaw, yawValue](double v) {
            yawValue->setText(QStringLiteral("%1°").arg(v, 0, 'f', 1));
            logValue(yaw, "valueChanged", v);
        });
        addRow(grid, tr("Yaw"), yaw, yawValue);

        auto* height = new QUxWheelPrec(box);
        height->setObjectName(QStringLiteral("height"));
        height->setRange(0.0, 10000.0);
        height->setSingleStep(0.5);
        height->setValue(1200.0);
        height->spiner()->setDisplaySceneUnit(true);
        connect(height, &QUxWheelPrec::valueChanged, this,
                [this, height](double v) { logValue(height, "valueChanged", v); });
        addRow(grid, tr("Height"), height);

        auto* nudge = new QUxWheelPrec(box);
        nudge->setObjectName(QStringLiteral("nudge"));
        nudge->setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        nudge->setSingleStep(0.1);
        nudge->spiner()->setDisplaySceneUnit(true);
        connect(nudge, &QUxWheelPrec::relativeOperatorApplied, this,
                [this, nudge](QUxDoubleSpiner::RelativeOperator op, double operand) {
                    log(nudge,
                        QStringLiteral("relativeOperatorApplied(%1, %2)").arg(operatorText(op), number(operand)));
                });
        addRow(grid, tr("Nudge"), nudge);
        layout->addLayout(grid);

        layout->addLayout(buildVerticalWheels(box));
        layout->addWidget(hint(tr("Drag a wheel or turn the mouse wheel over it. Nudge and Dolly only report "
                                  "their steps, for moving many objects at once."),
                               box, true));
        return box;
    }

    QGridLayout* buildVerticalWheels(QWidget* parent)
    {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(12);
        grid->setVerticalSpacing(6);

        auto* zoom = new QUxWheel(0, 0, 10, 100, Qt::Vertical, parent);
        zoom->setObjectName(QStringLiteral("zoom"));
        zoom->setRange(10.0, 400.0);
        zoom->setFixedHeight(110);
        auto* zoomField = new QUxWheelPrec(parent);
        zoomField->setObjectName(QStringLiteral("zoomField"));
        zoomField->setRange(10.0, 400.0);
        zoomField->setSuffix(tr("%"));
        zoomField->setValue(zoom->value());
        connect(zoom, &QUxWheel::valueChanged, this, [this, zoom, zoomField](double v) {
            zoomField->setValue(v);
            logValue(zoom, "valueChanged", v);
        });
        connect(zoomField, &QUxWheelPrec::valueChanged, zoom, &QUxWheel::updateValue);

        auto* dolly = new QUxWheel(0, 0, 10, 0, Qt::Vertical, parent);
        dolly->setObjectName(QStringLiteral("dolly"));
        dolly->setIgnoreRange(true);
        dolly->setEmitRelativeValue(true);
        dolly->setSingleStep(0.25);
        dolly->setFixedHeight(110);
        auto* travelled = new QLabel(tr("moved %1").arg(number(m_dolly)), parent);
        connect(dolly, &QUxWheel::valueAdded, this, [this, dolly, travelled](double increment) {
            m_dolly += increment;
            travelled->setText(tr("moved %1").arg(number(m_dolly)));
            logValue(dolly, "valueAdded", increment);
        });

        grid->addWidget(zoom, 0, 0, 3, 1);
        grid->addWidget(new QLabel(tr("Zoom"), parent), 0, 1);
        grid->addWidget(zoomField, 1, 1);
        grid->addWidget(dolly, 0, 2, 3, 1);
        grid->addWidget(new QLabel(tr("Dolly"), parent), 0, 3);
        grid->addWidget(travelled, 1, 3);
        grid->setColumnStretch(1, 3);
        grid->setColumnStretch(3, 2);
        grid->setRowStretch(2, 1);
        return grid;
    }

    GalleryLog* m_log = nullptr;
    std::array<double, 3> m_selection{{10.0, 25.0, 40.0}};
    double m_dolly = 0.0;
};

} // namespace

UX_GALLERY_PAGE(20, "Numeric", "numeric", [] { return new NumericPage; });
