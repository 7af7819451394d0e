#pragma once

#include "model/ContactBook.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

class QWidget;

namespace messenger {

class Client;
class Session;

/// Photographs the messenger's windows, as they look in the middle of somebody's day, at the
/// density this process runs at.
class Camera
{
    Q_DECLARE_TR_FUNCTIONS(Camera)

public:
    /// Saves into \a directory, which must exist. \a book is whose contacts are shown.
    Camera(const QString &directory, const ContactBook &book);

    /// Returns what went wrong, or an empty text.
    QString takeAll();

private:
    void takeContacts(Client *client);
    void takeChat(Client *client, Session *session);
    void takeProfile(Client *client);
    void takeWizard(const QImage &picture);
    void takePreferences();
    void takeToast();
    void take(QWidget *window, const QString &name);

    QString m_directory;
    ContactBook m_book;
    QString m_error;
};

} // namespace messenger
