#pragma once

#include "uxQt4ExtGlobal.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;
class QUxSuggestCompletionPrivate;

/**
 * A drop-down list of suggestions under a line edit. After a pause in typing
 * it asks for suggestions with needSuggestions(); the receiver answers at once,
 * inside that slot, with receivedSuggestions(). The popup lists each suggestion
 * with a hint beside it; accepting an entry puts its text into the editor and
 * reports the value that came with it.
 * @code
 * auto* completion = new QUxSuggestCompletion(nameEdit, 300, 2);
 * connect(completion, &QUxSuggestCompletion::needSuggestions, this, [=](const QString& text) {
 *     const QList<Node> found = scene->nodesStartingWith(text);
 *     QStringList names, kinds;
 *     QList<QVariant> ids;
 *     for (const Node& node : found) {
 *         names << node.name;
 *         kinds << node.kind;
 *         ids << node.id;
 *     }
 *     completion->receivedSuggestions(names, kinds, ids);
 * });
 * connect(completion, &QUxSuggestCompletion::completionChosen, this, &Panel::selectNode);
 * @endcode
 * An answer given outside needSuggestions() is dropped.
 */
class UXQT4EXT_EXPORT QUxSuggestCompletion : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int pauseInterval READ pauseInterval WRITE setPauseInterval)
    Q_PROPERTY(int minimumLength READ minimumLength)
public:
    /// Completes @p editor, which also becomes the parent. Suggestions are asked for
    /// @p delay milliseconds after the last edit when the text has at least @p minimumLength characters.
    explicit QUxSuggestCompletion(QLineEdit* editor, int delay, int minimumLength);
    ~QUxSuggestCompletion() override;

    QLineEdit* editor() const;
    /// The suggestion list, for styling.
    QTreeWidget* popup() const;
    int minimumLength() const;
    /// The typing pause in milliseconds; negative counts as 0.
    int pauseInterval() const;
    void setPauseInterval(int milliseconds);

    /// Fills the popup and shows it under the editor; nothing when @p choices is
    /// empty or the three lists differ in length.
    void showCompletion(const QStringList& choices, const QStringList& hints, const QList<QVariant>& values);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void needSuggestions(const QString& searchString);
    void completionChosen(const QVariant& itemData);
    void completionHidden();
    void intermediateChoice(const QVariant& itemData);

public slots:
    /// The answer to needSuggestions(); ignored at any other time.
    void receivedSuggestions(const QStringList& choices, const QStringList& hints, const QList<QVariant>& values);
    void autoSuggest();
    void doneCompletion();
    void preventSuggest();
    void selected(QTreeWidgetItem* current, QTreeWidgetItem* previous);

private:
    bool popupEvent(QEvent* event);

    std::unique_ptr<QUxSuggestCompletionPrivate> const d;
};
