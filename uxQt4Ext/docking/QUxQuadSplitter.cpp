#include "QUxQuadSplitter.h"

#include "uxHighlightWidget.h"

#include <QCursor>
#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointer>
#include <QRubberBand>
#include <QVector>

#include <cmath>

namespace {

const int kMaxPanes = 4;

// Every coordinate stays inside what a widget can take, so no sum of two of
// them overflows an int, here or in Qt.
int clampCoordinate(qint64 value) { return int(qBound<qint64>(-QWIDGETSIZE_MAX, value, QWIDGETSIZE_MAX)); }

int truncatedCoordinate(double value)
{
    if (!std::isfinite(value))
        return 0;
    return int(qBound(-double(QWIDGETSIZE_MAX), value, double(QWIDGETSIZE_MAX)));
}

} // namespace

class QUxQuadSplitterPrivate
{
public:
    explicit QUxQuadSplitterPrivate(QUxQuadSplitter* q) : q(q) {}

    QUxQuadSplitter* const q;
    double ratioX = 0.5;
    double ratioY = 0.5;
    int splitX = 0;
    int splitY = 0;
    int pendingX = 0;
    int pendingY = 0;
    int handleWidth = 3;
    int border = 2;
    QVector<uxHighlightWidget*> frames;
    QUxQuadSplitter::Orientation dragMode = QUxQuadSplitter::NoSplit;
    QPoint lastMousePosition;
    QRubberBand* verticalBand = nullptr;
    QRubberBand* horizontalBand = nullptr;
    bool cancelled = false;
    int fixedChildWidth = -1;
    int fixedChildHeight = 0;
    QPointer<QWidget> focusWidget;
    QPointer<QWidget> lastEmittedFocus;
    QPointer<QWidget> currentWidget;
    std::function<QWidget*(int)> currentWidgetCallback;
    bool pressed = false;

    void layout();
    void place(uxHighlightWidget* frame, qint64 x, qint64 y, qint64 width, qint64 height);
    QRect lonePaneRect() const;
    void release(const QPoint& pos);
    void showBands(const QPoint& pos);
    void forget(uxHighlightWidget* frame);

    bool movesX() const { return dragMode == QUxQuadSplitter::BothSplit || dragMode == QUxQuadSplitter::VerticalSplit; }
    bool movesY() const
    {
        return dragMode == QUxQuadSplitter::BothSplit || dragMode == QUxQuadSplitter::HorizontalSplit;
    }
};

void QUxQuadSplitterPrivate::layout()
{
    const int n = frames.size();
    if (n == 0)
        return;
    if (n == 1) {
        const QRect r = lonePaneRect();
        place(frames.at(0), r.x(), r.y(), r.width(), r.height());
        return;
    }
    const qint64 w = q->width(), h = q->height(), b = border, half = handleWidth / 2;
    const qint64 sx = splitX, sy = splitY;
    const qint64 topHeight = n == 2 ? h - 2 * b : sy - b - half;
    place(frames.at(0), b, b, sx - b - half, topHeight);
    place(frames.at(1), sx + half, b, w - sx - half - b, topHeight);
    if (n >= 3)
        place(frames.at(2), b, sy + half, n == 3 ? w - 2 * b : sx - b - half, h - sy - half - b);
    if (n >= 4)
        place(frames.at(3), sx + half, sy + half, w - sx - half - b, h - sy - half - b);
}

QRect QUxQuadSplitterPrivate::lonePaneRect() const
{
    if (fixedChildWidth <= 0 || fixedChildHeight <= 0)
        return q->rect();
    const qint64 ratio = qMax(1, q->devicePixelRatio());
    const int width = clampCoordinate(fixedChildWidth / ratio + 4);
    const int height = clampCoordinate(fixedChildHeight / ratio + 4);
    return QRect((q->width() - width) / 2, (q->height() - height) / 2, width, height);
}

void QUxQuadSplitterPrivate::place(uxHighlightWidget* frame, qint64 x, qint64 y, qint64 width, qint64 height)
{
    const QRect r(clampCoordinate(x), clampCoordinate(y), clampCoordinate(qMax<qint64>(0, width)),
                  clampCoordinate(qMax<qint64>(0, height)));
    frame->setGeometry(r);
    if (QWidget* view = frame->widget())
        view->setGeometry(2, 2, qMax(0, r.width() - 4), qMax(0, r.height() - 4));
    frame->update();
}

void QUxQuadSplitterPrivate::showBands(const QPoint& pos)
{
    const int half = handleWidth / 2;
    if (movesX()) {
        verticalBand->setGeometry(
            QRect(QPoint(pos.x() - half, border), QPoint(pos.x() - half + handleWidth - 1, q->height() - 1 - border)));
        verticalBand->show();
        verticalBand->raise();
    }
    if (movesY()) {
        horizontalBand->setGeometry(
            QRect(QPoint(border, pos.y() - half), QPoint(q->width() - 1 - border, pos.y() - half + handleWidth - 1)));
        horizontalBand->show();
        horizontalBand->raise();
    }
}

void QUxQuadSplitterPrivate::release(const QPoint& pos)
{
    pressed = false;
    if (dragMode == QUxQuadSplitter::NoSplit) {
        // An Escape with nothing to drop must not spoil the next drag.
        cancelled = false;
        return;
    }
    dragMode = QUxQuadSplitter::NoSplit;
    verticalBand->hide();
    horizontalBand->hide();
    q->setCursor(Qt::ArrowCursor);
    if (cancelled) {
        pendingX = splitX;
        pendingY = splitY;
        cancelled = false;
        return;
    }
    splitX = pendingX;
    splitY = pendingY;
    layout();
    q->updateRatios();
    dragMode = q->getOrientation(pos.x(), pos.y());
    q->setCursorSplit(dragMode);
}

void QUxQuadSplitterPrivate::forget(uxHighlightWidget* frame)
{
    QObject::disconnect(frame, nullptr, q, nullptr);
    frame->removeEventFilter(q);
    frames.removeOne(frame);
}

QUxQuadSplitter::QUxQuadSplitter(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), d(new QUxQuadSplitterPrivate(this))
{
    d->splitX = d->pendingX = width() / 2;
    d->splitY = d->pendingY = height() / 2;
    QPalette pal = palette();
    pal.setBrush(backgroundRole(), QBrush(QPixmap(QStringLiteral(":/resources/quadSplitterGrid.png"))));
    setPalette(pal);
    d->verticalBand = new QRubberBand(QRubberBand::Rectangle, this);
    d->horizontalBand = new QRubberBand(QRubberBand::Rectangle, this);
    setAttribute(Qt::WA_MouseTracking);
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setAccessibleName(tr("Quad view splitter"));
}

QUxQuadSplitter::~QUxQuadSplitter()
{
    // The frames die with the base class, after the private object.
    for (uxHighlightWidget* frame : qAsConst(d->frames)) {
        QObject::disconnect(frame, nullptr, this, nullptr);
        frame->removeEventFilter(this);
    }
}

QWidget* QUxQuadSplitter::insertWidget(QWidget* widget, int index)
{
    if (!widget || widget == this || widget->isAncestorOf(this))
        return nullptr;
    for (uxHighlightWidget* frame : qAsConst(d->frames)) {
        if (frame->widget() == widget)
            return frame;
    }
    if (d->frames.size() >= kMaxPanes)
        return nullptr;
    auto* frame = new uxHighlightWidget(this, this);
    frame->setWidget(widget);
    frame->installEventFilter(this);
    connect(frame, &QObject::destroyed, this, [this, frame]() {
        d->frames.removeOne(frame);
        d->layout();
    });
    if (index < 0 || index > d->frames.size())
        index = d->frames.size();
    d->frames.insert(index, frame);
    frame->show();
    d->layout();
    return frame;
}

void QUxQuadSplitter::removeWidget(QWidget* frame)
{
    auto* found = static_cast<uxHighlightWidget*>(hasWidget(frame) ? frame : nullptr);
    if (!found)
        return;
    d->forget(found);
    found->hide();
    found->deleteLater();
    d->layout();
}

bool QUxQuadSplitter::hasWidget(int index) const { return index >= 0 && index < d->frames.size(); }

bool QUxQuadSplitter::hasWidget(QWidget* frame) const
{
    if (!frame)
        return false;
    for (const uxHighlightWidget* f : qAsConst(d->frames)) {
        if (f == frame)
            return true;
    }
    return false;
}

int QUxQuadSplitter::count() const { return d->frames.size(); }

void QUxQuadSplitter::setChildFixedSize(int width, int height)
{
    d->fixedChildWidth = width;
    d->fixedChildHeight = height;
    d->layout();
}

void QUxQuadSplitter::getChildFixedSize(int& width, int& height) const
{
    width = d->fixedChildWidth;
    height = d->fixedChildHeight;
}

void QUxQuadSplitter::setPosition(int dx, int dy)
{
    // Tested against the applied point plus this step, up to a whole size
    // beyond the lower end: a loose bound that keeps the bar reachable.
    const qint64 low = d->handleWidth / 2 + d->border;
    if (d->movesX()) {
        const qint64 x = qint64(d->splitX) + dx;
        if (x > low && x < low + width())
            d->pendingX = clampCoordinate(qint64(d->pendingX) + dx);
    }
    if (d->movesY()) {
        const qint64 y = qint64(d->splitY) + dy;
        if (y > low && y < low + height())
            d->pendingY = clampCoordinate(qint64(d->pendingY) + dy);
    }
}

void QUxQuadSplitter::setFocus(QWidget* widget) { d->focusWidget = widget; }

void QUxQuadSplitter::updateFocus(QWidget* widget)
{
    if (widget == d->focusWidget)
        return;
    if (d->currentWidgetCallback)
        d->currentWidget = d->currentWidgetCallback(-1);
    d->focusWidget = nullptr;
    for (uxHighlightWidget* frame : qAsConst(d->frames))
        frame->update();
    if (d->focusWidget != d->lastEmittedFocus) {
        d->lastEmittedFocus = d->focusWidget;
        emit focusChanged();
    }
}

void QUxQuadSplitter::setCurrentWidgetCallback(std::function<QWidget*(int)> callback)
{
    d->currentWidgetCallback = std::move(callback);
}

QWidget* QUxQuadSplitter::currentWidget() const { return d->currentWidget; }

QUxQuadSplitter::Orientation QUxQuadSplitter::getOrientation(int x, int y) const
{
    const double half = d->handleWidth * 0.5;
    const bool nearX = x > d->splitX - half && x < d->splitX + half && d->frames.size() >= 2;
    const bool nearY = y > d->splitY - half && y < d->splitY + half;
    if (nearX && nearY)
        return BothSplit;
    if (nearX)
        return VerticalSplit;
    return nearY ? HorizontalSplit : NoSplit;
}

double QUxQuadSplitter::ratioX() const { return d->ratioX; }
double QUxQuadSplitter::ratioY() const { return d->ratioY; }

void QUxQuadSplitter::update()
{
    d->layout();
    QWidget::update();
}

void QUxQuadSplitter::updateRatios()
{
    // An empty size has no fractions; the old ones stay for when it grows again.
    if (width() > 0)
        d->ratioX = double(d->splitX) / width();
    if (height() > 0)
        d->ratioY = double(d->splitY) / height();
}

void QUxQuadSplitter::setCursorSplit(QUxQuadSplitter::Orientation orientation)
{
    switch (orientation) {
    case BothSplit:
        setCursor(Qt::SizeAllCursor);
        break;
    case VerticalSplit:
        setCursor(Qt::SplitHCursor);
        break;
    case HorizontalSplit:
        setCursor(Qt::SplitVCursor);
        break;
    default:
        setCursor(Qt::ArrowCursor);
        break;
    }
}

bool QUxQuadSplitter::eventFilter(QObject* watched, QEvent* event)
{
    auto* frame = qobject_cast<uxHighlightWidget*>(watched);
    if (frame && d->frames.contains(frame)) {
        if (event->type() == QEvent::Enter) {
            // A drag whose button came up outside ends when the pointer comes back over a view.
            const auto* enter = dynamic_cast<QEnterEvent*>(event);
            d->release(enter ? frame->mapTo(this, enter->pos()) : mapFromGlobal(QCursor::pos()));
        } else if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
            d->layout();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void QUxQuadSplitter::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->splitX = d->pendingX = truncatedCoordinate(width() * d->ratioX);
    d->splitY = d->pendingY = truncatedCoordinate(height() * d->ratioY);
    d->layout();
}

void QUxQuadSplitter::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    d->dragMode = getOrientation(event->x(), event->y());
    d->pressed = true;
    setCursorSplit(d->dragMode);
    d->lastMousePosition = event->pos();
    d->showBands(event->pos());
}

void QUxQuadSplitter::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if ((event->buttons() & Qt::LeftButton) && d->dragMode != NoSplit) {
        if (pos == d->lastMousePosition)
            return;
        if (d->verticalBand->isVisible())
            d->verticalBand->move(pos.x() - 2, d->verticalBand->y());
        if (d->horizontalBand->isVisible())
            d->horizontalBand->move(d->horizontalBand->x(), pos.y() - 2);
        setPosition(pos.x() - d->lastMousePosition.x(), pos.y() - d->lastMousePosition.y());
        d->lastMousePosition = pos;
    } else if (event->buttons() == Qt::NoButton && !d->pressed) {
        d->dragMode = getOrientation(pos.x(), pos.y());
        setCursorSplit(d->dragMode);
    }
}

void QUxQuadSplitter::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        d->release(event->pos());
    else
        QWidget::mouseReleaseEvent(event);
}

void QUxQuadSplitter::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    d->cancelled = true;
    d->release(d->lastMousePosition);
}
