// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/model_abstract.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// A table whose rows are the field maps of the frame, active or not.
class FieldModelAbstract : public ModelAbstract
{
public:
    using ModelAbstract::ModelAbstract;

    int rowCount(const QModelIndex& parent = {}) const override;
    /// A row whose map shows no zone at the solution time says so in its tool tip.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool isLocalRelevant(const QModelIndex& index) const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
