// SPDX-License-Identifier: BSD-3-Clause
#include "play/arguments.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace corvala::play {

using Json = nlohmann::json;

QString shown(const Json& value)
{
    return QString::fromStdString(value.dump(-1, ' ', false, Json::error_handler_t::replace));
}

[[noreturn]] static void failKind(const char* key, const Json& value, const QString& wanted)
{
    throw ScriptError(
        Text::tr("\"%1\" must be %2, not %3").arg(QLatin1String(key), wanted, shown(value)));
}

const Json& Arguments::at(const char* key) const
{
    const auto found = m_object.find(key);
    if (found == m_object.end())
        throw ScriptError(Text::tr("\"%1\" is missing").arg(QLatin1String(key)));
    return *found;
}

QString Arguments::text(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_string())
        failKind(key, value, Text::tr("a text"));
    return QString::fromStdString(value.get<std::string>());
}

QString Arguments::text(const char* key, const QString& missing) const
{
    return has(key) ? text(key) : missing;
}

bool Arguments::boolean(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_boolean())
        failKind(key, value, Text::tr("true or false"));
    return value.get<bool>();
}

bool Arguments::boolean(const char* key, bool missing) const
{
    return has(key) ? boolean(key) : missing;
}

double Arguments::number(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_number())
        failKind(key, value, Text::tr("a number"));
    return value.get<double>();
}

double Arguments::number(const char* key, double missing) const
{
    return has(key) ? number(key) : missing;
}

std::int64_t Arguments::integer(const char* key) const
{
    const double value = number(key);
    if (value != std::floor(value) || std::abs(value) > 9e15)
        failKind(key, at(key), Text::tr("a whole number"));
    return static_cast<std::int64_t>(value);
}

std::int64_t Arguments::integer(const char* key, std::int64_t missing) const
{
    return has(key) ? integer(key) : missing;
}

QStringList Arguments::texts(const char* key) const
{
    const Json& value = at(key);
    if (value.is_string())
        return {text(key)};
    const auto isText = [](const Json& element) { return element.is_string(); };
    if (!value.is_array() || value.empty() || !std::all_of(value.begin(), value.end(), isText))
        failKind(key, value, Text::tr("a text or a list of texts"));
    QStringList texts;
    for (const Json& element : value)
        texts << QString::fromStdString(element.get<std::string>());
    return texts;
}

const Json& Arguments::list(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_array())
        failKind(key, value, Text::tr("a list"));
    return value;
}

QString Arguments::file(const char* key) const
{
    const QString name = text(key);
    if (name.isEmpty())
        failKind(key, at(key), Text::tr("a file name"));
    return absolute(name);
}

host::NumberSet Arguments::maps(const char* key, std::int64_t count) const
{
    return mapsFromText(text(key), count);
}

void Arguments::allowOnly(std::initializer_list<const char*> known) const
{
    for (const auto& [key, value] : m_object.items()) {
        const auto isKey = [&name = key](const char* other) { return name == other; };
        if (std::none_of(known.begin(), known.end(), isKey))
            throw ScriptError(Text::tr("unknown key \"%1\"").arg(QString::fromStdString(key)));
    }
}

Arguments Arguments::inner(const char* key) const
{
    const Json& value = at(key);
    if (!value.is_object())
        failKind(key, value, Text::tr("an object"));
    return Arguments(value, m_folder);
}

host::NumberSet mapsFromText(const QString& text, std::int64_t count)
{
    host::NumberSet set;
    if (!host::fromText(text.toStdString(), count, set))
        throw ScriptError(Text::tr("\"%1\" is no set of maps").arg(text));
    return set;
}

} // namespace corvala::play
