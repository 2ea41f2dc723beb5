// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"

#include <QString>
#include <QStringList>

#include <nlohmann/json.hpp>

#include <cstdint>
#include <initializer_list>
#include <stdexcept>

namespace corvala::host {

/// Why a text cannot be read, as a sentence for the user.
class TextError : public std::runtime_error
{
public:
    explicit TextError(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }
    QString message() const { return QString::fromUtf8(what()); }
};

/// Read access to a JSON object. Every getter throws a TextError that names the key when the value
/// is missing or of another kind.
class JsonObject
{
public:
    explicit JsonObject(nlohmann::json object)
        : m_object(std::move(object))
    {
    }

    bool has(const char* key) const { return m_object.contains(key); }
    const nlohmann::json& at(const char* key) const;
    const nlohmann::json& object() const { return m_object; }

    QString text(const char* key) const;
    QString text(const char* key, const QString& missing) const;
    bool boolean(const char* key) const;
    bool boolean(const char* key, bool missing) const;
    double number(const char* key) const;
    double number(const char* key, double missing) const;
    std::int64_t integer(const char* key) const; ///< a number without a fraction
    std::int64_t integer(const char* key, std::int64_t missing) const;
    QStringList texts(const char* key) const; ///< one text or a list of texts
    const nlohmann::json& list(const char* key) const; ///< elements of any kind
    /// A set of numbers such as "1-3,7"; `count` is what "all" means. The order is lost.
    NumberSet numbers(const char* key, std::int64_t count) const;

    /// Throws for a key that is none of `known`.
    void allowOnly(std::initializer_list<const char*> known) const;
    /// Throws that the value under the key must be what is wanted, such as "a text".
    [[noreturn]] void failKind(const char* key, const QString& wanted) const;

private:
    nlohmann::json m_object;
};

/// A set of numbers from its text; throws a TextError that names the text.
NumberSet numbersFromText(const QString& text, std::int64_t count);

/// A JSON value as it would stand in a text, for messages.
QString shown(const nlohmann::json& value);

} // namespace corvala::host
