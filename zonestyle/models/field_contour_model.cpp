// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_contour_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/size_prompts.h"

#include <sdk/common/common.h>

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;
using actions::StyleAction;

static constexpr const auto& kContour = style::fieldMap.contour;
static constexpr int kGroups = style::ContourGroups::kCount;

static QString rgbText()
{
    return tables::nameOf(style::kContourColorings, ContourColoring_RGB);
}

/// Such as "C1: Pressure".
static QString groupLabel(CvlUniqueId frame, int group)
{
    const toolbox::FrameStyleValue value(frame, style::contourGroups.var);
    const int variable = value.read<int>(0, group).value_or(0);
    const QString name = variable == 0
        ? QCoreApplication::translate("Cell", "unassigned")
        : QString::fromStdString(variableNameFormattedForAliasesForFrame(frame, variable));
    return QStringLiteral("C%1: %2").arg(QString::number(group), name);
}

static QVariant groupName(const Cell& cell)
{
    return groupLabel(cell.frame, cell.own<int>());
}

static QVariant floodName(const Cell& cell)
{
    return cell.own<int>() == ContourColoring_RGB ? rgbText() : groupName(cell);
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

static constexpr ColumnDescriptor contourGroup(const char* header, style::Key key)
{
    ColumnDescriptor column {header, key};
    return column.shows(groupName)
        .lists(rgbAndGroups)
        .writes(writeChoice)
        .offers(groupMenu)
        .editor(EditorType_ListPopup, 4);
}

/// What shows on lines alone.
static constexpr ColumnDescriptor ofLines(ColumnDescriptor column)
{
    return column.relevantFor(kContour.contourType, {ContourType_Lines, ContourType_LinesAndFlood});
}

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nContour"), kContour.show),
    choice(QT_TRANSLATE_NOOP("Column", "Contour\nType"), kContour.contourType)
        .rawValue(integerValue),
    contourGroup(QT_TRANSLATE_NOOP("Column", "Flood\nBy"), kContour.floodColoring)
        .shows(floodName)
        .offers(floodMenu)
        .relevantUnless(kContour.contourType, {ContourType_Lines}),
    // Deliberate: the editor offers RGB, which lines cannot have, the menu does not.
    ofLines(contourGroup(QT_TRANSLATE_NOOP("Column", "Lines\nBy"), kContour.lineContourGroup)),
    ofLines(colorSwatch(QT_TRANSLATE_NOOP("Column", "Line\nColor"), kContour.color)),
    ofLines(choice(QT_TRANSLATE_NOOP("Column", "Line\nPattern"), kContour.linePattern))
        .rawValue(integerValue),
    ofLines(percent(QT_TRANSLATE_NOOP("Column", "Pattern\nLength"), kContour.patternLength,
                    prompts::kFieldPatternLength))
        .relevantUnless(kContour.linePattern, {LinePattern_Solid}),
    ofLines(percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kContour.lineThickness,
                    prompts::kFieldLineThickness)),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns)
                                          .primary(4)
                                          .layer(style::fieldLayers.showContour)
                                          .rowMustBeShown()
                                          .governsFollowing();

const ColumnTable& FieldContourModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
