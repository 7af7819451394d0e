#include "support/TestCase.h"

#include <ombrin/OmDir.h>
#include <ombrin/OmSettings.h>

using namespace ombrin;

class tst_OmSettings : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_file = m_directory->filePath("settings.ini"_q);
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
        const QString key = "save_avatar_path"_q;
        const QString group = "omchat"_q;
        QCOMPARE(settings.get(key, "fallback"_q, group).toString(), "fallback"_q);

        settings.set(key, "/pictures/Größe"_q, group);
        settings.set(key, 7);
        QCOMPARE(settings.get(key, QVariant(), group).toString(), "/pictures/Größe"_q);
        QCOMPARE(settings.get(key).toInt(), 7);

        const QSettings file(m_file, QSettings::IniFormat);
        QCOMPARE(file.value("omchat/save_avatar_path"_q).toString(), "/pictures/Größe"_q);
    }

    void emptyKeyAndUnwritableFileAreHarmless()
    {
        OmSettings &settings = OmSettings::instance();
        settings.set(QString(), 1);
        QCOMPARE(settings.get(QString(), 5).toInt(), 5);

        settings.setFile(m_directory->path()); // a folder, not a file
        settings.set("key"_q, 1);
        settings.setFile(m_file);
        QVERIFY(!settings.get("key"_q).isValid());
    }

    void hostsOwnSettingsAreUsedByDefault()
    {
        OmSettings &settings = OmSettings::instance();
        settings.setFile(QString());
        settings.set("shared"_q, 3, "omchat"_q);
        QSettings host;
        QCOMPARE(host.value("omchat/shared"_q).toInt(), 3);
        host.remove("omchat"_q);
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

private:
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_file;
};

OMBRIN_TEST_MAIN(tst_OmSettings)
#include "tst_omsettings.moc"
