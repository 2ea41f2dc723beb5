// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/map_scene.h"
#include "plot/line/curve_maker.h"
#include "plot/line/line_chart.h"
#include "plot/line/line_legend.h"
#include "plot/line/line_looks.h"
#include "plot/line/time_label.h"

#include <QCoreApplication>

#include <optional>
#include <unordered_map>
#include <vector>

namespace corvala::plot {

/// Keeps a QCustomPlot in line with the line maps of a frame. Work is first on the lines, and once
/// they have been drawn, on what is missing of the picture.
class LinePlot : public MapScene
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::LinePlot)

public:
    /// Line maps that are drawn at most.
    static constexpr CvlInt64 kLargestPlot = 2'000;

    explicit LinePlot(QCustomPlot& plot);

    bool advance(int milliseconds) override;
    bool hasWork() const override;
    std::pair<CvlInt64, CvlInt64> progress() const override;
    void cancel() override;
    void resume() override;
    QString notice() const override;
    std::vector<SceneNote> notes() const override;

    /// Pixels; thicknesses and pattern lengths are a share of it.
    void setFrameHeight(int height);
    /// Takes over what another plot of the frame has made of the lines, as far as it still holds:
    /// before work begins.
    void takeFrom(const LinePlot& other) { m_geometries = other.m_geometries; }
    /// Brings axes, titles and range up to date before the plot is drawn.
    void prepare();
    /// How long drawing the plot itself may draw lines; negative until all is done.
    void setPatience(int milliseconds);

    /// Marks these maps with broad bright strokes, unless they are too many.
    void setOutlined(const host::NumberSet& maps);

    /// What the axes show at first.
    ChartRange home() const { return m_chart->home(isPolar() ? radii() : AxisRange()); }
    void fit() { m_isFitted = true; }
    void setMoved() { m_isFitted = false; }
    bool isFitted() const { return m_isFitted; }
    LineChart& chart() { return *m_chart; }
    const LineChart& chart() const { return *m_chart; }
    LineLegend& legend() { return m_legend; }
    const LineLegend& legend() const { return m_legend; }
    const TimeLabel& timeLabel() const { return m_timeLabel; }
    /// What is drawn; PlotType_None without a line frame.
    PlotType_e plotType() const { return m_plotType; }
    bool isPolar() const { return m_plotType == PlotType_LinePolar; }
    /// Lines brought up to date so far, to see what an edit costs.
    std::int64_t syncCount() const { return m_syncs; }

protected:
    void clear(const host::Frame* frame, Fresh reason) override;
    LayerMask showLayers(const host::Frame& frame) override;
    bool canShow(const host::Frame& frame, CvlInt64 map) const override;
    LayerMask sync(const host::Frame& frame, CvlInt64 map, LayerMask layers, bool isShown) override;
    void forget(CvlInt64 map) override;
    bool takeBack(const host::Frame& frame, int milliseconds) override;

private:
    void makeChart();
    /// Puts the map into a layer, or takes it out.
    bool syncLayer(std::size_t layer, const ShownLine& line, bool isShown);
    LineGeometry& geometryOf(const ShownLine& line);
    void syncOutline(CvlInt64 map);
    bool makeCurve(const ShownLine& line, LineGeometry& geometry);
    std::optional<std::vector<RunCurve>>
    fittedCurves(const ShownLine& line, const LineGeometry& geometry, const CurveRecipe& recipe);
    bool isHandedWanted(const host::Frame& frame) const;
    void dropUnwanted(const host::Frame& frame);
    void followPlanes();
    AxisRange radii() const;
    ChartLook lookOf(const host::Frame& frame) const;

    QCustomPlot& m_plot;
    std::unique_ptr<LineChart> m_chart;
    LineLegend m_legend;
    TimeLabel m_timeLabel;
    PlotType_e m_plotType = PlotType_None;
    bool m_isFitted = true;
    int m_height = 1;
    int m_patience = LineChart::kPatience;
    std::unordered_map<CvlInt64, LineGeometry> m_geometries; ///< of the maps in some layer
    host::NumberSet m_outlined; ///< maps
    CurveMaker m_maker;
    CvlInt64 m_handedMap = 0; ///< that the maker works for
    bool m_mayWait = false; ///< at present, for as long as it takes: nothing is handed over
    std::int64_t m_syncs = 0;
};

} // namespace corvala::plot
