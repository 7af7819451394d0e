#pragma once

#include <ombrin/COmWizard_Base.h>
#include <ombrin/COmWizard_Mission_Base.h>
#include <ombrin/COmWizard_Page_Base.h>
#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmWizard_Standard2.h>

#include <QtCore/QStringList>
#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

/// Pages and missions that tell what is done to them and do what they are told.
namespace wizard_parts {

using Hook = std::function<void()>;

// A hook may destroy its owner.
inline void call(const Hook &member)
{
    const Hook hook = member;
    if (hook)
        hook();
}

class Page : public QWidget, public COmWizard_Page_Base
{
public:
    explicit Page(const QString &name = QString(), QStringList *log = nullptr)
        : m_log(log)
    {
        setObjectName(name);
        resize(400, 250);
    }

    COmWizard_Mission_Base *mission() const { return Mission(); }

    Hook onActivate;
    Hook onDeactivate;
    Hook onRefresh;

protected:
    void Activate() override
    {
        record(QStringLiteral("Activate"));
        COmWizard_Page_Base::Activate();
        call(onActivate);
    }
    void Deactivate() override
    {
        record(QStringLiteral("Deactivate"));
        COmWizard_Page_Base::Deactivate();
        call(onDeactivate);
    }
    void RefreshPage() override
    {
        record(QStringLiteral("RefreshPage"));
        call(onRefresh);
    }

private:
    void record(const QString &what) const
    {
        const QString state = Mission() ? QString() : QStringLiteral(" without mission");
        if (m_log)
            m_log->append(objectName() + QLatin1Char('.') + what + state);
    }

    QStringList *m_log;
};

/// Owns pages as far as no wizard took them along.
class Pages
{
public:
    explicit Pages(int count, QStringList *log = nullptr)
    {
        for (int index = 0; index < count; ++index)
            m_pages.append(new Page(QString(QLatin1Char(char('A' + index % 26))), log));
    }
    ~Pages()
    {
        for (const QPointer<Page> &page : std::as_const(m_pages))
            delete page;
    }
    Q_DISABLE_COPY(Pages)

    Page *operator[](int index) const { return m_pages.at(index); }

    QList<QWidget *> widgets() const
    {
        QList<QWidget *> list;
        for (const QPointer<Page> &page : m_pages)
            list.append(page);
        return list;
    }

private:
    QList<QPointer<Page>> m_pages;
};

enum Action { Previous, Next, Execute, Cancel };

class Mission : public COmWizard_Mission_Base
{
public:
    using Base = COmWizard_Mission_Base;

    explicit Mission(const Pages &pages) { UseStaticPages(pages.widgets()); }
    Mission() = default;

    using Base::CurrentPage;
    using Base::DoOnChanged;
    using Base::Set_CurrentPage;
    using Base::UseStaticPages;

    bool IsPrevPageAllowed() override
    {
        return answer(allowed, Previous, Base::IsPrevPageAllowed());
    }
    bool IsNextPageAllowed() override { return answer(allowed, Next, Base::IsNextPageAllowed()); }
    bool IsCancelWizardAllowed() override
    {
        return answer(allowed, Cancel, Base::IsCancelWizardAllowed());
    }
    bool IsExecuteMissionAllowed() override
    {
        return answer(allowed, Execute, Base::IsExecuteMissionAllowed());
    }
    bool IsPrevPagePossible() override
    {
        return answer(possible, Previous, Base::IsPrevPagePossible());
    }
    bool IsNextPagePossible() override
    {
        return answer(possible, Next, Base::IsNextPagePossible());
    }
    bool IsCancelWizardPossible() override
    {
        return answer(possible, Cancel, Base::IsCancelWizardPossible());
    }
    bool IsExecuteMissionPossible() override
    {
        return answer(possible, Execute, Base::IsExecuteMissionPossible());
    }

    bool PrevPage() override
    {
        calls.append(QStringLiteral("PrevPage"));
        call(onStep);
        return Base::PrevPage();
    }
    bool NextPage() override
    {
        calls.append(QStringLiteral("NextPage"));
        const QPointer<Mission> self(this);
        call(onStep);
        return self && Base::NextPage();
    }
    bool CancelWizard() override
    {
        calls.append(QStringLiteral("CancelWizard"));
        const bool asks = !confirms.has_value();
        const bool confirmed = confirms.value_or(false);
        const QPointer<Mission> self(this);
        call(onCancel);
        return asks && self ? Base::CancelWizard() : confirmed;
    }
    bool ExecuteMission() override
    {
        calls.append(QStringLiteral("ExecuteMission"));
        const bool result = succeeds;
        call(onExecute);
        return result;
    }

    QString MissionName() override { return name; }
    QIcon MissionIcon() override { return icon; }
    QPixmap MissionPicture() override { return picture; }
    QPixmap MissionSidebar() override { return sidebar; }
    QString PageText() override { return text; }
    QString PageDescription() override { return description; }

    QStringList calls;
    std::function<bool(Action)> possible; ///< null: as the base class has it
    std::function<bool(Action)> allowed;
    std::optional<bool> confirms; ///< none: asks the user
    bool succeeds = true;
    Hook onStep;
    Hook onCancel;
    Hook onExecute;
    QString name;
    QIcon icon;
    QPixmap picture;
    QPixmap sidebar;
    QString text;
    QString description;

private:
    static bool answer(const std::function<bool(Action)> &function, Action action, bool otherwise)
    {
        return function ? function(action) : otherwise;
    }
};

inline std::unique_ptr<COmWizard_Base> makeWizard(bool compact)
{
    if (compact)
        return std::make_unique<OmWizard_Standard2>();
    return std::make_unique<COmWizard_Standard>();
}

/// Adds a row for each of the two wizards.
inline void forBothWizards()
{
    QTest::addColumn<bool>("compact");
    QTest::newRow("COmWizard_Standard") << false;
    QTest::newRow("OmWizard_Standard2") << true;
}

/// Shows \a wizard and waits until it has the keyboard.
inline bool show(QWidget *wizard)
{
    wizard->show();
    wizard->activateWindow();
    return QTest::qWaitForWindowActive(wizard);
}

/// The button of \a action, visible or not.
inline QPushButton *button(const QWidget *wizard, Action action)
{
    const bool compact = qobject_cast<const OmWizard_Standard2 *>(wizard) != nullptr;
    const auto buttons = wizard->findChildren<QPushButton *>();
    QList<QPushButton *> own; // in the order in which they were made
    for (QPushButton *candidate : buttons) {
        if (candidate->minimumSize() == QSize(96, 28))
            own.append(candidate);
    }
    if (compact)
        return own.value(action == Execute ? 3 : action == Cancel ? 2 : action);
    return own.value(1 + action); // after the help button
}

/// The caption without its short cut.
inline QString caption(const QWidget *wizard, Action action)
{
    return button(wizard, action)->text().remove(QLatin1Char('&'));
}

inline QPixmap picture(int width, int height, qreal density = 1)
{
    QPixmap pixmap((QSizeF(width, height) * density).toSize());
    pixmap.fill(Qt::darkCyan);
    pixmap.setDevicePixelRatio(density);
    return pixmap;
}

} // namespace wizard_parts
