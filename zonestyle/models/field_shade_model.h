// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/described_model.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// The Shade tab: which field maps are filled, and in which colour.
class FieldShadeModel : public DescribedModel<FieldModelAbstract>
{
public:
    using DescribedModel::DescribedModel;

protected:
    const ColumnTable& columnTable() const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
