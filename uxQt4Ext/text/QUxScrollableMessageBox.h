#pragma once

#include "uxQt4ExtGlobal.h"

#include <QMessageBox>

/**
 * A message box whose text can be moved into a scroll area, for texts too long
 * for the screen (logs, lists of files).
 * @code
 * QUxScrollableMessageBox box(QMessageBox::Warning, tr("Import"), report, QMessageBox::Ok, window);
 * box.makeScrollable();
 * box.exec();
 * @endcode
 * Call makeScrollable() once, after the text is set.
 */
class UXQT4EXT_EXPORT QUxScrollableMessageBox : public QMessageBox
{
    Q_OBJECT
public:
    explicit QUxScrollableMessageBox(QWidget* parent = nullptr);
    QUxScrollableMessageBox(QMessageBox::Icon icon, const QString& title, const QString& text,
                            QMessageBox::StandardButtons buttons = QMessageBox::NoButton, QWidget* parent = nullptr,
                            Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    ~QUxScrollableMessageBox() override;

    /// Shows the current text in a scroll area in place of the box's own text label.
    void makeScrollable();
};
