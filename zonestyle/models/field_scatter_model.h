// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/described_model.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// The Scatter tab: how the symbols of each field map are drawn.
class FieldScatterModel : public DescribedModel<FieldModelAbstract>
{
    Q_OBJECT

public:
    using DescribedModel::DescribedModel;

public Q_SLOTS:
    /// To be called by an action that wrote a size: from then on its maps have that size, and none
    /// by a variable. A size that was not entered after all changes nothing.
    void sizeActionSlot();
    void openSelectVariableDialog();

protected:
    const ColumnTable& columnTable() const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
