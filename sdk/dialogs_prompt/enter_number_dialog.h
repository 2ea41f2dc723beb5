// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDialog>

#include <optional>

namespace corvala::dialogs::prompt {

/// What a prompt for one number says and accepts.
struct NumberPrompt
{
    QString title;
    QString label;
    double minimum = 0.0;
    double maximum = 0.0;
    int decimals = 2; ///< that are shown; 0 for whole numbers
};

/// Asks for a number, from a present one on; nothing when the user cancels, or what the number was
/// for is gone. The range stands beside the field, and a number outside it is not accepted.
std::optional<double> enterNumber(QWidget& parent, const NumberPrompt& prompt, double present);

} // namespace corvala::dialogs::prompt
