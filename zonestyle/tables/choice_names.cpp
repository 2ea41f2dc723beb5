// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/tables/choice_names.h"

#include <QCoreApplication>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

QString Choice::text() const
{
    return QCoreApplication::translate("Choice", name);
}

QString ChoiceNames::name(int value) const
{
    const Choice* found =
        std::find_if(begin(), end(), [&](const Choice& choice) { return choice.value == value; });
    return found == end() ? QString() : found->text();
}

QStringList ChoiceNames::names() const
{
    QStringList names;
    for (const Choice& choice : *this)
        names.append(choice.text());
    return names;
}

std::optional<int> ChoiceNames::valueOf(const QString& name) const
{
    const int position = positionOf(name, names());
    return position < 0 ? std::nullopt : std::optional<int>(begin()[position].value);
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
