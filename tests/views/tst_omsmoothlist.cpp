#include "support/WidgetEvents.h"

#include <ombrin/OmSmoothList.h>

using ombrin::OmSmoothList;

namespace {

const QColor kLine(192, 192, 192);
const QColor kHovered(128, 128, 128);
const QColor kText(1, 2, 3);
const QColor kTab(10, 200, 210);
const QColor kBase(250, 240, 230);

} // namespace

class tst_OmSmoothList : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        QPalette palette;
        palette.setColor(QPalette::Text, kText);
        palette.setColor(QPalette::Window, kTab);
        palette.setColor(QPalette::Base, kBase);
        m_list = std::make_unique<OmSmoothList>();
        m_list->setPalette(palette);
        m_list->resize(160, 200);
        m_list->setFocusPolicy(Qt::NoFocus); // whose frame is the style's
    }
    void tearDown() override { m_list.reset(); }

private:
    void show(const QStringList &entries)
    {
        m_list->addItems(entries);
        m_list->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_list.get()));
    }
    QRect rowRect(int row) const { return m_list->visualItemRect(m_list->item(row)); }
    void moveTo(const QPoint &position, Qt::MouseButtons buttons = Qt::NoButton)
    {
        ombrin::test::sendMouseMove(m_list->viewport(), position, buttons);
    }
    bool looksLikeLink(int row) const
    {
        const QListWidgetItem *item = m_list->item(row);
        return item->font().underline() && item->foreground().color() == kHovered;
    }

    std::unique_ptr<OmSmoothList> m_list;

private Q_SLOTS:
    void entriesAreTallerThanPlainOnes()
    {
        show({"A"_q});
        QListWidget plain;
        plain.setItemDelegate(new QItemDelegate(&plain));
        plain.addItem("A"_q);
        QCOMPARE(m_list->sizeHintForRow(0), plain.sizeHintForRow(0) + 6);
    }

    void borderIsOpenBesideTabs_data()
    {
        const auto row = columns<QList<int>>("selected");
        row("none", {});
        row("middle", {1});
        row("several, last first", {2, 0});
    }
    void borderIsOpenBesideTabs()
    {
        QFETCH(QList<int>, selected);
        m_list->setSelectionMode(QAbstractItemView::MultiSelection);
        show({"A"_q, "B"_q, "C"_q});
        for (const int row : selected)
            m_list->item(row)->setSelected(true);
        const QImage image = m_list->grab().toImage();
        const int right = image.width() - 1;
        const int bottom = image.height() - 1;
        for (int x = 0; x < right; ++x)
            QVERIFY(image.pixelColor(x, 0) == kLine && image.pixelColor(x, bottom) == kLine);
        for (int y = 0; y <= bottom; ++y) {
            bool isOpen = false;
            for (const int row : selected)
                isOpen |= y > rowRect(row).top() + 3 && y < rowRect(row).bottom() - 1;
            QCOMPARE(image.pixelColor(0, y), kLine);
            QCOMPARE(image.pixelColor(right, y), isOpen ? kTab : kLine);
        }
    }

    void selectedEntryIsDrawnAsATab()
    {
        show({QString(), QString(), QString()});
        m_list->item(1)->setSelected(true);
        const QImage image = m_list->grab().toImage();
        const QRect row = rowRect(1);
        const int left = row.left() + 3;
        const int top = row.top() + 3;
        const int bottom = row.bottom() - 1;
        for (int x = row.left() + 8; x <= row.right(); ++x) {
            QCOMPARE(image.pixelColor(x, top), kLine);
            QCOMPARE(image.pixelColor(x, bottom), kLine);
            if (x < row.right()) // where the list's own border ends
                QCOMPARE(image.pixelColor(x, top - 1), kBase);
            QCOMPARE(image.pixelColor(x, row.center().y()), kTab);
        }
        for (int y = row.top() + 8; y <= row.bottom() - 5; ++y) {
            QCOMPARE(image.pixelColor(left, y), kLine);
            QCOMPARE(image.pixelColor(left - 1, y), kBase);
            QCOMPARE(image.pixelColor(left + 1, y), kTab);
        }
        QCOMPARE(image.pixelColor(left, top), kBase); // the corners are round
        QCOMPARE(image.pixelColor(left, bottom), kBase);
        QCOMPARE(image.pixelColor(80, rowRect(0).center().y()), kBase);
    }

    void entryUnderTheMouseLooksLikeALink()
    {
        show({"Alpha"_q, "Beta"_q, "Gamma"_q});
        m_list->item(2)->setFlags(Qt::NoItemFlags);
        const auto text = [this](int row) { return rowRect(row).topLeft() + QPoint(15, 10); };
        moveTo(text(0));
        QVERIFY(looksLikeLink(0));
        QCOMPARE(m_list->cursor().shape(), Qt::PointingHandCursor);
        moveTo(text(1));
        QVERIFY(!looksLikeLink(0) && looksLikeLink(1));
        QCOMPARE(m_list->item(0)->foreground().color(), kText);
        moveTo(QPoint(150, text(1).y())); // right of the text
        QVERIFY(looksLikeLink(1));
        QCOMPARE(m_list->cursor().shape(), Qt::ArrowCursor);
        moveTo(text(2)); // not enabled
        QVERIFY(!looksLikeLink(1) && !looksLikeLink(2));
        moveTo(text(1));
        ombrin::test::sendLeave(m_list.get());
        QVERIFY(!looksLikeLink(1));
        QCOMPARE(m_list->cursor().shape(), Qt::ArrowCursor);
        moveTo(text(1));
        m_list->setCurrentRow(0);
        QVERIFY(!looksLikeLink(1));
    }

    void linkFollowsItsEntryAndIsNotTold()
    {
        int changes = 0;
        connect(m_list.get(), &QListWidget::itemChanged, this, [&changes] { ++changes; });
        show({"Alpha"_q, "Beta"_q, "Gamma"_q});
        moveTo(rowRect(1).center());
        delete m_list->takeItem(0);
        QVERIFY(looksLikeLink(0));
        moveTo(rowRect(1).center());
        QVERIFY(!looksLikeLink(0) && looksLikeLink(1));
        QCOMPARE(changes, 0);
    }

    void linkIsWhereTheTextIs()
    {
        m_list->setLayoutDirection(Qt::RightToLeft);
        show({"Alpha"_q});
        moveTo(rowRect(0).topRight() + QPoint(-15, 10));
        QCOMPARE(m_list->cursor().shape(), Qt::PointingHandCursor);
        moveTo(rowRect(0).topLeft() + QPoint(15, 10));
        QCOMPARE(m_list->cursor().shape(), Qt::ArrowCursor);
    }

    void selectionFollowsPressAndKeysButNoDrag()
    {
        show({"Alpha"_q, "Beta"_q, "Gamma"_q});
        QTest::mousePress(m_list->viewport(), Qt::LeftButton, {}, rowRect(1).center());
        QCOMPARE(m_list->currentRow(), 1);
        moveTo(rowRect(2).center(), Qt::LeftButton);
        QTest::mouseRelease(m_list->viewport(), Qt::LeftButton, {}, rowRect(2).center());
        QCOMPARE(m_list->selectedItems(), QList<QListWidgetItem *>{m_list->item(1)});
        QTest::keyClick(m_list.get(), Qt::Key_Down);
        QCOMPARE(m_list->currentRow(), 2);
        QTest::keyClick(m_list.get(), Qt::Key_Home);
        QCOMPARE(m_list->selectedItems(), QList<QListWidgetItem *>{m_list->item(0)});
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, rowRect(1).center());
        QCOMPARE(m_list->currentRow(), 1);
    }
};

OMBRIN_TEST_MAIN(tst_OmSmoothList)
#include "tst_omsmoothlist.moc"
