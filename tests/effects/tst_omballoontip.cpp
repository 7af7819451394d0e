#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmBalloonTip.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

#include <functional>

using ombrin::MessageIcon;
using ombrin::OmBalloonTip;
using namespace ombrin::test;

namespace {

const QString kTitle = QStringLiteral("Ada");
const QString kMessage = QStringLiteral("I am back at my desk.\nCall me!");
const QPoint kPosition(200, 150);
const QColor kGround(0xff, 0xff, 0xde);

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
    const auto labels = tip->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

QLabel *pictureLabel(const QWidget *tip)
{
    const auto labels = tip->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (!label->pixmap(Qt::ReturnByValue).isNull())
            return label;
    }
    return nullptr;
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
    void aPlainTipShowsItsTextAlone();
    void titleIconAndCloseButtonStandAboveTheMessage();
    void theIconIsTheStylesOne_data();
    void theIconIsTheStylesOne();
    void bubbleAndArrowAreDrawn_data();
    void bubbleAndArrowAreDrawn();
    void aTinyTextStillHasRoomForTheArrow();
    void theNextOneReplacesIt();
    void itGoesWhenItsTimeIsUp();
    void timeoutIsTenSecondsWhenNegativeAndNoneWhenZero();
    void itStaysWhenTheMouseIsOverIt();
    void aClickAnywhereClosesIt_data();
    void aClickAnywhereClosesIt();
    void theCloseButtonClosesIt();
    void hostsMayDeleteItAtAnyTime();
    void balloonsOfTheHostAreNotTheActiveOne();
    void absurdTextsStayOnTheScreen_data();
    void absurdTextsStayOnTheScreen();
    void nothingIsInterpretedInItsTexts();
    void textIsReadableWithADarkPalette();
    void screenReadersSeeAToolTip();
};

void tst_OmBalloonTip::aPlainTipShowsItsTextAlone()
{
    QVERIFY(!OmBalloonTip::isActive());
    showTip();
    QVERIFY(OmBalloonTip::isActive());
    OmBalloonTip *const tip = onlyTip();
    QVERIFY(tip);
    QVERIFY(tip->isVisible());
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

void tst_OmBalloonTip::titleIconAndCloseButtonStandAboveTheMessage()
{
    OmBalloonTip::showBalloon(ombrin::WarningMessageIcon, kTitle, kMessage, kPosition, 0, true,
                              true, true);
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

void tst_OmBalloonTip::theIconIsTheStylesOne_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("standardPixmap");
    QTest::newRow("none") << 0 << -1;
    QTest::newRow("warning") << 1 << int(QStyle::SP_MessageBoxWarning);
    QTest::newRow("critical") << 2 << int(QStyle::SP_MessageBoxCritical);
    QTest::newRow("information") << 3 << int(QStyle::SP_MessageBoxInformation);
    QTest::newRow("unknown") << 4 << -1;
    QTest::newRow("negative") << -7 << -1;
}

void tst_OmBalloonTip::theIconIsTheStylesOne()
{
    QFETCH(int, value);
    QFETCH(int, standardPixmap);
    OmBalloonTip::showBalloon(MessageIcon(value), kTitle, kMessage, kPosition, 0, true, true,
                              false);
    const QLabel *const icon = pictureLabel(onlyTip());
    QCOMPARE(icon != nullptr, standardPixmap >= 0);
    if (!icon)
        return;
    const auto kind = QStyle::StandardPixmap(standardPixmap);
    QCOMPARE(icon->pixmap(Qt::ReturnByValue).toImage(),
             QApplication::style()->standardIcon(kind).pixmap(15, 15).toImage());
}

void tst_OmBalloonTip::bubbleAndArrowAreDrawn_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("arrow");
    QTest::addColumn<bool>("atTop");
    QTest::addColumn<bool>("atLeft");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const int right = screen.right() - 30;
    const int bottom = screen.bottom() - 20;
    QTest::newRow("top left") << QPoint(30, 30) << true << true << true;
    QTest::newRow("top right") << QPoint(right, 30) << true << true << false;
    QTest::newRow("bottom left") << QPoint(30, bottom) << true << false << true;
    QTest::newRow("bottom right") << QPoint(right, bottom) << true << false << false;
    QTest::newRow("no arrow") << QPoint(30, 30) << false << true << true;
    QTest::newRow("no arrow below") << QPoint(right, bottom) << false << false << false;
}

void tst_OmBalloonTip::bubbleAndArrowAreDrawn()
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
    for (const int x : {9, 16, 40, right - 9})
        compare(x, 18, Qt::black);
    for (const int x : {9, 60, right - 9}) {
        compare(x, bottom, Qt::black);
        compare(x, bottom - 2, kGround);
    }
    for (const int y : {18 + 9, bottom - 9}) {
        compare(0, y, Qt::black);
        compare(right, y, Qt::black);
        compare(2, y, kGround);
        compare(right - 2, y, kGround);
    }
    for (const int x : {0, 1, right - 1, right}) {
        for (const int y : {18, 19, bottom - 1, bottom})
            compare(x, y, none);
    }
}

void tst_OmBalloonTip::aTinyTextStillHasRoomForTheArrow()
{
    for (const QString &text : {QString(), QStringLiteral("B")}) {
        showTip(text);
        const QRegion mask = onlyTip()->mask();
        QVERIFY(mask.contains(QPoint(35, 17)));
        QVERIFY(mask.contains(QPoint(onlyTip()->width() - 1, 30)));
        OmBalloonTip::hideBalloon();
        deleteClosed();
    }
}

void tst_OmBalloonTip::theNextOneReplacesIt()
{
    showTip(QStringLiteral("first"));
    const QPointer<OmBalloonTip> first(onlyTip());
    showTip(QStringLiteral("second"));
    QVERIFY(first && !first->isVisible());
    deleteClosed();
    QVERIFY(!first);
    // The end of the first is not the end of the second.
    QVERIFY(OmBalloonTip::isActive());
    QVERIFY(labelWith(onlyTip(), QStringLiteral("second")));

    OmBalloonTip::hideBalloon();
    QVERIFY(!OmBalloonTip::isActive());
    OmBalloonTip::hideBalloon();
    deleteClosed();
    QVERIFY(tips().isEmpty());
}

void tst_OmBalloonTip::itGoesWhenItsTimeIsUp()
{
    showTip(kMessage, 20);
    QVERIFY(OmBalloonTip::isActive());
    QVERIFY(waitFor([] { return !OmBalloonTip::isActive(); }));
    QVERIFY(tips().isEmpty());
}

void tst_OmBalloonTip::timeoutIsTenSecondsWhenNegativeAndNoneWhenZero()
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

void tst_OmBalloonTip::itStaysWhenTheMouseIsOverIt()
{
    showTip(kMessage, 20);
    OmBalloonTip *const tip = onlyTip();
    sendEnter(tip);
    QVERIFY(tip->underMouse());
    QVERIFY(waitFor([tip] { return timeoutOf(tip) == 0; }));
    QVERIFY(tip->isVisible());
    sendLeave(tip);
    QTest::qWait(60);
    QVERIFY(onlyTip() && tip->isVisible());
    QTest::mousePress(tip, Qt::LeftButton);
    deleteClosed();
    QVERIFY(!OmBalloonTip::isActive());
}

void tst_OmBalloonTip::aClickAnywhereClosesIt_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("message") << QPoint(12, 28);
    QTest::newRow("border") << QPoint(1, 30);
    QTest::newRow("arrow") << QPoint(20, 15);
}

void tst_OmBalloonTip::aClickAnywhereClosesIt()
{
    QFETCH(QPoint, place);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        showTip();
        QVERIFY(QTest::qWaitForWindowExposed(onlyTip()));
        QTest::mouseClick(onlyTip()->windowHandle(), button, Qt::NoModifier, place);
        deleteClosed();
        QVERIFY(!OmBalloonTip::isActive());
        QVERIFY(tips().isEmpty());
    }
}

void tst_OmBalloonTip::theCloseButtonClosesIt()
{
    OmBalloonTip::showBalloon(MessageIcon(0), kTitle, kMessage, kPosition, 0, true, true, true);
    auto *const button = onlyTip()->findChild<QPushButton *>();
    QTest::mousePress(button, Qt::LeftButton);
    QVERIFY(onlyTip() && onlyTip()->isVisible());
    QTest::mouseRelease(button, Qt::LeftButton);
    deleteClosed();
    QVERIFY(tips().isEmpty());
}

void tst_OmBalloonTip::hostsMayDeleteItAtAnyTime()
{
    showTip(kMessage, 20);
    delete onlyTip();
    QVERIFY(!OmBalloonTip::isActive());
    QTest::qWait(40);

    Watcher onClose(QEvent::Close, [](QObject *tip) { delete tip; });
    showTip();
    onlyTip()->installEventFilter(&onClose);
    OmBalloonTip::hideBalloon();
    QVERIFY(tips().isEmpty() && !OmBalloonTip::isActive());

    showTip();
    onlyTip()->installEventFilter(&onClose);
    showTip(QStringLiteral("next"));
    QVERIFY(labelWith(onlyTip(), QStringLiteral("next")));
    OmBalloonTip::hideBalloon();

    Watcher replacing(QEvent::Hide, [](QObject *) { showTip(QStringLiteral("other")); });
    deleteClosed();
    showTip();
    OmBalloonTip *const replaced = onlyTip();
    replaced->installEventFilter(&replacing);
    replaced->close();
    deleteClosed();
    QVERIFY(OmBalloonTip::isActive());
    QVERIFY(labelWith(onlyTip(), QStringLiteral("other")));

    delete new OmBalloonTip(MessageIcon(1), kTitle, kMessage, true, true); // never shown
}

void tst_OmBalloonTip::balloonsOfTheHostAreNotTheActiveOne()
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

void tst_OmBalloonTip::absurdTextsStayOnTheScreen_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("message");
    const int many = 100000;
    QTest::newRow("words") << kTitle << QStringLiteral("a few words ").repeated(many / 12);
    QTest::newRow("one word") << kTitle << QString(many, QLatin1Char('x'));
    QTest::newRow("lines") << QString() << QString(many, QLatin1Char('\n'));
    QTest::newRow("title") << QString(many, QLatin1Char('x')) << kMessage;
    QTest::newRow("title of lines") << QString(many, QLatin1Char('\n')) << kMessage;
    QTest::newRow("both") << QString(many, QChar(0x05d0)) << QString(many, QChar(0x05d0));
}

void tst_OmBalloonTip::absurdTextsStayOnTheScreen()
{
    QFETCH(QString, title);
    QFETCH(QString, message);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    for (const QPoint &position : {screen.center(), screen.topLeft(), screen.bottomRight(),
                                   screen.center() + QPoint(200, -100)}) {
        OmBalloonTip::showBalloon(ombrin::CriticalMessageIcon, title, message, position, 0, true,
                                  true, true);
        deleteClosed();
        const QRect shown(onlyTip()->pos(), onlyTip()->size());
        QCOMPARE(screen.united(shown), screen);
    }
}

void tst_OmBalloonTip::nothingIsInterpretedInItsTexts()
{
    const QString hostile = QStringLiteral("<b>R&D</b> &Save e\u0301 \u202e");
    OmBalloonTip::showBalloon(MessageIcon(0), hostile, hostile, kPosition, 0, true, true, false);
    const auto labels = onlyTip()->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 2);
    for (const QLabel *label : labels) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
        const QFontMetrics metrics(label->font());
        QVERIFY(std::abs(label->sizeHint().width() - metrics.horizontalAdvance(hostile)) <= 2);
    }
}

void tst_OmBalloonTip::textIsReadableWithADarkPalette()
{
    const QPalette before = QApplication::palette();
    for (const bool dark : {false, true}) {
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
    }
    QApplication::setPalette(before);
}

void tst_OmBalloonTip::screenReadersSeeAToolTip()
{
    showTip();
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(onlyTip());
    QVERIFY(seen);
    QCOMPARE(seen->role(), QAccessible::ToolTip);
    QCOMPARE(seen->text(QAccessible::Name), kMessage);
    QCOMPARE(seen->text(QAccessible::Description), QString());
    QVERIFY(!seen->state().invisible);

    OmBalloonTip::showBalloon(MessageIcon(0), kTitle, kMessage, kPosition, 0, true, true, true);
    deleteClosed();
    seen = QAccessible::queryAccessibleInterface(onlyTip());
    QCOMPARE(seen->text(QAccessible::Name), kTitle);
    QCOMPARE(seen->text(QAccessible::Description), kMessage);
    QAccessibleInterface *const button =
            QAccessible::queryAccessibleInterface(onlyTip()->findChild<QPushButton *>());
    QCOMPARE(button->role(), QAccessible::Button);
    QCOMPARE(button->text(QAccessible::Name), QStringLiteral("Close"));

    QAccessibleActionInterface *const actions = seen->actionInterface();
    const QString press = QAccessibleActionInterface::pressAction();
    QVERIFY(actions->actionNames().contains(press));
    QVERIFY(!actions->localizedActionDescription(press).isEmpty());
    actions->doAction(press);
    deleteClosed();
    QVERIFY(tips().isEmpty());
}

OMBRIN_TEST_MAIN(tst_OmBalloonTip)
#include "tst_omballoontip.moc"
