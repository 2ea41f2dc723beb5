// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_indices_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/index_prompts.h"

#include <sdk/base/cvl.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kIndices = style::lineMap.indices;

static int zoneOf(const Cell& cell)
{
    return cell.value(style::lineMap.assign.zone);
}

static bool isOrdered(const Cell& cell)
{
    return CvlUtilZoneIsOrderedForFrame(cell.frame, zoneOf(cell));
}

// Deliberate: points without an order count as an I-index.
static bool variesInI(const Cell& cell)
{
    CvlInt64 size = 0;
    CvlUtilZoneGetInfoForFrame(cell.frame, zoneOf(cell), &size, nullptr, nullptr);
    return size > 1;
}

static bool variesInJ(const Cell& cell)
{
    CvlInt64 size = 0;
    CvlUtilZoneGetInfoForFrame(cell.frame, zoneOf(cell), nullptr, &size, nullptr);
    return size > 1 && isOrdered(cell);
}

static bool variesInK(const Cell& cell)
{
    CvlInt64 size = 0;
    CvlUtilZoneGetInfoForFrame(cell.frame, zoneOf(cell), nullptr, nullptr, &size);
    return size > 1 && isOrdered(cell);
}

static constexpr ColumnDescriptor range(const char* header, const style::IndexRange& indices,
                                        CellRule applies)
{
    return triple(header, keysOf(indices), prompts::kRange).relevantWhen(applies);
}

static constexpr ColumnDescriptor kColumns[] = {
    choice(QT_TRANSLATE_NOOP("Column", "Varying\nIndex"), kIndices.ijkLines)
        .editsText(choiceName)
        .editor(EditorType_TextPopup, 1)
        .relevantWhen(isOrdered),
    range(QT_TRANSLATE_NOOP("Column", "I-Index\nRange"), kIndices.ranges.iRange, variesInI),
    range(QT_TRANSLATE_NOOP("Column", "J-Index\nRange"), kIndices.ranges.jRange, variesInJ),
    range(QT_TRANSLATE_NOOP("Column", "K-Index\nRange"), kIndices.ranges.kRange, variesInK),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(1);

const ColumnTable& LineIndicesModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
