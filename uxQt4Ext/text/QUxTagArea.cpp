#include "QUxTagArea.h"

#include "QUxFlowLayout.h"
#include "QUxTagLabel.h"

#include <algorithm>

class QUxTagAreaPrivate
{
public:
    QStringList tags;
    QList<QUxTagLabel*> labels;
    QUxTagLabel* lastLabel = nullptr;
    QWidget* container = nullptr;
    QUxFlowLayout* flowLayout = nullptr;
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
    setUsedLabelCount(tags.size());
    for (int i = 0; i < tags.size(); ++i) {
        d->labels.at(i)->setTag(tags.at(i));
        d->labels.at(i)->show();
    }
}

void QUxTagArea::setUsedLabelCount(int count)
{
    while (d->labels.size() < count) {
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
