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

static host::Rgb colorOfBand(int band, int count)
{
    return mapColor(count == 1 ? 0.5 : static_cast<double>(band) / (count - 1));
}

std::vector<host::Rgb> bandColors(int count)
{
    std::vector<host::Rgb> colors;
    for (int i = 0; i < count; ++i)
        colors.push_back(colorOfBand(i, count));
    return colors;
}

host::Rgb bandColor(double fraction, int count)
{
    return colorOfBand(static_cast<int>(std::clamp(fraction * count, 0.0, count - 1.0)), count);
}

host::Rgb noValueColor()
{
    return {190, 190, 190};
}

vtkSmartPointer<vtkImageData> bandImage(int count)
{
    std::vector<host::Rgb> colors = bandColors(count);
    if (count == 1) // an image one texel wide is taken for one that lies in another plane
        colors.push_back(colors.front());
    auto image = vtkSmartPointer<vtkImageData>::New();
    image->SetDimensions(static_cast<int>(colors.size()), 2, 1);
    image->AllocateScalars(VTK_UNSIGNED_CHAR, 3);
    for (int row = 0; row < 2; ++row) {
        for (std::size_t i = 0; i < colors.size(); ++i) {
            const host::Rgb color = row == 0 ? colors[i] : noValueColor();
            auto* texel =
                static_cast<unsigned char*>(image->GetScalarPointer(static_cast<int>(i), row, 0));
            texel[0] = color.red;
            texel[1] = color.green;
            texel[2] = color.blue;
        }
    }
    return image;
}

} // namespace corvala::plot
