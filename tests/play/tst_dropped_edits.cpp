// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "play/script_run.h"
#include "tests/play/bare_stage.h"
#include "tests/support/rows.h"

#include <QTest>

using namespace corvala;
using namespace corvala::play;
using namespace corvala::tests;
using Json = nlohmann::json;

namespace {

// What is shown would change one of the selected maps if it were committed.
constexpr const char* kField = R"([{"demo": "kinds"},
    {"active": "FieldMaps", "maps": "1,4,7", "op": "assign"}, {"layer": "ShowMesh", "on": false},
    {"set": ["FieldMap", "Mesh", "Show"], "maps": "all", "value": false},
    {"set": ["FieldMap", "Group"], "maps": "4", "value": 5},
    {"dialog": "open"}, {"tab": "Mesh"}, {"select": "1,4"}])";
constexpr const char* kLines = R"([{"mappingTabs": [0, 1]}, {"demo": "xy"},
    {"rename": "other", "lineMap": 1},
    {"dialog": "open"}, {"tab": "Definitions"}, {"select": "1-2"}])";

struct Opening
{
    const char* name;
    const char* before; ///< the lines before
    const char* line;
    bool isPrompt = false; ///< that asks for a reply
};

const Opening kOpenings[] = {
    {"menu", kField, R"({"menu": 1, "column": "Mesh\nType"})"},
    {"colors", kField, R"({"menu": 1, "column": "Mesh\nColor"})"},
    {"text", kField, R"({"popup": 1, "column": "Group\nNumber"})"},
    {"text in place", kField, R"({"doubleClick": 1, "column": "Group\nNumber"})"},
    {"number", kField, R"({"menu": 1, "column": "Line\nThickness", "choose": "Enter..."})", true},
    {"layer", kField, R"({"check": 1, "column": "Show\nMesh"})", true},
    {"list", kLines, R"({"popup": 2, "column": 7})"},
    {"list in place", kLines, R"({"doubleClick": 2, "column": 7})"},
    {"name", kLines, R"({"popup": 2, "column": 1})"},
    {"name in place", kLines, R"({"doubleClick": 2, "column": 1})"},
    {"variable", kLines, R"({"action": "1-2", "column": 6, "choose": "Select Variable..."})", true},
    {"zone", kLines, R"({"action": "1-2", "column": "Zone", "choose": "Select Zone..."})", true},
    {"unordered zone", kLines, R"({"popup": 2, "column": "Zone", "choose": 4, "end": "Return"})",
     true},
    {"deletion", kLines, R"({"button": "Delete Map"})", true},
};

bool isEditOfMaps(const host::Operation& operation)
{
    const auto* set = std::get_if<host::SetStyle>(&operation);
    return (set && QString::fromStdString(set->path.front()).endsWith("Map"))
        || std::holds_alternative<host::RenameLineMaps>(operation);
}

} // namespace

/// Whatever is open when the dialog goes, or when it shows something else, goes without an edit.
class tst_DroppedEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areDropped_data()
    {
        const Rows<Opening, QByteArray> row;
        for (const char* change :
             {R"({"dialog": "destroy"})", R"({"dialog": "close"})", R"({"data": "none"})",
              R"({"frame": "new"})", R"({"frame": "delete"})", R"({"plotType": 2})",
              R"({"plotType": 5})", R"({"demo": "field2d"})", R"({"demo": "transient"})",
              R"({"deleteMaps": "1"})", R"({"undo": 1})", R"({"mappingTabs": [1]})"}) {
            for (const Opening& opening : kOpenings)
                if (opening.before == kLines || !QString(change).contains("mappingTabs"))
                    row(QString("%1, %2").arg(opening.name, change), opening, change);
        }
    }

    void areDropped()
    {
        const auto [opening, change] = currentRow<Opening, QByteArray>();
        host::Document::instance().clear();
        BareStage stage;
        ScriptRun run(stage, {});
        try {
            for (const Json& line : Json::parse(opening.before))
                run.play(line);
            Json line = Json::parse(opening.line);
            Json during = Json::array({Json::parse(change.toStdString())});
            const bool isInPlace = line.contains("doubleClick");
            if (isInPlace)
                during.insert(during.begin(), Json::object({{"key", "7"}}));
            int edits = 0;
            const boost::signals2::scoped_connection listener =
                host::Document::instance().executed().connect(
                    [&edits](const auto& done, const auto&) { edits += isEditOfMaps(done); });
            const Json drop {{"dropped", true}, {"during", during}};
            if (opening.isPrompt)
                run.play({{"answers", {drop}}});
            else
                line.update(drop);
            run.play(line);
            QVERIFY(!run.prompts().hasUnusedReplies());
            const bool commits = isInPlace && change.contains("close"); // as a click elsewhere does
            QCOMPARE(edits > 0, commits);
        } catch (const ScriptError& error) {
            QFAIL(error.what());
        }
    }
};

QTEST_MAIN(tst_DroppedEdits)
#include "tst_dropped_edits.moc"
