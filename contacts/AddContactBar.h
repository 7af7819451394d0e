#pragma once

#include <QtWidgets/QWidget>

class QToolButton;

namespace ombrin {

/// The row with the button that adds contacts, below the cards of a list.
class AddContactBar : public QWidget
{
    Q_OBJECT

public:
    explicit AddContactBar(QWidget *parent);

Q_SIGNALS:
    void clicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void setTexts();

    QToolButton *m_button;
};

} // namespace ombrin
