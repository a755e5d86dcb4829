#include "uxTesselationSettings.h"

#include "ui_uxTesselationFrame.h"
#include "uxSignalBlocker.h"

#include <QStyle>

#include <cmath>

const std::vector<double> uxTesselationSettings::coarse{1.0, 30.0, 400.0};
const std::vector<double> uxTesselationSettings::low{0.15, 20.0, 300.0};
const std::vector<double> uxTesselationSettings::medium{0.075, 10.0, 200.0};
const std::vector<double> uxTesselationSettings::hight{0.0375, 7.5, 100.0};
const std::vector<std::vector<double>> uxTesselationSettings::value_set{coarse, low, medium, hight};

namespace {

constexpr size_t kPresetValues = 3;
// Room for a page title of the tool box beyond its text height.
constexpr int kTabPadding = 10;

// NaN is no position in a range; infinities clamp like any other value.
void assign(QDoubleSpinBox* field, double value)
{
    if (std::isnan(value))
        return;
    field->setValue(qBound(field->minimum(), value, field->maximum()));
}

void assignQuietly(QDoubleSpinBox* field, double value)
{
    const uxSignalBlocker blocker(field);
    assign(field, value);
}

} // namespace

// Kept so that per-panel state can be added without changing the class layout.
class uxTesselationSettingsPrivate
{
};

uxTesselationSettings::uxTesselationSettings(QWidget* parent)
    : QFrame(parent), ui(std::make_unique<Ui::uxTesselationFrame>()),
      d(std::make_unique<uxTesselationSettingsPrivate>())
{
    ui->setupUi(this);
    setConnections();
    setValues(medium);
}

uxTesselationSettings::~uxTesselationSettings() = default;

QSize uxTesselationSettings::sizeHint() const
{
    // The tool box shows each page in a scroll area, whose hint can fall short of the page.
    QSize pages;
    for (const QWidget* page : {ui->page, ui->page_2})
        pages = pages.expandedTo(page->sizeHint()).expandedTo(page->minimumSizeHint());
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int tabs = ui->_tesselation_settings->count() * (fontMetrics().height() + kTabPadding);
    return QFrame::sizeHint().expandedTo(QSize(pages.width() + bar, pages.height() + tabs));
}

double uxTesselationSettings::chordDeviation() const { return ui->_chord_deviation->value(); }
double uxTesselationSettings::normalTolerance() const { return ui->_normal_tolerance->value(); }
double uxTesselationSettings::maxChordLength() const { return ui->_max_chord_length->value(); }
bool uxTesselationSettings::stitchingEnabled() const { return ui->_stitching->isChecked(); }
double uxTesselationSettings::stitchingTolerance() const { return ui->_stitching_tolerance->value(); }
int uxTesselationSettings::qualityPreset() const { return ui->_tessellation_presets->currentIndex(); }

void uxTesselationSettings::setConnections()
{
    connect(ui->_stitching, SIGNAL(toggled(bool)), this, SLOT(setStitching(bool)), Qt::UniqueConnection);
    connect(ui->_tessellation_presets, SIGNAL(currentIndexChanged(int)), this, SLOT(changedQualityPreset(int)),
            Qt::UniqueConnection);
    for (QObject* field : {ui->_chord_deviation, ui->_normal_tolerance, ui->_max_chord_length})
        connect(field, SIGNAL(valueChanged(double)), this, SLOT(updateQualityPreset()), Qt::UniqueConnection);
}

void uxTesselationSettings::enableGroups(unsigned int mask)
{
    for (QWidget* child : findChildren<QWidget*>()) {
        const QVariant group = child->property(GroupProperty);
        if (group.isValid())
            child->setEnabled((group.toUInt() & mask) != 0);
    }
}

void uxTesselationSettings::setChordDeviation(double deviation) { assignQuietly(ui->_chord_deviation, deviation); }

void uxTesselationSettings::setNormalTolerance(double tolerance) { assignQuietly(ui->_normal_tolerance, tolerance); }

void uxTesselationSettings::setMaxChordLength(double maxChordLength)
{
    assignQuietly(ui->_max_chord_length, maxChordLength);
}

void uxTesselationSettings::setStitchingEnabled(bool stitchingEnabled) { ui->_stitching->setChecked(stitchingEnabled); }

void uxTesselationSettings::setStitchingTolerance(double stitchingTolerance)
{
    assignQuietly(ui->_stitching_tolerance, stitchingTolerance);
}

void uxTesselationSettings::updateQualityPreset()
{
    int preset = index({chordDeviation(), normalTolerance(), maxChordLength()});
    if (preset < 0)
        preset = CustomPreset;
    if (preset == ui->_tessellation_presets->currentIndex())
        return;
    const uxSignalBlocker blocker(ui->_tessellation_presets);
    ui->_tessellation_presets->setCurrentIndex(preset);
}

void uxTesselationSettings::changedQualityPreset(int preset)
{
    if (preset >= 0 && preset < static_cast<int>(value_set.size()))
        setValues(value_set[static_cast<size_t>(preset)]);
}

void uxTesselationSettings::setStitching(bool on)
{
    ui->_stitching_tolerance->setEnabled(on);
    ui->_stitching_tolerance_label->setEnabled(on);
}

void uxTesselationSettings::setValues(const std::vector<double>& values)
{
    if (values.size() < kPresetValues)
        return;
    const uxSignalBlocker blocker{ui->_chord_deviation, ui->_normal_tolerance, ui->_max_chord_length};
    assign(ui->_chord_deviation, values[0]);
    assign(ui->_normal_tolerance, values[1]);
    assign(ui->_max_chord_length, values[2]);
}

int uxTesselationSettings::index(const std::vector<double>& values) const
{
    if (values.size() < kPresetValues)
        return -1;
    for (size_t i = 0; i < value_set.size(); ++i) {
        double distance = 0.0;
        for (size_t k = 0; k < kPresetValues; ++k)
            distance += std::abs(values[k] - value_set[i][k]);
        // NaN compares false, so a NaN triple matches nothing.
        if (distance < PresetTolerance)
            return static_cast<int>(i);
    }
    return -1;
}
