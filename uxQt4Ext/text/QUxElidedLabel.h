#pragma once

#include "uxQt4ExtGlobal.h"

#include <QLabel>

#include <memory>

class QUxElidedLabelPrivate;

/**
 * A label that shortens its text with an ellipsis to fit its width. It can
 * shrink down to the first character and the ellipsis; text() keeps answering
 * the whole text, only the painting is shortened.
 * @code
 * auto* path = new QUxElidedLabel(QStringLiteral("/very/long/path/to/a/scene.file"), panel);
 * path->setElideMode(Qt::ElideMiddle);
 * layout->addWidget(path);
 * @endcode
 * With Qt::ElideNone the label paints like a plain QLabel.
 */
class UXQT4EXT_EXPORT QUxElidedLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
public:
    explicit QUxElidedLabel(const QString& text = QString(), QWidget* parent = nullptr);
    ~QUxElidedLabel() override;

    Qt::TextElideMode elideMode() const;
    void setElideMode(Qt::TextElideMode mode);

    /// Recomputes the shortened text when the text changed since the last call or the cache was invalidated.
    void updateCachedTexts();

    /// An eliding label asks a layout for room for one character and "..." only, before it ever painted.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<QUxElidedLabelPrivate> const d;
};
