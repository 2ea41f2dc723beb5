// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/custom_plot.h"

namespace corvala::plot {

/// Ticks of a linear axis.
class NumberTicker : public QCPAxisTicker
{
protected:
    QVector<QString> createLabelVector(const QVector<double>& ticks, const QLocale& locale,
                                       QChar formatChar, int precision) override;
};

/// Ten to a power.
QString powerOfTen(int power);

/// The numbers along an axis, in one notation and with as many digits as tell all of them.
QVector<QString> numberTexts(const QVector<double>& ticks);

} // namespace corvala::plot
