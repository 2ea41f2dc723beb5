// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_curves_model.h"

#include "zonestyle/actions/curve_fit_assign_action.h"
#include "zonestyle/actions/curve_fit_settings_action.h"
#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/tables/dependency_names.h"

#include <sdk/base/cvl.h>

#include <QCoreApplication>

#include <utility>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

using actions::CurveFitAssignAction;
using actions::CurveFitSettingsAction;
using propertybindings::CurveFitInfo;

static constexpr const auto& kCurves = style::lineMap.curves;

static const propertybindings::CurveFitCollection& fitsOf(const ModelAbstract& model)
{
    return static_cast<const LineCurvesModel&>(model).curveFits();
}

static CurveFitInfo fitOf(const Cell& cell)
{
    return fitsOf(cell.model).curveFitForLineMap(cell.frame, cell.map);
}

static QVariant fitName(const Cell& cell)
{
    return fitOf(cell).name();
}

static QVariant fitSettings(const Cell& cell)
{
    return fitOf(cell).detailsForLineMap(cell.frame, cell.map);
}

static QVariant fitList(const Cell& cell)
{
    QStringList names;
    for (const CurveFitInfo& fit : fitsOf(cell.model))
        names.append(fit.name());
    return names;
}

static bool writeFit(const EditRequest& edit)
{
    const CurveFitInfo fit = fitsOf(edit.model).get(edit.choice().value_or(-1));
    if (fit.isValid())
        actions::runAction<CurveFitAssignAction>(edit.cells, fit);
    return true;
}

/// A line stands before the first of the fits that bring settings of their own.
static QList<QAction*> fitMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    QList<QAction*> entries;
    bool hasLine = false;
    for (const CurveFitInfo& fit : fitsOf(request.model)) {
        if (fit.type() == CurveType_Extended && !std::exchange(hasLine, true))
            entries.append(actions::separator());
        entries.append(new CurveFitAssignAction(rows, fit));
    }
    return entries;
}

static QList<QAction*> settingsMenu(const MenuRequest& request)
{
    return {new CurveFitSettingsAction(QCoreApplication::translate("Menu", "&Settings..."),
                                       request.rows())};
}

static Choices dependencies(CvlUniqueId frame)
{
    switch (CvlUtilFrameGetPlotTypeForFrame(frame)) {
    case PlotType_LineXY: return style::kFunctionDependencies;
    case PlotType_LinePolar: return tables::kPolarDependencies;
    default: return {};
    }
}

static constexpr ColumnDescriptor curveType(const char* header)
{
    ColumnDescriptor column {header, kCurves.curveType};
    return column.shows(fitName)
        .rawValue(enumValue<CurveType_e>)
        .lists(fitList)
        .writes(writeFit)
        .offers(fitMenu)
        .editor(EditorType_ListPopup, 1);
}

static constexpr ColumnDescriptor curveSettings(const char* header)
{
    ColumnDescriptor column {header};
    return column.shows(fitSettings).offers(settingsMenu).editor(EditorType_None, kGrowsWithText);
}

static constexpr int kPoints[] = {250, 500, 1000};
static constexpr PromptTexts kPointsPrompt {
    QT_TRANSLATE_NOOP("Prompt", "Number of Points"),
    QT_TRANSLATE_NOOP("Prompt", "Enter the number of points used to draw the curve")};

static constexpr ColumnDescriptor kColumns[] = {
    curveType(QT_TRANSLATE_NOOP("Column", "Curve\nType")),
    choice(QT_TRANSLATE_NOOP("Column", "Dependent\nVariable"),
           style::lineMap.assign.functionDependency)
        .namedBy(dependencies)
        .editor(EditorType_ListPopup, 0)
        .relevantUnless(kCurves.curveType, {CurveType_ParametricSpline}),
    listedNumber(QT_TRANSLATE_NOOP("Column", "Curve\nPoints"), kCurves.numPts, kPoints,
                 kPointsPrompt)
        .relevantUnless(kCurves.curveType, {CurveType_LineSegments}),
    curveSettings(QT_TRANSLATE_NOOP("Column", "Curve\nSetting"))
        .relevantUnless(kCurves.curveType, {CurveType_LineSegments}),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(2);

const ColumnTable& LineCurvesModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
