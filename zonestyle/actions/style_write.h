// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_target.h"

#include <sdk/toolbox/style_value.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// A host accessor for it: StyleValue, CheckedStyleValue.
template<class Accessor>
Accessor accessor(const StyleTarget& target)
{
    const StyleTarget::Path& path = target.path();
    return target.key().isValid() ? Accessor(target.key())
                                  : Accessor(path[0], path[1], path[2], path[3], path[4]);
}

/// Writes one value of the active frame in one host call, for all maps of the set (null: a value of
/// the frame). The host's answer is dropped: a refused write shows as the unchanged value.
/// Value is bool, double, std::string or toolbox::Set.
template<class Value>
void writeStyle(toolbox::StyleValue& style, const toolbox::Set* maps, toolbox::AssignOp_e op,
                const Value& value)
{
    std::vector<std::int32_t> ids =
        toolbox::StyleValue::initMacroIDsfromStyleValueNames(style.names());
    ids.push_back(-1);
    toolbox::ArgList address;
    toolbox::StyleValue::setupSetValueArgList(ids.data(), maps, -1, -1, op, address);
    style.setFinalValue(value, address);
}

/// The same for maps, without an operator.
template<class Value>
void writeStyle(const StyleTarget& target, const toolbox::Set& maps, const Value& value)
{
    auto style = accessor<toolbox::StyleValue>(target);
    writeStyle(style, &maps, toolbox::AssignOp_None, value);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
