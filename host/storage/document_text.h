// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/storage/stored_document.h"

#include <QString>

#include <functional>
#include <stdexcept>
#include <string>

namespace corvala::host::storage {

constexpr const char* kFormatName = "corvala document"; ///< the value of "format"
constexpr int kFormatVersion = 1;

/// The name of a style value in texts, such as "ContourGroups.Var[2]".
std::string pathText(const Attribute& attribute, std::int64_t index = -1);

/// JSON, one thing a line; the same for the same document in any locale. Names of files are
/// relative to the folder.
std::string toText(const StoredDocument& document, const QString& folder);

/// What is wrong with the text of a document, and where.
class DocumentError : public std::runtime_error
{
public:
    enum class Kind { Damaged, NewerVersion };

    DocumentError(const QString& place, const QString& reason, Kind kind = Kind::Damaged);
    const QString& place() const { return m_place; } ///< such as "line 12" or "frames[1].values"
    QString reason() const { return QString::fromUtf8(what()); }
    Kind kind() const { return m_kind; }

private:
    QString m_place;
    Kind m_kind;
};

class JsonPlace;

/// Fails at the place of what means nothing in a view of a plot type.
using ViewCheck = std::function<void(int plotType, const JsonPlace& view)>;
/// Who draws knows views, and checks those that are read; without a check all are taken.
void setViewCheck(ViewCheck check);

/// Reads what toText has written. Throws a DocumentError for a text that is not whole, unknown
/// names, and values that are of another type or outside their range.
StoredDocument documentFromText(const std::string& text, const QString& folder);

} // namespace corvala::host::storage
