// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/action.h"
#include "zonestyle/models/line_model_abstract.h"

#include <vocabulary/style.h>

#include <optional>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// Chooses which points of the selected line maps are marked: every n-th, or such as lie a distance
/// apart. Two style values, of which the number is written last.
class LineModelAbstract::SkipAction : public actions::Action
{
public:
    enum class Mode { Index, EnteredIndex, Distance, EnteredDistance };

    /// `number` counts for the modes that do not ask: an index step, or a distance in percent of
    /// the frame.
    SkipAction(const QString& text, const QModelIndexList& selectedIndexes,
               const style::ChoiceKey<SkipMode_e>& skipMode, style::RealKey skipping, Mode mode,
               double number);

    void invokeAction() override;
    bool isPresentValue() const override;

private:
    bool asks() const { return m_mode == Mode::EnteredIndex || m_mode == Mode::EnteredDistance; }
    SkipMode_e writtenMode() const;
    std::optional<double> entered() const;

    style::ChoiceKey<SkipMode_e> m_skipMode;
    style::RealKey m_skipping;
    Mode m_mode;
    double m_number;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
