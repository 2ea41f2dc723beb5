// SPDX-License-Identifier: BSD-3-Clause
#include "tests/host/document_driver.h"
#include "tests/host/event_log.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <cmath>
#include <random>

using namespace corvala;
using namespace corvala::host;
using namespace corvala::tests;

/// A style write; the path is separated by blanks, a number in it is the index.
static Operation styled(const char* path, const char* maps, const char* value)
{
    nlohmann::json object {{"value", nlohmann::json::parse(value)}};
    for (const QString& name : QString(path).split(' '))
        object["set"].push_back(name.toInt() ? nlohmann::json(name.toInt())
                                             : nlohmann::json(name.toStdString()));
    if (*maps != '\0')
        object["maps"] = maps;
    return operationFromJson(object, {document().activeFrame(), {}});
}

namespace {

/// Operations at random: most can be done, some cannot.
class RandomOperations
{
public:
    explicit RandomOperations(unsigned seed)
        : m_random(seed)
    {
    }

    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    Operation next()
    {
        const CvlInt64 fieldMaps = frame().fieldMapCount();
        const CvlInt64 lineMaps = frame().lineMapCount();
        switch (below(18)) {
        case 0: return RenameZone {below(int(frame().data()->zoneCount()) + 2), name()};
        case 1: return RenameVariable {below(9), name()};
        case 2: return RenameLineMaps {some(lineMaps), name()};
        case 3: return CreateLineMaps {below(3)};
        case 4: return CopyLineMaps {some(lineMaps)};
        case 5: return MoveLineMaps {some(lineMaps), below(2) == 0};
        case 6: return DeleteMaps {some(lineMaps), MapKind::Line};
        case 7: return DeleteMaps {some(fieldMaps), below(2) ? MapKind::Field : MapKind::Shown};
        case 8: return EnableZones {some(frame().data()->zoneCount())};
        case 9: return EnableVariables {some(frame().data()->variableCount())};
        case 10: return SetSolutionTime {below(40) / 8.0};
        case 11: return SetPicks {{{PickType_Zone, below(5)}, {PickType_Axis, 0}}};
        case 12:
            return SetPaletteColor {below(66) - 1, {static_cast<std::uint8_t>(below(256)), 2, 3}};
        case 13: return ActivateFrame {below(4)};
        case 14: return added();
        default: return styled();
        }
    }

private:
    static Operation added()
    {
        std::string ignored;
        AddData addition;
        addition.origin.demo = "transient";
        addition.data = samples::demoData(addition.origin.demo, 0, ignored).data;
        return addition;
    }

    std::string name() { return below(3) ? std::string("n") + char('a' + below(4)) : "ö &M#&"; }

    NumberSet some(CvlInt64 count)
    {
        NumberSet set;
        const int members = below(4);
        for (int i = 0; i < members && count > 0; ++i)
            set.add(static_cast<std::uint32_t>(1 + below(int(count) + (below(20) == 0))));
        return set;
    }

    SetStyle styled()
    {
        const Schema& schema = Schema::instance();
        const Attribute& attribute = schema.at(below(int(schema.all().size())));
        SetStyle set {attribute.names, 0.0};
        const auto op = std::array {AssignOp_Add, AssignOp_Remove, AssignOp_None};
        if (attribute.type == ValueType::Numbers) {
            set.value = some(attribute.names[0] == "ActiveLineMaps" ? frame().lineMapCount()
                                                                    : frame().fieldMapCount());
            set.op = op[static_cast<std::size_t>(below(3))];
            return set;
        }
        const double numbers[] = {0.0, 1.0, 2.0, 3.0, 5.0, 10.0, 50.0, 0.3, 101.0, 255.0, -1.0};
        set.value = numbers[below(11)];
        if (attribute.isText() || below(20) == 0)
            set.value = std::string(below(2) ? "B" : "A");
        else if (below(10) == 0)
            set.value = below(2) == 0;
        if (attribute.scope == Scope::FieldMap || attribute.scope == Scope::LineMap)
            set.maps = some(attribute.scope == Scope::FieldMap ? frame().fieldMapCount()
                                                               : frame().lineMapCount());
        if (attribute.indexCount > 0)
            set.index = below(attribute.indexCount + 2);
        return set;
    }

    std::mt19937 m_random;
};

} // namespace

/// What can be done to a document: that it is done, refused without a trace, undone, and written as
/// text.
class tst_Operations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openOnly("field2d", 12); }
    void answers_data()
    {
        const Rows<Operation, StyleWriteResult_e> add;
        const char* const type = "FieldMap Mesh MeshType";
        const char* const thickness = "FieldMap Mesh LineThickness";
        const char* const character = "FieldMap Scatter SymbolShape ASCIIShape ASCIIChar";
        const std::vector<std::string> typePath {"FieldMap", "Mesh", "MeshType"};
        const NumberSet one = allUpTo(1);

        openOnly("field2d", 12); // for what "all" means
        const auto row = [&add](const char* name, const Operation& operation,
                                StyleWriteResult_e result) { add(name, operation, result); };
        row("written", styled(type, "1-3", "2"), StyleWrite_Ok);
        row("all maps", styled(type, "all", "2"), StyleWrite_Ok);
        row("there already", styled(type, "1-3", "1"), StyleWrite_Unchanged);
        row("one of them differs", styled("FieldMap Shade Color", "2,3", "2"), StyleWrite_Ok);
        row("unknown path", styled("FieldMap Scatter KRange", "1", "1"), StyleWrite_UnknownPath);
        row("group", styled("FieldMap Surfaces IRange", "1", "1"), StyleWrite_NotALeaf);
        row("text for a number", styled(type, "1", "\"2\""), StyleWrite_WrongType);
        row("fraction for an enumeration", styled(type, "1", "0.5"), StyleWrite_WrongType);
        row("NaN for an enumeration", SetStyle {typePath, std::nan(""), one}, StyleWrite_WrongType);
        row("bool for an enumeration", styled(type, "1", "false"), StyleWrite_Ok);
        row("number for a bool", styled("FieldMap Mesh Show", "1", "0"), StyleWrite_Ok);
        row("NaN for a bool is true", SetStyle {{"FieldMap", "Mesh", "Show"}, std::nan(""), one},
            StyleWrite_Unchanged);
        row("no such enumerator", styled(type, "1", "3"), StyleWrite_OutOfRange);
        row("below the range", styled(thickness, "1", "0"), StyleWrite_OutOfRange);
        row("smallest", styled(thickness, "1", "0.0001"), StyleWrite_Ok);
        row("above the range", styled(thickness, "1", "100.5"), StyleWrite_OutOfRange);
        row("NaN for a real", SetStyle {{"FieldMap", "Mesh", "LineThickness"}, std::nan(""), one},
            StyleWrite_OutOfRange);
        row("infinite", SetStyle {{"FieldMap", "Mesh", "LineThickness"}, HUGE_VAL, one},
            StyleWrite_OutOfRange);
        row("group 0", styled("FieldMap Group", "1", "0"), StyleWrite_OutOfRange);
        row("group colour", styled("FieldMap Mesh Color", "1", "101"), StyleWrite_Ok);
        row("group colour for a shade", styled("FieldMap Shade Color", "1", "101"),
            StyleWrite_OutOfRange);
        row("colour between", styled("FieldMap Mesh Color", "1", "64"), StyleWrite_OutOfRange);
        row("one wide character", styled(character, "1", R"("𝄞")"), StyleWrite_Ok);
        row("two characters", styled(character, "1", R"("AB")"), StyleWrite_OutOfRange);
        row("no UTF-8", RenameZone {1, "\xff"}, StyleWrite_WrongType);
        row("no maps", styled(type, "none", "2"), StyleWrite_BadObjects);
        row("no set", styled(type, "", "2"), StyleWrite_BadObjects);
        row("a map too many", styled(type, "1-13", "2"), StyleWrite_BadObjects);
        row("operator for a number", SetStyle {typePath, 2.0, one, -1, AssignOp_Add},
            StyleWrite_BadOperator);
        row("maps for a frame value", styled("FieldLayers ShowShade", "1", "true"),
            StyleWrite_BadObjects);
        row("no such variable", styled("GlobalScatter Var", "", "7"), StyleWrite_OutOfRange);
        row("last variable", styled("GlobalScatter Var", "", "6"), StyleWrite_Ok);
        row("group without index", styled("ContourGroups Var", "", "3"), StyleWrite_OutOfRange);
        row("ninth group", styled("ContourGroups Var 9", "", "3"), StyleWrite_OutOfRange);
        row("eighth group", styled("ContourGroups Var 8", "", "3"), StyleWrite_Ok);
        row("number for a set", styled("ActiveFieldMaps", "", "1"), StyleWrite_WrongType);
        row("unknown set operator", SetStyle {{"ActiveFieldMaps"}, one, {}, -1, AssignOp_e(3)},
            StyleWrite_BadOperator);
        const auto run = [&](const char* operation, StyleWriteResult_e result) {
            row(operation, operationOf(operation), result);
        };
        run(R"({"active": "FieldMaps", "maps": "2", "op": "remove"})", StyleWrite_Ok);
        run(R"({"active": "FieldMaps", "maps": "none", "op": "assign"})", StyleWrite_Ok);
        run(R"({"active": "FieldMaps", "maps": "none", "op": "add"})", StyleWrite_BadObjects);
        run(R"({"active": "FieldMaps", "maps": "1-2", "op": "add"})", StyleWrite_Unchanged);
        run(R"({"active": "FieldZones", "maps": "13", "op": "remove"})", StyleWrite_BadObjects);
        run(R"({"rename": "Zone 2", "zone": 2})", StyleWrite_Unchanged);
        run(R"({"rename": "x", "zone": 13})", StyleWrite_BadObjects);
        run(R"({"rename": "x", "variable": 0})", StyleWrite_BadObjects);
        run(R"({"rename": "x", "lineMap": 1})", StyleWrite_BadObjects);
        run(R"({"createMaps": 0})", StyleWrite_OutOfRange);
        run(R"({"createMaps": 1000000})", StyleWrite_Ok);
        run(R"({"createMaps": 1000001})", StyleWrite_OutOfRange);
        run(R"({"copyMaps": "1"})", StyleWrite_BadObjects);
        run(R"({"moveMaps": "none", "to": "top"})", StyleWrite_BadObjects);
        run(R"({"deleteMaps": "13"})", StyleWrite_BadObjects);
        run(R"({"deleteMaps": "1", "of": "LineMaps"})", StyleWrite_BadObjects);
        run(R"({"enableZones": "13"})", StyleWrite_BadObjects);
        run(R"({"enableVariables": "all"})", StyleWrite_Unchanged);
        run(R"({"time": 0})", StyleWrite_Unchanged);
        row("time without end", SetSolutionTime {HUGE_VAL}, StyleWrite_OutOfRange);
        run(R"({"paletteColor": 64, "rgb": [1, 2, 3]})", StyleWrite_OutOfRange);
        run(R"({"frame": 2})", StyleWrite_BadObjects);
        run(R"({"open": "a.cgns"})", StyleWrite_NoDocument); // nobody has loaded it
    }

    void answers()
    {
        const auto [operation, result] = currentRow<Operation, StyleWriteResult_e>();
        const QStringList before = documentState();
        EventLog log;
        QList<int> told;
        const boost::signals2::scoped_connection listener = document().executed().connect(
            [&](const Operation&, const Outcome& outcome) { told << outcome.result; });
        QCOMPARE(document().execute(operation).result, result);
        QCOMPARE(told, QList<int> {result});
        const bool isDone = result == StyleWrite_Ok;
        QCOMPARE(log.take().isEmpty(), !isDone);
        QCOMPARE(document().undo().stepCount(), isDone ? 1 : 0);
        document().undo().undo();
        QCOMPARE(documentState(), before);
    }

    void answersWithoutData()
    {
        QCOMPARE(execute(R"({"data": "none"})"), StyleWrite_Ok);
        for (const char* text :
             {R"({"data": "none"})", R"({"set": ["FieldMap", "Group"], "maps": "1", "value": 2})",
              R"({"rename": "x", "zone": 1})", R"({"createMaps": 1})", R"({"deleteMaps": "1"})",
              R"({"enableZones": "1"})", R"({"enableVariables": "1"})", R"({"time": 1})"})
            QCOMPARE(execute(text), StyleWrite_NoDocument);
        const char* const layer = R"({"layer": "ShowShade", "on": true})";
        QCOMPARE(execute(layer), StyleWrite_Ok);
        QCOMPARE(execute(R"({"frame": "delete"})"), StyleWrite_Ok);
        for (const char* text : {layer, R"({"pick": []})", R"({"frame": "delete"})",
                                 R"({"copyMaps": "1"})", R"({"deleteMaps": "1"})"})
            QCOMPARE(execute(text), StyleWrite_NoDocument);
        QCOMPARE(execute(R"({"set": ["BasicSize", "SymbolSizes", "Tiny"], "value": 0.25})"),
                 StyleWrite_Ok);
    }

    void texts_data()
    {
        const Rows<QString> row;
        for (const char* text :
             {R"({"set": ["FieldMap", "Mesh", "LineThickness"], "maps": "1-3,7", "value": 0.1})",
              R"({"set": ["ContourGroups", "Var", 3], "value": 4})",
              R"({"set": ["GlobalScatter", "Var"], "value": 3, "undoable": false})",
              R"({"set": ["FieldMap", "Mesh", "Show"], "maps": "none", "value": true})",
              R"({"set": ["FieldLayers", "ShowShade"], "value": 1})",
              R"({"layer": "ShowBarCharts", "on": false})",
              R"({"plotType": 5})",
              R"({"active": "FieldMaps", "maps": "2-4", "op": "add"})",
              R"({"active": "LineMaps", "maps": "none", "op": "assign"})",
              R"({"active": "FieldZones", "maps": "1", "op": "remove"})",
              "{\"rename\": \"Größe \\\"x\\\"\", \"zone\": 3}",
              R"({"rename": "", "variable": 2})",
              R"({"rename": "&DV&", "lineMap": 4})",
              R"({"rename": "&DV&", "lineMap": "1-2"})",
              R"({"createMaps": 3})",
              R"({"copyMaps": "1,3"})",
              R"({"moveMaps": "2", "to": "bottom"})",
              R"({"deleteMaps": "2,4"})",
              R"({"deleteMaps": "2", "of": "FieldMaps"})",
              R"({"enableZones": "1-5"})",
              R"({"enableVariables": "none"})",
              R"({"time": 0.125})",
              R"({"pick": [{"zone": 3}, {"lineMap": 2}, {"other": 4}]})",
              R"({"pick": []})",
              R"({"paletteColor": 5, "rgb": [1, 2, 255]})",
              R"({"frame": "new"})",
              R"({"frame": 2})",
              R"({"frame": "delete"})",
              R"({"open": ["/a.csv", "/b.csv"], "table": "separator=tab"})",
              R"({"open": ["/a_1.cgns"], "boundaryPatches": true, "numberedTimes": true})",
              R"({"demo": "kinds"})",
              R"({"demo": "polar", "maps": 12})",
              R"({"demo": "field3d", "zones": 12})",
              R"({"data": "none"})"})
            row(text, text);
    }

    void texts()
    {
        const auto [text] = currentRow<QString>();
        const auto object = nlohmann::json::parse(text.toStdString());
        const Operation operation = operationFromJson(object, {});
        QCOMPARE(toJson(operation).dump(), object.dump());
        QVERIFY(operationFromJson(toJson(operation), {}) == operation);
        QVERIFY(!(operation == operationOf(R"({"createMaps": 77})")));
    }

    void badTexts_data()
    {
        const Rows<QString, QString> add;
        const auto row = [&add](const char* text, const char* reason) { add(text, text, reason); };
        row(R"([])", "no operation");
        row(R"({"sett": ["PlotType"], "value": 1})", "no operation");
        row(R"({"set": ["PlotType"], "value": 1, "map": "1"})", "\"set\" has no key \"map\"");
        row(R"({"set": "PlotType", "value": 1})", "\"set\" must be a list");
        row(R"({"set": [], "value": 1})", "\"set\"");
        row(R"({"set": ["ContourGroups", 1, "Var", 2], "value": 1})", "\"set\"");
        row(R"({"set": ["ContourGroups", "Var", 1.5], "value": 1})", "\"set\"");
        row(R"({"set": ["PlotType"]})", "\"value\" is missing");
        row(R"({"set": ["PlotType"], "value": null})", "\"value\"");
        row(R"({"set": ["PlotType"], "value": [1]})", "\"value\"");
        row(R"({"set": ["FieldMap", "Group"], "maps": "3-1", "value": 1})", "\"maps\"");
        row(R"({"set": ["FieldMap", "Group"], "maps": 3, "value": 1})", "\"maps\" must be a text");
        row(R"({"plotType": 1.5})", "\"plotType\" must be a whole number");
        row(R"({"layer": "ShowNothing", "on": true})", "no layer \"ShowNothing\"");
        row(R"({"layer": "ShowMesh", "on": 1})", "\"on\" must be true or false");
        row(R"({"active": "Maps", "maps": "1", "op": "add"})", "\"active\" must be one of");
        row(R"({"active": "FieldMaps", "maps": "1", "op": "sub"})", "\"op\" must be one of");
        row(R"({"rename": "x"})", "\"rename\" takes one of");
        row(R"({"rename": "x", "zone": 1, "variable": 1})", "\"rename\" takes one of");
        row(R"({"rename": "x", "zone": 1e30})", "\"zone\"");
        row(R"({"rename": "x", "lineMap": 0})", "\"lineMap\"");
        row(R"({"moveMaps": "1", "to": "left"})", "\"to\" must be one of");
        row(R"({"deleteMaps": "1", "of": "Maps"})", "\"of\" must be one of");
        row(R"({"pick": [{"zone": 1, "lineMap": 1}]})", "\"pick\"");
        row(R"({"pick": [{"axis": 1}]})", "\"axis\"");
        row(R"({"time": "now"})", "\"time\" must be a number");
        row(R"({"paletteColor": 1, "rgb": [1, 2, 256]})", "\"rgb\"");
        row(R"({"paletteColor": 1, "rgb": [1, 2]})", "\"rgb\"");
        row(R"({"frame": "old"})", "\"frame\" must be a number");
        row(R"({"open": 1})", "\"open\"");
        row(R"({"demo": "xy", "zones": 3})", "\"maps\"");
        row(R"({"demo": "xy", "maps": 0})", "\"maps\" must be 1 or more");
        row(R"({"data": "some"})", "\"data\" must be");
    }

    void badTexts()
    {
        const auto [text, reason] = currentRow<QString, QString>();
        try {
            operationFromJson(nlohmann::json::parse(text.toStdString()), {});
            QFAIL("taken");
        } catch (const TextError& error) {
            QVERIFY2(error.message().contains(reason), qPrintable(error.message()));
        }
    }

    void undoTexts_data()
    {
        const Rows<Operation, QString> add;
        const auto row = [&add](const Operation& operation, const char* text) {
            add(text, operation, text);
        };
        row(styled("FieldMap Mesh MeshType", "2-4,9", "0"),
            "Mesh type = Wire frame (4 field maps)");
        row(styled("FieldMap Group", "2", "1234567"), "Group number = 1234567 (1 field map)");
        row(styled("FieldMap Mesh LineThickness", "2", "0.3"),
            "Mesh line thickness = 0.3% (1 field map)");
        row(operationOf(R"({"active": "FieldMaps", "maps": "2-4", "op": "remove"})"),
            "Deactivate 3 field maps");
        row(operationOf(R"({"active": "FieldMaps", "maps": "2", "op": "assign"})"),
            "Show only Zone 2");
        row(operationOf(R"({"rename": "x", "zone": 2})"), "Rename \"Zone 2\" to \"x\"");
        row(operationOf(R"({"createMaps": 2})"), "Create 2 line maps");
        row(operationOf(R"({"deleteMaps": "2"})"), "Delete 1 field map");
    }

    void undoTexts()
    {
        const auto [operation, text] = currentRow<Operation, QString>();
        document().execute(operation);
        QCOMPARE(document().undo().undoText(), text);
    }

    void comesAndGoesWithoutALoss_data()
    {
        const Rows<unsigned> row;
        for (const unsigned seed : {1U, 2U, 3U, 4U})
            row(std::to_string(seed).c_str(), seed);
    }

    void comesAndGoesWithoutALoss()
    {
        const auto [seed] = currentRow<unsigned>();
        openOnly("transient");
        document().execute(AddFrame {});
        std::string error;
        QVERIFY(samples::openDemo("xy", 5, error));
        RandomOperations operations(seed);
        UndoHistory& undo = document().undo();
        const QStringList first = documentState();
        QStringList state = first;
        for (int i = 0; i < 150; ++i) {
            if (operations.below(10) == 0)
                undo.begin(UndoKind_StyleGroup);
            const Operation operation = operations.next();
            QVERIFY(operationFromJson(toJson(operation), {}) == operation);
            EventLog log;
            const bool isChanged = document().execute(operation).result == StyleWrite_Ok;
            QVERIFY2(log.take().isEmpty() != isChanged, toJson(operation).dump().c_str());
            const QStringList after = documentState();
            if (!isChanged)
                QCOMPARE(after, state);
            state = after;
            const auto closing = static_cast<UndoHistory::Closing>(operations.below(2));
            if (operations.below(4) == 0)
                undo.end(closing);
        }
        while (undo.isBracketOpen())
            undo.end(UndoHistory::Closing::OneStep);
        const int steps = undo.stepCount();
        QVERIFY(steps > 20);
        while (undo.undo()) { }
        QCOMPARE(documentState(), first);
        while (undo.redo()) { }
        QCOMPARE(documentState(), state);
        QCOMPARE(undo.stepCount(), steps);
    }
};

QTEST_GUILESS_MAIN(tst_Operations)
#include "tst_operations.moc"
