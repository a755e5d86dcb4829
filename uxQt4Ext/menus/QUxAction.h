#pragma once

#include "uxQt4ExtGlobal.h"

#include <QAction>

#include <memory>

class QUxActionPrivate;

/**
 * An action that follows the process-wide switch between icon-only tool bars
 * and tool bars with text under the icons. The switch acts on every tool bar
 * that shows at least one live QUxAction; a tool bar holding only plain
 * QActions keeps its style.
 * @code
 * auto* save = new QUxAction(saveIcon, tr("Save"), window);
 * toolBar->addAction(save);
 * QUxAction::showIconText(true); // the tool bar now shows "Save" under the icon
 * @endcode
 * A new action leaves its tool bars as they are until the next switch.
 */
class UXQT4EXT_EXPORT QUxAction : public QAction
{
    Q_OBJECT
public:
    explicit QUxAction(QObject* parent = nullptr);
    explicit QUxAction(const QString& text, QObject* parent = nullptr);
    explicit QUxAction(const QIcon& icon, const QString& text, QObject* parent = nullptr);
    ~QUxAction() override;

    /// Text under the icons (true) or icons only (false) on the tool bars of every live action.
    static void showIconText(bool show);
    static bool iconTextShown();

private:
    std::unique_ptr<QUxActionPrivate> const d;
};
