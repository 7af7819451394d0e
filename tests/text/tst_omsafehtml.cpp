#include "support/TestCase.h"

#include <ombrin/OmSafeHtml.h>

using ombrin::OmSafeHtml;

namespace {

struct Message
{
    const char *html;
    const char *safe;
};

// clang-format off
const Message kMessages[] = {
        // what people write
        {"Hi <b>you</b>, <I>all</I>", "Hi <b>you</b>, <i>all</i>"},
        {"<strike>a</strike><ins>b</ins>", "<s>a</s><u>b</u>"},
        {"<ul><li>a<li>b</ul>", "<ul><li>a</li><li>b</li></ul>"},
        {"<p>a<p>b", "<p>a</p><p>b</p>"},
        {"a<br/>b<hr>c", "a<br>b<hr>c"},
        {"a \n\t b", "a b"},
        {"&lt;b&gt; &amp;amp; &#65;&#x1F600; &auml; &no", "&lt;b&gt; &amp;amp; A\U0001F600 &auml; &amp;no"},
        {"<a href=\"http://example.com/?a=1&amp;b=2\">x</a>", "<a href=\"http://example.com/?a=1&amp;b=2\">x</a>"},
        {"<a href='MAILTO:a@b.de'>x</a>", "<a href=\"mailto:a@b.de\">x</a>"},
        {"<font color=red size=7>x</font>", "<span style=\"color:#ff0000;\">x</span>"},
        {"<span style=\" font-weight:600; color:#00f; font-size:99pt\">x</span>", "<span style=\"font-weight:bold;color:#0000ff;\">x</span>"},
        // badly closed
        {"<b><i>a</b>c</i>", "<b><i>a</i></b>c"},
        {"</b>a</p>", "a"},
        {"<b>a", "<b>a</b>"},
        {"I <3 you, a<b and c < d & e", "I &lt;3 you, a&lt;b and c &lt; d &amp; e"},
        {"<b title=\"a>b\">x</b>", "<b>x</b>"},
        {"<b title=\"a>x", "<b>x</b>"},
        {"<b x = 'y'>&#x; &a-b;<foo>c</foo>", "<b>&amp;#x; &amp;a-b;c</b>"},
        {"<li>a", "<br>a"},
        {"<a href='http://a.de'>x<a href='http://b.de'>y</a>", "<a href=\"http://a.de\">x</a><a href=\"http://b.de\">y</a>"},
        // what strangers try
        {"a<script>evil()</script>b<style>p{}</style>c<head><title>t</title></head>d", "abcd"},
        {"a<script>evil()", "a"},
        {"a<!-- <b> -->b<!DOCTYPE x><?php ?>c<!-- d", "abc"},
        {"<b onclick=\"evil()\" style=\"position:fixed\">x</b>", "<b>x</b>"},
        {"<a href=\"javascript:evil()\">x</a>", "x"},
        {"<a href=\"java&#10;script:evil()\">x</a>", "x"},
        {"<a href=\"file:///etc/passwd\">x</a><a href=\"pushplay:1\">y</a><a>z</a>", "xyz"},
        {"<a href=\"http:///etc\">x</a><a href=\"data:text/html,x\">y</a>", "xy"},
        {"<a href='http://a.de/\"><img src=x>'>x</a>", "<a href=\"http://a.de/%22%3E%3Cimg%20src=x%3E\">x</a>"},
        {"<img src=\"/dev/zero\" alt=\"a <b>\">", "a &lt;b&gt;"},
        {"<table><tr><td>a</td><td>b</td></tr><tr><td>c</table>", "<br><br>a b<br>c"},
        {"<span style=\"color:transparent\">a</span><font color=\"url(x)\">b</font>", "ab"},
        {"&#0;&#xFDD0;&#xFFFC;&#x202E;&#xD800;&#x110000;a", "a"},
};
// clang-format on

QString repeated(const char *text, int count)
{
    return QString::fromUtf8(text).repeated(count);
}

int longestUnbroken(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    int longest = 0;
    const QStringList words =
            document.toPlainText().split(QRegularExpression("[\\s\\x{200b}\\x{fffc}]"_q));
    for (const QString &word : words)
        longest = qMax(longest, static_cast<int>(word.size()));
    return longest;
}

int deepestNesting(const QString &html)
{
    int depth = 0;
    int deepest = 0;
    auto tags = QRegularExpression("<(/?)([a-z0-9]+)"_q).globalMatch(html);
    while (tags.hasNext()) {
        const QRegularExpressionMatch tag = tags.next();
        if (tag.captured(2) != "br"_q && tag.captured(2) != "hr"_q)
            depth += tag.captured(1).isEmpty() ? 1 : -1;
        deepest = qMax(deepest, depth);
    }
    return depth == 0 ? deepest : -1;
}

} // namespace

class tst_OmSafeHtml : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void messagesKeepWhatIsAllowed()
    {
        for (const Message &message : kMessages)
            QCOMPARE(OmSafeHtml::fromHtml(QString::fromUtf8(message.html)),
                     QString::fromUtf8(message.safe));
    }

    void plainTextIsShownAsItIs()
    {
        const QString text = "<b>&amp;  a\n\n  b \tc\r\nd\rend"_q;
        QTextDocument document;
        document.setHtml(OmSafeHtml::fromPlainText(text));
        QCOMPARE(document.toPlainText(), "<b>&amp;  a\n\n  b  c\nd\nend"_q);
        QCOMPARE(OmSafeHtml::fromPlainText(QString()), QString());
    }

    void costsAreBounded_data()
    {
        QTest::addColumn<QString>("html");

        QTest::newRow("nested tables") << repeated("<table><tr><td>", 18);
        QTest::newRow("nested tags") << repeated("<b>", 10000) + "x"_q;
        QTest::newRow("nested lists") << repeated("<ul><li>", 10000);
        QTest::newRow("word") << repeated("a", 200000);
        QTest::newRow("word of entities") << repeated("&auml;", 20000);
        QTest::newRow("word of tags") << repeated("<i>a</i>", 10000);
        QTest::newRow("scripts") << repeated("a\u05d0", 30000);
        QTest::newRow("marks") << "a"_q + repeated("\u0301\u200d", 30000);
        QTest::newRow("lines") << repeated("<br>", 20000);
        QTest::newRow("paragraphs") << repeated("<p>x", 20000);
        QTest::newRow("tags without end") << repeated("<b a='", 10000);
        QTest::newRow("ampersands") << repeated("<b a='&&&&&&&&'>&&", 5000);
        QTest::newRow("scripts without end") << repeated("<script>", 10000);
    }
    void costsAreBounded()
    {
        QFETCH(QString, html);
        const QString safe = OmSafeHtml::fromHtml(html);
        const int portions = static_cast<int>(html.size()) / 65536 + 1;
        QVERIFY(deepestNesting(safe) >= 0 && deepestNesting(safe) <= 16);
        QVERIFY(safe.count("<br>"_q) <= 4000 * portions);
        QVERIFY(safe.count("<p>"_q) <= 2000 * portions);
        QVERIFY(safe.count("<li>"_q) <= 500 * portions);
        QVERIFY(longestUnbroken(safe) <= 400);
        if (html.contains("\u0301"_q))
            QVERIFY(safe.size() <= 9);
    }
};

OMBRIN_TEST_MAIN(tst_OmSafeHtml)
#include "tst_omsafehtml.moc"
