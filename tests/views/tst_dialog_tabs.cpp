// SPDX-License-Identifier: BSD-3-Clause
#include "tests/views/dialog_fixture.h"

#include "sdk/dialogs_common/tab_widget_launch_help_action.h"
#include "tests/support/rows.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

using namespace corvala::tests;
using corvala::dialogs::common::LaunchHelpAction;

namespace {

constexpr int kZoneName = 1;
constexpr int kMeshType = 5;

using Tabs = std::set<ZoneStyleDialog::MappingStyleTab_e>;

Tabs mappingTabs(const QList<int>& values)
{
    Tabs tabs;
    for (const int value : values)
        tabs.insert(static_cast<ZoneStyleDialog::MappingStyleTab_e>(value));
    return tabs;
}

QString buttonTexts(DialogFixture& fixture)
{
    QStringList texts;
    for (const QAbstractButton* button : fixture.dialog().findChild<QDialogButtonBox*>()->buttons())
        texts << button->text().remove('&');
    texts.sort();
    return texts.join('|');
}

QString titlesInVisualOrder(const QHeaderView& header)
{
    QStringList titles;
    for (int visual = 0; visual < header.count(); ++visual) {
        titles << header.model()
                      ->headerData(header.logicalIndex(visual), Qt::Horizontal)
                      .toString()
                      .replace('\n', ' ');
    }
    return titles.join('|');
}

} // namespace

class tst_DialogTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        ZoneStyleDialog::setAvailableMappingStyleTabs(
            ZoneStyleDialog::defaultAvailableMappingTabs());
        for (const int plotType : {1, 2, 3, 5}) { // the tabs shown last belong to the process
            DialogFixture fixture("field3d");
            change("PlotType", "", plotType);
            fixture.tabWidget().setCurrentIndex(0);
        }
    }

    void showsThePageOfThePlotType_data()
    {
        const Rows<int, QString, QString, QString, QString, QString> row;
        const QString lineButtons = "Close|Copy Map|Create Map...|Delete Map|To Bottom|To Top";
        row("3D", 1, "Zone Style",
            "*Mesh|Contour|Vector|Scatter|Shade|Edge|Points|Surfaces|Volume|Effects", "Close",
            "&Zones", "mesh-edge.html#mesh-edge/mesh/modification");
        row("2D", 2, "Zone Style",
            "*Mesh|Contour|Vector|Scatter|Shade|Edge|Points|Surfaces|Effects", "Close", "&Zones",
            "mesh-edge.html#mesh-edge/mesh/modification");
        row("XY", 3, "Mapping Style", "*Definitions|Lines|Curves|Symbols|Error Bars|Bar Charts",
            lineButtons, "&Select",
            "polar.html#polar/mapping-style-and-creation/mapping-definitions");
        row("polar", 5, "Mapping Style", "*Definitions|Lines|Curves|Symbols", lineButtons,
            "&Select", "polar.html#polar/mapping-style-and-creation/mapping-definitions");
    }

    void showsThePageOfThePlotType()
    {
        const auto [plotType, title, tabs, buttons, apply, help] =
            currentRow<int, QString, QString, QString, QString, QString>();
        DialogFixture fixture("field3d");
        // By way of the others: nothing of them may stay.
        for (const int step : {3, 1, 5, 2, plotType}) {
            change("PlotType", "", step);
        }
        QCOMPARE(fixture.dialog().windowTitle(), title);
        QCOMPARE(fixture.tabs(), tabs);
        QCOMPARE(buttonTexts(fixture), buttons);
        QCOMPARE(fixture.button("mapSelectionByPattern_apply_button").text(), apply);
        QCOMPARE(fixture.button("mapSelectionByPattern_groups_button").isVisible(), plotType <= 2);
        QCOMPARE(qobject_cast<LaunchHelpAction*>(fixture.dialog().helpAction())->reference(), help);
        QCOMPARE(fixture.table().parentWidget(), fixture.tabWidget().currentWidget());
        QVERIFY(fixture.table().isVisible());
        QVERIFY(fixture.patternField().isVisible());
        QCOMPARE(fixture.dialog().focusWidget(), &fixture.table());
    }

    void showsTheAvailableMappingTabs_data()
    {
        const Rows<QList<int>, QString, QString> row;
        row("all", {0, 1, 2, 3, 4, 5, 6},
            "Definitions|Lines|Curves|Symbols|Error Bars|Bar Charts|Indices",
            "Definitions|Lines|Curves|Symbols|Indices");
        row("some", {1, 5, 6}, "Lines|Bar Charts|Indices", "Lines|Indices");
        row("others", {2, 4}, "Curves|Error Bars", "Curves");
        row("none", {}, "", "");
    }

    /// In the order of the form, whichever were there before.
    void showsTheAvailableMappingTabs()
    {
        const auto [available, xy, polar] = currentRow<QList<int>, QString, QString>();
        for (const QList<int>& before : {QList<int> {}, QList<int> {3, 6}}) {
            DialogFixture fixture("xy");
            ZoneStyleDialog::setAvailableMappingStyleTabs(mappingTabs(before));
            ZoneStyleDialog::setAvailableMappingStyleTabs(mappingTabs(available));
            QCOMPARE(fixture.tabs().remove('*'), xy);
            change("PlotType", "", 5);
            QCOMPARE(fixture.tabs().remove('*'), polar);
        }
        DialogFixture madeLater("xy");
        QCOMPARE(madeLater.tabs().remove('*'), xy);
    }

    void ordersTheColumnsOfDefinitions()
    {
        DialogFixture fixture("xy");
        QCOMPARE(
            titlesInVisualOrder(*fixture.table().horizontalHeader()),
            "Map Number|Map Name|Show Map|X-Axis Variable|Y-Axis Variable|Zone|Sort|Which X-Axis|"
            "Which Y-Axis|Show in Legend");
        fixture.clickTab("Lines");
        fixture.clickTab("Definitions");
        change("PlotType", "", 5);
        QCOMPARE(titlesInVisualOrder(*fixture.table().horizontalHeader()),
                 "Map Number|Map Name|Show Map|Theta Variable|Radius Variable|Zone|Sort|"
                 "Show in Legend");
        change("PlotType", "", 3);
        QVERIFY(
            titlesInVisualOrder(*fixture.table().horizontalHeader()).endsWith("Show in Legend"));
    }

    /// For the life of the process, but not when the number of rows changes.
    void remembersColumnWidths()
    {
        {
            DialogFixture fixture("field2d");
            fixture.table().setColumnWidth(kMeshType, 201);
        }
        DialogFixture fixture("field2d");
        QCOMPARE(fixture.table().columnWidth(kMeshType), 201);
        fixture.table().setColumnWidth(kMeshType, 2);
        const int title = fixture.table().columnWidth(kMeshType);
        QVERIFY2(title > 20, "a column is never narrower than its title");
        fixture.table().setColumnWidth(kMeshType, 201);
        change("FieldMap.Mesh.MeshType", "1", 0);
        QCOMPARE(fixture.table().columnWidth(kMeshType), 201);
        QVERIFY(corvala::host::Document::instance()
                    .execute(corvala::host::DeleteMaps {corvala::host::allUpTo(2)})
                    .isDone());
        runUntilIdle();
        QVERIFY(fixture.table().columnWidth(kMeshType) < 201);
    }

    /// Settings of a curve may become any longer; a width that the user gave stays.
    void columnOfSettingsGrows()
    {
        DialogFixture fixture("xy");
        ZoneStyleDialog::setAvailableMappingStyleTabs(mappingTabs({0, 2}));
        fixture.clickTab("Curves");
        const int column = fixture.table().model()->columnCount() - 1;
        const auto widthFor = [&](int curveType) {
            change("LineMap.Curves.CurveType", "2", curveType);
            return fixture.table().columnWidth(column);
        };
        const int narrow = widthFor(0);
        const int wide = widthFor(1);
        QVERIFY(wide > 3 * narrow);
        QCOMPARE(widthFor(0), wide);
        fixture.table().setColumnWidth(column, wide - 30);
        QCOMPARE(widthFor(1), wide - 30);
    }

    /// Where one table serves several plot types it stays as it is; each has its own when it comes
    /// back.
    void keepsColumnWidthsOfPlotTypesApart()
    {
        DialogFixture fixture("field3d");
        const auto width = [&fixture] { return fixture.table().columnWidth(kMeshType); };
        change("PlotType", "", 2);
        fixture.table().setColumnWidth(kMeshType, 120);
        change("PlotType", "", 1);
        QCOMPARE(width(), 120);
        fixture.table().setColumnWidth(kMeshType, 200);
        change("PlotType", "", 2);
        QCOMPARE(width(), 200);
        fixture.clickTab("Contour");
        fixture.clickTab("Mesh");
        QCOMPARE(width(), 120);
        fixture.clickTab("Contour");
        change("PlotType", "", 1);
        fixture.clickTab("Mesh");
        QCOMPARE(width(), 200);
    }

    /// Qt makes headers and selection models at every turn and keeps them.
    void keepsHeadersAndSelectionModelsFew()
    {
        DialogFixture fixture("field2d");
        const auto roundTrip = [&fixture] {
            for (const char* tab : {"Contour", "Shade", "Mesh"})
                fixture.clickTab(tab);
        };
        const auto objects = [&fixture] {
            return fixture.dialog().findChildren<QObject*>().size();
        };
        roundTrip();
        const int before = objects();
        for (int i = 0; i < 5; ++i)
            roundTrip();
        QCOMPARE(objects(), before);
    }

    /// Also where the last row has nothing to show, by which columns are sized.
    void showsEveryColumn()
    {
        DialogFixture fixture("field3d");
        for (int tab = 0; tab < fixture.tabWidget().count(); ++tab) {
            fixture.tabWidget().setCurrentIndex(tab);
            const QHeaderView& header = *fixture.table().horizontalHeader();
            for (int column = 0; column < header.count(); ++column)
                QVERIFY2(header.sectionSize(column) >= header.sectionSizeHint(column),
                         qPrintable(QString("tab %1, column %2").arg(tab).arg(column)));
        }
    }

    /// The data may change while the button is down: the table goes, and the header with it.
    void endsTheDragOfAHeaderThatSeesNoRelease_data()
    {
        QTest::addColumn<bool>("blocked");
        QTest::newRow("another tab") << false;
        QTest::newRow("a question") << true;
    }

    void endsTheDragOfAHeaderThatSeesNoRelease()
    {
        QFETCH(bool, blocked);
        class Timers : public QObject
        {
        public:
            int count = 0;

        private:
            bool eventFilter(QObject*, QEvent* event) override
            {
                count += event->type() == QEvent::Timer ? 1 : 0;
                return false;
            }
        };

        DialogFixture fixture("field2d");
        QHeaderView& header = *fixture.table().horizontalHeader();
        const int border = header.sectionViewportPosition(kZoneName) - 1;
        QTest::mousePress(header.viewport(), Qt::LeftButton, {}, {border, header.height() / 2});
        QMessageBox question(&fixture.dialog());
        if (blocked)
            question.open();
        for (const int tab : {blocked ? 0 : 1, 0})
            fixture.tabWidget().setCurrentIndex(tab);
        header.resizeSection(kZoneName, header.sectionSize(kZoneName) + 30);
        Timers timers;
        fixture.table().installEventFilter(&timers);
        constexpr int kRounds = 50;
        for (int round = 0; round < kRounds; ++round)
            QCoreApplication::processEvents();
        QVERIFY2(timers.count < kRounds / 2, qPrintable(QString::number(timers.count)));
    }
};

QTEST_MAIN(tst_DialogTabs)
#include "tst_dialog_tabs.moc"
