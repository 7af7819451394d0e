#include "GalleryWindow.h"

#include "AboutDialog.h"
#include "CommandLine.h"
#include "GalleryPage.h"
#include "NavigationList.h"
#include "PageKit.h"

#include "common/ScreenshotJob.h"

#include <ombrin/OmStatusBar.h>

#include <QAction>
#include <QActionGroup>
#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStackedWidget>

namespace gallery {

namespace {

constexpr QSize kInitialSize(1000, 700);
constexpr int kNavigationWidth = 180;
constexpr int kMessageMs = 8000;

QAction *addEntry(QMenu *menu, const QString &icon, const QString &text, const QString &statusTip)
{
    QAction *action = menu->addAction(text);
    if (!icon.isEmpty())
        action->setIcon(skinIcon(icon));
    action->setStatusTip(statusTip);
    return action;
}

QFrame *separator(QFrame::Shape shape)
{
    auto *line = new QFrame;
    line->setFrameShape(shape);
    line->setFrameShadow(QFrame::Plain);
    QPalette palette = line->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Mid));
    line->setPalette(palette);
    line->setLineWidth(1);
    return line;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : OmWindow(parent)
{
    setWindowTitle(tr("Ombrin Gallery"));
    setWindowTitleOnly(tr("Gallery")); // the frame bears the name already
    setWindowIcon(skinIcon(QStringLiteral("chat-32")));
    setWidget(createContents());
    createMenus();
    createStatusBar();
    resize(kInitialSize);
    showPage(allPages().front()->nameText());
}

GalleryWindow::~GalleryWindow() = default;

void GalleryWindow::showPage(const QString &name)
{
    m_navigation->choose(name);
}

QWidget *GalleryWindow::createContents()
{
    m_navigation = new NavigationList;
    m_navigation->setFixedWidth(kNavigationWidth);
    connect(m_navigation, &NavigationList::pageChosen, this, &GalleryWindow::onPageChosen);
    m_pages = new QStackedWidget;

    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(createPageHeader());
    right->addWidget(m_pages, 1);

    auto *contents = new QWidget;
    contents->setAutoFillBackground(true);
    auto *row = new QHBoxLayout(contents);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_navigation);
    row->addWidget(separator(QFrame::VLine));
    row->addLayout(right, 1);
    return contents;
}

QWidget *GalleryWindow::createPageHeader()
{
    m_title = new QLabel;
    QFont font = m_title->font();
    if (font.pixelSize() > 0)
        font.setPixelSize(font.pixelSize() * 3 / 2);
    else
        font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    m_title->setFont(font);
    m_summary = note(QString());

    auto *header = new QWidget;
    auto *column = new QVBoxLayout(header);
    column->setContentsMargins(kPageMargin, kPageMargin - 2, kPageMargin, 0);
    column->setSpacing(3);
    column->addWidget(m_title);
    column->addWidget(m_summary);
    return header;
}

void GalleryWindow::createMenus()
{
    createFileMenu();
    createViewMenu();
    createWindowMenu();
    createHelpMenu();
}

void GalleryWindow::createFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    m_screenshots = addEntry(menu, QStringLiteral("save-16"), tr("Take &screenshots..."),
                             tr("Save a picture of every page in a folder"));
    connect(m_screenshots, &QAction::triggered, this, &GalleryWindow::takeScreenshots);
    menu->addSeparator();
    QAction *quit =
            addEntry(menu, QStringLiteral("exit-16"), tr("&Quit"), tr("Close every window"));
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    connect(quit, &QAction::triggered, qApp, &QApplication::closeAllWindows);
}

void GalleryWindow::createViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    m_pageActions = new QActionGroup(this);
    const GalleryPage *previous = nullptr;
    for (const GalleryPage *page : allPages()) {
        if (previous && previous->group != page->group)
            menu->addSeparator();
        QAction *action = addEntry(menu, QString(), page->titleText(), page->summaryText());
        action->setCheckable(true);
        action->setData(page->nameText());
        m_pageActions->addAction(action);
        previous = page;
    }
    connect(m_pageActions, &QActionGroup::triggered, this,
            [this](const QAction *action) { showPage(action->data().toString()); });
}

void GalleryWindow::createWindowMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Window"));
    QAction *stayOnTop = addEntry(menu, QString(), tr("Stay on &top"),
                                  tr("Keep this window above the windows of all programs"));
    stayOnTop->setObjectName(QStringLiteral("stayOnTop"));
    setAlwaysOnTopAction(stayOnTop);
}

void GalleryWindow::createHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    QAction *about = addEntry(menu, QStringLiteral("chat-16"), tr("&About the gallery..."),
                              tr("Show the versions of the library and of Qt"));
    connect(about, &QAction::triggered, this, &GalleryWindow::showAbout);
}

void GalleryWindow::createStatusBar()
{
    m_position = new QLabel;
    m_position->setContentsMargins(4, 0, 0, 0);
    statusBar()->addWidget(m_position);
    auto *versions = new QLabel(tr("Qt %1").arg(QString::fromLatin1(qVersion())));
    versions->setContentsMargins(0, 0, 4, 0);
    statusBar()->addPermanentWidget(versions);
}

QWidget *GalleryWindow::builtPage(const GalleryPage &page)
{
    QWidget *&built = m_built[&page];
    if (!built) {
        auto *scroller = new QScrollArea;
        scroller->setFrameShape(QFrame::NoFrame);
        scroller->setWidgetResizable(true);
        scroller->setWidget(page.create());
        m_pages->addWidget(scroller);
        built = scroller;
    }
    return built;
}

void GalleryWindow::onPageChosen(const QString &name)
{
    const GalleryPage *page = findPage(name);
    if (!page)
        return;
    m_pages->setCurrentWidget(builtPage(*page));
    m_title->setText(page->titleText());
    m_summary->setText(page->summaryText());
    m_position->setText(tr("%1 \u203a %2").arg(groupTitle(page->group), page->titleText()));
    const QList<QAction *> actions = m_pageActions->actions();
    for (QAction *action : actions)
        action->setChecked(action->data().toString() == name);
}

void GalleryWindow::takeScreenshots()
{
    const QPointer<GalleryWindow> guard(this);
    const QString directory =
            QFileDialog::getExistingDirectory(this, tr("Where to save the pictures"));
    if (!guard || directory.isEmpty())
        return;

    m_screenshots->setEnabled(false);
    statusBar()->showMessage(tr("Taking pictures..."));
    auto *job = new example::ScreenshotJob(
            directory, CommandLine::oneDensityArguments(directory, QString()), this);
    connect(job, &example::ScreenshotJob::finished, this,
            [this, job](bool, const QString &message) {
                statusBar()->showMessage(message, kMessageMs);
                m_screenshots->setEnabled(true);
                job->deleteLater();
            });
    job->start();
}

void GalleryWindow::showAbout()
{
    auto *about = new AboutDialog(this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

} // namespace gallery
