// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace corvala::host::io {

enum class TextEncoding { Utf8, Utf16Little, Utf16Big, Latin1 };
enum class TextSeparator { Comma, Semicolon, Tab, Blanks, Bar, Colon, None };
enum class TextDecimal { Point, Comma };
enum class TextQuote { None, Double, Single };
enum class TextComment { None, Hash, Percent, Slashes, Exclamation, Semicolon };
/// What comes first in a date such as 02/03/04; one that begins with a long year is clear.
enum class TextDates { Day, Month, Year };
enum class TextUnits { No, Yes };
/// What begins another zone, besides a repeated header.
enum class TextZones { One, BlankLines, Words };
enum class TextBadRows { Refuse, Skip };
/// What a column holds. An instant is a date, with or without a time of day.
enum class TextColumnKind { Numbers, Instants, TimesOfDay, Words, Skipped };

/// How a table of text is written; the reader detects what is left empty.
struct TextDialect
{
    std::optional<TextEncoding> encoding;
    std::optional<TextSeparator> separator; ///< Blanks: any number of blanks and tabs
    std::optional<TextDecimal> decimal;
    std::optional<TextQuote> quote;
    std::optional<TextComment> comment;
    std::optional<int> dataLine; ///< line of the file, from 1, where the data begin
    std::optional<int> headerRows; ///< lines above the data that name the columns, with the units
    std::optional<TextUnits> units; ///< the last of the header rows has units
    std::optional<TextDates> dates;
    std::optional<std::string> missing; ///< words for missing values besides the usual ones
    std::optional<TextZones> zones;
    std::optional<TextBadRows> badRows;
    std::map<int, TextColumnKind> columns; ///< by their numbers in the file, from 1
};

/// One property of a dialect. Its key and words stand on the command line and in files.
struct TextProperty
{
    struct Choice
    {
        const char* word;
        const char* label; ///< untranslated, context "TextDialect"
    };

    enum class Form {
        Choice,
        Number,
        Text,
        Columns ///< a choice for each of some columns, such as "2:words 5-9:skip"
    };

    const char* key;
    const char* label; ///< untranslated, context "TextDialect"
    Form form;
    std::vector<Choice> choices; ///< empty for a number or a text
    /// The value as a word; empty where it is left to the reader.
    std::string (*word)(const TextProperty& property, const TextDialect& dialect);
    /// False for a word that is no value; an empty one leaves the value to the reader.
    bool (*set)(const TextProperty& property, const std::string& word, TextDialect& dialect);
};

const std::vector<TextProperty>& textProperties();

/// What a column holds, for the user.
QString labelOf(TextColumnKind kind);

/// Sets what a text such as "separator=tab,decimal=comma" says; a value of "auto" leaves it to the
/// reader. Empty on success, else what is wrong; the dialect is then unchanged.
QString parseTextDialect(const QString& text, TextDialect& dialect);

/// The dialect as parseTextDialect takes it, without what is left to the reader.
QString toText(const TextDialect& dialect);

/// One line for the user, such as "separated by commas, decimal point, 1 header row".
QString describe(const TextDialect& dialect);

/// `wanted` where it says something, else `detected`.
TextDialect completed(const TextDialect& wanted, const TextDialect& detected);

} // namespace corvala::host::io
