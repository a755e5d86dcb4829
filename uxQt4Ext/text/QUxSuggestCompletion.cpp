#include "QUxSuggestCompletion.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QTreeWidget>

namespace {

constexpr int maxVisibleRows = 7;
// A wrapped cell lays out all of its text to find its height: a megabyte took
// seconds. Longer entries are cut for display; the full text is kept for the editor.
constexpr int maxShownLength = 512;
constexpr int fullTextRole = Qt::UserRole + 1;

QString shown(const QString& text)
{
    if (text.size() <= maxShownLength)
        return text;
    return text.left(text.at(maxShownLength - 1).isHighSurrogate() ? maxShownLength - 1 : maxShownLength);
}

QTreeWidget* makePopup(QLineEdit* editor)
{
    auto* popup = new QTreeWidget;
    popup->setWindowFlags(Qt::Popup);
    popup->setFocusPolicy(Qt::NoFocus);
    popup->setFocusProxy(editor);
    popup->setAttribute(Qt::WA_MouseTracking);
    popup->setColumnCount(2);
    popup->setUniformRowHeights(true);
    popup->setRootIsDecorated(false);
    popup->setEditTriggers(QAbstractItemView::NoEditTriggers);
    popup->setSelectionBehavior(QAbstractItemView::SelectRows);
    popup->setFrameStyle(QFrame::Box | QFrame::Plain);
    popup->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    popup->header()->hide();
    popup->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    popup->setWordWrap(true);
    popup->setColumnWidth(0, 140);
    popup->setColumnWidth(1, 100);
    popup->setAccessibleName(QUxSuggestCompletion::tr("Suggestions"));
    return popup;
}

QList<QTreeWidgetItem*> makeItems(const QStringList& choices, const QStringList& hints, const QList<QVariant>& values,
                                  const QColor& hintColor)
{
    QList<QTreeWidgetItem*> items;
    items.reserve(choices.size());
    for (int i = 0; i < choices.size(); ++i) {
        auto* item = new QTreeWidgetItem;
        const QString choice = shown(choices[i]);
        item->setText(0, choice);
        item->setToolTip(0, choice);
        item->setData(0, Qt::UserRole, values[i]);
        if (choice.size() != choices[i].size())
            item->setData(0, fullTextRole, choices[i]);
        const QString hint = shown(hints[i]);
        item->setText(1, hint);
        item->setToolTip(1, hint);
        item->setTextAlignment(1, Qt::AlignRight);
        item->setForeground(1, hintColor);
        items.append(item);
    }
    return items;
}

bool isNavigationKey(int key)
{
    switch (key) {
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

// Marks a call during which the popup may be dispatching an event of its own:
// a receiver of our signals that deletes the completer then must not delete
// the popup under its feet.
class BusyScope
{
public:
    BusyScope(QUxSuggestCompletion* owner, int& counter) : owner(owner), counter(counter) { ++counter; }
    ~BusyScope()
    {
        if (owner)
            --counter;
    }
    bool alive() const { return !owner.isNull(); }

private:
    QPointer<QUxSuggestCompletion> owner;
    int& counter;
};

} // namespace

class QUxSuggestCompletionPrivate
{
public:
    QPointer<QLineEdit> editor;
    std::unique_ptr<QTreeWidget> popup;
    QTimer* timer = nullptr;
    QString asked; // the text of the request being answered
    int minimumLength = 0;
    int busy = 0; // calls under way that may have come from inside the popup's own event handling
    bool ready = false;

    void focusEditor() const
    {
        if (editor)
            editor->setFocus(Qt::OtherFocusReason);
    }
};

QUxSuggestCompletion::QUxSuggestCompletion(QLineEdit* editor, int delay, int minimumLength)
    : QObject(editor), d(new QUxSuggestCompletionPrivate)
{
    d->editor = editor;
    d->minimumLength = minimumLength;
    d->popup.reset(makePopup(editor));
    d->popup->installEventFilter(this);
    connect(d->popup.get(), &QTreeWidget::itemDoubleClicked, this, &QUxSuggestCompletion::doneCompletion);
    connect(d->popup.get(), &QTreeWidget::currentItemChanged, this, &QUxSuggestCompletion::selected);

    d->timer = new QTimer(this);
    d->timer->setSingleShot(true);
    setPauseInterval(delay);
    connect(d->timer, &QTimer::timeout, this, &QUxSuggestCompletion::autoSuggest);
    if (editor)
        connect(editor, &QLineEdit::textEdited, d->timer, QOverload<>::of(&QTimer::start));
}

QUxSuggestCompletion::~QUxSuggestCompletion()
{
    // Deleting a shown popup hides it and drops its items: no signal may leave a half-destroyed object.
    d->popup->removeEventFilter(this);
    disconnect(d->popup.get(), nullptr, this, nullptr);
    if (d->busy > 0) {
        d->popup->hide();
        d->popup.release()->deleteLater();
    }
}

QLineEdit* QUxSuggestCompletion::editor() const { return d->editor; }

QTreeWidget* QUxSuggestCompletion::popup() const { return d->popup.get(); }

int QUxSuggestCompletion::minimumLength() const { return d->minimumLength; }

int QUxSuggestCompletion::pauseInterval() const { return d->timer->interval(); }

void QUxSuggestCompletion::setPauseInterval(int milliseconds) { d->timer->setInterval(qMax(0, milliseconds)); }

void QUxSuggestCompletion::showCompletion(const QStringList& choices, const QStringList& hints,
                                          const QList<QVariant>& values)
{
    if (!d->editor || choices.isEmpty() || choices.size() != hints.size() || choices.size() != values.size())
        return;
    QTreeWidget* popup = d->popup.get();
    const QColor hintColor = d->editor->palette().color(QPalette::Active, QPalette::WindowText).darker(125);

    popup->setUpdatesEnabled(false);
    popup->clear();
    popup->addTopLevelItems(makeItems(choices, hints, values, hintColor));
    popup->setCurrentItem(popup->topLevelItem(0));
    const int rowHeight = qMax(0, popup->sizeHintForRow(0));
    const qint64 rows = qMin(choices.size(), maxVisibleRows);
    popup->setMaximumHeight(int(qMin<qint64>(rows * rowHeight + 3, QWIDGETSIZE_MAX)));
    popup->adjustSize();
    popup->setUpdatesEnabled(true);

    popup->move(d->editor->mapToGlobal(QPoint(0, d->editor->height())));
    popup->setFocus(Qt::OtherFocusReason);
    popup->show();
}

void QUxSuggestCompletion::receivedSuggestions(const QStringList& choices, const QStringList& hints,
                                               const QList<QVariant>& values)
{
    // A late answer, or one for a text that was edited while it was being made, is stale.
    if (!d->ready || !d->editor || d->editor->text() != d->asked)
        return;
    showCompletion(choices, hints, values);
}

void QUxSuggestCompletion::autoSuggest()
{
    if (d->ready || !d->editor) // a request from inside a request would never end
        return;
    const QString text = d->editor->text();
    if (text.size() < d->minimumLength)
        return;
    const QPointer<QUxSuggestCompletion> alive(this);
    d->ready = true;
    d->asked = text;
    emit needSuggestions(text);
    if (!alive)
        return;
    d->ready = false;
    d->asked.clear();
}

void QUxSuggestCompletion::doneCompletion()
{
    d->timer->stop();
    const BusyScope scope(this, d->busy);
    d->popup->hide(); // announces completionHidden, whose receiver may delete us
    if (!scope.alive())
        return;
    if (d->editor)
        d->editor->clearFocus();
    const QTreeWidgetItem* item = d->popup->currentItem();
    if (!item)
        return;
    const QVariant value = item->data(0, Qt::UserRole);
    const QVariant full = item->data(0, fullTextRole);
    if (d->editor)
        d->editor->setText(full.isValid() ? full.toString() : item->text(0));
    emit completionChosen(value);
}

void QUxSuggestCompletion::preventSuggest()
{
    if (d->editor)
        d->editor->clearFocus();
    d->timer->stop();
}

void QUxSuggestCompletion::selected(QTreeWidgetItem* current, QTreeWidgetItem* previous)
{
    Q_UNUSED(previous)
    const BusyScope scope(this, d->busy);
    if (current)
        emit intermediateChoice(current->data(0, Qt::UserRole));
}

bool QUxSuggestCompletion::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != d->popup.get())
        return false;
    const BusyScope scope(this, d->busy);
    const bool handled = popupEvent(event);
    return handled || !scope.alive(); // a deleted completer's popup takes no further part in the event
}

bool QUxSuggestCompletion::popupEvent(QEvent* event)
{
    const QPointer<QUxSuggestCompletion> alive(this);
    QTreeWidget* popup = d->popup.get();
    switch (event->type()) {
    case QEvent::Hide:
        emit completionHidden();
        return false;
    case QEvent::MouseButtonPress:
        popup->hide();
        if (alive)
            d->focusEditor();
        return true;
    case QEvent::KeyPress:
        break;
    default:
        return false;
    }

    auto* key = static_cast<QKeyEvent*>(event);
    if (isNavigationKey(key->key()))
        return false;
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        doneCompletion();
        if (alive) {
            d->focusEditor();
            popup->hide();
        }
        return true;
    }
    d->focusEditor();
    if (!alive)
        return true;
    const bool escape = key->key() == Qt::Key_Escape;
    if (!escape && d->editor)
        QCoreApplication::sendEvent(d->editor, event); // typing goes on in the editor
    if (alive)
        popup->hide();
    return escape;
}
