// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace corvala::plot {
class FrameView;
}

namespace corvala::app {

class DetailsDock;

/// While the button of the page is held down, each click in the plot gives streamtraces one more
/// point to start from. Esc lets the button go.
class SeedPicking : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    SeedPicking(DetailsDock& details, plot::FrameView& view, QObject* parent);
};

} // namespace corvala::app
