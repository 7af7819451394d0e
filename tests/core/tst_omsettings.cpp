#include "support/TestCase.h"

#include <ombrin/OmDir.h>
#include <ombrin/OmSettings.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

using ombrin::OmDir;
using ombrin::OmSettings;

class tst_OmSettings : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_file = m_directory->filePath(QStringLiteral("settings.ini"));
        OmSettings::instance().setFile(m_file);
    }
    void tearDown() override
    {
        OmSettings::instance().setFile(QString());
        m_directory.reset();
    }

private Q_SLOTS:
    void valueIsOnDiskAtOnceAndKeptPerGroup()
    {
        OmSettings &settings = OmSettings::instance();
        const QString key = QStringLiteral("save_avatar_path");
        const QString group = QStringLiteral("omchat");
        QCOMPARE(settings.get(key, QStringLiteral("fallback"), group).toString(),
                 QStringLiteral("fallback"));

        settings.set(key, QStringLiteral("/pictures/Größe"), group);
        settings.set(key, 7);
        QCOMPARE(settings.get(key, QVariant(), group).toString(),
                 QStringLiteral("/pictures/Größe"));
        QCOMPARE(settings.get(key).toInt(), 7);

        const QSettings file(m_file, QSettings::IniFormat);
        QCOMPARE(file.value(QStringLiteral("omchat/save_avatar_path")).toString(),
                 QStringLiteral("/pictures/Größe"));
    }

    void emptyKeyAndUnwritableFileAreHarmless()
    {
        OmSettings &settings = OmSettings::instance();
        settings.set(QString(), 1);
        QCOMPARE(settings.get(QString(), 5).toInt(), 5);

        settings.setFile(m_directory->path()); // a folder, not a file
        settings.set(QStringLiteral("key"), 1);
        settings.setFile(m_file);
        QVERIFY(!settings.get(QStringLiteral("key")).isValid());
    }

    void hostsOwnSettingsAreUsedByDefault()
    {
        OmSettings &settings = OmSettings::instance();
        settings.setFile(QString());
        settings.set(QStringLiteral("shared"), 3, QStringLiteral("omchat"));
        QSettings host;
        QCOMPARE(host.value(QStringLiteral("omchat/shared")).toInt(), 3);
        host.remove(QStringLiteral("omchat"));
    }

    void smileyFolderIsMadeOnlyWhenAskedFor()
    {
        const QString path = OmDir::smileysPath(false);
        QDir(path).removeRecursively();
        QVERIFY(!QFileInfo::exists(OmDir::smileysPath(false)));
        QCOMPARE(OmDir::smileysPath(true), path);
        QVERIFY(QFileInfo(path).isDir());
        QVERIFY(QDir(path).removeRecursively());
    }

    void pictureFolderIsAnAbsolutePath()
    {
        QVERIFY(QDir::isAbsolutePath(OmDir::myPicturesPath()));
        QVERIFY(!OmDir::myPicturesPath().endsWith(QLatin1Char('/')));
    }

private:
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_file;
};

OMBRIN_TEST_MAIN(tst_OmSettings)
#include "tst_omsettings.moc"
