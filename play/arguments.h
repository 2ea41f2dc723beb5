// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"
#include "play/script.h"

#include <QDir>
#include <QStringList>

#include <cstdint>
#include <initializer_list>
#include <optional>

namespace corvala::play {

/// Read access to a JSON object of a script. Every getter throws a ScriptError that names the key
/// when the value is missing or of another kind.
class Arguments
{
public:
    /// `folder` is where the script lies: relative file names start there.
    Arguments(const nlohmann::json& object, const QString& folder)
        : m_object(object)
        , m_folder(folder)
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
    QString file(const char* key) const; ///< absolute path
    QString absolute(const QString& file) const { return QDir(m_folder).absoluteFilePath(file); }
    /// A set of maps such as "1-3,7"; `count` is what "all" means. The order is lost.
    host::NumberSet maps(const char* key, std::int64_t count) const;

    /// Throws for a key that is none of `known`.
    void allowOnly(std::initializer_list<const char*> known) const;
    /// The same for an object inside this one.
    Arguments inner(const char* key) const;

private:
    nlohmann::json m_object;
    QString m_folder;
};

/// A set of maps from its text; throws a ScriptError that names the text.
host::NumberSet mapsFromText(const QString& text, std::int64_t count);

/// A JSON value as it would stand in a script, for messages.
QString shown(const nlohmann::json& value);

} // namespace corvala::play
