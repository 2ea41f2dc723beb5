// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture.h"
#include "plot/line/line_chart.h"
#include "plot/line/line_looks.h"

#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

namespace corvala::plot {

/// A line map in a legend.
struct LegendEntry
{
    CvlInt64 map = 0;
    QString name;
    std::vector<LegendSample> samples; ///< from back to front
};

/// What a legend shows.
struct LegendLook
{
    std::vector<LegendEntry> entries; ///< the first ones
    CvlInt64 count = 0; ///< of all entries
    std::optional<QPointF> corner; ///< upper left, in percent of the plot; nothing: where it hides
                                   ///< least
    double font = 12.0; ///< height of texts in pixels
    double lineWidth = 1.0; ///< of the box, in whole pixels
    bool hasBox = true;
};

/// The legend of a frame in a picture `height` pixels high; without entries when it has none.
/// `drawn` are the maps in the picture, `chart` is the look of what they are drawn in.
LegendLook legendLookOf(const host::Frame& frame, const host::NumberSet& drawn, int height,
                        const ChartLook& chart);

/// Names with samples over a chart, drawn by any painter.
class LineLegend : public QCPLayerable
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::LineLegend)

public:
    explicit LineLegend(QCustomPlot& plot);

    /// The chart must live until another one is set.
    void setChart(LineChart& chart) { m_chart = &chart; }
    void set(LegendLook look) { m_look = std::move(look); }

    /// Its box hides what is below it on white paper alone.
    void setPaper(Paper paper) { m_paper = paper; }

    /// Where it was drawn last; empty without entries.
    const QRectF& box() const { return m_box; }
    /// Moves it by some pixels, seen within the plot only; it stays there, whatever is set, until
    /// it is let go.
    void move(const QPointF& by);
    void letGo() { m_held.reset(); }
    /// Its upper left corner in percent of the plot.
    QPointF corner() const;
    /// The map of the entry at a pixel; 0 for none.
    CvlInt64 mapAt(const QPointF& pixel) const;

protected:
    void applyDefaultAntialiasingHint(QCPPainter*) const override { }
    void draw(QCPPainter* painter) override;

private:
    /// How the entries stand in columns.
    struct Grid
    {
        int columns = 0;
        int rows = 0;
        double columnWidth = 0.0;
        double rowHeight = 0.0;
        double sampleWidth = 0.0;
        double padding = 0.0;
        int places() const { return columns * rows; }
        QSizeF size() const;
        QRectF place(const QPointF& corner, int number) const;
    };

    Grid layOut() const;
    int drawnCount() const; ///< of entries; the place after them may tell how many more there are
    QRectF place(const QSizeF& size) const;
    QRectF leastHiding(const QSizeF& size) const;
    void drawEntry(QPainter& painter, const LegendEntry& entry, const QRectF& place) const;

    QCustomPlot& m_plot;
    LineChart* m_chart = nullptr;
    LegendLook m_look;
    Paper m_paper = Paper::White;
    std::optional<QPointF> m_held; ///< pixel of the corner that a hand has hold of
    Grid m_grid;
    QRectF m_box;
};

} // namespace corvala::plot
