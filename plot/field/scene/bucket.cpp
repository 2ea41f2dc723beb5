// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/bucket.h"

#include "plot/common/line_patterns.h"
#include "plot/field/geometry/color_map.h"
#include "plot/field/scene/symbol_shader.h"

#include <vtkImageData.h>
#include <vtkPoints.h>
#include <vtkProperty.h>
#include <vtkShaderProperty.h>
#include <vtkUniforms.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace corvala::plot {

/// Distance of the layers of a map in a flat plot, where maps lie one unit above each other.
static constexpr double kLayerHeight = 0.9 / kFieldLayerCount;
static constexpr int kPatternTexels = 128;
static constexpr double kPointPixels = 5.0;

/// One period of a pattern; gaps are transparent.
static vtkSmartPointer<vtkImageData> patternImage(int pattern)
{
    auto image = vtkSmartPointer<vtkImageData>::New();
    image->SetDimensions(kPatternTexels, 1, 1);
    image->AllocateScalars(VTK_UNSIGNED_CHAR, 4);
    for (int i = 0; i < kPatternTexels; ++i) {
        auto* texel = static_cast<unsigned char*>(image->GetScalarPointer(i, 0, 0));
        std::fill(texel, texel + 3, static_cast<unsigned char>(255));
        texel[3] = isStrokeAt(pattern, (i + 0.5) / kPatternTexels) ? 255 : 0;
    }
    return image;
}

std::int64_t drawingCost(vtkPolyData& piece, const MapperLook& look)
{
    return shapeCost(piece) * (look.symbol.shape == SymbolLook::kNone ? 1 : kPointsPerSymbol);
}

CompositeLayer::Bucket::Bucket(const MapperLook& look, CvlInt64 firstMap, FieldLayer layer,
                               bool flat)
    : m_look(look)
    , m_firstMap(firstMap)
{
    m_mapper->SetInputDataObject(m_drawn);
    m_mapper->SetCompositeDataDisplayAttributes(m_attributes);
    m_mapper->SetScalarVisibility(look.ownColors);
    m_actor->SetMapper(m_mapper);
    setProperties();
    setDepth(layer, flat);
    if (look.patternLength > 0.0 || look.floodGroup > 0) {
        m_texture = vtkSmartPointer<vtkTexture>::New();
        m_texture->InterpolateOff();
        m_texture->SetRepeat(look.floodGroup == 0);
        m_texture->EdgeClampOn();
        m_texture->SetTransform(m_textureTransform);
        m_actor->SetTexture(m_texture);
        m_actor->ForceOpaqueOn();
    }
    if (look.translucency > 0) {
        m_actor->ForceOpaqueOff();
        m_actor->ForceTranslucentOn();
    }
    if (look.patternLength > 0.0)
        m_texture->SetInputData(patternImage(look.pattern));
    if (look.symbol.shape != SymbolLook::kNone)
        drawSymbols(*m_actor, look.symbol);
}

void CompositeLayer::Bucket::setProperties()
{
    vtkProperty* property = m_actor->GetProperty();
    property->SetLighting(m_look.lit);
    property->SetOpacity(1.0 - m_look.translucency / 100.0);
    // Normals are looked at for smooth light only; those of symbols say something else.
    const bool usesNormals = m_look.smooth || m_look.symbol.hasPointData();
    property->SetInterpolation(usesNormals ? VTK_GOURAUD : VTK_FLAT);
    // Colours that stand for values stay recognizable on faces that look away from the light.
    const double ambient = m_look.floodGroup > 0 || m_look.ownColors ? 0.65 : 0.4;
    property->SetAmbient(m_look.lit ? ambient : 1.0);
    property->SetDiffuse(m_look.lit ? 1.05 - ambient : 0.0);
    property->SetSpecular(m_look.shiny ? 0.35 : 0.0);
    property->SetSpecularPower(30.0);
    property->SetColor(m_look.floodGroup > 0 ? 1.0 : 0.0, m_look.floodGroup > 0 ? 1.0 : 0.0,
                       m_look.floodGroup > 0 ? 1.0 : 0.0);
}

void CompositeLayer::Bucket::setDepthShader(const std::string& depth)
{
    m_actor->GetShaderProperty()->AddFragmentShaderReplacement(
        "//VTK::Depth::Impl", true, "gl_FragDepth = " + depth + ";\n", false);
}

/// What lies in the same place is drawn in the order of the layers: by height in a flat plot, else
/// by moving what comes earlier away from the viewer. Lines move by next to nothing. Faces move by
/// as much as they recede within some pixels, so that lines keep their width on faces that are seen
/// at an angle; the renderer's own offset knows nothing of the angle.
void CompositeLayer::Bucket::setDepth(FieldLayer layer, bool flat)
{
    const LayerPlace place = placeOf(layer);
    if (flat) {
        m_actor->SetPosition(0.0, 0.0, kLayerHeight * static_cast<double>(place.number));
        return;
    }
    if (!place.isOfFaces) {
        if (place.inFront > 0)
            setDepthShader("gl_FragCoord.z + " + std::to_string(place.inFront) + "e-6");
        return;
    }
    const std::string steps = place.isWithin ? "stepsBack"
        : m_look.translucency > 0            ? "(stepsBack + (gl_FrontFacing ? 1.0 : 2.0))"
                                             : "(stepsBack + 1.0)";
    setDepthShader("gl_FragCoord.z + " + std::to_string(kMostLineLayers) + "e-6 + 2e-6 * " + steps
                   + "\n  + (setBack + 0.02 * " + steps
                   + ") * max(abs(dFdx(gl_FragCoord.z)), abs(dFdy(gl_FragCoord.z)))");
    m_actor->GetShaderProperty()->GetFragmentCustomUniforms()->SetUniformf("stepsBack", 0.0F);
    m_layersInFront = static_cast<float>(place.inFront);
    setWidestLine(1.0);
}

/// How far the faces of a map lie behind those of the last one: by three steps a map, for what lies
/// within it, for its faces that look at the viewer, and for the others. Depth has room for the
/// steps of so many maps. Beyond, opaque faces take smaller ones, since rounding leaves most of
/// these in order. Translucent faces in the same place are better in any order than in none: their
/// maps are counted anew.
float CompositeLayer::Bucket::stepsBack(CvlInt64 map, CvlInt64 mapCount) const
{
    constexpr CvlInt64 kRoom = 23; // a prime, which blocks in rows seldom lie apart
    const CvlInt64 period = m_look.translucency > 0 ? std::min(mapCount, kRoom) : mapCount;
    const double step = std::min(1.0, static_cast<double>(kRoom) / static_cast<double>(period));
    return static_cast<float>(3.0 * step * static_cast<double>(period - 1 - map % period));
}

void CompositeLayer::Bucket::setWidestLine(double pixels)
{
    if (m_layersInFront >= 0.0F) {
        constexpr double kMost = 6.0; // more, and what is hidden shows through at the rim of things
        const float setBack =
            1.0F + static_cast<float>(std::min(pixels / 2, kMost)) + m_layersInFront;
        m_actor->GetShaderProperty()->GetFragmentCustomUniforms()->SetUniformf("setBack", setBack);
    }
}

/// Makes a shell show other data. It keeps the box round its cells for as long as its points are
/// not newer than that box, so it gets points of its own that are, with the same array.
static void fill(vtkPolyData& shell, vtkPolyData& source)
{
    shell.ShallowCopy(&source);
    vtkNew<vtkPoints> points;
    points->SetData(source.GetPoints()->GetData());
    shell.SetPoints(points);
}

/// The mapper draws its blocks in the order of their addresses, and what is drawn later covers what
/// lies in the same place. So the mapper gets shells, which the blocks take in ascending order.
void CompositeLayer::Bucket::setBlocks(std::vector<Block> blocks, CvlInt64 mapCount)
{
    const bool isSame = std::equal(blocks.begin(), blocks.end(), m_blocks.begin(), m_blocks.end());
    if (isSame && m_mapCount == mapCount)
        return;
    m_blocks = std::move(blocks);
    m_mapCount = mapCount;
    m_size = 0;
    const std::size_t count = m_blocks.size();
    while (m_shells.size() < count)
        m_shells.push_back({vtkSmartPointer<vtkPolyData>::New(), nullptr});
    m_shells.resize(count);
    std::sort(m_shells.begin(), m_shells.end(), [](const Shell& left, const Shell& right) {
        return std::less<>()(left.data.Get(), right.data.Get());
    });
    std::vector<float> steps;
    m_attributes->RemoveBlockColors();
    m_drawn->SetNumberOfBlocks(static_cast<unsigned int>(count));
    for (std::size_t i = 0; i < count; ++i) {
        Shell& shell = m_shells[i];
        m_size += drawingCost(*m_blocks[i].data, m_look);
        if (shell.source != m_blocks[i].data) {
            shell.source = m_blocks[i].data;
            fill(*shell.data, *shell.source);
        }
        steps.push_back(stepsBack(m_blocks[i].map, mapCount));
        const host::Rgb& color = m_blocks[i].color;
        const double parts[3] = {color.red / 255.0, color.green / 255.0, color.blue / 255.0};
        if (hasBlockColors())
            m_attributes->SetBlockColor(shell.data, parts);
        m_drawn->SetBlock(static_cast<unsigned int>(i), shell.data);
    }
    m_mapper->setStepsBack(std::move(steps));
    m_mapper->Modified();
}

void CompositeLayer::Bucket::setScale(const ViewScale& scale)
{
    m_linePixels = std::max(m_look.thickness / 100.0 * scale.frameHeight, scale.thinnestLine);
    m_actor->GetProperty()->SetLineWidth(static_cast<float>(m_linePixels));
    m_actor->GetProperty()->SetPointSize(static_cast<float>(kPointPixels * scale.thinnestLine));
    if (m_look.symbol.shape != SymbolLook::kNone)
        scaleSymbols(*m_actor, m_look.symbol, scale, m_linePixels);
    if (m_look.patternLength > 0.0) {
        const double period = std::max(m_look.patternLength / 100.0 * scale.frameHeight, 1.0);
        m_textureTransform->Identity();
        m_textureTransform->Scale(scale.pixelsPerUnit / period, 1.0, 1.0);
    }
}

void CompositeLayer::Bucket::updateLevels(const ContourGroups& groups)
{
    if (m_look.floodGroup == 0)
        return;
    const ContourLevels& levels = groups.levels(m_look.floodGroup);
    const ColorScale& colors = groups.colors(m_look.floodGroup);
    if (m_textureBands != levels.bands || !(m_textureColors == colors)) {
        m_texture->SetInputData(bandImage(colors, levels.bands));
        m_textureBands = levels.bands;
        m_textureColors = colors;
    }
    m_textureTransform->Identity();
    m_textureTransform->Translate(groups.textureShift(m_look.floodGroup), 0.0, 0.0);
    m_textureTransform->Scale(groups.textureScale(m_look.floodGroup), 1.0, 1.0);
}

} // namespace corvala::plot
