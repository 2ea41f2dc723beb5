// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/details/detail_field.h"
#include "app/details/details_dock.h"
#include "host/document/document.h"
#include "host/undo/gesture_tracker.h"
#include "samples/demo_data.h"
#include "tests/support/rows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QToolButton>

using namespace corvala;
using namespace corvala::app;
using corvala::tests::currentRow;
using corvala::tests::Rows;
using host::Document;

/// The panel of details, without a plot: what follows from the data is `kProposed`.
class tst_PlotDetails : public QObject
{
    Q_OBJECT

    static constexpr double kProposed = 3.0;

private Q_SLOTS:
    void init()
    {
        Document::instance().clear();
        std::string error;
        QVERIFY2(samples::openDemo("field3d", 1, error), error.c_str());
        m_dock =
            std::make_unique<DetailsDock>([](style::Key, int) { return std::optional(kProposed); });
        m_tracker = std::make_unique<host::GestureTracker>(Document::instance().undo());
        m_dock->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dock.get()));
    }

    void cleanup()
    {
        m_tracker.reset();
        m_dock.reset();
    }

    void everyFieldWrites_data()
    {
        const Rows<QString, int> row; // page, position of the value on it
        for (const DetailPage& page : detailPages()) {
            int number = 0;
            for (const DetailRow& value : page.rows)
                row(qPrintable(QStringLiteral("%1 %2").arg(page.name, value.text)), page.name,
                    number++);
        }
    }

    /// A hand on the field changes the value of the document, in one step; undo shows it as it was.
    void everyFieldWrites()
    {
        const auto [page, number] = currentRow<QString, int>();
        const auto isMeant = [name = page](const DetailPage& some) { return some.name == name; };
        const auto& pages = detailPages();
        if (std::find_if(pages.begin(), pages.end(), isMeant)->isOfLines)
            write(style::plotType, PlotType_LineXY);
        m_dock->openPage(page);
        DetailField* const field =
            m_dock->findChild<QWidget*>(page)->findChildren<DetailField*>().value(number);
        QVERIFY(field);
        m_dock->resize(1, m_dock->height()); // as narrow as it goes
        QVERIFY(field->widget().mapTo(m_dock.get(), field->widget().rect().topRight()).x()
                < m_dock->width());
        letGo(*field);
        const int index = style::entryOf(field->key()).indexCount > 0 ? 1 : -1;
        const auto value = [&] {
            return *Document::instance().read(Document::instance().activeFrameId(), field->key(), 0,
                                              index);
        };
        const host::StyleOutput before = value();
        const int steps = Document::instance().undo().stepCount();
        change(field->widget());
        m_dock->refresh();
        QVERIFY(!(value() == before));
        QCOMPARE(Document::instance().undo().stepCount(), steps + 1);
        const QString shown = textOf(field->widget());
        Document::instance().undo().undo();
        m_dock->refresh();
        QVERIFY(value() == before);
        QVERIFY(textOf(field->widget()) != shown);
    }

    /// What followed from the data begins with what was in force, in one step with the switch.
    void proposalsAreKept()
    {
        m_dock->openPage("contour");
        auto* const box = child<QCheckBox>("AutomaticLevels");
        auto* const lowest = child<QDoubleSpinBox>("LevelMin");
        QVERIFY(!lowest->isEnabled());
        QCOMPARE(lowest->text(), QStringLiteral("3"));
        const int steps = Document::instance().undo().stepCount();
        QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
        m_dock->refresh();
        QVERIFY(lowest->isEnabled());
        QCOMPARE(real(style::contourGroups.levelMin, 1), kProposed);
        QCOMPARE(real(style::contourGroups.levelMax, 1), kProposed);
        QCOMPARE(real(style::contourGroups.levelMin, 2), 0.0);
        QCOMPARE(Document::instance().undo().stepCount(), steps + 1);
        QTest::qWait(0); // a gesture ends in the event loop
        QTest::keyClick(child<QDoubleSpinBox>("BandCount"), Qt::Key_Up);
        QTest::qWait(0);
        m_dock->refresh();
        QTest::mouseClick(child<QPushButton>("reset"), Qt::LeftButton);
        m_dock->refresh();
        QVERIFY(box->isChecked() && !child<QPushButton>("reset")->isEnabled());
        QCOMPARE(Document::instance().undo().stepCount(), steps + 3);
    }

    void indexes()
    {
        m_dock->openPage("contour");
        auto* const index = child<QComboBox>("index");
        QTest::keyClick(index, Qt::Key_Down);
        QTest::keyClick(child<QComboBox>("ColorMap"), Qt::Key_Down);
        const auto colorMap = [](int group) {
            return Document::instance().activeFrame()->values().integer(
                host::Schema::instance().at(style::contourGroups.colorMap), group);
        };
        QCOMPARE(colorMap(2), std::int32_t {ColorMap_Plasma});
        QCOMPARE(colorMap(1), std::int32_t {ColorMap_Viridis});
        QTest::keyClick(index, Qt::Key_Up);
        QCOMPARE(child<QComboBox>("ColorMap")->currentText(), QStringLiteral("Viridis"));
        auto* const bands = child<QDoubleSpinBox>("BandCount");
        bands->selectAll();
        QTest::keyClicks(bands, "999");
        QTest::keyClick(index, Qt::Key_Down);
        QCOMPARE(bands->text(), QStringLiteral("3"));
        QTest::keyClick(index, Qt::Key_Up);
        QCOMPARE(bands->text(), QStringLiteral("999"));
    }

    void heldArrowIsOneStep()
    {
        m_dock->openPage("edge");
        auto* const angle = child<QDoubleSpinBox>("CreaseAngle");
        QStyleOptionSpinBox option;
        option.initFrom(angle);
        option.subControls = QStyle::SC_All;
        const QPoint up =
            angle->style()
                ->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, angle)
                .center();
        const int steps = Document::instance().undo().stepCount();
        QTest::mousePress(angle, Qt::LeftButton, {}, up);
        QTRY_VERIFY(real(style::edgeDetails.creaseAngle, -1) > 32.5);
        QTest::mouseRelease(angle, Qt::LeftButton, {}, up);
        QCOMPARE(Document::instance().undo().stepCount(), steps + 1);
    }

    /// A text that does not fit is not taken and stays with its page, and what is typed outlives
    /// changes elsewhere.
    void typedNumbers_data()
    {
        const Rows<QString, double, QString> row;
        row("a number", "45.5", 45.5, "45.50");
        row("too large", "500", 30.0, "500");
        row("no number", "much", 30.0, "much");
    }

    void typedNumbers()
    {
        const auto [text, angle, shown] = currentRow<QString, double, QString>();
        m_dock->openPage("edge");
        auto* const field = child<QDoubleSpinBox>("CreaseAngle");
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        m_dock->refresh();
        QCOMPARE(field->text(), text);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(real(style::edgeDetails.creaseAngle, -1), angle);
        m_dock->openPage("contour");
        m_dock->openPage("edge");
        QCOMPARE(field->text(), shown);
    }

private:
    template<class Widget>
    Widget* child(const char* name) const
    {
        for (Widget* const widget : m_dock->findChildren<Widget*>(name))
            if (widget->isVisible())
                return widget;
        qFatal("no widget %s", name);
    }

    static double real(style::Key key, int index)
    {
        return Document::instance().activeFrame()->values().real(host::Schema::instance().at(key),
                                                                 index);
    }

    static void write(style::Key key, double value)
    {
        const std::int64_t index = style::entryOf(key).indexCount > 0 ? 1 : -1;
        QVERIFY(Document::instance()
                    .execute(host::SetStyle {host::pathOf(key), value, {}, index})
                    .isDone());
    }

    /// Frees a value from following the data, and makes it matter.
    void letGo(const DetailField& field)
    {
        for (const DetailPage& page : detailPages())
            for (const DetailRow& row : page.rows)
                if (row.key == field.key()) {
                    if (row.follows.isValid())
                        write(row.follows, 0);
                    for (const DetailCondition& condition : row.matters)
                        if (condition.key.isValid())
                            write(condition.key, condition.most);
                }
        m_dock->refresh();
    }

    static void change(QWidget& widget)
    {
        if (auto* const line = qobject_cast<QLineEdit*>(&widget)) {
            QTest::keyClicks(line, "7");
            QTest::keyClick(line, Qt::Key_Return);
        } else if (auto* const button = qobject_cast<QToolButton*>(&widget)) {
            auto* const red = button->menu()->findChild<QAbstractButton*>("color_2");
            button->menu()->popup(button->mapToGlobal({}));
            QTest::mouseClick(red, Qt::LeftButton);
        } else if (qobject_cast<QCheckBox*>(&widget)) {
            QTest::mouseClick(&widget, Qt::LeftButton, {}, {8, widget.height() / 2});
        } else {
            const auto* const number = qobject_cast<QDoubleSpinBox*>(&widget);
            const bool isAtTop =
                number && number->value() >= number->property("maximum").toDouble();
            const bool goesUp = number && !isAtTop;
            const auto* const list = qobject_cast<QComboBox*>(&widget);
            const bool isLast = list && list->currentIndex() + 1 == list->count();
            QTest::keyClick(&widget, goesUp || isLast ? Qt::Key_Up : Qt::Key_Down);
        }
    }

    static QString textOf(const QWidget& widget)
    {
        if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
            return line->text();
        if (const auto* const number = qobject_cast<const QDoubleSpinBox*>(&widget))
            return number->text();
        if (const auto* const list = qobject_cast<const QComboBox*>(&widget))
            return list->currentText();
        if (const auto* const button = qobject_cast<const QToolButton*>(&widget))
            return QString::number(button->icon().pixmap(8).toImage().pixel(4, 4));
        return QString::number(static_cast<const QCheckBox&>(widget).isChecked());
    }

    std::unique_ptr<DetailsDock> m_dock;
    std::unique_ptr<host::GestureTracker> m_tracker;
};

QTEST_MAIN(tst_PlotDetails)
#include "tst_plot_details.moc"
