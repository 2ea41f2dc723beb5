// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/model_for_page_map.h"

#include "zonestyle/models/model_abstract.h"

#include <sdk/base/cvl.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

ModelForPageMap::ModelForPageMap() = default;

ModelForPageMap::~ModelForPageMap() = default;

template<class Map, class Key>
static bool insert(Map& map, const Key& key, ModelAbstract* model)
{
    const auto [entry, isNew] = map.try_emplace(key);
    if (isNew)
        entry->second.reset(model);
    return isNew;
}

bool ModelForPageMap::add(const QWidget* page, ModelAbstract* model, int plotType)
{
    if (plotType == kEveryPlotType)
        return insert(m_forEveryPlotType, page, model);
    return insert(m_forPlotType, std::make_pair(page, plotType), model);
}

ModelAbstract* ModelForPageMap::modelFor(const QWidget* page) const
{
    const auto forEvery = m_forEveryPlotType.find(page);
    if (forEvery != m_forEveryPlotType.end())
        return forEvery->second.get();
    const auto found = m_forPlotType.find({page, static_cast<int>(CvlUtilFrameGetPlotType())});
    return found == m_forPlotType.end() ? nullptr : found->second.get();
}

void ModelForPageMap::clear()
{
    m_forEveryPlotType.clear();
    m_forPlotType.clear();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
