#include "support/WidgetEvents.h"

#include "views/ZebraLines.h"

#include <ombrin/OmGraphicsSimpleHyperlinkItem.h>
#include <ombrin/OmScribbledZebraItemLink.h>
#include <ombrin/OmScribbledZebraView.h>

#include <algorithm>
#include <climits>
#include <functional>
#include <utility>
#include <vector>

using ombrin::ZebraLines;
using namespace ombrin::test;
using Item = OmScribbledZebraItemBase;

namespace {

// An item of a size of its own, which counts what the view does with it.
class Block : public OmScribbledZebraItemBase
{
public:
    Block(int column, int row, bool isAlignedLeft, const QSize &size)
        : OmScribbledZebraItemBase(column, row, isAlignedLeft, nullptr)
        , m_boxSize(size)
    {
        DoOnChanged();
    }
    void setSize(const QSize &size)
    {
        m_boxSize = size;
        DoOnChanged();
    }
    QSize recalcSize() const override { return m_boxSize; }
    QGraphicsItem *CreateGraphicsItem() override { return graphicsItem = new QGraphicsRectItem; }
    void AdjustGraphicsItem(QGraphicsItem *) override
    {
        ++adjustments;
        if (onAdjust)
            onAdjust();
    }
    QPoint place() const
    {
        return graphicsItem->isVisible() ? graphicsItem->pos().toPoint() : QPoint(-1, -1);
    }

    QGraphicsItem *graphicsItem = nullptr;
    int adjustments = 0;
    std::function<void()> onAdjust;

private:
    QSize m_boxSize;
};

class View : public OmScribbledZebraView
{
public:
    explicit View(const QSize &size = QSize(300, 100))
        : OmScribbledZebraView(nullptr)
    {
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setViewportSize(size);
    }
    // Also while the view is hidden.
    void setViewportSize(const QSize &size)
    {
        resize(size);
        grab();
    }
    Block *addBlock(int column, int row, bool isAlignedLeft, const QSize &size)
    {
        auto *const box = new Block(column, row, isAlignedLeft, size);
        items().append(box);
        return box;
    }
    // The lines at the right edge, as letters of their colours and heights.
    QString stripes()
    {
        QImage image = flatImage(viewport()->size(), Qt::red);
        viewport()->render(&image);
        QStringList result;
        for (int top = 0, y = 1; y <= image.height(); ++y) {
            const QRgb color = image.pixel(image.width() - 1, top);
            if (y < image.height() && image.pixel(image.width() - 1, y) == color)
                continue;
            result += (color == 0xffffffff   ? QLatin1Char('w')
                       : color == 0xfff2f2f2 ? QLatin1Char('g')
                                             : QLatin1Char('?'))
                      + QString::number(y - top);
            top = y;
        }
        return result.join(QLatin1Char(' '));
    }
    void sendMouse(QEvent::Type type, const QPointF &place)
    {
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, place, viewport()->mapToGlobal(place.toPoint()),
                          isMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(viewport(), &event);
    }
};

} // namespace

using Setter = std::function<void(OmScribbledZebraItemLink *)>;
Q_DECLARE_METATYPE(Setter)

class tst_Zebra : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void settersTellOfChangesOnly_data()
    {
        const auto row = columns<bool, Setter>("remeasured", "set");
        QFont large = QApplication::font();
        large.setPixelSize(40);
        row("row", false, [](auto *link) { link->setRow(3); });
        row("column", false, [](auto *link) { link->setColumn(3); });
        row("alignment", false, [](auto *link) { link->setIsAlignedLeftOrRight(false); });
        row("text", true, [](auto *link) { link->setText("much longer"_q); });
        row("font", true, [large](auto *link) { link->setFont(large); });
        row("pen", false, [](auto *link) { link->setPen(QPen(Qt::red)); });
        row("brush", false, [](auto *link) { link->setBrush(Qt::red); });
        row("enabled", false, [](auto *link) { link->setIsEnabled(false); });
        row("disabled pen", false, [](auto *link) { link->setDisabledPen(QPen(Qt::red)); });
        row("disabled brush", false, [](auto *link) { link->setDisabledBrush(Qt::red); });
    }

    void settersTellOfChangesOnly()
    {
        QFETCH(Setter, set);
        OmScribbledZebraItemList list(nullptr);
        auto *const link = new OmScribbledZebraItemLink(0, 0, true, "text"_q, nullptr);
        list << link;
        QCOMPARE(link->parent(), &list);
        QSize told = link->size();
        QCOMPARE(told, QFontMetrics(link->font()).size(Qt::TextSingleLine, link->text()));
        const QSize before = told;
        QSignalSpy changed(&list, &OmScribbledZebraItemList::signalOnChanged);
        connect(link, &Item::signalOnChanged, this, [&] { told = link->size(); });
        set(link);
        set(link);
        link->setData(5);
        QCOMPARE(changed.count(), 1);
        QTEST(told != before, "remeasured");
        QCOMPARE(told, link->recalcSize());

        const std::unique_ptr<QGraphicsItem> shown(link->CreateGraphicsItem());
        const auto *const text = static_cast<QGraphicsSimpleTextItem *>(shown.get());
        QCOMPARE(text->text(), link->text());
        QCOMPARE(text->font(), link->font());
        QCOMPARE(text->pen(), link->isEnabled() ? link->pen() : link->disabledPen());
        QCOMPARE(text->brush(), link->isEnabled() ? link->brush() : link->disabledBrush());
        list.takeAt(0);
        changed.clear();
        link->setRow(9);
        QVERIFY(changed.isEmpty());
    }

    void polesTellTheirListUntilTheyLeaveIt()
    {
        OmScribbledZebraPoleList list(nullptr);
        QSignalSpy changed(&list, &OmScribbledZebraPoleList::signalOnChanged);
        list.append(10, true);
        OmScribbledZebraPole *const pole = list.at(0);
        pole->setIndent(11);
        pole->setIndent(11);
        pole->setIsAlignedLeftOrRight(false);
        list.append(nullptr);
        QCOMPARE(changed.count(), 3);
        list.removeAt(0);
        pole->setIndent(12);
        QCOMPARE(changed.count(), 4);
        list << pole;
        delete pole;
        QVERIFY(list.isEmpty());
        QCOMPARE(changed.count(), 6);
    }

    void whatIsInTheListIsNotAddedOnceMore()
    {
        View view;
        view.poles().append(5, true);
        OmScribbledZebraPole *const pole = view.poles().first();
        Block *const block = view.addBlock(0, 0, true, QSize(10, 20));
        view.poles() << pole;
        view.poles().replace(0, pole);
        view.items() << block;
        view.items().replace(0, block);
        QCOMPARE(view.poles().size(), 1);
        QCOMPARE(view.items().size(), 1);
        pole->setIndent(7);
        QCOMPARE(block->place(), QPoint(7, 0));
        view.items().removeAt(0);
        view.items() << block;
        delete block;
        delete pole;
        QVERIFY(view.items().isEmpty() && view.poles().isEmpty());
    }

    void itemsStandAtTheirPoles_data()
    {
        // placeIfWider: in a viewport of 400 pixels instead of 300
        const auto row = columns<bool, bool, QSize, QPoint, QPoint, QSize>(
                "poleLeft", "itemLeft", "size", "place", "placeIfWider", "scene");
        const QSize viewport(300, 100);
        row("starts at the left", true, true, {50, 14}, {10, 3}, {10, 3}, viewport);
        row("ends at the right", false, false, {50, 15}, {240, 3}, {340, 3}, viewport);
        row("starts at the right", false, true, {50, 0}, {290, 10}, {390, 10}, viewport);
        row("just fits", true, true, {290, 100}, {10, 0}, {10, 0}, viewport);
        row("too large", true, true, {291, 101}, {10, 0}, {10, 0}, {301, 101});
    }

    void itemsStandAtTheirPoles()
    {
        QFETCH(bool, poleLeft);
        QFETCH(bool, itemLeft);
        QFETCH(QSize, size);
        View view;
        view.setLayoutDirection(size.height() % 2 ? Qt::RightToLeft : Qt::LeftToRight);
        view.poles().append(10, poleLeft);
        const Block *const box = view.addBlock(0, 0, itemLeft, size);
        QTEST(box->place(), "place");
        QTEST(view.sceneRect().size().toSize(), "scene");
        view.setViewportSize(QSize(400, 100));
        QTEST(box->place(), "placeIfWider");
    }

    void stripesFollowTheLines_data()
    {
        // items: their rows and heights
        const auto row = columns<int, QVector<QPoint>, int, QString>("minimum", "items",
                                                                     "scrolledTo", "stripes");
        using Items = QVector<QPoint>;
        row("empty", 20, Items(), 0, "w20 g20 w20 g20 w10");
        row("high line", 20, Items{{1, 30}, {1, 25}}, 0, "w20 g30 w20 g20");
        row("hidden rows", 20, Items{{-1, 50}, {0, 5}}, 0, "w20 g20 w20 g20 w10");
        row("far, scrolled", 20, Items{{1000000, 30}}, 19999935, "w5 g20 w20 g20 w25");
        row("low minimum", 0, Items{{0, 60}, {2, 20}}, 0, "w60 g1 w20 g1 w1 g1 w1 g1 w1 g1 w1 g1");
        row("minimum below 0", -7, Items{{0, 88}}, 0, "w88 g1 w1");
    }

    void stripesFollowTheLines()
    {
        QFETCH(int, minimum);
        QFETCH(QVector<QPoint>, items);
        QFETCH(int, scrolledTo);
        QFETCH(QString, stripes);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            View view(QSize(300, 90));
            view.setLayoutDirection(direction);
            view.poles().append(0, true);
            view.setMinimumLineHeight(minimum);
            for (const QPoint &item : items)
                view.addBlock(0, item.x(), true, QSize(10, item.y()));
            view.verticalScrollBar()->setValue(scrolledTo);
            QCOMPARE(view.stripes(), stripes);
        }
    }

    // Whatever changes: all is where a layout from scratch would put it.
    void placesMatchASimpleModel()
    {
        QRandomGenerator random(11);
        View view;
        std::vector<Block *> boxes;
        for (int step = 0; step < 4000; ++step) {
            const QSize size(random.bounded(400), random.bounded(45));
            Block *const box = boxes.empty() ? nullptr : boxes[random.generate() % boxes.size()];
            const int change = random.bounded(random.bounded(8) ? 6 : 10);
            if (change == 0 || !box)
                boxes.push_back(view.addBlock(random.bounded(4), random.bounded(-1, 12),
                                              random.bounded(2), size));
            else if (change == 1)
                box->setRow(random.bounded(-1, 12));
            else if (change == 2)
                box->setColumn(random.bounded(-1, 4));
            else if (change <= 4)
                box->setSize(size);
            else if (change == 5)
                box->setIsAlignedLeftOrRight(!box->isAlignedLeftOrRight());
            else if (change == 6 && boxes.size() > 10) {
                boxes.erase(std::find(boxes.begin(), boxes.end(), box));
                delete box;
            } else if (change == 7)
                view.poles().append(random.bounded(50), random.bounded(2));
            else if (change == 8)
                delete view.poles().value(random.bounded(3));
            else if (change == 9)
                view.setMinimumLineHeight(random.bounded(-1, 30));

            int tops[14] = {0};
            for (int row = 0; row < 13; ++row) {
                int height = std::max(view.minimumLineHeight(), 1);
                for (const Block *other : boxes)
                    height = std::max(height, other->row() == row ? other->size().height() : 0);
                tops[row + 1] = tops[row] + height;
            }
            QSize bounds(300, 100);
            for (const Block *other : boxes) {
                const OmScribbledZebraPole *const pole = view.poles().value(other->column());
                QCOMPARE(other->graphicsItem->isVisible(), pole && other->row() >= 0);
                if (!pole || other->row() < 0)
                    continue;
                const int top = tops[other->row()];
                const int bottom = tops[other->row() + 1];
                int x = pole->isAlignedLeftOrRight() ? pole->indent() : 300 - pole->indent();
                x -= other->isAlignedLeftOrRight() ? 0 : other->size().width();
                QCOMPARE(other->place(),
                         QPoint(x, top + (bottom - top + 1 - other->size().height()) / 2));
                if (pole->isAlignedLeftOrRight())
                    bounds = bounds.expandedTo(QSize(x + other->size().width(), 0));
                bounds = bounds.expandedTo(QSize(0, bottom));
            }
            QCOMPARE(view.sceneRect(), QRectF(QPoint(), bounds));
            QCOMPARE(view.scene()->items().size(), static_cast<int>(boxes.size()));
        }
    }

    void onlyWhatMayHaveChangedIsLaidOut()
    {
        QWidget window; // on screen, as a hidden widget is told of its size more than once
        window.resize(400, 300);
        View view;
        view.setParent(&window);
        window.show();
        view.show();
        view.poles().append(0, true);
        QSignalSpy sceneRects(view.scene(), &QGraphicsScene::sceneRectChanged);
        view.blockRefresh(true);
        std::vector<Block *> boxes;
        for (int row = 0; row < 10; ++row)
            boxes.push_back(view.addBlock(0, row, true, QSize(10, 30)));
        QVERIFY(view.scene()->items().isEmpty());
        view.blockRefresh(false);
        const auto adjustments = [&boxes] {
            QString result;
            for (Block *box : boxes)
                result += QString::number(std::exchange(box->adjustments, 0));
            return result;
        };
        QCOMPARE(adjustments(), "1111111111"_q);
        QCOMPARE(sceneRects.count(), 1);
        boxes[4]->setSize(QSize(10, 31));
        QCOMPARE(adjustments(), "0000100000"_q);
        QCOMPARE(boxes[5]->place(), QPoint(0, 151));
        view.items().swap(0, 1);
        QCOMPARE(adjustments(), "1111111111"_q);
        view.setMinimumLineHeight(40);
        QCOMPARE(adjustments(), "1111111111"_q);
        view.poles().at(0)->setIndent(5);
        QCOMPARE(adjustments(), "1111111111"_q);
        view.resize(200, 50);
        QCOMPARE(adjustments(), "1111111111"_q);

        // Also while the view must not lay itself out.
        view.blockRefresh(true);
        Item *const taken = view.items().takeFirst();
        delete boxes[4];
        QCOMPARE(view.scene()->items().size(), 8);
        delete taken;
        view.items().clear();
        QVERIFY(view.scene()->items().isEmpty());
    }

    void linksUnderlineThemselvesAndReportClicks()
    {
        View view;
        view.poles().append(10, true);
        OmScribbledZebraItemLink link(0, 0, true, "link"_q, nullptr);
        view.items() << &link;
        int clicks = 0;
        connect(&link, &OmScribbledZebraItemLink::signalOnLinkActivated, this,
                [&](OmScribbledZebraItemLink &clicked) { clicks += &clicked == &link ? 1 : 99; });
        const auto *const shown =
                dynamic_cast<OmGraphicsSimpleHyperlinkItem *>(view.scene()->items().value(0));
        QVERIFY(shown);
        const QPointF inside = shown->sceneBoundingRect().center();
        const QPointF outside = shown->sceneBoundingRect().bottomRight() + QPointF(9, 9);
        const auto click = [&](const QPointF &released) {
            view.sendMouse(QEvent::MouseMove, inside);
            view.sendMouse(QEvent::MouseButtonPress, inside);
            view.sendMouse(QEvent::MouseButtonRelease, released);
        };
        click(inside);
        click(outside);
        QCOMPARE(clicks, 1);
        view.sendMouse(QEvent::MouseMove, inside);
        QVERIFY(shown->font().underline());
        QCOMPARE(shown->cursor().shape(), Qt::PointingHandCursor);
        link.setRow(1);
        link.setRow(0);
        QVERIFY(shown->font().underline() && !link.font().underline());
        view.sendMouse(QEvent::MouseMove, outside);
        QVERIFY(!shown->font().underline());
        link.setIsEnabled(false);
        click(inside);
        QVERIFY(!shown->font().underline());
        QCOMPARE(shown->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(clicks, 1);
    }

    void hostMayDeleteAnythingFromAClickedLink()
    {
        for (const int victim : {0, 1, 2}) {
            auto view = std::make_unique<View>();
            view->poles().append(0, true);
            auto *const link = new OmScribbledZebraItemLink(0, 0, true, "link"_q, nullptr);
            view->items() << link;
            int clicks = 0;
            connect(link, &OmScribbledZebraItemLink::signalOnLinkActivated, this, [&] {
                ++clicks;
                if (victim == 0)
                    view->items().removeAt(0);
                else if (victim == 1)
                    delete link;
                else
                    view.reset();
            });
            const QPointF inside = view->scene()->items().value(0)->sceneBoundingRect().center();
            view->sendMouse(QEvent::MouseButtonPress, inside);
            view->sendMouse(QEvent::MouseButtonRelease, inside);
            QCOMPARE(clicks, 1);
            QVERIFY(!view || view->items().isEmpty());
        }
    }

    void hostMayChangeAnythingInTheMiddleOfALayout()
    {
        auto view = std::make_unique<View>();
        view->poles().append(0, true);
        QPointer<Block> first = view->addBlock(0, 0, true, QSize(10, 10));
        Block *const second = view->addBlock(0, 1, true, QSize(10, 10));
        second->onAdjust = [&] {
            second->setSize(QSize(10, 50)); // is laid out later
            delete first;
        };
        view->blockRefresh(false);
        QVERIFY(!first);
        QCoreApplication::processEvents();
        QCOMPARE(second->place(), QPoint(0, 20));
        QCOMPARE(view->scene()->items().size(), 1);

        second->onAdjust = nullptr;
        connect(&view->items(), &OmScribbledZebraItemList::signalOnChanged, this,
                [&] { view->items().first()->setObjectName("seen"_q); });
        second->setRow(3);
        QCOMPARE(second->objectName(), "seen"_q);
        connect(&view->items(), &OmScribbledZebraItemList::signalOnChanged, this,
                [&] { view.reset(); });
        view->items().append(new Block(0, 0, true, QSize(1, 1)));
        QVERIFY(!view);
        view = std::make_unique<View>();
        view->addBlock(0, 0, true, QSize(1, 1))->onAdjust = [&] { view.reset(); };
        view->blockRefresh(false);
        QVERIFY(!view);
    }
};

OMBRIN_TEST_MAIN(tst_Zebra)
#include "tst_zebra.moc"
