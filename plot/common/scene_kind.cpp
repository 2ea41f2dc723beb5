// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/scene_kind.h"

namespace corvala::plot {

static bool concerns(const SharedStyle& shared, style::Key value)
{
    return shared.withItsGroup ? style::isInGroupOf(value, shared.value) : value == shared.value;
}

TouchedLayers SceneKind::touchedBy(style::Key value) const
{
    TouchedLayers touched;
    const auto add = [&](std::size_t number, unsigned use) {
        touched.layers |= maskOf(number);
        if (layer(number).uses & use & valueUse)
            touched.layers |= valuesBit();
    };
    for (std::size_t i = 0; value.isValid() && i < layerCount; ++i) {
        const style::Layer& style = *layer(i).style;
        touched.isSwitch = touched.isSwitch || value == style.shown;
        if (value == style.shown || style::isInGroupOf(value, style.shownForMap))
            add(i, valueUse);
        for (std::size_t j = 0; j < sharedCount; ++j) {
            const unsigned use = shared[j].use == 0 ? ~0U : layer(i).uses & shared[j].use;
            if (use != 0 && concerns(shared[j], value))
                add(i, use);
        }
    }
    return touched;
}

} // namespace corvala::plot
