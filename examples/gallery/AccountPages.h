#pragma once

#include <ombrin/COmWizard_Page_Base.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace gallery {

class AccountMission;

/// A page of the account mission: a column of fields.
class AccountPage : public QWidget, public COmWizard_Page_Base
{
public:
    AccountPage();

protected:
    AccountMission *mission() const;
    QVBoxLayout *column() const { return m_column; }
    /// A line edit with \a name above it.
    QLineEdit *addField(const QString &name);
    /// Room for what went wrong.
    QLabel *addProblem();

private:
    QVBoxLayout *m_column;
};

class ServerPage : public AccountPage
{
    Q_DECLARE_TR_FUNCTIONS(ServerPage)

public:
    ServerPage();

protected:
    void RefreshPage() override;

private:
    QLineEdit *m_server;
};

class SignInPage : public AccountPage
{
    Q_DECLARE_TR_FUNCTIONS(SignInPage)

public:
    SignInPage();

protected:
    void RefreshPage() override;

private:
    void tellMission();

    QLineEdit *m_name;
    QLineEdit *m_password;
    QLabel *m_problem;
};

class SummaryPage : public AccountPage
{
    Q_DECLARE_TR_FUNCTIONS(SummaryPage)

public:
    SummaryPage();

protected:
    void RefreshPage() override;

private:
    QLabel *m_server;
    QLabel *m_name;
    QLabel *m_password;
    QCheckBox *m_refuse;
    QLabel *m_problem;
};

} // namespace gallery
