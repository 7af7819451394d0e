#pragma once

#include "model/Contact.h"
#include "model/Message.h"

#include <ombrin/OmTextBrowser.h>

#include <QtCore/QVector>

namespace messenger {

class Session;

/// The conversation with one contact as people read it: faces, names, times, and days between them.
class ChatHistory : public ombrin::OmTextBrowser
{
    Q_OBJECT

public:
    /// \a session must outlive the history.
    ChatHistory(Session *session, const QString &contactId, QWidget *parent = nullptr);
    ~ChatHistory() override;

    void add(const Message &message);
    /// Takes the pictures of user and contact anew.
    void refreshFaces();

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void addDay(const QDate &day);
    void addLine(const QString &text);
    void addRow(const Message &message, bool isContinued);
    QString bodyOf(const Message &message) const;
    QString pictureOf(const QString &name) const;
    QString remarkOf(const Message &message) const;
    void addFace(const QString &name, const QPixmap &picture);

    Session *m_session;
    QString m_contactId;
    Message m_last;
};

} // namespace messenger
