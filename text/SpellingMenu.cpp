#include "text/SpellingMenu.h"

#include <ombrin/OmSpelling.h>
#include <ombrin/OmTextEdit.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace ombrin {

namespace {

// Short enough not to be noticed, long enough for suggestions that are almost there.
constexpr int kPatienceMs = 5;
// The separator, "Add to Dictionary" and the frame.
constexpr int kOtherRows = 3;

} // namespace

SpellingMenu::SpellingMenu(const QString &word, const QPoint &position)
    // Qualified in full, so that lupdate finds the context.
    : QMenu(ombrin::OmTextEdit::tr("Spelling"))
    , m_word(word)
    , m_separator(addSeparator())
    , m_addAction(addAction(ombrin::OmTextEdit::tr("Add to Dictionary")))
{
    const QScreen *screen = QGuiApplication::screenAt(position);
    m_screen = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();

    OmSpelling *spelling = OmSpelling::instance();
    if (spelling->prepareSuggestions(word, kPatienceMs)) {
        showSuggestions(word);
        return;
    }
    insertNote(ombrin::OmTextEdit::tr("Looking for Suggestions..."));
    m_note->setEnabled(false);
    connect(spelling, &OmSpelling::suggestionsReady, this, &SpellingMenu::showSuggestions);
}

QString SpellingMenu::suggestionOf(const QAction *action)
{
    return action->data().toString();
}

void SpellingMenu::showSuggestions(const QString &word)
{
    if (word != m_word || !OmSpelling::instance()->prepareSuggestions(word))
        return;
    OmSpelling::instance()->disconnect(this);
    delete m_note;
    m_note = nullptr;
    const QStringList suggestions =
            OmSpelling::instance()->suggestionList(word).mid(0, mostSuggestions());
    for (const QString &suggestion : suggestions) {
        // A word with an ampersand is no shortcut.
        auto *action = new QAction(
                QString(suggestion).replace(QLatin1Char('&'), QLatin1String("&&")), this);
        action->setData(suggestion);
        insertAction(m_separator, action);
    }
    if (suggestions.isEmpty())
        insertNote(ombrin::OmTextEdit::tr("No Suggestions Found"));
    if (isVisible())
        keepOnScreen();
}

void SpellingMenu::insertNote(const QString &text)
{
    m_note = new QAction(text, this);
    insertAction(m_separator, m_note);
}

int SpellingMenu::mostSuggestions() const
{
    const int rowHeight = qMax(1, actionGeometry(m_addAction).height());
    return qMax(1, m_screen.height() / rowHeight - kOtherRows);
}

void SpellingMenu::keepOnScreen()
{
    resize(sizeHint());
    const QPoint last = m_screen.bottomRight() - rect().bottomRight();
    move(qMax(m_screen.left(), qMin(x(), last.x())), qMax(m_screen.top(), qMin(y(), last.y())));
}

} // namespace ombrin
