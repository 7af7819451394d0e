// Links and pictures in the chat history.

#include "FuzzTarget.h"

#include "text/ChatPicture.h"
#include "text/LinkToolTip.h"
#include "widgets/PictureExtent.h"

#include <ombrin/OmTextBrowser.h>

#include <QtCore/QDir>
#include <QtCore/QUrl>
#include <QtGui/QTextDocument>

namespace {

using ombrin::OmTextBrowser;
using ombrin::fuzz::Input;

void hoverLink(OmTextBrowser *browser, const QByteArray &link)
{
    for (const QUrl &url : {QUrl::fromEncoded(link), QUrl(QString::fromUtf8(link))}) {
        QMetaObject::invokeMethod(browser, "slotLinkHighlighted", Q_ARG(QUrl, url));
        const QString tip = browser->toolTip();
        FUZZ_CHECK(tip.size() < 10 * ombrin::kMaxShownLink);
        FUZZ_CHECK(!Qt::mightBeRichText(tip) || tip.startsWith(QStringLiteral("<qt>")));
    }
}

void checkSize(const QImage &picture)
{
    FUZZ_CHECK(picture.width() <= ombrin::kMaxPictureExtent);
    FUZZ_CHECK(picture.height() <= ombrin::kMaxPictureExtent);
}

// Nothing is to be read but what lies in the folder of this process, or in resources.
void namePicture(const QByteArray &name)
{
    const QUrl url = ombrin::pictureUrl(QString::fromUtf8(name));
    const QString file = ombrin::chatPictureFile(url);
    FUZZ_CHECK(!file.startsWith(QStringLiteral("//")) && !file.contains(QChar::Null));
    checkSize(ombrin::readChatPicture(url));
}

void showPicture(OmTextBrowser *browser, const QUrl &source)
{
    checkSize(ombrin::readChatPicture(source));
    const QVariant shown = browser->loadResource(QTextDocument::ImageResource, source);
    FUZZ_CHECK(shown.isValid());
    browser->document()->addResource(QTextDocument::ImageResource, source, shown);
}

void run(Input input)
{
    OmTextBrowser browser;
    switch (input.choice(4)) {
    case 0:
        return hoverLink(&browser, input.rest());
    case 1:
        return namePicture(input.rest());
    case 2:
        return showPicture(&browser, QUrl::fromEncoded("data:" + input.rest()));
    default: {
        const QString file = ombrin::fuzz::folder().filePath(QStringLiteral("picture"));
        ombrin::fuzz::writeFile(file, input.rest());
        return showPicture(&browser, QUrl::fromLocalFile(file));
    }
    }
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
