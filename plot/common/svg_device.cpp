// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/svg_device.h"

#include <QBuffer>
#include <QFontInfo>
#include <QHash>
#include <QImage>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPixmap>
#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace corvala::plot {

/// A number with as many digits as can be seen.
static QByteArray number(double value)
{
    constexpr double kSteps = 100.0; // of a pixel
    const double rounded = std::round(value * kSteps) / kSteps;
    return QByteArray::number(rounded == 0.0 ? 0.0 : rounded, 'g', 9);
}

static QByteArray attribute(const char* name, const QByteArray& value)
{
    return QByteArrayLiteral(" ") + name + "=\"" + value + '"';
}

static QByteArray attribute(const char* name, double value)
{
    return attribute(name, number(value));
}

/// The colour of what is drawn by an attribute, `fill` or `stroke`.
static QByteArray colorAttributes(const QByteArray& name, const QColor& color, double opacity)
{
    const double strength = color.alphaF() * opacity;
    const QByteArray drawn = attribute(name, color.name().toLatin1());
    return strength < 1.0 ? drawn + attribute(name + "-opacity", strength) : drawn;
}

static QByteArray fillAttributes(const QBrush& brush, double opacity)
{
    return brush.style() == Qt::NoBrush ? attribute("fill", "none")
                                        : colorAttributes("fill", brush.color(), opacity);
}

static QByteArray strokeAttributes(const QPen& pen, double opacity)
{
    if (pen.style() == Qt::NoPen)
        return {};
    const double width = pen.widthF() > 0.0 ? pen.widthF() : 1.0;
    QByteArray text = colorAttributes("stroke", pen.color(), opacity);
    text += attribute("stroke-width", width);
    if (pen.capStyle() != Qt::FlatCap)
        text += attribute("stroke-linecap", pen.capStyle() == Qt::RoundCap ? "round" : "square");
    if (pen.joinStyle() != Qt::MiterJoin)
        text += attribute("stroke-linejoin", pen.joinStyle() == Qt::RoundJoin ? "round" : "bevel");
    QByteArray dashes;
    for (const double part : pen.dashPattern())
        dashes += (dashes.isEmpty() ? "" : ",") + number(part * width);
    return dashes.isEmpty() ? text : text + attribute("stroke-dasharray", dashes);
}

static QByteArray transformAttribute(const QTransform& transform)
{
    if (transform.isIdentity())
        return {};
    QByteArray parts;
    for (const double part : {transform.m11(), transform.m12(), transform.m21(), transform.m22()})
        parts += QByteArray::number(part, 'g', 9) + ' ';
    return attribute("transform",
                     "matrix(" + parts + number(transform.dx()) + ' ' + number(transform.dy())
                         + ')');
}

/// Without the characters that no XML document may hold.
static QByteArray escaped(QString text)
{
    static const QRegularExpression kForbidden(
        QStringLiteral("[\\x{00}-\\x{08}\\x{0b}\\x{0c}\\x{0e}-\\x{1f}\\x{fffe}\\x{ffff}]"));
    return text.remove(kForbidden).toHtmlEscaped().toUtf8();
}

static QByteArray place(const QPointF& point)
{
    return number(point.x()) + ' ' + number(point.y());
}

static QByteArray pathData(const QPainterPath& path)
{
    QByteArray data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.type == QPainterPath::MoveToElement)
            data += 'M';
        else if (element.type == QPainterPath::LineToElement)
            data += 'L';
        else // what follows of a curve are its other points
            data += element.type == QPainterPath::CurveToElement ? 'C' : ' ';
        data += place(element);
    }
    return data;
}

/// Writes what a painter draws.
class SvgEngine : public QPaintEngine
{
public:
    SvgEngine()
        : QPaintEngine(PrimitiveTransform | PixmapTransform | PainterPaths | Antialiasing
                       | AlphaBlend | ConstantOpacity | PaintOutsidePaintEvent)
    {
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override;
    Type type() const override { return SVG; }
    void updateState(const QPaintEngineState& now) override;
    void drawPath(const QPainterPath& path) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    using QPaintEngine::drawPolygon;
    void drawTextItem(const QPointF& at, const QTextItem& item) override;
    void drawPixmap(const QRectF& area, const QPixmap& pixmap, const QRectF& part) override;
    void drawImage(const QRectF& area, const QImage& image, const QRectF& part,
                   Qt::ImageConversionFlags flags) override;

    const QByteArray& clips() const { return m_clips; }
    const QByteArray& body() const { return m_body; }

private:
    void clip(const QPainterPath& path, Qt::ClipOperation operation);
    void write(const QByteArray& element);

    QByteArray m_clips; ///< definitions
    QHash<QByteArray, int> m_clipNumbers; ///< by what they consist of
    int m_clip = 0; ///< in force; 0 for none
    int m_groupClip = 0; ///< of the group that is open; 0 without one
    QByteArray m_body;
};

bool SvgEngine::end()
{
    m_clip = 0;
    write({});
    return true;
}

/// Elements stand in a group with their clip, whose coordinates are not those of the elements.
void SvgEngine::write(const QByteArray& element)
{
    if (m_groupClip != m_clip) {
        m_body += m_groupClip ? "</g>\n" : "";
        if (m_clip)
            m_body += "<g clip-path=\"url(#clip" + QByteArray::number(m_clip) + ")\">\n";
        m_groupClip = m_clip;
    }
    m_body += element;
}

/// A clip within another one refers to it.
void SvgEngine::clip(const QPainterPath& path, Qt::ClipOperation operation)
{
    const int outer = operation == Qt::IntersectClip ? m_clip : 0;
    const QByteArray within =
        outer ? attribute("clip-path", "url(#clip" + QByteArray::number(outer) + ')') : "";
    const QByteArray rule =
        path.fillRule() == Qt::OddEvenFill ? attribute("clip-rule", "evenodd") : "";
    const QByteArray content =
        within + "><path" + rule + attribute("d", pathData(path)) + "/></clipPath>\n";
    int& known = m_clipNumbers[content];
    if (!known) {
        known = m_clipNumbers.size();
        m_clips += "<clipPath" + attribute("id", "clip" + QByteArray::number(known)) + content;
    }
    m_clip = known;
}

void SvgEngine::updateState(const QPaintEngineState& now)
{
    const DirtyFlags changed = now.state();
    if (changed & (DirtyClipRegion | DirtyClipPath)) {
        QPainterPath path = now.clipPath();
        if (changed & DirtyClipRegion) {
            path = QPainterPath();
            path.addRegion(now.clipRegion());
        }
        if (now.clipOperation() == Qt::NoClip)
            m_clip = 0;
        else
            clip(now.transform().map(path), now.clipOperation());
    }
    if ((changed & DirtyClipEnabled) && !now.isClipEnabled())
        m_clip = 0;
}

void SvgEngine::drawPath(const QPainterPath& path)
{
    const bool isFilled = state->brush().style() != Qt::NoBrush;
    if (path.isEmpty() || (!isFilled && state->pen().style() == Qt::NoPen))
        return;
    const bool isEvenOdd = isFilled && path.fillRule() == Qt::OddEvenFill;
    write("<path" + transformAttribute(state->transform())
          + fillAttributes(state->brush(), state->opacity())
          + (isEvenOdd ? attribute("fill-rule", "evenodd") : "")
          + strokeAttributes(state->pen(), state->opacity()) + attribute("d", pathData(path))
          + "/>\n");
}

void SvgEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    QPainterPath path;
    path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    for (int i = 0; i < count; ++i) {
        if (i == 0)
            path.moveTo(points[i]);
        else
            path.lineTo(points[i]);
    }
    if (mode != PolylineMode) {
        path.closeSubpath();
        drawPath(path);
        return;
    }
    write("<path" + transformAttribute(state->transform()) + attribute("fill", "none")
          + strokeAttributes(state->pen(), state->opacity()) + attribute("d", pathData(path))
          + "/>\n");
}

/// A text is as wide as it was laid out, whatever the font that it is shown with.
void SvgEngine::drawTextItem(const QPointF& at, const QTextItem& item)
{
    const QFont font = item.font();
    const QFontInfo shown(font);
    write("<text" + transformAttribute(state->transform()) + attribute("x", at.x())
          + attribute("y", at.y())
          + attribute("font-family", escaped(shown.family()) + ", sans-serif")
          + attribute("font-size", shown.pixelSize())
          + (font.bold() ? attribute("font-weight", "bold") : "")
          + (font.italic() ? attribute("font-style", "italic") : "")
          + colorAttributes("fill", state->pen().color(), state->opacity())
          + attribute("textLength", item.width()) + attribute("xml:space", "preserve") + '>'
          + escaped(item.text()) + "</text>\n");
}

void SvgEngine::drawPixmap(const QRectF& area, const QPixmap& pixmap, const QRectF& part)
{
    drawImage(area, pixmap.toImage(), part, Qt::AutoColor);
}

void SvgEngine::drawImage(const QRectF& area, const QImage& image, const QRectF& part,
                          Qt::ImageConversionFlags)
{
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.copy(part.toAlignedRect()).save(&png, "PNG");
    write("<image" + transformAttribute(state->transform()) + attribute("x", area.x())
          + attribute("y", area.y()) + attribute("width", area.width())
          + attribute("height", area.height()) + attribute("preserveAspectRatio", "none")
          + attribute("xlink:href", "data:image/png;base64," + png.data().toBase64()) + "/>\n");
}

SvgDevice::SvgDevice(const PictureSize& size)
    : m_size(size)
    , m_engine(std::make_unique<SvgEngine>())
{
}

SvgDevice::~SvgDevice() = default;

QPaintEngine* SvgDevice::paintEngine() const
{
    return m_engine.get();
}

QByteArray SvgDevice::document() const
{
    const QSize pixels = m_size.pixels();
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg"
        + attribute("xmlns", "http://www.w3.org/2000/svg")
        + attribute("xmlns:xlink", "http://www.w3.org/1999/xlink")
        + attribute("width", number(m_size.millimetres.width()) + "mm")
        + attribute("height", number(m_size.millimetres.height()) + "mm")
        + attribute("viewBox", "0 0 " + place(QPointF(pixels.width(), pixels.height()))) + ">\n"
        + m_engine->clips() + m_engine->body() + "</svg>\n";
}

int SvgDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth: return m_size.pixels().width();
    case PdmHeight: return m_size.pixels().height();
    case PdmWidthMM: return static_cast<int>(std::lround(m_size.millimetres.width()));
    case PdmHeightMM: return static_cast<int>(std::lround(m_size.millimetres.height()));
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY: return static_cast<int>(std::lround(m_size.dotsPerInch));
    case PdmNumColors: return std::numeric_limits<int>::max();
    case PdmDepth: return 32;
    case PdmDevicePixelRatio: return 1;
    case PdmDevicePixelRatioScaled: return static_cast<int>(devicePixelRatioFScale());
    }
    return 0;
}

} // namespace corvala::plot
