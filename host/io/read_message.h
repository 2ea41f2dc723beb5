// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <string>
#include <vector>

namespace corvala::host::io {

/// A sentence from the reading program. It crosses to the program in English and in parts, and is
/// translated there: mark `text` with QT_TRANSLATE_NOOP("ReadMessage", ...).
struct ReadMessage
{
    ReadMessage() = default;
    explicit ReadMessage(const char* english, std::initializer_list<QString> values = {});

    std::string text; ///< with %1, %2, ... for the arguments
    std::vector<std::string> arguments; ///< UTF-8

    QString toString() const; ///< translated, with the arguments filled in
    /// This message as an argument of another one, with which it is translated.
    QString asArgument() const;
    bool isEmpty() const { return text.empty(); }
};

/// One sentence for all messages that say the same of different things: the first of them, and how
/// many are like it.
QStringList grouped(const std::vector<ReadMessage>& messages);

} // namespace corvala::host::io
