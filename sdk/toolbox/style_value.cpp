// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/toolbox/style_value.h"

#include "host/document/document.h"
#include "sdk/base/cvl.h"
#include "sdk/private/read_count.h"
#include "sdk/private/set_record.h"

#include <algorithm>
#include <limits>
#include <type_traits>

namespace corvala::toolbox {

using host::Document;
using host::Schema;

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

Set setOf(const host::NumberSet& members)
{
    Set set;
    set.handle()->members = members;
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
    const std::optional<host::StyleOutput> value =
        Document::instance().read(frame(), m_attribute, object, offset1);
    if (!value)
        return {};
    if constexpr (std::is_same_v<T, Set>) {
        const auto* const members = std::get_if<host::NumberSet>(&*value);
        return members ? std::optional<Set>(setOf(*members)) : std::nullopt;
    } else if constexpr (std::is_same_v<T, std::string>) {
        const auto* const text = std::get_if<std::string>(&*value);
        return text ? std::optional<std::string>(*text) : std::nullopt;
    } else {
        const auto* const real = std::get_if<double>(&*value);
        const auto* const integer = std::get_if<std::int32_t>(&*value);
        return real ? converted<T>(*real) : integer ? converted<T>(*integer) : std::nullopt;
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
    host::SetStyle write {pathOf(address), std::move(value)};
    const bool allKnown = std::find(write.path.begin(), write.path.end(), "?") == write.path.end();
    if (!allKnown && unresolved.size() == write.path.size())
        write.path = unresolved; // the names as typed, for whoever looks on
    if (const auto* const maps = address.get<Set>(kObjectsKey))
        write.maps = maps->handle() ? maps->handle()->members : host::NumberSet();
    write.index = numberOr(address, kOffset1Key, -1);
    write.op = static_cast<AssignOp_e>(numberOr(address, kOperatorKey, AssignOp_None));
    return Document::instance().execute(std::move(write)).result;
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
