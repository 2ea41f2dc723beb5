// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"
#include "plot/line/line_chart.h"

#include <QCoreApplication>

#include <utility>

namespace corvala::plot {

/// Keeps a QCustomPlot in line with the line maps of a frame. Changes are taken note of at once and
/// worked off in slices, which touch only the maps that they name.
class LinePlot
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::LinePlot)

public:
    /// Line maps that are drawn at most.
    static constexpr CvlInt64 kLargestPlot = 2'000;

    explicit LinePlot(QCustomPlot& plot);

    void setFrame(CvlUniqueId frame);
    /// Takes note of a change of the document; true when the picture may differ.
    bool apply(const host::StateEvent& event);
    /// Pixels; thicknesses and pattern lengths are a share of it.
    void setFrameHeight(int height);
    /// Works for about `milliseconds`, negative until all is done: first on the lines, and once
    /// they have been drawn, on what is missing of the picture. True while such work is left.
    bool advance(int milliseconds);
    bool hasWork() const;
    /// Pieces of work since there was none, done and in all.
    std::pair<CvlInt64, CvlInt64> progress() const;
    void cancel();
    void resume();
    /// Brings titles and range up to date before the plot is drawn.
    void prepare();
    /// How long drawing the plot itself may draw lines; negative until all is done.
    void setPatience(int milliseconds);

    void fit() { m_isFitted = true; }
    void setMoved() { m_isFitted = false; }
    bool isFitted() const { return m_isFitted; }
    LineChart& chart() { return *m_chart; }
    const LineChart& chart() const { return *m_chart; }
    /// What is drawn; PlotType_None without a line frame.
    PlotType_e plotType() const { return m_plotType; }
    bool isPolar() const { return m_plotType == PlotType_LinePolar; }
    /// A remark for the user on what is not shown; empty without one.
    QString notice() const;
    /// Lines brought up to date so far, to see what an edit costs.
    std::int64_t syncCount() const { return m_syncs; }

private:
    const host::Frame* frame() const;
    void rebuild();
    bool applyStyle(const host::StateEvent& event);
    bool isDrawn(const host::Frame& frame, CvlInt64 map) const;
    void sync(const host::Frame& frame, CvlInt64 map);
    void updateTitles(const host::Frame& frame);
    LineLook lookOf(const host::Frame& frame, CvlInt64 map) const;
    void pend(const host::NumberSet& maps);

    QCustomPlot& m_plot;
    std::unique_ptr<LineChart> m_chart;
    CvlUniqueId m_frame = 0;
    PlotType_e m_plotType = PlotType_None;
    bool m_isFitted = true;
    int m_height = 1;
    host::NumberSet m_stale; ///< maps to look at again
    host::NumberSet m_staleData; ///< those whose points may differ
    host::NumberSet m_shown;
    host::NumberSet m_refused; ///< active, but beyond the largest plot
    host::NumberSet m_cancelled; ///< to look at when work is resumed
    CvlInt64 m_synced = 0; ///< lines brought up to date since there was none to look at
    int m_patience = 60;
    std::int64_t m_syncs = 0;
};

} // namespace corvala::plot
