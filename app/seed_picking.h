// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corvala::plot {
class FrameView;
}

namespace corvala::app {

class DetailsDock;

/// While the button of the page is held down, each click in the plot gives streamtraces one more
/// point to start from. Esc lets the button go. Lasts as long as both live.
void letPickSeeds(DetailsDock& details, plot::FrameView& view);

} // namespace corvala::app
