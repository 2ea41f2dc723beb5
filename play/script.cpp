// SPDX-License-Identifier: BSD-3-Clause
#include "play/script.h"

#include <QByteArray>
#include <set>

namespace corvala::play {

using Json = nlohmann::json;

/// The reason of a parse failure without the library's own prefix.
static QString reasonOf(const Json::parse_error& error)
{
    const QString text = QString::fromUtf8(error.what());
    const int column = text.indexOf(QLatin1String("column "));
    return column < 0 ? text : Text::tr("not valid JSON: %1").arg(text.mid(column));
}

/// Parses one line. JSON keeps the last of two equal keys, which would hide a slip of the pen:
/// here they are an error.
static Json parseObject(const QByteArray& line)
{
    std::vector<std::set<std::string>> keys;
    const auto watch = [&keys](int, Json::parse_event_t event, Json& parsed) {
        if (event == Json::parse_event_t::object_start)
            keys.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            keys.pop_back();
        else if (event == Json::parse_event_t::key
                 && !keys.back().insert(parsed.get<std::string>()).second)
            throw ScriptError(Text::tr("the key \"%1\" stands twice")
                                  .arg(QString::fromStdString(parsed.get<std::string>())));
        return true;
    };
    Json object = Json::parse(line.begin(), line.end(), watch);
    if (!object.is_object())
        throw ScriptError(Text::tr("not a JSON object"));
    return object;
}

static bool isSkipped(const QByteArray& line)
{
    return line.startsWith('#') || line.trimmed().isEmpty();
}

ScriptProblem readLines(const QByteArray& text, std::vector<ScriptLine>& lines)
{
    static const QByteArray byteOrderMark = "\xEF\xBB\xBF";
    const QByteArray body = text.startsWith(byteOrderMark) ? text.mid(byteOrderMark.size()) : text;
    int number = 0;
    for (QByteArray line : body.split('\n')) {
        ++number;
        if (line.endsWith('\r'))
            line.chop(1);
        if (isSkipped(line))
            continue;
        try {
            lines.push_back({number, parseObject(line)});
        } catch (const Json::parse_error& error) {
            return {number, reasonOf(error)};
        } catch (const Json::out_of_range&) {
            return {number, Text::tr("a number is too large")};
        } catch (const ScriptError& error) {
            return {number, error.message()};
        }
    }
    return {};
}

} // namespace corvala::play
