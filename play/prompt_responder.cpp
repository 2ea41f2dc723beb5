// SPDX-License-Identifier: BSD-3-Clause
#include "play/prompt_responder.h"

#include "play/arguments.h"
#include "play/input.h"
#include "play/prompt_description.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace corvala::play {

using Json = nlohmann::json;

static QString plainText(const Json& value)
{
    return value.is_string() ? QString::fromStdString(value.get<std::string>()) : shown(value);
}

static bool isValue(const Json& value)
{
    return value.is_string() || value.is_number() || value.is_boolean();
}

static void checkCharacter(const Arguments& keys)
{
    keys.allowOnly({"character", "useBaseFont", "font"});
    keys.text("character");
    keys.boolean("useBaseFont", false);
    keys.integer("font", 0);
}

static void checkReply(const Json& reply);

static void checkInterlude(const Arguments& keys)
{
    keys.allowOnly({"during", "dropped", "reply"});
    keys.list("during");
    if (!keys.boolean("dropped", false))
        checkReply(keys.at("reply"));
}

static void checkReply(const Json& reply)
{
    if (isValue(reply))
        return;
    if (reply.is_array() && !reply.empty() && std::all_of(reply.begin(), reply.end(), isValue))
        return;
    if (reply.is_object()) {
        const Arguments keys(reply, {});
        if (keys.has("during"))
            return checkInterlude(keys);
        if (keys.has("position"))
            return keys.allowOnly({"position"}), void(keys.integer("position"));
        if (keys.has("refused"))
            return keys.allowOnly({"refused"});
        if (keys.has("character"))
            return checkCharacter(keys);
    }
    throw ScriptError(Text::tr("%1 is no reply to a prompt").arg(shown(reply)));
}

PromptResponder::PromptResponder(PlayInterlude playInterlude)
    : m_playInterlude(std::move(playInterlude))
{
}

void PromptResponder::queue(const Json& replies)
{
    if (!replies.is_array())
        throw ScriptError(Text::tr("\"answers\" must be a list of replies"));
    for (const Json& reply : replies)
        checkReply(reply);
    m_replies.insert(m_replies.end(), replies.begin(), replies.end());
}

static void accept(QWidget& prompt)
{
    QAbstractButton* button = acceptButton(prompt);
    if (button && !button->isEnabled())
        throw ScriptError(Text::tr("the prompt \"%1\" cannot be accepted as it stands")
                              .arg(prompt.windowTitle()));
    if (button)
        clickCentre(button);
    else
        pressKey(&prompt, Qt::Key_Return);
}

static void refuse(QWidget& prompt)
{
    if (QAbstractButton* button = refuseButton(prompt))
        clickCentre(button);
    else
        pressKey(&prompt, Qt::Key_Escape);
}

/// Moves to an entry of a closed combo box or a list by the keyboard;
/// `position` is from 0.
static void moveToItem(QWidget& prompt, QWidget& field, int position)
{
    field.setFocus(Qt::TabFocusReason);
    pressKey(&prompt, Qt::Key_Home);
    for (int i = 0; i < position; ++i)
        pressKey(&prompt, Qt::Key_Down);
}

static bool isList(const QWidget& field)
{
    const auto* combo = qobject_cast<const QComboBox*>(&field);
    return combo ? !combo->isEditable() : qobject_cast<const QAbstractItemView*>(&field) != nullptr;
}

static void pickItem(QWidget& prompt, QWidget& field, const QString& text)
{
    const int position = itemsOf(field).indexOf(text);
    if (position < 0)
        throw ScriptError(
            Text::tr("the prompt \"%1\" has no entry \"%2\"").arg(prompt.windowTitle(), text));
    moveToItem(prompt, field, position);
}

static void fill(QWidget& prompt, QWidget& field, const Json& value)
{
    if (auto* box = qobject_cast<QCheckBox*>(&field)) {
        if (!value.is_boolean())
            throw ScriptError(
                Text::tr("a check box takes true or false, not %1").arg(shown(value)));
        if (box->isChecked() != value.get<bool>())
            clickCentre(box);
        return;
    }
    if (isList(field))
        return pickItem(prompt, field, plainText(value));
    field.setFocus(Qt::TabFocusReason);
    typeOver(&prompt, plainText(value));
}

static QWidget& firstField(QWidget& prompt)
{
    const QList<QWidget*> fields = promptFields(prompt);
    if (fields.isEmpty())
        throw ScriptError(Text::tr("the prompt \"%1\" takes no value").arg(prompt.windowTitle()));
    return *fields.first();
}

static void fillSeveral(QWidget& prompt, const Json& values)
{
    const QList<QWidget*> fields = promptFields(prompt);
    if (fields.size() < static_cast<int>(values.size()))
        throw ScriptError(Text::tr("the prompt \"%1\" has %2 fields, not %3")
                              .arg(prompt.windowTitle())
                              .arg(fields.size())
                              .arg(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i)
        fill(prompt, *fields[static_cast<int>(i)], values[i]);
}

static void pickPosition(QWidget& prompt, std::int64_t position)
{
    for (QWidget* field : promptFields(prompt)) {
        const int count = itemsOf(*field).size();
        if (count == 0)
            continue;
        if (position < 1 || position > count)
            throw ScriptError(Text::tr("the list of the prompt \"%1\" has no position %2")
                                  .arg(prompt.windowTitle())
                                  .arg(position));
        return moveToItem(prompt, *field, static_cast<int>(position) - 1);
    }
    throw ScriptError(Text::tr("the prompt \"%1\" has no list").arg(prompt.windowTitle()));
}

static QString typedText(const QWidget& field)
{
    const auto* line = qobject_cast<const QLineEdit*>(&field);
    if (!line)
        line = field.findChild<const QLineEdit*>();
    return line ? line->text() : QString();
}

/// Whether the field holds the typed value and would hand it over.
static bool holdsValue(const QWidget& field, const Json& value)
{
    if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&field)) {
        if (!spin->hasAcceptableInput())
            return false;
    }
    const QString text = typedText(field);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return value.is_number() && isNumber ? number == value.get<double>() : text == plainText(value);
}

static void expectRefusal(QWidget& prompt, const Json& value)
{
    QWidget& field = firstField(prompt);
    field.setFocus(Qt::TabFocusReason);
    typeOver(&prompt, plainText(value));
    const QAbstractButton* button = acceptButton(prompt);
    if (holdsValue(field, value) && (!button || button->isEnabled()))
        throw ScriptError(
            Text::tr("the prompt \"%1\" accepts %2").arg(prompt.windowTitle(), shown(value)));
    refuse(prompt);
}

static void enterCharacter(QWidget& prompt, const Json& reply)
{
    for (QWidget* field : promptFields(prompt)) {
        if (qobject_cast<QLineEdit*>(field))
            fill(prompt, *field, reply["character"]);
        else if (qobject_cast<QCheckBox*>(field) && reply.contains("useBaseFont"))
            fill(prompt, *field, reply["useBaseFont"]);
        else if (isList(*field) && reply.contains("font"))
            moveToItem(prompt, *field, reply["font"].get<int>());
    }
}

static void perform(QWidget& prompt, const Json& reply)
{
    if (reply == "cancel")
        return refuse(prompt);
    if (reply.is_object() && reply.contains("refused"))
        return expectRefusal(prompt, reply["refused"]);
    if (reply.is_object() && reply.contains("character"))
        enterCharacter(prompt, reply);
    else if (reply.is_object())
        pickPosition(prompt, reply["position"].get<std::int64_t>());
    else if (reply.is_array())
        fillSeveral(prompt, reply);
    else if (reply != "OK")
        fill(prompt, firstField(prompt), reply);
    accept(prompt);
}

void PromptResponder::answer(QWidget& prompt)
{
    m_lastPrompt = describePrompt(prompt);
    if (m_replies.empty())
        throw ScriptError(Text::tr("no reply is queued for the prompt \"%1\" (%2)")
                              .arg(prompt.windowTitle(),
                                   plainText(m_lastPrompt.value("label", Json(std::string())))));
    Json reply = m_replies.front();
    m_replies.pop_front();
    const QString title = prompt.windowTitle();
    const QPointer<QWidget> open = &prompt;
    if (reply.is_object() && reply.contains("during")) {
        if (!m_playInterlude(prompt, reply))
            return;
        reply = Json(reply["reply"]);
    }
    perform(prompt, reply);
    if (open && open->isVisible())
        throw ScriptError(Text::tr("the prompt \"%1\" did not take %2").arg(title, shown(reply)));
}

} // namespace corvala::play
