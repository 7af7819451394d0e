#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmIconComboBox.h>
#include <ombrin/OmIconComboBoxDelegate.h>
#include <ombrin/OmStyle2.h>

using namespace ombrin::test;
using namespace ombrin;

namespace {

const QColor kIconColor(0x12, 0x34, 0x56);

QIcon flatIcon(const QSize &size = QSize(16, 16))
{
    return flatPixmap(size, kIconColor);
}

// Notes how a combo box is drawn.
class RecordingStyle : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        subControls = option->subControls;
        pen = painter->pen().color();
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    mutable QStyle::SubControls subControls;
    mutable QColor pen;
};

// Lets a combo box drop its list, or lay it over itself.
class PopupStyle : public QProxyStyle
{
public:
    explicit PopupStyle(bool laidOver)
        : m_laidOver(laidOver)
    {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_ComboBox_Popup ? int(m_laidOver)
                                         : QProxyStyle::styleHint(hint, option, widget, data);
    }

private:
    bool m_laidOver;
};

} // namespace

class tst_OmIconComboBox : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override { m_box = std::make_unique<OmIconComboBox>(); }
    void tearDown() override { m_box.reset(); }

private Q_SLOTS:
    void cellsShowTheirIconAndNothingElse_data()
    {
        const auto row = columns<QVariant, bool, QRect>("decoration", "focused", "icon");
        row("nothing", QVariant(), false, {});
        row("no icon", QVariant("no icon"_q), false, {});
        row("tiny", QVariant(flatIcon(QSize(1, 1))), false, {15, 15, 1, 1});
        row("usual", QVariant(flatIcon()), false, {7, 7, 16, 16});
        row("too large", QVariant(flatIcon(QSize(64, 64))), false, {6, 6, 18, 18});
        row("focused", QVariant(flatIcon()), true, {7, 7, 16, 16});
    }
    void cellsShowTheirIconAndNothingElse()
    {
        QFETCH(QVariant, decoration);
        QFETCH(bool, focused);
        QFETCH(QRect, icon);
        QStyleOptionViewItem option;
        option.rect = QRect(4, 4, 22, 22);
        option.state = QStyle::State_Enabled | QStyle::State_Selected;
        option.state.setFlag(QStyle::State_HasFocus, focused);
        option.palette.setColor(QPalette::Highlight, Qt::blue);
        m_box->addItem("Text"_q);
        m_box->setItemData(0, decoration, Qt::DecorationRole);

        QImage expected = flatImage(QSize(32, 32), Qt::yellow, QImage::Format_RGB32);
        QImage image(expected);
        QPainter painter(&expected);
        if (focused)
            painter.fillRect(option.rect, Qt::blue);
        painter.fillRect(icon, kIconColor);
        painter.end();
        painter.begin(&image);
        m_box->itemDelegate()->paint(&painter, option, m_box->model()->index(0, 0));
        painter.end();
        QCOMPARE(image, expected);
        OmIconComboBoxDelegate().paint(nullptr, QStyleOptionViewItem(), QModelIndex());
    }

    void theListIsAGridThatIsNoHigherThanItsRows_data()
    {
        columns<int, bool>("count", "skinned");
        for (const int count : {1, 12, 40}) {
            QTest::addRow("%d items", count) << count << false;
            QTest::addRow("%d items, skinned", count) << count << true;
        }
    }
    void theListIsAGridThatIsNoHigherThanItsRows()
    {
        QFETCH(int, count);
        QFETCH(bool, skinned);
        OmStyle2 style;
        if (skinned)
            m_box->setStyle(&style);
        addItems(count);
        m_box->move(100, 100);
        m_box->show();
        m_box->showPopup();

        const auto *const view = qobject_cast<QListView *>(m_box->view());
        QVERIFY(view && view->isVisible());
        QCOMPARE(view->movement(), QListView::Static); // icons are not for dragging about
        QCOMPARE(m_box->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
        if (skinned)
            QVERIFY(std::abs(view->window()->width() - m_box->width() - 100) <= 1);
        const int columns = std::min(count, view->viewport()->width() / 22);
        for (int i = 0; i < count; ++i) {
            const QRect cell = view->visualRect(m_box->model()->index(i, 0));
            QCOMPARE(cell, QRect(i % columns * 22, i / columns * 22, 22, 22));
        }
        const int rows = (count + columns - 1) / columns;
        QCOMPARE(view->viewport()->height(), rows * 22);
        m_box->hidePopup();
        m_box.reset();
    }

    void theListStaysAtTheBox()
    {
        for (const bool laidOver : {false, true}) {
            PopupStyle style(laidOver);
            m_box->setStyle(&style);
            addItems(12);
            const QRect screen = m_box->screen()->geometry();
            m_box->setWindowFlag(Qt::FramelessWindowHint);
            for (const bool atBottom : {false, true}) {
                m_box->move(100, atBottom ? screen.bottom() - 40 : 300);
                m_box->show();
                m_box->showPopup();
                const QRect popup = m_box->view()->window()->geometry();
                const QRect box(m_box->mapToGlobal(QPoint(0, 0)), m_box->size());
                QVERIFY(screen.contains(popup));
                QCOMPARE(popup.intersects(box.adjusted(0, 2, 0, -2)), laidOver);
                QVERIFY(popup.intersects(box.adjusted(0, -5, 0, 5)));
                m_box->hidePopup();
            }
            m_box = std::make_unique<OmIconComboBox>();
        }
    }

    void theClosedBoxDrawsNoEditField()
    {
        RecordingStyle style;
        addItems(3);
        m_box->setStyle(&style);
        QPalette palette = m_box->palette();
        palette.setColor(QPalette::Text, QColor(1, 2, 3));
        m_box->setPalette(palette);
        m_box->resize(100, 24);
        for (const bool editable : {false, true}) {
            m_box->setEditable(editable);
            style.subControls = {};
            paintedOnNothing(m_box.get());
            QCOMPARE(style.subControls, QStyle::SC_All & ~QStyle::SC_ComboBoxEditField);
            QCOMPARE(style.pen, QColor(1, 2, 3));
        }
        m_box.reset();
    }

    void theFocusIsSeen()
    {
        OmStyle2 style;
        m_box->setStyle(&style);
        addItems(1);
        QVERIFY(activate(m_box.get()));
        m_box->setFocus(Qt::TabFocusReason);
        m_box->setAttribute(Qt::WA_KeyboardFocusChange); // as the Tab key does
        const QImage focused = m_box->grab().toImage();
        m_box->clearFocus();
        const QImage plain = m_box->grab().toImage();
        QVERIFY(focused != plain);
        // The frame tells of the mouse, not of the focus.
        const QRect inner = plain.rect().adjusted(1, 1, -1, -1);
        QCOMPARE(focused.copy(0, 0, plain.width(), 1), plain.copy(0, 0, plain.width(), 1));
        QVERIFY(focused.copy(inner) != plain.copy(inner));
        m_box.reset();
    }

    void hostileItemsAreHarmless()
    {
        m_box->showPopup(); // without an item
        QVERIFY(!m_box->view()->isVisible());
        m_box->addItem(QIcon(), QString());
        m_box->addItem(flatIcon(QSize(1, 1)), "\u05e9\u05dc e\u0301\u0302"_q);
        m_box->addItem(flatIcon(QSize(3000, 1)), QString());
        m_box->show();
        m_box->showPopup();
        QCoreApplication::processEvents();
        m_box.reset(); // with the list open
    }

    void screenReadersSeeAComboBox()
    {
        addItems(2);
        m_box->setItemText(1, QString());
        m_box->setItemData(1, "Smile"_q, Qt::AccessibleTextRole);
        QAccessibleInterface *const seen = accessible(m_box.get());
        QCOMPARE(seen->role(), QAccessible::ComboBox);
        QCOMPARE(accessibleName(m_box.get()), "Item 0"_q);
        m_box->setAccessibleName("Smiley"_q);
        m_box->setCurrentIndex(1);
        QCOMPARE(accessibleName(m_box.get()), "Smiley"_q);
        QCOMPARE(seen->text(QAccessible::Value), "Smile"_q);
        QVERIFY(seen->state().expandable && !seen->state().expanded && !seen->state().editable);
        QVERIFY(seen->state().focusable);

        m_box->show();
        pressAccessibly(m_box.get());
        QVERIFY(m_box->view()->isVisible() && seen->state().expanded);
        QCOMPARE(seen->childCount(), 1);
        QAccessibleInterface *const list = seen->child(0);
        QCOMPARE(list->childCount(), 2);
        QCOMPARE(list->child(1)->text(QAccessible::Name), "Smile"_q);
        pressAccessibly(m_box.get());
        QVERIFY(!m_box->view()->isVisible());

        m_box->setEditable(true);
        QCOMPARE(seen->childCount(), 2);
        QCOMPARE(seen->child(1)->object(), m_box->lineEdit());
        QCOMPARE(seen->indexOfChild(seen->child(1)), 1);
        QVERIFY(seen->state().editable);
        const QPoint inEdit = m_box->lineEdit()->mapToGlobal(QPoint(1, 1));
        QCOMPARE(seen->childAt(inEdit.x(), inEdit.y()), seen->child(1));
        m_box->setEnabled(false);
        QVERIFY(!isAccessiblyPressable(m_box.get()));
        pressAccessibly(m_box.get());
        QVERIFY(!m_box->view()->isVisible());
    }

private:
    void addItems(int count)
    {
        for (int i = 0; i < count; ++i)
            m_box->addItem(flatIcon(), "Item %1"_q.arg(i));
    }

    std::unique_ptr<OmIconComboBox> m_box;
};

int main(int argc, char *argv[])
{
    {
        // An application of before took along what Qt knew of the box.
        const QApplication former(argc, argv);
        const OmIconComboBox box;
    }
    return ombrin::test::run<tst_OmIconComboBox>(argc, argv);
}
#include "tst_omiconcombobox.moc"
