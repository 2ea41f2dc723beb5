// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/action.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Opens the settings of the curve fit that the selected line maps share; disabled when they have
/// different fits or one without settings.
class CurveFitSettingsAction : public Action
{
public:
    CurveFitSettingsAction(const QString& text, const QModelIndexList& selectedIndexes);

    void invokeAction() override;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
