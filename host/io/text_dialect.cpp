// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/text_dialect.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <charconv>

namespace corvala::host::io {

struct TextDialectTexts
{
    static QString tr(const char* text) { return QCoreApplication::translate("TextDialect", text); }
};

template<auto member>
static std::string choiceWord(const TextProperty& property, const TextDialect& dialect)
{
    const auto& value = dialect.*member;
    return value ? property.choices.at(static_cast<std::size_t>(*value)).word : std::string();
}

template<auto member>
static bool setChoice(const TextProperty& property, const std::string& word, TextDialect& dialect)
{
    using Value = typename std::decay_t<decltype(dialect.*member)>::value_type;
    (dialect.*member).reset();
    for (std::size_t i = 0; i < property.choices.size(); ++i)
        if (word == property.choices[i].word)
            dialect.*member = static_cast<Value>(i);
    return word.empty() || (dialect.*member).has_value();
}

template<auto member>
static std::string numberWord(const TextProperty&, const TextDialect& dialect)
{
    const std::optional<int>& value = dialect.*member;
    return value ? std::to_string(*value) : std::string();
}

template<auto member>
static bool setNumber(const TextProperty&, const std::string& word, TextDialect& dialect)
{
    int value = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    const bool isNumber = error == std::errc() && stop == end && value >= 0;
    dialect.*member = isNumber ? std::optional<int>(value) : std::nullopt;
    return isNumber || word.empty();
}

static std::string missingWords(const TextProperty&, const TextDialect& dialect)
{
    return dialect.missing.value_or(std::string());
}

static bool setMissing(const TextProperty&, const std::string& word, TextDialect& dialect)
{
    dialect.missing = word.empty() ? std::nullopt : std::optional<std::string>(word);
    return true;
}

static constexpr int kMostColumns = 100'000;

/// Such as "3:words" or "4-9:skip".
static bool setColumnRange(const TextProperty& property, const QString& text,
                           std::map<int, TextColumnKind>& columns)
{
    const QString range = text.section(QLatin1Char(':'), 0, 0);
    const std::string word = text.section(QLatin1Char(':'), 1).toStdString();
    const int first = range.section(QLatin1Char('-'), 0, 0).toInt();
    const int last = range.section(QLatin1Char('-'), -1).toInt();
    if (first < 1 || last < first || last > kMostColumns || range.count(QLatin1Char('-')) > 1)
        return false;
    const auto& kinds = property.choices;
    const auto kind = std::find_if(kinds.begin(), kinds.end(),
                                   [&](const auto& choice) { return word == choice.word; });
    if (kind == kinds.end())
        return false;
    for (int column = first; column <= last; ++column)
        columns[column] = static_cast<TextColumnKind>(kind - kinds.begin());
    return true;
}

static bool setColumns(const TextProperty& property, const std::string& words, TextDialect& dialect)
{
    dialect.columns.clear();
    const QStringList parts =
        QString::fromStdString(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(parts.begin(), parts.end(), [&](const QString& part) {
        return setColumnRange(property, part, dialect.columns);
    });
}

static std::string columnWords(const TextProperty& property, const TextDialect& dialect)
{
    std::string words;
    const auto& columns = dialect.columns;
    for (auto first = columns.begin(); first != columns.end();) {
        auto end = first;
        int last = first->first - 1;
        while (end != columns.end() && end->first == last + 1 && end->second == first->second)
            last = (end++)->first;
        words += (words.empty() ? "" : " ") + std::to_string(first->first)
            + (last > first->first ? '-' + std::to_string(last) : std::string()) + ':'
            + property.choices.at(static_cast<std::size_t>(first->second)).word;
        first = end;
    }
    return words;
}

template<auto member>
static TextProperty choice(const char* key, const char* label,
                           std::vector<TextProperty::Choice> choices)
{
    return {key,
            label,
            TextProperty::Form::Choice,
            std::move(choices),
            choiceWord<member>,
            setChoice<member>};
}

template<auto member>
static TextProperty number(const char* key, const char* label)
{
    return {key, label, TextProperty::Form::Number, {}, numberWord<member>, setNumber<member>};
}

#define TEXT(text) QT_TRANSLATE_NOOP("TextDialect", text)

const std::vector<TextProperty>& textProperties()
{
    using Dialect = TextDialect;
    static const std::vector<TextProperty> properties {
        choice<&Dialect::separator>("separator", TEXT("Separator"),
                                    {{"comma", TEXT("comma")},
                                     {"semicolon", TEXT("semicolon")},
                                     {"tab", TEXT("tab")},
                                     {"blanks", TEXT("blanks")},
                                     {"bar", TEXT("vertical bar")},
                                     {"colon", TEXT("colon")},
                                     {"none", TEXT("none")}}),
        choice<&Dialect::decimal>(
            "decimal", TEXT("Decimal sign"),
            {{"point", TEXT("decimal point")}, {"comma", TEXT("decimal comma")}}),
        choice<&Dialect::quote>("quote", TEXT("Quotes"),
                                {{"none", TEXT("no quotes")},
                                 {"double", TEXT("double quotes")},
                                 {"single", TEXT("single quotes")}}),
        choice<&Dialect::comment>("comment", TEXT("Comment lines"),
                                  {{"none", TEXT("no comments")},
                                   {"hash", TEXT("comments after #")},
                                   {"percent", TEXT("comments after %")},
                                   {"slashes", TEXT("comments after //")},
                                   {"exclamation", TEXT("comments after !")},
                                   {"semicolon", TEXT("comments after ;")}}),
        number<&Dialect::dataLine>("data", TEXT("Data from line")),
        number<&Dialect::headerRows>("header", TEXT("Header rows")),
        choice<&Dialect::units>(
            "units", TEXT("Units"),
            {{"no", TEXT("no row of units")}, {"yes", TEXT("units in the last header row")}}),
        choice<&Dialect::dates>("dates", TEXT("Dates"),
                                {{"day", TEXT("day first")},
                                 {"month", TEXT("month first")},
                                 {"year", TEXT("year first")}}),
        {"missing", TEXT("Also missing"), TextProperty::Form::Text, {}, missingWords, setMissing},
        choice<&Dialect::zones>("zones", TEXT("Zones"),
                                {{"one", TEXT("one zone")},
                                 {"blank", TEXT("zones by blank lines")},
                                 {"words", TEXT("zones by a column of words")}}),
        choice<&Dialect::badRows>(
            "bad", TEXT("Bad rows"),
            {{"refuse", TEXT("refuse bad rows")}, {"skip", TEXT("skip bad rows")}}),
        choice<&Dialect::encoding>("encoding", TEXT("Encoding"),
                                   {{"utf-8", TEXT("UTF-8")},
                                    {"utf-16le", TEXT("UTF-16, little-endian")},
                                    {"utf-16be", TEXT("UTF-16, big-endian")},
                                    {"latin-1", TEXT("Latin-1")}}),
        {"columns",
         TEXT("Columns"),
         TextProperty::Form::Columns,
         {{"numbers", TEXT("numbers")},
          {"dates", TEXT("dates")},
          {"times", TEXT("times")},
          {"words", TEXT("words")},
          {"skip", TEXT("left out")}},
         columnWords,
         setColumns},
    };
    return properties;
}

#undef TEXT

static const TextProperty* propertyOf(const QString& key)
{
    for (const TextProperty& property : textProperties())
        if (key == QLatin1String(property.key))
            return &property;
    return nullptr;
}

static QString knownKeys()
{
    QStringList keys;
    for (const TextProperty& property : textProperties())
        keys << QLatin1String(property.key);
    return keys.join(QStringLiteral(", "));
}

static QString knownWords(const TextProperty& property)
{
    QStringList words;
    for (const TextProperty::Choice& choice : property.choices)
        words << QLatin1String(choice.word);
    if (words.isEmpty())
        words << TextDialectTexts::tr("a number from 0");
    const QString known = words.join(QStringLiteral(", "));
    return property.form != TextProperty::Form::Columns
        ? known
        : TextDialectTexts::tr("%1 for columns from 1 to %2, as in 2:words 4-9:skip")
              .arg(known)
              .arg(kMostColumns);
}

QString parseTextDialect(const QString& text, TextDialect& dialect)
{
    TextDialect parsed = dialect;
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString key = part.section(QLatin1Char('='), 0, 0).trimmed();
        const QString value = part.section(QLatin1Char('='), 1).trimmed();
        const TextProperty* property = propertyOf(key);
        if (!property)
            return TextDialectTexts::tr("\"%1\" is no property of a table; there are %2")
                .arg(key, knownKeys());
        const bool isAuto = value == QLatin1String("auto");
        if ((value.isEmpty() && !isAuto)
            || !property->set(*property, isAuto ? std::string() : value.toStdString(), parsed))
            return TextDialectTexts::tr("\"%1\" of a table is one of %2, or auto, not \"%3\"")
                .arg(key, knownWords(*property), value);
    }
    dialect = parsed;
    return {};
}

QString labelOf(TextColumnKind kind)
{
    const TextProperty& property = *propertyOf(QStringLiteral("columns"));
    return TextDialectTexts::tr(property.choices.at(static_cast<std::size_t>(kind)).label);
}

QString toText(const TextDialect& dialect)
{
    QStringList parts;
    for (const TextProperty& property : textProperties()) {
        const std::string word = property.word(property, dialect);
        if (!word.empty())
            parts << QLatin1String(property.key) + QLatin1Char('=') + QString::fromStdString(word);
    }
    return parts.join(QLatin1Char(','));
}

QString describe(const TextDialect& dialect)
{
    const auto label = [&](const char* key) {
        const TextProperty& property = *propertyOf(QLatin1String(key));
        const std::string word = property.word(property, dialect);
        for (const TextProperty::Choice& choice : property.choices)
            if (word == choice.word)
                return TextDialectTexts::tr(choice.label);
        return QString();
    };
    QStringList parts {TextDialectTexts::tr("separator %1").arg(label("separator"))};
    if (dialect.decimal == TextDecimal::Comma)
        parts << label("decimal");
    parts << TextDialectTexts::tr("header rows: %1").arg(dialect.headerRows.value_or(0));
    if (dialect.units == TextUnits::Yes)
        parts << label("units");
    if (dialect.dates)
        parts << TextDialectTexts::tr("dates with %1").arg(label("dates"));
    if (dialect.encoding != TextEncoding::Utf8)
        parts << label("encoding");
    return parts.join(QStringLiteral(", "));
}

TextDialect completed(const TextDialect& wanted, const TextDialect& detected)
{
    TextDialect result = detected;
    for (const TextProperty& property : textProperties()) {
        const std::string word = property.word(property, wanted);
        if (!word.empty())
            property.set(property, word, result);
    }
    return result;
}

} // namespace corvala::host::io
