#include "support/FileDialogUser.h"
#include "support/Files.h"
#include "support/MenuUser.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmDir.h>
#include <ombrin/OmSettings.h>
#include <ombrin/OmTextBrowser.h>

#include <functional>

using ombrin::OmTextBrowser;
using namespace ombrin::test;

namespace {

constexpr QSize kSize(300, 200);
const QColor kColor(10, 200, 30);

QByteArray picture(const char *format = "png")
{
    QBuffer buffer;
    flatImage(QSize(40, 30), kColor, QImage::Format_RGB32).save(&buffer, format);
    return buffer.data();
}

// What says that it is a picture of 30,000 x 30,000 pixels.
QByteArray hugePicture()
{
    const QByteArray extent = QByteArray::fromHex("30750000");
    return picture("bmp").replace(18, 8, extent + extent);
}

QStringList entries(const QMenu *menu)
{
    QStringList texts;
    for (const QAction *action : menu->actions()) {
        const QString state = action->isEnabled() ? QString() : " (off)"_q;
        texts.append(action->isSeparator() ? "-"_q : action->text() + state);
    }
    return texts;
}

} // namespace

class tst_OmTextBrowser : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_received = m_folder->filePath("a smile&y#1.png"_q);
        writeFile(m_received, picture());
        ombrin::OmSettings::instance().setFile(m_folder->filePath("settings.ini"_q));
        QDir(ombrin::OmDir::smileysPath(false)).removeRecursively();
        m_browser = new OmTextBrowser;
        m_browser->QWidget::resize(kSize);
    }
    void tearDown() override
    {
        delete m_browser;
        ombrin::OmSettings::instance().setFile(QString());
        QDir(ombrin::OmDir::smileysPath(false)).removeRecursively();
    }

private:
    void show()
    {
        m_browser->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_browser));
    }
    void insertPicture(const QString &name) { m_browser->textCursor().insertImage(name); }
    QPoint placeOf(int position) const
    {
        QTextCursor cursor(m_browser->document());
        cursor.setPosition(position);
        return m_browser->cursorRect(cursor).center();
    }
    // Opens the menu at a place of the text and does something with it.
    QStringList openMenu(const QPoint &place, const std::function<void(QMenu *)> &use)
    {
        QStringList texts;
        useMenu([&] { askForMenu(m_browser->viewport(), place); },
                [&](QMenu *menu) {
                    texts = entries(menu);
                    use(menu);
                });
        return texts;
    }
    QStringList menuAt(const QPoint &place)
    {
        return openMenu(place, [](QMenu *) {});
    }
    static void choose(QMenu *menu, int entry)
    {
        menu->setActiveAction(menu->actions().at(entry));
        QTest::keyClick(menu, Qt::Key_Return);
    }
    QPixmap loaded(const QUrl &url)
    {
        return m_browser->loadResource(QTextDocument::ImageResource, url).value<QPixmap>();
    }

    QPointer<OmTextBrowser> m_browser;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_received;

private Q_SLOTS:
    void linksExplainThemselves_data()
    {
        const auto row = columns<QString>("toolTip");
        row("https://user@example.com:80/a?b", "Open example.com in your web browser.");
        row("ftp://example.com", "Open example.com in your web browser.");
        row("mailto:a@b.de", "Write e-mail to a@b.de.");
        row("mailto:mailto:x", "Write e-mail to x.");
        row("imap:x", "Write e-mail to x.");
        row("sip:5", "Call 5 with ombrin Phone.");
        row("pushplay:7", "Play Push Message");
        row("pushsave:7", "Save Push Message as...");
        row("tel:1", "");
        row("file:///etc/passwd", "");
        row("javascript:x", "");
    }
    void linksExplainThemselves()
    {
        m_browser->setToolTip("old"_q);
        const QUrl link(QString::fromLatin1(QTest::currentDataTag()));
        Q_EMIT static_cast<QTextBrowser *>(m_browser)->highlighted(link);
        QTEST(m_browser->toolTip(), "toolTip");
        Q_EMIT static_cast<QTextBrowser *>(m_browser)->highlighted(QUrl());
        QCOMPARE(m_browser->toolTip(), QString());
    }

    void toolTipsOfHostileLinksArePlainText()
    {
        QUrl link;
        link.setScheme("mailto"_q);
        link.setPath("<b>you</b>\u202e<img src=x>&lt;"_q);
        Q_EMIT static_cast<QTextBrowser *>(m_browser)->highlighted(link);
        QTextDocument shown;
        shown.setHtml(m_browser->toolTip()); // as what Qt takes for rich text is shown
        QVERIFY(Qt::mightBeRichText(m_browser->toolTip()));
        QVERIFY(shown.toPlainText().contains("%3Cb%3E"_q)
                || shown.toPlainText().contains("<b>you</b><img src=x>"_q));

        link.setPath(QString(100000, QLatin1Char('x')));
        Q_EMIT static_cast<QTextBrowser *>(m_browser)->highlighted(link);
        QVERIFY(m_browser->toolTip().size() < 300);
    }

    void clickedLinksLeaveTheHistoryOnShow()
    {
        m_browser->setHtml("<a href='http://example.com'>a link</a>"_q);
        show();
        QSignalSpy clicked(m_browser.data(), &QTextBrowser::anchorClicked);
        QTest::mouseClick(m_browser->viewport(), Qt::LeftButton, {}, placeOf(3));
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(m_browser->toPlainText(), "a link"_q);
        QCOMPARE(m_browser->document()->defaultStyleSheet(),
                 "a { text-decoration: underline; color: #009cff }"_q);
    }

    void menuFollowsTextSelectionAndLink()
    {
        show();
        const QString copyOff = "&Copy (off)"_q;
        const QString linkOff = "Copy &Link Location (off)"_q;
        const QString bar = "-"_q;
        QCOMPARE(menuAt({5, 5}), QStringList({copyOff, linkOff, bar, "&Select All (off)"_q}));

        const QString link = "<a href='tel:55'>a link</a>"_q;
        m_browser->setHtml(link);
        openMenu(placeOf(3), [this](QMenu *menu) {
            m_browser->clear(); // the history moves on beneath it
            choose(menu, 1);
        });
        QCOMPARE(QApplication::clipboard()->text(), "tel:55"_q);
        m_browser->setHtml(link);
        const auto selectAll = [](QMenu *menu) {
            QCOMPARE(menu->actions().at(3)->shortcut(), QKeySequence(QKeySequence::SelectAll));
            choose(menu, 3);
        };
        QCOMPARE(openMenu({250, 150}, selectAll),
                 QStringList({copyOff, linkOff, bar, "&Select All"_q}));
        QCOMPARE(m_browser->textCursor().selectedText(), "a link"_q);
        QCOMPARE(openMenu(placeOf(3), [](QMenu *menu) { choose(menu, 0); }),
                 QStringList({"&Copy"_q, "Copy &Link Location"_q, bar, "&Select All"_q}));
        QCOMPARE(QApplication::clipboard()->text(), "a link"_q);
        m_browser->clear();
        QCOMPARE(menuAt({5, 5}).at(3), "&Select All (off)"_q);
    }

    void picturesOfOthersHaveAMenuOfTheirOwn()
    {
        const QStringList pictureMenu{"Add Smiley"_q, "Save Image as..."_q};
        insertPicture(QUrl::fromLocalFile(m_received).toString());
        show();
        QCOMPARE(menuAt(placeOf(1)).size(), 4);
        m_browser->setSaveableImages(true);
        QCOMPARE(menuAt(placeOf(0)), pictureMenu); // from its left
        QCOMPARE(menuAt(placeOf(1)), pictureMenu); // and from its right
        m_browser->append("text"_q);
        QCOMPARE(menuAt(placeOf(4)).size(), 4);
        m_browser->setHtml("<img src=':/smile'>"_q);
        QCOMPARE(menuAt(placeOf(1)).size(), 4);
        m_browser->setHtml("<a href='x:'><img src='/tmp/x.png'></a>"_q);
        QCOMPARE(menuAt(placeOf(1)).size(), 4);
    }

    void smileysAreAddedOnce()
    {
        m_browser->setSaveableImages(true);
        show();
        const QString gone = m_folder->filePath("gone.png"_q);
        for (const QString &name : {m_received, m_received, gone, m_folder->path()}) {
            m_browser->clear();
            insertPicture(name);
            openMenu(placeOf(0), [](QMenu *menu) { choose(menu, 0); });
        }
        const QDir smileys(ombrin::OmDir::smileysPath(false));
        QCOMPARE(smileys.entryList(QDir::Files).size(), 1);
        const QByteArray data = picture();
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        const quint16 checksum = qChecksum(data);
#else
        const quint16 checksum = qChecksum(data.constData(), static_cast<uint>(data.size()));
#endif
        QCOMPARE(contentsOf(smileys.filePath(QString::number(checksum))), data);
    }

    void picturesAreSavedAsJpeg()
    {
        m_browser->setSaveableImages(true);
        insertPicture(m_received);
        show();
        const QString file = m_folder->filePath("saved.jpg"_q);
        QString proposal;
        const FileDialogUser user([&](QFileDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), "Save Smiley as..."_q);
            proposal = QFileInfo(FileDialogUser::proposal(dialog)).completeBaseName();
            FileDialogUser::save(dialog, file);
        });
        openMenu(placeOf(0), [](QMenu *menu) { choose(menu, 1); });
        QCOMPARE(proposal, "a smile&y#1"_q);
        const QImage saved(file, "jpg");
        QCOMPARE(saved.size(), QSize(40, 30));
        QVERIFY(std::abs(saved.pixelColor(20, 15).green() - kColor.green()) < 4);
        QCOMPARE(ombrin::OmSettings::instance()
                         .get("save_smiley_path"_q, QString(), "omchat"_q)
                         .toString(),
                 QFileInfo(file).absolutePath());
    }

    void picturesAreShownFromFilesResourcesAndData()
    {
        const QByteArray data = "data:image/png;base64," + picture().toBase64();
        for (const QUrl &url :
             {QUrl::fromLocalFile(m_received), QUrl(m_received), QUrl(QString::fromLatin1(data))})
            QCOMPARE(loaded(url).size(), QSize(40, 30));
        insertPicture(m_received);
        show();
        QCOMPARE(m_browser->viewport()->grab().toImage().pixelColor(20, 20), kColor);
    }

    void hostilePicturesAreHarmless_data()
    {
        const auto row = columns<QString>("kind");
        for (const char *kind : {"remote", "share", "folder", "missing", "no picture", "huge",
                                 "huge data", "large file", "empty", "drawing", "no data",
#ifdef Q_OS_UNIX
                                 "pipe", "device", "endless",
#endif
                                 "nothing"})
            row(kind, kind);
    }
    void hostilePicturesAreHarmless()
    {
        QFETCH(QString, kind);
        const QString path = m_folder->filePath("hostile"_q);
        QHash<QString, QString> sources{
                {"remote"_q, "http://127.0.0.1:1/x.png"_q},
                {"share"_q, "//server/share/x.png"_q},
                {"folder"_q, m_folder->path()},
                {"missing"_q, m_folder->filePath("gone"_q)},
                {"huge data"_q,
                 "data:image/bmp;base64,"_q + QString::fromLatin1(hugePicture().toBase64())},
                {"no data"_q, "data:"_q},
                {"device"_q, "/dev/zero"_q},
                {"endless"_q, "/proc/kmsg"_q},
                {"nothing"_q, QString()},
        };
        if (kind == "pipe"_q)
            QCOMPARE(QProcess::execute("mkfifo"_q, {path}), 0);
        else
            writeFile(path, kind == "huge"_q         ? hugePicture()
                            : kind == "no picture"_q ? QByteArray("GIF89a but no more")
                            : kind == "drawing"_q
                                    ? QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>")
                            : kind == "empty"_q ? QByteArray()
                                                : picture());
        if (kind == "large file"_q) // which takes no room on the disk
            QVERIFY(QFile(path).resize(1024 * 1024 * 1024));
        const QString source = sources.value(kind, path);
        QCOMPARE(loaded(QUrl(source)).size(), QSize(16, 16));
        QCOMPARE(loaded(QUrl::fromLocalFile(source)).size(), QSize(16, 16));

        // The document must not look for it by itself.
        m_browser->setHtml("<img src='%1'><link rel=stylesheet href='%1'>x"_q.arg(source));
        show();
        QVERIFY(m_browser->document()->idealWidth() < 60);
    }

    void copyLockKeepsTextInside()
    {
        m_browser->setHtml("<b>secret</b> text"_q);
        show();
        m_browser->selectAll();
        QTest::keyClick(m_browser, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->mimeData()->html().contains("secret"_q));
        QCOMPARE(QApplication::clipboard()->text(), "secret text"_q);

        QVERIFY(m_browser->isCopyable());
        m_browser->setCopyable(false);
        QTest::keyClick(m_browser, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->mimeData()->formats(), QStringList());
    }

    void resizeIsTold()
    {
        show();
        QSignalSpy resized(m_browser.data(), qOverload<>(&OmTextBrowser::resize));
        m_browser->resize(310, 190); // QWidget's own is not hidden
        QCOMPARE(resized.size(), 1);
        connect(m_browser.data(), qOverload<>(&OmTextBrowser::resize), m_browser.data(),
                [this] { QCOMPARE(m_browser->size(), QSize(320, 190)); });
        m_browser->resize(320, 190);
        m_browser->close();
        QTRY_VERIFY_WITH_TIMEOUT(!m_browser, 20000);
    }

    void hostMayDeleteTheBrowserWhileItsMenuIsOpen()
    {
        delete m_browser;
        for (const bool onPicture : {false, true}) {
            m_browser = new OmTextBrowser;
            m_browser->setSaveableImages(onPicture);
            insertPicture(m_received);
            show();
            openMenu(placeOf(0), [this](QMenu *) { delete m_browser; });
            QVERIFY(!m_browser);
        }
    }
};

OMBRIN_TEST_MAIN(tst_OmTextBrowser)
#include "tst_omtextbrowser.moc"
