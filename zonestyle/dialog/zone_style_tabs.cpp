// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/dialog/zone_style_tabs.h"

#include <QtGlobal>

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

// clang-format off
const std::array<TabDescriptor, 10> kFieldTabs {{
    {"plotAttr_FDMesh_Page", "gridLayout_3", QT_TRANSLATE_NOOP("ZoneStyle", "Mesh"),
     "mesh-edge.html#mesh-edge/mesh/modification"},
    {"plotAttr_FDCont_Page", "gridLayout", QT_TRANSLATE_NOOP("ZoneStyle", "Contour"),
     "contour.html#contour/modification"},
    {"plotAttr_FDVect_Page", "gridLayout1", QT_TRANSLATE_NOOP("ZoneStyle", "Vector"),
     "vectplot.html#vectplot/modification"},
    {"plotAttr_FDScat_Page", "gridLayout2", QT_TRANSLATE_NOOP("ZoneStyle", "Scatter"),
     "scatter.html#scatter/scatter-plot-modification"},
    {"plotAttr_FDShad_Page", "gridLayout3", QT_TRANSLATE_NOOP("ZoneStyle", "Shade"),
     "shade.html#shade/shade-layer-modification"},
    {"plotAttr_FDEdge_Page", "gridLayout4", QT_TRANSLATE_NOOP("ZoneStyle", "Edge"),
     "mesh-edge.html#mesh-edge/edge/modification"},
    {"plotAttr_FDPoints_Page", "gridLayout_6", QT_TRANSLATE_NOOP("ZoneStyle", "Points"),
     "fieldplt.html#fieldplt/zone-style/points"},
    {"plotAttr_FDSurfaces_Page", "gridLayout5", QT_TRANSLATE_NOOP("ZoneStyle", "Surfaces"),
     "fieldplt.html#fieldplt/zone-style/surfaces"},
    {"plotAttr_FDVolume_Page", "gridLayout_7", QT_TRANSLATE_NOOP("ZoneStyle", "Volume"),
     "fieldplt.html#fieldplt/zone-style/volume"},
    {"plotAttr_FDEffect_Page", "gridLayout_8", QT_TRANSLATE_NOOP("ZoneStyle", "Effects"),
     "translucency.html"},
}};

// Deliberate: all line tabs point into the polar chapter, also for XY line plots.
const std::array<TabDescriptor, 7> kLineTabs {{
    {"plotAttr_LPDefn_Page", "gridLayout7", QT_TRANSLATE_NOOP("ZoneStyle", "Definitions"),
     "polar.html#polar/mapping-style-and-creation/mapping-definitions"},
    {"plotAttr_LPLine_Page", "gridLayout8", QT_TRANSLATE_NOOP("ZoneStyle", "Lines"),
     "polar.html#polar/map-layer/line-attributes"},
    {"plotAttr_LPCurv_Page", "gridLayout9", QT_TRANSLATE_NOOP("ZoneStyle", "Curves"),
     "polar.html#polar/map-layer/curve-types"},
    {"plotAttr_LPSymb_Page", "gridLayout10", QT_TRANSLATE_NOOP("ZoneStyle", "Symbols"),
     "polar.html#polar/symbols-map-layer/symbol-attributes"},
    {"plotAttr_LPEBar_Page", "gridLayout11", QT_TRANSLATE_NOOP("ZoneStyle", "Error Bars"),
     "polar.html#polar/xy-line-error-bars/error-bar-attributes"},
    {"plotAttr_LPBars_Page", "gridLayout12", QT_TRANSLATE_NOOP("ZoneStyle", "Bar Charts"),
     "polar.html#polar/xy-line-bar-charts/bar-chart-attributes"},
    {"plotAttr_LPIndx_Page", "gridLayout13", QT_TRANSLATE_NOOP("ZoneStyle", "Indices"),
     "polar.html#_ijk_indices"},
}};
// clang-format on

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern
