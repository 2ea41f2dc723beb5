// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>
#include <vocabulary/layers.h>

#include <boost/function.hpp>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// What is asked before a plot layer is shown for some field maps: whether to switch the layer on
/// in the frame, and whether volume zones, of which nothing would be seen, shall draw surfaces.
class LayerCheck
{
public:
    /// For writes to this value; only the switch of a field layer is a matter of layers.
    explicit LayerCheck(style::Key key);

    bool applies() const { return m_layer != nullptr; }

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

    const style::Layer* m_layer; ///< null when there is nothing to ask
    boost::function<bool(PlotType_e)> m_plotTypeChooser; ///< empty for layers without variables
    bool m_pointsMatter; ///< that come from no surface
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
