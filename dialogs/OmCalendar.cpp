#include <ombrin/OmCalendar.h>

#include "dialogs/DialogParts.h"
#include "dialogs/ModalDialog.h"

#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCalendarWidget>

namespace ombrin {

namespace {

constexpr QSize kInitialSize(250, 200);

Qt::DayOfWeek firstDayOfWeek()
{
    const QString locale = QLocale::system().name().toLower();
    return locale.contains(QLatin1String("de")) ? Qt::Monday : Qt::Sunday;
}

} // namespace

OmCalendar::OmCalendar(QWidget *parent)
    : OmDialog2(parent)
    , m_calendar(nullptr)
{
    setWindowTitle(tr("Choose a Date"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    m_calendar = new QCalendarWidget(this);
    connect(m_calendar, &QCalendarWidget::clicked, this, &QDialog::accept);
    // From the keyboard; where a single click activates, also after clicked().
    connect(m_calendar, &QCalendarWidget::activated, this, [this] {
        if (isVisible())
            accept();
    });
    m_calendar->setFirstDayOfWeek(firstDayOfWeek());
    column->addWidget(m_calendar);
    resize(kInitialSize);
}

OmCalendar::~OmCalendar() = default;

QDate OmCalendar::selectDate(const QDate &date, QWidget *parent)
{
    ModalDialog<OmCalendar> dialog(new OmCalendar(parent));
    dialog->m_calendar->setSelectedDate(date);
    // In a large font a month needs more room, and so does its title.
    makeRoomForTitle(dialog.operator->());
    dialog->resize(dialog->size().expandedTo(dialog->minimumSizeHint()));
    return dialog.exec() == Accepted ? dialog->m_calendar->selectedDate() : date;
}

void OmCalendar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setWindowTitle(tr("Choose a Date"));
    else
        OmDialog2::changeEvent(event);
}

} // namespace ombrin
