// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/layer_notes.h"

#include "app/notice_bar.h"
#include "host/document/document.h"
#include "host/document/layer_facts.h"
#include "sdk/common/common.h"
#include "sdk/dialogs_prompt/vector_var_assign_strategy.h"

#include <QAction>
#include <QCoreApplication>

#include <utility>

namespace corvala::app {

using host::Document;
using host::Frame;
using host::LayerFacts;
using host::LayerGap;

/// Null for lighting, which is no layer.
static const style::Layer* layerOf(const QAction& action)
{
    return style::layerNamed(action.objectName().toStdString());
}

static bool isOfLines(const LayerFacts& facts)
{
    return facts.layer && facts.layer->isOfLines();
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
    case LayerGap::NoVector:
        return {LayerNotes::tr("No variables are chosen for the vectors, so the layer \"%1\" shows "
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
    m_note = m_bar.tellInPassing(m_note, {}); // which may be under others
    tell();
}

static LayerFacts factsOf(const QAction& layer)
{
    const Frame* frame = Document::instance().activeFrame();
    if (!frame || !frame->hasData() || !layer.isVisible() || !layer.isChecked())
        return {};
    const style::Layer* const known = layerOf(layer);
    return known ? host::layerFacts(*frame, *known) : host::lightingFacts(*frame);
}

void LayerNotes::retell()
{
    if (m_layer && m_bar.isShown(m_note))
        tell();
}

void LayerNotes::refresh(const QList<QAction*>& layers)
{
    retell();
    if (!m_bar.isShown(m_note))
        m_layer = nullptr;
    const Frame* const frame = Document::instance().activeFrame();
    const Plot plot = frame ? Plot {frame->id(), frame->data(), frame->plotType()} : Plot();
    const bool isOther = std::exchange(m_plot, plot) != plot;
    for (QAction* const layer : layers) {
        const LayerGap gap = layerOf(*layer) ? factsOf(*layer).gap : LayerGap::None;
        const bool isNew = std::exchange(m_gaps[layer], gap) != gap && gap != LayerGap::None;
        if (isNew && !isOther && !m_layer)
            explain(*layer);
    }
}

/// Takes an earlier note about layers away when there is nothing to say.
void LayerNotes::tell()
{
    const LayerFacts facts = factsOf(*m_layer);
    const QString name = facts.layer ? QCoreApplication::translate("StyleValues", facts.layer->name)
                                     : m_layer->text();
    const Note note = noteOf(facts.gap, name, isOfLines(facts));
    m_note = m_bar.tellInPassing(m_note, note.text, note.caption, [this] { mend(); });
}

static void write(style::Key key, host::StyleInput value, std::optional<host::NumberSet> maps = {})
{
    Document::instance().execute(
        host::SetStyle {host::pathOf(key), std::move(value), std::move(maps)});
}

void LayerNotes::mend()
{
    if (!m_layer)
        return;
    const LayerFacts facts = factsOf(*m_layer);
    const Frame* frame = Document::instance().activeFrame();
    switch (facts.gap) {
    case LayerGap::NoActiveMaps:
        write(isOfLines(facts) ? style::activeLineMaps : style::activeFieldMaps,
              host::allUpTo(frame->shownMapCount()));
        break;
    case LayerGap::NotShown: write(facts.layer->shownForMap, true, facts.maps); break;
    case LayerGap::NoSurfaces:
        Document::instance().execute(host::drawBoundaryFaces(facts.maps));
        break;
    case LayerGap::NoVariable:
        if (!sdk::autoAssignAllContourGroupVariables(
                ContourLevelsInitializationMode_ResetIfVariableIsNew))
            m_bar.tellInPassing(std::exchange(m_note, 0),
                                tr("The data have no variable that contours could show."));
        break;
    case LayerGap::NoVector: dialogs::prompt::VectorVarAssignStrategy()(frame->plotType()); break;
    case LayerGap::NoFaces: write(style::kShadeLayer.shown, true); break;
    case LayerGap::NotInSpace:
    case LayerGap::None: break;
    }
    retell();
}

} // namespace corvala::app
