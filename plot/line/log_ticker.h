// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/custom_plot.h"

namespace corvala::plot {

/// Ticks of a logarithmic axis: powers of ten, or round numbers where fewer than two of these are
/// seen.
class LogTicker : public QCPAxisTicker
{
public:
    void generate(const QCPRange& range, const QLocale& locale, QChar formatChar, int precision,
                  QVector<double>& ticks, QVector<double>* subTicks,
                  QVector<QString>* tickLabels) override;
};

} // namespace corvala::plot
