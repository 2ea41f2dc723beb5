// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/json_parsing.h"

#include "host/operations/json_object.h"
#include "host/storage/document_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <deque>
#include <set>

namespace corvala::host::storage {

using Json = nlohmann::json;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

/// Goes along with the parser. A key that stands twice would hide what stands under the first; what
/// is nested deeper than anything that is written would exhaust the stack.
class ParserWatch
{
public:
    bool operator()(Json::parse_event_t event, const Json& parsed)
    {
        switch (event) {
        case Json::parse_event_t::object_end:
        case Json::parse_event_t::array_end: m_levels.pop_back(); break;
        case Json::parse_event_t::key: enterKey(parsed); break;
        case Json::parse_event_t::value: enterValue(); break;
        case Json::parse_event_t::object_start:
        case Json::parse_event_t::array_start:
            enterValue();
            m_levels.emplace_back();
            requireFlat();
            break;
        }
        return true;
    }
    /// A value comes, as an element of a list or under the last key.
    void enterValue()
    {
        if (!m_levels.empty())
            ++m_levels.back().position;
    }
    [[noreturn]] void fail(const QString& reason) const { throw DocumentError(path(), reason); }

private:
    struct Level
    {
        std::set<std::string> keys; ///< none in a list
        const std::string* key = nullptr;
        int position = 0;
    };

    void enterKey(const Json& key)
    {
        const auto [place, isNew] = m_levels.back().keys.insert(key.get<std::string>());
        m_levels.back().key = &*place;
        if (!isNew)
            fail(Text::tr("%1 stands twice in one object").arg(shown(key)));
    }
    void requireFlat() const
    {
        constexpr std::size_t kMostLevels = 20;
        if (m_levels.size() > kMostLevels)
            fail(Text::tr("objects and lists are nested too deeply"));
    }
    /// As JsonPlace::path.
    QString path() const
    {
        QString text;
        for (const Level& level : m_levels)
            if (level.key)
                text += (text.isEmpty() ? QString() : QStringLiteral("."))
                    + QString::fromStdString(*level.key);
            else if (level.position > 0)
                text += QStringLiteral("[%1]").arg(level.position);
        return text;
    }

    std::deque<Level> m_levels;
};

} // namespace

Json parsed(const std::string& text)
{
    ParserWatch watch;
    try {
        return Json::parse(text, [&watch](int, Json::parse_event_t event, const Json& value) {
            return watch(event, value);
        });
    } catch (const Json::out_of_range&) { // all that is thrown beside errors of the syntax
        watch.enterValue();
        watch.fail(Text::tr("the number is too large"));
    } catch (const Json::parse_error& error) {
        const auto end = text.begin()
            + static_cast<std::ptrdiff_t>(
                             std::min(std::max<std::size_t>(error.byte, 1) - 1, text.size()));
        const auto line = std::count(text.begin(), end, '\n') + 1;
        const QString what = QString::fromUtf8(error.what());
        throw DocumentError(Text::tr("line %1").arg(line),
                            Text::tr("the document is damaged or cut off: %1")
                                .arg(what.mid(what.indexOf(QLatin1String(": ")) + 2)));
    }
}

} // namespace corvala::host::storage
