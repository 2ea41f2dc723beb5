// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/text_dialect.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvala::host::io::reader {

/// What the fields of a column say. An instant is a date, with or without a time of day.
/// Skipped ones are not looked at.
enum class CellKind { Missing, Number, Instant, TimeOfDay, Words, Skipped };

/// A field and its value: a number; seconds since 1970-01-01 00:00 UTC; seconds since midnight;
/// none.
struct CellValue
{
    CellKind kind = CellKind::Words;
    double value = 0.0;
};

/// A number of C or Fortran, also one that is infinite. False for anything else.
bool toNumber(std::string_view text, TextDecimal decimal, double& value);

/// A date such as 2012-03-04, 04.03.2012, 3/4/12, 4-Mar-2012 or 20120304, a time of day such as
/// 12:30 or 12:30:05.25, or both, with an offset from UTC or without. Kind Words for anything else.
CellValue toInstant(std::string_view field, TextDates order, TextDecimal decimal);

/// Tells what fields are, by the dialect of their table.
class CellReader
{
public:
    explicit CellReader(const TextDialect& dialect);

    CellValue read(std::string_view field) const;
    /// False where the field is neither of the kind nor missing. NaN for a missing one.
    bool read(std::string_view field, CellKind kind, double& value) const;
    bool isMissing(std::string_view field) const;

private:
    bool isMissing(double value) const;
    CellValue instantIn(std::string_view field) const;

    TextDecimal m_decimal;
    std::optional<TextDates> m_dates; ///< none: any order
    std::vector<std::string> m_missing;
    std::vector<double> m_missingNumbers;
};

} // namespace corvala::host::io::reader
