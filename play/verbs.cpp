// SPDX-License-Identifier: BSD-3-Clause
#include "play/verbs.h"

#include <algorithm>
#include <map>

namespace corvala::play {

using Json = nlohmann::json;
using VerbTable = std::map<std::string, Verb>;

static VerbTable makeTable()
{
    VerbTable table;
    for (const auto& verbs :
         {documentVerbs(), dialogVerbs(), cellVerbs(), promptVerbs(), lookingVerbs()}) {
        for (const Verb& verb : verbs)
            table.emplace(verb.name, verb);
    }
    return table;
}

static const Verb& findVerb(const Json& line)
{
    static const VerbTable table = makeTable();
    const Verb* found = nullptr;
    for (const auto& [key, value] : line.items()) {
        const auto verb = table.find(key);
        if (verb == table.end())
            continue;
        if (found)
            throw ScriptError(Text::tr("two verbs in one line: \"%1\" and \"%2\"")
                                  .arg(QLatin1String(found->name), QString::fromStdString(key)));
        found = &verb->second;
    }
    if (!found && line.size() == 1)
        throw ScriptError(
            Text::tr("unknown verb \"%1\"").arg(QString::fromStdString(line.begin().key())));
    if (!found)
        throw ScriptError(Text::tr("the line holds no verb"));
    return *found;
}

static void checkKeys(const Json& line, const Verb& verb)
{
    for (const auto& [key, value] : line.items()) {
        const auto isKey = [&name = key](const char* other) { return name == other; };
        if (!isKey(verb.name) && std::none_of(verb.keys.begin(), verb.keys.end(), isKey))
            throw ScriptError(Text::tr("\"%1\" has no key \"%2\"")
                                  .arg(QLatin1String(verb.name), QString::fromStdString(key)));
    }
}

/// Lines stand in the lists "during", of the line itself and of its replies.
static void checkInnerLines(const Json& value)
{
    if (value.is_object() && value.contains("during")) {
        for (const Json& line : value["during"]) {
            if (!line.is_object())
                throw ScriptError(Text::tr("\"during\" must be a list of lines"));
            verbOf(line);
        }
    }
    if (value.is_array())
        std::for_each(value.begin(), value.end(), checkInnerLines);
}

const Verb& verbOf(const Json& line)
{
    const Verb& verb = findVerb(line);
    checkKeys(line, verb);
    checkInnerLines(line);
    checkInnerLines(line[verb.name]);
    return verb;
}

} // namespace corvala::play
