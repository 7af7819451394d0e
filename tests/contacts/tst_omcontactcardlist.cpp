#include "support/WidgetEvents.h"

#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmContactCardList.h>

#include <functional>

using namespace ombrin;
using namespace ombrin::test;

namespace {

void click(QWidget *card)
{
    // Qt Test would warn that the card leaves the event to its parents.
    const QPoint place(card->width() - 2, 2);
    QMouseEvent event(QEvent::MouseButtonRelease, place, card->mapToGlobal(place), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(card, &event);
}

void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

// Which cards are big, by their places.
QString bigCards(const OmContactCardList &list)
{
    QString places;
    for (int index = 0; index < list.size(); ++index) {
        if (list.card(index)->isBig())
            places += QString::number(index);
    }
    return places;
}

// Counts the events of a kind that widgets get.
class Counter : public QObject
{
public:
    explicit Counter(const QVector<QEvent::Type> &types)
        : m_types(types)
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (m_types.contains(event->type()) && qobject_cast<OmContactCard *>(object))
            cards.insert(object);
        return false;
    }
    QSet<QObject *> cards;

private:
    QVector<QEvent::Type> m_types;
};

} // namespace

class tst_OmContactCardList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(registerPictures("testdata/contacts.res")); }

    void keepsCardsInOrderAboveTheButton()
    {
        OmContactCardList list;
        QVERIFY(!list.card(0) && !list.card(-1) && !list.currentCard());
        QSignalSpy added(&list, &OmContactCardList::added);
        list.addCard(nullptr);
        fill(&list, 3);
        list.addCard(list.card(0));
        list.addCard(list.card(2));
        list.removeCard(nullptr);
        OmContactCard stranger;
        list.removeCard(&stranger);
        QCOMPARE(added.size(), 3);
        QCOMPARE(qvariant_cast<OmContactCard *>(added.at(2).first()), list.card(2));
        QCOMPARE(list.size(), 3);
        QVERIFY(!list.card(3) && !list.card(-1));
        QCOMPARE(list.currentCard(), list.card(0));
        QCOMPARE(bigCards(list), "0"_q);

        auto *const button = list.findChild<QToolButton *>();
        QCOMPARE(button->toolTip(), "Add Contact(s)"_q);
        list.resize(200, 600);
        list.show();
        QSignalSpy addContact(&list, &OmContactCardList::addContact);
        for (const bool enable : {true, false, true}) {
            list.enableAddContact(enable);
            QCOMPARE(button->isVisible(), enable);
            button->click();
        }
        QCOMPARE(addContact.size(), 3);
        fill(&list, 1);
        settle();
        const int bottom = 72 + 3 * 48;
        QCOMPARE(button->mapTo(list.widget(), QPoint(0, 0)).y(), bottom);
        QCOMPARE(accessible(list.widget())->role(), QAccessible::List);
        QCOMPARE(accessible(list.card(1))->parent()->object(), list.widget());
    }

    void clickMakesOneCardBigAndScrollsToIt()
    {
        OmContactCardList list;
        fill(&list, 40);
        list.resize(200, 300);
        list.show();
        settle();
        for (const int index : {3, 39, 39, 0, 20}) {
            OmContactCard *const card = list.card(index);
            click(card);
            if (index == 20) { // as a host does that handles keys
                list.verticalScrollBar()->setValue(0);
                card->setBig(false);
                card->setBig(true);
            }
            settle();
            QCOMPARE(bigCards(list), QString::number(index));
            QVERIFY(list.viewport()->rect().contains(
                    QRect(card->mapTo(list.viewport(), QPoint(0, 0)), card->size())));
        }
        QCOMPARE(list.currentCard(), list.card(0));
    }

    void hostsRecordTheCurrentCardByTheNameOfTheSlot()
    {
        OmContactCardList list;
        fill(&list, 3);
        QVERIFY(QMetaObject::invokeMethod(&list, "slotClickedTimer")); // sent by nobody
        for (int index = 0; index < 3; ++index) {
            list.card(index)->disconnect(&list);
            QVERIFY(connect(list.card(index), SIGNAL(clicked()), &list, SLOT(slotClickedTimer())));
        }
        click(list.card(2));
        QCOMPARE(list.currentCard(), list.card(2));
        QCOMPARE(bigCards(list), "0"_q);
        QVERIFY(waitFor([&] { return bigCards(list) == "2"_q; }));

        // The last of three, and the current one.
        list.removeCard(list.card(2));
        QCOMPARE(bigCards(list), "1"_q);
        QCOMPARE(list.currentCard(), list.card(0));
        click(list.card(1));
        list.removeCard(list.card(1)); // before its time
        QTest::qWait(50);
        QCOMPARE(bigCards(list), "0"_q);
    }

    void neighbourTakesThePlaceOfTheCurrentCard()
    {
        const std::tuple<int, int, const char *> cases[] = {
                {0, 0, "0"}, {2, 0, "01"}, {0, 1, "0"}, {1, 1, ""}};
        for (const auto &[clicked, removed, big] : cases) {
            OmContactCardList list;
            fill(&list, 3);
            click(list.card(clicked));
            const QPointer<OmContactCard> card = list.card(removed);
            list.removeCard(card);
            QVERIFY(!card);
            QCOMPARE(bigCards(list), QLatin1String(big));
        }
    }

    void forgetsCardsThatGoTheirOwnWay()
    {
        OmContactCardList list;
        OmContactCardList other;
        QWidget window;
        fill(&list, 5);
        OmContactCard *const moved = list.card(4);
        QSignalSpy chosen(&list, &OmContactCardList::actionId);
        delete list.card(0);
        list.card(0)->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        OmContactCard *const taken = list.card(0);
        taken->setParent(&window);
        other.addCard(moved);
        QCOMPARE(list.size(), 1);
        QCOMPARE(other.size(), 1);
        Q_EMIT taken->actionId("chat"_q);
        Q_EMIT moved->actionId("chat"_q);
        QVERIFY(chosen.isEmpty());
        click(taken);
        QVERIFY(!taken->isBig());

        list.addCard(taken);
        Q_EMIT taken->actionId("chat"_q);
        QCOMPARE(chosen, QList<QVariantList>({{"chat"_q, "id 2"_q}}));
    }

    void mayBeDeletedInAnySlot()
    {
        const std::function<void(OmContactCardList *, OmContactCard *)> ends[] = {
                [](OmContactCardList *list, OmContactCard *card) { list->removeCard(card); },
                [](OmContactCardList *, OmContactCard *card) { delete card; },
                [](OmContactCardList *list, OmContactCard *) { delete list; },
        };
        for (const auto &end : ends) {
            for (const bool isAction : {false, true}) {
                QPointer<OmContactCardList> list = new OmContactCardList;
                fill(list, 3);
                list->show();
                const QPointer<OmContactCard> card = list->card(1);
                connect(card, &OmContactCard::clicked, list, [&] { end(list, card); });
                connect(list, &OmContactCardList::actionId, list, [&] { end(list, card); });
                if (isAction) {
                    card->setBig(true);
                    card->findChild<QAction *>("chat"_q)->trigger();
                } else {
                    click(card);
                }
                settle();
                QVERIFY(!card);
                delete list;
            }
        }
    }

    void cardsAreMirroredWithTheirList()
    {
        OmContactCardList list;
        fill(&list, 2);
        list.show();
        settle();
        OmContactCard *const card = list.card(1);
        card->grab(); // which makes its parts
        const auto *const avatar = card->findChild<OmAvatarSmall *>();
        const QRect mirrored =
                QStyle::visualRect(Qt::RightToLeft, card->rect(), avatar->geometry());
        list.setLayoutDirection(Qt::RightToLeft);
        settle();
        QCOMPARE(avatar->geometry(), mirrored);
        for (const OmLabel *label : card->findChildren<OmLabel *>())
            QVERIFY(label->text().isEmpty() || label->alignment().testFlag(Qt::AlignRight));
    }

    void surroundingsStayAlone()
    {
        OmContactCardList list;
        fill(&list, 200);
        list.resize(200, 400);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        settle();
        {
            const Counter painted({QEvent::Paint, QEvent::LayoutRequest});
            list.card(2)->setStatus(Om::Busy);
            settle();
            QCOMPARE(painted.cards, QSet<QObject *>{list.card(2)});
        }
        const Counter moved({QEvent::Move, QEvent::Resize});
        click(list.card(1));
        settle();
        QCOMPARE(moved.cards, QSet<QObject *>({list.card(0), list.card(1)}));
        QVERIFY(list.card(150)->children().isEmpty());
        list.verticalScrollBar()->setValue(150 * 48);
        settle();
        QVERIFY(!list.card(150)->children().isEmpty());
    }

    // Whatever happens, the cards stand one below the other and fill the width.
    void cardsStandWithoutGaps()
    {
        OmContactCardList list;
        fill(&list, 30);
        list.show();
        QRandomGenerator random(7);
        const auto any = [&] { return list.card(random.bounded(list.size())); };
        const std::function<void()> steps[] = {
                [&] { any()->setBig(true); },
                [&] { any()->setBig(false); },
                [&] { click(any()); },
                [&] { any()->setVisible(random.bounded(2)); },
                [&] { list.resize(150 + random.bounded(100), 300); },
                [&] { list.removeCard(any()); },
                [&] { fill(&list, 1); },
                [&] { settle(); },
                [&] { any()->setFont(QFont(list.font().family(), 8)); },
                [&] { list.setVisible(random.bounded(4)); },
        };
        for (int round = 0; round < 600; ++round) {
            steps[random.bounded(int(std::size(steps)))]();
            if (list.size() < 10)
                fill(&list, 10);
            if (round % 3)
                continue;
            list.show();
            settle();
            int bottom = 0;
            for (int index = 0; index < list.size(); ++index) {
                const OmContactCard *const card = list.card(index);
                if (card->isHidden())
                    continue;
                QCOMPARE(card->geometry(),
                         QRect(0, bottom, list.viewport()->width(), card->isBig() ? 72 : 48));
                bottom += card->height();
            }
            QCOMPARE(list.widget()->height(), qMax(list.viewport()->height(), bottom));
        }
    }

private:
    static void fill(OmContactCardList *list, int count)
    {
        for (int index = 0; index < count; ++index) {
            auto *card = new OmContactCard;
            card->setOmbrinId("id %1"_q.arg(list->size()));
            card->setAlias("Contact %1"_q.arg(list->size()));
            card->setGeneralApp(static_cast<Om::ClientApplication>(3));
            list->addCard(card);
        }
    }
};

OMBRIN_TEST_MAIN(tst_OmContactCardList)
#include "tst_omcontactcardlist.moc"
