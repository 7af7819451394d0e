#include "support/SpellingFolder.h"
#include "support/TestCase.h"

#include <ombrin/OmTextEdit.h>
#include <ombrin/OmTextEditSyntax.h>

#include <QtCore/QDir>
#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QScreen>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QMenu>

#include <random>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using ombrin::OmSpelling;
using ombrin::OmTextEdit;
using ombrin::OmTextEditSyntax;
using ombrin::test::SpellingFolder;
using ombrin::test::WordListBackend;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

class Edit : public OmTextEdit
{
public:
    Edit()
    {
        resize(300, 100);
        setDict(QStringLiteral("aa"));
        setSpellChecking(true);
        show();
        QCoreApplication::processEvents();
    }
    void paste(const QString &html, const QString &format = QStringLiteral("text/html"))
    {
        QMimeData mime;
        mime.setData(format, html.toUtf8());
        insertFromMimeData(&mime);
    }
    int listeners() const { return receivers(SIGNAL(textChanged())); }
};

QStringList underlined(const QTextDocument *document)
{
    QStringList words;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const auto formats = block.layout()->formats();
        for (const QTextLayout::FormatRange &range : formats) {
            if (range.format.underlineStyle() == QTextCharFormat::DashDotLine
                && range.format.underlineColor() == QColor(Qt::red))
                words.append(block.text().mid(range.start, range.length));
        }
    }
    return words;
}

// What is to be underlined, found in the plainest way.
QStringList misspelt(const QTextDocument *document, const QStringList &words)
{
    const QString ends = QStringLiteral(" ,?!.");
    QStringList found;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QString paragraph = block.text();
        int start = 0;
        for (int i = 0; i < paragraph.size(); ++i) {
            if (!ends.contains(paragraph.at(i)))
                continue;
            if (words.contains(paragraph.mid(start, i - start)))
                found.append(paragraph.mid(start, i - start));
            start = i + 1;
        }
    }
    return found;
}

// Opens the context menu over \a position of the text and hands it to \a use.
template <typename Use>
void openMenu(OmTextEdit *edit, int position, Use use)
{
    QTextCursor cursor(edit->document());
    cursor.setPosition(position);
    const QPoint point = edit->cursorRect(cursor).center();
    bool wasOpen = false;
    QTimer::singleShot(0, qApp, [&wasOpen, use] {
        const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        wasOpen = menu;
        use(menu.data());
        if (menu)
            menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, edit->viewport()->mapToGlobal(point));
    QCoreApplication::sendEvent(edit->viewport(), &event);
    QVERIFY(wasOpen);
}

QStringList entries(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    return texts;
}

void choose(QMenu *menu, const QString &entry)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text() == entry)
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                              menu->actionGeometry(action).center());
    }
}

} // namespace

class tst_OmTextEdit : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QDir(data + QStringLiteral("/spelling")).removeRecursively();
        SpellingFolder::needBackend();
        m_folder = std::make_unique<SpellingFolder>();
        m_folder->add(QStringLiteral("aa"), {"hello", "world", "don't", "cat", "x&y"});
        m_edit = std::make_unique<Edit>();
    }
    void tearDown() override
    {
        m_edit.reset();
        m_folder.reset();
    }

private Q_SLOTS:
    void wrongWordIsUnderlinedWhenItEnds_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("expected");
        const QString helo = text("helo");
        for (const char *end : {" ", ",", "?", "!", "."})
            QTest::newRow(end) << helo + text(end) << QStringList(helo);
        for (const char *right :
             {"helo", "helo;", "hello ", "HELLO ", "(helo) ", "don't ", " ", "... "})
            QTest::newRow(right) << text(right) << QStringList();
        QTest::newRow("four") << text("world helo hello helo ") << QStringList({helo, helo});
        QTest::newRow("inside") << text("helox helo ") << QStringList({text("helox"), helo});
        QTest::newRow("brackets") << text("(helo) helo ") << QStringList(helo);
        QTest::newRow("other script") << text("слон ") << QStringList(text("слон"));
    }
    void wrongWordIsUnderlinedWhenItEnds()
    {
        QFETCH(QString, typed);
        for (const QChar c : typed)
            QTest::sendKeyEvent(QTest::Click, m_edit.get(), Qt::Key_A, QString(c), Qt::NoModifier);
        QTEST(underlined(m_edit->document()), "expected");
        QCOMPARE(m_edit->textCursor().position(), int(typed.size()));

        // Checking leaves no trace in what can be undone.
        QTextEdit plain;
        for (const QChar c : typed)
            QTest::sendKeyEvent(QTest::Click, &plain, Qt::Key_A, QString(c), Qt::NoModifier);
        QCOMPARE(m_edit->document()->availableUndoSteps(), plain.document()->availableUndoSteps());
        m_edit->undo();
        QCOMPARE(m_edit->toPlainText(), QString());
    }

    void underlinesFollowEverywhereAndSurviveSwitchingOff()
    {
        m_edit->setPlainText(text("qelu one.\ncat\nqelu two qelu\n"));
        m_edit->moveCursor(QTextCursor::End);
        QCOMPARE(underlined(m_edit->document()), QStringList());
        QTest::keyClicks(m_edit.get(), text("qelu "));
        const QStringList three = {text("qelu"), text("qelu"), text("qelu")};
        QCOMPARE(underlined(m_edit->document()), three);

        const int listeners = m_edit->listeners();
        m_edit->setSpellChecking(false);
        QCOMPARE(underlined(m_edit->document()), QStringList());
        QTest::keyClicks(m_edit.get(), text("wrold "));
        m_edit->setSpellChecking(true);
        m_edit->setSpellChecking(true);
        QCOMPARE(m_edit->listeners(), listeners);
        QCOMPARE(underlined(m_edit->document()), three);

        // A word that became correct.
        OmSpelling::instance()->addToDictionary(text("qelu"));
        QTest::keyClicks(m_edit.get(), text("qelu "));
        QCOMPARE(underlined(m_edit->document()), QStringList());
    }

    void compositionIsLeftAlone()
    {
        QInputMethodEvent composing(text("helo "), {});
        QCoreApplication::sendEvent(m_edit.get(), &composing);
        QCOMPARE(m_edit->textCursor().block().layout()->preeditAreaText(), text("helo "));
        QCOMPARE(underlined(m_edit->document()), QStringList());
        QInputMethodEvent committing;
        committing.setCommitString(text("helo "));
        QCoreApplication::sendEvent(m_edit.get(), &committing);
        QCOMPARE(underlined(m_edit->document()), QStringList(text("helo")));
    }

    void serviceThatIsNotAvailableChangesNothing()
    {
        const ombrin::SpellingBackendFactory factory = ombrin::spellingBackendFactory();
        m_edit->setSpellChecking(false);
        ombrin::setSpellingBackendFactory({});
        m_edit->setSpellChecking(true);
        QVERIFY(!m_edit->useSpellChecking());
        QTest::keyClicks(m_edit.get(), text("helo "));
        QCOMPARE(underlined(m_edit->document()), QStringList());
        ombrin::setSpellingBackendFactory(factory);
    }

    void pastedTextIsPlain_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &html, const char *expected) {
            QTest::newRow(name) << html << text(expected);
        };
        row("white space", text("<pre>  a \n\n  b  </pre>"), "a b");
        row("paragraphs", text("<p>a</p><p><b>b</b> c</p>"), "a\nb c");
        row("word processor",
            text("<html xmlns:o='urn:o'><head><style><!-- p.Mso {margin:0cm;} --></style>"
                 "<title>no</title><!--[if gte mso 9]><xml><o:x>no</o:x></xml><![endif]--></head>"
                 "<body><p class=Mso><span lang=EN>One&nbsp; <o:p></o:p></span></p>"
                 "<p class=Mso>two<o:p>&nbsp;</o:p></p></body></html>"),
            "One two");
        row("script and picture", text("<script>no()</script>a<img src='x.png'>b"), "ab");
        row("nothing", text("<img src='x.png'>"), "");
        row("deep", text("<table><tr><td>").repeated(500) + text("a"), "a");
#ifdef Q_OS_UNIX
        const QString pipe = QDir::temp().filePath(QStringLiteral("tst_omtextedit.pipe"));
        mkfifo(QFile::encodeName(pipe).constData(), 0600); // May be left of an earlier run.
        row("style sheet that is a pipe",
            text("<head><link rel='stylesheet' href='file://%1'></head>a").arg(pipe), "a");
#endif
    }
    void pastedTextIsPlain()
    {
        QFETCH(QString, html);
        m_edit->setMaxLength(1);
        m_edit->paste(html);
        QTEST(m_edit->toPlainText(), "expected");

        m_edit->clear();
        m_edit->paste(html, QStringLiteral("application/x-qrichtext"));
        QTEST(m_edit->toPlainText(), "expected");
    }

    void keysObeyTheLimit()
    {
        struct Case
        {
            Qt::Key key;
            Qt::KeyboardModifier modifier;
            const char *typed, *expected;
            int sent;
        };
        constexpr Case cases[] = {{Qt::Key_X, Qt::NoModifier, "x", "abc", 0},
                                  {Qt::Key_X, Qt::ShiftModifier, "X", "abcX", 0},
                                  {Qt::Key_Home, Qt::NoModifier, "", "abc", 0},
                                  {Qt::Key_Backspace, Qt::NoModifier, "", "ab", 0},
                                  {Qt::Key_Tab, Qt::NoModifier, "\t", "abc\t", 0},
                                  {Qt::Key_Return, Qt::NoModifier, "", "abc", 1},
                                  {Qt::Key_Enter, Qt::KeypadModifier, "", "abc", 1},
                                  {Qt::Key_Return, Qt::ShiftModifier, "", "abc\n", 0}};
        m_edit->setMaxLength(3);
        for (const Case &test : cases) {
            QSignalSpy sent(m_edit.get(), &OmTextEdit::enterPressed);
            m_edit->clear();
            QTest::keyClicks(m_edit.get(), text("abcd"));
            QTest::sendKeyEvent(QTest::Click, m_edit.get(), test.key, text(test.typed),
                                test.modifier);
            QCOMPARE(m_edit->toPlainText(), text(test.expected));
            QCOMPARE(int(sent.count()), test.sent);
            QCOMPARE(m_edit->textCursor().atEnd(), true);
        }
    }

    void suggestionReplacesTheWordInOneStep()
    {
        QTest::keyClicks(m_edit.get(), text("cat helo world"));
        QVERIFY(OmSpelling::instance()->prepareSuggestions(text("helo"), 20000));
        openMenu(m_edit.get(), 6, [](QMenu *menu) {
            QCOMPARE(menu->title(), text("Spelling"));
            QCOMPARE(entries(menu),
                     QStringList({text("hello"), text("-"), text("Add to Dictionary")}));
            choose(menu, text("hello"));
        });
        QCOMPARE(m_edit->toPlainText(), text("cat hello world"));
        QCOMPARE(m_edit->textCursor().position(), 15);
        m_edit->undo();
        QCOMPARE(m_edit->toPlainText(), text("cat helo world"));
        OmSpelling::instance()->replaceWord(text("helo"), text("x&y"));
        QVERIFY(OmSpelling::instance()->prepareSuggestions(text("helo"), 20000));
        openMenu(m_edit.get(), 6, [](QMenu *menu) {
            QCOMPARE(entries(menu).first(), text("x&&y"));
            choose(menu, text("x&&y"));
        });
        QCOMPARE(m_edit->toPlainText(), text("cat x&y world"));
    }

    void otherMenus()
    {
        openMenu(m_edit.get(), 0, [](QMenu *menu) { QVERIFY(menu->title().isEmpty()); });
        QTest::keyClicks(m_edit.get(), text("hello zzkqv "));
        openMenu(m_edit.get(), 2, [](QMenu *menu) { QVERIFY(menu->title().isEmpty()); });
        QVERIFY(OmSpelling::instance()->prepareSuggestions(text("zzkqv"), 20000));
        openMenu(m_edit.get(), 8, [](QMenu *menu) {
            QCOMPARE(entries(menu).first(), text("No Suggestions Found"));
            choose(menu, text("No Suggestions Found"));
        });
        QCOMPARE(m_edit->toPlainText(), text("hello zzkqv "));
        QCOMPARE(underlined(m_edit->document()), QStringList(text("zzkqv")));
        openMenu(m_edit.get(), 8, [](QMenu *menu) { choose(menu, text("Add to Dictionary")); });
        QCOMPARE(underlined(m_edit->document()), QStringList());
        QCOMPARE(OmSpelling::instance()->checkWord(text("zzkqv")), 1);
        m_edit->setSpellChecking(false);
        m_edit->setPlainText(text("helo"));
        openMenu(m_edit.get(), 2, [](QMenu *menu) { QVERIFY(menu->title().isEmpty()); });
    }

    void menuOpensBeforeItsSuggestionsAreThere()
    {
        const ombrin::SpellingBackendFactory factory = ombrin::spellingBackendFactory();
        OmSpelling::instance()->setDict(QString());
        SpellingFolder::useWordLists();
        QList<QByteArray> many;
        for (int i = 0; i < 200; ++i)
            many.append("z" + QByteArray::number(i));
        m_folder->add(text("many"), many);
        m_edit->setDict(text("many"));
        m_edit->setPlainText(text("zz"));
        WordListBackend::hold().lock();
        openMenu(m_edit.get(), 1, [](QMenu *menu) {
            QCOMPARE(entries(menu).size(), 3);
            QVERIFY(!menu->actions().first()->isEnabled());
            WordListBackend::hold().unlock();
            QTRY_COMPARE_WITH_TIMEOUT(entries(menu).first(), text("z0"), 20000);
            // No more than the screen holds.
            QVERIFY(menu->screen()->availableGeometry().contains(menu->geometry()));
            QVERIFY(entries(menu).size() < 200);
        });
        m_edit->setDict(QString());
        ombrin::setSpellingBackendFactory(factory);
    }

    void editMayBeDeletedAtAnyTime()
    {
        QTest::keyClicks(m_edit.get(), text("helo hello "));
        openMenu(m_edit.get(), 2, [this](QMenu *menu) {
            m_edit.reset();
            choose(menu, text("hello"));
        });
        for (const int position : {2, 8}) {
            m_edit = std::make_unique<Edit>();
            m_edit->setPlainText(text("hello hello "));
            openMenu(m_edit.get(), position, [this](QMenu *) { m_edit.reset(); });
        }
    }

    void highlighterKeepsUpWithAnyEdit()
    {
        for (const bool isIndexed : {true, false})
            editAtRandom(isIndexed);
    }

    void phraseIsUnderlinedToo()
    {
        QTextEdit edit;
        OmTextEditSyntax syntax(&edit);
        edit.setPlainText(text("a.b a.b a.bc "));
        for (const QString &word : {QString(), text("a.b")})
            syntax.addMisspelledWord(word);
        syntax.rehighlight();
        QCOMPARE(underlined(edit.document()), QStringList({text("a.b"), text("a.b")}));
    }

private:
    // Also where the document has data of its own, which is the case in some blocks.
    static void editAtRandom(bool isIndexed)
    {
        class OwnData : public QTextBlockUserData
        {};
        QTextEdit edit;
        auto *former = new OmTextEditSyntax(&edit); // Leaves its own notes behind.
        former->setSpellChecking(true);
        former->rehighlight();
        delete former;
        OmTextEditSyntax syntax(&edit);
        if (isIndexed)
            syntax.setSpellChecking(true);
        syntax.rehighlight();

        const QStringList words = {text("teh"), text("cat"), text("te"), text("a\xCC\x88"),
                                   text("\xF0\x9F\x98\x80")};
        const QStringList pieces = {text(" "),    text("."),  text("\n"),  text("x"),  text("teh "),
                                    text("cat,"), text("te"), words.at(3), words.at(4)};
        QStringList known;
        std::mt19937 random(7);
        const auto below = [&random](int limit) {
            return static_cast<int>(random() % unsigned(limit));
        };
        for (int step = 0; step < 3000; ++step) {
            QTextCursor cursor(edit.document());
            cursor.setPosition(below(edit.document()->characterCount()));
            const QString word = words.at(below(int(words.size())));
            switch (below(8)) {
            case 0:
                syntax.addMisspelledWord(word);
                syntax.addMisspelledWord(word);
                if (!known.contains(word))
                    known.append(word);
                syntax.rehighlightWord(word);
                break;
            case 1:
                syntax.removeMisspelledWord(word);
                known.removeAll(word);
                syntax.rehighlightWord(word);
                break;
            case 2:
                cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, below(30));
                cursor.removeSelectedText();
                break;
            case 3:
                edit.undo();
                break;
            case 4:
                if (isIndexed)
                    cursor.block().setUserData(new OwnData);
                break;
            default:
                cursor.insertText(pieces.at(below(int(pieces.size()))));
            }
            QCOMPARE(underlined(edit.document()), misspelt(edit.document(), known));
        }
    }

    std::unique_ptr<SpellingFolder> m_folder;
    std::unique_ptr<Edit> m_edit;
};

OMBRIN_TEST_MAIN(tst_OmTextEdit)

#include "tst_omtextedit.moc"
