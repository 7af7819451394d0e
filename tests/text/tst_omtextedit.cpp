#include "support/MenuUser.h"
#include "support/SpellingFolder.h"

#include <ombrin/OmTextEdit.h>
#include <ombrin/OmTextEditSyntax.h>

#include <random>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace ombrin;
using namespace ombrin::test;

namespace {

class Edit : public OmTextEdit
{
public:
    Edit()
    {
        resize(300, 100);
        setDict("aa"_q);
        setSpellChecking(true);
        show();
        QCoreApplication::processEvents();
    }
    void paste(const QString &html, const QString &format = "text/html"_q)
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
    const QString ends = " ,?!."_q;
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
void openMenu(OmTextEdit *edit, int position, const std::function<void(QMenu *)> &use)
{
    QTextCursor cursor(edit->document());
    cursor.setPosition(position);
    const QPoint place = edit->cursorRect(cursor).center();
    QVERIFY(useMenu([&] { askForMenu(edit->viewport(), place); }, use));
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
        QDir(data + "/spelling"_q).removeRecursively();
        SpellingFolder::needBackend();
        m_folder = std::make_unique<SpellingFolder>();
        m_folder->add("aa"_q, {"hello", "world", "don't", "cat", "x&y"});
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
        const auto row = columns<QString, QStringList>("typed", "expected");
        const QString helo = "helo"_q;
        for (const char *end : {" ", ",", "?", "!", "."})
            row(end, helo + QLatin1String(end), QStringList(helo));
        for (const char *right :
             {"helo", "helo;", "hello ", "HELLO ", "(helo) ", "don't ", " ", "... "})
            row(right, right, QStringList());
        row("four", "world helo hello helo ", {helo, helo});
        row("inside", "helox helo ", {"helox"_q, helo});
        row("brackets", "(helo) helo ", QStringList(helo));
        row("other script", "слон ", QStringList("слон"_q));
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
        m_edit->setPlainText("qelu one.\ncat\nqelu two qelu\n"_q);
        m_edit->moveCursor(QTextCursor::End);
        QCOMPARE(underlined(m_edit->document()), QStringList());
        QTest::keyClicks(m_edit.get(), "qelu "_q);
        const QStringList three = {"qelu"_q, "qelu"_q, "qelu"_q};
        QCOMPARE(underlined(m_edit->document()), three);

        const int listeners = m_edit->listeners();
        m_edit->setSpellChecking(false);
        QCOMPARE(underlined(m_edit->document()), QStringList());
        QTest::keyClicks(m_edit.get(), "wrold "_q);
        m_edit->setSpellChecking(true);
        m_edit->setSpellChecking(true);
        QCOMPARE(m_edit->listeners(), listeners);
        QCOMPARE(underlined(m_edit->document()), three);

        // A word that became correct.
        OmSpelling::instance()->addToDictionary("qelu"_q);
        QTest::keyClicks(m_edit.get(), "qelu "_q);
        QCOMPARE(underlined(m_edit->document()), QStringList());
    }

    void compositionIsLeftAlone()
    {
        QInputMethodEvent composing("helo "_q, {});
        QCoreApplication::sendEvent(m_edit.get(), &composing);
        QCOMPARE(m_edit->textCursor().block().layout()->preeditAreaText(), "helo "_q);
        QCOMPARE(underlined(m_edit->document()), QStringList());
        QInputMethodEvent committing;
        committing.setCommitString("helo "_q);
        QCoreApplication::sendEvent(m_edit.get(), &committing);
        QCOMPARE(underlined(m_edit->document()), QStringList("helo"_q));
    }

    void serviceThatIsNotAvailableChangesNothing()
    {
        const ombrin::SpellingBackendFactory factory = ombrin::spellingBackendFactory();
        m_edit->setSpellChecking(false);
        ombrin::setSpellingBackendFactory({});
        m_edit->setSpellChecking(true);
        QVERIFY(!m_edit->useSpellChecking());
        QTest::keyClicks(m_edit.get(), "helo "_q);
        QCOMPARE(underlined(m_edit->document()), QStringList());
        ombrin::setSpellingBackendFactory(factory);
    }

    void pastedTextIsPlain_data()
    {
        const auto row = columns<QString, QString>("html", "expected");
        row("white space", "<pre>  a \n\n  b  </pre>", "a b");
        row("paragraphs", "<p>a</p><p><b>b</b> c</p>", "a\nb c");
        row("word processor",
            "<html xmlns:o='urn:o'><head><style><!-- p.Mso {margin:0cm;} --></style>"
            "<title>no</title><!--[if gte mso 9]><xml><o:x>no</o:x></xml><![endif]--></head>"
            "<body><p class=Mso><span lang=EN>One&nbsp; <o:p></o:p></span></p>"
            "<p class=Mso>two<o:p>&nbsp;</o:p></p></body></html>"_q,
            "One two");
        row("script and picture", "<script>no()</script>a<img src='x.png'>b", "ab");
        row("nothing", "<img src='x.png'>", "");
        row("deep", "<table><tr><td>"_q.repeated(500) + "a"_q, "a");
#ifdef Q_OS_UNIX
        const QString pipe = QDir::temp().filePath("tst_omtextedit.pipe"_q);
        mkfifo(QFile::encodeName(pipe).constData(), 0600); // May be left of an earlier run.
        row("style sheet that is a pipe",
            "<head><link rel='stylesheet' href='file://%1'></head>a"_q.arg(pipe), "a");
#endif
    }
    void pastedTextIsPlain()
    {
        QFETCH(QString, html);
        m_edit->setMaxLength(1);
        m_edit->paste(html);
        QTEST(m_edit->toPlainText(), "expected");

        m_edit->clear();
        m_edit->paste(html, "application/x-qrichtext"_q);
        QTEST(m_edit->toPlainText(), "expected");
    }

    void longPasteEndsInView()
    {
        m_edit->paste("<p>a</p>"_q.repeated(100));
        QVERIFY(m_edit->viewport()->rect().contains(m_edit->cursorRect()));
    }

    void readOnlyTextStays()
    {
        QTest::keyClicks(m_edit.get(), "helo "_q);
        m_edit->setReadOnly(true);
        m_edit->paste("<b>no</b>"_q);
        openMenu(m_edit.get(), 2, [](QMenu *menu) { QVERIFY(menu->title().isEmpty()); });
        QCOMPARE(m_edit->toPlainText(), "helo "_q);
    }

    void keysObeyTheLimit()
    {
        const std::tuple<Qt::Key, Qt::KeyboardModifier, QString, QString, int> cases[] = {
                {Qt::Key_X, Qt::NoModifier, "x"_q, "abc"_q, 0},
                {Qt::Key_X, Qt::ShiftModifier, "X"_q, "abcX"_q, 0},
                {Qt::Key_Home, Qt::NoModifier, ""_q, "abc"_q, 0},
                {Qt::Key_Backspace, Qt::NoModifier, ""_q, "ab"_q, 0},
                {Qt::Key_Tab, Qt::NoModifier, "\t"_q, "abc\t"_q, 0},
                {Qt::Key_Return, Qt::NoModifier, ""_q, "abc"_q, 1},
                {Qt::Key_Enter, Qt::KeypadModifier, ""_q, "abc"_q, 1},
                {Qt::Key_Return, Qt::ShiftModifier, ""_q, "abc\n"_q, 0}};
        m_edit->setMaxLength(3);
        for (const auto &[key, modifier, typed, expected, count] : cases) {
            QSignalSpy sent(m_edit.get(), &OmTextEdit::enterPressed);
            m_edit->clear();
            QTest::keyClicks(m_edit.get(), "abcd"_q);
            QTest::sendKeyEvent(QTest::Click, m_edit.get(), key, typed, modifier);
            QCOMPARE(m_edit->toPlainText(), expected);
            QCOMPARE(int(sent.count()), count);
            QCOMPARE(m_edit->textCursor().atEnd(), true);
        }
    }

    void suggestionReplacesTheWordInOneStep()
    {
        QTest::keyClicks(m_edit.get(), "cat helo world"_q);
        QVERIFY(OmSpelling::instance()->prepareSuggestions("helo"_q, 20000));
        openMenu(m_edit.get(), 6, [](QMenu *menu) {
            QCOMPARE(menu->title(), "Spelling"_q);
            QCOMPARE(entriesOf(menu), QStringList({"hello"_q, "-"_q, "Add to Dictionary"_q}));
            choose(menu, "hello"_q);
        });
        QCOMPARE(m_edit->toPlainText(), "cat hello world"_q);
        QCOMPARE(m_edit->textCursor().position(), 15);
        m_edit->undo();
        QCOMPARE(m_edit->toPlainText(), "cat helo world"_q);
        OmSpelling::instance()->replaceWord("helo"_q, "x&y"_q);
        QVERIFY(OmSpelling::instance()->prepareSuggestions("helo"_q, 20000));
        openMenu(m_edit.get(), 6, [](QMenu *menu) {
            QCOMPARE(entriesOf(menu).first(), "x&&y"_q);
            choose(menu, "x&&y"_q);
        });
        QCOMPARE(m_edit->toPlainText(), "cat x&y world"_q);
    }

    void otherMenus()
    {
        openMenu(m_edit.get(), 0, [](QMenu *menu) { QVERIFY(menu->title().isEmpty()); });
        QTest::keyClicks(m_edit.get(), "hello zzkqv "_q);
        openMenu(m_edit.get(), 2, [](QMenu *menu) { QVERIFY(menu->title().isEmpty()); });
        QVERIFY(OmSpelling::instance()->prepareSuggestions("zzkqv"_q, 20000));
        openMenu(m_edit.get(), 8, [](QMenu *menu) {
            QCOMPARE(entriesOf(menu).first(), "No Suggestions Found"_q);
            choose(menu, "No Suggestions Found"_q);
        });
        QCOMPARE(m_edit->toPlainText(), "hello zzkqv "_q);
        QCOMPARE(underlined(m_edit->document()), QStringList("zzkqv"_q));
        openMenu(m_edit.get(), 8, [](QMenu *menu) { choose(menu, "Add to Dictionary"_q); });
        QCOMPARE(underlined(m_edit->document()), QStringList());
        QCOMPARE(OmSpelling::instance()->checkWord("zzkqv"_q), 1);
        m_edit->setSpellChecking(false);
        m_edit->setPlainText("helo"_q);
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
        m_folder->add("many"_q, many);
        m_edit->setDict("many"_q);
        m_edit->setPlainText("zz"_q);
        WordListBackend::hold().lock();
        openMenu(m_edit.get(), 1, [](QMenu *menu) {
            QCOMPARE(entriesOf(menu).size(), 3);
            QVERIFY(!menu->actions().first()->isEnabled());
            WordListBackend::hold().unlock();
            QTRY_COMPARE_WITH_TIMEOUT(entriesOf(menu).first(), "z0"_q, 20000);
            // No more than the screen holds.
            QVERIFY(menu->screen()->availableGeometry().contains(menu->geometry()));
            QVERIFY(entriesOf(menu).size() < 200);
        });
        m_edit->setDict(QString());
        ombrin::setSpellingBackendFactory(factory);
    }

    void editMayBeDeletedAtAnyTime()
    {
        QTest::keyClicks(m_edit.get(), "helo hello "_q);
        openMenu(m_edit.get(), 2, [this](QMenu *menu) {
            m_edit.reset();
            choose(menu, "hello"_q);
        });
        for (const int position : {2, 8}) {
            m_edit = std::make_unique<Edit>();
            m_edit->setPlainText("hello hello "_q);
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
        edit.setPlainText("a.b a.b a.bc "_q);
        for (const QString &word : {QString(), "a.b"_q})
            syntax.addMisspelledWord(word);
        syntax.rehighlight();
        QCOMPARE(underlined(edit.document()), QStringList({"a.b"_q, "a.b"_q}));
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

        const QStringList words = {"teh"_q, "cat"_q, "te"_q, "a\xCC\x88"_q, "\xF0\x9F\x98\x80"_q};
        const QStringList pieces = {" "_q,    "."_q,  "\n"_q,      "x"_q,      "teh "_q,
                                    "cat,"_q, "te"_q, words.at(3), words.at(4)};
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
