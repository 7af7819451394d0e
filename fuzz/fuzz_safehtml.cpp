// What a stranger wrote, made safe and shown: no picture, no link but to the known schemes, every
// tag closed.

#include "FuzzTarget.h"

#include <ombrin/OmSafeHtml.h>
#include <ombrin/OmTextBrowser.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

namespace {

constexpr int kMaxDepth = 16;

bool isAllowed(const QString &link)
{
    static const QStringList schemes{
            QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("ftp"),
            QStringLiteral("ftps"), QStringLiteral("sftp"),  QStringLiteral("mailto"),
            QStringLiteral("news"), QStringLiteral("imap"),  QStringLiteral("sip"),
            QStringLiteral("sips"), QStringLiteral("tel"),
    };
    return schemes.contains(QUrl(link).scheme());
}

void checkFragment(const QTextCharFormat &format)
{
    FUZZ_CHECK(!format.isImageFormat());
    FUZZ_CHECK(!format.isAnchor() || format.anchorHref().isEmpty()
               || isAllowed(format.anchorHref()));
}

void checkDocument(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part)
            checkFragment(part.fragment().charFormat());
    }
}

void checkTags(const QString &html)
{
    static const QRegularExpression tag(QStringLiteral("<(/?)([a-z][a-z0-9]*)[^>]*>"));
    QStringList open;
    auto tags = tag.globalMatch(html);
    while (tags.hasNext()) {
        const QRegularExpressionMatch match = tags.next();
        const QString name = match.captured(2);
        if (name == QLatin1String("br") || name == QLatin1String("hr"))
            continue;
        if (match.captured(1).isEmpty())
            open.append(name);
        else
            FUZZ_CHECK(!open.isEmpty() && open.takeLast() == name);
        FUZZ_CHECK(open.size() <= kMaxDepth);
    }
    FUZZ_CHECK(open.isEmpty());
}

void show(const QString &html)
{
    checkTags(html);
    ombrin::OmTextBrowser browser;
    browser.resize(200, 150);
    browser.setHtml(html);
    checkDocument(*browser.document());
    browser.grab();
}

void run(ombrin::fuzz::Input input)
{
    const bool isPlain = input.choice(4) == 0;
    const QString text = QString::fromUtf8(input.rest());
    show(isPlain ? ombrin::OmSafeHtml::fromPlainText(text) : ombrin::OmSafeHtml::fromHtml(text));
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
