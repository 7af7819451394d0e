// A user's picture, which came from that user: still or moving, as a file and as a thumbnail, and
// dropped on a contact card.

#include "FuzzTarget.h"

#include "contacts/PictureFile.h"
#include "widgets/PictureExtent.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>

#include <QtCore/QPointer>
#include <QtGui/QMovie>

namespace {

constexpr int kMostFrames = 8;

void showLarge(const QString &file)
{
    const QPointer<ombrin::OmAvatar> avatar = new ombrin::OmAvatar(file, nullptr);
    if (auto *const movie = avatar->findChild<QMovie *>()) {
        for (int frame = 0; frame < kMostFrames && movie->jumpToNextFrame(); ++frame)
            avatar->grab();
    }
    avatar->grab();
    delete avatar;
}

void showSmall(const QPixmap &picture)
{
    ombrin::OmAvatarSmall avatar;
    avatar.resize(78, 78);
    avatar.setAvatar(picture, true);
    avatar.grab();
    avatar.resize(17, 40);
    avatar.grab();
}

void run(ombrin::fuzz::Input input)
{
    const QString file = ombrin::fuzz::folder().filePath(QStringLiteral("picture"));
    ombrin::fuzz::writeFile(file, input.rest());
    const auto inspected = ombrin::PictureFile::inspect(file);
    showLarge(file);
    if (!inspected.isReadable)
        return;
    const QPixmap picture(file);
    FUZZ_CHECK(picture.width() <= ombrin::kMaxPictureExtent);
    FUZZ_CHECK(picture.height() <= ombrin::kMaxPictureExtent);
    showSmall(picture);
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
