// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/scene/composite_layer.h"

namespace corvala::plot {

/// Lets an actor draw the vertices of its mapper as symbols, each made by the graphics processor
/// from its point. Where points have data of their own (see SymbolLook) these are their normals:
/// the size in percent of the frame's height, and the colour of the inside as a number.
void drawSymbols(vtkActor& actor, const SymbolLook& look);

/// Fits them to the view; `linePixels` is the width of their outline.
void scaleSymbols(vtkActor& actor, const SymbolLook& look, const ViewScale& scale,
                  double linePixels);

} // namespace corvala::plot
