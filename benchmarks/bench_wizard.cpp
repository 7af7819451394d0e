#include "support/RatioCase.h"

#include <ombrin/COmWizard_Mission_Base.h>
#include <ombrin/COmWizard_Page_Base.h>
#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmWizard_Standard2.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>

#include <vector>

using namespace ombrin::bench;

namespace {

constexpr int kFewPages = 5;
constexpr int kManyPages = 500;
constexpr int kCrowd = 2000;

class Page : public QWidget, public COmWizard_Page_Base
{
public:
    explicit Page(int widgets = 0)
    {
        resize(320, 240);
        for (int index = 0; index < widgets; ++index)
            (new QLabel(QStringLiteral("x"), this))->move(index % 40 * 8, index / 40 * 4);
    }
};

class Mission : public COmWizard_Mission_Base
{
public:
    explicit Mission(int pages, int widgetsPerPage = 0)
    {
        QList<QWidget *> list;
        for (int index = 0; index < pages; ++index)
            list.append(m_pages.emplace_back(new Page(widgetsPerPage)));
        UseStaticPages(list);
    }
    ~Mission() override
    {
        for (const QPointer<QWidget> &page : m_pages)
            delete page;
    }

    using COmWizard_Mission_Base::NextPage;
    using COmWizard_Mission_Base::PrevPage;

protected:
    bool ExecuteMission() override { return true; }

private:
    std::vector<QPointer<QWidget>> m_pages;
};

template <typename Wizard>
class Opened : public Wizard
{
public:
    explicit Opened(Mission *mission)
    {
        this->Set_Mission(mission);
        this->show();
    }
    using Wizard::RefreshDialog;
};

template <typename Wizard>
void refresh(benchmark::State &state, int pages)
{
    Mission mission(pages);
    mission.NextPage();
    Opened<Wizard> wizard(&mission);
    for (auto _ : state)
        wizard.RefreshDialog();
}

template <typename Wizard>
void step(benchmark::State &state, int pages, int widgetsPerPage)
{
    Mission mission(pages, widgetsPerPage);
    Opened<Wizard> wizard(&mission);
    for (auto _ : state) {
        mission.NextPage();
        mission.PrevPage();
    }
}

/// The same step without a wizard: Qt takes a page out of a stack and puts the other one in.
void replaceInStack(benchmark::State &state)
{
    QStackedWidget stack;
    Page first(kCrowd);
    Page second(kCrowd);
    stack.addWidget(&first);
    stack.show();
    const auto replace = [&stack](QWidget *shown, QWidget *next) {
        stack.removeWidget(shown);
        shown->setParent(nullptr);
        stack.addWidget(next);
    };
    for (auto _ : state) {
        replace(&first, &second);
        replace(&second, &first);
    }
    stack.removeWidget(&first);
    first.setParent(nullptr);
}

template <typename Wizard>
RatioCase refreshCase(const char *name)
{
    return RatioCase(
            name, 1.2, [](benchmark::State &state) { refresh<Wizard>(state, kManyPages); },
            [](benchmark::State &state) { refresh<Wizard>(state, kFewPages); });
}

template <typename Wizard>
RatioCase stepCase(const char *name)
{
    return RatioCase(
            name, 1.2, [](benchmark::State &state) { step<Wizard>(state, kManyPages, 0); },
            [](benchmark::State &state) { step<Wizard>(state, kFewPages, 0); });
}

template <typename Wizard>
RatioCase crowdCase(const char *name)
{
    return RatioCase(
            name, 1.5, [](benchmark::State &state) { step<Wizard>(state, 2, kCrowd); },
            replaceInStack);
}

const RatioCase kCases[] = {
        refreshCase<COmWizard_Standard>("standard wizard, refresh, 500 pages : 5 pages"),
        refreshCase<OmWizard_Standard2>("compact wizard, refresh, 500 pages : 5 pages"),
        stepCase<COmWizard_Standard>("standard wizard, step, 500 pages : 5 pages"),
        stepCase<OmWizard_Standard2>("compact wizard, step, 500 pages : 5 pages"),
        crowdCase<COmWizard_Standard>("standard wizard, step, 2000 widgets : stacked widget"),
        crowdCase<OmWizard_Standard2>("compact wizard, step, 2000 widgets : stacked widget"),
};

} // namespace
