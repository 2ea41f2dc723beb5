// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/style_action.h"
#include "zonestyle/models/columns/column_descriptor.h"
#include "zonestyle/models/columns/edit_value.h"

#include <limits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

static std::optional<int> positionIn(const CellReader list, const EditRequest& edit)
{
    // Long lists, of zones for example, are made for a text alone.
    const bool isText = edit.value.userType() == QMetaType::QString;
    const Cell first {edit.frame, edit.cells.first().row() + 1, edit.column};
    return editedPosition(edit.value, isText && list ? list(first).toStringList() : QStringList());
}

std::optional<int> EditRequest::choice() const
{
    if (!column.choices.isEmpty())
        return editedChoice(value, column.choices);
    std::optional<int> position = positionIn(column.edit, *this);
    if (position && *position < std::numeric_limits<int>::max())
        *position += column.firstChoice;
    return position;
}

int EditRequest::number() const
{
    return editedNumber(value);
}

bool EditRequest::isChecked() const
{
    return value.toInt() == Qt::Checked;
}

void EditRequest::write(int number) const
{
    actions::runAction<actions::StyleAction<int>>(QString(), cells, number, column.editTarget());
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
