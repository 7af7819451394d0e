#include "support/TestCase.h"

#include <ombrin/OmLineEdit.h>

#include <QtGui/QInputMethodEvent>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QDataWidgetMapper>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QMenu>

using ombrin::OmLineEdit;

namespace {

const QString kMessage = QStringLiteral("Name or e-mail address");
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
        layout->addRow(QStringLiteral("&Name"), edit);
        layout->addRow(QStringLiteral("&Other"), other);
        edit->setNoFocusMessage(kMessage);
        other->setFocus();
        window.show();
        window.activateWindow();
    }
    bool isReady() { return QTest::qWaitForWindowActive(&window); }

    QWidget window;
    OmLineEdit *const edit = new OmLineEdit;
    QLineEdit *const other = new QLineEdit;
};

} // namespace

class tst_OmLineEdit : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void messageIsShownAtOnceInGrey();
    void focusTakesTheMessageAwayAndBringsItBack();
    void typedTextStays();
    void typingTheMessageIsTypingNothing();
    void updateShowsTheMessageInAnEmptyEditWithoutFocus();
    void messageReplacesTextAndKeepsItsColour();
    void textOfTheHostHasTheTextColour();
    void withoutParentTextHasTheColourOfLineEdits();
    void emptyMessageIsHarmless();
    void cutOffMessagesStillCountAsMessages_data();
    void cutOffMessagesStillCountAsMessages();
    void messageCannotBeBroughtBackByUndoing();
    void contextMenuDoesNotCountAsLeaving();
    void propertyAndMappersNeverSeeTheMessage();
    void receiversOfTextChangedNeverSeeTheMessage();
    void mayBeDeletedWhenTheHostShowsItsMessage_data();
    void mayBeDeletedWhenTheHostShowsItsMessage();
    void completesWhatIsTyped();
    void readOnlyEditShowsItsMessageToo();
    void composedTextCountsOnceItIsCommitted();
};

void tst_OmLineEdit::messageIsShownAtOnceInGrey()
{
    OmLineEdit edit;
    QCOMPARE(shownColor(&edit), kGrey);
    QCOMPARE(edit.noFocusMessage(), QString());
    QCOMPARE(edit.text(), QString());
    QVERIFY(edit.setProperty("noFocusMessage", kMessage));
    QCOMPARE(edit.property("noFocusMessage").toString(), kMessage);
    QCOMPARE(shownText(edit), kMessage);
    QCOMPARE(shownColor(&edit), kGrey);
    QCOMPARE(edit.text(), QString());
}

void tst_OmLineEdit::focusTakesTheMessageAwayAndBringsItBack()
{
    Form form;
    QVERIFY(form.isReady());
    QCOMPARE(shownText(*form.edit), kMessage);
    for (int round = 0; round < 2; ++round) {
        form.edit->setFocus();
        QCOMPARE(shownText(*form.edit), QString());
        QCOMPARE(shownColor(form.edit), kTextColor);
        form.other->setFocus();
        QCOMPARE(shownText(*form.edit), kMessage);
        QCOMPARE(shownColor(form.edit), kGrey);
        QCOMPARE(form.edit->text(), QString());
    }
}

void tst_OmLineEdit::typedTextStays()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setFocus();
    QTest::keyClicks(form.edit, QStringLiteral("Ada"));
    form.other->setFocus();
    QCOMPARE(shownText(*form.edit), QStringLiteral("Ada"));
    QCOMPARE(form.edit->text(), QStringLiteral("Ada"));
    QCOMPARE(shownColor(form.edit), kTextColor);
    form.edit->setFocus();
    QCOMPARE(form.edit->text(), QStringLiteral("Ada"));
}

void tst_OmLineEdit::typingTheMessageIsTypingNothing()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setFocus();
    QTest::keyClicks(form.edit, kMessage);
    QCOMPARE(form.edit->text(), QString());
    form.other->setFocus();
    QCOMPARE(shownText(*form.edit), kMessage);
    QCOMPARE(shownColor(form.edit), kGrey);
}

void tst_OmLineEdit::updateShowsTheMessageInAnEmptyEditWithoutFocus()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setText(QStringLiteral("Ada"));
    form.edit->updateFocusMessage();
    QCOMPARE(shownText(*form.edit), QStringLiteral("Ada"));
    form.edit->clear();
    form.edit->updateFocusMessage();
    QCOMPARE(shownText(*form.edit), kMessage);
    QCOMPARE(shownColor(form.edit), kGrey);
    form.edit->setFocus();
    form.edit->updateFocusMessage();
    QCOMPARE(shownText(*form.edit), QString());
    QCOMPARE(shownColor(form.edit), kTextColor);
}

void tst_OmLineEdit::messageReplacesTextAndKeepsItsColour()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setFocus();
    QTest::keyClicks(form.edit, QStringLiteral("Ada"));
    form.edit->setNoFocusMessage(QStringLiteral("Somebody"));
    QCOMPARE(shownText(*form.edit), QStringLiteral("Somebody"));
    QCOMPARE(form.edit->text(), QString());
    QCOMPARE(shownColor(form.edit), kTextColor);
}

void tst_OmLineEdit::textOfTheHostHasTheTextColour()
{
    Form form;
    form.edit->setText(QStringLiteral("Ada"));
    QCOMPARE(shownColor(form.edit), kTextColor);
    QCOMPARE(form.edit->text(), QStringLiteral("Ada"));
}

void tst_OmLineEdit::withoutParentTextHasTheColourOfLineEdits()
{
    OmLineEdit edit;
    edit.setNoFocusMessage(kMessage);
    edit.show();
    edit.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    edit.setFocus();
    QCOMPARE(shownText(edit), QString());
    QCOMPARE(shownColor(&edit), QApplication::palette(&edit).color(QPalette::Text));
}

void tst_OmLineEdit::emptyMessageIsHarmless()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setNoFocusMessage(QString());
    form.edit->setFocus();
    QTest::keyClicks(form.edit, QStringLiteral("a"));
    QCOMPARE(shownColor(form.edit), kTextColor);
    QTest::keyClick(form.edit, Qt::Key_Backspace);
    form.other->setFocus();
    QCOMPARE(shownText(*form.edit), QString());
    QCOMPARE(form.edit->text(), QString());
}

void tst_OmLineEdit::cutOffMessagesStillCountAsMessages_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("maxLength");
    QTest::newRow("short field") << kMessage << 4;
    QTest::newRow("100,000 characters") << QString(100000, QLatin1Char('x')) << 32767;
    QTest::newRow("right-to-left") << QString(40, QChar(0x05d0)) << 10;
    QTest::newRow("lines") << QStringLiteral("one\ntwo") << 32767;
}

void tst_OmLineEdit::cutOffMessagesStillCountAsMessages()
{
    QFETCH(QString, message);
    QFETCH(int, maxLength);
    Form form;
    QVERIFY(form.isReady());
    form.edit->setMaxLength(maxLength);
    form.edit->setNoFocusMessage(message);
    QCOMPARE(form.edit->noFocusMessage(), message);
    QVERIFY(!shownText(*form.edit).isEmpty());
    QCOMPARE(form.edit->text(), QString());
    form.edit->grab();
    form.edit->setFocus();
    QCOMPARE(shownText(*form.edit), QString());
}

void tst_OmLineEdit::messageCannotBeBroughtBackByUndoing()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setFocus();
    QVERIFY(!form.edit->isUndoAvailable());
    form.edit->undo();
    QCOMPARE(shownText(*form.edit), QString());
}

void tst_OmLineEdit::contextMenuDoesNotCountAsLeaving()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setFocus();
    QMenu menu;
    menu.addAction(QStringLiteral("Paste"));
    menu.popup(form.window.pos());
    QCOMPARE(shownText(*form.edit), QString());
    menu.close();
    QTest::keyClicks(form.edit, QStringLiteral("a"));
    QCOMPARE(form.edit->text(), QStringLiteral("a"));
}

void tst_OmLineEdit::propertyAndMappersNeverSeeTheMessage()
{
    Form form;
    QCOMPARE(form.edit->property("text").toString(), QString());
    QCOMPARE(QByteArray(form.edit->metaObject()->userProperty().name()), QByteArray("text"));

    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("Ada"));
    QDataWidgetMapper mapper;
    mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
    mapper.setModel(&model);
    mapper.addMapping(form.edit, 0);
    mapper.toFirst();
    QCOMPARE(form.edit->text(), QStringLiteral("Ada"));
    form.edit->clear();
    form.edit->updateFocusMessage();
    mapper.submit();
    QCOMPARE(model.data(model.index(0, 0)).toString(), QString());
}

void tst_OmLineEdit::receiversOfTextChangedNeverSeeTheMessage()
{
    Form form;
    QVERIFY(form.isReady());
    QStringList seen;
    connect(form.edit, &QLineEdit::textChanged, this, [&] { seen << form.edit->text(); });
    form.edit->setNoFocusMessage(QStringLiteral("Other"));
    form.edit->setFocus();
    form.other->setFocus();
    const QStringList nothing{QString(), QString(), QString()};
    QCOMPARE(seen, nothing);
}

void tst_OmLineEdit::mayBeDeletedWhenTheHostShowsItsMessage_data()
{
    QTest::addColumn<bool>("textSignal");
    QTest::addColumn<bool>("update");
    QTest::newRow("text, new message") << true << false;
    QTest::newRow("text, update") << true << true;
    QTest::newRow("cursor, new message") << false << false;
    QTest::newRow("cursor, update") << false << true;
}

void tst_OmLineEdit::mayBeDeletedWhenTheHostShowsItsMessage()
{
    QFETCH(bool, textSignal);
    QFETCH(bool, update);
    Form form;
    if (update)
        form.edit->clear();
    const QPointer<OmLineEdit> edit(form.edit);
    const auto destroy = [edit] { delete edit; };
    if (textSignal)
        connect(edit, &QLineEdit::textChanged, this, destroy);
    else
        connect(edit, &QLineEdit::cursorPositionChanged, this, destroy);
    if (update)
        edit->updateFocusMessage();
    else
        edit->setNoFocusMessage(QStringLiteral("Somebody"));
    QVERIFY(!edit);
}

void tst_OmLineEdit::completesWhatIsTyped()
{
    Form form;
    QVERIFY(form.isReady());
    auto *const completer =
            new QCompleter({QStringLiteral("Ada"), QStringLiteral("Adele")}, form.edit);
    form.edit->setCompleter(completer);
    form.edit->setFocus();
    QTest::keyClicks(form.edit, QStringLiteral("Ad"));
    QTRY_VERIFY(completer->popup()->isVisible());
    QCOMPARE(form.edit->text(), QStringLiteral("Ad"));
    QTest::keyClick(completer->popup(), Qt::Key_Down);
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    QCOMPARE(form.edit->text(), QStringLiteral("Ada"));
    QCOMPARE(shownColor(form.edit), kTextColor);

    form.edit->clear();
    form.other->setFocus();
    QCOMPARE(shownText(*form.edit), kMessage);
    QVERIFY(!completer->popup()->isVisible());
}

void tst_OmLineEdit::readOnlyEditShowsItsMessageToo()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setReadOnly(true);
    QCOMPARE(form.edit->text(), QString());
    form.edit->setFocus();
    QCOMPARE(shownText(*form.edit), QString());
    QTest::keyClicks(form.edit, QStringLiteral("a"));
    form.other->setFocus();
    QCOMPARE(shownText(*form.edit), kMessage);
    QCOMPARE(form.edit->text(), QString());
}

void tst_OmLineEdit::composedTextCountsOnceItIsCommitted()
{
    Form form;
    QVERIFY(form.isReady());
    form.edit->setFocus();
    QInputMethodEvent composing(QStringLiteral("ni"), {});
    QCoreApplication::sendEvent(form.edit, &composing);
    QCOMPARE(form.edit->text(), QString());
    form.edit->updateFocusMessage();
    QCOMPARE(shownText(*form.edit), QString());
    QInputMethodEvent committing;
    committing.setCommitString(QStringLiteral("\u4f60"));
    QCoreApplication::sendEvent(form.edit, &committing);
    form.other->setFocus();
    QCOMPARE(form.edit->text(), QStringLiteral("\u4f60"));
    QCOMPARE(shownColor(form.edit), kTextColor);
}

OMBRIN_TEST_MAIN(tst_OmLineEdit)
#include "tst_omlineedit.moc"
