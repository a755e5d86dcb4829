#pragma once

#include "QUxMenu.h"

#include <memory>

class QUxSAMenuPrivate;

/**
 * A menu whose first entry is a search field: typing hides every entry whose
 * text does not contain the typed text, in any letter case. Each time the
 * menu opens, every entry is shown and enabled again and the field is
 * cleared and focused.
 * @code
 * auto* modules = new QUxSAMenu(tr("Modules"), window);
 * for (const QString& name : moduleNames)
 *     modules->addAction(name);
 * modules->popup(QCursor::pos());
 * @endcode
 */
class UXQT4EXT_EXPORT QUxSAMenu : public QUxMenu
{
    Q_OBJECT
public:
    explicit QUxSAMenu(QWidget* parent = nullptr);
    explicit QUxSAMenu(const QString& title, QWidget* parent = nullptr);
    ~QUxSAMenu() override;

    void setVisible(bool visible) override;

private:
    std::unique_ptr<QUxSAMenuPrivate> const d;
};
