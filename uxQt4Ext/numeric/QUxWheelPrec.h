#pragma once

#include "uxQt4ExtGlobal.h"

#include "QUxDoubleSpiner.h"

#include <QWidget>

#include <memory>

class QUxWheel;
class QUxWheelPrecPrivate;

/**
 * A numeric field with a jog wheel beside it: the field takes typed values
 * and expressions, the wheel changes the value by one singleStep per pixel of
 * drag, and by two steps per notch of the mouse wheel over it. The field
 * shows no arrow buttons unless setButtonSymbols() asks for them.
 *
 * The wheel always acts relatively, through the field's relative operator
 * handling: in ApplyRelativeOperator mode it changes the value (clamped to
 * the range); in EmitRelativeOperator mode the value stays and each turn is
 * reported as relativeOperatorApplied(RelativeAdd, increment), exactly like
 * a typed "+=increment", so that a host can move many selected objects.
 * @code
 * auto* height = new QUxWheelPrec(parent);
 * height->setRange(0.0, 1000.0);
 * height->setSingleStep(0.1);
 * height->setSuffix(" mm");
 * connect(height, &QUxWheelPrec::valueChanged, this, &Box::setHeight);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxWheelPrec : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep NOTIFY singleStepChanged)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(int displayDecimals READ displayDecimals WRITE setDisplayDecimals)
    Q_PROPERTY(bool useExactDisplayDecimals READ useExactDisplayDecimals WRITE setUseExactDisplayDecimals)
    Q_PROPERTY(bool showStepHint READ showStepHint WRITE setShowStepHint)
    Q_PROPERTY(bool showWheel READ isWheelVisible WRITE setWheelVisible)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QAbstractSpinBox::ButtonSymbols buttonSymbols READ buttonSymbols WRITE setButtonSymbols)
    Q_PROPERTY(QSize minimumWheelSize READ minimumWheelSize WRITE setMinimumWheelSize)
    Q_PROPERTY(QSize maximumWheelSize READ maximumWheelSize WRITE setMaximumWheelSize)
    Q_PROPERTY(QSize minimumSpinerSize READ minimumSpinerSize WRITE setMinimumSpinerSize)
    Q_PROPERTY(QSize maximumSpinerSize READ maximumSpinerSize WRITE setMaximumSpinerSize)

public:
    using RelativeOperator = QUxDoubleSpiner::RelativeOperator;

    explicit QUxWheelPrec(QWidget* parent = nullptr);
    ~QUxWheelPrec() override;

    double value() const;
    double singleStep() const;
    double minimum() const;
    double maximum() const;
    void setRange(double minimum, double maximum);
    /// Internal decimals of the field: values are rounded to this many.
    int decimals() const;
    /// Most decimals the field shows.
    int displayDecimals() const;
    bool useExactDisplayDecimals() const;
    bool showStepHint() const;
    bool isWheelVisible() const;
    QString suffix() const;
    QAbstractSpinBox::ButtonSymbols buttonSymbols() const;

    QSize minimumWheelSize() const;
    QSize maximumWheelSize() const;
    QSize minimumSpinerSize() const;
    QSize maximumSpinerSize() const;

    void setRelativeOperatorHandlingMode(QUxDoubleSpiner::RelativeOperatorHandlingMode mode);
    QUxDoubleSpiner::RelativeOperatorHandlingMode relativeOperatorHandlingMode() const;

    /// Sets a style-sheet property on the field (only on change, repolished).
    void setControlProperty(const char* name, const QVariant& value);
    /// Marks the field for the host's multi-selection style ("multiselect").
    void setMultiSelectHighlight(bool on);

    /// The field, for style properties and fine tuning; owned by this widget.
    QUxDoubleSpiner* spiner() const;
    /// The wheel; owned by this widget.
    QUxWheel* wheel() const;

public slots:
    /// Sets the field's value (clamped and rounded by the field); emits valueChanged() when it changes.
    void setValue(double value);
    /// Steps below 1e-8 are ignored; an accepted step emits singleStepChanged().
    void setSingleStep(double step);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setDecimals(int decimals);
    void setDisplayDecimals(int decimals);
    void setUseExactDisplayDecimals(bool enabled);
    void setShowStepHint(bool show);
    void setWheelVisible(bool on);
    void setSuffix(const QString& suffix);
    void setButtonSymbols(QAbstractSpinBox::ButtonSymbols symbols);
    void setMinimumWheelSize(const QSize& size);
    void setMaximumWheelSize(const QSize& size);
    void setMinimumSpinerSize(const QSize& size);
    void setMaximumSpinerSize(const QSize& size);

signals:
    void valueChanged(double value);
    void relativeOperatorApplied(RelativeOperator op, double value);
    /// The wheel was grabbed with the mouse.
    void sliderPressed();
    void sliderReleased();
    /// A mouse button went down on the field.
    void mouseButtonPressed();
    void mouseButtonReleased();
    void focusGained();
    void singleStepChanged(double value);
    void editingFinished();

private:
    void connectField();
    void connectWheel();
    void turnWheel(double wheelValue);
    /// Runs @p change on the field with its signals blocked, then reports a value it changed.
    template<typename Change>
    void changeField(Change change);

    std::unique_ptr<QUxWheelPrecPrivate> const d;
};
