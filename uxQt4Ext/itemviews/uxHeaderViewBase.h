#pragma once

#include "uxQt4ExtGlobal.h"

#include <QHeaderView>

#include <memory>

class QMenu;
class uxHeaderViewBasePrivate;

/**
 * A horizontal header whose context menu lists the columns by their header
 * text, shown ones first, each with a check mark that shows or hides it. The
 * last visible column cannot be hidden, and positions declared not hideable
 * stay out of the menu.
 * @code
 * auto* header = new uxHeaderViewBase(model, treeView);
 * header->setSectionHideable(0, false); // the name column always stays
 * treeView->setHeader(header);
 * @endcode
 */
class UXQT4EXT_EXPORT uxHeaderViewBase : public QHeaderView
{
    Q_OBJECT
public:
    explicit uxHeaderViewBase(QAbstractItemModel* model = nullptr, QWidget* parent = nullptr);
    ~uxHeaderViewBase() override;

    // In this order on purpose: hosts derive from it.
    virtual void setColumnVisible(int logicalIndex, bool visible);
    virtual bool isColumnVisible(int logicalIndex) const;
    /// The model whose header texts name the columns in the menu.
    virtual QAbstractItemModel* headerModel();

    void setSectionHideable(int index, bool hideable);
    bool sectionHideable(int index) const;
    QString getHeaderName(int logicalIndex);
    int getVisibleColumnCount() const;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void AddActions(QMenu* menu, bool visible);
    void disableCheckedActions(QMenu* menu);

protected slots:
    void OnChangeVisibility(bool on);

private:
    std::unique_ptr<uxHeaderViewBasePrivate> const d;
};
