#include "support/MenuUser.h"
#include "support/TaggedLanguage.h"
#include "support/WidgetEvents.h"
#include "windows/FlatSkin.h"

#include "windows/FramePainter.h"

#include <ombrin/OmDialog2.h>
#include <ombrin/OmImageButton.h>
#include <ombrin/OmStatusBar.h>
#include <ombrin/OmWindow.h>

using namespace ombrin::test;
using namespace ombrin;

namespace {

enum Button { Minimize, Maximize, Restore, Close };

OmImageButton *titleButton(const QWidget &window, Button which)
{
    return window.findChildren<OmImageButton *>(QString(), Qt::FindDirectChildrenOnly).value(which);
}

void show(QWidget &window, const QSize &size = QSize(400, 300))
{
    window.resize(size);
    QVERIFY(activate(&window));
}

// Until deferred actions, and the button swap that one of them may bring about, are done: timers
// end in their order, however busy the machine is.
void settle()
{
    for (int times = 0; times < 2; ++times) {
        bool isOver = false;
        QTimer::singleShot(40, qApp, [&isOver] { isOver = true; });
        QVERIFY(TestCase::waitFor([&isOver] { return isOver; }));
    }
}

QMenu *openMenu(QWidget &window, int y)
{
    askForMenu(&window, QPoint(150, y));
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QList<QAction *> opacityEntries(const QMenu &menu)
{
    return menu.actions().constFirst()->menu()->actions();
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

template <typename Window, typename Check>
void checkIn(Check check)
{
    Window window;
    check(window);
    if (QTest::currentTestFailed())
        qWarning() << "...in" << window.metaObject()->className();
}

// Windows and dialogs share one frame and forward to it each for itself: both are checked.
template <typename Check>
void checkBoth(Check check)
{
    checkIn<OmWindow>(check);
    if (!QTest::currentTestFailed())
        checkIn<OmDialog2>(check);
}

} // namespace

class tst_OmWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures(flat_skin::kFile)); }

    void newWindowIsFramelessAndReady()
    {
        checkBoth([](auto &window) {
            QVERIFY(window.isWindow() && (window.windowFlags() & Qt::FramelessWindowHint));
            QCOMPARE(window.contentsMargins(), QMargins(5, 30, 5, 5));
            QCOMPARE(window.minimumSize(), QSize(174, 35));
            QVERIFY(titleButton(window, Restore)->isHidden());
            QVERIFY(!titleButton(window, Maximize)->isHidden());
            QVERIFY(titleButton(window, Close)->pixmapUp().isNull()); // until the first activation
            QCOMPARE(titleButton(window, Close)->toolTip(), "Close"_q);
            QCOMPARE(titleButton(window, Close)->size(), QSize(24, 20));
            window.setWidget(nullptr);
            QVERIFY(!window.widget() && !window.layout());
        });
    }

    void frameAndButtonsFollowScreenAndActivation()
    {
        checkBoth([](auto &window) {
            show(window);
            const auto expectPictures = [&window](bool active) {
                const QImage grabbed =
                        window.grab().toImage().convertToFormat(QImage::Format_RGB32);
                const qreal density = window.devicePixelRatioF();
                QCOMPARE(grabbed.devicePixelRatio(), density);
                const auto colorAt = [&grabbed, density](qreal x, qreal y) {
                    return grabbed.pixelColor(int((x + 0.5) * density), int((y + 0.5) * density));
                };
                QCOMPARE(colorAt(150, 10), flat_skin::piece("top_center", active));
                QCOMPARE(colorAt(397, 100), flat_skin::piece("right", active));
                QCOMPARE(colorAt(380, 15), flat_skin::button("close", "up", active));
                // Inside nothing is drawn.
                QCOMPARE(colorAt(200, 150), window.palette().color(QPalette::Window));

                const char *names[] = {"minimize", "maximize", "restore", "close"};
                for (int index = Minimize; index <= Close; ++index) {
                    const OmImageButton *button = titleButton(window, static_cast<Button>(index));
                    const auto expectPicture = [&](const QPixmap &picture, const char *state) {
                        QCOMPARE(picture.devicePixelRatio(), std::ceil(density));
                        QCOMPARE(picture.size() / picture.devicePixelRatio(), QSize(24, 20));
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
            show(other);
            expectPictures(false);
        });
    }

    void buttonsAndShapeFollowTheSize()
    {
        checkBoth([](auto &window) {
            show(window);
            for (const QSize size : {QSize(174, 35), QSize(401, 300), QSize(913, 299)}) {
                window.resize(size);
                const std::pair<Button, int> places[] = {
                        {Minimize, 79}, {Maximize, 54}, {Restore, 54}, {Close, 29}};
                for (const auto &[button, fromRight] : places)
                    QCOMPARE(titleButton(window, button)->pos(),
                             QPoint(size.width() - fromRight, 5));
                QCOMPARE(window.mask(), ombrin::frameShape(size));
            }
        });
    }

    void contentMenuBarAndStatusBarFindTheirPlaces()
    {
        const auto expectOrder = [](auto &window) {
            using Window = std::decay_t<decltype(window)>;
            for (const QString &order : words("csm cms mcs scm msc smc")) {
                Window inOrder;
                for (const QChar part : order) {
                    if (part == QLatin1Char('c'))
                        inOrder.setWidget(new QLabel);
                    else if (part == QLatin1Char('m'))
                        QCOMPARE(inOrder.menuBar(), inOrder.menuBar());
                    else
                        QCOMPARE(inOrder.statusBar(), inOrder.statusBar());
                }
                QCOMPARE(layoutNames(inOrder), words("QMenuBar QLabel ombrin::OmStatusBar"));
                QCOMPARE(inOrder.layout()->contentsMargins(), QMargins());
                QCOMPARE(inOrder.layout()->spacing(), 0);
            }
        };
        checkBoth(expectOrder);

        // Content is appended to a layout of the host's.
        checkBoth([](auto &window) {
            (new QVBoxLayout(&window))->addWidget(new QLabel);
            window.setWidget(new QLabel);
            window.menuBar();
            QCOMPARE(layoutNames(window), words("QMenuBar QLabel QLabel"));
        });
    }

    void withoutLayoutContentFillsTheFrame()
    {
        checkBoth([](auto &window) {
            window.setUseLayout(false);
            auto *content = new QLabel;
            window.setWidget(content);
            QVERIFY(!window.menuBar() && !window.statusBar());
            QVERIFY(!window.layout());
            show(window);
            for (const QSize size : {QSize(400, 300), QSize(174, 35), QSize(640, 480)}) {
                window.resize(size);
                QCOMPARE(content->geometry(), QRect(QPoint(5, 30), size - QSize(10, 35)));
            }
            QStatusTipEvent tip("nowhere"_q);
            QApplication::sendEvent(&window, &tip);
        });
    }

    void deletedPartsAreForgotten()
    {
        checkBoth([](auto &window) {
            window.setWidget(new QLabel);
            delete window.menuBar();
            delete window.statusBar();
            delete window.widget();
            QVERIFY(!window.widget());
            QVERIFY(window.menuBar() && window.statusBar());
            const auto buttons = window.template findChildren<OmImageButton *>();
            qDeleteAll(buttons);
            show(window);
            window.setFixed(true);
            window.resize(300, 200);
            settle();
            QCOMPARE(window.size(), QSize(300, 200));
        });
    }

    void titlesAreSetTogetherOrApart()
    {
        checkBoth([](auto &window) {
            const auto titles = [&window] {
                return QStringList{window.windowTitleOnly(), window.windowTitle()};
            };
            window.setWindowTitle("Both"_q);
            QCOMPARE(titles(), words("Both Both"));
            window.setWindowTitleOnly("Drawn"_q);
            QCOMPARE(titles(), words("Drawn Both"));
            static_cast<QWidget &>(window).setWindowTitle("Task"_q);
            QCOMPARE(titles(), words("Drawn Task"));

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
            painter.drawText(QRect(88, 2, 221, 26), Qt::AlignLeft | Qt::AlignVCenter, "Drawn"_q);
            painter.end();
            QCOMPARE(grabbed, expected);
        });
    }

    void doubleClickOnTheTitleMaximisesAndRestores()
    {
        checkBoth([](auto &window) {
            show(window);
            const auto maximizedAfter = [&window](int y, Qt::MouseButton button = Qt::LeftButton) {
                QTest::mouseDClick(&window, button, Qt::NoModifier, QPoint(200, y));
                settle();
                return window.isMaximized();
            };
            QVERIFY(!maximizedAfter(31));
            QVERIFY(!maximizedAfter(30, Qt::RightButton));
            QVERIFY(maximizedAfter(30));
            QTRY_VERIFY_WITH_TIMEOUT(titleButton(window, Restore)->isVisible(), 20000);
            QVERIFY(titleButton(window, Maximize)->isHidden());
            QVERIFY(!maximizedAfter(0));
            QTRY_VERIFY_WITH_TIMEOUT(titleButton(window, Restore)->isHidden(), 20000);
            QVERIFY(titleButton(window, Maximize)->isVisible());
        });
    }

    void fixedWindowNeitherResizesNorMaximises()
    {
        checkBoth([](auto &window) {
            show(window);
            window.setFixed(true);
            window.setFixed(true);
            QTest::mouseDClick(&window, Qt::LeftButton, Qt::NoModifier, QPoint(200, 10));
            settle();
            QVERIFY(!window.isMaximized());
            QVERIFY(!titleButton(window, Maximize)->isEnabled());
            QVERIFY(!titleButton(window, Restore)->isEnabled());
            const auto widthAfterDrag = [&window] {
                const int before = window.width();
                dragInside(&window, QPoint(399, 150), QPoint(450, 150));
                return window.width() - before;
            };
            QCOMPARE(widthAfterDrag(), 0);
            window.setFixed(false);
            QVERIFY(titleButton(window, Maximize)->isEnabled());
            QVERIFY(titleButton(window, Restore)->isEnabled());
            QCOMPARE(widthAfterDrag(), 51);

            // Nor does the grip in the status bar resize; one that the host hid stays hidden.
            for (const bool hasGrip : {false, true}) {
                window.statusBar()->setSizeGripEnabled(hasGrip);
                window.setFixed(true);
                QVERIFY(!window.statusBar()->isSizeGripEnabled());
                window.setFixed(false);
                QCOMPARE(window.statusBar()->isSizeGripEnabled(), hasGrip);
            }
            delete window.statusBar();
            window.setFixed(true);
            QVERIFY(!window.statusBar()->isSizeGripEnabled());
        });
    }

    void titleButtonsDoWhatTheySay()
    {
        checkBoth([](auto &window) {
            show(window);
            settle();
            const auto click = [&window](Button button) {
                QTest::mouseClick(titleButton(window, button), Qt::LeftButton);
                settle();
            };
            click(Maximize);
            QVERIFY(window.isMaximized());
            click(Restore);
            QVERIFY(!window.isMaximized());
            click(Minimize);
            QVERIFY(window.isMinimized());
            window.showNormal();
            click(Close);
            QVERIFY(!window.isVisible());

            // A drag that starts on a button is none of the window's.
            show(window);
            const QPoint before = window.pos();
            dragInside(titleButton(window, Close), QPoint(5, 5), QPoint(-200, 90));
            QCOMPARE(window.pos(), before);
            QVERIFY(window.isVisible());
        });
    }

    void headerMenuSetsTheOpacityAfterItHasClosed()
    {
        checkBoth([](auto &window) {
            show(window);
            QVERIFY(!openMenu(window, 31));
            const QPointer<QMenu> menu = openMenu(window, 30);
            QVERIFY(menu);
            QCOMPARE(menu->actions().size(), 1);
            const QList<QAction *> entries = opacityEntries(*menu);
            const QStringList texts = words("20% 40% 50% 60% 80% 100%");
            QCOMPARE(entries.size(), texts.size());
            for (const QString &text : texts) { // upwards, so that each is a change
                QAction *entry = entries.at(texts.size() - 1 - texts.indexOf(text));
                QCOMPARE(entry->text(), text);
                const qreal before = window.windowOpacity();
                entry->trigger();
                QCOMPARE(window.windowOpacity(), before);
                settle();
                QCOMPARE(qRound(window.windowOpacity() * 100), text.chopped(1).toInt());
            }
            menu->close();
            QTRY_VERIFY_WITH_TIMEOUT(menu.isNull(), 20000);
        });
    }

    void statusTipsShowForASecondWhereThereIsAStatusBar()
    {
        checkBoth([](auto &window) {
            window.setWidget(new QLabel);
            QStatusTipEvent tip("Opens a file"_q);
            QApplication::sendEvent(window.widget(), &tip);
            QVERIFY(window.statusBar()->currentMessage().isEmpty());
            QApplication::sendEvent(&window, &tip);
            QCOMPARE(window.statusBar()->currentMessage(), "Opens a file"_q);
            QTRY_VERIFY_WITH_TIMEOUT(window.statusBar()->currentMessage().isEmpty(), 20000);
        });
    }

    void draggingMovesAndResizes()
    {
        checkBoth([](auto &window) {
            auto *content = new QLabel;
            window.setWidget(content);
            show(window);
            settle();
            const QRect start(100, 80, 400, 300);
            const auto drag = [&](const QPoint &from, const QPoint &delta) {
                window.setGeometry(start);
                dragInside(&window, from, from + delta);
                return window.geometry();
            };
            QCOMPARE(drag({200, 10}, {30, -12}), start.translated(30, -12));
            QCOMPARE(drag({399, 299}, {25, 9}), QRect(100, 80, 425, 309));
            QCOMPARE(drag({2, 1}, {-10, -20}), QRect(90, 60, 410, 320));
            QCOMPARE(drag({0, 150}, {390, 0}), QRect(326, 80, 174, 300)); // the right edge stays
            QCOMPARE(drag({200, 10}, {1, 0}), start);                     // a trembling click

            // Dragging plain content moves the window too.
            window.setGeometry(start);
            dragInside(content, QPoint(100, 100), QPoint(108, 109));
            QCOMPARE(window.geometry(), start.translated(8, 9));

            // A press whose release goes to a dialog is over.
            window.setGeometry(start);
            QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, QPoint(200, 10));
            QDialog question(&window);
            question.open();
            question.reject();
            sendMouseMove(&window, QPoint(260, 60), Qt::LeftButton);
            QCOMPARE(window.geometry(), start);

            window.showMaximized();
            settle();
            const QRect maximized = window.geometry();
            dragInside(&window, QPoint(200, 10), QPoint(260, 60));
            QCOMPARE(window.geometry(), maximized);
        });
    }

    void pointerTellsWhereADragResizes()
    {
        checkBoth([](auto &window) {
            window.setWidget(new QLabel);
            show(window);
            window.setCursor(Qt::WaitCursor);
            const auto cursorAt = [&window](const QPoint &position) {
                sendMouseMove(&window, position);
                return window.cursor().shape();
            };
            QCOMPARE(cursorAt({1, 150}), Qt::SizeHorCursor);
            QCOMPARE(cursorAt({1, 1}), Qt::SizeFDiagCursor);
            QCOMPARE(cursorAt({200, 15}), Qt::WaitCursor); // the host's own comes back
            QCOMPARE(cursorAt({398, 150}), Qt::SizeHorCursor);
            sendEnter(window.widget());
            QCOMPARE(window.cursor().shape(), Qt::WaitCursor);
            window.setFixedWidth(400);
            QCOMPARE(cursorAt({1, 1}), Qt::SizeVerCursor);
            QCOMPARE(cursorAt({1, 150}), Qt::WaitCursor);
            window.setFixedHeight(300);
            QCOMPARE(cursorAt({1, 1}), Qt::WaitCursor);
        });
    }

    void newNativeWindowKeepsEverything()
    {
        QWidget parent; // outlives the window, which Windows would take along even when unparented
        checkBoth([&parent](auto &window) {
            window.setWidget(new QLabel);
            show(window);
            window.setGeometry(60, 50, 400, 300);
            const QRect geometry = window.geometry();

            const auto showAndExpectSame = [&](const char *what) {
                window.show();
                settle();
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
            showAndExpectSame("at first");
            window.setWindowFlag(Qt::Tool);
            window.setWindowFlag(Qt::Tool, false);
            showAndExpectSame("flags changed");
            window.close();
            showAndExpectSame("closed and shown again");
            const Qt::WindowFlags flags = window.windowFlags();
            window.setParent(&parent, flags | Qt::Window);
            showAndExpectSame("reparented");
            window.setParent(nullptr, flags);
        });
    }

    void languageChangeReachesButtonsAndMenu()
    {
        checkBoth([](auto &window) {
            show(window);
            QMenu *menu = nullptr;
            {
                const TaggedLanguage language;
                const QString context = QLatin1String(window.metaObject()->className());
                QCOMPARE(titleButton(window, Minimize)->toolTip(), context + "|Minimize|"_q);
                menu = openMenu(window, 5);
                QVERIFY(menu);
                QCOMPARE(menu->actions().constFirst()->text(), context + "|Opacity|"_q);
                QCOMPARE(opacityEntries(*menu).constLast()->text(), context + "|20%|"_q);
            }
            QCOMPARE(titleButton(window, Close)->toolTip(), "Close"_q);
            menu->close();
        });
    }

    void slotsAreThereForHostsThatKnowTheirNames()
    {
        QStringList expected = words(
                "slotCheckState() slotHeaderContextMenu(QPoint) slotAlwaysOnTopTimer() "
                "slotAlwaysOnTop() slotOp100Timer() slotOp100() slotOp80Timer() slotOp80() "
                "slotOp60Timer() slotOp60() slotOp50Timer() slotOp50() slotOp40Timer() slotOp40() "
                "slotOp20Timer() slotOp20()");
        QCOMPARE(methodsOf(OmWindow::staticMetaObject), expected);
        QCOMPARE(methodsOf(OmDialog2::staticMetaObject), expected.mid(0, 2) + expected.mid(4));
    }

    void stayingOnTopIsMirroredByTheHostsAction()
    {
        OmWindow window;
        window.show();
        const auto invoke = [&window](const char *slot) {
            QVERIFY(QMetaObject::invokeMethod(&window, slot));
        };
        QVERIFY(!window.isAlwaysOnTop());
        invoke("slotAlwaysOnTop"); // no action: switches all the same
        QVERIFY(window.isAlwaysOnTop());

        auto action = std::make_unique<QAction>();
        window.setAlwaysOnTopAction(action.get());
        QVERIFY(action->isChecked());
        action->trigger();
        QVERIFY(window.isAlwaysOnTop()); // until the menu has closed
        QTRY_VERIFY_WITH_TIMEOUT(!window.isAlwaysOnTop(), 20000);
        QVERIFY(!action->isChecked());
        const auto isKeptOnTop = [&window] {
            return window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
        };
        connect(action.get(), &QAction::toggled, &window, [&](bool on) {
            QCOMPARE(window.isAlwaysOnTop(), on);
            QVERIFY(!on || !isKeptOnTop()); // that comes next
        });
        invoke("slotAlwaysOnTopTimer");
        QTRY_VERIFY_WITH_TIMEOUT(window.isAlwaysOnTop(), 20000);
        QVERIFY(action->isChecked());
        action.reset();
        invoke("slotAlwaysOnTop");
        QVERIFY(!window.isAlwaysOnTop());
    }

    void closeButtonRejectsAWindowModalDialog()
    {
        OmDialog2 dialog;
        QTimer::singleShot(50, &dialog, [&dialog] {
            QCOMPARE(dialog.windowModality(), Qt::WindowModal);
            QTest::mouseClick(titleButton(dialog, Close), Qt::LeftButton);
        });
        dialog.setResult(QDialog::Accepted);
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    }

    void windowInsideAnotherWidgetIsJustAChild()
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
        dragInside(inner, QPoint(100, 10), QPoint(140, 30));
        QCOMPARE(inner->pos(), QPoint(60, 40));
    }

    void hostMayDeleteTheWindowFromAnySignalAndBeforeTimers()
    {
        class DeletesItself : public OmWindow
        {
            void closeEvent(QCloseEvent *) override { delete this; }
        };
        QPointer<OmWindow> window = new DeletesItself;
        window->show();
        QTest::mouseClick(titleButton(*window, Close), Qt::LeftButton);
        QVERIFY(!window);

        const auto destroy = [&window] { delete window; };
        window = new OmWindow;
        window->show();
        connect(titleButton(*window, Minimize), &OmImageButton::clicked, window, destroy);
        QTest::mouseClick(titleButton(*window, Minimize), Qt::LeftButton);
        QVERIFY(!window);

        window = new OmWindow;
        window->show();
        QAction action;
        window->setAlwaysOnTopAction(&action);
        connect(&action, &QAction::toggled, window, destroy);
        QVERIFY(QMetaObject::invokeMethod(window, "slotAlwaysOnTop"));
        QVERIFY(!window);

        window = new OmWindow;
        window->show();
        const QMenu *menu = openMenu(*window, 5);
        QVERIFY(menu);
        QAction *opaque = opacityEntries(*menu).constFirst();
        connect(opaque, &QAction::triggered, window, destroy);
        opaque->trigger();
        QVERIFY(!window);

        window = new OmWindow;
        window->show();
        QVERIFY(QMetaObject::invokeMethod(window, "slotOp50Timer"));
        QVERIFY(QMetaObject::invokeMethod(window, "slotAlwaysOnTopTimer"));
        QVERIFY(openMenu(*window, 5));
        delete window;
        settle();
    }
};

OMBRIN_TEST_MAIN(tst_OmWindow)
#include "tst_omwindow.moc"
