// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/color_map.h"

#include "vocabulary/choices.h"

#include <vtkImageData.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace corvala::plot {

/// Colours at equal distances, as 0xRRGGBB; those in between are mixed.
class Anchors
{
public:
    template<std::size_t N>
    constexpr Anchors(ColorMap_e map, const std::uint32_t (&colors)[N])
        : m_map(map)
        , m_colors(colors)
        , m_last(N - 1)
    {
    }

    constexpr ColorMap_e map() const { return m_map; }
    constexpr double last() const { return static_cast<double>(m_last); }
    constexpr host::Rgb operator[](double place) const
    {
        const std::uint32_t color = m_colors[static_cast<std::size_t>(place)];
        return {static_cast<std::uint8_t>(color >> 16), static_cast<std::uint8_t>(color >> 8),
                static_cast<std::uint8_t>(color)};
    }

private:
    ColorMap_e m_map;
    const std::uint32_t* m_colors;
    std::size_t m_last;
};

static constexpr std::uint32_t kViridis[] = {0x440154, 0x472d7b, 0x3b528b, 0x2c728e, 0x21918c,
                                             0x28ae80, 0x5ec962, 0xaddc30, 0xfde725};
static constexpr std::uint32_t kPlasma[] = {0x0d0887, 0x41049d, 0x6a00a8, 0x8f0da4,
                                            0xb12a90, 0xcc4778, 0xe16462, 0xf2844b,
                                            0xfca636, 0xfcce25, 0xf0f921};
static constexpr std::uint32_t kInferno[] = {0x000004, 0x160b39, 0x420a68, 0x6a176e,
                                             0x932667, 0xbc3754, 0xdd513a, 0xf37819,
                                             0xfca50a, 0xf6d746, 0xfcffa4};
static constexpr std::uint32_t kMagma[] = {0x000004, 0x140e36, 0x3b0f70, 0x641a80,
                                           0x8c2981, 0xb73779, 0xde4968, 0xf7705c,
                                           0xfe9f6d, 0xfecf92, 0xfcfdbf};
static constexpr std::uint32_t kCividis[] = {0x00224e, 0x123570, 0x3b496c, 0x575d6d, 0x707173,
                                             0x8a8678, 0xa59c74, 0xc3b369, 0xe1cc55, 0xfee838};
static constexpr std::uint32_t kTurbo[] = {0x30123b, 0x4145ab, 0x4675ed, 0x39a2fc, 0x1bcfd4,
                                           0x24eca6, 0x61fc6c, 0xa4fc3c, 0xd1e834, 0xf3c63a,
                                           0xfe9b2d, 0xf36315, 0xd93806, 0xb11901, 0x7a0402};
static constexpr std::uint32_t kRainbow[] = {0x0000ff, 0x00ffff, 0x00ff00, 0xffff00, 0xff0000};
static constexpr std::uint32_t kCoolToWarm[] = {0x3b4cc0, 0x5977e3, 0x7b9ff9, 0x9ebeff,
                                                0xc0d4f5, 0xdddcdc, 0xf2cbb7, 0xf7ac8e,
                                                0xee8468, 0xd65244, 0xb40426};
static constexpr std::uint32_t kBlueWhiteRed[] = {0x0000ff, 0xffffff, 0xff0000};
static constexpr std::uint32_t kBlackBody[] = {0x000000, 0x7a0a06, 0xe61e05, 0xe67d0a,
                                               0xe6d232, 0xfff5b4, 0xffffff};
static constexpr std::uint32_t kGray[] = {0x000000, 0xffffff};
static constexpr std::uint32_t kTerrain[] = {0x333399, 0x0794fc, 0x00cc66,
                                             0xfffd98, 0x805d54, 0xffffff};

static constexpr Anchors kMaps[] = {{ColorMap_Viridis, kViridis},
                                    {ColorMap_Plasma, kPlasma},
                                    {ColorMap_Inferno, kInferno},
                                    {ColorMap_Magma, kMagma},
                                    {ColorMap_Cividis, kCividis},
                                    {ColorMap_Turbo, kTurbo},
                                    {ColorMap_Rainbow, kRainbow},
                                    {ColorMap_CoolToWarm, kCoolToWarm},
                                    {ColorMap_BlueWhiteRed, kBlueWhiteRed},
                                    {ColorMap_BlackBody, kBlackBody},
                                    {ColorMap_Gray, kGray},
                                    {ColorMap_Terrain, kTerrain}};

static constexpr bool areMapsInOrder()
{
    int number = 0;
    for (const Anchors& anchors : kMaps)
        if (anchors.map() != number++)
            return false;
    return style::Choices(style::kColorMaps).size() == std::size(kMaps);
}
static_assert(areMapsInOrder());

static std::uint8_t blend(std::uint8_t from, std::uint8_t to, double share)
{
    return static_cast<std::uint8_t>(std::lround(from + share * (to - from)));
}

host::Rgb scaleColor(const ColorScale& scale, double fraction)
{
    const Anchors& anchors = kMaps[scale.map];
    const double inside = std::isnan(fraction) ? 0.0 : std::clamp(fraction, 0.0, 1.0);
    const double position = (scale.isReversed ? 1.0 - inside : inside) * anchors.last();
    const double floor = std::min(std::floor(position), anchors.last() - 1);
    const host::Rgb from = anchors[floor];
    const host::Rgb to = anchors[floor + 1];
    const double share = position - floor;
    return {blend(from.red, to.red, share), blend(from.green, to.green, share),
            blend(from.blue, to.blue, share)};
}

static host::Rgb colorOfBand(const ColorScale& scale, int band, int count)
{
    return scaleColor(scale, count == 1 ? 0.5 : static_cast<double>(band) / (count - 1));
}

std::vector<host::Rgb> bandColors(const ColorScale& scale, int count)
{
    std::vector<host::Rgb> colors;
    for (int i = 0; i < count; ++i)
        colors.push_back(colorOfBand(scale, i, count));
    return colors;
}

host::Rgb bandColor(const ColorScale& scale, double fraction, int count)
{
    return colorOfBand(scale, static_cast<int>(std::clamp(fraction * count, 0.0, count - 1.0)),
                       count);
}

host::Rgb noValueColor()
{
    return {190, 190, 190};
}

vtkSmartPointer<vtkImageData> bandImage(const ColorScale& scale, int count)
{
    std::vector<host::Rgb> colors = bandColors(scale, count);
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
