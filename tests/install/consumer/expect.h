#pragma once

#include <QtGlobal>

inline bool &succeeded()
{
    static bool value = true;
    return value;
}

/// Says \a what should be the case when the \a condition is not met, and remembers it.
inline void expect(bool condition, const char *what)
{
    if (!condition)
        qWarning("not so: %s", what);
    succeeded() = succeeded() && condition;
}
