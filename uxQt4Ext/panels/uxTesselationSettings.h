#pragma once

#include "uxQt4ExtGlobal.h"

#include <QFrame>

#include <memory>
#include <vector>

class uxTesselationSettingsPrivate;

namespace Ui {
class uxTesselationFrame;
}

/**
 * The panel that sets how NURBS surfaces become triangles: chord deviation,
 * normal tolerance, maximum chord length, stitching and its tolerance, a
 * quality preset box that follows the three numbers, and a second page of
 * import options. The panel only holds values; the host reads them and runs
 * the tessellation.
 *
 * The inner widgets keep the object names of the "uxTesselationFrame" form
 * ("_chord_deviation", "_stitching", "_retesselate", ...), so that a host
 * reaches the buttons and check boxes with findChild().
 * @code
 * auto* panel = new uxTesselationSettings(dialog);
 * panel->enableGroups(uxTesselationSettings::QualityGroup | uxTesselationSettings::ImportOptionsGroup);
 * auto* run = panel->findChild<QPushButton*>(QStringLiteral("_retesselate"));
 * connect(run, &QPushButton::clicked, this, [this, panel] {
 *     tessellate(panel->chordDeviation(), panel->normalTolerance(), panel->maxChordLength());
 * });
 * @endcode
 */
class UXQT4EXT_EXPORT uxTesselationSettings : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(double chordDeviation READ chordDeviation WRITE setChordDeviation)
    Q_PROPERTY(double normalTolerance READ normalTolerance WRITE setNormalTolerance)
    Q_PROPERTY(double maxChordLength READ maxChordLength WRITE setMaxChordLength)
    Q_PROPERTY(bool stitchingEnabled READ stitchingEnabled WRITE setStitchingEnabled)
    Q_PROPERTY(double stitchingTolerance READ stitchingTolerance WRITE setStitchingTolerance)
    Q_PROPERTY(int qualityPreset READ qualityPreset)

public:
    /// Bits of the "group" property that the form gives its widgets, for enableGroups().
    enum Group : unsigned int {
        QualityGroup = 0x1,          ///< the three numbers, the preset box and the stitching switch
        PreviousSettingsGroup = 0x2, ///< "Use Previous Settings"
        NodeGroup = 0x4,             ///< the buttons that act on a scene node
        ConvertGroup = 0x8,          ///< "Convert to Convex"
        ImportOptionsGroup = 0x10    ///< the check boxes of the advanced page
    };

    /// Name of the dynamic property that enableGroups() reads.
    static constexpr const char* GroupProperty = "group";
    /// Largest sum of absolute differences at which three values still match a preset.
    static constexpr double PresetTolerance = 0.0001;
    /// Index of "Custom" in the preset box.
    static constexpr int CustomPreset = 4;

    // chord deviation (mm), normal tolerance (degrees), maximum chord length (mm)
    static const std::vector<double> coarse;
    static const std::vector<double> low;
    static const std::vector<double> medium;
    static const std::vector<double> hight;
    /// The four presets in the order of the preset box.
    static const std::vector<std::vector<double>> value_set;

    explicit uxTesselationSettings(QWidget* parent = nullptr);
    ~uxTesselationSettings() override;

    /// Large enough for the taller page without scrolling.
    QSize sizeHint() const override;

    double chordDeviation() const;
    double normalTolerance() const;
    double maxChordLength() const;
    bool stitchingEnabled() const;
    double stitchingTolerance() const;
    /// The preset box's index: 0 to 3 for the presets, CustomPreset for "Custom".
    int qualityPreset() const;

    /// Connects the form's widgets to the panel; the constructor calls it once.
    void setConnections();
    /// Enables every widget whose "group" property shares a bit with @p mask and disables the other grouped ones.
    void enableGroups(unsigned int mask);

public slots:
    // These leave the preset box as it is; NaN is ignored, other values are clamped to the field's range.
    void setChordDeviation(double deviation);
    void setNormalTolerance(double tolerance);
    void setMaxChordLength(double maxChordLength);
    void setStitchingEnabled(bool stitchingEnabled);
    void setStitchingTolerance(double stitchingTolerance);
    /// Selects the preset that the three numbers match, or "Custom".
    void updateQualityPreset();

protected slots:
    void changedQualityPreset(int preset);
    void setStitching(bool on);

protected:
    /// Sets the three numbers from a preset triple without touching the preset box; shorter vectors are ignored.
    void setValues(const std::vector<double>& values);
    /// The preset index that @p values match, or -1.
    int index(const std::vector<double>& values) const;

private:
    std::unique_ptr<Ui::uxTesselationFrame> const ui;
    std::unique_ptr<uxTesselationSettingsPrivate> const d;
};
