// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/rows.h"
#include "zonestyle/controls/selected_rows.h"

#include <QItemSelectionModel>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QTest>

using namespace corvala::sdk::ui::dialogs::uicontrols;
using namespace corvala::tests;

namespace {

constexpr int kRows = 200; // several words of a bitmap
constexpr int kColumns = 5;

QString rowsText(const QModelIndexList& indexes)
{
    QStringList rows;
    for (const QModelIndex& index : indexes)
        rows << QString("%1/%2").arg(index.row()).arg(index.column());
    return rows.join(" ");
}

/// A selection of some blocks, whole rows or not, overlapping or not.
QItemSelection randomBlocks(const QAbstractItemModel& model, QRandomGenerator& random)
{
    QItemSelection blocks;
    for (int block = random.bounded(1, 4); block > 0; --block) {
        const bool wholeRows = random.bounded(3) != 0;
        const int top = random.bounded(kRows);
        const int bottom = qMin(kRows - 1, top + random.bounded(30));
        const int left = wholeRows ? 0 : random.bounded(kColumns);
        const int right = wholeRows ? kColumns - 1 : random.bounded(left, kColumns);
        blocks.append(QItemSelectionRange(model.index(top, left), model.index(bottom, right)));
    }
    return blocks;
}

} // namespace

/// The rows of a selection, against what Qt finds in its own way.
class tst_SelectedRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsQt_data()
    {
        const Rows<quint32> row;
        for (quint32 seed = 1; seed <= 20; ++seed)
            row(QString::asprintf("seed %u", seed), seed);
    }

    void equalsQt()
    {
        const auto [seed] = currentRow<quint32>();
        QRandomGenerator random(seed);
        const QStandardItemModel model(kRows, kColumns);
        QItemSelectionModel selection(const_cast<QStandardItemModel*>(&model));

        static constexpr QItemSelectionModel::SelectionFlag kCommands[] {
            QItemSelectionModel::Select, QItemSelectionModel::Toggle, QItemSelectionModel::Deselect,
            QItemSelectionModel::ClearAndSelect};
        for (int step = 0; step < 25; ++step) {
            selection.select(randomBlocks(model, random), kCommands[random.bounded(4)]);
            SelectedRows::of(selection)
                .forget(); // Qt is silent about some changes by overlapping blocks
            const QModelIndexList expected = selection.selectedRows(1);
            QCOMPARE(rowsText(selectedRows(selection, 1)), rowsText(expected));
            QCOMPARE(hasSelectedRows(selection), !expected.isEmpty());

            SelectedRows& rows = SelectedRows::of(selection);
            QCOMPARE(rows.count(), expected.size());
            for (int row = -1; row <= kRows; ++row)
                QCOMPARE(rows.contains(row),
                         row >= 0 && row < kRows && selection.isRowSelected(row, {}));
        }
    }

    void keepsTheOrderOfSelection()
    {
        QStandardItemModel model(kRows, kColumns);
        QItemSelectionModel selection(&model);
        QString expected;
        for (const int row : {7, 2, 150}) {
            selection.select(model.index(row, 0),
                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
            expected += QString(expected.isEmpty() ? "%1/0" : " %1/0").arg(row);
            QCOMPARE(rowsText(selectedRows(selection)),
                     expected); // what was found before is forgotten
        }
    }

    void withoutModel()
    {
        const QItemSelectionModel selection(nullptr);
        QVERIFY(selectedRows(selection).isEmpty() && !hasSelectedRows(selection));
        QVERIFY(!SelectedRows::of(selection).contains(0));
    }
};

QTEST_GUILESS_MAIN(tst_SelectedRows)
#include "tst_selected_rows.moc"
