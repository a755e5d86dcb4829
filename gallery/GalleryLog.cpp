#include "GalleryLog.h"

#include <QFontDatabase>

GalleryLog::GalleryLog(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setMaximumBlockCount(200);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setPlaceholderText(tr("Signals appear here as you edit."));
}

void GalleryLog::log(const QString& line) { appendPlainText(line); }
