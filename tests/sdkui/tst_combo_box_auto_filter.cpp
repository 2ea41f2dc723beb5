// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/rows.h"

#include <sdk/common_ui/combo_box_auto_filter.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace corvala::tests;
using corvala::ui::ComboBoxAutoFilter;

static const QStringList kEntries {"1: Density", "2: pressure", "3: Pressure", "4: Total Pressure",
                                   "5: x"};

namespace {

/// Many entries; counts how often one is read.
class CountingModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : 100000;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        ++reads;
        return role == Qt::DisplayRole || role == Qt::EditRole
            ? QVariant(QStringLiteral("Zone %1").arg(index.row() + 1))
            : QVariant();
    }
    mutable int reads = 0;
};

} // namespace

class TestComboBoxAutoFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_box = new ComboBoxAutoFilter(m_window.get());
        (new QVBoxLayout(m_window.get()))->addWidget(m_box);
        m_box->setEntries(kEntries);
        m_box->setCurrentIndex(0);
        m_chosen = std::make_unique<QSignalSpy>(m_box, &ComboBoxAutoFilter::selectionComplete);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_box->setFocus();
    }

    void cleanup()
    {
        m_chosen.reset();
        m_window.reset();
    }

    void resolvesTypedText_data()
    {
        const Rows<QString, int> row;
        row("equal", "3: Pressure", 2);
        row("equal but for case", "4: TOTAL PRESSURE", 3);
        row("contained", "ensi", 0);
        row("contained, the first of several", "PRESS", 1);
        row("equal comes before contained", "5: x", 4);
    }

    void resolvesTypedText()
    {
        const auto [text, entry] = currentRow<QString, int>();
        m_box->setCurrentIndex(entry == 0 ? 1 : 0);
        type(text);
        QTest::keyClick(m_box, Qt::Key_Return);
        QCOMPARE(m_box->currentIndex(), entry);
        QCOMPARE(m_box->currentText(), kEntries.at(entry));
        QCOMPARE(m_box->lineEdit()->text(), kEntries.at(entry));
        QTest::qWait(5);
        QCOMPARE(m_chosen->count(), 1);
    }

    void keepsTheCurrentOfEqualEntries()
    {
        m_box->setEntries({"same", "other", "same"});
        m_box->setCurrentIndex(2);
        QTest::keyClick(m_box, Qt::Key_Return);
        QCOMPARE(m_box->currentIndex(), 2);
        QCOMPARE(m_chosen->count(), 1);
    }

    void refusesATextWithoutAnEntry()
    {
        m_box->setCurrentIndex(3);
        for (const QString text : {"nothing like it", ""}) {
            type(text);
            if (text.isEmpty())
                QTest::keyClick(m_box, Qt::Key_Delete);
            QTest::keyClick(m_box, Qt::Key_Return);
            QCOMPARE(m_box->lineEdit()->text(), kEntries.at(3));
            QCOMPARE(m_box->currentIndex(), 3);
        }
        QTest::qWait(5);
        QCOMPARE(m_chosen->count(), 0);
    }

    void startsEmpty()
    {
        m_box->setEntries(kEntries);
        QCOMPARE(m_box->currentIndex(), -1);
        QCOMPARE(m_box->currentText(), QString());
        QTest::keyClick(m_box, Qt::Key_Return);
        m_box->showPopup();
        m_box->hidePopup();
        QTest::qWait(5);
        QCOMPARE(m_box->currentText(), QString());
        QCOMPARE(m_chosen->count(), 0);
    }

    void listTakesTheEntry_data()
    {
        const Rows<QString, int, int> row;
        row("click", "click", 2, 1);
        row("return", "return", 2, 1);
        row("closed elsewhere", "close", 0, 1);
        row("escape", "escape", 0, 0);
    }

    void listTakesTheEntry()
    {
        const auto [end, entry, signalCount] = currentRow<QString, int, int>();
        m_box->showPopup();
        QAbstractItemView* list = m_box->view();
        QTRY_VERIFY(list->isVisible());
        const QModelIndex third = list->model()->index(2, 0);
        list->setCurrentIndex(third);
        if (end == "click") {
            QTest::qWait(QApplication::doubleClickInterval() + 20); // it ignores an early release
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualRect(third).center());
        } else if (end == "close") {
            m_box->hidePopup();
        } else {
            QTest::keyClick(list, end == "return" ? Qt::Key_Return : Qt::Key_Escape);
        }
        QTRY_VERIFY(!list->isVisible());
        QTest::qWait(5);
        QCOMPARE(m_box->currentIndex(), entry);
        QCOMPARE(m_chosen->count(), signalCount);

        m_box->showPopup(); // the way it was closed before plays no part
        m_box->hidePopup();
        QTest::qWait(5);
        QCOMPARE(m_chosen->count(), signalCount + 1);
    }

    void stepsThroughEntriesWithoutChoosing()
    {
        QTest::keyClick(m_box, Qt::Key_Down);
        QCOMPARE(m_box->currentIndex(), 1);
        QTest::qWait(5);
        QCOMPARE(m_chosen->count(), 0);
        QTest::keyClick(m_box, Qt::Key_Return);
        QCOMPARE(m_chosen->count(), 1);
    }

    void filtersWhileTyping()
    {
        type("press");
        QAbstractItemView* found = m_box->completer()->popup();
        QTRY_VERIFY(found->isVisible());
        QCOMPARE(found->model()->rowCount(), 3);
        QTest::keyClick(found, Qt::Key_Down);
        QTest::keyClick(found, Qt::Key_Down);
        QTest::keyClick(found, Qt::Key_Return);
        QTest::qWait(5);
        QVERIFY(!found->isVisible());
        QCOMPARE(m_box->currentIndex(), 2);
        QCOMPARE(m_box->currentText(), kEntries.at(2));
        QCOMPARE(m_chosen->count(), 1);

        type("total");
        QTRY_VERIFY(found->isVisible());
        QTest::mouseClick(found->viewport(), Qt::LeftButton, {},
                          found->visualRect(found->model()->index(0, 0)).center());
        QTest::qWait(5);
        QCOMPARE(m_box->currentIndex(), 3);
        QCOMPARE(m_chosen->count(), 2);
    }

    void completesInPlace()
    {
        m_box->setFilterWhileTyping(false);
        type("4: t");
        QCOMPARE(m_box->currentText(), QString("4: total Pressure"));
        QTest::keyClick(m_box, Qt::Key_Return);
        QCOMPARE(m_box->currentIndex(), 3);
        QCOMPARE(m_box->currentText(), kEntries.at(3));
        QCOMPARE(m_chosen->count(), 1);
    }

    void isPlainWhenNotEditable()
    {
        m_box->setEditable(false);
        QVERIFY(!m_box->lineEdit());
        QTest::keyClick(m_box, Qt::Key_Return);
        QCOMPARE(m_chosen->count(), 0);
        m_box->setEditable(true);
        QCOMPARE(m_box->completer()->filterMode(), Qt::MatchContains);
        QCOMPARE(m_box->currentText(), kEntries.at(0));
    }

    void returnStaysInTheBox()
    {
        for (const bool editable : {true, false}) {
            m_box->setEditable(editable);
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(m_box, &event);
            QCOMPARE(event.isAccepted(), editable); // else a dialog's default button takes it
        }
    }

    void measuresAndShowsWithoutReadingEveryEntry()
    {
        auto* model = new CountingModel(m_box);
        m_box->setListModel(model);
        m_box->setCurrentIndex(70000);
        model->reads = 0;
        QVERIFY(m_box->sizeHint().isValid());
        m_box->showPopup();
        QTRY_VERIFY(m_box->view()->isVisible());
        m_box->view()->grab();
        QVERIFY2(model->reads < 2000, qPrintable(QString::number(model->reads)));
        m_box->hidePopup();
        QTest::qWait(5);
        QCOMPARE(m_box->currentText(), QString("Zone 70001"));
    }

private:
    void type(const QString& text)
    {
        m_box->lineEdit()->selectAll();
        QTest::keyClicks(m_box, text);
    }

    std::unique_ptr<QWidget> m_window;
    ComboBoxAutoFilter* m_box = nullptr;
    std::unique_ptr<QSignalSpy> m_chosen;
};

QTEST_MAIN(TestComboBoxAutoFilter)
#include "tst_combo_box_auto_filter.moc"
