// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/described_model.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// The Error Bars tab: the error bars at the points of each line map.
class LineErrorBarsModel : public DescribedModel<LineModelAbstract>
{
public:
    using DescribedModel::DescribedModel;

    class ShowAction;

protected:
    const ColumnTable& columnTable() const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
