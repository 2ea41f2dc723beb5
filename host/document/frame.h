// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/document/field_map_list.h"
#include "host/operations/operation.h"
#include "host/style/map_table.h"
#include "host/style/value_list.h"
#include "vocabulary/enums.h"
#include "vocabulary/types.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace corvala::host {

/// The data of a frame and its maps with their style. Copies are cheap: style is shared until it is
/// written to.
struct FrameMaps
{
    std::vector<DataOrigin> origins; ///< of the data, in the order of their zones
    std::shared_ptr<DataSet> data;
    std::shared_ptr<const FieldMapList> fieldMaps = std::make_shared<FieldMapList>();
    MapTable fieldStyle {Scope::FieldMap};
    MapTable lineStyle {Scope::LineMap};
    NumberSet activeFieldMaps;
    NumberSet activeLineMaps;
    NumberSet enabledZones;
    NumberSet enabledVariables;
};

/// One plot: a data set, its field maps and line maps, and their style. Changed by operations only.
class Frame
{
public:
    explicit Frame(CvlUniqueId id);

    CvlUniqueId id() const { return m_id; }
    PlotType_e plotType() const;
    bool isFieldPlot() const; ///< plot types 1 and 2
    bool isLinePlot() const; ///< plot types 3 and 5
    bool hasData() const { return m_maps.data != nullptr; }
    const DataSet* data() const { return m_maps.data.get(); } ///< null without data
    std::shared_ptr<const DataSet> sharedData() const { return m_maps.data; }
    const std::vector<DataOrigin>& origins() const { return m_maps.origins; }

    const FieldMapList& fieldMaps() const { return *m_maps.fieldMaps; }
    CvlInt64 fieldMapCount() const { return fieldMaps().count(); }
    CvlInt64 lineMapCount() const { return lineStyle().count(); }
    /// Maps of the kind that the frame shows; 0 for other plot types.
    CvlInt64 shownMapCount() const;

    const NumberSet& activeFieldMaps() const { return m_maps.activeFieldMaps; }
    const NumberSet& activeLineMaps() const { return m_maps.activeLineMaps; }
    const NumberSet& enabledZones() const { return m_maps.enabledZones; }
    const NumberSet& enabledVariables() const { return m_maps.enabledVariables; }

    double solutionTime() const { return m_solutionTime; }
    CvlInt64 candidateZone(CvlInt64 map) const
    {
        return fieldMaps().candidateZone(map, m_solutionTime);
    }
    const std::vector<Pick>& picks() const { return m_picks; }
    /// What was seen of the frame, by plot type: texts of the canvases (Document::keepView).
    const std::map<int, std::string>& views() const { return m_views; }

    const MapTable& fieldStyle() const { return m_maps.fieldStyle; }
    const MapTable& lineStyle() const { return m_maps.lineStyle; }
    const ValueList& values() const { return m_values; }

    /// A switch of the frame, such as a layer.
    bool isOn(style::SwitchKey key, int index = -1) const;

    // Values of the frame; `index` is from 1 for those that have one.
    std::int32_t integer(style::Key key, int index = -1) const;
    double real(style::RealKey key, int index = -1) const;
    const std::string& text(style::TextKey key, int index = -1) const;

    // Style of one map by attribute; the map must exist and the attribute have that scope and type.
    std::int32_t fieldInteger(AttributeId attribute, CvlInt64 map) const;
    double fieldReal(AttributeId attribute, CvlInt64 map) const;
    std::int32_t lineInteger(AttributeId attribute, CvlInt64 map) const;
    double lineReal(AttributeId attribute, CvlInt64 map) const;

private:
    friend class Document;
    friend class Executor;

    CvlUniqueId m_id;
    FrameMaps m_maps;
    ValueList m_values;
    double m_solutionTime = 0.0;
    std::vector<Pick> m_picks;
    std::map<int, std::string> m_views;
};

} // namespace corvala::host
