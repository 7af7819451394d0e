#include "model/Account.h"

#include "model/Contact.h"

#include <QtCore/QUuid>

namespace messenger {

namespace {

constexpr int kLongestName = 60;
constexpr int kLongestLine = 120;

} // namespace

QJsonObject Account::toJson() const
{
    return {{QStringLiteral("id"), id},         {QStringLiteral("name"), name},
            {QStringLiteral("server"), server}, {QStringLiteral("status"), wordForStatus(status)},
            {QStringLiteral("remark"), remark}, {QStringLiteral("picture"), picture}};
}

Account Account::fromJson(const QJsonObject &object)
{
    const auto text = [&object](const char *key, int length) {
        return asLine(object.value(QLatin1String(key)).toString(), length);
    };
    Account account;
    account.id = text("id", kLongestLine);
    account.name = text("name", kLongestName);
    if (!isContactId(account.id) || account.name.isEmpty())
        return Account();
    account.server = text("server", kLongestLine);
    account.status = statusFromWord(text("status", kLongestLine));
    account.remark = text("remark", kLongestLine);
    account.picture = text("picture", kLongestLine);
    return account;
}

Account Account::create(const QString &name, const QString &server)
{
    Account account;
    account.id = QUuid::createUuid().toString(QUuid::Id128);
    account.name = asLine(name, kLongestName);
    account.server = asLine(server, kLongestLine);
    return account;
}

} // namespace messenger
