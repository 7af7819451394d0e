#include "widgets/PictureSaving.h"

#include <ombrin/OmDir.h>
#include <ombrin/OmSettings.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QSaveFile>
#include <QtWidgets/QFileDialog>

#include <memory>

namespace ombrin {

namespace {

constexpr int kQuality = 100;
// File systems take 255 bytes, of which a character can need three and a suffix needs five.
constexpr int kMaxNameLength = 80;

QString settingsGroup()
{
    return QStringLiteral("omchat");
}

bool isDirectionMark(ushort code)
{
    return code == 0x061c || (code >= 0x200e && code <= 0x200f)
           || (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

bool isUnfit(QChar c)
{
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
           || category == QChar::Separator_Paragraph || isDirectionMark(c.unicode())
           || QStringLiteral("/\\:*?\"<>|").contains(c);
}

// Not the folder used last when it has been removed since: saving there would fail unseen.
QString startFolder(const QString &settingsKey)
{
    const QString pictures = OmDir::myPicturesPath();
    const QString last =
            OmSettings::instance().get(settingsKey, pictures, settingsGroup()).toString();
    for (const QString &folder : {last, pictures}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    }
    return QDir::homePath();
}

// The dialog of QFileDialog's static functions would not survive its parent.
QString askForFile(QWidget *parent, const PictureSaving &saving, const QString &proposal)
{
    const QFileInfo proposed(proposal);
    const QPointer<QFileDialog> dialog =
            new QFileDialog(parent, saving.title, proposed.absolutePath(),
                            saving.formatName + QStringLiteral(" (*.jpeg *.jpg)"));
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    // What the dialog adds itself it can also ask about.
    dialog->setDefaultSuffix(QStringLiteral("jpg"));
    dialog->selectFile(proposed.fileName());
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    const QStringList files = isAccepted ? dialog->selectedFiles() : QStringList();
    delete dialog;
    return files.value(0);
}

QString withJpegSuffix(const QString &file)
{
    if (file.endsWith(QStringLiteral(".jpg")) || file.endsWith(QStringLiteral(".jpeg")))
        return file;
    return file + QStringLiteral(".jpg");
}

// Empty if the user cancelled or the parent died.
QString askForJpegFile(QWidget *parent, const PictureSaving &saving)
{
    const QPointer<QWidget> guard(parent);
    QString name = proposedFileName(saving.proposedName);
    if (name.isEmpty())
        name = proposedFileName(saving.otherName);
    QString proposal = startFolder(saving.settingsKey) + QLatin1Char('/') + name;
    while (guard) {
        const QString answer = askForFile(parent, saving, proposal);
        if (!guard || answer.isEmpty())
            break;
        const QString file = withJpegSuffix(answer);
        if (file == answer || !QFileInfo::exists(file))
            return file;
        // The dialog has asked about another file than the one that would be replaced.
        proposal = file;
    }
    return QString();
}

// Encoded first, so that a picture which has no JPEG form replaces nothing.
void writeJpeg(const QImage &image, const QString &file)
{
    QBuffer jpeg;
    if (!jpeg.open(QIODevice::WriteOnly) || !image.save(&jpeg, "jpg", kQuality))
        return;
    QSaveFile target(file);
    // A file may be the user's in a folder that is not.
    target.setDirectWriteFallback(true);
    if (!target.open(QIODevice::WriteOnly))
        return;
    target.write(jpeg.data());
    target.commit();
}

} // namespace

void savePictureAsJpeg(QWidget *parent, const PictureSaving &saving,
                       const std::function<QImage()> &picture)
{
    const QString file = askForJpegFile(parent, saving);
    if (file.isEmpty())
        return;
    OmSettings::instance().set(saving.settingsKey, QFileInfo(file).absolutePath(), settingsGroup());
    writeJpeg(picture(), file);
}

QString proposedFileName(const QString &name)
{
    QString proposal = name.trimmed();
    if (proposal.size() > kMaxNameLength) {
        proposal.truncate(kMaxNameLength);
        if (proposal.at(kMaxNameLength - 1).isHighSurrogate())
            proposal.chop(1);
    }
    for (QChar &c : proposal) {
        if (isUnfit(c))
            c = QLatin1Char('_');
    }
    // A hidden file, a folder or somebody's home.
    if (proposal.startsWith(QLatin1Char('.')) || proposal.startsWith(QLatin1Char('~')))
        proposal[0] = QLatin1Char('_');
    return proposal;
}

} // namespace ombrin
