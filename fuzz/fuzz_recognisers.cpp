// What is a phone number, an address, a card number? And how old is somebody?

#include "FuzzTarget.h"

#include <ombrin/vhutilities.h>

#include <limits>

namespace {

namespace recognise = ombrin::vhutilities;

void checkText(const QString &text)
{
    const QString copy = text;
    const bool isPhone = recognise::IsPossiblePhoneNumber(text);
    const bool isStrict = recognise::IsPossibleEMailAddress(text, true);
    const bool isLoose = recognise::IsPossibleEMailAddress(text, false);
    const bool isCard = recognise::IsPossibleCreditCardNumber(text);
    FUZZ_CHECK(isLoose || !isStrict);
    FUZZ_CHECK(!text.isEmpty() || (!isPhone && !isStrict && !isLoose && !isCard));
    FUZZ_CHECK(text == copy && isPhone == recognise::IsPossiblePhoneNumber(text));
}

void checkAge(ombrin::fuzz::Input *input)
{
    const QDate birthday = QDate(2000, 2, 29).addDays(qint64(input->number()) * input->byte());
    const QDate day = birthday.addDays(qint64(input->number()) * input->byte());
    const int age = recognise::AgeInYears(birthday, day);
    FUZZ_CHECK(!birthday.isValid() || !day.isValid() || day < birthday || age >= 0);
}

void checkRectangle(ombrin::fuzz::Input *input)
{
    const QPoint topLeft(input->number(), input->number());
    const QPoint bottomRight(input->number(), input->number());
    recognise::ensureVisibilityOfArea(QRect(topLeft, bottomRight));
    recognise::centerRectOnPrimaryScreen(QRect(topLeft, bottomRight));
}

void run(ombrin::fuzz::Input input)
{
    switch (input.choice(3)) {
    case 0:
        return checkAge(&input);
    case 1:
        return checkRectangle(&input);
    default:
        return checkText(QString::fromUtf8(input.rest()));
    }
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
