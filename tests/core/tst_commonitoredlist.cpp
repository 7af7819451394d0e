#include "support/TestCase.h"

#include <ombrin/COmMonitoredList.h>

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <thread>
#include <vector>

namespace {

struct Element
{
    int number;
};

using List = COmMonitoredList<Element *>;

constexpr int kElements = 16;

Element *element(int number)
{
    static std::array<Element, kElements> all = [] {
        std::array<Element, kElements> made{};
        for (int i = 0; i < kElements; ++i)
            made.at(static_cast<std::size_t>(i)).number = i;
        return made;
    }();
    return &all.at(static_cast<std::size_t>(number));
}

// The letters of the elements, the first being 'a'.
template <typename AnyList>
QString letters(const AnyList &list)
{
    QString text;
    for (const Element *item : list)
        text += item ? QChar(QLatin1Char(static_cast<char>('a' + item->number))) : QLatin1Char('0');
    return text;
}

template <typename AnyList>
void fill(AnyList *list, const char *text)
{
    for (; *text; ++text)
        list->append(element(*text - 'a'));
}

// A list that tells in a text what its hooks saw: + and - before, and * and / after adding and
// removing, ! for a change. Rules turn hooks into those of a host.
class Watched : public List
{
public:
    using List::IgnoreChanges;
    using List::m_addHooksSuppressed;
    using List::m_deleteHooksSuppressed;

    Watched() = default;
    explicit Watched(const char *text)
    {
        fill(this, text);
        log.clear();
    }
    using List::operator=;

    void Override_ChangesHappened() override
    {
        log += QLatin1Char('!');
        if (onChange)
            onChange();
    }
    bool Override_BeforeItemAdded(Element *&item) override
    {
        return tell('+', item) && (!beforeAdded || beforeAdded(item));
    }
    bool Override_BeforeItemDeleted(Element *&item) override
    {
        return tell('-', item) && (!beforeDeleted || beforeDeleted(item));
    }
    void Override_AfterItemAdded(Element *&item) override { tell('*', item); }
    void Override_AfterItemDeleted(Element *&item) override { tell('/', item); }

    QString log;
    std::function<bool(Element *&)> beforeAdded;
    std::function<bool(Element *&)> beforeDeleted;
    std::function<void()> onChange;

private:
    bool tell(char sign, const Element *item)
    {
        log += QLatin1Char(sign) + letters(std::vector<const Element *>{item});
        return true;
    }
};

// What an operation is told to do; the first three are indexes into the list.
struct Draw
{
    int inside; // of an element, if there is one
    int from;   // up to the end
    int to;     // from there up to the end
    int anywhere;
    Element *item;
};

template <typename L, typename It>
qint64 place(L &list, It it)
{
    return it - list.begin();
}

// The operations, the same for both kinds of list; those from kFirstForElements on need an element.
constexpr int kFirstForElements = 25;
template <typename L>
constexpr qint64 (*kOperations[])(L &, L &, Draw) = {
        [](L &l, L &, Draw d) { return l.append(d.item), qint64(0); },
        [](L &l, L &, Draw d) { return l.prepend(d.item), qint64(0); },
        [](L &l, L &, Draw d) { return l.insert(d.from, d.item), qint64(0); },
        [](L &l, L &, Draw d) { return place(l, l.insert(l.begin() + d.to, d.item)); },
        [](L &l, L &, Draw d) { return qint64(((l += d.item) << d.item).size()); },
        [](L &l, L &, Draw d) { return l.push_back(d.item), l.push_front(d.item), qint64(0); },
        [](L &l, L &o, Draw) { return qint64((l += o).size()); },
        [](L &l, L &o, Draw) { return qint64((l << l << o).size()); },
        [](L &l, L &o, Draw) { return l = o, qint64(0); },
        [](L &l, L &o, Draw d) { return o = l, o.append(d.item), qint64(0); },
        [](L &l, L &o, Draw) { return l = o + l, qint64(0); },
        [](L &l, L &, Draw d) { return l = l.mid(d.anywhere, d.to - 3), qint64(0); },
        [](L &l, L &, Draw) { return qint64(l.mid(0) == l); },
        [](L &l, L &, Draw d) { return place(l, l.erase(l.begin() + d.from, l.begin() + d.to)); },
        [](L &l, L &, Draw d) { return qint64(l.removeAll(d.item)); },
        [](L &l, L &, Draw d) { return d.anywhere % 8 ? void() : l.clear(), qint64(0); },
        [](L &l, L &, Draw d) { return qint64(l.indexOf(d.item, d.anywhere)); },
        [](L &l, L &, Draw d) { return qint64(l.lastIndexOf(d.item, d.anywhere)); },
        [](L &l, L &, Draw d) { return l.count(d.item) + 100LL * l.contains(d.item); },
        [](L &l, L &o, Draw) { return (l == o) + 2LL * (l != o) + 4 * l.isEmpty() + l.empty(); },
        [](L &l, L &, Draw d) { return qint64(l.value(d.anywhere) == d.item); },
        [](L &l, L &, Draw d) { return qint64(l.value(d.anywhere, d.item) == d.item); },
        [](L &l, L &, Draw) { return std::sort(l.begin(), l.end()), qint64(0); },
        [](L &l, L &, Draw) { return std::reverse(l.begin(), l.end()), qint64(0); },
        [](L &l, L &, Draw) {
            return std::accumulate(l.constBegin(), l.constEnd(), qint64(0),
                                   [](qint64 sum, Element *e) { return 3 * sum + e->number; });
        },
        [](L &l, L &, Draw d) { return l.removeAt(d.inside), qint64(0); },
        [](L &l, L &, Draw d) { return qint64(l.takeAt(d.inside)->number); },
        [](L &l, L &, Draw) { return qint64(l.takeFirst()->number); },
        [](L &l, L &, Draw) { return qint64(l.takeLast()->number); },
        [](L &l, L &, Draw) { return l.removeFirst(), l.isEmpty() ? 0LL : (l.pop_back(), 1LL); },
        [](L &l, L &, Draw) { return l.removeLast(), l.isEmpty() ? 0LL : (l.pop_front(), 1LL); },
        [](L &l, L &, Draw d) { return l.replace(d.inside, d.item), qint64(0); },
        [](L &l, L &, Draw d) { return l.move(d.inside, d.from % int(l.size())), qint64(0); },
        [](L &l, L &, Draw d) { return place(l, l.erase(l.begin() + d.inside)); },
        [](L &l, L &, Draw d) { return l[d.inside] = d.item, qint64(0); },
        [](L &l, L &, Draw d) { return l.first() = l.last(), l.back() = l.at(d.inside), 0LL; },
        [](L &l, L &, Draw d) { return l.append(l.at(d.inside)), l.prepend(l.last()), 0LL; },
        [](L &l, L &, Draw d) {
            return l.insert(d.from, l[d.inside]), l.replace(0, l.at(d.inside)), 0LL;
        },
        [](L &l, L &, Draw d) { return qint64(l.removeAll(l.at(d.inside))); },
        [](L &l, L &, Draw d) { return std::swap(l.end()[-1], l.begin()[d.inside]), 0LL; },
};

template <typename L>
qint64 apply(int operation, quint32 chance, L &list, L &other)
{
    const int size = static_cast<int>(list.size());
    if (size == 0 && operation >= kFirstForElements)
        return -1;
    const auto bounded = [&chance](int limit) {
        chance = chance * 1664525u + 1013904223u;
        return static_cast<int>((chance >> 8) % static_cast<quint32>(limit));
    };
    const int from = bounded(size + 1);
    const Draw draw{bounded(std::max(size, 1)), from, from + bounded(size + 1 - from),
                    bounded(60) - 30, element(bounded(kElements))};
    return kOperations<L>[operation](list, other, draw);
}

} // namespace

using Operation = std::function<void(Watched &)>;
Q_DECLARE_METATYPE(Operation)

class tst_COmMonitoredList : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Three lists of each kind, which share their elements now and then.
    void aMillionOperationsMatchQList()
    {
        QRandomGenerator random(20240607);
        std::array<List, 3> ours;
        std::array<QList<Element *>, 3> theirs;
        constexpr int operations = static_cast<int>(std::size(kOperations<List>));
        for (int step = 0; step < 1000000; ++step) {
            const int operation = random.bounded(operations);
            const quint32 chance = random.generate();
            const std::size_t here = chance % 3;
            const std::size_t there = chance / 3 % 3;
            bool same = apply(operation, chance, ours[here], ours[there])
                        == apply(operation, chance, theirs[here], theirs[there]);
            for (std::size_t list = 0; list < ours.size(); ++list) {
                same = same
                       && std::equal(ours[list].constBegin(), ours[list].constEnd(),
                                     theirs[list].constBegin(), theirs[list].constEnd());
                if (ours[list].size() > 24) {
                    ours[list].clear();
                    theirs[list].clear();
                }
            }
            QVERIFY2(same, qPrintable("%1: %2"_q.arg(step).arg(operation)));
        }
    }

    // Long lists, so that blocks grow, slide and shrink at both ends.
    void longListsMatchQList()
    {
        constexpr int favourites[] = {0, 1, 2, 27, 28};
        QRandomGenerator random(7);
        List ours;
        QList<Element *> theirs;
        for (int phase = 0; phase < 60; ++phase) {
            const int repeats = random.bounded(2000);
            for (int n = 0; n < repeats; ++n) {
                const int operation = favourites[phase % 2 ? phase / 2 % 5 : random.bounded(5)];
                const quint32 chance = random.generate();
                QCOMPARE(apply(operation, chance, ours, ours),
                         apply(operation, chance, theirs, theirs));
            }
            QVERIFY(std::equal(ours.begin(), ours.end(), theirs.begin(), theirs.end()));
        }
    }

    void operationsTellTheirHooks_data()
    {
        const auto row = columns<QString, QString, Operation>("left", "log", "operation");
        row("move and swap in place", "abc", "!", [](Watched &list) {
            list.move(2, 2);
            list.swap(1, 1);
        });
        row("ways in", "edabcfg", "+d*d!+e*e!+f*f!+g*g!", [](Watched &list) {
            list.prepend(element(3));
            list.insert(list.begin(), element(4));
            list.append(element(5));
            list << element(6);
        });
        row("ways out", "", "-b/b!-a/a!-c/c!", [](Watched &list) {
            list.removeAt(1);
            QCOMPARE(list.takeFirst(), element(0));
            list.erase(list.begin());
        });
        row("replace", "dbc", "+d-a/a*d!", [](Watched &list) { list.replace(0, element(3)); });
        row("replace, the new one refused", "abc", "+d", [](Watched &list) {
            list.beforeAdded = [](Element *&) { return false; };
            list.replace(0, element(3));
        });
        row("replace, the old one refused", "abc", "+d-a", [](Watched &list) {
            list.beforeDeleted = [](Element *&) { return false; };
            list.replace(0, element(3));
        });
        row("range with one refused", "b", "-c/c-b-a/a!", [](Watched &list) {
            list.beforeDeleted = [](Element *&item) { return item != element(1); };
            list.erase(list.begin(), list.end());
        });
        row("all refused", "abc", "-c-b-a-a", [](Watched &list) {
            list.beforeDeleted = [](Element *&) { return false; };
            list.clear();
            QCOMPARE(list.removeAll(element(0)), 0);
        });
        row("all that are alike", "bc", "+a*a!-a/a-a/a!", [](Watched &list) {
            list.append(element(0));
            QCOMPARE(list.removeAll(element(0)), 2);
        });
        row("another list with one refused", "abcac", "+a*a+b+c*c!", [](Watched &list) {
            list.beforeAdded = [](Element *&item) { return item != element(1); };
            list += List(list);
        });
        row("hooks suppressed", "bcd", "!!", [](Watched &list) {
            list.m_addHooksSuppressed = true;
            list.m_deleteHooksSuppressed = true;
            list.append(element(3));
            list.removeAt(0);
        });
        row("changes ignored, twice", "d", "-a/a-c/c-b/b+d*d!", [](Watched &list) {
            list.IgnoreChanges(true);
            list.IgnoreChanges(true);
            list.removeAt(0);
            list.IgnoreChanges(false);
            list.clear();
            list.IgnoreChanges(false);
            list.IgnoreChanges(false);
            list.append(element(3));
        });
        row("assign", "hi", "-c/c-b/b-a/a+h*h+i*i!", [](Watched &list) {
            List other;
            fill(&other, "hi");
            list = other;
        });
        row("assign itself or a copy", "abc", "", [](Watched &list) {
            const List copy(list);
            list = copy;
            list = *&list;
        });
        row("the caller sees what is stored", "abcd", "+c*d!", [](Watched &list) {
            list.beforeAdded = [](Element *&item) { return (item = element(3)) != nullptr; };
            Element *given = element(2);
            list.append(given);
            QCOMPARE(given, element(3));
        });
        row("add its own element, replaced", "abcdd", "+a*d!+a*d!", [](Watched &list) {
            list.beforeAdded = [](Element *&item) { return (item = element(3)) != nullptr; };
            list.append(list.at(0));
            list.push_back(list.first());
        });
        row("bad indexes", "abc", "", [](Watched &list) {
            for (const int i : {-1, 3, 99}) {
                list.removeAt(i);
                QVERIFY(!list.takeAt(i));
                QVERIFY(!list.value(i));
                list.replace(i, element(0));
                list.move(i, 0);
                list.swap(1, i);
            }
            list.erase(list.end());
            list.erase(List::iterator(), list.end());
        });
        row("empty list", "", "-c/c-b/b-a/a!", [](Watched &list) {
            list.clear();
            list.removeFirst();
            list.removeLast();
            QVERIFY(!list.takeFirst() && !list.takeLast());
        });
        row("refused: copies are returned as the hooks left them", "abc", "-a-a",
            [](Watched &list) {
                list.beforeDeleted = [](Element *&item) {
                    item = element(4);
                    return false;
                };
                QCOMPARE(list.takeAt(0), element(4));
                QCOMPARE(list.takeFirst(), element(0));
            });
        row("hook removes the element itself", "ac", "-b-b/b!", [](Watched &list) {
            list.beforeDeleted = [&list, inside = false](Element *&item) mutable {
                if (!inside) {
                    inside = true;
                    list.removeAll(item);
                }
                return true;
            };
            list.removeAt(1);
        });
        row("hook empties the list", "d", "+d-c/c-b/b-a/a!*d!", [](Watched &list) {
            list.beforeAdded = [&list](Element *&) {
                list.clear();
                return true;
            };
            list.insert(2, element(3));
        });
        row("hook adds before the element", "dac", "-b+d*d!/b!", [](Watched &list) {
            list.beforeDeleted = [&list](Element *&) {
                list.prepend(element(3));
                return true;
            };
            QCOMPARE((*list.erase(list.begin() + 1))->number, 2);
        });
        row("hook puts back what is removed", "bca", "-a+a*a/a!", [](Watched &list) {
            list.beforeDeleted = [&list](Element *&item) {
                list.IgnoreChanges(true);
                list.append(item);
                list.IgnoreChanges(false);
                return true;
            };
            QCOMPARE(list.removeAll(element(0)), 1);
        });
    }

    void operationsTellTheirHooks()
    {
        QFETCH(Operation, operation);
        Watched list("abc");
        operation(list);
        QTEST(letters(list), "left");
        QTEST(list.log, "log");
    }

    void copiesHaveNoHooksAndShareUntilTheyAreWritten()
    {
        Watched list("abcde");
        list.IgnoreChanges(true);
        list.m_addHooksSuppressed = 1;
        List copy(list);
        QVERIFY(!list.isDetached() && !list.mid(0).isDetached());
        QVERIFY(list.mid(1).isDetached());
        copy.append(element(5));
        list.removeAt(0);
        QCOMPARE(letters(copy), "abcdef"_q);
        QCOMPARE(letters(list), "bcde"_q);
        QCOMPARE(list.log, "-a/a"_q);

        list.setSharable(false);
        QVERIFY(List(list).isDetached() && list.isDetached());
        list.setSharable(true);
        QVERIFY(!List(list).isDetached());
        List never;
        never.setSharable(false);
        QVERIFY(never.isDetached() && !List().isDetached());
    }

    // An iterator is taken, then the list is copied: what the iterator changes is not the copy.
    void erasingThroughAnIteratorLeavesCopiesAlone()
    {
        List list;
        fill(&list, "abcdef");
        List::iterator it = list.begin() + 1;
        const List copy(list);
        it = list.erase(it);
        QCOMPARE(list.IndexOfIterator(it), 1);
        QCOMPARE(letters(list) + letters(copy), "acdefabcdef"_q);
        it = list.erase(it, it + 2);
        QCOMPARE(letters(list), "aef"_q);
        QCOMPARE(list.IndexOfIterator(List::const_iterator(it)), 1);
        QCOMPARE(list.IndexOfIterator(list.end()), -1);
        QCOMPARE(list.IndexOfIterator(copy.begin()), -1);
        QCOMPARE(List().IndexOfIterator(List::iterator()), -1);
    }

    void loopsAndConversionsSeeAllElements()
    {
        List list;
        fill(&list, "cabca");
        QString seen;
        Q_FOREACH (const Element *item, list)
            seen += QString::number(item->number);
        QCOMPARE(seen, "20120"_q);
        QCOMPARE(list.toSet(), (QSet<Element *>{element(0), element(1), element(2)}));
        QVERIFY(List::fromStdList(list.toStdList()) == list);
        const List::const_iterator second = list.begin() + 1;
        QVERIFY(second > list.begin() && list.end() - second == 4 && second[1] == list[2]);
    }

    // Nothing of the list is touched after it has told of a change.
    void hostMayDeleteTheListAsItChanges()
    {
        const std::function<void(Watched *)> changes[] = {
                [](Watched *list) { list->append(element(0)); },
                [](Watched *list) { list->insert(list->begin(), element(0)); },
                [](Watched *list) { list->erase(list->begin()); },
                [](Watched *list) { list->erase(list->begin(), list->end()); },
                [](Watched *list) { list->takeAt(1); },
                [](Watched *list) { list->takeLast(); },
                [](Watched *list) { list->removeAll(element(0)); },
                [](Watched *list) { list->clear(); },
                [](Watched *list) { *list += *list; },
                [](Watched *list) { *list = List(); },
                [](Watched *list) { list->replace(0, element(2)); },
        };
        for (const auto &change : changes) {
            auto list = std::make_unique<Watched>("ab");
            Watched *const watched = list.get();
            watched->onChange = [&list] { list.reset(); };
            change(watched);
            QVERIFY(!list);
        }
    }

    // With the thread sanitizer, too: the last list that holds a block writes to it in place.
    void copiesMayLiveInDifferentThreads()
    {
        for (int round = 0; round < 200; ++round) {
            List list;
            fill(&list, "abcd");
            const auto startOnCopy = [&list](QString *seen) {
                return std::thread([list, seen]() mutable {
                    List never;
                    list.append(list.takeFirst());
                    *seen = letters(list + never.mid(0));
                });
            };
            QString seen[2];
            std::thread first = startOnCopy(&seen[0]);
            std::thread second = startOnCopy(&seen[1]);
            while (!list.isDetached())
                std::this_thread::yield();
            list.swap(0, 3);
            first.join();
            second.join();
            QCOMPARE(letters(list) + seen[0] + seen[1], "dbcabcdabcda"_q);
        }
    }
};

OMBRIN_TEST_MAIN(tst_COmMonitoredList)
#include "tst_commonitoredlist.moc"
