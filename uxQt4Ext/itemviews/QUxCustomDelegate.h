#pragma once

#include "uxQt4ExtGlobal.h"

#include <QStyledItemDelegate>

#include <memory>

class QUxCustomDelegatePrivate;

/**
 * Paints an item's text as rich text (HTML), underlines the items a predicate
 * picks, and lets another predicate refuse editors item by item.
 * @code
 * auto* delegate = new QUxCustomDelegate(view);
 * delegate->setIsUnderlinedFunction([](const QModelIndex& i) { return i.data(LinkRole).toBool(); });
 * delegate->setIsEditableFunction([](const QModelIndex& i) { return !i.data(LockedRole).toBool(); });
 * view->setItemDelegateForColumn(1, delegate);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxCustomDelegate : public QStyledItemDelegate
{
    Q_OBJECT
    Q_PROPERTY(Qt::PenStyle underlinePenStyle READ underlinePenStyle WRITE setUnderlinePenStyle)
public:
    using IndexPredicate = bool (*)(const QModelIndex&);

    explicit QUxCustomDelegate(QObject* parent = nullptr);
    ~QUxCustomDelegate() override;

    void setIsEditableFunction(IndexPredicate isEditable);
    void setIsUnderlinedFunction(IndexPredicate isUnderlined);
    void setUnderlinePenStyle(Qt::PenStyle style);
    Qt::PenStyle underlinePenStyle() const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    std::unique_ptr<QUxCustomDelegatePrivate> const d;
};
