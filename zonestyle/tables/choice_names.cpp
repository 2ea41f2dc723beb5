// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/tables/choice_names.h"

#include <QCoreApplication>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

QString textOf(const Choice& choice)
{
    return QCoreApplication::translate("StyleValues", choice.name);
}

QString nameOf(const Choices& choices, int value)
{
    const char* const name = choices.nameOf(value);
    return name ? textOf({value, name}) : QString();
}

QStringList namesOf(const Choices& choices)
{
    QStringList names;
    for (const Choice& choice : choices)
        names.append(textOf(choice));
    return names;
}

std::optional<int> valueOf(const Choices& choices, const QString& name)
{
    const int position = positionOf(name, namesOf(choices));
    return position < 0 ? std::nullopt : std::optional<int>(choices.begin()[position].value);
}

int positionOf(const QString& entry, const QStringList& entries)
{
    const int exact = entries.indexOf(entry);
    if (exact >= 0)
        return exact;
    const auto found = std::find_if(entries.cbegin(), entries.cend(), [&](const QString& other) {
        return other.compare(entry, Qt::CaseInsensitive) == 0;
    });
    return found == entries.cend() ? -1 : static_cast<int>(found - entries.cbegin());
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
