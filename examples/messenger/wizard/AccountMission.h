#pragma once

#include "common/StepMission.h"

#include <QtGui/QImage>

namespace messenger {

/// The mission of adding an account: server, name and picture, and a summary.
///
/// It only collects; finished() hands what was collected to whoever keeps accounts.
class AccountMission : public example::StepMission
{
    Q_OBJECT

public:
    /// The steps in their order.
    enum { ServerStep, NameStep, PictureStep, SummaryStep };

    explicit AccountMission(QObject *parent = nullptr);
    ~AccountMission() override;

    QString server() const { return m_server; }
    void setServer(const QString &server);
    QString name() const { return m_name; }
    void setName(const QString &name);
    QImage picture() const { return m_picture; }
    void setPicture(const QImage &picture);

Q_SIGNALS:
    /// The user has completed the mission.
    void finished();

protected:
    bool IsNextPageAllowed() override;
    bool IsExecuteMissionPossible() override;
    bool ExecuteMission() override;
    QString MissionName() override;
    QString PageDescription() override;

private:
    QString m_server;
    QString m_name;
    QImage m_picture;
};

/// Whether \a text could be the name of a server: "chat.example.org", "localhost:5222".
bool isPossibleServer(const QString &text);

} // namespace messenger
