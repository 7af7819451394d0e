#include "skin/tst_omstyle2_support.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmStyle2.h>

using namespace ombrin::test;
using ombrin::OmStyle2;

// The style knows these classes by their names only.
class RelativeScrollBar : public QScrollBar
{
    Q_OBJECT
};

namespace {

// Made in main(), before the application.
QStyle *g_earlyStyle = nullptr;

QStyle *makePlainStyle()
{
    QStyle *style = QStyleFactory::create("plastique"_q);
    return style ? style : QStyleFactory::create("fusion"_q);
}

template <typename Enum>
QVector<Enum> upTo(Enum last)
{
    QVector<Enum> all;
    for (int value = 0; value <= int(last); ++value)
        all.append(Enum(value));
    return all;
}

void setStyleOfTree(QWidget *widget, QStyle *style)
{
    widget->setStyle(style);
    const QList<QWidget *> children = widget->findChildren<QWidget *>();
    for (QWidget *child : children)
        child->setStyle(style);
}

template <typename Widget>
struct PaintCounter : Widget
{
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        Widget::paintEvent(event);
    }
    int paints = 0;
};

} // namespace

class tst_OmStyle2 : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override { m_style = std::make_unique<OmStyle2>(); }
    void tearDown() override
    {
        qApp->setStyleSheet(QString());
        m_style.reset();
    }

private:
    std::unique_ptr<OmStyle2> m_style;

private Q_SLOTS:
    void styleMadeBeforeTheApplicationWorks()
    {
        QVERIFY(g_earlyStyle);
        QCOMPARE(g_earlyStyle->pixelMetric(QStyle::PM_ScrollBarExtent), 16);
        QCheckBox box("box"_q);
        box.setStyle(g_earlyStyle);
        box.setChecked(true);
        const QImage early = box.grab().toImage();
        box.setStyle(m_style.get());
        QCOMPARE(box.grab().toImage(), early);
        box.setStyle(nullptr);
        delete g_earlyStyle;
        g_earlyStyle = nullptr;
    }

    void flatBarsAndFramesHaveTheirMeasures()
    {
        const std::pair<QStyle::PixelMetric, int> metrics[] = {
                {QStyle::PM_DefaultFrameWidth, 1},   {QStyle::PM_ScrollBarExtent, 16},
                {QStyle::PM_ScrollBarSliderMin, 16}, {QStyle::PM_MenuBarPanelWidth, 2},
                {QStyle::PM_MenuBarItemSpacing, 0},  {QStyle::PM_MenuBarVMargin, 0},
                {QStyle::PM_MenuBarHMargin, 0},      {QStyle::PM_ToolBarItemSpacing, 0},
                {QStyle::PM_ToolBarItemMargin, 0}};
        const QScrollBar scrollBar;
        for (const auto &[metric, value] : metrics) {
            QCOMPARE(m_style->pixelMetric(metric), value);
            QCOMPARE(m_style->pixelMetric(metric, nullptr, &scrollBar), value);
        }
        const RelativeScrollBar relative;
        QCOMPARE(m_style->pixelMetric(QStyle::PM_ScrollBarSliderMin, nullptr, &relative), 50);
    }

    void oneClickActivatesAnItem()
    {
        QTreeWidget tree;
        tree.setStyle(m_style.get());
        tree.addTopLevelItem(new QTreeWidgetItem({"item"_q}));
        tree.show();
        QSignalSpy activated(&tree, &QTreeWidget::activated);
        const QRect place = tree.visualItemRect(tree.topLevelItem(0));
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
        QCOMPARE(activated.size(), 1);
    }

    void toolButtonHasNoMargins()
    {
        auto option = makeOption<QStyleOptionToolButton>(QRect());
        option.features = QStyleOptionToolButton::MenuButtonPopup;
        const QSize size(20, 18);
        QCOMPARE(m_style->sizeFromContents(QStyle::CT_ToolButton, &option, size, nullptr),
                 m_style->QCommonStyle::sizeFromContents(QStyle::CT_ToolButton, &option, size,
                                                         nullptr));
        option.features = QStyleOptionToolButton::None;
        QToolButton button;
        QCOMPARE(m_style->sizeFromContents(QStyle::CT_ToolButton, &option, size, &button),
                 size + QSize(6, 5)); // what every style adds
    }

    // Title bar, buttons and content lie where they lie under the plain style.
    void dockLooksAsUnderThePlainStyle()
    {
        const auto geometries = [](QStyle *style) {
            QMainWindow window;
            auto *dock = new QDockWidget("Dock"_q, &window);
            dock->setWidget(new QWidget);
            window.addDockWidget(Qt::LeftDockWidgetArea, dock);
            setStyleOfTree(&window, style);
            window.resize(300, 200);
            window.grab();
            QVector<QRect> all;
            const QList<QWidget *> children = dock->findChildren<QWidget *>();
            for (const QWidget *child : children)
                all.append(child->geometry());
            setStyleOfTree(&window, nullptr);
            return all;
        };
        const std::unique_ptr<QStyle> plain(makePlainStyle());
        const QVector<QRect> expected = geometries(plain.get());
        QCOMPARE(expected.size(), 3);
        QVERIFY(expected[0].intersected(expected[1]).isEmpty());
        QCOMPARE(geometries(m_style.get()), expected);
    }

    void lineEditShowsItsFrame()
    {
        QLineEdit edit;
        edit.setStyle(m_style.get());
        edit.resize(100, 24);
        const auto edges = [&] {
            const QImage image = edit.grab().toImage();
            return QVector<QColor>{image.pixelColor(50, 0), image.pixelColor(0, 12),
                                   image.pixelColor(99, 12), image.pixelColor(50, 23)};
        };
        QCOMPARE(edges(), QVector<QColor>(4, QColor(189, 189, 189)));
        edit.setAttribute(Qt::WA_UnderMouse);
        QCOMPARE(edges(), QVector<QColor>(4, QColor(255, 193, 48)));
        edit.setEnabled(false);
        QCOMPARE(edges(), QVector<QColor>(4, QColor(203, 203, 203)));
        edit.setFrame(false);
        QVERIFY(!edges().contains(QColor(203, 203, 203)));

        edit.setEnabled(true);
        edit.setFrame(true);
        edit.setAttribute(Qt::WA_UnderMouse, false);
        edit.setStyle(nullptr);
        QApplication::setStyle(new OmStyle2);
        qApp->setStyleSheet("QToolTip { color: red }"_q);
        QCOMPARE(edges(), QVector<QColor>(4, QColor(189, 189, 189)));
        prepareApplication();
    }

    void mouseRepaintsLineEditsAndScrollBars()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *edit = new PaintCounter<QLineEdit>;
        auto *bar = new PaintCounter<QScrollBar>;
        layout->addWidget(edit);
        layout->addWidget(bar);
        setStyleOfTree(&window, m_style.get());
        window.resize(100, 200);
        window.show();
        QVERIFY(waitFor([&] { return edit->paints > 0 && bar->paints > 0; }));
        QTest::mouseMove(edit, edit->rect().center());
        int before = edit->paints;
        QTest::mouseMove(bar, bar->rect().center());
        QVERIFY(waitFor([&] { return edit->paints > before; }));
        before = bar->paints;
        QTest::mouseMove(edit, edit->rect().center());
        QVERIFY(waitFor([&] { return bar->paints > before; }));
    }

    void checkableItemShowsItsMark()
    {
        QTreeWidget tree;
        tree.setStyle(m_style.get());
        tree.addTopLevelItem(new QTreeWidgetItem);
        QTreeWidgetItem *item = tree.topLevelItem(0);
        const QColor green(0x21, 0xa1, 0x21);
        const auto greenPixels = [&] {
            return pixelCount(tree.grab().toImage(),
                              [&](const QColor &color) { return color == green; });
        };
        item->setCheckState(0, Qt::Unchecked);
        QCOMPARE(greenPixels(), 0);
        item->setCheckState(0, Qt::Checked);
        QVERIFY(greenPixels() > 15);
    }

    void searchFieldLeavesRoomForItsIcons();

    // The hardest call a host can make: nothing but an element.
    void callsWithoutOptionPainterOrWidgetAreHarmless()
    {
        const QImage image = painted([&](QPainter *ground) {
            for (QPainter *painter : {ground, static_cast<QPainter *>(nullptr)}) {
                for (const auto element : upTo(QStyle::PE_PanelMenu))
                    m_style->drawPrimitive(element, nullptr, painter, nullptr);
                for (const auto element : upTo(QStyle::CE_ShapedFrame))
                    m_style->drawControl(element, nullptr, painter, nullptr);
                for (const auto control : upTo(QStyle::CC_MdiControls))
                    m_style->drawComplexControl(control, nullptr, painter, nullptr);
            }
        });
        QCOMPARE(image, blank());
        const QSize size(17, 11);
        for (const auto type : upTo(QStyle::CT_MdiControls))
            QCOMPARE(m_style->sizeFromContents(type, nullptr, size, nullptr), size);
        for (const auto element : upTo(QStyle::SE_ToolBarHandle))
            QCOMPARE(m_style->subElementRect(element, nullptr, nullptr), QRect());
        for (const auto control : upTo(QStyle::CC_MdiControls))
            QCOMPARE(m_style->subControlRect(control, nullptr, QStyle::SC_All, nullptr), QRect());
        for (const auto metric : upTo(QStyle::PM_TitleBarButtonSize))
            m_style->pixelMetric(metric);
        for (const auto hint : upTo(QStyle::SH_SpinBox_ButtonsInsideFrame))
            m_style->styleHint(hint);
    }
};

namespace ombrin {

class OmSearchField : public QLineEdit
{
    Q_OBJECT
};

} // namespace ombrin

void tst_OmStyle2::searchFieldLeavesRoomForItsIcons()
{
    const ombrin::OmSearchField search;
    const QLineEdit plain;
    auto option = makeOption<QStyleOptionFrame>(QRect(0, 0, 120, 22));
    option.lineWidth = 1;
    const auto contents = [&](const QWidget *widget) {
        return m_style->subElementRect(QStyle::SE_LineEditContents, &option, widget);
    };
    QCOMPARE(contents(&plain), contents(nullptr));
    QCOMPARE(contents(&search), contents(&plain).adjusted(18, 0, -18, 0));
    QCOMPARE(m_style->subElementRect(QStyle::SE_FrameContents, &option, &search),
             m_style->subElementRect(QStyle::SE_FrameContents, &option, &plain));
}

int main(int argc, char *argv[])
{
    g_earlyStyle = new OmStyle2;
    return ombrin::test::run<tst_OmStyle2>(argc, argv);
}

#include "tst_omstyle2.moc"
