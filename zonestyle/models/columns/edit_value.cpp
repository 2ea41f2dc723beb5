// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/edit_value.h"

#include <sdk/common_ui/number_text.h>
#include <vocabulary/style.h>

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

static int rounded(double number)
{
    constexpr double kLowest = std::numeric_limits<int>::lowest();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return std::isfinite(number) ? static_cast<int>(qRound64(std::clamp(number, kLowest, kHighest)))
                                 : 0;
}

static bool isText(const QVariant& value)
{
    return value.userType() == QMetaType::QString;
}

static bool isReal(const QVariant& value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

static int asItIs(const QVariant& value)
{
    return isReal(value) ? rounded(value.toDouble()) : value.toInt();
}

static std::optional<int> wholeNumber(const QString& text)
{
    bool isNumber = false;
    const int number = QLocale::c().toInt(text.trimmed(), &isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

static std::optional<double> number(QString text)
{
    text = text.trimmed();
    if (text.endsWith(QLatin1Char('%')))
        text.chop(1);
    return corvala::ui::numberFrom(text);
}

int editedNumber(const QVariant& value)
{
    return isText(value) ? rounded(number(value.toString()).value_or(0.0)) : asItIs(value);
}

QString numberProblem(const QString& text, const style::Entry& entry)
{
    const std::optional<double> entered = number(text);
    const bool isInRange = entered && entry.minimum <= *entered && *entered <= entry.maximum;
    if (isInRange && (entry.isReal() || *entered == std::floor(*entered)))
        return {};
    const auto shown = [](double limit) { return QString::number(limit, 'g', 10); };
    if (entry.maximum >= style::kLargest) // as much as a number can be
        return QCoreApplication::translate("Cell", "%1 or more").arg(shown(entry.minimum));
    return QCoreApplication::translate("Cell", "%1 to %2")
        .arg(shown(entry.minimum), shown(entry.maximum));
}

std::optional<int> editedChoice(const QVariant& value, const style::Choices& choices)
{
    if (!isText(value))
        return asItIs(value);
    const std::optional<int> choice = tables::valueOf(choices, value.toString());
    return choice ? choice : wholeNumber(value.toString());
}

std::optional<int> editedPosition(const QVariant& value, const QStringList& entries)
{
    if (!isText(value))
        return asItIs(value);
    const int position = tables::positionOf(value.toString(), entries);
    return position >= 0 ? position : wholeNumber(value.toString());
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
