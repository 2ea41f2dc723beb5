// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/storage/document_text.h"

#include <nlohmann/json.hpp>

#include <functional>

namespace corvala::host::storage {

/// A value in a JSON text that knows where it stands. Lives shorter than what it stands in. The
/// functions throw a DocumentError that names the place.
class JsonPlace
{
public:
    using Json = nlohmann::json;

    explicit JsonPlace(const Json& root)
        : m_value(root)
    {
    }

    const Json& json() const { return m_value; }
    QString path() const; ///< such as "frames[2].zones"; empty at the root
    [[noreturn]] void fail(const QString& reason) const;

    /// Reads the members of an object that are there, in the order of the readers; a member
    /// without one is an error.
    struct Reader
    {
        const char* key;
        std::function<void(const JsonPlace&)> read;
    };
    void readMembers(const std::vector<Reader>& readers) const;
    void
    forEachMember(const std::function<void(const std::string& key, const JsonPlace&)>& read) const;
    void forEachElement(const std::function<void(const JsonPlace&)>& read) const;
    JsonPlace member(const char* key) const; ///< of an object that must have it

    const std::string& text() const;
    bool boolean() const;
    double number() const;
    std::int64_t integer(std::int64_t minimum, std::int64_t maximum) const;
    NumberSet numbers(std::int64_t count) const; ///< of 1 to `count`
    /// The key under which the value stands, as a number; it has to be written in one way only.
    std::int64_t keyNumber(std::int64_t minimum, std::int64_t maximum) const;

private:
    JsonPlace(const Json& value, const JsonPlace& parent, const std::string* key,
              std::size_t position)
        : m_value(value)
        , m_parent(&parent)
        , m_key(key)
        , m_position(position)
    {
    }

    const Json& m_value;
    const JsonPlace* m_parent = nullptr;
    const std::string* m_key = nullptr; ///< in an object
    std::size_t m_position = 0; ///< in a list, from 1
};

} // namespace corvala::host::storage
