// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/layer_bar.h"

#include "host/document/document.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>

namespace corvala::app {

/// A layer value of the style tree that the canvases draw.
struct Layer
{
    const char* group;
    const char* name;
    const char* text;
};

static constexpr Layer kLayers[] = {
    {"FieldLayers", "ShowMesh", QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Mesh")},
    {"FieldLayers", "ShowContour", QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Contour")},
    {"FieldLayers", "ShowShade", QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Shade")},
    {"FieldLayers", "ShowEdge", QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Edge")},
    {"FieldLayers", "UseLightingEffect", QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Lighting")},
    {"LinePlotLayers", "ShowLines", QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Lines")},
};

static constexpr struct
{
    PlotType_e type;
    const char* text;
} kPlotTypes[] = {
    {PlotType_Field2D, QT_TRANSLATE_NOOP("corvala::app::LayerBar", "2D field plot")},
    {PlotType_Field3D, QT_TRANSLATE_NOOP("corvala::app::LayerBar", "3D field plot")},
    {PlotType_LineXY, QT_TRANSLATE_NOOP("corvala::app::LayerBar", "XY line plot")},
    {PlotType_LinePolar, QT_TRANSLATE_NOOP("corvala::app::LayerBar", "Polar line plot")},
};

static void write(std::vector<std::string> path, host::StyleInput value)
{
    host::Document::instance().execute(host::SetStyle {std::move(path), std::move(value)});
}

LayerBar::LayerBar(QWidget* parent)
    : QToolBar(tr("Plot"), parent)
    , m_plotType(new QComboBox(this))
{
    setObjectName(QStringLiteral("plotBar"));
    addPlotTypes();
    addSeparator();
    addLayers();
    refresh();
}

void LayerBar::addPlotTypes()
{
    auto* label = new QLabel(tr("Plot t&ype:"), this);
    label->setBuddy(m_plotType);
    addWidget(label);
    addWidget(m_plotType);
    m_plotType->setObjectName(QStringLiteral("plotType"));
    for (const auto& [type, text] : kPlotTypes)
        m_plotType->addItem(tr(text), int(type));
    connect(m_plotType, QOverload<int>::of(&QComboBox::activated), this, [this](int position) {
        write({"PlotType"}, double(m_plotType->itemData(position).toInt()));
    });
}

void LayerBar::addLayers()
{
    for (const Layer& layer : kLayers) {
        QAction* action = addAction(tr(layer.text));
        action->setCheckable(true);
        action->setObjectName(QLatin1String(layer.name));
        connect(action, &QAction::triggered, this, [this, &layer, action](bool on) {
            write({layer.group, layer.name}, on);
            Q_EMIT layerSwitched(action);
        });
        m_layers << action;
    }
}

void LayerBar::refresh()
{
    const host::Frame* frame = host::Document::instance().activeFrame();
    const bool hasData = frame && frame->hasData();
    m_plotType->setEnabled(hasData);
    m_plotType->setCurrentIndex(frame ? m_plotType->findData(int(frame->plotType())) : -1);
    for (int i = 0; i < m_layers.size(); ++i) {
        const Layer& layer = kLayers[i];
        const bool isField = qstrcmp(layer.group, "FieldLayers") == 0;
        const bool isShown = hasData && (isField ? frame->isFieldPlot() : frame->isLinePlot());
        m_layers[i]->setVisible(isShown);
        m_layers[i]->setChecked(
            isShown && (isField ? frame->fieldLayer(layer.name) : frame->lineLayer(layer.name)));
    }
}

} // namespace corvala::app
