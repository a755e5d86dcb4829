#include "QUxCollapsibleFrame.h"

#include <QUxLed.h>
#include <uxPlatform.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPropertyAnimation>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

const char* const headName = "CollapsibleHead";

// The header as screen readers see it: a button that folds the frame, with
// the frame's folding as its expanded state.
class CollapsibleHeadAccessible : public QAccessibleWidget
{
public:
    explicit CollapsibleHeadAccessible(QWidget* head) : QAccessibleWidget(head, QAccessible::Button) {}

    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        if (const QUxCollapsibleFrame* frame = owner()) {
            result.expandable = frame->isCollapsible();
            result.expanded = !frame->isCollapsed();
            result.collapsed = frame->isCollapsed();
        }
        return result;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (owner() && owner()->isCollapsible())
            names.prepend(toggleAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        QUxCollapsibleFrame* frame = owner();
        if (frame && (name == toggleAction() || name == pressAction()))
            frame->setCollapsed(!frame->isCollapsed());
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QUxCollapsibleFrame* owner() const { return qobject_cast<QUxCollapsibleFrame*>(widget()->parentWidget()); }
};

void installHeadAccessible()
{
    static const bool installed =
        (QAccessible::installFactory([](const QString& key, QObject* object) -> QAccessibleInterface* {
             auto* head = qobject_cast<QFrame*>(object);
             if (!head || key != QLatin1String("QFrame") || head->objectName() != QLatin1String(headName)
                 || !qobject_cast<QUxCollapsibleFrame*>(head->parentWidget()))
                 return nullptr;
             return new CollapsibleHeadAccessible(head);
         }),
         true);
    Q_UNUSED(installed)
}

// Display-scaled column width; huge or negative requests are clamped to what a widget can take.
int scaledColumnWidth(int width)
{
    const double scaled = uxPlatform::getDpiScaleX() * width;
    if (!std::isfinite(scaled))
        return 0;
    return int(qBound(0.0, scaled, double(QWIDGETSIZE_MAX)));
}

void fixGrid(QGridLayout* grid, int width)
{
    const int columns = grid->columnCount();
    if (columns >= 2)
        grid->setColumnMinimumWidth(0, width);
    if (columns >= 3)
        grid->setColumnMinimumWidth(1, width);
}

int scaledHeight(int height, double scale) { return int(height * scale); }

} // namespace

class QUxCollapsibleFramePrivate
{
public:
    bool collapsed = false;
    bool collapsible = true;
    bool frameVisible = true;
    QPropertyAnimation* animation = nullptr;
    QStackedWidget* body = nullptr;
    QVBoxLayout* mainLayout = nullptr;
    QHBoxLayout* headerLayout = nullptr;
    QLabel* caption = nullptr;
    QCheckBox* headerCheckBox = nullptr;
    QFrame* header = nullptr;
    // The frame makes no LED of its own: settings are recorded, and forwarded while there is one.
    QPointer<QUxLed> led;
    QUxCollapsibleFrame::LedColor ledOnColor = QUxCollapsibleFrame::WHITE;
    QUxCollapsibleFrame::LedColor ledOffColor = QUxCollapsibleFrame::BLACK;
    QUxCollapsibleFrame::LedShape ledOnShape = QUxCollapsibleFrame::CIRCLE;
    QUxCollapsibleFrame::LedShape ledOffShape = QUxCollapsibleFrame::CIRCLE;

    void notifyExpandedState() const
    {
        QAccessible::State changed;
        changed.expanded = true;
        changed.collapsed = true;
        QAccessibleStateChangeEvent event(header, changed);
        QAccessible::updateAccessibility(&event);
    }

    // Widgets the frame is made of, or that contain it, cannot become its pages.
    bool acceptsPage(const QUxCollapsibleFrame* frame, QWidget* page) const
    {
        return page && !page->isAncestorOf(frame) && page != frame && page != body && !header->isAncestorOf(page)
               && page != header && body->indexOf(page) < 0;
    }
};

QUxCollapsibleFrame::QUxCollapsibleFrame(QWidget* parent) : QWidget(parent), d(new QUxCollapsibleFramePrivate)
{
    setupUi();
}

QUxCollapsibleFrame::QUxCollapsibleFrame(const QString& caption, bool collapsed, QWidget* parent)
    : QWidget(parent), d(new QUxCollapsibleFramePrivate)
{
    setupUi();
    setCaption(caption);
    if (d->collapsible)
        setCollapsed(collapsed);
}

QUxCollapsibleFrame::~QUxCollapsibleFrame() = default;

void QUxCollapsibleFrame::setupUi()
{
    installHeadAccessible();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);

    d->header = new QFrame(this);
    d->header->setObjectName(QLatin1String(headName));
    d->header->setFrameShape(QFrame::NoFrame);
    d->header->setFrameShadow(QFrame::Plain);
    // The horizontal factor bounds the minimum and the vertical one the maximum.
    d->header->setMinimumHeight(scaledHeight(24, uxPlatform::getDpiScaleX()));
    d->header->setMaximumHeight(scaledHeight(24, uxPlatform::getDpiScaleY()));
    d->header->installEventFilter(this);
    d->header->setAccessibleDescription(tr("Click to fold or unfold the frame"));

    d->headerCheckBox = new QCheckBox(d->header);
    d->headerCheckBox->setTristate(true);
    d->headerCheckBox->hide();
    connect(d->headerCheckBox, SIGNAL(stateChanged(int)), this, SIGNAL(stateChanged(int)));

    d->caption = new QLabel(d->header);
    d->caption->setObjectName(QStringLiteral("CollapsibleFrameCaption"));
    d->caption->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    d->caption->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QFont bold = d->caption->font();
    bold.setWeight(75);
    d->caption->setFont(bold);
    setCaption(tr("Frame Title"));

    d->headerLayout = new QHBoxLayout(d->header);
    d->headerLayout->addWidget(d->headerCheckBox);
    d->headerLayout->addWidget(d->caption);
    d->headerLayout->setSpacing(4);
    d->headerLayout->setContentsMargins(6, 2, 2, 2);

    d->body = new QStackedWidget(this);
    d->body->setObjectName(QStringLiteral("CollapsibleBody"));
    d->body->setFrameShape(QFrame::StyledPanel);
    d->body->setFrameShadow(QFrame::Plain);

    d->mainLayout = new QVBoxLayout(this);
    d->mainLayout->addWidget(d->header);
    d->mainLayout->addWidget(d->body);
    d->mainLayout->setSpacing(0);
    d->mainLayout->setContentsMargins(0, 0, 0, 0);

    d->animation = new QPropertyAnimation(d->body, "geometry", this);
    d->animation->setDuration(200);
    connect(d->animation, SIGNAL(finished()), this, SLOT(finishedAnimation()));

    resize(100, 100);
    d->collapsed = false;
}

QString QUxCollapsibleFrame::caption() const { return d->caption->text(); }

void QUxCollapsibleFrame::setCaption(const QString& value)
{
    d->caption->setText(value);
    // A frame without a caption is still named to screen readers.
    d->header->setAccessibleName(value.isEmpty() ? tr("Collapsible frame") : value);
}

Qt::Alignment QUxCollapsibleFrame::captionAlignment() const { return d->caption->alignment(); }
void QUxCollapsibleFrame::setCaptionAlignment(Qt::Alignment align) { d->caption->setAlignment(align); }

bool QUxCollapsibleFrame::isCollapsed() const { return d->collapsed; }

void QUxCollapsibleFrame::setCollapsed(bool value)
{
    if (!d->collapsible)
        return;
    if (d->led)
        d->led->setValue(!value);
    d->body->stackUnder(d->header);
    d->body->setVisible(!value);
    d->collapsed = value;
    d->notifyExpandedState();
    emit toggled(value);
}

void QUxCollapsibleFrame::setCollapsible(bool value) { d->collapsible = value; }
bool QUxCollapsibleFrame::isCollapsible() const { return d->collapsible; }
bool QUxCollapsibleFrame::isFrameVisible() const { return d->frameVisible; }

void QUxCollapsibleFrame::setFrameVisible(bool value)
{
    if (value == d->frameVisible)
        return;
    d->frameVisible = value;
    d->header->setVisible(value);
    d->body->setStyleSheet(
        value ? QStringLiteral("QStackedWidget#CollapsibleBody { border: 1px solid rgb(127, 127, 127); }")
              : QStringLiteral("QStackedWidget#CollapsibleBody { border: 0px; }"));
    // A page without a layout has no margins to adapt.
    QWidget* page = d->body->currentWidget();
    if (QLayout* layout = page ? page->layout() : nullptr) {
        const int margin = value ? 9 : 0;
        layout->setContentsMargins(margin, margin, margin, margin);
    }
}

void QUxCollapsibleFrame::setHeaderCheckBoxVisible(bool value) { d->headerCheckBox->setVisible(value); }
bool QUxCollapsibleFrame::isHeaderCheckBoxVisible() const { return !d->headerCheckBox->isHidden(); }
QCheckBox* QUxCollapsibleFrame::headerCheckBox() const { return d->headerCheckBox; }

void QUxCollapsibleFrame::addPage(QWidget* page) { insertPage(count(), page); }

void QUxCollapsibleFrame::insertPage(int index, QWidget* page)
{
    if (!d->acceptsPage(this, page))
        return;
    d->body->insertWidget(index, page);
    // Numbered from the page count after insertion plus one: the first page is "Page 2".
    if (page->windowTitle().isEmpty())
        page->setWindowTitle(tr("Page %1").arg(d->body->count() + 1));
}

void QUxCollapsibleFrame::removePage(int index)
{
    if (QWidget* page = d->body->widget(index))
        d->body->removeWidget(page);
}

int QUxCollapsibleFrame::count() const { return d->body->count(); }
int QUxCollapsibleFrame::currentIndex() const { return d->body->currentIndex(); }
QWidget* QUxCollapsibleFrame::widget(int index) const { return d->body->widget(index); }

void QUxCollapsibleFrame::setCurrentIndex(int index)
{
    d->body->setCurrentIndex(index);
    emit currentIndexChanged(d->body->currentIndex());
}

QString QUxCollapsibleFrame::pageTitle() const
{
    const QWidget* page = d->body->currentWidget();
    return page ? page->windowTitle() : QString();
}

void QUxCollapsibleFrame::setPageTitle(const QString& title)
{
    QWidget* page = d->body->currentWidget();
    if (!page)
        return;
    page->setWindowTitle(title);
    emit pageTitleChanged(title);
}

bool QUxCollapsibleFrame::ledValue() const { return d->led ? d->led->value() : false; }
QUxCollapsibleFrame::LedColor QUxCollapsibleFrame::ledOnColor() const { return d->ledOnColor; }
QUxCollapsibleFrame::LedColor QUxCollapsibleFrame::ledOffColor() const { return d->ledOffColor; }
QUxCollapsibleFrame::LedShape QUxCollapsibleFrame::ledOnShape() const { return d->ledOnShape; }
QUxCollapsibleFrame::LedShape QUxCollapsibleFrame::ledOffShape() const { return d->ledOffShape; }

void QUxCollapsibleFrame::setLedValue(bool value)
{
    if (d->led)
        d->led->setValue(value);
}

void QUxCollapsibleFrame::setLedOnColor(LedColor value)
{
    d->ledOnColor = value;
    if (d->led)
        d->led->setOnColor(static_cast<QUxLed::ledColor>(value));
}

void QUxCollapsibleFrame::setLedOffColor(LedColor value)
{
    d->ledOffColor = value;
    if (d->led)
        d->led->setOffColor(static_cast<QUxLed::ledColor>(value));
}

void QUxCollapsibleFrame::setLedOnShape(LedShape value)
{
    d->ledOnShape = value;
    if (d->led)
        d->led->setOnShape(static_cast<QUxLed::ledShape>(value));
}

void QUxCollapsibleFrame::setLedOffShape(LedShape value)
{
    d->ledOffShape = value;
    if (d->led)
        d->led->setOffShape(static_cast<QUxLed::ledShape>(value));
}

void QUxCollapsibleFrame::findCollapsibleFrames(QObject* root, std::set<QUxCollapsibleFrame*>& out)
{
    if (!root)
        return;
    const QList<QUxCollapsibleFrame*> frames = root->findChildren<QUxCollapsibleFrame*>();
    out.insert(frames.cbegin(), frames.cend());
}

void QUxCollapsibleFrame::findGridLayouts(QObject* root, std::set<QGridLayout*>& out)
{
    if (!root)
        return;
    const QList<QGridLayout*> grids = root->findChildren<QGridLayout*>();
    out.insert(grids.cbegin(), grids.cend());
}

void QUxCollapsibleFrame::fixLayouts(QWidget* root, int width, std::vector<QGridLayout*>* exclude)
{
    std::set<QGridLayout*> grids;
    findGridLayouts(root, grids);
    const int scaled = scaledColumnWidth(width);
    for (QGridLayout* grid : grids) {
        if (!exclude || std::find(exclude->cbegin(), exclude->cend(), grid) == exclude->cend())
            fixGrid(grid, scaled);
    }
}

void QUxCollapsibleFrame::fixLayout(QWidget* widget, int width)
{
    if (auto* grid = widget ? qobject_cast<QGridLayout*>(widget->layout()) : nullptr)
        fixGrid(grid, scaledColumnWidth(width));
}

bool QUxCollapsibleFrame::eventFilter(QObject* watched, QEvent* event)
{
    // Every release on the header is taken, foldable or not, so that it never reaches the panel behind.
    if (watched == d->header && event->type() == QEvent::MouseButtonRelease) {
        if (d->collapsible)
            setCollapsed(!d->collapsed);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void QUxCollapsibleFrame::mousePressEvent(QMouseEvent* event) { QWidget::mousePressEvent(event); }
void QUxCollapsibleFrame::mouseMoveEvent(QMouseEvent* event) { QWidget::mouseMoveEvent(event); }
void QUxCollapsibleFrame::mouseReleaseEvent(QMouseEvent* event) { QWidget::mouseReleaseEvent(event); }

void QUxCollapsibleFrame::finishedAnimation()
{
    if (d->collapsed)
        d->body->hide();
}
