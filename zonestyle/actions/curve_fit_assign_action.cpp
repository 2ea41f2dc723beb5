// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/curve_fit_assign_action.h"

#include <sdk/base/cvl.h>
#include <sdk/propertybindings/curve_fit_collection.h>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

CurveFitAssignAction::CurveFitAssignAction(const QModelIndexList& selectedIndexes,
                                           const propertybindings::CurveFitInfo& fit)
    : Action(fit.name(), selectedIndexes)
    , m_fit(fit)
{
    setIcon(fit.icon());
}

void CurveFitAssignAction::invokeAction()
{
    if (!selectedIndexes().isEmpty())
        m_fit.curveFitAssigner()(selectedMaps());
}

bool CurveFitAssignAction::isPresentValue() const
{
    const QModelIndexList& rows = selectedIndexes();
    const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
    const propertybindings::CurveFitCollection fits;
    return !rows.isEmpty() && std::all_of(rows.begin(), rows.end(), [&](const QModelIndex& row) {
        return fits.curveFitForLineMap(frame, row.row() + 1) == m_fit;
    });
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
