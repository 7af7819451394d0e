#include <ombrin/OmTranslation.h>

#include "platform/InstalledFiles.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QPointer>
#include <QtCore/QTranslator>

#include <algorithm>
#include <memory>

namespace ombrin {

namespace {

const QLatin1String kPrefix("ombringui_");
const QLatin1String kQtPrefix("qtbase_");
const QLatin1String kEnglish("en");

// Owned by the application, with which they go.
QPointer<QTranslator> g_ours;
QPointer<QTranslator> g_qts;

QStringList searchPaths()
{
    return QStringList(QCoreApplication::applicationDirPath() + QStringLiteral("/translations"))
           + InstalledFiles::dataFolders(QStringLiteral("translations"));
}

QString qtTranslations()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

// The name of \a language in the names of files, and the shorter names of which it is a variant.
QStringList fileNamesOf(QString language)
{
    language.replace(QLatin1Char('-'), QLatin1Char('_'));
    QStringList names(language);
    while (names.constLast().contains(QLatin1Char('_')))
        names.append(names.constLast().section(QLatin1Char('_'), 0, -2));
    return names;
}

bool isEnglish(const QString &language)
{
    return language == QLatin1String("C") || fileNamesOf(language).constLast() == kEnglish;
}

using Translator = std::unique_ptr<QTranslator>;

Translator find(QLatin1String prefix, const QString &language, const QStringList &folders)
{
    auto translator = std::make_unique<QTranslator>();
    const QStringList names = fileNamesOf(language);
    for (const QString &folder : folders) {
        for (const QString &name : names) {
            const QString file = QStringLiteral("%1/%2%3.qm").arg(folder, prefix, name);
            if (QFileInfo(file).isFile() && translator->load(file) && !translator->isEmpty())
                return translator;
        }
    }
    return nullptr;
}

void remove(QPointer<QTranslator> *place)
{
    if (*place)
        QCoreApplication::removeTranslator(*place);
    delete *place;
}

void install(Translator translator, QPointer<QTranslator> *place)
{
    if (!translator)
        return;
    translator->setParent(QCoreApplication::instance());
    *place = translator.release();
    QCoreApplication::installTranslator(*place);
}

bool translatesQt()
{
    constexpr const char *kText = "&Copy";
    return QCoreApplication::translate("QWidgetTextControl", kText) != QLatin1String(kText);
}

// English where \a ours is null.
void speak(Translator ours, const QString &language)
{
    remove(&g_ours);
    remove(&g_qts);
    if (!ours)
        return;
    // Of two translators the later one is asked first.
    if (!translatesQt())
        install(find(kQtPrefix, language,
                     {QCoreApplication::applicationDirPath() + QStringLiteral("/translations"),
                      qtTranslations()}),
                &g_qts);
    install(std::move(ours), &g_ours);
}

} // namespace

bool OmTranslation::load(const QLocale &locale)
{
    if (!QCoreApplication::instance())
        return false;
    const QStringList wanted = locale.uiLanguages();
    for (const QString &language : wanted) {
        Translator ours = find(kPrefix, language, searchPaths());
        if (!ours && !isEnglish(language))
            continue;
        speak(std::move(ours), language);
        return true;
    }
    return false;
}

QStringList OmTranslation::languages()
{
    QStringList found((QString(kEnglish)));
    if (QCoreApplication::instance()) {
        const QStringList folders = searchPaths();
        for (const QString &folder : folders) {
            const QStringList files = QDir(folder).entryList({kPrefix + QLatin1String("*.qm")},
                                                             QDir::Files | QDir::Readable);
            for (const QString &file : files)
                found.append(QFileInfo(file).completeBaseName().mid(kPrefix.size()));
        }
    }
    found.sort();
    found.removeDuplicates();
    return found;
}

} // namespace ombrin
