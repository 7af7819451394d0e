#include "model/ScriptedContact.h"

#include <algorithm>
#include <initializer_list>

namespace messenger {

namespace {

namespace Om = ombrin::Om;

constexpr int kThinkMs = 500;
constexpr int kFirstLetterMs = 600;
constexpr int kLetterMs = 14;
constexpr int kLongestTypingMs = 3500;
constexpr int kAwayMs = 6000;
constexpr int kMostSteps = 60;

bool mentions(const QString &text, std::initializer_list<const char *> words)
{
    return std::any_of(words.begin(), words.end(), [&text](const char *word) {
        return text.contains(QString::fromUtf8(word), Qt::CaseInsensitive);
    });
}

/// What a stranger with bad intentions might send.
QString hostileHtml()
{
    return QStringLiteral("<script>alert(1)</script><b>%1</b> <img src=\"file:///etc/passwd\" "
                          "alt=\"[%2]\"> <a href=\"javascript:steal()\">%3</a>, "
                          "<a href=\"https://www.example.org/\">%4</a>.");
}

} // namespace

ScriptedContact::ScriptedContact(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ScriptedContact::takeStep);
}

ScriptedContact::~ScriptedContact() = default;

// What there is to say

void ScriptedContact::greet(const QString &userName)
{
    write(tr("Hello %1, and welcome! I am the guide of this messenger: a script, but a friendly "
             "one. Write \"help\" and I will tell you what we can try together.")
                  .arg(userName));
}

void ScriptedContact::hear(const QString &text)
{
    if (m_steps.size() < kMostSteps)
        answer(text);
}

void ScriptedContact::answer(const QString &text)
{
    if (mentions(text, {"help", "hilfe"})) {
        write(tr("Write one of these words: nudge, picture, link, html, spelling, away, copy. Or "
                 "send me a picture or a nudge with the buttons above."));
    } else if (mentions(text, {"nudge", "stups", "shake"})) {
        write(tr("Hold on to your window!"));
        add(Deed::Nudge, QString(), kThinkMs);
    } else if (mentions(text, {"picture", "photo", "bild", "foto"})) {
        write(tr("Here is the view from my window. Its context menu saves it."));
        add(Deed::Picture, QString(), kThinkMs);
    } else if (mentions(text, {"link", "phone", "mail", "telefon"})) {
        write(tr("Point at these to see where they lead: https://www.example.org/ and "
                 "anna@example.org."));
    } else if (mentions(text, {"html"})) {
        write(tr("Somebody who means harm might send you this:"));
        add(Deed::Html,
            hostileHtml().arg(tr("Bold"), tr("your files"), tr("no link"), tr("a link")), kThinkMs);
        write(tr("The bold word and the honest link are shown. The script, the file and the bad "
                 "link never reach the window."));
    } else if (mentions(text, {"spell", "schreib"})) {
        write(tr("Misspell a word and type a space after it: it is underlined. Its context menu "
                 "suggests better ones."));
    } else if (mentions(text, {"away", "pause", "bye", "weg"})) {
        write(tr("I am getting a coffee. Look at my card!"));
        add(Deed::Leave, QString(), kThinkMs);
        add(Deed::Return, QString(), kAwayMs);
        write(tr("I am back."));
    } else if (mentions(text, {"copy", "second", "kopie", "zweite"})) {
        write(tr("Start me a second time. The copies find each other, and you can write to "
                 "yourself."));
    } else if (mentions(text, {"hello", "hi ", "hallo", "hey"}) || text.size() <= 2) {
        write(tr("Hello! How are you today?"));
    } else if (mentions(text, {"thank", "danke"})) {
        write(tr("You are welcome :-)"));
    } else {
        const QString replies[] = {
                tr("Tell me more."), tr("I see. And what happened then?"),
                tr("That is more than a script can judge. Write \"help\" and I will show you what "
                   "I am good at.")};
        write(replies[m_topic++ % 3]);
    }
}

void ScriptedContact::seePicture()
{
    write(tr("What a beautiful picture, thank you! I will keep it."));
}

void ScriptedContact::feelNudge()
{
    write(tr("Ouch! Yes, I am listening."));
    add(Deed::Nudge, QString(), kThinkMs);
}

// How it is said

void ScriptedContact::write(const QString &text)
{
    add(Deed::Type, QString(), kThinkMs);
    const int length = static_cast<int>(text.size());
    add(Deed::Text, text, std::min(kFirstLetterMs + kLetterMs * length, kLongestTypingMs));
}

void ScriptedContact::add(Deed deed, const QString &text, int delayMs)
{
    m_steps.enqueue({deed, text, delayMs});
    if (!m_timer.isActive() && m_steps.size() == 1)
        wait();
}

void ScriptedContact::wait()
{
    if (!m_steps.isEmpty())
        m_timer.start(static_cast<int>(m_steps.head().delayMs * m_pace));
}

void ScriptedContact::takeStep()
{
    // The next step waits before anybody hears of this one and may answer.
    const Step step = m_steps.dequeue();
    wait();
    switch (step.deed) {
    case Deed::Type:
        Q_EMIT typing(true);
        break;
    case Deed::Text:
        Q_EMIT typing(false);
        Q_EMIT saysText(step.text);
        break;
    case Deed::Html:
        Q_EMIT saysHtml(step.text);
        break;
    case Deed::Picture:
        Q_EMIT showsPicture();
        break;
    case Deed::Nudge:
        Q_EMIT nudges();
        break;
    case Deed::Leave:
        Q_EMIT changesStatus(Om::Away);
        break;
    case Deed::Return:
        Q_EMIT changesStatus(Om::Online);
        break;
    }
}

} // namespace messenger
