#include "proof/Monkey.h"
#include "support/TestCase.h"

#include "GalleryPage.h"

#include <ombrin/OmSkin.h>
#include <ombrin/OmWindow.h>

#include <algorithm>

namespace {

// What a run of all tests has time for; `./test --monkey` sends more.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kEvents = 2000;
#else
constexpr int kEvents = 10000;
#endif

int setting(const char *name, int otherwise)
{
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(name, &isSet);
    return isSet ? value : otherwise;
}

/// Takes the links that are clicked on: nothing outside the program is to open.
class LinkTaker : public QObject
{
    Q_OBJECT

public:
    LinkTaker()
    {
        for (const QString &scheme : schemes())
            QDesktopServices::setUrlHandler(scheme, this, "take");
    }
    ~LinkTaker() override
    {
        for (const QString &scheme : schemes())
            QDesktopServices::unsetUrlHandler(scheme);
    }

public Q_SLOTS:
    void take(const QUrl &) {}

private:
    static QStringList schemes()
    {
        return ombrin::test::words("http https ftp ftps sftp mailto news imap sip sips tel file");
    }
};

QWidget *createWindow(const gallery::GalleryPage &page)
{
    auto *scroller = new QScrollArea;
    scroller->setWidgetResizable(true);
    scroller->setWidget(page.create());
    auto *window = new ombrin::OmWindow;
    window->setWidget(scroller);
    window->resize(800, 600);
    window->show();
    return window;
}

} // namespace

// OMBRIN_MONKEY_EVENTS in the environment is the number of events for each page,
// OMBRIN_MONKEY_SEED where the events begin, and OMBRIN_MONKEY_PART=2/3 the second third of the
// pages.
class tst_Monkey : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        // Qt's own text fields, when they undo what an input method composed.
        expectWarning("^QTextCursor::setPosition: Position '\\d+' out of range"_q);
        // Qt 6, when what was touched is gone before the finger leaves it.
        expectWarning("^skipping QEventPoint.* no target window$"_q);
        // Qt, when a window goes while it becomes the active one.
        expectWarning("^QObject::connect: Cannot connect \\(nullptr\\)::focusObjectChanged"_q);
        // Qt's own item views, when an editor loses the focus while it goes.
        expectWarning("^QAbstractItemView::\\w+ called with an editor that does not"_q);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules("default.debug=false"_q);
        ombrin::OmSkin::init(true);
    }

    void pageOutlivesAnyInput_data()
    {
        QTest::addColumn<QString>("name");

        const QStringList part = qEnvironmentVariable("OMBRIN_MONKEY_PART").split(QLatin1Char('/'));
        const int count = qMax(1, part.value(1).toInt());
        int index = part.value(0).toInt();
        for (const gallery::GalleryPage *page : gallery::allPages()) {
            if (++index % count == 0)
                QTest::newRow(page->name) << page->nameText();
        }
    }
    void pageOutlivesAnyInput()
    {
        QFETCH(QString, name);
        const gallery::GalleryPage &page = *gallery::findPage(name);
        const int events = setting("OMBRIN_MONKEY_EVENTS", kEvents);
        const int seed = setting("OMBRIN_MONKEY_SEED", 1);
        qInfo("OMBRIN_MONKEY_SEED=%d OMBRIN_MONKEY_EVENTS=%d tst_monkey pageOutlivesAnyInput:%s",
              seed, events, page.name);

        const LinkTaker links;
        const QTemporaryDir folder;
        {
            ombrin::test::Monkey monkey(static_cast<quint32>(seed), folder.path());
            monkey.play([&page] { return createWindow(page); }, events);
        }
        // Pages may leave windows open that outlive them, as long as closing them is enough; a
        // countdown runs out first, and the screen is shot a moment later.
        for (const int pauseMs : {400, 0}) {
            QVERIFY2(QTest::qWaitFor(closeAll, 20000), "Windows that were closed are still there");
            QTest::qWait(pauseMs);
        }
    }

private:
    static bool closeAll()
    {
        QApplication::closeAllWindows();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::all_of(windows.begin(), windows.end(), [](const QWidget *window) {
            return window->inherits("QTipLabel") || window->windowType() == Qt::Desktop;
        });
    }
};

// Nothing may touch the files of whoever runs the tests.
int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    for (const char *variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "TMPDIR"})
        qputenv(variable, home.path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    return ombrin::test::run<tst_Monkey>(argc, argv);
}
#include "tst_monkey.moc"
