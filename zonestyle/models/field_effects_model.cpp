// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_effects_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

/// The frame blanks by values. Deliberate: the last constraint does not count.
static bool hasConstraints(const Cell& cell)
{
    static constexpr int kCounted = style::BlankingConstraint::kCount - 1;
    const auto& blanking = style::blanking.value;
    bool hasAny = false;
    for (int constraint = 1; constraint <= kCounted; ++constraint)
        hasAny = hasAny || cell.value(blanking.constraint.include, constraint);
    return hasAny && cell.value(blanking.include);
}

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Use Value\nBlanking"),
             style::fieldMap.effects.useValueBlanking)
        .relevantWhen(hasConstraints),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(1);

const ColumnTable& FieldEffectsModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
