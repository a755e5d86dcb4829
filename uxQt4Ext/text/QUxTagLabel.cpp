#include "QUxTagLabel.h"

#include <uxIconManager.h>
#include <uxPlatform.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>

namespace {

struct ClosePixmaps
{
    QPixmap normal;
    QPixmap highlighted;
};

std::unique_ptr<ClosePixmaps> s_closePixmaps;

// Pixmaps must go before the application does; a later application makes them anew.
void dropClosePixmaps() { s_closePixmaps.reset(); }

const ClosePixmaps& closePixmaps()
{
    if (!s_closePixmaps) {
        const QSize size(uxPlatform::getMiniIconSizeX(), uxPlatform::getMiniIconSizeY());
        const QIcon icon = uxIconManager::getIcon("Close", size.width(), size.height(), "");
        s_closePixmaps = std::make_unique<ClosePixmaps>();
        s_closePixmaps->normal = icon.pixmap(size, QIcon::Normal, QIcon::Off);
        s_closePixmaps->highlighted = icon.pixmap(size, QIcon::Normal, QIcon::On);
        qAddPostRoutine(dropClosePixmaps);
    }
    return *s_closePixmaps;
}

} // namespace

class QUxTagLabelPrivate
{
public:
    QLabel* textLabel = nullptr;
    QLabel* iconLabel = nullptr;
    QPixmap normalPixmap;
    QPixmap highlightedPixmap;
    QString tag;
    bool focused = false;
    bool hovered = false;
};

QUxTagLabel::QUxTagLabel(QWidget* parent) : QFrame(parent), d(std::make_unique<QUxTagLabelPrivate>())
{
    const ClosePixmaps& pixmaps = closePixmaps();
    d->normalPixmap = pixmaps.normal;
    d->highlightedPixmap = pixmaps.highlighted;
    setFocusPolicy(Qt::StrongFocus);

    d->textLabel = new QLabel(this);
    d->textLabel->setTextFormat(Qt::PlainText);
    d->textLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    d->iconLabel = new QLabel(this);
    d->iconLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    d->iconLabel->setAccessibleName(tr("Remove tag"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(d->textLabel);
    layout->addWidget(d->iconLabel);
    updateIcon();
}

QUxTagLabel::~QUxTagLabel() = default;

void QUxTagLabel::setTag(const QString& tag)
{
    if (tag == d->tag)
        return;
    d->tag = tag;
    d->textLabel->setText(tag);
    setAccessibleName(tag);
}

QString QUxTagLabel::getTag() const { return d->tag; }

void QUxTagLabel::updateIcon()
{
    d->iconLabel->setPixmap(d->focused || d->hovered ? d->highlightedPixmap : d->normalPixmap);
}

void QUxTagLabel::emitTagRemove() { emit tagRemove(d->tag); }

void QUxTagLabel::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) {
        // Handled here: the press must not travel on to the area behind the chip.
        event->accept();
        emitTagRemove();
    }
}

void QUxTagLabel::keyPressEvent(QKeyEvent* event)
{
    QWidget::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        emitTagRemove();
    }
}

void QUxTagLabel::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    d->focused = true;
    updateIcon();
}

void QUxTagLabel::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    d->focused = false;
    updateIcon();
}

void QUxTagLabel::enterEvent(QEvent* event)
{
    QWidget::enterEvent(event);
    d->hovered = true;
    updateIcon();
}

void QUxTagLabel::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    d->hovered = false;
    updateIcon();
}
