#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QPoint>
#include <QtCore/QString>
#include <QtWidgets/QTextBrowser>

#include <memory>

class QMenu;

namespace ombrin {

/// The read-only view of a conversation: a text browser whose links explain themselves, with a
/// small context menu of its own, from which received pictures can be kept, and in which copying
/// can be forbidden.
///
/// \code
/// auto *history = new ombrin::OmTextBrowser(this);
/// history->setSaveableImages(true);
/// connect(history, &QTextBrowser::anchorClicked, &QDesktopServices::openUrl);
/// history->append(ombrin::OmSafeHtml::fromHtml(message));
/// \endcode
///
/// Links are not followed: a clicked one is told by anchorClicked(), and the history stays on show.
/// A host that wants QTextBrowser's ways calls setOpenLinks(). The tool tip of a link says in plain
/// text where it leads; it is shortened where the link is longer than 200 characters, and links of
/// schemes that are not known have none.
///
/// Pictures may be named by strangers. Only bitmap pictures (PNG, JPEG, GIF, BMP, WebP, icons) from
/// resources, from ordinary local files and from "data:" are shown, of at most 16 MiB and 4,096 x
/// 4,096 pixels, an animation by its first frame. For everything else, a remote or missing picture
/// for example, a small sign stands, at once. Style sheets come from resources only. Text from
/// strangers is for OmSafeHtml to prepare.
///
/// The browser deletes itself when it is closed (Qt::WA_DeleteOnClose). A host may delete it while
/// one of its menus or dialogs is open.
///
/// \ingroup text
class OMBRIN_GUI_EXPORT OmTextBrowser : public QTextBrowser
{
    Q_OBJECT

    /// Whether what is selected can be copied, dragged or pasted elsewhere (default: true). When
    /// it is forbidden, copying and dragging give empty data.
    Q_PROPERTY(bool copyable READ isCopyable WRITE setCopyable)
    /// Whether the context menu of a picture that is no resource of the program offers to add it to
    /// the user's smileys and to save it as a JPEG file (default: false).
    Q_PROPERTY(bool saveableImages READ saveableImages WRITE setSaveableImages)

public:
    explicit OmTextBrowser(QWidget *parent = nullptr);
    ~OmTextBrowser() override;

    bool isCopyable() const;
    void setCopyable(bool copyable);

    bool saveableImages() const;
    void setSaveableImages(bool saveable);

    /// What the document asks for, within the limits that the class describes. A picture is never
    /// invalid, so that nothing else looks for it.
    QVariant loadResource(int type, const QUrl &name) override;

    using QTextBrowser::resize;

Q_SIGNALS:
    /// The browser gets another size, to which its contents have not been fitted yet.
    void resize();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;

private Q_SLOTS:
    void slotLinkHighlighted(QUrl link);
    void slotCopyAvailable(bool yes);
    void slotSelectionChanged();
    void slotCopyAnchor();

private:
    std::unique_ptr<QMenu> standardContextMenu();
    QString pictureAt(const QPoint &pos) const;
    void showPictureMenu(const QString &source, const QPoint &globalPos);
    void savePicture(const QString &source);

    bool m_copyable = true;
    bool m_saveableImages = false;
    bool m_copyAvailable = false;
    bool m_hasText = false;
    QString m_menuLink;
};

} // namespace ombrin
