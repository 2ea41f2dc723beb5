// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_contour_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/relevance_rules.h"
#include "zonestyle/models/columns/size_prompts.h"
#include "zonestyle/tables/contour_names.h"
#include "zonestyle/tables/line_names.h"

#include <sdk/common/common.h>

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;
using actions::StyleAction;

static constexpr StylePath kContour {"FieldMap", "Contour"};
static constexpr int kGroups = 8;

static QString rgbText()
{
    return ChoiceNames(tables::kContourColorings).name(ContourColoring_RGB);
}

/// Such as "C1: Pressure".
static QString groupLabel(CvlUniqueId frame, int group)
{
    const toolbox::FrameStyleValue style(frame, "ContourGroups", "Var");
    const int variable = style.read<int>(0, group).value_or(0);
    const QString name = variable == 0
        ? QCoreApplication::translate("Cell", "unassigned")
        : QString::fromStdString(variableNameFormattedForAliasesForFrame(frame, variable));
    return QStringLiteral("C%1: %2").arg(QString::number(group), name);
}

static QVariant groupName(const Cell& cell)
{
    return groupLabel(cell.frame, cell.value<int>());
}

static QVariant floodName(const Cell& cell)
{
    return cell.value<int>() == ContourColoring_RGB ? rgbText() : groupName(cell);
}

static QVariant rgbAndGroups(const Cell& cell)
{
    QStringList entries {rgbText()};
    for (int group = 1; group <= kGroups; ++group)
        entries.append(groupLabel(cell.frame, group));
    return entries;
}

static QList<QAction*> groupEntries(const MenuRequest& request, const QModelIndexList& rows)
{
    QList<QAction*> entries;
    for (int group = 1; group <= kGroups; ++group) {
        entries.append(new StyleAction<int>(groupLabel(request.frame, group), rows, group,
                                            request.column.menuTarget()));
    }
    return entries;
}

static QList<QAction*> groupMenu(const MenuRequest& request)
{
    return groupEntries(request, request.rows());
}

static QList<QAction*> floodMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    auto* rgb = new StyleAction<ContourColoring_e>(rgbText(), rows, ContourColoring_RGB,
                                                   request.column.menuTarget());
    rgb->setEnabled(checkRGBChannelVars(toolbox::FrameStyleValue(request.frame, "GlobalRGB")));
    return groupEntries(request, rows) << actions::separator() << rgb;
}

static constexpr ColumnDescriptor contourGroup(const char* header, const StylePath& path)
{
    ColumnDescriptor column {header, path};
    return column.shows(groupName)
        .lists(rgbAndGroups)
        .writes(writeChoice)
        .offers(groupMenu)
        .editor(EditorType_ListPopup, 4);
}

static ContourType_e contourType(const Cell& cell)
{
    return static_cast<ContourType_e>(cell.sibling<int>("ContourType"));
}

static bool isFlooded(const Cell& cell)
{
    return contourType(cell) != ContourType_Lines;
}

static bool drawsLines(const Cell& cell)
{
    const ContourType_e type = contourType(cell);
    return type == ContourType_Lines || type == ContourType_LinesAndFlood;
}

static bool drawsLinesWithGaps(const Cell& cell)
{
    return drawsLines(cell) && rules::patternHasGaps(cell);
}

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nContour"), kContour / "Show"),
    choice<ContourType_e>(QT_TRANSLATE_NOOP("Column", "Contour\nType"), kContour / "ContourType",
                          tables::kContourTypes)
        .rawValue(integerValue),
    contourGroup(QT_TRANSLATE_NOOP("Column", "Flood\nBy"), kContour / "FloodColoring")
        .shows(floodName)
        .offers(floodMenu)
        .relevantWhen(isFlooded),
    // Deliberate: the editor offers RGB, which lines cannot have, the menu does not.
    contourGroup(QT_TRANSLATE_NOOP("Column", "Lines\nBy"), kContour / "LineContourGroup")
        .relevantWhen(drawsLines),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Line\nColor"), kContour / "Color")
        .relevantWhen(drawsLines),
    choice<LinePattern_e>(QT_TRANSLATE_NOOP("Column", "Line\nPattern"), kContour / "LinePattern",
                          tables::kLinePatterns)
        .rawValue(integerValue)
        .relevantWhen(drawsLines),
    percent(QT_TRANSLATE_NOOP("Column", "Pattern\nLength"), kContour / "PatternLength",
            prompts::kFieldPatternLength)
        .relevantWhen(drawsLinesWithGaps),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kContour / "LineThickness",
            prompts::kFieldLineThickness)
        .relevantWhen(drawsLines),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(4).layer("ShowContour").rowMustBeShown().governsFollowing();

const ColumnTable& FieldContourModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
