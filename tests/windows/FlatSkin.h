#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QResource>
#include <QtCore/QStringList>
#include <QtGui/QColor>

/// The skin of flat colours that the window tests register: every piece and every button state has
/// a colour of its own.
namespace flat_skin {

inline bool registerSkin()
{
    return QResource::registerResource(QCoreApplication::applicationDirPath()
                                       + QStringLiteral("/testdata/flat.res"));
}

// Colours count in tens of hexadecimal digits, as the skin's list in CMake writes them.
inline int step(qsizetype index)
{
    return 0x10 * static_cast<int>(index + 1);
}

inline QColor piece(const char *name, bool active)
{
    static const QStringList names = {
            QStringLiteral("top_left"),      QStringLiteral("top_center"),
            QStringLiteral("top_right"),     QStringLiteral("left"),
            QStringLiteral("right"),         QStringLiteral("bottom_left"),
            QStringLiteral("bottom_center"), QStringLiteral("bottom_right")};
    return QColor(active ? 0x40 : 0x80, step(names.indexOf(QLatin1String(name))), 0xc0);
}

inline QColor button(const char *name, const char *state, bool active)
{
    static const QStringList names = {QStringLiteral("minimize"), QStringLiteral("maximize"),
                                      QStringLiteral("restore"), QStringLiteral("close")};
    static const QStringList states = {QStringLiteral("up"), QStringLiteral("down"),
                                       QStringLiteral("hover"), QStringLiteral("disabled")};
    return QColor(active ? 0x40 : 0x80, step(names.indexOf(QLatin1String(name))),
                  step(states.indexOf(QLatin1String(state))));
}

} // namespace flat_skin
