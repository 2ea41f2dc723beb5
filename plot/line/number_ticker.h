// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/custom_plot.h"

namespace corvala::plot {

/// Ticks of a linear axis, whose numbers have as many digits as tell them apart.
class NumberTicker : public QCPAxisTicker
{
public:
    void generate(const QCPRange& range, const QLocale& locale, QChar formatChar, int precision,
                  QVector<double>& ticks, QVector<double>* subTicks,
                  QVector<QString>* tickLabels) override;

protected:
    /// With a minus sign, but for the exponent, which the axis finds by its hyphen.
    QString getTickLabel(double tick, const QLocale& locale, QChar formatChar,
                         int precision) override;
};

} // namespace corvala::plot
