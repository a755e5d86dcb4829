#include "QUxToolBar.h"

#include <uxIconManager.h>
#include <uxPlatform.h>

#include <QToolButton>

#include <set>

namespace {

const QString kQuickActionBar = QStringLiteral("QuickActionBar");
const QString kExtensionButton = QStringLiteral("qt_toolbar_ext_button");

std::set<QUxToolBar*>& liveToolBars()
{
    static std::set<QUxToolBar*> toolBars;
    return toolBars;
}

bool s_showButtonText = false;

const QString& styleWText()
{
    static const QString style =
        QStringLiteral("QToolButton { min-height: 3.8em; min-width: 4.2em; border: none; background: rgba(0, 0, 0, 0);}"
                       "QToolButton:on, QToolButton:hover { background: rgba(30, 30, 30, 120);}"
                       "QToolButton:on:hover { background: rgba(0, 0, 0, 120);}"
                       "QToolButton::menu-indicator { background: rgba(0, 0, 0, 0);}");
    return style;
}

const QString& styleWOText()
{
    static const QString style = QStringLiteral(
        "QToolButton { min-width: 3.1em; border: none; background: rgba(0, 0, 0, 0);}"
        "QToolButton:on, QToolButton:hover { min-width: 3.1em; border: none; background: rgba(30, 30, 30, 120);}"
        "QToolButton:on:hover { background: rgba(0, 0, 0, 120);}"
        "QToolButton::menu-indicator { background: rgba(0, 0, 0, 0);}");
    return style;
}

const QString& styleQuickAccess()
{
    static const QString style = QStringLiteral(
        "QToolButton { min-width: 2.5em; min-height: 2.0em; border: none; background: rgba(0, 0, 0, 0);}"
        "QToolButton:on, QToolButton:hover { min-width: 2.5em; border: none; background: rgba(30, 30, 30, 120);}"
        "QToolButton:on:hover { background: rgba(0, 0, 0, 120);}"
        "QToolButton::menu-indicator { background: rgba(0, 0, 0, 0);}"
        "QToolButton::menu-button { background: rgba(0, 0, 0, 0);}"
        "QToolButton::menu-arrow { background: rgba(0, 0, 0, 0);}");
    return style;
}

// A huge or non-finite host scale must not turn into an out-of-range int.
int truncatedWidth(double width)
{
    if (!(width > 0.0))
        return 0;
    return width >= double(QWIDGETSIZE_MAX) ? QWIDGETSIZE_MAX : int(width);
}

// Setting a style sheet re-polishes the button even when the text is the same,
// and every add restyles the whole bar: skip what is already in place.
void setStyleSheetOnce(QToolButton* button, const QString& styleSheet)
{
    if (button->styleSheet() != styleSheet)
        button->setStyleSheet(styleSheet);
}

void styleButton(QToolButton* button, bool quickAccess, bool withText)
{
    button->setAutoRaise(false);
    const int large = uxPlatform::getLargeIconSizeX();
    if (quickAccess) {
        setStyleSheetOnce(button, styleQuickAccess());
        button->setMinimumWidth(truncatedWidth(large + 4.0));
        return;
    }
    setStyleSheetOnce(button, withText ? styleWText() : styleWOText());
    button->setMinimumWidth(truncatedWidth(large + 12.0 * uxPlatform::getDpiScaleX()));
}

} // namespace

// Kept so that per-bar state can be added without changing the class layout.
class QUxToolBarPrivate
{
};

QUxToolBar::QUxToolBar(QWidget* parent) : QToolBar(parent), d(new QUxToolBarPrivate) { liveToolBars().insert(this); }

QUxToolBar::QUxToolBar(const QString& title, QWidget* parent) : QToolBar(title, parent), d(new QUxToolBarPrivate)
{
    liveToolBars().insert(this);
}

QUxToolBar::~QUxToolBar() { liveToolBars().erase(this); }

void QUxToolBar::addAction(QAction* action)
{
    QWidget::addAction(action);
    updateToolButtonStyle();
}

void QUxToolBar::insertAction(QAction* before, QAction* action)
{
    QWidget::insertAction(before, action);
    updateToolButtonStyle();
}

QAction* QUxToolBar::addWidget(QWidget* widget)
{
    QAction* action = QToolBar::addWidget(widget);
    updateToolButtonStyle();
    return action;
}

QAction* QUxToolBar::insertWidget(QAction* before, QWidget* widget)
{
    QAction* action = QToolBar::insertWidget(before, widget);
    updateToolButtonStyle();
    return action;
}

void QUxToolBar::showButtonText(bool show)
{
    s_showButtonText = show;
    // Restyling may run host code (style sheet polish); walk a copy so that a bar destroyed meanwhile is not visited.
    const std::set<QUxToolBar*> toolBars = liveToolBars();
    for (QUxToolBar* toolBar : toolBars) {
        if (!liveToolBars().count(toolBar))
            continue;
        const bool quickAccess = toolBar->objectName() == kQuickActionBar;
        const QList<QToolButton*> buttons = toolBar->findChildren<QToolButton*>();
        for (QToolButton* button : buttons) {
            if (button->objectName() != kExtensionButton)
                styleButton(button, quickAccess, show);
        }
        if (!quickAccess)
            toolBar->setToolButtonStyle(show ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
    }
}

bool QUxToolBar::buttonTextShown() { return s_showButtonText; }

void QUxToolBar::updateToolButtonStyle()
{
    const bool quickAccess = objectName() == kQuickActionBar;
    const QList<QToolButton*> buttons = findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        if (button->objectName() == kExtensionButton)
            button->setIcon(uxIconManager::get("General/ToolButtonExtension.svg"));
        else
            styleButton(button, quickAccess, s_showButtonText);
    }
}
