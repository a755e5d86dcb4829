#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxCurve.h>
#include <QUxGraphEditor.h>
#include <QUxTimeLine.h>
#include <QUxTimeLineRange.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <array>
#include <cmath>
#include <map>

namespace {

/// A curve as a 256-entry lookup table, read off the path the editor draws, so
/// the preview shows exactly what the user sees.
std::array<int, 256> lookupTable(const QPainterPath& path)
{
    std::array<int, 256> table{};
    QPointF previous(0.0, path.elementCount() > 0 ? path.elementAt(0).y : 0.0);
    int element = 0;
    for (int i = 0; i < 256; ++i) {
        const double x = i / 255.0;
        while (element < path.elementCount() && path.elementAt(element).x < x) {
            previous = path.elementAt(element);
            ++element;
        }
        double y = previous.y();
        if (element < path.elementCount()) {
            const QPointF next = path.elementAt(element);
            const double span = next.x() - previous.x();
            y = span > 0.0 ? previous.y() + (next.y() - previous.y()) * (x - previous.x()) / span : next.y();
        }
        table[size_t(i)] = qBound(0, int(std::lround(y * 255.0)), 255);
    }
    return table;
}

/// The editor's four curves, found on its scene by their stacking order
/// (red on top, then green, blue and luminance).
struct Curves
{
    const QUxCurve* luminance = nullptr;
    const QUxCurve* red = nullptr;
    const QUxCurve* green = nullptr;
    const QUxCurve* blue = nullptr;
};

Curves curvesOf(const QUxGraphEditor* editor)
{
    Curves curves;
    for (QGraphicsItem* item : editor->scene()->items()) {
        const auto* curve = dynamic_cast<const QUxCurve*>(item);
        if (!curve)
            continue;
        switch (int(curve->zValue())) {
        case 5:
            curves.red = curve;
            break;
        case 4:
            curves.green = curve;
            break;
        case 3:
            curves.blue = curve;
            break;
        default:
            curves.luminance = curve;
            break;
        }
    }
    return curves;
}

/// A small landscape: sky, sun, hills and a shaded sphere, with a full tonal range.
QImage landscape(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF all(QPointF(), size);
    QLinearGradient sky(all.topLeft(), all.bottomLeft());
    sky.setColorAt(0.0, QColor(18, 40, 96));
    sky.setColorAt(0.6, QColor(242, 170, 96));
    painter.fillRect(all, sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 238, 180));
    painter.drawEllipse(QPointF(size.width() * 0.75, size.height() * 0.35), 18, 18);
    QPainterPath hills(QPointF(0, size.height()));
    hills.lineTo(0, size.height() * 0.62);
    hills.cubicTo(size.width() * 0.3, size.height() * 0.45, size.width() * 0.5, size.height() * 0.8, size.width(),
                  size.height() * 0.58);
    hills.lineTo(size.width(), size.height());
    QLinearGradient grass(0, size.height() * 0.5, 0, size.height());
    grass.setColorAt(0.0, QColor(70, 130, 50));
    grass.setColorAt(1.0, QColor(8, 24, 6));
    painter.setBrush(grass);
    painter.drawPath(hills);
    QRadialGradient shade(size.width() * 0.22, size.height() * 0.70, 30, size.width() * 0.19, size.height() * 0.66);
    shade.setColorAt(0.0, Qt::white);
    shade.setColorAt(1.0, QColor(40, 20, 60));
    painter.setBrush(shade);
    painter.drawEllipse(QPointF(size.width() * 0.22, size.height() * 0.72), 26, 26);
    return image;
}

/// The source image with the luminance curve and then each channel's curve applied.
QImage graded(const QImage& source, const Curves& curves)
{
    if (!curves.luminance || !curves.red || !curves.green || !curves.blue)
        return source;
    const auto l = lookupTable(curves.luminance->path());
    const auto r = lookupTable(curves.red->path());
    const auto g = lookupTable(curves.green->path());
    const auto b = lookupTable(curves.blue->path());
    QImage out = source;
    for (int y = 0; y < out.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(out.scanLine(y));
        for (int x = 0; x < out.width(); ++x) {
            const QRgb p = line[x];
            line[x] =
                qRgb(r[size_t(l[size_t(qRed(p))])], g[size_t(l[size_t(qGreen(p))])], b[size_t(l[size_t(qBlue(p))])]);
        }
    }
    return out;
}

/// A ball that travels along an arc as the frame advances, with its key poses marked.
class AnimationView : public QWidget
{
public:
    explicit AnimationView(QWidget* parent) : QWidget(parent) { setMinimumHeight(70); }

    void setFrame(int frame, int first, int last)
    {
        m_frame = frame, m_first = first, m_last = qMax(first + 1, last);
        update();
    }

    QPointF position(int frame) const
    {
        const double t = qBound(0.0, double(frame - m_first) / (m_last - m_first), 1.0);
        const double margin = 14.0;
        return {margin + t * (width() - 2 * margin), height() - margin - std::sin(t * M_PI) * (height() - 2 * margin)};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), QColor(36, 36, 36));
        painter.setPen(QPen(QColor(90, 90, 90), 1, Qt::DashLine));
        QPainterPath arc;
        for (int f = m_first; f <= m_last; ++f)
            f == m_first ? arc.moveTo(position(f)) : arc.lineTo(position(f));
        painter.drawPath(arc);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(234, 134, 47));
        painter.drawEllipse(position(m_frame), 8, 8);
    }

private:
    int m_frame = 0;
    int m_first = 0;
    int m_last = 100;
};

class CurvesPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(CurvesPage)

public:
    CurvesPage()
    {
        m_log = new GalleryLog(this);
        auto* layout = new QVBoxLayout(this);
        auto* top = new QHBoxLayout;
        top->addWidget(buildCurves(), 1);
        top->addWidget(m_log, 0);
        m_log->setMaximumWidth(300);
        layout->addLayout(top, 3);
        layout->addWidget(buildTime(), 2);
    }

private:
    QWidget* buildCurves()
    {
        auto* box = new QGroupBox(tr("Tone curves"), this);
        auto* grid = new QGridLayout(box);
        m_editor = new QUxGraphEditor(box);
        m_editor->setMinimumSize(240, 240);
        m_editor->scale(1.0, -1.0); // dark tones at the bottom, as a tone curve is read
        m_editor->setPointSize(0.015);
        m_editor->setLineWidth(0.006);
        m_editor->setLuminanceCurve({{0.0f, 0.0f}, {0.3f, 0.22f}, {0.7f, 0.82f}, {1.0f, 1.0f}});
        for (const auto setter :
             {&QUxGraphEditor::setRedCurve, &QUxGraphEditor::setGreenCurve, &QUxGraphEditor::setBlueCurve})
            (m_editor->*setter)({{0.0f, 0.0f}, {0.5f, 0.5f}, {1.0f, 1.0f}});
        m_editor->setMode(QUxGraphEditor::Luminance);

        auto* mode = new QComboBox(box);
        mode->addItems({tr("Luminance"), tr("Red"), tr("Green"), tr("Blue"), tr("RGB")});
        connect(mode, qOverload<int>(&QComboBox::currentIndexChanged), m_editor,
                [this](int index) { m_editor->setMode(QUxGraphEditor::Mode(index)); });
        auto* reset = new QPushButton(tr("Reset curves"), box);
        connect(reset, &QPushButton::clicked, this, [this] { resetCurves(); });
        auto* hint =
            new QLabel(tr("Click a curve to add a point, drag it, select it and press Delete to remove it."), box);
        hint->setWordWrap(true);

        m_source = landscape(QSize(216, 162));
        m_before = new QLabel(box);
        m_before->setPixmap(QPixmap::fromImage(m_source));
        m_after = new QLabel(box);

        grid->addWidget(m_editor, 0, 0, 3, 1);
        grid->addWidget(new QLabel(tr("Original"), box), 0, 1);
        grid->addWidget(new QLabel(tr("Graded"), box), 0, 2);
        grid->addWidget(m_before, 1, 1);
        grid->addWidget(m_after, 1, 2);
        auto* controls = new QHBoxLayout;
        controls->addWidget(new QLabel(tr("Show"), box));
        controls->addWidget(mode);
        controls->addWidget(reset);
        controls->addStretch(1);
        grid->addLayout(controls, 2, 1, 1, 2);
        grid->addWidget(hint, 3, 0, 1, 3);
        grid->setColumnStretch(0, 1);

        const std::pair<void (QUxGraphEditor::*)(), const char*> changes[] = {
            {&QUxGraphEditor::luminanceCurveChanged, "luminanceCurveChanged()"},
            {&QUxGraphEditor::redCurveChanged, "redCurveChanged()"},
            {&QUxGraphEditor::greenCurveChanged, "greenCurveChanged()"},
            {&QUxGraphEditor::blueCurveChanged, "blueCurveChanged()"}};
        for (const auto& [signal, text] : changes)
            connect(m_editor, signal, this, [this, text = text] {
                m_log->log(QString::fromLatin1(text));
                regrade();
            });
        regrade();
        mode->setCurrentIndex(QUxGraphEditor::Luminance);
        return box;
    }

    void resetCurves()
    {
        const QList<QVector2D> diagonal{{0.0f, 0.0f}, {0.5f, 0.5f}, {1.0f, 1.0f}};
        for (const auto setter : {&QUxGraphEditor::setLuminanceCurve, &QUxGraphEditor::setRedCurve,
                                  &QUxGraphEditor::setGreenCurve, &QUxGraphEditor::setBlueCurve})
            (m_editor->*setter)(diagonal);
        regrade();
    }

    void regrade() { m_after->setPixmap(QPixmap::fromImage(graded(m_source, curvesOf(m_editor)))); }

    QWidget* buildTime()
    {
        auto* box = new QGroupBox(tr("Time"), this);
        auto* layout = new QVBoxLayout(box);
        m_timeLine = new QUxTimeLine(box);
        m_timeLine->setEndFrame(100);
        m_timeLine->setFps(25.0);
        m_range = new QUxTimeLineRange(box);
        m_range->setEndFrame(100);
        m_range->setRangeStartFrame(10);
        m_range->setRangeEndFrame(80);
        m_view = new AnimationView(box);
        auto* play = new QCheckBox(tr("Play"), box);
        auto* hint = new QLabel(tr("Scrub with the left or middle button; right-click for label options. "
                                   "Drag the grips or the bar below to choose the played range."),
                                box);
        hint->setWordWrap(true);
        layout->addWidget(m_view, 1);
        layout->addWidget(m_timeLine);
        layout->addWidget(m_range);
        auto* controls = new QHBoxLayout;
        controls->addWidget(play);
        controls->addWidget(hint, 1);
        layout->addLayout(controls);

        auto* timer = new QTimer(box);
        timer->setInterval(40);
        connect(timer, &QTimer::timeout, this, [this] { advance(); });
        connect(play, &QCheckBox::toggled, timer, [timer](bool on) { on ? timer->start() : timer->stop(); });
        connect(m_timeLine, &QUxTimeLine::currentFrameChanged, this, [this](int frame) {
            m_log->log(tr("currentFrameChanged(%1)").arg(frame));
            showFrame();
        });
        connect(m_timeLine, &QUxTimeLine::finishedSliding, m_log, [this] { m_log->log(tr("finishedSliding()")); });
        connect(m_range, &QUxTimeLineRange::rangeStartChanged, this, [this](int frame) {
            m_log->log(tr("rangeStartChanged(%1)").arg(frame));
            placeKeyFrames();
        });
        connect(m_range, &QUxTimeLineRange::rangeEndChanged, this, [this](int frame) {
            m_log->log(tr("rangeEndChanged(%1)").arg(frame));
            placeKeyFrames();
        });
        m_timeLine->setCurrentFrame(32);
        placeKeyFrames();
        return box;
    }

    /// Key frames at both ends of the range and in its middle.
    void placeKeyFrames()
    {
        const int first = m_range->rangeStartFrame();
        const int last = m_range->rangeEndFrame();
        m_timeLine->setKeyFrames({{float(first), QColor(80, 200, 120)},
                                  {float(first + last) / 2.0f, QColor(230, 200, 60)},
                                  {float(last), QColor(220, 70, 70)}});
        showFrame();
    }

    void advance()
    {
        const int first = m_range->rangeStartFrame();
        const int next = m_timeLine->currentFrame() + 1;
        m_timeLine->setCurrentFrame(next > m_range->rangeEndFrame() || next < first ? first : next);
    }

    void showFrame()
    {
        m_view->setFrame(m_timeLine->currentFrame(), m_range->rangeStartFrame(), m_range->rangeEndFrame());
    }

    QUxGraphEditor* m_editor = nullptr;
    QImage m_source;
    QLabel* m_before = nullptr;
    QLabel* m_after = nullptr;
    QUxTimeLine* m_timeLine = nullptr;
    QUxTimeLineRange* m_range = nullptr;
    AnimationView* m_view = nullptr;
    GalleryLog* m_log = nullptr;
};

} // namespace

UX_GALLERY_PAGE(40, "Curves and Time", "curves", [] { return new CurvesPage; });
