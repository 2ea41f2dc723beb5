// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/layer_notes.h"

#include "app/layer_bar.h"
#include "app/notice_bar.h"
#include "host/document/document.h"
#include "host/document/layer_facts.h"
#include "sdk/common/common.h"

#include <QAction>

namespace corvala::app {

using host::Document;
using host::Frame;
using host::LayerFacts;
using host::LayerGap;

/// What the engine calls a layer.
static const char* categoryOf(const QString& layer)
{
    static constexpr struct
    {
        const char* layer;
        const char* category;
    } kCategories[] = {{"ShowMesh", "Mesh"},
                       {"ShowContour", "Contour"},
                       {"ShowShade", "Shade"},
                       {"ShowEdge", "EdgeLayer"},
                       {"ShowLines", "Lines"}};
    for (const auto& each : kCategories)
        if (layer == QLatin1String(each.layer))
            return each.category;
    return "Lighting";
}

static bool isLine(const LayerFacts& facts)
{
    return qstrcmp(facts.category, "Lines") == 0;
}

/// Text, and caption of the button that mends it.
struct Note
{
    QString text;
    QString caption;
};

static Note noteOf(LayerGap gap, const QString& layer, bool ofLines)
{
    switch (gap) {
    case LayerGap::NoActiveMaps:
        return ofLines ? Note {LayerNotes::tr("No line map is active, so the layer \"%1\" shows "
                                              "nothing.")
                                   .arg(layer),
                               LayerNotes::tr("Activate All Line Maps")}
                       : Note {LayerNotes::tr("No zone is active, so the layer \"%1\" shows "
                                              "nothing.")
                                   .arg(layer),
                               LayerNotes::tr("Activate All Zones")};
    case LayerGap::NotShown:
        return ofLines
            ? Note {LayerNotes::tr("The layer \"%1\" is on, but no active line map "
                                   "shows it.")
                        .arg(layer),
                    LayerNotes::tr("Show in All Line Maps")}
            : Note {
                LayerNotes::tr("The layer \"%1\" is on, but no active zone shows it.").arg(layer),
                LayerNotes::tr("Show in All Zones")};
    case LayerGap::NoSurfaces:
        return {LayerNotes::tr("No zone draws its surfaces, so the layer \"%1\" shows nothing.")
                    .arg(layer),
                LayerNotes::tr("Draw Surfaces")};
    case LayerGap::NoVariable:
        return {LayerNotes::tr("No variable is chosen for the contours, so the layer \"%1\" shows "
                               "nothing.")
                    .arg(layer),
                LayerNotes::tr("Choose Variables")};
    case LayerGap::NotInSpace:
        return {LayerNotes::tr("Lighting shows in 3D field plots only."), {}};
    case LayerGap::NoFaces:
        return {LayerNotes::tr("Neither shade nor contours show, so lighting changes nothing."),
                LayerNotes::tr("Show Shade")};
    case LayerGap::None: break;
    }
    return {};
}

LayerNotes::LayerNotes(NoticeBar& bar, QObject* parent)
    : QObject(parent)
    , m_bar(bar)
{
}

void LayerNotes::explain(QAction& layer)
{
    m_layer = &layer;
    tell();
}

static LayerFacts factsOf(const QAction& layer)
{
    const Frame* frame = Document::instance().activeFrame();
    if (!frame || !frame->hasData() || !layer.isVisible() || !layer.isChecked())
        return {};
    return host::layerFacts(*frame, categoryOf(layer.objectName()));
}

void LayerNotes::refresh()
{
    if (m_layer && m_bar.isShown(m_note))
        tell();
    else
        m_layer = nullptr;
}

/// Takes an earlier note about layers away when there is nothing to say.
void LayerNotes::tell()
{
    const LayerFacts facts = factsOf(*m_layer);
    const bool isShade = qstrcmp(facts.category, "Shade") == 0; // of lighting, too
    const Note note =
        noteOf(facts.gap, isShade ? LayerBar::tr("Shade") : m_layer->text(), isLine(facts));
    if (facts.gap != LayerGap::None || m_bar.isShown(m_note))
        m_note = m_bar.tell(note.text, note.caption, [this] { mend(); });
}

static void write(std::vector<std::string> path, host::StyleInput value,
                  std::optional<host::NumberSet> maps = {})
{
    Document::instance().execute(
        host::SetStyle {std::move(path), std::move(value), std::move(maps)});
}

void LayerNotes::mend()
{
    if (!m_layer)
        return;
    const LayerFacts facts = factsOf(*m_layer);
    const Frame* frame = Document::instance().activeFrame();
    switch (facts.gap) {
    case LayerGap::NoActiveMaps:
        write({isLine(facts) ? "ActiveLineMaps" : "ActiveFieldMaps"},
              host::allUpTo(frame->shownMapCount()));
        break;
    case LayerGap::NotShown:
        write({isLine(facts) ? "LineMap" : "FieldMap", facts.category, "Show"}, true, facts.maps);
        break;
    case LayerGap::NoSurfaces:
        Document::instance().execute(host::drawBoundaryFaces(facts.maps));
        break;
    case LayerGap::NoVariable:
        if (!sdk::autoAssignAllContourGroupVariables(
                ContourLevelsInitializationMode_ResetIfVariableIsNew))
            m_bar.tell(tr("The data have no variable that contours could show."));
        break;
    case LayerGap::NoFaces: write({"FieldLayers", "ShowShade"}, true); break;
    case LayerGap::NotInSpace:
    case LayerGap::None: break;
    }
    refresh();
}

} // namespace corvala::app
