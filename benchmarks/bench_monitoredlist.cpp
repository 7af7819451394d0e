#include "support/RatioCase.h"

#include <ombrin/COmMonitoredList.h>

#include <QtCore/QList>

#include <type_traits>

using ombrin::bench::RatioCase;

namespace {

struct Element
{
    int number;
};

using Ours = COmMonitoredList<Element *>;
using Theirs = QList<Element *>;

constexpr int kSize = 1000;
constexpr int kLargeSize = 100000;

Element elements[kLargeSize];

// Nothing that would be measured along with the lists.
inline Element *element(int number)
{
    return elements + number;
}

template <typename List>
List filled(int size)
{
    List list;
    for (int i = 0; i < size; ++i)
        list.append(element(i));
    return list;
}

// Works on one list of kSize elements again and again.
template <typename List, typename Work>
void run(benchmark::State &state, Work work)
{
    List list = filled<List>(kSize);
    for (auto _ : state) {
        benchmark::DoNotOptimize(&list);
        work(list);
        benchmark::ClobberMemory();
    }
}

template <typename Work>
RatioCase compare(const char *name, double target, Work work)
{
    return RatioCase(
            name, target, [work](benchmark::State &state) { run<Ours>(state, work); },
            [work](benchmark::State &state) { run<Theirs>(state, work); });
}

const RatioCase readCases[] = {
        compare("list of 1,000: at(), all elements, vs QList", 1.1,
                [](const auto &list) {
                    quintptr sum = 0;
                    for (int i = 0; i < kSize; ++i)
                        sum += reinterpret_cast<quintptr>(list.at(i));
                    benchmark::DoNotOptimize(sum);
                }),
        compare("list of 1,000: iteration vs QList", 1.1,
                [](const auto &list) {
                    quintptr sum = 0;
                    for (const Element *item : list)
                        sum += reinterpret_cast<quintptr>(item);
                    benchmark::DoNotOptimize(sum);
                }),
        compare("list of 1,000: indexOf() of each 10th vs QList", 1.1,
                [](const auto &list) {
                    for (int i = 0; i < kSize; i += 10)
                        benchmark::DoNotOptimize(list.indexOf(element(i)));
                }),
        compare("list of 1,000: contains() of none vs QList", 1.1,
                [](const auto &list) { benchmark::DoNotOptimize(list.contains(element(kSize))); }),
};

const RatioCase changeCases[] = {
        compare("list: append() 1,000 to an empty one vs QList", 1.4,
                [](auto &list) {
                    std::decay_t<decltype(list)> fresh;
                    for (int i = 0; i < kSize; ++i)
                        fresh.append(element(i));
                    benchmark::DoNotOptimize(fresh.size());
                }),
        compare("list: prepend() 1,000 to an empty one vs QList", 1.4,
                [](auto &list) {
                    std::decay_t<decltype(list)> fresh;
                    for (int i = 0; i < kSize; ++i)
                        fresh.prepend(element(i));
                    benchmark::DoNotOptimize(fresh.size());
                }),
        compare("list of 1,000: append() and takeFirst(), 1,000 times, vs QList", 1.4,
                [](auto &list) {
                    for (int i = 0; i < kSize; ++i) {
                        list.append(element(i));
                        benchmark::DoNotOptimize(list.takeFirst());
                    }
                }),
        compare("list of 1,000: append() and removeLast(), 1,000 times, vs QList", 1.4,
                [](auto &list) {
                    for (int i = 0; i < kSize; ++i) {
                        list.append(element(i));
                        list.removeLast();
                    }
                }),
        compare("list: insert() 1,000 in the middle of an empty one vs QList", 1.4,
                [](auto &list) {
                    std::decay_t<decltype(list)> fresh;
                    for (int i = 0; i < kSize; ++i)
                        fresh.insert(i / 2, element(i));
                    benchmark::DoNotOptimize(fresh.size());
                }),
};

// Constant time: as long for 100,000 elements as for 1,000.
template <typename Work>
RatioCase constant(const char *name, Work work)
{
    const auto body = [work](int size) {
        return [work, size](benchmark::State &state) {
            Ours list = filled<Ours>(size);
            for (auto _ : state) {
                benchmark::DoNotOptimize(&list);
                work(list);
            }
        };
    };
    return RatioCase(name, 1.3, body(kLargeSize), body(kSize));
}

const RatioCase constantCases[] = {
        constant("list: copy of 100,000 vs 1,000",
                 [](Ours &list) { benchmark::DoNotOptimize(Ours(list).size()); }),
        constant("list: mid(0) of 100,000 vs 1,000",
                 [](Ours &list) { benchmark::DoNotOptimize(list.mid(0).size()); }),
        constant("list: IndexOfIterator() at 3/4 of 100,000 vs 1,000",
                 [](Ours &list) {
                     benchmark::DoNotOptimize(
                             list.IndexOfIterator(list.begin() + list.size() * 3 / 4));
                 }),
};

} // namespace
