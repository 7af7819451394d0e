#include "support/TestCase.h"

#include "widgets/TextElision.h"

class tst_TextElision : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cutsWhereQtCuts_data()
    {
        QTest::addColumn<QString>("text");

        const auto addLong = [](const char *name, const char *piece, int count) {
            QTest::newRow(name) << QString::fromUtf8(piece).repeated(count);
        };
        QTest::newRow("empty") << QString();
        QTest::newRow("short") << "Ada"_q;
        addLong("Latin with ligatures", "An office affair, fi fl ffi. ", 300);
        addLong("wide", "W", 3000);
        addLong("narrow", "i", 3000);
        addLong("Hebrew", "\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd ", 300);
        addLong("Arabic, joined", "\u0645\u0631\u062d\u0628\u0627\u0628\u0643", 300);
        addLong("both directions", "abc (\u05e9\u05dc\u05d5\u05dd 123) ", 300);
        addLong("combining", "e\u0301o\u0308\u0323", 600);
        addLong("nothing but marks", "\u0301", 5000);
        addLong("outside the basic plane", "\U0001F600\U00010400", 800);
        addLong("no room at all", "\u200b", 5000);
        addLong("direction marks", "\u202eabc\u202c def \u200f", 300);
        addLong("lines and tabs", "one\ntwo\tthree ", 300);
        QTest::newRow("variants") << QString(1500, QLatin1Char('l')) + QChar(0x9c)
                                             + QString(600, QLatin1Char('s'));
    }

    void cutsWhereQtCuts()
    {
        QFETCH(QString, text);
        const QFontMetrics metrics{QApplication::font()};
        for (const auto mode : {Qt::ElideLeft, Qt::ElideRight, Qt::ElideMiddle, Qt::ElideNone}) {
            for (const int width : {-5, 0, 3, 11, 12, 13, 40, 63, 64, 65, 150, 333, 1200, 30000})
                QCOMPARE(ombrin::elidedText(metrics, text, mode, width),
                         metrics.elidedText(text, mode, width));
        }
    }
};

OMBRIN_TEST_MAIN(tst_TextElision)
#include "tst_textelision.moc"
