// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kLegendModes[] = {
    {LegendShow_Always, QT_TRANSLATE_NOOP("Choice", "Always")},
    {LegendShow_Never, QT_TRANSLATE_NOOP("Choice", "Never")},
    {LegendShow_Auto, QT_TRANSLATE_NOOP("Choice", "Auto")},
};

inline constexpr Choice kLineMapSorts[] = {
    {LineMapSort_None, QT_TRANSLATE_NOOP("Choice", "None")},
    {LineMapSort_ByIndependentVar, QT_TRANSLATE_NOOP("Choice", "By independent variable")},
    {LineMapSort_ByDependentVar, QT_TRANSLATE_NOOP("Choice", "By dependent variable")},
    {LineMapSort_BySpecificVar, QT_TRANSLATE_NOOP("Choice", "By specific variable")},
};

// Deliberate: three name tables for one enumeration: XY plots, polar plots, bar charts.
inline constexpr Choice kXYDependencies[] = {
    {FunctionDependency_YofX, QT_TRANSLATE_NOOP("Choice", "y=f(x)")},
    {FunctionDependency_XofY, QT_TRANSLATE_NOOP("Choice", "x=f(y)")},
};

inline constexpr Choice kPolarDependencies[] = {
    {FunctionDependency_YofX, QT_TRANSLATE_NOOP("Choice", "R=f(Theta)")},
    {FunctionDependency_XofY, QT_TRANSLATE_NOOP("Choice", "Theta=f(R)")},
};

inline constexpr Choice kBarDirections[] = {
    {FunctionDependency_YofX, QT_TRANSLATE_NOOP("Choice", "Vertical (y=f(x))")},
    {FunctionDependency_XofY, QT_TRANSLATE_NOOP("Choice", "Horizontal (x=f(y))")},
};

inline constexpr Choice kErrorBarTypes[] = {
    {ErrorBar_Up, QT_TRANSLATE_NOOP("Choice", "Up")},
    {ErrorBar_Down, QT_TRANSLATE_NOOP("Choice", "Down")},
    {ErrorBar_Left, QT_TRANSLATE_NOOP("Choice", "Left")},
    {ErrorBar_Right, QT_TRANSLATE_NOOP("Choice", "Right")},
    {ErrorBar_Horizontal, QT_TRANSLATE_NOOP("Choice", "Horizontal")},
    {ErrorBar_Vertical, QT_TRANSLATE_NOOP("Choice", "Vertical")},
    {ErrorBar_Cross, QT_TRANSLATE_NOOP("Choice", "Cross")},
};

inline constexpr Choice kVaryingIndices[] = {
    {IJKLines_I, QT_TRANSLATE_NOOP("Choice", "I-Varying")},
    {IJKLines_J, QT_TRANSLATE_NOOP("Choice", "J-Varying")},
    {IJKLines_K, QT_TRANSLATE_NOOP("Choice", "K-Varying")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
