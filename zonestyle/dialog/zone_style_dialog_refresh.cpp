// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/dialog/zone_style_dialog.h"
#include "zonestyle/models/model_abstract.h"

#include <sdk/base/cvl.h>
#include <sdk/signals/signal_connection_collection.h>
#include <sdk/toolbox/state_change_event.h>
#include <sdk/uicommon/on_idle_action_performer_single_shot.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace corvala::sdk::ui::dialogs {

using toolbox::StateChangeEventInterface;

namespace {

constexpr int kAlwaysRelevant[] = {
    StateCode_FieldMapListChanged, StateCode_LineMapListChanged,  StateCode_ZoneRenamed,
    StateCode_VariableRenamed,     StateCode_ContourGroupChanged, StateCode_ColorTableChanged,
    StateCode_SolutionTimeChanged, StateCode_FrameListChanged,    StateCode_ActiveFrameChanged,
};
constexpr int kRelevantUnlessRenaming[] = {
    StateCode_DocumentCleared,     StateCode_DocumentLoaded,    StateCode_DataSetAttached,
    StateCode_DataSetDetached,     StateCode_ZonesAdded,        StateCode_ZonesRemoved,
    StateCode_VariableListChanged, StateCode_DataValuesChanged, StateCode_UndoApplied,
    StateCode_RedoApplied,
};
constexpr const char* kRelevantStyles[] = {
    "ActiveFieldMaps", "ActiveFieldZones", "ActiveLineMaps", "FieldMap",
    "FieldLayers",     "GlobalScatter",    "Linking",        "LineMap",
    "LinePlotLayers",  "PlotType",         "FrameMode",
};

template<class List, class Value>
bool contains(const List& list, const Value& value)
{
    return std::find(std::begin(list), std::end(list), value) != std::end(list);
}

bool isStyle(const StateChangeEventInterface& event)
{
    return event.stateChange() == StateCode_Style;
}

bool isPlotTypeChange(const StateChangeEventInterface& event)
{
    return isStyle(event) && event.hasStyleParams() && event.styleParam(1) == "PlotType";
}

/// Deliberate: two lists, and a code of its own between them that counts for line plots alone.
bool isRelevant(const StateChangeEventInterface& event, bool isLinePlot)
{
    const int code = event.stateChange();
    return contains(kAlwaysRelevant, code) || (code == StateCode_LineMapRenamed && isLinePlot)
        || (code != StateCode_LineMapRenamed && contains(kRelevantUnlessRenaming, code))
        || (isStyle(event) && contains(kRelevantStyles, event.styleParam(1)));
}

bool showsLinePlot()
{
    const CvlInt64 plotType = CvlUtilFrameGetPlotType();
    return plotType == PlotType_LineXY || plotType == PlotType_LinePolar;
}

bool hasNothingToShow()
{
    return !CvlUtilDataSetIsAvailable() || CvlUtilFrameGetCount() == 0
        || CvlUtilFrameGetPlotType() == PlotType_Annotation;
}

class BlockedConnections
{
public:
    explicit BlockedConnections(signaling::SignalConnectionCollection& connections)
        : m_connections(connections)
    {
        m_connections.block();
    }
    ~BlockedConnections() { m_connections.unblock(); }
    BlockedConnections(const BlockedConnections&) = delete;
    BlockedConnections& operator=(const BlockedConnections&) = delete;

private:
    signaling::SignalConnectionCollection& m_connections;
};

} // namespace

/// A dialog that is not open asks the host nothing: which kind of plot it would show is found out
/// when it is.
void ZoneStyleDialog::noteMissed(StateChangeEventInterface const& event)
{
    m_changeMissed = m_changeMissed || isRelevant(event, true);
    m_plotTypeChangeMissed = m_plotTypeChangeMissed || isPlotTypeChange(event);
}

void ZoneStyleDialog::stateChanged(StateChangeEventInterface const& event)
{
    if (!isVisible()) {
        noteMissed(event);
        return;
    }
    if (hasNothingToShow()) {
        noteMissed(event); // the dialog closes on what it shows
        close();
        return;
    }
    if (!isRelevant(event, showsLinePlot()))
        return;
    if (isPlotTypeChange(event))
        restoreLastTab();
    processStateChangeOnIdle();
}

/// However many changes come before the idle moment, they cost one refresh.
void ZoneStyleDialog::processStateChangeOnIdle()
{
    m_stateChangePerformer->enableNotification();
    m_connections->block();
}

void ZoneStyleDialog::processStateChange()
{
    if (!isVisible()) {
        m_connections->unblock();
        m_changeMissed = true;
        return;
    }
    refresh();
    if (hasNothingToShow()) // its event may have come while a refresh was pending
        close();
}

void ZoneStyleDialog::refresh()
{
    const BlockedConnections blocked(*m_connections);
    const ModelAbstract* before = m_currentModel;
    updateZoneStyleDialog();
    if (before && before == m_currentModel)
        Q_EMIT m_currentModel->layoutChanged();
    m_countPerformer->enableNotification();
    ++m_refreshCount;
}

void ZoneStyleDialog::catchUp()
{
    if (!m_changeMissed)
        return;
    m_changeMissed = false;
    if (std::exchange(m_plotTypeChangeMissed, false))
        restoreLastTab();
    refresh();
}

} // namespace corvala::sdk::ui::dialogs
