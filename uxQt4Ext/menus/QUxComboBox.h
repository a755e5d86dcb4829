#pragma once

#include "uxQt4ExtGlobal.h"

#include <QComboBox>

#include <memory>

class QUxComboBoxPrivate;

/**
 * A combo box whose drop-down list is always wide enough for its longest
 * entry, plus the scroll bar when the list scrolls, and which reports the
 * opening and closing of that list.
 * @code
 * auto* units = new QUxComboBox(panel);
 * units->addItems({tr("Millimetre"), tr("Centimetre"), tr("Metre")});
 * connect(units, &QUxComboBox::popupShown, this, [this](int index) { previewUnit(index); });
 * connect(units, &QUxComboBox::popupHidden, this, &Panel::endPreview);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit QUxComboBox(QWidget* parent = nullptr);
    ~QUxComboBox() override;

    /// Widens the list to the longest entry, opens it and emits popupShown().
    void showPopup() override;
    /// Closes the list and emits popupHidden() if it was open.
    void hidePopup() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The list was opened while @p index was current.
    void popupShown(int index);
    /// The list was closed, by hidePopup() or by a click outside it.
    void popupHidden();

private:
    std::unique_ptr<QUxComboBoxPrivate> const d;
};
