// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/described_model.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// What the Definitions tab has besides on an XY plot: variables and axes.
class LineDefinitionsXYModel : public DescribedModel<LineModelAbstract>
{
public:
    using DescribedModel::DescribedModel;

protected:
    const ColumnTable& columnTable() const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
