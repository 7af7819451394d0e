#pragma once

#include <ombrin/OmDialog2.h>

#include <QtCore/QDate>

class QCalendarWidget;

namespace ombrin {

/// A skinned dialog that holds nothing but a month calendar: a click on a day chooses it.
///
/// \code
/// birthday = ombrin::OmCalendar::selectDate(birthday, window);
/// \endcode
///
/// Enter chooses the selected day as a click does; Escape and the close button choose none. Weeks
/// begin on Monday where the name of the system's locale contains "de", as "de_DE" and "de_AT" do,
/// and on Sunday everywhere else.
///
/// In slots of the dialog's signals a calendar is deleted with deleteLater() only: it is still at
/// work when it tells of a click.
///
/// \ingroup dialogs
class OMBRIN_GUI_EXPORT OmCalendar : public OmDialog2
{
    Q_OBJECT

public:
    /// A calendar in which today is selected. \a parent may be null.
    explicit OmCalendar(QWidget *parent = nullptr);
    ~OmCalendar() override;

    /// Shows a calendar modally with \a date selected and returns the day that was chosen, or
    /// \a date when none was. An invalid date selects what QCalendarWidget selects by itself.
    ///
    /// Blocks \a parent, which may be null. When the dialog is destroyed while it is open, nothing
    /// was chosen.
    static QDate selectDate(const QDate &date, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;

private:
    QCalendarWidget *m_calendar;
};

} // namespace ombrin
