#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmImageButton.h>

#include <functional>

using ombrin::OmImageButton;
using namespace ombrin::test;

namespace {

constexpr QSize kSize(16, 16);
// In the window
constexpr QPoint kInside(25, 25);
constexpr QPoint kOutside(100, 60);

// Every state's picture is told by its shade of red.
const QStringList kPictures = words("pixmapUp pixmapDown pixmapHovered pixmapDisabled "
                                    "pixmapUpSelected pixmapDownSelected pixmapHoveredSelected "
                                    "pixmapDisabledSelected");

class Button : public OmImageButton
{
public:
    using OmImageButton::OmImageButton;
    using OmImageButton::refinePictureToDisabledState;
    using OmImageButton::refinePictureToDownState;
    using OmImageButton::refinePictureToHoveredState;
};

using Refinement = QPixmap (OmImageButton::*)(QPixmap);

} // namespace

Q_DECLARE_METATYPE(Refinement)

class tst_OmImageButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pointerIsNotThatOfTheWindowsEdge()
    {
        QVERIFY(m_button->testAttribute(Qt::WA_SetCursor));
        QCOMPARE(m_button->cursor().shape(), Qt::ArrowCursor);
    }

    void picturesAndSignalsFollowTheUser_data()
    {
        // pictures: after each step
        const auto row = columns<QString, QString>("pictures", "signalLog");
        const auto click = "pressed clicked(true) released";
        const auto twoClicks = "pressed clicked(true) released pressed clicked(false) released";
        row("enter press release", "Hovered Down Hovered", click);
        row("press release press release", "Down Up Down Up", twoClicks);
        row("press release doubleClick release", "Down Up Down Up", twoClicks);
        row("enter press leave enter release", "Hovered Down Up Down Hovered", click);
        row("press leave enter leave enter release", "Down Up Down Up Down Hovered", click);
        row("press leave releaseOutside enter", "Down Up Up Hovered", "pressed");
        row("press leave release enter", "Down Up Up Hovered", "pressed");
        row("rightPress rightRelease", "Up Up", "");
        row("press rightPress rightRelease release", "Down Down Up Up", click);
        // A host that hovers the button itself
        row("ignoreHover enter hover leave press leave enter release",
            "Up Up Hovered Hovered Down Hovered Down Hovered", click);
        // States
        row("disable hover", "Disabled Disabled", "");
        row("disable setDown", "Disabled Down", "");
        row("check checkable hover press release",
            "Up UpSelected HoveredSelected DownSelected Hovered",
            "pressed clicked(false) released");
        row("check checkable disable setDown", "Up UpSelected DisabledSelected DownSelected", "");
        // Only a disabled button shows another picture when its own is missing.
        row("noDisabled disable noDown", "Up Down nothing", "");
        row("check checkable noDisabledSelected disable", "Up UpSelected UpSelected DownSelected",
            "");
        row("noHovered hover", "Up nothing", "");
        // While a mouse button is held, Qt tells a widget neither of leaving nor of entering.
        row("hold dragOut moveIn letGo", "Down Up Down Hovered", click);
        row("hold dragOut letGoOutside moveIn", "Down Up Up Hovered", "pressed");
    }

    void picturesAndSignalsFollowTheUser()
    {
        QStringList shown;
        for (const QString &step : words(QTest::currentDataTag())) {
            perform(step);
            shown.append(shownPicture());
        }
        QTEST(shown.join(QLatin1Char(' ')), "pictures");
        QTEST(log(), "signalLog");
    }

    void aLostReleaseDoesNotLeaveTheButtonDown_data()
    {
        const auto row = columns<QString>("signalLog");
        row("hold disable letGo enable enter", "pressed");
        row("hold disable dragOut letGoOutside enable", "pressed");
        row("hold hide letGo show enter", "pressed");
        row("hold hide dragOut letGoOutside show", "pressed");
        row("hold disable enable letGo", "pressed clicked(true) released");
    }

    void aLostReleaseDoesNotLeaveTheButtonDown()
    {
        for (const QString &step : words(QTest::currentDataTag()))
            perform(step);
        QVERIFY(!m_button->isDown());
        QTEST(log(), "signalLog");
    }

    void pictureShiftsByTheOffsetWhileDownOrDisabled()
    {
        m_button->setOffset(2);
        const auto corner = [this](bool down, bool enabled) { // the first pixel that is drawn
            m_button->setDown(down);
            m_button->setEnabled(enabled);
            const QImage image = paintedOnNothing(m_button);
            int at = 0;
            while (at < 16 && qAlpha(image.pixel(at, at)) == 0)
                ++at;
            return at;
        };
        QCOMPARE(corner(false, true), 0);
        QCOMPARE(corner(true, true), 2);
        QCOMPARE(corner(false, false), 2);
    }

    void pictureIsDrawnUnscaledAtItsLogicalSize()
    {
        QImage expected = flatImage(kSize, Qt::transparent, QImage::Format_ARGB32_Premultiplied);
        QPainter(&expected).fillRect(QRect(0, 0, 8, 5), Qt::red);
        for (const int density : {1, 2, 3}) {
            QPixmap picture = flatPixmap(QSize(8, 5) * density, Qt::red);
            picture.setDevicePixelRatio(density);
            m_button->setPixmapUp(picture);
            QCOMPARE(paintedOnNothing(m_button), expected);
        }
        m_button->setPixmapUp(flatPixmap(kSize * 2, Qt::red)); // larger: cut, not scaled
        expected.fill(Qt::red);
        QCOMPARE(paintedOnNothing(m_button), expected);
    }

    void writingRepaintsWhereItMust()
    {
        const QMetaObject &meta = OmImageButton::staticMetaObject;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QByteArray name(meta.property(i).name());
            QCoreApplication::processEvents();
            m_paints = 0;
            m_button->setProperty(name, m_button->property(name)); // also when it is the old value
            QCoreApplication::processEvents();
            QVERIFY2(m_paints == (name == "checkable" || name == "offset" ? 0 : 1), name);
        }
        QCOMPARE(log(), QString());
    }

    void mayBeDeletedInItsSlots()
    {
        for (const char *last :
             {"pressed", "pressed clicked(true)", "pressed clicked(true) released"}) {
            m_lastSignal = QLatin1String(last);
            QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, kInside);
            QVERIFY(!m_button);
            QCOMPARE(log(), m_lastSignal);
            tearDown();
            setUp();
        }
    }

    void refinesColours_data()
    {
        // examples: a channel before and after, and so on
        const auto row = columns<Refinement, QVector<int>>("refinement", "examples");
        row("down", &Button::refinePictureToDownState, {0, 0, 1, 0, 96, 91, 100, 95, 255, 242});
        row("hovered", &Button::refinePictureToHoveredState,
            {0, 0, 19, 19, 96, 100, 224, 235, 243, 255, 254, 255});
        row("disabled", &Button::refinePictureToDisabledState,
            {0, 192, 1, 191, 96, 155, 192, 192, 254, 253, 255, 255});
    }
    void refinesColours()
    {
        QFETCH(Refinement, refinement);
        QFETCH(QVector<int>, examples);
        Button button;
        const auto refine = [&](QRgb color) {
            return (button.*refinement)(flatPixmap(kSize, color)).toImage().pixel(3, 5);
        };
        // One channel at a time, so that none is taken for another.
        const int other = qRed(refine(qRgb(0, 0, 0)));
        for (int i = 0; i < examples.size(); i += 2) {
            const int before = examples[i];
            const int after = examples[i + 1];
            QCOMPARE(refine(qRgb(before, 0, 0)), qRgb(after, other, other));
            QCOMPARE(refine(qRgb(0, before, 0)), qRgb(other, after, other));
            QCOMPARE(refine(qRgb(0, 0, before)), qRgb(other, other, after));
        }
        QVERIFY((button.*refinement)(QPixmap()).isNull());

        QImage image(4, 1, QImage::Format_ARGB32);
        const int alphas[] = {0, 7, 128, 255};
        for (int x = 0; x < 4; ++x)
            image.setPixel(x, 0, qRgba(90, 90, 90, alphas[x]));
        QPixmap picture = QPixmap::fromImage(image);
        picture.setDevicePixelRatio(2);
        const QPixmap refined = (button.*refinement)(picture);
        QCOMPARE(refined.devicePixelRatio(), 2.0);
        for (int x = 0; x < 4; ++x)
            QCOMPARE(qAlpha(refined.toImage().pixel(x, 0)), alphas[x]);
    }

    void setAllPixmapsFillsTheChosenPictures()
    {
        const QPixmap kept = flatPixmap(kSize, 0x123456);
        const QPixmap picture = flatPixmap(kSize, 0x606060);
        Button button;
        const QPixmap refined[] = {picture, button.refinePictureToDownState(picture),
                                   button.refinePictureToHoveredState(picture),
                                   button.refinePictureToDisabledState(picture)};
        for (int flags = 0; flags < 32; ++flags) {
            const auto flag = [flags](int bit) { return (flags >> bit & 1) != 0; };
            for (const QString &state : kPictures)
                button.setProperty(state.toLatin1(), kept);
            button.setAllPixmaps(picture, flag(0), flag(1), flag(2), flag(3), flag(4));
            for (int i = 0; i < 8; ++i) {
                const int state = i % 4;
                const bool filled = flag(i < 4 ? 1 : 0) && (state == 0 || flag(1 + state));
                const QPixmap actual = button.property(kPictures[i].toLatin1()).value<QPixmap>();
                QCOMPARE(actual.toImage(), (filled ? refined[state] : kept).toImage());
            }
        }
        button.setAllPixmaps(QPixmap(), true, true, true, true, true);
        for (const QString &state : kPictures)
            QVERIFY(button.property(state.toLatin1()).value<QPixmap>().isNull());
    }

    void screenReadersSeeAndPressAButton()
    {
        Button button; // A host's subclass is seen as well.
        QAccessibleInterface *const seen = accessible(&button);
        QCOMPARE(seen->role(), QAccessible::Button);
        button.setToolTip("Chat"_q);
        QCOMPARE(accessibleName(&button), "Chat"_q);
        QCOMPARE(seen->text(QAccessible::Description), QString());
        button.setAccessibleName("Start a chat"_q);
        QCOMPARE(accessibleName(&button), "Start a chat"_q);
        QCOMPARE(seen->text(QAccessible::Description), "Chat"_q);

        QVERIFY(!seen->state().checkable && !seen->state().pressed && !seen->state().focusable);
        button.setCheckable(true);
        button.setChecked(true);
        button.setDown(true);
        button.setHovered(true);
        QVERIFY(seen->state().checkable && seen->state().checked && seen->state().pressed);
        QVERIFY(seen->state().hotTracked);

        m_button->setEnabled(false);
        pressAccessibly(m_button);
        QCOMPARE(log(), QString());
        m_button->setEnabled(true);
        QVERIFY(isAccessiblyPressable(m_button));
        pressAccessibly(m_button);
        QCOMPARE(log(), "pressed clicked(true) released"_q);
        QVERIFY(!m_button->isDown());
    }

protected:
    // A window with a button that has all its pictures.
    void setUp() override
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(200, 100);
        m_button = new OmImageButton(m_window.get());
        m_button->setGeometry(QRect(QPoint(20, 20), kSize));
        for (int state = 0; state < kPictures.size(); ++state)
            m_button->setProperty(kPictures[state].toLatin1(),
                                  flatPixmap(kSize, QColor(state + 1, 0, 0)));
        m_button->installEventFilter(this);
        m_log.clear();
        m_lastSignal.clear();
        connect(m_button, &OmImageButton::pressed, this, [this] { note("pressed"_q); });
        connect(m_button, &OmImageButton::clicked, this,
                [this](bool checked) { note(checked ? "clicked(true)"_q : "clicked(false)"_q); });
        connect(m_button, &OmImageButton::released, this, [this] { note("released"_q); });
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void tearDown() override { m_window.reset(); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    // One step of what happens to the button.
    void perform(const QString &step)
    {
        OmImageButton *const b = m_button;
        QWindow *const window = m_window->windowHandle();
        const QMap<QByteArray, std::function<void()>> steps = {
                // by the mouse, sent to the button
                {"enter", [=] { sendEnter(b); }},
                {"leave", [=] { sendLeave(b); }},
                {"press", [=] { QTest::mousePress(b, Qt::LeftButton); }},
                {"release", [=] { QTest::mouseRelease(b, Qt::LeftButton); }},
                {"releaseOutside",
                 [=] {
                     QTest::mouseRelease(b, Qt::LeftButton, {}, {-5, 5});
                 }},
                {"rightPress", [=] { QTest::mousePress(b, Qt::RightButton); }},
                {"rightRelease", [=] { QTest::mouseRelease(b, Qt::RightButton); }},
                {"doubleClick", [=] { QTest::mouseDClick(b, Qt::LeftButton); }},
                // by the mouse, through the window system
                {"hold", [=] { QTest::mousePress(window, Qt::LeftButton, {}, kInside); }},
                {"dragOut", [=] { QTest::mouseMove(window, kOutside); }},
                {"moveIn", [=] { QTest::mouseMove(window, kInside); }},
                {"letGo", [=] { QTest::mouseRelease(window, Qt::LeftButton, {}, kInside); }},
                {"letGoOutside",
                 [=] { QTest::mouseRelease(window, Qt::LeftButton, {}, kOutside); }},
                // by the host
                {"ignoreHover", [=] { b->setIgnoreHovered(true); }},
                {"hover", [=] { b->setHovered(true); }},
                {"setDown", [=] { b->setDown(true); }},
                {"check", [=] { b->setChecked(true); }},
                {"checkable", [=] { b->setCheckable(true); }},
                {"disable", [=] { b->setEnabled(false); }},
                {"enable", [=] { b->setEnabled(true); }},
                {"hide", [=] { b->hide(); }},
                {"show", [=] { b->show(); }},
        };
        if (step.startsWith("no"_q))
            b->setProperty("pixmap" + step.mid(2).toLatin1(), QPixmap());
        else
            steps.value(step.toLatin1())();
    }

    // The name of the state whose picture is shown.
    QString shownPicture()
    {
        const QImage image = paintedOnNothing(m_button);
        const QRgb color = image.pixel(kSize.width() / 2, kSize.height() / 2);
        return qAlpha(color) == 0 ? "nothing"_q : kPictures.value(qRed(color) - 1).mid(6);
    }

    void note(const QString &signal)
    {
        m_log.append(signal);
        if (log() == m_lastSignal)
            delete m_button;
    }
    QString log() const { return m_log.join(QLatin1Char(' ')); }

    std::unique_ptr<QWidget> m_window;
    QPointer<OmImageButton> m_button;
    QStringList m_log;
    QString m_lastSignal; // in which the button is deleted
    int m_paints = 0;
};

OMBRIN_TEST_MAIN(tst_OmImageButton)
#include "tst_omimagebutton.moc"
