#include "QUxFileDropLineEdit.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace {

const QString uriListType() { return QStringLiteral("text/uri-list"); }

} // namespace

QUxFileDropLineEdit::QUxFileDropLineEdit(QWidget* parent) : QLineEdit(parent) { setAcceptDrops(true); }

QUxFileDropLineEdit::QUxFileDropLineEdit(const QString& text, QWidget* parent) : QLineEdit(text, parent)
{
    setAcceptDrops(true);
}

QUxFileDropLineEdit::~QUxFileDropLineEdit() = default;

void QUxFileDropLineEdit::dragEnterEvent(QDragEnterEvent* event)
{
    const QMimeData* data = event->mimeData();
    if (data && data->hasFormat(uriListType()))
        event->acceptProposedAction();
}

void QUxFileDropLineEdit::dropEvent(QDropEvent* event)
{
    const QMimeData* data = event->mimeData();
    if (!data || !data->hasFormat(uriListType()))
        return;
    const QList<QUrl> urls = data->urls();
    const QString path = urls.isEmpty() ? QString() : urls.first().toLocalFile();
    if (!path.isEmpty())
        emit fileDropped(path);
    event->acceptProposedAction();
}
