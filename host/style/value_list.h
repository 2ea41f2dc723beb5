// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/schema.h"

#include <string>
#include <variant>
#include <vector>

namespace corvala::host {

/// The values of one scope that has no maps (a frame, the document), by attribute and index.
class ValueList
{
public:
    using Value = std::variant<std::int32_t, double, std::string>;

    explicit ValueList(Scope scope);

    /// `index` is from 1 for an indexed attribute, else ignored. Not checked.
    const Value& get(const Attribute& attribute, std::int64_t index = -1) const;
    void set(const Attribute& attribute, std::int64_t index, Value value);

    std::int32_t integer(const Attribute& attribute, std::int64_t index = -1) const
    {
        return std::get<std::int32_t>(get(attribute, index));
    }
    double real(const Attribute& attribute, std::int64_t index = -1) const
    {
        return std::get<double>(get(attribute, index));
    }

private:
    std::size_t position(const Attribute& attribute, std::int64_t index) const;

    std::vector<std::size_t> m_first; ///< by slot
    std::vector<Value> m_values;
};

} // namespace corvala::host
