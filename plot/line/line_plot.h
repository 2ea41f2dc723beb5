// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"
#include "plot/line/line_chart.h"

#include <QCoreApplication>

#include <optional>

namespace corvala::plot {

/// Keeps a QCustomPlot in line with the line maps of a frame. Changes are taken note of at once and
/// worked off by `update`, which touches only the maps that they name.
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
    void update();

    void fit() { m_isFitted = true; }
    void setMoved() { m_isFitted = false; }
    bool isFitted() const { return m_isFitted; }
    LineChart& chart() { return *m_chart; }
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
    QPen penOf(const host::Frame& frame, CvlInt64 map) const;

    QCustomPlot& m_plot;
    std::unique_ptr<LineChart> m_chart;
    CvlUniqueId m_frame = 0;
    PlotType_e m_plotType = PlotType_None;
    bool m_isFitted = true;
    int m_height = 1;
    host::MapSet m_stale; ///< maps to look at again
    host::MapSet m_staleData; ///< those whose points may differ
    host::MapSet m_shown;
    host::MapSet m_refused;
    std::int64_t m_syncs = 0;
};

} // namespace corvala::plot
