// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_action.h"

#include <array>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using ThreeValues = std::array<int, 3>;
using ThreeKeys = std::array<style::IntegerKey, 3>;

constexpr ThreeKeys keysOf(const style::IndexRange& range)
{
    return {{range.min, range.max, range.skip}};
}

constexpr ThreeKeys keysOf(const style::IndexSkip& skip)
{
    return {{skip.i, skip.j, skip.k}};
}

/// Writes three integers to three values, such as those of an index range, as one undo step.
class ThreeValueAction : public StyleAction<int>
{
public:
    ThreeValueAction(const QString& text, const QModelIndexList& selectedIndexes,
                     const ThreeValues& values, const ThreeKeys& keys);

    void invokeAction() override;
    bool isPresentValue() const override;

private:
    ThreeValues m_values;
    ThreeKeys m_keys;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
