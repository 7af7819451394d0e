#pragma once

#include <ombrin/COmWizard_Page_Base.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace messenger {

class AccountMission;

/// A page of the account mission: a column of fields.
class AccountPage : public QWidget, public COmWizard_Page_Base
{
public:
    AccountPage();

protected:
    /// Takes the keyboard, too.
    void Activate() override;
    /// Null while the page is not the current one.
    AccountMission *mission() const;
    QVBoxLayout *column() const { return m_column; }
    QLineEdit *addField(const QString &name);
    void addNote(const QString &text);

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

class NamePage : public AccountPage
{
    Q_DECLARE_TR_FUNCTIONS(NamePage)

public:
    NamePage();

protected:
    void RefreshPage() override;

private:
    QLineEdit *m_name;
};

/// Takes dropped pictures, too.
class PicturePage : public AccountPage
{
    Q_DECLARE_TR_FUNCTIONS(PicturePage)

public:
    PicturePage();

protected:
    void RefreshPage() override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void choose();
    void take(const QImage &picture);

    QLabel *m_face;
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
    QLabel *m_face;
    QLabel *m_name;
    QLabel *m_server;
    QLabel *m_done;
};

} // namespace messenger
