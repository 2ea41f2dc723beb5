// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vector>

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

namespace models {
class ModelAbstract;
}

/// The table that a tab page shows under a plot type.
struct ViewModel
{
    const char* page; ///< object name
    int plotType; ///< PlotType_e, or ModelForPageMap::kEveryPlotType
    models::ModelAbstract* (*make)(); ///< a new chain of models; the caller owns it
};

/// All of them, in the order in which they are registered. A page has one for every plot type, or
/// one for each plot type that it is shown under.
const std::vector<ViewModel>& viewModels();

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern
