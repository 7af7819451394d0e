#pragma once

#include <QtWidgets/QWidget>

#include <functional>

namespace ombrin {

class ColumnLayout;

/// The widget in which the cards of a contact card list stand, in a ColumnLayout.
class ContactColumn : public QWidget
{
    Q_OBJECT

public:
    using ForgetChild = std::function<void(const QObject *child)>;

    /// \a forget is called with each child that goes, by then maybe no more than a QObject. It is
    /// not called for those that go with the column.
    explicit ContactColumn(ForgetChild forget);

protected:
    bool event(QEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    ForgetChild m_forget;
    ColumnLayout *m_layout;
};

} // namespace ombrin
