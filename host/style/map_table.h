// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"
#include "host/style/schema.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace corvala::host {

/// Style values of all maps of one kind in one frame, stored by column in copy-on-write chunks of
/// 1024 maps. A chunk that nobody wrote to is absent, so maps with default style cost nothing but
/// their share of one pointer per attribute. Map numbers are from 1 and not checked here.
class MapTable
{
public:
    static constexpr std::size_t kChunkSize = 1024;
    using ChunkPointer = std::shared_ptr<const void>;

    /// One chunk before and after a write; the unit of undo.
    struct ChunkChange
    {
        std::uint32_t chunk;
        ChunkPointer before;
        ChunkPointer after;
    };
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

    /// Gives every map what the function makes of its value, without a way back.
    void transform(const Attribute& attribute,
                   const std::function<std::int32_t(std::int32_t)>& newValue);

    /// Makes map n of the result what map newToOld[n - 1] (0: a map with defaults) is now.
    void rearrange(const std::vector<std::int64_t>& newToOld);

    std::size_t memoryUse() const; ///< bytes held by the columns, shared chunks counted once

private:
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
    ChunkPointer chunkWith(const Attribute& attribute, MapRange range, const std::uint32_t* begin,
                           const std::uint32_t* end, const T& value) const;
    template<class T>
    std::vector<ChunkChange> planAs(const Attribute& attribute, const NumberSet& maps,
                                    const T& value) const;
    template<class T>
    void rearrangeAs(const Attribute& attribute, const std::vector<std::int64_t>& newToOld,
                     const MapTable& old);
    const ChunkPointer& chunkOf(const Attribute& attribute, std::int64_t map) const;

    Scope m_scope;
    std::int64_t m_count = 0;
    VolumeQuery m_hasVolume;
    std::vector<std::vector<ChunkPointer>> m_columns; ///< by slot, then chunk
};

} // namespace corvala::host
