#pragma once

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace gallery {

/// A skinned window or dialog as an exhibit: inside a page and out of the mouse's reach. It is
/// active while the gallery is.
template <typename Frame>
class EmbeddedFrame : public Frame
{
public:
    explicit EmbeddedFrame(QWidget *parent)
        : Frame(parent)
    {
        // A dialog made itself a native window. Inside another one it would force its whole
        // neighbourhood to become native, too.
        this->setAttribute(Qt::WA_NativeWindow, false);
        this->setWindowFlags(Qt::Widget);
        this->setWindowModality(Qt::NonModal);
        this->setAttribute(Qt::WA_TransparentForMouseEvents);
        this->setAutoFillBackground(true); // as Qt does for windows alone
    }

protected:
    // Qt tells children of the window's activation, but leaves it to top-level windows to change
    // their looks with it.
    bool event(QEvent *event) override
    {
        const QEvent::Type type = event->type();
        const bool result = Frame::event(event);
        if (type == QEvent::Show || type == QEvent::WindowActivate
            || type == QEvent::WindowDeactivate) {
            QEvent activationChange(QEvent::ActivationChange);
            Frame::event(&activationChange);
        }
        return result;
    }
};

} // namespace gallery
