// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/character_shape.h"

#include "vocabulary/enums.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainterPath>

#include <vtkImageData.h>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr int kTexels = 96; ///< each way
static constexpr double kReach = 1.7; ///< of the picture, from its middle
static constexpr double kFarthest = 0.5; ///< distance that the picture can tell

/// The letter that a Greek font shows for a Latin one.
static QString greek(const QString& text)
{
    static const QString kLatin =
        QStringLiteral("abgdezhqiklmnxoprstufcywABGDEZHQIKLMNXOPRSTUFCYW");
    static const QString kGreek =
        QString::fromUtf8("αβγδεζηθικλμνξοπρστυφχψωΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩ");
    QString result = text;
    for (QChar& letter : result) {
        const int place = kLatin.indexOf(letter);
        letter = place < 0 ? letter : kGreek[place];
    }
    return result;
}

static QFont fontOf(int font)
{
    QFont result = QGuiApplication::font();
    if (font == FontOverride_Math) {
        result = QFont(QStringLiteral("serif"));
        result.setStyleHint(QFont::Serif);
        result.setItalic(true);
    } else if (font == FontOverride_User) {
        result = QFont(QStringLiteral("monospace"));
        result.setStyleHint(QFont::Monospace);
    }
    result.setPixelSize(100);
    return result;
}

/// The outlines of a character round the origin, a capital letter from -1 to 1, upwards.
static QList<QPolygonF> outlinesOf(const std::string& character, int font)
{
    const QString text = QString::fromStdString(character).left(1);
    const QFont drawn = fontOf(font);
    QPainterPath path;
    path.addText(0.0, 0.0, drawn, font == FontOverride_Greek ? greek(text) : text);
    const QPointF middle = path.boundingRect().center();
    const double scale = 2.0 / std::max(QFontMetricsF(drawn).capHeight(), 1.0);
    return path.toSubpathPolygons(
        QTransform::fromScale(scale, -scale).translate(-middle.x(), -middle.y()));
}

/// From a place to the outlines, negative inside.
static double distanceTo(const QList<QPolygonF>& outlines, const QPointF& place)
{
    double nearest = kFarthest * kFarthest;
    bool isInside = false;
    for (const QPolygonF& outline : outlines) {
        for (int i = 0; i < outline.size(); ++i) {
            const QPointF from = outline[i];
            const QPointF step = outline[(i + 1) % outline.size()] - from;
            const QPointF way = place - from;
            const double length = std::max(QPointF::dotProduct(step, step), 1e-12);
            const double share = std::clamp(QPointF::dotProduct(way, step) / length, 0.0, 1.0);
            const QPointF gap = way - share * step;
            nearest = std::min(nearest, QPointF::dotProduct(gap, gap));
            const bool crosses = (way.y() < 0.0) != (way.y() < step.y());
            if (crosses && way.x() < way.y() / step.y() * step.x())
                isInside = !isInside;
        }
    }
    return (isInside ? -1.0 : 1.0) * std::sqrt(nearest);
}

vtkSmartPointer<vtkImageData> characterImage(const std::string& character, int font)
{
    const QList<QPolygonF> outlines = outlinesOf(character, font);
    auto image = vtkSmartPointer<vtkImageData>::New();
    image->SetDimensions(kTexels, kTexels, 1);
    image->AllocateScalars(VTK_UNSIGNED_CHAR, 1);
    const auto placeOf = [](int texel) { return kReach * ((2.0 * texel + 1.0) / kTexels - 1.0); };
    for (int y = 0; y < kTexels; ++y) {
        for (int x = 0; x < kTexels; ++x) {
            const double away = distanceTo(outlines, {placeOf(x), placeOf(y)});
            *static_cast<unsigned char*>(image->GetScalarPointer(x, y, 0)) =
                static_cast<unsigned char>(
                    std::lround(127.5 * (1.0 + std::clamp(away / kFarthest, -1.0, 1.0))));
        }
    }
    return image;
}

double characterReach()
{
    return kReach;
}

std::string characterDistance(const std::string& texture, const std::string& place)
{
    return "(2.0 * texture(" + texture + ", 0.5 + 0.5 * " + place + " / " + std::to_string(kReach)
        + ").r - 1.0) * " + std::to_string(kFarthest);
}

} // namespace corvala::plot
