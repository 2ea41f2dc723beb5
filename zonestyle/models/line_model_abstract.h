// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/model_abstract.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// A table whose rows are the line maps of the frame, active or not.
class LineModelAbstract : public ModelAbstract
{
public:
    using ModelAbstract::ModelAbstract;

    class SkipAction;

    int rowCount(const QModelIndex& parent = {}) const override;
    bool isLocalRelevant(const QModelIndex& index) const override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
