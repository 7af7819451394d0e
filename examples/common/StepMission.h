#pragma once

#include <ombrin/COmWizard_Mission_Base.h>

#include <QtCore/QPointer>
#include <QtCore/QSize>
#include <QtCore/QStringList>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <vector>

namespace example {

/// A mission of some steps, each with a page of its own, which a sidebar lists. It is done once:
/// then there is no way back.
class StepMission : public COmWizard_Mission_Base
{
    Q_OBJECT

public:
    ~StepMission() override;

    bool isDone() const { return m_isDone; }
    /// Goes to \a step as if the user had come there.
    void goTo(int step);

protected:
    explicit StepMission(QObject *parent);

    struct Step
    {
        QString name;
        QWidget *page;
    };
    /// Takes the pages of \a steps and shows the first one.
    void setSteps(const std::vector<Step> &steps, const QSize &sidebarSize);
    /// The index of the step that the user is at.
    int step();
    void setDone(bool isDone) { m_isDone = isDone; }

    bool IsPrevPagePossible() override;
    bool IsExecuteMissionAllowed() override;
    QIcon MissionIcon() override;
    QPixmap MissionPicture() override;
    QPixmap MissionSidebar() override;
    QString PageText() override;

private:
    QStringList m_names;
    std::vector<QPointer<QWidget>> m_pages;
    std::vector<QPixmap> m_sidebars;
    QSize m_sidebarSize;
    bool m_isDone = false;
};

} // namespace example
