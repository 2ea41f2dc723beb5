// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>

#ifdef __cplusplus
#include <sdk/base/enums.h> /* in C the numbers have no names */
#endif

/*
 * Flat functions of the host: queries and commands on frames, maps, zones, variables, sets, undo.
 *
 * All are called on the user-interface thread. Operations without a frame argument act on the
 * active frame; with one they answer for that frame, active or not, and answer "nothing" (0, null)
 * for an ID that is no frame. Bad numbers are answered the same way; nothing here aborts, throws or
 * shows a message. Texts are UTF-8; a char* result belongs to the caller, who gives it back with
 * CvlUtilStringDealloc.
 */

#ifdef __cplusplus
extern "C" {
#endif

/* Frames and data set */

/** The active frame has a data set. */
CvlBool CvlUtilDataSetIsAvailable(void);
CvlBool CvlUtilDataSetIsAvailableForFrame(CvlUniqueId frame);
CvlInt64 CvlUtilFrameGetCount(void);
/** PlotType_e of the active frame; PlotType_None without a frame. */
CvlInt64 CvlUtilFrameGetPlotType(void);
CvlInt64 CvlUtilFrameGetPlotTypeForFrame(CvlUniqueId frame);
/** ID of the active frame, never used again in this process; 0 without a frame. */
CvlUniqueId CvlUtilFrameGetUniqueID(void);

/* Field maps and layers */

/** Number of field maps, active or not. */
CvlInt64 CvlUtilFieldMapGetCountForFrame(CvlUniqueId frame);
CvlBool CvlUtilFieldMapIsActiveForFrame(CvlUniqueId frame, CvlInt64 map);
/** The zone that the map shows at the current solution time; 0 when its strand has none then. */
CvlInt64 CvlUtilFieldMapGetCandidateZoneForFrame(CvlUniqueId frame, CvlInt64 map);
/** FieldMapMode_e; FieldMapMode_Static for a bad number. */
CvlInt64 CvlUtilFieldMapGetModeForFrame(CvlUniqueId frame, CvlInt64 map);
/** Strand of a transient map, from 1; 0 for a static one. */
CvlInt64 CvlUtilFieldMapGetStrandID(CvlUniqueId frame, CvlInt64 map);
/** Any zone of the map is ordered with I, J and K above 1, or has volume cells. */
CvlBool CvlUtilFieldMapHasVolumeZonesForFrame(CvlUniqueId frame, CvlInt64 map);
CvlBool CvlUtilFieldMapHasOrderedZonesForFrame(CvlUniqueId frame, CvlInt64 map);
/** Any zone of the map is ordered with I, J and K above 1. */
CvlBool CvlUtilFieldMapHasIJKOrderedZonesForFrame(CvlUniqueId frame, CvlInt64 map);
/** "ShowMesh", "ShowContour", "ShowVector", "ShowScatter", "ShowShade", "ShowEdge",
    "UseLightingEffect", "UseTranslucency"; 0 for any other name. */
CvlBool CvlUtilFieldLayerIsActiveForFrame(CvlUniqueId frame, char const* layer);
/** "ShowLines", "ShowSymbols", "ShowErrorBars", "ShowBarCharts"; 0 for any other name. */
CvlBool CvlUtilLinePlotLayerIsActiveForFrame(CvlUniqueId frame, char const* layer);

/* Zones and variables */

/** Null for a bad number. */
char* CvlUtilZoneGetNameForFrame(CvlUniqueId frame, CvlInt64 zone);
/** Field map of a zone of the active frame; 0 when there is none. */
CvlInt64 CvlUtilZoneGetFieldMap(CvlInt64 zone);
/** Enabled zones of the active frame's data set. The caller frees the set; null without data. */
CvlSetHandle CvlUtilZoneGetEnabled(void);
/** Enabled variables, as for zones. */
CvlSetHandle CvlUtilVarGetEnabled(void);
CvlBool CvlUtilZoneIsOrderedForFrame(CvlUniqueId frame, CvlInt64 zone);
/** Ordered zone: its I, J, K dimensions. Any other: points, cells, 1. Null pointers are skipped. */
CvlBool CvlUtilZoneGetInfoForFrame(CvlUniqueId frame, CvlInt64 zone, CvlInt64* iDim, CvlInt64* jDim,
                                   CvlInt64* kDim);
/** Number of zones and of variables of a frame's data set, enabled or not. */
CvlInt64 CvlUtilZoneGetCountForFrame(CvlUniqueId frame);
CvlInt64 CvlUtilVarGetCountForFrame(CvlUniqueId frame);

/* Line maps */

CvlInt64 CvlUtilLineMapGetCountForFrame(CvlUniqueId frame);
CvlBool CvlUtilLineMapIsActiveForFrame(CvlUniqueId frame, CvlInt64 map);
/** The name with its dynamic text filled in; null for a bad number. */
char* CvlUtilLineMapGetNameForFrame(CvlUniqueId frame, CvlInt64 map);
/** With "Name": the stored name, a char* for the caller. 0 for a bad number or any other name. */
CvlArbValue CvlUtilLineMapStyleGetArbValueForFrame(CvlUniqueId frame, CvlInt64 map,
                                                   char const* name);
/** Gives every map of the set the same stored name, in one undo step. */
CvlBool CvlUtilLineMapSetName(CvlSetHandle maps, char const* utf8Name);
/** Appends maps with default style, active. Number of the first; 0 on failure. */
CvlInt64 CvlUtilLineMapCreate(CvlInt64 count);
/** Deletes the maps; later maps close up. All or nothing. */
CvlBool CvlUtilLineMapDelete(CvlSetHandle maps);
/** Stable move to the first numbers. All or nothing. */
CvlBool CvlUtilLineMapShiftToTop(CvlSetHandle maps);
/** Stable move to the last numbers. All or nothing. */
CvlBool CvlUtilLineMapShiftToBottom(CvlSetHandle maps);

/* Picks */

CvlInt64 CvlUtilPickListGetCount(void);
/** PickType_e or another code; index from 1, 0 for a bad index. */
CvlInt64 CvlUtilPickListGetType(CvlInt64 index);
/** Number of a picked zone; 0 for a pick of another type. */
CvlInt64 CvlUtilPickListGetZoneNumber(CvlInt64 index);
/** Number of a picked line map; 0 for a pick of another type. */
CvlInt64 CvlUtilPickListGetLineMapNumber(CvlInt64 index);

/* Sets */

/** An empty set; null on failure. */
CvlSetHandle CvlUtilSetAlloc(CvlBool showError);
/** Members are 1 to 4294967295; anything else is refused. */
CvlBool CvlUtilSetAddMember(CvlSetHandle set, CvlInt64 member, CvlBool showError);
/** A null set is empty. */
CvlBool CvlUtilSetIsEmpty(CvlSetHandle set);
CvlInt64 CvlUtilSetGetMemberCount(CvlSetHandle set);
/** Ascending; 0 starts, 0 ends. */
CvlInt64 CvlUtilSetGetNextMember(CvlSetHandle set, CvlInt64 previous);
/** Frees the set and clears the handle; null is fine. */
void CvlUtilSetDealloc(CvlSetHandle* set);

/* Undo */

/** Opens a bracket: changes up to the matching end are one undo step. Brackets nest. */
void CvlUtilUndoStateBegin(CvlInt64 kind);
/** Closes the bracket; of nested ones the outermost decides. `discard` takes the recorded changes
    back and forgets them; else `commit` keeps them as one step (none when nothing was recorded),
    without it each stays a step of its own, as if there had been no bracket. */
void CvlUtilUndoStateEnd(CvlBool discard, CvlBool commit);

/* Texts, colours, application */

/** Frees a text and clears the pointer; null is fine. */
void CvlUtilStringDealloc(char** text);
/** A drawable colour for a colour value: palette (0 to 63), contour group (101 to 108) and RGB
   (109) give a representative colour. 0, and black, for any other value. */
CvlBool CvlUtilColorGetRGB(CvlInt64 color, uint8_t* r, uint8_t* g, uint8_t* b);
CvlBool CvlAppPieChartScatterSymbolsAreEnabled(void);
CvlBool CvlAppExtendedScatterSymbolsAreEnabled(void);
/** The application's own switches for the two symbol kinds. */
void CvlAppSetScatterSymbolKinds(CvlBool pieChart, CvlBool extended);

/** How many queries and style reads the host has answered since the process began. */
CvlInt64 CvlAppGetReadCount(void);

#ifdef __cplusplus
}
#endif
