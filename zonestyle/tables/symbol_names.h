// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kGeomShapes[] = {
    {GeomShape_Square, QT_TRANSLATE_NOOP("Choice", "Square")},
    {GeomShape_Delta, QT_TRANSLATE_NOOP("Choice", "Delta")},
    {GeomShape_Gradient, QT_TRANSLATE_NOOP("Choice", "Gradient")},
    {GeomShape_RightTriangle, QT_TRANSLATE_NOOP("Choice", "Right triangle")},
    {GeomShape_LeftTriangle, QT_TRANSLATE_NOOP("Choice", "Left triangle")},
    {GeomShape_Diamond, QT_TRANSLATE_NOOP("Choice", "Diamond")},
    {GeomShape_Circle, QT_TRANSLATE_NOOP("Choice", "Circle")},
    {GeomShape_Cube, QT_TRANSLATE_NOOP("Choice", "Cube")},
    {GeomShape_Sphere, QT_TRANSLATE_NOOP("Choice", "Sphere")},
    {GeomShape_Octahedron, QT_TRANSLATE_NOOP("Choice", "Octahedron")},
    {GeomShape_Point, QT_TRANSLATE_NOOP("Choice", "Point")},
    {GeomShape_PieChart, QT_TRANSLATE_NOOP("Choice", "PieChart")},
    {GeomShape_LineArt, QT_TRANSLATE_NOOP("Choice", "LineArt")},
    {GeomShape_Character, QT_TRANSLATE_NOOP("Choice", "Character")},
};

// Shown behind the character of a character symbol.
inline constexpr Choice kFontMarks[] = {
    {FontOverride_Greek, QT_TRANSLATE_NOOP("Choice", "(Greek)")},
    {FontOverride_Math, QT_TRANSLATE_NOOP("Choice", "(Math)")},
    {FontOverride_User, QT_TRANSLATE_NOOP("Choice", "(User)")},
};

inline constexpr Choice kFillModes[] = {
    {FillMode_None, QT_TRANSLATE_NOOP("Choice", "None")},
    {FillMode_SpecificColor, QT_TRANSLATE_NOOP("Choice", "Specific color")},
    {FillMode_LineColor, QT_TRANSLATE_NOOP("Choice", "Line color")},
    {FillMode_BackgroundColor, QT_TRANSLATE_NOOP("Choice", "Background color")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
