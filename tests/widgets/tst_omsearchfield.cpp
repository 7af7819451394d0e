#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmSearchField.h>
#include <ombrin/OmStyle2.h>

using ombrin::OmSearchField;
using namespace ombrin::test;

namespace {

constexpr QSize kSize(200, 24);
// What lies between frame, icons and the line edit's own margin.
constexpr QRect kTextRect(21, 1, 158, 22);
const QString kDefaultText = "Search contacts"_q;

QImage picture(QWidget *field)
{
    QImage image = flatImage(field->size(), Qt::magenta, QImage::Format_RGB32);
    field->render(&image);
    return image;
}

// The same line edit without what the search field adds.
struct BareField : OmSearchField
{
    using OmSearchField::OmSearchField;
    void paintEvent(QPaintEvent *event) override { QLineEdit::paintEvent(event); }
};

template <typename Field>
struct Shown
{
    Shown()
    {
        window.resize(300, 100);
        field.setGeometry(QRect(QPoint(0, 0), kSize));
        other.setGeometry(0, 50, 100, 24);
        other.setFocus();
        window.show();
    }

    QWidget window;
    Field field{&window};
    QLineEdit other{&window};
};

void drawIcon(QImage *image, const char *name, int left)
{
    const QPixmap icon(":/"_q + QLatin1String(name));
    QVERIFY(!icon.isNull());
    QPainter(image).drawPixmap(left, 5, icon);
}

void drawDefaultText(QImage *image, const QWidget &field, Qt::Alignment alignment)
{
    QPainter painter(image);
    painter.setFont(field.font());
    painter.setPen(field.palette().color(QPalette::Mid));
    painter.setClipRect(kTextRect);
    painter.drawText(kTextRect, static_cast<int>(alignment | Qt::AlignVCenter), kDefaultText);
}

} // namespace

class tst_OmSearchField : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(registerPictures("skins/ombrin.res")); }

    void leavesRoomForTheIcons()
    {
        for (const bool ownStyle : {true, false}) {
            if (ownStyle)
                QApplication::setStyle(new ombrin::OmStyle2);
            else
                prepareApplication();
            BareField bare;
            bare.resize(kSize);
            const QImage empty = picture(&bare);
            bare.setText(QString(100, QLatin1Char('W')));
            const QImage full = picture(&bare);
            for (const QRect &side : {QRect(0, 0, 19, 24), QRect(181, 0, 19, 24)})
                QCOMPARE(full.copy(side), empty.copy(side));
            QVERIFY(full.copy(kTextRect) != empty.copy(kTextRect));
        }
    }

    void drawsTheIconsOfItsState_data()
    {
        // eraseLeft: -1 where it is not there
        const auto row = columns<QString, bool, bool, int, int>("text", "readOnly", "mirrored",
                                                                "searchLeft", "eraseLeft");
        row("empty", "", false, false, 3, -1);
        row("text", "Ada", false, false, 3, 183);
        row("right-to-left", "Ada", false, true, 183, 3);
        row("right-to-left, empty", "", false, true, 183, -1);
        row("read-only", "Ada", true, false, 3, -1);
    }
    void drawsTheIconsOfItsState()
    {
        QFETCH(QString, text);
        QFETCH(bool, readOnly);
        QFETCH(bool, mirrored);
        QFETCH(int, searchLeft);
        QFETCH(int, eraseLeft);
        OmSearchField field;
        BareField bare;
        for (OmSearchField *each : {&field, static_cast<OmSearchField *>(&bare)}) {
            each->resize(kSize);
            each->setText(text);
            each->setReadOnly(readOnly);
            each->setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        }
        QImage expected = picture(&bare);
        drawIcon(&expected, "search-14", searchLeft);
        if (eraseLeft >= 0)
            drawIcon(&expected, "erase-left-14", eraseLeft);
        QCOMPARE(picture(&field), expected);
    }

    void drawsTheDefaultTextWhileEmptyAndWithoutFocus()
    {
        Shown<BareField> bare;
        Shown<OmSearchField> test; // the active one
        QVERIFY(activate(&test.window));
        const auto expectedPicture = [&](bool withText) {
            bare.field.setText(test.field.text());
            bare.field.setLayoutDirection(test.field.layoutDirection());
            QImage image = picture(&bare.field);
            const bool isMirrored = test.field.layoutDirection() == Qt::RightToLeft;
            drawIcon(&image, "search-14", isMirrored ? 183 : 3);
            if (withText)
                drawDefaultText(&image, test.field, isMirrored ? Qt::AlignRight : Qt::AlignLeft);
            return image;
        };
        test.field.setDefaultText(kDefaultText);
        QCOMPARE(test.field.defaultText(), kDefaultText);
        QCOMPARE(picture(&test.field), expectedPicture(true));
        test.field.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(picture(&test.field), expectedPicture(true));
        test.field.setLayoutDirection(Qt::LeftToRight);
        test.field.setDefaultText(QString());
        QCOMPARE(picture(&test.field), expectedPicture(false));

        test.field.setDefaultText(kDefaultText);
        test.field.setFocus();
        QVERIFY(test.field.hasFocus());
        const QImage focused = picture(&test.field);
        test.field.setDefaultText(QString());
        QCOMPARE(picture(&test.field), focused);
        test.field.setText("Ada"_q);
        test.other.setFocus();
        const QImage filled = picture(&test.field);
        test.field.setDefaultText(kDefaultText);
        QCOMPARE(picture(&test.field), filled);
    }

    void cursorTellsWhereAPressErases_data()
    {
        const auto row = columns<int, bool, bool>("x", "mirrored", "erases");
        row("right edge", 199, false, true);
        row("inner edge", 183, false, true);
        row("text", 182, false, false);
        row("magnifier", 5, false, false);
        row("right-to-left, inner edge", 16, true, true);
        row("right-to-left, text", 17, true, false);
        row("right-to-left, magnifier", 190, true, false);
    }
    void cursorTellsWhereAPressErases()
    {
        QFETCH(int, x);
        QFETCH(bool, mirrored);
        QFETCH(bool, erases);
        OmSearchField field;
        field.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        field.resize(kSize);
        QSignalSpy spy(&field, &QLineEdit::textChanged);
        for (const auto button : {Qt::LeftButton, Qt::MiddleButton}) {
            field.setText("Ada"_q);
            spy.clear();
            sendMouseMove(&field, QPoint(x, 23));
            QCOMPARE(field.cursor().shape(), erases ? Qt::ArrowCursor : Qt::IBeamCursor);
            QTest::mouseClick(&field, button, Qt::NoModifier, QPoint(x, 23));
            QCOMPARE(field.text(), erases ? QString() : "Ada"_q);
            QCOMPARE(spy.size(), erases ? 1 : 0);
        }
        field.setText("Ada"_q);
        field.setReadOnly(true);
        QTest::mouseClick(&field, Qt::LeftButton, Qt::NoModifier, QPoint(x, 23));
        QCOMPARE(field.text(), "Ada"_q);
    }

    void erasingTellsWhatAnyChangeTells()
    {
        OmSearchField field;
        QLineEdit plain;
        QStringList logs[2];
        QLineEdit *const edits[] = {&field, &plain};
        for (int i = 0; i < 2; ++i) {
            QStringList *const log = &logs[i];
            edits[i]->resize(kSize);
            edits[i]->setText("Ada"_q);
            edits[i]->setSelection(0, 2);
            connect(edits[i], &QLineEdit::textChanged, [log] { log->append("text"_q); });
            connect(edits[i], &QLineEdit::textEdited, [log] { log->append("edited"_q); });
            connect(edits[i], &QLineEdit::selectionChanged, [log] { log->append("selection"_q); });
            connect(edits[i], &QLineEdit::cursorPositionChanged,
                    [log](int from, int to) { log->append(QString::number(10 * from + to)); });
        }
        plain.clear();
        QTest::mousePress(&field, Qt::RightButton, Qt::NoModifier, QPoint(190, 10));
        QCOMPARE(logs[0], logs[1]);
        QVERIFY(logs[0].size() > 2 && field.isUndoAvailable());
    }

    void mayBeDeletedWhenItIsErased()
    {
        QWidget window;
        QPointer<OmSearchField> field(new OmSearchField(&window));
        field->resize(kSize);
        field->setText("Ada"_q);
        window.show();
        connect(field, &QLineEdit::textChanged, this, [field] { delete field; });
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(190, 10));
        QVERIFY(!field);
    }

    void screenReadersHearTheDefaultTextAsName()
    {
        OmSearchField field;
        QCOMPARE(accessible(&field)->role(), QAccessible::EditableText);
        field.setDefaultText(kDefaultText);
        QCOMPARE(accessibleName(&field), kDefaultText);
        field.setDefaultText("Search"_q);
        QCOMPARE(accessibleName(&field), "Search"_q);
        field.setAccessibleName("Contact"_q);
        field.setDefaultText(kDefaultText);
        QCOMPARE(accessibleName(&field), "Contact"_q);
    }
};

OMBRIN_TEST_MAIN(tst_OmSearchField)
#include "tst_omsearchfield.moc"
