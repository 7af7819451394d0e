#include "support/TestCase.h"
#include "support/XUser.h"

#include <ombrin/OmTextBrowser.h>

using namespace ombrin::test;
using ombrin::OmTextBrowser;

class tst_OmTextBrowserX11 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void copyLockHoldsForSelectionAndDrag_data()
    {
        const auto row = columns<bool, QString>("copyable", "text");
        row("free", true, "secret");
        row("locked", false, QString());
    }
    void copyLockHoldsForSelectionAndDrag()
    {
        QFETCH(bool, copyable);
        QFETCH(QString, text);
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        auto *browser = new OmTextBrowser;
        auto *target = new QPlainTextEdit;
        layout->addWidget(browser);
        layout->addWidget(target);
        browser->setCopyable(copyable);
        browser->setPlainText("secret"_q);
        window.setGeometry(100, 100, 500, 150);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window, 20000));

        QApplication::clipboard()->setText("old"_q, QClipboard::Selection);
        QTextCursor cursor(browser->document());
        cursor.setPosition(3);
        QPoint middle;
        QVERIFY(waitFor([&] { // the window manager may still be placing the window
            middle = browser->viewport()->mapToGlobal(browser->cursorRect(cursor).center());
            clickAt(middle, 1, 2);
            return QTest::qWaitFor(
                    [&] { return browser->textCursor().selectedText() == "secret"_q; }, 1000);
        }));
        QTRY_COMPARE_WITH_TIMEOUT(QApplication::clipboard()->text(QClipboard::Selection), text,
                                  20000);

        QTest::qWait(QApplication::doubleClickInterval() + 100); // not a third click
        dragBy(middle, target->mapToGlobal(target->rect().center()) - middle);
        QTRY_COMPARE_WITH_TIMEOUT(target->toPlainText(), text, 20000);
        QCOMPARE(browser->toPlainText(), "secret"_q);
    }
};

OMBRIN_TEST_MAIN(tst_OmTextBrowserX11)
#include "tst_omtextbrowser_x11.moc"
