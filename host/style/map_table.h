// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"
#include "host/style/schema.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace corvala::host {

/// Maps cycle through six colours of the palette unless told otherwise.
std::int32_t cyclingColor(std::int64_t map);

/// Style values of all maps of one kind in one frame, stored by column in copy-on-write chunks of
/// 128 maps. A chunk that nobody wrote to is absent, so maps with default style cost nothing but
/// their share of one pointer per attribute. Map numbers are from 1 and not checked here.
class MapTable
{
public:
    static constexpr std::size_t kChunkSize = 128;
    using ChunkPointer = std::shared_ptr<const void>;

    /// One chunk before and after a write; the unit of undo.
    struct ChunkChange
    {
        std::uint32_t chunk;
        ChunkPointer before;
        ChunkPointer after;
    };
    using Columns = std::vector<std::vector<ChunkPointer>>;
    /// Answers whether a map has volume zones, for defaults that depend on it.
    using VolumeQuery = std::function<bool(std::int64_t map)>;

    explicit MapTable(Scope scope);

    std::int64_t count() const { return m_count; }
    void setCount(std::int64_t count); ///< new maps have defaults; chunks beyond are dropped
    void setVolumeQuery(VolumeQuery query) { m_hasVolume = std::move(query); }

    std::int32_t integer(const Attribute& attribute, std::int64_t map) const;
    double real(const Attribute& attribute, std::int64_t map) const;
    const std::string& text(const Attribute& attribute, std::int64_t map) const;

    /// Gives every map of the set the value and returns the changed chunks, not yet applied; empty
    /// when all maps have the value already.
    std::vector<ChunkChange> plan(const Attribute& attribute, const NumberSet& maps,
                                  std::int32_t value) const;
    std::vector<ChunkChange> plan(const Attribute& attribute, const NumberSet& maps,
                                  double value) const;
    std::vector<ChunkChange> plan(const Attribute& attribute, const NumberSet& maps,
                                  const std::string& value) const;
    void apply(const Attribute& attribute, const std::vector<ChunkChange>& changes, bool forward);

    /// A value, and the maps that have it.
    struct ValueOfMaps
    {
        NumberSet maps;
        std::variant<std::int32_t, double, std::string> value;
    };
    /// Values that are not the default ones, each once, in the order of their first maps.
    std::vector<ValueOfMaps> changedValues(const Attribute& attribute) const;
    /// Gives maps the default values, without a way back.
    void reset(const Attribute& attribute, const NumberSet& maps);
    /// Gives maps of the table these values, without a way back.
    void fill(const Attribute& attribute, const std::vector<ValueOfMaps>& values);
    /// What makes the column of this table that of another one with as many maps.
    std::vector<ChunkChange> changesTo(const MapTable& other, const Attribute& attribute) const;

    /// Gives every map what the function makes of its value, without a way back.
    void transform(const Attribute& attribute,
                   const std::function<std::int32_t(std::int32_t)>& newValue);

    /// Makes map n of the result what map newToOld[n - 1] (0: a map with defaults) is now.
    void rearrange(const std::vector<std::int64_t>& newToOld);

    /// Copies of the chunk pointers, for undo of whole-table operations.
    Columns columns() const { return m_columns; }
    void restore(Columns columns, std::int64_t count);

    std::size_t memoryUse() const; ///< bytes held by the columns, shared chunks counted once

private:
    /// Values of neighbouring maps; those beyond the last map are meaningless.
    template<class T>
    using Chunk = std::array<T, kChunkSize>;

    template<class T>
    T defaultValue(const Attribute& attribute, std::int64_t map) const;
    template<class T>
    T value(const Attribute& attribute, std::int64_t map) const;
    struct MapRange
    {
        std::int64_t first;
        std::int64_t last;
    };
    MapRange mapsOf(std::size_t chunk) const;
    template<class T>
    std::shared_ptr<Chunk<T>> chunkOfValues(const Attribute& attribute, MapRange range) const;
    template<class T>
    ChunkPointer chunkWith(const Attribute& attribute, MapRange range, const std::uint32_t* begin,
                           const std::uint32_t* end, const T& value) const;
    template<class T>
    std::vector<ChunkChange> planAs(const Attribute& attribute, const NumberSet& maps,
                                    const T& value) const;
    template<class T>
    std::vector<ValueOfMaps> changedAs(const Attribute& attribute) const;
    template<class T>
    void fillAs(const Attribute& attribute, const std::vector<ValueOfMaps>& values);
    template<class T>
    void resetAs(const Attribute& attribute, const NumberSet& maps);
    template<class T>
    bool isSame(const MapTable& other, const Attribute& attribute, std::size_t chunk) const;
    template<class T>
    void rearrangeAs(const Attribute& attribute, const std::vector<std::int64_t>& newToOld,
                     const MapTable& old);
    const ChunkPointer& chunkOf(const Attribute& attribute, std::int64_t map) const;

    Scope m_scope;
    std::int64_t m_count = 0;
    VolumeQuery m_hasVolume;
    Columns m_columns; ///< by slot, then chunk
};

} // namespace corvala::host
