#include "QUxMultiLevelComboBox.h"

#include "QUxComboBoxMenu.h"

#include <QPointer>

class QUxMultiLevelComboBoxPrivate
{
public:
    QVariant previous;
    bool menuOpen = false;
};

namespace {

bool holdsValue(const QVariant& value) { return value.isValid() && !value.isNull(); }

// Frees the pop-up menu when showPopup() ends, unless its parent freed it meanwhile.
class MenuDeleter
{
public:
    explicit MenuDeleter(QUxComboBoxMenu* menu) : m_menu(menu) {}
    ~MenuDeleter() { delete m_menu.data(); }
    MenuDeleter(const MenuDeleter&) = delete;
    MenuDeleter& operator=(const MenuDeleter&) = delete;

private:
    QPointer<QUxComboBoxMenu> m_menu;
};

} // namespace

QUxMultiLevelComboBox::QUxMultiLevelComboBox(QWidget* parent)
    : QComboBox(parent), d(std::make_unique<QUxMultiLevelComboBoxPrivate>())
{}

QUxMultiLevelComboBox::~QUxMultiLevelComboBox() = default;

void QUxMultiLevelComboBox::showPopup()
{
    hidePopup();
    // A click on the box while its menu is taken as open only closes it; the next click opens it again.
    if (d->menuOpen) {
        d->menuOpen = false;
        return;
    }
    QUxComboBoxMenu* menu = createMenu();
    const MenuDeleter deleter(menu);
    if (!menu)
        return;
    d->menuOpen = true;
    menu->setMinimumSize(width(), 0);
    menu->init(defaultText(), defaultData());

    const QPointer<QUxMultiLevelComboBox> self(this);
    const QPointer<QAction> chosen = menu->showPopup(mapToGlobal(QPoint(0, height())));
    if (!self || !chosen)
        return;
    const QString text = chosen->text();
    const QVariant data = chosen->data();
    change(text, data);
    d->menuOpen = false;
}

bool QUxMultiLevelComboBox::isDefault() const { return defaultData() == currentData(); }

void QUxMultiLevelComboBox::reset()
{
    const QString text = defaultText();
    const QVariant data = defaultData();
    if (holdsValue(currentData()))
        d->previous = currentData();
    change(text, data);
}

void QUxMultiLevelComboBox::undo()
{
    if (!holdsValue(d->previous) || d->previous == currentData())
        return;
    const QString text = toText(d->previous);
    if (!text.isEmpty())
        change(text, d->previous);
}

void QUxMultiLevelComboBox::update()
{
    const QVariant data = currentData();
    const QString text = toText(data);
    if (text.isEmpty())
        reset();
    else if (text != currentText())
        change(text, data);
}

void QUxMultiLevelComboBox::change(const QString& text, const QVariant& data)
{
    if (text == currentText() && data == currentData())
        return;
    const int index = currentIndex();
    if (index < 0)
        return;
    setItemText(index, text);
    setItemData(index, data, Qt::UserRole);
    emit changed(text, data);
}

QUxComboBoxMenu* QUxMultiLevelComboBox::createMenu() { return nullptr; }

QString QUxMultiLevelComboBox::defaultText() const { return QString(); }

QVariant QUxMultiLevelComboBox::defaultData() const { return QVariant(); }

QString QUxMultiLevelComboBox::toText(const QVariant& value) const
{
    Q_UNUSED(value)
    return QString();
}
