#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>

class QUxSearchBoxPrivate;

/**
 * The search field of a panel: a search button in front of a line edit. The
 * text is reported while typing (live), after a pause in typing (delayed), or
 * only when Return is pressed. The button shows by its checked state that a
 * search is active; pressing it clears the search.
 * @code
 * auto* search = new QUxSearchBox(panel);
 * search->setDelayedLiveSearch(true); // report once typing pauses
 * connect(search, &QUxSearchBox::searchChanged, proxy, &QSortFilterProxyModel::setFilterFixedString);
 * @endcode
 * setDelayedLiveSearch(true) connects the pause timer on every call; call it once.
 */
class UXQT4EXT_EXPORT QUxSearchBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(bool liveSearch READ isLiveSearch WRITE enableLiveSearch)
    Q_PROPERTY(bool delayedLiveSearch READ isDelayedLiveSearch WRITE setDelayedLiveSearch)
    Q_PROPERTY(int delayInterval READ delayInterval WRITE setDelayInterval)
public:
    explicit QUxSearchBox(QWidget* parent = nullptr);
    ~QUxSearchBox() override;

    QString text() const;
    /// Sets the text without reporting it; the button shows whether a search is active.
    void setText(const QString& text);
    /// Clears the line; under live search the empty text is reported.
    void clear();

    /// Appends @p widget after the line.
    void addWidget(QWidget* widget);
    /// Focuses the line and selects its text.
    void beginSearch();

    bool isLiveSearch() const;
    void enableLiveSearch(bool on);
    bool isDelayedLiveSearch() const;
    void setDelayedLiveSearch(bool on);
    /// The typing pause of delayed live search in milliseconds, 750 by default; negative counts as 0.
    int delayInterval() const;
    void setDelayInterval(int milliseconds);

    /// Switches the line's object name between "SearchLineOpen" and "SearchLine" for the style sheet.
    void setSearchLineStyle(bool open);

signals:
    void searchChanged(const QString& text);
    void searchPressedReturn();
    void searchButtonPress();

private slots:
    void searchChanged_p(const QString& text);
    void searchPressedReturn_p();
    void searchButtonPress_p();
    void searchTimout_p();

private:
    std::unique_ptr<QUxSearchBoxPrivate> const d;
};
