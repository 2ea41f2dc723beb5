// SPDX-License-Identifier: BSD-3-Clause
#include "event_log.h"
#include "samples/demo_data.h"
#include "sdk/base/cvl.h"
#include "sdk/common/common.h"

#include <QtTest>

using namespace corvala;
using namespace corvala::host;

class tst_LineMaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fillsInNames_data();
    void fillsInNames();
    void operations_data();
    void operations();
    void deletionIsOneStepInItsBracket();
    void refusesBadSets();

private:
    static QString name(CvlInt64 map);
    static QString rawNames();
    static NumberSet set(const char* text)
    {
        NumberSet members;
        fromText(text, 1000, members);
        return members;
    }
};

void tst_LineMaps::init()
{
    Document::instance().clear();
    std::string error;
    QVERIFY(samples::openDemo("xy", 6, error));
}

QString tst_LineMaps::name(CvlInt64 map)
{
    char* text = CvlUtilLineMapGetNameForFrame(CvlUtilFrameGetUniqueID(), map);
    const QString name = QString::fromUtf8(text);
    CvlUtilStringDealloc(&text);
    return name;
}

QString tst_LineMaps::rawNames()
{
    const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
    QString names;
    for (CvlInt64 map = 1; map <= CvlUtilLineMapGetCountForFrame(frame); ++map) {
        auto* text =
            reinterpret_cast<char*>(CvlUtilLineMapStyleGetArbValueForFrame(frame, map, "Name"));
        names += QString::fromUtf8(text)
            + (CvlUtilLineMapIsActiveForFrame(frame, map) ? QString() : QStringLiteral("-"));
        CvlUtilStringDealloc(&text);
    }
    return names;
}

void tst_LineMaps::fillsInNames_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown"); // of map 2: Moment over Time
    QTest::addColumn<int>("plotType");
    QTest::newRow("dependent") << "&DV&"
                               << "Moment" << 3;
    QTest::newRow("numbers") << "&D#&/&I#&/&Z#&/&M#&/&X#&/&Y#&"
                             << "3/1/1/2/1/1" << 3;
    QTest::newRow("independent and zone") << "&IV& in &ZN&"
                                          << "Time in Zone 1" << 3;
    QTest::newRow("polar") << "&DV& of &IV&"
                           << "Gain of Angle" << 5;
    QTest::newRow("unknown token") << "&QQ& &dv& &DV"
                                   << "&QQ& &dv& &DV" << 3;
    QTest::newRow("ampersand before a token") << "&&DV&&"
                                              << "&Moment&" << 3;
    QTest::newRow("empty") << ""
                           << "" << 3;
    QTest::newRow("unicode") << QString::fromUtf8("ζ &M#&") << QString::fromUtf8("ζ 2") << 3;
}

void tst_LineMaps::fillsInNames()
{
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    QFETCH(int, plotType);
    writeStyle({"PlotType"}, "", double(plotType));
    QVERIFY(Document::instance().setLineMapName(set("2"), stored.toStdString()));
    QCOMPARE(name(2), shown);
}

void tst_LineMaps::operations_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("maps");
    QTest::addColumn<QString>("names"); // started as a b- c d e f
    QTest::newRow("top") << "top"
                         << "3,5"
                         << "ceab-df";
    QTest::newRow("bottom") << "bottom"
                            << "1,2"
                            << "cdefab-";
    QTest::newRow("top, there already") << "top"
                                        << "1,2"
                                        << "ab-cdef";
    QTest::newRow("delete") << "delete"
                            << "1,4-5"
                            << "b-cf";
    QTest::newRow("delete all") << "delete"
                                << "1-6"
                                << "";
    QTest::newRow("copy") << "copy"
                          << "2,6"
                          << "ab-cdefb-f";
}

void tst_LineMaps::operations()
{
    QFETCH(QString, operation);
    QFETCH(QString, maps);
    QFETCH(QString, names);
    Document& document = Document::instance();
    for (std::uint32_t map = 1; map <= 6; ++map)
        document.setLineMapName(set(std::to_string(map).c_str()),
                                std::string(1, char('a' + map - 1)));
    writeStyle({"ActiveLineMaps"}, "", set("2"), 2);
    const int steps = document.undo().stepCount();
    const QString before = rawNames();
    QCOMPARE(before, QStringLiteral("ab-cdef"));

    toolbox::Set members;
    for (const std::uint32_t map : set(maps.toUtf8()))
        members.add(map);
    EventLog log;
    const bool ok = operation == "copy" ? sdk::copyLineMaps(members)
        : operation == "delete"         ? CvlUtilLineMapDelete(members.handle()) != 0
        : operation == "top"            ? CvlUtilLineMapShiftToTop(members.handle()) != 0
                                        : CvlUtilLineMapShiftToBottom(members.handle()) != 0;
    QVERIFY(ok);
    QCOMPARE(rawNames(), names);
    const bool changed = names != before;
    QCOMPARE(log.take().endsWith(QStringLiteral("3")), changed);
    QCOMPARE(document.undo().stepCount(), steps + (changed ? 1 : 0));
    if (changed) {
        document.undo().undo();
        QCOMPARE(rawNames(), before);
        document.undo().redo();
        QCOMPARE(rawNames(), names);
    }
}

void tst_LineMaps::deletionIsOneStepInItsBracket()
{
    Document& document = Document::instance();
    EventLog log;
    document.undo().begin(UndoKind_LineMapsDeleted);
    writeStyle({"ActiveLineMaps"}, "", set("2,3"), 2);
    QVERIFY(document.deleteLineMaps(set("2,3")));
    document.undo().end(UndoHistory::Closing::OneStep);
    QCOMPARE(log.take().section(' ', 0, 0), QStringLiteral("7:ActiveLineMaps"));
    QCOMPARE(document.undo().stepCount(), 1);
    document.undo().undo();
    QCOMPARE(log.take(), QStringLiteral("7:ActiveLineMaps 3 44"));
    QCOMPARE(document.activeFrame()->activeLineMaps().cardinality(), std::uint64_t(6));
}

void tst_LineMaps::refusesBadSets()
{
    Document& document = Document::instance();
    for (const char* bad : {"none", "7", "1-7"}) {
        QVERIFY(!document.deleteLineMaps(set(bad)));
        QVERIFY(!document.copyLineMaps(set(bad)));
        QVERIFY(!document.shiftLineMaps(set(bad), true));
        QVERIFY(!document.setLineMapName(set(bad), "x"));
    }
    QCOMPARE(document.createLineMaps(0), CvlInt64(0));
    QCOMPARE(document.createLineMaps(2), CvlInt64(7));
    QCOMPARE(document.undo().stepCount(), 1);
    QCOMPARE(document.createLineMaps(999'992), CvlInt64(9)); // a million are the most
    QVERIFY(!document.copyLineMaps(set("1")));
    QCOMPARE(document.createLineMaps(1), CvlInt64(0));
}

QTEST_GUILESS_MAIN(tst_LineMaps)
#include "tst_line_maps.moc"
