// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/picture_size.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr double kMillimetresPerInch = 25.4;

QSize PictureSize::pixels() const
{
    static constexpr double kMost = 1e9; // far above what can be drawn
    const auto count = [this](double length) {
        return static_cast<int>(
            std::lround(std::clamp(length / kMillimetresPerInch * dotsPerInch, 0.0, kMost)));
    };
    return {count(millimetres.width()), count(millimetres.height())};
}

PictureSize PictureSize::ofPixels(const QSizeF& pixels, double dotsPerInch)
{
    return {pixels * (kMillimetresPerInch / dotsPerInch), dotsPerInch};
}

std::optional<PictureSize> pictureSizeOf(const QString& text, double dotsPerInch)
{
    static const QRegularExpression kForm(
        QStringLiteral("^(\\d+(?:\\.\\d+)?)x(\\d+(?:\\.\\d+)?)mm$|^(\\d+)x(\\d+)$"));
    const QRegularExpressionMatch match = kForm.match(text);
    const bool isOnPaper = !match.captured(1).isEmpty();
    const QSizeF size(match.captured(isOnPaper ? 1 : 3).toDouble(),
                      match.captured(isOnPaper ? 2 : 4).toDouble());
    if (!match.hasMatch() || size.isEmpty())
        return std::nullopt;
    return isOnPaper ? PictureSize {size, dotsPerInch} : PictureSize::ofPixels(size, dotsPerInch);
}

QString sizeProblem(const QSize& size)
{
    constexpr int kLargestSide = 8192;
    if (!size.isEmpty() && size.width() <= kLargestSide && size.height() <= kLargestSide)
        return {};
    return QCoreApplication::translate("corvala::plot",
                                       "An image of %1 by %2 pixels cannot be drawn; a side may "
                                       "have 1 to %3")
        .arg(size.width())
        .arg(size.height())
        .arg(kLargestSide);
}

} // namespace corvala::plot
