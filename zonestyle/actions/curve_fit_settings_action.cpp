// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/curve_fit_settings_action.h"

#include "zonestyle/actions/prompt_parent.h"

#include <sdk/base/cvl.h>
#include <sdk/dialogs_lineplot/curve_fit_settings_dialog.h>
#include <sdk/propertybindings/curve_fit_collection.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using corvala::dialogs::lineplot::CurveFitSettingsDialog;
using propertybindings::CurveFitCollection;
using propertybindings::CurveFitInfo;

static bool haveCommonSettings(const toolbox::Set& maps)
{
    const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
    const CurveFitCollection fits;
    const CurveFitInfo fit = fits.curveFitForLineMap(frame, maps.next(0));
    for (const CvlInt64 map : maps) {
        const CurveFitInfo other = fits.curveFitForLineMap(frame, map);
        if (!other.isValid() || other != fit)
            return false;
    }
    return fit.isValid() && !fit.settingsDialogAction(frame, maps).empty();
}

CurveFitSettingsAction::CurveFitSettingsAction(const QString& text,
                                               const QModelIndexList& selectedIndexes)
    : Action(text, selectedIndexes)
{
    setEnabled(haveCommonSettings(selectedMaps()));
}

void CurveFitSettingsAction::invokeAction()
{
    if (!selectedIndexes().isEmpty())
        CurveFitSettingsDialog::getInstance(&promptParent())
            .launch(CvlUtilFrameGetUniqueID(), selectedMaps());
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
