#include "support/FileDialogUser.h"
#include "support/MenuUser.h"
#include "support/TaggedLanguage.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmContactCard.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmSettings.h>

#include <functional>
#include <vector>

using namespace ombrin;
using namespace ombrin::test;

namespace {

const QColor kTyping(0x00, 0xff, 0x00);
const QColor kTalking(0xff, 0x00, 0x00);

Om::ClientApplication application(int number)
{
    return static_cast<Om::ClientApplication>(number);
}

QPixmap picture()
{
    return flatPixmap(QSize(40, 20), Qt::darkRed);
}

QToolBar *toolBar(const QWidget *card)
{
    return card->findChild<QToolBar *>("actionToolBar"_q);
}

QStringList ids(const QList<QAction *> &actions)
{
    QStringList names;
    for (const QAction *action : actions)
        names.append(action->objectName());
    return names;
}

QAction *action(const OmContactCard &card, const char *id)
{
    return card.findChild<QAction *>(QLatin1String(id));
}

// The label of a shown card that shows \a text.
OmLabel *label(const OmContactCard &card, const QString &text)
{
    return childWhere<OmLabel>(&card, [&](OmLabel *candidate) {
        return candidate->text() == text && !qobject_cast<OmAvatarSmall *>(candidate);
    });
}

// What the place for typing and talking shows.
QColor indication(const OmContactCard &card)
{
    const QLabel *const place = childWhere<QLabel>(
            &card, [](const QLabel *candidate) { return candidate->size() == QSize(18, 18); });
    const QImage image = place->pixmap(Qt::ReturnByValue).toImage();
    return image.isNull() ? QColor() : image.pixelColor(8, 8);
}

// Opens the context menu of \a card for \a look. Whether a menu came up.
bool openMenu(OmContactCard *card, const std::function<void(QMenu *)> &look)
{
    return useMenu(
            [card] {
                QMetaObject::invokeMethod(card, "slotContextMenu", Q_ARG(QPoint, QPoint(1, 1)));
            },
            look);
}

void release(QWidget *widget, Qt::MouseButton button, const QPoint &position)
{
    // Qt Test would warn where the event is left to the parents.
    QMouseEvent event(QEvent::MouseButtonRelease, position, widget->mapToGlobal(position), button,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(OmContactCard *)>)

class tst_OmContactCard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(registerPictures("testdata/contacts.res")); }

    void offersWhatTheClientCanDo_data()
    {
        const auto row = columns<int, QString>("client", "expected");
        const char *all = "exit chat voip filetransfer webfolder profile block";
        const std::pair<std::vector<int>, const char *> rows[] = {
                {{1}, "profile voip filetransfer webfolder block"},
                {{2}, "exit chat filetransfer"},
                {{3}, "chat filetransfer"},
                {{4}, "exit auth"},
                {{5}, "auth"},
                {{10}, all},
                {{11}, all + 5},
                {{12}, "exit profile voip auth"},
                {{13, 15}, "profile voip auth"},
                {{19}, "chat voip filetransfer"},
                {{-1, 0, 6, 7, 8, 9, 14, 16, 17, 18, 20, 1000}, ""}};
        for (const auto &[clients, actions] : rows) {
            for (const int client : clients)
                row(QByteArray::number(client), client, actions);
        }
    }

    // Each choice is reported once, in the tool bar or in the menu, also of a card never big.
    void offersWhatTheClientCanDo()
    {
        QFETCH(int, client);
        QFETCH(QString, expected);
        OmContactCard card;
        card.setGeneralApp(application(client));
        QSignalSpy chosen(&card, &OmContactCard::actionId);
        const auto triggerAll = [&](QWidget *menu) {
            const QList<QAction *> actions = menu->actions();
            QCOMPARE(ids(actions).join(QLatin1Char(' ')), expected);
            for (QAction *action : actions) {
                chosen.clear();
                action->trigger();
                QCOMPARE(chosen, QList<QVariantList>{{action->objectName()}});
            }
        };
        QCOMPARE(openMenu(&card, triggerAll), !expected.isEmpty());
        card.setBig(true);
        triggerAll(toolBar(&card));

        // Another client counts from the next time on that the card becomes big.
        card.setGeneralApp(application(5));
        card.setBig(true);
        card.setBig(false);
        card.setBig(true);
        QCOMPARE(ids(toolBar(&card)->actions()), {"auth"_q});
    }

    void writesOneTraceLine()
    {
        static QStringList lines;
        lines.clear();
        OmContactCard card;
        card.setOmbrinId("anna"_q);
        const auto previous = qInstallMessageHandler(
                [](QtMsgType type, const QMessageLogContext &, const QString &line) {
                    lines.append(QString::number(type) + QLatin1Char(' ') + line);
                });
        card.setBig(true);
        card.setBig(true);
        card.setStatus(Om::Busy);
        card.setBig(false);
        qInstallMessageHandler(previous);
        const QString line = "0 setBig %1 ombrinId \"anna\""_q;
        QCOMPARE(lines, QStringList({line.arg("true"_q), line.arg("true"_q), line.arg("false"_q)}));
    }

    void showsPresenceInTheUsersLanguage()
    {
        const char *names[] = {"Offline", "Online",         "Away",      "Extended away",
                               "Busy",    "Do not disturb", "Invisible", "Invisible for everyone"};
        OmContactCard card;
        OmContactCard unseen;
        card.show();
        QSignalSpy changed(&card, &OmContactCard::statusChanged);
        QCOMPARE(card.statusName(), QString());
        QCOMPARE(card.status(), Om::Offline);
        for (int status = 0; status < 8; ++status) {
            card.setStatus(static_cast<Om::ContactStatus>(status));
            card.setStatus(static_cast<Om::ContactStatus>(status));
            QCOMPARE(changed.size(), status + 1);
            QCOMPARE(card.statusName(), QLatin1String(names[status]));
            QVERIFY(label(card, card.statusName()));
        }
        card.setStatus(static_cast<Om::ContactStatus>(42));
        QCOMPARE(changed.size(), 9);
        QCOMPARE(card.statusName(), QLatin1String(names[7]));

        unseen.setStatus(Om::Away);
        card.setBlocked(true);
        {
            const TaggedLanguage language;
            const QString tagged = "ombrin::OmContactCard|%1|"_q;
            QVERIFY(label(card, tagged.arg("Invisible for everyone"_q)));
            QCOMPARE(unseen.statusName(), tagged.arg("Away"_q));
            QCOMPARE(action(card, "unblock")->text(), tagged.arg("Unblock Contact"_q));
            QCOMPARE(action(card, "chat")->toolTip(), tagged.arg("Chat with contact"_q));
        }
    }

    void aliasIsPlainTextOfOneLine()
    {
        OmContactCard card;
        QSignalSpy changed(&card, &OmContactCard::aliasChanged);
        const QString alias = "<b>Anna</b>\n&Co \u2028"_q + QString(5000, QLatin1Char('x'));
        card.setAlias(alias);
        card.setAlias(alias);
        QCOMPARE(changed, QList<QVariantList>{{alias}});
        card.resize(200, 48);
        card.show();
        QString line = alias;
        line.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QChar(0x2028), QLatin1Char(' '));
        const QLabel *const shown = label(card, line);
        QVERIFY(shown);
        QCOMPARE(shown->textFormat(), Qt::PlainText);
        QVERIFY(shown->QLabel::text().endsWith(QChar(0x2026)));
        QCOMPARE(card.width(), 200);
    }

    void listenersHearEachAlias()
    {
        OmContactCard card;
        connect(&card, &OmContactCard::aliasChanged, &card, [&card] { card.setAlias("b"_q); });
        QSignalSpy heard(&card, &OmContactCard::aliasChanged);
        card.setAlias("a"_q);
        QCOMPARE(heard, QList<QVariantList>({{"b"_q}, {"a"_q}}));
    }

    void indicationsEndByThemselves()
    {
        OmContactCard card;
        QSignalSpy typing(&card, qOverload<bool>(&OmContactCard::isTyping));
        QSignalSpy talking(&card, qOverload<bool>(&OmContactCard::isTalking));
        card.setTyping(true); // before there is a place for it
        card.show();
        QCOMPARE(indication(card), kTyping);
        card.setTyping(true);
        const int typingTimer = onlyTimer(&card);
        card.setTalking(true);
        QCOMPARE(indication(card), kTalking);

        // The end of the earlier one empties the place of both.
        QTimerEvent foreign(typingTimer + 1000000);
        QCoreApplication::sendEvent(&card, &foreign);
        QVERIFY(card.isTyping() && card.isTalking());
        QTimerEvent end(typingTimer);
        QCoreApplication::sendEvent(&card, &end);
        QVERIFY(!card.isTyping() && card.isTalking());
        QCOMPARE(indication(card), QColor());
        QCOMPARE(typing, (QList<QVariantList>{{true}, {true}, {false}}));
        QVERIFY(onlyTimer(&card) != typingTimer);
        card.setTalking(false);
        card.setTalking(false);
        QCOMPARE(talking, (QList<QVariantList>{{true}, {false}, {false}}));
        QVERIFY(QAbstractEventDispatcher::instance()->registeredTimers(&card).isEmpty());
    }

    void clicksAreLeftReleasesInside()
    {
        OmContactCard card;
        card.setAlias("Anna"_q);
        card.resize(200, 48);
        card.show();
        QSignalSpy clicked(&card, &OmContactCard::clicked);
        QSignalSpy avatarClicked(&card, &OmContactCard::avatarClicked);
        release(&card, Qt::LeftButton, QPoint(199, 47));
        release(label(card, card.alias()), Qt::LeftButton, QPoint(1, 1));
        QCOMPARE(clicked.size(), 2);
        release(&card, Qt::LeftButton, QPoint(200, 47));
        release(&card, Qt::RightButton, QPoint(10, 10));
        QCOMPARE(clicked.size(), 2);
        auto *const avatar = card.findChild<OmAvatarSmall *>();
        release(avatar, Qt::LeftButton, QPoint(5, 5));
        QVERIFY(avatarClicked.isEmpty());
        card.setAvatar(picture(), false);
        release(avatar, Qt::LeftButton, QPoint(5, 5));
        QCOMPARE(avatarClicked.size(), 1);
    }

    void menuOffersToSaveOrChangeThePicture()
    {
        OmContactCard card;
        card.setGeneralApp(application(3));
        card.setAvatar(picture(), false);
        QStringList texts;
        const auto look = [&texts](QMenu *menu) { texts = entriesOf(menu); };
        QVERIFY(openMenu(&card, look));
        const QStringList actions{"Chat with Contact"_q, "Send File"_q};
        QCOMPARE(texts, QStringList({"Save User Picture..."_q, "-"_q}) + actions);
        card.setAvatar(QPixmap(), false);
        QVERIFY(openMenu(&card, look));
        QCOMPARE(texts, actions);

        card.setOwn(true);
        card.setGeneralApp(application(8));
        QSignalSpy newAvatar(&card, qOverload<>(&OmContactCard::newAvatar));
        QVERIFY(openMenu(&card, [&](QMenu *menu) {
            look(menu);
            menu->actions().constFirst()->trigger();
        }));
        QCOMPARE(texts, {"Change My User Picture..."_q});
        QCOMPARE(newAvatar.size(), 1);
    }

    void savesThePictureUnderAHarmlessName()
    {
        const QTemporaryDir folder;
        OmSettings::instance().setFile(folder.filePath("settings.ini"_q));
        OmContactCard card;
        card.setAlias("../../Anna\n"_q);
        card.setGeneralApp(application(3));
        card.setAvatar(picture(), false);
        const QString file = folder.filePath("a.jpg"_q);
        const FileDialogUser user([&](QFileDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), "Save User Picture as..."_q);
            QCOMPARE(FileDialogUser::proposal(dialog), "_._.._Anna"_q);
            FileDialogUser::save(dialog, file);
        });
        QVERIFY(openMenu(&card, [](QMenu *menu) { menu->actions().constFirst()->trigger(); }));
        QVERIFY(waitFor([&] { return QFileInfo::exists(file); }));
        QCOMPARE(QImage(file).size(), picture().size());
        const QVariant saved =
                OmSettings::instance().get("save_avatar_path"_q, QString(), "omchat"_q);
        QCOMPARE(QDir(saved.toString()), QDir(folder.path()));
        OmSettings::instance().setFile(QString());
    }

    void ownCardTakesDroppedPictures()
    {
        OmContactCard card;
        card.setOwn(true);
        QVERIFY(card.acceptDrops());
        QSignalSpy dropped(&card, qOverload<const QStringList &>(&OmContactCard::newAvatar));
        QMimeData data;
        QVERIFY(!dropOn(&card, data));
        QVERIFY(dropped.isEmpty());

        QList<QUrl> urls{QUrl("http://x/y.png"_q)};
        QStringList files{QString()};
        for (int index = 0; index < 10000; ++index) {
            files.append(QDir::rootPath() + QString::number(index));
            urls.append(QUrl::fromLocalFile(files.constLast()));
        }
        data.setUrls(urls);
        QVERIFY(dropOn(&card, data));
        QCOMPARE(dropped.takeFirst(), QVariantList{files});

        data.setImageData(picture().toImage());
        QVERIFY(dropOn(&card, data));
        const QString file = QDir::tempPath() + "/omchat.jpg"_q;
        QCOMPARE(dropped.takeFirst(), QVariantList{QStringList{file}});
        QCOMPARE(QImage(file).size(), picture().size());
        QFile::remove(file);
        card.setOwn(false);
        QVERIFY(!card.acceptDrops());
    }

    void makesItsPartsWhenSeen()
    {
        QScrollArea area;
        auto *column = new QWidget;
        auto *layout = new QVBoxLayout(column);
        auto *first = new OmContactCard;
        auto *last = new OmContactCard;
        layout->addWidget(first);
        layout->addSpacing(2000);
        layout->addWidget(last);
        first->setAvatar(picture(), false);
        first->setTyping(true);
        area.setWidget(column);
        area.resize(200, 200);
        QVERIFY(first->children().isEmpty());
        // Seen for the first time, the card is whole.
        const QImage once = area.grab().toImage();
        QVERIFY(!first->children().isEmpty() && !toolBar(first));
        QVERIFY(last->children().isEmpty());
        QCOMPARE(area.grab().toImage(), once);
        area.show();
        QVERIFY(QTest::qWaitForWindowExposed(&area));
        QCOMPARE(area.grab().toImage(), once);

        OmContactCard lonely;
        QVERIFY(lonely.sizeHint().width() > 60);
        for (const bool big : {false, true, false}) {
            lonely.setBig(big);
            QCOMPARE(lonely.minimumHeight(), big ? 72 : 48);
            QCOMPARE(lonely.maximumHeight(), lonely.minimumHeight());
            QCOMPARE(lonely.findChild<OmAvatarSmall *>()->size(), QSize(1, 1) * (big ? 50 : 32));
            QCOMPARE(toolBar(&lonely)->isVisibleTo(&lonely), big);
        }
    }

    void mayBeDeletedAnywhere_data()
    {
        using Use = std::function<void(OmContactCard *)>;
        QTest::addColumn<Use>("use");
        const auto row = [](const char *name, auto signal, const Use &use) {
            QTest::newRow(name) << Use([signal, use](OmContactCard *card) {
                connect(card, signal, card, [card] { delete card; });
                use(card);
            });
        };
        row("actionId", &OmContactCard::actionId, [](OmContactCard *card) {
            QToolBar *const bar = toolBar(card);
            QTest::mouseClick(bar->widgetForAction(bar->actions().constFirst()), Qt::LeftButton);
        });
        row("actionId, menu", &OmContactCard::actionId, [](OmContactCard *card) {
            openMenu(card, [](QMenu *menu) {
                menu->setActiveAction(menu->actions().constLast());
                QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
                QCoreApplication::sendEvent(menu, &press);
            });
        });
        row("avatarClicked", &OmContactCard::avatarClicked, [](OmContactCard *card) {
            release(card->findChild<OmAvatarSmall *>(), Qt::LeftButton, QPoint(5, 5));
        });
        row("newAvatar, files", qOverload<const QStringList &>(&OmContactCard::newAvatar),
            [](OmContactCard *card) {
                QMimeData data;
                data.setUrls({QUrl::fromLocalFile("/x"_q)});
                card->setOwn(true);
                dropOn(card, data);
            });
        row("clicked", &OmContactCard::clicked,
            [](OmContactCard *card) { release(card, Qt::LeftButton, QPoint(90, 5)); });
        row("statusChanged", &OmContactCard::statusChanged,
            [](OmContactCard *card) { card->setStatus(Om::Away); });
        QTest::newRow("menu is open") << Use(
                [](OmContactCard *card) { openMenu(card, [card](QMenu *) { delete card; }); });
        QTest::newRow("dialog is open") << Use([](OmContactCard *card) {
            const FileDialogUser user([card](QFileDialog *) { delete card; });
            QMetaObject::invokeMethod(card, "slotSaveUserImage");
        });
    }

    void mayBeDeletedAnywhere()
    {
        QFETCH(std::function<void(OmContactCard *)>, use);
        const QPointer<OmContactCard> card = new OmContactCard;
        card->setGeneralApp(application(3));
        card->setAvatar(picture(), false);
        card->resize(300, 72);
        card->show();
        card->setBig(true);
        use(card);
        QVERIFY(!card);
    }

    void assistiveTechnologySeesAListItem()
    {
        OmContactCard card;
        card.setOmbrinId("anna@home"_q);
        card.setStatus(Om::Busy);
        QCOMPARE(accessible(&card)->role(), QAccessible::ListItem);
        QCOMPARE(accessibleName(&card), "anna@home"_q);
        card.setAlias("Anna"_q);
        QCOMPARE(accessibleName(&card), "Anna"_q);
        QCOMPARE(accessible(&card)->text(QAccessible::Description), "Busy"_q);
        QVERIFY(!accessible(&card)->state().selected);
        card.setBig(true);
        QVERIFY(accessible(&card)->state().selected);
        QSignalSpy clicked(&card, &OmContactCard::clicked);
        pressAccessibly(&card);
        QCOMPARE(clicked.size(), 1);
    }

    void slotsKeepTheirOrder()
    {
        QCOMPARE(methodsOf(OmContactCard::staticMetaObject),
                 words("actionId(QString) aliasChanged(QString) avatarClicked() clicked() "
                       "isTyping(bool) isTalking(bool) newAvatar(QStringList) newAvatar() "
                       "statusChanged(Om::ContactStatus) slotAction(QAction*) "
                       "slotContextMenu(QPoint) slotSaveUserImageTimer() slotSaveUserImage()"));
    }

private:
    static int onlyTimer(OmContactCard *card)
    {
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(card);
        return timers.size() == 1 && timers.constFirst().interval == 5000
                       ? timers.constFirst().timerId
                       : -1;
    }
};

OMBRIN_TEST_MAIN(tst_OmContactCard)
#include "tst_omcontactcard.moc"
