#include "FuzzTarget.h"

#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>

#include <cstdio>
#include <cstdlib>
#include <limits>

namespace ombrin::fuzz {

int Input::number()
{
    constexpr int kLowest = std::numeric_limits<int>::min();
    constexpr int kHighest = std::numeric_limits<int>::max();
    const int value = static_cast<signed char>(byte());
    switch (value) {
    case -128:
        return kLowest;
    case -127:
        return kLowest + 1;
    case 126:
        return kHighest - 1;
    case 127:
        return kHighest;
    default:
        return value;
    }
}

QByteArray Input::line()
{
    const int from = m_position;
    const int end = m_bytes.indexOf('\n', from);
    if (end < 0)
        return rest();
    m_position = end + 1;
    return m_bytes.mid(from, end - from);
}

QByteArray Input::rest()
{
    const QByteArray bytes = m_bytes.mid(m_position);
    m_position = m_bytes.size();
    // A copy of its own, so that reading past its end is noticed.
    return QByteArray(bytes.constData(), bytes.size());
}

const QTemporaryDir &folder()
{
    static const QTemporaryDir temporary;
    return temporary;
}

QApplication &application()
{
    // Never destroyed: libFuzzer leaves through _exit().
    static QApplication *const instance = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        for (const char *home : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qputenv(home, folder().path().toLocal8Bit());
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (type == QtFatalMsg)
                std::fprintf(stderr, "%s\n", qPrintable(text));
        });
        QStandardPaths::setTestModeEnabled(true);
        static int count = 1;
        static char name[] = "fuzz";
        static char *arguments[] = {name, nullptr};
        auto *const made = new QApplication(count, arguments);
        QApplication::setQuitOnLastWindowClosed(false);
        return made;
    }();
    return *instance;
}

void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly));
    FUZZ_CHECK(file.write(contents) == contents.size());
}

void runEvents()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void fail(const char *condition, const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: this does not hold: %s\n", file, line, condition);
    std::abort();
}

} // namespace ombrin::fuzz
