#include "GalleryPage.h"

#include <QUxColor.h>
#include <uxUIUtils.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <array>
#include <functional>

namespace {

/// A colour shown the way the colour editors paint it (through getGammaQColor).
class Swatch : public QLabel
{
public:
    explicit Swatch(QWidget* parent) : QLabel(parent)
    {
        setMinimumSize(160, 120);
        setFrameShape(QFrame::StyledPanel);
        setAutoFillBackground(true);
    }
    void show(QUxColor color)
    {
        QPalette p = palette();
        p.setColor(QPalette::Window, color.getGammaQColor());
        setPalette(p);
    }
};

/// Three spin boxes editing one form of the colour; writing into them never echoes back.
class TripleEditor : public QWidget
{
public:
    using Apply = std::function<void(QUxColor&, float, float, float)>;
    using Read = std::function<void(const QUxColor&, float&, float&, float&)>;

    TripleEditor(const std::array<double, 2>& range, int decimals, Read read, Apply apply, QWidget* parent)
        : QWidget(parent), m_read(std::move(read)), m_apply(std::move(apply))
    {
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        for (auto*& box : m_boxes) {
            box = new QDoubleSpinBox(this);
            box->setRange(range[0], range[1]);
            box->setDecimals(decimals);
            box->setSingleStep(decimals > 1 ? 0.01 : 1.0);
            box->setMinimumWidth(90);
            layout->addWidget(box);
        }
    }

    void connectEdits(const std::function<void(TripleEditor*)>& onEdit)
    {
        for (QDoubleSpinBox* box : m_boxes)
            connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this, [this, onEdit] { onEdit(this); });
    }

    void applyTo(QUxColor& color) const
    {
        m_apply(color, float(m_boxes[0]->value()), float(m_boxes[1]->value()), float(m_boxes[2]->value()));
    }

    void showColor(const QUxColor& color)
    {
        float a, b, c;
        m_read(color, a, b, c);
        const float values[3] = {a, b, c};
        for (int i = 0; i < 3; ++i) {
            const QSignalBlocker blocker(m_boxes[i]);
            m_boxes[i]->setValue(values[i]);
        }
    }

private:
    std::array<QDoubleSpinBox*, 3> m_boxes{};
    Read m_read;
    Apply m_apply;
};

class ValuesPage : public QWidget
{
public:
    ValuesPage()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(buildColorInspector());
        auto* lower = new QHBoxLayout;
        lower->addWidget(buildSceneUnit());
        lower->addWidget(buildNaturalSort());
        layout->addLayout(lower);
        layout->addStretch(1);
        m_color.setRGB(0.8f, 0.35f, 0.05f);
        refresh(nullptr);
    }

private:
    QWidget* buildColorInspector()
    {
        auto* box = new QGroupBox(tr("Colour value"), this);
        auto* grid = new QGridLayout(box);
        const double big = 1e4;
        addEditor(
            grid, tr("HSV"), {-360, 720}, 3, [](const QUxColor& c, float& a, float& b, float& d) { c.getHSV(a, b, d); },
            [](QUxColor& c, float a, float b, float d) { c.setHSV(a, b, d); });
        addEditor(
            grid, tr("Linear RGB"), {-big, big}, 4,
            [](const QUxColor& c, float& a, float& b, float& d) { c.getRGB(a, b, d); },
            [](QUxColor& c, float a, float b, float d) { c.setRGB(a, b, d); });
        addEditor(
            grid, tr("sRGB"), {-big, big}, 4,
            [](const QUxColor& c, float& a, float& b, float& d) { c.getSRGB(a, b, d); },
            [](QUxColor& c, float a, float b, float d) { c.setSRGB(a, b, d); });
        addEditor(
            grid, tr("L*a*b*"), {-big, big}, 3,
            [](const QUxColor& c, float& a, float& b, float& d) { c.getLab(a, b, d); },
            [](QUxColor& c, float a, float b, float d) { c.setLab(a, b, d); });

        int row = grid->rowCount();
        m_xyz = addReadOut(grid, row++, tr("XYZ (D65)"));
        m_xyzE = addReadOut(grid, row++, tr("XYZ (equal energy)"));
        m_rgb8 = addReadOut(grid, row++, tr("8-bit RGB"));
        m_gamma8 = addReadOut(grid, row++, tr("Display (gamma)"));

        auto* gamma = new QCheckBox(tr("Encode display colours with the sRGB curve"), box);
        gamma->setChecked(QUxColor::s_useGamma);
        connect(gamma, &QCheckBox::toggled, this, [this](bool on) {
            QUxColor::s_useGamma = on;
            refresh(nullptr);
        });
        grid->addWidget(gamma, row, 0, 1, 2);

        m_swatch = new Swatch(box);
        grid->addWidget(m_swatch, 0, 2, row + 1, 1);
        grid->setColumnStretch(1, 1);
        return box;
    }

    void addEditor(QGridLayout* grid, const QString& label, const std::array<double, 2>& range, int decimals,
                   TripleEditor::Read read, TripleEditor::Apply apply)
    {
        const int row = grid->rowCount();
        auto* editor = new TripleEditor(range, decimals, std::move(read), std::move(apply), this);
        editor->connectEdits([this](TripleEditor* source) {
            source->applyTo(m_color);
            refresh(source);
        });
        grid->addWidget(new QLabel(label, this), row, 0);
        grid->addWidget(editor, row, 1);
        m_editors.push_back(editor);
    }

    QLabel* addReadOut(QGridLayout* grid, int row, const QString& label)
    {
        auto* value = new QLabel(this);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        grid->addWidget(new QLabel(label, this), row, 0);
        grid->addWidget(value, row, 1);
        return value;
    }

    void refresh(TripleEditor* source)
    {
        for (TripleEditor* editor : m_editors)
            if (editor != source)
                editor->showColor(m_color);
        float x, y, z;
        m_color.getXYZ(x, y, z);
        m_xyz->setText(triple(x, y, z));
        m_color.getXYZ_E(x, y, z);
        m_xyzE->setText(triple(x, y, z));
        const QColor linear = m_color.getQColor();
        m_rgb8->setText(QStringLiteral("%1, %2, %3   %4")
                            .arg(linear.red())
                            .arg(linear.green())
                            .arg(linear.blue())
                            .arg(linear.name()));
        const QColor shown = m_color.getGammaQColor();
        m_gamma8->setText(
            QStringLiteral("%1, %2, %3   %4").arg(shown.red()).arg(shown.green()).arg(shown.blue()).arg(shown.name()));
        m_swatch->show(m_color);
    }

    static QString triple(float a, float b, float c)
    {
        return QStringLiteral("%1, %2, %3").arg(a, 0, 'f', 4).arg(b, 0, 'f', 4).arg(c, 0, 'f', 4);
    }

    QWidget* buildSceneUnit()
    {
        auto* box = new QGroupBox(tr("Scene unit"), this);
        auto* form = new QFormLayout(box);
        auto* units = new QComboBox(box);
        units->addItem(tr("Millimetres"), 1.0);
        units->addItem(tr("Centimetres"), 10.0);
        units->addItem(tr("Metres"), 1000.0);
        units->addItem(tr("Inches (no unit text)"), 25.4);
        auto* shown = new QLabel(box);
        auto* sample = new QLabel(box);
        const auto update = [units, shown, sample] {
            uxUIUtils::setSceneUnitScale(float(units->currentData().toDouble()));
            shown->setText(QStringLiteral("\"%1\"").arg(uxUIUtils::getSceneUnitString()));
            sample->setText(QStringLiteral("12.5%1").arg(uxUIUtils::getSceneUnitString()));
        };
        connect(units, qOverload<int>(&QComboBox::currentIndexChanged), box, update);
        update();
        form->addRow(tr("Unit"), units);
        form->addRow(tr("Unit text"), shown);
        form->addRow(tr("A length reads"), sample);
        return box;
    }

    QWidget* buildNaturalSort()
    {
        auto* box = new QGroupBox(tr("Natural sort"), this);
        auto* layout = new QVBoxLayout(box);
        auto* input = new QLineEdit(QStringLiteral("Part 10, Part 2, Body 1, Part 1, Body 12"), box);
        auto* list = new QListWidget(box);
        list->setMaximumHeight(110);
        const auto update = [input, list] {
            QStringList names = input->text().split(QLatin1Char(','), Qt::SkipEmptyParts);
            for (QString& name : names)
                name = name.trimmed();
            uxUIUtils::sortNumeric(names);
            list->clear();
            list->addItems(names);
        };
        connect(input, &QLineEdit::textChanged, box, update);
        update();
        layout->addWidget(input);
        layout->addWidget(list);
        return box;
    }

    QUxColor m_color;
    std::vector<TripleEditor*> m_editors;
    QLabel* m_xyz = nullptr;
    QLabel* m_xyzE = nullptr;
    QLabel* m_rgb8 = nullptr;
    QLabel* m_gamma8 = nullptr;
    Swatch* m_swatch = nullptr;
};

} // namespace

UX_GALLERY_PAGE(10, "Values", "values", [] { return new ValuesPage; });
