#include "dialogs/WizardParts.h"
#include "proof/HeapMeter.h"
#include "support/SpellingFolder.h"
#include "support/TestCase.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmBalloonTip.h>
#include <ombrin/OmCalendar.h>
#include <ombrin/OmCheckBoxAssortmentItem.h>
#include <ombrin/OmCheckBoxAssortmentView.h>
#include <ombrin/OmContactCard.h>
#include <ombrin/OmContactCardList.h>
#include <ombrin/OmFaderWidget.h>
#include <ombrin/OmIconComboBox.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmInputDialog.h>
#include <ombrin/OmMessageBox.h>
#include <ombrin/OmRatingLabel.h>
#include <ombrin/OmSafeHtml.h>
#include <ombrin/OmScreenShooter_FullscreenCutter.h>
#include <ombrin/OmScreenShooter_Private.h>
#include <ombrin/OmScribbledZebraItemLink.h>
#include <ombrin/OmScribbledZebraView.h>
#include <ombrin/OmSearchField.h>
#include <ombrin/OmShakeWidget.h>
#include <ombrin/OmSkin.h>
#include <ombrin/OmSmoothList.h>
#include <ombrin/OmStatusBar.h>
#include <ombrin/OmTabWidget.h>
#include <ombrin/OmTextBrowser.h>
#include <ombrin/OmTextEdit.h>
#include <ombrin/OmToolBar.h>
#include <ombrin/OmTrayPopup.h>
#include <ombrin/OmWindow.h>

#include <algorithm>
#include <functional>
#include <vector>

using namespace ombrin;

namespace {

using Cycle = std::function<void()>;

constexpr int kBatches = 5;
constexpr int kWarmUp = 100;
constexpr int kTimersMs = 60; // the library's single-shot timers take 20
// What a run of all tests has time for; `./test --soak` has more.
constexpr int kCycles = test::kIsSanitized ? 300 : 2000;

int cycles()
{
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue("OMBRIN_SOAK_CYCLES", &isSet);
    return isSet ? value : kCycles;
}

// Until everything that was posted, and what deleteLater() was called for, is done.
void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

// Leaves nothing that goes by itself: timers, and the pictures that Qt keeps up to a limit.
void quiesce()
{
    QTest::qWait(kTimersMs);
    QPixmapCache::clear();
}

// As a user sees it: shown, painted and closed.
void showAndClose(QWidget *widget)
{
    const QPointer<QWidget> guard(widget);
    widget->show();
    settle();
    if (guard)
        widget->grab();
    if (guard)
        widget->close();
    settle();
    delete guard;
}

template <typename Widget>
Cycle plain()
{
    return [] { showAndClose(new Widget); };
}

template <typename Widget, typename Fill>
Cycle filled(Fill fill)
{
    return [fill] {
        auto *const widget = new Widget;
        fill(widget);
        showAndClose(widget);
    };
}

// Closes the modal window that \a open opens, from within its own loop.
Cycle modal(const std::function<void(QWidget *)> &open)
{
    return [open] {
        OmWindow parent;
        parent.show();
        QTimer::singleShot(0, &parent, [] {
            if (QWidget *const dialog = QApplication::activeModalWidget())
                dialog->close();
        });
        open(&parent);
        settle();
    };
}

template <typename Wizard>
Cycle wizard()
{
    return [] {
        wizard_parts::Pages pages(2);
        wizard_parts::Mission mission(pages);
        Wizard dialog;
        dialog.Set_Mission(&mission);
        dialog.show();
        settle();
        mission.NextPage();
        settle();
        dialog.grab();
        dialog.hide();
    };
}

// The same one each time, since caches keep what was made of it.
QPixmap picture()
{
    static const QPixmap pixmap = test::flatPixmap(QSize(96, 72), Qt::darkCyan);
    return pixmap;
}

QString text()
{
    return "soak"_q;
}

void fillWindow(OmWindow *window)
{
    window->setWindowTitle(text());
    window->setWidget(new QLabel(text()));
    window->menuBar()->addMenu(text())->addAction(text());
    window->statusBar()->showMessage(text());
}

void fillCards(OmContactCardList *list)
{
    for (int index = 0; index < 3; ++index) {
        auto *const card = new OmContactCard;
        card->setAlias(text());
        card->setAvatar(picture(), false);
        card->setBig(index == 0);
        list->addCard(card);
    }
    list->resize(250, 200);
}

void fillZebra(OmScribbledZebraView *view)
{
    view->poles().append(10, true);
    for (int row = 0; row < 3; ++row)
        view->items() << new OmScribbledZebraItemLink(0, row, true, text(), nullptr);
}

void fillAssortment(OmCheckBoxAssortmentView *view)
{
    for (int index = 0; index < 3; ++index)
        view->items() << new OmCheckBoxAssortmentItem(text(), true, Qt::red);
}

void fillTabs(OmTabWidget *tabs)
{
    tabs->addTab(new QLabel(text()), text());
    tabs->addTab(new QLabel(text()), text());
}

void typeMisspelt(OmTextEdit *edit)
{
    edit->setSpellChecking(true);
    edit->setPlainText("helo you. "_q);
}

void openIcons()
{
    OmIconComboBox box;
    box.addItem(QIcon(picture()), text());
    box.show();
    box.showPopup();
    settle();
    box.hidePopup();
    settle();
}

void fadeAndShake()
{
    OmWindow window;
    window.show();
    auto *const fader = new OmFaderWidget(&window);
    fader->setFadeDuration(1);
    fader->fadeOut();
    OmShakeWidget shake(&window);
    shake.setShakeDuration(1);
    shake.shakeWidget();
    settle();
}

void showBalloon()
{
    OmBalloonTip::showBalloon(InformationMessageIcon, text(), text(), QPoint(50, 50), 1000, true,
                              true, true);
    settle();
    OmBalloonTip::hideBalloon();
    settle();
}

// Without the quarter of a second that passes before the cutter opens.
void countDown()
{
    const OmScreenShooter_Private request(3000, true, true);
    settle();
}

struct Subject
{
    const char *name;
    Cycle cycle;
    qint64 ofQt = 0; ///< bytes that Qt itself leaves behind in each cycle
};

// Measured without this library: in QCalendarWidget, and wherever icons go through QPixmapCache,
// most of it in Qt 6.
constexpr bool kIsQt6 = QT_VERSION >= QT_VERSION_CHECK(6, 0, 0);
constexpr qint64 kOfCalendar = kIsQt6 ? 1200 : 150;
constexpr qint64 kOfIcons = kIsQt6 ? 1500 : 300;

std::vector<Subject> subjects()
{
    return {
            {"window", filled<OmWindow>(fillWindow)},
            {"dialog", plain<OmDialog2>()},
            {"message box", modal([](QWidget *p) { OmMessageBox::question(p, text(), text()); })},
            {"text input", modal([](QWidget *p) {
                 OmInputDialog::getText(p, text(), text(), QLineEdit::Normal, text(), nullptr);
             })},
            {"item input", modal([](QWidget *p) {
                 OmInputDialog::getItem(p, text(), text(), {text()}, 0, false, nullptr);
             })},
            {"calendar", modal([](QWidget *p) { OmCalendar::selectDate(QDate(2026, 3, 14), p); }),
             kOfCalendar},
            {"wizard", wizard<COmWizard_Standard>(), kOfIcons},
            {"second wizard", wizard<OmWizard_Standard2>(), kOfIcons},
            {"avatar", [] { showAndClose(new OmAvatar(picture())); }},
            {"small avatar",
             filled<OmAvatarSmall>([](OmAvatarSmall *a) { a->setAvatar(picture(), true); })},
            {"card list", filled<OmContactCardList>(fillCards)},
            {"rating", plain<OmRatingLabel>()},
            {"fader and shake", fadeAndShake},
            {"balloon", showBalloon, kOfIcons},
            {"info pop-up",
             filled<OmInfoPopup>([](OmInfoPopup *p) { p->setPopupMessage(text()); })},
            {"tray pop-up", plain<OmTrayPopup>()},
            {"countdown", countDown},
            {"screen cutter", [] { showAndClose(new OmScreenShooter_FullscreenCutter(nullptr)); }},
            {"browser", filled<OmTextBrowser>([](OmTextBrowser *b) {
                 b->append(OmSafeHtml::fromHtml("<a href='http://a.de'>x</a>"_q));
             })},
            {"text edit", filled<OmTextEdit>(typeMisspelt)},
            {"icon combo box", openIcons, kOfIcons},
            {"tabs", filled<OmTabWidget>(fillTabs)},
            {"tool bar", filled<OmToolBar>([](OmToolBar *bar) { bar->addAction(text()); }),
             kOfIcons},
            {"search field", plain<OmSearchField>()},
            {"zebra", filled<OmScribbledZebraView>(fillZebra)},
            {"check boxes", filled<OmCheckBoxAssortmentView>(fillAssortment)},
            {"smooth list", filled<OmSmoothList>([](OmSmoothList *l) { l->addItem(text()); })},
    };
}

} // namespace

// OMBRIN_SOAK_CYCLES in the environment is how often each window opens and closes.
class tst_Soak : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules("default.debug=false"_q);
        OmSkin::init(true);
        test::SpellingFolder::needBackend();
        m_spelling.add("aa"_q, {"hello", "you"});
        OmSpelling::instance()->setDict("aa"_q);
        // What the application keeps for all windows is not to be counted for the first.
        for (const Subject &subject : subjects())
            subject.cycle();
    }

    void windowLeavesNothingBehind_data()
    {
        QTest::addColumn<int>("index");
        const std::vector<Subject> all = subjects();
        for (std::size_t index = 0; index < all.size(); ++index)
            QTest::newRow(all[index].name) << static_cast<int>(index);
    }
    void windowLeavesNothingBehind()
    {
        QFETCH(int, index);
        const Subject subject = subjects().at(static_cast<std::size_t>(index));
        for (int count = 0; count < kWarmUp; ++count)
            subject.cycle();

        quiesce();
        const int widgets = static_cast<int>(QApplication::allWidgets().size());
        const int batch = qMax(1, cycles() / kBatches);
        std::vector<qint64> growths;
        qint64 before = test::heapBytes();
        const qint64 atFirst = before;
        for (int count = 0; count < kBatches; ++count) {
            for (int cycle = 0; cycle < batch; ++cycle)
                subject.cycle();
            quiesce();
            const qint64 after = test::heapBytes();
            growths.push_back(after - before);
            before = after;
        }
        qInfo("%d cycles: %lld bytes more on the heap than the %lld at first", batch * kBatches,
              before - atFirst, atFirst);
        QCOMPARE(static_cast<int>(QApplication::allWidgets().size()), widgets);

        // What every cycle leaves behind shows in every batch; a cache that grows leaves some out.
        // No QObject is smaller than the limit.
        constexpr qint64 kLimit = 96;
        const qint64 least = *std::min_element(growths.begin(), growths.end());
        QVERIFY2(least < (kLimit + subject.ofQt) * batch,
                 qPrintable("%1 bytes in each cycle"_q.arg(least / batch)));
    }

private:
    const test::SpellingFolder m_spelling;
};

OMBRIN_TEST_MAIN(tst_Soak)
#include "tst_soak.moc"
