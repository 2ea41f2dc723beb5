// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/style.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvala::host {

using style::DefaultRule;
using style::Scope;
using style::ValueType;

/// Index of a leaf in the schema: the Id of the value in the dictionary.
using AttributeId = style::Id;
constexpr AttributeId kNoAttribute = style::kNoValue; ///< unknown path
constexpr AttributeId kGroupAttribute = -2; ///< the path names a group, not a value

/// One style value of the tree.
struct Attribute : style::Facts
{
    AttributeId id = kNoAttribute;
    std::vector<std::string> names; ///< the path, two to five names, or one
    std::string defaultText;
    int slot = 0; ///< position among the attributes of its scope
};

/// The dictionary of style values as the engine needs it: found by path, numbered within its scope.
/// Immutable.
class Schema
{
public:
    static const Schema& instance();

    /// The attribute of a path, kGroupAttribute, or kNoAttribute. Null names end the path.
    /// Allocates nothing.
    AttributeId find(const char* const* names, int count) const;
    AttributeId find(const std::vector<std::string>& names) const;

    /// The id must be that of a value; a key of the dictionary is one.
    const Attribute& at(AttributeId id) const { return m_attributes[static_cast<std::size_t>(id)]; }
    const std::vector<Attribute>& all() const { return m_attributes; }
    /// Attributes of a scope by slot.
    const std::vector<AttributeId>& inScope(Scope scope) const
    {
        return m_scopes[static_cast<std::size_t>(scope)];
    }

    /// Identifier of a single path name, from 0; -2 for a name that no path uses.
    int nameId(std::string_view name) const;
    /// The name of an identifier, or null.
    const char* nameOf(int nameId) const;

private:
    Schema();
    void add(const style::Entry& entry);

    struct Bucket
    {
        std::uint64_t hash = 0;
        AttributeId id = kNoAttribute;
        std::vector<std::string> names;
    };
    std::size_t bucketFor(std::uint64_t hash) const; ///< its place, or the free one for it

    std::vector<Attribute> m_attributes;
    std::vector<AttributeId> m_scopes[4];
    std::vector<Bucket> m_buckets;
    std::vector<std::string> m_names;
};

/// The names of a value, as requests and events have them.
inline const std::vector<std::string>& pathOf(style::Key key)
{
    return Schema::instance().at(key).names;
}

} // namespace corvala::host
