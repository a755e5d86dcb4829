#pragma once

#include <QPlainTextEdit>

/// A read-only, bounded list of the signals a page's widgets emit.
class GalleryLog : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit GalleryLog(QWidget* parent = nullptr);

public slots:
    void log(const QString& line);
};
