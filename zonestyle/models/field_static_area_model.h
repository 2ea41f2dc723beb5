// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/described_model.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// The columns that identify a field map, at the left of every field table.
class FieldStaticAreaModel : public DescribedModel<FieldModelAbstract>
{
public:
    using DescribedModel::DescribedModel;

protected:
    const ColumnTable& columnTable() const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
