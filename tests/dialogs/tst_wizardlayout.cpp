#include "dialogs/WizardParts.h"
#include "support/TestCase.h"
#include "windows/FlatSkin.h"

using namespace wizard_parts;

namespace {

enum Label { Picture, Title, Description, Sidebar };

QLabel *label(const QWidget *wizard, Label which)
{
    return wizard->findChildren<QLabel *>().value(which);
}

QWidget *header(const QWidget *wizard)
{
    return label(wizard, Title)->parentWidget();
}

QWidget *pageArea(const QWidget *wizard)
{
    return label(wizard, Sidebar)->parentWidget()->parentWidget();
}

/// Where \a widget is in the window.
QRect place(const QWidget *widget)
{
    return QRect(widget->mapTo(widget->window(), QPoint()), widget->size());
}

/// \a rect in a window of \a width pixels that is laid out from right to left.
QRect mirrored(const QRect &rect, int width)
{
    return QRect(QPoint(width - rect.x() - rect.width(), rect.y()), rect.size());
}

} // namespace

class tst_WizardLayout : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures(flat_skin::kFile)); }

    void standardHasItsPiecesInPlace_data()
    {
        const auto row =
                columns<bool, qreal, Qt::LayoutDirection>("hasPictures", "density", "direction");
        row("no pictures, small font", false, 1.0, Qt::LeftToRight);
        row("pictures", true, 1.0, Qt::LeftToRight);
        row("dense pictures, right to left", true, 2.0, Qt::RightToLeft);
    }

    void standardHasItsPiecesInPlace()
    {
        QFETCH(bool, hasPictures);
        QFETCH(qreal, density);
        QFETCH(Qt::LayoutDirection, direction);
        const Pages pages(1);
        Mission mission(pages);
        mission.possible = 15;
        mission.sidebar = picture({120, 200}, density);
        mission.picture = picture({48, 60}, density);
        COmWizard_Standard wizard;
        wizard.setLayoutDirection(direction);
        QFont font = wizard.font();
        if (!hasPictures) { // nor does the size of the font matter, which may change
            font.setPixelSize(40);
            wizard.setFont(font);
            font.setPixelSize(8);
        }
        wizard.Set_Mission(&mission);
        wizard.setFont(font);
        wizard.FixSize(true, QSize(600, 420));
        if (!hasPictures) { // they leave nothing behind
            mission.sidebar = mission.picture = QPixmap();
            mission.DoOnChanged();
            QCOMPARE(label(&wizard, Sidebar)->parentWidget()->maximumSize(),
                     QSize(16777215, 16777215));
            QCOMPARE(label(&wizard, Picture)->minimumSize(), QSize(0, 0));
            QCOMPARE(label(&wizard, Picture)->maximumSize(), QSize(16777215, 16777215));
        }
        QVERIFY(activate(&wizard));

        const auto expectAt = [&](const QWidget *widget, const QRect &rect) {
            QCOMPARE(place(widget), direction == Qt::LeftToRight ? rect : mirrored(rect, 600));
        };
        expectAt(header(&wizard), QRect(5, 30, 590, 75));
        expectAt(pageArea(&wizard), QRect(5, 115, 590, 244));
        expectAt(button(&wizard, Cancel)->parentWidget(), QRect(5, 359, 590, 56));
        QCOMPARE(label(&wizard, Sidebar)->isVisible(), hasPictures);
        QCOMPARE(label(&wizard, Picture)->isVisible(), hasPictures);
        if (hasPictures) {
            expectAt(label(&wizard, Sidebar), QRect(15, 137, 120, 200));
            expectAt(label(&wizard, Picture), QRect(537, 30 + (75 - 60) / 2, 48, 60));
        }
        const int pageLeft = hasPictures ? 145 : 25;
        expectAt(pages[0], QRect(pageLeft, 115, 585 - pageLeft, 244));

        const QLabel *title = label(&wizard, Title);
        const QLabel *description = label(&wizard, Description);
        const int line = QFontMetrics(title->font()).height();
        const int lines = 3 * QFontMetrics(description->font()).height();
        const int textRight = hasPictures ? 532 : 580;
        expectAt(title, QRect(15, 35, textRight - 15, line));
        expectAt(description, QRect(40, 40 + line, textRight - 40, lines));
        QCOMPARE(title->font().weight(), int(QFont::Bold));
        QVERIFY(description->wordWrap());
        for (const QLabel *text : {title, description})
            QCOMPARE(text->alignment(), Qt::AlignLeft | Qt::AlignTop);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QCOMPARE(header(&wizard)->palette().color(group, QPalette::Window), QColor(Qt::white));

        int right = 585;
        for (const Action action : {Cancel, Execute, Next, Previous}) {
            const QPushButton *shown = button(&wizard, action);
            const QSize size = shown->sizeHint().expandedTo(QSize(96, 28));
            expectAt(shown,
                     QRect(QPoint(right - size.width(), 359 + (56 - size.height()) / 2), size));
            right -= size.width() + 2;
        }
    }

    void headerStaysWhiteWhenTheStyleSheetChanges()
    {
        const Pages pages(1);
        Mission mission(pages);
        qApp->setStyleSheet("QToolTip { color: red }"_q);
        COmWizard_Standard wizard;
        wizard.Set_Mission(&mission);
        QVERIFY(activate(&wizard));
        qApp->setStyleSheet(QString());
        QCOMPARE(header(&wizard)->palette().color(QPalette::Window), QColor(Qt::white));
    }

    void fixedSizeAndHiddenHeaderAreKept()
    {
        for (const bool beforeTheMission : {true, false}) {
            const Pages pages(2);
            pages[1]->setMinimumSize(700, 500);
            Mission mission(pages);
            COmWizard_Standard wizard;
            if (!beforeTheMission)
                wizard.Set_Mission(&mission);
            QVERIFY(wizard.IsTitlebarVisible());
            wizard.Set_IsTitlebarVisible(false);
            QVERIFY(!wizard.IsTitlebarVisible());
            wizard.FixSize(true, QSize(640, 480));
            wizard.FixSize(true, QSize(500, 400));
            wizard.Set_Mission(&mission);
            QVERIFY(activate(&wizard));
            QCOMPARE(wizard.size(), QSize(500, 400));
            mission.NextPage();
            QCoreApplication::processEvents();
            QCOMPARE(wizard.size(), QSize(500, 400));
            QVERIFY(header(&wizard)->isHidden());
            QCOMPARE(place(pageArea(&wizard)).top(), 40);
            wizard.Set_IsTitlebarVisible(true);
            QVERIFY(header(&wizard)->isVisible());

            wizard.FixSize(false, QSize());
            QCoreApplication::processEvents();
            // Page, frame, header and margins; the height of the buttons is the style's.
            QVERIFY(wizard.width() >= 700 + 10 + 30);
            QVERIFY(wizard.height() > 500 + 35 + 75 + 10);
            QCOMPARE(wizard.minimumSize(), wizard.layout()->totalMinimumSize());
        }
    }

    void compactTakesTheSizeOfItsPage_data()
    {
        // size: without the frame's margins
        const auto row = columns<QSize, QSize>("sidebar", "size");
        row("sidebar", {100, 300}, {530, 358});
        row("low sidebar", {100, 30}, {530, 308});
        row("no sidebar", {}, {420, 308});
    }

    void compactTakesTheSizeOfItsPage()
    {
        QFETCH(QSize, sidebar);
        QFETCH(QSize, size);
        for (const QMargins margins : {QMargins(), QMargins(5, 30, 5, 5), QMargins(1, 2, 3, 4)}) {
            const Pages pages(1);
            Mission mission(pages);
            if (sidebar.isValid())
                mission.sidebar = picture(sidebar);
            OmWizard_Standard2 wizard;
            wizard.setContentsMargins(margins);
            wizard.Set_Mission(&mission);
            QCOMPARE(wizard.size(), size.grownBy(margins)); // already before it is shown
            QVERIFY(activate(&wizard));
            QCOMPARE(wizard.size(), size.grownBy(margins));
            const auto *label = wizard.findChild<QLabel *>();
            QCOMPARE(label->isVisible(), sidebar.isValid());
            const QPoint corner(margins.left() + 10, margins.top() + 10);
            const int pageX = corner.x() + (sidebar.isValid() ? sidebar.width() + 10 : 0);
            QCOMPARE(pages[0]->geometry(), QRect(pageX, corner.y(), 400, 250));
            if (sidebar.isValid())
                QCOMPARE(label->geometry(), QRect(corner, sidebar));
        }
    }

    void compactFollowsPageAndPicture()
    {
        const Pages pages(2);
        pages[1]->resize(300, 200);
        Mission mission(pages);
        OmWizard_Standard2 wizard;
        wizard.setContentsMargins(0, 0, 0, 0);
        wizard.Set_Mission(&mission);
        QVERIFY(activate(&wizard));
        mission.NextPage();
        QCOMPARE(wizard.size(), QSize(320, 258));
        mission.PrevPage();
        QCOMPARE(wizard.size(), QSize(420, 308));

        // What the user made of the window lasts until the next page.
        wizard.resize(500, 400);
        mission.DoOnChanged();
        QCOMPARE(wizard.size(), QSize(500, 400));
        mission.sidebar = picture({50, 50});
        mission.DoOnChanged();
        QCOMPARE(pages[0]->geometry(), QRect(70, 10, 400, 250));
        QCOMPARE(wizard.size(), QSize(500, 400));
        mission.NextPage();
        QCOMPARE(wizard.size(), QSize(380, 258));
        mission.Set_CurrentPage(nullptr);
        QCOMPARE(wizard.size(), QSize(380, 258));
    }

    void compactButtonsStandInARowAtTheRight()
    {
        const Pages pages(1);
        Mission mission(pages);
        mission.sidebar = picture({80, 60});
        OmWizard_Standard2 wizard;
        wizard.Set_Mission(&mission);
        QVERIFY(activate(&wizard));
        const auto expectAt = [&](const QWidget *widget, const QRect &rect) {
            QCOMPARE(widget->geometry(), wizard.layoutDirection() == Qt::LeftToRight
                                                 ? rect
                                                 : mirrored(rect, wizard.width()));
        };
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const QSize size(direction == Qt::LeftToRight ? QSize(600, 400) : QSize(450, 333));
            wizard.setLayoutDirection(direction); // while it is shown
            wizard.resize(size);
            for (int bits = 0; bits < 16; ++bits) {
                mission.possible = bits;
                mission.DoOnChanged();
                // The frame leaves 5 pixels at the sides and below, the row 10 and one.
                int right = size.width() - 5 - 11;
                for (const Action action : {Cancel, Execute, Next, Previous}) {
                    if ((bits & 1 << action) == 0)
                        continue;
                    const int top = size.height() - 5 - 1 - 38;
                    expectAt(button(&wizard, action), QRect(right - 96, top, 96, 28));
                    right -= 96 + 5;
                }
            }
            expectAt(wizard.findChild<QLabel *>(), QRect(15, 40, 80, 60));
            expectAt(pages[0], QRect(105, 40, 400, 250));
        }
    }
};

OMBRIN_TEST_MAIN(tst_WizardLayout)
#include "tst_wizardlayout.moc"
