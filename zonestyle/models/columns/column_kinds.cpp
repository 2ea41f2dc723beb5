// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/column_kinds.h"

#include "zonestyle/actions/enter_single_value_action.h"
#include "zonestyle/actions/select_color_action.h"
#include "zonestyle/actions/variable_select_action.h"
#include "zonestyle/models/columns/host_lists.h"

#include <sdk/base/cvl.h>
#include <sdk/common/common.h>

#include <QColor>
#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

using actions::EnterSingleValueAction;
using actions::EnterThreeValueAction;
using actions::SelectColorAction;
using actions::StyleAction;
using actions::VariableSelectAction;

QVariant checkState(const Cell& cell)
{
    return cell.own<bool>() ? Qt::Checked : Qt::Unchecked;
}

QVariant integerValue(const Cell& cell)
{
    return cell.own<int>();
}

QVariant choiceName(const Cell& cell)
{
    return tables::nameOf(cell.column.choices(cell.frame), cell.own<int>());
}

QVariant choiceList(const Cell& cell)
{
    return tables::namesOf(cell.column.choices(cell.frame));
}

QVariant colorValue(const Cell& cell)
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    if (!CvlUtilColorGetRGB(cell.own<int>(), &red, &green, &blue))
        return {};
    return QColor(red, green, blue);
}

QVariant colorHint(const Cell& cell)
{
    const int color = cell.own<int>();
    if (const int group = style::contourGroupOf(color))
        return QString(QLatin1Char('C') + QString::number(group));
    return color == style::kRgbColor ? tables::nameOf(style::kContourColorings, ContourColoring_RGB)
                                     : QVariant();
}

QVariant percentText(const Cell& cell)
{
    return QString(actions::sizeText(cell.own<double>()) + QLatin1Char('%'));
}

QVariant presetList(const Cell& cell)
{
    QStringList presets;
    for (const double size : actions::presetSizes(style::keyAs<style::RealKey>(cell.column.key)))
        presets.append(actions::sizeText(size));
    return presets;
}

QVariant listedNumbers(const Cell& cell)
{
    QStringList texts;
    for (const int* number = cell.column.numbers.begin; number != cell.column.numbers.end; ++number)
        texts.append(QString::number(*number));
    return texts;
}

QVariant tripleText(const Cell& cell)
{
    QStringList texts;
    for (const style::IntegerKey key : cell.column.triple)
        texts.append(QString::number(cell.value(key)));
    return texts.join(QLatin1Char(','));
}

QVariant variableName(const Cell& cell)
{
    return QString::fromStdString(
        variableNameWithIndexFormattedForAliasesForFrame(cell.frame, cell.own<int>()));
}

QVariant variableList(const Cell& cell)
{
    return names(CvlUtilVarGetEnabled(), cell.frame,
                 variableNameWithIndexFormattedForAliasesForFrame);
}

bool hasVolumeZones(const Cell& cell)
{
    return CvlUtilFieldMapHasVolumeZonesForFrame(cell.frame, cell.map);
}

bool isInSpace(const Cell& cell)
{
    return CvlUtilFrameGetPlotTypeForFrame(cell.frame) == PlotType_Field3D;
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
    const style::Key key = request.column.menuTarget();
    return {new StyleAction<char>(QCoreApplication::translate("Menu", "Yes"), rows, 1, key),
            new StyleAction<char>(QCoreApplication::translate("Menu", "No"), rows, 0, key)};
}

QList<QAction*> colorMenu(const MenuRequest& request)
{
    const style::Key key = request.column.menuTarget();
    return {new SelectColorAction(request.rows(), style::entryOf(key).groupColors, key)};
}

QList<QAction*> sizeMenu(const MenuRequest& request)
{
    return actions::sizeActions(request.rows(), request.column.prompt,
                                style::keyAs<style::RealKey>(request.column.menuTarget()));
}

static QList<QAction*> numberEntries(const MenuRequest& request, const QModelIndexList& rows)
{
    const ListedNumbers& numbers = request.column.numbers;
    QList<QAction*> entries;
    for (const int* number = numbers.begin; number != numbers.end; ++number)
        entries.append(new StyleAction<int>(QString::number(*number), rows, *number,
                                            request.column.menuTarget()));
    return entries;
}

static QAction* numberPrompt(const MenuRequest& request, const QModelIndexList& rows)
{
    const style::Key key = request.column.menuTarget();
    const style::Entry& entry = style::entryOf(key);
    const PromptTexts& prompt = request.column.prompt;
    return new EnterSingleValueAction<int>(QCoreApplication::translate("Menu", "Enter..."), rows,
                                           QCoreApplication::translate("Prompt", prompt.title),
                                           QCoreApplication::translate("Prompt", prompt.label),
                                           static_cast<int>(entry.minimum),
                                           static_cast<int>(entry.maximum), key);
}

QList<QAction*> numberMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    return numberEntries(request, rows) << actions::separator() << numberPrompt(request, rows);
}

QList<QAction*> plainNumberMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    return numberEntries(request, rows) << numberPrompt(request, rows);
}

QList<QAction*> rangeMenu(const MenuRequest& request)
{
    return {new EnterThreeValueAction(QCoreApplication::translate("Menu", "Enter range..."),
                                      request.rows(), *request.column.triplePrompt,
                                      request.column.triple)};
}

QList<QAction*> variableMenu(const MenuRequest& request)
{
    const QString prompt = QCoreApplication::translate("Prompt", request.column.prompt.title);
    return {new VariableSelectAction(QCoreApplication::translate("Menu", "Select Variable..."),
                                     request.rows(), prompt, prompt, request.column.menuTarget())};
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds
