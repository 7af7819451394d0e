#include "screen/portal/PortalRequest.h"

#include <QtCore/QUrl>
#include <QtCore/QUuid>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingReply>
#include <QtGui/QImageReader>

#include <utility>

namespace ombrin {

namespace {

const QLatin1String kService("org.freedesktop.portal.Desktop");
const QLatin1String kObject("/org/freedesktop/portal/desktop");
const QLatin1String kScreenshotInterface("org.freedesktop.portal.Screenshot");
const QLatin1String kRequestInterface("org.freedesktop.portal.Request");
constexpr uint kGranted = 0;

} // namespace

PortalRequest::PortalRequest(const std::function<void(const QImage &)> &done)
    : m_done(done)
    , m_portal(kService, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForUnregistration)
{
    // A portal that is gone answers nobody.
    connect(&m_portal, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(QImage()); });
}

void PortalRequest::start()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    // The path is known before the answer, so that a quick signal is not missed.
    const QString token = QLatin1String("ombrin") + QUuid::createUuid().toString(QUuid::Id128);
    const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    const QString path = QStringLiteral("%1/request/%2/%3").arg(kObject, sender, token);
    if (!bus.isConnected() || !listenTo(path)) {
        finish(QImage());
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kObject, kScreenshotInterface,
                                                       QStringLiteral("Screenshot"));
    call << QString()
         << QVariantMap{{QStringLiteral("handle_token"), token},
                        {QStringLiteral("interactive"), false}};
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &PortalRequest::takeHandle);
}

bool PortalRequest::listenTo(const QString &path)
{
    m_path = path;
    return QDBusConnection::sessionBus().connect(kService, path, kRequestInterface,
                                                 QStringLiteral("Response"), this,
                                                 SLOT(takeResponse(uint, QVariantMap)));
}

void PortalRequest::takeHandle(QDBusPendingCallWatcher *call)
{
    const QDBusPendingReply<QDBusObjectPath> reply = *call;
    if (reply.isError()) {
        finish(QImage());
        return;
    }
    // Old portals choose the path themselves.
    if (reply.value().path() != m_path && !listenTo(reply.value().path()))
        finish(QImage());
}

void PortalRequest::takeResponse(uint code, const QVariantMap &results)
{
    const QUrl url(results.value(QStringLiteral("uri")).toString());
    if (code != kGranted || !url.isLocalFile()) {
        finish(QImage());
        return;
    }
    finish(QImageReader(url.toLocalFile()).read());
}

void PortalRequest::finish(const QImage &image)
{
    const auto done = std::exchange(m_done, nullptr);
    if (!done)
        return;
    deleteLater();
    done(image);
}

} // namespace ombrin
