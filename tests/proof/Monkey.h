#pragma once

#include "support/Text.h"

#include <QtWidgets/QtWidgets>

#include <functional>
#include <random>

class QFileDialog;

namespace ombrin::test {

/// Sends input that nobody means to a window and to whatever opens from there: mouse, keys, input
/// methods, touch, drops, changes of focus, size, language, style and so on.
///
/// The same seed gives the same events, as far as timers fall the same way. With
/// OMBRIN_MONKEY_TRACE in the environment each event is told of before it is sent.
class Monkey : public QObject
{
public:
    /// Files are saved to, and dropped from, \a folder.
    Monkey(quint32 seed, const QString &folder);
    /// Gives back the application's own style, palette, font and language.
    ~Monkey() override;

    /// Sends \a count events to what \a create makes, which is made anew when it is gone, then
    /// closes whatever is open.
    void play(const std::function<QWidget *()> &create, int count);

private:
    using Action = std::function<void(Monkey &)>;
    struct Choice
    {
        int share; // in ten thousand
        const char *name;
        Action action;
    };
    static const Choice kChoices[];

    int number(int count); // from 0 to count - 1
    bool chance(int percent) { return number(100) < percent; }

    void tick();
    void act();
    void finish();
    bool leaveFileDialog();
    bool leaveWhatIsOpenForLong();
    void closeOpened();

    QWidget *window() const;
    QWidget *anyWidget();
    QPoint anyPlace(const QWidget *widget);
    Qt::KeyboardModifiers anyModifiers();
    void sendMouse(QEvent::Type type, Qt::MouseButton button);
    void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text);

    void moveMouse();
    void pressMouse();
    void releaseMouse();
    void click();
    void doubleClick();
    void turnWheel();
    void pressKey();
    void typeText();
    void compose();
    void touch();
    void dragOver();
    void openContextMenu();
    void askForHelp();
    void changeWindowState();
    void hideOrShow();
    void disableOrEnable();
    void activate();
    void changeStyle();
    void changeFont();
    void scroll();

    std::mt19937 m_random;
    const QString m_folder;
    std::function<QWidget *()> m_create;
    QPointer<QWidget> m_window;
    QEventLoop m_loop;
    int m_left = 0;
    int m_pause = 0;
    bool m_traces = false;

    QPointer<QWidget> m_opened; // the pop-up or modal window that takes the events
    int m_openedFor = 0;
    QVector<QPointer<QWidget>> m_refusing; // to be closed

    QPointer<QWindow> m_mouseWindow;
    QPoint m_place; // of the mouse, in that window
    Qt::MouseButtons m_buttons;
    ulong m_time = 1;
    QPointer<QWidget> m_hidden;
    QPointer<QWidget> m_disabled;

    const QPalette m_palette;
    const QFont m_font;

    /// A language in which everything takes more room.
    class LongLanguage : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return "%1 \u2013 %1"_q.arg(QString::fromUtf8(text));
        }
        bool isEmpty() const override { return false; }
    };
    LongLanguage m_language;
};

} // namespace ombrin::test
