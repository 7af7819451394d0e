#include "widgets/PictureSaving.h"

#include "support/FileDialogUser.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmSettings.h>

using namespace ombrin;
using namespace ombrin::test;

class PictureSavingTest : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void proposesOnlyAName()
    {
        const QString smiley = "\U0001F600"_q;
        const QPair<QString, QString> rows[] = {
                {"Dr. Anna (home)"_q, "Dr. Anna (home)"_q},
                {"../../etc/pass\\wd"_q, "_._.._etc_pass_wd"_q},
                {".."_q, "_."_q},
                {"~root"_q, "_root"_q},
                {"\"a\" \"b\""_q, "_a_ _b_"_q},
                {"a\nb\tc\x7f"_q, "a_b_c_"_q},
                {"a\u202Egpj.exe"_q, "a_gpj.exe"_q},
                {" \n "_q, QString()},
                {QString(100000, QLatin1Char('x')), QString(80, QLatin1Char('x'))},
                {QLatin1Char('x') + smiley.repeated(60), QLatin1Char('x') + smiley.repeated(39)},
        };
        for (const auto &row : rows)
            QCOMPARE(proposedFileName(row.first), row.second);
    }

    void savesUnderTheChosenName_data()
    {
        const auto row = columns<QString>("saved");
        row("anna", "anna.jpg");
        row("anna.jpg", "anna.jpg");
        row("anna.jpeg", "anna.jpeg");
        row("anna.JPG", "anna.JPG.jpg");
        row("anna.png", "anna.png.jpg");
    }

    void savesUnderTheChosenName()
    {
        QFETCH(QString, saved);
        const QString typed = QLatin1String(QTest::currentDataTag());
        const QString folder = path("chosen");
        QVERIFY(QDir().mkpath(folder));
        rememberFolder(m_folder->path());

        const FileDialogUser user([&](QFileDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), "Save as..."_q);
            QCOMPARE(dialog->nameFilters(), {"Picture (*.jpeg *.jpg)"_q});
            QCOMPARE(dialog->directory(), QDir(m_folder->path()));
            QCOMPARE(FileDialogUser::proposal(dialog), "Anna"_q);
            FileDialogUser::save(dialog, folder + QLatin1Char('/') + typed);
        });
        save(picture());

        QCOMPARE(user.count(), 1);
        QCOMPARE(QDir(folder).entryList(QDir::Files), {saved});
        QCOMPARE(QImage(folder + QLatin1Char('/') + saved, "jpg").size(), picture().size());
        QCOMPARE(QDir(rememberedFolder()), QDir(folder));
    }

    void opensInAFolderThatExists()
    {
        rememberFolder(path("removed"));
        const FileDialogUser user([](QFileDialog *dialog) {
            QVERIFY(dialog->directory().exists());
            QCOMPARE(FileDialogUser::proposal(dialog), "anna@home"_q);
            dialog->reject();
        });
        save(picture(), "\n"_q);
        QCOMPARE(user.count(), 1);
        QCOMPARE(rememberedFolder(), path("removed"));
    }

    // The user confirms a name to which the suffix is added afterwards.
    void neverReplacesAnUnconfirmedFile()
    {
        const QString existing = path("anna.JPG.jpg");
        QVERIFY(picture().save(existing));
        QStringList proposals;
        const FileDialogUser user([&](QFileDialog *dialog) {
            proposals.append(FileDialogUser::proposal(dialog));
            if (proposals.size() == 1)
                FileDialogUser::save(dialog, path("anna.JPG"));
            else
                dialog->reject();
        });
        save(picture(Qt::blue));
        QCOMPARE(proposals, QStringList({"Anna"_q, "anna.JPG.jpg"_q}));
        QVERIFY(QImage(existing).pixelColor(5, 5).red() > 128);
    }

    void keepsTheOldFileWithoutAPicture()
    {
        const QString existing = path("anna.jpg");
        QVERIFY(picture().save(existing));
        const qint64 size = QFileInfo(existing).size();
        const FileDialogUser user([&](QFileDialog *dialog) {
            dialog->setOption(QFileDialog::DontConfirmOverwrite);
            FileDialogUser::save(dialog, existing);
        });
        save(QImage());
        QCOMPARE(user.count(), 1);
        QCOMPARE(QFileInfo(existing).size(), size);
        // Nor anything where nothing can be written.
        const FileDialogUser other(
                [&](QFileDialog *dialog) { FileDialogUser::save(dialog, path("none/anna.jpg")); });
        save(picture());
        QVERIFY(!QFileInfo::exists(path("none")));
    }

    void outlivesItsParent()
    {
        bool isAsked = false;
        const FileDialogUser user([this](QFileDialog *) { delete m_parent; });
        savePictureAsJpeg(m_parent, {QString(), QString(), key(), "Anna"_q, QString()}, [&isAsked] {
            isAsked = true;
            return QImage();
        });
        QCOMPARE(user.count(), 1);
        QVERIFY(!isAsked);
    }

protected:
    void setUp() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
        OmSettings::instance().setFile(path("settings.ini"));
        m_parent = new QWidget;
    }
    void tearDown() override
    {
        delete m_parent;
        OmSettings::instance().setFile(QString());
    }

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    static QString rememberedFolder()
    {
        return OmSettings::instance().get(key(), QString(), "omchat"_q).toString();
    }
    static void rememberFolder(const QString &folder)
    {
        OmSettings::instance().set(key(), folder, "omchat"_q);
    }
    static QString key() { return "save_test_path"_q; }
    void save(const QImage &image, const QString &name = "Anna"_q)
    {
        savePictureAsJpeg(m_parent, {"Save as..."_q, "Picture"_q, key(), name, "anna@home"_q},
                          [image] { return image; });
    }
    static QImage picture(const QColor &color = Qt::red) { return flatImage(QSize(20, 10), color); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QPointer<QWidget> m_parent;
};

OMBRIN_TEST_MAIN(PictureSavingTest)
#include "tst_picturesaving.moc"
