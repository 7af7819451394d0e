// What users do with a contact card: choose actions, save the picture, drop new ones.

#include <ombrin/OmContactCard.h>

#include "contacts/ContactActions.h"
#include "skin/SkinPixmap.h"
#include "widgets/PictureSaving.h"

#include <ombrin/OmAvatarSmall.h>

#include <QAction>
#include <QtCore/QDir>
#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>
#include <QtGui/QImage>
#include <QtWidgets/QMenu>

namespace ombrin {

namespace {

constexpr int kMenuCloseMs = 20;
constexpr int kQuality = 100;

QStringList localFiles(const QMimeData *data)
{
    QStringList files;
    const QList<QUrl> urls = data->urls();
    files.reserve(urls.size());
    for (const QUrl &url : urls)
        files.append(url.toLocalFile());
    return files;
}

// A picture that came without a file.
QString keepDroppedImage(const QMimeData *data)
{
    const QString file = QDir::tempPath() + QStringLiteral("/omchat.jpg");
    // Not written through a link that somebody else has put there.
    QFile::remove(file);
    qvariant_cast<QImage>(data->imageData()).save(file, "jpg", kQuality);
    return file;
}

} // namespace

void OmContactCard::slotAction(QAction *action)
{
    if (action)
        Q_EMIT actionId(action->objectName());
}

void OmContactCard::slotContextMenu(QPoint)
{
    if (m_menu)
        return;
    const QPointer<QMenu> menu = new QMenu(this);
    m_menu = menu;
    if (fillMenu(menu))
        menu->exec(QCursor::pos());
    // The card may be gone by now.
    delete menu;
}

// A menu must outlive the choice that made the host delete the card.
void OmContactCard::releaseMenu()
{
    if (!m_menu)
        return;
    m_menu->hide();
    m_menu->setParent(nullptr, m_menu->windowFlags());
}

bool OmContactCard::fillMenu(QMenu *menu)
{
    if (m_own) {
        connect(menu->addAction(tr("Change My User Picture...")), &QAction::triggered, this,
                [this] { Q_EMIT newAvatar(); });
        return true;
    }
    const ClientActions *const client = clientActions(m_generalApp);
    if (!client)
        return false;
    if (!avatar().isNull()) {
        QAction *const save = menu->addAction(skinPixmap(QStringLiteral(":/save-16")),
                                              tr("Save User Picture..."));
        connect(save, &QAction::triggered, this, &OmContactCard::slotSaveUserImageTimer);
        menu->addSeparator();
    }
    createFace();
    createTools();
    for (const ContactAction action : *client)
        menu->addAction(m_actions.at(static_cast<int>(action)));
    return true;
}

void OmContactCard::slotSaveUserImageTimer()
{
    QTimer::singleShot(kMenuCloseMs, this, &OmContactCard::slotSaveUserImage);
}

void OmContactCard::slotSaveUserImage()
{
    const PictureSaving saving{tr("Save User Picture as..."),
                               tr("Joint Photographic Experts Group"),
                               QStringLiteral("save_avatar_path"), m_alias, m_ombrinId};
    savePictureAsJpeg(this, saving, [this] { return avatar().toImage(); });
}

void OmContactCard::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasImage() || event->mimeData()->hasUrls())
        event->acceptProposedAction();
    else
        event->ignore();
}

void OmContactCard::dropEvent(QDropEvent *event)
{
    // The card may be gone afterwards.
    event->acceptProposedAction();
    const QMimeData *const dropped = event->mimeData();
    if (dropped->hasImage())
        Q_EMIT newAvatar({keepDroppedImage(dropped)});
    else if (dropped->hasUrls())
        Q_EMIT newAvatar(localFiles(dropped));
}

} // namespace ombrin
