#pragma once

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

class QComboBox;

namespace ombrin {
class OmContactCard;
class OmLineEdit;
} // namespace ombrin

namespace messenger {

class Session;

/// The user's own card with presence and remark.
class OwnPanel : public QWidget
{
    Q_OBJECT

public:
    /// \a session must outlive the panel.
    explicit OwnPanel(Session *session, QWidget *parent = nullptr);
    ~OwnPanel() override;

    /// Lets the user choose a file for a picture.
    void choosePicture();

private:
    void createPresence();
    void createRemark();
    void refresh();
    void takePicture(const QString &fileName);
    void setPresence();
    void setRemark();

    Session *m_session;
    ombrin::OmContactCard *m_card;
    QComboBox *m_presence;
    ombrin::OmLineEdit *m_remark;
};

} // namespace messenger
