// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_plot.h"

#include "host/document/line_map_name.h"
#include "plot/common/document_events.h"
#include "plot/common/line_patterns.h"
#include "plot/line/line_data.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace corvala::plot {

static constexpr const auto& kLines = style::lineMap.lines;

LinePlot::LinePlot(QCustomPlot& plot)
    : m_plot(plot)
    , m_chart(makeXyChart(plot))
{
}

const host::Frame* LinePlot::frame() const
{
    const host::Frame* const frame = host::Document::instance().frame(m_frame);
    return frame && frame->isLinePlot() && frame->hasData() ? frame : nullptr;
}

void LinePlot::setFrame(CvlUniqueId frame)
{
    m_frame = frame;
    m_isFitted = true;
    rebuild();
}

void LinePlot::rebuild()
{
    const host::Frame* const drawn = frame();
    const ChartRange range = m_chart->range();
    const PlotType_e plotTypeBefore =
        std::exchange(m_plotType, drawn ? drawn->plotType() : PlotType_None);
    m_chart.reset();
    m_chart = isPolar() ? makePolarChart(m_plot) : makeXyChart(m_plot);
    if (m_plotType != plotTypeBefore)
        fit();
    else if (!m_isFitted)
        m_chart->setRange(range);
    m_chart->setPatience(m_patience);
    m_shown = {};
    m_refused = {};
    m_cancelled = {};
    m_synced = 0;
    m_stale = m_staleData = drawn ? drawn->activeLineMaps() : host::NumberSet();
    setFrameHeight(m_height);
}

void LinePlot::setFrameHeight(int height)
{
    m_height = height;
    QFont font = m_plot.font();
    font.setPixelSize(static_cast<int>(std::clamp(height / 45.0, 9.0, 40.0)));
    m_chart->setFont(font);
    pend(m_shown);
}

void LinePlot::pend(const host::NumberSet& maps)
{
    if (m_stale.isEmpty())
        m_synced = 0;
    m_stale |= maps;
}

bool LinePlot::apply(const host::StateEvent& event)
{
    if (!concerns(event, m_frame))
        return false;
    switch (event.code) {
    case StateCode_Style: return applyStyle(event);
    case StateCode_ColorTableChanged: pend(m_shown); return true;
    case StateCode_FrameListChanged:
        if (frame())
            return false;
        break;
    case StateCode_VariableRenamed:
    case StateCode_VariableListChanged: return true;
    case StateCode_DocumentCleared:
    case StateCode_DocumentLoaded:
    case StateCode_DataSetAttached:
    case StateCode_DataSetDetached: fit(); break;
    case StateCode_DataValuesChanged:
    case StateCode_LineMapListChanged:
    case StateCode_ZonesAdded:
    case StateCode_ZonesRemoved: break;
    default: return false;
    }
    rebuild();
    return true;
}

bool LinePlot::applyStyle(const host::StateEvent& event)
{
    if (namesPlotType(event)) {
        setFrame(m_frame);
        return true;
    }
    const host::Frame* const drawn = frame();
    bool changed = false;
    for (const host::StyleChange& change : event.styleChanges) {
        const style::Key key {change.attribute};
        const bool isActivation = key == style::activeLineMaps;
        const bool isAssignment = style::isInGroupOf(key, style::lineMap.assign.zone);
        if (key == style::linePlotLayers.showLines) {
            pend(drawn ? drawn->activeLineMaps() | m_shown : host::NumberSet());
            changed = true;
        } else if (isActivation || isAssignment || style::isInGroupOf(key, kLines.show)) {
            pend(change.maps);
            if (isActivation || isAssignment)
                m_staleData |= change.maps;
            changed = true;
        }
    }
    return changed;
}

bool LinePlot::isDrawn(const host::Frame& drawn, CvlInt64 map) const
{
    return drawn.activeLineMaps().contains(static_cast<std::uint32_t>(map))
        && drawn.lineInteger(kLines.show, map) != 0 && drawn.isOn(style::linePlotLayers.showLines);
}

LineLook LinePlot::lookOf(const host::Frame& drawn, CvlInt64 map) const
{
    const host::Rgb color = host::Document::instance().color(drawn.lineInteger(kLines.color, map));
    LineLook look;
    look.color = QColor(color.red, color.green, color.blue);
    look.width = linePixels(drawn.lineReal(kLines.lineThickness, map), m_height);
    const int pattern = drawn.lineInteger(kLines.linePattern, map);
    const double period = drawn.lineReal(kLines.patternLength, map) / 100.0 * m_height;
    if (pattern != LinePattern_Solid)
        for (const double stroke : patternStrokes(pattern))
            look.pattern.push_back(stroke * period);
    return look;
}

void LinePlot::sync(const host::Frame& drawn, CvlInt64 map)
{
    const auto member = static_cast<std::uint32_t>(map);
    ++m_syncs;
    m_refused.remove(member);
    if (!isDrawn(drawn, map)) {
        m_chart->removeLine(map);
        m_shown.remove(member);
        return;
    }
    const bool isNew = !m_shown.contains(member);
    if (isNew && static_cast<CvlInt64>(m_shown.cardinality()) >= kLargestPlot) {
        m_refused.add(member);
        return;
    }
    if (isNew || m_staleData.contains(member))
        m_chart->setLine(map, lineData(drawn, map));
    m_shown.add(member);
    m_chart->ink().setLook(map, lookOf(drawn, map));
}

bool LinePlot::hasWork() const
{
    return !m_stale.isEmpty() || m_chart->ink().hasWork();
}

bool LinePlot::advance(int milliseconds)
{
    const host::Frame* const drawn = frame();
    QElapsedTimer clock;
    clock.start();
    const auto isOver = [&] { return milliseconds >= 0 && clock.elapsed() >= milliseconds; };
    m_stale &= drawn ? host::allUpTo(drawn->lineMapCount()) : host::NumberSet();
    if (m_stale.isEmpty()) {
        m_chart->ink().advance(milliseconds);
        return hasWork();
    }
    while (!m_stale.isEmpty() && !isOver()) {
        const std::uint32_t map = m_stale.minimum();
        sync(*drawn, map);
        ++m_synced;
        m_stale.remove(map);
        m_staleData.remove(map);
        if (m_stale.isEmpty() && static_cast<CvlInt64>(m_shown.cardinality()) < kLargestPlot)
            m_stale = std::exchange(m_refused, {});
    }
    return !m_stale.isEmpty();
}

void LinePlot::prepare()
{
    if (const host::Frame* const drawn = frame())
        updateTitles(*drawn);
    if (m_isFitted)
        m_chart->fit();
}

void LinePlot::setPatience(int milliseconds)
{
    m_patience = milliseconds;
    m_chart->setPatience(milliseconds);
}

std::pair<CvlInt64, CvlInt64> LinePlot::progress() const
{
    constexpr int kSyncing = 100; // as much as drawing a line
    const auto pending = static_cast<CvlInt64>(m_stale.cardinality());
    const auto [done, total] = m_chart->ink().progress();
    return {kSyncing * m_synced + done, kSyncing * (m_synced + pending) + total};
}

void LinePlot::cancel()
{
    m_cancelled |= std::exchange(m_stale, {});
    m_chart->ink().cancel();
}

void LinePlot::resume()
{
    pend(std::exchange(m_cancelled, {}));
    m_chart->ink().resume();
}

void LinePlot::updateTitles(const host::Frame& drawn)
{
    constexpr int kMostNames = 4;
    QStringList first;
    QStringList second;
    for (const std::uint32_t map : m_shown) {
        const LineVariables variables = variablesOf(drawn, map);
        const QString x =
            QString::fromStdString(host::shownVariableName(drawn.data(), variables.first));
        const QString y =
            QString::fromStdString(host::shownVariableName(drawn.data(), variables.second));
        if (!first.contains(x))
            first.append(x);
        if (!second.contains(y))
            second.append(y);
        if (first.size() > kMostNames || second.size() > kMostNames)
            break;
    }
    const auto joined = [](QStringList names) {
        if (names.size() > kMostNames)
            names.back() = QStringLiteral("\u2026");
        return names.join(QStringLiteral(", "));
    };
    m_chart->setTitles(joined(first), joined(second));
}

QString LinePlot::notice() const
{
    const auto shownCount = static_cast<CvlInt64>(m_shown.cardinality());
    const auto refusedCount = static_cast<CvlInt64>(m_refused.cardinality());
    const auto missing =
        static_cast<CvlInt64>(m_cancelled.cardinality()) + m_chart->ink().missingCount();
    if (refusedCount > 0)
        return tr("Drawing %L1 of %L2 active maps").arg(shownCount).arg(shownCount + refusedCount);
    if (missing > 0)
        return tr("Drawing was cancelled: %Ln map(s) missing", nullptr, static_cast<int>(missing));
    if (const int thinned = m_chart->ink().thinnedCount())
        return tr("%Ln line(s) too dense to show more than thin strokes", nullptr, thinned);
    return {};
}

} // namespace corvala::plot
