#include "QUxCustomDelegate.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QTextDocument>

class QUxCustomDelegatePrivate
{
public:
    QUxCustomDelegate::IndexPredicate isUnderlined = nullptr;
    Qt::PenStyle underlineStyle = Qt::DotLine;
    QUxCustomDelegate::IndexPredicate isEditable = nullptr;
};

namespace {

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem& option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return (option.state & QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
}

} // namespace

QUxCustomDelegate::QUxCustomDelegate(QObject* parent)
    : QStyledItemDelegate(parent), d(std::make_unique<QUxCustomDelegatePrivate>())
{}

QUxCustomDelegate::~QUxCustomDelegate() = default;

void QUxCustomDelegate::setIsEditableFunction(IndexPredicate isEditable) { d->isEditable = isEditable; }

void QUxCustomDelegate::setIsUnderlinedFunction(IndexPredicate isUnderlined) { d->isUnderlined = isUnderlined; }

void QUxCustomDelegate::setUnderlinePenStyle(Qt::PenStyle style) { d->underlineStyle = style; }

Qt::PenStyle QUxCustomDelegate::underlinePenStyle() const { return d->underlineStyle; }

QWidget* QUxCustomDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    if (d->isEditable && !d->isEditable(index))
        return nullptr;
    return QStyledItemDelegate::createEditor(parent, option, index);
}

void QUxCustomDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!painter)
        return;
    QStyleOptionViewItem opt(option);
    initStyleOption(&opt, index);
    QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();

    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(opt.font);
    document.setHtml(opt.text);
    opt.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);

    const bool selected = opt.state & QStyle::State_Selected;
    const QColor textColor = opt.palette.color(colorGroup(opt), selected ? QPalette::HighlightedText : QPalette::Text);
    const QRect textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &opt, opt.widget);

    if (d->isUnderlined && d->isUnderlined(index)) {
        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, opt.widget) + 1;
        const QString elided =
            opt.fontMetrics.elidedText(document.toPlainText(), opt.textElideMode, textRect.width() - 2 * margin);
        const QRect lineRect =
            style->itemTextRect(opt.fontMetrics, textRect, opt.displayAlignment, true, elided).translated(margin, 0);
        painter->save();
        painter->setClipRect(lineRect);
        painter->setPen(QPen(textColor, 1, d->underlineStyle));
        painter->drawLine(lineRect.bottomLeft(), lineRect.bottomRight());
        painter->restore();
    }

    painter->save();
    painter->translate(textRect.topLeft());
    painter->setClipRect(QRect(QPoint(), textRect.size()));
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, textColor);
    document.documentLayout()->draw(painter, context);
    painter->restore();
}
