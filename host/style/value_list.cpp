// SPDX-License-Identifier: BSD-3-Clause
#include "host/style/value_list.h"

namespace corvala::host {

static ValueList::Value defaultOf(const Attribute& attribute)
{
    if (attribute.isText())
        return attribute.defaultText;
    if (attribute.isReal())
        return attribute.defaultNumber;
    return static_cast<std::int32_t>(attribute.defaultNumber);
}

ValueList::ValueList(Scope scope)
{
    const Schema& schema = Schema::instance();
    for (const AttributeId id : schema.inScope(scope)) {
        const Attribute& attribute = schema.at(id);
        m_first.push_back(m_values.size());
        const int places = attribute.indexCount > 0 ? attribute.indexCount : 1;
        m_values.insert(m_values.end(), static_cast<std::size_t>(places), defaultOf(attribute));
    }
}

std::size_t ValueList::position(const Attribute& attribute, std::int64_t index) const
{
    const std::size_t first = m_first[static_cast<std::size_t>(attribute.slot)];
    return attribute.indexCount > 0 ? first + static_cast<std::size_t>(index - 1) : first;
}

const ValueList::Value& ValueList::get(const Attribute& attribute, std::int64_t index) const
{
    return m_values[position(attribute, index)];
}

void ValueList::set(const Attribute& attribute, std::int64_t index, Value value)
{
    m_values[position(attribute, index)] = std::move(value);
}

} // namespace corvala::host
