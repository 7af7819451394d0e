#pragma once

#include "model/Contact.h"

#include <ombrin/OmWindow.h>

class QLabel;
class OmScribbledZebraView;

namespace ombrin {
class OmAvatarSmall;
class OmLabel;
class OmRatingLabel;
} // namespace ombrin

namespace messenger {

class Session;

/// Who a contact is, and what the user thinks of it. Deletes itself when it is closed.
class ProfileWindow : public ombrin::OmWindow
{
    Q_OBJECT

public:
    /// \a session must outlive the window.
    ProfileWindow(Session *session, const QString &contactId);
    ~ProfileWindow() override;

    const QString &contactId() const { return m_contactId; }

Q_SIGNALS:
    /// The user wants the action \a id for the contact, as ChatWindow::actionId().
    void actionId(const QString &id, const QString &contactId);

private:
    QWidget *createHead();
    void refresh(const Contact &contact);
    void fillView(const Contact &contact);
    void addLabel(int row, const QString &label);
    void addText(int row, const QString &label, const QString &value);
    void addLink(int row, const QString &label, const QString &value, const QString &action,
                 const QString &actionText);

    Session *m_session;
    QString m_contactId;
    OmScribbledZebraView *m_view;
    ombrin::OmAvatarSmall *m_face = nullptr;
    ombrin::OmLabel *m_name = nullptr;
    ombrin::OmLabel *m_remark = nullptr;
    QLabel *m_presence = nullptr;
    ombrin::OmRatingLabel *m_rating = nullptr;
};

} // namespace messenger
