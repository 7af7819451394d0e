#pragma once

#include <ombrin/Om.h>

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace messenger {

/// The user of the messenger.
struct Account
{
    /// A contact id, made up when the account is added; empty while there is no account.
    QString id;
    QString name;
    QString server;
    ombrin::Om::ContactStatus status = ombrin::Om::Online;
    QString remark;
    /// The name of a file in the folder of pictures; empty for none.
    QString picture;

    bool exists() const { return !id.isEmpty(); }
    QJsonObject toJson() const;
    static Account fromJson(const QJsonObject &object);
    /// A new account with an id of its own.
    static Account create(const QString &name, const QString &server);
};

} // namespace messenger
