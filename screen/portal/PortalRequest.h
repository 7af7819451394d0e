#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusServiceWatcher>
#include <QtGui/QImage>

#include <functional>

class QDBusPendingCallWatcher;

namespace ombrin {

/// One request for a picture. The portal answers the call with the path of an object, whose signal
/// tells later what the user decided. Deletes itself when that is known.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    explicit PortalRequest(const std::function<void(const QImage &)> &done);

    void start();

private Q_SLOTS:
    void takeHandle(QDBusPendingCallWatcher *call);
    void takeResponse(uint code, const QVariantMap &results);

private:
    bool listenTo(const QString &path);
    void finish(const QImage &image);

    std::function<void(const QImage &)> m_done;
    QDBusServiceWatcher m_portal;
    QString m_path;
};

} // namespace ombrin
