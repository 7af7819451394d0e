#pragma once

#include "support/TestCase.h"

/// A user at mouse and keyboard, and an onlooker who sees what other X clients see. Needs an X
/// server with a window manager, xdotool, xprop and xwininfo.
namespace ombrin::test {

/// Runs \a program while the event loop goes on, and returns what it printed.
inline QString runBeside(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QEventLoop loop;
    QObject::connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    process.start(program, arguments);
    if (!process.waitForStarted())
        return QString();
    loop.exec();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

/// Runs the commands of xdotool in \a script, which are separated by spaces.
inline void xdo(const QString &script)
{
    runBeside("xdotool"_q, script.split(QLatin1Char(' ')));
    QTest::qWait(50);
}

inline void clickAt(const QPoint &position, int button = 1, int count = 1)
{
    xdo("mousemove %1 %2 sleep 0.05 click --repeat %3 --delay 40 %4"_q.arg(position.x())
                .arg(position.y())
                .arg(count)
                .arg(button));
}

/// Drags with the left button as a hand does, beginning slowly.
inline void dragBy(const QPoint &from, const QPoint &delta)
{
    QString script =
            "mousemove %1 %2 sleep 0.1 mousedown 1 sleep 0.05"_q.arg(from.x()).arg(from.y());
    const auto moveTo = [&script](const QPoint &to) {
        script += " mousemove %1 %2 sleep 0.05"_q.arg(to.x()).arg(to.y());
    };
    const bool isFlat = std::abs(delta.x()) >= std::abs(delta.y());
    const QPoint pixel =
            isFlat ? QPoint(delta.x() < 0 ? -1 : 1, 0) : QPoint(0, delta.y() < 0 ? -1 : 1);
    moveTo(from + pixel);
    moveTo(from + 2 * pixel);
    constexpr int kSteps = 4;
    for (int step = 1; step <= kSteps; ++step)
        moveTo(from + delta * step / kSteps);
    xdo(script + " sleep 0.1 mouseup 1 sleep 0.1"_q);
}

} // namespace ombrin::test
