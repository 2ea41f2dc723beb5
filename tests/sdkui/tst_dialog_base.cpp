// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/document_fixture.h"
#include "tests/support/rows.h"

#include <sdk/common_ui/combo_box_auto_filter.h>
#include <sdk/common_ui/find_main_window.h>
#include <sdk/dialogs_common/launch_dialog_action.h>
#include <sdk/dialogs_common/qt_dialog_abstract.h>
#include <sdk/dialogs_common/tab_widget_launch_help_action.h>
#include <sdk/dialogs_common/table_view_with_preferred_dimensions.h>
#include <sdk/propertymanager/plot_type_dependent_relevance.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <boost/make_shared.hpp>

#include <memory>

using namespace corvala;
using namespace corvala::tests;
using dialogs::common::LaunchHelpAction;
using dialogs::common::QtDialogAbstract;
using dialogs::common::TableViewWithPreferredDimensions;

class TestDialogBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<QWidget>();
        m_dialog = new QtDialogAbstract(*m_main, {});
        m_lineEdit = new QLineEdit(m_dialog);
        m_comboBox = new ui::ComboBoxAutoFilter(m_dialog);
        m_comboBox->setEntries({"one", "two"});
        m_table = new QTableView(m_dialog);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, m_dialog);
        auto* layout = new QVBoxLayout(m_dialog);
        for (QWidget* widget :
             {static_cast<QWidget*>(m_lineEdit), static_cast<QWidget*>(m_comboBox), m_table,
              static_cast<QWidget*>(buttons)})
            layout->addWidget(widget);
        connect(buttons, &QDialogButtonBox::rejected, m_dialog, &QDialog::reject);
        m_dialog->setDefaultButton(buttons->button(QDialogButtonBox::Close));
        m_dialog->launch();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog));
    }

    void cleanup()
    {
        LaunchHelpAction::setHandler({});
        m_main.reset();
    }

    void closingHidesAndReopeningComesBack_data()
    {
        const Rows<void (*)(QtDialogAbstract&)> row; // how
        row("by the host", [](QtDialogAbstract& dialog) { dialog.drop(); });
        row("by Escape",
            [](QtDialogAbstract& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        row("by its button",
            [](QtDialogAbstract& dialog) { dialog.findChild<QPushButton*>()->click(); });
    }

    void closingHidesAndReopeningComesBack()
    {
        const auto [close] = currentRow<void (*)(QtDialogAbstract&)>();
        const QPointer<QtDialogAbstract> guard(m_dialog);
        QSignalSpy finished(m_dialog, &QDialog::finished);
        m_dialog->move(123, 45);
        m_dialog->setAttribute(Qt::WA_Moved, false); // it was its user who did
        m_lineEdit->setText("kept");
        close(*m_dialog);
        QTest::qWait(5);
        QVERIFY(guard);
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(finished.count(), 1);

        m_main->setGeometry(300, 300, 100, 100);
        m_dialog->launch();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog));
        QVERIFY(!m_dialog->isModal());
        QCOMPARE(m_dialog->pos(), QPoint(123, 45));
        QCOMPARE(m_lineEdit->text(), QString("kept"));
    }

    void closingTheLastWindowDoesNotEndTheProgram()
    {
        QTimer::singleShot(0, m_dialog, [this] { m_dialog->drop(); });
        QTimer::singleShot(50, m_dialog, [] { QCoreApplication::exit(7); });
        QCOMPARE(QCoreApplication::exec(), 7); // 0 when the closed window had ended it
        QVERIFY(!m_dialog->isVisible());
    }

    void returnPressesTheDefaultButtonButNotFromAField_data()
    {
        const Rows<int, bool> row;
        row("line edit", 0, false);
        row("editable combo box", 1, false);
        row("table", 2, true);
    }

    void returnPressesTheDefaultButtonButNotFromAField()
    {
        const auto [field, closes] = currentRow<int, bool>();
        QWidget* widgets[] = {m_lineEdit, m_comboBox, m_table};
        QSignalSpy entered(m_lineEdit, &QLineEdit::returnPressed);
        widgets[field]->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(entered.count(), field == 0 ? 1 : 0);
        QCOMPARE(m_dialog->isVisible(), !closes);
        if (!closes)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
        QCOMPARE(m_dialog->isVisible(), !closes);
    }

    void helpKeyAsksForTheCurrentTab()
    {
        QTabWidget first(m_dialog);
        QTabWidget second(m_dialog);
        QWidget pages[3];
        first.addTab(&pages[0], "a");
        first.addTab(&pages[1], "b");
        second.addTab(&pages[2], "c");
        auto* help = new dialogs::common::TabWidgetLaunchHelpAction(
            {{&pages[0], "a.html"}, {&pages[1], "b.html#x/y"}}, &first);
        m_dialog->setHelpAction(help);
        QStringList asked;
        LaunchHelpAction::setHandler([&asked](const QString& reference) { asked << reference; });

        QTest::keyClick(m_lineEdit, Qt::Key_F1);
        first.setCurrentIndex(1);
        QTest::keyClick(m_table, Qt::Key_F1);
        QCOMPARE(asked, QStringList({"a.html", "b.html#x/y"}));
        QCOMPARE(LaunchHelpAction::lastRequest(), QString("b.html#x/y"));

        help->setTabWidget(&second); // its page has no reference
        QTest::keyClick(m_table, Qt::Key_F1);
        help->setTabWidget(nullptr);
        QTest::keyClick(m_table, Qt::Key_F1);
        QCOMPARE(asked.size(), 2);
    }

    void helpActionIsOwned()
    {
        const QPointer<QAction> first(new LaunchHelpAction("a.html", nullptr));
        const QPointer<QAction> second(new LaunchHelpAction("b.html", nullptr));
        m_dialog->setHelpAction(first);
        m_dialog->setHelpAction(first);
        QVERIFY(first);
        m_dialog->setHelpAction(second);
        QVERIFY(!first);
        QCOMPARE(m_dialog->helpAction(), second.data());
        QCOMPARE(m_dialog->findChildren<QPushButton*>().size(), 1); // Close alone
        m_main.reset();
        QVERIFY(!second);
    }

    void launchActionFollowsTheRelevance()
    {
        tests::openDemo("xy");
        m_dialog->drop();
        dialogs::common::LaunchDialogAction action(
            "Zone Style...",
            boost::make_shared<propertymanager::FieldPlotTypeDependentRelevance>(true),
            [this]() -> dialogs::common::DialogInterface& { return *m_dialog; }, nullptr);
        QVERIFY(!action.isEnabled());
        action.trigger();
        QVERIFY(!m_dialog->isVisible());
        tests::openDemo("field3d");
        QVERIFY(action.isEnabled());
        action.trigger();
        QVERIFY(m_dialog->isVisible());
        host::Document::instance().clear();
        QVERIFY(!action.isEnabled());
        QVERIFY(m_dialog->isVisible()); // an open dialog stays
    }

    void tableHintHoldsRowsAndColumns_data()
    {
        const Rows<int, int> row;
        row("no model rows", 0, 3);
        row("fewer than preferred", 2, 2);
        row("more than preferred", 50, 9);
    }

    void tableHintHoldsRowsAndColumns()
    {
        const auto [modelRows, modelColumns] = currentRow<int, int>();
        QStandardItemModel model(modelRows, modelColumns);
        TableViewWithPreferredDimensions view;
        view.setModel(&model);
        view.verticalHeader()->setDefaultSectionSize(20);
        view.horizontalHeader()->setDefaultSectionSize(50);
        if (modelColumns > 3)
            view.setColumnHidden(0, true);
        view.setPreferredNumberOfRows(6);
        view.setPreferredNumberOfColumns(4);
        view.resize(view.sizeHint());
        view.show();
        QTRY_VERIFY(view.viewport()->height() > 0);
        const int bars =
            view.horizontalScrollBar()->sizeHint().height() + view.verticalScrollBar()->width();
        // All of it shows, and not a row or column more.
        QVERIFY(view.viewport()->height() >= 6 * 20);
        QVERIFY(view.viewport()->height() < 7 * 20 + bars);
        QVERIFY(view.viewport()->width() >= 4 * 50);
        QVERIFY(view.viewport()->width() < 5 * 50 + bars);
    }

    void tableHintFitsTheScreen()
    {
        QStandardItemModel model(5000, 500);
        TableViewWithPreferredDimensions view;
        view.setModel(&model);
        const QSize plain = view.sizeHint();
        view.setPreferredNumberOfRows(5000);
        view.setPreferredNumberOfColumns(500);
        const QSize available = view.screen()->availableSize();
        QVERIFY(view.sizeHint().width() < available.width());
        QVERIFY(view.sizeHint().height() < available.height());
        view.setPreferredNumberOfRows(0);
        view.setPreferredNumberOfColumns(-1);
        QCOMPARE(view.sizeHint(), plain);
    }

    void mainWindowIsTheRegisteredOne()
    {
        ui::setMainWindow(m_main.get());
        QCOMPARE(&ui::findMainWindow(), m_main.get());
        m_main.reset();
        QWidget& madeOnDemand = ui::findMainWindow();
        QVERIFY(!madeOnDemand.isVisible());
        QCOMPARE(&ui::findMainWindow(), &madeOnDemand);
    }

private:
    std::unique_ptr<QWidget> m_main;
    QtDialogAbstract* m_dialog = nullptr;
    QLineEdit* m_lineEdit = nullptr;
    ui::ComboBoxAutoFilter* m_comboBox = nullptr;
    QWidget* m_table = nullptr;
};

QTEST_MAIN(TestDialogBase)
#include "tst_dialog_base.moc"
