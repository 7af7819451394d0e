#include "EmbeddedFrame.h"
#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmDesktop.h>
#include <ombrin/OmDialog2.h>
#include <ombrin/OmStatusBar.h>
#include <ombrin/OmWindow.h>

#include <QAction>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextEdit>

namespace gallery {

namespace {

using ombrin::OmDialog2;
using ombrin::OmWindow;

// Time to bring another window to the front before this one asks for attention.
constexpr int kAttentionDelayMs = 2000;
constexpr QSize kExhibitSize(452, 256);
constexpr int kBadgeDiameter = 18;

/// A numbered dot.
class Badge : public QWidget
{
public:
    explicit Badge(int number, QWidget *parent = nullptr)
        : QWidget(parent)
        , m_number(number)
    {
        setFixedSize(kBadgeDiameter, kBadgeDiameter);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0x8a, 0x5d, 0x00), 1));
        painter.setBrush(QColor(0xff, 0xc1, 0x30));
        painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignCenter, QString::number(m_number));
    }

private:
    int m_number;
};

class WindowPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(WindowPage)

public:
    WindowPage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *createOpenCard();
    QWidget *createThisWindowCard();
    QWidget *createAnatomyCard();
    QWidget *createExhibit();
    QWidget *createLegend();
    void openWindow(const QString &title, bool fixed);
    void openDialog(QWidget *parent);
    void followStayOnTopAction();

    QPushButton *m_stayOnTop = nullptr;
    QLineEdit *m_title = nullptr;
    QPointer<QAction> m_stayOnTopAction;
};

WindowPage::WindowPage()
{
    QBoxLayout *left = cardStack(Qt::Vertical);
    left->addWidget(createOpenCard());
    left->addWidget(createThisWindowCard(), 1);

    auto *row = cardStack(Qt::Horizontal);
    row->addLayout(left);
    row->addWidget(createAnatomyCard(), 1);
    cardColumn(this)->addLayout(row);
}

QWidget *WindowPage::createOpenCard()
{
    auto *second = pushButton(tr("Open a second window"),
                              tr("Open a window with a menu bar and a status bar"));
    connect(second, &QPushButton::clicked, this,
            [this] { openWindow(tr("A second window"), false); });
    auto *fixed = pushButton(tr("Open a fixed window"),
                             tr("Open a window that moves but neither resizes nor maximises"));
    connect(fixed, &QPushButton::clicked, this, [this] { openWindow(tr("A fixed window"), true); });

    auto *modal = pushButton(tr("Open a modal dialog"),
                             tr("Open a dialog that blocks this window until it is closed"));
    connect(modal, &QPushButton::clicked, this, [this] { openDialog(window()); });
    auto *free = pushButton(tr("Open a free dialog"),
                            tr("Open a dialog without a parent, which blocks no window"));
    connect(free, &QPushButton::clicked, this, [this] { openDialog(nullptr); });

    auto *card = new Card(tr("More windows"));
    card->setFixedWidth(kSideColumnWidth);
    for (QPushButton *button : {second, fixed, modal, free})
        card->body()->addWidget(button);
    return card;
}

QWidget *WindowPage::createThisWindowCard()
{
    m_stayOnTop = pushButton(tr("Stay on top"), tr("Keep this window above all others"));
    m_stayOnTop->setCheckable(true);
    auto *centre = pushButton(tr("Centre on the screen"),
                              tr("Move this window to the middle of the primary screen"));
    connect(centre, &QPushButton::clicked, this,
            [this] { ombrin::OmDesktop::setCentered(window()); });
    auto *front = pushButton(tr("Bring to front in 2 s"),
                             tr("Cover this window with another one and wait two seconds"));
    connect(front, &QPushButton::clicked, this, [this] {
        QTimer::singleShot(kAttentionDelayMs, this,
                           [this] { ombrin::OmDesktop::setForeground(window()); });
    });
    auto *flash =
            pushButton(tr("Flash in 2 s"), tr("Change to another window and watch the task bar"));
    connect(flash, &QPushButton::clicked, this, [this] {
        QTimer::singleShot(kAttentionDelayMs, this,
                           [this] { ombrin::OmDesktop::flashWindow(window(), true); });
    });

    m_title = new QLineEdit;
    m_title->setStatusTip(tr("The title on the frame; the one in the task bar stays"));
    connect(m_title, &QLineEdit::textEdited, this, [this](const QString &title) {
        if (auto *host = qobject_cast<OmWindow *>(window()))
            host->setWindowTitleOnly(title);
    });

    auto *card = new Card(tr("This window"));
    card->setFixedWidth(kSideColumnWidth);
    for (QPushButton *button : {m_stayOnTop, centre, front, flash})
        card->body()->addWidget(button);
    card->body()->addSpacing(4);
    card->body()->addWidget(caption(tr("Drawn title")));
    card->body()->addWidget(m_title);
    card->body()->addStretch();
    card->body()->addWidget(note(tr("Its header menu, a right click on the title, makes the "
                                    "window translucent.")));
    return card;
}

QWidget *WindowPage::createAnatomyCard()
{
    auto *card = new Card(tr("Anatomy"));
    card->body()->addStretch();
    card->body()->addWidget(createExhibit(), 0, Qt::AlignHCenter);
    card->body()->addStretch();
    card->body()->addWidget(createLegend());
    return card;
}

QWidget *WindowPage::createExhibit()
{
    constexpr int half = kBadgeDiameter / 2;
    auto *stage = new QWidget;
    stage->setFixedSize(kExhibitSize + QSize(kBadgeDiameter, kBadgeDiameter));

    auto *frame = new EmbeddedFrame<OmWindow>(stage);
    frame->setWindowTitle(tr("Conversation"));
    auto *content = new QTextEdit;
    content->setFrameShape(QFrame::NoFrame);
    content->setPlainText(tr("Ada: Shall we meet at six?\nMax: Six is fine. See you there!"));
    content->setFocusPolicy(Qt::NoFocus);
    frame->setWidget(content);
    for (const QString &title : {tr("Chat"), tr("Contacts"), tr("View")})
        frame->menuBar()->addMenu(title);
    auto *state = new QLabel(tr("Online"));
    state->setContentsMargins(4, 0, 0, 0);
    frame->statusBar()->addWidget(state);
    frame->setGeometry(QRect(QPoint(half, half), kExhibitSize));

    // Centres of the parts, from the corner of the frame.
    const QPoint parts[] = {
            {270, 15}, {kExhibitSize.width() - 92, 15},   {270, 41},
            {2, 140},  {270, kExhibitSize.height() - 15},
    };
    int number = 0;
    for (const QPoint &part : parts)
        (new Badge(++number, stage))->move(part);
    return stage;
}

QWidget *WindowPage::createLegend()
{
    const QString texts[] = {
            tr("The title: drag to move, double-click to maximise, right-click for opacity"),
            tr("Four image buttons; maximise and restore take turns"),
            tr("The menu bar, made when it is first asked for"),
            tr("The border resizes; the corners are cut by a mask"),
            tr("The status bar shows the status tips of menu entries for a second"),
    };
    auto *legend = new QWidget;
    auto *grid = new QGridLayout(legend);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const QString &text : texts) {
        grid->addWidget(new Badge(row + 1), row, 0, Qt::AlignTop);
        grid->addWidget(note(text), row, 1);
        ++row;
    }
    return legend;
}

void WindowPage::openWindow(const QString &title, bool fixed)
{
    auto *opened = new OmWindow;
    opened->setAttribute(Qt::WA_DeleteOnClose);
    opened->setWindowTitle(title);

    auto *content = new QWidget;
    content->setAutoFillBackground(true);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    column->addWidget(note(fixed ? tr("This window keeps its size: its edges do not resize it, and "
                                      "neither the maximise button nor a double click on the "
                                      "title does anything. It can still be moved.")
                                 : tr("Move this window by any spot that is not a button, resize "
                                      "it by its edges, and double-click its title.")));
    column->addStretch();
    opened->setWidget(content);

    QMenu *menu = opened->menuBar()->addMenu(tr("&Window"));
    QAction *stayOnTop = menu->addAction(tr("Stay on &top"));
    stayOnTop->setStatusTip(tr("Keep this window above all others"));
    opened->setAlwaysOnTopAction(stayOnTop);
    menu->addSeparator();
    QAction *close = menu->addAction(tr("&Close"));
    close->setStatusTip(tr("Close this window"));
    connect(close, &QAction::triggered, opened, &QWidget::close);
    opened->statusBar()->addWidget(new QLabel(fixed ? tr("Fixed") : tr("Ready")));

    opened->resize(420, 280);
    opened->setFixed(fixed);
    opened->move(window()->geometry().center() - opened->rect().center());
    opened->show();
}

void WindowPage::openDialog(QWidget *parent)
{
    auto *dialog = new OmDialog2(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(parent ? tr("A modal dialog") : tr("A free dialog"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *column = new QVBoxLayout(dialog); // stays inside the frame
    column->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    column->addWidget(note(parent ? tr("The gallery waits until this dialog is closed. A second "
                                       "window does not.")
                                  : tr("No window waits for this dialog.")));
    column->addStretch();
    column->addWidget(buttons);
    dialog->resize(360, 160);
    dialog->show();
}

void WindowPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (auto *host = qobject_cast<OmWindow *>(window()))
        m_title->setText(host->windowTitleOnly());
    if (!m_stayOnTopAction)
        followStayOnTopAction();
}

// The entry of the window's menu is the action the window knows of; the button is its remote.
void WindowPage::followStayOnTopAction()
{
    m_stayOnTopAction = window()->findChild<QAction *>(QStringLiteral("stayOnTop"));
    m_stayOnTop->setEnabled(m_stayOnTopAction);
    if (!m_stayOnTopAction)
        return;
    m_stayOnTop->setChecked(m_stayOnTopAction->isChecked());
    connect(m_stayOnTop, &QPushButton::clicked, m_stayOnTopAction, &QAction::trigger);
    connect(m_stayOnTopAction, &QAction::toggled, m_stayOnTop, &QPushButton::setChecked);
}

} // namespace

GALLERY_PAGE(WindowPage, "window", PageGroup::Windows, QT_TRANSLATE_NOOP("GalleryPage", "Window"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmWindow: a frameless window with a border, title and buttons "
                               "drawn from the skin."));

} // namespace gallery
