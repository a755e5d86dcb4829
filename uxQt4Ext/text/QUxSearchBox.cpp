#include "QUxSearchBox.h"

#include <uxIconManager.h>
#include <uxPlatform.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolButton>

#include <cmath>
#include <cstdio>

namespace {

constexpr int defaultDelay = 750;

// A non-finite or absurd display scale must not reach an int conversion.
int scaled(int size, double scale)
{
    const double value = std::isfinite(scale) ? size * scale : size;
    return int(qBound(0.0, value, 10000.0));
}

} // namespace

class QUxSearchBoxPrivate
{
public:
    QLineEdit* line = nullptr;
    QToolButton* button = nullptr;
    QHBoxLayout* layout = nullptr;
    QTimer* timer = nullptr;
    int interval = defaultDelay;
    bool live = true;
    bool delayed = false;

    void stopTimer()
    {
        if (timer)
            timer->stop();
    }
};

QUxSearchBox::QUxSearchBox(QWidget* parent) : QWidget(parent), d(new QUxSearchBoxPrivate)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMinimumHeight(scaled(20, uxPlatform::getDpiScaleY()));

    d->button = new QToolButton(this);
    d->button->setObjectName(QStringLiteral("SearchButton"));
    d->button->setIcon(uxIconManager::getIcon("Search", ""));
    d->button->setCheckable(true);
    d->button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    d->button->setAccessibleName(tr("Clear search"));

    d->line = new QLineEdit(this);
    d->line->setObjectName(QStringLiteral("SearchLine"));
    d->line->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    d->line->setAccessibleName(tr("Search"));

    d->layout = new QHBoxLayout(this);
    d->layout->setObjectName(QStringLiteral("searchlayout"));
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(0);
    d->layout->addWidget(d->button);
    d->layout->addWidget(d->line);

    connect(d->line, &QLineEdit::textChanged, this, &QUxSearchBox::searchChanged_p);
    connect(d->line, &QLineEdit::returnPressed, this, &QUxSearchBox::searchPressedReturn_p);
    connect(d->button, &QToolButton::clicked, this, &QUxSearchBox::searchButtonPress_p);
}

QUxSearchBox::~QUxSearchBox() = default;

QString QUxSearchBox::text() const { return d->line->text(); }

void QUxSearchBox::setText(const QString& text)
{
    {
        const QSignalBlocker blocker(d->line);
        d->line->setText(text);
    }
    const QSignalBlocker blocker(d->button);
    d->button->setChecked(!d->line->text().isEmpty());
}

void QUxSearchBox::clear()
{
    d->line->clear();
    std::fputs("QUxSearchBox::clear\n", stdout);
    std::fflush(stdout);
}

void QUxSearchBox::addWidget(QWidget* widget)
{
    if (widget && widget != this && !widget->isAncestorOf(this))
        d->layout->addWidget(widget);
}

void QUxSearchBox::beginSearch()
{
    d->line->setFocus(Qt::ShortcutFocusReason);
    d->line->selectAll();
}

bool QUxSearchBox::isLiveSearch() const { return d->live; }

void QUxSearchBox::enableLiveSearch(bool on)
{
    d->live = on;
    if (!on)
        d->stopTimer();
}

bool QUxSearchBox::isDelayedLiveSearch() const { return d->delayed; }

void QUxSearchBox::setDelayedLiveSearch(bool on)
{
    d->delayed = on;
    if (!on) {
        d->stopTimer();
        return;
    }
    if (!d->timer) {
        d->timer = new QTimer(this);
        d->timer->setSingleShot(true);
        d->timer->setInterval(d->interval);
    }
    connect(d->timer, &QTimer::timeout, this, &QUxSearchBox::searchTimout_p);
}

int QUxSearchBox::delayInterval() const { return d->interval; }

void QUxSearchBox::setDelayInterval(int milliseconds)
{
    d->interval = qMax(0, milliseconds);
    if (d->timer)
        d->timer->setInterval(d->interval);
}

void QUxSearchBox::setSearchLineStyle(bool open)
{
    d->line->setObjectName(open ? QStringLiteral("SearchLineOpen") : QStringLiteral("SearchLine"));
}

void QUxSearchBox::searchChanged_p(const QString& text)
{
    if (!d->live)
        return;
    d->button->setChecked(!text.isEmpty());
    if (!d->delayed)
        emit searchChanged(text);
    else if (d->timer)
        d->timer->start(d->interval);
}

void QUxSearchBox::searchPressedReturn_p()
{
    d->stopTimer();
    d->button->setChecked(!d->line->text().isEmpty());
    emit searchPressedReturn();
}

void QUxSearchBox::searchButtonPress_p()
{
    d->stopTimer();
    const bool hadText = !d->line->text().isEmpty();
    {
        const QSignalBlocker lineBlocker(d->line);
        const QSignalBlocker buttonBlocker(d->button);
        d->line->setText(QString());
        d->button->setChecked(false);
    }
    if (hadText) {
        const QPointer<QUxSearchBox> alive(this); // a slot may delete the box
        emit searchChanged(QString());
        if (!alive)
            return;
    }
    d->button->setChecked(false);
    emit searchButtonPress();
}

void QUxSearchBox::searchTimout_p() { emit searchChanged(d->line->text()); }
