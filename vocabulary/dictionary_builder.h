// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/entry.h"

#include <limits>

namespace corvala::style {

constexpr double kLargest = std::numeric_limits<std::int32_t>::max();
constexpr double kUnlimited = 1e300;

/// The entries that have been made so far, in the order of their making.
class Entries
{
public:
    constexpr const Entry* begin() const { return m_places.data(); }
    constexpr const Entry* end() const { return begin() + m_count; }
    constexpr std::size_t size() const { return m_count; }
    constexpr const Entry& operator[](std::size_t place) const { return m_places[place]; }

    /// More than there are places for do not compile.
    constexpr Key add(const Entry& entry)
    {
        const Key key {static_cast<Id>(m_count)};
        m_places[m_count++] = entry;
        return key;
    }

private:
    std::array<Entry, 384> m_places {};
    std::size_t m_count = 0;
};

enum class Colors { PaletteOnly, WithGroups };

/// Makes the entries below one group of names. The functions return the key of what they made.
class Group
{
private: // first: the compiler runs them while it reads the class of the dictionary
    constexpr std::array<const char*, Entry::kLongestPath> pathTo(const char* name) const
    {
        auto path = m_path;
        std::size_t length = 0;
        while (path[length])
            ++length;
        path[length] = name;
        return path;
    }
    constexpr Entry limited(const char* name, const char* label, ValueType type, double minimum,
                            double maximum, double fallback) const
    {
        Entry entry;
        entry.path = pathTo(name);
        entry.scope = m_scope;
        entry.indexCount = m_indexCount;
        entry.type = type;
        entry.label = label;
        entry.minimum = minimum;
        entry.maximum = maximum;
        entry.defaultNumber = fallback;
        return entry;
    }
    constexpr Entry enumeration(const char* name, const char* label, Choices choices,
                                int fallback) const
    {
        Entry entry = limited(name, label, ValueType::Enumeration, 0, 0, fallback);
        entry.choices = choices;
        return entry;
    }
    constexpr Entry paint(const char* name, const char* label, Colors colors, int fallback) const
    {
        Entry entry = limited(name, label, ValueType::Color, 0, kRgbColor, fallback);
        entry.groupColors = colors == Colors::WithGroups;
        return entry;
    }
    template<class SomeKey>
    constexpr SomeKey add(const Entry& entry) const
    {
        return keyAs<SomeKey>(m_entries->add(entry));
    }

public:
    constexpr Group(Entries& entries, Scope scope)
        : m_entries(&entries)
        , m_scope(scope)
    {
    }

    /// The group of this name in this one.
    constexpr Group operator/(const char* name) const
    {
        Group group = *this;
        group.m_path = pathTo(name);
        return group;
    }
    /// The same, every value of which has indexes from 1 to `count`.
    constexpr Group indexed(int count) const
    {
        Group group = *this;
        group.m_indexCount = count;
        return group;
    }

    constexpr SwitchKey flag(const char* name, const char* label, bool isOn) const
    {
        return add<SwitchKey>(limited(name, label, ValueType::Bool, 0, 1, isOn ? 1 : 0));
    }
    template<class Enum>
    constexpr ChoiceKey<Enum> choice(const char* name, const char* label, Choices choices,
                                     Enum fallback) const
    {
        return add<ChoiceKey<Enum>>(enumeration(name, label, choices, fallback));
    }
    /// Of field maps: none for those with volume zones.
    constexpr ChoiceKey<SurfacesToPlot_e> surfaces(const char* name, const char* label,
                                                   SurfacesToPlot_e fallback) const
    {
        Entry entry = enumeration(name, label, kSurfacesToPlot, fallback);
        entry.rule = DefaultRule::NoSurfacesForVolumes;
        return add<ChoiceKey<SurfacesToPlot_e>>(entry);
    }
    constexpr IntegerKey integer(const char* name, const char* label, double minimum,
                                 double maximum, int fallback) const
    {
        return add<IntegerKey>(
            limited(name, label, ValueType::Integer, minimum, maximum, fallback));
    }
    constexpr RealKey real(const char* name, const char* label, double minimum, double maximum,
                           double fallback) const
    {
        return add<RealKey>(limited(name, label, ValueType::Real, minimum, maximum, fallback));
    }
    /// Any finite number.
    constexpr RealKey limitless(const char* name, const char* label, double fallback) const
    {
        return real(name, label, -kUnlimited, kUnlimited, fallback);
    }
    constexpr RealKey percent(const char* name, const char* label, double minimum, double fallback,
                              Key presets = {}) const
    {
        Entry entry = limited(name, label, ValueType::Real, minimum, 100, fallback);
        entry.isPercent = true;
        entry.presets = presets;
        return add<RealKey>(entry);
    }
    constexpr ColorKey color(const char* name, const char* label, Colors colors, int fallback) const
    {
        return add<ColorKey>(paint(name, label, colors, fallback));
    }
    constexpr ColorKey cyclingColor(const char* name, const char* label, Colors colors) const
    {
        Entry entry = paint(name, label, colors, 0);
        entry.rule = DefaultRule::CyclingColor;
        return add<ColorKey>(entry);
    }
    constexpr TextKey text(const char* name, const char* label, const char* fallback,
                           int length = 0) const
    {
        Entry entry = limited(name, label, ValueType::Text, 0, length, 0);
        entry.defaultText = fallback;
        return add<TextKey>(entry);
    }
    constexpr VariableKey variable(const char* name, const char* label, int minimum,
                                   int fallback) const
    {
        return add<VariableKey>(
            limited(name, label, ValueType::Variable, minimum, kLargest, fallback));
    }
    constexpr ZoneKey zone(const char* name, const char* label) const
    {
        return add<ZoneKey>(limited(name, label, ValueType::Zone, 1, kLargest, 1));
    }
    constexpr NumbersKey numbers(const char* name, const char* label) const
    {
        return add<NumbersKey>(limited(name, label, ValueType::Numbers, 0, 0, 0));
    }

private:
    Entries* m_entries;
    Scope m_scope;
    std::array<const char*, Entry::kLongestPath> m_path {};
    int m_indexCount = 0;
};

} // namespace corvala::style
