// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_effects_3d_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kMap = style::fieldMap;
static constexpr const auto& kLayers = style::fieldLayers;

static bool isLit(const Cell& cell)
{
    return isInSpace(cell) && cell.value(kLayers.useLightingEffect)
        && (cell.value(kMap.contour.useLightingEffect) || cell.value(kMap.shade.useLightingEffect));
}

/// The map draws a surface that one could look through, in a frame that lets one.
static bool canBeTranslucent(const Cell& cell)
{
    if (!isInSpace(cell) || !cell.value(kLayers.useTranslucency))
        return false;
    const bool hidesLines = cell.value(kLayers.showMesh) && cell.value(kMap.mesh.show)
        && cell.value(kMap.mesh.meshType) == MeshType_HiddenLine;
    const bool isFlooded = cell.value(kLayers.showContour) && cell.value(kMap.contour.show)
        && cell.value(kMap.contour.contourType) != ContourType_Lines;
    return hidesLines || isFlooded
        || (cell.value(kLayers.showShade) && cell.value(kMap.shade.show));
}

static QVariant percentage(const Cell& cell)
{
    return QString::number(cell.own<int>());
}

static constexpr int kPercentages[] = {10, 20, 30, 40, 50, 60, 70, 80, 90};
static constexpr PromptTexts kPrompt {
    QT_TRANSLATE_NOOP("Prompt", "Surface Translucency"),
    QT_TRANSLATE_NOOP("Prompt", "Enter the surface translucency percentage.")};

static constexpr ColumnDescriptor kColumns[] = {
    choice(QT_TRANSLATE_NOOP("Column", "Lighting\nEffect"), kMap.effects.lightingEffect)
        .relevantWhen(isLit),
    checkBox(QT_TRANSLATE_NOOP("Column", "Use Surface\nTranslucency"), kMap.effects.useTranslucency)
        .relevantWhen(canBeTranslucent),
    listedNumber(QT_TRANSLATE_NOOP("Column", "Surface\nTranslucency"),
                 kMap.effects.surfaceTranslucency, kPercentages, kPrompt)
        .shows(percentage)
        .editor(EditorType_ListPopup, 0)
        .offers(plainNumberMenu) // Deliberate: without a line before the entry that asks
        .relevantWhileOn(kMap.effects.useTranslucency)
        .relevantWhen(canBeTranslucent),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(2);

const ColumnTable& FieldEffects3DModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
