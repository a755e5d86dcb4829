#pragma once

#include "uxQt4ExtGlobal.h"

#include <QLabel>

/**
 * A label that reports every mouse press, whatever the button.
 * @code
 * auto* link = new QUxClickableLabel(panel);
 * link->setText(tr("Show details"));
 * connect(link, &QUxClickableLabel::clicked, details, &QWidget::show);
 * @endcode
 * The press is not passed on to QLabel, so it neither selects text nor reaches the parent.
 */
class UXQT4EXT_EXPORT QUxClickableLabel : public QLabel
{
    Q_OBJECT
public:
    explicit QUxClickableLabel(QWidget* parent = nullptr);
    ~QUxClickableLabel() override;

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
};
