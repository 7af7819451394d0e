#pragma once

#include "dialogs/DialogUser.h"

#include <ombrin/COmWizard_Mission_Base.h>
#include <ombrin/COmWizard_Page_Base.h>
#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmWizard_Standard2.h>

#include <optional>

/// Pages and missions that tell what is done to them and do what they are told.
namespace wizard_parts {

using ombrin::test::activate;

/// Hears of everything. What it does then may destroy whoever told it.
struct Log : public QObject
{
    void tell(const QString &what)
    {
        if (!what.contains(QLatin1Char('?'))) // questions are not written down
            entries.append(what);
        const auto function = heard;
        if (function)
            function(what);
    }
    /// What was written down since the last call.
    QString take() { return std::exchange(entries, {}).join(QLatin1Char(' ')); }

    QStringList entries;
    std::function<void(const QString &)> heard;
};

class Page : public QWidget, public COmWizard_Page_Base
{
public:
    explicit Page(const QString &name, Log *log = nullptr)
        : m_log(log)
    {
        setObjectName(name);
        resize(400, 250);
    }

    COmWizard_Mission_Base *mission() const { return Mission(); }

protected:
    void Activate() override
    {
        if (tell("Activate"))
            COmWizard_Page_Base::Activate();
    }
    void Deactivate() override
    {
        if (tell("Deactivate"))
            COmWizard_Page_Base::Deactivate();
    }
    void RefreshPage() override { tell("RefreshPage"); }
    bool event(QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::ParentChange:
        case QEvent::FocusIn:
            return tell("event?") && QWidget::event(event);
        default:
            return QWidget::event(event);
        }
    }

private:
    /// Returns whether this page survived it.
    bool tell(const char *what)
    {
        const QPointer<Page> self(this);
        if (m_log)
            m_log->tell(objectName() + QLatin1Char('.') + QLatin1String(what)
                        + QLatin1String(Mission() ? "" : "?without mission"));
        return self;
    }

    QPointer<Log> m_log;
};

/// Owns pages as far as no wizard took them along.
class Pages
{
public:
    explicit Pages(int count, Log *log = nullptr)
    {
        for (int index = 0; index < count; ++index)
            m_pages.append(new Page(QString(QLatin1Char(char('A' + index))), log));
    }
    ~Pages()
    {
        for (const QPointer<Page> &page : std::as_const(m_pages))
            delete page;
    }
    Q_DISABLE_COPY(Pages)

    Page *operator[](int index) const { return m_pages.at(index); }
    QList<QWidget *> widgets() const { return QList<QWidget *>(m_pages.begin(), m_pages.end()); }

private:
    QList<QPointer<Page>> m_pages;
};

enum Action { Previous, Next, Execute, Cancel };
constexpr Action kActions[] = {Previous, Next, Execute, Cancel};

class Mission : public COmWizard_Mission_Base
{
public:
    using Base = COmWizard_Mission_Base;
    using Answers = std::optional<int>; ///< a bit for each action; none: as the base class has it

    explicit Mission(Log *log = nullptr)
        : m_log(log)
    {}
    explicit Mission(const Pages &pages, Log *log = nullptr)
        : m_log(log)
    {
        UseStaticPages(pages.widgets());
    }

    using Base::CurrentPage;
    using Base::DoOnChanged;
    using Base::Set_CurrentPage;
    using Base::UseStaticPages;

    bool IsPrevPageAllowed() override { return may(allowed, Previous, Base::IsPrevPageAllowed()); }
    bool IsNextPageAllowed() override { return may(allowed, Next, Base::IsNextPageAllowed()); }
    bool IsCancelWizardAllowed() override
    {
        return may(allowed, Cancel, Base::IsCancelWizardAllowed());
    }
    bool IsExecuteMissionAllowed() override
    {
        return may(allowed, Execute, Base::IsExecuteMissionAllowed());
    }
    bool IsPrevPagePossible() override
    {
        return may(possible, Previous, Base::IsPrevPagePossible());
    }
    bool IsNextPagePossible() override { return may(possible, Next, Base::IsNextPagePossible()); }
    bool IsCancelWizardPossible() override
    {
        return may(possible, Cancel, Base::IsCancelWizardPossible());
    }
    bool IsExecuteMissionPossible() override
    {
        return may(possible, Execute, Base::IsExecuteMissionPossible());
    }
    bool PrevPage() override { return told("PrevPage", true) && Base::PrevPage(); }
    bool NextPage() override { return told("NextPage", true) && Base::NextPage(); }
    bool CancelWizard() override
    {
        const bool asks = !confirms;
        return told("CancelWizard", asks || *confirms) && (!asks || Base::CancelWizard());
    }
    bool ExecuteMission() override
    {
        const bool result = succeeds;
        told("ExecuteMission", true);
        return result;
    }
    QString MissionName() override { return told("?", name); }
    QIcon MissionIcon() override { return told("?", icon); }
    QPixmap MissionPicture() override { return told("?", picture); }
    QPixmap MissionSidebar() override { return told("?", sidebar); }
    QString PageText() override { return told("?", text); }
    QString PageDescription() override { return told("?", description); }

    Answers possible;
    Answers allowed;
    std::optional<bool> confirms; ///< none: asks the user
    bool succeeds = true;
    QString name;
    QIcon icon;
    QPixmap picture;
    QPixmap sidebar;
    QString text;
    QString description;

private:
    bool may(const Answers &answers, Action action, bool otherwise)
    {
        return told("?", answers ? ((*answers >> action) & 1) != 0 : otherwise);
    }
    /// Returns \a answer, or nothing when this mission did not survive it.
    template <typename Answer>
    Answer told(const char *what, Answer answer)
    {
        const QPointer<Mission> self(this);
        if (m_log)
            m_log->tell(QLatin1String(what));
        return self ? answer : Answer();
    }

    QPointer<Log> m_log;
};

/// Adds a row for each of the two wizards.
inline void forBothWizards()
{
    QTest::addColumn<bool>("compact");
    QTest::newRow("COmWizard_Standard") << false;
    QTest::newRow("OmWizard_Standard2") << true;
}

inline std::unique_ptr<COmWizard_Base> makeWizard(bool compact, COmWizard_Mission_Base *mission)
{
    std::unique_ptr<COmWizard_Base> wizard;
    if (compact)
        wizard = std::make_unique<OmWizard_Standard2>();
    else
        wizard = std::make_unique<COmWizard_Standard>();
    wizard->Set_Mission(mission);
    return wizard;
}

/// The button of \a action, visible or not.
inline QPushButton *button(const QWidget *wizard, Action action)
{
    QList<QPushButton *> own; // in the order in which they were made
    const auto buttons = wizard->findChildren<QPushButton *>();
    std::copy_if(buttons.begin(), buttons.end(), std::back_inserter(own),
                 [](const QWidget *widget) { return widget->minimumSize() == QSize(96, 28); });
    if (qobject_cast<const COmWizard_Standard *>(wizard))
        return own.value(1 + action); // after the help button
    return own.value(action == Execute ? 3 : action == Cancel ? 2 : action);
}

inline QPixmap picture(const QSize &size, qreal density = 1)
{
    QPixmap pixmap = ombrin::test::flatPixmap((QSizeF(size) * density).toSize(), Qt::darkCyan);
    pixmap.setDevicePixelRatio(density);
    return pixmap;
}

} // namespace wizard_parts
