#include "QUxComboBox.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPointer>
#include <QStyle>

class QUxComboBoxPrivate
{
public:
    // The list's frame, watched for hides that bypass hidePopup() (a click outside the list).
    QPointer<QWidget> container;
    bool open = false;
    bool hiding = false;
};

QUxComboBox::QUxComboBox(QWidget* parent) : QComboBox(parent), d(std::make_unique<QUxComboBoxPrivate>()) {}

QUxComboBox::~QUxComboBox() = default;

void QUxComboBox::showPopup()
{
    QAbstractItemView* list = view();
    const QFontMetrics metrics(list->font());
    int width = 0;
    for (int i = 0; i < count(); ++i)
        width = qMax(width, metrics.horizontalAdvance(itemText(i)));
    if (count() > maxVisibleItems())
        width += style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    list->setMinimumWidth(width);

    QComboBox::showPopup();
    QWidget* container = list->parentWidget();
    if (container && container != d->container) {
        d->container = container;
        container->installEventFilter(this);
    }
    d->open = true;
    emit popupShown(currentIndex());
}

void QUxComboBox::hidePopup()
{
    d->hiding = true;
    QComboBox::hidePopup();
    d->hiding = false;
    // One report per closing, however often the list is asked to hide.
    if (!d->open)
        return;
    d->open = false;
    emit popupHidden();
}

bool QUxComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->container && event->type() == QEvent::Hide && d->open && !d->hiding) {
        d->open = false;
        emit popupHidden();
    }
    return QComboBox::eventFilter(watched, event);
}
