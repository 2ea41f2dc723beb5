// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/json_place.h"

#include "host/operations/json_object.h"

#include <QCoreApplication>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace corvala::host::storage {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

QString JsonPlace::path() const
{
    if (!m_parent)
        return {};
    const QString before = m_parent->path();
    if (!m_key)
        return QStringLiteral("%1[%2]").arg(before).arg(m_position);
    const QString key = QString::fromStdString(*m_key);
    return before.isEmpty() ? key : before + QLatin1Char('.') + key;
}

void JsonPlace::fail(const QString& reason) const
{
    throw DocumentError(path(), reason);
}

static QString brief(const JsonPlace::Json& value)
{
    constexpr int kLongest = 60;
    const QString text = shown(value);
    return text.size() <= kLongest ? text : text.left(kLongest) + QStringLiteral("...");
}

void JsonPlace::readMembers(const std::vector<Reader>& readers) const
{
    forEachMember([&readers](const std::string& key, const JsonPlace& member) {
        const bool isKnown =
            std::any_of(readers.begin(), readers.end(),
                        [&key](const Reader& reader) { return key == reader.key; });
        if (!isKnown)
            member.fail(Text::tr("unknown name"));
    });
    for (const Reader& reader : readers)
        if (const auto member = m_value.find(reader.key); member != m_value.end())
            reader.read(JsonPlace(*member, *this, &member.key(), 0));
}

void JsonPlace::forEachMember(
    const std::function<void(const std::string&, const JsonPlace&)>& read) const
{
    if (!m_value.is_object())
        fail(Text::tr("must be an object, not %1").arg(brief(m_value)));
    for (auto member = m_value.begin(); member != m_value.end(); ++member)
        read(member.key(), JsonPlace(member.value(), *this, &member.key(), 0));
}

void JsonPlace::forEachElement(const std::function<void(const JsonPlace&)>& read) const
{
    if (!m_value.is_array())
        fail(Text::tr("must be a list, not %1").arg(brief(m_value)));
    for (std::size_t i = 0; i < m_value.size(); ++i)
        read(JsonPlace(m_value[i], *this, nullptr, i + 1));
}

JsonPlace JsonPlace::member(const char* key) const
{
    if (!m_value.is_object())
        fail(Text::tr("must be an object, not %1").arg(brief(m_value)));
    const auto found = m_value.find(key);
    if (found == m_value.end())
        fail(Text::tr("\"%1\" is missing").arg(QLatin1String(key)));
    return JsonPlace(*found, *this, &found.key(), 0);
}

bool JsonPlace::boolean() const
{
    if (!m_value.is_boolean())
        fail(Text::tr("must be true or false, not %1").arg(brief(m_value)));
    return m_value.get<bool>();
}

const std::string& JsonPlace::text() const
{
    if (!m_value.is_string())
        fail(Text::tr("must be a text, not %1").arg(brief(m_value)));
    return m_value.get_ref<const std::string&>();
}

double JsonPlace::number() const
{
    if (!m_value.is_number())
        fail(Text::tr("must be a number, not %1").arg(brief(m_value)));
    const double number = m_value.get<double>();
    if (!(std::isfinite(number)))
        fail(Text::tr("the number is too large"));
    return number;
}

std::int64_t JsonPlace::integer(std::int64_t minimum, std::int64_t maximum) const
{
    const double value = number();
    if (!(value == std::floor(value) && value >= double(minimum) && value <= double(maximum)))
        fail(Text::tr("must be a whole number from %1 to %2, not %3")
                 .arg(minimum)
                 .arg(maximum)
                 .arg(brief(m_value)));
    return static_cast<std::int64_t>(value);
}

NumberSet JsonPlace::numbers(std::int64_t count) const
{
    NumberSet set;
    if (text() == "all" || !fromText(text(), 0, set))
        fail(Text::tr("%1 is no set of numbers such as \"1-3,7\"").arg(brief(m_value)));
    if (!set.isEmpty() && static_cast<std::int64_t>(set.maximum()) > count)
        fail(Text::tr("%1 goes beyond %2, the last number").arg(brief(m_value)).arg(count));
    return set;
}

std::int64_t JsonPlace::keyNumber(std::int64_t minimum, std::int64_t maximum) const
{
    std::int64_t number = 0;
    std::from_chars(m_key->data(), m_key->data() + m_key->size(), number);
    if (std::to_string(number) != *m_key || number < minimum || number > maximum)
        fail(Text::tr("the name must be a number from %1 to %2").arg(minimum).arg(maximum));
    return number;
}

} // namespace corvala::host::storage
