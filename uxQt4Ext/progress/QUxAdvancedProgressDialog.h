#pragma once

#include "uxQt4ExtGlobal.h"

#include <QDialog>
#include <QRegion>

#include <memory>

class QUxAdvancedProgressDialogPrivate;
class QUxSubProgress;

/**
 * A frameless, translucent dialog that stacks one QUxSubProgress row per
 * running job. The static operations keep one such dialog: the first
 * addProgress() creates and shows it, and it closes and goes away with its
 * last row.
 * @code
 * QUxSubProgress* files = QUxAdvancedProgressDialog::addProgress(tr("Loading files"), paths.size(), mainWindow);
 * for (const QString& path : paths) {
 *     QUxSubProgress* parts = QUxAdvancedProgressDialog::addProgress(tr("Reading %1").arg(path), 0, mainWindow);
 *     load(path, [] { QUxAdvancedProgressDialog::the()->processEventsLoop(); });
 *     QUxAdvancedProgressDialog::destroyProgress(parts);
 *     files->increaseStep();
 * }
 * QUxAdvancedProgressDialog::destroyProgress(files); // closes the dialog
 * @endcode
 * A row registered by addProgress() that is deleted some other way is
 * forgotten too; if it was the last one, the dialog closes and is deleted
 * once control returns to the event loop.
 */
class UXQT4EXT_EXPORT QUxAdvancedProgressDialog : public QDialog
{
    Q_OBJECT
public:
    explicit QUxAdvancedProgressDialog(QWidget* parent = nullptr);
    ~QUxAdvancedProgressDialog() override;

    /// A new row at the bottom; with @p removeWhenFinished (and a step count) it goes when it finishes.
    /// Such rows are not counted by progressCount() and do not keep the shared dialog open.
    QUxSubProgress* addSubProgress(const QString& description, int steps, bool removeWhenFinished);

    /// @p rect with its corners rounded by @p radius (clamped to half the shorter side).
    static QRegion roundedRect(const QRect& rect, int radius);

    /// A row in the shared dialog, created (child of @p parent) and shown on first use.
    static QUxSubProgress* addProgress(const QString& description, int steps, QWidget* parent = nullptr);
    /// Deletes a row made by addProgress(); the last one takes the dialog with it.
    static void destroyProgress(QUxSubProgress* row);
    static void destroyLastProgress();
    static void increaseLastProgress();
    /// Rows made by addProgress() and still there.
    static int progressCount();
    /// The shared dialog, null when no addProgress() row is open.
    static QUxAdvancedProgressDialog* the();

public slots:
    /// Deletes @p row if it is a row of this dialog.
    void removeSubProgress(QUxSubProgress* row);
    /// Delivers pending events except user input; calls nested more than a few deep return at once.
    void processEventsLoop();

signals:
    /// For hosts; the dialog never emits it.
    void removedSubProgress();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<QUxAdvancedProgressDialogPrivate> const d;
};
