#pragma once

#include "uxQt4ExtGlobal.h"

#include <QLineEdit>

/**
 * A line edit that takes a file dropped from the desktop and reports its
 * local path. It leaves its own text alone: the host decides what to show.
 * @code
 * auto* field = new QUxFileDropLineEdit(dialog);
 * connect(field, &QUxFileDropLineEdit::fileDropped, field, &QLineEdit::setText);
 * @endcode
 * Of several dropped files only the first counts; URLs without a local path are ignored.
 */
class UXQT4EXT_EXPORT QUxFileDropLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit QUxFileDropLineEdit(QWidget* parent = nullptr);
    explicit QUxFileDropLineEdit(const QString& text, QWidget* parent = nullptr);
    ~QUxFileDropLineEdit() override;

signals:
    void fileDropped(const QString& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};
