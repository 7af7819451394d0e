#include "support/Files.h"
#include "support/TestCase.h"
#include "support/XUser.h"

namespace {

constexpr int kPatience = 30000;
// What the default skin calls Window, and no palette of Qt's.
constexpr QRgb kWindowColor = 0xffefeff0;
constexpr QRgb kPageColor = 0xff2468ac;
constexpr int kEnoughPixels = 5000;

QImage screenshot()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(
            QImage::Format_RGB32);
}

int count(const QImage &picture, QRgb color)
{
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        found += static_cast<int>(std::count(line, line + picture.width(), color));
    }
    return found;
}

QStringList search(const QString &arguments)
{
    return ombrin::test::runBeside(
                   "xdotool"_q, "search --onlyvisible %1"_q.arg(arguments).split(QLatin1Char(' ')))
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

// Programs that nobody here wrote, started in the plug-in's style, do what they do without it.
class tst_ForeignPrograms : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void programsWork_data()
    {
        const auto row =
                columns<QString, QString, QString, QString>("arguments", "menu", "work", "result");

        row("speedcrunch", QString(), "alt+e", "type 6*7\nkey Return sleep 0.2 key ctrl+r", "42");
        row("linguist", translation(), "alt+v", "key ctrl+shift+k sleep 0.2 key ctrl+a key ctrl+c",
            "Hallo");
        row("designer", QString(), "alt+f", "key ctrl+a key ctrl+c", "QDialogButtonBox");
    }
    void programsWork()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, menu);
        QFETCH(QString, work);
        QFETCH(QString, result);
        const QString name = QString::fromLatin1(QTest::currentDataTag());

        ombrin::test::xdo("mousemove 0 1000"_q); // no tool tips
        start(name, arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QVERIFY2(waitFor([&] { return isActive(); }, kPatience), m_program.readAll().constData());
        if (name == "designer"_q) { // it asks first what to make
            QVERIFY(waitFor([&] { return windows() == 2; }, kPatience));
            QVERIFY(insist("key Return"_q, [&] { return windows() == 1; }));
        }
        const int count = windows();
        QVERIFY(insist("key "_q + menu, [&] { return windows() > count; }));
        QVERIFY(photograph(name + "-menu"_q));
        QVERIFY(insist("key Escape key Escape\n"_q + work,
                       [&] { return QGuiApplication::clipboard()->text().contains(result); }));
        QVERIFY(photograph(name));
        QVERIFY(quits());
    }

    // It is told what to show through its input.
    void assistantShowsAPage()
    {
        const QString collection = helpCollection();
        start("assistant"_q, {"-collectionFile"_q, collection, "-enableRemoteControl"_q});
        m_program.write("setSource qthelp://org.example.test/doc/page.html\n");
        QVERIFY2(waitFor([&] { return isActive(); }, kPatience), m_program.readAll().constData());
        QVERIFY(waitFor([] { return count(screenshot(), kPageColor) > kEnoughPixels; }, kPatience));
        QVERIFY(photograph("assistant"_q));
        QVERIFY(quits());
    }

protected:
    void tearDown() override
    {
        m_program.kill();
        m_program.waitForFinished();
    }

private:
    void start(const QString &name, const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            environment.insert(QLatin1String(folder), m_home.path());
        environment.insert("LC_ALL"_q, "C.UTF-8"_q);
        environment.insert("QT_PLUGIN_PATH"_q, QStringLiteral(OMBRIN_PLUGIN_FOLDER));
        environment.insert("QT_STYLE_OVERRIDE"_q, "ombrin"_q);
        environment.insert("OMBRIN_SKIN_PATH"_q,
                           QCoreApplication::applicationDirPath() + "/skins"_q);
        m_program.setProcessEnvironment(environment);
        m_program.setProcessChannelMode(QProcess::MergedChannels);
        m_program.start(programOfQt(name), arguments);
    }

    // A file for the linguist.
    QString translation() const
    {
        const QString path = m_home.filePath("hello.ts"_q);
        ombrin::test::writeFile(
                path, "<!DOCTYPE TS><TS version='2.1' language='de'><context><name>Greetings</name>"
                      "<message><source>Hello</source><translation>Hallo</translation></message>"
                      "</context></TS>");
        return path;
    }

    // A collection of one page, which has the colour kPageColor.
    QString helpCollection() const
    {
        const auto write = [this](const char *name, const QByteArray &text) {
            ombrin::test::writeFile(m_home.filePath(QLatin1String(name)), text);
        };
        write("page.html", "<html><head><title>Hello</title></head>"
                           "<body bgcolor='#2468ac'>Hello</body></html>");
        write("help.qhp",
              "<QtHelpProject version='1.0'>"
              "<namespace>org.example.test</namespace><virtualFolder>doc</virtualFolder>"
              "<filterSection><files><file>page.html</file></files></filterSection>"
              "</QtHelpProject>");
        write("help.qhcp", "<QHelpCollectionProject version='1.0'><docFiles><generate><file>"
                           "<input>help.qhp</input><output>help.qch</output></file></generate>"
                           "<register><file>help.qch</file></register></docFiles>"
                           "</QHelpCollectionProject>");
        const QString collection = m_home.filePath("help.qhc"_q);
        ombrin::test::runBeside(programOfQt("qhelpgenerator"_q),
                                {m_home.filePath("help.qhcp"_q), "-o"_q, collection});
        return collection;
    }

    static QString programOfQt(const QString &name)
    {
        const QString path = QStandardPaths::findExecutable(
                name, {QLibraryInfo::location(QLibraryInfo::BinariesPath)});
        return path.isEmpty() ? name : path;
    }

    bool quits()
    {
        return insist("key ctrl+q"_q, [&] { return m_program.state() == QProcess::NotRunning; })
               && m_program.exitStatus() == QProcess::NormalExit && m_program.exitCode() == 0;
    }

    int windows() const { return search("--pid %1"_q.arg(m_program.processId())).size(); }

    // Whether one of the program's windows gets what is typed.
    bool isActive() const
    {
        const QString owner =
                ombrin::test::runBeside("xdotool"_q, {"getactivewindow"_q, "getwindowpid"_q});
        return owner.trimmed() == QString::number(m_program.processId());
    }

    // Does something with the keyboard until it is seen to have worked: a program that is still
    // starting may miss it.
    template <typename Condition>
    static bool insist(const QString &keys, Condition condition)
    {
        constexpr int kAttempts = 5;
        for (int attempt = 0; attempt < kAttempts && !condition(); ++attempt) {
            for (const QString &part : keys.split(QLatin1Char('\n')))
                ombrin::test::xdo(part);
            if (waitFor(condition, kPatience / 3))
                return true;
        }
        return condition();
    }

    // Keeps the picture of a screen that shows the skin's colours.
    static bool photograph(const QString &name)
    {
        QImage picture;
        const auto isSkinned = [&] {
            picture = screenshot();
            return count(picture, kWindowColor) > kEnoughPixels;
        };
        const QString folder = QStringLiteral(OMBRIN_PHOTOGRAPHS);
        return waitFor(isSkinned, kPatience) && QDir().mkpath(folder)
               && picture.save("%1/%2.png"_q.arg(folder, name));
    }

    QTemporaryDir m_home;
    QProcess m_program;
};

OMBRIN_TEST_MAIN(tst_ForeignPrograms)
#include "tst_foreignprograms.moc"
