#pragma once

#include "support/TestCase.h"

/// The skin of flat colours that the window tests register: every piece and every button state has
/// a colour of its own.
namespace flat_skin {

constexpr char kFile[] = "testdata/flat.res";

// Colours count in tens of hexadecimal digits, as the skin's list in CMake writes them.
inline int step(qsizetype index)
{
    return 0x10 * static_cast<int>(index + 1);
}

inline QColor piece(const char *name, bool active)
{
    static const QStringList names = {"top_left"_q,      "top_center"_q,  "top_right"_q,
                                      "left"_q,          "right"_q,       "bottom_left"_q,
                                      "bottom_center"_q, "bottom_right"_q};
    return QColor(active ? 0x40 : 0x80, step(names.indexOf(QLatin1String(name))), 0xc0);
}

inline QColor button(const char *name, const char *state, bool active)
{
    static const QStringList names = {"minimize"_q, "maximize"_q, "restore"_q, "close"_q};
    static const QStringList states = {"up"_q, "down"_q, "hover"_q, "disabled"_q};
    return QColor(active ? 0x40 : 0x80, step(names.indexOf(QLatin1String(name))),
                  step(states.indexOf(QLatin1String(state))));
}

} // namespace flat_skin
