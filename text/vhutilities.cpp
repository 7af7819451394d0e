#include <ombrin/vhutilities.h>

#include "text/RecogniserPatterns.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QComboBox>

#include <QRegExp> // of QtCore in Qt 5, of Core5Compat in Qt 6

#include <algorithm>
#include <limits>
#include <vector>

namespace ombrin::vhutilities {

namespace {

constexpr int kShortestCardNumber = 8;
constexpr int kLongestCardNumber = 20;

QRegExp compiled(QString pattern)
{
    if (pattern.startsWith(QLatin1Char('^')))
        pattern.remove(0, 1);
    if (pattern.endsWith(QLatin1Char('$')))
        pattern.chop(1);
    return QRegExp(pattern, Qt::CaseSensitive, QRegExp::RegExp);
}

// QRegExp writes into itself while it matches and remembers the text. Matching with a copy, which
// shares what was compiled, keeps the original the same for all threads and forgets the text.
bool matchesWhole(QRegExp expression, const QString &text)
{
    return expression.isValid() && expression.exactMatch(text);
}

std::vector<QRegExp> compiledPhonePatterns()
{
    std::vector<QRegExp> expressions;
    for (const char *pattern : kPhonePatterns)
        expressions.push_back(compiled(QString::fromLatin1(pattern)));
    return expressions;
}

// One axis of a rectangle, wide enough for sums of any coordinates.
struct Span
{
    qint64 first;
    qint64 last;

    qint64 length() const { return last - first + 1; }
    Span movedTo(qint64 newFirst) const { return {newFirst, last + newFirst - first}; }
};

int coordinate(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

Span horizontal(const QRect &rect)
{
    return {rect.left(), rect.right()};
}

Span vertical(const QRect &rect)
{
    return {rect.top(), rect.bottom()};
}

QRect rectangle(const Span &x, const Span &y)
{
    return QRect(QPoint(coordinate(x.first), coordinate(y.first)),
                 QPoint(coordinate(x.last), coordinate(y.last)));
}

Span fitted(Span area, const Span &desktop)
{
    if (area.length() > desktop.length())
        area.last = area.first + desktop.length() - 1;
    if (area.first < desktop.first)
        area = area.movedTo(desktop.first);
    if (area.last > desktop.last)
        area = area.movedTo(area.first + desktop.last - area.last);
    return area;
}

Span centred(const Span &area, const Span &screen)
{
    return area.movedTo(screen.first + (screen.length() - area.length()) / 2);
}

} // namespace

bool IsStringMatchingWithRegularExpression(QString text, QString pattern)
{
    return matchesWhole(compiled(pattern), text);
}

bool IsPossiblePhoneNumber(QString text)
{
    static const std::vector<QRegExp> expressions = compiledPhonePatterns();
    return std::any_of(expressions.begin(), expressions.end(), [&text](const QRegExp &expression) {
        return matchesWhole(expression, text);
    });
}

bool IsPossibleEMailAddress(QString text, bool strictCheck)
{
    static const QRegExp address = compiled(QString::fromLatin1(kAddressPattern));
    static const QRegExp looseAddress = compiled(QString::fromLatin1(kLooseAddressPattern));
    return matchesWhole(address, text) || (!strictCheck && matchesWhole(looseAddress, text));
}

bool IsPossibleCreditCardNumber(QString number)
{
    number.remove(QLatin1Char(' ')).remove(QLatin1Char('-'));
    if (number.size() < kShortestCardNumber || number.size() > kLongestCardNumber)
        return false;
    int sum = 0;
    int weight = 1;
    for (auto digit = number.crbegin(); digit != number.crend(); ++digit) {
        if (*digit < QLatin1Char('0') || *digit > QLatin1Char('9'))
            return false;
        const int product = (digit->unicode() - '0') * weight;
        sum += product >= 10 ? product % 10 + 1 : product;
        weight = 3 - weight;
    }
    return sum % 10 == 0;
}

int AgeInYears(QDate birthday)
{
    return AgeInYears(birthday, QDate::currentDate());
}

int AgeInYears(QDate birthday, QDate day)
{
    if (!birthday.isValid() || !day.isValid())
        return 0;
    const bool isBeforeBirthday =
            day.month() < birthday.month()
            || (day.month() == birthday.month() && day.day() < birthday.day());
    return day.year() - birthday.year() - (isBeforeBirthday ? 1 : 0);
}

bool CreateEmptyFile(QString fileName)
{
    if (fileName.isEmpty() || fileName.contains(QChar::Null))
        return false;
    // Opening a pipe would wait for its reader.
    const QFileInfo present(fileName);
    if (present.exists() && !present.isFile())
        return false;
    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Truncate)) {
        file.putChar('\0');
        file.resize(0);
        file.close();
    }
    return file.exists() && file.size() == 0;
}

void InsertItemInComboboxLocaleAwareSorted(QComboBox &comboBox, QString text, QVariant data)
{
    int index = 0;
    while (index < comboBox.count() && text.localeAwareCompare(comboBox.itemText(index)) >= 0)
        ++index;
    comboBox.insertItem(index, QIcon(), text, data);
}

QRect ensureVisibilityOfArea(QRect area)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return area;
    const QRect desktop = screen->virtualGeometry();
    return rectangle(fitted(horizontal(area), horizontal(desktop)),
                     fitted(vertical(area), vertical(desktop)));
}

QRect centerRectOnPrimaryScreen(QRect rect)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return rect;
    const QRect geometry = screen->geometry();
    return rectangle(centred(horizontal(rect), horizontal(geometry)),
                     centred(vertical(rect), vertical(geometry)));
}

} // namespace ombrin::vhutilities
