// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/layer_bar.h"

#include "app/bar_switch.h"
#include "app/command_tips.h"
#include "app/details/detail_pages.h"
#include "app/help_reference.h"
#include "app/icons.h"
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
    const char* icon;
    const char* what; ///< it does
};

static constexpr LayerButton kLayers[] = {
    {style::kMeshLayer.shown, style::kMeshLayer.name, "layer-mesh",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Show the lines of the grids")},
    {style::kContourLayer.shown, style::kContourLayer.name, "layer-contour",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar",
                       "Show the values of a variable as colors or lines")},
    {style::kVectorLayer.shown, style::kVectorLayer.name, "layer-vector",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Show arrows at the points")},
    {style::kScatterLayer.shown, style::kScatterLayer.name, "layer-scatter",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Show a symbol at each point")},
    {style::kShadeLayer.shown, style::kShadeLayer.name, "layer-shade",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Fill the surfaces with one color")},
    {style::kEdgeLayer.shown, style::kEdgeLayer.name, "layer-edge",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Show the edges of the zones")},
    {style::fieldLayers.useLightingEffect,
     style::entryOf(style::fieldLayers.useLightingEffect).label, "layer-lighting",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Light the surfaces")},
    {style::kLinesLayer.shown, style::kLinesLayer.name, "layer-lines",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Show the lines")},
    {style::kSymbolsLayer.shown, style::kSymbolsLayer.name, "layer-symbols",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Show a symbol at each point")},
    {style::kErrorBarsLayer.shown, style::kErrorBarsLayer.name, "layer-error-bars",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Show the errors of the points")},
    {style::kBarChartsLayer.shown, style::kBarChartsLayer.name, "layer-bar-charts",
     QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Show a bar for each point")},
};

static constexpr int kIconSize = 20;

LayerBar::LayerBar(QWidget* parent)
    : QToolBar(tr("Layers"), parent)
{
    setObjectName(QStringLiteral("plotBar"));
    m_switch = new BarSwitch(*this);
    setHelpReference(*this, QStringLiteral("window.html#layers"));
    setIconSize({kIconSize, kIconSize});
    addLayers();
    refresh();
}

void LayerBar::addLayers()
{
    for (const LayerButton& layer : kLayers) {
        QAction* action = addAction(commandIcon(layer.icon),
                                    QCoreApplication::translate("StyleValues", layer.text));
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
        const QString what = tr(kLayers[i].what);
        describe(*m_layers[i],
                 tr("%1: %2").arg(m_layers[i]->text(), isPossible ? what : tr("XY plots only")));
        if (m_details[i])
            m_details[i]->setEnabled(isPossible);
        if (m_details[i])
            m_details[i]->setVisible(isShown);
    }
    m_switch->setNeeded(hasData && (frame->isFieldPlot() || frame->isLinePlot()));
    chooseStyle();
}

void LayerBar::resizeEvent(QResizeEvent* event)
{
    QToolBar::resizeEvent(event);
    chooseStyle();
}

/// Icons alone where there is no room for texts beside them.
void LayerBar::chooseStyle()
{
    static constexpr int kMargin = 12; ///< around an icon or a text
    int wanted = kIconSize + kMargin; // the button for more
    for (int i = 0; i < m_layers.size(); ++i) {
        if (!m_layers[i]->isVisible())
            continue;
        wanted += kIconSize + fontMetrics().horizontalAdvance(m_layers[i]->text()) + 2 * kMargin;
        if (m_details[i])
            wanted += widgetForAction(m_details[i])->width() + kMargin / 4;
    }
    const auto chosen = wanted <= width() ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly;
    if (toolButtonStyle() != chosen)
        setToolButtonStyle(chosen);
}

} // namespace corvala::app
