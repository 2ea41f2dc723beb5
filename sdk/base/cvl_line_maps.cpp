// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"

#include "host/document/document.h"
#include "host/document/line_map_name.h"
#include "sdk/base/flat_text.h"
#include "sdk/base/read_count.h"
#include "sdk/base/set_record.h"

#include <cstring>

using namespace corvala::host;
using corvala::host_access::countRead;

/// The frame, if it has that line map.
static const Frame* frameWithLineMap(CvlUniqueId id, CvlInt64 map)
{
    countRead();
    const Frame* const frame = Document::instance().frame(id);
    return frame && map >= 1 && map <= frame->lineMapCount() ? frame : nullptr;
}

CvlInt64 CvlUtilLineMapGetCountForFrame(CvlUniqueId id)
{
    countRead();
    const Frame* const frame = Document::instance().frame(id);
    return frame ? frame->lineMapCount() : 0;
}

CvlBool CvlUtilLineMapIsActiveForFrame(CvlUniqueId id, CvlInt64 map)
{
    const Frame* const frame = frameWithLineMap(id, map);
    return frame && frame->activeLineMaps().contains(static_cast<std::uint32_t>(map));
}

char* CvlUtilLineMapGetNameForFrame(CvlUniqueId id, CvlInt64 map)
{
    const Frame* const frame = frameWithLineMap(id, map);
    return frame ? cvlFlatText(shownLineMapName(*frame, map)) : nullptr;
}

CvlArbValue CvlUtilLineMapStyleGetArbValueForFrame(CvlUniqueId id, CvlInt64 map, char const* name)
{
    const Frame* const frame = frameWithLineMap(id, map);
    if (!frame || !name || std::strcmp(name, "Name") != 0)
        return 0;
    static const Attribute& stored = Schema::instance().leaf({"LineMap", "Name"});
    return reinterpret_cast<CvlArbValue>(cvlFlatText(frame->lineStyle().text(stored, map)));
}

CvlBool CvlUtilLineMapSetName(CvlSetHandle maps, char const* utf8Name)
{
    return maps && utf8Name && Document::instance().setLineMapName(maps->members, utf8Name);
}

CvlInt64 CvlUtilLineMapCreate(CvlInt64 count)
{
    return Document::instance().createLineMaps(count);
}

CvlBool CvlUtilLineMapDelete(CvlSetHandle maps)
{
    return maps && Document::instance().deleteLineMaps(maps->members);
}

CvlBool CvlUtilLineMapShiftToTop(CvlSetHandle maps)
{
    return maps && Document::instance().shiftLineMaps(maps->members, true);
}

CvlBool CvlUtilLineMapShiftToBottom(CvlSetHandle maps)
{
    return maps && Document::instance().shiftLineMaps(maps->members, false);
}
