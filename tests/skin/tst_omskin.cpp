#include "support/Files.h"
#include "support/TestCase.h"

#include "skin/ResourceFile.h"

#include <ombrin/OmSkin.h>

using namespace ombrin::test;

namespace {

constexpr const char *kGroups[] = {"Active", "Disabled", "Inactive"};
constexpr const char *kRoles[] = {
        "Window",     "WindowText", "Button",          "ButtonText", "Base",        "AlternateBase",
        "BrightText", "Text",       "Light",           "Midlight",   "Dark",        "Mid",
        "Shadow",     "Highlight",  "HighlightedText", "Link",       "LinkVisited",
};
constexpr int kGroupCount = 3;
constexpr int kRoleCount = 17;
static_assert(sizeof(kRoles) / sizeof(kRoles[0]) == kRoleCount, "");

QString colorOf(int group, int role)
{
    return QColor(group + 1, 0x10 + role, 0x80).name();
}

// The sections \a groups of a palette file, each with all of its keys.
QByteArray paletteFile(const QVector<int> &groups)
{
    QByteArray text("[Unknown]\nWindow=#ffffff\n");
    for (const int group : groups) {
        text += QByteArray("[") + kGroups[group] + "]\nUnknown=#ffffff\n";
        for (int role = 0; role < kRoleCount; ++role)
            text += QByteArray(kRoles[role]) + '=' + colorOf(group, role).toLatin1() + '\n';
    }
    return text;
}

QString testData(const char *name)
{
    return QCoreApplication::applicationDirPath() + "/testdata/"_q + QLatin1String(name);
}

// What the probe reports, but for what \a keys name.
QJsonObject without(QJsonObject findings, const char *keys)
{
    for (const QString &key : words(keys))
        findings.remove(key);
    return findings;
}

const QByteArray kStyleSheet("QLabel { color: red } /* \xc3\xa9 */\n");

} // namespace

class tst_OmSkin : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
#ifdef Q_OS_WIN
        const QString program = "omskin_probe.exe"_q;
#else
        const QString program = "omskin_probe"_q;
#endif
        QVERIFY(m_folder.isValid());
        m_probe = m_folder.filePath(program);
        QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + QLatin1Char('/') + program,
                            m_probe));
    }

    void firstInitInstallsEverything()
    {
        const QString hostSheet = "QLabel { color: blue }"_q;
        const QJsonArray report = run({"sheet="_q + hostSheet, "init=true"_q});
        QCOMPARE(report.size(), 2);
        QCOMPARE(report.first().toObject().value("styles"_q), QJsonValue(QJsonArray()));
        const QJsonObject skinned = report.last().toObject();
        QCOMPARE(skinned.value("useSkin"_q), QJsonValue(true));
        compareColours(skinned, {0, 1, 2});
        QCOMPARE(skinned.value("styles"_q), QJsonValue(QJsonArray{1}));
        QCOMPARE(skinned.value("styleSheet"_q).toString(), QString::fromUtf8(kStyleSheet));
        const QJsonArray pictures = skinned.value("pictures"_q).toArray();
        for (const char *name : {"plain", "plain@2x", "plain@3x", "suffixed.png", "more"})
            QVERIFY2(pictures.contains(QLatin1String(name)), name);

        // Without skinning only the style sheet is left out.
        const QJsonObject plain = runAndSeeLast({"sheet="_q + hostSheet, "init=false"_q});
        QCOMPARE(plain.value("useSkin"_q), QJsonValue(false));
        QCOMPARE(plain.value("styleSheet"_q).toString(), hostSheet);
        for (const char *same : {"styles", "palette", "pictures"})
            QCOMPARE(plain.value(QLatin1String(same)), skinned.value(QLatin1String(same)));
    }

    void laterInitsOnlyStoreTheFlag()
    {
        // Without the files nothing can be loaded again without showing.
        for (const char *steps :
             {"init=true remove init=false init=true", "init=false remove init=false init=true"}) {
            const QJsonArray report = run(words(steps));
            QCOMPARE(report.size(), 4);
            QCOMPARE(report.at(2).toObject().value("useSkin"_q), QJsonValue(false));
            const QJsonObject after = report.last().toObject();
            QCOMPARE(after.value("useSkin"_q), QJsonValue(true));
            QCOMPARE(without(after, "step useSkin"),
                     without(report.first().toObject(), "step useSkin"));
            QCOMPARE(after.value("styles"_q), QJsonValue(QJsonArray{1}));
        }
    }

    void initBeforeTheApplicationDoesNotCount()
    {
        const QJsonArray report = run(words("init=false application nothing init=true"));
        QCOMPARE(report.size(), 2);
        const QJsonObject before = report.first().toObject();
        QCOMPARE(before.value("useSkin"_q), QJsonValue(false));
        QCOMPARE(before.value("styles"_q), QJsonValue(QJsonArray()));
        compareColours(report.last().toObject(), {0, 1, 2});
    }

    void sectionsMissingInThePaletteGiveInvalidColours()
    {
        write("default/Global_Palette.ini", paletteFile({0}));
        compareColours(runAndSeeLast({"init=true"_q, "paint"_q}), {0});
    }

    void coloursAreReadAsQColorReadsThem()
    {
        const char *const examples[][3] = {
                {"Window", "#f80", "#ff8800"},        {"Base", "ForestGreen", "#228b22"},
                {"Text", "\"#123456\"", "#123456"},   {"Mid", "#111222333", "#112233"},
                {"Dark", "#111122223333", "#112233"}, {"Link", "", "invalid"},
                {"Light", "no colour", "invalid"},    {"Shadow", "1,2,3", "invalid"},
        };
        QByteArray file("; \"=@\n[Active] ; =\\\nBy=me@example.org\nIn=C:\\skins\n");
        for (const auto &[role, text, color] : examples)
            file += QByteArray(role) + '=' + text + '\n';
        write("default/Global_Palette.ini", file);
        const QJsonObject palette = runAndSeeLast({"init=true"_q}).value("palette"_q).toObject();
        for (const auto &[role, text, color] : examples)
            QCOMPARE(palette.value("Active/"_q + QLatin1String(role)).toString(),
                     QLatin1String(color));
    }

    // QSettings would make one of any type, here a polygon, and some of them crash Qt.
    void objectsInThePaletteAreNeverMade()
    {
        const QByteArray object = "Variant(\\0\\0\\0\\x47\\xff\\xff\\xff\\xff)\n";
        for (const char *beginning : {"Window=@", "Window=\\x40", "Window=\"\n;\",@"}) {
            write("default/Global_Palette.ini", paletteFile({0}) + beginning + object);
            compareColours(runAndSeeLast({QStringLiteral("init=true")}), {});
        }
    }

    void brokenSkinsStopNothing_data()
    {
        const auto row = columns<QString>("damage");
        for (const char *damage :
             {"no skin", "empty files", "junk files", "folders for files", "cut resource files"})
            row(damage, damage);
    }
    void brokenSkinsStopNothing()
    {
        QFETCH(QString, damage);
        constexpr const char *kFiles[] = {"default/Global_Palette.ini", "default/default.css",
                                          "default/default.res", "ombrin.res"};
        QByteArray junk;
        for (int i = 0; i < 5000; ++i)
            junk.append(static_cast<char>(i * i * 31 + i / 7));
        for (const char *file : kFiles) {
            if (damage == "empty files"_q)
                write(file, QByteArray());
            else if (damage == "junk files"_q)
                write(file, QByteArray(file).endsWith(".res") ? "qres" + junk : junk);
            else if (damage == "folders for files"_q)
                makeFolder(file);
        }
        if (damage == "no skin"_q)
            QDir(m_folder.filePath("skins"_q)).removeRecursively();

        const bool onlyResources = damage == "cut resource files"_q;
        if (onlyResources) {
            const QByteArray whole = contentsOf(testData("pictures.res"));
            write("default/default.res", whole.chopped(20));
            write("ombrin.res", whole.left(whole.size() / 2));
        }
        const QJsonObject findings = runAndSeeLast({"init=true"_q, "paint"_q});
        compareColours(findings, onlyResources ? QVector<int>{0, 1, 2} : QVector<int>());
        QCOMPARE(findings.value("styles"_q), QJsonValue(QJsonArray{1}));
        QCOMPARE(findings.value("pictures"_q), QJsonValue(QJsonArray()));
        if (damage != "junk files"_q) {
            QCOMPARE(findings.value("styleSheet"_q).toString(),
                     onlyResources ? QString::fromUtf8(kStyleSheet) : QString());
        }
    }

    // What is in the first place that holds a file of a skin is the skin, and nothing of the
    // others.
    void skinsElsewhereAreFoundInOrder()
    {
        const QStringList steps{"search="_q, "search="_q + m_folder.filePath("none"_q),
                                "search="_q + m_folder.filePath("added"_q), "init=true"_q};
        // The last place first: each one found outdoes those before. On Windows the system's data
        // folders cannot be chosen.
#ifdef Q_OS_WIN
        const QStringList places = words("added named skins");
#else
        const QStringList places = words("data/ombrin/skins added named skins");
#endif
        QDir(m_folder.filePath("skins"_q)).removeRecursively();
        for (const QString &place : places) {
            QVERIFY(QDir(m_folder.path()).mkpath(place + "/default"_q));
            writeFile(m_folder.filePath(place + "/default/default.css"_q), place.toUtf8());
            const QJsonObject findings = runAndSeeLast(steps);
            QCOMPARE(findings.value("folder"_q).toString(), m_folder.filePath(place));
            QCOMPARE(findings.value("styleSheet"_q).toString(), place);
            compareColours(findings, {});
        }
        for (const QString &place : places)
            QDir(m_folder.filePath(place)).removeRecursively();
    }

    void picturesCanBeRegisteredAlone()
    {
        const QJsonArray report = run(words("nothing pictures"));
        const QJsonObject after = report.last().toObject();
        QVERIFY(after.value("pictures"_q).toArray().contains("plain"_q));
        QCOMPARE(without(after, "step pictures"),
                 without(report.first().toObject(), "step pictures"));
    }

    void cutResourceFilesAreRefused()
    {
        const QString path = m_folder.filePath("skins/ombrin.res"_q);
        QVERIFY(ombrin::isIntactResourceFile(path));
        QFile file(path);
        for (qint64 size = file.size() - 1; size >= 0; --size) {
            QVERIFY(file.resize(size));
            QVERIFY2(!ombrin::isIntactResourceFile(path), qPrintable(QString::number(size)));
        }
        QVERIFY(file.remove());
        QVERIFY(!ombrin::isIntactResourceFile(path));
    }

    void resourceFilesPointingOutsideAreRefused_data()
    {
        // inTree: counted from the tree of files, else from the beginning
        const auto row = columns<bool, int, QByteArray>("inTree", "offset", "bytes");
        const QByteArray huge("\x7f\xff\xff\xff", 4);
        row("no resource file", false, 0, QByteArray("qser"));
        row("tree outside", false, 8, huge);
        row("contents outside", false, 12, huge);
        row("names outside", false, 16, huge);
        row("too many files", true, 6, huge);
        row("more files than there are nodes", true, 6, QByteArray("\0\0\x01\0", 4));
        row("first file outside", true, 10, huge);
        row("folder within itself", true, 10, QByteArray(4, '\0'));
        row("name of a file outside", true, 14, huge);
        row("contents of a file outside", true, 14 + 10, huge);
    }
    void resourceFilesPointingOutsideAreRefused()
    {
        QFETCH(bool, inTree);
        QFETCH(int, offset);
        QFETCH(QByteArray, bytes);
        QByteArray whole = contentsOf(testData("pictures.res"));
        const int tree = static_cast<int>(qFromBigEndian<quint32>(whole.constData() + 8));
        whole.replace((inTree ? tree : 0) + offset, bytes.size(), bytes);
        write("ombrin.res", whole);
        QVERIFY(!ombrin::isIntactResourceFile(m_folder.filePath("skins/ombrin.res"_q)));
    }

protected:
    // A sound skin.
    void setUp() override
    {
        QDir(m_folder.filePath("skins"_q)).removeRecursively();
        QVERIFY(QDir(m_folder.path()).mkpath("skins/default"_q));
        write("default/Global_Palette.ini", paletteFile({0, 1, 2}));
        write("default/default.css", kStyleSheet);
        write("default/default.res", contentsOf(testData("pictures.res")));
        write("ombrin.res", contentsOf(testData("more_pictures.res")));
    }

private:
    // Empty when the program did not come to its end.
    QJsonArray run(const QStringList &steps)
    {
        const QString report = m_folder.filePath("report.json"_q);
        QFile::remove(report);
        QProcess process;
        // On Windows the libraries lie beside the program this one was copied from.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString variable = "PATH"_q;
        environment.insert(variable,
                           QDir::toNativeSeparators(QCoreApplication::applicationDirPath())
                                   + QDir::listSeparator() + environment.value(variable));
        // No skin but those of the test.
        environment.insert("XDG_DATA_HOME"_q, m_folder.filePath("none"_q));
        environment.insert("XDG_DATA_DIRS"_q, m_folder.filePath("data"_q));
        environment.insert("OMBRIN_SKIN_PATH"_q, m_folder.filePath("none"_q) + QDir::listSeparator()
                                                         + m_folder.filePath("named"_q));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(m_probe, QStringList(report) + steps);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit
            || process.exitCode() != 0) {
            qWarning("omskin_probe failed: %s\n%s", qPrintable(process.errorString()),
                     process.readAll().constData());
            return QJsonArray();
        }
        return QJsonDocument::fromJson(contentsOf(report)).array();
    }

    QJsonObject runAndSeeLast(const QStringList &steps)
    {
        return run(steps).last().toObject();
    }

    void write(const char *name, const QByteArray &bytes) const
    {
        writeFile(m_folder.filePath("skins/"_q + QLatin1String(name)), bytes);
    }

    void makeFolder(const char *name) const
    {
        const QString path = m_folder.filePath("skins/"_q + QLatin1String(name));
        QVERIFY(QFile::remove(path) && QDir().mkpath(path));
    }

    static void compareColours(const QJsonObject &findings, const QVector<int> &validGroups)
    {
        const QJsonObject palette = findings.value("palette"_q).toObject();
        for (int group = 0; group < kGroupCount; ++group) {
            for (int role = 0; role < kRoleCount; ++role) {
                const QString key = QLatin1String(kGroups[group]) + QLatin1Char('/')
                                    + QLatin1String(kRoles[role]);
                QCOMPARE(key + palette.value(key).toString(),
                         key + (validGroups.contains(group) ? colorOf(group, role) : "invalid"_q));
            }
        }
    }

    QTemporaryDir m_folder;
    QString m_probe;
};

OMBRIN_TEST_MAIN(tst_OmSkin)
#include "tst_omskin.moc"
