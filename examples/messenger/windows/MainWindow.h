#pragma once

#include <ombrin/OmWindow.h>

class QAction;
class QLabel;
class QMenu;

namespace messenger {

class ContactList;
class FilterPanel;
class OwnPanel;
class Session;

/// The contacts, with the user's own card above them.
class MainWindow : public ombrin::OmWindow
{
    Q_OBJECT

public:
    /// \a session must outlive the window.
    explicit MainWindow(Session *session);
    ~MainWindow() override;

    ContactList *contacts() const { return m_contacts; }
    FilterPanel *filters() const { return m_filters; }

Q_SIGNALS:
    /// The user wants the action \a id, as OmContactCard names it, or "delete", for a contact.
    void actionId(const QString &id, const QString &contactId);
    void accountWanted();
    void contactsWanted();
    void preferencesWanted();
    void aboutWanted();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createMenus();
    void addContactAction(QMenu *menu, const QString &text, const QString &id,
                          const QKeySequence &key = {});
    void refreshContactActions();
    void connectRoster();
    void refreshGroups();
    void refreshStatus();

    Session *m_session;
    OwnPanel *m_own;
    FilterPanel *m_filters;
    ContactList *m_contacts;
    QLabel *m_count;
    QList<QAction *> m_contactActions;
    QStringList m_groups;
};

} // namespace messenger
