// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>
#include <sdk/toolbox/set.h>
#include <sdk/toolbox/style_value.h>

#include <boost/function.hpp>

#include <string>

/// Commands and queries of the host that are more than one flat function. All work on the active
/// frame unless they take one, and change nothing when they answer false. Texts are UTF-8.
namespace corvala::sdk {

/// Appends copies of the line maps in ascending order, with the same style and stored name;
/// copies of inactive maps are inactive. One undo step.
bool copyLineMaps(toolbox::Set lineMaps);

/// Gives the frame a scatter size variable (the first enabled one that is no coordinate) if it has
/// none; no step of the undo list. False when nothing was to do.
bool autoAssignScatterVariable();

/// Gives every contour group without a variable one. True when group 1 has a variable afterwards.
bool autoAssignAllContourGroupVariables(ContourLevelsInitializationMode_e mode);

/// Zones of the active field maps.
toolbox::Set getActiveZones();

/// An ordered zone with I, J and K above 1, or one with volume cells.
bool isVolumeZone(CvlInt64 zone);

/// The field map draws some of its surfaces; with `orPoints` also when it draws points that do not
/// come from a surface.
bool drawsSurfaces(CvlInt64 map, bool orPoints);

/// `layer` is "Mesh", "Contour", "Vector", "Scatter", "EdgeLayer" or "Shade". A layer that is on
/// answers true at once. Else the user is asked whether to switch it on; on yes the chooser, if
/// any, is run with the plot type, and if it agrees the layer is switched on: true.
bool queryToActivateSidebarLayer(const std::string& layer,
                                 const boost::function<bool(PlotType_e)>& chooser);

/// Asks whether the active field maps should draw their surfaces for the layer; on yes gives them
/// the boundary cell faces and answers true.
bool queryToEnableSurfacePlotLayer(const std::string& layer);

/// Whether line maps may be given the zone. The user is asked only when the zone is not ordered, or
/// has no point values of a variable that one of the maps draws (with no maps named, of none).
bool confirmLineMapZoneSelection(CvlInt64 zone, const toolbox::Set& lineMaps = toolbox::Set());

/// All three channel variables of the given "GlobalRGB" value's frame are set.
bool checkRGBChannelVars(const toolbox::StyleValue& globalRGB);

/// Name of a variable, its alias if it has one; empty for a bad number.
std::string variableNameFormattedForAliases(CvlInt64 variable);
std::string variableNameFormattedForAliasesForFrame(CvlUniqueId frame, CvlInt64 variable);
/// Such as "4: Pressure"; empty for a bad number.
std::string variableNameWithIndexFormattedForAliasesForFrame(CvlUniqueId frame, CvlInt64 variable);
/// Such as "3: Inlet"; empty for a bad number.
std::string zoneNameWithIndexFormattedForFrame(CvlUniqueId frame, CvlInt64 zone);

} // namespace corvala::sdk
