// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"

namespace corvala::host {

/// Zones of the active field maps; every zone belongs to one map.
static NumberSet activeZones(const Frame& frame)
{
    const NumberSet& maps = frame.activeFieldMaps();
    if (frame.hasData() && static_cast<CvlInt64>(maps.cardinality()) == frame.fieldMapCount())
        return allUpTo(frame.data()->zoneCount());
    NumberSet zones;
    for (const std::uint32_t map : maps)
        for (const std::int64_t zone : frame.fieldMaps().zones(map))
            zones.add(static_cast<std::uint32_t>(zone));
    return zones;
}

static NumberSet activeSet(const Frame& frame, const Attribute& attribute)
{
    const std::string& name = attribute.names.front();
    return name == "ActiveLineMaps" ? frame.activeLineMaps()
        : name == "ActiveFieldMaps" ? frame.activeFieldMaps()
                                    : activeZones(frame);
}

static std::optional<StyleOutput> readMap(const MapTable& table, const Attribute& attribute,
                                          CvlInt64 map)
{
    if (map < 1 || map > table.count())
        return {};
    if (attribute.isText())
        return table.text(attribute, map);
    if (attribute.isReal())
        return table.real(attribute, map);
    return table.integer(attribute, map);
}

static std::optional<StyleOutput> readList(const ValueList& values, const Attribute& attribute,
                                           CvlInt64 index)
{
    if (attribute.indexCount > 0 && (index < 1 || index > attribute.indexCount))
        return {};
    return std::visit([](const auto& value) { return StyleOutput(value); },
                      values.get(attribute, index));
}

std::optional<StyleOutput> Document::read(CvlUniqueId frameId, AttributeId id, CvlInt64 map,
                                          CvlInt64 index) const
{
    if (id < 0)
        return {};
    const Attribute& attribute = Schema::instance().at(id);
    if (attribute.scope == Scope::Document)
        return readList(m_values, attribute, index);
    const Frame* const asked = frame(frameId);
    if (!asked)
        return {};
    if (attribute.type == ValueType::Numbers)
        return activeSet(*asked, attribute);
    if (attribute.scope == Scope::Frame)
        return readList(asked->values(), attribute, index);
    return readMap(attribute.scope == Scope::FieldMap ? asked->fieldStyle() : asked->lineStyle(),
                   attribute, map);
}

std::optional<StyleOutput> Document::read(const std::vector<std::string>& path, CvlInt64 map,
                                          CvlInt64 index) const
{
    return read(activeFrameId(), Schema::instance().find(path), map, index);
}

} // namespace corvala::host
