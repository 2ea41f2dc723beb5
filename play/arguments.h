// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/script.h"

#include <QDir>

namespace corvala::play {

using host::shown;

/// Read access to a JSON object of a script, which knows where the script lies.
class Arguments : public host::JsonObject
{
public:
    /// Relative file names start in `folder`.
    Arguments(nlohmann::json object, const QString& folder)
        : JsonObject(std::move(object))
        , m_folder(folder)
    {
    }

    const QString& folder() const { return m_folder; }
    QString file(const char* key) const; ///< absolute path
    QString absolute(const QString& file) const { return QDir(m_folder).absoluteFilePath(file); }
    /// The object inside this one under the key.
    Arguments inner(const char* key) const;

private:
    QString m_folder;
};

} // namespace corvala::play
