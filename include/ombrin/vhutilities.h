#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QDate>
#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QComboBox;

namespace ombrin {

/// Free functions with which a host judges what its user typed, and some small helpers.
///
/// \code
/// using namespace ombrin;
/// callButton->setEnabled(vhutilities::IsPossiblePhoneNumber(field->text()));
/// window->setGeometry(vhutilities::ensureVisibilityOfArea(remembered));
/// \endcode
///
/// The recognisers answer whether a text could be what is asked for, not whether such a number or
/// address exists. They take any text of any length, in a time that grows no faster than the
/// text, keep nothing of it, and may be called from several threads at once.
namespace vhutilities {

/// Whether the whole of \a text matches \a pattern, an expression of QRegExp's own syntax that
/// tells upper from lower case. One "^" at its beginning and one "$" at its end are dropped, as the
/// whole text is matched anyway. A pattern that QRegExp cannot parse matches nothing; one with back
/// references can take very long. QRegExp keeps the last few patterns ready for use.
OMBRIN_GUI_EXPORT bool IsStringMatchingWithRegularExpression(QString text, QString pattern);

/// Whether \a text could be a telephone number in one of many ways of writing: "555-123-4567" and
/// "1-800-FLOWERS 1234567" could, "12-34" could not. Blanks at the ends count as part of the text.
OMBRIN_GUI_EXPORT bool IsPossiblePhoneNumber(QString text);

/// Whether \a text could be an e-mail address. With \a strictCheck its part before the "@" may hold
/// only word characters and escapes such as "%20"; since what is before the "@" may also be
/// missing, a host name alone is accepted too. Without \a strictCheck everything passes that has a
/// character before an "@" and ends in a dot and two or more of the letters a to z.
OMBRIN_GUI_EXPORT bool IsPossibleEMailAddress(QString text, bool strictCheck);

/// Whether \a number, without its blanks and hyphens, has 8 to 20 digits 0 to 9 and passes the Luhn
/// check of ISO/IEC 7812.
OMBRIN_GUI_EXPORT bool IsPossibleCreditCardNumber(QString number);

/// The completed years from \a birthday until today: negative for a date in the future, 0 for an
/// invalid one. Who was born on 29 February grows older on 1 March in other than leap years.
OMBRIN_GUI_EXPORT int AgeInYears(QDate birthday);
/// The completed years from \a birthday until \a day; 0 when one of them is invalid.
OMBRIN_GUI_EXPORT int AgeInYears(QDate birthday, QDate day);

/// Creates the file \a fileName, or empties it when it is there. Returns whether it then exists and
/// is empty; false for what is no ordinary file, such as a folder or a pipe, which is left alone.
OMBRIN_GUI_EXPORT bool CreateEmptyFile(QString fileName);

/// Inserts an item with \a text and \a data into \a comboBox, whose items are in the order of the
/// user's language, before the first that comes after \a text there; behind equal ones.
OMBRIN_GUI_EXPORT void InsertItemInComboboxLocaleAwareSorted(QComboBox &comboBox, QString text,
                                                             QVariant data);

/// \a area, in global pixels, moved into the desktop of all screens, and made as large as that
/// where it is larger. Nothing happens to it where there is no screen.
OMBRIN_GUI_EXPORT QRect ensureVisibilityOfArea(QRect area);

/// \a rect moved to the middle of the primary screen; its size stays. One that is larger than the
/// screen reaches beyond it on all sides.
OMBRIN_GUI_EXPORT QRect centerRectOnPrimaryScreen(QRect rect);

} // namespace vhutilities

} // namespace ombrin
