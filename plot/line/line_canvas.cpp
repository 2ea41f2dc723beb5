// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_canvas.h"

#include "host/document/document.h"
#include "plot/common/picture.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace corvala::plot {

static constexpr double kPickPixels = 8.0;

LineCanvas::LineCanvas(QWidget* parent)
    : Canvas(parent)
    , m_widget(new QCustomPlot(this))
    , m_plot(*m_widget)
    , m_notice(new QLabel(m_widget))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_widget);
    m_widget->setAccessibleName(tr("Line plot"));
    watch(*m_widget);
    m_notice->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_notice->setBackgroundRole(QPalette::Base);
    m_notice->setAutoFillBackground(true);
    m_notice->move(8, 4);
    constexpr int kRestMilliseconds = 200;
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRestMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, &Canvas::redrawWanted);
    // Moved by the mouse, the plot draws itself as far as it can at once; those who look at the
    // picture hear of it when the hand rests.
    connect(m_widget, &QCustomPlot::afterReplot, this, [this] {
        if (m_plot.hasWork())
            Q_EMIT redrawWanted();
    });
}

std::any LineCanvas::view() const
{
    return m_plot.isFitted() ? std::any() : m_plot.chart().range();
}

void LineCanvas::setView(const std::any& view)
{
    if (const auto* const range = std::any_cast<ChartRange>(&view)) {
        m_plot.setMoved();
        m_plot.chart().setRange(*range);
    } else {
        m_plot.fit();
    }
}

bool LineCanvas::show(const std::optional<ChartRange>& range)
{
    if (!range)
        return false;
    m_plot.setMoved();
    m_plot.chart().setRange(*range);
    return true;
}

void LineCanvas::zoomToBox(const QRectF& box)
{
    show(m_plot.chart().rangeIn(box));
}

bool LineCanvas::zoomToMaps(const host::NumberSet& maps)
{
    return show(m_plot.chart().rangeOf(maps));
}

QString LineCanvas::probe(const QPointF& place)
{
    return m_plot.chart().valuesAt(place);
}

void LineCanvas::setOutlined(const host::NumberSet& maps)
{
    m_plot.setOutlined(maps);
    Q_EMIT redrawWanted();
}

void LineCanvas::draw()
{
    m_plot.prepare();
    m_widget->replot(QCustomPlot::rpImmediateRefresh);
    m_notice->setText(m_plot.notice());
    m_notice->adjustSize();
    m_notice->setVisible(!m_notice->text().isEmpty());
}

void LineCanvas::resizeEvent(QResizeEvent* event)
{
    Canvas::resizeEvent(event);
    m_plot.setFrameHeight(height());
}

void LineCanvas::sceneChanged(const host::StateEvent& event)
{
    for (const host::StyleChange& change : event.styleChanges)
        if (isChartRange(style::Key {change.attribute}))
            m_plot.fit();
}

CvlInt64 LineCanvas::numberAt(const QPointF& place)
{
    if (m_plot.legend().box().contains(place))
        return m_plot.legend().mapAt(place);
    return m_plot.chart().mapAt(place, kPickPixels);
}

bool LineCanvas::takesHold(const QPointF& place)
{
    return m_plot.legend().box().contains(place);
}

void LineCanvas::moveHeld(const QPointF& by)
{
    m_plot.legend().move(by);
    m_widget->replot(QCustomPlot::rpQueuedReplot);
}

/// The place of the legend becomes one of the style, in one undo step.
void LineCanvas::letGo()
{
    const QPointF corner = m_plot.legend().corner();
    host::Document& document = host::Document::instance();
    document.undo().begin(UndoKind_StyleGroup);
    document.execute(frameValue(style::lineLegend.automaticPlace, false));
    document.execute(frameValue(style::lineLegend.x, corner.x()));
    document.execute(frameValue(style::lineLegend.y, corner.y()));
    document.undo().end(host::UndoHistory::Closing::OneStep);
    m_plot.legend().letGo();
}

/// What the axes show at first, and where the legend is.
std::optional<double> LineCanvas::proposal(style::Key value, int index) const
{
    if (value == style::lineLegend.x || value == style::lineLegend.y) {
        const QPointF corner = m_plot.legend().corner();
        return value == style::lineLegend.x ? corner.x() : corner.y();
    }
    if (value == style::timeText.x || value == style::timeText.y) {
        const std::optional<QPointF> corner = m_plot.timeLabel().corner();
        if (!corner)
            return std::nullopt;
        return value == style::timeText.x ? corner->x() : corner->y();
    }
    const ChartRange home = m_plot.home();
    const auto end = [&](const auto& axis, const AxisRange& range) -> std::optional<double> {
        const bool isKnown = range.minimum < range.maximum;
        if (isKnown && value == axis.rangeMin)
            return range.minimum;
        return isKnown && value == axis.rangeMax ? std::optional(range.maximum) : std::nullopt;
    };
    const auto number = static_cast<std::size_t>(std::max(index, 1)) - 1;
    if (m_plot.isPolar())
        return end(style::lineAxes.polar, home.second[0]);
    const auto first = end(style::lineAxes.x, home.first[number]);
    return first ? first : end(style::lineAxes.y, home.second[number]);
}

bool LineCanvas::dragged(const QPointF&)
{
    m_plot.setMoved();
    m_rest.start();
    return false; // the plot moves by itself
}

bool LineCanvas::wheelTurned(const QWheelEvent&)
{
    m_plot.setMoved();
    m_rest.start();
    return false;
}

QString LineCanvas::paint(QPaintDevice& device, Paper paper, const WorkWatch& watch)
{
    const ChartRange range = m_plot.chart().range();
    return paintLines(m_plot.frameId(), m_plot.isFitted() ? nullptr : &range, &m_plot, device,
                      paper, nullptr, watch);
}

QString paintLines(CvlUniqueId frame, const ChartRange* range, const LinePlot* known,
                   QPaintDevice& device, Paper paper, std::vector<SceneNote>* notes,
                   const WorkWatch& watch)
{
    QCustomPlot widget;
    if (paper == Paper::Transparent)
        widget.setBackground(QBrush(Qt::NoBrush));
    LinePlot plot(widget);
    plot.setPatience(-1);
    plot.legend().setPaper(paper);
    // A page that is larger than any image is laid out as the largest one, and enlarged.
    const double scale = std::max(
        {1.0, double(device.width()) / kLargestImage, double(device.height()) / kLargestImage});
    const QSize size = QSize(device.width(), device.height()) / scale;
    plot.setFrameHeight(size.height());
    plot.setFrame(frame);
    if (known)
        plot.takeFrom(*known);
    if (!plot.finish(watch))
        return pictureCancelled();
    plot.prepare();
    if (range)
        plot.chart().setRange(*range);
    QCPPainter painter(&device);
    if (isVectorDevice(device))
        painter.setModes(QCPPainter::pmVectorized | QCPPainter::pmNonCosmetic);
    painter.scale(scale, scale);
    widget.toPainter(&painter, size.width(), size.height());
    if (notes)
        *notes = plot.notes();
    return {};
}

} // namespace corvala::plot
