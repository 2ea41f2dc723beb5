// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/uicommon/style_writing.h"

#include <sdk/toolbox/style_value.h>

namespace corvala::sdk::ui {

StyleWriteResult_e writeStyle(style::Key key, const toolbox::Set* maps, double value)
{
    toolbox::StyleValue styleValue(key);
    auto ids = toolbox::StyleValue::initMacroIDsfromStyleValueNames(styleValue.names());
    ids.push_back(-1);
    toolbox::ArgList address;
    toolbox::StyleValue::setupSetValueArgList(ids.data(), maps, -1, -1, toolbox::AssignOp_None,
                                              address);
    return styleValue.setFinalValue(value, address);
}

} // namespace corvala::sdk::ui
