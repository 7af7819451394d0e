#include "support/TestCase.h"

#include "effects/FittedText.h"

using ombrin::fittedText;

class tst_FittedText : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textThatFitsIsLeftAlone()
    {
        for (const QString &text :
             {QString(), "Hello <b>world</b> &amp; R&D"_q, "  first \n\n\tlast  "_q,
              "\u05e9\u05dc\u05d5\u05dd e\u0301\u0302"_q}) {
            QCOMPARE(fittedText(text, QApplication::font(), QSize(400, 100)), text);
        }
    }

    void longLinesAreBroken()
    {
        const QFont font = QApplication::font();
        const QString words = "one two three four five six seven eight"_q;
        const int width = QFontMetrics(font).horizontalAdvance("one two three "_q);
        const QString broken = fittedText(words, font, QSize(width, 1000));
        QCOMPARE(broken.section(QLatin1Char('\n'), 0, 0), "one two three"_q);
        QString joined = broken;
        QCOMPARE(joined.replace(QLatin1Char('\n'), QLatin1Char(' ')), words);

        const QString word(200, QLatin1Char('w'));
        QString parts = fittedText(word, font, QSize(width, 1000));
        QVERIFY(parts.count(QLatin1Char('\n')) > 5);
        QCOMPARE(parts.remove(QLatin1Char('\n')), word);
    }

    void whatIsLeftOverBecomesAnEllipsis_data()
    {
        const auto row = columns<QString, QSize>("text", "size");
        const QSize size(300, 100);
        const int many = 100000;
        row("one word", QString(many, QLatin1Char('x')), size);
        row("empty lines", QString(many, QLatin1Char('\n')), size);
        row("accents", QLatin1Char('e') + QString(many, QChar(0x0301)), size);
        row("right to left", QString(many, QChar(0x05d0)), size);
        row("halves of surrogates", QString(many, QChar(0xd83d)), size);
        row("no room", QString(many, QLatin1Char('x')), {0, 0});
    }
    void whatIsLeftOverBecomesAnEllipsis()
    {
        QFETCH(QString, text);
        QFETCH(QSize, size);
        const QFont font = QApplication::font();
        const QFontMetrics metrics(font);
        const QString fitted = fittedText(text, font, size);
        QVERIFY(fitted.endsWith(QChar(0x2026)));
        QVERIFY(fitted.size() < 40000);
        const int oneLine = metrics.size(0, QString(QChar(0x2026))).height();
        const QSize needed = metrics.size(0, fitted);
        QVERIFY(needed.height() <= std::max(size.height(), oneLine));
        const int ellipsis = metrics.horizontalAdvance(QChar(0x2026));
        QVERIFY(needed.width() <= std::max(size.width(), ellipsis) + 1);
    }
};

OMBRIN_TEST_MAIN(tst_FittedText)
#include "tst_fittedtext.moc"
