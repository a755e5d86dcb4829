#include "uxVectorRows_p.h"

#include "uxLabelText_p.h"

namespace uxVectorRows {

namespace {
constexpr int kSpacing = 6;
}

QStringList labelTexts(int labelSet)
{
    switch (labelSet) {
    case 1:
        return {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z"), QStringLiteral("W")};
    case 2:
        return {QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B"), QStringLiteral("A")};
    case 3:
        return {QStringLiteral("U"), QStringLiteral("V"), QStringLiteral("W"), QStringLiteral("Q")};
    case 4:
        return {QStringLiteral("XY"), QStringLiteral("XZ"), QStringLiteral("YZ"), QString()};
    default:
        return {QString(), QString(), QString(), QString()};
    }
}

void place(QGridLayout* grid, const std::vector<QLabel*>& labels, const std::vector<QWidget*>& editors,
           Arrangement arrangement, bool mirrored)
{
    for (size_t i = 0; i < editors.size(); ++i) {
        grid->removeWidget(labels[i]);
        grid->removeWidget(editors[i]);
    }
    if (arrangement != Arrangement::Detached) {
        const int labelOffset = mirrored ? 1 : 0;
        const int editorOffset = mirrored ? 0 : 1;
        for (size_t i = 0; i < editors.size(); ++i) {
            const int n = static_cast<int>(i);
            const int row = arrangement == Arrangement::Column ? n : 0;
            const int column = arrangement == Arrangement::Column ? 0 : 2 * n;
            grid->addWidget(labels[i], row, column + labelOffset);
            grid->addWidget(editors[i], row, column + editorOffset);
        }
    }
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(kSpacing);
}

QLabel* makeLabel(QWidget* parent, const QString& text)
{
    auto* label = new QLabel(text, parent);
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    label->hide();
    return label;
}

void applySubLabels(const std::vector<QLabel*>& labels, const QStringList& texts)
{
    for (size_t i = 0; i < labels.size(); ++i) {
        const QString text = texts.value(static_cast<int>(i));
        labels[i]->setText(uxLabelText::shown(text));
        labels[i]->setVisible(!text.isEmpty());
    }
}

} // namespace uxVectorRows
