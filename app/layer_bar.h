// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolBar>

class QAction;
class QComboBox;

namespace corvala::app {

/// The plot type of the active frame, and its layers to switch on and off.
class LayerBar : public QToolBar
{
    Q_OBJECT

public:
    explicit LayerBar(QWidget* parent = nullptr);

    /// Shows what the document says.
    void refresh();

    const QList<QAction*>& layerActions() const { return m_layers; }

Q_SIGNALS:
    /// The user switched a layer on or off, which is done.
    void layerSwitched(QAction* layer);

private:
    void addPlotTypes();
    void addLayers();

    QComboBox* m_plotType; // not owned
    QList<QAction*> m_layers; // not owned
};

} // namespace corvala::app
