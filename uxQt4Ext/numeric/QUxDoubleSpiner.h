#pragma once

#include "uxQt4ExtGlobal.h"

#include <QDoubleSpinBox>

#include <memory>

class QUxDoubleSpinerPrivate;

/**
 * A double spin box whose text field takes arithmetic ("2*(3+4)") and
 * relative entries ("+=1.5", "-=2", "*=2", "/=4").
 *
 * In ApplyRelativeOperator mode a relative entry changes the box's own value.
 * In EmitRelativeOperator mode the value stays and the entry is reported
 * through relativeOperatorApplied(), so that an owner can change many
 * selected objects by the same amount.
 *
 * Dragging with the middle mouse button over the text changes the value by
 * one singleStep per pixel; the context menu edits the step size.
 * @code
 * auto* spin = new QUxDoubleSpiner(parent);
 * spin->setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
 * connect(spin, &QUxDoubleSpiner::relativeOperatorApplied, this,
 *         [this](QUxDoubleSpiner::RelativeOperator op, double operand) { applyToSelection(op, operand); });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxDoubleSpiner : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool showStepHint READ showStepHint WRITE setShowStepHint)
    Q_PROPERTY(int displayDecimals READ displayDecimals WRITE setDisplayDecimals)
    Q_PROPERTY(bool useExactDisplayDecimals READ useExactDisplayDecimals WRITE setUseExactDisplayDecimals)
    Q_PROPERTY(bool displaySceneUnit READ displaySceneUnit WRITE setDisplaySceneUnit)

public:
    // int-based, so that any integer a host passes (through a property, say) is a value of the type
    enum RelativeOperator : int {
        NoRelativeOperator = 0,
        RelativeAdd = 1,      ///< "+="
        RelativeSubtract = 2, ///< "-="
        RelativeMultiply = 3, ///< "*="
        RelativeDivide = 4,   ///< "/="
        RelativeSet = 5       ///< an absolute value committed while relative entries are emitted
    };
    Q_ENUM(RelativeOperator)

    enum RelativeOperatorHandlingMode : int {
        ApplyRelativeOperator = 0, ///< relative entries change this box's value
        EmitRelativeOperator = 1   ///< relative entries are reported, the value stays
    };
    Q_ENUM(RelativeOperatorHandlingMode)

    explicit QUxDoubleSpiner(QWidget* parent = nullptr);
    ~QUxDoubleSpiner() override;

    QSize sizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    QValidator::State validate(QString& text, int& pos) const override;
    double valueFromText(const QString& text) const override;
    /// The value with displayDecimals at most, trailing zeros trimmed to no fewer than two decimals.
    QString textFromValue(double value) const override;

    bool showStepHint() const;
    void setShowStepHint(bool show);
    int displayDecimals() const;
    bool useExactDisplayDecimals() const;
    bool displaySceneUnit() const;
    /// Shows the host's scene unit (" mm", " cm", " m") as suffix.
    void setDisplaySceneUnit(bool on);

    /// As QDoubleSpinBox's, except that a NaN bound is ignored.
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setRange(double minimum, double maximum);

    void setRelativeOperatorHandlingMode(RelativeOperatorHandlingMode mode);
    RelativeOperatorHandlingMode relativeOperatorHandlingMode() const;

    /// The relative entry typed but not yet committed (EmitRelativeOperator mode only).
    RelativeOperator currentRelativeOperator() const;
    double currentRelativeValue() const;
    /// False while the typed text is neither acceptable nor a pending relative entry.
    bool isInputAcceptable() const;
    /// How long typing must pause before unacceptable text is marked; 800 ms unless set.
    int inputFeedbackDelay() const;
    /// Negative delays count as 0, which marks on the next pass of the event loop.
    void setInputFeedbackDelay(int milliseconds);

    /// Emits relativeOperatorApplied() for a pending relative entry and clears it.
    void emitRelativeValue();

    /// Re-evaluates the style sheet rules on this box.
    void reapplyStyle();
    /// Re-reads the scene unit string into the suffix.
    void updateSceneUnit();
    /// Updates every live instance that shows the scene unit; call after changing the unit.
    static void updateInstancesWithSceneUnit();

    /// @p value changed by a relative entry: "+=", "-=", "*=", "/=" (division
    /// by zero, or a result that is no number, leaves it) or a plain value. What
    /// a host applies to each object of a multi-selection when it receives
    /// relativeOperatorApplied().
    static double applyRelativeOperator(double value, RelativeOperator op, double operand);

public slots:
    /// Steps below 1e-8, NaN and infinity are ignored.
    void setSingleStep(double value);
    /// Closes the step-size menu.
    void stepEditingFinished();
    /// Clamped to [0, 323].
    void setDisplayDecimals(int decimals);
    void setUseExactDisplayDecimals(bool enabled);

signals:
    void singleStepChanged(double value);
    void mouseButtonPressed();
    void mouseButtonReleased();
    void relativeOperatorChanged(RelativeOperator op, double value) const;
    void relativeOperatorApplied(RelativeOperator op, double value);
    void focusGained();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    /// Splits "op=operand" into its operator and evaluated operand; false if @p text is no relative entry.
    bool parseRelativeOperator(const QString& text, RelativeOperator& op, double& operand) const;
    void resetVisualInputFeedback();

private slots:
    void finishedEditing();
    void changedValue(QString text);
    void checkInput(QString text);
    void updateVisualInputFeedback();
    void setCurrentRelativeOperator(RelativeOperator op, double value);

private:
    std::unique_ptr<QUxDoubleSpinerPrivate> const d;
};
