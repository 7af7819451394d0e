// What a chat window is made of.

#include "windows/ChatWindow.h"

#include "common/SkinPictures.h"
#include "model/MessageHtml.h"
#include "model/Session.h"
#include "peers/PeerProtocol.h"
#include "windows/ChatHistory.h"
#include "windows/MessageInput.h"
#include "windows/Pictures.h"
#include "windows/PlainText.h"

#include <ombrin/OmIconComboBox.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmPushButton.h>
#include <ombrin/OmToolBar.h>
#include <ombrin/OmToolButton.h>

#include <QAction>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QSplitter>

namespace messenger {

namespace {

using ombrin::OmToolButton;

constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kInputHeight = 64;

} // namespace

QWidget *ChatWindow::createConversation()
{
    auto *lower = new QWidget;
    auto *lowerColumn = new QVBoxLayout(lower);
    lowerColumn->setContentsMargins(0, 0, 0, 0);
    lowerColumn->setSpacing(2);
    m_typing = new QLabel;
    m_typing->setTextFormat(Qt::PlainText);
    beginAtEdge(m_typing);
    m_typing->setFixedHeight(m_typing->fontMetrics().height() + 2);
    lowerColumn->addWidget(m_typing);
    lowerColumn->addWidget(createInputRow(), 1);

    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_history);
    splitter->addWidget(lower);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({QWIDGETSIZE_MAX, kInputHeight});

    auto *contents = new QWidget;
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(kMargin, kMargin - 2, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(createHead());
    column->addWidget(createToolBar());
    column->addWidget(splitter, 1);
    return contents;
}

QWidget *ChatWindow::createHead()
{
    m_face = new QLabel;
    m_name = plainBoldLabel();
    m_remark = plainLabel();
    m_presence = new QLabel;
    m_info = new ombrin::OmInfoPopup;
    const Contact contact = m_session->roster().contact(m_contactId);
    const QStringList lines = {contact.alias, contact.city, contact.phone, contact.email};
    m_info->setPopupMessage(
            lines.filter(QRegularExpression(QStringLiteral("."))).join(QLatin1Char('\n')));

    auto *head = new QWidget;
    auto *grid = new QGridLayout(head);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(2);
    grid->addWidget(m_face, 0, 0, 2, 1);
    grid->addWidget(m_name, 0, 1, 1, 2, Qt::AlignBottom);
    m_presence->setFixedHeight(m_remark->fontMetrics().height()); // in the middle of its line
    grid->addWidget(m_presence, 1, 1, Qt::AlignTop);
    grid->addWidget(m_remark, 1, 2, Qt::AlignTop);
    grid->addWidget(m_info, 0, 3, 2, 1);
    grid->setColumnStretch(2, 1);
    return head;
}

QAction *ChatWindow::addAction(const QString &icon, const QString &text, const QString &tip)
{
    auto *action = new QAction(QIcon(QStringLiteral(":/") + icon), text, this);
    action->setToolTip(tip);
    m_actions.append(action);
    return action;
}

QWidget *ChatWindow::createToolBar()
{
    const auto perform = [this](const char *id) {
        return [this, id] { Q_EMIT actionId(QString::fromLatin1(id), m_contactId); };
    };
    QAction *call = addAction(QStringLiteral("phone-16"), tr("Call"), tr("Call this contact"));
    connect(call, &QAction::triggered, this, perform("voip"));
    QAction *picture = addAction(QStringLiteral("filetransfer-16"), tr("Picture"),
                                 tr("Send a picture, or paste or drop one here"));
    connect(picture, &QAction::triggered, this, &ChatWindow::choosePicture);
    QAction *screenshot =
            addAction(QStringLiteral("zoom+-24"), tr("Screenshot"),
                      tr("Cut out a part of the screen in three seconds and send it"));
    connect(screenshot, &QAction::triggered, this, &ChatWindow::takeScreenshot);
    QAction *nudging = addAction(QStringLiteral("is_talking-16"), tr("Nudge"),
                                 tr("Shake the window of this contact"));
    connect(nudging, &QAction::triggered, this, &ChatWindow::nudge);
    QAction *profile =
            addAction(QStringLiteral("profile-16"), tr("Profile"), tr("Who this contact is"));
    profile->setData(true); // also for those who are blocked
    connect(profile, &QAction::triggered, this, perform("profile"));

    auto *bar = new ombrin::OmToolBar;
    bar->setIconSize(QSize(16, 16));
    QList<QToolButton *> buttons;
    for (QAction *action : std::as_const(m_actions)) {
        auto *button = new OmToolButton;
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        bar->addWidget(button);
        buttons.append(button);
    }
    bar->setButtonList(buttons);
    return bar;
}

QWidget *ChatWindow::createInputRow()
{
    m_input->setMinimumHeight(kInputHeight);
    m_input->setMaxLength(kLongestText);
    m_input->setTabChangesFocus(true); // messages need no tabs, and there is a way on by key
    m_input->setAccessibleName(tr("Your message"));
    connect(m_input, &ombrin::OmTextEdit::enterPressed, this, &ChatWindow::sendText);
    connect(m_input, &QTextEdit::textChanged, this, &ChatWindow::noteTyping);
    connect(m_input, &MessageInput::picturesGiven, this, &ChatWindow::sendPictures);
    auto *send = new ombrin::OmPushButton;
    send->setText(tr("&Send"));
    send->setToolTip(tr("Sends your message, as Return does"));
    send->setFocusPolicy(Qt::TabFocus);
    connect(send, &QPushButton::clicked, this, &ChatWindow::sendText);

    auto *side = new QVBoxLayout;
    side->setSpacing(kGap);
    side->addWidget(createSmileys());
    side->addWidget(send, 1);
    send->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    layout->addWidget(m_input, 1);
    layout->addLayout(side);
    row->setMinimumHeight(kInputHeight);
    return row;
}

QWidget *ChatWindow::createSmileys()
{
    auto *box = new ombrin::OmIconComboBox;
    box->setAccessibleName(tr("Smileys"));
    box->setFocusPolicy(Qt::TabFocus);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (const QString &smiley : smileys()) {
        box->addItem(QIcon(smileyPicture(smiley)), QString(), smiley);
        box->setItemData(box->count() - 1, smiley, Qt::AccessibleTextRole);
    }
    connect(box, qOverload<int>(&QComboBox::activated), m_input, [this, box] {
        const QTextCursor cursor = m_input->textCursor();
        const bool needsBlank =
                cursor.position() > 0
                && !m_input->document()->characterAt(cursor.position() - 1).isSpace();
        m_input->insertPlainText((needsBlank ? QStringLiteral(" ") : QString())
                                 + box->currentData().toString() + QLatin1Char(' '));
        m_input->setFocus();
    });
    return box;
}

} // namespace messenger
