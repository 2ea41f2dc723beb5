// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/read_message.h"

#include <QCoreApplication>

#include <map>
#include <utility>

namespace corvala::host::io {

ReadMessage::ReadMessage(const char* english, std::initializer_list<QString> values)
    : text(english)
{
    for (const QString& value : values)
        arguments.push_back(value.toStdString());
}

static constexpr QChar kMessage(0x02); ///< in front of an argument that is a message

static QString framed(const QString& part)
{
    return QString::number(part.size()) + QLatin1Char(':') + part;
}

/// The message that an argument stands for; empty for any other argument.
static ReadMessage messageIn(const QString& argument)
{
    QStringList parts;
    for (int place = 1; argument.startsWith(kMessage) && place < argument.size();) {
        const int colon = argument.indexOf(QLatin1Char(':'), place);
        const int size = argument.mid(place, colon - place).toInt();
        if (colon < 0 || size < 0 || size > argument.size() - colon - 1)
            return {};
        parts << argument.mid(colon + 1, size);
        place = colon + 1 + size;
    }
    ReadMessage result;
    result.text = parts.value(0).toStdString();
    for (const QString& part : parts.mid(1))
        result.arguments.push_back(part.toStdString());
    return result;
}

static QString shown(const QString& argument)
{
    const ReadMessage message = messageIn(argument);
    return message.isEmpty() ? argument : message.toString();
}

/// Fills in all arguments at once, so that a "%1" inside an argument stays what it is.
static QString filledIn(const QString& text, const std::vector<std::string>& arguments)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const int digit = i + 1 < text.size() ? text[i + 1].digitValue() : -1;
        const bool isPlace =
            text[i] == QLatin1Char('%') && digit > 0 && digit <= static_cast<int>(arguments.size());
        if (isPlace)
            result += shown(QString::fromStdString(arguments[static_cast<std::size_t>(digit - 1)]));
        else
            result += text[i];
        i += isPlace ? 1 : 0;
    }
    return result;
}

QString ReadMessage::toString() const
{
    return filledIn(QCoreApplication::translate("ReadMessage", text.c_str()), arguments);
}

QString ReadMessage::asArgument() const
{
    QString result = kMessage + framed(QString::fromStdString(text));
    for (const std::string& argument : arguments)
        result += framed(QString::fromStdString(argument));
    return result;
}

QStringList grouped(const std::vector<ReadMessage>& messages)
{
    std::map<std::string, int> uses;
    for (const ReadMessage& message : messages)
        ++uses[message.text];
    QStringList result;
    for (const ReadMessage& message : messages) {
        const int more = std::exchange(uses[message.text], 0) - 1;
        if (more == 0)
            result << message.toString();
        else if (more > 0)
            result << QCoreApplication::translate("ReadMessage", "%1 (and %n more like it)",
                                                  nullptr, more)
                          .arg(message.toString());
    }
    return result;
}

} // namespace corvala::host::io
