#pragma once

#include "uxQt4ExtGlobal.h"

#include <QSpinBox>

#include <memory>

class QUxSpinerPrivate;

/**
 * An integer spin box that changes its value by dragging with the middle
 * mouse button (one singleStep per pixel) and edits its own step size from
 * the context menu ("Step...").
 * @code
 * auto* spin = new QUxSpiner(parent);
 * spin->setAutoStepsOnMousePress(false); // holding an arrow steps once
 * connect(spin, &QUxSpiner::singleStepChanged, this, &Owner::rememberStep);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxSpiner : public QSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool showStepHint READ showStepHint WRITE setShowStepHint)
    Q_PROPERTY(bool autoStepsOnMousePress READ autoStepsOnMousePress WRITE setAutoStepsOnMousePress)
    Q_PROPERTY(bool displaySceneUnit READ displaySceneUnit WRITE setDisplaySceneUnit)

public:
    explicit QUxSpiner(QWidget* parent = nullptr);
    ~QUxSpiner() override;

    QSize sizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    bool showStepHint() const;
    void setShowStepHint(bool show);
    bool autoStepsOnMousePress() const;
    /// Off: holding an arrow button steps once only.
    void setAutoStepsOnMousePress(bool enabled);
    bool displaySceneUnit() const;
    /// Shows the host's scene unit (" mm", " cm", " m") as suffix.
    void setDisplaySceneUnit(bool on);

    /// True while the box itself edits its step size ("Step..." of the context menu).
    bool isEditingStep() const;

    /// Re-reads the scene unit string into the suffix.
    void updateSceneUnit();
    /// Updates every live instance that shows the scene unit; call after changing the unit.
    static void updateInstancesWithSceneUnit();

public slots:
    void setSingleStep(int value);

signals:
    void singleStepChanged(int value);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

    /// Turns the box into the editor of its own step size until the next editingFinished().
    void beginStepEditing();

private slots:
    void finishedEditing();

private:
    std::unique_ptr<QUxSpinerPrivate> const d;
};
