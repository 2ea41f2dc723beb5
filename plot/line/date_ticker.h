// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/custom_plot.h"

namespace corvala::plot {

/// Dates or times of day in UTC, as exact as the ticks are close; below the first time of a day
/// stands its date.
class DateTicker : public QCPAxisTickerDateTime
{
public:
    DateTicker();

protected:
    double getTickStep(const QCPRange& range) override;
    QVector<QString> createLabelVector(const QVector<double>& ticks, const QLocale& locale,
                                       QChar format, int precision) override;

private:
    bool m_areTimes = false;
};

} // namespace corvala::plot
