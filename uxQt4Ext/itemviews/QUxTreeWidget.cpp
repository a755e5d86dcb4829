#include "QUxTreeWidget.h"

#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>

class QUxTreeWidgetPrivate
{
public:
    QPointer<QMenu> popup;
    QStringList acceptedFormats;
    QPoint pressPos;

    QString firstAcceptedFormat(const QMimeData* mime) const
    {
        if (mime) {
            for (const QString& format : acceptedFormats) {
                if (mime->hasFormat(format))
                    return format;
            }
        }
        return QString();
    }
};

QUxTreeWidget::QUxTreeWidget(QWidget* parent, const char* name, Qt::WindowFlags flags)
    : QTreeWidget(parent), d(std::make_unique<QUxTreeWidgetPrivate>())
{
    setWindowFlags(flags);
    setObjectName(QString::fromLatin1(name));
}

QUxTreeWidget::~QUxTreeWidget() = default;

void QUxTreeWidget::initWidget(QWidget* owner)
{
    setAllColumnsShowFocus(true);
    setFocusPolicy(Qt::StrongFocus);
    setSortingEnabled(true);
    sortByColumn(0, Qt::AscendingOrder);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setEditTriggers(CurrentChanged | DoubleClicked | SelectedClicked | EditKeyPressed);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setDragEnabled(true);
    setDragDropMode(DragDrop);
    setDropIndicatorShown(true);
    // The owner, not the tree, asks for the menu: hosts wrap the tree in their panel.
    if (owner)
        connect(owner, SIGNAL(customContextMenuRequested(const QPoint&)), this, SLOT(showPopup(const QPoint&)));
    addDelegates();
    addAcceptedDropFormats();
    if (!d->popup)
        d->popup = new QMenu(owner ? owner : this);
}

void QUxTreeWidget::addAcceptedDropFormat(QString format) { d->acceptedFormats.append(format); }

QMenu* QUxTreeWidget::popupMenu() const { return d->popup; }

void QUxTreeWidget::addAcceptedDropFormats() {}

void QUxTreeWidget::addDelegates() {}

void QUxTreeWidget::updatePopupItemVisibility() {}

void QUxTreeWidget::onStartDrag() {}

void QUxTreeWidget::onDrop(QDropEvent*, QString) {}

bool QUxTreeWidget::allowPopup() { return true; }

void QUxTreeWidget::checkAcceptedDropFormats(QDragMoveEvent* event)
{
    if (event && !d->firstAcceptedFormat(event->mimeData()).isEmpty())
        event->accept();
}

void QUxTreeWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        d->pressPos = event->pos();
    QTreeWidget::mousePressEvent(event);
}

void QUxTreeWidget::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton)
        && (event->pos() - d->pressPos).manhattanLength() >= QApplication::startDragDistance()) {
        onStartDrag();
        return;
    }
    QTreeWidget::mouseMoveEvent(event);
}

void QUxTreeWidget::dragEnterEvent(QDragEnterEvent* event) { checkAcceptedDropFormats(event); }

void QUxTreeWidget::dragMoveEvent(QDragMoveEvent* event) { checkAcceptedDropFormats(event); }

void QUxTreeWidget::dropEvent(QDropEvent* event)
{
    const QString format = event ? d->firstAcceptedFormat(event->mimeData()) : QString();
    if (!format.isEmpty())
        onDrop(event, format);
}

void QUxTreeWidget::showPopup(const QPoint& pos)
{
    updatePopupItemVisibility();
    // An empty menu would open as a bare frame that only swallows the next click.
    if (d->popup && !d->popup->actions().isEmpty())
        d->popup->exec(viewport()->mapToGlobal(pos));
}
