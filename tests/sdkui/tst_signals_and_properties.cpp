// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/document_fixture.h"
#include "tests/support/rows.h"

#include <sdk/common/app_lock.h>
#include <sdk/property/property_dependent_relevance.h>
#include <sdk/propertybindings/button_binding.h>
#include <sdk/propertybindings/label_property_binding.h>
#include <sdk/propertybindings/line_edit_property_binding.h>
#include <sdk/propertybindings/list_model.h>
#include <sdk/propertybindings/widget_update_deferrer_on_busy.h>
#include <sdk/propertymanager/boolean_property_dependent_relevance.h>
#include <sdk/propertymanager/plot_type_dependent_relevance.h>
#include <sdk/propertymanager/property_predicate_dependent_relevance.h>
#include <sdk/propertymanager/relevance_expression.h>
#include <sdk/signals/signal_connection_collection.h>
#include <sdk/signals/state_change_event_observable.h>
#include <sdk/uicommon/host_command_scope.h>
#include <sdk/uicommon/on_idle_action_performer_single_shot.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <boost/make_shared.hpp>

#include <memory>

using namespace corvala;
using namespace corvala::tests;
using property::Property;
using propertymanager::RelevanceExpression;
using sdk::ui::OnIdleActionPerformerSingleShot;

// As a module exports them.
template class property::PropertyDependentRelevance<bool>;
template class propertybindings::ListModelInterface<int>;
template class propertybindings::ListModelAbstract<int>;
template class propertybindings::ListModelInterface<double>;
template class propertybindings::ListModelAbstract<double>;

namespace {

class Numbers : public propertybindings::ListModelAbstract<int>
{
public:
    int size() const override { return static_cast<int>(m_values.size()); }
    int at(int index) const override { return m_values.at(static_cast<std::size_t>(index)); }
    void append(int value)
    {
        m_values.push_back(value);
        notifyValueListChanged();
    }

private:
    std::vector<int> m_values;
};

/// Counts its paint events.
class PaintedWidget : public QWidget
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

} // namespace

class TestSignalsAndProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // first: needs the observable unmade
    void observableComesBeforeTheEnginesOtherListeners()
    {
        tests::openDemo("field2d");
        host::Document& document = host::Document::instance();
        const CvlUniqueId first = document.activeFrameId();
        CvlUniqueId followed = 0;
        CvlUniqueId seenByListener = 1;
        // The listener is there before anybody asks for the observable.
        const boost::signals2::scoped_connection listener =
            document.events().connect([&](const host::StateEvent&) { seenByListener = followed; });
        const boost::signals2::scoped_connection follower =
            signaling::StateChangeEventObservable::getInstance().connect(
                [&followed](const toolbox::StateChangeEventInterface& event) {
                    if (event.stateChange() == StateCode_ActiveFrameChanged)
                        followed = CvlUtilFrameGetUniqueID();
                });
        document.execute(host::AddFrame {});
        const CvlUniqueId second = document.activeFrameId();
        QVERIFY(second != first);
        QCOMPARE(seenByListener, second);
        document.execute(host::ActivateFrame {1});
        QCOMPARE(seenByListener, first);
    }

    void performerRunsOnceWhenIdle()
    {
        int runs = 0;
        OnIdleActionPerformerSingleShot performer([&runs] { ++runs; });
        performer.enableNotification();
        performer.enableNotification();
        QCOMPARE(runs, 0);
        QTRY_COMPARE(runs, 1);
        QTest::qWait(5);
        QCOMPARE(runs, 1);

        performer.enableNotification();
        performer.disableNotification();
        {
            OnIdleActionPerformerSingleShot dropped([&runs] { runs += 100; });
            dropped.enableNotification();
        }
        QTest::qWait(5);
        QCOMPARE(runs, 1);
    }

    void performerMayBeEnabledOrDestroyedByItsAction()
    {
        int runs = 0;
        std::unique_ptr<OnIdleActionPerformerSingleShot> performer;
        performer = std::make_unique<OnIdleActionPerformerSingleShot>([&] {
            if (++runs < 3) {
                performer->enableNotification();
                performer->enableNotification();
            } else {
                performer.reset();
            }
        });
        performer->enableNotification();
        QTRY_VERIFY(!performer);
        QCOMPARE(runs, 3);
    }

    void collectionBlocksAsAState()
    {
        boost::signals2::signal<void()> source;
        int early = 0;
        int late = 0;
        signaling::SignalConnectionCollection connections;
        connections.add(source.connect([&early] { ++early; }));
        connections.block();
        connections.block();
        connections.add(source.connect([&late] { ++late; }));
        source();
        QVERIFY(connections.isBlocked());
        QCOMPARE(early + late, 0);
        connections.unblock();
        source();
        QVERIFY(!connections.isBlocked());
        QCOMPARE(early, 1);
        QCOMPARE(late, 1);
    }

    void collectionDisconnects()
    {
        boost::signals2::signal<void()> source;
        int calls = 0;
        {
            signaling::SignalConnectionCollection connections;
            connections.add(source.connect([&calls] { ++calls; }));
            connections.block();
        }
        source();
        QCOMPARE(calls, 0);
        QVERIFY(source.empty());
    }

    void observableHandsOnEngineEvents()
    {
        tests::openDemo("field2d");
        QStringList seen;
        const boost::signals2::scoped_connection connection =
            signaling::StateChangeEventObservable::getInstance().connect(
                [&seen](const toolbox::StateChangeEventInterface& event) {
                    QStringList parts {QString::number(event.stateChange()),
                                       event.hasStyleParams() ? "style" : "bare"};
                    for (const int number : {0, 1, 2, 3, 4})
                        parts << QString::fromStdString(event.styleParam(number));
                    seen << parts.join('|');
                });
        const toolbox::Set map = tests::setOf({1});
        sdk::ui::writeStyle(style::fieldMap.mesh.meshType, &map, MeshType_HiddenLine);
        host::StateEvent bare;
        bare.code = StateCode_ColorTableChanged;
        host::Document::instance().raise(bare);
        QCOMPARE(seen, QStringList({"7|style||FieldMap|Mesh|MeshType|", "22|bare|||||"}));
    }

    void expressionsFollowTheirOperands_data()
    {
        const Rows<bool, bool> row;
        for (const bool left : {false, true})
            for (const bool right : {false, true})
                row(QString::asprintf("%d %d", left, right), left, right);
    }

    void expressionsFollowTheirOperands()
    {
        const auto [left, right] = currentRow<bool, bool>();
        Property<bool> leftProperty;
        Property<bool> rightProperty;
        const auto relevance = [](const Property<bool>& property) {
            return RelevanceExpression(
                boost::make_shared<propertymanager::BooleanPropertyDependentRelevance>(property));
        };
        // The operands go out of scope: the expressions keep what they stand for.
        const RelevanceExpression either = relevance(leftProperty) || relevance(rightProperty);
        const RelevanceExpression both = relevance(leftProperty) && relevance(rightProperty);
        const RelevanceExpression neither = !either;
        int changes = 0;
        const boost::signals2::scoped_connection connection =
            neither.relevance()->connectChanged([&changes] { ++changes; });

        leftProperty.set(left);
        rightProperty.set(right);
        QCOMPARE(either.isRelevant(), left || right);
        QCOMPARE(both.isRelevant(), left && right);
        QCOMPARE(neither.isRelevant(), !left && !right);
        QCOMPARE(changes, int(left) + int(right)); // setting the value that is there tells nobody
    }

    void plotTypeRelevance_data()
    {
        const Rows<QString, bool, bool> row;
        row("field plot", "field2d", true, false);
        row("field plot in space", "field3d", true, false);
        row("xy plot", "xy", false, true);
        row("polar plot", "polar", false, true);
        row("no data", "", false, false);
    }

    void plotTypeRelevance()
    {
        const auto [demo, isField, isLine] = currentRow<QString, bool, bool>();
        host::Document::instance().clear();
        const propertymanager::FieldPlotTypeDependentRelevance field(true);
        const propertymanager::FieldPlotTypeDependentRelevance notField(false);
        const propertymanager::LinePlotTypeDependentRelevance line(true);
        const propertymanager::LinePlotTypeDependentRelevance notLine(false);
        int changes = 0;
        const boost::signals2::scoped_connection connection =
            field.connectChanged([&changes] { ++changes; });
        if (!demo.isEmpty()) {
            tests::openDemo(demo.toStdString());
            QVERIFY(changes > 0);
        }
        QCOMPARE(field.isRelevant(), isField);
        QCOMPARE(notField.isRelevant(), !isField);
        QCOMPARE(line.isRelevant(), isLine);
        QCOMPARE(notLine.isRelevant(), !isLine);
    }

    void predicateRelevance()
    {
        Property<std::string> pattern;
        Property<std::string> applied;
        const propertymanager::PropertyPredicateDependentRelevance relevance(
            {&pattern, &applied}, [&] { return pattern.get() != applied.get(); });
        int changes = 0;
        const boost::signals2::scoped_connection connection =
            relevance.connectChanged([&changes] { ++changes; });
        QVERIFY(!relevance.isRelevant());
        pattern.set("zone*");
        QVERIFY(relevance.isRelevant());
        applied.set("zone*");
        QVERIFY(!relevance.isRelevant());
        QCOMPARE(changes, 2);
    }

    void listModelTellsOfChanges()
    {
        Numbers numbers;
        const propertybindings::ListModelInterface<int>& list = numbers;
        std::vector<int> sizes;
        boost::signals2::connection connection =
            list.connectValueListChanged([&] { sizes.push_back(list.size()); });
        numbers.append(7);
        connection.disconnect();
        numbers.append(8);
        QCOMPARE(sizes, std::vector<int>({1}));
        QCOMPARE(list.at(1), 8);
    }

    void labelAndLineEditShowUtf8()
    {
        Property<std::string> text("Größe µ");
        QLabel label;
        QLineEdit edit;
        const propertybindings::LabelPropertyBinding labelBinding(&label, text);
        const propertybindings::LineEditPropertyBinding editBinding(&edit, text);
        QCOMPARE(label.text(), QString::fromUtf8("Größe µ"));
        QCOMPARE(edit.text(), QString::fromUtf8("Größe µ"));
        edit.setText(QString::fromUtf8("Δp"));
        QCOMPARE(text.get(), std::string("Δp"));
        QCOMPARE(label.text(), QString::fromUtf8("Δp"));
        text.set("");
        QCOMPARE(edit.text(), QString());
    }

    void lineEditKeepsItsCursor()
    {
        Property<std::string> text("ac");
        QLineEdit edit;
        const propertybindings::LineEditPropertyBinding binding(&edit, text);
        edit.setCursorPosition(1);
        QTest::keyClicks(&edit, "b");
        QCOMPARE(text.get(), std::string("abc"));
        QCOMPARE(edit.cursorPosition(), 2);
    }

    void buttonFollowsItsRelevance()
    {
        Property<bool> isUseful(false);
        QPushButton button;
        int clicks = 0;
        {
            const propertybindings::ButtonBinding binding(
                &button, [&clicks] { ++clicks; },
                boost::make_shared<propertymanager::BooleanPropertyDependentRelevance>(isUseful));
            QVERIFY(!button.isEnabled());
            button.click();
            isUseful.set(true);
            QVERIFY(button.isEnabled());
            QTest::mouseClick(&button, Qt::LeftButton);
            QCOMPARE(clicks, 1);
        }
        button.click();
        QCOMPARE(clicks, 1);

        button.setEnabled(false);
        const propertybindings::ButtonBinding plain(&button, [&clicks] { ++clicks; });
        QVERIFY(!button.isEnabled());
    }

    void bindingsSurviveTheirWidgets()
    {
        Property<std::string> text;
        Property<bool> isUseful(false);
        auto label = std::make_unique<QLabel>();
        auto edit = std::make_unique<QLineEdit>();
        auto button = std::make_unique<QPushButton>();
        const propertybindings::LabelPropertyBinding labelBinding(label.get(), text);
        const propertybindings::LineEditPropertyBinding editBinding(edit.get(), text);
        const propertybindings::ButtonBinding buttonBinding(
            button.get(), [] {},
            boost::make_shared<propertymanager::BooleanPropertyDependentRelevance>(isUseful));
        const propertybindings::WidgetUpdateDeferrerOnBusy deferrer(label.get());
        const sdk::ui::HostCommandScope command;
        label.reset();
        edit.reset();
        button.reset();
        text.set("later");
        isUseful.set(true);
        QCOMPARE(text.get(), std::string("later"));
    }

    void busyDefersPaintingButALockDoesNot()
    {
        PaintedWidget widget;
        const propertybindings::WidgetUpdateDeferrerOnBusy deferrer(&widget);
        widget.show();
        QTRY_VERIFY(widget.paints > 0);

        widget.paints = 0;
        {
            const sdk::AppLock lock;
            widget.repaint();
            QCOMPARE(widget.paints, 1);
        }
        widget.paints = 0;
        {
            const sdk::ui::HostCommandScope command;
            {
                const sdk::ui::HostCommandScope nested;
                widget.repaint();
            }
            widget.repaint();
            QTest::qWait(5);
            QCOMPARE(widget.paints, 0);
        }
        QTRY_COMPARE(widget.paints, 1);
    }

    void deferralIsAlwaysRestored()
    {
        QWidget mine;
        QWidget others;
        others.setUpdatesEnabled(false);
        {
            const sdk::ui::HostCommandScope command;
            {
                const propertybindings::WidgetUpdateDeferrerOnBusy late(&mine);
                QVERIFY(!mine.updatesEnabled());
            }
            QVERIFY(mine.updatesEnabled()); // the deferrer went in the middle of the command
        }
        const propertybindings::WidgetUpdateDeferrerOnBusy ofMine(&mine);
        const propertybindings::WidgetUpdateDeferrerOnBusy ofOthers(&others);
        try {
            const sdk::ui::HostCommandScope command;
            QVERIFY(!mine.updatesEnabled());
            throw std::runtime_error("the command failed");
        } catch (const std::runtime_error&) {
        }
        QVERIFY(!sdk::ui::HostCommandScope::isRunning());
        QVERIFY(mine.updatesEnabled());
        QVERIFY(!others.updatesEnabled()); // switched off by somebody else
    }
};

QTEST_MAIN(TestSignalsAndProperties)
#include "tst_signals_and_properties.moc"
