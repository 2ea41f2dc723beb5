// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/cvl.h>
#include <sdk/toolbox/set.h>
#include <sdk/toolbox/style_value.h>
#include <vocabulary/style.h>

#include <type_traits>

namespace corvala::sdk::ui {

/// Writes one value of the active frame in one host call, for all maps of the set (null: a value of
/// the frame). Value is a number, enumeration, bool, std::string or toolbox::Set.
template<class Value>
StyleWriteResult_e writeStyle(toolbox::StyleValue& style, const toolbox::Set* maps,
                              const Value& value, toolbox::AssignOp_e op = toolbox::AssignOp_None)
{
    constexpr bool isNumber =
        std::is_enum_v<Value> || (std::is_arithmetic_v<Value> && !std::is_same_v<Value, bool>);
    auto ids = toolbox::StyleValue::initMacroIDsfromStyleValueNames(style.names());
    ids.push_back(-1);
    toolbox::ArgList address;
    toolbox::StyleValue::setupSetValueArgList(ids.data(), maps, -1, -1, op, address);
    if constexpr (isNumber)
        return style.setFinalValue(static_cast<double>(value), address);
    else
        return style.setFinalValue(value, address);
}

template<class Value>
StyleWriteResult_e writeStyle(style::Key key, const toolbox::Set* maps, const Value& value)
{
    toolbox::StyleValue style(key);
    return writeStyle(style, maps, value);
}

/// What is written while it lives is one undo step.
class StyleUndoStep
{
public:
    StyleUndoStep() { CvlUtilUndoStateBegin(UndoKind_StyleGroup); }
    ~StyleUndoStep() { CvlUtilUndoStateEnd(0, 1); }
    StyleUndoStep(const StyleUndoStep&) = delete;
    StyleUndoStep& operator=(const StyleUndoStep&) = delete;
};

} // namespace corvala::sdk::ui
