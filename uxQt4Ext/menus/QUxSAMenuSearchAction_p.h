#pragma once

#include <QPointer>
#include <QWidgetAction>

class QLineEdit;
class QMenu;

// The search field that a QUxSAMenu shows as its first entry: what is typed
// into it hides every other entry of the menu whose text does not contain it.
class QUxSAMenuSearchAction : public QWidgetAction
{
    Q_OBJECT
public:
    explicit QUxSAMenuSearchAction(QMenu* menu);
    ~QUxSAMenuSearchAction() override;

public slots:
    void textChanged(const QString& text);
    void textFinished();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QMenu> m_menu;
    QPointer<QLineEdit> m_lineEdit;
    QAction* m_heldChange = nullptr; // the last entry changed while the open menu's layout was held back
};
