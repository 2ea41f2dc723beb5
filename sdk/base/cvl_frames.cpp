// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"

#include "host/document/document.h"
#include "sdk/private/flat_text.h"
#include "sdk/private/read_count.h"
#include "sdk/private/set_record.h"

using corvala::host::DataSet;
using corvala::host::Document;
using corvala::host::Frame;
using corvala::host::Schema;
using corvala::host_access::countRead;

static Frame* frameFor(CvlUniqueId id)
{
    countRead();
    return Document::instance().frame(id);
}

static Frame* activeFrame()
{
    countRead();
    return Document::instance().activeFrame();
}

static const DataSet* dataFor(CvlUniqueId id)
{
    const Frame* const frame = frameFor(id);
    return frame ? frame->data() : nullptr;
}

CvlBool CvlUtilDataSetIsAvailable(void)
{
    const Frame* const frame = activeFrame();
    return frame && frame->hasData();
}

CvlBool CvlUtilDataSetIsAvailableForFrame(CvlUniqueId id)
{
    return dataFor(id) != nullptr;
}

CvlInt64 CvlUtilFrameGetCount(void)
{
    countRead();
    return Document::instance().frameCount();
}

CvlInt64 CvlUtilFrameGetPlotType(void)
{
    const Frame* const frame = activeFrame();
    return frame ? frame->plotType() : PlotType_None;
}

CvlInt64 CvlUtilFrameGetPlotTypeForFrame(CvlUniqueId id)
{
    const Frame* const frame = frameFor(id);
    return frame ? frame->plotType() : PlotType_None;
}

CvlUniqueId CvlUtilFrameGetUniqueID(void)
{
    countRead();
    return Document::instance().activeFrameId();
}

CvlInt64 CvlUtilFieldMapGetCountForFrame(CvlUniqueId id)
{
    const Frame* const frame = frameFor(id);
    return frame ? frame->fieldMapCount() : 0;
}

/// The number as a member of a set, or 0, which no set of maps holds.
static std::uint32_t asMember(CvlInt64 number)
{
    return number > 0 && number <= 0xffffffffLL ? static_cast<std::uint32_t>(number) : 0;
}

CvlBool CvlUtilFieldMapIsActiveForFrame(CvlUniqueId id, CvlInt64 map)
{
    const Frame* const frame = frameFor(id);
    return frame && frame->activeFieldMaps().contains(asMember(map));
}

CvlInt64 CvlUtilFieldMapGetCandidateZoneForFrame(CvlUniqueId id, CvlInt64 map)
{
    const Frame* const frame = frameFor(id);
    return frame ? frame->candidateZone(map) : 0;
}

CvlInt64 CvlUtilFieldMapGetModeForFrame(CvlUniqueId id, CvlInt64 map)
{
    return CvlUtilFieldMapGetStrandID(id, map) > 0 ? FieldMapMode_Strand : FieldMapMode_Static;
}

CvlInt64 CvlUtilFieldMapGetStrandID(CvlUniqueId id, CvlInt64 map)
{
    const Frame* const frame = frameFor(id);
    return frame ? frame->fieldMaps().strand(map) : 0;
}

CvlBool CvlUtilFieldMapHasVolumeZonesForFrame(CvlUniqueId id, CvlInt64 map)
{
    const Frame* const frame = frameFor(id);
    return frame && frame->fieldMaps().hasVolumeZones(map);
}

CvlBool CvlUtilFieldMapHasOrderedZonesForFrame(CvlUniqueId id, CvlInt64 map)
{
    const Frame* const frame = frameFor(id);
    return frame && frame->fieldMaps().hasOrderedZones(map);
}

CvlBool CvlUtilFieldMapHasIJKOrderedZonesForFrame(CvlUniqueId id, CvlInt64 map)
{
    const Frame* const frame = frameFor(id);
    return frame && frame->fieldMaps().hasIJKOrderedZones(map);
}

static CvlBool isOn(CvlUniqueId id, const char* group, const char* layer)
{
    const Frame* const frame = frameFor(id);
    if (!frame || !layer)
        return 0;
    const char* const path[] = {group, layer};
    const Schema& schema = Schema::instance();
    const corvala::style::Id found = schema.find(path, 2);
    return found >= 0 && frame->values().integer(schema.at(found)) != 0;
}

CvlBool CvlUtilFieldLayerIsActiveForFrame(CvlUniqueId id, char const* layer)
{
    return isOn(id, "FieldLayers", layer);
}

CvlBool CvlUtilLinePlotLayerIsActiveForFrame(CvlUniqueId id, char const* layer)
{
    return isOn(id, "LinePlotLayers", layer);
}

char* CvlUtilZoneGetNameForFrame(CvlUniqueId id, CvlInt64 zone)
{
    const DataSet* const data = dataFor(id);
    return data && data->hasZone(zone) ? cvlFlatText(data->zone(zone).name) : nullptr;
}

CvlInt64 CvlUtilZoneGetFieldMap(CvlInt64 zone)
{
    const Frame* const frame = activeFrame();
    return frame ? frame->fieldMaps().mapOfZone(zone) : 0;
}

CvlSetHandle CvlUtilZoneGetEnabled(void)
{
    const Frame* const frame = activeFrame();
    return frame && frame->hasData() ? new CvlSetRecord {frame->enabledZones()} : nullptr;
}

CvlSetHandle CvlUtilVarGetEnabled(void)
{
    const Frame* const frame = activeFrame();
    return frame && frame->hasData() ? new CvlSetRecord {frame->enabledVariables()} : nullptr;
}

CvlBool CvlUtilZoneIsOrderedForFrame(CvlUniqueId id, CvlInt64 zone)
{
    const DataSet* const data = dataFor(id);
    return data && data->hasZone(zone) && data->zone(zone).ordered;
}

CvlBool CvlUtilZoneGetInfoForFrame(CvlUniqueId id, CvlInt64 zone, CvlInt64* iDim, CvlInt64* jDim,
                                   CvlInt64* kDim)
{
    const DataSet* const data = dataFor(id);
    if (!data || !data->hasZone(zone))
        return 0;
    const auto& info = data->zone(zone);
    const std::array<CvlInt64, 3> counts = info.ordered
        ? info.dimensions
        : std::array<CvlInt64, 3> {{info.pointCount, info.cellCount, 1}};
    CvlInt64* const results[] = {iDim, jDim, kDim};
    for (std::size_t i = 0; i < 3; ++i)
        if (results[i])
            *results[i] = counts[i];
    return 1;
}

CvlInt64 CvlUtilZoneGetCountForFrame(CvlUniqueId id)
{
    const DataSet* const data = dataFor(id);
    return data ? data->zoneCount() : 0;
}

CvlInt64 CvlUtilVarGetCountForFrame(CvlUniqueId id)
{
    const DataSet* const data = dataFor(id);
    return data ? data->variableCount() : 0;
}
