#include "dialogs/DialogUser.h"
#include "support/TaggedLanguage.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmCalendar.h>
#include <ombrin/OmInputDialog.h>
#include <ombrin/OmMessageBox.h>
#include <ombrin/OmStyle2.h>

#include <cstdio>

using namespace dialog_user;
using namespace ombrin;

namespace {

/// One of the static calls.
using Call = std::function<QVariant(QWidget *parent, bool *ok)>;
/// What the user does meanwhile.
using Act = std::function<void(OmDialog2 *)>;

constexpr const char *kPrintFirstDay = "--print-first-day";

Call message(int (*call)(QWidget *, const QString &, const QString &),
             const QString &title = "Title"_q)
{
    return [=](QWidget *parent, bool *) { return call(parent, title, "Text"_q); };
}

Call text(QLineEdit::EchoMode mode = QLineEdit::Normal)
{
    return [=](QWidget *parent, bool *ok) {
        return OmInputDialog::getText(parent, "Title"_q, "Text"_q, mode, "preset"_q, ok);
    };
}

Call item(int current, bool editable = false)
{
    return [=](QWidget *parent, bool *ok) {
        return OmInputDialog::getItem(parent, "Title"_q, "Text"_q, {"Apple"_q, "Pear"_q}, current,
                                      editable, ok);
    };
}

Call date(const QDate &date)
{
    return [=](QWidget *parent, bool *) { return OmCalendar::selectDate(date, parent); };
}

Act key(Qt::Key key)
{
    return [key](OmDialog2 *dialog) { type(dialog, key); };
}

Act press(const char *text)
{
    return [text](OmDialog2 *dialog) { click(button(dialog, text)); };
}

Act typeOver(const QString &text)
{
    return [text](OmDialog2 *dialog) {
        dialog->findChild<QLineEdit *>()->clear();
        type(dialog, text);
        type(dialog, Qt::Key_Enter);
    };
}

/// Clicks on a day of the month shown.
Act day(const QString &text)
{
    return [text](OmDialog2 *dialog) {
        const auto *view = dialog->findChild<QTableView *>();
        const QAbstractItemModel *model = view->model();
        for (int cell = 14; cell < 42; ++cell) { // past the days of the month before
            const QModelIndex candidate = model->index(cell / 7, cell % 7);
            if (candidate.data().toString() != text)
                continue;
            QTest::mouseClick(
                    dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                    view->viewport()->mapTo(dialog, view->visualRect(candidate).center()));
            return;
        }
    };
}

} // namespace

Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Act)

class tst_SmallDialogs : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures(flat_skin::kFile)); }

    void answersAreReturned_data()
    {
        const auto row = columns<Call, Act, QVariant>("call", "act", "answer");
        const Act close = [](OmDialog2 *dialog) { click(closeButton(dialog)); };
        const Act destroy = [](OmDialog2 *dialog) { delete dialog; };
        const Act destroyParent = [](OmDialog2 *dialog) { delete dialog->parentWidget(); };
        const Act accept = [](OmDialog2 *dialog) { dialog->accept(); };
        const Act acceptPassword = [](OmDialog2 *dialog) {
            const QString shown = dialog->findChild<QLineEdit *>()->displayText();
            QVERIFY(shown.size() == 6 && !shown.contains("preset"_q));
            dialog->accept();
        };
        const Act acceptWithoutInput = [](OmDialog2 *dialog) {
            delete dialog->findChild<QComboBox *>();
            dialog->accept();
        };
        const Act chooseNextDay = [](OmDialog2 *dialog) {
            dialog->findChild<QTableView *>()->setFocus();
            type(dialog, Qt::Key_Right);
            type(dialog, Qt::Key_Return);
        };
        const Call information = message(&OmMessageBox::information);
        const Call question = message(&OmMessageBox::question);
        const QDate pi(2011, 3, 14);
        row("information: ok", information, press("&Ok"), 0);
        row("question: yes", question, press("&Yes"), 1);
        row("question: no", question, press("&No"), 0);
        row("question: return", question, key(Qt::Key_Return), 1);
        row("text: ok", text(), press("&Ok"), "preset"_q);
        row("text: typed over", text(), typeOver("new"_q), "new"_q);
        row("text: empty", text(), typeOver(QString()), ""_q);
        row("text: cancel", text(), press("&Cancel"), QString());
        row("text: password", text(QLineEdit::Password), acceptPassword, "preset"_q);
        row("item: second", item(1), key(Qt::Key_Return), "Pear"_q);
        row("item: beyond the list", item(2), key(Qt::Key_Return), ""_q);
        row("item: typed", item(1, true), typeOver("plum"_q), "plum"_q);
        row("item: cancel", item(1, true), press("&Cancel"), QString());
        row("item: input destroyed", item(1), acceptWithoutInput, QString());
        row("date: clicked", date(pi), day("23"_q), QDate(2011, 3, 23));
        row("date: keyboard", date(pi), chooseNextDay, QDate(2011, 3, 15));
        row("date: none, accepted", date(QDate()), accept, QDate::currentDate());

        const std::tuple<const char *, Call, QVariant> calls[] = {
                {"information", information, 0}, {"question", question, 0},
                {"text", text(), QString()},     {"item", item(0), QString()},
                {"date", date(pi), pi},          {"no date", date(QDate()), QDate()}};
        const std::pair<const char *, Act> rejections[] = {{"escape", key(Qt::Key_Escape)},
                                                           {"closed", close},
                                                           {"destroyed", destroy},
                                                           {"parent destroyed", destroyParent}};
        for (const auto &[name, call, answer] : calls) {
            for (const auto &[how, act] : rejections)
                row(qPrintable("%1: %2"_q.arg(QLatin1String(name), QLatin1String(how))), call, act,
                    answer);
        }
    }

    void answersAreReturned()
    {
        QFETCH(Call, call);
        QFETCH(Act, act);
        QFETCH(QVariant, answer);
        for (const bool asksWhetherOk : {true, false}) {
            const QPointer<QWidget> parent(new QWidget);
            parent->show();
            whenOpen<OmDialog2>(act);
            bool ok = answer.toString().isNull();
            const QVariant given = call(parent, asksWhetherOk ? &ok : nullptr);
            delete parent;
            QCOMPARE(given, answer);
            QCOMPARE(given.toString().isNull(), answer.toString().isNull());
            if (asksWhetherOk && answer.userType() == QMetaType::QString)
                QCOMPARE(ok, !answer.toString().isNull());
            QVERIFY(QApplication::topLevelWidgets().isEmpty());
        }
    }

    void dayIsChosenOnce()
    {
        ombrin::OmStyle2 style; // in which a single click activates, too
        OmCalendar calendar;
        calendar.findChild<QTableView *>()->setStyle(&style);
        const QSignalSpy finished(&calendar, &QDialog::finished);
        calendar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&calendar));
        day("23"_q)(&calendar);
        QVERIFY(!calendar.isVisible());
        QCOMPARE(finished.count(), 1);
    }

    void dialogsLookAsDescribed_data()
    {
        // captions: the default button first
        const auto row = columns<Call, QString, QString>("call", "captions", "title");
        const QString title = "A title longer than that"_q;
        row("information", message(&OmMessageBox::information), "&Ok", "Title");
        row("question", message(&OmMessageBox::question), "&Yes &No", "Title");
        row("no title", message(&OmMessageBox::question, QString()), "&Yes &No", "");
        row("long title", message(&OmMessageBox::question, title), "&Yes &No", title);
        row("text", text(), "&Ok &Cancel", "Title");
        row("item", item(0), "&Ok &Cancel", "Title");
    }

    void dialogsLookAsDescribed()
    {
        QFETCH(Call, call);
        whenOpen<OmDialog2>([](OmDialog2 *dialog) {
            QTEST(dialog->windowTitleOnly(), "title");
            QTEST(dialog->windowTitle(), "title");
            const auto labels = dialog->findChildren<QLabel *>();
            QCOMPARE(labels.value(0)->size(), QSize(48, 48));
            QCOMPARE(labels.value(0)->alignment(), Qt::AlignCenter);
            QCOMPARE(labels.value(1)->text(), "Text"_q);
            QVERIFY(!labels.value(1)->wordWrap());
            QTEST(captions(dialog), "captions");
            QCOMPARE(dialog->size(), dialog->minimumSizeHint().expandedTo(QSize(174, 35)));
            QFont bold = dialog->font();
            bold.setBold(true);
            bold.setPixelSize(bold.pixelSize() + 2);
            QVERIFY(dialog->width() - 179
                    >= QFontMetrics(bold).horizontalAdvance(dialog->windowTitle()));

            QList<QPushButton *> buttons;
            for (const QString &caption : captions(dialog).split(QLatin1Char(' ')))
                buttons.append(button(dialog, qPrintable(caption)));
            for (const QPushButton *shown : std::as_const(buttons)) {
                QCOMPARE(shown->size(), QSize(110, 26));
                QCOMPARE(shown->isDefault(), shown == buttons.first());
            }
            const int left = buttons.first()->geometry().left();
            const int right = dialog->width() - 1 - buttons.last()->geometry().right();
            QVERIFY(std::abs(left - right) <= 1); // in the middle

            if (QWidget *input =
                        qobject_cast<OmInputDialog *>(dialog) ? dialog->focusWidget() : nullptr) {
                QVERIFY(input->geometry().top() > labels.value(1)->geometry().bottom());
                QCOMPARE(input->accessibleName(), "Text"_q);
                if (qobject_cast<QComboBox *>(input))
                    QCOMPARE(input->height(), 22);
                for (const QPushButton *next : std::as_const(buttons)) {
                    type(dialog, Qt::Key_Tab);
                    QVERIFY(next->hasFocus());
                }
            }
            dialog->reject();
        });
        call(nullptr, nullptr);
    }

    void weeksBeginAsTheSystemsLocaleHasIt_data()
    {
        const auto row = columns<int>("firstDay");
        row("de_AT.UTF-8", Qt::Monday);
        row("en_US.UTF-8", Qt::Sunday);
        row("fr_FR.UTF-8", Qt::Sunday);
    }

    void weeksBeginAsTheSystemsLocaleHasIt()
    {
        // The system's locale is that of the process, which has asked for it already.
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"LC_ALL", "LC_TIME", "LC_MESSAGES", "LC_NUMERIC", "LANG"})
            environment.insert(QLatin1String(name), QLatin1String(QTest::currentDataTag()));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {QLatin1String(kPrintFirstDay)});
        QVERIFY(process.waitForFinished());
        QTEST(process.readAllStandardOutput().trimmed().toInt(), "firstDay");
    }

    void languageChangeReachesOpenDialogs()
    {
        const Act check = [](OmDialog2 *dialog) {
            const QString before = captions(dialog) + dialog->windowTitleOnly();
            const QString prefix =
                    QLatin1String(dialog->metaObject()->className()) + QLatin1Char('|');
            {
                const ombrin::test::TaggedLanguage language;
                if (qobject_cast<OmCalendar *>(dialog))
                    QCOMPARE(dialog->windowTitleOnly(), prefix + "Choose a Date|"_q);
                else if (qobject_cast<OmMessageBox *>(dialog))
                    QCOMPARE(captions(dialog), "%1&Ok| %1&Yes| %1&No|"_q.arg(prefix));
                else
                    QCOMPARE(captions(dialog), "%1&Ok| %1&Cancel|"_q.arg(prefix));
            }
            QCOMPARE(captions(dialog) + dialog->windowTitleOnly(), before);
            dialog->reject();
        };
        OmMessageBox box; // with all its buttons
        QCOMPARE(captions(&box), "&Ok &Yes &No"_q);
        check(&box);
        OmCalendar calendar;
        QCOMPARE(calendar.windowTitle(), "Choose a Date"_q);
        QCOMPARE(calendar.layout()->contentsMargins(), QMargins());
        QCOMPARE(calendar.size(), QSize(250, 200));
        check(&calendar);
        whenOpen<OmDialog2>(check);
        text()(nullptr, nullptr);
    }
};

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
