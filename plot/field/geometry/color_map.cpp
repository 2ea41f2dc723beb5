// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/color_map.h"

#include <vtkImageData.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace corvala::plot {

static constexpr std::array<host::Rgb, 9> kAnchors {{{68, 1, 84},
                                                     {71, 45, 123},
                                                     {59, 82, 139},
                                                     {44, 114, 142},
                                                     {33, 145, 140},
                                                     {40, 174, 128},
                                                     {94, 201, 98},
                                                     {173, 220, 48},
                                                     {253, 231, 37}}};

static std::uint8_t blend(std::uint8_t from, std::uint8_t to, double share)
{
    return static_cast<std::uint8_t>(std::lround(from + share * (to - from)));
}

host::Rgb mapColor(double fraction)
{
    const double last = kAnchors.size() - 1;
    const double position = std::isnan(fraction) ? 0.0 : std::clamp(fraction, 0.0, 1.0) * last;
    const double floor = std::min(std::floor(position), last - 1);
    const host::Rgb& from = kAnchors[static_cast<std::size_t>(floor)];
    const host::Rgb& to = kAnchors[static_cast<std::size_t>(floor) + 1];
    const double share = position - floor;
    return {blend(from.red, to.red, share), blend(from.green, to.green, share),
            blend(from.blue, to.blue, share)};
}

std::vector<host::Rgb> bandColors(int count)
{
    std::vector<host::Rgb> colors;
    for (int i = 0; i < count; ++i)
        colors.push_back(mapColor(count == 1 ? 0.5 : static_cast<double>(i) / (count - 1)));
    return colors;
}

host::Rgb noValueColor()
{
    return {190, 190, 190};
}

vtkSmartPointer<vtkImageData> bandImage(int count)
{
    const std::vector<host::Rgb> colors = bandColors(count);
    auto image = vtkSmartPointer<vtkImageData>::New();
    image->SetDimensions(count, 2, 1);
    image->AllocateScalars(VTK_UNSIGNED_CHAR, 3);
    for (int row = 0; row < 2; ++row) {
        for (int i = 0; i < count; ++i) {
            const host::Rgb color = row == 0 ? colors[static_cast<std::size_t>(i)] : noValueColor();
            auto* texel = static_cast<unsigned char*>(image->GetScalarPointer(i, row, 0));
            texel[0] = color.red;
            texel[1] = color.green;
            texel[2] = color.blue;
        }
    }
    return image;
}

} // namespace corvala::plot
