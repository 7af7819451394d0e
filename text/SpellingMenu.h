#pragma once

#include <QtWidgets/QMenu>

namespace ombrin {

/// The context menu of a misspelt word. It opens at once and takes suggestions in as they come.
class SpellingMenu : public QMenu
{
    Q_OBJECT

public:
    /// The menu for \a word, which is to open at \a position on the screen.
    SpellingMenu(const QString &word, const QPoint &position);

    QAction *addToDictionaryAction() const { return m_addAction; }
    /// The suggestion that \a action offers; empty for the other entries.
    static QString suggestionOf(const QAction *action);

private:
    void showSuggestions(const QString &word);
    void insertNote(const QString &text);
    int mostSuggestions() const;
    void keepOnScreen();

    QString m_word;
    QRect m_screen;
    QAction *m_separator;
    QAction *m_addAction;
    QAction *m_note = nullptr;
};

} // namespace ombrin
