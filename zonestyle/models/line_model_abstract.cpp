// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_model_abstract.h"

#include <sdk/base/cvl.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

int LineModelAbstract::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() || CvlUtilFrameGetCount() < 1
        || !CvlUtilDataSetIsAvailableForFrame(frameId()))
        return 0;
    return static_cast<int>(CvlUtilLineMapGetCountForFrame(frameId()));
}

bool LineModelAbstract::isLocalRelevant(const QModelIndex& index) const
{
    return CvlUtilLineMapIsActiveForFrame(frameId(), index.row() + 1) != 0;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
