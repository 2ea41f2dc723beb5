// SPDX-License-Identifier: BSD-3-Clause
#include "host/style/map_table.h"

#include <algorithm>
#include <map>
#include <unordered_set>
#include <utility>

namespace corvala::host {

namespace {

constexpr std::size_t kSize = MapTable::kChunkSize;

std::size_t chunkIndex(std::int64_t map)
{
    return static_cast<std::size_t>(map - 1) / kSize;
}

std::size_t placeInChunk(std::int64_t map)
{
    return static_cast<std::size_t>(map - 1) % kSize;
}

template<class T>
std::shared_ptr<const std::array<T, kSize>> filledChunk(const T& value)
{
    auto chunk = std::make_shared<std::array<T, kSize>>();
    chunk->fill(value);
    return chunk;
}

std::size_t chunksFor(std::int64_t count)
{
    return (static_cast<std::size_t>(count) + kSize - 1) / kSize;
}

const Attribute& attributeAt(Scope scope, std::size_t slot)
{
    const Schema& schema = Schema::instance();
    return schema.at(schema.inScope(scope)[slot]);
}

} // namespace

std::int32_t cyclingColor(std::int64_t map)
{
    constexpr int kFirst = 2; // after black and white
    constexpr int kColors = 6;
    return kFirst + static_cast<std::int32_t>((map - 1) % kColors);
}

MapTable::MapTable(Scope scope)
    : m_scope(scope)
    , m_columns(Schema::instance().inScope(scope).size())
{
}

void MapTable::setCount(std::int64_t count)
{
    m_count = count;
    for (auto& column : m_columns)
        column.resize(chunksFor(count));
}

template<>
std::int32_t MapTable::defaultValue(const Attribute& attribute, std::int64_t map) const
{
    switch (attribute.rule) {
    case DefaultRule::CyclingColor: return cyclingColor(map);
    case DefaultRule::NoSurfacesForVolumes:
        if (m_hasVolume && m_hasVolume(map))
            return 10;
        break;
    case DefaultRule::Constant: break;
    }
    return static_cast<std::int32_t>(attribute.defaultNumber);
}

template<>
double MapTable::defaultValue(const Attribute& attribute, std::int64_t) const
{
    return attribute.defaultNumber;
}

template<>
std::string MapTable::defaultValue(const Attribute& attribute, std::int64_t) const
{
    return attribute.defaultText;
}

const MapTable::ChunkPointer& MapTable::chunkOf(const Attribute& attribute, std::int64_t map) const
{
    return m_columns[static_cast<std::size_t>(attribute.slot)][chunkIndex(map)];
}

template<class T>
T MapTable::value(const Attribute& attribute, std::int64_t map) const
{
    const ChunkPointer& chunk = chunkOf(attribute, map);
    return chunk ? (*static_cast<const Chunk<T>*>(chunk.get()))[placeInChunk(map)]
                 : defaultValue<T>(attribute, map);
}

std::int32_t MapTable::integer(const Attribute& attribute, std::int64_t map) const
{
    return value<std::int32_t>(attribute, map);
}

double MapTable::real(const Attribute& attribute, std::int64_t map) const
{
    return value<double>(attribute, map);
}

const std::string& MapTable::text(const Attribute& attribute, std::int64_t map) const
{
    const ChunkPointer& chunk = chunkOf(attribute, map);
    return chunk ? (*static_cast<const Chunk<std::string>*>(chunk.get()))[placeInChunk(map)]
                 : attribute.defaultText;
}

MapTable::MapRange MapTable::mapsOf(std::size_t chunk) const
{
    const auto start = static_cast<std::int64_t>(chunk * kSize);
    return {start + 1, std::min(start + static_cast<std::int64_t>(kSize), m_count)};
}

template<class T>
std::shared_ptr<MapTable::Chunk<T>> MapTable::chunkOfValues(const Attribute& attribute,
                                                            MapRange range) const
{
    if (const ChunkPointer& chunk = chunkOf(attribute, range.first))
        return std::make_shared<Chunk<T>>(*static_cast<const Chunk<T>*>(chunk.get()));
    auto values = std::make_shared<Chunk<T>>();
    values->fill(defaultValue<T>(attribute, range.first));
    if (attribute.rule != DefaultRule::Constant)
        for (std::int64_t map = range.first; map <= range.last; ++map)
            (*values)[placeInChunk(map)] = defaultValue<T>(attribute, map);
    return values;
}

/// The chunk's values with the new one in the given places.
template<class T>
MapTable::ChunkPointer MapTable::chunkWith(const Attribute& attribute, MapRange range,
                                           const std::uint32_t* begin, const std::uint32_t* end,
                                           const T& newValue) const
{
    auto copy = chunkOfValues<T>(attribute, range);
    for (; begin != end; ++begin)
        (*copy)[placeInChunk(*begin)] = newValue;
    return copy;
}

template<class T>
std::vector<MapTable::ChunkChange> MapTable::planAs(const Attribute& attribute,
                                                    const NumberSet& maps, const T& newValue) const
{
    std::vector<ChunkChange> changes;
    std::vector<std::uint32_t> members(static_cast<std::size_t>(maps.cardinality()));
    maps.toUint32Array(members.data());
    std::shared_ptr<const Chunk<T>> uniform; // shared by every chunk that is filled whole

    const std::uint32_t* const last = members.data() + members.size();
    for (const std::uint32_t* begin = members.data(); begin != last;) {
        const std::size_t chunk = chunkIndex(*begin);
        const MapRange range = mapsOf(chunk);
        const std::uint32_t* const end =
            std::find_if(begin, last, [&](std::uint32_t map) { return map > range.last; });
        const bool differs = std::any_of(
            begin, end, [&](std::uint32_t map) { return value<T>(attribute, map) != newValue; });
        if (differs) {
            ChunkPointer after;
            if (end - begin == range.last - range.first + 1) {
                if (!uniform)
                    uniform = filledChunk(newValue);
                after = uniform;
            } else {
                after = chunkWith(attribute, range, begin, end, newValue);
            }
            changes.push_back(
                {static_cast<std::uint32_t>(chunk), chunkOf(attribute, *begin), std::move(after)});
        }
        begin = end;
    }
    return changes;
}

std::vector<MapTable::ChunkChange> MapTable::plan(const Attribute& attribute, const NumberSet& maps,
                                                  std::int32_t newValue) const
{
    return planAs(attribute, maps, newValue);
}

std::vector<MapTable::ChunkChange> MapTable::plan(const Attribute& attribute, const NumberSet& maps,
                                                  double newValue) const
{
    return planAs(attribute, maps, newValue);
}

std::vector<MapTable::ChunkChange> MapTable::plan(const Attribute& attribute, const NumberSet& maps,
                                                  const std::string& newValue) const
{
    return planAs(attribute, maps, newValue);
}

void MapTable::apply(const Attribute& attribute, const std::vector<ChunkChange>& changes,
                     bool forward)
{
    auto& column = m_columns[static_cast<std::size_t>(attribute.slot)];
    for (const ChunkChange& change : changes)
        column[change.chunk] = forward ? change.after : change.before;
}

template<class T>
std::vector<MapTable::ValueOfMaps> MapTable::changedAs(const Attribute& attribute) const
{
    std::map<T, std::vector<std::uint32_t>> found;
    const auto& column = m_columns[static_cast<std::size_t>(attribute.slot)];
    const bool isConstant = attribute.rule == DefaultRule::Constant;
    T fallback = defaultValue<T>(attribute, 1);
    for (std::size_t chunk = 0; chunk < column.size(); ++chunk) {
        if (!column[chunk])
            continue;
        const auto& values = *static_cast<const Chunk<T>*>(column[chunk].get());
        const MapRange range = mapsOf(chunk);
        for (std::int64_t map = range.first; map <= range.last; ++map) {
            if (!isConstant)
                fallback = defaultValue<T>(attribute, map);
            if (const T& here = values[placeInChunk(map)]; here != fallback)
                found[here].push_back(static_cast<std::uint32_t>(map));
        }
    }
    std::vector<ValueOfMaps> result;
    for (const auto& [value, maps] : found)
        result.push_back({NumberSet(maps.size(), maps.data()), value});
    std::sort(result.begin(), result.end(), [](const ValueOfMaps& a, const ValueOfMaps& b) {
        return a.maps.minimum() < b.maps.minimum();
    });
    return result;
}

template<class T>
void MapTable::fillAs(const Attribute& attribute, const std::vector<ValueOfMaps>& values)
{
    auto& column = m_columns[static_cast<std::size_t>(attribute.slot)];
    std::vector<std::shared_ptr<Chunk<T>>> filled(column.size());
    for (const auto& [maps, value] : values) {
        const T& given = std::get<T>(value);
        std::shared_ptr<const Chunk<T>> uniform;
        std::size_t before = column.size();
        bool isWhole = false;
        for (const std::uint32_t map : maps) {
            const std::size_t chunk = chunkIndex(map);
            if (std::exchange(before, chunk) != chunk) {
                const MapRange range = mapsOf(chunk);
                isWhole = maps.containsRange(static_cast<std::uint64_t>(range.first),
                                             static_cast<std::uint64_t>(range.last) + 1);
                if (isWhole && !uniform)
                    uniform = filledChunk(given);
                if (isWhole)
                    column[chunk] = uniform;
                else if (!filled[chunk])
                    column[chunk] = filled[chunk] = chunkOfValues<T>(attribute, range);
            }
            if (!isWhole)
                (*filled[chunk])[placeInChunk(map)] = given;
        }
    }
}

/// Calls the function with a value of the attribute's type.
template<class Function>
static auto withType(const Attribute& attribute, Function function)
{
    if (attribute.isText())
        return function(std::string());
    return attribute.isReal() ? function(double()) : function(std::int32_t());
}

std::vector<MapTable::ValueOfMaps> MapTable::changedValues(const Attribute& attribute) const
{
    return withType(attribute, [&](auto type) { return changedAs<decltype(type)>(attribute); });
}

void MapTable::fill(const Attribute& attribute, const std::vector<ValueOfMaps>& values)
{
    withType(attribute, [&](auto type) { fillAs<decltype(type)>(attribute, values); });
}

template<class T>
void MapTable::resetAs(const Attribute& attribute, const NumberSet& maps)
{
    auto& column = m_columns[static_cast<std::size_t>(attribute.slot)];
    std::vector<std::shared_ptr<Chunk<T>>> changed(column.size());
    for (const std::uint32_t map : maps) {
        const std::size_t chunk = chunkIndex(map);
        if (!column[chunk])
            continue;
        if (!changed[chunk])
            column[chunk] = changed[chunk] = chunkOfValues<T>(attribute, mapsOf(chunk));
        (*changed[chunk])[placeInChunk(map)] = defaultValue<T>(attribute, map);
    }
}

void MapTable::reset(const Attribute& attribute, const NumberSet& maps)
{
    withType(attribute, [&](auto type) { resetAs<decltype(type)>(attribute, maps); });
}

template<class T>
bool MapTable::isSame(const MapTable& other, const Attribute& attribute, std::size_t chunk) const
{
    const MapRange range = mapsOf(chunk);
    for (std::int64_t map = range.first; map <= range.last; ++map)
        if (value<T>(attribute, map) != other.value<T>(attribute, map))
            return false;
    return true;
}

std::vector<MapTable::ChunkChange> MapTable::changesTo(const MapTable& other,
                                                       const Attribute& attribute) const
{
    const auto& before = m_columns[static_cast<std::size_t>(attribute.slot)];
    const auto& after = other.m_columns[static_cast<std::size_t>(attribute.slot)];
    std::vector<ChunkChange> changes;
    for (std::size_t chunk = 0; chunk < before.size(); ++chunk) {
        const bool isChanged =
            before[chunk] != after[chunk] && !withType(attribute, [&](auto type) {
                return isSame<decltype(type)>(other, attribute, chunk);
            });
        if (isChanged)
            changes.push_back({static_cast<std::uint32_t>(chunk), before[chunk], after[chunk]});
    }
    return changes;
}

void MapTable::transform(const Attribute& attribute,
                         const std::function<std::int32_t(std::int32_t)>& newValue)
{
    auto& column = m_columns[static_cast<std::size_t>(attribute.slot)];
    for (std::size_t chunk = 0; chunk < column.size(); ++chunk) {
        auto changed = std::make_shared<Chunk<std::int32_t>>();
        bool differs = false;
        const MapRange range = mapsOf(chunk);
        for (std::int64_t map = range.first; map <= range.last; ++map) {
            const std::int32_t before = integer(attribute, map);
            const std::int32_t after = newValue(before);
            (*changed)[placeInChunk(map)] = after;
            differs = differs || after != before;
        }
        if (differs)
            column[chunk] = std::move(changed);
    }
}

template<class T>
void MapTable::rearrangeAs(const Attribute& attribute, const std::vector<std::int64_t>& newToOld,
                           const MapTable& old)
{
    auto& column = m_columns[static_cast<std::size_t>(attribute.slot)];
    // What is default for the new number of a map may depend on maps that are still the old ones.
    const bool isDefaultKnown = attribute.rule != DefaultRule::NoSurfacesForVolumes;
    for (std::size_t chunk = 0; chunk < column.size(); ++chunk) {
        const std::size_t first = chunk * kSize;
        const std::size_t last = std::min(first + kSize, newToOld.size());
        std::shared_ptr<Chunk<T>> values;
        for (std::size_t i = first; i < last; ++i) {
            const auto map = static_cast<std::int64_t>(i + 1);
            const T fallback = defaultValue<T>(attribute, map);
            T moved = newToOld[i] > 0 ? old.value<T>(attribute, newToOld[i]) : fallback;
            if (!values && (moved != fallback || !isDefaultKnown)) {
                values = std::make_shared<Chunk<T>>();
                for (std::size_t j = first; j < i; ++j)
                    (*values)[j - first] =
                        defaultValue<T>(attribute, static_cast<std::int64_t>(j + 1));
            }
            if (values)
                (*values)[i - first] = std::move(moved);
        }
        column[chunk] = std::move(values);
    }
}

void MapTable::rearrange(const std::vector<std::int64_t>& newToOld)
{
    const MapTable old = *this;
    for (auto& column : m_columns)
        column.clear();
    setCount(static_cast<std::int64_t>(newToOld.size()));
    for (std::size_t slot = 0; slot < m_columns.size(); ++slot) {
        const Attribute& attribute = attributeAt(m_scope, slot);
        const auto& before = old.m_columns[slot];
        const bool allDefault =
            std::all_of(before.begin(), before.end(), [](const auto& chunk) { return !chunk; });
        if (allDefault && attribute.rule != DefaultRule::CyclingColor)
            continue; // the default goes with the map, not with its number
        if (attribute.isText())
            rearrangeAs<std::string>(attribute, newToOld, old);
        else if (attribute.isReal())
            rearrangeAs<double>(attribute, newToOld, old);
        else
            rearrangeAs<std::int32_t>(attribute, newToOld, old);
    }
}

void MapTable::restore(Columns columns, std::int64_t count)
{
    m_columns = std::move(columns);
    m_count = count;
}

std::size_t MapTable::memoryUse() const
{
    std::size_t bytes = 0;
    std::unordered_set<const void*> seen;
    for (std::size_t slot = 0; slot < m_columns.size(); ++slot) {
        const Attribute& attribute = attributeAt(m_scope, slot);
        const std::size_t element = attribute.isText() ? sizeof(std::string)
            : attribute.isReal()                       ? sizeof(double)
                                                       : sizeof(std::int32_t);
        bytes += m_columns[slot].capacity() * sizeof(ChunkPointer);
        for (const ChunkPointer& chunk : m_columns[slot])
            if (chunk && seen.insert(chunk.get()).second)
                bytes += element * kSize;
    }
    return bytes;
}

} // namespace corvala::host
