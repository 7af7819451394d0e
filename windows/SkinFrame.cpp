#include "windows/SkinFrame.h"

#include "platform/NativeHandle.h"
#include "skin/SkinPixmap.h"
#include "windows/MoveResizeHandler.h"

#include <ombrin/OmImageButton.h>
#include <ombrin/OmQtCompat.h>
#include <ombrin/OmStatusBar.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QBitmap>
#include <QtGui/QGuiApplication>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QStatusTipEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

namespace ombrin {

using namespace frame_metrics;

namespace {

constexpr int kLastTitleBandRow = kTitleHeight;
constexpr int kStatusTipDuration = 1000; // milliseconds
constexpr int kButtonTop = 5;

struct ButtonSpec
{
    const char *name; // of its pictures
    const char *toolTip;
    int rightDistance; // from the window's right edge to the button's left one
};

// In the order minimise, maximise, restore, close.
constexpr ButtonSpec kButtons[] = {
        {"minimize", QT_TRANSLATE_NOOP("ombrin::OmWindow", "Minimize"), 79},
        {"maximize", QT_TRANSLATE_NOOP("ombrin::OmWindow", "Maximize"), 54},
        {"restore", QT_TRANSLATE_NOOP("ombrin::OmWindow", "Restore"), 54},
        {"close", QT_TRANSLATE_NOOP("ombrin::OmWindow", "Close"), 29},
};

constexpr const char *kOpacityTitle = QT_TRANSLATE_NOOP("ombrin::OmWindow", "Opacity");

constexpr const char *kOpacityTexts[] = {
        QT_TRANSLATE_NOOP("ombrin::OmWindow", "100%"), QT_TRANSLATE_NOOP("ombrin::OmWindow", "80%"),
        QT_TRANSLATE_NOOP("ombrin::OmWindow", "60%"),  QT_TRANSLATE_NOOP("ombrin::OmWindow", "50%"),
        QT_TRANSLATE_NOOP("ombrin::OmWindow", "40%"),  QT_TRANSLATE_NOOP("ombrin::OmWindow", "20%"),
};
static_assert(std::size(kOpacityTexts) == std::tuple_size_v<SkinFrame::OpacitySlots>);

// The same texts in the dialog's context, for translators.
[[maybe_unused]] constexpr const char *kDialogTexts[] = {
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Minimize"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Maximize"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Restore"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Close"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Opacity"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "100%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "80%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "60%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "50%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "40%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "20%"),
};

QString buttonPicture(const char *name, const char *state, bool active)
{
    return QStringLiteral(":/%1_%2_%3")
            .arg(QLatin1String(name), QLatin1String(state),
                 active ? QLatin1String("active") : QLatin1String("inactive"));
}

} // namespace

SkinFrame::SkinFrame(QWidget *window, const char *translationContext)
    : m_window(window)
    , m_translationContext(translationContext)
{}

SkinFrame::~SkinFrame() = default;

QString SkinFrame::translated(const char *text) const
{
    return QCoreApplication::translate(m_translationContext, text);
}

// Building

void SkinFrame::extendNativeStyle()
{
    // A frame inside another widget has no native window, and needs none.
    if (!m_window->isWindow())
        return;
#ifdef Q_OS_WIN
    m_window->winId();
#endif
    // Elsewhere the native window is made when the window is shown, and gets its style then. One
    // that is made before it has its place loses it under an X11 window manager: Qt would take it
    // for being at (0, 0), and menus would open there.
    restoreNativeStyle();
}

void SkinFrame::build()
{
    for (int index = 0; index < ButtonCount; ++index)
        createButton(static_cast<ButtonIndex>(index));
    m_buttons[Restore]->close();
    setButtonTexts();

    m_handler = new MoveResizeHandler(m_window);
    m_window->setContentsMargins(kBorder, kTitleHeight, kBorder, kBorder);
    m_window->setMinimumHeight(kMinimumHeight);
    m_window->setMinimumWidth(kMinimumWidth);
    m_window->setContextMenuPolicy(Qt::CustomContextMenu);
}

void SkinFrame::createButton(ButtonIndex index)
{
    const QPixmap picture = skinPixmap(buttonPicture(kButtons[index].name, "up", true), 1);
    auto *button = new OmImageButton(m_window);
    button->setFixedSize(picture.size());
    button->setMask(picture.mask());
    m_buttons[index] = button;

    switch (index) {
    case Minimize:
        connect(button, &OmImageButton::clicked, m_window, &QWidget::showMinimized);
        break;
    case Maximize:
        connect(button, &OmImageButton::clicked, m_window, &QWidget::showMaximized);
        break;
    case Restore:
        connect(button, &OmImageButton::clicked, m_window, &QWidget::showNormal);
        break;
    case Close:
        connect(button, &OmImageButton::clicked, m_window, &QWidget::close);
        break;
    case ButtonCount:
        break;
    }
}

void SkinFrame::setButtonTexts()
{
    for (int index = 0; index < ButtonCount; ++index) {
        if (!m_buttons[index])
            continue;
        const QString text = translated(kButtons[index].toolTip);
        m_buttons[index]->setToolTip(text);
        m_buttons[index]->setAccessibleName(text);
    }
}

// Native window

void SkinFrame::restoreNativeStyle()
{
    const NativeWindow::Handle handle = NativeWindow::handleOf(m_window);
    if (handle == 0 || !m_window->isWindow())
        return;
    NativeWindow::addSystemBoxes(handle);
    if (m_fixed)
        NativeWindow::setMaximizeBox(handle, false);
    if (m_alwaysOnTop)
        NativeWindow::setStayOnTop(handle, true);
    followScreen();
}

void SkinFrame::followScreen()
{
    disconnect(m_screenChange);
    if (QWindow *native = m_window->windowHandle()) {
        m_screenChange = connect(native, &QWindow::screenChanged, this, [this] {
            if (m_hasButtonPictures)
                setButtons();
            m_window->update();
        });
    }
}

void SkinFrame::handleNativeEvent(const QByteArray &eventType, void *message) const
{
    if (eventType != "windows_generic_MSG")
        return;
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QSizeF workArea =
                QSizeF(screen->availableGeometry().size()) * screen->devicePixelRatio();
        NativeWindow::answerMaximumSize(message, qRound(workArea.width()),
                                        qRound(workArea.height()));
    }
}

void SkinFrame::toggleAlwaysOnTop()
{
    m_alwaysOnTop = !m_alwaysOnTop;
    NativeWindow::setStayOnTop(NativeWindow::handleOf(m_window), m_alwaysOnTop);
}

void SkinFrame::setFixed(bool fixed)
{
    if (fixed == m_fixed)
        return;
    m_fixed = fixed;
    NativeWindow::setMaximizeBox(NativeWindow::handleOf(m_window), !fixed);
    if (m_handler)
        m_handler->setActive(MoveResizeHandler::Action::Resize, !fixed);
    for (const ButtonIndex index : {Maximize, Restore}) {
        if (m_buttons[index])
            m_buttons[index]->setEnabled(!fixed);
    }
}

// Content

void SkinFrame::setWidget(QWidget *widget)
{
    if (!widget)
        return;
    widget->setParent(m_window);
    m_content = widget;
    if (!m_useLayout) {
        placeContent();
        return;
    }
    if (QLayout *layout = m_window->layout()) {
        layout->addWidget(widget);
        return;
    }
    auto *layout = new QVBoxLayout(m_window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(widget, 0, Qt::Alignment());
    if (m_menuBar)
        insertMenuBar();
    if (m_statusBar)
        layout->addWidget(m_statusBar);
}

QMenuBar *SkinFrame::menuBar()
{
    if (!m_useLayout)
        return nullptr;
    if (!m_menuBar) {
        m_menuBar = new QMenuBar(m_window);
        if (m_window->layout())
            insertMenuBar();
    }
    return m_menuBar;
}

void SkinFrame::insertMenuBar()
{
    QLayout *layout = m_window->layout();
    if (auto *box = qobject_cast<QBoxLayout *>(layout)) {
        // The one kind of layout that can put it first and keep the stretches of what it holds.
        box->insertWidget(0, m_menuBar);
        return;
    }
    QList<QLayoutItem *> items;
    while (QLayoutItem *item = layout->takeAt(0))
        items.append(item);
    layout->addWidget(m_menuBar);
    for (QLayoutItem *item : std::as_const(items))
        layout->addItem(item);
}

OmStatusBar *SkinFrame::statusBar()
{
    if (!m_useLayout)
        return nullptr;
    if (!m_statusBar) {
        m_statusBar = new OmStatusBar(m_window);
        if (QLayout *layout = m_window->layout())
            layout->addWidget(m_statusBar);
    }
    return m_statusBar;
}

void SkinFrame::placeContent()
{
    if (!m_useLayout && m_content)
        m_content->setGeometry(m_window->contentsRect());
}

// Events

void SkinFrame::handleEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ActivationChange:
        m_active = m_window->isActiveWindow();
        setButtons();
        m_window->update();
        break;
    case QEvent::StatusTip:
        if (m_statusBar)
            m_statusBar->showMessage(static_cast<QStatusTipEvent *>(event)->tip(),
                                     kStatusTipDuration);
        break;
    case QEvent::WinIdChange:
    case QEvent::ParentChange:
    case QEvent::Show:
        // A native window made anew, or put under another parent, has lost what we gave it.
        restoreNativeStyle();
        break;
    case QEvent::WindowStateChange:
        // The window system may tell of the state after the resize, or maximise without one.
        QTimer::singleShot(kDeferral, this, &SkinFrame::checkState);
        break;
    case QEvent::LanguageChange:
        setButtonTexts();
        break;
    default:
        break;
    }
}

void SkinFrame::handleDoubleClick(const QMouseEvent *event)
{
    const QPoint position = mousePosition(event);
    if (event->button() != Qt::LeftButton || !m_window->rect().contains(position)
        || position.y() > kLastTitleBandRow || m_fixed)
        return;
    if (m_window->isMaximized())
        m_window->showNormal();
    else
        m_window->showMaximized();
}

void SkinFrame::paint(QPaintEvent *event)
{
    QPainter painter(m_window);
    painter.setClipping(true);
    FramePainter::paintBorder(&painter, m_window->size(), m_active, event->region());
    if (!m_title.isEmpty())
        m_painter.paintTitle(&painter, m_window->size(), m_active, m_title, titleFont());
}

QFont SkinFrame::titleFont() const
{
    QFont font = m_window->font();
    font.setWeight(QFont::Bold);
    if (font.pixelSize() > 0)
        font.setPixelSize(font.pixelSize() + 2);
    else
        font.setPointSizeF(font.pointSizeF() + 1);
    return font;
}

void SkinFrame::setTitle(const QString &title)
{
    m_title = title;
    m_window->update();
}

void SkinFrame::computeAndSetMask()
{
    m_window->setMask(frameShape(m_window->size()));
}

// Title bar

void SkinFrame::placeButtons()
{
    for (int index = 0; index < ButtonCount; ++index) {
        if (m_buttons[index])
            m_buttons[index]->move(m_window->width() - kButtons[index].rightDistance, kButtonTop);
    }
}

void SkinFrame::setButtons()
{
    m_hasButtonPictures = true;
    const qreal density = m_window->devicePixelRatioF();
    for (int index = 0; index < ButtonCount; ++index) {
        OmImageButton *button = m_buttons[index];
        if (!button)
            continue;
        const char *name = kButtons[index].name;
        button->setPixmapUp(skinPixmap(buttonPicture(name, "up", m_active), density));
        button->setPixmapDown(skinPixmap(buttonPicture(name, "down", m_active), density));
        button->setPixmapHovered(skinPixmap(buttonPicture(name, "hover", m_active), density));
        button->setPixmapDisabled(skinPixmap(buttonPicture(name, "disabled", m_active), density));
    }
}

void SkinFrame::checkState()
{
    const bool maximized = m_window->windowState().testFlag(Qt::WindowMaximized);
    if (m_buttons[Maximize])
        m_buttons[Maximize]->setVisible(!maximized);
    if (m_buttons[Restore])
        m_buttons[Restore]->setVisible(maximized);
}

void SkinFrame::popupHeaderMenu(const QPoint &position, const OpacitySlots &opacitySlots)
{
    if (position.y() > kLastTitleBandRow)
        return;
    auto *menu = new QMenu(m_window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QMenu *opacities = menu->addMenu(translated(kOpacityTitle));
    for (std::size_t index = 0; index < opacitySlots.size(); ++index) {
        const QAction *action = opacities->addAction(translated(kOpacityTexts[index]));
        connect(action, &QAction::triggered, m_window, opacitySlots[index]);
    }
    menu->popup(QCursor::pos());
}

} // namespace ombrin
