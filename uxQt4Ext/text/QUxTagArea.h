#pragma once

#include "uxQt4ExtGlobal.h"

#include <QScrollArea>
#include <QStringList>

#include <memory>

class QUxTagAreaPrivate;
class QUxTagLabel;

/**
 * A scrollable area of tag chips that wrap like words. The area only shows
 * tags: a chip's removal request reaches the host through tagRemove(), and
 * the host answers with a new list. Chips are pooled and reused, never
 * deleted, so a tag list that shrinks and grows again builds nothing anew.
 * @code
 * auto* tags = new QUxTagArea(panel);
 * tags->setTags({"metal", "glass"});
 * connect(tags, &QUxTagArea::tagRemove, panel, [tags](const QString& tag) {
 *     QStringList list = tags->getTags();
 *     list.removeAll(tag);
 *     tags->setTags(list);
 * });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxTagArea : public QScrollArea
{
    Q_OBJECT
    Q_PROPERTY(QStringList tags READ getTags WRITE setTags)
public:
    explicit QUxTagArea(QWidget* parent = nullptr);
    ~QUxTagArea() override;

    void setTags(const QStringList& tags);
    QStringList getTags() const;

    /// Shows one chip per entry of @p tags, in order, and hides the rest of the pool.
    void updateLabels(const QStringList& tags);
    /// Grows the pool to @p count chips if needed and hides the chips past @p count.
    void setUsedLabelCount(int count);
    /// A new chip in the area, Tab-linked after @p previous (which may be null).
    QUxTagLabel* createLabel(QUxTagLabel* previous);

signals:
    void tagRemove(const QString& tag);

private:
    std::unique_ptr<QUxTagAreaPrivate> const d;
};
