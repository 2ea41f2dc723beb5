// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/choices.h"
#include "vocabulary/colors.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace corvala::style {

/// Position of a style value in the dictionary. It says nothing outside one build of the program:
/// what is stored or sent elsewhere has paths.
using Id = int;
constexpr Id kNoValue = -1;

/// What a style value belongs to.
enum class Scope : std::uint8_t { Document, Frame, FieldMap, LineMap };

enum class ValueType : std::uint8_t {
    Bool,
    Integer,
    Enumeration,
    Color, ///< see colors.h
    Real,
    Text,
    Variable, ///< variable number, limited by the data set
    Zone, ///< zone number, limited by the data set
    Numbers ///< a set of map or zone numbers
};

/// How a value of a map gets its default.
enum class DefaultRule : std::uint8_t {
    Constant,
    CyclingColor, ///< palette colours in turn, by map number
    NoSurfacesForVolumes ///< SurfacesToPlot_None for maps with volume zones, else the constant
};

/// What is known of a style value besides its path.
struct Facts
{
    Scope scope = Scope::Frame;
    ValueType type = ValueType::Bool;
    const char* label =
        ""; ///< English, as in "Mesh type"; in the translation context "StyleValues"
    double minimum = 0.0;
    double maximum = 0.0; ///< of a text: its length in characters, or 0 for any
    double defaultNumber = 0.0;
    DefaultRule rule = DefaultRule::Constant;
    int indexCount = 0; ///< the index of an indexed value runs from 1 to this; 0: it has none
    bool isPercent = false; ///< a Real in percent of the frame height
    bool groupColors = false; ///< a Color that may follow a contour group or RGB
    Choices choices = {}; ///< of an Enumeration
    Id presets = kNoValue; ///< the first of the five basic sizes that are offered for it

    constexpr bool isText() const { return type == ValueType::Text; }
    constexpr bool isReal() const { return type == ValueType::Real; }
};

/// One style value.
struct Entry : Facts
{
    static constexpr std::size_t kLongestPath = 5;

    std::array<const char*, kLongestPath> path {}; ///< names beyond the last are null
    const char* defaultText = "";

    constexpr std::size_t length() const
    {
        std::size_t count = 0;
        while (count < kLongestPath && path[count])
            ++count;
        return count;
    }
};

/// Names a style value; that it exists is the compiler's business.
struct Key
{
    Id id = kNoValue;

    constexpr bool isValid() const { return id >= 0; }
    constexpr operator Id() const { return id; }
};

/// A key that knows the type in which its value is read.
template<class T>
struct KeyOf : Key
{
    using Value = T;
};

/// The same value by a key of a type that the caller knows to fit.
template<class SomeKey>
constexpr SomeKey keyAs(Key key)
{
    SomeKey same;
    same.id = key.id;
    return same;
}

struct SwitchKey : KeyOf<bool>
{
};
struct IntegerKey : KeyOf<int>
{
};
template<class Enum>
struct ChoiceKey : KeyOf<Enum>
{
};
struct ColorKey : KeyOf<int>
{
};
struct RealKey : KeyOf<double>
{
};
struct TextKey : KeyOf<std::string>
{
};
struct VariableKey : KeyOf<int>
{
};
struct ZoneKey : KeyOf<int>
{
};
struct NumbersKey : Key
{
};

} // namespace corvala::style
