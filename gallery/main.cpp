#include "GalleryWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <QTimer>

namespace {

// The library only sets the properties; showing them is the host style's job.
const char* const feedbackStyleSheet = R"(
QUxDoubleSpiner[multiselect="true"], QUxSpiner[multiselect="true"] { background: #fff3c4; }
QUxDoubleSpiner[inputAcceptable="false"] { background: #ffd6d6; color: #8b0000; }
)";

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("uxGallery"));
    QApplication::setOrganizationName(QStringLiteral("uxQt4Ext"));
    app.setStyleSheet(QString::fromLatin1(feedbackStyleSheet));
    QLocale::setDefault(QLocale::c());

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("The uxQt4Ext widget gallery."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Render every page to DIR/<page>.png, the whole window to "
                                                       "DIR/gallery.png, and exit."),
                                        QStringLiteral("DIR"));
    parser.addOption(screenshot);
    parser.process(app);

    // Screenshots show the first-start layout, whatever the last session left.
    GalleryWindow window(!parser.isSet(screenshot));
    if (parser.isSet(screenshot)) {
        window.show();
        QApplication::processEvents();
        const QStringList written = window.saveScreenshots(parser.value(screenshot));
        QTextStream out(stdout);
        for (const QString& path : written)
            out << path << '\n';
        return written.isEmpty() ? 1 : 0;
    }
    window.show();
    return app.exec();
}
