#pragma once

#include "uxQt4ExtGlobal.h"

#include <QSortFilterProxyModel>

#include <memory>

class QUxSortFilterProxyModelPrivate;

/**
 * A sort proxy with natural ordering: runs of digits compare by their value,
 * so "item2" sorts before "item10". Comparison is case-sensitive and follows
 * the default locale; under the C locale, whose collation knows no numbers,
 * an English collation stands in.
 * @code
 * auto* proxy = new QUxSortFilterProxyModel(view);
 * proxy->setSourceModel(sceneModel);
 * view->setModel(proxy);
 * view->sortByColumn(0, Qt::AscendingOrder);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    explicit QUxSortFilterProxyModel(QObject* parent = nullptr);
    ~QUxSortFilterProxyModel() override;

    void setSourceModel(QAbstractItemModel* sourceModel) override;
    /// As the base class; a column below -1 (which means unsorted) is ignored.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
    bool lessThan(const QString& left, const QString& right) const;

private:
    std::unique_ptr<QUxSortFilterProxyModelPrivate> const d;
};
