// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/events/state_event.h"

#include <QString>

#include <utility>

namespace corvala::plot {

/// What a canvas shows of a frame. Changes are taken note of at once, and worked off in slices.
class Scene
{
public:
    virtual ~Scene() = default;

    /// Shows this frame from now on, from scratch; 0 or the ID of no frame that it can show shows
    /// nothing.
    virtual void setFrame(CvlUniqueId frame) = 0;

    /// Takes note of a change of the document; true when the picture may differ.
    virtual bool apply(const host::StateEvent& event) = 0;

    /// Works for about `milliseconds`; negative works until all is done. True while work is left.
    virtual bool advance(int milliseconds) = 0;
    virtual bool hasWork() const = 0;
    /// Pieces of work since there was none, done and in all.
    virtual std::pair<CvlInt64, CvlInt64> progress() const = 0;
    /// Puts the work that is left aside; what it would have changed stays as it is.
    virtual void cancel() = 0;
    /// Takes up again what was put aside.
    virtual void resume() = 0;

    /// A remark for the user on what is not shown; empty without one.
    virtual QString notice() const = 0;
};

} // namespace corvala::plot
