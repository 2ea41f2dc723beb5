// SPDX-License-Identifier: BSD-3-Clause
#include "host/undo/undo_history.h"

#include "host/document/change.h"
#include "host/document/document.h"
#include "host/document/undo_texts.h"
#include "vocabulary/undo_kinds.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace corvala::host {

/// Changes that are undone and redone together.
class UndoHistory::Step : public QUndoCommand
{
public:
    Step(Document& document, std::uint64_t gesture, bool isMend = false)
        : m_document(document)
        , m_gesture(gesture)
        , m_isMend(isMend)
    {
    }

    void add(Change change)
    {
        describe(change);
        m_changes.push_back(std::make_shared<Change>(std::move(change)));
    }
    bool isEmpty() const { return m_changes.empty(); }
    bool isMend() const { return m_isMend; }
    const std::vector<std::shared_ptr<Change>>& changes() const { return m_changes; }

    int id() const override { return m_gesture != 0 ? 1 : -1; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto& later = static_cast<const Step&>(*other);
        if (later.m_gesture != m_gesture)
            return false;
        for (const auto& change : later.m_changes)
            describe(*change);
        join(later);
        return true;
    }
    void join(const Step& later)
    {
        m_changes.insert(m_changes.end(), later.m_changes.begin(), later.m_changes.end());
    }

    void undo() override
    {
        for (auto change = m_changes.rbegin(); change != m_changes.rend(); ++change)
            m_document.apply(**change, false);
    }
    /// The stack redoes a command when it is pushed; what it holds is done by then.
    void redo() override
    {
        if (m_done)
            for (const auto& change : m_changes)
                m_document.apply(*change, true);
        m_done = true;
    }

private:
    /// Adds the change to the texts of the step: the full one names the first few different
    /// changes, that for commands (which Qt wants in a second line) the first one.
    void describe(const Change& change)
    {
        constexpr int kShown = 3;
        const QString text = QString(change.text).replace(QLatin1Char('\n'), QLatin1Char(' '));
        if (m_texts.size() > kMostTexts || m_texts.contains(text))
            return;
        m_texts << text;
        const bool tooMany = m_texts.size() > kShown;
        setText(m_texts.mid(0, kShown).join(QStringLiteral("; "))
                + (tooMany ? QStringLiteral("; ...") : QString()) + QLatin1Char('\n')
                + commandText());
    }
    QString commandText() const
    {
        const auto others = m_texts.size() - 1;
        if (others == 0)
            return m_texts.first();
        if (others >= kMostTexts)
            return host::undoText(QT_TRANSLATE_NOOP("UndoTexts", "%1 and many more"))
                .arg(m_texts.first());
        return host::undoText(QT_TRANSLATE_NOOP("UndoTexts", "%1 and %2 more"))
            .arg(m_texts.first(), QString::number(others));
    }

    Document& m_document;
    std::uint64_t m_gesture;
    bool m_isMend;
    bool m_done = false;
    std::vector<std::shared_ptr<Change>> m_changes;
    static constexpr int kMostTexts = 20;
    QStringList m_texts; ///< different ones, up to one more than are counted
};

static bool renumbersMaps(const StateEvent& event)
{
    return event.code == StateCode_FieldMapListChanged
        || event.code == StateCode_LineMapListChanged;
}

static void addStyleChanges(std::vector<StyleChange>& changes, const std::vector<StyleChange>& more)
{
    for (const StyleChange& change : more) {
        const auto known =
            std::find_if(changes.begin(), changes.end(), [&](const StyleChange& other) {
                return other.attribute == change.attribute;
            });
        if (known == changes.end())
            changes.push_back(change);
        else
            known->maps |= change.maps;
    }
}

/// Adds an event to those of a step, which are raised when all of the step is visible. Events that
/// say the same become one, so a step costs its listeners what one change of each kind costs.
static void addEvent(std::vector<StateEvent>& events, const StateEvent& event)
{
    if (renumbersMaps(event)) // numbers from before mean other maps, and all are announced anyway
        for (StateEvent& earlier : events)
            for (StyleChange& change : earlier.styleChanges)
                change.maps = NumberSet();
    const auto known = std::find_if(events.begin(), events.end(), [&](const StateEvent& other) {
        return other.code == event.code && other.frame == event.frame
            && other.parameters == event.parameters;
    });
    if (known == events.end())
        events.push_back(event);
    else
        addStyleChanges(known->styleChanges, event.styleChanges);
}

static bool isPlotType(const StateEvent& event)
{
    return std::any_of(
        event.styleChanges.begin(), event.styleChanges.end(),
        [](const StyleChange& change) { return change.attribute == style::plotType.id; });
}

UndoHistory::UndoHistory(Document& document)
    : m_document(document)
{
}

UndoHistory::~UndoHistory() = default;

void UndoHistory::record(Change change)
{
    if (m_depth > 0) {
        m_open->add(std::move(change));
        return;
    }
    auto step = std::make_unique<Step>(m_document, m_gesture);
    step->add(std::move(change));
    m_stack.push(step.release());
}

void UndoHistory::clear()
{
    m_depth = 0;
    m_open.reset();
    m_stack.clear();
}

void UndoHistory::begin(CvlInt64 kind)
{
    if (m_depth++ == 0)
        m_open = std::make_unique<Step>(m_document, m_gesture, kind == kUndoMend);
}

void UndoHistory::end(Closing closing)
{
    if (m_depth == 0 || --m_depth > 0)
        return;
    std::unique_ptr<Step> step = std::move(m_open);
    if (step->isEmpty())
        return;
    if (step->isMend()) {
        const int last = m_stack.count() - 1;
        if (last >= 0 && m_stack.index() > last) // the stack hands out what it holds as constant
            const_cast<Step&>(static_cast<const Step&>(*m_stack.command(last))).join(*step);
        return;
    }
    switch (closing) {
    case Closing::OneStep: m_stack.push(step.release()); break;
    case Closing::SeparateSteps:
        for (const auto& change : step->changes())
            record(*change);
        break;
    case Closing::Discard:
        step->undo();
        announce(*step, false);
        break;
    }
}

void UndoHistory::beginGesture()
{
    m_gesture = ++m_lastGesture;
}

bool UndoHistory::step(bool forward)
{
    const int index = forward ? m_stack.index() : m_stack.index() - 1;
    if (m_depth > 0 || index < 0 || index >= m_stack.count())
        return false;
    // The gesture that asks for undo must not join the step that it takes back.
    m_gesture = 0;
    const auto& step = static_cast<const Step&>(*m_stack.command(index));
    forward ? m_stack.redo() : m_stack.undo();
    announce(step, forward);
    return true;
}

bool UndoHistory::undo()
{
    return step(false);
}

bool UndoHistory::redo()
{
    return step(true);
}

void UndoHistory::announce(const Step& step, bool forward)
{
    StateEvent applied;
    applied.code = forward ? StateCode_RedoApplied : StateCode_UndoApplied;
    applied.frame = m_document.activeFrameId();
    std::vector<StateEvent> events;
    std::vector<std::shared_ptr<Change>> changes = step.changes();
    if (!forward)
        std::reverse(changes.begin(), changes.end());
    for (const auto& change : changes) {
        if (change->frame != 0)
            applied.frame = change->frame;
        for (const StateEvent& event : change->events)
            addEvent(events, event);
    }
    std::stable_partition(events.begin(), events.end(), isPlotType);
    events.push_back(applied);
    m_document.activate(applied.frame);
    for (const StateEvent& event : events)
        m_document.raise(event);
}

int UndoHistory::stepCount() const
{
    return m_stack.index();
}

QString UndoHistory::undoText() const
{
    const QUndoCommand* const last = m_stack.command(m_stack.index() - 1);
    return last ? last->text() : QString();
}

} // namespace corvala::host
