// SPDX-License-Identifier: BSD-3-Clause
// What the dialog costs with 100,000 maps, against 100 maps and against stock Qt classes, in one
// run. Run it offscreen: QT_QPA_PLATFORM=offscreen bench_dialog

#include "dialog_fixture.h"
#include "ratio_report.h"

#include "host/document/document.h"
#include "sdk/base/cvl.h"
#include "zonestyle/controls/selected_rows.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>

#include <cstdio>

using namespace corvala::bench;
using benchmark::State;

namespace {

constexpr int kMeshType = 5; // column of the whole table
constexpr int kContourTab = 1;

Rows rowsArgument(const State& state)
{
    return static_cast<Rows>(state.range(1));
}

/// A plain table of the same size with the stock view and models.
struct StockTable
{
    explicit StockTable(int rows)
        : model(rows, 10)
    {
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.setModel(&model);
        view.resize(800, 600);
        view.show();
        DialogFixture::runUntilIdle();
    }
    void select(Rows rows)
    {
        view.selectionModel()->clearSelection();
        view.selectionModel()->select(rowsOf(model, rows), QItemSelectionModel::Select);
        DialogFixture::runUntilIdle();
    }

    QStandardItemModel model;
    QTableView view;
};

void open(State& state)
{
    DialogFixture fixture(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        delete corvala::sdk::ui::dialogs::ZoneStyleDialog::m_dialogInstance;
        state.ResumeTiming();
        fixture.dialog().launch();
        DialogFixture::runUntilIdle();
    }
}

void refresh(State& state)
{
    DialogFixture fixture(state.range(0));
    for (auto _ : state)
        fixture.changeOneValue();
}

void tabSwitch(State& state)
{
    DialogFixture fixture(state.range(0));
    fixture.select(rowsArgument(state));
    for (auto _ : state) {
        fixture.tabs().setCurrentIndex(kContourTab - fixture.tabs().currentIndex());
        DialogFixture::runUntilIdle();
    }
}

void menuAction(State& state)
{
    DialogFixture fixture(state.range(0));
    fixture.select(rowsArgument(state));
    for (auto _ : state) {
        fixture.triggerMenu(kMeshType, 2);
        state.PauseTiming();
        fixture.undo();
        state.ResumeTiming();
    }
}

void undoOfMenuAction(State& state)
{
    DialogFixture fixture(state.range(0));
    fixture.select(rowsArgument(state));
    for (auto _ : state) {
        state.PauseTiming();
        fixture.triggerMenu(kMeshType, 2);
        state.ResumeTiming();
        fixture.undo();
    }
}

void repaint(State& state)
{
    DialogFixture fixture(state.range(0));
    fixture.select(rowsArgument(state));
    for (auto _ : state)
        fixture.table().viewport()->repaint();
}

void extractRows(State& state)
{
    DialogFixture fixture(state.range(0));
    fixture.select(Rows::Alternate);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            corvala::sdk::ui::dialogs::uicontrols::selectedRows(*fixture.table().selectionModel()));
}

void extractRowsWithQt(State& state)
{
    DialogFixture fixture(state.range(0));
    fixture.select(Rows::Alternate);
    for (auto _ : state)
        benchmark::DoNotOptimize(fixture.table().selectionModel()->selectedRows());
}

/// Of the table that a tab switch leaves and of the one that it shows.
void copyBothSelections(State& state)
{
    DialogFixture fixture(state.range(0));
    fixture.select(Rows::Alternate);
    for (auto _ : state)
        for (int copy = 0; copy < 2; ++copy)
            benchmark::DoNotOptimize(fixture.table().selectionModel()->selection());
}

void stockRepaint(State& state)
{
    StockTable table(static_cast<int>(state.range(0)));
    table.select(rowsArgument(state));
    for (auto _ : state)
        table.view.viewport()->repaint();
}

/// What a plain view does for an edit of every selected row: one item at a time.
void stockEdit(State& state)
{
    StockTable table(static_cast<int>(state.range(0)));
    table.select(Rows::All);
    int value = 0;
    for (auto _ : state) {
        ++value;
        for (int row = 0; row < table.model.rowCount(); ++row)
            table.model.setData(table.model.index(row, 1), value);
        DialogFixture::runUntilIdle();
    }
}

void stockTabSwitch(State& state)
{
    StockTable table(static_cast<int>(state.range(0)));
    QStandardItemModel other(table.model.rowCount(), 10);
    table.select(rowsArgument(state));
    bool isOther = false;
    for (auto _ : state) {
        const QItemSelection rows = rowsOf(*table.view.model(), rowsArgument(state));
        isOther = !isOther;
        table.view.setModel(isOther ? &other : &table.model);
        table.view.selectionModel()->select(rowsOf(*table.view.model(), rowsArgument(state)),
                                            QItemSelectionModel::ClearAndSelect
                                                | QItemSelectionModel::Rows);
        DialogFixture::runUntilIdle();
    }
}

constexpr int kOne = static_cast<int>(Rows::One);
constexpr int kAll = static_cast<int>(Rows::All);
constexpr int kAlternate = static_cast<int>(Rows::Alternate);

BENCHMARK(open)->Arg(100)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(refresh)->Arg(100)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(tabSwitch)
    ->Args({100, kOne})
    ->Args({100000, kOne})
    ->Args({100, kAll})
    ->Args({100000, kAll})
    ->Args({100, kAlternate})
    ->Args({100000, kAlternate})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(menuAction)
    ->Args({100, kAll})
    ->Args({100000, kAll})
    ->Args({100, kAlternate})
    ->Args({100000, kAlternate})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(undoOfMenuAction)
    ->Args({100, kAll})
    ->Args({100000, kAll})
    ->Args({100, kAlternate})
    ->Args({100000, kAlternate})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(repaint)
    ->Args({100, kOne})
    ->Args({100000, kOne})
    ->Args({100000, kAlternate})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(extractRows)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(extractRowsWithQt)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(copyBothSelections)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(stockRepaint)
    ->Args({100000, kOne})
    ->Args({100000, kAlternate})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(stockEdit)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(stockTabSwitch)
    ->Args({100000, kOne})
    ->Args({10000, kAlternate})
    ->Iterations(2)
    ->Unit(benchmark::kMillisecond);

/// Host reads caused by a style change while the dialog is closed.
CvlInt64 readsWhileClosed()
{
    DialogFixture fixture(1000);
    fixture.dialog().close();
    DialogFixture::runUntilIdle();
    const CvlInt64 before = CvlAppGetReadCount();
    fixture.changeOneValue();
    return CvlAppGetReadCount() - before;
}

std::vector<Ratio> ratios()
{
    return {
        {"opening, 100,000 maps against 100", "open/100000", "open/100", 1.5},
        {"refresh after a style event, 100,000 against 100", "refresh/100000", "refresh/100", 1.3},
        {"tab switch, one row selected, 100,000 against 100", "tabSwitch/100000/0",
         "tabSwitch/100/0", 1.3},
        {"tab switch, all rows selected, 100,000 against 100", "tabSwitch/100000/1",
         "tabSwitch/100/1", 0},
        {"tab switch, 50,000 alternate rows against one row", "tabSwitch/100000/2",
         "tabSwitch/100000/0", 0},
        {"tab switch, 50,000 alternate rows, against Qt's copies of both selections",
         "tabSwitch/100000/2", "copyBothSelections/100000", 2},
        {"tab switch, one row, against a stock view", "tabSwitch/100000/0",
         "stockTabSwitch/100000/0", 0},
        {"tab switch, 50,000 alternate rows, against a stock view with 5,000", "tabSwitch/100000/2",
         "stockTabSwitch/10000/2", 0},
        {"menu action on all rows, 100,000 against 100", "menuAction/100000/1", "menuAction/100/1",
         0},
        {"menu action on all rows against an edit of every item of a stock model",
         "menuAction/100000/1", "stockEdit/100000", 0},
        {"menu action on 50,000 alternate rows against 50", "menuAction/100000/2",
         "menuAction/100/2", 4},
        {"its undo, all rows, 100,000 against 100", "undoOfMenuAction/100000/1",
         "undoOfMenuAction/100/1", 0},
        {"its undo, 50,000 alternate rows against 50", "undoOfMenuAction/100000/2",
         "undoOfMenuAction/100/2", 4},
        {"selected rows, 5,000 alternate, against QItemSelectionModel::selectedRows",
         "extractRows/10000", "extractRowsWithQt/10000", 0.01},
        {"repaint, one row selected, 100,000 against 100", "repaint/100000/0", "repaint/100/0",
         1.3},
        {"repaint, 50,000 alternate rows against one row", "repaint/100000/2", "repaint/100000/0",
         2.0},
        {"repaint, 50,000 alternate rows, against a stock view", "repaint/100000/2",
         "stockRepaint/100000/2", 0},
    };
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) {}); // offscreen
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RecordingReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);
    const bool ratiosHold = reportRatios(times, ratios());
    const CvlInt64 reads = readsWhileClosed();
    std::printf("\nHost reads caused by a style change while the dialog is closed: %lld\n",
                static_cast<long long>(reads));
    return ratiosHold && reads == 0 ? 0 : 1;
}
