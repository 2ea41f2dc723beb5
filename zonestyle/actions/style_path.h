// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <array>
#include <cstddef>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// The names that lead to one style value, such as "FieldMap", "Mesh", "Color". At most five;
/// names beyond the last are null. The texts are not copied and must be literals.
class StylePath
{
public:
    static constexpr std::size_t kMaximumSize = 5;

    constexpr StylePath() = default;
    constexpr StylePath(const char* n1, const char* n2 = nullptr, const char* n3 = nullptr,
                        const char* n4 = nullptr, const char* n5 = nullptr)
        : m_names {{n1, n2, n3, n4, n5}}
    {
    }

    constexpr std::size_t size() const
    {
        std::size_t count = 0;
        while (count < kMaximumSize && m_names[count])
            ++count;
        return count;
    }
    constexpr bool isEmpty() const { return !m_names[0]; }
    /// A name, from 0 to kMaximumSize - 1; null beyond the last.
    constexpr const char* operator[](std::size_t position) const { return m_names[position]; }

    /// The path with one more name; there must be room for it.
    constexpr StylePath operator/(const char* name) const
    {
        StylePath longer = *this;
        longer.m_names[size()] = name;
        return longer;
    }

    /// The path without its last name, which must exist.
    constexpr StylePath parent() const
    {
        StylePath shorter = *this;
        shorter.m_names[size() - 1] = nullptr;
        return shorter;
    }

private:
    std::array<const char*, kMaximumSize> m_names {};
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
