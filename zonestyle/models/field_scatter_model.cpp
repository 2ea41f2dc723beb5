// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_scatter_model.h"

#include "zonestyle/actions/enter_single_value_action.h"
#include "zonestyle/actions/prompt_parent.h"
#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/size_prompts.h"
#include "zonestyle/models/columns/symbol_columns.h"

#include <sdk/common/common.h>
#include <sdk/dialogs_prompt/scatter_size_font_dialog.h>

#include <QCoreApplication>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;
using actions::StyleAction;

static constexpr const auto& kScatter = style::fieldMap.scatter;

/// "By: 4: Pressure".
static QString byVariable(CvlUniqueId frame)
{
    const toolbox::FrameStyleValue value(frame, style::globalScatter.var);
    const int variable = value.read<int>().value_or(0);
    const QString name = variable == 0
        ? QCoreApplication::translate("Cell", "unassigned")
        : QString::fromStdString(variableNameWithIndexFormattedForAliasesForFrame(frame, variable));
    return QCoreApplication::translate("Cell", "By: %1").arg(name);
}

static QVariant sizeText(const Cell& cell)
{
    return cell.value(kScatter.sizeByVariable) ? byVariable(cell.frame) : percentText(cell);
}

/// Deliberate: a size of the menu ends the size by a variable, an edit of the cell does not.
static QList<QAction*> scatterSizeMenu(const MenuRequest& request)
{
    const auto& model = static_cast<const FieldScatterModel&>(request.model);
    QList<QAction*> entries = sizeMenu(request);
    for (QAction* size : qAsConst(entries)) {
        QObject::connect(size, &QAction::triggered, &model, &FieldScatterModel::sizeActionSlot);
        if (auto* preset = dynamic_cast<StyleAction<double>*>(size))
            preset->setOverriddenBy(kScatter.sizeByVariable);
    }
    auto* choose = new QAction(QCoreApplication::translate("Menu", "Select variable..."));
    QObject::connect(choose, &QAction::triggered, &model,
                     &FieldScatterModel::openSelectVariableDialog);
    entries << new StyleAction<char>(byVariable(request.frame), request.rows(), 1,
                                     kScatter.sizeByVariable)
            << choose;
    return entries;
}

static bool hasShape(const Cell& cell, std::initializer_list<GeomShape_e> shapes)
{
    const auto shape = cell.value(kScatter.symbolShape.geomShape);
    return !cell.value(kScatter.symbolShape.isAscii)
        && std::find(shapes.begin(), shapes.end(), shape) != shapes.end();
}

static bool hasSize(const Cell& cell)
{
    return !hasShape(cell, {GeomShape_Point});
}

/// Bodies in space have no outline, and points no inside.
static bool hasOutline(const Cell& cell)
{
    return hasSize(cell)
        && !(isInSpace(cell)
             && hasShape(cell, {GeomShape_Cube, GeomShape_Sphere, GeomShape_Octahedron}));
}

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nScatter"), kScatter.show),
    symbolShape(QT_TRANSLATE_NOOP("Column", "Symbol\nShape"), kScatter.symbolShape),
    percent(QT_TRANSLATE_NOOP("Column", "Scatter\nSize"), kScatter.frameSize, prompts::kScatterSize)
        .shows(sizeText)
        .editor(EditorType_List, 0)
        .offers(scatterSizeMenu)
        .relevantWhen(hasSize),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Outline\nColor"), kScatter.color),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kScatter.lineThickness,
            prompts::kFieldLineThickness)
        .editor(EditorType_ListPopup, 0)
        .relevantWhen(hasOutline),
    choice(QT_TRANSLATE_NOOP("Column", "Fill\nMode"), kScatter.fillMode)
        .rawValue(integerValue)
        .relevantWhen(hasOutline),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Fill\nColor"), kScatter.fillColor)
        .relevantFor(kScatter.fillMode, {FillMode_SpecificColor})
        .relevantWhen(hasOutline),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(3).layer(style::fieldLayers.showScatter).rowMustBeShown();

const ColumnTable& FieldScatterModel::columnTable() const
{
    return kTable;
}

void FieldScatterModel::sizeActionSlot()
{
    const auto* action = dynamic_cast<const actions::Action*>(sender());
    const auto* prompt = dynamic_cast<const actions::EnterSingleValueAction<double>*>(action);
    if (action && (!prompt || prompt->wasAccepted()))
        actions::runAction<StyleAction<char>>(QString(), action->selectedIndexes(), char {0},
                                              kScatter.sizeByVariable);
}

void FieldScatterModel::openSelectVariableDialog()
{
    corvala::dialogs::prompt::ScatterSizeFontDialog::getInstance(&actions::promptParent()).launch();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
