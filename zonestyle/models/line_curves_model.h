// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/described_model.h"

#include <sdk/propertybindings/curve_fit_collection.h>

#include <QMetaType>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// The Curves tab: how the points of each line map are joined or fitted.
class LineCurvesModel : public DescribedModel<LineModelAbstract>
{
public:
    using DescribedModel::DescribedModel;

    /// The fits that are offered; the table lists them in this order.
    const propertybindings::CurveFitCollection& curveFits() const { return m_curveFits; }

protected:
    const ColumnTable& columnTable() const override;

private:
    const propertybindings::CurveFitCollection m_curveFits;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models

Q_DECLARE_METATYPE(CurveType_e)
