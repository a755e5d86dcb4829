#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxCollapsibleFrame.h>
#include <QUxColor.h>
#include <QUxColorArray.h>
#include <QUxDoubleSpiner.h>
#include <QUxIntegerSlider.h>
#include <QUxQuadSplitter.h>
#include <QUxSlider.h>
#include <QUxTagArea.h>
#include <QUxVec3Control.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <cmath>
#include <functional>

namespace {

/// A stand-in for a render view: a projected ground grid with the view's name.
/// A press makes it the current view of its splitter.
class Viewport : public QWidget
{
public:
    enum Projection { Perspective, Top, Front, Side };

    std::function<void(Viewport*)> onPress;

    Viewport(Projection projection, const QString& name, QWidget* parent = nullptr)
        : QWidget(parent), m_projection(projection), m_name(name)
    {
        // The splitter's frames highlight children of this name only.
        setObjectName(QStringLiteral("Render"));
        setMinimumSize(40, 40);
        setFocusPolicy(Qt::ClickFocus);
        setAccessibleName(name);
    }

    QString name() const { return m_name; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), m_projection == Perspective ? QColor(58, 62, 70) : QColor(48, 50, 54));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(96, 100, 108), 1));
        if (m_projection == Perspective)
            paintPerspectiveGrid(painter);
        else
            paintFlatGrid(painter);
        painter.setPen(QColor(220, 220, 220));
        painter.drawText(rect().adjusted(8, 6, -8, -6), Qt::AlignLeft | Qt::AlignTop, m_name);
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        if (onPress)
            onPress(this);
        QWidget::mousePressEvent(event);
    }

private:
    void paintFlatGrid(QPainter& painter) const
    {
        const int step = 20;
        for (int x = width() / 2 % step; x < width(); x += step)
            painter.drawLine(x, 0, x, height());
        for (int y = height() / 2 % step; y < height(); y += step)
            painter.drawLine(0, y, width(), y);
        painter.setPen(QPen(m_projection == Top ? QColor(200, 80, 80) : QColor(80, 170, 90), 2));
        painter.drawLine(0, height() / 2, width(), height() / 2);
        painter.setPen(QPen(m_projection == Side ? QColor(200, 80, 80) : QColor(80, 120, 210), 2));
        painter.drawLine(width() / 2, 0, width() / 2, height());
    }

    // Lines of a ground plane seen from above the horizon, vanishing at the centre.
    void paintPerspectiveGrid(QPainter& painter) const
    {
        const QPointF vanishing(width() * 0.5, height() * 0.35);
        const double bottom = height();
        for (int i = -10; i <= 10; ++i)
            painter.drawLine(vanishing, QPointF(vanishing.x() + i * width() * 0.15, bottom));
        for (int i = 1; i <= 12; ++i) {
            const double y = vanishing.y() + (bottom - vanishing.y()) * std::pow(i / 12.0, 2.0);
            painter.drawLine(QPointF(0, y), QPointF(width(), y));
        }
    }

    Projection m_projection;
    QString m_name;
};

/// One row of a property grid: a label and its control.
void addRow(QGridLayout* grid, const QString& label, QWidget* control)
{
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(label), row, 0);
    grid->addWidget(control, row, 1);
}

class LayoutPage : public QWidget
{
public:
    LayoutPage()
    {
        m_log = new GalleryLog;
        auto* layout = new QHBoxLayout(this);
        layout->addLayout(buildViews(), 1);
        layout->addWidget(buildPanel(), 1);
    }

private:
    QVBoxLayout* buildViews()
    {
        m_splitter = new QUxQuadSplitter;
        m_splitter->setMinimumSize(360, 300);
        m_splitter->setCurrentWidgetCallback([this](int) -> QWidget* { return m_current; });
        connect(m_splitter, &QUxQuadSplitter::focusChanged, this,
                [this] { m_log->log(QStringLiteral("focusChanged()")); });
        for (int i = 0; i < 4; ++i)
            addView();
        setCurrent(m_views.value(0));

        auto* add = new QPushButton(tr("Add view"));
        auto* remove = new QPushButton(tr("Remove view"));
        auto* ratios = new QPushButton(tr("Show ratios"));
        connect(add, &QPushButton::clicked, this, [this] { addView(); });
        connect(remove, &QPushButton::clicked, this, [this] { removeView(); });
        connect(ratios, &QPushButton::clicked, this, [this] {
            m_log->log(tr("ratios %1 x %2").arg(fixedNumber(m_splitter->ratioX()), fixedNumber(m_splitter->ratioY())));
        });
        auto* buttons = new QHBoxLayout;
        buttons->addWidget(add);
        buttons->addWidget(remove);
        buttons->addWidget(ratios);
        buttons->addStretch();

        auto* column = new QVBoxLayout;
        column->addWidget(m_splitter, 1);
        column->addLayout(buttons);
        column->addWidget(m_log);
        m_log->setMaximumHeight(90);
        return column;
    }

    void addView()
    {
        static const char* const names[] = {QT_TR_NOOP("Perspective"), QT_TR_NOOP("Top"), QT_TR_NOOP("Front"),
                                            QT_TR_NOOP("Side")};
        if (m_splitter->count() >= 4)
            return;
        // The first free projection, so removing and adding again fills the gap.
        int projection = 0;
        while (projection < 4 && viewOf(projection))
            ++projection;
        auto* view = new Viewport(Viewport::Projection(projection), tr(names[projection]));
        view->onPress = [this](Viewport* pressed) { setCurrent(pressed); };
        m_views.insert(projection, view);
        m_frames.insert(projection, m_splitter->insertWidget(view, -1));
        m_splitter->update();
    }

    void removeView()
    {
        for (int projection = 3; projection >= 0; --projection) {
            if (Viewport* view = viewOf(projection)) {
                if (m_current == view)
                    m_current = nullptr;
                m_splitter->removeWidget(m_frames.take(projection));
                m_views.remove(projection);
                m_splitter->update();
                return;
            }
        }
    }

    Viewport* viewOf(int projection) const { return m_views.value(projection); }

    void setCurrent(Viewport* view)
    {
        m_current = view;
        m_splitter->updateFocus(view);
        if (view)
            m_log->log(tr("current view: %1").arg(view->name()));
    }

    QWidget* buildPanel()
    {
        auto* panel = new QWidget;
        auto* column = new QVBoxLayout(panel);
        column->setSpacing(4);
        auto* frames = new QCheckBox(tr("Frames and headers"));
        frames->setChecked(true);
        column->addWidget(frames);
        for (QUxCollapsibleFrame* frame : {transformFrame(), materialFrame(), renderingFrame(), tagFrame()}) {
            column->addWidget(frame);
            connect(frames, &QCheckBox::toggled, frame, &QUxCollapsibleFrame::setFrameVisible);
        }
        column->addStretch();
        // One label width for every grid, so the controls of all frames start in one column.
        QUxCollapsibleFrame::fixLayouts(panel, 80, nullptr);

        auto* scroll = new QScrollArea;
        scroll->setWidgetResizable(true);
        scroll->setWidget(panel);
        scroll->setMinimumWidth(300);
        return scroll;
    }

    QUxCollapsibleFrame* frameWithGrid(const QString& caption, QGridLayout*& grid)
    {
        auto* frame = new QUxCollapsibleFrame(caption);
        auto* page = new QWidget;
        grid = new QGridLayout(page);
        grid->setContentsMargins(6, 4, 6, 4);
        grid->setColumnStretch(1, 1);
        frame->addPage(page);
        connect(frame, &QUxCollapsibleFrame::toggled, this, [this, caption](bool collapsed) {
            m_log->log(QStringLiteral("%1: toggled(%2)").arg(caption, collapsed ? "true" : "false"));
        });
        return frame;
    }

    QUxCollapsibleFrame* transformFrame()
    {
        QGridLayout* grid = nullptr;
        QUxCollapsibleFrame* frame = frameWithGrid(tr("Transform"), grid);
        auto* position = new QUxVec3Control;
        auto* rotation = new QUxVec3Control;
        auto* scale = new QUxVec3Control;
        for (QUxVec3Control* control : {position, rotation, scale})
            control->setLabel(QUxVec3Control::XYZ);
        scale->setXYZ(1.0, 1.0, 1.0);
        addRow(grid, tr("Position"), position);
        addRow(grid, tr("Rotation"), rotation);
        addRow(grid, tr("Scale"), scale);
        return frame;
    }

    QUxCollapsibleFrame* materialFrame()
    {
        QGridLayout* grid = nullptr;
        QUxCollapsibleFrame* frame = frameWithGrid(tr("Material"), grid);
        // The header's check box and lamp: the material is switched on and in use.
        frame->setHeaderCheckBoxVisible(true);
        frame->headerCheckBox()->setChecked(true);
        frame->setLedOnColor(QUxCollapsibleFrame::GREEN);
        frame->setLedValue(true);
        connect(frame->headerCheckBox(), &QCheckBox::toggled, frame, &QUxCollapsibleFrame::setLedValue);

        auto* palette = new QUxColorArray;
        palette->addColor(QUxColor(0.8f, 0.2f, 0.1f));
        auto* roughness = new QUxSlider;
        roughness->setValue(0.35);
        auto* metalness = new QUxSlider;
        metalness->setValue(1.0);
        addRow(grid, tr("Colour"), palette);
        addRow(grid, tr("Roughness"), roughness);
        addRow(grid, tr("Metalness"), metalness);
        return frame;
    }

    QUxCollapsibleFrame* renderingFrame()
    {
        QGridLayout* grid = nullptr;
        QUxCollapsibleFrame* frame = frameWithGrid(tr("Rendering"), grid);
        auto* samples = new QUxIntegerSlider;
        samples->setMaximum(256);
        samples->setValue(64);
        auto* exposure = new QUxDoubleSpiner;
        exposure->setRange(-10.0, 10.0);
        addRow(grid, tr("Samples"), samples);
        addRow(grid, tr("Exposure"), exposure);
        frame->setCollapsed(true);
        return frame;
    }

    QUxCollapsibleFrame* tagFrame()
    {
        QGridLayout* grid = nullptr;
        QUxCollapsibleFrame* frame = frameWithGrid(tr("Tags"), grid);
        auto* field = new QLineEdit;
        field->setPlaceholderText(tr("New tag, Return to add"));
        auto* tags = new QUxTagArea;
        tags->setMinimumHeight(70);
        tags->setTags({tr("metal"), tr("brushed"), tr("exterior"), tr("reviewed"), tr("left door"), tr("variant B"),
                       tr("<b>not bold</b>")});
        connect(field, &QLineEdit::returnPressed, tags, [field, tags] {
            const QString tag = field->text().trimmed();
            if (tag.isEmpty() || tags->getTags().contains(tag))
                return;
            tags->setTags(tags->getTags() << tag);
            field->clear();
        });
        // The area only asks; the page owns the list and answers with the new one.
        connect(tags, &QUxTagArea::tagRemove, this, [this, tags](const QString& tag) {
            QStringList list = tags->getTags();
            list.removeAll(tag);
            tags->setTags(list);
            m_log->log(QStringLiteral("tagRemove(\"%1\")").arg(tag));
        });
        addRow(grid, tr("Add"), field);
        grid->addWidget(tags, grid->rowCount(), 0, 1, 2);
        return frame;
    }

    GalleryLog* m_log = nullptr;
    QUxQuadSplitter* m_splitter = nullptr;
    QMap<int, Viewport*> m_views;
    QMap<int, QWidget*> m_frames;
    Viewport* m_current = nullptr;
};

} // namespace

UX_GALLERY_PAGE(70, "Layout", "layout", [] { return new LayoutPage; });
