// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/number_list.h"

#include <QStringList>

#include <cmath>

namespace corvala::plot {

static bool isSeparator(QChar last)
{
    return last == QLatin1Char(',') || last == QLatin1Char(';');
}

NumberList numbersIn(const std::string& text)
{
    NumberList list;
    const QString words = QString::fromStdString(text).simplified();
    for (QString word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (isSeparator(word.back()))
            word.chop(1);
        bool isNumber = false;
        const double number =
            QString(word).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number)) {
            list.rest = word;
            break;
        }
        list.numbers.push_back(number);
    }
    return list;
}

} // namespace corvala::plot
