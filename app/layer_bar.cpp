// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/layer_bar.h"

#include "app/details/detail_pages.h"
#include "app/help_reference.h"
#include "host/document/document.h"
#include "vocabulary/layers.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

namespace corvala::app {

using host::Document;

/// A switch of the frame that the canvases draw by.
struct LayerButton
{
    style::SwitchKey key;
    const char* text; ///< in the translation context "StyleValues"
};

static constexpr LayerButton kLayers[] = {
    {style::kMeshLayer.shown, style::kMeshLayer.name},
    {style::kContourLayer.shown, style::kContourLayer.name},
    {style::kVectorLayer.shown, style::kVectorLayer.name},
    {style::kScatterLayer.shown, style::kScatterLayer.name},
    {style::kShadeLayer.shown, style::kShadeLayer.name},
    {style::kEdgeLayer.shown, style::kEdgeLayer.name},
    {style::fieldLayers.useLightingEffect,
     style::entryOf(style::fieldLayers.useLightingEffect).label},
    {style::kLinesLayer.shown, style::kLinesLayer.name},
    {style::kSymbolsLayer.shown, style::kSymbolsLayer.name},
    {style::kErrorBarsLayer.shown, style::kErrorBarsLayer.name},
    {style::kBarChartsLayer.shown, style::kBarChartsLayer.name},
};

LayerBar::LayerBar(QWidget* parent)
    : QToolBar(tr("Layers"), parent)
{
    setObjectName(QStringLiteral("plotBar"));
    setHelpReference(*this, QStringLiteral("window.html#layers"));
    addLayers();
    refresh();
}

void LayerBar::addLayers()
{
    for (const LayerButton& layer : kLayers) {
        QAction* action = addAction(QCoreApplication::translate("StyleValues", layer.text));
        action->setCheckable(true);
        action->setObjectName(QLatin1String(style::entryOf(layer.key).path[1]));
        connect(action, &QAction::triggered, this, [this, &layer, action](bool on) {
            Document::instance().execute(host::SetStyle {host::pathOf(layer.key), on});
            Q_EMIT layerSwitched(action);
        });
        m_layers << action;
        m_details << addDetails(layer.key);
    }
    addOtherDetails();
}

/// The pages that no layer leads to.
void LayerBar::addOtherDetails()
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("otherDetails"));
    button->setText(QStringLiteral("..."));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setToolTip(tr("Details of axes and others"));
    button->setAccessibleName(button->toolTip());
    auto* menu = new QMenu(button);
    for (const DetailPage& page : detailPages())
        if (!page.layer.isValid())
            m_otherPages.insert(&page, menu->addAction(shownTitle(page), this, [this, &page] {
                Q_EMIT detailsWanted(QLatin1String(page.name));
            }));
    button->setMenu(menu);
    m_otherDetails = addWidget(button);
}

QAction* LayerBar::addDetails(style::SwitchKey layer)
{
    const std::vector<DetailPage>& pages = detailPages();
    const auto page = std::find_if(pages.begin(), pages.end(), [layer](const DetailPage& some) {
        return some.layer.isValid() && some.layer == layer;
    });
    if (page == pages.end())
        return nullptr;
    auto* arrow = new QToolButton(this);
    arrow->setObjectName(QLatin1String(page->name) + QStringLiteral("Details"));
    arrow->setArrowType(Qt::DownArrow);
    arrow->setAutoRaise(true);
    arrow->setFixedWidth(fontMetrics().height() - 2);
    arrow->setToolTip(tr("%1 details").arg(m_layers.last()->text()));
    arrow->setAccessibleName(arrow->toolTip());
    connect(arrow, &QToolButton::clicked, this,
            [this, page] { Q_EMIT detailsWanted(QLatin1String(page->name)); });
    return addWidget(arrow);
}

void LayerBar::refresh()
{
    const host::Frame* frame = Document::instance().activeFrame();
    const bool hasData = frame && frame->hasData();
    m_otherDetails->setVisible(hasData && (frame->isFieldPlot() || frame->isLinePlot()));
    for (auto page = m_otherPages.begin(); page != m_otherPages.end(); ++page)
        page.value()->setVisible(hasData && page.key()->isFor(*frame));
    for (int i = 0; i < m_layers.size(); ++i) {
        const style::SwitchKey key = kLayers[i].key;
        const bool isField = style::isInGroupOf(key, style::fieldLayers.showMesh);
        const bool isShown = hasData && (isField ? frame->isFieldPlot() : frame->isLinePlot());
        m_layers[i]->setVisible(isShown);
        m_layers[i]->setChecked(isShown && frame->isOn(key));
        const bool isPossible = !isShown || frame->plotType() != PlotType_LinePolar
            || (key != style::kErrorBarsLayer.shown && key != style::kBarChartsLayer.shown);
        m_layers[i]->setEnabled(isPossible);
        m_layers[i]->setToolTip(isPossible ? QString() : tr("XY plots only"));
        if (m_details[i])
            m_details[i]->setEnabled(isPossible);
        if (m_details[i])
            m_details[i]->setVisible(isShown);
    }
}

} // namespace corvala::app
