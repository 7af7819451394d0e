#pragma once

#include "support/WidgetEvents.h"

#include <ombrin/OmImageButton.h>

#include <functional>

/// A user who answers dialogs while they run their own event loop.
namespace dialog_user {

/// As soon as a \a Dialog is open and active, calls \a action with it, once. A dialog that stays
/// open afterwards fails the test, by the warning, instead of running for ever.
template <typename Dialog>
void whenOpen(const std::function<void(Dialog *)> &action)
{
    auto *timer = new QTimer(qApp);
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action, waited = 0]() mutable {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget *widget : widgets) {
            auto *dialog = qobject_cast<Dialog *>(widget);
            if (!dialog || !dialog->isVisible())
                continue;
            if (!dialog->isActiveWindow()) {
                // Where the active window has just been destroyed, Windows makes none active.
                if (++waited % 50 == 0)
                    dialog->activateWindow();
                continue;
            }
            timer->stop();
            timer->deleteLater();
            QTimer::singleShot(60000, dialog, [dialog] {
                qWarning("%s stays open", dialog->metaObject()->className());
                dialog->hide();
            });
            action(dialog);
            return;
        }
    });
    timer->start();
}

/// Presses and releases a key as the window system tells of it: it goes to what has the focus. The
/// window may be gone before the key is released.
inline void type(const QWidget *window, Qt::Key key)
{
    const QPointer<QWindow> native(window->windowHandle());
    QTest::keyPress(native, key);
    if (native)
        QTest::keyRelease(native, key);
}

inline void type(const QWidget *window, const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(window->windowHandle(), character.toLatin1());
}

/// Clicks on \a widget as the window system tells of it.
inline void click(const QWidget *widget)
{
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget->mapTo(widget->window(), widget->rect().center()));
}

/// The texts of the buttons that the user sees.
inline QString captions(const QWidget *dialog)
{
    QStringList texts;
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (const QPushButton *button : buttons) {
        if (button->isVisibleTo(dialog))
            texts.append(button->text());
    }
    return texts.join(QLatin1Char(' '));
}

/// The button with \a text that the user sees, or null.
inline QPushButton *button(const QWidget *dialog, const char *text)
{
    return ombrin::test::childWhere<QPushButton>(dialog, [&](const QPushButton *candidate) {
        return candidate->isVisibleTo(dialog) && candidate->text() == QLatin1String(text);
    });
}

/// The close button of the frame.
inline ombrin::OmImageButton *closeButton(const QWidget *dialog)
{
    return dialog->findChildren<ombrin::OmImageButton *>(QString(), Qt::FindDirectChildrenOnly)
            .value(3);
}

} // namespace dialog_user
