// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_error_bars_model.h"

#include "zonestyle/actions/variable_select_action.h"
#include "zonestyle/models/columns/line_columns.h"
#include "zonestyle/models/columns/size_prompts.h"

#include <sdk/uicommon/style_writing.h>

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

using actions::StyleAction;

static constexpr const auto& kErrorBars = style::lineMap.errorBars;
static constexpr const char* kVariablePrompt =
    QT_TRANSLATE_NOOP("Prompt", "Select the error bar variable");

/// Switches error bars on or off. Maps get a variable first when the first of them has none; the
/// user may refuse to choose one, and nothing changes.
class LineErrorBarsModel::ShowAction : public actions::Action
{
public:
    ShowAction(const QString& text, const QModelIndexList& selectedIndexes, bool isOn)
        : Action(text, selectedIndexes)
        , m_isOn(isOn)
    {
    }

    void invokeAction() override
    {
        if (selectedIndexes().isEmpty())
            return;
        const QModelIndexList rows = selectedIndexes(); // the action may go while it asks
        const bool isOn = m_isOn;
        std::optional<int> variable;
        if (isOn && !hasVariable()) {
            const QString prompt = QCoreApplication::translate("Prompt", kVariablePrompt);
            variable = actions::chooseVariable(prompt, prompt, 0);
            if (!variable)
                return;
        }
        const StyleUndoStep step;
        if (variable)
            actions::runAction<StyleAction<int>>(QString(), rows, *variable, kErrorBars.var);
        actions::runAction<StyleAction<char>>(QString(), rows, char {isOn}, kErrorBars.show);
    }

    bool isPresentValue() const override
    {
        return StyleAction<char>(QString(), selectedIndexes(), char {m_isOn}, kErrorBars.show)
            .isPresentValue();
    }

private:
    bool hasVariable() const
    {
        return toolbox::StyleValue(kErrorBars.var).read<int>(firstMap()).value_or(0) != 0;
    }

    bool m_isOn;
};

static bool writeShow(const EditRequest& edit)
{
    actions::runAction<LineErrorBarsModel::ShowAction>(QString(), edit.cells, edit.isChecked());
    return true;
}

static QList<QAction*> showMenu(const MenuRequest& request)
{
    using ShowAction = LineErrorBarsModel::ShowAction;
    const QModelIndexList rows = request.rows();
    return {new ShowAction(QCoreApplication::translate("Menu", "Yes"), rows, true),
            new ShowAction(QCoreApplication::translate("Menu", "No"), rows, false)};
}

static QVariant variableOrNone(const Cell& cell)
{
    return cell.own<int>() == 0 ? QCoreApplication::translate("Cell", "<Undef>")
                                : variableName(cell);
}

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nError Bars"), kErrorBars.show)
        .writes(writeShow)
        .offers(showMenu),
    variable(QT_TRANSLATE_NOOP("Column", "Error Bar\nVariable"), kErrorBars.var, kVariablePrompt)
        .shows(variableOrNone),
    choice(QT_TRANSLATE_NOOP("Column", "Error Bar\nType"), kErrorBars.barType)
        .editor(EditorType_ListPopup, 2),
    spacing(QT_TRANSLATE_NOOP("Column", "Error Bar\nSpacing"), kErrorBars.skipMode,
            kErrorBars.skipping),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Error Bar\nColor"), kErrorBars.color),
    percent(QT_TRANSLATE_NOOP("Column", "Error Bar\nSize"), kErrorBars.size,
            prompts::kErrorBarSize),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kErrorBars.lineThickness,
            prompts::kLineThickness),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(6).layer(style::linePlotLayers.showErrorBars).rowMustBeShown();

const ColumnTable& LineErrorBarsModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
