// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLocale>
#include <QValidator>

#include <optional>

namespace corvala::ui {

/// The number that a text says, with a point or with the decimal sign of the locale or of the
/// system; nothing for other texts, for numbers that are not finite, and where digits are grouped,
/// so that no text is taken for another number than was meant.
std::optional<double> numberFrom(const QString& text, const QLocale& locale = {});

/// Lets a line edit take the texts of numberFrom.
class NumberValidator : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;
    State validate(QString& text, int& position) const override;
};

} // namespace corvala::ui
