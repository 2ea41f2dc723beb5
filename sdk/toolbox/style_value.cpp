// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/toolbox/style_value.h"

#include "host/document/document.h"
#include "sdk/base/cvl.h"
#include "sdk/base/read_count.h"
#include "sdk/base/set_record.h"

#include <algorithm>
#include <limits>
#include <type_traits>

namespace corvala::toolbox {

using host::Attribute;
using host::Document;
using host::Schema;
using host::Scope;

static constexpr char kPathKey[] = "PATH";
static constexpr char kObjectsKey[] = "OBJECTS";
static constexpr char kOffset1Key[] = "OFFSET1";
static constexpr char kOffset2Key[] = "OFFSET2";
static constexpr char kOperatorKey[] = "OPERATOR";

StyleValue::StyleValue(const char* n1, const char* n2, const char* n3, const char* n4,
                       const char* n5)
{
    const char* given[] = {n1, n2, n3, n4, n5};
    const char* path[5] = {};
    int length = 0;
    for (const char* name : given)
        if (name)
            path[length++] = name;
    m_attribute = Schema::instance().find(path, length);
    if (m_attribute < 0)
        m_unresolved.assign(path, path + length);
}

StyleValue::StyleValue(std::vector<std::string> names)
    : m_attribute(Schema::instance().find(names))
{
    if (m_attribute < 0)
        m_unresolved = std::move(names);
}

StyleValue::~StyleValue() = default;

const std::vector<std::string>& StyleValue::names() const
{
    return isResolved() ? Schema::instance().at(m_attribute).names : m_unresolved;
}

CvlUniqueId StyleValue::frame() const
{
    return Document::instance().activeFrameId();
}

FrameStyleValue::FrameStyleValue(CvlUniqueId frame, const char* n1, const char* n2, const char* n3,
                                 const char* n4, const char* n5)
    : StyleValue(n1, n2, n3, n4, n5)
    , m_frame(frame)
{
}

namespace {

/// Where a style value is: a row of a map table, or a place of a list.
struct Place
{
    const host::MapTable* table = nullptr;
    const host::ValueList* list = nullptr;
    CvlInt64 number = -1; ///< map, or index

    explicit operator bool() const { return table || list; }
};

Place placeOf(const Attribute& attribute, CvlUniqueId frameId, CvlInt64 object, CvlInt64 offset1)
{
    Document& document = Document::instance();
    const host::Frame* const frame =
        attribute.scope == Scope::Document ? nullptr : document.frame(frameId);
    if (attribute.scope != Scope::Document && !frame)
        return {};
    if (attribute.scope == Scope::FieldMap || attribute.scope == Scope::LineMap) {
        const host::MapTable& table =
            attribute.scope == Scope::FieldMap ? frame->fieldStyle() : frame->lineStyle();
        return object >= 1 && object <= table.count() ? Place {&table, nullptr, object} : Place();
    }
    const bool indexExists =
        attribute.indexCount == 0 || (offset1 >= 1 && offset1 <= attribute.indexCount);
    return indexExists
        ? Place {nullptr, frame ? &frame->values() : &document.documentValues(), offset1}
        : Place();
}

double numberAt(const Attribute& attribute, const Place& place)
{
    if (place.table)
        return attribute.isReal() ? place.table->real(attribute, place.number)
                                  : place.table->integer(attribute, place.number);
    return attribute.isReal() ? place.list->real(attribute, place.number)
                              : place.list->integer(attribute, place.number);
}

/// Zones of the active field maps; every zone belongs to one map.
host::NumberSet activeZones(const host::Frame& frame)
{
    const host::NumberSet& maps = frame.activeFieldMaps();
    if (frame.hasData() && static_cast<CvlInt64>(maps.cardinality()) == frame.fieldMapCount())
        return host::allUpTo(frame.data()->zoneCount());
    host::NumberSet zones;
    for (const std::uint32_t map : maps)
        for (const std::int64_t zone : frame.fieldMaps().zones(map))
            zones.add(static_cast<std::uint32_t>(zone));
    return zones;
}

std::optional<Set> readSet(const Attribute& attribute, CvlUniqueId frameId)
{
    const host::Frame* const frame = Document::instance().frame(frameId);
    if (!frame)
        return {};
    Set set;
    const std::string& name = attribute.names.front();
    set.handle()->members = name == "ActiveLineMaps" ? frame->activeLineMaps()
        : name == "ActiveFieldMaps"                  ? frame->activeFieldMaps()
                                                     : activeZones(*frame);
    return set;
}

template<class T>
std::optional<T> converted(double number)
{
    if constexpr (std::is_same_v<T, bool>) {
        return number != 0.0;
    } else if constexpr (std::is_integral_v<T>) {
        constexpr double kLowest = static_cast<double>(std::numeric_limits<T>::min());
        return number >= kLowest && number < -kLowest ? std::optional<T>(static_cast<T>(number))
                                                      : std::nullopt;
    } else {
        return number;
    }
}

} // namespace

template<class T>
std::optional<T> StyleValue::read(CvlInt64 object, CvlInt64 offset1, CvlInt64) const
{
    host_access::countRead();
    if (!isResolved())
        return {};
    const Attribute& attribute = Schema::instance().at(m_attribute);
    if constexpr (std::is_same_v<T, Set>) {
        return attribute.type == host::ValueType::Maps ? readSet(attribute, frame())
                                                       : std::optional<Set>();
    } else {
        if (attribute.type == host::ValueType::Maps
            || attribute.isText() != std::is_same_v<T, std::string>)
            return {};
        const Place place = placeOf(attribute, frame(), object, offset1);
        if (!place)
            return {};
        if constexpr (std::is_same_v<T, std::string>)
            return place.table ? place.table->text(attribute, place.number)
                               : std::get<std::string>(place.list->get(attribute, place.number));
        else
            return converted<T>(numberAt(attribute, place));
    }
}

template std::optional<bool> StyleValue::read(CvlInt64, CvlInt64, CvlInt64) const;
template std::optional<int> StyleValue::read(CvlInt64, CvlInt64, CvlInt64) const;
template std::optional<CvlInt64> StyleValue::read(CvlInt64, CvlInt64, CvlInt64) const;
template std::optional<double> StyleValue::read(CvlInt64, CvlInt64, CvlInt64) const;
template std::optional<std::string> StyleValue::read(CvlInt64, CvlInt64, CvlInt64) const;
template std::optional<Set> StyleValue::read(CvlInt64, CvlInt64, CvlInt64) const;

std::vector<std::int32_t>
StyleValue::initMacroIDsfromStyleValueNames(const std::vector<std::string>& names)
{
    std::vector<std::int32_t> ids;
    for (const std::string& name : names)
        ids.push_back(Schema::instance().nameId(name));
    return ids;
}

void StyleValue::setupSetValueArgList(const std::int32_t* macroIds, const Set* objects,
                                      CvlInt64 offset1, CvlInt64 offset2, AssignOp_e op,
                                      ArgList& out)
{
    out.clear();
    std::vector<std::int32_t> ids;
    for (; macroIds && *macroIds != -1; ++macroIds)
        ids.push_back(*macroIds);
    out.append(kPathKey, std::move(ids));
    if (objects)
        out.append(kObjectsKey, *objects);
    out.append(kOffset1Key, offset1);
    out.append(kOffset2Key, offset2);
    out.append(kOperatorKey, static_cast<CvlInt64>(op));
}

/// Path names of the identifiers; names that no path has are shown as "?".
static std::vector<std::string> pathOf(const ArgList& address)
{
    std::vector<std::string> path;
    if (const auto* ids = address.get<std::vector<std::int32_t>>(kPathKey)) {
        for (const std::int32_t id : *ids) {
            const char* const name = Schema::instance().nameOf(id);
            path.emplace_back(name ? name : "?");
        }
    }
    return path;
}

static CvlInt64 numberOr(const ArgList& address, const char* key, CvlInt64 fallback)
{
    const auto* const value = address.get<CvlInt64>(key);
    return value ? *value : fallback;
}

/// `unresolved` are the names that an accessor without a value was made from.
static StyleWriteResult_e write(host::StyleInput value, const ArgList& address,
                                const std::vector<std::string>& unresolved)
{
    host::StyleWrite request;
    request.path = pathOf(address);
    const bool allKnown =
        std::find(request.path.begin(), request.path.end(), "?") == request.path.end();
    if (!allKnown && unresolved.size() == request.path.size())
        request.path = unresolved; // the names as typed, for the record
    const auto* const objects = address.get<Set>(kObjectsKey);
    static const host::NumberSet kNone;
    if (objects)
        request.objects = objects->handle() ? &objects->handle()->members : &kNone;
    request.offset1 = numberOr(address, kOffset1Key, -1);
    request.offset2 = numberOr(address, kOffset2Key, -1);
    request.op = static_cast<int>(numberOr(address, kOperatorKey, AssignOp_None));
    request.value = std::move(value);
    return Document::instance().write(request);
}

StyleWriteResult_e StyleValue::setFinalValue(double value, const ArgList& address)
{
    return write(value, address, m_unresolved);
}

StyleWriteResult_e StyleValue::setFinalValue(bool value, const ArgList& address)
{
    return write(value, address, m_unresolved);
}

StyleWriteResult_e StyleValue::setFinalValue(const std::string& value, const ArgList& address)
{
    return write(value, address, m_unresolved);
}

StyleWriteResult_e StyleValue::setFinalValue(const Set& value, const ArgList& address)
{
    return write(value.handle() ? value.handle()->members : host::NumberSet(), address,
                 m_unresolved);
}

} // namespace corvala::toolbox
