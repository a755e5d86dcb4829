#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxColor.h>
#include <QUxColorArray.h>
#include <QUxColorField.h>
#include <QUxLed.h>
#include <QUxWhiteBalance.h>
#include <uxSignalBlocker.h>

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>
#include <functional>
#include <vector>

namespace {

/// The current colour: a large well that can be dragged onto a palette swatch
/// and accepts colours dropped from one. Colour data carries linear RGB, as the
/// palette's own swatches do.
class ColourWell : public QWidget
{
public:
    std::function<void(const QColor&)> onDrop;

    explicit ColourWell(QWidget* parent) : QWidget(parent)
    {
        setAcceptDrops(true);
        setFixedSize(56, 56);
        setCursor(Qt::OpenHandCursor);
        setToolTip(tr("Drag onto a palette swatch; drop a swatch here to load it."));
    }

    void setColor(const QUxColor& color)
    {
        m_color = color;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Mid), 1));
        painter.setBrush(m_color.getGammaQColor());
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton)
            m_pressPosition = event->pos();
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (m_pressPosition.x() < 0
            || (event->pos() - m_pressPosition).manhattanLength() <= QApplication::startDragDistance())
            return;
        m_pressPosition = QPoint(-1, -1);
        auto* mime = new QMimeData;
        mime->setColorData(m_color.getClampedQColor());
        QPixmap pixmap(24, 24);
        pixmap.fill(m_color.getGammaQColor());
        auto* drag = new QDrag(this);
        drag->setMimeData(mime);
        drag->setPixmap(pixmap);
        drag->exec(Qt::CopyAction);
    }

    void dragEnterEvent(QDragEnterEvent* event) override
    {
        if (event->mimeData()->hasColor())
            event->acceptProposedAction();
    }

    void dropEvent(QDropEvent* event) override
    {
        if (!event->mimeData()->hasColor() || !onDrop)
            return;
        onDrop(qvariant_cast<QColor>(event->mimeData()->colorData()));
        event->acceptProposedAction();
    }

private:
    QUxColor m_color = QUxColor(0.5f, 0.5f, 0.5f);
    QPoint m_pressPosition{-1, -1};
};

/// Approximate colour of black-body light, for the preview under the white
/// balance: the control itself only edits Kelvin and leaves meaning to the host.
QColor blackBody(int kelvin)
{
    const double t = kelvin / 100.0;
    const double r = t <= 66 ? 255 : 329.698727446 * std::pow(t - 60, -0.1332047592);
    const double g =
        t <= 66 ? 99.4708025861 * std::log(t) - 161.1195681661 : 288.1221695283 * std::pow(t - 60, -0.0755148492);
    const double b = t >= 66 ? 255 : (t <= 19 ? 0 : 138.5177312231 * std::log(t - 10) - 305.0447927307);
    const auto channel = [](double v) { return qBound(0, int(std::lround(v)), 255); };
    return QColor(channel(r), channel(g), channel(b));
}

/// The light colour across the slider's range, with a marker at the value.
class TemperatureStrip : public QWidget
{
public:
    explicit TemperatureStrip(QWidget* parent) : QWidget(parent) { setFixedHeight(18); }

    void setKelvin(int kelvin)
    {
        m_kelvin = kelvin;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF strip = QRectF(rect()).adjusted(0.5, 3.5, -0.5, -3.5);
        QLinearGradient gradient(strip.topLeft(), strip.topRight());
        for (int k = minimum; k <= maximum; k += 500)
            gradient.setColorAt(double(k - minimum) / (maximum - minimum), blackBody(k));
        painter.setPen(QPen(palette().color(QPalette::Mid), 1));
        painter.setBrush(gradient);
        painter.drawRoundedRect(strip, 3, 3);
        const double x =
            strip.left() + strip.width() * (qBound(minimum, m_kelvin, maximum) - minimum) / (maximum - minimum);
        painter.setPen(QPen(Qt::black, 1.5));
        painter.setBrush(Qt::white);
        painter.drawPolygon(QPolygonF({QPointF(x - 5, 0.5), QPointF(x + 5, 0.5), QPointF(x, 7)}));
    }

private:
    static constexpr int minimum = 1000;
    static constexpr int maximum = 15000;
    int m_kelvin = 6500;
};

/// One channel of the editor: a radio button that makes it the field's held
/// channel, a slider and a read-out.
struct Channel
{
    QString name;
    double minimum;
    double maximum;
    int decimals;
    void (QUxColorField::*modeSlot)(bool);
    std::function<float(const QUxColorField*)> read;
    std::function<void(QUxColorField*, float)> write;

    QRadioButton* radio = nullptr;
    QSlider* slider = nullptr;
    QLabel* readOut = nullptr;

    double scale() const { return std::pow(10.0, decimals); }
};

std::vector<Channel> channelTable()
{
    using F = QUxColorField;
    return {
        {QStringLiteral("H"), 0, 360, 0, &F::setHueMode, &F::getHue, &F::setHue},
        {QStringLiteral("S"), 0, 1, 3, &F::setSaturationMode, &F::getSaturation, &F::setSaturation},
        {QStringLiteral("V"), 0, 1, 3, &F::setValueMode, &F::getValue, &F::setValue},
        {QStringLiteral("R"), 0, 1, 3, &F::setRedMode, &F::getRed, &F::setRed},
        {QStringLiteral("G"), 0, 1, 3, &F::setGreenMode, &F::getGreen, &F::setGreen},
        {QStringLiteral("B"), 0, 1, 3, &F::setBlueMode, &F::getBlue, &F::setBlue},
        {QStringLiteral("L*"), 0, 100, 1, &F::setLstarMode, &F::getLstar, &F::setLstar},
        {QStringLiteral("a*"), -128, 128, 1, &F::setAstarMode, &F::getAstar, &F::setAstar},
        {QStringLiteral("b*"), -128, 128, 1, &F::setBstarMode, &F::getBstar, &F::setBstar},
    };
}

const char* const shapeNames[] = {"circle", "square", "triangle", "rounded", "reversed"};
const char* const colorNames[] = {"red", "green", "yellow", "grey", "orange", "purple", "blue", "black", "white"};

class ColourPage : public QWidget
{
public:
    ColourPage()
    {
        m_log = new GalleryLog(this);
        m_log->setMinimumHeight(110);
        auto* columns = new QHBoxLayout(this);
        auto* left = new QVBoxLayout;
        left->addWidget(buildEditor());
        left->addWidget(m_log, 1);
        auto* right = new QVBoxLayout;
        right->addWidget(buildWhiteBalance());
        right->addWidget(buildLampGrid());
        right->addWidget(buildLampInspector());
        right->addStretch(1);
        columns->addLayout(left, 3);
        columns->addLayout(right, 2);
        seedPalette();
        m_field->setRGB(0.06f, 0.32f, 0.78f);
        refresh(-1);
        connectLog();
    }

private:
    QWidget* buildEditor()
    {
        auto* box = new QGroupBox(tr("Colour editor"), this);
        auto* layout = new QVBoxLayout(box);
        auto* top = new QHBoxLayout;
        m_field = new QUxColorField(box, "ColourPageField");
        m_field->setFixedSize(256, 256);
        top->addWidget(m_field, 0, Qt::AlignTop);
        top->addLayout(buildChannels(box), 1);
        layout->addLayout(top);
        layout->addLayout(buildCurrentRow(box));
        layout->addWidget(buildPalette(box));
        connect(m_field, &QUxColorField::colorChanged, this, [this] { refresh(-1); });
        connect(m_field, &QUxColorField::constantChannelChanged, this, [this] { refresh(-1); });
        return box;
    }

    QGridLayout* buildChannels(QWidget* parent)
    {
        auto* grid = new QGridLayout;
        grid->setVerticalSpacing(2);
        auto* group = new QButtonGroup(parent);
        m_channels = channelTable();
        for (int row = 0; row < int(m_channels.size()); ++row) {
            Channel& channel = m_channels[row];
            channel.radio = new QRadioButton(channel.name, parent);
            channel.radio->setToolTip(tr("Hold %1 constant in the field").arg(channel.name));
            group->addButton(channel.radio);
            channel.slider = new QSlider(Qt::Horizontal, parent);
            channel.slider->setRange(int(channel.minimum * channel.scale()), int(channel.maximum * channel.scale()));
            channel.slider->setMinimumWidth(110);
            channel.readOut = new QLabel(parent);
            channel.readOut->setMinimumWidth(52);
            channel.readOut->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            grid->addWidget(channel.radio, row, 0);
            grid->addWidget(channel.slider, row, 1);
            grid->addWidget(channel.readOut, row, 2);
            connect(channel.radio, &QRadioButton::toggled, m_field, channel.modeSlot);
            connect(channel.slider, &QSlider::valueChanged, this, [this, row](int position) {
                const Channel& edited = m_channels[row];
                edited.write(m_field, float(position / edited.scale()));
                refresh(row);
            });
        }
        m_channels.front().radio->setChecked(true);
        grid->setRowStretch(int(m_channels.size()), 1);
        return grid;
    }

    QHBoxLayout* buildCurrentRow(QWidget* parent)
    {
        auto* row = new QHBoxLayout;
        m_well = new ColourWell(parent);
        m_well->onDrop = [this](const QColor& linear) {
            m_field->setRGB(float(linear.redF()), float(linear.greenF()), float(linear.blueF()));
        };
        m_hex = new QLabel(parent);
        m_hex->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto* add = new QPushButton(tr("Add to palette"), parent);
        connect(add, &QPushButton::clicked, this, [this] { m_palette->addColor(m_field->getColor()); });
        row->addWidget(m_well);
        row->addWidget(m_hex, 1);
        row->addWidget(add);
        return row;
    }

    QWidget* buildPalette(QWidget* parent)
    {
        auto* box = new QWidget(parent);
        auto* layout = new QVBoxLayout(box);
        layout->setContentsMargins(0, 6, 0, 0);
        m_palette = new QUxColorArray(box);
        m_mirror = new QUxColorArray(box);
        auto* hint = new QLabel(tr("Drag the well onto a swatch, or a swatch onto the well. Click a filled swatch "
                                   "(or press Return on it) to load it. Both rows show the one shared palette."),
                                box);
        hint->setWordWrap(true);
        hint->setForegroundRole(QPalette::Mid);
        layout->addWidget(new QLabel(tr("Palette"), box));
        layout->addWidget(m_palette, 0, Qt::AlignLeft);
        layout->addWidget(new QLabel(tr("Second array, same palette"), box));
        layout->addWidget(m_mirror, 0, Qt::AlignLeft);
        layout->addWidget(hint);
        for (QUxColorArray* palette : {m_palette, m_mirror}) {
            connect(palette, &QUxColorArray::selected, this,
                    [this, palette](int index) { m_field->setColor(palette->getColor(index)); });
        }
        return box;
    }

    QWidget* buildWhiteBalance()
    {
        auto* box = new QGroupBox(tr("White balance"), this);
        auto* layout = new QVBoxLayout(box);
        m_balance = new QUxWhiteBalance(box, "ColourPageWhiteBalance");
        // Host panels use a compact font; the spin box is sized for it.
        QFont compact = m_balance->font();
        compact.setPointSizeF(compact.pointSizeF() * 0.8);
        m_balance->setFont(compact);
        m_strip = new TemperatureStrip(box);
        layout->addWidget(m_balance);
        layout->addWidget(m_strip);
        auto* presets = new QComboBox(box);
        presets->addItem(tr("Light source..."), 0);
        const QList<QPair<QString, int>> lights{{tr("Candle"), 1900},   {tr("Tungsten"), 3200},
                                                {tr("Daylight"), 5600}, {tr("Overcast"), 6500},
                                                {tr("Shade"), 7500},    {tr("Blue sky"), 10000}};
        for (const auto& light : lights)
            presets->addItem(tr("%1, %2 K").arg(light.first).arg(light.second), light.second);
        connect(presets, qOverload<int>(&QComboBox::activated), m_balance, [this, presets](int index) {
            if (const int kelvin = presets->itemData(index).toInt())
                m_balance->setValue(kelvin);
        });
        auto* options = new QHBoxLayout;
        auto* ticks = new QCheckBox(tr("Ticks"), box);
        connect(ticks, &QCheckBox::toggled, m_balance,
                [this](bool on) { m_balance->setTicks(on ? QUxWhiteBalance::TicksBelow : QUxWhiteBalance::NoTicks); });
        auto* wide = new QCheckBox(tr("Up to 20000 K"), box);
        connect(wide, &QCheckBox::toggled, m_balance, [this](bool on) { m_balance->setMaximum(on ? 20000 : 15000); });
        options->addWidget(presets);
        options->addWidget(ticks);
        options->addWidget(wide);
        options->addStretch(1);
        layout->addLayout(options);
        connect(m_balance, &QUxWhiteBalance::valueChanged, m_strip, &TemperatureStrip::setKelvin);
        m_balance->setValue(6500);
        return box;
    }

    QWidget* buildLampGrid()
    {
        auto* box = new QGroupBox(tr("Lamps: 5 shapes × 9 colours"), this);
        auto* grid = new QGridLayout(box);
        grid->setHorizontalSpacing(6);
        for (int shape = 0; shape < 5; ++shape) {
            grid->addWidget(new QLabel(tr(shapeNames[shape]), box), shape, 0);
            auto* toggle = new QCheckBox(tr("on"), box);
            for (int color = 0; color < 9; ++color) {
                auto* led = new QUxLed(box);
                led->setFixedSize(20, 20);
                led->setOnShape(QUxLed::ledShape(shape));
                led->setOffShape(QUxLed::ledShape(shape));
                led->setOnColor(QUxLed::ledColor(color));
                led->setOffColor(color == QUxLed::GREY ? QUxLed::BLACK : QUxLed::GREY);
                led->setToolTip(QStringLiteral("%1 / %2").arg(shapeNames[shape], colorNames[color]));
                connect(toggle, &QCheckBox::toggled, led, &QUxLed::setValue);
                grid->addWidget(led, shape, color + 1);
                m_leds << led;
            }
            grid->addWidget(toggle, shape, 10);
            toggle->setChecked(shape != 4);
        }
        auto* buttons = new QHBoxLayout;
        auto* invert = new QPushButton(tr("Invert all"), box);
        connect(invert, &QPushButton::clicked, this, [this] {
            for (QUxLed* led : qAsConst(m_leds))
                led->toggleValue();
        });
        auto* blink = new QCheckBox(tr("Blink"), box);
        auto* timer = new QTimer(box);
        timer->setInterval(500);
        connect(timer, &QTimer::timeout, invert, &QPushButton::click);
        connect(blink, &QCheckBox::toggled, timer, [timer](bool on) { on ? timer->start() : timer->stop(); });
        buttons->addWidget(invert);
        buttons->addWidget(blink);
        buttons->addStretch(1);
        grid->addLayout(buttons, 5, 0, 1, 11);
        grid->setColumnStretch(11, 1);
        return box;
    }

    QWidget* buildLampInspector()
    {
        auto* box = new QGroupBox(tr("One lamp, every setting"), this);
        auto* layout = new QGridLayout(box);
        auto* led = new QUxLed(box);
        led->setFixedSize(48, 48);
        layout->addWidget(led, 0, 0, 2, 1);
        const QMetaEnum shapes = QMetaEnum::fromType<QUxLed::ledShape>();
        const QMetaEnum colors = QMetaEnum::fromType<QUxLed::ledColor>();
        const auto combo = [box](const QMetaEnum& meta, int current) {
            auto* c = new QComboBox(box);
            for (int i = 0; i < meta.keyCount(); ++i)
                c->addItem(QString::fromLatin1(meta.key(i)).toLower(), meta.value(i));
            c->setCurrentIndex(current);
            return c;
        };
        auto* onColor = combo(colors, led->onColor());
        auto* onShape = combo(shapes, led->onShape());
        auto* offColor = combo(colors, led->offColor());
        auto* offShape = combo(shapes, led->offShape());
        auto* lit = new QCheckBox(tr("On"), box);
        layout->addWidget(new QLabel(tr("on"), box), 0, 1);
        layout->addWidget(onColor, 0, 2);
        layout->addWidget(onShape, 0, 3);
        layout->addWidget(new QLabel(tr("off"), box), 1, 1);
        layout->addWidget(offColor, 1, 2);
        layout->addWidget(offShape, 1, 3);
        layout->addWidget(lit, 0, 4, 2, 1);
        layout->setColumnStretch(5, 1);
        const auto changed = qOverload<int>(&QComboBox::currentIndexChanged);
        connect(onColor, changed, led, [led](int i) { led->setOnColor(QUxLed::ledColor(i)); });
        connect(onShape, changed, led, [led](int i) { led->setOnShape(QUxLed::ledShape(i)); });
        connect(offColor, changed, led, [led](int i) { led->setOffColor(QUxLed::ledColor(i)); });
        connect(offShape, changed, led, [led](int i) { led->setOffShape(QUxLed::ledShape(i)); });
        connect(lit, &QCheckBox::toggled, led, &QUxLed::setValue);
        onColor->setCurrentIndex(QUxLed::GREEN);
        onShape->setCurrentIndex(QUxLed::ROUNDED);
        lit->setChecked(true);
        return box;
    }

    void seedPalette()
    {
        for (int i = 0; i < QUxColorArray::CellCount; ++i) {
            if (!m_palette->isFreeCell(i))
                return;
        }
        const float colours[][3] = {{0.80f, 0.06f, 0.04f}, {0.90f, 0.38f, 0.02f}, {0.85f, 0.65f, 0.05f},
                                    {0.10f, 0.50f, 0.12f}, {0.02f, 0.35f, 0.45f}, {0.05f, 0.15f, 0.70f},
                                    {0.35f, 0.08f, 0.55f}};
        for (const auto& c : colours)
            m_palette->addColor(QUxColor(c[0], c[1], c[2]));
    }

    /// Shows the field's colour everywhere except in the slider being dragged.
    void refresh(int editedRow)
    {
        for (int row = 0; row < int(m_channels.size()); ++row) {
            const Channel& channel = m_channels[row];
            const float value = channel.read(m_field);
            channel.readOut->setText(fixedNumber(value, channel.decimals));
            if (row == editedRow)
                continue;
            const uxSignalBlocker blocker(channel.slider);
            channel.slider->setValue(int(std::lround(value * channel.scale())));
        }
        QUxColor color = m_field->getColor();
        m_well->setColor(color);
        const QColor shown = color.getGammaQColor();
        m_hex->setText(tr("<b>%1</b><br>linear %2, %3, %4")
                           .arg(shown.name(), fixedNumber(m_field->getRed(), 3), fixedNumber(m_field->getGreen(), 3),
                                fixedNumber(m_field->getBlue(), 3)));
    }

    void connectLog()
    {
        for (QUxColorArray* palette : {m_palette, m_mirror}) {
            const QString name = palette == m_palette ? tr("palette") : tr("second array");
            connect(palette, &QUxColorArray::selected, m_log,
                    [this, name](int index) { m_log->log(tr("%1 selected(%2)").arg(name).arg(index)); });
        }
        connect(m_balance, &QUxWhiteBalance::valueChanged, m_log,
                [this](int kelvin) { m_log->log(tr("whiteBalance valueChanged(%1)").arg(kelvin)); });
        connect(m_field, &QUxColorField::constantChannelChanged, m_log,
                [this](float value) { m_log->log(tr("field constantChannelChanged(%1)").arg(fixedNumber(value, 3))); });
    }

    std::vector<Channel> m_channels;
    QUxColorField* m_field = nullptr;
    ColourWell* m_well = nullptr;
    QLabel* m_hex = nullptr;
    QUxColorArray* m_palette = nullptr;
    QUxColorArray* m_mirror = nullptr;
    QUxWhiteBalance* m_balance = nullptr;
    TemperatureStrip* m_strip = nullptr;
    QList<QUxLed*> m_leds;
    GalleryLog* m_log = nullptr;
};

} // namespace

UX_GALLERY_PAGE(30, "Colour", "colour", [] { return new ColourPage; });
