// A host of the core library, which needs no window system.

#include <ombrin/OmSettings.h>

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QVariant answer = ombrin::OmSettings::instance().get(
            QStringLiteral("none"), QStringLiteral("default"), QStringLiteral("group"));
    return answer.toString() == QLatin1String("default") ? 0 : 1;
}
