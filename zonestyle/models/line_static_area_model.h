// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/described_model.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// The columns that identify a line map, at the left of every line table.
class LineStaticAreaModel : public DescribedModel<LineModelAbstract>
{
public:
    using DescribedModel::DescribedModel;

protected:
    const ColumnTable& columnTable() const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
