// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/rows.h"
#include "zonestyle/controls/item_sub_model_abstract.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using corvala::sdk::ui::dialogs::uicontrols::ItemSubModelAbstract;
using namespace corvala::tests;

namespace {

/// A link whose cells and headers say which link and local column they are of.
class Link : public ItemSubModelAbstract
{
public:
    Link(const QString& name, int columns, Link* subModel = nullptr)
        : ItemSubModelAbstract(subModel)
        , m_name(name)
        , m_columns(columns)
    {
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : 10;
    }
    void* localInternalPointer(int, int, const QModelIndex&) const override { return nullptr; }
    int localColumnCount(const QModelIndex&) const override { return m_columns; }
    QVariant localHeaderText(int section) const override { return m_name + number(section); }
    QVariant localData(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? m_name + number(index.row()) + "," + number(index.column())
                                       : QVariant();
    }
    bool localSetData(const QModelIndexList& indexes, const QVariant& value, int role) override
    {
        QString text = m_name;
        for (const QModelIndex& index : indexes)
            text += " " + number(index.row()) + "," + number(index.column());
        edits << text + " = " + value.toString() + " for " + number(role);
        return value != QVariant("refused");
    }
    QBrush localHeaderBrush(int section) const override
    {
        return QColor(0, m_name[0].digitValue(), section);
    }

    using ItemSubModelAbstract::beginInsertColumns;
    using ItemSubModelAbstract::beginInsertRows;
    using ItemSubModelAbstract::beginRemoveColumns;
    using ItemSubModelAbstract::beginRemoveRows;
    using ItemSubModelAbstract::beginResetModel;
    using ItemSubModelAbstract::createIndex;
    using ItemSubModelAbstract::endInsertColumns;
    using ItemSubModelAbstract::endInsertRows;
    using ItemSubModelAbstract::endRemoveColumns;
    using ItemSubModelAbstract::endRemoveRows;
    using ItemSubModelAbstract::endResetModel;

    QStringList edits;

private:
    static QString number(int value) { return QString::number(value); }

    QString m_name;
    int m_columns;
};

QString spyText(const QSignalSpy& spy)
{
    QStringList signalTexts;
    for (const QList<QVariant>& arguments : spy) {
        QStringList texts;
        for (const QVariant& argument : arguments) {
            const auto index = argument.toModelIndex();
            if (argument.userType() == QMetaType::Int
                || argument.userType() == qMetaTypeId<Qt::Orientation>())
                texts << QString::number(argument.toInt());
            else if (index.isValid())
                texts << QString("%1,%2").arg(index.row()).arg(index.column());
        }
        signalTexts << texts.join(" ");
    }
    return signalTexts.join("; ");
}

using Change = std::function<void(Link&)>;

} // namespace

class tst_TableChain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_third = new Link("3.", 2);
        m_second = new Link("2.", 5, m_third);
        m_head = std::make_unique<Link>("1.", 4, m_second);
    }

    void cleanup()
    {
        const QPointer<Link> third(m_third);
        m_head.reset();
        QVERIFY(!third); // a link owns its next
    }

    void routesByColumn()
    {
        QStringList headers;
        QStringList cells;
        QStringList brushes;
        for (int column = 0; column < m_head->columnCount(); ++column) {
            headers << m_head->headerData(column, Qt::Horizontal).toString();
            cells << m_head->index(7, column).data().toString();
            const auto brush =
                m_head->headerData(column, Qt::Horizontal, Qt::BackgroundRole).value<QBrush>();
            brushes << QString("%1.%2").arg(brush.color().green()).arg(brush.color().blue());
        }
        QCOMPARE(headers.join(" "), QString("1.0 1.1 1.2 1.3 2.0 2.1 2.2 2.3 2.4 3.0 3.1"));
        QCOMPARE(brushes, headers);
        QCOMPARE(cells.join(" "),
                 QString("1.7,0 1.7,1 1.7,2 1.7,3 2.7,0 2.7,1 2.7,2 2.7,3 2.7,4 3.7,0 3.7,1"));

        QCOMPARE(m_head->headerData(3, Qt::Vertical, Qt::SizeHintRole), QVariant(QSize(0, 0)));
        QVERIFY(!m_head->headerData(3, Qt::Vertical).isValid());
        QVERIFY(!m_head->headerData(3, Qt::Horizontal, Qt::SizeHintRole).isValid());
    }

    void editsCellsOfOneColumn()
    {
        const QModelIndexList cells {m_head->index(2, 6), m_head->index(5, 6), m_head->index(7, 6)};
        QVERIFY(m_head->setDataForIndexes(cells, "v", Qt::EditRole));
        QVERIFY(m_head->setData(m_head->index(1, 9), "w", Qt::CheckStateRole));
        QVERIFY(!m_head->setDataForIndexes({m_head->index(1, 9)}, "refused", Qt::EditRole));

        QCOMPARE(m_head->edits, QStringList());
        QCOMPARE(m_second->edits, QStringList {"2. 2,2 5,2 7,2 = v for 2"});
        QCOMPARE(m_third->edits.first(), QString("3. 1,0 = w for 10"));
    }

    void refusesCellsThatDoNotExist()
    {
        const QModelIndex gone = m_head->index(10, 6);
        QVERIFY(!gone.data().isValid());
        QVERIFY(!m_head->setData(gone, "v", Qt::EditRole));
        QVERIFY(!m_head->setData({}, "v", Qt::EditRole));
        QVERIFY(!m_head->setDataForIndexes({}, "v", Qt::EditRole));
        QVERIFY(!m_head->setDataForIndexes({m_head->index(1, 6), gone}, "v", Qt::EditRole));
        QCOMPARE(m_second->edits, QStringList());
        QCOMPARE(m_head->flags({}), Qt::ItemFlags());

        for (const int column : {-1, 11}) { // beside the chain
            const QModelIndex beside = m_head->index(1, column);
            QVERIFY(!beside.data().isValid());
            QVERIFY(!m_head->setData(beside, "v", Qt::EditRole));
            QCOMPARE(m_head->flags(beside), Qt::ItemFlags());
            QVERIFY(!m_head->headerData(column, Qt::Horizontal).isValid());
        }
        QCOMPARE(m_third->edits, QStringList());
    }

    void relaysSignals_data()
    {
        const Rows<QByteArray, Change, QString>
            row; // signal, change (of the third link, whose columns are 9 and 10), heard Chains of
                 // table models: who is asked what, and what a view hears.

        row(
            "rows inserted", SIGNAL(rowsInserted(QModelIndex, int, int)),
            [](Link& link) {
                link.beginInsertRows({}, 2, 3);
                link.endInsertRows();
            },
            "2 3");
        row(
            "rows removed", SIGNAL(rowsRemoved(QModelIndex, int, int)),
            [](Link& link) {
                link.beginRemoveRows({}, 2, 3);
                link.endRemoveRows();
            },
            "2 3");
        row(
            "columns inserted", SIGNAL(columnsInserted(QModelIndex, int, int)),
            [](Link& link) {
                link.beginInsertColumns({}, 0, 1);
                link.endInsertColumns();
            },
            "9 10");
        row(
            "columns removed", SIGNAL(columnsRemoved(QModelIndex, int, int)),
            [](Link& link) {
                link.beginRemoveColumns({}, 0, 0);
                link.endRemoveColumns();
            },
            "9 9");
        row(
            "header changed", SIGNAL(headerDataChanged(Qt::Orientation, int, int)),
            [](Link& link) { Q_EMIT link.headerDataChanged(Qt::Horizontal, 0, 1); }, "1 9 10");
        row(
            "row header changed", SIGNAL(headerDataChanged(Qt::Orientation, int, int)),
            [](Link& link) { Q_EMIT link.headerDataChanged(Qt::Vertical, 0, 1); }, "");
        row(
            "cells changed", SIGNAL(dataChanged(QModelIndex, QModelIndex)),
            [](Link& link) { Q_EMIT link.dataChanged(link.index(1, 0), link.index(3, 1)); },
            "1,9 3,10");
    }

    void relaysSignals()
    {
        const auto [signal, change, heard] = currentRow<QByteArray, Change, QString>();
        QSignalSpy spy(m_head.get(), signal.constData());
        QSignalSpy resets(m_head.get(), &QAbstractItemModel::modelReset);

        change(*m_third);
        QCOMPARE(spyText(spy), heard);
        QCOMPARE(resets.size(), 0);

        m_third->beginResetModel();
        m_third->endResetModel();
        QCOMPARE(resets.size(), 1);
    }

    void isAWellBehavedModel()
    {
        QAbstractItemModelTester tester(m_head.get(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        Q_EMIT m_third->dataChanged(m_third->index(1, 0), m_third->index(3, 1));
    }

private:
    std::unique_ptr<Link> m_head; ///< 4 columns "1", then 5 "2", then 2 "3"
    Link* m_second = nullptr;
    Link* m_third = nullptr;
};

QTEST_GUILESS_MAIN(tst_TableChain)
#include "tst_table_chain.moc"
