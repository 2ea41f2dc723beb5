// SPDX-License-Identifier: BSD-3-Clause
#include "play/input.h"
#include "tests/support/document_fixture.h"
#include "tests/support/rows.h"

#include <sdk/common_ui/combo_box_auto_filter.h>

#include <sdk/base/cvl.h>
#include <sdk/dialogs_lineplot/curve_fit_settings_dialog.h>
#include <sdk/dialogs_lineplot/line_map_create_dialog.h>
#include <sdk/propertybindings/curve_fit_collection.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSpinBox>

#include <memory>
#include <utility>
#include <vector>

using namespace corvala;
using namespace corvala::tests;
using dialogs::lineplot::CurveFitSettingsDialog;
using dialogs::lineplot::LineMapCreateDialog;
using propertybindings::CurveFitCollection;
using propertybindings::CurveFitInfo;

using Settings = std::vector<std::pair<const char*, double>>;

static void setCurve(const toolbox::Set& maps, const char* name, double value)
{
    const style::Key key {host::Schema::instance().find({"LineMap", "Curves", name})};
    sdk::ui::writeStyle(key, &maps, value);
}

static QPushButton* buttonNamed(const QDialog& dialog, const QString& text)
{
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().remove('&') == text)
            return button;
    }
    return nullptr;
}

/// The field whose label has that mnemonic text.
template<class Field>
static Field* fieldLabelled(const QDialog& dialog, const QString& text)
{
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->text() == text)
            return qobject_cast<Field*>(label->buddy());
    }
    return nullptr;
}

static void replaceText(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

class TestLinePlotDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        tests::openDemo("xy");
        m_window = std::make_unique<QWidget>();
    }

    void cleanup() { m_window.reset(); }

    void collectionOffersTheFits()
    {
        const CurveFitCollection fits;
        QStringList names;
        for (const CurveFitInfo& fit : fits) {
            QVERIFY(fit.isValid());
            QVERIFY(!fit.icon().isNull());
            names << fit.name();
        }
        QCOMPARE(names,
                 QStringList({"Line segments", "Polynomial fit", "Exponential fit", "Power fit",
                              "Spline", "Parametric spline", "Smoothing spline", "Gaussian"}));
        QVERIFY(fits.get(1).icon().pixmap(16).toImage() != fits.get(3).icon().pixmap(16).toImage());
        QVERIFY(!fits.get(-1).isValid());
        QVERIFY(!fits.get(fits.size()).isValid());
    }

    void collectionFindsTheFitOfALineMap_data()
    {
        const Rows<int> row;
        for (int type = CurveType_LineSegments; type <= CurveType_Extended; ++type)
            row(QString::asprintf("%d", type), type);
    }

    void collectionFindsTheFitOfALineMap()
    {
        const auto [type] = currentRow<int>();
        setCurve(tests::setOf({2}), "CurveType", type);
        const CurveFitCollection fits;
        const CurveFitInfo fit = fits.curveFitForLineMap(CvlUtilFrameGetUniqueID(), 2);
        QCOMPARE(int(fit.type()), type);
        QVERIFY(!fit.name().isEmpty());
        QVERIFY(fit.isValid() && fit.curveFitAssigner());
        QCOMPARE(bool(fit.settingsDialogAction(CvlUtilFrameGetUniqueID(), tests::setOf({2}))),
                 type != CurveType_LineSegments);
        for (const CvlInt64 map : {0, 7})
            QVERIFY(!fits.curveFitForLineMap(CvlUtilFrameGetUniqueID(), map).isValid());
        QVERIFY(!fits.curveFitForLineMap(987654, 2).isValid());
    }

    void fitsAreEqualByType()
    {
        QVERIFY(CurveFitInfo(CurveType_Spline, "a") == CurveFitInfo(CurveType_Spline, "b"));
        QVERIFY(CurveFitInfo(CurveType_Spline, "a") != CurveFitInfo(CurveType_PowerFit, "a"));
        QVERIFY(CurveFitInfo(ExtendedFit_Gaussian, "a")
                != CurveFitInfo(ExtendedFit_SmoothingSpline, "a"));
        QVERIFY(CurveFitInfo() != CurveFitInfo(CurveType_LineSegments, {}));
    }

    void assignerWritesOnce()
    {
        const int steps = tests::undoSteps();
        CurveFitCollection().get(3).curveFitAssigner()(tests::setOf({1, 4, 6}));
        QCOMPARE(tests::undoSteps(), steps + 1);
        for (CvlInt64 map = 1; map <= 6; ++map)
            QCOMPARE(tests::lineValue("Curves", "CurveType", map),
                     map == 1 || map == 4 || map == 6 ? 3.0 : 0.0);
    }

    void details_data()
    {
        const Rows<Settings, QString> row;
        row("none", {{"CurveType", 0}}, "N/A");
        row("polynomial", {{"CurveType", 1}},
            "Order=3, Using all points, Not using weighting variable");
        row("polynomial with all",
            {{"CurveType", 1},
             {"PolyOrder", 5},
             {"UseIndVarRange", 1},
             {"IndVarMin", 0.5},
             {"IndVarMax", 2e7},
             {"UseWeightVar", 1},
             {"WeightVar", 5}},
            "Order=5, Points range=0.5,2e+07, Weighting variable=Error");
        row("power", {{"CurveType", 3}, {"PolyOrder", 5}},
            "Using all points, Not using weighting variable");
        row("smoothing spline", {{"ExtendedFit", 0}, {"Smoothing", 0.25}},
            "Closeness=0.25, Using all points, Not using weighting variable");
        row("Gaussian", {{"ExtendedFit", 1}}, "Using all points, Not using weighting variable");
        row("spline", {{"CurveType", 4}}, "Not clamped");
        row("clamped spline",
            {{"CurveType", 5}, {"ClampSpline", 1}, {"SplineDerivativeAtEnd", -1.25}},
            "Clamped: D1=0, D2=-1.25");
    }

    void details()
    {
        const auto [settings, text] = currentRow<Settings, QString>();
        for (const auto& [name, value] : settings)
            setCurve(tests::setOf({3}), name, value);
        const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
        const CurveFitInfo fit = CurveFitCollection().curveFitForLineMap(frame, 3);
        QCOMPARE(fit.detailsForLineMap(frame, 3), text);
        QCOMPARE(fit.detailsForLineMap(frame, 99), QString());
    }

    void createNeedsEveryChoice()
    {
        auto& dialog = LineMapCreateDialog::getInstance(m_window.get());
        dialog.launch();
        QPushButton* create = buttonNamed(dialog, "Create");
        QVERIFY(!create->isEnabled()); // no variable is chosen
        auto* list = dialog.findChild<QListView*>();
        list->selectAll();
        QVERIFY(create->isEnabled());
        host::Document::instance().clear();
        QTRY_VERIFY(!create->isEnabled());
        dialog.close();
    }

    void createDialogFollowsTheDocument()
    {
        auto& dialog = LineMapCreateDialog::getInstance(m_window.get());
        dialog.launch();
        auto* zone = fieldLabelled<ui::ComboBoxAutoFilter>(dialog, "&Zone:");
        play::enter(*zone, "3:");
        auto* list = fieldLabelled<QListView>(dialog, "&Y-axis variables:");
        list->selectionModel()->select(list->model()->index(2, 0), QItemSelectionModel::Select);
        host::Document::instance().execute(host::RenameZone {3, "Outlet"});
        QTRY_COMPARE(zone->currentText(), QString("3: Outlet")); // what was chosen stays chosen
        QCOMPARE(list->selectionModel()->selectedIndexes().size(), 1);
        QCOMPARE(list->selectionModel()->selectedIndexes().first().row(), 2);
        sdk::ui::writeStyle(style::plotType, nullptr, PlotType_LinePolar);
        QTRY_VERIFY(fieldLabelled<QListView>(dialog, "R&adius variables:"));
        dialog.close();
    }

    void settingsShowWhatTheTypeHas_data()
    {
        const Rows<int, bool, bool, bool> row;
        row("polynomial", 1, true, true, false);
        row("exponential", 2, false, true, false);
        row("power", 3, false, true, false);
        row("spline", 4, false, false, true);
        row("parametric spline", 5, false, false, true);
    }

    void settingsShowWhatTheTypeHas()
    {
        const auto [type, order, rangeAndWeight, clamp] = currentRow<int, bool, bool, bool>();
        setCurve(tests::setOf({1}), "CurveType", type);
        auto& dialog = launchSettings(tests::setOf({1}));
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.findChild<QSpinBox*>()->isVisible(), order);
        for (const QGroupBox* group : dialog.findChildren<QGroupBox*>())
            QCOMPARE(group->isVisible(), group->title().contains("lamp") ? clamp : rangeAndWeight);
        dialog.close();
    }

    void settingsGoToAllLineMapsInOneStep()
    {
        const toolbox::Set maps = tests::setOf({2, 5});
        setCurve(maps, "CurveType", CurveType_PolynomialFit);
        setCurve(tests::setOf({2}), "PolyOrder", 7);
        setCurve(tests::setOf({5}), "IndVarMin", -8);
        auto& dialog = launchSettings(maps);
        auto* order = dialog.findChild<QSpinBox*>();
        QCOMPARE(order->value(), 7); // of the first line map
        QTest::keyClick(order, Qt::Key_Down);
        auto* range = dialog.findChildren<QGroupBox*>().at(0);
        range->setChecked(true);
        replaceText(fieldLabelled<QLineEdit>(dialog, "&From:"), "0.125");
        replaceText(fieldLabelled<QLineEdit>(dialog, "&To:"), "1e3");
        const int steps = tests::undoSteps();
        QTest::mouseClick(buttonNamed(dialog, "Apply"), Qt::LeftButton);
        QVERIFY(dialog.isVisible());
        QCOMPARE(tests::undoSteps(), steps + 1);
        for (const CvlInt64 map : {2, 5}) {
            QCOMPARE(tests::lineValue("Curves", "PolyOrder", map), 6.0);
            QCOMPARE(tests::lineValue("Curves", "UseIndVarRange", map), 1.0);
            QCOMPARE(tests::lineValue("Curves", "IndVarMin", map), 0.125);
            QCOMPARE(tests::lineValue("Curves", "IndVarMax", map), 1000.0);
            QCOMPARE(tests::lineValue("Curves", "UseWeightVar", map), 0.0);
        }
        QCOMPARE(tests::lineValue("Curves", "PolyOrder", 1), 3.0);

        // A group that is off leaves its values as each line map has them.
        replaceText(fieldLabelled<QLineEdit>(dialog, "&To:"), "77");
        QCOMPARE(fieldLabelled<QLineEdit>(dialog, "&To:")->text(), QString("77"));
        range->setChecked(false);
        QTest::mouseClick(buttonNamed(dialog, "OK"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(tests::lineValue("Curves", "UseIndVarRange", 5), 0.0);
        QCOMPARE(tests::lineValue("Curves", "IndVarMax", 5), 1000.0);
    }

    void settingsRefuseIncompleteInput_data()
    {
        const Rows<QString, QString, bool> row;
        row("in order", "1", "2", true);
        row("a single point", "2", "2", true);
        row("ends before it begins", "2", "1", false);
        row("a group of digits", "1,500", "2000", false);
        row("half a number", "1", "3e", false);
    }

    void settingsRefuseIncompleteInput()
    {
        const auto [from, to, accepted] = currentRow<QString, QString, bool>();
        setCurve(tests::setOf({1}), "CurveType", CurveType_PowerFit);
        setCurve(tests::setOf({1}), "UseIndVarRange", 1);
        auto& dialog = launchSettings(tests::setOf({1}));
        replaceText(fieldLabelled<QLineEdit>(dialog, "&From:"), from);
        replaceText(fieldLabelled<QLineEdit>(dialog, "&To:"), to);
        QCOMPARE(buttonNamed(dialog, "OK")->isEnabled(), accepted);
        QCOMPARE(buttonNamed(dialog, "Apply")->isEnabled(), accepted);
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(dialog.isVisible(), !accepted);
        QCOMPARE(tests::lineValue("Curves", "IndVarMin", 1), accepted ? from.toDouble() : 0.0);
        dialog.close();
    }

    void settingsDoNotOpenForMixedLineMaps()
    {
        setCurve(tests::setOf({1}), "CurveType", CurveType_Spline);
        const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
        auto& dialog = CurveFitSettingsDialog::getInstance(m_window.get());
        dialog.launch(frame, tests::setOf({1, 2})); // different types
        dialog.launch(frame, tests::setOf({2})); // a type without settings
        dialog.launch(frame, tests::setOf({1, 99})); // not a line map
        dialog.launch(frame, toolbox::Set());
        dialog.launch(frame + 1, tests::setOf({1})); // not the active frame
        QVERIFY(!dialog.isVisible());
        CurveFitCollection().get(4).settingsDialogAction(frame, tests::setOf({1}))();
        QVERIFY(CurveFitSettingsDialog::getInstance(nullptr).isVisible());
        CurveFitSettingsDialog::getInstance(nullptr).close();
    }

    void settingsCloseWhenTheirLineMapsAreGone_data()
    {
        const Rows<QString, bool> row;
        row("another frame", "frame", true);
        row("line maps deleted", "delete", true);
        row("another curve type", "type", true);
        row("another line map's type", "other", false);
        row("document cleared", "clear", true);
    }

    void settingsCloseWhenTheirLineMapsAreGone()
    {
        const auto [change, closes] = currentRow<QString, bool>();
        setCurve(tests::setOf({1, 2}), "CurveType", CurveType_Spline);
        auto& dialog = launchSettings(tests::setOf({1, 2}));
        QVERIFY(dialog.isVisible());
        host::Document& document = host::Document::instance();
        if (change == "frame")
            document.execute(host::AddFrame {});
        else if (change == "delete")
            CvlUtilLineMapDelete(tests::setOf({4}).handle());
        else if (change == "clear")
            document.clear();
        else
            setCurve(tests::setOf({change == "type" ? 2 : 3}), "CurveType", CurveType_PowerFit);
        QCOMPARE(dialog.isVisible(), !closes);
        dialog.close();
    }

    void settingsFollowUndo()
    {
        setCurve(tests::setOf({1}), "CurveType", CurveType_PolynomialFit);
        setCurve(tests::setOf({1}), "PolyOrder", 8);
        auto& dialog = launchSettings(tests::setOf({1}));
        host::Document::instance().undo().undo();
        QCOMPARE(dialog.findChild<QSpinBox*>()->value(), 3);
        host::Document::instance().undo().undo(); // the fit itself
        QVERIFY(!dialog.isVisible());
    }

    void hiddenDialogsReadNothing()
    {
        setCurve(tests::setOf({1}), "CurveType", CurveType_Spline);
        launchSettings(tests::setOf({1})).close();
        auto& create = LineMapCreateDialog::getInstance(m_window.get());
        create.launch();
        create.close();
        const CurveFitCollection fits;
        const CvlInt64 reads = CvlAppGetReadCount();
        host::Document::instance().execute(host::RenameZone {1, "Inlet"});
        host::Document::instance().undo().undo();
        QTest::qWait(10);
        QCOMPARE(CvlAppGetReadCount(), reads);
    }

private:
    CurveFitSettingsDialog& launchSettings(const toolbox::Set& maps)
    {
        auto& dialog = CurveFitSettingsDialog::getInstance(m_window.get());
        dialog.launch(CvlUtilFrameGetUniqueID(), maps);
        QApplication::setActiveWindow(&dialog);
        return dialog;
    }

    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(TestLinePlotDialogs)
#include "tst_line_plot_dialogs.moc"
