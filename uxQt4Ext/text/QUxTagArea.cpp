#include "QUxTagArea.h"

#include "QUxFlowLayout.h"
#include "QUxTagLabel.h"

#include <algorithm>

namespace {

// Chips made ahead of any tag list: enough for any real pool, small enough not to stall on a wild count.
constexpr int kSpareChipLimit = 10000;

} // namespace

class QUxTagAreaPrivate
{
public:
    QStringList tags;
    QList<QUxTagLabel*> labels;
    QUxTagLabel* lastLabel = nullptr;
    QWidget* container = nullptr;
    QUxFlowLayout* flowLayout = nullptr;
    // Chips the list being shown needs, beyond the spare limit.
    int needed = 0;
};

QUxTagArea::QUxTagArea(QWidget* parent) : QScrollArea(parent), d(std::make_unique<QUxTagAreaPrivate>())
{
    d->labels.reserve(20);
    d->container = new QWidget(this);
    d->container->setObjectName(QStringLiteral("QUxTagAreaContainer"));
    d->flowLayout = new QUxFlowLayout(d->container, 3, 3, 3);
    d->flowLayout->setSizeConstraint(QLayout::SetNoConstraint);
    setWidget(d->container);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameStyle(0);
    setFocusPolicy(Qt::StrongFocus);
}

QUxTagArea::~QUxTagArea() = default;

void QUxTagArea::setTags(const QStringList& tags)
{
    if (tags == d->tags)
        return;
    d->tags = tags;
    updateLabels(tags);
}

QStringList QUxTagArea::getTags() const { return d->tags; }

void QUxTagArea::updateLabels(const QStringList& tags)
{
    d->needed = tags.size();
    setUsedLabelCount(tags.size());
    d->needed = 0;
    const int shown = std::min(tags.size(), d->labels.size());
    for (int i = 0; i < shown; ++i) {
        d->labels.at(i)->setTag(tags.at(i));
        d->labels.at(i)->show();
    }
}

void QUxTagArea::setUsedLabelCount(int count)
{
    const int wanted = std::min(count, std::max(kSpareChipLimit, d->needed));
    while (d->labels.size() < wanted) {
        d->lastLabel = createLabel(d->lastLabel);
        d->labels.append(d->lastLabel);
    }
    for (int i = std::max(0, count); i < d->labels.size(); ++i)
        d->labels.at(i)->hide();
}

QUxTagLabel* QUxTagArea::createLabel(QUxTagLabel* previous)
{
    auto* label = new QUxTagLabel(d->container);
    d->flowLayout->addWidget(label);
    connect(label, &QUxTagLabel::tagRemove, this, &QUxTagArea::tagRemove);
    if (previous)
        setTabOrder(previous, label);
    return label;
}
