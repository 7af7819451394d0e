#include <ombrin/COmWizard_Mission_Base.h>

#include <ombrin/COmWizard_Page_Base.h>
#include <ombrin/OmMessageBox.h>

#include <algorithm>

namespace {

// Asked anew each time: a widget that is being destroyed is no page any more.
COmWizard_Page_Base *asPage(QWidget *widget)
{
    return dynamic_cast<COmWizard_Page_Base *>(widget);
}

} // namespace

COmWizard_Mission_Base::COmWizard_Mission_Base(QObject *parent)
    : QObject(parent)
{}

COmWizard_Mission_Base::~COmWizard_Mission_Base()
{
    if (m_currentPage)
        Set_CurrentPage(nullptr);
}

void COmWizard_Mission_Base::CloseWizard()
{
    Q_EMIT OnClosed();
}

// Actions

bool COmWizard_Mission_Base::isFirstPage() const
{
    return m_currentIndex <= 0;
}

bool COmWizard_Mission_Base::isLastPage() const
{
    return m_currentIndex == m_pages.size() - 1;
}

bool COmWizard_Mission_Base::IsPrevPageAllowed()
{
    return !isFirstPage();
}

bool COmWizard_Mission_Base::IsNextPageAllowed()
{
    return m_currentIndex < m_pages.size() - 1;
}

bool COmWizard_Mission_Base::IsCancelWizardAllowed()
{
    return true;
}

bool COmWizard_Mission_Base::IsExecuteMissionAllowed()
{
    return isLastPage();
}

bool COmWizard_Mission_Base::IsPrevPagePossible()
{
    return !isFirstPage();
}

bool COmWizard_Mission_Base::IsNextPagePossible()
{
    return m_currentIndex < m_pages.size() - 1;
}

bool COmWizard_Mission_Base::IsCancelWizardPossible()
{
    return true;
}

bool COmWizard_Mission_Base::IsExecuteMissionPossible()
{
    return isLastPage();
}

bool COmWizard_Mission_Base::PrevPage()
{
    return goTo(m_currentIndex - 1);
}

bool COmWizard_Mission_Base::NextPage()
{
    return goTo(m_currentIndex + 1);
}

bool COmWizard_Mission_Base::goTo(int index)
{
    if (index < 0 || index >= m_pages.size())
        return false;
    m_currentIndex = index;
    dropDeletedPages();
    Set_CurrentPage(m_pages.at(m_currentIndex));
    return true;
}

bool COmWizard_Mission_Base::CancelWizard()
{
    return ombrin::OmMessageBox::question(
                   nullptr, tr("Question", "title of question-dialog for standard-wizard"),
                   tr("Do you really want to cancel this wizard?",
                      "question on cancel in standard-wizard"))
           != 0;
}

// What there is to show

QString COmWizard_Mission_Base::MissionName()
{
    return QString();
}

QIcon COmWizard_Mission_Base::MissionIcon()
{
    return QIcon();
}

QPixmap COmWizard_Mission_Base::MissionPicture()
{
    return QPixmap();
}

QPixmap COmWizard_Mission_Base::MissionSidebar()
{
    return QPixmap();
}

QString COmWizard_Mission_Base::PageText()
{
    return QString();
}

QString COmWizard_Mission_Base::PageDescription()
{
    return QString();
}

// Pages

void COmWizard_Mission_Base::UseStaticPages(const QList<QWidget *> &pages)
{
    if (pages.isEmpty() || !std::all_of(pages.begin(), pages.end(), asPage))
        return;
    watchPages(false);
    m_pages.clear();
    for (QWidget *page : pages)
        m_pages.append(page);
    watchPages(true);
    m_currentIndex = 0;
    Set_CurrentPage(pages.first());
}

void COmWizard_Mission_Base::watchPages(bool watch)
{
    for (const QPointer<QWidget> &page : std::as_const(m_pages)) {
        if (watch)
            connect(page, &QObject::destroyed, this, &COmWizard_Mission_Base::forgetPage);
        else if (page)
            disconnect(page, &QObject::destroyed, this, &COmWizard_Mission_Base::forgetPage);
    }
}

/// \a page is being destroyed.
void COmWizard_Mission_Base::forgetPage(const QObject *page)
{
    for (QPointer<QWidget> &known : m_pages) {
        if (known == page)
            known.clear(); // does not happen by itself before the widget is all gone
    }
    dropDeletedPages();
}

void COmWizard_Mission_Base::dropDeletedPages()
{
    for (int index = static_cast<int>(m_pages.size()) - 1; index >= 0; --index) {
        // The place of the current page stays, so that the next one is still the next one.
        if (m_pages.at(index) || index == m_currentIndex)
            continue;
        m_pages.removeAt(index);
        if (index < m_currentIndex)
            --m_currentIndex;
    }
}

void COmWizard_Mission_Base::Set_CurrentPage(QWidget *page)
{
    if (page == m_currentPage || (page && !asPage(page)))
        return;
    // Every page may delete the mission, itself or the other page.
    const QPointer<COmWizard_Mission_Base> self(this);
    const QPointer<QWidget> newPage(page);
    if (m_currentPage && !leaveCurrentPage())
        return;

    m_currentPage = newPage;
    if (COmWizard_Page_Base *current = asPage(m_currentPage)) {
        current->m_mission = this;
        current->Activate();
        if (!self)
            return;
    }
    DoOnChanged();
}

/// Returns false when the page deleted the mission, or made another page current.
bool COmWizard_Mission_Base::leaveCurrentPage()
{
    const QPointer<COmWizard_Mission_Base> self(this);
    const QPointer<QWidget> oldPage(m_currentPage);
    COmWizard_Page_Base *leaving = asPage(oldPage);
    // Not a second time when its Deactivate() deletes the mission or changes pages.
    if (leaving && m_pageBeingLeft != oldPage) {
        m_pageBeingLeft = oldPage;
        leaving->Deactivate();
        if (!self)
            return false;
        m_pageBeingLeft.clear();
    }
    if (m_currentPage != oldPage)
        return false;
    if (COmWizard_Page_Base *old = asPage(oldPage))
        old->m_mission = nullptr;
    return true;
}

QWidget *COmWizard_Mission_Base::CurrentPage()
{
    return m_currentPage;
}

void COmWizard_Mission_Base::DoOnChanged()
{
    const QPointer<COmWizard_Mission_Base> self(this);
    Q_EMIT OnChanged();
    if (!self)
        return;
    COmWizard_Page_Base *page = asPage(m_currentPage);
    if (page && page->m_mission == this)
        page->RefreshPage();
}
