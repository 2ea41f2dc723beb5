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
    for (std::size_t j = 0; value.isValid() && j < sharedCount; ++j)
        touched.isBeside = touched.isBeside || concerns(shared[j], value);
    for (std::size_t i = 0; value.isValid() && i < layerCount; ++i) {
        const SceneLayer& it = layer(i);
        const bool isSwitch = value == it.shown && !it.isOfFrame;
        const bool isOwn = isSwitch || style::isInGroupOf(value, it.shownForMap)
            || (it.isOfFrame && style::isInGroupOf(value, it.shown));
        if (isOwn)
            add(i, valueUse);
        if (isSwitch)
            touched.switched |= maskOf(i);
        for (std::size_t j = 0; j < sharedCount && !isSwitch; ++j) {
            const unsigned use = shared[j].use == 0 ? ~0U : it.uses & shared[j].use;
            if (use != 0 && concerns(shared[j], value))
                add(i, use);
        }
    }
    return touched;
}

LayerMask SceneKind::jointLayers() const
{
    LayerMask joint = 0;
    for (std::size_t i = 0; i < layerCount; ++i)
        joint |= layer(i).uses & jointUse ? maskOf(i) : 0;
    return joint;
}

} // namespace corvala::plot
