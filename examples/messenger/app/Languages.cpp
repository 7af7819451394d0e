#include "app/Languages.h"

#include <ombrin/OmTranslation.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

namespace messenger {

Languages::Languages(const QString &code)
{
    // Dates and times are in the language, too.
    if (!code.isEmpty())
        QLocale::setDefault(QLocale(code));
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    if (m_messenger.load(QLocale(), QStringLiteral("messenger"), QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(&m_messenger);
    ombrin::OmTranslation::load();
}

} // namespace messenger
