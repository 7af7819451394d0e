#include "support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

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
    gallery.start(QCoreApplication::applicationDirPath() + QStringLiteral("/ombrin_gallery"),
                  arguments);
    Outcome outcome;
    if (gallery.waitForFinished(kTimeoutMs) && gallery.exitStatus() == QProcess::NormalExit)
        outcome.exitCode = gallery.exitCode();
    outcome.output = QString::fromLocal8Bit(gallery.readAllStandardOutput());
    outcome.error = QString::fromLocal8Bit(gallery.readAllStandardError());
    return outcome;
}

QStringList pageNames()
{
    const QString output = runGallery({QStringLiteral("--list")}).output;
    return output.split(QRegularExpression(QStringLiteral("[\r\n]+")), Qt::SkipEmptyParts);
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
        const QDir folder(temporary.filePath(QStringLiteral("made/on demand")));
        const Outcome outcome = runGallery({QStringLiteral("--screenshots"), folder.path()});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));

        const QStringList names = pageNames();
        QVERIFY(names.contains(QStringLiteral("window")));
        QCOMPARE(folder.entryList(QDir::Files).size(), 4 * names.size());
        QVector<QImage> pages;
        for (const QString &name : names) {
            for (const int density : {1, 2}) {
                const QString suffix = density == 1 ? QString() : QStringLiteral("@2x");
                const QImage active(folder.filePath(name + QStringLiteral("-active") + suffix
                                                    + QStringLiteral(".png")));
                const QImage inactive(folder.filePath(name + QStringLiteral("-inactive") + suffix
                                                      + QStringLiteral(".png")));
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
        const QString path = temporary.filePath(QStringLiteral("file"));
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        const Outcome outcome =
                runGallery({QStringLiteral("--screenshots"), path + QStringLiteral("/folder")});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.error.contains(QStringLiteral("cannot be made")),
                 qPrintable(outcome.error));
    }

    void wrongArgumentsAreRefusedWithAReason_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("reason");

        const auto row = [](const char *arguments, const char *reason) {
            QTest::newRow(arguments) << ombrin::test::words(arguments) << reason;
        };
        row("--shoot", "shoot");
        row("--page nowhere", "nowhere");
        row("--page", "page");
        row("--screenshots= --list", "--screenshots");
        row("window", "'window'");
    }
    void wrongArgumentsAreRefusedWithAReason()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, reason);
        const Outcome outcome = runGallery(arguments);
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.error.contains(reason), qPrintable(outcome.error));
        QVERIFY(outcome.output.isEmpty());
    }
};

OMBRIN_TEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
