// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/style_action.h"

#include <sdk/uicommon/edit_session.h>
#include <sdk/uicommon/style_writing.h>

#include <QPointer>

#include <algorithm>
#include <optional>
#include <type_traits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// What the host takes for a value of type T.
template<class T>
using HostValue = std::conditional_t<std::is_same_v<T, char>, bool, double>;

/// What the host gives for one.
template<class T>
using HostRead = std::conditional_t<std::is_same_v<T, char>, bool,
                                    std::conditional_t<std::is_same_v<T, double>, double, int>>;

template<class T>
StyleAction<T>::StyleAction(const QString& text, const QModelIndexList& selectedIndexes, T value,
                            const StyleTarget& target)
    : Action(text, selectedIndexes)
    , m_styleValue(std::make_unique<toolbox::CheckedStyleValue>(
          accessor<toolbox::CheckedStyleValue>(target)))
    , m_value(value)
    , m_layerCheck(target.key())
{
}

template<class T>
StyleAction<T>::~StyleAction() = default;

template<class T>
void StyleAction<T>::invokeAction()
{
    if (!selectedIndexes().isEmpty())
        write(m_value);
}

template<class T>
bool StyleAction<T>::isPresentValue() const
{
    const QModelIndexList& rows = selectedIndexes();
    std::optional<toolbox::CheckedStyleValue> overriding;
    if (m_overriding.isValid())
        overriding.emplace(m_overriding);
    return !rows.isEmpty() && std::all_of(rows.begin(), rows.end(), [&](const QModelIndex& row) {
        const CvlInt64 map = row.row() + 1;
        const auto present = m_styleValue->template read<HostRead<T>>(map);
        const bool counts = !overriding || !overriding->template read<bool>(map).value_or(false);
        return counts && present && static_cast<T>(*present) == m_value;
    });
}

template<class T>
T StyleAction<T>::firstValue() const
{
    return static_cast<T>(
        m_styleValue->template read<HostRead<T>>(firstMap()).value_or(HostRead<T> {}));
}

template<class T>
void StyleAction<T>::write(T value)
{
    const toolbox::Set maps = selectedMaps();
    if (value != T {} && m_layerCheck.applies()) {
        const QPointer<Action> self(this);
        const EditSession session([] {}); // ends with the dialog, too
        LayerCheck(m_layerCheck).run(); // a copy: the action may go while a question is open
        if (!self || !session.isValid())
            return;
    }
    writeStyle(*m_styleValue, &maps, static_cast<HostValue<T>>(value));
}

template class StyleAction<char>;
template class StyleAction<int>;
template class StyleAction<double>;
template class StyleAction<ArrowheadStyle_e>;
template class StyleAction<BorderLocation_e>;
template class StyleAction<ContourColoring_e>;
template class StyleAction<ContourType_e>;
template class StyleAction<CurveType_e>;
template class StyleAction<EdgeType_e>;
template class StyleAction<ErrorBar_e>;
template class StyleAction<FillMode_e>;
template class StyleAction<FunctionDependency_e>;
template class StyleAction<GeomShape_e>;
template class StyleAction<IJKLines_e>;
template class StyleAction<LegendShow_e>;
template class StyleAction<LightingEffect_e>;
template class StyleAction<LineMapSort_e>;
template class StyleAction<LinePattern_e>;
template class StyleAction<MeshType_e>;
template class StyleAction<PointsToPlot_e>;
template class StyleAction<SkipMode_e>;
template class StyleAction<SurfacesToPlot_e>;
template class StyleAction<VectorType_e>;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
