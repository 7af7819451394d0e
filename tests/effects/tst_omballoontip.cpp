#include "support/WidgetEvents.h"

#include <ombrin/OmBalloonTip.h>

#include <functional>

using namespace ombrin;
using namespace ombrin::test;

namespace {

const QString kTitle = "Ada"_q;
const QString kMessage = "I am back at my desk.\nCall me!"_q;
const QPoint kPosition(200, 150);
const QColor kGround(0xff, 0xff, 0xde);

// One with all that a balloon can have.
void showFullTip()
{
    OmBalloonTip::showBalloon(WarningMessageIcon, kTitle, kMessage, kPosition, 0, true, true, true);
}

void showTip(const QString &message = kMessage, int timeout = 0, const QPoint &pos = kPosition)
{
    OmBalloonTip::showBalloon(MessageIcon(0), QString(), message, pos, timeout, true, false, false);
}

QVector<OmBalloonTip *> tips()
{
    QVector<OmBalloonTip *> found;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *tip = qobject_cast<OmBalloonTip *>(widget))
            found.append(tip);
    }
    return found;
}

OmBalloonTip *onlyTip()
{
    const QVector<OmBalloonTip *> found = tips();
    return found.size() == 1 ? found.first() : nullptr;
}

void deleteClosed()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QLabel *labelWith(const QWidget *tip, const QString &text)
{
    return childWhere<QLabel>(tip, [&](const QLabel *label) { return label->text() == text; });
}

QLabel *pictureLabel(const QWidget *tip)
{
    return childWhere<QLabel>(
            tip, [](const QLabel *label) { return !label->pixmap(Qt::ReturnByValue).isNull(); });
}

// The interval of the balloon's one timer; 0 without one.
int timeoutOf(OmBalloonTip *tip)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(tip);
    return timers.size() == 1 ? timers.first().interval : -int(timers.size());
}

// Does something when a balloon gets an event of a type.
class Watcher : public QObject
{
public:
    Watcher(QEvent::Type type, std::function<void(QObject *)> action)
        : m_type(type)
        , m_action(std::move(action))
    {}

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const QPointer<QObject> guard(object);
        if (event->type() == m_type)
            m_action(object);
        return guard.isNull();
    }

private:
    QEvent::Type m_type;
    std::function<void(QObject *)> m_action;
};

} // namespace

class tst_OmBalloonTip : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void tearDown() override { OmBalloonTip::hideBalloon(); }

private Q_SLOTS:
    void aPlainTipShowsItsTextAlone()
    {
        QVERIFY(!OmBalloonTip::isActive());
        showTip();
        QVERIFY(OmBalloonTip::isActive());
        OmBalloonTip *const tip = onlyTip();
        QVERIFY(tip && tip->isVisible());
        QCOMPARE(tip->windowType(), Qt::ToolTip);
        QVERIFY(tip->testAttribute(Qt::WA_DeleteOnClose));
        QVERIFY(!tip->parentWidget());

        const QLabel *const message = labelWith(tip, kMessage);
        QVERIFY(message && message->isVisible());
        QCOMPARE(message->alignment(), Qt::AlignLeft | Qt::AlignTop);
        QVERIFY(!labelWith(tip, QString())->isVisible());
        QVERIFY(!tip->findChild<QPushButton *>()->isVisible());
        QVERIFY(!pictureLabel(tip));

        // Margins 4, 21, 4, 3 around the contents and 3 in them.
        QCOMPARE(message->geometry().topLeft(), QPoint(7, 24));
        QCOMPARE(tip->size(), message->sizeHint() + QSize(14, 30));
        QCOMPARE(tip->pos(), kPosition - QPoint(18, 0));
    }

    void titleIconAndCloseButtonStandAboveTheMessage()
    {
        showFullTip();
        const OmBalloonTip *const tip = onlyTip();
        const QLabel *const title = labelWith(tip, kTitle);
        const QLabel *const message = labelWith(tip, kMessage);
        const QLabel *const icon = pictureLabel(tip);
        const auto *const button = tip->findChild<QPushButton *>();
        QVERIFY(title && title->isVisible() && icon && icon->isVisible() && button->isVisible());

        QCOMPARE(title->font().weight(), int(QFont::Bold));
        QCOMPARE(icon->margin(), 2);
        QCOMPARE(icon->size(), QSize(19, 19));
        QCOMPARE(button->size(), QSize(18, 18));
        QCOMPARE(button->iconSize(), QSize(18, 18));
        QVERIFY(!button->icon().isNull());

        QCOMPARE(icon->x(), 7);
        QCOMPARE(title->x(), icon->geometry().right() + 2);
        QCOMPARE(button->geometry().right(), tip->width() - 8);
        QVERIFY(title->geometry().right() < button->x());
        QCOMPARE(title->y(), 24);
        QCOMPARE(message->y(), title->geometry().bottom() + 2);
        QCOMPARE(message->x(), 7);
        QCOMPARE(message->geometry().right(), button->geometry().right());
    }

    void theIconIsTheStylesOne()
    {
        const std::pair<int, int> icons[] = {{0, -1},
                                             {1, QStyle::SP_MessageBoxWarning},
                                             {2, QStyle::SP_MessageBoxCritical},
                                             {3, QStyle::SP_MessageBoxInformation},
                                             {4, -1},
                                             {-7, -1}};
        for (const auto &[value, kind] : icons) {
            OmBalloonTip::showBalloon(MessageIcon(value), kTitle, kMessage, kPosition, 0, true,
                                      true, false);
            deleteClosed();
            const QLabel *const icon = pictureLabel(onlyTip());
            QCOMPARE(icon != nullptr, kind >= 0);
            if (icon) {
                const QIcon expected =
                        QApplication::style()->standardIcon(QStyle::StandardPixmap(kind));
                QCOMPARE(icon->pixmap(Qt::ReturnByValue).toImage(),
                         expected.pixmap(15, 15).toImage());
            }
        }
    }

    void bubbleAndArrowAreDrawn_data()
    {
        const auto row = columns<QPoint, bool, bool, bool>("position", "arrow", "atTop", "atLeft");
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const int right = screen.right() - 30;
        const int bottom = screen.bottom() - 20;
        row("top left", {30, 30}, true, true, true);
        row("top right", {right, 30}, true, true, false);
        row("bottom left", {30, bottom}, true, false, true);
        row("bottom right", {right, bottom}, true, false, false);
        row("no arrow", {30, 30}, false, true, true);
    }

    void bubbleAndArrowAreDrawn()
    {
        QFETCH(QPoint, position);
        QFETCH(bool, arrow);
        QFETCH(bool, atTop);
        QFETCH(bool, atLeft);
        OmBalloonTip::showBalloon(MessageIcon(0), QString(), kMessage, position, 0, arrow, false,
                                  false);
        OmBalloonTip *const tip = onlyTip();
        const int right = tip->width() - 1;
        const int bottom = tip->height() - 1;
        const auto mirrored = [=](int x, int y) {
            return QPoint(atLeft ? x : right - x, atTop ? y : bottom - y);
        };
        // The tip is the pixel at the position, or the one before it.
        const QPoint before(atLeft ? 0 : 1, atTop ? 0 : 1);
        QCOMPARE(tip->pos() + mirrored(18, 0), position - before);

        // Without its texts, for their pixels do not count here.
        const auto labels = tip->findChildren<QLabel *>();
        for (QLabel *label : labels)
            label->setText(QString(label->text().size(), QLatin1Char(' ')));
        const QImage picture = tip->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const qreal density = picture.devicePixelRatio();
        const QRegion mask = tip->mask();
        const auto colorAt = [&](const QPoint &p) {
            return picture.pixelColor(int((p.x() + 0.5) * density), int((p.y() + 0.5) * density));
        };
        const auto compare = [&](int x, int y, const QColor &expected) {
            const QPoint p = mirrored(x, y);
            const QByteArray place = QByteArray::number(x) + ", " + QByteArray::number(y);
            QVERIFY2(mask.contains(p) == expected.isValid(), place);
            // At a fractional density no pixel needs to be one of the outline's alone.
            if (expected.isValid() && density == int(density))
                QVERIFY2(colorAt(p) == expected, place + ": " + qPrintable(colorAt(p).name()));
        };
        const QColor none;
        const QColor strip = arrow ? QColor(Qt::black) : none;
        for (int y = 1; y < 18; ++y) {
            compare(18, y, strip);
            compare(18 + y, y, strip);
            compare(17, y, none);
            compare(20 + y, y, none);
            compare(10, y, none);
            compare(right - 20, y, none);
        }
        for (int y = 5; y < 18; ++y)
            compare(18 + y / 2, y, arrow ? kGround : none);
        compare(27, 18, arrow ? kGround : QColor(Qt::black));
        compare(9, 18, Qt::black);
        compare(40, 18, Qt::black);
        compare(60, bottom, Qt::black);
        compare(60, bottom - 2, kGround);
        compare(0, 27, Qt::black);
        compare(2, 27, kGround);
        compare(right, bottom - 9, Qt::black);
        compare(right - 2, bottom - 9, kGround);
        for (const int x : {0, 1, right - 1, right}) {
            for (const int y : {18, 19, bottom - 1, bottom})
                compare(x, y, none);
        }
    }

    void theNextOneReplacesIt()
    {
        showTip("first"_q);
        const QPointer<OmBalloonTip> first(onlyTip());
        showTip("second"_q);
        QVERIFY(first && !first->isVisible());
        deleteClosed();
        QVERIFY(!first);
        // The end of the first is not the end of the second.
        QVERIFY(OmBalloonTip::isActive());
        QVERIFY(labelWith(onlyTip(), "second"_q));

        OmBalloonTip::hideBalloon();
        QVERIFY(!OmBalloonTip::isActive());
        OmBalloonTip::hideBalloon();
        deleteClosed();
        QVERIFY(tips().isEmpty());
    }

    void timeoutIsTenSecondsWhenNegativeAndNoneWhenZero()
    {
        for (const auto &[timeout, interval] :
             {std::pair(-1, 10000), {INT_MIN, 10000}, {0, 0}, {2000, 2000}}) {
            showTip(kMessage, timeout);
            deleteClosed();
            QCOMPARE(timeoutOf(onlyTip()), interval);
        }
        onlyTip()->balloon(kPosition, 3000, true);
        QCOMPARE(timeoutOf(onlyTip()), 3000);
        onlyTip()->balloon(kPosition, -1, true);
        QCOMPARE(timeoutOf(onlyTip()), 0);
    }

    void absurdPositionsBelongToTheNearestEdge()
    {
        showTip(kMessage, 0);
        const QRect screen = onlyTip()->screen()->geometry();
        onlyTip()->balloon(QPoint(INT_MAX, 300), 0, true);
        QCOMPARE(onlyTip()->x(), screen.right() - onlyTip()->width() - 2);
        onlyTip()->balloon(QPoint(INT_MIN, 300), 0, true);
        QCOMPARE(onlyTip()->x(), screen.left() + 2);
        onlyTip()->balloon(QPoint(300, INT_MAX), 0, true);
        onlyTip()->balloon(QPoint(300, INT_MIN), 0, true);
    }

    void itStaysWhenTheMouseIsOverIt()
    {
        showTip(kMessage, 20);
        OmBalloonTip *const tip = onlyTip();
        sendEnter(tip);
        QVERIFY(tip->underMouse());
        QVERIFY(waitFor([tip] { return timeoutOf(tip) == 0; }));
        QVERIFY(tip->isVisible());
        sendLeave(tip);
        QVERIFY(onlyTip() && tip->isVisible());
        QTest::mousePress(tip, Qt::LeftButton);
        deleteClosed();
        QVERIFY(!OmBalloonTip::isActive());
    }

    void aClickAnywhereClosesIt()
    {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            for (const QPoint &place : {QPoint(12, 28), QPoint(1, 30), QPoint(20, 15)}) {
                showTip();
                QVERIFY(QTest::qWaitForWindowExposed(onlyTip()));
                QTest::mouseClick(onlyTip()->windowHandle(), button, Qt::NoModifier, place);
                deleteClosed();
                QVERIFY(!OmBalloonTip::isActive() && tips().isEmpty());
            }
        }
        showFullTip();
        auto *const button = onlyTip()->findChild<QPushButton *>();
        QTest::mousePress(button, Qt::LeftButton);
        QVERIFY(onlyTip() && onlyTip()->isVisible());
        QTest::mouseRelease(button, Qt::LeftButton);
        deleteClosed();
        QVERIFY(tips().isEmpty());
    }

    void hostsMayDeleteItAtAnyTime()
    {
        showTip(kMessage, 20);
        delete onlyTip();
        QVERIFY(!OmBalloonTip::isActive());

        Watcher onClose(QEvent::Close, [](QObject *tip) { delete tip; });
        showTip();
        onlyTip()->installEventFilter(&onClose);
        OmBalloonTip::hideBalloon();
        QVERIFY(tips().isEmpty() && !OmBalloonTip::isActive());

        showTip();
        onlyTip()->installEventFilter(&onClose);
        showTip("next"_q);
        QVERIFY(labelWith(onlyTip(), "next"_q));
        OmBalloonTip::hideBalloon();

        Watcher replacing(QEvent::Hide, [](QObject *) { showTip("other"_q); });
        deleteClosed();
        showTip();
        OmBalloonTip *const replaced = onlyTip();
        replaced->installEventFilter(&replacing);
        replaced->close();
        deleteClosed();
        QVERIFY(OmBalloonTip::isActive());
        QVERIFY(labelWith(onlyTip(), "other"_q));

        delete new OmBalloonTip(MessageIcon(1), kTitle, kMessage, true, true); // never shown
    }

    void balloonsOfTheHostAreNotTheActiveOne()
    {
        auto *const own = new OmBalloonTip(MessageIcon(0), kTitle, kMessage, true, false);
        own->balloon(kPosition, 0, true);
        QVERIFY(own->isVisible());
        QVERIFY(!OmBalloonTip::isActive());
        OmBalloonTip::hideBalloon();
        QVERIFY(own->isVisible());

        showTip();
        own->close();
        deleteClosed();
        QVERIFY(OmBalloonTip::isActive());
        QVERIFY(onlyTip()->isVisible());
    }

    void absurdTextsStayOnTheScreen_data()
    {
        const auto row = columns<QString, QString>("title", "message");
        const int many = 100000;
        row("words", kTitle, "a few words "_q.repeated(many / 12));
        row("one word", kTitle, QString(many, QLatin1Char('x')));
        row("title", QString(many, QLatin1Char('x')), kMessage);
        row("title of lines", QString(many, QLatin1Char('\n')), kMessage);
    }

    void absurdTextsStayOnTheScreen()
    {
        QFETCH(QString, title);
        QFETCH(QString, message);
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        for (const QPoint &position : {screen.center(), screen.topLeft(), screen.bottomRight()}) {
            OmBalloonTip::showBalloon(ombrin::CriticalMessageIcon, title, message, position, 0,
                                      true, true, true);
            deleteClosed();
            const QRect shown(onlyTip()->pos(), onlyTip()->size());
            QCOMPARE(screen.united(shown), screen);
        }
    }

    void nothingIsInterpretedInItsTexts()
    {
        const QString hostile = "<b>R&D</b> &Save e\u0301 \u202e"_q;
        OmBalloonTip::showBalloon(MessageIcon(0), hostile, hostile, kPosition, 0, true, true,
                                  false);
        const auto labels = onlyTip()->findChildren<QLabel *>();
        QCOMPARE(labels.size(), 2);
        for (const QLabel *label : labels) {
            QCOMPARE(label->textFormat(), Qt::PlainText);
            const QFontMetrics metrics(label->font());
            QVERIFY(std::abs(label->sizeHint().width() - metrics.horizontalAdvance(hostile)) <= 2);
        }
    }

    void textIsReadableWithADarkPalette()
    {
        const QPalette before = QApplication::palette();
        for (const bool dark : {false, true, false, true}) {
            QPalette palette = before;
            const QColor text = dark ? QColor(230, 230, 230) : QColor(31, 35, 39);
            palette.setColor(QPalette::WindowText, text);
            QApplication::setPalette(palette);
            showTip();
            deleteClosed();
            QCOMPARE(labelWith(onlyTip(), kMessage)->palette().color(QPalette::WindowText),
                     dark ? QColor(Qt::black) : text);
            for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
                QCOMPARE(onlyTip()->palette().color(group, QPalette::Window), kGround);
            if (dark) // with a style sheet, under which labels inherit nothing
                qApp->setStyleSheet("QToolTip { color: red }"_q);
        }
        qApp->setStyleSheet(QString());
        QCOMPARE(labelWith(onlyTip(), kMessage)->palette().color(QPalette::WindowText),
                 QColor(Qt::black));
        QApplication::setPalette(before);
    }

    void screenReadersSeeAToolTip()
    {
        showFullTip();
        QCOMPARE(accessible(onlyTip())->role(), QAccessible::ToolTip);
        QCOMPARE(accessibleName(onlyTip()), kTitle);
        QCOMPARE(accessible(onlyTip())->text(QAccessible::Description), kMessage);
        QCOMPARE(accessibleName(onlyTip()->findChild<QPushButton *>()), "Close"_q);
        QVERIFY(isAccessiblyPressable(onlyTip()));
        pressAccessibly(onlyTip());
        deleteClosed();
        QVERIFY(tips().isEmpty());

        showTip(); // without a title
        QCOMPARE(accessibleName(onlyTip()), kMessage);
    }
};

OMBRIN_TEST_MAIN(tst_OmBalloonTip)
#include "tst_omballoontip.moc"
