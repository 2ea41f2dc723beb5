// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/style_action.h"
#include "zonestyle/models/columns/column_descriptor.h"
#include "zonestyle/models/columns/edit_value.h"

#include <algorithm>
#include <limits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// What the editor offers. Long lists, of zones for example, are made for a text alone.
static QStringList entriesFor(const EditRequest& edit)
{
    const bool isText = edit.value.userType() == QMetaType::QString;
    const Cell first {edit.frame, edit.cells.first().row() + 1, edit.column, edit.model};
    const QVariant offered = isText && edit.column.edit ? edit.column.edit(first) : QVariant();
    const bool isList = offered.userType() == QMetaType::QStringList; // else the text to begin with
    return isList ? offered.toStringList() : QStringList();
}

/// What a text stands for is one of the entries, when there are any.
static bool isOffered(int choice, const Choices& choices, const QStringList& entries)
{
    const QString name = tables::nameOf(choices, choice);
    return name.isEmpty() || entries.isEmpty() || entries.contains(name);
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
    const QStringList entries = entriesFor(*this);
    if (!choices.isEmpty()) {
        const std::optional<int> choice = editedChoice(value, choices);
        return choice && isOffered(*choice, choices, entries) ? choice : std::nullopt;
    }
    const std::optional<int> position = editedPosition(value, entries);
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
