// Operations on the zebra's models, beside the same ones on a plain list, while a view shows them.

#include "FuzzTarget.h"

#include <ombrin/OmScribbledZebraItemLink.h>
#include <ombrin/OmScribbledZebraView.h>

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>

#include <vector>

namespace {

using ombrin::fuzz::Input;
using Item = OmScribbledZebraItemBase;

constexpr int kMostSteps = 200;
constexpr int kMostItems = 60;

class Zebra
{
public:
    explicit Zebra(Input *input)
        : m_input(*input)
    {
        m_view.resize(200, 150);
    }

    void step();
    void check();
    void paint() { m_view.grab(); }

private:
    Item *create();
    int index() { return m_items.empty() ? 0 : m_input.choice(int(m_items.size())); }
    Item *any() { return m_items.empty() ? nullptr : m_items[std::size_t(index())]; }
    void insert();
    void remove();
    void reorder();
    void changeItem();
    void changePole();
    void changeView();

    Input &m_input;
    OmScribbledZebraView m_view;
    OmScribbledZebraItemList &m_list = m_view.items();
    std::vector<Item *> m_items; // what the list must hold
};

Item *Zebra::create()
{
    const int column = m_input.number();
    const int row = m_input.number();
    const bool isLeft = m_input.choice(2) == 0;
    if (m_input.choice(2) == 0)
        return new OmScribbledZebraItemText(column, row, isLeft, m_input.text(), nullptr);
    return new OmScribbledZebraItemLink(column, row, isLeft, m_input.text(), nullptr);
}

void Zebra::insert()
{
    if (m_items.size() >= kMostItems)
        return;
    Item *const item = create();
    switch (m_input.choice(4)) {
    case 0:
        m_list.append(item);
        m_items.push_back(item);
        return;
    case 1:
        m_list.prepend(item);
        m_items.insert(m_items.begin(), item);
        return;
    case 2: {
        const int at = index();
        m_list.insert(at, item);
        m_items.insert(m_items.begin() + at, item);
        return;
    }
    default:
        // Null is no item; one that is there already would be a mistake of the host.
        m_list << item << nullptr;
        m_items.push_back(item);
        return;
    }
}

void Zebra::remove()
{
    if (m_items.empty())
        return;
    const int at = index();
    Item *const item = m_items[std::size_t(at)];
    switch (m_input.choice(5)) {
    case 0:
        m_list.removeAt(at);
        break;
    case 1:
        m_list.removeAll(item);
        break;
    case 2:
        delete m_list.takeAt(at);
        break;
    case 3:
        m_list.erase(m_list.begin() + at);
        break;
    default:
        delete item;
        break;
    }
    m_items.erase(m_items.begin() + at);
}

void Zebra::reorder()
{
    if (m_items.empty())
        return;
    const int from = index();
    const int to = index();
    if (m_input.choice(2) == 0) {
        m_list.swap(from, to);
        std::swap(m_items[std::size_t(from)], m_items[std::size_t(to)]);
    } else {
        m_list.move(from, to);
        Item *const item = m_items[std::size_t(from)];
        m_items.erase(m_items.begin() + from);
        m_items.insert(m_items.begin() + to, item);
    }
}

void Zebra::changeItem()
{
    Item *const item = any();
    if (!item)
        return;
    auto *const text = static_cast<OmScribbledZebraItemText *>(item);
    switch (m_input.choice(6)) {
    case 0:
        return item->setRow(m_input.number());
    case 1:
        return item->setColumn(m_input.number());
    case 2:
        return item->setIsAlignedLeftOrRight(m_input.choice(2) == 0);
    case 3:
        return text->setText(m_input.text());
    case 4: {
        QFont font;
        font.setPixelSize(m_input.byte() + 1);
        return text->setFont(font);
    }
    default:
        if (auto *const link = qobject_cast<OmScribbledZebraItemLink *>(item))
            link->setIsEnabled(m_input.choice(2) == 0);
        return;
    }
}

void Zebra::changePole()
{
    OmScribbledZebraPoleList &poles = m_view.poles();
    const int indent = m_input.number();
    switch (m_input.choice(4)) {
    case 0:
        if (poles.size() < kMostItems)
            poles.append(indent, m_input.choice(2) == 0);
        return;
    case 1:
        if (!poles.isEmpty())
            poles.at(m_input.choice(poles.size()))->setIndent(indent);
        return;
    case 2:
        if (!poles.isEmpty())
            poles.removeAt(m_input.choice(poles.size()));
        return;
    default:
        if (!poles.isEmpty())
            delete poles.at(m_input.choice(poles.size()));
        return;
    }
}

void Zebra::changeView()
{
    switch (m_input.choice(6)) {
    case 0:
        return m_view.setMinimumLineHeight(m_input.number());
    case 1:
        return m_view.blockRefresh(m_input.choice(2) == 0);
    case 2:
        return m_view.resize(m_input.byte(), m_input.byte());
    case 3:
        m_list.clear();
        return m_items.clear();
    case 4:
        return ombrin::fuzz::runEvents();
    default: {
        const QPointF point(m_input.byte(), m_input.byte());
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, point, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(m_view.viewport(), &event);
        }
        return;
    }
    }
}

void Zebra::step()
{
    switch (m_input.choice(8)) {
    case 0:
        return remove();
    case 1:
        return reorder();
    case 2:
    case 3:
        return changeItem();
    case 4:
        return changePole();
    case 5:
        return changeView();
    default:
        return insert();
    }
}

void Zebra::check()
{
    FUZZ_CHECK(m_list.size() == int(m_items.size()));
    FUZZ_CHECK(std::equal(m_items.begin(), m_items.end(), m_list.constBegin()));
    for (const Item *item : m_items)
        FUZZ_CHECK(item->parent() == &m_list);
}

void run(Input input)
{
    Zebra zebra(&input);
    for (int steps = 0; steps < kMostSteps && !input.isEmpty(); ++steps) {
        zebra.step();
        zebra.check();
    }
    zebra.paint();
    ombrin::fuzz::runEvents();
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
