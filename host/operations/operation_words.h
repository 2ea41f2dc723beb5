// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/operations/operation.h"

#include <string>
#include <utility>

/// Words that the texts of operations use for values.
namespace corvala::host::words {

inline constexpr std::pair<const char*, const char*> kActiveSets[] = {
    {"FieldMaps", "ActiveFieldMaps"},
    {"LineMaps", "ActiveLineMaps"},
    {"FieldZones", "ActiveFieldZones"}};
inline constexpr std::pair<const char*, AssignOp_e> kOperators[] = {
    {"add", AssignOp_Add}, {"remove", AssignOp_Remove}, {"assign", AssignOp_None}};
inline constexpr std::pair<const char*, int> kPickTypes[] = {{"zone", PickType_Zone},
                                                             {"lineMap", PickType_LineMap}};
inline constexpr std::pair<const char*, MapKind> kMapKinds[] = {
    {"shown", MapKind::Shown}, {"FieldMaps", MapKind::Field}, {"LineMaps", MapKind::Line}};
inline constexpr std::pair<const char*, bool> kPlaces[] = {{"top", true}, {"bottom", false}};

inline bool isScaledByMaps(const std::string& demo)
{
    return demo == "xy" || demo == "polar";
}

} // namespace corvala::host::words
