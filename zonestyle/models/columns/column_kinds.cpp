// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/column_kinds.h"

#include "zonestyle/actions/select_color_action.h"
#include "zonestyle/actions/variable_select_action.h"
#include "zonestyle/models/columns/host_lists.h"
#include "zonestyle/tables/contour_names.h"

#include <sdk/base/cvl.h>
#include <sdk/common/common.h>

#include <QColor>
#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

using actions::SelectColorAction;
using actions::StyleAction;
using actions::VariableSelectAction;

QVariant checkState(const Cell& cell)
{
    return cell.value<bool>() ? Qt::Checked : Qt::Unchecked;
}

QVariant integerValue(const Cell& cell)
{
    return cell.value<int>();
}

QVariant choiceName(const Cell& cell)
{
    return cell.column.choices.name(cell.value<int>());
}

QVariant choiceList(const Cell& cell)
{
    return cell.column.choices.names();
}

QVariant colorValue(const Cell& cell)
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    if (!CvlUtilColorGetRGB(cell.value<int>(), &red, &green, &blue))
        return {};
    return QColor(red, green, blue);
}

QVariant colorHint(const Cell& cell)
{
    static constexpr int kFirstGroup = 101;
    static constexpr int kLastGroup = 108;
    static constexpr int kByRgb = 109;
    const int color = cell.value<int>();
    if (color >= kFirstGroup && color <= kLastGroup)
        return QString(QLatin1Char('C') + QString::number(color - kFirstGroup + 1));
    return color == kByRgb ? ChoiceNames(tables::kContourColorings).name(ContourColoring_RGB)
                           : QVariant();
}

QVariant percentText(const Cell& cell)
{
    return QString(actions::sizeText(cell.value<double>()) + QLatin1Char('%'));
}

QVariant presetList(const Cell& cell)
{
    QStringList presets;
    for (const double size : actions::presetSizes(cell.column.size->presets))
        presets.append(actions::sizeText(size));
    return presets;
}

QVariant variableName(const Cell& cell)
{
    return QString::fromStdString(
        variableNameWithIndexFormattedForAliasesForFrame(cell.frame, cell.value<int>()));
}

QVariant variableList(const Cell& cell)
{
    return names(CvlUtilVarGetEnabled(), cell.frame,
                 variableNameWithIndexFormattedForAliasesForFrame);
}

bool writeSwitch(const EditRequest& edit)
{
    actions::runAction<StyleAction<char>>(QString(), edit.cells, char {edit.isChecked()},
                                          edit.column.editTarget());
    return true;
}

bool writeChoice(const EditRequest& edit)
{
    if (const std::optional<int> choice = edit.choice())
        edit.write(*choice);
    return true;
}

bool writeNumber(const EditRequest& edit)
{
    edit.write(edit.number());
    return true;
}

QList<QAction*> yesNoMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    const StylePath path = request.column.menuTarget();
    return {new StyleAction<char>(QCoreApplication::translate("Menu", "Yes"), rows, 1, path),
            new StyleAction<char>(QCoreApplication::translate("Menu", "No"), rows, 0, path)};
}

QList<QAction*> colorMenu(const MenuRequest& request)
{
    return {new SelectColorAction(request.rows(), request.column.offerGroupColors,
                                  request.column.menuTarget())};
}

QList<QAction*> sizeMenu(const MenuRequest& request)
{
    return actions::sizeActions(request.rows(), *request.column.size, request.column.menuTarget());
}

QList<QAction*> variableMenu(const MenuRequest& request)
{
    const QString prompt = QCoreApplication::translate("Prompt", request.column.prompt);
    return {new VariableSelectAction(QCoreApplication::translate("Menu", "Select Variable..."),
                                     request.rows(), prompt, prompt, request.column.menuTarget())};
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds
