// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <map>
#include <memory>
#include <utility>

class QWidget;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

class ModelAbstract;

/// Which table a tab page shows under the plot type of the active frame.
class ModelForPageMap
{
public:
    static constexpr int kEveryPlotType = 255;

    ModelForPageMap();
    ~ModelForPageMap();
    ModelForPageMap(const ModelForPageMap&) = delete;
    ModelForPageMap& operator=(const ModelForPageMap&) = delete;

    /// Registers the head of a chain for a page, under a PlotType_e or kEveryPlotType, and takes
    /// ownership of it. False when the page has an entry there: that one stays, and the caller
    /// keeps the model. A model can be registered once.
    bool add(const QWidget* page, ModelAbstract* model, int plotType);

    /// The entry for every plot type, else that for the active frame's plot type, else null.
    ModelAbstract* modelFor(const QWidget* page) const;

    /// Deletes every registered model.
    void clear();

private:
    using Model = std::unique_ptr<ModelAbstract>;

    std::map<const QWidget*, Model> m_forEveryPlotType;
    std::map<std::pair<const QWidget*, int>, Model> m_forPlotType;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
