// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/name_pattern.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

static bool isPair(const QString& text, int position)
{
    return text.at(position).isHighSurrogate() && position + 1 < text.size()
        && text.at(position + 1).isLowSurrogate();
}

/// Number of UTF-16 units that the character at the position takes.
static int widthAt(const QString& text, int position)
{
    return isPair(text, position) ? 2 : 1;
}

NamePattern::NamePattern(const QString& pattern, Qt::CaseSensitivity caseSensitivity)
    : m_caseSensitivity(caseSensitivity)
{
    for (int at = 0; at < pattern.size(); at += widthAt(pattern, at)) {
        if (pattern.at(at) == QLatin1Char('*')) {
            if (m_parts.empty() || m_parts.back() != kAnyRun)
                m_parts.push_back(kAnyRun);
        } else {
            m_parts.push_back(pattern.at(at) == QLatin1Char('?') ? kAnyOne
                                                                 : characterAt(pattern, at));
        }
    }
}

char32_t NamePattern::characterAt(const QString& text, int position) const
{
    const uint character = isPair(text, position)
        ? QChar::surrogateToUcs4(text.at(position), text.at(position + 1))
        : text.at(position).unicode();
    return m_caseSensitivity == Qt::CaseSensitive ? character : QChar::toCaseFolded(character);
}

bool NamePattern::covers(std::size_t part, char32_t character) const
{
    return part < m_parts.size() && (m_parts[part] == kAnyOne || m_parts[part] == character);
}

bool NamePattern::matches(const QString& name) const
{
    std::size_t part = 0;
    int at = 0;
    std::size_t partAfterRun = 0; // of the last run met, which takes one more character each retry
    int endOfRun = -1;
    while (at < name.size()) {
        if (part < m_parts.size() && m_parts[part] == kAnyRun) {
            partAfterRun = ++part;
            endOfRun = at;
        } else if (covers(part, characterAt(name, at))) {
            at += widthAt(name, at);
            ++part;
        } else if (endOfRun >= 0) {
            endOfRun += widthAt(name, endOfRun);
            at = endOfRun;
            part = partAfterRun;
        } else {
            return false;
        }
    }
    while (part < m_parts.size() && m_parts[part] == kAnyRun)
        ++part;
    return part == m_parts.size();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
