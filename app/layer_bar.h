// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vocabulary/style.h"

#include <QHash>
#include <QToolBar>

class QAction;

namespace corvala::app {

class BarSwitch;
struct DetailPage;

/// The layers of the active frame to switch on and off.
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
    /// The user wants to see what is set for the plot as a whole: the name of the page.
    void detailsWanted(const QString& page);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void chooseStyle();
    void addLayers();
    QAction* addDetails(style::SwitchKey layer);
    void addOtherDetails();

    BarSwitch* m_switch = nullptr; // not owned
    QList<QAction*> m_layers; // not owned
    QList<QAction*> m_details; ///< beside each of them; null without
    QAction* m_otherDetails = nullptr; // not owned
    QHash<const DetailPage*, QAction*> m_otherPages; // not owned
};

} // namespace corvala::app
