// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vocabulary/style.h>

#include <array>
#include <cstddef>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Where an action writes to: a style value, or a path that names none.
class StyleTarget
{
public:
    using Path = std::array<const char*, style::Entry::kLongestPath>;

    constexpr StyleTarget() = default;
    constexpr StyleTarget(style::Key key) // implicit: most targets are values
        : m_key(key)
    {
    }
    /// A path that the host refuses to write, for the few columns whose cells write to one on
    /// purpose. The texts are not copied and must be literals.
    static constexpr StyleTarget noValue(const char* n1, const char* n2, const char* n3)
    {
        StyleTarget target;
        target.m_path = {{n1, n2, n3}};
        return target;
    }

    constexpr bool isEmpty() const { return !m_key.isValid() && !m_path[0]; }
    constexpr style::Key key() const { return m_key; } ///< not valid for a path without a value
    /// Its names; those beyond the last are null.
    constexpr const Path& path() const
    {
        return m_key.isValid() ? style::entryOf(m_key).path : m_path;
    }

private:
    style::Key m_key;
    Path m_path {};
};

/// A host accessor for it: StyleValue, CheckedStyleValue.
template<class Accessor>
Accessor accessor(const StyleTarget& target)
{
    const StyleTarget::Path& path = target.path();
    return target.key().isValid() ? Accessor(target.key())
                                  : Accessor(path[0], path[1], path[2], path[3], path[4]);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
