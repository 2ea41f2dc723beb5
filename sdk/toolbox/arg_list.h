// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/toolbox/set.h>

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace corvala::toolbox {

/// Keyed arguments of one host call. A key appended again replaces its value.
class ArgList
{
public:
    using Value = std::variant<CvlInt64, double, std::string, Set, std::vector<std::int32_t>>;

    void append(std::string key, CvlInt64 value) { put(std::move(key), value); }
    void append(std::string key, double value) { put(std::move(key), value); }
    void append(std::string key, std::string value) { put(std::move(key), std::move(value)); }
    void append(std::string key, const Set& value) { put(std::move(key), value); }
    void append(std::string key, std::vector<std::int32_t> value)
    {
        put(std::move(key), std::move(value));
    }

    void clear() { m_values.clear(); }
    bool has(const std::string& key) const { return m_values.count(key) != 0; }

    /// The value under the key when it has type T, else null.
    template<class T>
    const T* get(const std::string& key) const
    {
        const auto found = m_values.find(key);
        return found == m_values.end() ? nullptr : std::get_if<T>(&found->second);
    }

private:
    void put(std::string key, Value value) { m_values[std::move(key)] = std::move(value); }

    std::map<std::string, Value> m_values;
};

} // namespace corvala::toolbox
