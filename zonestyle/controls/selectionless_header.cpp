// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/selectionless_header.h"

namespace corvala::sdk::ui::dialogs::uicontrols {

void SelectionlessHeader::setSelectionModel(QItemSelectionModel* selectionModel)
{
    if (selectionModel->parent() == this)
        QHeaderView::setSelectionModel(selectionModel);
}

QRegion SelectionlessHeader::visualRegionForSelection(const QItemSelection&) const
{
    return {};
}

} // namespace corvala::sdk::ui::dialogs::uicontrols
