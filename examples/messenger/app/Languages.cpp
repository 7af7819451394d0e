#include "app/Languages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

namespace messenger {

Languages::Languages(const QString &code)
{
    const QLocale locale = code.isEmpty() ? QLocale::system() : QLocale(code);
    if (!code.isEmpty())
        QLocale::setDefault(locale); // dates and times, too
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    const auto install = [&](QTranslator *translator, const QString &name) {
        if (translator->load(locale, name, QStringLiteral("_"), folder))
            QCoreApplication::installTranslator(translator);
    };
    install(&m_library, QStringLiteral("ombringui"));
    install(&m_messenger, QStringLiteral("messenger"));
}

} // namespace messenger
