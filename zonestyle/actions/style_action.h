// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/action.h"
#include "zonestyle/actions/layer_check.h"
#include "zonestyle/actions/style_target.h"

#include <sdk/base/enums.h>
#include <sdk/toolbox/style_value.h>

#include <memory>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Writes one fixed value to one style value of the selected maps, in one host call. `char` stands
/// for a switch, 1 or 0; enumerations are written as their number.
template<class T>
class StyleAction : public Action
{
public:
    StyleAction(const QString& text, const QModelIndexList& selectedIndexes, T value,
                const StyleTarget& target);
    ~StyleAction() override;

    void invokeAction() override;
    bool isPresentValue() const override;

    /// The value does not count, and is not the present one, in maps where this switch is on.
    void setOverriddenBy(style::SwitchKey key) { m_overriding = key; }

protected:
    /// The present value of the first selected map, of which there must be one; a failed read
    /// gives 0.
    T firstValue() const;
    /// Writes a value; one that switches a layer on asks about the layer first.
    void write(T value);

private:
    std::unique_ptr<toolbox::CheckedStyleValue> m_styleValue;
    T m_value;
    LayerCheck m_layerCheck;
    style::SwitchKey m_overriding; ///< not valid for most
};

/// Makes an action, does what it stands for and discards it.
template<class A, class... Arguments>
void runAction(Arguments&&... arguments)
{
    A action(std::forward<Arguments>(arguments)...);
    action.trigger();
}

extern template class StyleAction<char>;
extern template class StyleAction<int>;
extern template class StyleAction<double>;
extern template class StyleAction<ArrowheadStyle_e>;
extern template class StyleAction<BorderLocation_e>;
extern template class StyleAction<ContourColoring_e>;
extern template class StyleAction<ContourType_e>;
extern template class StyleAction<CurveType_e>;
extern template class StyleAction<EdgeType_e>;
extern template class StyleAction<ErrorBar_e>;
extern template class StyleAction<FillMode_e>;
extern template class StyleAction<FunctionDependency_e>;
extern template class StyleAction<GeomShape_e>;
extern template class StyleAction<IJKLines_e>;
extern template class StyleAction<LegendShow_e>;
extern template class StyleAction<LightingEffect_e>;
extern template class StyleAction<LineMapSort_e>;
extern template class StyleAction<LinePattern_e>;
extern template class StyleAction<MeshType_e>;
extern template class StyleAction<PointsToPlot_e>;
extern template class StyleAction<SkipMode_e>;
extern template class StyleAction<SurfacesToPlot_e>;
extern template class StyleAction<VectorType_e>;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
