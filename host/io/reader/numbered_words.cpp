// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/numbered_words.h"

#include <QStringList>

namespace corvala::host::io::reader {

static constexpr int kMostListed = 12; ///< words
static constexpr int kLongestWord = 20; ///< letters of it

QString numberedWords(const QString& variable, const std::vector<std::string>& words, int first)
{
    QStringList list;
    int number = first;
    for (const std::string& word : words) {
        if (list.size() == kMostListed) {
            list << QStringLiteral("...");
            break;
        }
        if (!word.empty())
            list << QStringLiteral("%1 %2").arg(number).arg(
                QString::fromStdString(word).left(kLongestWord));
        ++number;
    }
    return QStringLiteral("%1 (%2)").arg(variable, list.join(QStringLiteral(", ")));
}

} // namespace corvala::host::io::reader
