#pragma once

#include <ombrin/COmWizard_Mission_Base.h>

#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

#include <vector>

namespace messenger {

class AccountPage;

/// The mission of adding an account: server, name and picture, and a summary.
///
/// It only collects; finished() hands what was collected to whoever keeps accounts.
class AccountMission : public COmWizard_Mission_Base
{
    Q_OBJECT

public:
    enum Step { ServerStep, NameStep, PictureStep, SummaryStep, StepCount };

    explicit AccountMission(QObject *parent = nullptr);
    ~AccountMission() override;

    QString server() const { return m_server; }
    void setServer(const QString &server);
    QString name() const { return m_name; }
    void setName(const QString &name);
    QImage picture() const { return m_picture; }
    void setPicture(const QImage &picture);
    bool isDone() const { return m_isDone; }

    /// Goes to \a step as if the user had come there.
    void goTo(Step step);

Q_SIGNALS:
    /// The user has completed the mission.
    void finished();

protected:
    bool IsNextPageAllowed() override;
    bool IsPrevPagePossible() override;
    bool IsExecuteMissionAllowed() override;
    bool IsExecuteMissionPossible() override;
    bool ExecuteMission() override;
    QString MissionName() override;
    QIcon MissionIcon() override;
    QPixmap MissionPicture() override;
    QPixmap MissionSidebar() override;
    QString PageText() override;
    QString PageDescription() override;

private:
    Step step();

    std::vector<QPointer<AccountPage>> m_pages;
    QMap<Step, QPixmap> m_sidebars;
    QString m_server;
    QString m_name;
    QImage m_picture;
    bool m_isDone = false;
};

/// Whether \a text could be the name of a server: "chat.example.org", "localhost:5222".
bool isPossibleServer(const QString &text);

} // namespace messenger
