// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/action.h"

#include <sdk/propertybindings/curve_fit_info.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Gives a curve fit to the selected line maps, in one host call.
class CurveFitAssignAction : public Action
{
public:
    /// Has the name and the icon of the fit, which must be valid.
    CurveFitAssignAction(const QModelIndexList& selectedIndexes,
                         const propertybindings::CurveFitInfo& fit);

    void invokeAction() override;
    bool isPresentValue() const override;

private:
    propertybindings::CurveFitInfo m_fit;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
