// SPDX-License-Identifier: BSD-3-Clause
#include "play/input.h"
#include "tests/support/document_fixture.h"

#include "tests/support/modal_responder.h"
#include "tests/support/rows.h"

#include <sdk/common_ui/combo_box_auto_filter.h>
#include <sdk/dialogs_common/launch_help_action.h>
#include <sdk/dialogs_prompt/color_chooser_widget.h>
#include <sdk/dialogs_prompt/enter_ascii_character_dialog.h>
#include <sdk/dialogs_prompt/enter_three_int_values_dialog.h>
#include <sdk/dialogs_prompt/scatter_size_font_dialog.h>
#include <sdk/dialogs_prompt/vector_var_assign_strategy.h>
#include <sdk/dialogs_prompt/zone_select_dialog.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <limits>
#include <memory>

using namespace corvala;
using namespace corvala::dialogs::prompt;
using tests::ModalResponder;
using ThreeInts = std::array<int, 3>;
using namespace corvala::tests;

static constexpr int kMost = std::numeric_limits<int>::max();

static void type(QDialog& dialog, const QString& text)
{
    for (const QChar character : text) {
        if (character.unicode() < 128) {
            QTest::keyClick(dialog.focusWidget(), character.toLatin1());
        } else { // a test has no key for it
            QInputMethodEvent event;
            event.setCommitString(character);
            QCoreApplication::sendEvent(dialog.focusWidget(), &event);
        }
    }
}

static QPushButton* okButton(const QDialog& dialog)
{
    return dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
}

/// An answer that ends the dialog also when one of its checks fails.
template<class Answer>
static ModalResponder::Answer ending(Answer answer)
{
    return [answer](QDialog& shown) {
        const QPointer<QDialog> guard(&shown);
        QApplication::setActiveWindow(&shown);
        answer(shown);
        if (guard && guard->isVisible())
            guard->reject();
    };
}

class TestPrompts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        tests::openDemo("field2d");
        m_window = std::make_unique<QWidget>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        dialogs::common::LaunchHelpAction::setHandler({});
        m_window.reset();
    }

    void sharedInstancesFollowTheirParent()
    {
        const QPointer<EnterThreeIntValuesDialog> first(
            &EnterThreeIntValuesDialog::getInstance(m_window.get()));
        QCOMPARE(&EnterThreeIntValuesDialog::getInstance(m_window.get()), first.data());
        QWidget other;
        const QPointer<EnterThreeIntValuesDialog> second(
            &EnterThreeIntValuesDialog::getInstance(&other));
        QVERIFY(second != first);
        QCOMPARE(second->parentWidget(), &other);
        {
            QWidget shortLived;
            EnterThreeIntValuesDialog::getInstance(&shortLived);
        }
        QCOMPARE(EnterThreeIntValuesDialog::getInstance(&other).parentWidget(), &other);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!first);
        QVERIFY(!second);
    }

    void threeValuesByKeyboard()
    {
        auto& dialog = EnterThreeIntValuesDialog::getInstance(m_window.get());
        dialog.setTitle("Enter Range");
        dialog.setLabels("&Begin", "&End", "&Skip");
        dialog.setRanges({1, kMost}, {0, kMost}, {1, kMost});
        dialog.setValues(3, 0, 1);
        ModalResponder responder;
        responder.answer(ending([](QDialog& shown) {
            QCOMPARE(shown.windowTitle(), QString("Enter Range"));
            type(shown, "5"); // the first value is selected and is replaced
            play::pressKey(&shown, Qt::Key_Tab);
            type(shown, "12");
            play::pressKey(&shown, Qt::Key_S, Qt::AltModifier);
            QCOMPARE(shown.focusWidget(), shown.findChildren<QSpinBox*>().at(2));
            type(shown, "2");
            play::pressKey(&shown, Qt::Key_Return);
        }));
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(dialog.values(), (ThreeInts {5, 12, 2}));

        responder.answer(ending([](QDialog& shown) { play::pressKey(&shown, Qt::Key_Escape); }));
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QVERIFY(responder.isSettled());
    }

    void threeValuesBelowTheirLimitsAreCorrectedFirst()
    {
        auto& dialog = EnterThreeIntValuesDialog::getInstance(m_window.get());
        dialog.setRanges({5, 100}, {0, kMost}, {1, kMost});
        dialog.setValues(7, 8, 9);
        ModalResponder responder;
        responder.answer(ending([](QDialog& shown) {
            type(shown, "2");
            QVERIFY(!okButton(shown)->isEnabled());
            play::pressKey(&shown, Qt::Key_Return);
            QVERIFY(shown.isVisible());
            QCOMPARE(shown.findChildren<QSpinBox*>().at(0)->text(), QString("5"));
            QVERIFY(okButton(shown)->isEnabled());
            play::pressKey(&shown, Qt::Key_Return);
        }));
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(dialog.values(), (ThreeInts {5, 8, 9}));

        responder.answer(ending([](QDialog& shown) {
            type(shown, "2");
            play::pressKey(&shown, Qt::Key_Tab); // leaving the field corrects it as well
            QVERIFY(okButton(shown)->isEnabled());
            type(shown, "-");
            shown.reject();
        }));
        dialog.exec();
        dialog.setValues(7, 8, 9);
        responder.answer(ending([](QDialog& shown) { play::pressKey(&shown, Qt::Key_Return); }));
        QCOMPARE(dialog.exec(), int(QDialog::Accepted)); // what was refused is forgotten
    }

    void threeValuesHelp()
    {
        auto& dialog = EnterThreeIntValuesDialog::getInstance(m_window.get());
        QStringList asked;
        dialogs::common::LaunchHelpAction::setHandler(
            [&asked](const QString& reference) { asked << reference; });
        dialog.setHelpReference("fieldplt.html#_old");
        dialog.setHelpReference("fieldplt.html#_enter_range");
        ModalResponder responder;
        responder.answer(ending([](QDialog& shown) {
            auto* help = shown.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Help);
            QTest::mouseClick(help, Qt::LeftButton);
            play::pressKey(&shown, Qt::Key_F1);
            QTest::qWait(200); // a button stays down for a moment
        }));
        dialog.exec();
        QCOMPARE(asked, QStringList({"fieldplt.html#_enter_range", "fieldplt.html#_enter_range"}));

        dialog.setHelpReference(QString());
        responder.answer(ending([](QDialog& shown) {
            QVERIFY(
                !shown.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Help)->isVisible());
            play::pressKey(&shown, Qt::Key_F1);
            QTest::qWait(200);
        }));
        dialog.exec();
        QCOMPARE(asked.size(), 2);
    }

    void characterIsOneThatShows_data()
    {
        const Rows<QString, QString> row;
        row("letter", "x", "x");
        row("the last one typed", "xyz", "z");
        row("blank is refused", " ", "A");
        row("beyond ASCII", QString::fromUtf8("é"), QString::fromUtf8("é"));
    }

    void characterIsOneThatShows()
    {
        const auto [typed, character] = currentRow<QString, QString>();
        auto& dialog = EnterASCIICharacterDialog::getInstance(m_window.get());
        dialog.setCharacter("ABC");
        QCOMPARE(dialog.selectedChar(), QString("A"));
        ModalResponder responder;
        responder.answer(ending([&typed = typed](QDialog& shown) {
            type(shown, typed);
            play::pressKey(&shown, Qt::Key_Return);
        }));
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(dialog.selectedChar(), character);
    }

    void characterFontAndCancel()
    {
        auto& dialog = EnterASCIICharacterDialog::getInstance(m_window.get());
        dialog.setCharacter(QString());
        dialog.setUseBaseFont(true);
        dialog.setTypeFaceOverride(77);
        QCOMPARE(dialog.typeFaceOverride(), int(FontOverride_None));
        dialog.setTypeFaceOverride(FontOverride_Math);
        ModalResponder responder;
        responder.answer(ending([](QDialog& shown) {
            QVERIFY(!okButton(shown)->isEnabled());
            play::pressKey(&shown, Qt::Key_Return);
            QVERIFY(shown.isVisible());
            type(shown, "q");
            QVERIFY(okButton(shown)->isEnabled());
            auto* font = shown.findChild<QComboBox*>();
            QVERIFY(!font->isEnabled());
            QTest::mouseClick(shown.findChild<QCheckBox*>(), Qt::LeftButton, {}, {5, 8});
            QVERIFY(font->isEnabled());
            QTest::keyClick(font, Qt::Key_Down);
            play::pressKey(&shown, Qt::Key_Return);
        }));
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(dialog.selectedChar(), QString("q"));
        QVERIFY(!dialog.useBaseFont());
        QCOMPARE(dialog.typeFaceOverride(), int(FontOverride_User));

        responder.answer(ending([](QDialog& shown) { play::pressKey(&shown, Qt::Key_Escape); }));
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    }

    void zoneByKeyboardAndMouse()
    {
        auto& dialog = ZoneSelectDialog::getInstance(m_window.get());
        ModalResponder responder;
        responder.answer(ending([](QDialog& shown) {
            play::pressKey(&shown, Qt::Key_Down); // the filter has the focus, the list follows
            play::pressKey(&shown, Qt::Key_Down);
            play::pressKey(&shown, Qt::Key_Return);
        }));
        QVERIFY(dialog.selectZone(3));
        QCOMPARE(dialog.selectedZone(), 5);

        responder.answer(ending([](QDialog& shown) {
            auto* list = shown.findChild<QListView*>();
            const QModelIndex zone = list->model()->index(1, 0);
            list->scrollTo(zone);
            const QPoint at = list->visualRect(zone).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
        }));
        QVERIFY(dialog.selectZone(9));
        QCOMPARE(dialog.selectedZone(), 2);
        QVERIFY(responder.isSettled());
    }

    void zoneFilter_data()
    {
        const Rows<QStringList, int, int> row; // typed, rows, zone (0: nothing to accept)
        row("several", {"zone 1"}, 4, 1);
        row("narrowed", {"zone 1", "1"}, 1, 11);
        row("by number", {"7:"}, 1, 7);
        row("the chosen one stays", {"one 5"}, 1, 5);
        row("none", {"outlet"}, 0, 0);
    }

    void zoneFilter()
    {
        const auto [typed, rows, zone] = currentRow<QStringList, int, int>();
        auto& dialog = ZoneSelectDialog::getInstance(m_window.get());
        const CvlInt64 before = dialog.selectedZone();
        ModalResponder responder;
        responder.answer(ending([&typed = typed, rows = rows, zone = zone](QDialog& shown) {
            auto* list = shown.findChild<QListView*>();
            QCOMPARE(list->model()->rowCount(), 12); // the filter of the time before is gone
            for (const QString& text : typed) {
                type(shown, text);
                QTRY_VERIFY(list->model()->rowCount() < 12);
            }
            QTRY_COMPARE(list->model()->rowCount(), rows);
            QCOMPARE(okButton(shown)->isEnabled(), zone != 0);
            play::pressKey(&shown, Qt::Key_Return);
            if (zone == 0) {
                QVERIFY(shown.isVisible());
                shown.reject();
            }
        }));
        QCOMPARE(dialog.selectZone(5), zone != 0);
        QCOMPARE(dialog.selectedZone(), zone != 0 ? zone : before);

        if (zone != 0) { // Return at once takes what the typed text leads to
            responder.answer(ending([&typed = typed](QDialog& shown) {
                type(shown, typed.join(QString()));
                play::pressKey(&shown, Qt::Key_Return);
            }));
            QVERIFY(dialog.selectZone(0));
            QCOMPARE(dialog.selectedZone(), zone);
        }
    }

    void zoneCancelAndUnknownCurrent()
    {
        auto& dialog = ZoneSelectDialog::getInstance(m_window.get());
        ModalResponder responder;
        responder.answer(ending([](QDialog& shown) { play::pressKey(&shown, Qt::Key_Return); }));
        QVERIFY(dialog.selectZone(4));
        QCOMPARE(dialog.selectedZone(), 4);
        responder.answer(ending([](QDialog& shown) {
            play::pressKey(&shown, Qt::Key_Down);
            play::pressKey(&shown, Qt::Key_Escape);
        }));
        QVERIFY(!dialog.selectZone(1));
        QCOMPARE(dialog.selectedZone(), 4);

        responder.answer(ending([](QDialog& shown) {
            QVERIFY(!okButton(shown)->isEnabled()); // a look does not choose a zone
            play::pressKey(&shown, Qt::Key_Return);
            QVERIFY(shown.isVisible());
            shown.reject();
        }));
        QVERIFY(!dialog.selectZone(99));
    }

    void zoneListReadsOnlyWhatItShows()
    {
        tests::openDemo("field2d", 100000);
        auto& dialog = ZoneSelectDialog::getInstance(m_window.get());
        CvlInt64 reads = 0;
        ModalResponder responder;
        responder.answer(ending([&reads](QDialog& shown) {
            shown.grab();
            reads = CvlAppGetReadCount() - reads;
            type(shown, "99999");
            play::pressKey(&shown, Qt::Key_Return);
        }));
        reads = CvlAppGetReadCount();
        QVERIFY(dialog.selectZone(50000));
        QVERIFY2(reads < 2000, qPrintable(QString::number(reads)));
        QCOMPARE(dialog.selectedZone(), 99999);
    }

    void promptSurvivesTheDeathOfItsParent()
    {
        auto& dialog = ZoneSelectDialog::getInstance(m_window.get());
        ModalResponder responder;
        responder.answer(ending([this](QDialog&) { m_window.reset(); }));
        QVERIFY(!dialog.selectZone(1));
        QWidget other;
        responder.answer(ending([](QDialog& shown) { play::pressKey(&shown, Qt::Key_Return); }));
        QVERIFY(ZoneSelectDialog::getInstance(&other).selectZone(2));
    }

    void colorByKeyboard_data()
    {
        const Rows<QVector<int>, int> row;
        const int right = Qt::Key_Right;
        const int down = Qt::Key_Down;
        row("first", {Qt::Key_Return}, 0);
        row("right and down", {right, right, down, Qt::Key_Space}, 10);
        row("stops at the left edge", {down, Qt::Key_Left, Qt::Key_Enter}, 8);
        row("stops at the top", {right, Qt::Key_Up, Qt::Key_Return}, 1);
        row("ends of a row", {down, Qt::Key_End, Qt::Key_Return}, 15);
        row("and back", {down, Qt::Key_End, Qt::Key_Home, Qt::Key_Return}, 8);
        row("bottom right",
            {Qt::Key_End, down, down, down, down, down, down, down, down, right, Qt::Key_Return},
            63);
    }

    void colorByKeyboard()
    {
        const auto [keys, color] = currentRow<QVector<int>, int>();
        ColorChooserWidget chooser(m_window.get(), false, ShowHelpButton_No);
        chooser.show();
        chooser.setFocus();
        QSignalSpy selected(&chooser, &ColorChooserWidget::colorSelected);
        std::vector<int> notified;
        const boost::signals2::scoped_connection connection =
            chooser.connectColorSelected([&notified](int chosen) { notified.push_back(chosen); });
        for (const int key : keys)
            QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.first().first().toInt(), color);
        QCOMPARE(notified, std::vector<int>({color}));
    }

    void colorByMouseAndItsNames()
    {
        host::Document::instance().execute(host::SetPaletteColor {12, {0x0a, 0xbc, 0xde}});
        ColorChooserWidget chooser(m_window.get(), false, ShowHelpButton_No);
        chooser.show();
        QAbstractButton* button = chooser.colorButton(12);
        QCOMPARE(button->toolTip(), QString("12: #0ABCDE"));
        QCOMPARE(button->accessibleName(), QString("12: #0ABCDE"));
        QCOMPARE(button->grab().toImage().pixelColor(button->rect().center()),
                 QColor(0x0a, 0xbc, 0xde));
        QSignalSpy selected(&chooser, &ColorChooserWidget::colorSelected);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(selected.first().first().toInt(), 12);
        QVERIFY(!chooser.colorButton(64));
        QVERIFY(!chooser.colorButton(101));
    }

    void colorsOfGroups()
    {
        ColorChooserWidget chooser(m_window.get(), true, ShowHelpButton_No);
        chooser.show();
        QVERIFY(chooser.offersGroupColors());
        QSignalSpy selected(&chooser, &ColorChooserWidget::colorSelected);
        chooser.colorButton(59)->setFocus(); // fourth of the last palette row
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(selected.count(), 2);
        QCOMPARE(selected.at(0).first().toInt(), 104);
        QCOMPARE(selected.at(1).first().toInt(), 109);
        QCOMPARE(chooser.colorButton(108)->accessibleName(), QString("By contour group 8"));
        QCOMPARE(chooser.colorButton(109)->text(), QString("RGB"));
    }

    void colorChooserIsOneTabStop()
    {
        QWidget window;
        QLineEdit before(&window);
        ColorChooserWidget chooser(&window, true, ShowHelpButton_No);
        QLineEdit after(&window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        before.setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), chooser.colorButton(0));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &after);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), chooser.colorButton(1)); // where the user was
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), &before);
    }

    void colorChooserInAMenu()
    {
        QMenu menu;
        menu.addAction("before");
        auto* action = new QWidgetAction(&menu);
        auto* chooser = new ColorChooserWidget(nullptr, false, ShowHelpButton_No);
        action->setDefaultWidget(chooser);
        menu.addAction(action);
        QAction* after = menu.addAction("after");
        QSignalSpy selected(chooser, &ColorChooserWidget::colorSelected);
        menu.popup({0, 0});
        QTRY_VERIFY(chooser->isVisible());
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Down);
        QVERIFY(chooser->colorButton(0)->hasFocus());
        QTest::keyClick(chooser->focusWidget(), Qt::Key_Right);
        QTest::keyClick(menu.focusWidget(), Qt::Key_Return);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.first().first().toInt(), 1);
        for (int row = 0; row < 8; ++row) // past the last row the menu goes on
            QTest::keyClick(menu.focusWidget(), Qt::Key_Down);
        QCOMPARE(menu.activeAction(), after);
        menu.close();
    }

    void vectorVariablesAreAskedForOnce_data()
    {
        const Rows<QString, int, int> row;
        row("plane", "field2d", PlotType_Field2D, 2);
        row("space", "field3d", PlotType_Field3D, 3);
    }

    void vectorVariablesAreAskedForOnce()
    {
        const auto [demo, plotType, components] = currentRow<QString, int, int>();
        tests::openDemo(demo.toStdString());
        const auto type = static_cast<PlotType_e>(plotType);
        const VectorVarAssignStrategy strategy;
        ModalResponder responder;
        QVERIFY(strategy(type)); // assigned
        QCOMPARE(responder.takeSeen(), QStringList());

        for (const style::Key component :
             {style::globalVector.wVar, style::globalVector.uVar, style::globalVector.vVar}) {
            QVERIFY(strategy(type)); // as long as one is left
            sdk::ui::writeStyle(component, nullptr, 0);
        }
        QCOMPARE(responder.takeSeen(), QStringList());
        const int steps = tests::undoSteps();
        responder.answer(ending([components = components](QDialog& shown) {
            const auto boxes = shown.findChildren<ui::ComboBoxAutoFilter*>();
            QCOMPARE(boxes.size(), components);
            for (int component = components - 1; component > 0; --component)
                play::enter(*boxes.at(component), "density");
            QVERIFY(!okButton(shown)->isEnabled()); // U is not chosen
            play::enter(*boxes.at(0), "pressure");
            QVERIFY(okButton(shown)->isEnabled());
            QVERIFY(shown.isVisible()); // Return chose the entry only
            QTest::mouseClick(okButton(shown), Qt::LeftButton);
        }));
        QVERIFY(strategy(type));
        QCOMPARE(tests::undoSteps(), steps + 1);
        QCOMPARE(tests::frameValue("GlobalVector", "UVar"), components == 2 ? 5.0 : 7.0);
        QCOMPARE(tests::frameValue("GlobalVector", "VVar"), components == 2 ? 6.0 : 8.0);
        QVERIFY(strategy(type));
        QVERIFY(responder.isSettled());
    }

    void vectorVariablesCancelled()
    {
        for (const style::Key component :
             {style::globalVector.uVar, style::globalVector.vVar, style::globalVector.wVar})
            sdk::ui::writeStyle(component, nullptr, 0);
        const int steps = tests::undoSteps();
        ModalResponder responder;
        responder.answer(ending([](QDialog& shown) { play::pressKey(&shown, Qt::Key_Escape); }));
        QVERIFY(!VectorVarAssignStrategy()(PlotType_Field2D));
        QCOMPARE(tests::undoSteps(), steps);
        QCOMPARE(tests::frameValue("GlobalVector", "UVar"), 0.0);
        QVERIFY(!VectorVarAssignStrategy()(PlotType_LineXY)); // no vectors, nothing asked
        host::Document::instance().clear();
        QVERIFY(!VectorVarAssignStrategy()(PlotType_Field2D)); // no variables, nothing asked
        QVERIFY(responder.isSettled());
    }

    void scatterDialogWritesAndFollows()
    {
        auto& dialog = ScatterSizeFontDialog::getInstance(m_window.get());
        dialog.launch();
        QApplication::setActiveWindow(&dialog);
        auto* variable = dialog.findChild<ui::ComboBoxAutoFilter*>();
        QCOMPARE(variable->currentText(), QString("None"));
        play::enter(*variable, "pressure");
        QCOMPARE(tests::frameValue("GlobalScatter", "Var"), 5.0);
        QVERIFY(dialog.isVisible());

        const auto font = [](const char* name) {
            return toolbox::StyleValue("FieldMap", "Scatter", "SymbolShape", "ASCIIShape", name)
                .read<int>(12)
                .value_or(-1);
        };
        QTest::mouseClick(dialog.findChild<QCheckBox*>(), Qt::LeftButton, {}, {5, 8});
        QCOMPARE(font("UseBaseFont"), 0);
        QComboBox* fonts = nullptr;
        for (QComboBox* box : dialog.findChildren<QComboBox*>())
            fonts = box == variable ? fonts : box;
        QTest::keyClick(fonts, Qt::Key_Down);
        QCOMPARE(font("FontOverride"), int(FontOverride_Greek));

        sdk::ui::writeStyle(style::globalScatter.var, nullptr, 6);
        QTRY_COMPARE(variable->currentText(), QString("6: Density"));
        host::Document::instance().execute(host::RenameVariable {6, "Rho"});
        QTRY_COMPARE(variable->currentText(), QString("6: Rho"));
        dialog.close();
    }

    void hiddenPromptsReadNothing()
    {
        auto& scatter = ScatterSizeFontDialog::getInstance(m_window.get());
        scatter.launch();
        QApplication::setActiveWindow(&scatter);
        scatter.close();
        ColorChooserWidget chooser(nullptr, true, ShowHelpButton_Yes);
        ZoneSelectDialog::getInstance(m_window.get());
        const CvlInt64 reads = CvlAppGetReadCount();
        host::Document::instance().execute(host::RenameVariable {6, "Rho"});
        sdk::ui::writeStyle(style::globalScatter.var, nullptr, 6);
        QTest::qWait(10);
        QCOMPARE(CvlAppGetReadCount(), reads);
    }

private:
    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(TestPrompts)
#include "tst_prompts.moc"
