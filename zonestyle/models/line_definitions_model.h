// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/described_model.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// The Definitions tab: what each line map draws. The variables are the business of the sub model.
class LineDefinitionsModel : public DescribedModel<LineModelAbstract>
{
public:
    using DescribedModel::DescribedModel;

protected:
    const ColumnTable& columnTable() const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
