#include "support/TestCase.h"

namespace {

constexpr int kTimeoutMs = 120000;
constexpr QSize kWindowSize(960, 640);

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString error;
};

/// What the real program answers; an exit code of -1 says that it did not end by itself.
Outcome runGallery(const QStringList &arguments)
{
    QProcess gallery;
    gallery.start(QCoreApplication::applicationDirPath() + "/ombrin_gallery"_q, arguments);
    Outcome outcome;
    if (gallery.waitForFinished(kTimeoutMs) && gallery.exitStatus() == QProcess::NormalExit)
        outcome.exitCode = gallery.exitCode();
    outcome.output = QString::fromLocal8Bit(gallery.readAllStandardOutput());
    outcome.error = QString::fromLocal8Bit(gallery.readAllStandardError());
    return outcome;
}

QStringList pageNames()
{
    const QString output = runGallery({"--list"_q}).output;
    return output.split(QRegularExpression("[\r\n]+"_q), Qt::SkipEmptyParts);
}

/// The number of colours along a grid of lines across \a picture.
int colorCount(const QImage &picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); y += 7) {
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    return static_cast<int>(colors.size());
}

/// The part of a picture below the title band and right of the list of pages, at \a density.
QImage pageArea(const QImage &picture, int density)
{
    return picture.copy(190 * density, 55 * density, 760 * density, 555 * density);
}

} // namespace

class tst_Gallery : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void screenshotsShowEveryPageActiveAndInactiveAtBothDensities()
    {
        const QTemporaryDir temporary;
        // Neither the folder nor the one above it exists yet.
        const QDir folder(temporary.filePath("made/on demand"_q));
        const Outcome outcome = runGallery({"--screenshots"_q, folder.path()});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));

        const QStringList names = pageNames();
        QVERIFY(names.contains("window"_q));
        QCOMPARE(folder.entryList(QDir::Files).size(), 4 * names.size());
        QVector<QImage> pages;
        for (const QString &name : names) {
            for (const int density : {1, 2}) {
                const QString suffix = density == 1 ? QString() : "@2x"_q;
                const QImage active(folder.filePath(name + "-active"_q + suffix + ".png"_q));
                const QImage inactive(folder.filePath(name + "-inactive"_q + suffix + ".png"_q));
                QCOMPARE(active.size(), kWindowSize * density);
                QCOMPARE(inactive.size(), kWindowSize * density);
                QVERIFY2(colorCount(pageArea(active, density)) > 20, qPrintable(name));
                QVERIFY2(active.copy(0, 0, active.width(), 30 * density)
                                 != inactive.copy(0, 0, active.width(), 30 * density),
                         qPrintable(name));
                if (density == 1) {
                    QVERIFY2(!pages.contains(pageArea(active, 1)), qPrintable(name));
                    pages.append(pageArea(active, 1));
                }
            }
        }
    }

    void unwritableFolderIsReported()
    {
        const QTemporaryDir temporary;
        const QString path = temporary.filePath("file"_q);
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        const Outcome outcome = runGallery({"--screenshots"_q, path + "/folder"_q});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.error.contains("cannot be made"_q), qPrintable(outcome.error));
    }

    void wrongArgumentsAreRefusedWithAReason_data()
    {
        const auto row = columns<QString>("reason");
        row("--shoot", "shoot");
        row("--page nowhere", "nowhere");
        row("--page", "page");
        row("--screenshots= --list", "--screenshots");
        row("window", "'window'");
        row("-style fusion --shoot", "shoot");
    }
    void wrongArgumentsAreRefusedWithAReason()
    {
        QFETCH(QString, reason);
        const Outcome outcome = runGallery(ombrin::test::words(QTest::currentDataTag()));
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.error.contains(reason), qPrintable(outcome.error));
        QVERIFY(outcome.output.isEmpty());
    }

    void optionsOfQtAreTaken()
    {
        QCOMPARE(runGallery({"--list"_q, "-style"_q, "fusion"_q, "-reverse"_q}).exitCode, 0);
    }
};

OMBRIN_TEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
