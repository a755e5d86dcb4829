#include "QUxProgressDialogGUII.h"

#include "QUxAdvancedProgressDialog.h"
#include "ui_QUxProgressDialogGUI.h"

#include <QPainter>
#include <QPointer>

namespace {

// Guarded: the overlay is a child of its workspace and goes with it.
QPointer<QUxProgressDialogGUII> _the;
QPointer<QWidget> _parent;

} // namespace

class QUxProgressDialogGUIIPrivate
{
public:
    Ui::QUxProgressDialogGUI ui;
};

QUxProgressDialogGUII::QUxProgressDialogGUII(QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint), d(new QUxProgressDialogGUIIPrivate)
{
    setAttribute(Qt::WA_TranslucentBackground);
    d->ui.setupUi(this);
    d->ui._progress->setAccessibleName(tr("Busy"));
}

QUxProgressDialogGUII::~QUxProgressDialogGUII() = default;

void QUxProgressDialogGUII::start(const QString& text, QWidget* parent)
{
    if (parent && !parent->isVisible())
        return;
    QWidget* workspace = parent ? parent : _parent.data();
    if (!_the) {
        _the = new QUxProgressDialogGUII(workspace);
        _the->hide();
    }
    Ui::QUxProgressDialogGUI& ui = _the->d->ui;
    ui._status->setText(text);
    ui._progress->startAnimation();
    if (workspace) {
        _the->resize(workspace->frameSize());
        _the->move(workspace->mapToGlobal(QPoint(0, 0)));
    }
    ui._progress->show();
    _the->show();
}

void QUxProgressDialogGUII::stop()
{
    if (!_the)
        return;
    QUxProgressDialogGUII* overlay = _the;
    _the = nullptr;
    overlay->d->ui._status->setText(QString());
    overlay->d->ui._progress->stopAnimation();
    overlay->hide();
    delete overlay;
}

void QUxProgressDialogGUII::destroy() { delete _the.data(); }

void QUxProgressDialogGUII::setProgressVisible(bool visible)
{
    if (_the)
        _the->d->ui._progress->setVisible(visible);
}

void QUxProgressDialogGUII::setWorkspace(QWidget* workspace) { _parent = workspace; }

QUxProgressDialogGUII* QUxProgressDialogGUII::the() { return _the; }

QRegion QUxProgressDialogGUII::roundedRect(const QRect& rect, int radius)
{
    return QUxAdvancedProgressDialog::roundedRect(rect, radius);
}

void QUxProgressDialogGUII::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 125));
    painter.drawRect(0, 0, width(), height());
}
