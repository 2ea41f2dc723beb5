// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/symbol_shader.h"

#include "plot/field/scene/character_shape.h"

#include <vtkActor.h>
#include <vtkImageData.h>
#include <vtkProperty.h>
#include <vtkShaderProperty.h>
#include <vtkTexture.h>
#include <vtkUniforms.h>

#include <algorithm>

namespace corvala::plot {

/// Makes two triangles of a point: a square as large as its symbol. In space it comes as near as a
/// ball of its size, so that the surface on which the point lies does not hide half of it; of a
/// body it lies in front, which then writes the depth of each of its places.
static constexpr const char* kSquares = R"(//VTK::System::Dec
//VTK::CustomUniforms::Dec
//VTK::PositionVC::Dec
//VTK::PrimID::Dec
//VTK::Color::Dec
//VTK::Normal::Dec
//VTK::Light::Dec
//VTK::TCoord::Dec
//VTK::Picking::Dec
//VTK::DepthPeeling::Dec
//VTK::Clip::Dec
//VTK::Output::Dec
layout(points) in;
layout(triangle_strip, max_vertices = 4) out;
in vec3 ownVSOutput[];
out vec2 cornerGSOutput;
flat out float radiusGSOutput;
flat out vec3 fillGSOutput;
flat out vec2 depthGSOutput;

void main()
{
  int i = 0;
  if (ownVSOutput[0].x < 0.0) return;
  float radius = max(0.5 * pixelsPerPercent * ownVSOutput[0].x, leastRadius);
  float code = ownVSOutput[0].y;
  float reach = extent + margin / radius;
  vec4 centre = gl_in[0].gl_Position;
  vec2 place = vec2(centre.z / centre.w - depthSlope, radius * nearness);
  if (nearness > 0.0) {
    float depth = depthSlope + place.x / (1.0 - min(lift * place.y, 0.9));
    centre.z = max(depth, -0.99999) * centre.w;
  }
  for (int corner = 0; corner < 4; ++corner) {
    vec2 at = reach * vec2(corner % 2 == 0 ? -1.0 : 1.0, corner < 2 ? -1.0 : 1.0);
    //VTK::PrimID::Impl
    //VTK::Clip::Impl
    //VTK::Color::Impl
    //VTK::Normal::Impl
    //VTK::Light::Impl
    //VTK::TCoord::Impl
    //VTK::DepthPeeling::Impl
    //VTK::Picking::Impl
    //VTK::PositionVC::Impl
    cornerGSOutput = at;
    radiusGSOutput = radius;
    fillGSOutput = vec3(floor(code / 65536.0), mod(floor(code / 256.0), 256.0),
                        mod(code, 256.0)) / 255.0;
    depthGSOutput = place;
    gl_Position = centre + vec4(2.0 * radius * at / viewport * centre.w, 0.0, 0.0);
    EmitVertex();
  }
  EndPrimitive();
}
)";

/// How far a place is outside of the outline, negative inside, in units of half the size.
static std::string outlineOf(int shape)
{
    switch (shape) {
    case GeomShape_Point:
    case GeomShape_Square: return "max(abs(p.x), abs(p.y)) - 1.0";
    case GeomShape_Delta: return "max(-p.y - 1.0, (2.0 * abs(p.x) + p.y - 1.0) / 2.236)";
    case GeomShape_Gradient: return "max(p.y - 1.0, (2.0 * abs(p.x) - p.y - 1.0) / 2.236)";
    case GeomShape_RightTriangle: return "max(-p.x - 1.0, (2.0 * abs(p.y) + p.x - 1.0) / 2.236)";
    case GeomShape_LeftTriangle: return "max(p.x - 1.0, (2.0 * abs(p.y) - p.x - 1.0) / 2.236)";
    case GeomShape_Diamond: return "(abs(p.x) + abs(p.y) - 1.0) / 1.414";
    case GeomShape_PieChart: return "max(length(p) - 1.0, min(p.x, p.y))";
    case GeomShape_LineArt:
        return "max(min(min(abs(p.x), abs(p.y)), min(abs(p.x - p.y), abs(p.x + p.y)) / 1.414),"
               " length(p) - 1.0)";
    case GeomShape_Character: return characterDistance("outline", "p");
    default: return "length(p) - 1.0";
    }
}

static std::string fillOf(const SymbolLook& look)
{
    switch (look.fill) {
    case SymbolFill::None: return "vec4(0.0)";
    case SymbolFill::Line: return "vec4(ambientColor, 1.0)";
    case SymbolFill::Points: return "vec4(fillVSOutput, 1.0)";
    case SymbolFill::Color: break;
    }
    std::string parts;
    for (const int shift : {16, 8, 0})
        parts += std::to_string(((look.fillColor >> shift) & 255U) / 255.0) + ", ";
    return "vec4(" + parts + "1.0)";
}

/// A flat symbol: its outline over what is inside, with edges as smooth as a pixel.
static std::string flatSymbol(const SymbolLook& look)
{
    return R"(
  vec2 p = cornerVSOutput;
  vec4 inner = )"
        + fillOf(look) + R"(;
  float away = ()"
        + outlineOf(look.shape) + R"() * radiusVSOutput;
  float line = clamp(0.5 + halfLine - abs(away), 0.0, 1.0);
  float inside = clamp(0.5 - away, 0.0, 1.0) * inner.a;
  float coverage = max(line, inside);
  if (coverage <= (isSmooth > 0.5 ? 0.0 : 0.5)) discard;
  ambientColor = mix(inner.rgb, ambientColor, inner.a > 0.5 ? line : 1.0);
  opacity *= isSmooth > 0.5 ? coverage : 1.0;
)";
}

static std::string light()
{
    return R"(
  float facing = max(dot(normal, normalize(vec3(-0.5, 0.6, 1.0))), 0.0);
  ambientColor = min(ambientColor * (0.4 + 0.7 * facing) + vec3(0.3 * pow(facing, 40.0)), 1.0);
)";
}

/// Depth of a place of a body, `height` in front of its centre, in units of half the size.
static std::string depthAt(const char* height)
{
    return std::string("  float share = 1.0 - min((1.0 + ") + height
        + ") * depthVSOutput.y, 0.9);\n"
          "  gl_FragDepth = 0.5 + 0.5 * max(depthSlope + depthVSOutput.x / share, -0.99999);\n";
}

static std::string ball()
{
    return R"(
  vec2 p = cornerVSOutput;
  float away = (length(p) - 1.0) * radiusVSOutput;
  float coverage = clamp(0.5 - away, 0.0, 1.0);
  if (coverage <= (isSmooth > 0.5 ? 0.0 : 0.5)) discard;
  vec3 normal = vec3(p, sqrt(max(1.0 - dot(p, p), 0.0)));
)" + light()
        + depthAt("normal.z") + "  opacity *= isSmooth > 0.5 ? coverage : 1.0;\n";
}

/// A body between pairs of planes: a line of sight enters it where it enters the last pair.
static std::string body(int shape)
{
    const std::string planes = shape == GeomShape_Cube
        ? "vec3[4](axisX, axisY, axisZ, axisZ); float reach = 0.62;\n"
        : "vec3[4](axisX + axisY + axisZ, axisX + axisY - axisZ, axisX - axisY + axisZ,"
          " axisY + axisZ - axisX); float reach = 1.0;\n";
    return R"(
  vec2 p = cornerVSOutput;
  vec3 planes[4] = )"
        + planes + R"(
  float enters = 10.0;
  float leaves = -10.0;
  vec3 normal = vec3(0.0, 0.0, 1.0);
  for (int plane = 0; plane < 4; ++plane) {
    vec3 n = planes[plane].z < 0.0 ? -planes[plane] : planes[plane];
    float depth = max(n.z, 1e-6);
    float near = (reach - dot(n.xy, p)) / depth;
    leaves = max(leaves, (-reach - dot(n.xy, p)) / depth);
    if (near < enters) { enters = near; normal = normalize(n); }
  }
  if (enters < leaves) discard;
)" + light()
        + depthAt("enters");
}

/// How far a symbol reaches, in units of half its size.
static double extentOf(const SymbolLook& look)
{
    return look.shape == GeomShape_Character ? characterReach() : look.isSolid ? 1.1 : 1.0;
}

static std::string symbolCode(const SymbolLook& look)
{
    if (!look.isSolid)
        return flatSymbol(look);
    return look.shape == GeomShape_Sphere ? ball() : body(look.shape);
}

void drawSymbols(vtkActor& actor, const SymbolLook& look)
{
    vtkShaderProperty& shader = *actor.GetShaderProperty();
    const auto after = [](const char* place, const std::string& code) {
        return std::string(place) + '\n' + code;
    };
    const auto own = look.hasPointData() ? "normalMC" : "vec3(symbolSize, 0.0, 0.0)";
    const std::string ownSize = look.hasOwnSizes ? "ownVSOutput.x" : "symbolSize";
    shader.SetGeometryShaderCode(kSquares);
    const char* const declaration = "//VTK::Normal::Dec";
    shader.AddVertexShaderReplacement(
        declaration, true,
        after(declaration,
              std::string(look.hasPointData() ? "in vec3 normalMC;\n" : "")
                  + "out vec3 ownVSOutput;\n"),
        false);
    shader.AddVertexShaderReplacement(
        "//VTK::Normal::Impl", true,
        after("//VTK::Normal::Impl",
              std::string("  ownVSOutput = ") + own + ";\n  ownVSOutput.x = " + ownSize + ";\n"),
        false);
    shader.AddFragmentShaderReplacement(
        declaration, true,
        after(declaration,
              "in vec2 cornerVSOutput;\nflat in float radiusVSOutput;\nflat in vec3 "
              "fillVSOutput;\nflat in vec2 depthVSOutput;\n"),
        false);
    shader.AddFragmentShaderReplacement("//VTK::Color::Impl", true,
                                        after("//VTK::Color::Impl", symbolCode(look)), false);
    if (look.shape == GeomShape_Character) {
        vtkNew<vtkTexture> texture;
        texture->SetInputData(characterImage(look.character, look.font));
        texture->InterpolateOn();
        texture->RepeatOff();
        texture->EdgeClampOn();
        texture->SetColorModeToDirectScalars();
        actor.GetProperty()->SetTexture("outline", texture);
    }
    actor.ForceOpaqueOn();
    scaleSymbols(actor, look, {}, 1.0);
}

void scaleSymbols(vtkActor& actor, const SymbolLook& look, const ViewScale& scale,
                  double linePixels)
{
    vtkShaderProperty& shader = *actor.GetShaderProperty();
    const auto pixels = [](double value) { return static_cast<float>(value); };
    shader.GetVertexCustomUniforms()->SetUniformf("symbolSize", pixels(look.size));
    vtkUniforms& squares = *shader.GetGeometryCustomUniforms();
    const float viewport[2] = {pixels(scale.viewport[0]), pixels(scale.viewport[1])};
    squares.SetUniform2f("viewport", viewport);
    squares.SetUniformf("pixelsPerPercent", pixels(scale.frameHeight / 100.0));
    squares.SetUniformf("margin", pixels(linePixels + 1.0));
    squares.SetUniformf("extent", pixels(extentOf(look)));
    squares.SetUniformf("lift", pixels(look.isSolid ? 1.0 + extentOf(look) : 1.0));
    squares.SetUniformf("leastRadius", pixels(scale.thinnestLine / 2));
    squares.SetUniformf("nearness", pixels(scale.nearness));
    squares.SetUniformf("depthSlope", pixels(scale.depthSlope));
    vtkUniforms& symbols = *shader.GetFragmentCustomUniforms();
    if (look.isSolid)
        symbols.SetUniformf("depthSlope", pixels(scale.depthSlope));
    symbols.SetUniformf("halfLine", pixels(look.shape == GeomShape_Point ? 0.0 : linePixels / 2));
    // In space smooth edges would cover what lies behind them and is drawn later; a picture of more
    // pixels than are shown is smooth by itself.
    symbols.SetUniformf("isSmooth", scale.nearness > 0.0 && scale.thinnestLine > 1.0 ? 0.0F : 1.0F);
    static constexpr const char* kAxes[] = {"axisX", "axisY", "axisZ"};
    for (std::size_t axis = 0; axis < 3; ++axis)
        symbols.SetUniform3f(kAxes[axis], scale.axes[axis].data());
}

} // namespace corvala::plot
