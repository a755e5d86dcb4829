#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxAdvancedProgressDialog.h>
#include <QUxProgressDialogGUII.h>
#include <QUxProgressIndicator.h>
#include <QUxSearchBox.h>
#include <QUxSubProgress.h>
#include <QUxSuggestCompletion.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// Words a material name is made of, with what each is, for the suggestion popup.
const QList<QPair<QString, QString>>& materialWords()
{
    static const QList<QPair<QString, QString>> words{
        {QStringLiteral("aluminium"), QStringLiteral("metal")}, {QStringLiteral("anodised"), QStringLiteral("finish")},
        {QStringLiteral("brushed"), QStringLiteral("finish")},  {QStringLiteral("carbon"), QStringLiteral("fibre")},
        {QStringLiteral("chrome"), QStringLiteral("metal")},    {QStringLiteral("clear coat"), QStringLiteral("layer")},
        {QStringLiteral("copper"), QStringLiteral("metal")},    {QStringLiteral("fabric"), QStringLiteral("textile")},
        {QStringLiteral("flakes"), QStringLiteral("paint")},    {QStringLiteral("frosted"), QStringLiteral("glass")},
        {QStringLiteral("glossy"), QStringLiteral("finish")},   {QStringLiteral("gold"), QStringLiteral("metal")},
        {QStringLiteral("leather"), QStringLiteral("textile")}, {QStringLiteral("matte"), QStringLiteral("finish")},
        {QStringLiteral("metallic"), QStringLiteral("paint")},  {QStringLiteral("mirror"), QStringLiteral("finish")},
        {QStringLiteral("nickel"), QStringLiteral("metal")},    {QStringLiteral("pearl"), QStringLiteral("paint")},
        {QStringLiteral("plastic"), QStringLiteral("polymer")}, {QStringLiteral("rubber"), QStringLiteral("polymer")},
        {QStringLiteral("satin"), QStringLiteral("finish")},    {QStringLiteral("silver"), QStringLiteral("metal")},
        {QStringLiteral("steel"), QStringLiteral("metal")},     {QStringLiteral("suede"), QStringLiteral("textile")},
        {QStringLiteral("tinted"), QStringLiteral("glass")},    {QStringLiteral("titanium"), QStringLiteral("metal")},
        {QStringLiteral("velvet"), QStringLiteral("textile")},  {QStringLiteral("walnut"), QStringLiteral("wood")},
    };
    return words;
}

class SearchProgressPage : public QWidget
{
public:
    SearchProgressPage()
    {
        m_steps.setInterval(60);
        connect(&m_steps, &QTimer::timeout, this, [this] { step(); });
        m_log = new GalleryLog;
        auto* layout = new QHBoxLayout(this);
        layout->addWidget(searchGroup(), 1);
        auto* right = new QVBoxLayout;
        right->addWidget(progressGroup());
        right->addWidget(m_log, 1);
        layout->addLayout(right, 1);
    }

    ~SearchProgressPage() override { cancel(); }

    /// The top-level widget named @p name, drawn where it stands over this page's window.
    QImage windowWith(const QString& name) const
    {
        // Rows repaint on a short timer, not on every step; let it run once.
        QElapsedTimer settle;
        settle.start();
        while (settle.elapsed() < 100)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        QImage image = window()->grab().toImage();
        QPainter painter(&image);
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == name && top->isVisible())
                painter.drawPixmap(top->mapToGlobal(QPoint()) - window()->mapToGlobal(QPoint()), top->grab());
        return image;
    }

    /// The dialog with a file half loaded, its references further on and shaders of unknown length.
    QImage progressDialogShot()
    {
        startLoading();
        m_steps.stop();
        for (int i = 0; i < 9; ++i)
            step();
        for (int i = 0; i < 3; ++i)
            m_references->increaseStep();
        const QImage image = windowWith(QStringLiteral("FileIOProgressDialog"));
        cancel();
        return image;
    }

    QImage busyOverlayShot()
    {
        QUxProgressDialogGUII::start(tr("Preparing the review session…"), window());
        const QImage image = windowWith(QStringLiteral("QUxProgressDialogGUI"));
        QUxProgressDialogGUII::stop();
        return image;
    }

private:
    static QStringList sceneObjects()
    {
        const QStringList parts{tr("Door"),   tr("Mirror"), tr("Wheel"),  tr("Seat"),    tr("Headlight"),
                                tr("Bumper"), tr("Window"), tr("Handle"), tr("Console"), tr("Dashboard")};
        const QStringList sides{tr("front left"), tr("front right"), tr("rear left"), tr("rear right")};
        QStringList objects;
        for (const QString& part : parts)
            for (const QString& side : sides)
                objects << QStringLiteral("%1 %2").arg(part, side);
        return objects;
    }

    QGroupBox* searchGroup()
    {
        auto* search = new QUxSearchBox(nullptr);
        auto* list = new QListWidget;
        list->addItems(sceneObjects());
        connect(search, &QUxSearchBox::searchChanged, list, [list](const QString& text) {
            for (int row = 0; row < list->count(); ++row)
                list->item(row)->setHidden(!list->item(row)->text().contains(text, Qt::CaseInsensitive));
        });
        connect(search, &QUxSearchBox::searchChanged, this,
                [this](const QString& text) { m_log->log(QStringLiteral("searchChanged(\"%1\")").arg(text)); });
        connect(search, &QUxSearchBox::searchButtonPress, this,
                [this] { m_log->log(QStringLiteral("searchButtonPress()")); });

        auto* material = new QLineEdit;
        material->setPlaceholderText(tr("Material words: type two letters"));
        auto* completer = new QUxSuggestCompletion(material, 250, 2);
        // The completer asks while it waits for the answer; the page answers at once.
        connect(completer, &QUxSuggestCompletion::needSuggestions, completer, [completer](const QString& text) {
            const QString word = text.section(QLatin1Char(' '), -1);
            QStringList choices;
            QStringList hints;
            QList<QVariant> values;
            for (int i = 0; i < materialWords().size(); ++i) {
                if (!materialWords()[i].first.startsWith(word, Qt::CaseInsensitive))
                    continue;
                choices << materialWords()[i].first;
                hints << materialWords()[i].second;
                values << i;
            }
            completer->receivedSuggestions(choices, hints, values);
        });
        connect(completer, &QUxSuggestCompletion::completionChosen, this, [this](const QVariant& value) {
            m_log->log(QStringLiteral("completionChosen(%1)").arg(value.toInt()));
        });

        auto* group = new QGroupBox(tr("Search"));
        auto* form = new QVBoxLayout(group);
        form->addWidget(new QLabel(tr("Live search over the scene:")));
        form->addWidget(search);
        form->addWidget(list, 1);
        form->addWidget(new QLabel(tr("Suggestions after a pause:")));
        form->addWidget(material);
        return group;
    }

    QGroupBox* progressGroup()
    {
        auto* run = new QPushButton(tr("Load scene (simulated)"));
        auto* cancelButton = new QPushButton(tr("Cancel"));
        auto* busy = new QPushButton(tr("Busy overlay for 2 s"));
        m_indicator = new QUxProgressIndicator;
        m_indicator->setDisplayedWhenStopped(true);
        connect(run, &QPushButton::clicked, this, [this] { startLoading(); });
        connect(cancelButton, &QPushButton::clicked, this, [this] { cancel(); });
        connect(busy, &QPushButton::clicked, this, [this] { showBusyOverlay(); });

        auto* buttons = new QHBoxLayout;
        buttons->addWidget(run);
        buttons->addWidget(cancelButton);
        buttons->addWidget(busy);
        buttons->addWidget(m_indicator);
        buttons->addStretch();

        auto* group = new QGroupBox(tr("Progress"));
        auto* layout = new QVBoxLayout(group);
        layout->addLayout(buttons);
        layout->addWidget(new QLabel(tr("Loading opens one row per file and nested rows for its references;\n"
                                        "the dialog closes by itself when the last row is done.")));
        return group;
    }

    // The load runs on a timer, a step per tick, so the page's Cancel stays usable.
    void startLoading()
    {
        if (m_steps.isActive())
            return;
        m_file = QUxAdvancedProgressDialog::addProgress(tr("Loading scene \"door_assembly.csb\""), 24, window());
        m_references = nullptr;
        m_shaders = nullptr;
        m_step = 0;
        m_indicator->startAnimation();
        m_steps.start();
        m_log->log(QStringLiteral("addProgress(…, 24)"));
    }

    void step()
    {
        ++m_step;
        if (m_step == 4)
            m_references = QUxAdvancedProgressDialog::addProgress(tr("Resolving references"), 10, window());
        if (m_step == 8)
            m_shaders = QUxAdvancedProgressDialog::addProgress(tr("Compiling shaders"), 0, window());
        if (m_references && m_step > 4 && m_step <= 14)
            m_references->increaseStep();
        if (m_step == 15)
            finish(m_references);
        if (m_step == 20)
            finish(m_shaders);
        if (m_file)
            m_file->increaseStep();
        if (m_step >= 24)
            cancel();
    }

    void finish(QPointer<QUxSubProgress>& row)
    {
        QUxAdvancedProgressDialog::destroyProgress(row);
        row = nullptr;
    }

    void cancel()
    {
        m_steps.stop();
        if (m_indicator)
            m_indicator->stopAnimation();
        finish(m_shaders);
        finish(m_references);
        finish(m_file);
    }

    void showBusyOverlay()
    {
        QUxProgressDialogGUII::start(tr("Preparing the review session…"), window());
        QTimer::singleShot(2000, this, [] { QUxProgressDialogGUII::stop(); });
        m_log->log(QStringLiteral("QUxProgressDialogGUII::start"));
    }

    GalleryLog* m_log = nullptr;
    QPointer<QUxProgressIndicator> m_indicator;
    QTimer m_steps;
    int m_step = 0;
    QPointer<QUxSubProgress> m_file;
    QPointer<QUxSubProgress> m_references;
    QPointer<QUxSubProgress> m_shaders;
};

} // namespace

UX_GALLERY_PAGE(90, "Search and Progress", "search-progress", [] { return new SearchProgressPage; });
UX_GALLERY_SHOT("search-progress", "progress-dialog",
                [](QWidget* page) { return static_cast<SearchProgressPage*>(page)->progressDialogShot(); });
UX_GALLERY_SHOT("search-progress", "busy-overlay",
                [](QWidget* page) { return static_cast<SearchProgressPage*>(page)->busyOverlayShot(); });
