#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>

class QIcon;
class QUxTextureControlsPrivate;

/**
 * The settings of one texture slot of a material: the texture file and its
 * actions, image sequences, transparency, repeat modes, the UV repeat, offset
 * and rotation, sampling, and the projection (UV, planar or triplanar).
 *
 * Every user edit is reported through a changed...(), clicked...(),
 * toggled...() or pressed...() signal. The setters update the controls
 * without echoing a signal, except setUseAlpha(), setUseCutout(),
 * setUseRealWorldScale(), setConnectRepeatModes(), setProjectionType() and
 * setTextureEdited(), which report the value they set.
 * @code
 * auto* texture = new QUxTextureControls(materialEditor);
 * texture->setShowImageSequenceControls(false);
 * texture->setTexture(slot.path());
 * texture->setTextureRepeatU(4.0);
 * connect(texture, &QUxTextureControls::changedTextureRepeatU, &slot, &TextureSlot::setRepeatU);
 * connect(texture, &QUxTextureControls::clickedLoadTexture, &slot, &TextureSlot::browse);
 * @endcode
 * Check-box states travel as 0 or 1 in the int-typed signals.
 */
class UXQT4EXT_EXPORT QUxTextureControls : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString texture READ getTexture WRITE setTexture)
    Q_PROPERTY(bool useTexture READ getUseTexture WRITE setUseTexture)
    Q_PROPERTY(bool internal READ isInternal WRITE setInternal)
    Q_PROPERTY(int projectionType READ projectionType WRITE setProjectionType NOTIFY changedProjectionType)

public:
    /// The values of the repeat mode boxes.
    enum RepeatMode : int { Repeat = 0, Mirrored = 1, Decal = 2, Clamp = 3 };
    Q_ENUM(RepeatMode)
    /// The values of the mapping type box; 3 is a projection without a box entry.
    enum ProjectionType : int { UV = 0, Planar = 1, Triplanar = 2 };
    Q_ENUM(ProjectionType)

    explicit QUxTextureControls(QWidget* parent = nullptr);
    ~QUxTextureControls() override;

    QString getTexture() const;
    bool getUseTexture() const;
    bool isInternal() const;
    bool getUseImageSequence() const;
    int getFrameOffset() const;
    bool getInlineImageSequence() const;
    bool getUseAlpha() const;
    bool getUseCutout() const;
    bool getLinkTextureSettings() const;
    bool getConnectRepeatModes() const;
    bool getUseRealWorldScale() const;
    int getRepeatModeU() const;
    int getRepeatModeV() const;
    double getTextureRepeatU() const;
    double getTextureRepeatV() const;
    double getTextureOffsetU() const;
    double getTextureOffsetV() const;
    double getTextureRotate() const;
    double getAnisotropy() const;
    double getGamma() const;
    bool getUseICCProfile() const;
    /// The last type given to setProjectionType() or chosen in the box.
    int projectionType() const;

    bool getShowUseTextureControls() const;
    bool getShowTextureFileControls() const;
    bool getShowImageSequenceControls() const;
    bool getShowAlphaControls() const;
    bool getShowCutoutControls() const;
    bool getShowLinkTextureSettingsControls() const;
    bool getShowRealWorldScaleControls() const;
    bool getShowRepeatModeControls() const;
    bool getShowAllRepeatModes() const;
    bool getShowRepeatControls() const;
    bool getShowOffsetControls() const;
    bool getShowRotateControls() const;
    bool getShowAnisotropicControls() const;
    bool getShowGammaControls() const;
    bool getShowProjectionModeControls() const;

    void setLoadTextureIcon(const QIcon& icon);
    void setReloadTextureIcon(const QIcon& icon);
    void setSaveTextureIcon(const QIcon& icon);
    void setClearTextureIcon(const QIcon& icon);
    void setShowTextureInfoIcon(const QIcon& icon);

public slots:
    void setTexture(const QString& path);
    /// Takes the file field's text as the texture and emits changedTexture().
    void setTextureEdited();
    /// Every other group is enabled only while the texture is used.
    void setUseTexture(bool use);
    /// An internal texture has no file of its own: its path cannot be edited or reloaded.
    void setInternal(bool internal);
    void setUseImageSequence(bool use);
    void setFrameOffset(int offset);
    void setInlineImageSequence(bool inlined);
    /// Emits changedUseAlpha().
    void setUseAlpha(bool use);
    /// Emits changedUseCutout().
    void setUseCutout(bool use);
    void setLinkTextureSettings(bool link);
    /// Linked, V follows U and cannot be edited; emits changedConnectRepeatModes().
    void setConnectRepeatModes(bool connected);
    /// Repeat values in scene units with 2 decimals, or plain factors with 6; emits changedUseRealWorldScale().
    void setUseRealWorldScale(bool use);
    /// A value without an entry in the box is ignored.
    void setRepeatModeU(int mode);
    void setRepeatModeV(int mode);
    void setTextureRepeatU(double value);
    void setTextureRepeatV(double value);
    void setTextureOffsetU(double value);
    void setTextureOffsetV(double value);
    void setTextureRotate(double value);
    void setAnisotropy(double value);
    void setGamma(double value);
    void setUseICCProfile(bool use);
    /// Emits changedProjectionType(@p type) even when the box has no entry for it.
    void setProjectionType(int type);
    void setPlanarProjectionCenter(double x, double y, double z);
    void setPlanarProjectionRotation(double phi, double theta);
    void setPlanarProjectionScaleX(double value);
    void setPlanarProjectionScaleY(double value);
    void setPlanarProjectionScaleZ(double value);
    void setPlanarProjectionKeepAspectRatio(bool keep);
    void setPlanarProjectionSingleSided(bool singleSided);
    void setManipulatePlanarProjection(bool on);
    void setManipulateTriplanarProjection(bool on);
    void setTriplanarTextureSize(double u, double v);
    void setTriplanarEdgeBlend(double value);
    void setTriplanarTextureRepeatU(double x, double y, double z);
    void setTriplanarTextureRepeatV(double x, double y, double z);
    void setTriplanarTextureOffsetU(double x, double y, double z);
    void setTriplanarTextureOffsetV(double x, double y, double z);
    void setTriplanarTextureRotation(double x, double y, double z);

    void setShowUseTextureControls(bool show);
    void setShowTextureFileControls(bool show);
    void setShowImageSequenceControls(bool show);
    void setShowAlphaControls(bool show);
    void setShowCutoutControls(bool show);
    void setShowLinkTextureSettingsControls(bool show);
    void setShowRealWorldScaleControls(bool show);
    void setShowRepeatModeControls(bool show);
    /// Without all modes the boxes offer "Repeat" and "Mirrored" only.
    void setShowAllRepeatModes(bool show);
    void setShowRepeatControls(bool show);
    void setShowOffsetControls(bool show);
    void setShowRotateControls(bool show);
    void setShowAnisotropicControls(bool show);
    void setShowGammaControls(bool show);
    void setShowProjectionModeControls(bool show);

    void loadTexture();
    void reloadTexture();
    void writeTexture();
    void clearTexture();
    void showTextureInfo();
    /// Shows a dropped file and reports it through changedTextureFile(); ignored for an internal texture.
    void droppedFile(const QString& path);

signals:
    void changedTexture();
    void changedTextureFile(const QString& path);
    void changedUseTexture(bool use);
    void changedUseImageSequence(bool use);
    void changedFrameOffset(int offset);
    void changedInlineImageSequence(bool inlined);
    void changedUseAlpha(int use);
    void changedUseCutout(int use);
    void changedLinkTextureSettings(int link);
    void changedUseRealWorldScale(int use);
    void changedRepeatModeU(int mode);
    void changedRepeatModeV(int mode);
    void changedConnectRepeatModes(bool connected);
    void changedTextureRepeatU(double value);
    void changedTextureRepeatV(double value);
    void changedTextureOffsetU(double value);
    void changedTextureOffsetV(double value);
    void changedTextureRotate(double value);
    void changedAnisotropy(double value);
    void changedGamma(double value);
    void changedUseICCProfile(bool use);
    void changedProjectionType(int type);
    void changedPlanarProjectionCenter(double x, double y, double z);
    void changedPlanarProjectionRotation(double phi, double theta);
    void changedPlanarProjectionScaleX(double value);
    void changedPlanarProjectionScaleY(double value);
    void changedPlanarProjectionScaleZ(double value);
    void changedTriplanarTextureSize(double u, double v);
    void changedTriplanarEdgeBlend(double value);
    void changedTriplanarTextureRepeatU(double x, double y, double z);
    void changedTriplanarTextureRepeatV(double x, double y, double z);
    void changedTriplanarTextureOffsetU(double x, double y, double z);
    void changedTriplanarTextureOffsetV(double x, double y, double z);
    void changedTriplanarTextureRotation(double x, double y, double z);
    void clickedLoadTexture();
    void clickedReloadTexture();
    void clickedWriteTexture();
    void clickedClearTexture();
    void clickedShowTextureInfo();
    void clickedFitPlanarProjection();
    void clickedCenterPlanarProjection();
    void toggledManipulatePlanarProjection(bool on);
    void toggledManipulateTriplanarProjection(bool on);
    void toggledPlanarProjectionKeepAspectRatio(bool keep);
    void toggledPlanarProjectionSingleSided(bool singleSided);
    /// The projection depth became limited (size Z not 0) or infinite (size Z 0).
    void toggledPlanarProjectionClampZ(bool clamped);
    void pressedTextureRepeat();
    void pressedTextureOffset();
    void pressedTextureRotate();
    void pressedPlanarProjectionCenter();
    void pressedPlanarProjectionRotation();
    void pressedPlanarProjectionScale();
    /// Hands the panel's "multiselect" style property on to its value fields.
    void propagateMultiselectProperty();

private slots:
    void setPlanarProjectionCenterX(double value);
    void setPlanarProjectionCenterY(double value);
    void setPlanarProjectionCenterZ(double value);
    void setPlanarProjectionRotationPhi(double value);
    void setPlanarProjectionRotationTheta(double value);
    void setPlanarProjectionScaleX_p(double value);
    void setPlanarProjectionScaleY_p(double value);
    void setPlanarProjectionScaleZ_p(double value);
    void setTriplanarTextureSizeU(double value);
    void setTriplanarTextureSizeV(double value);
    void setTriplanarTextureRepeatU_X(double value);
    void setTriplanarTextureRepeatU_Y(double value);
    void setTriplanarTextureRepeatU_Z(double value);
    void setTriplanarTextureRepeatV_X(double value);
    void setTriplanarTextureRepeatV_Y(double value);
    void setTriplanarTextureRepeatV_Z(double value);
    void setTriplanarTextureOffsetU_X(double value);
    void setTriplanarTextureOffsetU_Y(double value);
    void setTriplanarTextureOffsetU_Z(double value);
    void setTriplanarTextureOffsetV_X(double value);
    void setTriplanarTextureOffsetV_Y(double value);
    void setTriplanarTextureOffsetV_Z(double value);
    void setTriplanarTextureRotationX(double value);
    void setTriplanarTextureRotationY(double value);
    void setTriplanarTextureRotationZ(double value);

private:
    void connectControls();
    void connectProjectionControls();
    void connectTriplanarControls();
    void editedRepeatModeU(int index);
    void editedRepeatModeV(int index);
    void editedUniformRepeat(bool uniform);
    void editedTriplanarRepeat(int axis, int component, double value);
    void applyMultiselectProperty();

    std::unique_ptr<QUxTextureControlsPrivate> const d;
};
