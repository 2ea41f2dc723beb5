// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/style_action.h"
#include "zonestyle/models/columns/column_descriptor.h"
#include "zonestyle/models/columns/edit_value.h"

#include <algorithm>
#include <limits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

static std::optional<int> positionIn(const CellReader list, const EditRequest& edit)
{
    // Long lists, of zones for example, are made for a text alone.
    const bool isText = edit.value.userType() == QMetaType::QString;
    const Cell first {edit.frame, edit.cells.first().row() + 1, edit.column, edit.model};
    return editedPosition(edit.value, isText && list ? list(first).toStringList() : QStringList());
}

/// Stops at the highest number, which no list reaches.
static int shifted(int position, int first)
{
    constexpr qint64 kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(qint64 {position} + first, kHighest));
}

std::optional<int> EditRequest::choice() const
{
    const Choices choices = column.choices(frame);
    if (!choices.isEmpty())
        return editedChoice(value, choices);
    const std::optional<int> position = positionIn(column.edit, *this);
    return position ? std::optional<int>(shifted(*position, column.firstChoice)) : std::nullopt;
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
