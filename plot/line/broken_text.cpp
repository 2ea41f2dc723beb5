// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/broken_text.h"

#include <QFontMetricsF>
#include <QStringList>

namespace corvala::plot {

QString brokenText(const QString& text, const QFont& font, double width, int mostLines)
{
    const QFontMetricsF metrics(font);
    QStringList lines {QString()};
    for (const QString& word : text.split(QLatin1Char(' '))) {
        QString& line = lines.last();
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        const bool fits = metrics.horizontalAdvance(longer) <= width;
        if (fits || line.isEmpty() || lines.size() == mostLines)
            line = longer;
        else
            lines.append(word);
    }
    for (QString& line : lines)
        line = metrics.elidedText(line, Qt::ElideMiddle, width);
    return lines.join(QLatin1Char('\n'));
}

} // namespace corvala::plot
