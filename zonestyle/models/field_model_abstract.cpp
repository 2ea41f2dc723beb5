// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_model_abstract.h"

#include <sdk/base/cvl.h>

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

static QString strandHint()
{
    return QCoreApplication::translate(
        "ToolTip",
        "<html>The strand has no zones at the current solution time, therefore nothing is shown. "
        "To view zones for this strand, change the solution time or, modify the option for how "
        "zones are shown, using the controls at the bottom of the Time Animation Details "
        "dialog.</html>");
}

int FieldModelAbstract::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() || CvlUtilFrameGetCount() < 1)
        return 0;
    return static_cast<int>(CvlUtilFieldMapGetCountForFrame(frameId()));
}

QVariant FieldModelAbstract::data(const QModelIndex& index, int role) const
{
    if (role == Qt::ToolTipRole && index.isValid() && index.row() < rowCount()
        && CvlUtilFieldMapGetCandidateZoneForFrame(frameId(), index.row() + 1) == 0)
        return strandHint();
    return ModelAbstract::data(index, role);
}

bool FieldModelAbstract::isLocalRelevant(const QModelIndex& index) const
{
    const CvlInt64 map = index.row() + 1;
    return CvlUtilFieldMapIsActiveForFrame(frameId(), map)
        && CvlUtilFieldMapGetCandidateZoneForFrame(frameId(), map) != 0;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
