#pragma once

#include <ombrin/OmTrayPopup.h>

#include <QtCore/QTimer>

namespace messenger {

/// A note in the corner of the screen for users who look elsewhere. Takes no focus, goes by itself
/// after some seconds, and deletes itself.
class Toast : public ombrin::OmTrayPopup
{
    Q_OBJECT

public:
    /// \a title and \a text are plain.
    Toast(const QPixmap &picture, const QString &title, const QString &text);
    ~Toast() override;

    /// Shows it in the lower right corner of the work area.
    void popUp();

Q_SIGNALS:
    /// The user wants to see more.
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void fadeAway();

    QTimer m_timer;
};

} // namespace messenger
