#pragma once

#include "uxQt4ExtGlobal.h"

#include <QMenu>
#include <QVariant>

#include <memory>

class QUxComboBoxMenuPrivate;

/**
 * A menu drawn like a combo box list: every entry carries a value, the entry
 * of the current value is checked, entries may open nested sub-menus, and a
 * sub-menu's own entry can be chosen by clicking it. The dynamic property
 * named by Style ("ComboBoxAlike") is true on the menu and on every sub-menu
 * for the host's style sheet. Subclasses fill the menu in init().
 * @code
 * class LengthMenu : public QUxComboBoxMenu
 * {
 * public:
 *     using QUxComboBoxMenu::QUxComboBoxMenu;
 *     void init(const QString& text, const QVariant& data) override
 *     {
 *         addItem(this, text, data);
 *         QMenu* metric = addMenu(this, tr("Metric"), QVariant());
 *         addItem(metric, tr("1 mm"), 1.0);
 *         addItem(metric, tr("1 m"), 1000.0);
 *     }
 * };
 * @endcode
 */
class UXQT4EXT_EXPORT QUxComboBoxMenu : public QMenu
{
    Q_OBJECT

public:
    /// Name of the dynamic property that marks the menu and its sub-menus.
    static constexpr const char* Style = "ComboBoxAlike";

    /// @p font gives the family and size of the menu and its sub-menus; @p current is the value shown checked.
    QUxComboBoxMenu(const QFont& font, const QVariant& current, QWidget* parent = nullptr);
    ~QUxComboBoxMenu() override;

    /// Fills the menu; @p text and @p data are the owner's default entry. Does nothing here.
    virtual void init(const QString& text, const QVariant& data);
    /// Runs the menu at @p position; the chosen entry or clicked sub-menu entry, or null when dismissed.
    virtual QAction* showPopup(const QPoint& position);

    QVariant currentValue() const;
    /// The sub-menu entry clicked directly, or null.
    QAction* selectedAction() const;

    /// Adds an entry to @p menu; only an entry whose @p data equals the current value is checkable and checked.
    QAction* addItem(QMenu* menu, const QString& text, const QVariant& data);
    /// Adds a sub-menu titled @p text to @p menu, with @p data on its entry.
    QMenu* addMenu(QMenu* menu, const QString& text, const QVariant& data);
    /// Gives @p menu the family and size of the menu's font.
    void setFontSettings(QMenu* menu);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool selectSubMenuEntry(QMenu* menu, const QPoint& pos);

    std::unique_ptr<QUxComboBoxMenuPrivate> const d;
};
