// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QHeaderView>

namespace corvala::sdk::ui::dialogs::uicontrols {

/// A header that shows nothing of its table's selection and keeps away from it: a header that
/// shares the selection model of its view copies all ranges of the selection whenever the view gets
/// another model.
class SelectionlessHeader : public QHeaderView
{
    Q_OBJECT

public:
    using QHeaderView::QHeaderView;

    /// Takes only the one that it made for itself, which stays empty.
    void setSelectionModel(QItemSelectionModel* selectionModel) override;

protected:
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
};

} // namespace corvala::sdk::ui::dialogs::uicontrols
