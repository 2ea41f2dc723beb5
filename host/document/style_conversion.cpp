// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/style_conversion.h"

#include <QString>
#include <QTextCodec>

#include <algorithm>
#include <cmath>

namespace corvala::host {

static bool isEnumerator(const Attribute& attribute, double number)
{
    return std::any_of(attribute.choices.begin(), attribute.choices.end(),
                       [&](const style::Choice& choice) { return choice.value == number; });
}

static bool isColor(const Attribute& attribute, double number)
{
    return style::isPaletteColor(number)
        || (attribute.groupColors && number >= style::kFirstGroupColor
            && number <= style::kRgbColor);
}

static bool isInRange(const Attribute& attribute, double number, const NamedNumbers& limits)
{
    switch (attribute.type) {
    case ValueType::Enumeration: return isEnumerator(attribute, number);
    case ValueType::Color: return isColor(attribute, number);
    case ValueType::Variable:
        return number >= attribute.minimum && number <= static_cast<double>(limits.variables);
    case ValueType::Zone:
        return number >= attribute.minimum && number <= static_cast<double>(limits.zones);
    default: return number >= attribute.minimum && number <= attribute.maximum;
    }
}

static StyleWriteResult_e convertNumber(const Attribute& attribute, double number,
                                        const NamedNumbers& limits, ValueList::Value& result)
{
    if (attribute.type == ValueType::Bool) {
        result = std::int32_t(number != 0.0 ? 1 : 0); // a NaN is not 0
        return StyleWrite_Ok;
    }
    if (!attribute.isReal() && (std::isnan(number) || number != std::floor(number)))
        return StyleWrite_WrongType;
    if (!isInRange(attribute, number, limits))
        return StyleWrite_OutOfRange;
    if (attribute.isReal())
        result = number;
    else
        result = static_cast<std::int32_t>(number);
    return StyleWrite_Ok;
}

static StyleWriteResult_e convertText(const Attribute& attribute, const std::string& text,
                                      ValueList::Value& result)
{
    QTextCodec::ConverterState state;
    const QString decoded = QTextCodec::codecForName("UTF-8")->toUnicode(
        text.data(), static_cast<int>(text.size()), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        return StyleWrite_WrongType;
    if (attribute.maximum > 0 && decoded.toUcs4().size() != static_cast<int>(attribute.maximum))
        return StyleWrite_OutOfRange;
    result = text;
    return StyleWrite_Ok;
}

StyleWriteResult_e convertValue(const Attribute& attribute, const StyleInput& input,
                                const NamedNumbers& limits, ValueList::Value& result)
{
    if (const auto* text = std::get_if<std::string>(&input))
        return attribute.isText() ? convertText(attribute, *text, result) : StyleWrite_WrongType;
    if (attribute.isText() || std::holds_alternative<NumberSet>(input))
        return StyleWrite_WrongType;
    const double number = std::holds_alternative<bool>(input) ? (std::get<bool>(input) ? 1.0 : 0.0)
                                                              : std::get<double>(input);
    return convertNumber(attribute, number, limits, result);
}

StyleWriteResult_e convertValue(const Attribute& attribute, const StyleInput& input,
                                const Frame* frame, ValueList::Value& result)
{
    const DataSet* const data = frame ? frame->data() : nullptr;
    const NamedNumbers limits =
        data ? NamedNumbers {data->variableCount(), data->zoneCount()} : NamedNumbers();
    return convertValue(attribute, input, limits, result);
}

} // namespace corvala::host
