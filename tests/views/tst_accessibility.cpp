// SPDX-License-Identifier: BSD-3-Clause
#include "tests/views/dialog_fixture.h"

#include <QAccessible>
#include <QtTest>

using namespace corvala::tests;

class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellsTellWhatTheyShow_data();
    void cellsTellWhatTheyShow();
    void whatTakesKeysHasAName_data() { cellsTellWhatTheyShow_data(); }
    void whatTakesKeysHasAName();
};

void tst_Accessibility::cellsTellWhatTheyShow_data()
{
    QTest::addColumn<QString>("demo");
    QTest::newRow("zones") << QStringLiteral("kinds");
    QTest::newRow("line maps") << QStringLiteral("xy");
}

static void checkCell(QAccessibleInterface& cell, const QModelIndex& index, const QString& header)
{
    const QVariant check = index.data(Qt::CheckStateRole);
    const QString shown = index.data().toString();
    const QString name = cell.text(QAccessible::Name);
    if (check.isValid() && shown.isEmpty())
        QCOMPARE(name, header);
    else if (!shown.isEmpty())
        QCOMPARE(name, shown);
    QCOMPARE(cell.state().checked != 0, check.toInt() == Qt::Checked);
    const auto* const model = qobject_cast<const ModelAbstract*>(index.model());
    QCOMPARE(cell.text(QAccessible::Description).isEmpty(), model->isRelevant(index));
}

void tst_Accessibility::cellsTellWhatTheyShow()
{
    QFETCH(QString, demo);
    DialogFixture dialog(qPrintable(demo));
    int inapplicable = 0;
    for (int tab = 0; tab < dialog.tabWidget().count(); ++tab) {
        dialog.tabWidget().setCurrentIndex(tab);
        runUntilIdle();
        // Without a screen reader, which the test does not have, nobody tells it of other models.
        QAccessible::deleteAccessibleInterface(
            QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&dialog.table())));
        QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(&dialog.table());
        QCOMPARE(table->tableInterface()->columnCount(), dialog.model().columnCount());
        for (int row = 0; row < dialog.model().rowCount(); ++row) {
            for (int column = 0; column < dialog.model().columnCount(); ++column) {
                const QString header = table->tableInterface()->columnDescription(column);
                const QModelIndex index = dialog.model().index(row, column);
                checkCell(*table->tableInterface()->cellAt(row, column), index,
                          header.simplified());
                inapplicable += dialog.model().isRelevant(index) ? 0 : 1;
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }
    QVERIFY(inapplicable > 0);
}

void tst_Accessibility::whatTakesKeysHasAName()
{
    QFETCH(QString, demo);
    DialogFixture dialog(qPrintable(demo));
    for (QWidget* const widget : dialog.dialog().findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->focusProxy() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
        QVERIFY2(!name.isEmpty(), widget->metaObject()->className());
    }
}

QTEST_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"
