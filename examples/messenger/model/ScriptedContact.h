#pragma once

#include <ombrin/Om.h>

#include <QtCore/QObject>
#include <QtCore/QQueue>
#include <QtCore/QString>
#include <QtCore/QTimer>

namespace messenger {

/// A contact that is a script: it answers to what it hears, shows what the messenger can do, and
/// takes its time as people do.
class ScriptedContact : public QObject
{
    Q_OBJECT

public:
    explicit ScriptedContact(QObject *parent = nullptr);
    ~ScriptedContact() override;

    /// How much time an answer takes: 1 is natural, 0 is none.
    void setPace(double pace) { m_pace = pace; }

    void greet(const QString &userName);
    void hear(const QString &text);
    void seePicture();
    void feelNudge();

Q_SIGNALS:
    void typing(bool isTyping);
    void saysText(const QString &text);
    void saysHtml(const QString &html);
    void showsPicture();
    void nudges();
    void changesStatus(ombrin::Om::ContactStatus status);

private:
    enum class Deed { Type, Text, Html, Picture, Nudge, Leave, Return };

    struct Step
    {
        Deed deed;
        QString text;
        int delayMs;
    };

    void write(const QString &text);
    void add(Deed deed, const QString &text, int delayMs);
    void answer(const QString &text);
    void takeStep();
    void wait();

    QQueue<Step> m_steps;
    QTimer m_timer;
    double m_pace = 1;
    int m_topic = 0;
};

} // namespace messenger
