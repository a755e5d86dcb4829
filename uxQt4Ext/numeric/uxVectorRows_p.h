#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QString>
#include <QWidget>

#include <vector>

// Shared plumbing of the vector editors: each component is one editor with an
// optional label before it, placed in a grid as a column of rows or one row.
namespace uxVectorRows {

enum class Arrangement { Column, Row, Detached };

/// Texts of the component labels for a label set of the wheel vector controls.
QStringList labelTexts(int labelSet);

/// Takes every label and editor out of @p grid and puts them back in @p arrangement.
/// With @p mirrored the editor comes before its label.
void place(QGridLayout* grid, const std::vector<QLabel*>& labels, const std::vector<QWidget*>& editors,
           Arrangement arrangement, bool mirrored);

/// A label for one component, hidden until it gets a text to show.
QLabel* makeLabel(QWidget* parent, const QString& text);

/// Applies sub-label texts: a component whose text is empty (or missing) shows no label.
void applySubLabels(const std::vector<QLabel*>& labels, const QStringList& texts);

/// Stores the current component values in @p reported; true when any of them
/// differs from what was reported before.
template<typename T, typename ValueOf>
bool takeChanges(std::vector<T>& reported, ValueOf valueOf)
{
    bool changed = false;
    for (size_t axis = 0; axis < reported.size(); ++axis) {
        const T value = valueOf(static_cast<int>(axis));
        changed = changed || value != reported[axis];
        reported[axis] = value;
    }
    return changed;
}

} // namespace uxVectorRows
