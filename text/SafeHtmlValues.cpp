#include "text/SafeHtmlValues.h"

#include "text/HtmlScanner.h"

#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtGui/QColor>

#include <algorithm>
#include <iterator>

namespace ombrin {

namespace {

constexpr int kMaxLink = 2000;
constexpr const char *kSchemes[] = {"http", "https", "ftp", "ftps", "sftp", "mailto",
                                    "news", "imap",  "sip", "sips", "tel"};
constexpr const char *kHostSchemes[] = {"http", "https", "ftp", "ftps", "sftp"};

template <std::size_t Count>
bool contains(const char *const (&names)[Count], const QString &name)
{
    return std::any_of(std::begin(names), std::end(names),
                       [&name](const char *known) { return name == QLatin1String(known); });
}

// Empty if it is no colour, or none that is seen.
QString safeColor(const QString &value)
{
    const QString name = value.trimmed();
    const bool isName = name.size() <= 32 && std::all_of(name.begin(), name.end(), [](QChar c) {
                            return c == QLatin1Char('#') || c.isLetterOrNumber();
                        });
    if (name.isEmpty() || !isName)
        return QString();
    const QColor color(name);
    return color.isValid() && color.alpha() == 255 ? color.name() : QString();
}

QString safeStyleValue(const QString &property, const QString &value)
{
    static const QStringList kWords = {
            QStringLiteral("font-weight:bold"),
            QStringLiteral("font-weight:normal"),
            QStringLiteral("font-style:italic"),
            QStringLiteral("font-style:normal"),
            QStringLiteral("text-decoration:underline"),
            QStringLiteral("text-decoration:line-through"),
    };
    if (property == QLatin1String("color") || property == QLatin1String("background-color"))
        return safeColor(value);
    if (property == QLatin1String("font-weight")) {
        bool isNumber = false;
        const int weight = value.toInt(&isNumber);
        if (isNumber)
            return weight >= 600 ? QStringLiteral("bold") : QStringLiteral("normal");
    }
    return kWords.contains(property + QLatin1Char(':') + value) ? value : QString();
}

} // namespace

QString safeLink(const QString &link)
{
    if (link.size() > kMaxLink)
        return QString();
    const QUrl url(link.trimmed());
    const bool needsHost = contains(kHostSchemes, url.scheme());
    if (!url.isValid() || !contains(kSchemes, url.scheme()) || (needsHost && url.host().isEmpty()))
        return QString();
    return QString::fromLatin1(url.toEncoded()).toHtmlEscaped();
}

QString safeStyle(const HtmlTag &tag)
{
    QString style;
    const auto append = [&style](const QString &property, const QString &value) {
        const QString safe = safeStyleValue(property, value);
        if (!safe.isEmpty())
            style += property + QLatin1Char(':') + safe + QLatin1Char(';');
    };
    append(QStringLiteral("color"), tag.value(QLatin1String("color")));
    const QStringList declarations =
            tag.value(QLatin1String("style")).left(kMaxLink).split(QLatin1Char(';'));
    for (const QString &declaration : declarations) {
        const int colon = static_cast<int>(declaration.indexOf(QLatin1Char(':')));
        append(declaration.left(colon).trimmed().toLower(),
               declaration.mid(colon + 1).trimmed().toLower());
    }
    return style;
}

} // namespace ombrin
