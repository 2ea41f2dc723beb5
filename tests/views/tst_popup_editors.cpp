// SPDX-License-Identifier: BSD-3-Clause
#include "tests/views/dialog_fixture.h"

#include "sdk/common_ui/combo_box_auto_filter.h"
#include "tests/support/rows.h"
#include "zonestyle/views/combo_box_dialog.h"
#include "zonestyle/views/dynamic_line_map_text_edit_dialog.h"
#include "zonestyle/views/list_box_dialog.h"

#include <QCompleter>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QScreen>
#include <QToolButton>
#include <QtTest>

using namespace corvala;
using namespace corvala::tests;
using namespace corvala::sdk::ui::dialogs::zonestyle::intern::views;

namespace {

constexpr int kClickElsewhere = 0;
constexpr int kXAxisVariable = 6;

} // namespace

class tst_PopupEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filtersWhileTyping()
    {
        DialogFixture fixture("xy");
        fixture.doubleClickCell(1, kXAxisVariable);
        auto* list = fixture.table().viewport()->findChild<corvala::ui::ComboBoxAutoFilter*>();
        QVERIFY(list);
        QTest::keyClicks(list->lineEdit(), "o");
        QCOMPARE(list->completer()->completionCount(), 4); // with an "o" anywhere
    }

    void choosesFromTheOpenList()
    {
        DialogFixture fixture("xy");
        fixture.select({1, 3});
        PopupResponder popups([](QWidget& popup) {
            auto* box = popup.findChild<QComboBox*>();
            box->showPopup();
            runUntilIdle();
            const QModelIndex entry = box->model()->index(4, 0);
            const QPoint position = box->view()->visualRect(entry).center();
            QTest::mouseMove(box->view()->viewport(), position);
            QTest::mousePress(box->view()->viewport(), Qt::LeftButton, {}, position);
            QTest::qWait(QApplication::doubleClickInterval()
                         + 50); // the box ignores a first release
            QTest::mouseRelease(box->view()->viewport(), Qt::LeftButton, {}, position);
        });
        popups.then([](QWidget&) {}); // the list itself
        fixture.rightClick(1, kXAxisVariable);
        QCOMPARE(styleValues("LineMap.Assign.XAxisVar", 3), "5 1 5");
    }

    void listBoxTakesAClick()
    {
        QWidget parent;
        QStringList committed;
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const auto open = [&](const QString& current) {
            return new ListBoxDialog(
                screen.bottomRight(), &parent, [&](const QString& text) { committed << text; },
                {"one", "two", "three"}, current, 150);
        };
        PopupResponder popups([&screen](QWidget& popup) {
            QVERIFY(screen.contains(popup.geometry()));
            auto* list = popup.findChild<QListWidget*>("listBox");
            QCOMPARE(list->currentItem()->text(), "two");
            QCOMPARE(list->width(), 150);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(2)).center());
        });
        popups.then(PopupResponder::end(Qt::Key_Escape)).then(PopupResponder::end(kClickElsewhere));
        PopupDialogBase::run(open("two"));
        QCOMPARE(committed, QStringList {"three"});
        PopupDialogBase::run(open("two"));
        PopupDialogBase::run(open("none of them"));
        QCOMPARE(committed, QStringList {"three"});
    }

    void insertsTokens()
    {
        QWidget parent;
        QString committed;
        PopupResponder popups([](QWidget& popup) {
            auto* field = popup.findChild<QLineEdit*>("lineEdit");
            auto* tokens = popup.findChild<QListView*>("listView");
            auto* insert = popup.findChild<QToolButton*>("insertToolButton");
            QVERIFY(!insert->isEnabled());
            const QImage list = tokens->viewport()->grab().toImage();
            QString texts;
            for (int row = 0; row < tokens->model()->rowCount(); ++row) {
                const QModelIndex token = tokens->model()->index(row, 0);
                texts += token.data(Qt::UserRole + 1).toString();
                const QImage painted = list.copy(tokens->visualRect(token));
                QImage blank = painted;
                blank.fill(list.pixel(0, 0));
                QVERIFY(tokens->viewport()->rect().contains(tokens->visualRect(token)));
                QVERIFY2(painted != blank, qPrintable(token.data().toString()));
            }
            QCOMPARE(texts, "&ZN&&Z#&&DV&&D#&&IV&&I#&&M#&&X#&&Y#&");
            QTest::keyClick(field, Qt::Key_End);
            QTest::keyClick(field, Qt::Key_Down);
            QCOMPARE(popup.focusWidget(), tokens);
            QTest::keyClick(tokens, Qt::Key_Space);
            QTest::mouseClick(tokens->viewport(), Qt::LeftButton, {},
                              tokens->visualRect(tokens->model()->index(6, 0)).center());
            QTest::mouseClick(insert, Qt::LeftButton);
            QTest::keyClick(field, Qt::Key_Home);
            const QPoint axis = tokens->visualRect(tokens->model()->index(8, 0)).center();
            QTest::mouseClick(tokens->viewport(), Qt::LeftButton, {}, axis);
            QTest::mouseDClick(tokens->viewport(), Qt::LeftButton, {}, axis);
            QTest::keyClick(tokens, Qt::Key_Space);
            QTest::keyClick(field, Qt::Key_Return);
        });
        PopupDialogBase::run(new DynamicLineMapTextEditDialog(
            {}, &parent, [&](const QString& text) { committed = text; }, "map ", 3));
        QCOMPARE(committed, "&Y#&&Y#&map &ZN&&M#&");
    }
};

QTEST_MAIN(tst_PopupEditors)
#include "tst_popup_editors.moc"
