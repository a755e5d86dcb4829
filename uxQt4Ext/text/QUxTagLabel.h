#pragma once

#include "uxQt4ExtGlobal.h"

#include <QFrame>

#include <memory>

class QUxTagLabelPrivate;

/**
 * One removable tag chip: the tag as plain text followed by a small close
 * icon that lights up while the chip has focus or the mouse is over it. A
 * left click, or Return or Enter on the focused chip, asks for the tag's
 * removal; the chip itself stays until its owner drops the tag.
 * @code
 * auto* chip = new QUxTagLabel(container);
 * chip->setTag(QStringLiteral("metal"));
 * connect(chip, &QUxTagLabel::tagRemove, model, &TagModel::removeTag);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxTagLabel : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString tag READ getTag WRITE setTag)
public:
    explicit QUxTagLabel(QWidget* parent = nullptr);
    ~QUxTagLabel() override;

    void setTag(const QString& tag);
    QString getTag() const;

    /// Shows the highlighted close icon while focused or hovered, the normal one otherwise.
    void updateIcon();

public slots:
    void emitTagRemove();

signals:
    void tagRemove(const QString& tag);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    std::unique_ptr<QUxTagLabelPrivate> const d;
};
