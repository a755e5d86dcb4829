#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>

class QUxSubProgressPrivate;

/**
 * One job of a progress dialog: a description, and either a spinning
 * indicator (no step count known) or a bar with the whole percentage done.
 * @code
 * auto* row = new QUxSubProgress(dialog);
 * row->setDescription(tr("Loading textures"));
 * row->setSteps(files.size());
 * connect(row, &QUxSubProgress::finished, dialog, &QUxAdvancedProgressDialog::removeSubProgress);
 * for (const QString& file : files) {
 *     load(file);
 *     row->increaseStep();
 * }
 * @endcode
 * Steps outside 0..steps() are ignored. The label and the bar follow the
 * step at most once per refreshInterval() milliseconds (the last step of a
 * job at once), so that a tight loop does not spend its time repainting.
 */
class UXQT4EXT_EXPORT QUxSubProgress : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int steps READ steps WRITE setSteps)
    Q_PROPERTY(int step READ step WRITE setStep)
    Q_PROPERTY(QString description READ description WRITE setDescription)
    Q_PROPERTY(int refreshInterval READ refreshInterval WRITE setRefreshInterval)
public:
    explicit QUxSubProgress(QWidget* parent = nullptr);
    ~QUxSubProgress() override;

    QString description() const;
    void setDescription(const QString& description);
    /// Bar at most 15 pixels high (scaled) when true, unlimited when false.
    void setUseSmallProgressBar(bool small);

    /// Number of steps of the job; 0 or less: unknown, the indicator spins.
    int steps() const;
    void setSteps(int steps);
    int step() const;
    void setStep(int step);
    void increaseStep();
    /// The whole percentage shown (0 to 100).
    int percentage() const;

    /// Shortest time in milliseconds between two repaints of the bar (default 16; 0: every step).
    int refreshInterval() const;
    void setRefreshInterval(int milliseconds);

    /// setStep() on the most recently created row, if it still exists.
    static void setProgress(unsigned int step);

public slots:
    /// A self-running demonstration: one step now, the next a second later.
    void foo();

signals:
    /// The step reached the step count (each time it does).
    void finished(QUxSubProgress* row);

private:
    std::unique_ptr<QUxSubProgressPrivate> const d;
};
