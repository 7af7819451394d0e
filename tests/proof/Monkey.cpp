#include "proof/Monkey.h"

#include <ombrin/OmStyle2.h>

#include <QtTest/QtTest>

#include <cstdio>

namespace ombrin::test {

namespace {

constexpr int kShares = 10000;
constexpr int kLongestStay = 60; // events that a pop-up or modal window gets before it is closed
constexpr int kEventsPerTick = 4;
constexpr int kWaitMs = 25;

// Without a display Qt has no touch screen of its own.
auto *touchScreen()
{
    static auto *const device = QTest::createTouchDevice();
    return device;
}

// Qt's docks and tool bars never free what they noted of a press when they go before its release.
void releaseWhatIsDragged()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (!qobject_cast<QDockWidget *>(widget) && !qobject_cast<QToolBar *>(widget))
            continue;
        QMouseEvent release(QEvent::MouseButtonRelease, {}, widget->mapToGlobal(QPoint()),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &release);
    }
}

} // namespace

const Monkey::Choice Monkey::kChoices[] = {
        {3000, "move", &Monkey::moveMouse},
        {800, "press", &Monkey::pressMouse},
        {800, "release", &Monkey::releaseMouse},
        {1500, "click", &Monkey::click},
        {300, "double click", &Monkey::doubleClick},
        {400, "wheel", &Monkey::turnWheel},
        {1200, "key", &Monkey::pressKey},
        {500, "text", &Monkey::typeText},
        {200, "compose", &Monkey::compose},
        {150, "touch", &Monkey::touch},
        {200, "drag", &Monkey::dragOver},
        {100, "context menu", &Monkey::openContextMenu},
        {200, "help", &Monkey::askForHelp},
        {200, "focus",
         [](Monkey &m) {
             m.anyWidget()->setFocus(m.chance(50) ? Qt::OtherFocusReason : Qt::TabFocusReason);
         }},
        {60, "resize",
         [](Monkey &m) { m.window()->resize(20 + m.number(1200), 20 + m.number(900)); }},
        {15, "window state", &Monkey::changeWindowState},
        {60, "hide or show", &Monkey::hideOrShow},
        {60, "disable or enable", &Monkey::disableOrEnable},
        {60, "activate", &Monkey::activate},
        {4, "language",
         [](Monkey &m) {
             if (!QCoreApplication::removeTranslator(&m.m_language))
                 QCoreApplication::installTranslator(&m.m_language);
         }},
        {2, "style", &Monkey::changeStyle},
        {2, "palette",
         [](Monkey &m) {
             QApplication::setPalette(
                     m.chance(50) ? m.m_palette : QPalette(QColor(0x30 + m.number(0x80), 60, 70)));
         }},
        {2, "font", &Monkey::changeFont},
        {2, "direction",
         [](Monkey &) {
             QApplication::setLayoutDirection(QApplication::isRightToLeft() ? Qt::LeftToRight
                                                                            : Qt::RightToLeft);
         }},
        {150, "scroll", &Monkey::scroll},
        {10, "photograph", [](Monkey &m) { m.anyWidget()->grab(); }},
        // Timers run out: fades, tips, countdowns.
        {23, "wait", [](Monkey &m) { m.m_pause = kWaitMs; }},
};

Monkey::Monkey(quint32 seed, const QString &folder)
    : m_random(seed)
    , m_folder(folder)
    , m_traces(qEnvironmentVariableIsSet("OMBRIN_MONKEY_TRACE"))
    , m_palette(QApplication::palette())
    , m_font(QApplication::font())
{
    QImage(24, 16, QImage::Format_RGB32).save(m_folder + "/dropped.png"_q);
}

Monkey::~Monkey()
{
    QCoreApplication::removeTranslator(&m_language);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setStyle(new OmStyle2);
    QApplication::setPalette(m_palette);
    QApplication::setFont(m_font);
    QApplication::clipboard()->clear();
}

void Monkey::play(const std::function<QWidget *()> &create, int count)
{
    m_create = create;
    m_left = count;
    tick();
    m_loop.exec();
    delete m_window;
    for (const QPointer<QWidget> &dialog : std::as_const(m_refusing))
        delete dialog;
}

int Monkey::number(int count)
{
    // Not a distribution: those differ from one standard library to the next.
    return count > 0 ? static_cast<int>(m_random() % static_cast<unsigned>(count)) : 0;
}

// Begins with the next call, since events can open windows that have loops of their own.
void Monkey::tick()
{
    if (m_left <= 0)
        return finish();
    const int pause = std::exchange(m_pause, 0);
    QTimer::singleShot(pause, this, &Monkey::tick);
    if (!m_window)
        m_window = m_create();
    for (int count = 0; count < kEventsPerTick && m_left > 0; ++count) {
        if (leaveFileDialog() || leaveWhatIsOpenForLong())
            return;
        if (!m_window)
            return;
        if (!m_window->isVisible() || m_window->isMinimized())
            m_window->showNormal();
        act();
    }
}

void Monkey::act()
{
    int left = number(kShares);
    const Choice *choice = kChoices;
    while (left >= choice->share) {
        left -= choice->share;
        ++choice;
    }
    --m_left;
    if (m_traces)
        std::fprintf(stderr, "%d %s\n", m_left, choice->name);
    choice->action(*this);
}

// A window with a loop of its own must be closed before the loop below it can end.
void Monkey::finish()
{
    const QWidget *const opened = QApplication::activePopupWidget()
                                          ? QApplication::activePopupWidget()
                                          : QApplication::activeModalWidget();
    m_buttons = Qt::NoButton;
    sendMouse(QEvent::MouseButtonRelease, Qt::LeftButton); // ends a drag
    releaseWhatIsDragged();
    if (opened) {
        QTimer::singleShot(0, this, &Monkey::tick);
        closeOpened();
        return;
    }
    QApplication::closeAllWindows();
    m_loop.quit();
}

// Never to be played with: it shows the files of this machine.
bool Monkey::leaveFileDialog()
{
    QFileDialog *dialog = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        if (widget->isVisible() && !dialog)
            dialog = qobject_cast<QFileDialog *>(widget);
    }
    if (!dialog)
        return false;
    auto *const name = dialog->findChild<QLineEdit *>("fileNameEdit"_q);
    if (name && chance(50)) {
        name->setText(m_folder + "/saved%1.jpg"_q.arg(m_left));
        QMetaObject::invokeMethod(dialog, "accept");
    } else {
        dialog->reject();
    }
    return true;
}

bool Monkey::leaveWhatIsOpenForLong()
{
    QWidget *opened = QApplication::activePopupWidget();
    if (!opened)
        opened = QApplication::activeModalWidget();
    if (!opened || opened != m_opened) {
        m_opened = opened;
        m_openedFor = 0;
        return false;
    }
    if (++m_openedFor < kLongestStay)
        return false;
    m_openedFor = 0;
    closeOpened();
    return true;
}

void Monkey::closeOpened()
{
    if (QWidget *const popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    QWidget *const modal = QApplication::activeModalWidget();
    if (auto *const dialog = qobject_cast<QDialog *>(modal); dialog && chance(50))
        dialog->reject();
    else if (modal)
        modal->close();
    // Who asks whether it may be closed has opened another window by now, or else must go.
    if (modal && modal == QApplication::activeModalWidget()) {
        modal->hide();
        m_refusing.append(modal);
    }
}

QWidget *Monkey::window() const
{
    if (QWidget *const popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *const modal = QApplication::activeModalWidget())
        return modal;
    return m_window;
}

// A visible widget of the window that takes the events, or now and then of any other window.
QWidget *Monkey::anyWidget()
{
    QWidget *from = window();
    if (chance(10)) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        QWidget *const other = windows.value(number(static_cast<int>(windows.size())));
        if (other && other->isVisible() && !other->inherits("QDesktopWidget"))
            from = other;
    }
    const QList<QWidget *> widgets = from->findChildren<QWidget *>();
    for (int attempt = 0; attempt < 8 && !widgets.isEmpty(); ++attempt) {
        QWidget *const widget = widgets.at(number(static_cast<int>(widgets.size())));
        if (widget->isVisible() && !widget->visibleRegion().isEmpty())
            return widget;
    }
    return from;
}

QPoint Monkey::anyPlace(const QWidget *widget)
{
    // Now and then just beside it.
    const int margin = chance(5) ? 40 : 0;
    return {number(widget->width() + 2 * margin) - margin,
            number(widget->height() + 2 * margin) - margin};
}

Qt::KeyboardModifiers Monkey::anyModifiers()
{
    static constexpr Qt::KeyboardModifier kModifiers[] = {Qt::ShiftModifier, Qt::ControlModifier,
                                                          Qt::AltModifier};
    return chance(80) ? Qt::NoModifier : kModifiers[number(3)];
}

void Monkey::sendMouse(QEvent::Type type, Qt::MouseButton button)
{
    if (!m_mouseWindow || !m_mouseWindow->isVisible())
        return;
    m_time += static_cast<ulong>(1 + number(300));
    qt_handleMouseEvent(m_mouseWindow, m_place, m_mouseWindow->mapToGlobal(m_place), m_buttons,
                        button, type, anyModifiers(), static_cast<int>(m_time));
}

void Monkey::moveMouse()
{
    const QWidget *const widget = anyWidget();
    QWindow *const native = widget->window()->windowHandle();
    if (!native)
        return;
    m_mouseWindow = native;
    m_place = widget->mapTo(widget->window(), anyPlace(widget));
    sendMouse(QEvent::MouseMove, Qt::NoButton);
}

void Monkey::pressMouse()
{
    static constexpr Qt::MouseButton kButtons[] = {Qt::RightButton, Qt::MiddleButton,
                                                   Qt::BackButton};
    const Qt::MouseButton button = chance(85) ? Qt::LeftButton : kButtons[number(3)];
    m_buttons |= button;
    sendMouse(QEvent::MouseButtonPress, button);
}

void Monkey::releaseMouse()
{
    for (const Qt::MouseButton button :
         {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        if (!m_buttons.testFlag(button))
            continue;
        m_buttons &= ~Qt::MouseButtons(button);
        return sendMouse(QEvent::MouseButtonRelease, button);
    }
}

void Monkey::click()
{
    moveMouse();
    pressMouse();
    releaseMouse();
}

void Monkey::doubleClick()
{
    click();
    m_time -= 300; // soon enough to be one
    pressMouse();
    releaseMouse();
}

void Monkey::turnWheel()
{
    QWidget *const widget = anyWidget();
    const QPoint place = anyPlace(widget);
    const QPoint angle(chance(20) ? number(481) - 240 : 0, number(481) - 240);
    QWheelEvent event(place, widget->mapToGlobal(place), QPoint(), angle, m_buttons, anyModifiers(),
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    const QPointer<QWindow> native = window()->windowHandle();
    if (!native)
        return;
    qt_handleKeyEvent(native, QEvent::KeyPress, key, modifiers, text, false, 1);
    if (native)
        qt_handleKeyEvent(native, QEvent::KeyRelease, key, modifiers, text, false, 1);
}

void Monkey::pressKey()
{
    static constexpr int kKeys[] = {
            Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Return,   Qt::Key_Enter,
            Qt::Key_Space,     Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Up,       Qt::Key_Down,
            Qt::Key_Home,      Qt::Key_End,     Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete,
            Qt::Key_Backspace, Qt::Key_Insert,  Qt::Key_F1,     Qt::Key_F2,       Qt::Key_F4,
            Qt::Key_F10,       Qt::Key_Menu,    Qt::Key_A,      Qt::Key_C,        Qt::Key_V,
            Qt::Key_X,         Qt::Key_Y,       Qt::Key_Z,      Qt::Key_1,        Qt::Key_Plus,
            Qt::Key_Minus,     Qt::Key_Alt,     Qt::Key_Tab,    Qt::Key_Tab};
    sendKey(kKeys[number(static_cast<int>(std::size(kKeys)))], anyModifiers(), QString());
}

void Monkey::typeText()
{
    static const QString kLetters = "abz HELO.,!?<>&@0123\u00e4\u00df\u05d0\u4e2d"_q;
    // Who types a date over one of Qt's calendars has a little window open for a moment, and Qt
    // leaks when the calendar goes before.
    for (const QWidget *focus : {QApplication::focusWidget(), window()->focusWidget()}) {
        if (focus && focus->inherits("QCalendarView"))
            return;
    }
    const QChar letter = kLetters.at(number(static_cast<int>(kLetters.size())));
    sendKey(letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
}

void Monkey::compose()
{
    QWidget *const widget = QApplication::focusWidget();
    if (!widget)
        return;
    const QString text = "\u306b\u307b\u3093"_q.left(number(4));
    QInputMethodEvent composing(text, {});
    const QPointer<QWidget> guard = widget;
    QCoreApplication::sendEvent(widget, &composing);
    if (!guard)
        return;
    // An input method ends what it has begun before anything else is typed.
    QInputMethodEvent done;
    if (chance(70))
        done.setCommitString(text);
    QCoreApplication::sendEvent(widget, &done);
}

void Monkey::touch()
{
    QWidget *const widget = anyWidget();
    QWindow *const native = widget->window()->windowHandle();
    if (!native)
        return;
    const QPoint place = widget->mapTo(widget->window(), anyPlace(widget));
    const QPointer<QWindow> guard = native;
    QTest::touchEvent(native, touchScreen(), false).press(0, place, native).commit(false);
    if (guard)
        QTest::touchEvent(native, touchScreen(), false).release(0, place, native).commit(false);
}

void Monkey::dragOver()
{
    QWidget *widget = anyWidget();
    while (!widget->acceptDrops() && !widget->isWindow())
        widget = widget->parentWidget();
    if (!widget->acceptDrops())
        return;
    QMimeData data;
    if (chance(40))
        data.setText("dropped text"_q);
    if (chance(30))
        data.setHtml("<b>dropped</b><img src=\"x\">"_q);
    if (chance(30))
        data.setUrls({QUrl::fromLocalFile(m_folder + "/dropped.png"_q)});
    if (chance(20))
        data.setImageData(QImage(8, 8, QImage::Format_RGB32));
    if (chance(30))
        data.setData("binary/ombrin-tab"_q, QByteArrayLiteral("1"));

    const QPointer<QWidget> target = widget;
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(anyPlace(widget), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    if (!target || !enter.isAccepted())
        return;
    QDragMoveEvent move(anyPlace(widget), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
    if (!target)
        return;
    if (chance(50)) {
        QDropEvent drop(anyPlace(widget), actions, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &drop);
    } else {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(widget, &leave);
    }
}

void Monkey::openContextMenu()
{
    QWidget *const widget = anyWidget();
    const QPoint place = anyPlace(widget);
    const auto reason = chance(70) ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard;
    QContextMenuEvent event(reason, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::askForHelp()
{
    static constexpr QEvent::Type kKinds[] = {QEvent::ToolTip, QEvent::QueryWhatsThis,
                                              QEvent::WhatsThis};
    QWidget *const widget = anyWidget();
    const QPoint place = anyPlace(widget);
    QHelpEvent event(kKinds[number(2)], place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::changeWindowState()
{
    static constexpr void (QWidget::*kStates[])() = {&QWidget::showNormal, &QWidget::showMaximized,
                                                     &QWidget::showMinimized,
                                                     &QWidget::showFullScreen, &QWidget::hide};
    (m_window->*kStates[number(static_cast<int>(std::size(kStates)))])();
}

void Monkey::hideOrShow()
{
    if (m_hidden)
        m_hidden->show();
    QWidget *const widget = anyWidget();
    m_hidden = widget->isWindow() ? nullptr : widget;
    if (m_hidden)
        widget->hide();
}

void Monkey::disableOrEnable()
{
    if (m_disabled)
        m_disabled->setEnabled(true);
    QWidget *const widget = anyWidget();
    m_disabled = widget->isEnabled() && !widget->isWindow() ? widget : nullptr;
    if (m_disabled)
        widget->setEnabled(false);
}

void Monkey::activate()
{
    if (chance(30)) {
        QEvent event(chance(50) ? QEvent::WindowDeactivate : QEvent::WindowActivate);
        QCoreApplication::sendEvent(window(), &event);
    } else {
        anyWidget()->window()->activateWindow();
    }
}

void Monkey::changeStyle()
{
    if (chance(60))
        QApplication::setStyle(new OmStyle2);
    else
        QApplication::setStyle(QStyleFactory::create("fusion"_q));
}

void Monkey::changeFont()
{
    QFont font = m_font;
    font.setPixelSize(chance(50) ? m_font.pixelSize() : 8 + number(24));
    QApplication::setFont(font);
}

void Monkey::scroll()
{
    const auto bars = window()->findChildren<QScrollBar *>();
    if (QScrollBar *const bar = bars.value(number(static_cast<int>(bars.size()))))
        bar->setValue(bar->minimum() + number(bar->maximum() - bar->minimum() + 1));
}

} // namespace ombrin::test
