// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/date_ticker.h"

#include <utility>

namespace corvala::plot {

static QString dateFormat()
{
    return QStringLiteral("yyyy-MM-dd");
}

DateTicker::DateTicker()
{
    setDateTimeSpec(Qt::UTC);
}

double DateTicker::getTickStep(const QCPRange& range)
{
    constexpr double kMinute = 60;
    constexpr double kDay = 86'400;
    const double step = QCPAxisTickerDateTime::getTickStep(range);
    m_areTimes = step < kDay;
    setDateTimeFormat(!m_areTimes          ? dateFormat()
                          : step < kMinute ? QStringLiteral("hh:mm:ss")
                                           : QStringLiteral("hh:mm"));
    return step;
}

QVector<QString> DateTicker::createLabelVector(const QVector<double>& ticks, const QLocale& locale,
                                               QChar format, int precision)
{
    QVector<QString> texts =
        QCPAxisTickerDateTime::createLabelVector(ticks, locale, format, precision);
    QString last;
    for (int i = 0; i < texts.size() && m_areTimes; ++i) {
        const QString date = keyToDateTime(ticks[i]).toUTC().toString(dateFormat());
        if (std::exchange(last, date) != date)
            texts[i] += QLatin1Char('\n') + date;
    }
    return texts;
}

} // namespace corvala::plot
