#pragma once

#include "model/Preferences.h"

#include <ombrin/OmDialog2.h>

class QCheckBox;
class QComboBox;

namespace messenger {

/// Lets the user choose preferences.
class PreferencesDialog : public ombrin::OmDialog2
{
    Q_OBJECT

public:
    explicit PreferencesDialog(const Preferences &preferences, QWidget *parent = nullptr);
    ~PreferencesDialog() override;

    /// What is chosen now.
    Preferences preferences() const;

private:
    QWidget *createChatPage();
    QWidget *createMessagesPage();
    void fillDictionaries(const QString &chosen);

    QCheckBox *m_checksSpelling;
    QComboBox *m_dictionaries;
    QCheckBox *m_sendsTyping;
    QCheckBox *m_showsBalloons;
    QCheckBox *m_shakes;
};

} // namespace messenger
