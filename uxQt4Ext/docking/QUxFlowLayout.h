#pragma once

#include "uxQt4ExtGlobal.h"

#include <QLayout>
#include <QStyle>

#include <memory>

class QUxFlowLayoutPrivate;

/**
 * A layout that places its items left to right at their size hints and
 * starts a new row when the next item would pass the right edge, like words
 * in a paragraph. An item wider than the whole area stays alone on its row.
 * A negative spacing lets the parent decide (see horizontalSpacing()).
 * @code
 * auto* flow = new QUxFlowLayout(panel, 3, 3, 3);
 * for (const QString& name : names)
 *     flow->addWidget(new QPushButton(name));
 * @endcode
 * heightForWidth() remembers its last answer until the layout is invalidated,
 * so a parent asking twice for the same width costs one pass.
 */
class UXQT4EXT_EXPORT QUxFlowLayout : public QLayout
{
    Q_OBJECT
    Q_PROPERTY(int horizontalSpacing READ horizontalSpacing)
    Q_PROPERTY(int verticalSpacing READ verticalSpacing)
public:
    explicit QUxFlowLayout(QWidget* parent, int margin = -1, int hSpacing = -1, int vSpacing = -1);
    explicit QUxFlowLayout(int margin = -1, int hSpacing = -1, int vSpacing = -1);
    ~QUxFlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void invalidate() override;

    /// The stored spacing when 0 or more; otherwise the parent's (style metric or layout spacing), -1 without one.
    int horizontalSpacing() const;
    int verticalSpacing() const;

private:
    int doLayout(const QRect& rect, bool testOnly) const;
    int smartSpacing(QStyle::PixelMetric metric) const;

    std::unique_ptr<QUxFlowLayoutPrivate> const d;
};
