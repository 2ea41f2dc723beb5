// SPDX-License-Identifier: BSD-3-Clause
#include "host/operations/json_object.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace corvala::host {

using Json = nlohmann::json;

/// Translates what is wrong with a text.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(OperationText)
};

QString shown(const Json& value)
{
    return QString::fromStdString(value.dump(-1, ' ', false, Json::error_handler_t::replace));
}

void JsonObject::failKind(const char* key, const QString& wanted) const
{
    throw TextError(
        Text::tr("\"%1\" must be %2, not %3").arg(QLatin1String(key), wanted, shown(at(key))));
}

const Json& JsonObject::at(const char* key) const
{
    const auto found = m_object.find(key);
    if (found == m_object.end())
        throw TextError(Text::tr("\"%1\" is missing").arg(QLatin1String(key)));
    return *found;
}

QString JsonObject::text(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_string())
        failKind(key, Text::tr("a text"));
    return QString::fromStdString(value.get<std::string>());
}

QString JsonObject::text(const char* key, const QString& missing) const
{
    return has(key) ? text(key) : missing;
}

bool JsonObject::boolean(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_boolean())
        failKind(key, Text::tr("true or false"));
    return value.get<bool>();
}

bool JsonObject::boolean(const char* key, bool missing) const
{
    return has(key) ? boolean(key) : missing;
}

double JsonObject::number(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_number())
        failKind(key, Text::tr("a number"));
    return value.get<double>();
}

double JsonObject::number(const char* key, double missing) const
{
    return has(key) ? number(key) : missing;
}

std::int64_t JsonObject::integer(const char* key) const
{
    const double value = number(key);
    if (value != std::floor(value) || std::abs(value) > 9e15)
        failKind(key, Text::tr("a whole number"));
    return static_cast<std::int64_t>(value);
}

std::int64_t JsonObject::integer(const char* key, std::int64_t missing) const
{
    return has(key) ? integer(key) : missing;
}

QStringList JsonObject::texts(const char* key) const
{
    const Json& value = at(key);
    if (value.is_string())
        return {text(key)};
    const auto isText = [](const Json& element) { return element.is_string(); };
    if (!value.is_array() || value.empty() || !std::all_of(value.begin(), value.end(), isText))
        failKind(key, Text::tr("a text or a list of texts"));
    QStringList texts;
    for (const Json& element : value)
        texts << QString::fromStdString(element.get<std::string>());
    return texts;
}

const Json& JsonObject::list(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_array())
        failKind(key, Text::tr("a list"));
    return value;
}

NumberSet JsonObject::numbers(const char* key, std::int64_t count) const
{
    NumberSet set;
    if (!fromText(text(key).toStdString(), count, set))
        failKind(key, Text::tr("a set of numbers such as \"1-3,7\""));
    return set;
}

void JsonObject::allowOnly(std::initializer_list<const char*> known) const
{
    for (const auto& [key, value] : m_object.items()) {
        const auto isKey = [&name = key](const char* other) { return name == other; };
        if (std::none_of(known.begin(), known.end(), isKey))
            throw TextError(Text::tr("unknown key \"%1\"").arg(QString::fromStdString(key)));
    }
}

NumberSet numbersFromText(const QString& text, std::int64_t count)
{
    NumberSet set;
    if (!fromText(text.toStdString(), count, set))
        throw TextError(Text::tr("\"%1\" is no set of numbers").arg(text));
    return set;
}

} // namespace corvala::host
