#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmImageButton.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmMenuItem.h>
#include <ombrin/OmRatingLabel.h>

using namespace ombrin;
using namespace ombrin::test;

// What takes no focus of itself has keys once the host gives it a focus policy.
class tst_KeyboardAccess : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keysClick_data()
    {
        const auto row = columns<QString, QString>("widget", "signalsOfSpace");
        row("image button", "button", "pressed clicked released");
        row("menu item", "item", "clicked");
        row("link", "label", "clicked");
    }
    void keysClick()
    {
        QFETCH(QString, widget);
        QFETCH(QString, signalsOfSpace);
        QWidget *const target = m_widgets.value(widget);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Space); // nothing has the focus
        QCOMPARE(takeLog(), QString());

        const QImage plain = target->grab().toImage();
        giveFocus(target);
        QCOMPARE(target->grab().toImage() == plain, target == m_button); // has its pictures only
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(m_window->windowHandle(), key);
            QCOMPARE(takeLog(), signalsOfSpace);
        }
        for (const bool isRepeated : {false, true, true}) // a key held down
            sendKey(target, QEvent::KeyPress, isRepeated);
        sendKey(target, QEvent::KeyRelease, false);
        QCOMPARE(takeLog(), signalsOfSpace);

        QTest::keyClick(m_window->windowHandle(), Qt::Key_Space, Qt::ControlModifier);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_A);
        m_label->enableLink(false);
        if (target == m_label)
            QTest::keyClick(m_window->windowHandle(), Qt::Key_Space);
        QCOMPARE(takeLog(), QString());
    }

    void anImageButtonIsDownWhileTheKeyIs()
    {
        giveFocus(m_button);
        sendKey(m_button, QEvent::KeyPress, false);
        QVERIFY(m_button->isDown());
        giveFocus(m_item);
        QVERIFY(!m_button->isDown());
        sendKey(m_button, QEvent::KeyRelease, false);
        QCOMPARE(takeLog(), "pressed"_q);

        giveFocus(m_button);
        sendKey(m_button, QEvent::KeyPress, false);
        QTest::mouseRelease(m_button, Qt::LeftButton);
        sendKey(m_button, QEvent::KeyRelease, false);
        QCOMPARE(takeLog(), "pressed clicked released"_q);
    }

    void keysGiveARating_data()
    {
        const auto row = columns<int, Qt::Key, QString>("rating", "key", "signals");
        row("more", 3, Qt::Key_Right, "4");
        row("up", 9, Qt::Key_Up, "10");
        row("no more than five stars", 10, Qt::Key_Plus, "");
        row("less", 1, Qt::Key_Left, "0");
        row("no less than none", 0, Qt::Key_Down, "");
        row("out of range", std::numeric_limits<int>::max(), Qt::Key_Minus, "9");
        row("out of range below", std::numeric_limits<int>::min(), Qt::Key_Minus, "0");
        row("all", 3, Qt::Key_End, "10");
        row("none", 3, Qt::Key_Home, "0");
        row("another key", 3, Qt::Key_Space, "");
    }
    void keysGiveARating()
    {
        QFETCH(int, rating);
        QFETCH(Qt::Key, key);
        m_rating->setRating(rating);
        const QImage plain = m_rating->grab().toImage();
        giveFocus(m_rating);
        QVERIFY(m_rating->grab().toImage() != plain);
        QTest::keyClick(m_window->windowHandle(), key, Qt::ControlModifier);
        QTest::keyClick(m_window->windowHandle(), key);
        QTEST(takeLog(), "signals");
    }

    void widgetsMayBeDeletedInTheirSlots()
    {
        const auto deletesSender = [this] { delete sender(); };
        connect(m_button, &OmImageButton::clicked, this, deletesSender);
        connect(m_item, &OmMenuItem::clicked, this, deletesSender);
        connect(m_label, &OmLabel::clicked, this, deletesSender);
        connect(m_rating, &OmRatingLabel::ratingChanged, this, deletesSender);
        for (const QPointer<QWidget> widget :
             QList<QWidget *>{m_button, m_item, m_label, m_rating}) {
            giveFocus(widget);
            QTest::keyClick(m_window->windowHandle(),
                            widget == m_rating ? Qt::Key_End : Qt::Key_Space);
            QVERIFY(!widget);
        }
    }

protected:
    void setUp() override
    {
        m_window = std::make_unique<QWidget>();
        auto *const column = new QVBoxLayout(m_window.get());
        m_button = new OmImageButton;
        m_button->setFixedSize(16, 16);
        m_item = new OmMenuItem;
        m_label = new OmLabel;
        m_label->setText("A link"_q);
        m_label->enableLink(true);
        m_rating = new OmRatingLabel;
        m_widgets = {{"button"_q, m_button}, {"item"_q, m_item}, {"label"_q, m_label}};
        for (QWidget *widget : QList<QWidget *>{m_button, m_item, m_label, m_rating}) {
            column->addWidget(widget);
            QCOMPARE(widget->focusPolicy(), Qt::NoFocus);
        }
        connect(m_button, &OmImageButton::pressed, this, [this] { m_log += "pressed"_q; });
        connect(m_button, &OmImageButton::clicked, this, [this] { m_log += "clicked"_q; });
        connect(m_button, &OmImageButton::released, this, [this] { m_log += "released"_q; });
        connect(m_item, &OmMenuItem::clicked, this, [this] { m_log += "clicked"_q; });
        connect(m_label, &OmLabel::clicked, this, [this] { m_log += "clicked"_q; });
        connect(m_rating, &OmRatingLabel::ratingChanged, this,
                [this](int rating) { m_log += QString::number(rating); });
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void tearDown() override { m_window.reset(); }

private:
    // By the keyboard, as styles show the focus only to those who use that.
    void giveFocus(QWidget *widget)
    {
        widget->setFocusPolicy(Qt::StrongFocus);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
        QVERIFY(widget->hasFocus());
    }

    static void sendKey(QWidget *target, QEvent::Type type, bool isRepeated)
    {
        QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier, " "_q, isRepeated);
        QCoreApplication::sendEvent(target, &event);
    }

    QString takeLog() { return std::exchange(m_log, {}).join(QLatin1Char(' ')); }

    std::unique_ptr<QWidget> m_window;
    OmImageButton *m_button = nullptr;
    OmMenuItem *m_item = nullptr;
    OmLabel *m_label = nullptr;
    OmRatingLabel *m_rating = nullptr;
    QMap<QString, QWidget *> m_widgets;
    QStringList m_log;
};

OMBRIN_TEST_MAIN(tst_KeyboardAccess)
#include "tst_keyboardaccess.moc"
