#include "support/Files.h"
#include "support/TestCase.h"

#include <ombrin/vhutilities.h>

using namespace ombrin::vhutilities;

namespace {

const char *const kPhoneNumbers[] = {
        // seven digits among letters, blanks and , # / . ( ) - + *
        "555-123-4567", "(212) 555-0123", "+44 20 7946 0958", "+49 (0)30 / 123 456-78",
        "030/123456", "01 23 45 67 89", "044 668 18 00", "+91-98765-43210", "03-1234-5678",
        "(02) 9876 5432", "call 555 1234", "1-800-FLOWERS 123", "*123*4567#", "2026-11-23",
        "192.168.1.1", "12 34 56 7",
        // three digits, and further ones behind one or two separators
        "112", "(123)", "1234", "1-(123)", "1 123", "1/123", "123-", "123--", "123\\45", "118 118",
        "116-117", "0049 30", "123\t456\t7890", "555-1234\n", "\u0660\u0661\u0662",
        // groups of three digits, underscores between them
        "+123456", "123_456", "+490_301", "_123__456_",
        // parts in brackets, tabs, further ways
        "(123\n456\n7890", "(1 2) 3 4", "(1 2) 3 4-5", "(1\t2)\t3\t4",
        "\u0660\u0661\u0662\u0663\u0664", "\uff11\uff12\uff13\uff14\uff15\uff16\uff17",
        "\t123-4567", "\t(123) 456-7890 x12\t", "\t12\t34\t56\t78"};

const char *const kNoPhoneNumbers[] = {
        "", " ", "+", "1", "12", "12-34", "12-345", "22 33", "12 34 56", "+1", "+123", "+12345",
        "+49 30 1", "(12)", "()", "1 . 123", "123---", "123x45", "12_345", "(1 2) 3", "(1) 2 3",
        "abc", "1.5", "3.14159", "12:30", "10:30-11:45", "10.0.0.1", "100%", "\u20ac100", "#31#",
        "*100#", "555-CALL", "1-800-FLOWERS", "0800 FLOWERS", "555-1234;ext=5", "tel:+4930123456",
        "\t(123)456-7890", "5551234567\n\n", "\u0660\u0661",
        // taken only by a pattern whose repetition QRegExp cannot parse
        "12-(123)-"};

// clang-format off
const char *const kStrictAddresses[] = {
        // the range "A-f" holds every capital letter; "mailto" is read as a user
        "john@example.com", "john_doe@example.com", "john%20doe@example.com",
        "john%ZZdoe@example.com", "john:secret@example.com", "mailto:john@example.com", "a@bc.de",
        "x@example.COM", "john@exa_mple.com", "john@ex--ample.com", "john@sub.example.co.uk",
        "john@192.168.10.20", "j\u00f6hn@ex\u00e4mple.de", "\u7528\u6237@\u4f8b\u5b50.\u516c\u53f8",
        "example.com", "//example.com", "http://example.com", "http://example.com:8080",
        "http://example.com/a/b.c?x=1&y=2#top"};

const char *const kLooseAddresses[] = {
        // refused by a strict check
        "john.doe@example.com", "john-doe@example.com", "john+tag@example.com",
        "john%2@example.com", "john%zzdoe@example.com", "a@b.co", "x@example.museum",
        "x@@example.com", "john@-example.com", "john@example-.com", "john@example..com",
        "john @example.com", " john@example.com", "\"john doe\"@example.com"};

const char *const kNoAddresses[] = {
        // refused by both
        "", "@", "a@b", "localhost", "x@example.c", "x@EXAMPLE.MUSEUM", "@example.com", "x@.com",
        "john@10.0.0.1", "john@[127.0.0.1]", "john@example.com ", "john@example.com.",
        "john@example.com\n", "http:/example.com", "http://example.com:port"};

const char *const kCardNumbers[] = {
        // published test numbers, then the shortest and longest
        "4111111111111111", "4111 1111 1111 1111", "4111-1111-1111-1111", " 4111 -1111 1111- 1111 ",
        "4012888888881881", "4222222222222", "5555555555554444", "5105105105105100",
        "378282246310005", "371449635398431", "6011111111111117", "6011000990139424",
        "30569309025904", "38520000023237", "3530111333300000", "3566002020360505", "79927398713",
        "00000000", "00000018", "00000000000000000091", "00000000000000000000"};

const char *const kNoCardNumbers[] = {
        // wrong length, then wrong sums and characters
        "", "--------", "        ", "18", "0000000", "1234567", "000000000000000000000",
        "4111 1111 1111 1112", "79927398710", "00000019", "4111111111111111a",
        "4111.1111.1111.1111", "+4111111111111111", "4111\t1111\t1111\t1111",
        "\uff14111111111111111"};
// clang-format on

QString repeated(const char *text, int length)
{
    const QString unit = QString::fromUtf8(text);
    return unit.repeated(length / static_cast<int>(unit.size()) + 1).left(length);
}

template <std::size_t Count, typename Recogniser>
QStringList answeredOtherThan(bool expected, const char *const (&texts)[Count],
                              Recogniser recognise)
{
    QStringList wrong;
    for (const char *text : texts) {
        if (recognise(QString::fromUtf8(text)) != expected)
            wrong.append(QString::fromUtf8(text));
    }
    return wrong;
}

} // namespace

class tst_VhUtilities : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void recognisesPhoneAndCardNumbers()
    {
        QCOMPARE(answeredOtherThan(true, kPhoneNumbers, IsPossiblePhoneNumber), QStringList());
        QCOMPARE(answeredOtherThan(false, kNoPhoneNumbers, IsPossiblePhoneNumber), QStringList());
        QCOMPARE(answeredOtherThan(true, kCardNumbers, IsPossibleCreditCardNumber), QStringList());
        QCOMPARE(answeredOtherThan(false, kNoCardNumbers, IsPossibleCreditCardNumber),
                 QStringList());
    }

    void recognisesAddresses()
    {
        const auto strict = [](const QString &text) { return IsPossibleEMailAddress(text, true); };
        const auto loose = [](const QString &text) { return IsPossibleEMailAddress(text, false); };
        QCOMPARE(answeredOtherThan(true, kStrictAddresses, strict), QStringList());
        QCOMPARE(answeredOtherThan(true, kStrictAddresses, loose), QStringList());
        QCOMPARE(answeredOtherThan(false, kLooseAddresses, strict), QStringList());
        QCOMPARE(answeredOtherThan(true, kLooseAddresses, loose), QStringList());
        QCOMPARE(answeredOtherThan(false, kNoAddresses, loose), QStringList());
        const QString end = ".com"_q;
        QVERIFY(IsPossibleEMailAddress("x@"_q + repeated("a", 255) + end, true));
        QVERIFY(!IsPossibleEMailAddress("x@"_q + repeated("a", 256) + end, true));
    }

    void matchesWholeTextsWithAnyPattern()
    {
        const auto matches = [](const char *text, const char *pattern) {
            return IsStringMatchingWithRegularExpression(QString::fromLatin1(text),
                                                         QString::fromLatin1(pattern));
        };
        QVERIFY(matches("abc", "^abc$") && matches("abc", "a.*") && matches("aa", "(a)\\1"));
        QVERIFY(matches("", "") && matches("", "^$") && !matches("x", ""));
        QVERIFY(!matches("abc", "b") && !matches("ABC", "abc") && !matches("^a", "^^a"));
        QVERIFY(!matches("(", "(") && !matches("", "a{"));
    }

    void ageGrowsOnTheBirthday()
    {
        const QDate leapDay(2000, 2, 29);
        QCOMPARE(AgeInYears(leapDay, QDate(2007, 2, 28)), 6);
        QCOMPARE(AgeInYears(leapDay, QDate(2007, 3, 1)), 7);
        QCOMPARE(AgeInYears(QDate(2000, 6, 1), QDate(2007, 5, 31)), 6);
        QCOMPARE(AgeInYears(QDate(2000, 6, 1), QDate(2007, 6, 1)), 7);
        QCOMPARE(AgeInYears(QDate(2010, 1, 1), QDate(2007, 1, 1)), -3);
        QCOMPARE(AgeInYears(QDate(), leapDay) + AgeInYears(leapDay, QDate()), 0);
        QCOMPARE(AgeInYears(leapDay), AgeInYears(leapDay, QDate::currentDate()));
    }

    void emptyFilesAreCreatedOnlyWhereFilesCanBe()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("file"_q);
        QVERIFY(CreateEmptyFile(path));
        ombrin::test::writeFile(path, "old");
        QVERIFY(CreateEmptyFile(path));
        QCOMPARE(QFileInfo(path).size(), 0);

        QVERIFY(!CreateEmptyFile(folder.path()));
        QVERIFY(!CreateEmptyFile(folder.filePath("missing/file"_q)));
        QVERIFY(!CreateEmptyFile(QString()));
#ifdef Q_OS_UNIX
        const QString pipe = folder.filePath("pipe"_q);
        QCOMPARE(QProcess::execute("mkfifo"_q, {pipe}), 0);
        QVERIFY(!CreateEmptyFile(pipe)); // and does not wait for a reader
#endif
    }

    void comboBoxItemsStayInOrder()
    {
        QComboBox box;
        int data = 0;
        for (const char *text : {"c", "a", "b", "B", "\u00e4", "b", "z", ""})
            InsertItemInComboboxLocaleAwareSorted(box, QString::fromUtf8(text), data++);
        for (int i = 1; i < box.count(); ++i)
            QVERIFY(box.itemText(i - 1).localeAwareCompare(box.itemText(i)) <= 0);
        QCOMPARE(box.count(), data);
        const int first = box.findData(2);
        QCOMPARE(box.itemText(first), "b"_q);
        QVERIFY(box.findData(5) > first); // behind its equal
    }

    void areasAreMovedOntoTheDesktop_data()
    {
        const auto row = columns<QRect, QRect>("area", "expected");

        const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
        const QRect small(desktop.topLeft() + QPoint(7, 9), QSize(100, 50));
        const int most = std::numeric_limits<int>::max();
        const QRect rightmost(desktop.right() - 99, desktop.top(), 100, 50);
        row("inside", small, small);
        row("larger", desktop.adjusted(-50, -10, 70, 30), desktop);
        row("left and above", small.translated(-300, -300), {desktop.topLeft(), small.size()});
        row("right", rightmost.translated(500, 0), rightmost);
        row("below", {desktop.left(), desktop.bottom() + 5, 10, 20},
            {desktop.left(), desktop.bottom() - 19, 10, 20});
        row("everything", {QPoint(-most, -most), QPoint(most, most)}, desktop);
        row("far off", {QPoint(most - 9, most - 9), QPoint(most, most)},
            {desktop.bottomRight() - QPoint(9, 9), QSize(10, 10)});
    }
    void areasAreMovedOntoTheDesktop()
    {
        QFETCH(QRect, area);
        QTEST(ensureVisibilityOfArea(area), "expected");
    }

    void rectanglesAreCentred()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const QSize odd(101, 51);
        const QPoint corner((screen.width() - 101) / 2, (screen.height() - 51) / 2);
        QCOMPARE(centerRectOnPrimaryScreen(QRect(QPoint(-5000, 70), odd)),
                 QRect(screen.topLeft() + corner, odd));
        const QSize large = screen.size() + QSize(3, 5); // halves are rounded toward zero
        QCOMPARE(centerRectOnPrimaryScreen(QRect(QPoint(), large)),
                 QRect(screen.topLeft() - QPoint(1, 2), large));
    }
};

OMBRIN_TEST_MAIN(tst_VhUtilities)
#include "tst_vhutilities.moc"
