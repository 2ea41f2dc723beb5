// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"
#include "host/style/schema.h"
#include "vocabulary/enums.h"
#include "vocabulary/types.h"

#include <boost/signals2/signal.hpp>

#include <string>
#include <vector>

namespace corvala::host {

/// One style attribute that changed, and for which maps (empty for a value of the frame).
struct StyleChange
{
    AttributeId attribute = kNoAttribute;
    NumberSet maps;
};

/// A change of the document, announced after it is visible.
struct StateEvent
{
    StateCode_e code = StateCode_Style;
    std::vector<std::string> parameters; ///< of StateCode_Style: the names of the path
    CvlUniqueId frame = 0;
    std::vector<StyleChange> styleChanges; ///< of StateCode_Style: one entry per attribute
};

/// Delivers events synchronously, in order of connection, on the calling thread.
using StateEventSignal = boost::signals2::signal<void(const StateEvent&)>;

} // namespace corvala::host
