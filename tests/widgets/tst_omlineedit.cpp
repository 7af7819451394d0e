#include "support/WidgetEvents.h"

#include <ombrin/OmLineEdit.h>

using namespace ombrin::test;
using ombrin::OmLineEdit;

namespace {

const QString kMessage = "Name or e-mail address"_q;
const QColor kGrey(128, 128, 128);
const QColor kTextColor(10, 20, 30);

QString shownText(const OmLineEdit &edit)
{
    return edit.QLineEdit::text();
}

// The colour in which the line edit really draws its text.
QColor shownColor(OmLineEdit *edit)
{
    edit->ensurePolished();
    return edit->palette().color(QPalette::Text);
}

// A form with a button to move the focus to.
struct Form
{
    Form()
    {
        QPalette palette = window.palette();
        palette.setColor(QPalette::Text, kTextColor);
        window.setPalette(palette);
        auto *const layout = new QFormLayout(&window);
        layout->addRow("&Name"_q, edit);
        layout->addRow("&Other"_q, other);
        edit->setNoFocusMessage(kMessage);
        other->setFocus();
        window.show();
    }
    bool isReady() { return activate(&window); }

    // One step of a user or a host, with a text behind ':'.
    void perform(const QString &step)
    {
        const QString text = step.section(QLatin1Char(':'), 1);
        if (step == "focus"_q)
            edit->setFocus();
        else if (step == "leave"_q)
            other->setFocus();
        else if (step == "update"_q)
            edit->updateFocusMessage();
        else if (step == "undo"_q)
            edit->undo();
        else if (step.startsWith("type:"_q))
            QTest::keyClicks(edit, text);
        else if (step.startsWith("setText:"_q))
            edit->setText(text);
        else if (step.startsWith("message:"_q))
            edit->setNoFocusMessage(text);
        else if (step.startsWith(QLatin1String("drop:")))
            drop(text);
    }

    // In the middle of what the line edit shows.
    void drop(const QString &text)
    {
        QMimeData data;
        data.setText(text);
        const int width = edit->fontMetrics().horizontalAdvance(shownText(*edit));
        dropOn(edit, data, QPoint(width / 2, 5));
    }

    QWidget window;
    OmLineEdit *const edit = new OmLineEdit;
    QLineEdit *const other = new QLineEdit;
};

} // namespace

class tst_OmLineEdit : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void messageComesAndGoes_data()
    {
        // shown: after each step; "*" says grey, "_" nothing
        const auto row = columns<QString>("shown");
        row("focus leave focus leave", "_ Hint* _ Hint*");
        row("focus type:Ada leave focus", "_ Ada Ada Ada");
        row("focus type:Hint leave focus", "_ Hint Hint* _"); // which is typing nothing
        row("setText:Ada update focus", "Ada Ada Ada");
        row("setText: update", "_ Hint*");
        row("drop:Ada update focus", "Ada Ada Ada"); // instead of it, not into it
        row("drop: focus", "Hint* _");
        row("focus update", "_ _");
        row("focus undo", "_ _");
        row("focus type:Ada message:Somebody", "_ Ada Somebody"); // whose colour stays
        row("message: focus type:a setText: leave", "_ _ a _ _");
    }
    void messageComesAndGoes()
    {
        Form form;
        form.edit->setNoFocusMessage("Hint"_q);
        QVERIFY(form.isReady());
        QStringList seen;
        for (const QString &step : words(QTest::currentDataTag())) {
            form.perform(step);
            const QString text = shownText(*form.edit);
            const bool isMessage = text == form.edit->noFocusMessage();
            QCOMPARE(form.edit->text(), isMessage ? QString() : text);
            const QColor color = shownColor(form.edit);
            QVERIFY(color == kGrey || color == kTextColor);
            if (text.isEmpty())
                seen.append("_"_q);
            else
                seen.append(color == kGrey ? text + QLatin1Char('*') : text);
        }
        QTEST(seen.join(QLatin1Char(' ')), "shown");
    }

    void cutOffMessagesStillCountAsMessages()
    {
        for (const QString &message : {kMessage, QString(100000, QLatin1Char('x'))}) {
            Form form;
            QVERIFY(form.isReady());
            form.edit->setMaxLength(message == kMessage ? 4 : 32767);
            form.edit->setNoFocusMessage(message);
            QCOMPARE(form.edit->noFocusMessage(), message);
            QVERIFY(message.startsWith(shownText(*form.edit)) && shownText(*form.edit) != message);
            QCOMPARE(form.edit->text(), QString());
            form.edit->setFocus();
            QCOMPARE(shownText(*form.edit), QString());
        }
    }

    void contextMenuDoesNotCountAsLeaving()
    {
        Form form;
        QVERIFY(form.isReady());
        form.edit->setFocus();
        QMenu menu;
        menu.addAction("Paste"_q);
        menu.popup(form.window.pos());
        QCOMPARE(shownText(*form.edit), QString());
        menu.close();
        QTest::keyClicks(form.edit, "a"_q);
        QCOMPARE(form.edit->text(), "a"_q);
    }

    void propertyAndMappersNeverSeeTheMessage()
    {
        Form form;
        QCOMPARE(shownText(*form.edit), kMessage);
        QCOMPARE(form.edit->property("text").toString(), QString());

        QStandardItemModel model(1, 1);
        model.setData(model.index(0, 0), "Ada"_q);
        QDataWidgetMapper mapper;
        mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
        mapper.setModel(&model);
        mapper.addMapping(form.edit, 0);
        mapper.toFirst();
        QCOMPARE(form.edit->text(), "Ada"_q);
        form.edit->clear();
        form.edit->updateFocusMessage();
        mapper.submit();
        QCOMPARE(model.data(model.index(0, 0)).toString(), QString());
    }

    void receiversOfTextChangedNeverSeeTheMessage()
    {
        Form form;
        QVERIFY(form.isReady());
        QStringList seen;
        connect(form.edit, &QLineEdit::textChanged, this, [&] { seen << form.edit->text(); });
        form.edit->setNoFocusMessage("Other"_q);
        form.edit->setFocus();
        form.other->setFocus();
        QCOMPARE(seen, QStringList({QString(), QString(), QString()}));
    }

    void mayBeDeletedWhenTheHostShowsItsMessage()
    {
        const auto destroyIn = [this](auto signal, const QString &step) {
            Form form;
            if (step == "update"_q)
                form.edit->clear();
            const QPointer<OmLineEdit> edit(form.edit);
            connect(edit, signal, this, [edit] { delete edit; });
            form.perform(step);
            QVERIFY(!edit);
        };
        for (const QString &step : words("update message:Somebody")) {
            destroyIn(&QLineEdit::textChanged, step);
            destroyIn(&QLineEdit::cursorPositionChanged, step);
        }
    }

    void completesWhatIsTyped()
    {
        Form form;
        QVERIFY(form.isReady());
        auto *const completer = new QCompleter({"Ada"_q, "Adele"_q}, form.edit);
        form.edit->setCompleter(completer);
        form.edit->setFocus();
        QTest::keyClicks(form.edit, "Ad"_q);
        QTRY_VERIFY_WITH_TIMEOUT(completer->popup()->isVisible(), 20000);
        QCOMPARE(form.edit->text(), "Ad"_q);
        QTest::keyClick(completer->popup(), Qt::Key_Down);
        QTest::keyClick(completer->popup(), Qt::Key_Return);
        QCOMPARE(form.edit->text(), "Ada"_q);
        QCOMPARE(shownColor(form.edit), kTextColor);

        form.edit->clear();
        form.other->setFocus();
        QCOMPARE(shownText(*form.edit), kMessage);
        QVERIFY(!completer->popup()->isVisible());
    }
};

OMBRIN_TEST_MAIN(tst_OmLineEdit)
#include "tst_omlineedit.moc"
