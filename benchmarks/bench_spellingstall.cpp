#include "support/RatioCase.h"
#include "support/SampleText.h"

#include <ombrin/OmSpelling.h>
#include <ombrin/OmTextEdit.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QTextCursor>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include <algorithm>

// How long the event loop stands still while a text full of mistakes is typed and its context menus
// are opened. French, as its suggestions take longest.

using ombrin::OmSpelling;
using ombrin::OmTextEdit;
using ombrin::bench::RatioCase;

namespace {

constexpr int kLongestStallMs = 30;
constexpr int kWords = 400;
constexpr int kWrongOneIn = 2;
constexpr int kKeysBetweenMenus = 250;
constexpr int kMenuOpenMs = 40;

// Measures the time between two turns of the event loop.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_clock.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
        m_timer.start(0);
    }
    double longestMs() const { return m_longestMs; }

private:
    void beat()
    {
        m_longestMs = std::max(m_longestMs, double(m_clock.nsecsElapsed()) / 1e6);
        m_clock.restart();
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_longestMs = 0;
};

void openMenuOfLastWrongWord(OmTextEdit *edit, const QString &word)
{
    const QTextCursor cursor =
            edit->document()->find(word, edit->textCursor(), QTextDocument::FindBackward);
    if (cursor.isNull())
        return;
    QTextCursor middle = cursor;
    middle.setPosition(cursor.selectionStart() + 1);
    const QPoint point = edit->cursorRect(middle).center();
    QTimer::singleShot(kMenuOpenMs, edit, [] {
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, edit->viewport()->mapToGlobal(point));
    QCoreApplication::sendEvent(edit->viewport(), &event);
}

double longestStall()
{
    const QStringList words = ombrin::bench::dictionaryWords(QStringLiteral("fr"), kWords);
    OmSpelling::instance()->setDict(QString()); // Has it forget what earlier runs asked for.
    OmTextEdit edit;
    edit.resize(500, 200);
    edit.setDict(QStringLiteral("fr"));
    edit.setSpellChecking(true);
    edit.show();
    // The dictionary is loaded when the chat window opens, before anything is typed.
    OmSpelling::instance()->checkWord(QStringLiteral("bonjour"));
    QCoreApplication::processEvents();

    const Heartbeat heartbeat;
    int keys = 0;
    for (int i = 0; i < words.size(); ++i) {
        const bool isWrong = i % kWrongOneIn == 0;
        const QString word = isWrong ? ombrin::bench::misspelt(words.at(i)) : words.at(i);
        const QString typed = word + QLatin1Char(' ');
        for (const QChar c : typed) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QString(c));
            QCoreApplication::sendEvent(&edit, &event);
            QCoreApplication::processEvents();
            ++keys;
        }
        if (isWrong && keys > kKeysBetweenMenus) {
            openMenuOfLastWrongWord(&edit, word);
            keys = 0;
        }
    }
    return heartbeat.longestMs();
}

const RatioCase stallCase(
        "spelling: longest stall (ms) while typing French, beside 30 ms", 1,
        [](benchmark::State &state) {
            for (auto _ : state)
                state.counters[ombrin::bench::kFigure] = longestStall();
        },
        [](benchmark::State &state) {
            for (auto _ : state)
                state.counters[ombrin::bench::kFigure] = kLongestStallMs;
        });

} // namespace
