#include "QUxAdvancedProgressDialog.h"

#include "QUxSubProgress.h"

#include <QCoreApplication>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

QUxAdvancedProgressDialog* _the = nullptr;

// A slot delivered by processEventsLoop() may call it again; past this depth
// the outer calls are already delivering, and going deeper only eats stack.
constexpr int kMaxEventNesting = 4;
int eventNesting = 0;

// Ellipse regions cost memory in proportion to their height.
constexpr qint64 kMaxCornerRadius = 1024;

} // namespace

class QUxAdvancedProgressDialogPrivate
{
public:
    std::vector<QUxSubProgress*> rows; // registered by addProgress, in order
    QObject rowWatcher;                // context of the rows' destroyed() connections, gone with this object
    QRegion mask;

    /// Drops @p row from the rows; true when it was there.
    bool forget(QObject* row)
    {
        const auto it = std::find(rows.begin(), rows.end(), row);
        if (it == rows.end())
            return false;
        rows.erase(it);
        return true;
    }

    static void removeFromLayout(QUxAdvancedProgressDialog* dialog, QWidget* row)
    {
        if (dialog->layout())
            dialog->layout()->removeWidget(row);
    }

    static void deleteShared()
    {
        QUxAdvancedProgressDialog* dialog = _the;
        _the = nullptr;
        dialog->close();
        delete dialog;
    }
};

QUxAdvancedProgressDialog::QUxAdvancedProgressDialog(QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint), d(new QUxAdvancedProgressDialogPrivate)
{
    setObjectName(QStringLiteral("FileIOProgressDialog"));
    setAttribute(Qt::WA_TranslucentBackground);
    setContentsMargins(9, 9, 9, 9);
    setModal(true);
    setAccessibleName(tr("Progress"));
    auto* column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->setSpacing(5);
}

QUxAdvancedProgressDialog::~QUxAdvancedProgressDialog()
{
    if (_the == this)
        _the = nullptr;
}

QUxSubProgress* QUxAdvancedProgressDialog::addSubProgress(const QString& description, int steps,
                                                          bool removeWhenFinished)
{
    auto* row = new QUxSubProgress(this);
    row->setDescription(description);
    if (steps > 0) {
        row->setSteps(steps);
        if (removeWhenFinished)
            connect(row, &QUxSubProgress::finished, this, &QUxAdvancedProgressDialog::removeSubProgress);
    }
    if (layout())
        layout()->addWidget(row);
    return row;
}

void QUxAdvancedProgressDialog::removeSubProgress(QUxSubProgress* row)
{
    if (!row || row->parent() != this)
        return;
    QUxAdvancedProgressDialogPrivate::removeFromLayout(this, row);
    delete row;
}

void QUxAdvancedProgressDialog::processEventsLoop()
{
    // Touches nothing of this dialog: a delivered event may delete it.
    if (eventNesting >= kMaxEventNesting)
        return;
    ++eventNesting;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    --eventNesting;
}

QUxSubProgress* QUxAdvancedProgressDialog::addProgress(const QString& description, int steps, QWidget* parent)
{
    const bool first = !_the;
    if (first) {
        _the = new QUxAdvancedProgressDialog(parent);
        _the->show();
    }
    QUxAdvancedProgressDialog* dialog = _the;
    QUxSubProgress* row = dialog->addSubProgress(description, steps, false);
    row->setUseSmallProgressBar(!first);
    dialog->d->rows.push_back(row);
    // A row deleted behind our back must not stay registered, nor leave an empty modal dialog.
    connect(row, &QObject::destroyed, &dialog->d->rowWatcher, [dialog](QObject* gone) {
        if (dialog->d->forget(gone) && dialog->d->rows.empty() && _the == dialog) {
            _the = nullptr;
            dialog->close();
            dialog->deleteLater(); // the row is still being destroyed as its child
        }
    });
    return row;
}

void QUxAdvancedProgressDialog::destroyProgress(QUxSubProgress* row)
{
    if (!row || !_the || !_the->d->forget(row))
        return;
    QUxAdvancedProgressDialogPrivate::removeFromLayout(_the, row);
    delete row;
    if (_the && _the->d->rows.empty())
        QUxAdvancedProgressDialogPrivate::deleteShared();
}

void QUxAdvancedProgressDialog::destroyLastProgress()
{
    if (!_the || _the->d->rows.empty())
        return;
    QUxSubProgress* row = _the->d->rows.back();
    _the->d->rows.pop_back();
    if (row) {
        QUxAdvancedProgressDialogPrivate::removeFromLayout(_the, row);
        delete row;
    }
    if (_the && _the->d->rows.empty())
        QUxAdvancedProgressDialogPrivate::deleteShared();
}

void QUxAdvancedProgressDialog::increaseLastProgress()
{
    if (_the && !_the->d->rows.empty())
        _the->d->rows.back()->increaseStep();
}

int QUxAdvancedProgressDialog::progressCount() { return _the ? int(_the->d->rows.size()) : 0; }

QUxAdvancedProgressDialog* QUxAdvancedProgressDialog::the() { return _the; }

QRegion QUxAdvancedProgressDialog::roundedRect(const QRect& rect, int radius)
{
    if (rect.isEmpty())
        return QRegion();
    const qint64 width = qint64(rect.right()) - rect.left() + 1;
    const qint64 height = qint64(rect.bottom()) - rect.top() + 1;
    if (width > std::numeric_limits<int>::max() || height > std::numeric_limits<int>::max())
        return QRegion();
    const int r = int(qBound<qint64>(0, radius, std::min({width / 2, height / 2, kMaxCornerRadius})));
    QRegion region(rect.adjusted(r, 0, -r, 0));
    region += rect.adjusted(0, r, 0, -r);
    if (r == 0)
        return region;
    const int diameter = 2 * r;
    const int right = rect.right() - diameter + 1;
    const int bottom = rect.bottom() - diameter + 1;
    region += QRegion(rect.left(), rect.top(), diameter, diameter, QRegion::Ellipse);
    region += QRegion(right, rect.top(), diameter, diameter, QRegion::Ellipse);
    region += QRegion(rect.left(), bottom, diameter, diameter, QRegion::Ellipse);
    region += QRegion(right, bottom, diameter, diameter, QRegion::Ellipse);
    return region;
}

void QUxAdvancedProgressDialog::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(127, 127, 127, 255), 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(QColor(0, 0, 0, 75));
    painter.drawRoundedRect(QRectF(0, 0, width(), height()), 6.0, 6.0, Qt::AbsoluteSize);
    // A child's repaint paints this translucent dialog under it too: keep the region for the size.
    if (d->mask.boundingRect() != rect())
        d->mask = roundedRect(rect(), 6);
    setMask(d->mask);
    painter.setClipRegion(d->mask);
}
