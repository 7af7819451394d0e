#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include "skin/SkinPixmap.h"
#include "windows/FramePainter.h"

#include <ombrin/OmDialog2.h>
#include <ombrin/OmImageButton.h>
#include <ombrin/OmStatusBar.h>
#include <ombrin/OmWindow.h>

#include <QAction>
#include <QtCore/QMetaMethod>
#include <QtCore/QTranslator>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QPainter>
#include <QtGui/QStatusTipEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QVBoxLayout>

using ombrin::OmDialog2;
using ombrin::OmImageButton;
using ombrin::OmStatusBar;
using ombrin::OmWindow;

namespace {

enum Button { Minimize, Maximize, Restore, Close };

OmImageButton *titleButton(const QWidget &window, Button which)
{
    return window.findChildren<OmImageButton *>(QString(), Qt::FindDirectChildrenOnly).value(which);
}

template <typename Window>
void show(Window &window, const QSize &size = QSize(400, 300))
{
    window.resize(size);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

// Longer than the deferral of actions and of the button swap.
void settle()
{
    QTest::qWait(80);
}

// With the left button.
void dragInside(QWidget &window, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, window.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&window, &move);
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, to);
}

QMenu *openMenu(QWidget &window, int y)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(150, y),
                            window.mapToGlobal(QPoint(150, y)));
    QApplication::sendEvent(&window, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QStringList layoutNames(const QWidget &window)
{
    QStringList names;
    for (int index = 0; index < window.layout()->count(); ++index) {
        const QWidget *widget = window.layout()->itemAt(index)->widget();
        names.append(QLatin1String(widget->metaObject()->className()));
    }
    return names;
}

class GermanTexts : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('/') + QLatin1String(text);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

// What both kinds of window do is checked for both: each row runs a check for one of them.
#define FOR_BOTH_WINDOWS(name)                                                                     \
    void name##_data()                                                                             \
    {                                                                                              \
        QTest::addColumn<bool>("dialog");                                                          \
        QTest::newRow("window") << false;                                                          \
        QTest::newRow("dialog") << true;                                                           \
    }                                                                                              \
    void name()                                                                                    \
    {                                                                                              \
        QFETCH(bool, dialog);                                                                      \
        dialog ? name##Of<OmDialog2>() : name##Of<OmWindow>();                                     \
    }

class tst_OmWindow : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(flat_skin::registerSkin()); }

    void slotsAreThereForHostsThatKnowTheirNames();
    void stayingOnTopIsMirroredByTheHostsAction();
    void dialogBlocksItsParentOnly();
    void escapeAndCloseButtonRejectADialog();
    void titleThroughAWidgetPointerIsQts();
    void windowInsideAnotherWidgetIsJustAChild();
    void hostMayDeleteTheWindowFromItsCloseButton();

    FOR_BOTH_WINDOWS(newWindowIsFramelessAndReady)
    FOR_BOTH_WINDOWS(framePiecesAreThoseOfTheScreenAndTheActivation)
    FOR_BOTH_WINDOWS(buttonsFollowWidthAndActivation)
    FOR_BOTH_WINDOWS(cornersAreClipped)
    FOR_BOTH_WINDOWS(contentMenuBarAndStatusBarFindTheirPlaces)
    FOR_BOTH_WINDOWS(withoutLayoutContentFillsTheFrame)
    FOR_BOTH_WINDOWS(deletedPartsAreForgotten)
    FOR_BOTH_WINDOWS(titlesAreSetTogetherOrApart)
    FOR_BOTH_WINDOWS(doubleClickOnTheTitleMaximisesAndRestores)
    FOR_BOTH_WINDOWS(fixedWindowNeitherResizesNorMaximises)
    FOR_BOTH_WINDOWS(titleButtonsDoWhatTheySay)
    FOR_BOTH_WINDOWS(headerMenuSetsTheOpacityAfterItHasClosed)
    FOR_BOTH_WINDOWS(statusTipsShowForASecondWhereThereIsAStatusBar)
    FOR_BOTH_WINDOWS(draggingMovesAndResizes)
    FOR_BOTH_WINDOWS(newNativeWindowKeepsEverything)
    FOR_BOTH_WINDOWS(languageChangeReachesButtonsAndMenu)

private:
    template <typename Window>
    void newWindowIsFramelessAndReadyOf();
    template <typename Window>
    void framePiecesAreThoseOfTheScreenAndTheActivationOf();
    template <typename Window>
    void buttonsFollowWidthAndActivationOf();
    template <typename Window>
    void cornersAreClippedOf();
    template <typename Window>
    void contentMenuBarAndStatusBarFindTheirPlacesOf();
    template <typename Window>
    void withoutLayoutContentFillsTheFrameOf();
    template <typename Window>
    void deletedPartsAreForgottenOf();
    template <typename Window>
    void titlesAreSetTogetherOrApartOf();
    template <typename Window>
    void doubleClickOnTheTitleMaximisesAndRestoresOf();
    template <typename Window>
    void fixedWindowNeitherResizesNorMaximisesOf();
    template <typename Window>
    void titleButtonsDoWhatTheySayOf();
    template <typename Window>
    void headerMenuSetsTheOpacityAfterItHasClosedOf();
    template <typename Window>
    void statusTipsShowForASecondWhereThereIsAStatusBarOf();
    template <typename Window>
    void draggingMovesAndResizesOf();
    template <typename Window>
    void newNativeWindowKeepsEverythingOf();
    template <typename Window>
    void languageChangeReachesButtonsAndMenuOf();
};

template <typename Window>
void tst_OmWindow::newWindowIsFramelessAndReadyOf()
{
    Window window;
    QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(window.isWindow());
    QCOMPARE(window.contentsMargins(), QMargins(5, 30, 5, 5));
    QCOMPARE(window.minimumSize(), QSize(174, 35));
    QVERIFY(window.useLayout());
    QVERIFY(!window.fixed());
    QVERIFY(!window.widget());
    QVERIFY(!window.layout());
    QVERIFY(titleButton(window, Restore)->isHidden());
    QVERIFY(!titleButton(window, Maximize)->isHidden());
    QVERIFY(titleButton(window, Close)->pixmapUp().isNull()); // until the first activation
    QCOMPARE(titleButton(window, Close)->toolTip(), QStringLiteral("Close"));
    QCOMPARE(titleButton(window, Close)->size(), QSize(24, 20));
    window.setWidget(nullptr);
    QVERIFY(!window.layout());
}

template <typename Window>
void tst_OmWindow::framePiecesAreThoseOfTheScreenAndTheActivationOf()
{
    Window window;
    show(window);
    const auto expectFrame = [&window](bool active) {
        const QImage grabbed = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(grabbed.devicePixelRatio(), window.devicePixelRatioF());
        const auto colorAt = [&grabbed](int x, int y) {
            const qreal density = grabbed.devicePixelRatio();
            return grabbed.pixelColor(int(x * density + density / 2),
                                      int(y * density + density / 2));
        };
        QCOMPARE(colorAt(10, 10), flat_skin::piece("top_left", active));
        QCOMPARE(colorAt(150, 10), flat_skin::piece("top_center", active));
        QCOMPARE(colorAt(398, 2), flat_skin::piece("top_right", active));
        QCOMPARE(colorAt(2, 100), flat_skin::piece("left", active));
        QCOMPARE(colorAt(397, 100), flat_skin::piece("right", active));
        QCOMPARE(colorAt(100, 297), flat_skin::piece("bottom_center", active));
        QCOMPARE(colorAt(380, 15), flat_skin::button("close", "up", active));
        // Inside nothing is drawn.
        QCOMPARE(colorAt(200, 150), window.palette().color(QPalette::Window));
    };
    expectFrame(true);

    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    expectFrame(false);
}

template <typename Window>
void tst_OmWindow::buttonsFollowWidthAndActivationOf()
{
    Window window;
    show(window);
    for (const int width : {174, 175, 400, 913}) {
        window.resize(width, 300);
        QCOMPARE(titleButton(window, Minimize)->pos(), QPoint(width - 79, 5));
        QCOMPARE(titleButton(window, Maximize)->pos(), QPoint(width - 54, 5));
        QCOMPARE(titleButton(window, Restore)->pos(), QPoint(width - 54, 5));
        QCOMPARE(titleButton(window, Close)->pos(), QPoint(width - 29, 5));
    }

    const auto expectPictures = [&window](bool active) {
        const char *names[] = {"minimize", "maximize", "restore", "close"};
        for (int index = Minimize; index <= Close; ++index) {
            const OmImageButton *button = titleButton(window, static_cast<Button>(index));
            const auto expectPicture = [&](const QPixmap &picture, const char *state) {
                QCOMPARE(picture.size() / picture.devicePixelRatio(), QSize(24, 20));
                QCOMPARE(picture.devicePixelRatio(), std::ceil(window.devicePixelRatioF()));
                QCOMPARE(picture.toImage().pixelColor(3, 3),
                         flat_skin::button(names[index], state, active));
            };
            expectPicture(button->pixmapUp(), "up");
            expectPicture(button->pixmapDown(), "down");
            expectPicture(button->pixmapHovered(), "hover");
            expectPicture(button->pixmapDisabled(), "disabled");
        }
    };
    expectPictures(true);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    expectPictures(false);
}

template <typename Window>
void tst_OmWindow::cornersAreClippedOf()
{
    Window window;
    show(window);
    QCOMPARE(window.mask(), ombrin::frameShape(QSize(400, 300)));
    window.resize(500, 200);
    QCOMPARE(window.mask(), ombrin::frameShape(QSize(500, 200)));
}

template <typename Window>
void tst_OmWindow::contentMenuBarAndStatusBarFindTheirPlacesOf()
{
    const QStringList expected = {QStringLiteral("QMenuBar"), QStringLiteral("QLabel"),
                                  QStringLiteral("ombrin::OmStatusBar")};
    const std::function<void(Window &)> setContent = [](Window &w) { w.setWidget(new QLabel); };
    const std::function<void(Window &)> askMenuBar = [](Window &w) {
        QVERIFY(w.menuBar());
        QCOMPARE(w.menuBar(), w.menuBar());
    };
    const std::function<void(Window &)> askStatusBar = [](Window &w) {
        QVERIFY(w.statusBar());
        QCOMPARE(w.statusBar(), w.statusBar());
    };
    const QVector<QVector<std::function<void(Window &)>>> orders = {
            {setContent, askStatusBar, askMenuBar}, {setContent, askMenuBar, askStatusBar},
            {askMenuBar, setContent, askStatusBar}, {askStatusBar, setContent, askMenuBar},
            {askMenuBar, askStatusBar, setContent}, {askStatusBar, askMenuBar, setContent},
    };
    for (const auto &order : orders) {
        Window window;
        for (const auto &step : order)
            step(window);
        QCOMPARE(layoutNames(window), expected);
        QCOMPARE(window.layout()->contentsMargins(), QMargins());
        QCOMPARE(window.layout()->spacing(), 0);
    }

    // A layout of the host's keeps its stretches, and content is appended to it.
    Window window;
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel, 3);
    window.setWidget(new QLabel);
    window.menuBar();
    QCOMPARE(layoutNames(window), QStringList({QStringLiteral("QMenuBar"), QStringLiteral("QLabel"),
                                               QStringLiteral("QLabel")}));
    QCOMPARE(layout->stretch(1), 3);
}

template <typename Window>
void tst_OmWindow::withoutLayoutContentFillsTheFrameOf()
{
    Window window;
    window.setUseLayout(false);
    QVERIFY(!window.useLayout());
    auto *content = new QLabel;
    window.setWidget(content);
    QVERIFY(!window.menuBar());
    QVERIFY(!window.statusBar());
    QVERIFY(window.template findChildren<QMenuBar *>().isEmpty());
    show(window);
    for (const QSize size : {QSize(400, 300), QSize(174, 35), QSize(640, 480)}) {
        window.resize(size);
        QCOMPARE(content->geometry(), QRect(QPoint(5, 30), size - QSize(10, 35)));
    }
    QStatusTipEvent tip(QStringLiteral("nowhere"));
    QApplication::sendEvent(&window, &tip);
}

template <typename Window>
void tst_OmWindow::deletedPartsAreForgottenOf()
{
    Window window;
    window.setWidget(new QLabel);
    QPointer<QMenuBar> menuBar = window.menuBar();
    QPointer<OmStatusBar> statusBar = window.statusBar();
    delete window.widget();
    QVERIFY(!window.widget());
    delete menuBar;
    delete statusBar;
    QVERIFY(window.menuBar());
    QVERIFY(window.statusBar());
    for (OmImageButton *button : window.template findChildren<OmImageButton *>())
        delete button;
    show(window);
    window.setFixed(true);
    window.resize(300, 200);
    settle();
    QCOMPARE(window.size(), QSize(300, 200));
}

template <typename Window>
void tst_OmWindow::titlesAreSetTogetherOrApartOf()
{
    Window window;
    window.setWindowTitle(QStringLiteral("Both"));
    QCOMPARE(window.windowTitleOnly(), QStringLiteral("Both"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Both"));
    window.setWindowTitleOnly(QStringLiteral("Drawn"));
    QCOMPARE(window.windowTitleOnly(), QStringLiteral("Drawn"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Both"));

    // The drawn one is bold and two pixels larger, black in an active window.
    show(window);
    const QImage grabbed = window.grab().toImage();
    QImage expected(grabbed);
    expected.setDevicePixelRatio(window.devicePixelRatioF());
    QPainter painter(&expected);
    painter.fillRect(86, 0, 226, 30, flat_skin::piece("top_center", true));
    QFont font = window.font();
    font.setPixelSize(font.pixelSize() + 2);
    font.setWeight(QFont::Bold);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRect(88, 2, 221, 26), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Drawn"));
    painter.end();
    QCOMPARE(grabbed, expected);
}

template <typename Window>
void tst_OmWindow::doubleClickOnTheTitleMaximisesAndRestoresOf()
{
    Window window;
    show(window);
    settle();
    const auto doubleClick = [&window](int y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseDClick(&window, button, Qt::NoModifier, QPoint(200, y));
        settle();
    };
    doubleClick(31);
    QVERIFY(!window.isMaximized());
    doubleClick(30, Qt::RightButton);
    QVERIFY(!window.isMaximized());
    doubleClick(30);
    QVERIFY(window.isMaximized());
    QTRY_VERIFY(titleButton(window, Restore)->isVisible());
    QVERIFY(titleButton(window, Maximize)->isHidden());
    doubleClick(0);
    QVERIFY(!window.isMaximized());
    QTRY_VERIFY(titleButton(window, Restore)->isHidden());
    QVERIFY(titleButton(window, Maximize)->isVisible());
    window.setFixed(true);
    doubleClick(10);
    QVERIFY(!window.isMaximized());
}

template <typename Window>
void tst_OmWindow::fixedWindowNeitherResizesNorMaximisesOf()
{
    Window window;
    show(window);
    window.setFixed(true);
    window.setFixed(true);
    QVERIFY(window.fixed());
    QVERIFY(!titleButton(window, Maximize)->isEnabled());
    QVERIFY(!titleButton(window, Restore)->isEnabled());
    const QRect before = window.geometry();
    dragInside(window, QPoint(399, 150), QPoint(450, 150));
    QCOMPARE(window.size(), before.size());
    window.move(before.topLeft());
    dragInside(window, QPoint(200, 10), QPoint(230, 20));
    QCOMPARE(window.pos(), before.topLeft() + QPoint(30, 10));

    window.setFixed(false);
    QVERIFY(titleButton(window, Maximize)->isEnabled());
    QVERIFY(titleButton(window, Restore)->isEnabled());
    dragInside(window, QPoint(399, 150), QPoint(450, 150));
    QCOMPARE(window.width(), before.width() + 51);
}

template <typename Window>
void tst_OmWindow::titleButtonsDoWhatTheySayOf()
{
    Window window;
    show(window);
    settle();
    QTest::mouseClick(titleButton(window, Maximize), Qt::LeftButton);
    settle();
    QVERIFY(window.isMaximized());
    QTest::mouseClick(titleButton(window, Restore), Qt::LeftButton);
    settle();
    QVERIFY(!window.isMaximized());
    QTest::mouseClick(titleButton(window, Minimize), Qt::LeftButton);
    QVERIFY(window.isMinimized());
    window.showNormal();
    QTest::mouseClick(titleButton(window, Close), Qt::LeftButton);
    QVERIFY(!window.isVisible());

    // A drag that starts on a button is none of the window's.
    show(window);
    const QPoint before = window.pos();
    OmImageButton *close = titleButton(window, Close);
    dragInside(*close, QPoint(5, 5), QPoint(-200, 90));
    QCOMPARE(window.pos(), before);
    QVERIFY(window.isVisible());
}

template <typename Window>
void tst_OmWindow::headerMenuSetsTheOpacityAfterItHasClosedOf()
{
    Window window;
    show(window);
    QVERIFY(!openMenu(window, 31));
    QPointer<QMenu> menu = openMenu(window, 30);
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(menu->actions().constFirst()->text(), QStringLiteral("Opacity"));
    const QList<QAction *> entries = menu->actions().constFirst()->menu()->actions();
    QStringList texts;
    for (const QAction *entry : entries) {
        texts.append(entry->text());
        QVERIFY(!entry->isCheckable());
        QVERIFY(entry->shortcut().isEmpty());
    }
    QCOMPARE(texts,
             QStringList({QStringLiteral("100%"), QStringLiteral("80%"), QStringLiteral("60%"),
                          QStringLiteral("50%"), QStringLiteral("40%"), QStringLiteral("20%")}));
    const qreal opacities[] = {1.0, 0.8, 0.6, 0.5, 0.4, 0.2};
    qreal before = window.windowOpacity();
    for (int index = static_cast<int>(entries.size()) - 1; index >= 0; --index) {
        entries.at(index)->trigger();
        QCOMPARE(window.windowOpacity(), before);
        settle();
        QVERIFY(std::abs(window.windowOpacity() - opacities[index]) < 0.01);
        before = window.windowOpacity();
    }
    menu->close();
    QVERIFY(waitFor([&menu] { return menu.isNull(); }));
}

template <typename Window>
void tst_OmWindow::statusTipsShowForASecondWhereThereIsAStatusBarOf()
{
    Window window;
    window.setWidget(new QLabel);
    QStatusTipEvent tip(QStringLiteral("Opens a file"));
    QApplication::sendEvent(window.widget(), &tip);
    QVERIFY(window.statusBar()->currentMessage().isEmpty());
    QApplication::sendEvent(&window, &tip);
    QCOMPARE(window.statusBar()->currentMessage(), QStringLiteral("Opens a file"));
    QVERIFY(waitFor([&window] { return window.statusBar()->currentMessage().isEmpty(); }));
}

template <typename Window>
void tst_OmWindow::draggingMovesAndResizesOf()
{
    Window window;
    auto *content = new QLabel;
    window.setWidget(content);
    show(window);
    window.move(100, 80);
    settle();
    const QRect start(100, 80, 400, 300);
    const auto drag = [&](const QPoint &from, const QPoint &delta) {
        window.setGeometry(start);
        dragInside(window, from, from + delta);
        return window.geometry();
    };
    QCOMPARE(drag({200, 10}, {30, -12}), start.translated(30, -12));
    QCOMPARE(drag({399, 150}, {25, 9}), QRect(100, 80, 425, 300));
    QCOMPARE(drag({0, 150}, {25, 9}), QRect(125, 80, 375, 300));
    QCOMPARE(drag({399, 299}, {25, 9}), QRect(100, 80, 425, 309));
    QCOMPARE(drag({2, 1}, {-10, -20}), QRect(90, 60, 410, 320));
    QCOMPARE(drag({0, 150}, {390, 0}), QRect(326, 80, 174, 300)); // the right edge stays
    QCOMPARE(drag({200, 10}, {1, 0}), start);                     // a trembling click

    // Dragging plain content moves the window too.
    window.setGeometry(start);
    const QPoint inContent(100, 100);
    QTest::mousePress(content, Qt::LeftButton, Qt::NoModifier, inContent);
    QMouseEvent move(QEvent::MouseMove, inContent + QPoint(8, 9),
                     content->mapToGlobal(inContent + QPoint(8, 9)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(content, &move);
    QTest::mouseRelease(content, Qt::LeftButton, Qt::NoModifier, inContent);
    QCOMPARE(window.geometry(), start.translated(8, 9));

    // The pointer tells where a drag resizes, and the host's own comes back.
    window.setGeometry(start);
    window.setCursor(Qt::WaitCursor);
    const auto hover = [&window](const QPoint &position) {
        QMouseEvent event(QEvent::MouseMove, position, window.mapToGlobal(position), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
        return window.cursor().shape();
    };
    QCOMPARE(hover({1, 150}), Qt::SizeHorCursor);
    QCOMPARE(hover({1, 1}), Qt::SizeFDiagCursor);
    QCOMPARE(hover({200, 15}), Qt::WaitCursor);
    hover({398, 150});
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(content, &enter);
    QCOMPARE(window.cursor().shape(), Qt::WaitCursor);

    window.showMaximized();
    settle();
    const QRect maximized = window.geometry();
    dragInside(window, QPoint(200, 10), QPoint(260, 60));
    QCOMPARE(window.geometry(), maximized);
}

template <typename Window>
void tst_OmWindow::newNativeWindowKeepsEverythingOf()
{
    QWidget parent; // outlives the window, which Windows would take along even when unparented
    Window window;
    window.setWidget(new QLabel);
    show(window);
    window.setGeometry(60, 50, 400, 300);
    const QRect geometry = window.geometry();

    const auto expectSame = [&](const char *what) {
        QVERIFY2(window.geometry() == geometry, what);
        QCOMPARE(window.mask(), ombrin::frameShape(geometry.size()));
        QCOMPARE(titleButton(window, Close)->pos(), QPoint(371, 5));
        QVERIFY(!titleButton(window, Close)->pixmapUp().isNull());
        QVERIFY(window.windowHandle());
        const Qt::WindowFlags flags = window.windowHandle()->flags();
        QVERIFY2(flags & Qt::FramelessWindowHint, what);
#ifndef Q_OS_WIN // there they are native styles, which tst_omwindow_win reads back
        QVERIFY2(flags & Qt::WindowMinimizeButtonHint, what);
        QVERIFY2(flags & Qt::WindowMaximizeButtonHint, what);
#endif
    };
    expectSame("at first");
    window.setWindowFlag(Qt::Tool);
    window.setWindowFlag(Qt::Tool, false);
    window.show();
    settle();
    expectSame("flags changed");
    window.close();
    window.show();
    settle();
    expectSame("closed and shown again");
    const Qt::WindowFlags flags = window.windowFlags();
    window.setParent(&parent, flags | Qt::Window);
    window.show();
    settle();
    expectSame("reparented");
    window.setParent(nullptr, flags);
}

template <typename Window>
void tst_OmWindow::languageChangeReachesButtonsAndMenuOf()
{
    Window window;
    show(window);
    GermanTexts texts;
    QCoreApplication::installTranslator(&texts);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    const QString context = QLatin1String(Window::staticMetaObject.className());
    QCOMPARE(titleButton(window, Minimize)->toolTip(), context + QStringLiteral("/Minimize"));
    const QMenu *menu = openMenu(window, 5);
    QVERIFY(menu);
    QCOMPARE(menu->actions().constFirst()->text(), context + QStringLiteral("/Opacity"));
    QCOMPARE(menu->actions().constFirst()->menu()->actions().constLast()->text(),
             context + QStringLiteral("/20%"));
    QCoreApplication::removeTranslator(&texts);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCOMPARE(titleButton(window, Close)->toolTip(), QStringLiteral("Close"));
    QApplication::activePopupWidget()->close();
}

void tst_OmWindow::slotsAreThereForHostsThatKnowTheirNames()
{
    const auto slotNames = [](const QMetaObject &metaObject) {
        QStringList names;
        for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index)
            names.append(QString::fromLatin1(metaObject.method(index).methodSignature()));
        return names;
    };
    QStringList expected;
    for (const char *name :
         {"slotCheckState()", "slotHeaderContextMenu(QPoint)", "slotAlwaysOnTopTimer()",
          "slotAlwaysOnTop()", "slotOp100Timer()", "slotOp100()", "slotOp80Timer()", "slotOp80()",
          "slotOp60Timer()", "slotOp60()", "slotOp50Timer()", "slotOp50()", "slotOp40Timer()",
          "slotOp40()", "slotOp20Timer()", "slotOp20()"})
        expected.append(QLatin1String(name));
    QCOMPARE(slotNames(OmWindow::staticMetaObject), expected);
    expected.removeAll(QStringLiteral("slotAlwaysOnTopTimer()"));
    expected.removeAll(QStringLiteral("slotAlwaysOnTop()"));
    QCOMPARE(slotNames(OmDialog2::staticMetaObject), expected);
}

void tst_OmWindow::stayingOnTopIsMirroredByTheHostsAction()
{
    OmWindow window;
    window.show();
    QVERIFY(!window.isAlwaysOnTop());
    QVERIFY(QMetaObject::invokeMethod(&window,
                                      "slotAlwaysOnTop")); // no action: switches all the same
    QVERIFY(window.isAlwaysOnTop());

    auto action = std::make_unique<QAction>();
    window.setAlwaysOnTopAction(action.get());
    QVERIFY(action->isChecked());
    action->trigger();
    QVERIFY(window.isAlwaysOnTop());
    QVERIFY(waitFor([&window] { return !window.isAlwaysOnTop(); }));
    QVERIFY(!action->isChecked());
    QVERIFY(QMetaObject::invokeMethod(&window, "slotAlwaysOnTopTimer"));
    QVERIFY(waitFor([&window] { return window.isAlwaysOnTop(); }));
    QVERIFY(action->isChecked());
    action.reset();
    QVERIFY(QMetaObject::invokeMethod(&window, "slotAlwaysOnTop"));
    QVERIFY(!window.isAlwaysOnTop());
}

void tst_OmWindow::dialogBlocksItsParentOnly()
{
    OmWindow parent;
    OmWindow other;
    int parentClicks = 0;
    int otherClicks = 0;
    connect(titleButton(parent, Minimize), &OmImageButton::pressed, &parent,
            [&parentClicks] { ++parentClicks; });
    connect(titleButton(other, Minimize), &OmImageButton::pressed, &other,
            [&otherClicks] { ++otherClicks; });
    parent.show();
    other.show();
    OmDialog2 dialog(&parent);
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto pressIn = [](OmWindow &window) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          titleButton(window, Minimize)->geometry().center());
    };
    pressIn(parent);
    pressIn(other);
    QCOMPARE(parentClicks, 0);
    QCOMPARE(otherClicks, 1);
}

void tst_OmWindow::escapeAndCloseButtonRejectADialog()
{
    OmDialog2 dialog;
    const auto resultOf = [&dialog](const std::function<void()> &act) {
        QTimer::singleShot(50, &dialog, act);
        dialog.setResult(QDialog::Accepted);
        return dialog.exec();
    };
    QCOMPARE(resultOf([&dialog] { QTest::keyClick(&dialog, Qt::Key_Escape); }),
             static_cast<int>(QDialog::Rejected));
    QCOMPARE(resultOf([&dialog] { QTest::mouseClick(titleButton(dialog, Close), Qt::LeftButton); }),
             static_cast<int>(QDialog::Rejected));
    QCOMPARE(resultOf([&dialog] { dialog.accept(); }), static_cast<int>(QDialog::Accepted));
}

void tst_OmWindow::titleThroughAWidgetPointerIsQts()
{
    OmWindow window;
    window.setWindowTitle(QStringLiteral("Drawn"));
    QWidget *widget = &window;
    widget->setWindowTitle(QStringLiteral("Task bar"));
    QCOMPARE(window.windowTitleOnly(), QStringLiteral("Drawn"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Task bar"));
}

void tst_OmWindow::windowInsideAnotherWidgetIsJustAChild()
{
    QWidget host;
    host.resize(600, 500);
    auto *inner = new OmWindow(&host);
    QVERIFY(!inner->isWindow());
    QVERIFY(!inner->internalWinId()); // no native window forced on the host's
    inner->setFixed(true);
    inner->setFixed(false);
    inner->setGeometry(20, 20, 300, 200);
    host.show();
    dragInside(*inner, QPoint(100, 10), QPoint(140, 30));
    QCOMPARE(inner->pos(), QPoint(60, 40));
}

void tst_OmWindow::hostMayDeleteTheWindowFromItsCloseButton()
{
    class DeletesItself : public OmWindow
    {
        void closeEvent(QCloseEvent *) override { delete this; }
    };
    QPointer<OmWindow> window = new DeletesItself;
    window->show();
    QTest::mouseClick(titleButton(*window, Close), Qt::LeftButton);
    QVERIFY(!window);

    window = new OmWindow;
    window->show();
    connect(titleButton(*window, Minimize), &OmImageButton::clicked, window,
            [&window] { delete window; });
    QTest::mouseClick(titleButton(*window, Minimize), Qt::LeftButton);
    QVERIFY(!window);

    window = new OmWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    QTest::mouseClick(titleButton(*window, Close), Qt::LeftButton);
    QVERIFY(waitFor([&window] { return window.isNull(); }));

    // An entry of the header menu, too.
    window = new OmWindow;
    window->show();
    QMenu *menu = openMenu(*window, 5);
    QVERIFY(menu);
    QAction *opaque = menu->actions().constFirst()->menu()->actions().constFirst();
    connect(opaque, &QAction::triggered, window, [&window] { delete window; });
    opaque->trigger();
    QVERIFY(!window);

    // Timers that are still running find the window gone.
    window = new OmWindow;
    window->show();
    QVERIFY(QMetaObject::invokeMethod(window, "slotOp50Timer"));
    QVERIFY(QMetaObject::invokeMethod(window, "slotAlwaysOnTopTimer"));
    QVERIFY(openMenu(*window, 5));
    delete window;
    settle();
}

OMBRIN_TEST_MAIN(tst_OmWindow)
#include "tst_omwindow.moc"
