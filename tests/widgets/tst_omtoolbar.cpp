#include "support/TestCase.h"

#include <ombrin/OmToolBar.h>

using ombrin::OmToolBar;

namespace {

// A bar whose size nobody manages.
struct Bar
{
    explicit Bar(int count = 3)
    {
        bar->setParent(&window);
        for (int i = 0; i < count; ++i) {
            auto *const button = new QToolButton;
            button->setText("A button"_q);
            button->setToolButtonStyle(Qt::ToolButtonTextOnly);
            bar->addWidget(button);
            buttons.append(button);
        }
        bar->setButtonList(buttons);
    }

    bool hasTexts() const
    {
        return buttons.first()->toolButtonStyle() == Qt::ToolButtonTextBesideIcon;
    }

    void show()
    {
        bar->show();
        window.show();
    }

    QWidget window;
    std::unique_ptr<OmToolBar> bar = std::make_unique<OmToolBar>();
    QList<QToolButton *> buttons;
};

int widthOf(const QList<QToolButton *> &buttons)
{
    int width = 0;
    for (const QToolButton *button : buttons)
        width += button->sizeHint().width();
    return width;
}

} // namespace

class tst_OmToolBar : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsTextsFromThirtyOnePixelsMoreThanTheButtonsNeed()
    {
        Bar b;
        const int needed = widthOf(b.buttons);
        QCOMPARE(b.bar->minimumSize(), QSize(10000, 0)); // until the first resize
        b.show();
        QCOMPARE(b.bar->minimumSize(), QSize(0, 0));
        for (const auto &[width, texts] : {std::pair(needed + 31, true),
                                           {needed + 30, false},
                                           {needed - 1, false},
                                           {needed + 400, true}}) {
            b.bar->resize(width, 30);
            for (const QToolButton *button : b.buttons) {
                QCOMPARE(button->toolButtonStyle(),
                         texts ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
            }
        }
    }

    void measuresItsButtonsOnce()
    {
        Bar b;
        const int needed = widthOf(b.buttons);
        b.show();
        b.buttons.last()->setText("A much longer text than before"_q);
        QCoreApplication::processEvents();
        b.bar->resize(needed + 31, 30);
        QVERIFY(b.hasTexts());
        b.bar->setButtonList({b.buttons.first()});
        b.bar->resize(needed + 30, 30);
        QVERIFY(!b.hasTexts());
        // Those that are no longer listed keep the style they had.
        QCOMPARE(b.buttons.last()->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    }

    void windowsDoNotGrowForTheMeasuring()
    {
        for (const bool mainWindow : {true, false}) {
            Bar b;
            const int needed = widthOf(b.buttons);
            OmToolBar *const bar = b.bar.release();
            const std::unique_ptr<QWidget> window(mainWindow ? new QMainWindow : new QWidget);
            if (auto *const main = qobject_cast<QMainWindow *>(window.get()))
                main->addToolBar(bar);
            else
                (new QVBoxLayout(window.get()))->addWidget(bar);
            window->resize(600, 200);
            window->show();
            QVERIFY(QTest::qWaitForWindowExposed(window.get()));
            QCOMPARE(window->size(), QSize(600, 200));
            QVERIFY(bar->width() <= 600 && bar->width() > needed + 31);
            QVERIFY(b.hasTexts());
            window->resize(needed, 200);
            QCoreApplication::processEvents();
            QVERIFY(!b.hasTexts());
        }
    }

    void deletedAndMissingButtonsAreSkipped()
    {
        Bar b;
        b.bar->setButtonList({nullptr, b.buttons.at(0), b.buttons.at(1)});
        b.show();
        delete b.buttons.takeAt(1);
        b.bar->resize(600, 30);
        QVERIFY(b.hasTexts());

        Bar empty(0);
        empty.show();
        empty.bar->resize(31, 30);
        QCOMPARE(empty.bar->minimumSize(), QSize(0, 0));
    }

    void theDeferredResizeOutlivesNothing()
    {
        Bar b;
        b.show();
        QVERIFY(QMetaObject::invokeMethod(b.bar.get(), "slotResize"));
        b.bar->resize(300, 30);
        QTest::qWait(40);
        b.bar->resize(200, 30);
        b.bar.reset(); // with a deferred resize under way
        QTest::qWait(40);
    }
};

OMBRIN_TEST_MAIN(tst_OmToolBar)
#include "tst_omtoolbar.moc"
