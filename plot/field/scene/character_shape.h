// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vtkSmartPointer.h>

#include <string>

class vtkImageData;

namespace corvala::plot {

/// The outline of a character as a picture of distances, of one component: what is half way from
/// black to white lies on the outline. `font` is a FontOverride_e: Greek takes Latin letters for
/// those of the Greek alphabet, Math is a slanted font with serifs, User one of fixed width.
vtkSmartPointer<vtkImageData> characterImage(const std::string& character, int font);

/// How far characters may reach from their middle, in units of half the height of a capital letter.
double characterReach();

/// The shader's expression for how far a place is outside of the outline, in units of half the
/// height of a capital letter; `texture` and `place` are its names of both.
std::string characterDistance(const std::string& texture, const std::string& place);

} // namespace corvala::plot
