#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxIntVector2DSpiner.h>
#include <QUxVec2Control.h>
#include <QUxVec3Control.h>
#include <QUxVec3SliderControl.h>
#include <QUxWheelPrec.h>

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>

namespace {

/// Three objects whose positions one vector control edits at once.
class SelectionDemo : public QGroupBox
{
public:
    explicit SelectionDemo(GalleryLog* log, QWidget* parent) : QGroupBox(tr("Multi-selection"), parent), m_log(log)
    {
        auto* layout = new QHBoxLayout(this);
        auto* left = new QVBoxLayout;
        auto* hint = new QLabel(tr("Type +=2, *=0.5 or 7 into a field: every selected object follows. "
                                   "Components whose values differ are marked."),
                                this);
        hint->setWordWrap(true);
        m_control = new QUxVec3Control(this);
        m_control->setLabel(QUxVec3Control::XYZ);
        m_control->setSuffix(QStringLiteral(" mm"));
        m_control->setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        left->addWidget(hint);
        left->addWidget(m_control);
        left->addStretch(1);

        m_table = new QTableWidget(3, 3, this);
        m_table->setHorizontalHeaderLabels({QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")});
        m_table->setVerticalHeaderLabels({tr("Bolt"), tr("Washer"), tr("Nut")});
        m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
        m_table->setMinimumWidth(260);
        layout->addLayout(left, 1);
        layout->addWidget(m_table, 1);

        connect(m_control, &QUxVec3Control::relativeOperatorApplied, this,
                [this](int axis, QUxDoubleSpiner::RelativeOperator op, double value) { apply(axis, op, value); });
        refresh();
    }

private:
    void apply(int axis, QUxDoubleSpiner::RelativeOperator op, double operand)
    {
        static const char* const names[] = {"", "+=", "-=", "*=", "/=", "="};
        m_log->log(QStringLiteral("relativeOperatorApplied(axis %1, %2 %3)")
                       .arg(axis)
                       .arg(QLatin1String(names[op]))
                       .arg(operand));
        for (auto& object : m_objects)
            object[size_t(axis)] = QUxDoubleSpiner::applyRelativeOperator(object[size_t(axis)], op, operand);
        refresh();
    }

    void refresh()
    {
        for (int row = 0; row < 3; ++row)
            for (int axis = 0; axis < 3; ++axis)
                m_table->setItem(row, axis, new QTableWidgetItem(fixedNumber(m_objects[size_t(row)][size_t(axis)])));
        const double first[] = {m_objects[0][0], m_objects[0][1], m_objects[0][2]};
        m_control->setXYZ(first[0], first[1], first[2]);
        for (int axis = 0; axis < 3; ++axis) {
            bool mixed = false;
            for (const auto& object : m_objects)
                mixed = mixed || object[size_t(axis)] != first[axis];
            m_control->setMultiSelectHighlight(axis, mixed);
        }
    }

    GalleryLog* m_log;
    QUxVec3Control* m_control = nullptr;
    QTableWidget* m_table = nullptr;
    std::array<std::array<double, 3>, 3> m_objects{{{10, 0, 5}, {10, 2, 5}, {10, 4, 7.5}}};
};

class VectorsPage : public QWidget
{
public:
    VectorsPage()
    {
        m_log = new GalleryLog(this);
        m_log->setMaximumHeight(110);
        auto* grid = new QGridLayout(this);
        grid->addWidget(buildTransform(), 0, 0);
        grid->addWidget(buildOthers(), 0, 1);
        grid->addWidget(buildRows(), 1, 0, 1, 2);
        grid->addWidget(new SelectionDemo(m_log, this), 2, 0, 1, 2);
        grid->addWidget(m_log, 3, 0, 1, 2);
        grid->setColumnStretch(1, 1);
        grid->setRowStretch(4, 1);
    }

private:
    QWidget* buildTransform()
    {
        auto* box = new QGroupBox(tr("Transform (one row per component)"), this);
        auto* form = new QFormLayout(box);
        const std::array<std::pair<QString, QString>, 3> rows{
            {{tr("Translate"), QStringLiteral(" mm")}, {tr("Rotate"), QStringLiteral("°")}, {tr("Scale"), QString()}}};
        for (const auto& row : rows) {
            auto* control = new QUxVec3Control(box);
            control->setLabel(QUxVec3Control::XYZ);
            control->setSuffix(row.second);
            control->setDecimals(3);
            control->setDisplayDecimals(2);
            if (row.first == tr("Scale"))
                control->setXYZ(1, 1, 1);
            watch(control, row.first);
            form->addRow(row.first, control);
        }
        return box;
    }

    QWidget* buildRows()
    {
        auto* box = new QGroupBox(tr("In a row"), this);
        auto* form = new QFormLayout(box);

        auto* shear = new QUxVec3Control(box);
        shear->setLabel(QUxVec3Control::SHEAR);
        shear->setOrientation(QUxVec3Control::HORIZONTAL);
        shear->setWheelVisible(false);
        watch(shear, tr("Shear"));
        form->addRow(tr("Shear"), shear);

        auto* offset = new QUxVec2Control(box);
        offset->setLabel(QUxVec2Control::UVW);
        offset->setOrientation(QUxVec2Control::HORIZONTAL);
        offset->setSingleStep(0.01);
        connect(offset, &QUxVec2Control::changedX, m_log,
                [this](double v) { m_log->log(tr("UV offset: U = %1").arg(v)); });
        connect(offset, &QUxVec2Control::changedY, m_log,
                [this](double v) { m_log->log(tr("UV offset: V = %1").arg(v)); });
        form->addRow(tr("UV offset"), offset);
        return box;
    }

    QWidget* buildOthers()
    {
        auto* box = new QGroupBox(tr("As sliders and integers"), this);
        auto* form = new QFormLayout(box);

        auto* colour = new QUxVec3SliderControl(box);
        colour->setSubLabels({QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")});
        colour->setLineStep(QVector3D(0.01f, 0.01f, 0.01f));
        colour->setDisplayDecimals(QUxIntVector3D(2, 2, 2));
        colour->setValue(QVector3D(0.8f, 0.45f, 0.1f));
        auto* swatch = new QLabel(box);
        swatch->setFixedHeight(18);
        swatch->setAutoFillBackground(true);
        const auto paint = [swatch](const QVector3D& c) {
            QPalette p = swatch->palette();
            p.setColor(QPalette::Window, QColor::fromRgbF(qBound(0.0f, c.x(), 1.0f), qBound(0.0f, c.y(), 1.0f),
                                                          qBound(0.0f, c.z(), 1.0f)));
            swatch->setPalette(p);
        };
        paint(colour->value());
        connect(colour, &QUxVec3SliderControl::changed, swatch, [this, paint](const QVector3D& c) {
            paint(c);
            m_log->log(
                tr("Colour changed(%1, %2, %3)").arg(fixedNumber(c.x()), fixedNumber(c.y()), fixedNumber(c.z())));
        });
        form->addRow(tr("Colour"), colour);
        form->addRow(QString(), swatch);

        auto* resolution = new QUxIntVector2DSpiner(box);
        resolution->setSubLabels({tr("Width"), tr("Height")});
        resolution->setMinimum(QUxIntVector2D(16, 16));
        resolution->setMaximum(QUxIntVector2D(16384, 16384));
        resolution->setStep(QUxIntVector2D(16, 16));
        resolution->setValue(QUxIntVector2D(1920, 1080));
        connect(resolution, &QUxIntVector2DSpiner::changed, m_log, [this](const QUxIntVector2D& v) {
            m_log->log(tr("Resolution changed(%1 x %2)").arg(v.getX()).arg(v.getY()));
        });
        form->addRow(tr("Resolution"), resolution);
        return box;
    }

    void watch(QUxVec3Control* control, const QString& name)
    {
        connect(control, &QUxVec3Control::changedX, m_log,
                [this, name](double v) { m_log->log(name + QStringLiteral(": changedX(%1)").arg(v)); });
        connect(control, &QUxVec3Control::changedY, m_log,
                [this, name](double v) { m_log->log(name + QStringLiteral(": changedY(%1)").arg(v)); });
        connect(control, &QUxVec3Control::changedZ, m_log,
                [this, name](double v) { m_log->log(name + QStringLiteral(": changedZ(%1)").arg(v)); });
        connect(control, &QUxVec3Control::singleStepChanged, m_log,
                [this, name](double s) { m_log->log(name + QStringLiteral(": singleStepChanged(%1)").arg(s)); });
    }

    GalleryLog* m_log = nullptr;
};

} // namespace

UX_GALLERY_PAGE(25, "Vectors", "vectors", [] { return new VectorsPage; });
