// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/cell_value.h"

#include <QDate>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <limits>

namespace corvala::host::io::reader {

static constexpr std::size_t kLongestNumber = 64;
static constexpr qint64 kJulianDayOf1970 = 2'440'588;
static constexpr double kSecondsOfDay = 86'400;

static bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

static char lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

static bool isSame(std::string_view one, std::string_view other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

static bool convert(const char* begin, const char* end, double& value)
{
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (stop != end || begin == end)
        return false;
    if (error == std::errc::result_out_of_range) { // which may mean zero, or infinity
        value = std::strtod(std::string(begin, end).c_str(), nullptr);
        return true;
    }
    return error == std::errc();
}

/// Whether the sign stands before every third digit from the right, as in 1,234,567.
static bool isGrouping(std::string_view whole, char sign)
{
    if (!whole.empty() && (whole.front() == '-' || whole.front() == '+'))
        whole.remove_prefix(1);
    std::size_t digits = 0;
    bool isFirst = true;
    for (const char character : whole) {
        if (character == sign && (isFirst ? digits < 1 || digits > 3 : digits != 3))
            return false;
        if (character != sign && !isDigit(character))
            return false;
        isFirst = isFirst && character != sign;
        digits = character == sign ? 0 : digits + 1;
    }
    return digits == 3;
}

/// Other ways of writing a number: a decimal comma, groups of digits, exponents after D.
static bool convertUnusual(std::string_view text, TextDecimal decimal, double& value)
{
    const char point = decimal == TextDecimal::Comma ? ',' : '.';
    const char group = decimal == TextDecimal::Comma ? '.' : ',';
    if (text.empty() || text.size() > kLongestNumber || text.front() == ',' || text.back() == ',')
        return false;
    const bool hasGroups = text.find(group) != std::string_view::npos;
    if (hasGroups && !isGrouping(text.substr(0, text.find(point)), group))
        return false;
    std::string plain;
    for (const char character : text) {
        const bool isExponent = character == 'd' || character == 'D';
        if (character != group)
            plain += isExponent ? 'e' : character == point ? '.' : character;
    }
    return convert(plain.data(), plain.data() + plain.size(), value);
}

bool toNumber(std::string_view text, TextDecimal decimal, double& value)
{
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    const bool isPlain =
        decimal == TextDecimal::Point && convert(text.data(), text.data() + text.size(), value);
    return isPlain || convertUnusual(text, decimal, value);
}

namespace {

/// Takes a text apart from its beginning.
class Scanner
{
public:
    explicit Scanner(std::string_view text)
        : m_text(text)
    {
    }

    bool isAtEnd() const { return m_text.empty(); }
    char next() const { return m_text.empty() ? '\0' : m_text.front(); }
    std::string_view rest() const { return m_text; }

    bool take(char character)
    {
        const bool isThere = next() == character && !isAtEnd();
        if (isThere)
            m_text.remove_prefix(1);
        return isThere;
    }

    /// The number of digits taken.
    int takeNumber(int mostDigits, int& value)
    {
        int count = 0;
        value = 0;
        for (; count < mostDigits && !isAtEnd() && isDigit(next()); ++count) {
            value = 10 * value + (next() - '0');
            m_text.remove_prefix(1);
        }
        return count;
    }

    std::string_view takeLetters()
    {
        std::size_t count = 0;
        while (count < m_text.size() && lower(m_text[count]) >= 'a' && lower(m_text[count]) <= 'z')
            ++count;
        const std::string_view letters = m_text.substr(0, count);
        m_text.remove_prefix(count);
        return letters;
    }

    double takeFraction()
    {
        double value = 0.0;
        for (double unit = 0.1; !isAtEnd() && isDigit(next()); unit /= 10) {
            value += unit * (next() - '0');
            m_text.remove_prefix(1);
        }
        return value;
    }

private:
    std::string_view m_text;
};

/// One of the three parts of a date.
struct DatePart
{
    int value = 0;
    int digits = 0; ///< 0 for the name of a month
};

int monthOf(std::string_view name)
{
    static constexpr std::string_view kMonths[] = {"january",   "february", "march",    "april",
                                                   "may",       "june",     "july",     "august",
                                                   "september", "october",  "november", "december"};
    for (int month = 0; month < 12 && name.size() >= 3; ++month)
        if (isSame(name, kMonths[month].substr(0, name.size())))
            return month + 1;
    return 0;
}

bool takePart(Scanner& text, DatePart& part)
{
    part.digits = text.takeNumber(4, part.value);
    if (part.digits == 0)
        part.value = monthOf(text.takeLetters());
    return part.digits > 0 || part.value > 0;
}

/// Which of three parts are year, month and day.
std::array<int, 3> placesOf(const std::array<DatePart, 3>& parts, TextDates order)
{
    if (parts[0].digits > 2)
        return {0, 1, 2};
    if (parts[0].digits == 0)
        return {2, 0, 1};
    if (parts[1].digits == 0)
        return {2, 1, 0};
    if (order == TextDates::Year)
        return {0, 1, 2};
    return order == TextDates::Month ? std::array<int, 3> {2, 0, 1} : std::array<int, 3> {2, 1, 0};
}

bool takeDate(Scanner& text, TextDates order, double& seconds)
{
    std::array<DatePart, 3> parts;
    char sign = '\0';
    for (std::size_t i = 0; i < 3; ++i) {
        if (i == 1)
            sign = text.next();
        const bool isSign = sign == '-' || sign == '/' || sign == '.' || sign == ' ';
        if (i > 0 && !(isSign && text.take(sign)))
            return false;
        if (!takePart(text, parts[i]))
            return false;
    }
    const std::array<int, 3> places = placesOf(parts, order);
    const DatePart& yearPart = parts[static_cast<std::size_t>(places[0])];
    const int year = yearPart.digits > 2 ? yearPart.value
        : yearPart.value < 70            ? 2000 + yearPart.value
                                         : 1900 + yearPart.value;
    const QDate date(year, parts[static_cast<std::size_t>(places[1])].value,
                     parts[static_cast<std::size_t>(places[2])].value);
    const bool hasTwoYears = places[0] == 0 && parts[2].digits > 2;
    if (!date.isValid() || yearPart.digits == 0 || hasTwoYears)
        return false;
    seconds = kSecondsOfDay * static_cast<double>(date.toJulianDay() - kJulianDayOf1970);
    return true;
}

/// Hours, minutes and, where they are given, seconds.
bool takeTime(Scanner& text, TextDecimal decimal, double& seconds)
{
    int hours = 0;
    int minutes = 0;
    int whole = 0;
    if (text.takeNumber(4, hours) == 0 || !text.take(':') || text.takeNumber(2, minutes) != 2)
        return false;
    double fraction = 0.0;
    if (text.take(':')) {
        if (text.takeNumber(2, whole) == 0)
            return false;
        if (text.take(decimal == TextDecimal::Comma ? ',' : '.'))
            fraction = text.takeFraction();
    }
    text.take(' ');
    if (const char half = lower(text.next()); half == 'a' || half == 'p') {
        if (!isSame(text.takeLetters(), half == 'a' ? "am" : "pm") || hours < 1 || hours > 12)
            return false;
        hours = hours % 12 + (half == 'p' ? 12 : 0);
    }
    seconds = 3600.0 * hours + 60.0 * minutes + whole + fraction;
    return minutes < 60 && whole <= 60;
}

/// Z, +01, +0130 or +01:30.
bool takeOffset(Scanner& text, double& seconds)
{
    if (text.isAtEnd() || text.take('Z') || text.take('z'))
        return true;
    const char sign = text.next();
    int hours = 0;
    int minutes = 0;
    if (!(text.take('+') || text.take('-')) || text.takeNumber(2, hours) != 2)
        return false;
    text.take(':');
    if (!text.isAtEnd() && text.takeNumber(2, minutes) != 2)
        return false;
    seconds += (sign == '+' ? -1 : 1) * (3600.0 * hours + 60.0 * minutes);
    return true;
}

} // namespace

/// A date without signs, such as 20120304, with them.
static std::string spacedOut(std::string_view text)
{
    constexpr std::size_t kDigits = 8;
    const auto digits = std::find_if_not(text.begin(), text.end(), isDigit) - text.begin();
    std::string date(text);
    if (digits == kDigits)
        date.insert(4, "-").insert(7, "-");
    return date;
}

CellValue toInstant(std::string_view field, TextDates order, TextDecimal decimal)
{
    const std::string text = spacedOut(field);
    double time = 0.0;
    Scanner asTime(text);
    if (takeTime(asTime, decimal, time) && asTime.isAtEnd())
        return {CellKind::TimeOfDay, time};
    double date = 0.0;
    Scanner scanner(text);
    if (!takeDate(scanner, order, date))
        return {};
    if (scanner.isAtEnd())
        return {CellKind::Instant, date};
    const bool hasTime = scanner.take('T') || scanner.take('t') || scanner.take(' ')
        || scanner.take('_') || scanner.take(',');
    scanner.take(' ');
    if (!hasTime || !takeTime(scanner, decimal, time) || time > kSecondsOfDay
        || !takeOffset(scanner, time) || !scanner.isAtEnd())
        return {};
    return {CellKind::Instant, date + time};
}

static constexpr std::string_view kMissing[] = {
    "na",      "n/a",   "#n/a",  "nan",     "-nan",    "null",    "none",    "nil",     "-",
    "--",      "---",   "?",     ".",       "missing", "no data", "nodata",  "undef",   "undefined",
    "#value!", "#num!", "#ref!", "#div/0!", "1.#qnan", "1.#ind",  "-1.#ind", "1.#snan", "invalid"};

CellReader::CellReader(const TextDialect& dialect)
    : m_decimal(dialect.decimal.value_or(TextDecimal::Point))
    , m_dates(dialect.dates)
{
    const QString words = QString::fromStdString(dialect.missing.value_or(std::string()));
    for (const QString& word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        m_missing.push_back(word.toStdString());
    for (const std::string& word : m_missing)
        if (double value = 0.0; toNumber(word, m_decimal, value))
            m_missingNumbers.push_back(value);
}

bool CellReader::isMissing(std::string_view field) const
{
    const auto isField = [field](std::string_view word) { return isSame(field, word); };
    return field.empty() || std::any_of(m_missing.begin(), m_missing.end(), isField)
        || std::any_of(std::begin(kMissing), std::end(kMissing), isField)
        || field.find_first_not_of('*') == std::string_view::npos;
}

bool CellReader::isMissing(double value) const
{
    return std::find(m_missingNumbers.begin(), m_missingNumbers.end(), value)
        != m_missingNumbers.end();
}

CellValue CellReader::instantIn(std::string_view field) const
{
    CellValue cell;
    for (const TextDates order : {TextDates::Year, TextDates::Day, TextDates::Month})
        if (cell.kind == CellKind::Words && m_dates.value_or(order) == order)
            cell = toInstant(field, order, m_decimal);
    return cell;
}

CellValue CellReader::read(std::string_view field) const
{
    if (isMissing(field))
        return {CellKind::Missing, 0.0};
    double value = 0.0;
    if (toNumber(field, m_decimal, value))
        return {isMissing(value) ? CellKind::Missing : CellKind::Number, value};
    return instantIn(field);
}

bool CellReader::read(std::string_view field, CellKind kind, double& value) const
{
    // Most fields are numbers, so that is tried at first.
    const bool isNumber = kind == CellKind::Number && toNumber(field, m_decimal, value);
    if (isNumber ? isMissing(value) : isMissing(field)) {
        value = std::numeric_limits<double>::quiet_NaN();
        return true;
    }
    if (kind == CellKind::Number)
        return isNumber;
    const CellValue cell = instantIn(field);
    value = cell.value;
    return cell.kind == kind;
}

} // namespace corvala::host::io::reader
