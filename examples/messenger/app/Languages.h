#pragma once

#include <QtCore/QTranslator>

namespace messenger {

/// The translations of messenger and library, installed as long as the object exists.
class Languages
{
public:
    /// Those for the language \a code, or where it is empty for the one the user's system speaks. A
    /// language for which there are none leaves the texts English. Needs a QCoreApplication.
    explicit Languages(const QString &code);

private:
    QTranslator m_messenger;
};

} // namespace messenger
