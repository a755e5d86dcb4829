#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxComboBox.h>
#include <QUxComboBoxMenu.h>
#include <QUxDoubleSpiner.h>
#include <QUxMultiLevelComboBox.h>
#include <QUxTextureControls.h>
#include <uxTesselationSettings.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// A square of the material's surface: a tile image mapped with the panel's
/// repeat, offset, rotation and wrap modes, as a renderer would sample it.
class TexturePreview : public QWidget
{
public:
    double repeatU = 2.0;
    double repeatV = 2.0;
    double offsetU = 0.0;
    double offsetV = 0.0;
    double rotate = 0.0;
    int modeU = 0;
    int modeV = 0;
    bool used = true;

    explicit TexturePreview(QWidget* parent = nullptr) : QWidget(parent)
    {
        setFixedSize(180, 180);
        m_tile = makeTile();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(90, 90, 96));
        if (used)
            paintSurface(painter);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    // A tile that shows its own orientation: a letter in one corner, darker edges.
    static QImage makeTile()
    {
        QImage tile(64, 64, QImage::Format_ARGB32_Premultiplied);
        tile.fill(QColor(214, 178, 120));
        QPainter painter(&tile);
        painter.fillRect(0, 0, 32, 32, QColor(184, 120, 70));
        painter.fillRect(32, 32, 32, 32, QColor(184, 120, 70));
        painter.setPen(QPen(QColor(60, 40, 30), 2));
        painter.drawRect(1, 1, 62, 62);
        QFont font = painter.font();
        font.setBold(true);
        font.setPixelSize(22);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(QRect(0, 0, 32, 32), Qt::AlignCenter, QStringLiteral("F"));
        return tile;
    }

    // Mirrored repeat is a tile of twice the size holding the four mirror images.
    QImage wrappedTile() const
    {
        const bool mirrorU = modeU == 1;
        const bool mirrorV = modeV == 1;
        if (!mirrorU && !mirrorV)
            return m_tile;
        QImage wide(m_tile.width() * (mirrorU ? 2 : 1), m_tile.height() * (mirrorV ? 2 : 1), m_tile.format());
        QPainter painter(&wide);
        painter.drawImage(0, 0, m_tile);
        if (mirrorU)
            painter.drawImage(m_tile.width(), 0, m_tile.mirrored(true, false));
        if (mirrorV)
            painter.drawImage(0, m_tile.height(), m_tile.mirrored(false, true));
        if (mirrorU && mirrorV)
            painter.drawImage(m_tile.width(), m_tile.height(), m_tile.mirrored(true, true));
        return wide;
    }

    void paintSurface(QPainter& painter) const
    {
        const double safeU = std::isfinite(repeatU) && std::abs(repeatU) > 1e-3 ? repeatU : 1.0;
        const double safeV = std::isfinite(repeatV) && std::abs(repeatV) > 1e-3 ? repeatV : 1.0;
        // UV space (one tile = 0..1) to the preview square.
        QTransform uv;
        uv.translate(width() / 2.0, height() / 2.0);
        uv.rotate(std::isfinite(rotate) ? -rotate : 0.0);
        uv.translate(-width() / 2.0, -height() / 2.0);
        uv.scale(width() / safeU / m_tile.width(), height() / safeV / m_tile.height());
        uv.translate(std::isfinite(offsetU) ? -offsetU * m_tile.width() : 0.0,
                     std::isfinite(offsetV) ? -offsetV * m_tile.height() : 0.0);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const bool tiled = modeU <= 1 && modeV <= 1;
        if (tiled) {
            QBrush brush(wrappedTile());
            brush.setTransform(uv);
            painter.fillRect(rect(), brush);
            return;
        }
        // Decal shows one tile over the base colour; clamp stretches its border colour outwards.
        if (modeU == 3 || modeV == 3)
            painter.fillRect(rect(), QColor(60, 40, 30));
        painter.setTransform(uv);
        painter.drawImage(0, 0, m_tile);
    }

    QImage m_tile;
};

/// A material menu two levels deep; the current material is checked.
class MaterialMenu : public QUxComboBoxMenu
{
public:
    using QUxComboBoxMenu::QUxComboBoxMenu;

    void init(const QString& text, const QVariant& data) override
    {
        addItem(this, text, data);
        addSeparator();
        const QStringList groups{tr("Metals"), tr("Plastics"), tr("Glass")};
        const QList<QStringList> names{{tr("Steel"), tr("Brushed aluminium"), tr("Chrome"), tr("Gold")},
                                       {tr("Matte black"), tr("Glossy red"), tr("Soft touch grey")},
                                       {tr("Clear"), tr("Frosted"), tr("Tinted windscreen")}};
        int id = 1;
        for (int g = 0; g < groups.size(); ++g) {
            QMenu* group = addMenu(this, groups[g], 100 * (g + 1));
            for (const QString& name : names[g])
                addItem(group, name, 100 * (g + 1) + id++);
        }
    }
};

/// The concrete multi-level box the page uses: materials by id, "Default" at id 0.
class MaterialBox : public QUxMultiLevelComboBox
{
public:
    explicit MaterialBox(QWidget* parent = nullptr) : QUxMultiLevelComboBox(parent)
    {
        addItem(defaultText(), defaultData());
    }

protected:
    QUxComboBoxMenu* createMenu() override { return new MaterialMenu(font(), currentData(), this); }
    QString defaultText() const override { return tr("Default material"); }
    QVariant defaultData() const override { return 0; }
    QString toText(const QVariant& value) const override
    {
        // The menu is the one place that knows the names; build it once to look one up.
        MaterialMenu menu(font(), value, nullptr);
        menu.init(defaultText(), defaultData());
        const QList<QAction*> all = menu.findChildren<QAction*>();
        for (const QAction* action : all)
            if (action->data() == value && !action->text().isEmpty())
                return action->text();
        return QString();
    }
};

class PanelsPage : public QWidget
{
public:
    PanelsPage()
    {
        m_log = new GalleryLog;
        m_log->setMinimumHeight(40);
        auto* columns = new QHBoxLayout;
        auto* left = new QVBoxLayout;
        left->addWidget(textureGroup(), 1);
        left->addWidget(comboGroup());
        columns->addLayout(left, 1);
        auto* right = new QVBoxLayout;
        right->addWidget(tessellationGroup());
        right->addWidget(m_log, 1);
        columns->addLayout(right, 1);
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(columns, 1);
    }

private:
    QGroupBox* textureGroup()
    {
        auto* controls = new QUxTextureControls;
        controls->setTexture(QStringLiteral("textures/wood_planks.png"));
        controls->setUseTexture(true);
        controls->setTextureRepeatU(m_preview->repeatU);
        controls->setTextureRepeatV(m_preview->repeatV);
        controls->setTextureRotate(15.0);
        m_preview->rotate = 15.0;
        wirePreview(controls);

        auto* scroll = new QScrollArea;
        scroll->setWidgetResizable(true);
        scroll->setWidget(controls);
        scroll->setMinimumWidth(340);
        auto* previewColumn = new QVBoxLayout;
        previewColumn->addWidget(m_preview);
        previewColumn->addWidget(new QLabel(tr("Preview follows repeat,\noffset, rotation and\nrepeat modes.")));
        previewColumn->addStretch();

        auto* group = new QGroupBox(tr("Texture"));
        auto* layout = new QHBoxLayout(group);
        layout->addWidget(scroll, 1);
        layout->addLayout(previewColumn);
        return group;
    }

    void wirePreview(QUxTextureControls* controls)
    {
        TexturePreview* preview = m_preview;
        const auto set = [this, preview](double TexturePreview::*field, const char* name) {
            return [this, preview, field, name](double value) {
                preview->*field = value;
                preview->update();
                m_log->log(QStringLiteral("%1(%2)").arg(QLatin1String(name), fixedNumber(value, 3)));
            };
        };
        connect(controls, &QUxTextureControls::changedTextureRepeatU, preview,
                set(&TexturePreview::repeatU, "changedTextureRepeatU"));
        connect(controls, &QUxTextureControls::changedTextureRepeatV, preview,
                set(&TexturePreview::repeatV, "changedTextureRepeatV"));
        connect(controls, &QUxTextureControls::changedTextureOffsetU, preview,
                set(&TexturePreview::offsetU, "changedTextureOffsetU"));
        connect(controls, &QUxTextureControls::changedTextureOffsetV, preview,
                set(&TexturePreview::offsetV, "changedTextureOffsetV"));
        connect(controls, &QUxTextureControls::changedTextureRotate, preview,
                set(&TexturePreview::rotate, "changedTextureRotate"));
        connect(controls, &QUxTextureControls::changedRepeatModeU, preview, [this, preview](int mode) {
            preview->modeU = mode;
            preview->update();
            m_log->log(QStringLiteral("changedRepeatModeU(%1)").arg(mode));
        });
        connect(controls, &QUxTextureControls::changedRepeatModeV, preview, [this, preview](int mode) {
            preview->modeV = mode;
            preview->update();
            m_log->log(QStringLiteral("changedRepeatModeV(%1)").arg(mode));
        });
        connect(controls, &QUxTextureControls::changedUseTexture, preview, [this, preview](bool on) {
            preview->used = on;
            preview->update();
            m_log->log(QStringLiteral("changedUseTexture(%1)").arg(on ? "true" : "false"));
        });
        connect(controls, &QUxTextureControls::changedProjectionType, this,
                [this](int type) { m_log->log(QStringLiteral("changedProjectionType(%1)").arg(type)); });
        connect(controls, &QUxTextureControls::clickedLoadTexture, this,
                [this] { m_log->log(QStringLiteral("clickedLoadTexture()")); });
    }

    QGroupBox* tessellationGroup()
    {
        auto* settings = new uxTesselationSettings;
        auto* readOut = new QLabel;
        readOut->setTextInteractionFlags(Qt::TextSelectableByMouse);
        readOut->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        const auto refresh = [settings, readOut] {
            const auto field = [settings](const char* name) {
                const auto* spin = settings->findChild<QUxDoubleSpiner*>(QLatin1String(name));
                return spin ? spin->value() : 0.0;
            };
            const auto* presets = settings->findChild<QComboBox*>(QStringLiteral("_tessellation_presets"));
            const auto* stitching = settings->findChild<QCheckBox*>(QStringLiteral("_stitching"));
            readOut->setText(
                tr("%1: chord deviation %2 mm, normal tolerance %3°,\n"
                   "max chord length %4 mm; stitching %5, %6 mm")
                    .arg(presets ? presets->currentText() : QString(), fixedNumber(field("_chord_deviation"), 4),
                         fixedNumber(field("_normal_tolerance"), 1), fixedNumber(field("_max_chord_length"), 1),
                         stitching && stitching->isChecked() ? tr("on") : tr("off"),
                         fixedNumber(field("_stitching_tolerance"), 2)));
        };
        // The panel has no signals of its own; the read-out listens to its fields.
        for (auto* spin : settings->findChildren<QUxDoubleSpiner*>())
            connect(spin, qOverload<double>(&QDoubleSpinBox::valueChanged), readOut, refresh);
        for (auto* box : settings->findChildren<QComboBox*>())
            connect(box, qOverload<int>(&QComboBox::currentIndexChanged), readOut, refresh);
        for (auto* check : settings->findChildren<QCheckBox*>())
            connect(check, &QCheckBox::toggled, readOut, refresh);
        refresh();

        auto* group = new QGroupBox(tr("Tessellation"));
        auto* layout = new QVBoxLayout(group);
        layout->addWidget(settings, 1);
        layout->addWidget(readOut);
        return group;
    }

    QGroupBox* comboGroup()
    {
        auto* plain = new QUxComboBox;
        plain->addItems({tr("Phong"), tr("Plastic"),
                         tr("Measured car paint with flakes and a clear coat of three layers (long name)")});
        for (int i = 1; i <= 20; ++i)
            plain->addItem(tr("Variant %1").arg(i));
        plain->setMaximumWidth(160);
        plain->setToolTip(tr("The open list widens to its longest entry."));
        connect(plain, &QUxComboBox::popupShown, this,
                [this](int index) { m_log->log(QStringLiteral("popupShown(%1)").arg(index)); });
        connect(plain, &QUxComboBox::popupHidden, this, [this] { m_log->log(QStringLiteral("popupHidden()")); });

        auto* material = new MaterialBox;
        material->setMinimumWidth(150);
        material->setToolTip(tr("Materials in nested menus; the current one is checked."));
        connect(material, &QUxMultiLevelComboBox::changed, this, [this](const QString& text, const QVariant& data) {
            m_log->log(QStringLiteral("changed(\"%1\", %2)").arg(text, data.toString()));
        });
        auto* undo = new QPushButton(tr("Undo"));
        auto* reset = new QPushButton(tr("Reset"));
        connect(undo, &QPushButton::clicked, material, &QUxMultiLevelComboBox::undo);
        connect(reset, &QPushButton::clicked, material, &QUxMultiLevelComboBox::reset);
        auto* materialRow = new QHBoxLayout;
        materialRow->addWidget(material, 1);
        materialRow->addWidget(undo);
        materialRow->addWidget(reset);

        auto* group = new QGroupBox(tr("Combo boxes"));
        auto* form = new QFormLayout(group);
        form->addRow(tr("Shader"), plain);
        form->addRow(tr("Material"), materialRow);
        return group;
    }

    GalleryLog* m_log = nullptr;
    TexturePreview* m_preview = new TexturePreview;
};

} // namespace

UX_GALLERY_PAGE(80, "Panels", "panels", [] { return new PanelsPage; });
