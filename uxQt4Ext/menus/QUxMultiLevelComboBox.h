#pragma once

#include "uxQt4ExtGlobal.h"

#include <QComboBox>
#include <QVariant>

#include <memory>

class QUxComboBoxMenu;
class QUxMultiLevelComboBoxPrivate;

/**
 * A combo box that shows one current entry (text and value) and, instead of
 * a flat list, pops up a nested QUxComboBoxMenu made by a subclass. The box
 * holds one item, whose text and value change() replaces; reset() returns to
 * the default entry and undo() to the value before the last reset().
 *
 * A subclass implements createMenu() (a new menu, typically a QUxComboBoxMenu
 * subclass whose init() fills it), defaultText(), defaultData() and toText().
 * @code
 * class LengthBox : public QUxMultiLevelComboBox
 * {
 * protected:
 *     QUxComboBoxMenu* createMenu() override { return new LengthMenu(font(), currentData(), this); }
 *     QString defaultText() const override { return tr("1 mm"); }
 *     QVariant defaultData() const override { return 1.0; }
 *     QString toText(const QVariant& value) const override { return tr("%1 mm").arg(value.toDouble()); }
 * };
 * auto* box = new LengthBox;
 * box->addItem(QString());
 * box->reset();
 * @endcode
 */
class UXQT4EXT_EXPORT QUxMultiLevelComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit QUxMultiLevelComboBox(QWidget* parent = nullptr);
    ~QUxMultiLevelComboBox() override;

    /// Opens the subclass's menu below the box; while it is taken as open, a call only closes it.
    void showPopup() override;

    /// True when the current value is the default one.
    bool isDefault() const;
    /// Back to the default entry, remembering the current value for undo().
    void reset();
    /// Back to the value before the last reset(), when it still has a text.
    void undo();
    /// Re-reads the current value's text; a value without text resets the box.
    void update();
    using QComboBox::update;

public slots:
    /// Replaces the current item's text and value and emits changed(), unless both are unchanged.
    void change(const QString& text, const QVariant& data);

signals:
    void changed(const QString& text, const QVariant& data);

protected:
    /// A new menu, owned by the caller while it shows; null here, so nothing pops up.
    virtual QUxComboBoxMenu* createMenu();
    virtual QString defaultText() const;
    virtual QVariant defaultData() const;
    /// The text shown for @p value; empty here.
    virtual QString toText(const QVariant& value) const;

private:
    std::unique_ptr<QUxMultiLevelComboBoxPrivate> const d;
};
