// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/rows.h"
#include "tests/views/dialog_fixture.h"

#include <QHeaderView>
#include <QHoverEvent>
#include <QSet>
#include <QtTest>

using namespace corvala::tests;

/// What the tables paint, against pictures of the same cells under another condition.
class tst_DialogPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_fixture.reset(); }

    void tables_data()
    {
        const Rows<QString, QString> row;
        row("Mesh", "field2d", "FieldLayers.ShowMesh");
        row("Contour", "field3d", "FieldLayers.ShowContour");
        row("Shade", "field3d", "FieldLayers.ShowShade");
        row("Definitions", "xy", "LinePlotLayers.ShowLines");
    }

    /// Titles on their brushes, swatches in their colours, and everything paler in a hidden map.
    void tables()
    {
        const auto [demo, layer] = currentRow<QString, QString>();
        open(qPrintable(demo), QTest::currentDataTag());
        change(layer, "", 1);
        QVector<QImage> before;
        QVector<bool> wasInUse;
        for (int column = 0; column < m_fixture->model().columnCount(); ++column) {
            const QImage title = titlePicture(column);
            QCOMPARE(title.pixelColor(2, 2), brushOf(column));
            QVERIFY2(colorsOf(title).contains(qRgb(255, 255, 255)), "the title");
            before << cellPicture(column);
            wasInUse << isInUse(column);
            if (const QColor color = colorOf(column); color.isValid())
                QCOMPARE(colorsOf(before.last()).contains(color.rgb()), wasInUse.last());
        }
        QVERIFY(m_fixture->model().setData(m_fixture->model().index(0, demo == "xy" ? 2 : 3),
                                           Qt::Unchecked, Qt::CheckStateRole));
        runUntilIdle();
        for (int column = 0; column < before.size(); ++column)
            QCOMPARE(cellPicture(column) != before[column], isInUse(column) != wasInUse[column]);
    }

    void checkBoxesAreInTheMiddle()
    {
        open("field2d", "Mesh");
        const QImage cell = cellPicture(4);
        QRect box;
        for (int x = 0; x < cell.width() - 1; ++x)
            if (cell.pixel(x, cell.height() / 2) != cell.pixel(0, 0))
                box |= QRect(x, 0, 1, 1);
        QVERIFY(qAbs(box.center().x() - cell.width() / 2) <= 1);
    }

    void arrowsAreInTheCurrentCellAndUnderTheMouse()
    {
        open("field2d", "Mesh");
        m_fixture->table().setFocus();
        constexpr int kMeshType = 5;
        const QModelIndex cell = m_fixture->model().index(0, kMeshType);
        const auto select = [this](const QModelIndex& index) {
            m_fixture->table().selectionModel()->setCurrentIndex(index,
                                                                 QItemSelectionModel::NoUpdate);
        };
        const auto hover = [this](const QPoint& to) {
            QHoverEvent event(QEvent::HoverMove, to, {});
            QCoreApplication::sendEvent(m_fixture->table().viewport(), &event);
        };
        const auto arrow = [&] { // where it would be; the frame of the current cell is beside it
            const QImage picture = cellPicture(kMeshType);
            return picture.copy(picture.width() - 12, picture.height() / 2 - 3, 8, 6);
        };
        select(cell.siblingAtColumn(0));
        const QImage none = arrow();
        select(cell);
        QVERIFY(arrow() != none);
        select(cell.siblingAtColumn(0));
        QCOMPARE(arrow(), none);
        hover(m_fixture->table().visualRect(cell).center());
        QVERIFY(arrow() != none);
    }

    void colorsOfGroupsAreNamed()
    {
        open("field2d", "Mesh");
        change("FieldMap.Mesh.Color", "1", 103);
        const QImage named = cellPicture(6);
        const QColor color = colorOf(6);
        const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
        corvala::host::Document::instance().execute(corvala::host::SetPaletteColor {
            9, {part(color.red()), part(color.green()), part(color.blue())}});
        change("FieldMap.Mesh.Color", "1", 9);
        QCOMPARE(colorOf(6), color);
        QVERIFY(cellPicture(6) != named);
    }

private:
    void open(const char* demo, const char* tab)
    {
        m_fixture = std::make_unique<DialogFixture>(demo);
        m_fixture->dialog().resize(1800, 500); // all columns are in view
        m_fixture->clickTab(tab);
        runUntilIdle();
    }
    QHeaderView& header() const { return *m_fixture->table().horizontalHeader(); }
    QImage titlePicture(int column) const
    {
        const QRect title(header().sectionViewportPosition(column), 0, header().sectionSize(column),
                          header().height());
        return header().viewport()->grab(title).toImage();
    }
    QColor brushOf(int column) const
    {
        const QVariant brush =
            header().model()->headerData(column, Qt::Horizontal, Qt::BackgroundRole);
        return brush.value<QBrush>().color();
    }
    /// Of the first map.
    QImage cellPicture(int column) const
    {
        const QModelIndex cell = m_fixture->model().index(0, column);
        return m_fixture->table().viewport()->grab(m_fixture->table().visualRect(cell)).toImage();
    }
    bool isInUse(int column) const
    {
        return m_fixture->model().isRelevant(m_fixture->model().index(0, column));
    }
    QColor colorOf(int column) const
    {
        const QVariant shown = m_fixture->model().index(0, column).data();
        return shown.userType() == QMetaType::QColor ? shown.value<QColor>() : QColor();
    }
    static QSet<QRgb> colorsOf(const QImage& picture)
    {
        QSet<QRgb> colors;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                colors << (picture.pixel(x, y) | 0xff000000U);
        return colors;
    }

    std::unique_ptr<DialogFixture> m_fixture;
};

QTEST_MAIN(tst_DialogPictures)
#include "tst_dialog_pictures.moc"
