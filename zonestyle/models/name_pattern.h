// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <vector>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// A pattern that covers a whole name: a star stands for any run of characters, slashes and line
/// breaks included, a question mark for exactly one; everything else stands for itself. A text is
/// tried in at most its length times the pattern's.
class NamePattern
{
public:
    NamePattern(const QString& pattern, Qt::CaseSensitivity caseSensitivity);

    bool matches(const QString& name) const;

private:
    static constexpr char32_t kAnyRun = 0xFFFFFFFF; ///< beyond every character
    static constexpr char32_t kAnyOne = 0xFFFFFFFE;

    char32_t characterAt(const QString& text, int position) const;
    bool covers(std::size_t part, char32_t character) const;

    Qt::CaseSensitivity m_caseSensitivity;
    std::vector<char32_t> m_parts;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
