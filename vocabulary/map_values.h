// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/frame_values.h"

namespace corvala::style {

// What style values of field maps and of line maps have in common.

constexpr RealKey patternLength(const Group& in, const BasicSize& sizes, const char* label)
{
    return in.percent("PatternLength", label, BasicSize::kLeastLength, 2,
                      sizes.linePatLengths.tiny);
}

constexpr RealKey thickness(const Group& in, const BasicSize& sizes, const char* label,
                            double fallback = 0.15)
{
    return in.percent("LineThickness", label, BasicSize::kLeastThickness, fallback,
                      sizes.lineThicknesses.tiny);
}

constexpr RealKey symbolSize(const Group& in, const BasicSize& sizes, const char* name,
                             const char* label)
{
    return in.percent(name, label, 0, 2, sizes.symbolSizes.tiny);
}

/// A character as a symbol.
struct AsciiShape
{
    Group in;
    TextKey asciiChar = in.text("ASCIIChar", CV_TEXT("Symbol character"), "A", 1);
    SwitchKey useBaseFont = in.flag("UseBaseFont", CV_TEXT("Symbol base font"), true);
    ChoiceKey<FontOverride_e> fontOverride =
        in.choice("FontOverride", CV_TEXT("Symbol font"), kFontOverrides, FontOverride_None);
};

struct SymbolShape
{
    Group in;
    Choices shapes;
    SwitchKey isAscii = in.flag("IsASCII", CV_TEXT("Character symbol"), false);
    ChoiceKey<GeomShape_e> geomShape =
        in.choice("GeomShape", CV_TEXT("Symbol shape"), shapes, GeomShape_Square);
    AsciiShape asciiShape {in / "ASCIIShape"};
};

/// Index planes or points along one index: from `min` to `max` (0: the last), every `skip`th.
struct IndexRange
{
    Group in;
    const char* beginLabel;
    const char* endLabel;
    const char* skipLabel;

    IntegerKey min = in.integer("Min", beginLabel, 1, kLargest, 1);
    IntegerKey max = in.integer("Max", endLabel, 0, kLargest, 0);
    IntegerKey skip = in.integer("Skip", skipLabel, 1, kLargest, 1);
};

struct IndexRanges
{
    Group in;
    IndexRange iRange {in / "IRange", CV_TEXT("I range begin"), CV_TEXT("I range end"),
                       CV_TEXT("I range skip")};
    IndexRange jRange {in / "JRange", CV_TEXT("J range begin"), CV_TEXT("J range end"),
                       CV_TEXT("J range skip")};
    IndexRange kRange {in / "KRange", CV_TEXT("K range begin"), CV_TEXT("K range end"),
                       CV_TEXT("K range skip")};
};

} // namespace corvala::style
