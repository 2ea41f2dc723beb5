// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/picture_size.h"

#include <QCoreApplication>

namespace corvala::plot {

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
