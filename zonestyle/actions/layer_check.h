// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_path.h"

#include <sdk/base/enums.h>

#include <boost/function.hpp>

#include <string>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// What is asked before a plot layer is shown for some field maps: whether to switch the layer on
/// in the frame, and whether volume zones, of which nothing would be seen, shall draw surfaces.
class LayerCheck
{
public:
    /// For the value of a path; only the "Show" value of a field layer is a matter of layers.
    explicit LayerCheck(const StylePath& path);

    bool applies() const { return m_layerQuery; }

    /// Asks the user, as far as there is something to ask. The answers change the frame, not what
    /// the caller is about to write.
    void run() const;

private:
    struct ActiveZones
    {
        bool some = false;
        bool allVolume = true;
        bool noSurfaces = true;
    };

    ActiveZones examineActiveZones() const;

    bool m_layerQuery;
    std::string m_layer; ///< empty unless m_layerQuery
    boost::function<bool(PlotType_e)> m_plotTypeChooser; ///< empty for layers without variables
    bool m_pointsMatter; ///< that come from no surface
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
