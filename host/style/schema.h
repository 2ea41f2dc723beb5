// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace corvala::host {

/// What a style value belongs to.
enum class Scope : std::uint8_t { Document, Frame, FieldMap, LineMap };

enum class ValueType : std::uint8_t {
    Bool,
    Integer,
    Enumeration,
    Color, ///< 0 to 63 palette, 101 to 108 contour group, 109 RGB
    Real,
    Text,
    Variable, ///< variable number, limited by the data set
    Zone, ///< zone number, limited by the data set
    Maps ///< a set of map or zone numbers
};

/// How a per-map attribute gets its default.
enum class DefaultRule : std::uint8_t {
    Constant,
    CyclingColor, ///< palette colours in turn, by map number
    NoSurfacesForVolumes ///< 10 ("None") for maps with volume zones, else the constant
};

struct EnumeratorName
{
    int value;
    const char* name; ///< untranslated English, in the translation context "StyleValues"
};

/// Index of a leaf in the schema; stable for the life of the process.
using AttributeId = int;
constexpr AttributeId kNoAttribute = -1; ///< unknown path
constexpr AttributeId kGroupAttribute = -2; ///< the path names a group, not a value

/// One style value of the tree.
struct Attribute
{
    AttributeId id = kNoAttribute;
    std::vector<std::string> names; ///< the path, two to five names, or one
    Scope scope = Scope::Frame;
    ValueType type = ValueType::Bool;
    double minimum = 0.0;
    double maximum = 0.0;
    double defaultNumber = 0.0;
    std::string defaultText;
    DefaultRule rule = DefaultRule::Constant;
    int indexCount = 0; ///< offset 1 runs from 1 to this; 0 takes no offset
    bool isPercent = false; ///< a Real in percent of the frame height
    bool groupColors = false; ///< a Color that may follow a contour group or RGB
    const EnumeratorName* enumerators = nullptr; ///< ends with a null name
    const char* label = ""; ///< untranslated English, as in "Mesh type"; context "StyleValues"
    int slot = 0; ///< position among the attributes of its scope

    bool isText() const { return type == ValueType::Text; }
    bool isReal() const { return type == ValueType::Real; }
};

/// The one table of every style value: path, scope, type, range, default. Immutable.
class Schema
{
public:
    static const Schema& instance();

    /// The attribute of a path, kGroupAttribute, or kNoAttribute. Null names end the path.
    /// Allocates nothing.
    AttributeId find(const char* const* names, int count) const;
    AttributeId find(const std::vector<std::string>& names) const;

    /// The attribute of a path that is known to name a value.
    const Attribute& leaf(const std::vector<std::string>& names) const { return at(find(names)); }
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
    void add(Attribute attribute);

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

} // namespace corvala::host
