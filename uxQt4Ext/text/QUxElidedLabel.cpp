#include "QUxElidedLabel.h"

#include <QEvent>
#include <QFontMetrics>

namespace {

// Shaping costs time in proportion to the length of the text: a megabyte took
// most of a second per paint. A label can show at most a few characters per pixel, so
// eliding a piece of the text that is longer than that gives the same result.
constexpr int charsPerPixel = 4;
constexpr int minimumPiece = 256;

int pieceLength(int width) { return minimumPiece + charsPerPixel * qMax(0, width); }

// Never splits a surrogate pair.
QString head(const QString& text, int length)
{
    return text.left(text.at(length - 1).isHighSurrogate() ? length - 1 : length);
}

QString tail(const QString& text, int length)
{
    const int start = text.size() - length;
    return text.mid(text.at(start).isLowSurrogate() ? start + 1 : start);
}

// The part of @p text that eliding to @p width with @p mode can show.
QString visiblePiece(const QString& text, Qt::TextElideMode mode, int width)
{
    const int length = pieceLength(width);
    if (text.size() <= 2 * length)
        return text;
    switch (mode) {
    case Qt::ElideLeft:
        return tail(text, length);
    case Qt::ElideMiddle:
        return head(text, length) + tail(text, length);
    default:
        return head(text, length);
    }
}

// The first character of @p text (both halves of a surrogate pair) followed by "...".
QString firstAndEllipsis(const QString& text)
{
    return text.left(text.at(0).isHighSurrogate() ? 2 : 1) + QStringLiteral("...");
}

} // namespace

class QUxElidedLabelPrivate
{
public:
    Qt::TextElideMode mode = Qt::ElideRight;
    QString elided;
    QString source; // null while the cache is invalid
};

QUxElidedLabel::QUxElidedLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent), d(new QUxElidedLabelPrivate)
{}

QUxElidedLabel::~QUxElidedLabel() = default;

Qt::TextElideMode QUxElidedLabel::elideMode() const { return d->mode; }

void QUxElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    d->mode = mode;
    if (!d->source.isNull())
        d->source = QString();
    updateGeometry(); // the minimum size hint depends on the mode
    update();
}

void QUxElidedLabel::updateCachedTexts()
{
    const QString full = text();
    if (!d->source.isNull() && full == d->source)
        return;
    const QFontMetrics metrics(font());
    // First, since a larger minimum widens the label and the text is elided to the new width.
    if (!full.isEmpty())
        setMinimumWidth(metrics.horizontalAdvance(firstAndEllipsis(full)) + 1);
    // Without a mode the text is shown whole; shaping it would only cost time.
    d->elided = d->mode == Qt::ElideNone
                    ? full
                    : metrics.elidedText(visiblePiece(full, d->mode, width()), d->mode, width(), Qt::TextShowMnemonic);
    d->source = full.isNull() ? QStringLiteral("") : full;
}

QSize QUxElidedLabel::minimumSizeHint() const
{
    const QSize label = QLabel::minimumSizeHint();
    const QString full = text();
    if (d->mode == Qt::ElideNone || full.isEmpty())
        return label;
    const int margins = contentsMargins().left() + contentsMargins().right() + 2 * margin();
    return QSize(fontMetrics().horizontalAdvance(firstAndEllipsis(full)) + 1 + margins, label.height());
}

void QUxElidedLabel::paintEvent(QPaintEvent* event)
{
    if (d->mode == Qt::ElideNone) {
        QLabel::paintEvent(event);
        return;
    }
    updateCachedTexts();
    const QString full = text();
    if (d->elided == full) { // fits, or shows no text at all (a pixmap must not be cleared)
        QLabel::paintEvent(event);
        return;
    }
    // Swapping the text must not schedule another paint, or the label would repaint forever.
    const bool updatesWereDisabled = testAttribute(Qt::WA_UpdatesDisabled);
    setAttribute(Qt::WA_UpdatesDisabled, true);
    setText(d->elided);
    QLabel::paintEvent(event);
    setText(full);
    setAttribute(Qt::WA_UpdatesDisabled, updatesWereDisabled);
}

void QUxElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    d->source = QString();
}

void QUxElidedLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        d->source = QString();
}
