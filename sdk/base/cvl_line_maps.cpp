// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"

#include "host/document/document.h"
#include "host/document/line_map_name.h"
#include "sdk/private/flat_text.h"
#include "sdk/private/read_count.h"
#include "sdk/private/set_record.h"

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

static bool isDone(const Operation& operation)
{
    return Document::instance().execute(operation).isDone();
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
    constexpr AttributeId stored = corvala::style::lineMap.name;
    const auto text = Document::instance().read(id, stored, map);
    return text ? reinterpret_cast<CvlArbValue>(cvlFlatText(std::get<std::string>(*text))) : 0;
}

CvlBool CvlUtilLineMapSetName(CvlSetHandle maps, char const* utf8Name)
{
    return maps && utf8Name && isDone(RenameLineMaps {maps->members, utf8Name});
}

CvlInt64 CvlUtilLineMapCreate(CvlInt64 count)
{
    return Document::instance().execute(CreateLineMaps {count}).firstMap;
}

CvlBool CvlUtilLineMapDelete(CvlSetHandle maps)
{
    return maps && isDone(DeleteMaps {maps->members, MapKind::Line});
}

CvlBool CvlUtilLineMapShiftToTop(CvlSetHandle maps)
{
    return maps && isDone(MoveLineMaps {maps->members, true});
}

CvlBool CvlUtilLineMapShiftToBottom(CvlSetHandle maps)
{
    return maps && isDone(MoveLineMaps {maps->members, false});
}
