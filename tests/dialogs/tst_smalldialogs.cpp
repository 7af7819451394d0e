#include "dialogs/DialogUser.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmCalendar.h>
#include <ombrin/OmInputDialog.h>
#include <ombrin/OmMessageBox.h>

#include <QtCore/QProcess>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTableView>

#include <cstdio>

using namespace dialog_user;
using ombrin::OmCalendar;
using ombrin::OmInputDialog;
using ombrin::OmMessageBox;

namespace {

template <typename Dialog>
using Act = std::function<void(Dialog *)>;

constexpr const char *kPrintFirstDay = "--print-first-day";

template <typename Dialog>
Act<Dialog> key(Qt::Key key)
{
    return [key](Dialog *dialog) { type(dialog, key); };
}

template <typename Dialog>
Act<Dialog> press(const char *text)
{
    return [text](Dialog *dialog) { click(button(dialog, text)); };
}

template <typename Dialog>
Act<Dialog> closeFrame()
{
    return [](Dialog *dialog) { click(closeButton(dialog)); };
}

QString ask(const Act<OmInputDialog> &act, bool *ok, const QString &text = QString())
{
    whenOpen<OmInputDialog>(act);
    return OmInputDialog::getText(nullptr, QStringLiteral("Title"), QStringLiteral("Prompt"),
                                  QLineEdit::Normal, text, ok);
}

QString choose(const Act<OmInputDialog> &act, bool *ok, int current = 0, bool editable = false)
{
    whenOpen<OmInputDialog>(act);
    const QStringList list = {QStringLiteral("Apple"), QStringLiteral("Pear")};
    return OmInputDialog::getItem(nullptr, QStringLiteral("Title"), QStringLiteral("Prompt"), list,
                                  current, editable, ok);
}

/// The middle of a day of the month shown, in the dialog.
QPoint dayPosition(OmCalendar *calendar, const QString &day)
{
    const auto *view = calendar->findChild<QTableView *>();
    const QAbstractItemModel *model = view->model();
    for (int row = 2; row < model->rowCount(); ++row) { // past the days of the month before
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            if (index.data().toString() == day)
                return view->viewport()->mapTo(calendar, view->visualRect(index).center());
        }
    }
    return QPoint();
}

} // namespace

Q_DECLARE_METATYPE(Act<OmMessageBox>)
Q_DECLARE_METATYPE(Act<OmInputDialog>)
Q_DECLARE_METATYPE(Act<OmCalendar>)

class tst_SmallDialogs : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(flat_skin::registerSkin()); }

    void messageBoxReturnsTheAnswer_data();
    void messageBoxReturnsTheAnswer();
    void messageBoxLooksAsDescribed_data();
    void messageBoxLooksAsDescribed();
    void newMessageBoxShowsAllButtons();
    void messageBoxBlocksItsParent();

    void textIsReturnedWhenAccepted_data();
    void textIsReturnedWhenAccepted();
    void passwordIsMaskedButReturned();
    void itemIsReturnedWhenAccepted_data();
    void itemIsReturnedWhenAccepted();
    void inputDialogLooksAsDescribed();

    void dateIsReturnedWhenChosen_data();
    void dateIsReturnedWhenChosen();
    void weeksBeginAsTheSystemsLocaleHasIt_data();
    void weeksBeginAsTheSystemsLocaleHasIt();

    void languageChangeReachesOpenDialogs();
    void dialogsAreRejectedWhenTheirParentDies();
};

void tst_SmallDialogs::messageBoxReturnsTheAnswer_data()
{
    QTest::addColumn<bool>("isQuestion");
    QTest::addColumn<Act<OmMessageBox>>("act");
    QTest::addColumn<int>("answer");
    using Box = OmMessageBox;
    QTest::newRow("ok") << false << press<Box>("&Ok") << 0;
    QTest::newRow("information: enter") << false << key<Box>(Qt::Key_Return) << 0;
    QTest::newRow("information: escape") << false << key<Box>(Qt::Key_Escape) << 0;
    QTest::newRow("information: closed") << false << closeFrame<Box>() << 0;
    QTest::newRow("yes") << true << press<Box>("&Yes") << 1;
    QTest::newRow("no") << true << press<Box>("&No") << 0;
    QTest::newRow("question: return") << true << key<Box>(Qt::Key_Return) << 1;
    QTest::newRow("question: keypad enter") << true << key<Box>(Qt::Key_Enter) << 1;
    QTest::newRow("question: escape") << true << key<Box>(Qt::Key_Escape) << 0;
    QTest::newRow("question: closed") << true << closeFrame<Box>() << 0;
    QTest::newRow("question: destroyed") << true << Act<Box>([](Box *box) { delete box; }) << 0;
}

void tst_SmallDialogs::messageBoxReturnsTheAnswer()
{
    QFETCH(bool, isQuestion);
    QFETCH(Act<OmMessageBox>, act);
    whenOpen<OmMessageBox>(act);
    const auto call = isQuestion ? &OmMessageBox::question : &OmMessageBox::information;
    QTEST(call(nullptr, QStringLiteral("Title"), QStringLiteral("Text")), "answer");
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_SmallDialogs::messageBoxLooksAsDescribed_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("texts") << QStringLiteral("Title") << QStringLiteral("A text\nof two lines");
    QTest::newRow("no texts") << QString() << QString();
}

void tst_SmallDialogs::messageBoxLooksAsDescribed()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    whenOpen<OmMessageBox>([&](OmMessageBox *box) {
        QCOMPARE(box->windowTitle(), title);
        QCOMPARE(box->windowTitleOnly(), title);
        const auto labels = box->findChildren<QLabel *>();
        QCOMPARE(labels.value(0)->size(), QSize(48, 48));
        QCOMPARE(labels.value(0)->alignment(), Qt::AlignCenter);
        QCOMPARE(labels.value(1)->text(), text);
        QVERIFY(!labels.value(1)->wordWrap());
        QCOMPARE(box->size(), box->minimumSizeHint().expandedTo(QSize(174, 35)));
        for (const char *caption : {"&Yes", "&No"})
            QCOMPARE(button(box, caption)->size(), QSize(110, 26));
        QVERIFY(button(box, "&Yes")->isDefault());
        QVERIFY(!button(box, "&Ok"));
        // The buttons stand in the middle.
        const int left = button(box, "&Yes")->geometry().left();
        const int right = box->width() - 1 - button(box, "&No")->geometry().right();
        QVERIFY(std::abs(left - right) <= 1);
        box->reject();
    });
    OmMessageBox::question(nullptr, title, text);
}

void tst_SmallDialogs::newMessageBoxShowsAllButtons()
{
    OmMessageBox box;
    for (const char *caption : {"&Ok", "&Yes", "&No"})
        QCOMPARE(button(&box, caption)->minimumSize(), QSize(110, 26));
    QCOMPARE(box.metaObject()->methodOffset(), box.metaObject()->methodCount());
}

void tst_SmallDialogs::messageBoxBlocksItsParent()
{
    QPushButton parent;
    int clicks = 0;
    connect(&parent, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    whenOpen<OmMessageBox>([&parent](OmMessageBox *box) {
        click(&parent);
        box->accept();
    });
    QCOMPARE(OmMessageBox::question(&parent, QString(), QString()), 1);
    QCOMPARE(clicks, 0);
    click(&parent);
    QCOMPARE(clicks, 1);
}

void tst_SmallDialogs::textIsReturnedWhenAccepted_data()
{
    QTest::addColumn<Act<OmInputDialog>>("act");
    QTest::addColumn<QString>("answer");
    using Dialog = OmInputDialog;
    const auto empty = [](Dialog *dialog) {
        dialog->findChild<QLineEdit *>()->clear();
        type(dialog, Qt::Key_Return);
    };
    QTest::newRow("return") << key<Dialog>(Qt::Key_Return) << QStringLiteral("preset");
    QTest::newRow("ok") << press<Dialog>("&Ok") << QStringLiteral("preset");
    QTest::newRow("typed over") << Act<Dialog>([](Dialog *dialog) {
        type(dialog, QStringLiteral("new"));
        type(dialog, Qt::Key_Enter);
    }) << QStringLiteral("new");
    QTest::newRow("empty") << Act<Dialog>(empty) << QStringLiteral("");
    QTest::newRow("cancel") << press<Dialog>("&Cancel") << QString();
    QTest::newRow("escape") << key<Dialog>(Qt::Key_Escape) << QString();
    QTest::newRow("closed") << closeFrame<Dialog>() << QString();
    QTest::newRow("destroyed") << Act<Dialog>([](Dialog *dialog) { delete dialog; }) << QString();
}

void tst_SmallDialogs::textIsReturnedWhenAccepted()
{
    QFETCH(Act<OmInputDialog>, act);
    QFETCH(QString, answer);
    bool ok = answer.isNull();
    const QString text = ask(act, &ok, QStringLiteral("preset"));
    QCOMPARE(text, answer);
    QCOMPARE(text.isNull(), answer.isNull());
    QCOMPARE(ok, !answer.isNull());
    QCOMPARE(ask(act, nullptr, QStringLiteral("preset")), answer);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_SmallDialogs::passwordIsMaskedButReturned()
{
    whenOpen<OmInputDialog>([](OmInputDialog *dialog) {
        const auto *edit = dialog->findChild<QLineEdit *>();
        QCOMPARE(dialog->focusWidget(), edit);
        QCOMPARE(edit->displayText().size(), 6);
        QVERIFY(!edit->displayText().contains(QStringLiteral("secret")));
        dialog->accept();
    });
    bool ok = false;
    QCOMPARE(OmInputDialog::getText(nullptr, QString(), QString(), QLineEdit::Password,
                                    QStringLiteral("secret"), &ok),
             QStringLiteral("secret"));
    QVERIFY(ok);
}

void tst_SmallDialogs::itemIsReturnedWhenAccepted_data()
{
    QTest::addColumn<Act<OmInputDialog>>("act");
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QString>("answer");
    using Dialog = OmInputDialog;
    const Act<Dialog> accept = key<Dialog>(Qt::Key_Return);
    QTest::newRow("first") << accept << 0 << false << QStringLiteral("Apple");
    QTest::newRow("second") << accept << 1 << false << QStringLiteral("Pear");
    QTest::newRow("beyond the list") << accept << 2 << false << QStringLiteral("");
    QTest::newRow("below the list") << accept << -7 << true << QStringLiteral("");
    QTest::newRow("moved down") << Act<Dialog>([](Dialog *dialog) {
        type(dialog, Qt::Key_Down);
        type(dialog, Qt::Key_Return);
    }) << 0 << false << QStringLiteral("Pear");
    QTest::newRow("typed") << Act<Dialog>([](Dialog *dialog) {
        dialog->findChild<QLineEdit *>()->clear();
        type(dialog, QStringLiteral("plum"));
        type(dialog, Qt::Key_Return);
    }) << 1 << true << QStringLiteral("plum");
    QTest::newRow("cancelled") << press<Dialog>("&Cancel") << 1 << true << QString();
    QTest::newRow("input destroyed") << Act<Dialog>([](Dialog *dialog) {
        delete dialog->findChild<QComboBox *>();
        dialog->accept();
    }) << 1 << false << QString();
}

void tst_SmallDialogs::itemIsReturnedWhenAccepted()
{
    QFETCH(Act<OmInputDialog>, act);
    QFETCH(int, current);
    QFETCH(bool, editable);
    QFETCH(QString, answer);
    bool ok = answer.isNull();
    const QString item = choose(act, &ok, current, editable);
    QCOMPARE(item, answer);
    QCOMPARE(item.isNull(), answer.isNull());
    QCOMPARE(ok, !answer.isNull());
    QCOMPARE(choose(act, nullptr, current, editable), answer);
}

void tst_SmallDialogs::inputDialogLooksAsDescribed()
{
    const auto check = [](OmInputDialog *dialog) {
        QCOMPARE(dialog->windowTitleOnly(), QStringLiteral("Title"));
        const auto labels = dialog->findChildren<QLabel *>();
        QCOMPARE(labels.value(0)->size(), QSize(48, 48));
        QCOMPARE(labels.value(1)->text(), QStringLiteral("Prompt"));
        for (const char *caption : {"&Ok", "&Cancel"})
            QCOMPARE(button(dialog, caption)->size(), QSize(110, 26));
        QVERIFY(button(dialog, "&Ok")->isDefault());
        QCOMPARE(dialog->size(), dialog->minimumSizeHint());
        auto *input = dialog->focusWidget();
        QVERIFY(input->geometry().top() > labels.value(1)->geometry().bottom());
        QCOMPARE(input->accessibleName(), QStringLiteral("Prompt"));
        if (qobject_cast<QComboBox *>(input))
            QCOMPARE(input->height(), 22);
        // Input, "Ok", "Cancel".
        type(dialog, Qt::Key_Tab);
        QVERIFY(button(dialog, "&Ok")->hasFocus());
        type(dialog, Qt::Key_Tab);
        QVERIFY(button(dialog, "&Cancel")->hasFocus());
        dialog->reject();
    };
    bool ok = true;
    ask(check, &ok);
    QVERIFY(!ok);
    choose(check, nullptr);
}

void tst_SmallDialogs::dateIsReturnedWhenChosen_data()
{
    QTest::addColumn<Act<OmCalendar>>("act");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QDate>("answer");
    const QDate date(2011, 3, 14);
    const Act<OmCalendar> clickDay = [](OmCalendar *calendar) {
        QTest::mouseClick(calendar->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          dayPosition(calendar, QStringLiteral("23")));
    };
    const Act<OmCalendar> byKeyboard = [](OmCalendar *calendar) {
        calendar->findChild<QTableView *>()->setFocus();
        type(calendar, Qt::Key_Right);
        type(calendar, Qt::Key_Return);
    };
    QTest::newRow("clicked") << clickDay << date << QDate(2011, 3, 23);
    QTest::newRow("keyboard") << byKeyboard << date << QDate(2011, 3, 15);
    QTest::newRow("escape") << key<OmCalendar>(Qt::Key_Escape) << date << date;
    QTest::newRow("closed") << closeFrame<OmCalendar>() << date << date;
    QTest::newRow("invalid") << key<OmCalendar>(Qt::Key_Escape) << QDate() << QDate();
    QTest::newRow("destroyed") << Act<OmCalendar>([](OmCalendar *calendar) { delete calendar; })
                               << date << date;
}

void tst_SmallDialogs::dateIsReturnedWhenChosen()
{
    QFETCH(Act<OmCalendar>, act);
    QFETCH(QDate, date);
    whenOpen<OmCalendar>([&](OmCalendar *calendar) {
        const auto *widget = calendar->findChild<QCalendarWidget *>();
        QCOMPARE(widget->selectedDate(), date.isValid() ? date : QDate::currentDate());
        QCOMPARE(calendar->windowTitleOnly(), QStringLiteral("Choose a Date"));
        QCOMPARE(widget->geometry(), calendar->contentsRect());
        act(calendar);
    });
    QTEST(OmCalendar::selectDate(date, nullptr), "answer");
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_SmallDialogs::weeksBeginAsTheSystemsLocaleHasIt_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("firstDay");
    QTest::newRow("Germany") << QStringLiteral("de_DE.UTF-8") << int(Qt::Monday);
    QTest::newRow("Austria") << QStringLiteral("de_AT.UTF-8") << int(Qt::Monday);
    QTest::newRow("United States") << QStringLiteral("en_US.UTF-8") << int(Qt::Sunday);
    QTest::newRow("France") << QStringLiteral("fr_FR.UTF-8") << int(Qt::Sunday);
}

void tst_SmallDialogs::weeksBeginAsTheSystemsLocaleHasIt()
{
    // The system's locale is that of the process, which has asked for it already.
    QFETCH(QString, locale);
    QFETCH(int, firstDay);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LC_ALL", "LC_TIME", "LC_MESSAGES", "LC_NUMERIC", "LANG"})
        environment.insert(QLatin1String(name), locale);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(kPrintFirstDay)});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput().trimmed().toInt(), firstDay);
}

void tst_SmallDialogs::languageChangeReachesOpenDialogs()
{
    const auto change = [](QWidget *dialog, const QString &context, const QStringList &texts) {
        QStringList found;
        {
            const TaggedLanguage language;
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
            const auto buttons = dialog->findChildren<QPushButton *>();
            for (const QPushButton *button : buttons)
                found.append(button->text());
            found.append(dialog->windowTitle());
        }
        for (const QString &text : texts)
            QVERIFY(found.contains(QStringLiteral("%1|%2|").arg(context, text)));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    };
    OmMessageBox box;
    change(&box, QStringLiteral("ombrin::OmMessageBox"),
           {QStringLiteral("&Ok"), QStringLiteral("&Yes"), QStringLiteral("&No")});
    QVERIFY(button(&box, "&Ok"));
    OmCalendar calendar;
    change(&calendar, QStringLiteral("ombrin::OmCalendar"), {QStringLiteral("Choose a Date")});
    QCOMPARE(calendar.windowTitleOnly(), QStringLiteral("Choose a Date"));
    ask(
            [&](OmInputDialog *dialog) {
                change(dialog, QStringLiteral("ombrin::OmInputDialog"),
                       {QStringLiteral("&Ok"), QStringLiteral("&Cancel")});
                dialog->reject();
            },
            nullptr);
}

void tst_SmallDialogs::dialogsAreRejectedWhenTheirParentDies()
{
    const auto dying = [] {
        auto *parent = new QWidget;
        parent->show();
        return parent;
    };
    const auto killParentOf = [](QWidget *dialog) { delete dialog->parentWidget(); };
    whenOpen<OmMessageBox>(killParentOf);
    QCOMPARE(OmMessageBox::question(dying(), QString(), QString()), 0);
    whenOpen<OmMessageBox>(killParentOf);
    QCOMPARE(OmMessageBox::information(dying(), QString(), QString()), 0);
    bool ok = true;
    whenOpen<OmInputDialog>(killParentOf);
    QVERIFY(OmInputDialog::getText(dying(), QString(), QString(), QLineEdit::Normal,
                                   QStringLiteral("text"), &ok)
                    .isNull());
    QVERIFY(!ok);
    ok = true;
    whenOpen<OmInputDialog>(killParentOf);
    QVERIFY(OmInputDialog::getItem(dying(), QString(), QString(), {QStringLiteral("item")}, 0,
                                   false, &ok)
                    .isNull());
    QVERIFY(!ok);
    whenOpen<OmCalendar>(killParentOf);
    QCOMPARE(OmCalendar::selectDate(QDate(2011, 3, 14), dying()), QDate(2011, 3, 14));
}

int main(int argc, char *argv[])
{
    if (argc > 1 && qstrcmp(argv[1], kPrintFirstDay) == 0) {
        const QApplication application(argc, argv);
        const OmCalendar calendar;
        printf("%d\n", int(calendar.findChild<QCalendarWidget *>()->firstDayOfWeek()));
        return 0;
    }
    return ombrin::test::run<tst_SmallDialogs>(argc, argv);
}
#include "tst_smalldialogs.moc"
