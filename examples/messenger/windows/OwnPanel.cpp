#include "windows/OwnPanel.h"

#include "model/PictureFiles.h"
#include "model/Session.h"
#include "windows/Pictures.h"

#include <ombrin/OmContactCard.h>
#include <ombrin/OmLineEdit.h>
#include <ombrin/OmMessageBox.h>

#include <QtCore/QPointer>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>

#include <array>

namespace messenger {

namespace {

using ombrin::OmContactCard;
namespace Om = ombrin::Om;

constexpr int kLongestRemark = 120;

constexpr std::array<Om::ContactStatus, 6> kChoices = {
        Om::Online, Om::Away, Om::ExtendedAway, Om::Busy, Om::DoNotDisturb, Om::Invisible};

} // namespace

OwnPanel::OwnPanel(Session *session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_card(new OmContactCard)
    , m_presence(new QComboBox)
    , m_remark(new ombrin::OmLineEdit)
{
    m_card->setOwn(true);
    connect(m_card, qOverload<>(&OmContactCard::newAvatar), this, &OwnPanel::choosePicture);
    connect(m_card, qOverload<const QStringList &>(&OmContactCard::newAvatar), this,
            [this](const QStringList &fileNames) { takePicture(fileNames.value(0)); });
    connect(m_card, &OmContactCard::avatarClicked, this, &OwnPanel::choosePicture);
    createPresence();
    createRemark();

    auto *row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(m_presence);
    row->addWidget(m_remark, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(m_card);
    column->addLayout(row);

    connect(session, &Session::accountChanged, this, &OwnPanel::refresh);
    refresh();
}

OwnPanel::~OwnPanel() = default;

void OwnPanel::createPresence()
{
    for (const Om::ContactStatus status : kChoices)
        m_presence->addItem(presenceIcon(status), presenceName(status), static_cast<int>(status));
    m_presence->setAccessibleName(tr("Your presence"));
    m_presence->setStatusTip(tr("What others see of you"));
    connect(m_presence, qOverload<int>(&QComboBox::activated), this, &OwnPanel::setPresence);
}

void OwnPanel::createRemark()
{
    m_remark->setMaxLength(kLongestRemark);
    m_remark->setAccessibleName(tr("Your remark"));
    m_remark->setStatusTip(tr("What you are up to, for others to read"));
    m_remark->setMinimumSize(60, m_presence->sizeHint().height());
    m_remark->setNoFocusMessage(tr("What's up?"));
    connect(m_remark, &QLineEdit::editingFinished, this, &OwnPanel::setRemark);
}

void OwnPanel::refresh()
{
    const Account &account = m_session->account();
    m_card->setAlias(account.name);
    m_card->setOmbrinId(account.id);
    m_card->setStatus(account.status);
    m_card->setAvatar(QPixmap::fromImage(m_session->ownPicture()), false);
    const int index = m_presence->findData(static_cast<int>(account.status));
    m_presence->setCurrentIndex(qMax(0, index));
    if (!m_remark->hasFocus() && m_remark->text() != account.remark) {
        m_remark->setText(account.remark);
        m_remark->setCursorPosition(0); // the beginning is what is read
        m_remark->updateFocusMessage();
    }
}

void OwnPanel::setPresence()
{
    Account account = m_session->account();
    account.status = static_cast<Om::ContactStatus>(m_presence->currentData().toInt());
    m_session->setAccount(account);
}

void OwnPanel::setRemark()
{
    Account account = m_session->account();
    account.remark = asLine(m_remark->text(), kLongestRemark);
    if (account.remark != m_session->account().remark)
        m_session->setAccount(account);
}

void OwnPanel::choosePicture()
{
    const QPointer<OwnPanel> guard(this);
    const QString fileName = choosePictureFile(window(), tr("Choose Your Picture"));
    if (guard && !fileName.isEmpty())
        takePicture(fileName);
}

// What users drop can be anything.
void OwnPanel::takePicture(const QString &fileName)
{
    const QImage picture = readPicture(fileName);
    if (!picture.isNull() && m_session->setOwnPicture(picture))
        return;
    const QString reason = picture.isNull() ? tr("This is not a picture, or it is too large.")
                                            : tr("The picture cannot be stored.");
    ombrin::OmMessageBox::information(window(), tr("Your Picture"),
                                      reason + QLatin1Char('\n')
                                              + tr("Your picture stays as it was."));
}

} // namespace messenger
