#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmBalloonTip.h>
#include <ombrin/OmPushButton.h>
#include <ombrin/OmToolButton.h>

using namespace ombrin::test;
using namespace ombrin;

namespace {

using Factory = QAbstractButton *(*)();

template <typename Button>
QAbstractButton *make()
{
    return new Button;
}

// The texts that the visible balloon shows.
QStringList shownTexts()
{
    QStringList texts;
    if (const auto *tip = shown<OmBalloonTip>()) {
        const auto labels = tip->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->isVisible())
                texts.append(label->text());
        }
    }
    return texts;
}

// Whether the widget, or one it is in, took the request.
bool askForToolTip(QWidget *widget)
{
    const QPoint inside(3, 3);
    QHelpEvent event(QEvent::ToolTip, inside, widget->mapToGlobal(inside));
    return QCoreApplication::sendEvent(widget, &event) && event.isAccepted();
}

} // namespace

Q_DECLARE_METATYPE(Factory)

class tst_BalloonButtons : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(100, 100, 300, 100);
    }
    void tearDown() override
    {
        OmBalloonTip::hideBalloon();
        m_window.reset();
    }

private Q_SLOTS:
    void hoveringShowsTheToolTipBelowTheButton_data() { buttons(); }
    void hoveringShowsTheToolTipBelowTheButton()
    {
        QAbstractButton *const button = addButton("Call <b>Ada</b> & Max"_q);
        QVERIFY(askForToolTip(button));
        QVERIFY(OmBalloonTip::isActive());
        QCOMPARE(shownTexts(), QStringList(button->toolTip()));
        QVERIFY(!shown<OmBalloonTip>()->findChild<QPushButton *>()->isVisible());

        const QPoint tip = shown<OmBalloonTip>()->pos() + QPoint(18, 0);
        QCOMPARE(tip, button->mapToGlobal(QPoint(40, 25))); // 81 x 25
        QVERIFY(shown<OmBalloonTip>()->mask().contains(QPoint(18, 1)));
        const auto timers =
                QAbstractEventDispatcher::instance()->registeredTimers(shown<OmBalloonTip>());
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.first().interval, 2000);

        sendLeave(button);
        QVERIFY(!OmBalloonTip::isActive());
        QVERIFY(!shown<OmBalloonTip>());
    }

    void onlyOneTipIsUp_data() { buttons(); }
    void onlyOneTipIsUp()
    {
        QVERIFY(!askForToolTip(addButton(QString()))); // leaves it to its parent
        m_window->setToolTip("The window"_q);
        QAbstractButton *const disabled = addButton("Disabled"_q);
        disabled->setEnabled(false);
        QVERIFY(askForToolTip(disabled)); // swallowed, so that the window shows nothing either
        QVERIFY(!OmBalloonTip::isActive());

        QAbstractButton *const first = addButton("First"_q);
        QVERIFY(askForToolTip(first));
        QVERIFY(askForToolTip(addButton("Second"_q)));
        delete first;
        QCOMPARE(shownTexts(), QStringList("First"_q));
        QTest::mouseClick(shown<OmBalloonTip>(), Qt::LeftButton);
        QVERIFY(!shown<OmBalloonTip>());
    }

    void aToolButtonShowsTheToolTipOfItsAction()
    {
        auto *const button = new OmToolButton(m_window.get());
        QAction action("&Save"_q);
        button->setDefaultAction(&action);
        button->setAutoRaise(true);
        m_window->show();
        sendEnter(button);
        QVERIFY(askForToolTip(button));
        QCOMPARE(shownTexts(), QStringList("Save"_q));
        sendLeave(button);
        QVERIFY(!button->underMouse());
    }

private:
    static void buttons()
    {
        const auto row = columns<Factory>("make");
        row("push button", &make<OmPushButton>);
        row("tool button", &make<OmToolButton>);
    }

    QAbstractButton *addButton(const QString &toolTip)
    {
        const auto factory = *static_cast<Factory *>(QTest::qData("make", qMetaTypeId<Factory>()));
        QAbstractButton *const button = factory();
        button->setParent(m_window.get());
        button->setGeometry(100, 20, 81, 25);
        button->setToolTip(toolTip);
        m_window->show();
        button->show();
        return button;
    }

    std::unique_ptr<QWidget> m_window;
};

OMBRIN_TEST_MAIN(tst_BalloonButtons)
#include "tst_balloonbuttons.moc"
