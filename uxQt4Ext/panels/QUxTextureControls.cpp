#include "QUxTextureControls.h"

#include "QUxFileDropLineEdit.h"
#include "QUxSlider.h"
#include "QUxVec2Control.h"
#include "QUxVec3Control.h"
#include "QUxWheelPrec.h"
#include "uxChildSignals_p.h"
#include "uxSignalBlocker.h"
#include "uxUIStyle.h"

#include <uxIconManager.h>
#include <uxPlatform.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <cmath>

namespace {

constexpr double kLarge = 1.0e6;
constexpr int kRepeatDecimals = 6;
constexpr int kSceneUnitRepeatDecimals = 2;

// A host may report any factor; a size computed from NaN or a huge one is UB.
int scaled(int pixels, double factor)
{
    return std::isfinite(factor) && factor > 0.0 && factor < 16.0 ? int(pixels * factor) : pixels;
}

} // namespace

class QUxTextureControlsPrivate
{
    Q_DECLARE_TR_FUNCTIONS(QUxTextureControlsPrivate)
public:
    // The groups that setShow...Controls() switch; each owns the widgets of its rows.
    enum Group {
        UseTextureGroup,
        FileGroup,
        ImageSequenceGroup,
        AlphaGroup,
        CutoutGroup,
        LinkGroup,
        RealWorldScaleGroup,
        RepeatModeGroup,
        RepeatGroup,
        OffsetGroup,
        RotateGroup,
        AnisotropyGroup,
        GammaGroup,
        ProjectionModeGroup,
        GroupCount
    };

    explicit QUxTextureControlsPrivate(QUxTextureControls* owner);

    void build();
    void buildGeneral();
    void buildSampling();
    void buildPlanar();
    void buildTriplanar();
    void fillRepeatModes(QComboBox* box);
    void updateEnabled();
    void updateVisible();
    void setShown(Group group, bool show);
    void setDecimalsOfRepeat(bool sceneUnits);
    void selectRepeatMode(QComboBox* box, int mode);

    QCheckBox* check(const QString& text, const char* name, const QString& tip = QString());
    QLabel* label(const QString& text);
    QPushButton* iconButton(const char* name, const QString& accessibleName);
    QToolButton* toggleButton(const QString& text, const char* name);
    template<typename Vector>
    Vector* vector(const char* name, double minimum, double maximum, double step);
    QUxSlider* slider(const char* name, double minimum, double maximum, double step, double value);
    QUxWheelPrec* angle(const char* name);
    void addRow(QGridLayout* grid, Group group, QWidget* first, QWidget* second = nullptr);
    void addRow(QGridLayout* grid, QWidget* first, QWidget* second = nullptr);

    QUxTextureControls* const q;
    const double dpiX;
    const double dpiY;
    bool planar = false;
    bool triplanar = false;
    bool thirdProjection = false;
    int projectionType = QUxTextureControls::UV;
    bool internal = false;
    bool allRepeatModes = true;
    bool clampZ = false;
    std::array<bool, GroupCount> shown;
    std::array<QList<QWidget*>, GroupCount> members;

    QGridLayout* grid = nullptr;
    QCheckBox* useTexture = nullptr;
    QPushButton* loadButton = nullptr;
    QPushButton* reloadButton = nullptr;
    QPushButton* saveButton = nullptr;
    QPushButton* clearButton = nullptr;
    QPushButton* infoButton = nullptr;
    QUxFileDropLineEdit* file = nullptr;
    QCheckBox* useImageSequence = nullptr;
    QSpinBox* frameOffset = nullptr;
    QCheckBox* inlineImageSequence = nullptr;
    QCheckBox* useAlpha = nullptr;
    QCheckBox* useCutout = nullptr;
    QCheckBox* linkTextureSettings = nullptr;
    QCheckBox* useRealWorldScale = nullptr;
    QComboBox* repeatModeU = nullptr;
    QComboBox* repeatModeV = nullptr;
    QToolButton* linkRepeatModes = nullptr;
    QUxVec2Control* repeat = nullptr;
    QUxVec2Control* offset = nullptr;
    QUxWheelPrec* rotate = nullptr;
    QUxSlider* anisotropy = nullptr;
    QUxSlider* gamma = nullptr;
    QCheckBox* useICCProfile = nullptr;
    QComboBox* mappingType = nullptr;
    QToolButton* showProjectionSettings = nullptr;

    QWidget* planarBox = nullptr;
    QUxVec3Control* center = nullptr;
    QUxVec2Control* orientation = nullptr;
    QUxVec3Control* size = nullptr;
    QCheckBox* keepAspectRatio = nullptr;
    QCheckBox* singleSided = nullptr;
    QPushButton* fitSize = nullptr;
    QPushButton* objectCenter = nullptr;
    QToolButton* manipulatePlanar = nullptr;

    QWidget* triplanarBox = nullptr;
    QUxVec2Control* triplanarSize = nullptr;
    QUxSlider* edgeBlend = nullptr;
    QCheckBox* uniformRepeat = nullptr;
    std::array<QUxVec2Control*, 3> triplanarRepeat{};
    std::array<QUxVec2Control*, 3> triplanarOffset{};
    std::array<QUxWheelPrec*, 3> triplanarRotation{};
    QToolButton* manipulateTriplanar = nullptr;
};

QUxTextureControlsPrivate::QUxTextureControlsPrivate(QUxTextureControls* owner)
    : q(owner), dpiX(uxPlatform::getDpiScaleX()), dpiY(uxPlatform::getDpiScaleY())
{
    shown.fill(true);
}

// ---------------------------------------------------------------------------
// Building

QCheckBox* QUxTextureControlsPrivate::check(const QString& text, const char* name, const QString& tip)
{
    auto* box = new QCheckBox(text, q);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(tip);
    return box;
}

QLabel* QUxTextureControlsPrivate::label(const QString& text) { return new QLabel(text, q); }

QPushButton* QUxTextureControlsPrivate::iconButton(const char* name, const QString& accessibleName)
{
    auto* button = new QPushButton(q);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(accessibleName);
    button->setFixedSize(scaled(24, dpiX), scaled(22, dpiY));
    return button;
}

QToolButton* QUxTextureControlsPrivate::toggleButton(const QString& text, const char* name)
{
    auto* button = new QToolButton(q);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setCheckable(true);
    return button;
}

template<typename Vector>
Vector* QUxTextureControlsPrivate::vector(const char* name, double minimum, double maximum, double step)
{
    auto* control = new Vector(q);
    control->setObjectName(QLatin1String(name));
    control->setOrientation(QUxWheelVectorControl::HORIZONTAL);
    control->setDecimals(kRepeatDecimals);
    control->setMinimum(minimum);
    control->setMaximum(maximum);
    control->setSingleStep(step);
    return control;
}

QUxSlider* QUxTextureControlsPrivate::slider(const char* name, double minimum, double maximum, double step,
                                             double value)
{
    auto* control = new QUxSlider(minimum, maximum, step, value, Qt::Horizontal, q, name);
    control->setHardRange(minimum, maximum);
    control->setDecimals(3);
    return control;
}

QUxWheelPrec* QUxTextureControlsPrivate::angle(const char* name)
{
    auto* control = new QUxWheelPrec(q);
    control->setObjectName(QLatin1String(name));
    control->setRange(-360.0, 360.0);
    control->setDecimals(kRepeatDecimals);
    return control;
}

void QUxTextureControlsPrivate::addRow(QGridLayout* layout, QWidget* first, QWidget* second)
{
    const int row = layout->rowCount();
    if (auto* text = qobject_cast<QLabel*>(first); text && second) {
        text->setBuddy(second);
        second->setAccessibleName(text->text());
    }
    if (second) {
        layout->addWidget(first, row, 0);
        layout->addWidget(second, row, 1);
    } else {
        layout->addWidget(first, row, 0, 1, 2);
    }
}

void QUxTextureControlsPrivate::addRow(QGridLayout* layout, Group group, QWidget* first, QWidget* second)
{
    addRow(layout, first, second);
    members[group] << first;
    if (second)
        members[group] << second;
}

void QUxTextureControlsPrivate::build()
{
    auto* column = new QVBoxLayout(q);
    column->setContentsMargins(0, 0, 0, 0);
    grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    column->addLayout(grid);
    buildGeneral();
    buildSampling();
    buildPlanar();
    buildTriplanar();
    column->addWidget(planarBox);
    column->addWidget(triplanarBox);
    column->addStretch(1);
    // The projection settings sit in grids of their own; one label column keeps all fields aligned.
    int labelWidth = 0;
    for (const QLabel* text : q->findChildren<QLabel*>())
        labelWidth = qMax(labelWidth, text->sizeHint().width());
    for (QWidget* box : {planarBox, triplanarBox})
        static_cast<QGridLayout*>(box->layout())->setColumnMinimumWidth(0, labelWidth);
    grid->setColumnMinimumWidth(0, labelWidth);
}

void QUxTextureControlsPrivate::buildGeneral()
{
    useTexture = check(QUxTextureControls::tr("Use Texture"), "useTexture");
    useTexture->setChecked(true);
    addRow(grid, UseTextureGroup, useTexture);

    auto* fileRow = new QWidget(q);
    auto* fileLayout = new QHBoxLayout(fileRow);
    fileLayout->setContentsMargins(0, 0, 0, 0);
    loadButton = iconButton("loadTexture", tr("Load Texture"));
    reloadButton = iconButton("reloadTexture", tr("Reload Texture"));
    saveButton = iconButton("saveTexture", tr("Save Texture"));
    clearButton = iconButton("clearTexture", tr("Clear Texture"));
    infoButton = iconButton("showTextureInfo", tr("Show Texture Info"));
    file = new QUxFileDropLineEdit(fileRow);
    file->setObjectName(QStringLiteral("textureFile"));
    fileLayout->addWidget(file, 1);
    for (QPushButton* button : {loadButton, reloadButton, saveButton, clearButton, infoButton}) {
        button->setParent(fileRow);
        fileLayout->addWidget(button);
    }
    addRow(grid, FileGroup, fileRow);

    useImageSequence = check(tr("Use Image Sequence"), "useImageSequence",
                             tr("Uses an image sequence as a texture.\nThe image name for the sequence will be "
                                "generated based on the filename and the image number.\nUse the CurveEditor to "
                                "animate the image number.\n"));
    addRow(grid, ImageSequenceGroup, useImageSequence);
    auto* frameOffsetLabel = label(tr("Frame Offset"));
    frameOffset = new QSpinBox(q);
    frameOffset->setObjectName(QStringLiteral("frameOffset"));
    frameOffset->setRange(-int(kLarge), int(kLarge));
    frameOffset->setKeyboardTracking(false); // one report per committed number, not per digit
    frameOffset->setToolTip(tr("Sets an offset to the image number when using an image sequence."));
    frameOffsetLabel->setToolTip(frameOffset->toolTip());
    addRow(grid, ImageSequenceGroup, frameOffsetLabel, frameOffset);
    inlineImageSequence =
        check(tr("Inline Image Sequence"), "inlineImageSequence", tr("Inlines the image sequence into the cpb file."));
    addRow(grid, ImageSequenceGroup, inlineImageSequence);

    useAlpha = check(tr("Use Alpha"), "useAlpha");
    addRow(grid, AlphaGroup, useAlpha);
    useCutout = check(tr("Use Cutout Transparency"), "useCutout",
                      tr("Handles the transparency in a binary way.\nThis allows proper sorting in OpenGL\n and some "
                         "performance optimizations in raytracing.\nOpacity values less or equal to 0.5 will be "
                         "handled as fully transparent,\nvalues above 0.5 will be fully opaque.\nThis is useful for "
                         "rendering foliage or grates."));
    addRow(grid, CutoutGroup, useCutout);
    linkTextureSettings = check(tr("Link Texture Settings"), "linkTextureSettings");
    addRow(grid, LinkGroup, linkTextureSettings);
    useRealWorldScale =
        check(tr("Use Texture Size"), "useRealWorldScale",
              tr("Uses the texture size instead of repeat values.\nUV texture coordinates of geometries must "
                 "match\nscene units in order to get real world scaling of the texture.\nUse the UV Editor to "
                 "calculate the real world scaling of UV coordinates."));
    addRow(grid, RealWorldScaleGroup, useRealWorldScale);

    auto* modeRow = new QWidget(q);
    auto* modeLayout = new QHBoxLayout(modeRow);
    modeLayout->setContentsMargins(0, 0, 0, 0);
    repeatModeU = new QComboBox(modeRow);
    repeatModeU->setObjectName(QStringLiteral("repeatModeU"));
    repeatModeV = new QComboBox(modeRow);
    repeatModeV->setObjectName(QStringLiteral("repeatModeV"));
    fillRepeatModes(repeatModeU);
    fillRepeatModes(repeatModeV);
    linkRepeatModes = toggleButton(tr("Link Repeat Modes"), "linkRepeatModes");
    linkRepeatModes->setParent(modeRow);
    linkRepeatModes->setIcon(uxIconManager::get("General/UnlockOffNormal.svg"));
    modeLayout->addWidget(repeatModeU, 1);
    modeLayout->addWidget(linkRepeatModes);
    modeLayout->addWidget(repeatModeV, 1);
    addRow(grid, RepeatModeGroup, label(tr("Repeat Mode UV")), modeRow);

    repeat = vector<QUxVec2Control>("textureRepeat", -kLarge, kLarge, 0.1);
    repeat->setXY(1.0, 1.0);
    addRow(grid, RepeatGroup, label(tr("Repeat UV")), repeat);
    offset = vector<QUxVec2Control>("textureOffset", -kLarge, kLarge, 0.01);
    addRow(grid, OffsetGroup, label(tr("Offset UV")), offset);
    rotate = angle("textureRotate");
    addRow(grid, RotateGroup, label(tr("Rotate")), rotate);
}

void QUxTextureControlsPrivate::buildSampling()
{
    anisotropy = slider("anisotropy", 0.0, 1.0, 0.05, 0.0);
    addRow(grid, AnisotropyGroup, label(tr("Anisotropy")), anisotropy);
    gamma = slider("gamma", 0.0, 4.0, 0.1, 1.0);
    addRow(grid, GammaGroup, label(tr("Input Gamma")), gamma);
    useICCProfile = check(tr("Use ICC Profile"), "useICCProfile");
    addRow(grid, GammaGroup, useICCProfile);

    auto* typeRow = new QWidget(q);
    auto* typeLayout = new QHBoxLayout(typeRow);
    typeLayout->setContentsMargins(0, 0, 0, 0);
    mappingType = new QComboBox(typeRow);
    mappingType->setObjectName(QStringLiteral("mappingType"));
    mappingType->addItem(tr("UV"), int(QUxTextureControls::UV));
    mappingType->addItem(tr("Planar"), int(QUxTextureControls::Planar));
    mappingType->addItem(tr("Triplanar"), int(QUxTextureControls::Triplanar));
    showProjectionSettings = toggleButton(tr("Show Projection Settings"), "showProjectionSettings");
    showProjectionSettings->setParent(typeRow);
    showProjectionSettings->setChecked(true);
    typeLayout->addWidget(mappingType, 1);
    typeLayout->addWidget(showProjectionSettings);
    addRow(grid, ProjectionModeGroup, label(tr("Mapping Type")), typeRow);
}

void QUxTextureControlsPrivate::buildPlanar()
{
    planarBox = new QWidget(q);
    planarBox->setObjectName(QStringLiteral("planarProjection"));
    auto* layout = new QGridLayout(planarBox);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(1, 1);
    center = vector<QUxVec3Control>("projectionCenter", -kLarge, kLarge, 0.1);
    center->setLabel(QUxVec3Control::XYZ);
    addRow(layout, label(tr("Projection Center")), center);
    orientation = vector<QUxVec2Control>("projectionOrientation", -360.0, 360.0, 1.0);
    addRow(layout, label(tr("Projection Orientation")), orientation);
    size = vector<QUxVec3Control>("projectionSize", 0.0, kLarge, 0.1);
    size->setLabel(QUxVec3Control::XYZ);
    size->setXYZ(1.0, 1.0, 0.0);
    auto* sizeLabel = label(tr("Projection Size"));
    size->setToolTip(tr("Values can be used to scale the projection. The 3rd value limits the depth of the "
                        "projection and can be set to 0 for infinite projection depth."));
    sizeLabel->setToolTip(size->toolTip());
    addRow(layout, sizeLabel, size);
    keepAspectRatio = check(tr("Keep Aspect Ratio"), "keepAspectRatio",
                            tr("Automatically adjust size corresponding to original texture aspect ratio."));
    addRow(layout, keepAspectRatio);
    singleSided = check(tr("Consider Face Normal"), "singleSided",
                        tr("Use in Decal mode to restrict the projection to one side of the object."));
    addRow(layout, singleSided);

    auto* buttons = new QHBoxLayout;
    fitSize = new QPushButton(tr("Fit Size"), planarBox);
    fitSize->setObjectName(QStringLiteral("fitSize"));
    fitSize->setToolTip(tr("Adjust the Projection Plane Size to the selected object."));
    objectCenter = new QPushButton(tr("Object Center"), planarBox);
    objectCenter->setObjectName(QStringLiteral("objectCenter"));
    objectCenter->setToolTip(tr("Move the Projection Plane Center to the center of the selected object."));
    manipulatePlanar = toggleButton(tr("Manipulate"), "manipulatePlanar");
    manipulatePlanar->setToolTip(tr("Click to align the texture to a surface."));
    for (QWidget* button : {static_cast<QWidget*>(fitSize), static_cast<QWidget*>(objectCenter),
                            static_cast<QWidget*>(manipulatePlanar)}) {
        button->setParent(planarBox);
        buttons->addWidget(button);
    }
    layout->addLayout(buttons, layout->rowCount(), 0, 1, 2);
}

void QUxTextureControlsPrivate::buildTriplanar()
{
    triplanarBox = new QWidget(q);
    triplanarBox->setObjectName(QStringLiteral("triplanarProjection"));
    auto* layout = new QGridLayout(triplanarBox);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(1, 1);
    const auto adopt = [this](QWidget* w) {
        w->setParent(triplanarBox);
        return w;
    };
    triplanarSize = vector<QUxVec2Control>("triplanarTextureSize", 0.0, kLarge, 0.1);
    triplanarSize->setXY(1.0, 1.0);
    addRow(layout, adopt(label(tr("Texture Size"))), adopt(triplanarSize));
    edgeBlend = slider("edgeBlend", 0.0, 1.0, 0.05, 0.0);
    addRow(layout, adopt(label(tr("Edge Blend"))), adopt(edgeBlend));
    uniformRepeat = check(tr("Uniform Repeat"), "uniformRepeat");
    addRow(layout, adopt(uniformRepeat));

    const QStringList repeatTexts{tr("X Repeat UV"), tr("Y Repeat UV"), tr("Z Repeat UV")};
    const QStringList offsetTexts{tr("X Offset UV"), tr("Y Offset UV"), tr("Z Offset UV")};
    const QStringList rotateTexts{tr("X Rotate"), tr("Y Rotate"), tr("Z Rotate")};
    const char* const axes[] = {"X", "Y", "Z"};
    for (int axis = 0; axis < 3; ++axis) {
        triplanarRepeat[axis] =
            vector<QUxVec2Control>(QByteArray("triplanarRepeat").append(axes[axis]).constData(), -kLarge, kLarge, 0.1);
        triplanarRepeat[axis]->setXY(1.0, 1.0);
        addRow(layout, adopt(label(repeatTexts[axis])), adopt(triplanarRepeat[axis]));
    }
    for (int axis = 0; axis < 3; ++axis) {
        triplanarOffset[axis] =
            vector<QUxVec2Control>(QByteArray("triplanarOffset").append(axes[axis]).constData(), -kLarge, kLarge, 0.01);
        addRow(layout, adopt(label(offsetTexts[axis])), adopt(triplanarOffset[axis]));
    }
    for (int axis = 0; axis < 3; ++axis) {
        triplanarRotation[axis] = angle(QByteArray("triplanarRotate").append(axes[axis]).constData());
        addRow(layout, adopt(label(rotateTexts[axis])), adopt(triplanarRotation[axis]));
    }
    manipulateTriplanar = toggleButton(tr("Manipulate"), "manipulateTriplanar");
    addRow(layout, adopt(manipulateTriplanar));
}

void QUxTextureControlsPrivate::fillRepeatModes(QComboBox* box)
{
    const QVariant current = box->currentData();
    uxSignalBlocker blocker(box);
    box->clear();
    box->addItem(tr("Repeat"), int(QUxTextureControls::Repeat));
    box->addItem(tr("Mirrored"), int(QUxTextureControls::Mirrored));
    if (allRepeatModes) {
        box->addItem(tr("Decal"), int(QUxTextureControls::Decal));
        box->addItem(tr("Clamp"), int(QUxTextureControls::Clamp));
    }
    box->setCurrentIndex(qMax(0, box->findData(current)));
}

// ---------------------------------------------------------------------------
// State to widgets

void QUxTextureControlsPrivate::updateEnabled()
{
    // Computed from the state alone: reading isEnabled() back would keep a
    // child disabled after the host re-enables a disabled panel.
    const bool used = useTexture->isChecked();
    const auto on = [&](int group) { return shown[group] && (group == UseTextureGroup || used); };
    for (int group = 0; group < GroupCount; ++group) {
        for (QWidget* w : qAsConst(members[group]))
            w->setEnabled(on(group));
    }
    const bool sequence = on(ImageSequenceGroup) && useImageSequence->isChecked();
    frameOffset->setEnabled(sequence);
    inlineImageSequence->setEnabled(sequence);
    // A projection brings its own scale; the triplanar one also its own repeat, offset and rotation.
    useRealWorldScale->setEnabled(on(RealWorldScaleGroup) && !planar && !triplanar);
    for (int group : {RepeatModeGroup, RepeatGroup, OffsetGroup, RotateGroup}) {
        for (QWidget* w : qAsConst(members[group]))
            w->setEnabled(on(group) && !triplanar);
    }
    repeatModeV->setEnabled(!linkRepeatModes->isChecked());
    file->setReadOnly(internal);
    reloadButton->setEnabled(!internal);

    const bool projection = used && shown[ProjectionModeGroup];
    planarBox->setEnabled(projection && planar);
    triplanarBox->setEnabled(projection && triplanar);
    for (int axis = 1; axis < 3; ++axis)
        triplanarRepeat[axis]->setEnabled(!uniformRepeat->isChecked());
}

void QUxTextureControlsPrivate::updateVisible()
{
    for (int group = 0; group < GroupCount; ++group) {
        for (QWidget* w : qAsConst(members[group]))
            w->setVisible(shown[group]);
    }
    const bool settings = shown[ProjectionModeGroup] && showProjectionSettings->isChecked();
    planarBox->setVisible(settings && planar);
    triplanarBox->setVisible(settings && triplanar);
}

void QUxTextureControlsPrivate::setShown(Group group, bool show)
{
    if (shown[group] == show)
        return;
    shown[group] = show;
    updateVisible();
    updateEnabled();
}

void QUxTextureControlsPrivate::setDecimalsOfRepeat(bool sceneUnits)
{
    uxSignalBlocker blocker(repeat);
    repeat->setDisplayDecimals(sceneUnits ? kSceneUnitRepeatDecimals : kRepeatDecimals);
    for (int axis = 0; axis < repeat->componentCount(); ++axis)
        repeat->wheelPrec(axis)->spiner()->setDisplaySceneUnit(sceneUnits);
}

void QUxTextureControlsPrivate::selectRepeatMode(QComboBox* box, int mode)
{
    const int index = box->findData(mode);
    if (index < 0)
        return;
    uxSignalBlocker blocker(box);
    box->setCurrentIndex(index);
}

// ---------------------------------------------------------------------------
// Construction

QUxTextureControls::QUxTextureControls(QWidget* parent)
    : QWidget(parent), d(std::make_unique<QUxTextureControlsPrivate>(this))
{
    d->build();
    d->setDecimalsOfRepeat(false);
    connectControls();
    connectProjectionControls();
    connectTriplanarControls();
    connect(this, &QUxTextureControls::propagateMultiselectProperty, this,
            &QUxTextureControls::applyMultiselectProperty);
    d->updateVisible();
    d->updateEnabled();
}

QUxTextureControls::~QUxTextureControls() { uxDisconnectChildSignals(this); }

void QUxTextureControls::connectControls()
{
    connect(d->useTexture, &QCheckBox::toggled, this, [this](bool on) {
        d->updateEnabled();
        emit changedUseTexture(on);
    });
    connect(d->file, &QLineEdit::editingFinished, this, [this] {
        if (!d->file->isModified())
            return;
        d->file->setModified(false);
        emit changedTextureFile(d->file->text());
    });
    connect(d->file, &QUxFileDropLineEdit::fileDropped, this, &QUxTextureControls::droppedFile);
    connect(d->loadButton, &QPushButton::clicked, this, &QUxTextureControls::loadTexture);
    connect(d->reloadButton, &QPushButton::clicked, this, &QUxTextureControls::reloadTexture);
    connect(d->saveButton, &QPushButton::clicked, this, &QUxTextureControls::writeTexture);
    connect(d->clearButton, &QPushButton::clicked, this, &QUxTextureControls::clearTexture);
    connect(d->infoButton, &QPushButton::clicked, this, &QUxTextureControls::showTextureInfo);
    connect(d->useImageSequence, &QCheckBox::toggled, this, [this](bool on) {
        d->updateEnabled();
        emit changedUseImageSequence(on);
    });
    connect(d->frameOffset, QOverload<int>::of(&QSpinBox::valueChanged), this, &QUxTextureControls::changedFrameOffset);
    connect(d->inlineImageSequence, &QCheckBox::toggled, this, &QUxTextureControls::changedInlineImageSequence);
    connect(d->useAlpha, &QCheckBox::toggled, this, [this](bool on) { emit changedUseAlpha(int(on)); });
    connect(d->useCutout, &QCheckBox::toggled, this, [this](bool on) { emit changedUseCutout(int(on)); });
    connect(d->linkTextureSettings, &QCheckBox::toggled, this,
            [this](bool on) { emit changedLinkTextureSettings(int(on)); });
    connect(d->useRealWorldScale, &QCheckBox::toggled, this, &QUxTextureControls::setUseRealWorldScale);
    connect(d->repeatModeU, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &QUxTextureControls::editedRepeatModeU);
    connect(d->repeatModeV, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &QUxTextureControls::editedRepeatModeV);
    connect(d->linkRepeatModes, &QToolButton::toggled, this, &QUxTextureControls::setConnectRepeatModes);
    connect(d->repeat, &QUxVec2Control::changedX, this, &QUxTextureControls::changedTextureRepeatU);
    connect(d->repeat, &QUxVec2Control::changedY, this, &QUxTextureControls::changedTextureRepeatV);
    connect(d->repeat, &QUxVec2Control::mouseButtonPressed, this, &QUxTextureControls::pressedTextureRepeat);
    connect(d->offset, &QUxVec2Control::changedX, this, &QUxTextureControls::changedTextureOffsetU);
    connect(d->offset, &QUxVec2Control::changedY, this, &QUxTextureControls::changedTextureOffsetV);
    connect(d->offset, &QUxVec2Control::mouseButtonPressed, this, &QUxTextureControls::pressedTextureOffset);
    connect(d->rotate, &QUxWheelPrec::valueChanged, this, &QUxTextureControls::changedTextureRotate);
    connect(d->rotate, &QUxWheelPrec::mouseButtonPressed, this, &QUxTextureControls::pressedTextureRotate);
    connect(d->rotate, &QUxWheelPrec::sliderPressed, this, &QUxTextureControls::pressedTextureRotate);
    connect(d->anisotropy, &QUxSlider::valueChanged, this, &QUxTextureControls::changedAnisotropy);
    connect(d->gamma, &QUxSlider::valueChanged, this, &QUxTextureControls::changedGamma);
    connect(d->useICCProfile, &QCheckBox::toggled, this, &QUxTextureControls::changedUseICCProfile);
    connect(d->mappingType, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { setProjectionType(d->mappingType->itemData(index).toInt()); });
    connect(d->showProjectionSettings, &QToolButton::toggled, this, [this] { d->updateVisible(); });
}

void QUxTextureControls::connectProjectionControls()
{
    connect(d->center, &QUxVec3Control::changedX, this, &QUxTextureControls::setPlanarProjectionCenterX);
    connect(d->center, &QUxVec3Control::changedY, this, &QUxTextureControls::setPlanarProjectionCenterY);
    connect(d->center, &QUxVec3Control::changedZ, this, &QUxTextureControls::setPlanarProjectionCenterZ);
    connect(d->center, &QUxVec3Control::mouseButtonPressed, this, &QUxTextureControls::pressedPlanarProjectionCenter);
    connect(d->orientation, &QUxVec2Control::changedX, this, &QUxTextureControls::setPlanarProjectionRotationPhi);
    connect(d->orientation, &QUxVec2Control::changedY, this, &QUxTextureControls::setPlanarProjectionRotationTheta);
    connect(d->orientation, &QUxVec2Control::mouseButtonPressed, this,
            &QUxTextureControls::pressedPlanarProjectionRotation);
    connect(d->size, &QUxVec3Control::changedX, this, &QUxTextureControls::setPlanarProjectionScaleX_p);
    connect(d->size, &QUxVec3Control::changedY, this, &QUxTextureControls::setPlanarProjectionScaleY_p);
    connect(d->size, &QUxVec3Control::changedZ, this, &QUxTextureControls::setPlanarProjectionScaleZ_p);
    connect(d->size, &QUxVec3Control::mouseButtonPressed, this, &QUxTextureControls::pressedPlanarProjectionScale);
    connect(d->keepAspectRatio, &QCheckBox::toggled, this, &QUxTextureControls::toggledPlanarProjectionKeepAspectRatio);
    connect(d->singleSided, &QCheckBox::toggled, this, &QUxTextureControls::toggledPlanarProjectionSingleSided);
    connect(d->fitSize, &QPushButton::clicked, this, &QUxTextureControls::clickedFitPlanarProjection);
    connect(d->objectCenter, &QPushButton::clicked, this, &QUxTextureControls::clickedCenterPlanarProjection);
    connect(d->manipulatePlanar, &QToolButton::toggled, this, &QUxTextureControls::toggledManipulatePlanarProjection);
}

void QUxTextureControls::connectTriplanarControls()
{
    connect(d->triplanarSize, &QUxVec2Control::changedX, this, &QUxTextureControls::setTriplanarTextureSizeU);
    connect(d->triplanarSize, &QUxVec2Control::changedY, this, &QUxTextureControls::setTriplanarTextureSizeV);
    connect(d->edgeBlend, &QUxSlider::valueChanged, this, &QUxTextureControls::changedTriplanarEdgeBlend);
    connect(d->uniformRepeat, &QCheckBox::toggled, this, &QUxTextureControls::editedUniformRepeat);
    using Slot = void (QUxTextureControls::*)(double);
    const Slot repeatU[] = {&QUxTextureControls::setTriplanarTextureRepeatU_X,
                            &QUxTextureControls::setTriplanarTextureRepeatU_Y,
                            &QUxTextureControls::setTriplanarTextureRepeatU_Z};
    const Slot repeatV[] = {&QUxTextureControls::setTriplanarTextureRepeatV_X,
                            &QUxTextureControls::setTriplanarTextureRepeatV_Y,
                            &QUxTextureControls::setTriplanarTextureRepeatV_Z};
    const Slot offsetU[] = {&QUxTextureControls::setTriplanarTextureOffsetU_X,
                            &QUxTextureControls::setTriplanarTextureOffsetU_Y,
                            &QUxTextureControls::setTriplanarTextureOffsetU_Z};
    const Slot offsetV[] = {&QUxTextureControls::setTriplanarTextureOffsetV_X,
                            &QUxTextureControls::setTriplanarTextureOffsetV_Y,
                            &QUxTextureControls::setTriplanarTextureOffsetV_Z};
    const Slot rotation[] = {&QUxTextureControls::setTriplanarTextureRotationX,
                             &QUxTextureControls::setTriplanarTextureRotationY,
                             &QUxTextureControls::setTriplanarTextureRotationZ};
    for (int axis = 0; axis < 3; ++axis) {
        connect(d->triplanarRepeat[axis], &QUxVec2Control::changedX, this, repeatU[axis]);
        connect(d->triplanarRepeat[axis], &QUxVec2Control::changedY, this, repeatV[axis]);
        connect(d->triplanarOffset[axis], &QUxVec2Control::changedX, this, offsetU[axis]);
        connect(d->triplanarOffset[axis], &QUxVec2Control::changedY, this, offsetV[axis]);
        connect(d->triplanarRotation[axis], &QUxWheelPrec::valueChanged, this, rotation[axis]);
    }
    connect(d->manipulateTriplanar, &QToolButton::toggled, this,
            &QUxTextureControls::toggledManipulateTriplanarProjection);
}

// ---------------------------------------------------------------------------
// Getters

QString QUxTextureControls::getTexture() const { return d->file->text(); }
bool QUxTextureControls::getUseTexture() const { return d->useTexture->isChecked(); }
bool QUxTextureControls::isInternal() const { return d->internal; }
bool QUxTextureControls::getUseImageSequence() const { return d->useImageSequence->isChecked(); }
int QUxTextureControls::getFrameOffset() const { return d->frameOffset->value(); }
bool QUxTextureControls::getInlineImageSequence() const { return d->inlineImageSequence->isChecked(); }
bool QUxTextureControls::getUseAlpha() const { return d->useAlpha->isChecked(); }
bool QUxTextureControls::getUseCutout() const { return d->useCutout->isChecked(); }
bool QUxTextureControls::getLinkTextureSettings() const { return d->linkTextureSettings->isChecked(); }
bool QUxTextureControls::getConnectRepeatModes() const { return d->linkRepeatModes->isChecked(); }
bool QUxTextureControls::getUseRealWorldScale() const { return d->useRealWorldScale->isChecked(); }
int QUxTextureControls::getRepeatModeU() const { return d->repeatModeU->currentData().toInt(); }
int QUxTextureControls::getRepeatModeV() const { return d->repeatModeV->currentData().toInt(); }
double QUxTextureControls::getTextureRepeatU() const { return d->repeat->getX(); }
double QUxTextureControls::getTextureRepeatV() const { return d->repeat->getY(); }
double QUxTextureControls::getTextureOffsetU() const { return d->offset->getX(); }
double QUxTextureControls::getTextureOffsetV() const { return d->offset->getY(); }
double QUxTextureControls::getTextureRotate() const { return d->rotate->value(); }
double QUxTextureControls::getAnisotropy() const { return d->anisotropy->value(); }
double QUxTextureControls::getGamma() const { return d->gamma->value(); }
bool QUxTextureControls::getUseICCProfile() const { return d->useICCProfile->isChecked(); }
int QUxTextureControls::projectionType() const { return d->projectionType; }

using Group = QUxTextureControlsPrivate::Group;

bool QUxTextureControls::getShowUseTextureControls() const { return d->shown[Group::UseTextureGroup]; }
bool QUxTextureControls::getShowTextureFileControls() const { return d->shown[Group::FileGroup]; }
bool QUxTextureControls::getShowImageSequenceControls() const { return d->shown[Group::ImageSequenceGroup]; }
bool QUxTextureControls::getShowAlphaControls() const { return d->shown[Group::AlphaGroup]; }
bool QUxTextureControls::getShowCutoutControls() const { return d->shown[Group::CutoutGroup]; }
bool QUxTextureControls::getShowLinkTextureSettingsControls() const { return d->shown[Group::LinkGroup]; }
bool QUxTextureControls::getShowRealWorldScaleControls() const { return d->shown[Group::RealWorldScaleGroup]; }
bool QUxTextureControls::getShowRepeatModeControls() const { return d->shown[Group::RepeatModeGroup]; }
bool QUxTextureControls::getShowAllRepeatModes() const { return d->allRepeatModes; }
bool QUxTextureControls::getShowRepeatControls() const { return d->shown[Group::RepeatGroup]; }
bool QUxTextureControls::getShowOffsetControls() const { return d->shown[Group::OffsetGroup]; }
bool QUxTextureControls::getShowRotateControls() const { return d->shown[Group::RotateGroup]; }
bool QUxTextureControls::getShowAnisotropicControls() const { return d->shown[Group::AnisotropyGroup]; }
bool QUxTextureControls::getShowGammaControls() const { return d->shown[Group::GammaGroup]; }
bool QUxTextureControls::getShowProjectionModeControls() const { return d->shown[Group::ProjectionModeGroup]; }

void QUxTextureControls::setShowUseTextureControls(bool show) { d->setShown(Group::UseTextureGroup, show); }
void QUxTextureControls::setShowTextureFileControls(bool show) { d->setShown(Group::FileGroup, show); }
void QUxTextureControls::setShowImageSequenceControls(bool show) { d->setShown(Group::ImageSequenceGroup, show); }
void QUxTextureControls::setShowAlphaControls(bool show) { d->setShown(Group::AlphaGroup, show); }
void QUxTextureControls::setShowCutoutControls(bool show) { d->setShown(Group::CutoutGroup, show); }
void QUxTextureControls::setShowLinkTextureSettingsControls(bool show) { d->setShown(Group::LinkGroup, show); }
void QUxTextureControls::setShowRealWorldScaleControls(bool show) { d->setShown(Group::RealWorldScaleGroup, show); }
void QUxTextureControls::setShowRepeatModeControls(bool show) { d->setShown(Group::RepeatModeGroup, show); }
void QUxTextureControls::setShowRepeatControls(bool show) { d->setShown(Group::RepeatGroup, show); }
void QUxTextureControls::setShowOffsetControls(bool show) { d->setShown(Group::OffsetGroup, show); }
void QUxTextureControls::setShowRotateControls(bool show) { d->setShown(Group::RotateGroup, show); }
void QUxTextureControls::setShowAnisotropicControls(bool show) { d->setShown(Group::AnisotropyGroup, show); }
void QUxTextureControls::setShowGammaControls(bool show) { d->setShown(Group::GammaGroup, show); }
void QUxTextureControls::setShowProjectionModeControls(bool show) { d->setShown(Group::ProjectionModeGroup, show); }

void QUxTextureControls::setShowAllRepeatModes(bool show)
{
    if (show == d->allRepeatModes)
        return;
    d->allRepeatModes = show;
    d->fillRepeatModes(d->repeatModeU);
    d->fillRepeatModes(d->repeatModeV);
}

void QUxTextureControls::setLoadTextureIcon(const QIcon& icon) { d->loadButton->setIcon(icon); }
void QUxTextureControls::setReloadTextureIcon(const QIcon& icon) { d->reloadButton->setIcon(icon); }
void QUxTextureControls::setSaveTextureIcon(const QIcon& icon) { d->saveButton->setIcon(icon); }
void QUxTextureControls::setClearTextureIcon(const QIcon& icon) { d->clearButton->setIcon(icon); }
void QUxTextureControls::setShowTextureInfoIcon(const QIcon& icon) { d->infoButton->setIcon(icon); }

// ---------------------------------------------------------------------------
// Setters: the controls follow silently unless the doc comment says otherwise

namespace {

template<typename Control, typename Change>
void silently(Control* control, Change change)
{
    uxSignalBlocker blocker(control);
    change(control);
}

void setSilently(QCheckBox* box, bool on)
{
    silently(box, [on](QCheckBox* b) { b->setChecked(on); });
}
void setSilently(QAbstractButton* button, bool on)
{
    silently(button, [on](QAbstractButton* b) { b->setChecked(on); });
}

// NaN has no place in a range; infinities are clamped by the field.
void setSilently(QUxWheelVectorControl* control, int axis, double value)
{
    if (std::isnan(value) || !control->wheelPrec(axis))
        return;
    silently(control->wheelPrec(axis), [value](QUxWheelPrec* w) { w->setValue(value); });
}

void setSilently(QUxWheelPrec* control, double value)
{
    if (!std::isnan(value))
        silently(control, [value](QUxWheelPrec* w) { w->setValue(value); });
}

void setSilently(QUxSlider* control, double value)
{
    silently(control, [value](QUxSlider* s) { s->setValue(value); });
}

} // namespace

void QUxTextureControls::setTexture(const QString& path)
{
    silently(d->file, [&](QLineEdit* e) { e->setText(path); });
}

void QUxTextureControls::setTextureEdited()
{
    setTexture(d->file->text());
    emit changedTexture();
}

void QUxTextureControls::setUseTexture(bool use)
{
    setSilently(d->useTexture, use);
    d->updateEnabled();
}

void QUxTextureControls::setInternal(bool internal)
{
    d->internal = internal;
    d->updateEnabled();
}

void QUxTextureControls::setUseImageSequence(bool use)
{
    setSilently(d->useImageSequence, use);
    d->updateEnabled();
}

void QUxTextureControls::setFrameOffset(int offset)
{
    silently(d->frameOffset, [offset](QSpinBox* s) { s->setValue(offset); });
}

void QUxTextureControls::setInlineImageSequence(bool inlined) { setSilently(d->inlineImageSequence, inlined); }

void QUxTextureControls::setUseAlpha(bool use)
{
    setSilently(d->useAlpha, use);
    emit changedUseAlpha(int(use));
}

void QUxTextureControls::setUseCutout(bool use)
{
    setSilently(d->useCutout, use);
    emit changedUseCutout(int(use));
}

void QUxTextureControls::setLinkTextureSettings(bool link) { setSilently(d->linkTextureSettings, link); }

void QUxTextureControls::setConnectRepeatModes(bool connected)
{
    setSilently(d->linkRepeatModes, connected);
    d->linkRepeatModes->setIcon(
        uxIconManager::get(connected ? "General/LockOffNormal.svg" : "General/UnlockOffNormal.svg"));
    if (connected)
        silently(d->repeatModeV, [this](QComboBox* v) { v->setCurrentIndex(d->repeatModeU->currentIndex()); });
    d->updateEnabled();
    emit changedConnectRepeatModes(connected);
}

void QUxTextureControls::setUseRealWorldScale(bool use)
{
    setSilently(d->useRealWorldScale, use);
    d->setDecimalsOfRepeat(use);
    emit changedUseRealWorldScale(int(use));
}

void QUxTextureControls::setRepeatModeU(int mode)
{
    d->selectRepeatMode(d->repeatModeU, mode);
    if (getConnectRepeatModes())
        d->selectRepeatMode(d->repeatModeV, getRepeatModeU());
}

void QUxTextureControls::setRepeatModeV(int mode)
{
    if (!getConnectRepeatModes())
        d->selectRepeatMode(d->repeatModeV, mode);
}

void QUxTextureControls::editedRepeatModeU(int index)
{
    const int mode = d->repeatModeU->itemData(index).toInt();
    emit changedRepeatModeU(mode);
    if (getConnectRepeatModes() && getRepeatModeV() != mode) {
        d->selectRepeatMode(d->repeatModeV, mode);
        emit changedRepeatModeV(mode);
    }
}

void QUxTextureControls::editedRepeatModeV(int index)
{
    emit changedRepeatModeV(d->repeatModeV->itemData(index).toInt());
}

void QUxTextureControls::setTextureRepeatU(double value) { setSilently(d->repeat, 0, value); }
void QUxTextureControls::setTextureRepeatV(double value) { setSilently(d->repeat, 1, value); }
void QUxTextureControls::setTextureOffsetU(double value) { setSilently(d->offset, 0, value); }
void QUxTextureControls::setTextureOffsetV(double value) { setSilently(d->offset, 1, value); }
void QUxTextureControls::setTextureRotate(double value) { setSilently(d->rotate, value); }
void QUxTextureControls::setAnisotropy(double value) { setSilently(d->anisotropy, value); }
void QUxTextureControls::setGamma(double value) { setSilently(d->gamma, value); }
void QUxTextureControls::setUseICCProfile(bool use) { setSilently(d->useICCProfile, use); }

void QUxTextureControls::setProjectionType(int type)
{
    if (type >= UV && type <= Triplanar + 1) {
        d->projectionType = type;
        d->planar = type == Planar;
        d->triplanar = type == Triplanar;
        d->thirdProjection = type == Triplanar + 1;
        const int index = d->mappingType->findData(type);
        if (index >= 0)
            silently(d->mappingType, [index](QComboBox* box) { box->setCurrentIndex(index); });
        d->updateVisible();
        d->updateEnabled();
    }
    emit changedProjectionType(type);
}

void QUxTextureControls::setPlanarProjectionCenter(double x, double y, double z)
{
    setSilently(d->center, 0, x);
    setSilently(d->center, 1, y);
    setSilently(d->center, 2, z);
}

void QUxTextureControls::setPlanarProjectionRotation(double phi, double theta)
{
    setSilently(d->orientation, 0, phi);
    setSilently(d->orientation, 1, theta);
}

void QUxTextureControls::setPlanarProjectionScaleX(double value) { setSilently(d->size, 0, value); }
void QUxTextureControls::setPlanarProjectionScaleY(double value) { setSilently(d->size, 1, value); }

void QUxTextureControls::setPlanarProjectionScaleZ(double value)
{
    setSilently(d->size, 2, value);
    d->clampZ = d->size->getZ() != 0.0;
}

void QUxTextureControls::setPlanarProjectionKeepAspectRatio(bool keep) { setSilently(d->keepAspectRatio, keep); }
void QUxTextureControls::setPlanarProjectionSingleSided(bool singleSided) { setSilently(d->singleSided, singleSided); }
void QUxTextureControls::setManipulatePlanarProjection(bool on) { setSilently(d->manipulatePlanar, on); }
void QUxTextureControls::setManipulateTriplanarProjection(bool on) { setSilently(d->manipulateTriplanar, on); }

void QUxTextureControls::setTriplanarTextureSize(double u, double v)
{
    setSilently(d->triplanarSize, 0, u);
    setSilently(d->triplanarSize, 1, v);
}

void QUxTextureControls::setTriplanarEdgeBlend(double value) { setSilently(d->edgeBlend, value); }

namespace {

void setColumn(const std::array<QUxVec2Control*, 3>& rows, int component, double x, double y, double z)
{
    setSilently(rows[0], component, x);
    setSilently(rows[1], component, y);
    setSilently(rows[2], component, z);
}

double valueAt(const std::array<QUxVec2Control*, 3>& rows, int axis, int component)
{
    return component == 0 ? rows[axis]->getX() : rows[axis]->getY();
}

} // namespace

void QUxTextureControls::setTriplanarTextureRepeatU(double x, double y, double z)
{
    setColumn(d->triplanarRepeat, 0, x, y, z);
}
void QUxTextureControls::setTriplanarTextureRepeatV(double x, double y, double z)
{
    setColumn(d->triplanarRepeat, 1, x, y, z);
}
void QUxTextureControls::setTriplanarTextureOffsetU(double x, double y, double z)
{
    setColumn(d->triplanarOffset, 0, x, y, z);
}
void QUxTextureControls::setTriplanarTextureOffsetV(double x, double y, double z)
{
    setColumn(d->triplanarOffset, 1, x, y, z);
}

void QUxTextureControls::setTriplanarTextureRotation(double x, double y, double z)
{
    setSilently(d->triplanarRotation[0], x);
    setSilently(d->triplanarRotation[1], y);
    setSilently(d->triplanarRotation[2], z);
}

// ---------------------------------------------------------------------------
// Actions

void QUxTextureControls::loadTexture() { emit clickedLoadTexture(); }
void QUxTextureControls::reloadTexture() { emit clickedReloadTexture(); }
void QUxTextureControls::writeTexture() { emit clickedWriteTexture(); }
void QUxTextureControls::clearTexture() { emit clickedClearTexture(); }
void QUxTextureControls::showTextureInfo() { emit clickedShowTextureInfo(); }

void QUxTextureControls::droppedFile(const QString& path)
{
    if (path.isEmpty() || d->internal)
        return;
    setTexture(path);
    emit changedTextureFile(path);
}

// ---------------------------------------------------------------------------
// One component edited: combined with the others into the group's signal

void QUxTextureControls::setPlanarProjectionCenterX(double)
{
    emit changedPlanarProjectionCenter(d->center->getX(), d->center->getY(), d->center->getZ());
}
void QUxTextureControls::setPlanarProjectionCenterY(double value) { setPlanarProjectionCenterX(value); }
void QUxTextureControls::setPlanarProjectionCenterZ(double value) { setPlanarProjectionCenterX(value); }

void QUxTextureControls::setPlanarProjectionRotationPhi(double)
{
    emit changedPlanarProjectionRotation(d->orientation->getX(), d->orientation->getY());
}
void QUxTextureControls::setPlanarProjectionRotationTheta(double value) { setPlanarProjectionRotationPhi(value); }

void QUxTextureControls::setPlanarProjectionScaleX_p(double value) { emit changedPlanarProjectionScaleX(value); }
void QUxTextureControls::setPlanarProjectionScaleY_p(double value) { emit changedPlanarProjectionScaleY(value); }

void QUxTextureControls::setPlanarProjectionScaleZ_p(double value)
{
    emit changedPlanarProjectionScaleZ(value);
    const bool clamped = value != 0.0;
    if (clamped == d->clampZ)
        return;
    d->clampZ = clamped;
    emit toggledPlanarProjectionClampZ(clamped);
}

void QUxTextureControls::setTriplanarTextureSizeU(double)
{
    emit changedTriplanarTextureSize(d->triplanarSize->getX(), d->triplanarSize->getY());
}
void QUxTextureControls::setTriplanarTextureSizeV(double value) { setTriplanarTextureSizeU(value); }

void QUxTextureControls::editedTriplanarRepeat(int axis, int component, double value)
{
    // Uniform: the X row speaks for all three axes.
    if (axis == 0 && d->uniformRepeat->isChecked())
        setColumn(d->triplanarRepeat, component, value, value, value);
    const auto& rows = d->triplanarRepeat;
    const double x = valueAt(rows, 0, component), y = valueAt(rows, 1, component), z = valueAt(rows, 2, component);
    if (component == 0)
        emit changedTriplanarTextureRepeatU(x, y, z);
    else
        emit changedTriplanarTextureRepeatV(x, y, z);
}

void QUxTextureControls::editedUniformRepeat(bool uniform)
{
    d->updateEnabled();
    if (!uniform)
        return;
    for (int component = 0; component < 2; ++component) {
        const double x = valueAt(d->triplanarRepeat, 0, component);
        if (valueAt(d->triplanarRepeat, 1, component) != x || valueAt(d->triplanarRepeat, 2, component) != x)
            editedTriplanarRepeat(0, component, x);
    }
}

void QUxTextureControls::setTriplanarTextureRepeatU_X(double value) { editedTriplanarRepeat(0, 0, value); }
void QUxTextureControls::setTriplanarTextureRepeatU_Y(double value) { editedTriplanarRepeat(1, 0, value); }
void QUxTextureControls::setTriplanarTextureRepeatU_Z(double value) { editedTriplanarRepeat(2, 0, value); }
void QUxTextureControls::setTriplanarTextureRepeatV_X(double value) { editedTriplanarRepeat(0, 1, value); }
void QUxTextureControls::setTriplanarTextureRepeatV_Y(double value) { editedTriplanarRepeat(1, 1, value); }
void QUxTextureControls::setTriplanarTextureRepeatV_Z(double value) { editedTriplanarRepeat(2, 1, value); }

void QUxTextureControls::setTriplanarTextureOffsetU_X(double)
{
    const auto& rows = d->triplanarOffset;
    emit changedTriplanarTextureOffsetU(rows[0]->getX(), rows[1]->getX(), rows[2]->getX());
}
void QUxTextureControls::setTriplanarTextureOffsetU_Y(double value) { setTriplanarTextureOffsetU_X(value); }
void QUxTextureControls::setTriplanarTextureOffsetU_Z(double value) { setTriplanarTextureOffsetU_X(value); }

void QUxTextureControls::setTriplanarTextureOffsetV_X(double)
{
    const auto& rows = d->triplanarOffset;
    emit changedTriplanarTextureOffsetV(rows[0]->getY(), rows[1]->getY(), rows[2]->getY());
}
void QUxTextureControls::setTriplanarTextureOffsetV_Y(double value) { setTriplanarTextureOffsetV_X(value); }
void QUxTextureControls::setTriplanarTextureOffsetV_Z(double value) { setTriplanarTextureOffsetV_X(value); }

void QUxTextureControls::setTriplanarTextureRotationX(double)
{
    const auto& r = d->triplanarRotation;
    emit changedTriplanarTextureRotation(r[0]->value(), r[1]->value(), r[2]->value());
}
void QUxTextureControls::setTriplanarTextureRotationY(double value) { setTriplanarTextureRotationX(value); }
void QUxTextureControls::setTriplanarTextureRotationZ(double value) { setTriplanarTextureRotationX(value); }

// ---------------------------------------------------------------------------
// Multi-selection highlight

void QUxTextureControls::applyMultiselectProperty()
{
    const bool on = property("multiselect").toBool();
    for (QUxWheelVectorControl* vector : findChildren<QUxWheelVectorControl*>()) {
        for (int axis = 0; axis < vector->componentCount(); ++axis)
            vector->setMultiSelectHighlight(axis, on);
    }
    for (QUxWheelPrec* field : {d->rotate, d->triplanarRotation[0], d->triplanarRotation[1], d->triplanarRotation[2]})
        field->setMultiSelectHighlight(on);
    for (QWidget* w : {static_cast<QWidget*>(d->anisotropy), static_cast<QWidget*>(d->gamma),
                       static_cast<QWidget*>(d->edgeBlend), static_cast<QWidget*>(d->frameOffset)})
        uxUIStyle::setMultiSelectHighlight(w, on);
}
