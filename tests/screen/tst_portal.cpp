#include "screen/ScreenGrabber.h"
#include "support/TestCase.h"

#include <ombrin/OmScreenShooter.h>

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusContext>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>

#include <unistd.h>

#include <vector>

namespace {

const QLatin1String kService("org.freedesktop.portal.Desktop");
const QLatin1String kObject("/org/freedesktop/portal/desktop");

} // namespace

/// A portal, on a bus of the test's own.
class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")

public:
    enum Mood { Grants, Denies, SendsNoPicture, Refuses, Vanishes };

    explicit Portal(Mood mood, const QString &file)
        : m_mood(mood)
        , m_file(file)
    {
        m_bus.registerObject(kObject, this, QDBusConnection::ExportAllSlots);
        m_bus.registerService(kService);
    }
    ~Portal() override
    {
        m_bus.unregisterService(kService);
        m_bus.unregisterObject(kObject);
        QDBusConnection::disconnectFromBus("portal"_q);
    }

public Q_SLOTS:
    QDBusObjectPath Screenshot(const QString &, const QVariantMap &options)
    {
        if (m_mood == Refuses) {
            sendErrorReply(QDBusError::AccessDenied);
            return QDBusObjectPath();
        }
        const QString sender =
                message().service().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
        const QString path = "%1/request/%2/%3"_q.arg(kObject, sender,
                                                      options.value("handle_token"_q).toString());
        if (m_mood == Vanishes) {
            m_bus.unregisterService(kService);
            return QDBusObjectPath(path);
        }
        QDBusMessage response =
                QDBusMessage::createSignal(path, "org.freedesktop.portal.Request"_q, "Response"_q);
        QVariantMap results;
        if (m_mood == Grants)
            results.insert("uri"_q, QUrl::fromLocalFile(m_file).toString());
        response << uint(m_mood == Denies ? 1 : 0) << results;
        m_bus.send(response);
        return QDBusObjectPath(path);
    }

private:
    Mood m_mood;
    QString m_file;
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal"_q);
};

/// On a platform that lets nobody grab the screen.
class tst_Portal : public ombrin::test::TestCase
{
    Q_OBJECT

public Q_SLOTS:
    void shot(QPixmap picture)
    {
        ++m_reports;
        m_picture = picture;
    }
    void failed() { ++m_reports; }

private Q_SLOTS:
    void initTestCase()
    {
        ombrin::setScreenGrab([](QScreen *) { return QPixmap(); });
    }
    void cleanupTestCase() { ombrin::setScreenGrab(nullptr); }

    void pictureComesFromThePortal_data()
    {
        // mood: -1 where there is no portal
        const auto row = columns<int, bool>("mood", "succeeds");
        row("granted", Portal::Grants, true);
        row("denied", Portal::Denies, false);
        row("no picture", Portal::SendsNoPicture, false);
        row("refused", Portal::Refuses, false);
        row("vanishes", Portal::Vanishes, false);
        row("no portal", -1, false);
    }

    void pictureComesFromThePortal()
    {
        QFETCH(int, mood);
        QFETCH(bool, succeeds);
        QVERIFY(OmScreenShooter::shootSimple().isNull());
        const QTemporaryDir folder;
        const QSize size = QGuiApplication::primaryScreen()->virtualGeometry().size() * 2;
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        QVERIFY(image.save(folder.filePath("shot.png"_q)));
        std::unique_ptr<Portal> portal;
        if (mood >= 0)
            portal = std::make_unique<Portal>(Portal::Mood(mood), folder.filePath("shot.png"_q));

        m_reports = 0;
        m_picture = QPixmap();
        OmScreenShooter::shootDelayed(0, false, this, SLOT(shot(QPixmap)), this, SLOT(failed()));
        QVERIFY(waitFor([this] { return m_reports > 0; }));
        QTest::qWait(50);
        QCOMPARE(m_reports, 1);
        QCOMPARE(!m_picture.isNull(), succeeds);
        if (succeeds) {
            QCOMPARE(m_picture.size(), size);
            QCOMPARE(m_picture.devicePixelRatio(), 2.0); // more pixels than the desktop has
            QCOMPARE(m_picture.toImage().pixelColor(9, 9), QColor(Qt::darkGreen));
        }
    }

private:
    int m_reports = 0;
    QPixmap m_picture;
};

int main(int argc, char *argv[])
{
    constexpr const char *kMark = "OMBRIN_TEST_BUS";
    if (qEnvironmentVariableIsSet(kMark))
        return ombrin::test::run<tst_Portal>(argc, argv);
    // Once more, on a bus on which nobody else is.
    qputenv(kMark, "1");
    std::vector<char *> command = {const_cast<char *>(OMBRIN_DBUS_RUN_SESSION),
                                   const_cast<char *>("--")};
    command.insert(command.end(), argv, argv + argc + 1); // with the null at its end
    execv(command.front(), command.data());
    return 1;
}
#include "tst_portal.moc"
