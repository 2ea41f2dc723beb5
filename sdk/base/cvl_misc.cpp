// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"

#include "host/document/document.h"
#include "sdk/private/flat_text.h"
#include "sdk/private/read_count.h"
#include "sdk/private/set_record.h"
#include "vocabulary/colors.h"

#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

using namespace corvala::host;
using corvala::host_access::countRead;
namespace style = corvala::style;

static bool pieChartSymbols = false;
static bool extendedSymbols = false;

char* cvlFlatText(const std::string& text)
{
    auto* const copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (copy)
        std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

void CvlUtilStringDealloc(char** text)
{
    if (!text)
        return;
    std::free(*text);
    *text = nullptr;
}

CvlInt64 CvlUtilPickListGetCount(void)
{
    countRead();
    const Frame* const frame = Document::instance().activeFrame();
    return frame ? static_cast<CvlInt64>(frame->picks().size()) : 0;
}

static Pick pickAt(CvlInt64 index)
{
    return index >= 1 && index <= CvlUtilPickListGetCount()
        ? Document::instance().activeFrame()->picks()[static_cast<std::size_t>(index - 1)]
        : Pick();
}

CvlInt64 CvlUtilPickListGetType(CvlInt64 index)
{
    return pickAt(index).type;
}

CvlInt64 CvlUtilPickListGetZoneNumber(CvlInt64 index)
{
    const Pick pick = pickAt(index);
    return pick.type == PickType_Zone ? pick.number : 0;
}

CvlInt64 CvlUtilPickListGetLineMapNumber(CvlInt64 index)
{
    const Pick pick = pickAt(index);
    return pick.type == PickType_LineMap ? pick.number : 0;
}

CvlSetHandle CvlUtilSetAlloc(CvlBool)
{
    return new (std::nothrow) CvlSetRecord;
}

CvlBool CvlUtilSetAddMember(CvlSetHandle set, CvlInt64 member, CvlBool)
{
    if (!set || member < 1 || member > std::numeric_limits<std::uint32_t>::max())
        return 0;
    set->members.add(static_cast<std::uint32_t>(member));
    return 1;
}

CvlBool CvlUtilSetIsEmpty(CvlSetHandle set)
{
    return !set || set->members.isEmpty();
}

CvlInt64 CvlUtilSetGetMemberCount(CvlSetHandle set)
{
    return set ? static_cast<CvlInt64>(set->members.cardinality()) : 0;
}

CvlInt64 CvlUtilSetGetNextMember(CvlSetHandle set, CvlInt64 previous)
{
    if (!set || previous < 0 || previous >= std::numeric_limits<std::uint32_t>::max())
        return 0;
    auto next = set->members.begin();
    next.equalorlarger(static_cast<std::uint32_t>(previous + 1));
    return next == set->members.end() ? 0 : static_cast<CvlInt64>(*next);
}

void CvlUtilSetDealloc(CvlSetHandle* set)
{
    if (!set)
        return;
    delete *set;
    *set = nullptr;
}

void CvlUtilUndoStateBegin(CvlInt64 kind)
{
    Document::instance().undo().begin(kind);
}

void CvlUtilUndoStateEnd(CvlBool discard, CvlBool commit)
{
    using Closing = UndoHistory::Closing;
    Document::instance().undo().end(discard      ? Closing::Discard
                                        : commit ? Closing::OneStep
                                                 : Closing::SeparateSteps);
}

/// A colour that stands for "as the contour group" in swatches: hues in group order.
static Rgb groupColor(CvlInt64 color)
{
    static constexpr Rgb kColors[] = {{68, 1, 84},    {70, 50, 126},  {54, 92, 141},
                                      {39, 127, 142}, {31, 161, 135}, {74, 193, 109},
                                      {160, 218, 57}, {253, 231, 37}, {128, 128, 128}};
    return kColors[color - style::kFirstGroupColor];
}

CvlBool CvlUtilColorGetRGB(CvlInt64 color, uint8_t* r, uint8_t* g, uint8_t* b)
{
    countRead();
    const bool isPalette = style::isPaletteColor(static_cast<double>(color));
    const bool isGroup = color >= style::kFirstGroupColor && color <= style::kRgbColor;
    const Rgb rgb = isPalette ? Document::instance().color(static_cast<int>(color))
        : isGroup             ? groupColor(color)
                              : Rgb {0, 0, 0};
    if (r)
        *r = rgb.red;
    if (g)
        *g = rgb.green;
    if (b)
        *b = rgb.blue;
    return isPalette || isGroup;
}

CvlBool CvlAppPieChartScatterSymbolsAreEnabled(void)
{
    countRead();
    return pieChartSymbols;
}

CvlBool CvlAppExtendedScatterSymbolsAreEnabled(void)
{
    countRead();
    return extendedSymbols;
}

void CvlAppSetScatterSymbolKinds(CvlBool pieChart, CvlBool extended)
{
    pieChartSymbols = pieChart != 0;
    extendedSymbols = extended != 0;
}
