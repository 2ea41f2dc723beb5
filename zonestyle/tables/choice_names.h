// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringList>

#include <cstddef>
#include <optional>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

/// One value of an enumeration and its display name, in English and for the translation context
/// "Choice".
struct Choice
{
    int value;
    const char* name;

    QString text() const; ///< the translated name
};

/// The values of one enumeration that a user can choose from, in the order in which lists and menus
/// offer them. A view of a static array; names are translated when asked for.
class ChoiceNames
{
public:
    constexpr ChoiceNames() = default;
    template<std::size_t N>
    constexpr ChoiceNames(const Choice (&choices)[N]) // implicit: a table is its array
        : m_begin(choices)
        , m_end(choices + N)
    {
    }

    constexpr const Choice* begin() const { return m_begin; }
    constexpr const Choice* end() const { return m_end; }
    constexpr bool isEmpty() const { return m_begin == m_end; }

    /// The first `count` choices, which must exist: what is offered when later values are not.
    constexpr ChoiceNames first(std::size_t count) const { return {m_begin, m_begin + count}; }

    QString name(int value) const; ///< empty for a value that is not in the table
    QStringList names() const; ///< in table order

    /// The value of a name as shown, exactly or else without regard to case.
    std::optional<int> valueOf(const QString& name) const;

private:
    constexpr ChoiceNames(const Choice* begin, const Choice* end)
        : m_begin(begin)
        , m_end(end)
    {
    }

    const Choice* m_begin = nullptr;
    const Choice* m_end = nullptr;
};

/// Position of an entry in a list, exactly or else without regard to case; -1 when it has none.
int positionOf(const QString& entry, const QStringList& entries);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
