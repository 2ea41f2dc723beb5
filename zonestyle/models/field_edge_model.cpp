// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_edge_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/size_prompts.h"

#include <sdk/base/cvl.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kEdge = style::fieldMap.edgeLayer;

static bool hasIndexBorders(const Cell& cell)
{
    return CvlUtilFieldMapHasOrderedZonesForFrame(cell.frame, cell.map);
}

// Deliberate: volume zones without an order have edges, but these columns do not apply to them.
static bool hasLines(const Cell& cell)
{
    return hasIndexBorders(cell) || !hasVolumeZones(cell);
}

static constexpr ColumnDescriptor border(const char* header,
                                         const style::ChoiceKey<BorderLocation_e>& key)
{
    return choice(header, key).relevantWhen(hasIndexBorders);
}

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nEdges"), kEdge.show),
    choice(QT_TRANSLATE_NOOP("Column", "Edge\nType"), kEdge.edgeType),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Edge\nColor"), kEdge.color).relevantWhen(hasLines),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kEdge.lineThickness,
            prompts::kFieldLineThickness)
        .relevantWhen(hasLines),
    border(QT_TRANSLATE_NOOP("Column", "I-Index\nBorder"), kEdge.iBorder),
    border(QT_TRANSLATE_NOOP("Column", "J-Index\nBorder"), kEdge.jBorder),
    border(QT_TRANSLATE_NOOP("Column", "K-Index\nBorder"), kEdge.kBorder),
};

// Deliberate: unlike in the other field tables, a row whose edges are not shown applies.
static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(4).layer(style::fieldLayers.showEdge);

const ColumnTable& FieldEdgeModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
