// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/toolbox/string_list.h"

namespace corvala::toolbox {

std::string StringList::join(const std::string& separator) const
{
    std::string joined;
    for (std::size_t i = 0; i < m_texts.size(); ++i)
        joined += (i ? separator : std::string()) + m_texts[i];
    return joined;
}

} // namespace corvala::toolbox
