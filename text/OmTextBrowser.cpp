#include <ombrin/OmTextBrowser.h>

#include "skin/SkinPixmap.h"
#include "text/ChatPicture.h"
#include "text/LinkToolTip.h"
#include "widgets/PictureSaving.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <iterator>

namespace ombrin {

namespace {

constexpr const char *kWebPrefixes[] = {"http://", "https://", "ftp://", "ftps://", "sftp://"};
constexpr const char *kMailPrefixes[] = {"mailto:", "imap:", "news:"};
constexpr const char *kPhonePrefixes[] = {"sip:", "sips:"};

template <std::size_t Count>
bool beginsWithOne(const QString &link, const char *const (&prefixes)[Count])
{
    return std::any_of(std::begin(prefixes), std::end(prefixes), [&link](const char *prefix) {
        return link.startsWith(QLatin1String(prefix), Qt::CaseSensitive);
    });
}

// Whether \a link began with one of \a prefixes, all of which are gone from it then.
template <std::size_t Count>
bool removePrefixes(QString *link, const char *const (&prefixes)[Count])
{
    bool isRemoved = false;
    for (const char *prefix : prefixes) {
        if (!link->startsWith(QLatin1String(prefix), Qt::CaseSensitive))
            continue;
        link->remove(QLatin1String(prefix), Qt::CaseSensitive);
        isRemoved = true;
    }
    return isRemoved;
}

// The picture that the character at \a position stands for, if it stands for one outside links.
QString pictureName(const QTextDocument *document, int position)
{
    if (position < 0 || document->characterAt(position) != QChar::ObjectReplacementCharacter)
        return QString();
    QTextCursor cursor(document->findBlock(position));
    cursor.setPosition(position + 1);
    const QTextCharFormat format = cursor.charFormat();
    return format.isImageFormat() && !format.isAnchor() ? format.toImageFormat().name() : QString();
}

bool isResource(const QString &picture)
{
    return picture.startsWith(QStringLiteral(":/")) || picture.startsWith(QStringLiteral("qrc:"));
}

// What stands for a picture that is not shown.
QPixmap missingPicture(const QStyle *style)
{
    constexpr int kExtent = 16;
    const QPixmap sign = style->standardIcon(QStyle::SP_FileIcon).pixmap(kExtent);
    if (!sign.isNull())
        return sign;
    QPixmap empty(kExtent, kExtent);
    empty.fill(Qt::transparent);
    return empty;
}

} // namespace

OmTextBrowser::OmTextBrowser(QWidget *parent)
    : QTextBrowser(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    connect(this, qOverload<const QUrl &>(&QTextBrowser::highlighted), this,
            &OmTextBrowser::slotLinkHighlighted);
    connect(this, &QTextEdit::copyAvailable, this, &OmTextBrowser::slotCopyAvailable);
    connect(this, &QTextEdit::textChanged, this, &OmTextBrowser::slotSelectionChanged);
    document()->setDefaultStyleSheet(
            QStringLiteral("a { text-decoration: underline; color: #009cff }"));
    // A click would put what the link names in place of the history.
    setOpenLinks(false);
}

OmTextBrowser::~OmTextBrowser() = default;

bool OmTextBrowser::isCopyable() const
{
    return m_copyable;
}

void OmTextBrowser::setCopyable(bool copyable)
{
    m_copyable = copyable;
}

bool OmTextBrowser::saveableImages() const
{
    return m_saveableImages;
}

void OmTextBrowser::setSaveableImages(bool saveable)
{
    m_saveableImages = saveable;
}

// For what comes back invalid from here QTextDocument opens whatever is named.
QVariant OmTextBrowser::loadResource(int type, const QUrl &name)
{
    switch (type) {
    case QTextDocument::ImageResource: {
        const QPixmap picture = QPixmap::fromImage(readChatPicture(name));
        return picture.isNull() ? missingPicture(style()) : picture;
    }
    case QTextDocument::StyleSheetResource:
        if (name.scheme() != QLatin1String("qrc"))
            return QByteArray("");
        return QTextBrowser::loadResource(type, name);
    default:
        return QTextBrowser::loadResource(type, name);
    }
}

void OmTextBrowser::resizeEvent(QResizeEvent *event)
{
    const QPointer<OmTextBrowser> guard(this);
    Q_EMIT resize();
    if (guard)
        QTextBrowser::resizeEvent(event);
}

void OmTextBrowser::contextMenuEvent(QContextMenuEvent *event)
{
    const QString picture = m_saveableImages ? pictureAt(event->pos()) : QString();
    if (!picture.isEmpty() && !isResource(picture))
        return showPictureMenu(picture, event->globalPos());
    // Asked now: the history may move on beneath the open menu.
    m_menuLink = anchorAt(event->pos());
    standardContextMenu()->exec(event->globalPos());
}

QMimeData *OmTextBrowser::createMimeDataFromSelection() const
{
    return m_copyable ? QTextBrowser::createMimeDataFromSelection() : new QMimeData;
}

void OmTextBrowser::slotLinkHighlighted(QUrl link)
{
    QString text = link.toString();
    if (text.isEmpty()) {
        setToolTip(QString());
        QToolTip::hideText();
        return;
    }
    QString toolTip;
    if (beginsWithOne(text, kWebPrefixes))
        toolTip = tr("Open %1 in your web browser.").arg(shownLink(link.host()));
    if (removePrefixes(&text, kMailPrefixes))
        toolTip = tr("Write e-mail to %1.").arg(shownLink(text));
    if (removePrefixes(&text, kPhonePrefixes))
        toolTip = tr("Call %1 with ombrin Phone.").arg(shownLink(text));
    if (text.startsWith(QStringLiteral("pushplay")))
        toolTip = tr("Play Push Message");
    if (text.startsWith(QStringLiteral("pushsave")))
        toolTip = tr("Save Push Message as...");
    setToolTip(plainToolTip(toolTip));
}

void OmTextBrowser::slotCopyAvailable(bool yes)
{
    m_copyAvailable = yes;
}

// Every document ends with a character of its own, which is no text.
void OmTextBrowser::slotSelectionChanged()
{
    m_hasText = document()->characterCount() > 1;
}

void OmTextBrowser::slotCopyAnchor()
{
    QApplication::clipboard()->setText(m_menuLink, QClipboard::Clipboard);
}

std::unique_ptr<QMenu> OmTextBrowser::standardContextMenu()
{
    auto menu = std::make_unique<QMenu>();
    const auto add = [this, &menu](const QString &text, auto slot, bool isEnabled) {
        QAction *action = menu->addAction(text);
        connect(action, &QAction::triggered, this, slot);
        action->setEnabled(isEnabled);
        return action;
    };
    QAction *copyEntry = add(tr("&Copy"), &QTextEdit::copy, m_copyAvailable);
    copyEntry->setShortcut(QKeySequence::Copy);
    add(tr("Copy &Link Location"), &OmTextBrowser::slotCopyAnchor, !m_menuLink.isEmpty());
    menu->addSeparator();
    QAction *selectEntry = add(tr("&Select All"), &QTextEdit::selectAll, m_hasText);
    selectEntry->setShortcut(QKeySequence::SelectAll);
    for (QAction *entry : {copyEntry, selectEntry})
        entry->setShortcutVisibleInContextMenu(true);
    return menu;
}

// A picture is found on either side of the place between two characters that is nearest to \a pos.
QString OmTextBrowser::pictureAt(const QPoint &pos) const
{
    const int position = cursorForPosition(pos).position();
    const QString left = pictureName(document(), position - 1);
    return left.isEmpty() ? pictureName(document(), position) : left;
}

void OmTextBrowser::showPictureMenu(const QString &source, const QPoint &globalPos)
{
    const QPointer<OmTextBrowser> guard(this);
    QMenu menu;
    const QAction *addEntry =
            menu.addAction(skinPixmap(QStringLiteral(":/addsmiley-16")), tr("Add Smiley"));
    const QAction *saveEntry =
            menu.addAction(skinPixmap(QStringLiteral(":/save-16")), tr("Save Image as..."));
    const QAction *chosen = menu.exec(globalPos);
    if (!guard || !chosen)
        return;
    if (chosen == addEntry)
        addToSmileys(pictureUrl(source));
    else if (chosen == saveEntry)
        savePicture(source);
}

void OmTextBrowser::savePicture(const QString &source)
{
    const QUrl url = pictureUrl(source);
    PictureSaving saving;
    saving.title = tr("Save Smiley as...");
    saving.formatName = tr("Joint Photographic Experts Group");
    saving.settingsKey = QStringLiteral("save_smiley_path");
    // What lies in the address itself has no name.
    if (url.scheme() != QLatin1String("data"))
        saving.proposedName = url.fileName(QUrl::FullyDecoded);
    savePictureAsJpeg(this, saving, [url] { return readChatPicture(url); });
}

} // namespace ombrin
