// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/dialog/view_models.h"

#include "zonestyle/models/field_contour_3d_model.h"
#include "zonestyle/models/field_contour_model.h"
#include "zonestyle/models/field_edge_model.h"
#include "zonestyle/models/field_effects_3d_model.h"
#include "zonestyle/models/field_effects_model.h"
#include "zonestyle/models/field_mesh_model.h"
#include "zonestyle/models/field_points_model.h"
#include "zonestyle/models/field_scatter_model.h"
#include "zonestyle/models/field_shade_3d_model.h"
#include "zonestyle/models/field_shade_model.h"
#include "zonestyle/models/field_static_area_model.h"
#include "zonestyle/models/field_surfaces_model.h"
#include "zonestyle/models/field_vector_model.h"
#include "zonestyle/models/field_volume_model.h"
#include "zonestyle/models/line_bars_model.h"
#include "zonestyle/models/line_curves_model.h"
#include "zonestyle/models/line_definitions_model.h"
#include "zonestyle/models/line_definitions_polar_model.h"
#include "zonestyle/models/line_definitions_xy_model.h"
#include "zonestyle/models/line_error_bars_model.h"
#include "zonestyle/models/line_indices_model.h"
#include "zonestyle/models/line_lines_model.h"
#include "zonestyle/models/line_static_area_model.h"
#include "zonestyle/models/line_symbols_model.h"
#include "zonestyle/models/model_for_page_map.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

using namespace models;

namespace {

constexpr int kEvery = ModelForPageMap::kEveryPlotType;

/// Makes a chain of models, outermost first: each takes the next one.
template<class Head, class... Following>
ModelAbstract* makeChain()
{
    if constexpr (sizeof...(Following) == 0)
        return new Head(nullptr);
    else
        return new Head(makeChain<Following...>());
}

template<class... StyleModels>
ModelAbstract* field()
{
    return makeChain<FieldStaticAreaModel, StyleModels...>();
}

template<class... StyleModels>
ModelAbstract* line()
{
    return makeChain<LineStaticAreaModel, StyleModels...>();
}

} // namespace

const std::vector<ViewModel>& viewModels()
{
    static const std::vector<ViewModel> table {
        {"plotAttr_FDMesh_Page", kEvery, field<FieldMeshModel>},
        {"plotAttr_FDCont_Page", PlotType_Field2D, field<FieldContourModel>},
        {"plotAttr_FDCont_Page", PlotType_Field3D, field<FieldContourModel, FieldContour3DModel>},
        {"plotAttr_FDVect_Page", kEvery, field<FieldVectorModel>},
        {"plotAttr_FDScat_Page", kEvery, field<FieldScatterModel>},
        {"plotAttr_FDShad_Page", PlotType_Field2D, field<FieldShadeModel>},
        {"plotAttr_FDShad_Page", PlotType_Field3D, field<FieldShadeModel, FieldShade3DModel>},
        {"plotAttr_FDEdge_Page", kEvery, field<FieldEdgeModel>},
        {"plotAttr_FDPoints_Page", kEvery, field<FieldPointsModel>},
        {"plotAttr_FDSurfaces_Page", kEvery, field<FieldSurfacesModel>},
        {"plotAttr_FDVolume_Page", kEvery, field<FieldVolumeModel>},
        {"plotAttr_FDEffect_Page", PlotType_Field2D, field<FieldEffectsModel>},
        {"plotAttr_FDEffect_Page", PlotType_Field3D, field<FieldEffectsModel, FieldEffects3DModel>},
        {"plotAttr_LPDefn_Page", PlotType_LineXY,
         line<LineDefinitionsModel, LineDefinitionsXYModel>},
        {"plotAttr_LPDefn_Page", PlotType_LinePolar,
         line<LineDefinitionsModel, LineDefinitionsPolarModel>},
        {"plotAttr_LPLine_Page", kEvery, line<LineLinesModel>},
        {"plotAttr_LPCurv_Page", kEvery, line<LineCurvesModel>},
        {"plotAttr_LPSymb_Page", kEvery, line<LineSymbolsModel>},
        {"plotAttr_LPEBar_Page", kEvery, line<LineErrorBarsModel>},
        {"plotAttr_LPBars_Page", kEvery, line<LineBarsModel>},
        {"plotAttr_LPIndx_Page", kEvery, line<LineIndicesModel>},
    };
    return table;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern
