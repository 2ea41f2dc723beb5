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

QSizeF PictureSize::points() const
{
    return millimetres * (72.0 / kMillimetresPerInch);
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
    if (!size.isEmpty() && std::max(size.width(), size.height()) <= kLargestImage)
        return {};
    return QCoreApplication::translate("corvala::plot",
                                       "An image of %1 by %2 pixels cannot be drawn; a side may "
                                       "have 1 to %3")
        .arg(size.width())
        .arg(size.height())
        .arg(kLargestImage);
}

QString pageProblem(const PictureSize& size)
{
    const QSizeF& page = size.millimetres;
    if (!size.pixels().isEmpty() && std::max(page.width(), page.height()) <= kLargestPage)
        return {};
    return QCoreApplication::translate("corvala::plot",
                                       "A page of %1 by %2 mm cannot be drawn; a side may have "
                                       "%3 at most, and no less than a dot")
        .arg(page.width())
        .arg(page.height())
        .arg(kLargestPage);
}

} // namespace corvala::plot
