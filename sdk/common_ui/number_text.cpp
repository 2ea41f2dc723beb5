// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common_ui/number_text.h"

#include <cmath>

namespace corvala::ui {

static std::optional<double> readIn(QLocale locale, const QString& text)
{
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    bool isNumber = false;
    const double number = locale.toDouble(text, &isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<double> numberFrom(const QString& text, const QLocale& locale)
{
    const QString trimmed = text.trimmed();
    std::optional<double> number = readIn(QLocale::c(), trimmed);
    for (const QLocale& notation : {locale, QLocale::system()}) { // a program may run in "C"
        if (!number)
            number = readIn(notation, trimmed);
    }
    return number;
}

QValidator::State NumberValidator::validate(QString& text, int&) const
{
    return numberFrom(text) ? Acceptable : Intermediate;
}

} // namespace corvala::ui
