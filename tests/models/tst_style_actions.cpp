// SPDX-License-Identifier: BSD-3-Clause
#include "tests/host/event_log.h"
#include "tests/models/table_fixture.h"
#include "tests/support/modal_responder.h"
#include "tests/support/rows.h"
#include "zonestyle/actions/curve_fit_settings_action.h"
#include "zonestyle/actions/enter_ascii_character_action.h"
#include "zonestyle/actions/enter_single_value_action.h"
#include "zonestyle/actions/enter_three_value_action.h"
#include "zonestyle/actions/map_activate_action.h"
#include "zonestyle/actions/map_rename_action.h"
#include "zonestyle/actions/prompt_parent.h"
#include "zonestyle/actions/select_color_action.h"
#include "zonestyle/actions/size_actions.h"
#include "zonestyle/actions/variable_select_action.h"
#include "zonestyle/actions/zone_select_action.h"
#include "zonestyle/models/field_static_area_model.h"
#include "zonestyle/models/line_static_area_model.h"

#include <sdk/base/cvl.h>
#include <sdk/dialogs_common/launch_help_action.h>
#include <sdk/dialogs_lineplot/curve_fit_settings_dialog.h>
#include <sdk/dialogs_prompt/enter_ascii_character_dialog.h>

#include <QAbstractButton>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QSpinBox>
#include <QTest>

using namespace corvala::tests;
using namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions;
using namespace corvala::sdk::ui::dialogs::zonestyle::intern::models;
using corvala::host::Document;
namespace style = corvala::style;

namespace {

/// A layer that is about to be shown. Letters: l the layer, s the surfaces; y and n.
struct LayerCase
{
    const char* category;
    const char* asked = "";
    const char* answers = "";
    bool surfacesDrawn = false; ///< in the end
    int surfaces = SurfacesToPlot_None;
    int points = PointsToPlot_SurfaceNodes;
    int zones = 1; ///< the first is a volume zone, the second is none
    char value = 1;
    const char* attribute = "Show";
};

} // namespace

static style::Key keyOf(const LayerCase& c)
{
    return {corvala::host::Schema::instance().find({"FieldMap", c.category, c.attribute})};
}

static QWidget* theDialog = nullptr;

/// Every action: what it asks, what it writes for which maps, and in how many steps.
class tst_StyleActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_user = std::make_unique<ModalResponder>(); }

    void cleanup()
    {
        QVERIFY(m_user->isSettled());
        m_user.reset();
        m_model.reset();
    }

    void doesNothingWithoutRows()
    {
        static constexpr ThreeValuePrompt kPrompt {"t", {{"a", "b", "c"}}, ""};
        const auto& assign = style::lineMap.assign;
        QVERIFY(openDemo("xy"));
        QList<Action*> actions {
            new Action("a", {}),
            new StyleAction<int>("a", {}, 1, assign.zone),
            new EnterSingleValueAction<int>("a", {}, "t", "l", 1, 2, assign.zone),
            new EnterThreeValueAction("a", {}, kPrompt,
                                      keysOf(style::lineMap.indices.ranges.iRange)),
            new EnterASCIICharacterAction({}, style::lineMap.symbols.symbolShape.asciiShape),
            new VariableSelectAction("a", {}, "t", "l", assign.xAxisVar),
            new ZoneSelectAction({}),
            new MapRenameAction({}, "name"),
            new CurveFitSettingsAction("a", {}),
            new MapActivateAction({}, MapActivateMode_ShowSelectedOnly, style::activeLineMaps),
        };
        for (Action* action : qAsConst(actions)) {
            action->setEnabled(true);
            action->trigger();
        }
        qDeleteAll(actions);
        QCOMPARE(takeWrites(), QString());
        QCOMPARE(m_user->takeSeen(), QStringList());
    }

    void asksBeforeShowingALayer_data()
    {
        const Rows<LayerCase> row;
        constexpr int none = SurfacesToPlot_None;
        constexpr int planes = SurfacesToPlot_IPlanes;
        constexpr int nodes = PointsToPlot_SurfaceNodes;
        constexpr int allNodes = PointsToPlot_AllNodes;
        constexpr int centers = PointsToPlot_SurfaceCellCenters;

        row("volume without surfaces", {"Mesh", "ls", "yy", true});
        row("surfaces refused", {"Mesh", "ls", "yn"});
        row("layer refused", {"Mesh", "l", "n"});
        row("surfaces are drawn", {"Shade", "l", "y", true, planes});
        row("edges need no surfaces", {"EdgeLayer", "l", "y"});
        row("vectors at all points", {"Vector", "l", "y", false, none, allNodes});
        row("symbols at surface points", {"Scatter", "ls", "yn", false, none, centers});
        row("points do not matter to meshes", {"Mesh", "ls", "yy", true, none, allNodes});
        row("a zone that is no volume", {"Mesh", "", "", false, none, nodes, 2});
        row("such a zone after surfaces", {"Mesh", "", "", true, planes, nodes, 2});
        row("hiding asks nothing", {"Mesh", "", "", false, none, nodes, 1, 0});
        row("lighting is no layer",
            {"Shade", "", "", false, none, nodes, 1, 1, "UseLightingEffect"});
    }

    void asksBeforeShowingALayer()
    {
        const auto [c] = currentRow<LayerCase>();
        QVERIFY(openDemo("field3d", c.zones));
        for (const char* name :
             {"ShowMesh", "ShowContour", "ShowVector", "ShowScatter", "ShowShade", "ShowEdge"})
            QVERIFY(setStyle(QString("FieldLayers.") + name, "", 0));
        QVERIFY(setStyle("FieldMap.Surfaces.SurfacesToPlot", "1", c.surfaces));
        QVERIFY(setStyle("FieldMap.Points.PointsToPlot", "1", c.points));
        QVERIFY(
            setStyle(QString("FieldMap.%1.%2").arg(c.category, c.attribute), "1", c.value ? 0 : 1));
        for (const char* answer = c.answers; *answer; ++answer)
            m_user->reply(*answer == 'y' ? "OK" : "cancel");

        StyleAction<char> action("Yes", fieldRows({0}), c.value, keyOf(c));
        action.trigger();

        QString asked;
        for (const QString& seen : m_user->takeSeen())
            asked += seen.startsWith("Show Layer:") ? 'l'
                : seen.startsWith("Show Surfaces:") ? 's'
                                                    : '?';
        QCOMPARE(asked, QString(c.asked));
        const QByteArray layer = "Show" + QByteArray(c.category).replace("Layer", "");
        QCOMPARE(CvlUtilFieldLayerIsActiveForFrame(CvlUtilFrameGetUniqueID(), layer),
                 CvlBool(*c.answers == 'y'));
        const QString written = QString("FieldMap.%1.%2 1 = %3")
                                    .arg(c.category, c.attribute, c.value ? "true" : "false");
        QVERIFY2(takeWrites().endsWith(written), "written last, whatever the answers");
        const corvala::toolbox::StyleValue surfaces(style::fieldMap.surfaces.surfacesToPlot);
        QCOMPARE(surfaces.read<int>(1).value_or(-1) != SurfacesToPlot_None, c.surfacesDrawn);
        QVERIFY(!QGuiApplication::overrideCursor());
        QVERIFY(!Document::instance().isLocked());
    }

    void asksForVectorVariables()
    {
        QVERIFY(openDemo("field3d", 1));
        for (const char* component : {"UVar", "VVar", "WVar"})
            QVERIFY(setStyle(QByteArray("GlobalVector.").append(component), "", 0));
        StyleAction<char> action("Yes", fieldRows({0}), 1, style::fieldMap.vector.show);
        m_user->accept().reject();
        action.trigger();
        QVERIFY(m_user->takeSeen().last().startsWith("Select Vector Variables: "));
        QVERIFY(!Document::instance().activeFrame()->isOn(style::fieldLayers.showVector));
    }

    void survivesItsMenu()
    {
        QVERIFY(openDemo("field3d", 1));
        QVERIFY(setStyle("FieldLayers.ShowMesh", "", 0));
        QVERIFY(setStyle("FieldMap.Mesh.Show", "1", 0));
        auto* action = new StyleAction<char>("Yes", fieldRows({0}), 1, style::fieldMap.mesh.show);
        m_user->answer([action](QDialog& question) {
            delete action;
            question.reject();
        });
        action->trigger();
        QCOMPARE(takeWrites(), QString());
    }

    void activatesMaps_data()
    {
        const Rows<int, QList<int>, QString>
            row; // mode, rows, written (of five maps, of which 4 and 5 are hidden)

        row("activate", 0, {4, 2}, "ActiveFieldMaps + 3,5");
        row("deactivate", 1, {4, 2}, "ActiveFieldMaps - 3,5");
        row("selected only", 2, {4, 2}, "ActiveFieldMaps + 3,5; ActiveFieldMaps - 1-2,4");
        row("all selected", 2, {0, 1, 2, 3, 4}, "ActiveFieldMaps + 1-5");
        row("invert", 3, {1, 4, 2, 3}, "ActiveFieldMaps - 2-3; ActiveFieldMaps + 4-5");
        row("invert shown ones", 3, {0}, "ActiveFieldMaps - 1");
        row("selected only, one gone", 2, {1, 5}, "");
        row("invert, one gone", 3, {1, 5}, "");
    }

    void activatesMaps()
    {
        const auto [mode, rows, written] = currentRow<int, QList<int>, QString>();
        QVERIFY(openDemo("field2d", 5));
        const auto allRows = fieldRows(rows, 3);
        MapActivateAction(cells(*m_model, {3, 4}), MapActivateMode_Deactivate,
                          style::activeFieldMaps)
            .trigger();
        takeWrites();

        corvala::host::UndoHistory& undo = Document::instance().undo();
        const int steps = undo.stepCount();
        undo.beginGesture();
        MapActivateAction(allRows, static_cast<MapActivateMode_e>(mode), style::activeFieldMaps)
            .trigger();
        undo.endGesture();
        QCOMPARE(takeWrites(), written);
        QVERIFY(undo.stepCount() <= steps + 1);
    }

    void asksOverTheDialog()
    {
        QVERIFY(openDemo("field2d"));
        QWidget dialog;
        theDialog = &dialog;
        setPromptParentProvider([]() -> QWidget& { return *theDialog; });
        EnterSingleValueAction<int> action("Enter...", fieldRows({0}), "Title", "Label", 1, 99,
                                           style::fieldMap.effects.surfaceTranslucency);
        bool isOverDialog = false;
        m_user->answer([&](QDialog& prompt) {
            isOverDialog = prompt.parentWidget() == &dialog;
            prompt.accept();
        });
        action.trigger();
        setPromptParentProvider(nullptr);
        QVERIFY(isOverDialog && action.wasAccepted());
        m_user->reject();
        action.trigger();
        QVERIFY(!action.wasAccepted());
        QCOMPARE(m_user->takeSeen(),
                 (QStringList {"Title: Label [50, 1 to 99]", "Title: Label [50, 1 to 99]"}));
        QCOMPARE(takeWrites(), QString("FieldMap.Effects.SurfaceTranslucency 1 = 50"));
    }

    void selectsAVariable()
    {
        QVERIFY(openDemo("xy"));
        corvala::host::NumberSet enabled = corvala::host::allUpTo(7);
        enabled.remove(2);
        QVERIFY(Document::instance().execute(corvala::host::EnableVariables {enabled}).isDone());
        QVERIFY(setStyle("LineMap.Assign.XAxisVar", "3", 4));

        VariableSelectAction action("Select Variable...", lineRows({2, 0}), "Choose",
                                    "The variable", style::lineMap.assign.xAxisVar);
        m_user->reply("Gain").reject();
        action.trigger();
        action.trigger();
        QCOMPARE(m_user->takeSeen(),
                 (QStringList {"Choose: The variable [Power of 6]",
                               "Choose: The variable [Gain of 6]"}));
        QCOMPARE(takeWrites(), QString("LineMap.Assign.XAxisVar 1,3 = 7"));
    }

    void startsFromTheFirstZone()
    {
        QVERIFY(openDemo("xy"));
        QVERIFY(setStyle("LineMap.Assign.Zone", "3", 4));
        int preset = -1;
        m_user->answer([&preset](QDialog& dialog) {
            preset = dialog.findChild<QListView*>()->currentIndex().row();
            dialog.reject();
        });
        ZoneSelectAction(lineRows({2, 0})).trigger();
        QCOMPARE(preset, 3);
        QCOMPARE(takeWrites(), QString());
    }

    void entersThreeValues()
    {
        static constexpr ThreeValuePrompt kPrompt {
            "Enter Range", {{"&Begin", "&End", "&Skip"}}, "page.html#anchor"};
        QVERIFY(openDemo("field3d"));
        QVERIFY(setStyle("FieldMap.Surfaces.IRange.Max", "3", 6));
        const int steps = Document::instance().undo().stepCount();
        EnterThreeValueAction action("Enter range...", fieldRows({2, 0}), kPrompt,
                                     keysOf(style::fieldMap.surfaces.ranges.iRange));

        QStringList asked;
        m_user->answer([&asked](QDialog& dialog) {
            const auto boxes = dialog.findChildren<QSpinBox*>();
            for (const QLabel* label : dialog.findChildren<QLabel*>())
                asked << label->text();
            dialog.findChild<corvala::dialogs::common::LaunchHelpAction*>()->trigger();
            for (const QSpinBox* box : boxes)
                asked << QString("%1 from %2").arg(box->value()).arg(box->minimum());
            boxes.at(0)->setValue(2);
            boxes.at(2)->setValue(3);
            dialog.accept();
        });
        m_user->reject();
        action.trigger();
        action.trigger();
        QCOMPARE(asked.join(' '), QString("&Begin &End &Skip 1 from 1 6 from 0 1 from 1"));
        QCOMPARE(m_user->takeSeen().first(), QString("Enter Range: &Begin"));
        QCOMPARE(corvala::dialogs::common::LaunchHelpAction::lastRequest(),
                 QString("page.html#anchor"));
        QCOMPARE(
            takeWrites(),
            QString("FieldMap.Surfaces.IRange.Min 1,3 = 2; FieldMap.Surfaces.IRange.Max 1,3 = 6; "
                    "FieldMap.Surfaces.IRange.Skip 1,3 = 3"));
        QCOMPARE(Document::instance().undo().stepCount(), steps + 1);
        QVERIFY(!Document::instance().undo().isBracketOpen());
        QVERIFY(!Document::instance().isLocked());
    }

    void entersACharacter()
    {
        using corvala::dialogs::prompt::EnterASCIICharacterDialog;
        QVERIFY(openDemo("field2d"));
        const QString character = "FieldMap.Scatter.SymbolShape.ASCIIShape.";
        QVERIFY(setStyle(character + "FontOverride", "5", FontOverride_Greek));
        QVERIFY(setStyle(character + "UseBaseFont", "5", 0));
        EnterASCIICharacterAction action(fieldRows({4, 0}),
                                         style::fieldMap.scatter.symbolShape.asciiShape);
        m_user->reject();
        QString preset;
        m_user->answer([&preset](QDialog& dialog) {
            auto& prompt = static_cast<EnterASCIICharacterDialog&>(dialog);
            preset = prompt.selectedChar() + (prompt.useBaseFont() ? " base " : " own ")
                + QString::number(prompt.typeFaceOverride());
            prompt.setCharacter("b");
            prompt.setUseBaseFont(false);
            prompt.setTypeFaceOverride(FontOverride_Math);
            prompt.accept();
        });
        action.trigger();
        QCOMPARE(takeWrites(), QString());
        action.trigger();
        QCOMPARE(preset, QString("A own 1"));
        QCOMPARE(takeWrites(),
                 character + "ASCIIChar 1,5 = \"b\"; " + character + "UseBaseFont 1,5 = false; "
                     + character + "FontOverride 1,5 = 2");
    }

    void knowsCommonCurveFits_data()
    {
        const Rows<QList<int>, bool> row; // rows (curve types by row: 1, 1, 4, 0, ...), enabled
        row("one fit", {0}, true);
        row("same fit", {0, 1}, true);
        row("different fits", {0, 2}, false);
        row("no settings", {3}, false);
        row("nothing selected", {}, false);
    }

    void knowsCommonCurveFits()
    {
        const auto [rows, enabled] = currentRow<QList<int>, bool>();
        QVERIFY(openDemo("xy"));
        QVERIFY(setStyle("LineMap.Curves.CurveType", "1-2", CurveType_PolynomialFit));
        QVERIFY(setStyle("LineMap.Curves.CurveType", "3", CurveType_Spline));
        CurveFitSettingsAction action("&Settings...", lineRows(rows));
        QCOMPARE(action.isEnabled(), enabled);
        action.trigger();
        auto& dialog =
            corvala::dialogs::lineplot::CurveFitSettingsDialog::getInstance(&promptParent());
        QCOMPARE(dialog.isVisible(), enabled);
        dialog.close();
    }

private:
    QModelIndexList fieldRows(const QList<int>& rows, int column = 0)
    {
        m_model.reset(makeChain<FieldStaticAreaModel>());
        return cells(*m_model, rows, column);
    }

    QModelIndexList lineRows(const QList<int>& rows)
    {
        m_model.reset(makeChain<LineStaticAreaModel>());
        return cells(*m_model, rows);
    }

    std::unique_ptr<ModelAbstract> m_model;
    std::unique_ptr<ModalResponder> m_user;
};

QTEST_MAIN(tst_StyleActions)
#include "tst_style_actions.moc"
