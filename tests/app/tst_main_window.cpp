// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/busy_cursor.h"
#include "app/command_line.h"
#include "app/data_adding.h"
#include "app/data_commands.h"
#include "app/data_opening.h"
#include "app/details/details_dock.h"
#include "app/main_window.h"
#include "app/notice_bar.h"
#include "app/program.h"
#include "app/recent_files.h"
#include "app/style_dialog.h"
#include "app/user_settings.h"
#include "app/window_memory.h"
#include "app/window_place.h"
#include "host/document/document.h"
#include "host/storage/document_file.h"
#include "play/dialog_driver.h"
#include "play/idle.h"
#include "play/input.h"
#include "play/style_report.h"
#include "plot/frame_view.h"
#include "plot/stored_view.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"
#include "tests/support/modal_responder.h"
#include "tests/support/rows.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

using namespace corvala;
using namespace corvala::app;
using namespace corvala::tests;
using host::Document;

static host::Frame& frame()
{
    return *Document::instance().activeFrame();
}

static QString sample(const char* file)
{
    return QStringLiteral(CORVALA_SAMPLES "/") + QLatin1String(file);
}

static void write(const host::SetStyle& style)
{
    QVERIFY(Document::instance().execute(style).isDone());
}

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("CORVALA_READ", CORVALA_READ); }
    void init()
    {
        userSettings().remove(QStringLiteral("windows"));
        Document::instance().clear();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void showsTheDocument()
    {
        QCOMPARE(m_window->windowTitle(), QStringLiteral("corvala"));
        QVERIFY(!layer("ShowMesh").isVisible());
        const auto* page = m_window->findChild<QWidget*>(QStringLiteral("startPage"));
        for (QToolButton* entry : page->findChildren<QToolButton*>())
            if (entry->text().startsWith(QLatin1String("2D field")))
                QTest::keyClick(entry, Qt::Key_Return);
        play::waitUntilIdle();
        QVERIFY(!page->isVisible());
        QVERIFY(m_window->windowTitle().endsWith(QLatin1String(" - corvala")));
        QVERIFY(layer("ShowMesh").isVisible() && layer("ShowMesh").isChecked());
        QVERIFY(!layer("ShowContour").isChecked());
        QVERIFY(!layer("ShowLines").isVisible());
        QVERIFY(!m_window->findChild<QSlider*>(QStringLiteral("solutionTime"))->isVisible());
    }

    void keepsDocuments()
    {
        const QTemporaryDir folder;
        QFile table(folder.filePath("a.csv"));
        QVERIFY(table.open(QIODevice::WriteOnly) && table.write("t,x\n0,1\n1,2\n2,4\n") > 0);
        table.close();
        QSignalSpy ended(m_window.get(), &MainWindow::openingEnded);
        const auto open = [&](const char* file) {
            m_window->openFiles({folder.filePath(file)});
            QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
            ended.clear();
            play::waitUntilIdle();
        };
        const auto thicken = [](double thickness) {
            write({host::pathOf(style::lineMap.lines.lineThickness), thickness, host::allUpTo(1)});
        };
        ModalResponder responder;
        const auto choose = [&](const QString& path) {
            responder.answer([=](QDialog& dialog) {
                dialog.findChild<QLineEdit*>()->setText(path);
                dialog.accept();
            });
        };
        const auto press = [&](const char* text) {
            responder.answer([=](QDialog& dialog) {
                for (auto* button : dialog.findChildren<QPushButton*>())
                    if (button->text().remove('&') == QLatin1String(text))
                        button->click();
            });
        };
        m_window->askBeforeLosing();
        open("a.csv");
        QVERIFY(!m_window->isWindowModified());
        thicken(2.0);
        QVERIFY(m_window->isWindowModified());
        choose(folder.filePath("x.v2"));
        layer("document-save").trigger();
        QCOMPARE(m_window->windowTitle(), QStringLiteral("x.v2.cvdoc[*] - corvala"));
        QVERIFY(!m_window->isWindowModified());
        const QString file = folder.filePath("x.cvdoc");
        QCOMPARE(host::storage::saveDocument(Document::instance(), file), QString());
        QCOMPARE(m_window->windowTitle(), QStringLiteral("x.cvdoc[*] - corvala"));
        thicken(3.0);
        QVERIFY(m_window->isWindowModified());
        Document::instance().undo().undo();
        QVERIFY(!m_window->isWindowModified());
        thicken(4.0);
        const plot::FrameView& view = *m_window->findChild<plot::FrameView*>();
        view.canvas()->setView(
            plot::viewOf(R"({"first": [[0.5, 1.5]], "second": [[1, 3.1]]})", PlotType_LineXY));
        const std::string seen = plot::viewText(view.canvas()->view(), PlotType_LineXY);
        press("Cancel");
        QVERIFY(!m_window->close());
        QFile other(file);
        QVERIFY(other.open(QIODevice::Append) && other.write("\n") == 1);
        other.close();
        press("Save");
        press("Cancel"); // as another program has written the file
        QVERIFY(!m_window->close());
        press("Save");
        press("Overwrite");
        layer("document-new").trigger();
        QCOMPARE(m_window->windowTitle(), QStringLiteral("corvala"));
        QVERIFY(!frame().hasData());
        // The data move.
        QVERIFY(QDir(folder.path()).mkdir("b")
                && QFile::rename(folder.filePath("a.csv"), folder.filePath("b/a.csv")));
        press("Look Elsewhere...");
        choose(folder.filePath("b"));
        open("x.cvdoc");
        QCOMPARE(m_window->windowTitle(), QStringLiteral("x.cvdoc[*] - corvala"));
        QCOMPARE(frame().lineReal(style::lineMap.lines.lineThickness, 1), 4.0);
        QVERIFY(!seen.empty());
        QCOMPARE(plot::viewText(view.canvas()->view(), PlotType_LineXY), seen);
        thicken(5.0);
        press("Discard");
        layer("closeData").trigger(); // and with them the file
        QCOMPARE(m_window->windowTitle(), QStringLiteral("corvala"));
        press("Look Elsewhere...");
        choose(folder.filePath("b"));
        open("x.cvdoc");
        QVERIFY(QFile::copy(folder.filePath("b/a.csv"), folder.filePath("c.csv")));
        press("Discard");
        open("c.csv"); // other data begin another document
        QVERIFY(!m_window->windowTitle().contains("x.cvdoc") && !m_window->isWindowModified());
        QVERIFY(m_window->close());
        QVERIFY(responder.isSettled());
    }

    void savesThePicture()
    {
        const QTemporaryDir folder;
        m_window->openDemo(QStringLiteral("xy"));
        play::waitUntilIdle();
        const auto save = [&](double before, double width) {
            ModalResponder responder;
            responder.answer([&](QDialog& dialog) {
                dialog.findChild<QLineEdit*>()->setText(folder.filePath(QString::number(width)));
                dialog.accept();
            });
            responder.answer([=](QDialog& dialog) {
                auto* field = dialog.findChild<QDoubleSpinBox*>(QStringLiteral("picture/width"));
                QCOMPARE(field->value(), before);
                auto* dots =
                    dialog.findChild<QDoubleSpinBox*>(QStringLiteral("picture/resolution"));
                dots->findChild<QLineEdit*>()->setText(QStringLiteral("6000"));
                const auto labels = dialog.findChildren<QLabel*>();
                QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
                    return label->text().endsWith(QLatin1String(" 10 to 2400 dpi"));
                }));
                dots->setValue(300.0);
                field->setValue(width);
                dialog.accept();
            });
            layer("savePicture").trigger();
            return responder.isSettled();
        };
        userSettings().remove(QStringLiteral("picture"));
        QVERIFY(save(160.0, 254.0) && save(254.0, 160.0));
        QCOMPARE(QImage(folder.filePath(QStringLiteral("254.png"))).width(), 3000);
    }

    void accessKeysAreUnique()
    {
        QStringList texts;
        for (const QAction* menu : m_window->menuBar()->actions())
            texts << menu->text();
        for (const QLabel* label : m_window->findChildren<QLabel*>()) {
            if (label->buddy() && label->isVisible())
                texts << label->text();
        }
        QSet<QString> keys;
        for (const QString& text : texts) {
            const QString key = QKeySequence::mnemonic(text).toString();
            QVERIFY2(!key.isEmpty() && !keys.contains(key), qPrintable(text));
            keys << key;
        }
    }

    /// A drawing that is missing is blank.
    void commandsSayWhatTheyDo()
    {
        m_window->openDemo(QStringLiteral("kinds"));
        play::waitUntilIdle();
        QList<QMenu*> menus = m_window->menuBar()->findChildren<QMenu*>();
        for (const QAction* const entry : m_window->menuBar()->actions())
            menus << entry->menu();
        for (const QMenu* const menu : std::as_const(menus)) {
            for (const QAction* command : menu->actions()) {
                const QByteArray name = command->text().toUtf8();
                QVERIFY2(command->isSeparator() || command->menu()
                             || !command->statusTip().isEmpty(),
                         name);
                QVERIFY2(command->icon().isNull() || isDrawn(command->icon()), name);
                QVERIFY2(command->toolTip().contains(
                             command->shortcut().toString(QKeySequence::NativeText)),
                         name);
            }
        }
    }

    void layersAndPlotTypeChangeTheDocument()
    {
        m_window->openDemo(QStringLiteral("field3d"));
        layer("ShowContour").trigger();
        QVERIFY(frame().isOn(style::fieldLayers.showContour));
        auto* types = m_window->findChild<QComboBox*>(QStringLiteral("plotType"));
        play::waitUntilIdle();
        QCOMPARE(types->currentText(), QStringLiteral("3D field plot"));
        types->setFocus();
        play::pressKey(types, Qt::Key_Up);
        play::waitUntilIdle();
        QCOMPARE(frame().plotType(), PlotType_Field2D);
    }

    /// Each button mends what its note says, and then comes what else there is to say.
    void layersThatShowNothingSayWhy()
    {
        m_window->openDemo(QStringLiteral("field3d"));
        play::waitUntilIdle();
        host::NumberSet flat;
        for (const std::uint32_t map : frame().activeFieldMaps())
            if (!frame().fieldMaps().hasVolumeZones(map))
                flat.add(map);
        QVERIFY(Document::instance().execute(host::DeleteMaps {flat}).isDone());
        const host::NumberSet maps = frame().activeFieldMaps();
        for (int group = 1; group <= 8; ++group)
            write({{"ContourGroups", "Var"}, 0.0, {}, group});
        write({{"FieldMap", "Contour", "Show"}, false, maps});
        write({{"ActiveFieldMaps"}, host::NumberSet()});
        layer("ShowContour").trigger();
        for (const auto& [text, caption] :
             {std::pair("No zone is active", "Activate All Zones"),
              std::pair("no active zone shows it", "Show in All Zones"),
              std::pair("No zone draws its surfaces", "Draw Surfaces"),
              std::pair("No variable is chosen", "Choose Variables")}) {
            QVERIFY2(shownTexts().contains(QLatin1String(text)), qPrintable(shownTexts()));
            QVERIFY2(button(caption), caption);
            button(caption)->click();
            play::waitUntilIdle();
            QVERIFY2(!button(caption), caption);
        }
        QCOMPARE(frame().activeFieldMaps(), maps);
        QVERIFY(!shownTexts().contains(QLatin1String("layer")));

        layer("ShowContour").trigger();
        layer("UseLightingEffect").trigger();
        QVERIFY(button("Show Shade"));
        button("Show Shade")->click();
        play::waitUntilIdle();
        QVERIFY(frame().isOn(style::fieldLayers.showShade) && !button("Show Shade"));

        for (const char* component : {"UVar", "VVar", "WVar"})
            write({{"GlobalVector", component}, 0.0});
        layer("ShowVector").trigger();
        QVERIFY(button("Choose Variables"));
        {
            tests::ModalResponder responder;
            responder.reject();
            button("Choose Variables")->click();
            QVERIFY(responder.isSettled());
        }
        write({{"GlobalVector", "UVar"}, 4.0});
        play::waitUntilIdle();
        QVERIFY(!button("Choose Variables"));

        // A note goes when it is true no longer.
        write({{"FieldMap", "Mesh", "Show"}, false, maps});
        QTRY_VERIFY(button("Show in All Zones"));
        layer("ShowMesh").trigger();
        QVERIFY(!button("Show in All Zones"));
        layer("ShowMesh").trigger();
        QVERIFY(button("Show in All Zones"));
        Document::instance().undo().undo();
        Document::instance().undo().undo();
        Document::instance().undo().undo();
        play::waitUntilIdle();
        QVERIFY(!button("Show in All Zones"));

        m_window->openDemo(QStringLiteral("xy"));
        play::waitUntilIdle();
        write({{"ActiveLineMaps"}, host::NumberSet()});
        QTRY_VERIFY(button("Activate All Line Maps"));
        button("Activate All Line Maps")->click();
        QCOMPARE(frame().activeLineMaps(), host::allUpTo(6));
    }

    void picturesThatMakeWonderSayWhy()
    {
        m_window->openDemo(QStringLiteral("field3d"));
        write({{"Slices", "Position"}, 1e9, {}, 1});
        write({{"Slices", "AutomaticPosition"}, false, {}, 1});
        write({{"Slices", "Show"}, true, {}, 1});
        QTRY_VERIFY(button("Move It to the Middle"));
        QVERIFY2(shownTexts().contains(QLatin1String("Slice 1 at X = 1e+09")),
                 qPrintable(shownTexts()));
        button("Move It to the Middle")->click();
        QTRY_VERIFY(!button("Move It to the Middle"));
        QVERIFY(!shownTexts().contains(QLatin1String("Slice 1")));
        write({{"FieldMap", "Contour", "FloodColoring"},
               double {ContourColoring_Group2},
               frame().activeFieldMaps()});
        write({{"FieldLayers", "ShowContour"}, true});
        write({{"ContourGroups", "MoreLines"}, std::string("1 two"), {}, 2});
        QTRY_VERIFY(button("Plot Details..."));
        button("Plot Details...")->click();
        play::waitUntilIdle();
        const auto indexes =
            m_window->findChild<DetailsDock*>()->findChildren<QComboBox*>(QStringLiteral("index"));
        QVERIFY(std::any_of(indexes.begin(), indexes.end(), [](const QComboBox* index) {
            return index->isVisible() && index->currentIndex() == 1;
        }));
    }

    /// Each click is a step, until Esc lets the tool go.
    void seedsAreClickedInThePlot()
    {
        m_window->openDemo(QStringLiteral("field3d"));
        auto* details = m_window->findChild<DetailsDock*>();
        m_window->findChild<QToolButton*>(QStringLiteral("otherDetails"))
            ->menu()
            ->actions()
            .value(4)
            ->trigger();
        play::waitUntilIdle();
        auto* pick = details->findChild<QPushButton*>(QStringLiteral("pick"));
        auto* view = m_window->findChild<plot::FrameView*>();
        QWidget* target = view->childAt(view->rect().center());
        const auto seeds = [] {
            const auto& text = std::get<std::string>(
                frame().values().get(host::Schema::instance().at(style::streamtraces.points)));
            return text.empty() ? 0 : QString::fromStdString(text).count(' ') / 3 + 1;
        };
        const auto click = [&](const QPoint& beside) {
            QTest::mouseClick(target, Qt::LeftButton, {}, target->rect().center() + beside);
            play::waitUntilIdle();
        };
        pick->click();
        const int steps = Document::instance().undo().stepCount();
        click({});
        click({10, 5});
        QCOMPARE(seeds(), 2);
        QVERIFY(frame().isOn(style::streamtraces.show));
        QCOMPARE(Document::instance().undo().stepCount(), steps + 2);
        click(target->rect().topLeft() - target->rect().center() + QPoint(2, 2)); // beside all
        QCOMPARE(seeds(), 2);
        play::pressKey(target, Qt::Key_Escape);
        QVERIFY(!pick->isChecked());
        QSignalSpy picks(view, &plot::FrameView::zonePicked);
        click({});
        QCOMPARE(seeds(), 2);
        QCOMPARE(picks.size(), 1);
        Document::instance().undo().undo();
        QCOMPARE(seeds(), 1);
        // A point goes before what is none, and what is picked does not outlive its data.
        const auto path = host::pathOf(style::streamtraces.points);
        Document::instance().execute(host::SetStyle {path, std::string("1 2 3 4 none")});
        pick->click();
        click({});
        const auto written = Document::instance().read(Document::instance().activeFrameId(),
                                                       style::streamtraces.points);
        const QString text = QString::fromStdString(std::get<std::string>(*written));
        QVERIFY2(text.startsWith("1 2 3 ") && text.endsWith(" 4 none"), qPrintable(text));
        m_window->openDemo(QStringLiteral("field2d"));
        play::waitUntilIdle();
        QVERIFY(!pick->isChecked());
    }

    void rightClickOffersWhatIsThere_data()
    {
        const Rows<const char*, const char*, const char*> row;
        row("hide a zone", "field2d", "&Hide This Zone", "1-2,4-12");
        row("show a zone only", "field2d", "Show &Only This Zone", "3");
        row("hide a line", "xy", "&Hide This Line", "1-2,4-6");
        row("pick", "field2d", "&Pick This Zone", "all");
    }
    /// One step each; the menu goes with the data that it is about.
    void rightClickOffersWhatIsThere()
    {
        const auto [demo, command, left] = currentRow<const char*, const char*, const char*>();
        m_window->openDemo(QLatin1String(demo));
        play::waitUntilIdle();
        auto* view = m_window->findChild<plot::FrameView*>();
        const auto menu = [&] { return m_window->findChild<QMenu*>(QStringLiteral("plotMenu")); };
        const auto active = [] {
            return host::toText(frame().isFieldPlot() ? frame().activeFieldMaps()
                                                      : frame().activeLineMaps(),
                                frame().shownMapCount());
        };
        Q_EMIT view->menuWanted(3, m_window->geometry().center());
        const QList<QAction*> actions = menu()->actions();
        const auto found = std::find_if(actions.begin(), actions.end(), [&](const QAction* action) {
            return action->text() == QLatin1String(command);
        });
        QVERIFY(found != actions.end());
        const int steps = Document::instance().undo().stepCount();
        (*found)->trigger();
        menu()->close();
        play::waitUntilIdle();
        QCOMPARE(active(), std::string(left));
        const bool picks = std::string(left) == "all";
        QCOMPARE(Document::instance().undo().stepCount(), steps + (picks ? 0 : 1));
        QCOMPARE(m_window->findChild<QLabel*>(QStringLiteral("picked"))->text().isEmpty(), !picks);
        Q_EMIT view->menuWanted(3, m_window->geometry().center());
        QVERIFY(menu());
        m_window->openDemo(QStringLiteral("transient"));
        play::waitUntilIdle();
        QTRY_VERIFY(!menu());
    }

    void undoIsNamedAndWorksByShortcut()
    {
        m_window->openDemo(QStringLiteral("field2d"));
        play::waitUntilIdle();
        const QAction* edit = m_window->menuBar()->actions().value(1);
        const QAction* undo = edit->menu()->actions().value(0);
        QVERIFY(!undo->isEnabled());
        layer("ShowShade").trigger();
        play::waitUntilIdle();
        QVERIFY2(undo->isEnabled() && undo->text().contains(QLatin1String("hade")),
                 qPrintable(undo->text()));
        play::pressKeys(m_window.get(), QKeySequence(QKeySequence::Undo));
        QVERIFY(!frame().isOn(style::fieldLayers.showShade));
        play::pressKeys(m_window.get(), QKeySequence(QStringLiteral("Ctrl+Y")));
        QVERIFY(frame().isOn(style::fieldLayers.showShade));
        host::DataOrigin origin;
        origin.demo = "transient";
        QString problem;
        QVERIFY(addToFrame({origin, embeddedData(origin, problem)}).isDone());
        play::waitUntilIdle();
        QCOMPARE(undo->text(), QStringLiteral("&Undo Add data")); // with the look of the zones
    }

    void typingIsNoChoice()
    {
        m_window->openDemo(QStringLiteral("field2d"));
        play::waitUntilIdle();
        auto* variable = m_window->findChild<QComboBox*>(QStringLiteral("contourVariable"));
        const QString drawn = variable->currentText();
        for (const auto& [typed, escapes] : {std::pair(Qt::Key_Y, true), std::pair(Qt::Key_Q, true),
                                             std::pair(Qt::Key_Q, false)}) { // Y is found
            variable->setFocus();
            variable->lineEdit()->selectAll();
            play::pressKey(variable->lineEdit(), typed);
            QVERIFY(variable->currentText() != drawn);
            if (escapes)
                play::pressKey(variable->lineEdit(), Qt::Key_Escape);
            else
                m_window->findChild<QComboBox*>(QStringLiteral("plotType"))->setFocus();
            QCOMPARE(variable->currentText(), drawn);
        }
        variable->setFocus();
        variable->lineEdit()->selectAll();
        for (const Qt::Key key : {Qt::Key_Y, Qt::Key_Down, Qt::Key_Return})
            play::pressKey(variable->lineEdit(), key);
        QCOMPARE(frame().integer(style::contourGroups.var, 1), 2);
        QCOMPARE(variable->currentText(), QStringLiteral("2: Y"));
    }

    void sliderGoesThroughTheTimes()
    {
        m_window->openDemo(QStringLiteral("transient"));
        play::waitUntilIdle();
        auto* slider = m_window->findChild<QSlider*>(QStringLiteral("solutionTime"));
        QVERIFY(slider->isVisible());
        QCOMPARE(slider->maximum(), 3);
        slider->setFocus();
        play::pressKey(slider, Qt::Key_End);
        QCOMPARE(frame().solutionTime(), 3.0);
        play::pressKey(slider, Qt::Key_Left);
        QCOMPARE(frame().solutionTime(), 2.0);
        for (const auto& [name, time] : {std::pair("timeLater", 3.0), std::pair("timeEarlier", 2.0),
                                         std::pair("timeFirst", 0.0), std::pair("timeLast", 3.0)}) {
            play::waitUntilIdle();
            layer(name).trigger();
            QCOMPARE(frame().solutionTime(), time);
        }
        play::waitUntilIdle();
        auto* entry = m_window->findChild<QDoubleSpinBox*>(QStringLiteral("timeEntry"));
        entry->setFocus();
        entry->findChild<QLineEdit*>()->setText(QStringLiteral("0.6"));
        play::pressKey(entry, Qt::Key_Return);
        QCOMPARE(frame().solutionTime(), 1.0); // the nearest one
        layer("timePlay").trigger();
        QTRY_COMPARE(frame().solutionTime(), 3.0);
        QTRY_COMPARE(layer("timePlay").text(), QStringLiteral("&Play")); // it ended by itself
        layer("timeLoop").trigger();
        for (const char* const command : {"copyPicture", "savePicture", "addData"}) {
            layer("timePlay").trigger();
            QCOMPARE(layer("timePlay").text(), QStringLiteral("Sto&p"));
            ModalResponder responder;
            responder.answer([](QDialog& dialog) { dialog.reject(); });
            layer(command).trigger();
            QCOMPARE(layer("timePlay").text(), QStringLiteral("&Play"));
        }
        Document::instance().execute(host::SetSolutionTime {1.5});
        play::waitUntilIdle();
        QCOMPARE(slider->value(), 1);
        QCOMPARE(frame().solutionTime(), 1.5);
    }

    /// The zones of the data lie on a grid that fills the canvas; the middle is between four of
    /// them.
    void doubleClickOnAZoneOpensItsStyle()
    {
        m_window->openDemo(QStringLiteral("field2d"));
        play::waitUntilIdle();
        auto* view = m_window->findChild<plot::FrameView*>();
        QVERIFY(view);
        QSignalSpy picks(view, &plot::FrameView::zonePicked);
        QWidget* target = view->childAt(view->rect().center());
        play::doubleClick(target, target->rect().center() + QPoint(target->width() / 16, 5));
        QTRY_VERIFY(!picks.isEmpty() && picks.last().at(1).toBool());
        const auto zone = picks.last().at(0).toLongLong();
        QVERIFY(zone > 0);
        play::waitUntilIdle();
        const play::DialogDriver driver;
        QVERIFY(driver.instance() && driver.instance()->isVisible());
        QCOMPARE(play::selectedMaps(driver), QString::number(zone));
        QVERIFY2(driver.dialog().x() > m_window->geometry().center().x(), "the plot stays in view");
    }

    /// It becomes wider with the tabs of the other plot types.
    void dialogBesideThePlotStaysOnTheScreen()
    {
        const QRect screen = m_window->screen()->availableGeometry();
        m_window->openStyleDialogWithData(); // which come now
        for (const char* demo : {"field2d", "field3d", "xy"}) {
            m_window->openDemo(QLatin1String(demo));
            play::waitUntilIdle();
            const QRect dialog = play::DialogDriver().dialog().frameGeometry();
            QVERIFY2(screen.contains(dialog), demo);
            const QRect plot(m_window->centralWidget()->mapToGlobal({}),
                             m_window->centralWidget()->size());
            QVERIFY2(2 * (dialog & plot).width() <= plot.width(), demo);
            auto* bar = m_window->findChild<QToolBar*>(QStringLiteral("plotBar"));
            QAction& last = layer(frame().isFieldPlot() ? "UseLightingEffect" : "ShowLines");
            QVERIFY2(bar->widgetForAction(&last)->isVisible(), demo);
        }
    }

    /// What the former run left is there again, on the screen.
    void windowsComeBack()
    {
        m_window = std::make_unique<MainWindow>();
        m_window->restore();
        m_window->show();
        m_window->openDemo(QStringLiteral("field3d"));
        layer("styleDialog").trigger();
        QWidget* dialog = existingStyleDialog();
        QVERIFY(dialog && dialog->isVisible() && layer("styleDialog").isChecked());
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        dialog->resize(dialog->minimumSizeHint() + QSize(20, 20));
        dialog->move(-50, 40);
        m_window->resize(700, 600);
        m_window->findChild<DetailsDock*>()->show();
        const QSize size = dialog->size();
        {
            const WindowMemory memory(*m_window, m_window->styleDialogCommand());
            layer("styleDialog").trigger();
            play::waitUntilIdle();
            m_window->close();
        }
        QVERIFY(!wasStyleDialogOpen());
        Document::instance().clear();
        m_window = std::make_unique<MainWindow>();
        m_window->restore();
        m_window->show();
        QCOMPARE(m_window->size(), QSize(700, 600));
        QVERIFY(!m_window->findChild<DetailsDock*>()->isVisible());
        m_window->openDemo(QStringLiteral("field3d"));
        play::waitUntilIdle();
        QVERIFY(m_window->findChild<DetailsDock*>()->isVisible());
        layer("styleDialog").trigger();
        dialog = existingStyleDialog();
        QCOMPARE(dialog->size(), size);
        QVERIFY(m_window->screen()->availableGeometry().contains(dialog->frameGeometry()));
        // A size that is the screen's does not take the place of the user's.
        const QRect large(10, 20, 9000, 8000);
        m_window.reset();
        userSettings().setValue(QStringLiteral("windows/mainPlace"), large);
        m_window = std::make_unique<MainWindow>();
        m_window->restore();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        play::waitUntilIdle();
        QVERIFY(m_window->screen()->availableGeometry().contains(m_window->frameGeometry()));
        m_window->move(5, 6);
        play::waitUntilIdle();
        m_window->close();
        QCOMPARE(userSettings().value(QStringLiteral("windows/mainPlace")).toRect(),
                 QRect({5, 6}, large.size()));
    }

    void placesAreOnAScreen_data()
    {
        const Rows<QRect, QRect> row;
        row("as it was", {100, 50, 300, 200}, {100, 50, 300, 200});
        row("beyond the edge", {900, -20, 300, 200}, {700, 0, 300, 200});
        row("larger than the screen", {-10, 0, 1500, 800}, {0, 0, 1000, 600});
        row("on the other screen", {1200, 10, 300, 200}, {1200, 100, 300, 200});
        row("far from all", {5000, 5000, 300, 200}, {1500, 700, 300, 200});
    }

    void placesAreOnAScreen()
    {
        const auto [area, expected] = currentRow<QRect, QRect>();
        QCOMPARE(fitted(area, {{0, 0, 1000, 600}, {1000, 100, 800, 800}}), expected);
    }

    void waitCursorShowsWhileTheLoopIsHeldUp()
    {
        BusyCursor cursor;
        play::waitUntilIdle();
        QVERIFY(!cursor.isShown());
        for (int i = 0; i < 1000 && !cursor.isShown(); ++i)
            QThread::msleep(10);
        QVERIFY(cursor.isShown());
        QTRY_VERIFY(!cursor.isShown());
    }

    void commandsHaveTheirKeysInTheDialogToo()
    {
        m_window->openDemo(QStringLiteral("kinds"));
        m_window->openStyleDialog(corvala::dialogs::common::DialogInitialization_None);
        play::waitUntilIdle();
        auto* const variable = m_window->findChild<QComboBox*>(QStringLiteral("contourVariable"));
        variable->setFocus();
        play::pressKeys(variable, QKeySequence(QStringLiteral("Ctrl+E")));
        QVERIFY(!existingStyleDialog()->isVisible());
        play::pressKeys(variable, QKeySequence(QStringLiteral("Ctrl+E")));
        QVERIFY(existingStyleDialog()->isVisible());
        m_window->activateWindow();
        play::pressKey(variable, Qt::Key_Escape);
        QVERIFY(!variable->hasFocus());
        layer("ShowContour").trigger();
        const play::DialogDriver driver;
        play::pressKeys(&driver.dialog(), QKeySequence(QKeySequence::Undo));
        QVERIFY(!frame().isOn(style::fieldLayers.showContour));
        play::pressKeys(&driver.dialog(), QKeySequence(QKeySequence::Quit));
        play::waitUntilIdle();
        QVERIFY(!m_window->isVisible());
    }

    void readsWhileTheWindowLives()
    {
        m_window->openDemo(QStringLiteral("field2d"));
        play::waitUntilIdle();
        QSignalSpy ended(m_window.get(), &MainWindow::openingEnded);
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(sample("naca_transient"))});
        QWidget* canvas = m_window->childAt(m_window->rect().center());
        QDragEnterEvent enter({}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(canvas, &enter);
        QDropEvent drop({}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QVERIFY(shownTexts().contains(QLatin1String("Drop to open naca_transient")));
        QApplication::sendEvent(canvas, &drop);
        QVERIFY(ended.isEmpty());
        QApplication::sendEvent(canvas, &enter);
        QDragMoveEvent move({}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(canvas, &move);
        QVERIFY(!move.isAccepted() && shownTexts().contains(QLatin1String(" is being read: ")));
        QDragLeaveEvent leave;
        QApplication::sendEvent(m_window.get(), &leave);
        QVERIFY(!shownTexts().contains(QLatin1String(" is being read: ")));
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
        play::waitUntilIdle();
        QVERIFY(frame().hasData());
        QVERIFY(m_window->findChild<QSlider*>(QStringLiteral("solutionTime"))->isVisible());
        QVERIFY(layer("ShowContour").isChecked()); // opened data show something
        ModalResponder responder;
        responder.answer([](QDialog& dialog) {
            const QString folder = static_cast<QFileDialog&>(dialog).directory().path();
            QVERIFY2(!folder.startsWith(sample("naca_transient")), qPrintable(folder));
            dialog.reject();
        });
        layer("document-save").trigger();
        QVERIFY(responder.isSettled());
    }

    void addedDataAreReadLikeThoseThatAreOpen()
    {
        NoticeBar notice;
        DataCommands commands(*m_window, notice);
        QSignalSpy ended(&commands.opener(), &DataOpener::ended);
        host::io::ReadRequest request;
        request.files << sample("cgns_hexa/cgnslib_vers-4400.cgns");
        request.choices.boundaryPatches = true;
        commands.open(request);
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
        const CvlInt64 zones = frame().data()->zoneCount();
        commands.open(request.files, {}, DataUse::Add);
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 2, 60000);
        QCOMPARE(frame().data()->zoneCount(), 2 * zones);
    }

    void cancelsReading()
    {
        m_window->openDemo(QStringLiteral("kinds"));
        QSignalSpy ended(m_window.get(), &MainWindow::openingEnded);
        m_window->openFiles({sample("naca_transient/naca.bin.case")});
        QCOMPARE(enabledOpenCommands(), 0);
        QPushButton* cancel = button("Cancel");
        QVERIFY(cancel);
        cancel->click();
        QTRY_VERIFY(!cancel->isVisible());
        play::waitUntilIdle();
        QCOMPARE(ended.size(), 1);
        QCOMPARE(ended.first().first().toBool(), false);
        QCOMPARE(enabledOpenCommands(), 6);
        QCOMPARE(frame().fieldMapCount(), CvlInt64(8));
        QVERIFY(!QApplication::activeModalWidget());
    }

    /// Also of a file that was named when the program was started.
    void failureLeavesTheDocument()
    {
        m_window->openDemo(QStringLiteral("kinds"));
        QSignalSpy ended(m_window.get(), &MainWindow::openingEnded);
        Options options;
        options.files << QStringLiteral("/nowhere/wing.cgns");
        startInteractive(*m_window, options);
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        QVERIFY2(box->text().contains(QLatin1String("wing.cgns")), qPrintable(box->text()));
        box->close();
        QVERIFY(m_window->isVisible());
        QCOMPARE(frame().fieldMapCount(), CvlInt64(8));
    }

    void tellsWhatPlot3DWasDetected()
    {
        QSignalSpy ended(m_window.get(), &MainWindow::openingEnded);
        m_window->openFiles({sample("combustor_plot3d/multi-bin.xyz")});
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
        const QString shown = shownTexts();
        QVERIFY2(shown.contains(QLatin1String("Detected: binary, several grids")),
                 qPrintable(shown));
        write({{"ActiveFieldMaps"}, host::NumberSet()});
        for (const bool isTold : {true, false}) { // which lies over the other note
            layer("ShowScatter").trigger();
            QCOMPARE(shownTexts().contains(QLatin1String("No zone is active")), isTold);
            QCOMPARE(shownTexts().contains(QLatin1String("Detected")), !isTold);
        }
        write({{"ActiveFieldMaps"}, host::allUpTo(2)});

        // Another file that fails in between does not take the place of these data.
        m_window->openFiles({QStringLiteral("/nowhere/wing.cgns")});
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 2, 60000);
        QApplication::activeModalWidget()->close();
        QPushButton* change = button("Change...");
        QVERIFY(change && change->isEnabled());
        QTimer::singleShot(0, m_window.get(), [] {
            qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept();
        });
        change->click();
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 3, 60000);
        QCOMPARE(ended.last().first().toBool(), true);
        m_window->openDemo(QStringLiteral("kinds"));
        QVERIFY(!shownTexts().contains(QLatin1String("Detected")));
        rememberFiles({QStringLiteral("/a")});
        rememberFiles({sample("combustor_plot3d/multi-bin.xyz")});
        QCOMPARE(recentFiles().mid(0, 2),
                 (QList<QStringList> {{sample("combustor_plot3d/multi-bin.xyz")}, {"/a"}}));
        QCOMPARE(recentFiles().count({"/a"}), 1);
    }

    /// The values of both times are missing.
    void listsWhatWasLeftOut()
    {
        QTemporaryDir folder;
        for (const char* const name : {"naca.bin.case", "naca.gold.bin.geo"})
            QVERIFY(QFile::copy(sample("naca_transient/") + name, folder.filePath(name)));
        QSignalSpy ended(m_window.get(), &MainWindow::openingEnded);
        m_window->openFiles({folder.filePath("naca.bin.case")});
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
        QVERIFY2(shownTexts().contains(" there is no such file. (and 1 more like it)"),
                 qPrintable(shownTexts()));
        button("Details...")->click();
        const auto* const list = QApplication::activeModalWidget()->findChild<QPlainTextEdit*>();
        QCOMPARE(list->toPlainText().count("DENS was left out at time"), 2);
        QApplication::activeModalWidget()->close();
        m_window->openDemo(QStringLiteral("kinds"));
        QVERIFY(!button("Details..."));
    }

    /// A table that can be meant in several ways, with a row that is bad in the way chosen.
    void asksHowTablesAreWritten()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("a.csv")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("1,2\n3,4\n").repeated(15) + "five,6\n");
        file.close();
        QSignalSpy ended(m_window.get(), &MainWindow::openingEnded);
        m_window->openFiles({file.fileName()});
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog && !frame().hasData());
        auto* header = dialog->findChild<QSpinBox*>(QStringLiteral("header"));
        auto* preview = dialog->findChild<QTableWidget*>();
        QVERIFY(header && preview);
        QCOMPARE(header->text(), QStringLiteral("detected: 0"));
        QCOMPARE(preview->rowCount(), 31);
        QCOMPARE(preview->item(1, 1)->text(), QStringLiteral("4"));
        QCOMPARE(preview->verticalHeaderItem(30)->text(), QStringLiteral("31 bad"));
        dialog->findChild<QSpinBox*>(QStringLiteral("data"))->setValue(2);
        header->setValue(1);
        QTRY_VERIFY(preview->horizontalHeaderItem(1)->text().startsWith(QLatin1String("2\n")));
        QTest::keyClick(preview, Qt::Key_Right);
        QTest::keyClick(preview, Qt::Key_Return);
        auto* kinds = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(kinds && kinds->actions().value(0)->isChecked());
        QTest::keyClick(kinds, Qt::Key_Up);
        QTest::keyClick(kinds, Qt::Key_Return);
        QTRY_VERIFY(
            preview->horizontalHeaderItem(1)->text().startsWith(QLatin1String("2\nleft out")));
        dialog->accept();
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 2, 60000);
        QTRY_VERIFY(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
        auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY2(question->informativeText().contains(QLatin1String("line 31, column 1 (1): ")),
                 qPrintable(question->informativeText()));
        question->buttons().value(0)->click();
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 3, 60000);
        QVERIFY(frame().hasData());
        QCOMPARE(int(frame().plotType()), int(PlotType_LineXY));
        QCOMPARE(int(frame().data()->zone(1).pointCount), 29);
        QCOMPARE(QString::fromStdString(frame().data()->variable(1).name), QStringLiteral("Row"));
        QVERIFY(button("Change..."));
    }

private:
    /// Of the commands in the File menu that bring data.
    int enabledOpenCommands() const
    {
        const QList<QAction*> commands =
            m_window->menuBar()->actions().value(0)->menu()->actions().mid(0, 6);
        return int(std::count_if(commands.begin(), commands.end(),
                                 [](const QAction* command) { return command->isEnabled(); }));
    }
    static bool isDrawn(const QIcon& icon)
    {
        const QImage image = icon.pixmap(24).toImage().convertToFormat(QImage::Format_Alpha8);
        const uchar* const pixels = image.constBits();
        return std::any_of(pixels, pixels + image.sizeInBytes(), [](uchar alpha) { return alpha; });
    }
    /// The visible one; null when there is none.
    QPushButton* button(const char* text) const
    {
        for (QPushButton* button : m_window->findChildren<QPushButton*>())
            if (button->isVisible() && button->text() == QLatin1String(text))
                return button;
        return nullptr;
    }
    QString shownTexts() const
    {
        QStringList texts;
        for (const QLabel* label : m_window->findChildren<QLabel*>())
            if (label->isVisible())
                texts << label->text();
        return texts.join(QLatin1Char('|'));
    }
    QAction& layer(const char* name) { return *m_window->findChild<QAction*>(QLatin1String(name)); }

    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_main_window.moc"
