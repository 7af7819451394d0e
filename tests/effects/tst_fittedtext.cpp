#include "support/TestCase.h"

#include "effects/FittedText.h"

#include <QtGui/QFontMetrics>

using ombrin::fittedText;

class tst_FittedText : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textThatFitsIsLeftAlone()
    {
        for (const QString &text : {QString(), QStringLiteral("Hello <b>world</b> &amp; R&D"),
                                    QStringLiteral("  first \n\n\tlast  "),
                                    QStringLiteral("\u05e9\u05dc\u05d5\u05dd e\u0301\u0302")}) {
            QCOMPARE(fittedText(text, QApplication::font(), QSize(400, 100)), text);
        }
    }

    void longLinesAreBroken()
    {
        const QFont font = QApplication::font();
        const QString words = QStringLiteral("one two three four five six seven eight");
        const int width = QFontMetrics(font).horizontalAdvance(QStringLiteral("one two three "));
        const QString broken = fittedText(words, font, QSize(width, 1000));
        QCOMPARE(broken.section(QLatin1Char('\n'), 0, 0), QStringLiteral("one two three"));
        QString joined = broken;
        QCOMPARE(joined.replace(QLatin1Char('\n'), QLatin1Char(' ')), words);

        const QString word(200, QLatin1Char('w'));
        QString parts = fittedText(word, font, QSize(width, 1000));
        QVERIFY(parts.count(QLatin1Char('\n')) > 5);
        QCOMPARE(parts.remove(QLatin1Char('\n')), word);
    }

    void whatIsLeftOverBecomesAnEllipsis_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSize>("size");
        const QSize size(300, 100);
        const int many = 100000;
        QTest::newRow("one word") << QString(many, QLatin1Char('x')) << size;
        QTest::newRow("empty lines") << QString(many, QLatin1Char('\n')) << size;
        QTest::newRow("accents") << QLatin1Char('e') + QString(many, QChar(0x0301)) << size;
        QTest::newRow("right to left") << QString(many, QChar(0x05d0)) << size;
        QTest::newRow("halves of surrogates") << QString(many, QChar(0xd83d)) << size;
        QTest::newRow("no room") << QString(many, QLatin1Char('x')) << QSize(0, 0);
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
