// SPDX-License-Identifier: BSD-3-Clause
#include "play/input.h"
#include "play/verbs.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace corvala::play {

using Json = nlohmann::json;

static QString plainLabel(QString text)
{
    text.remove(QLatin1Char('&'));
    return text.endsWith(QLatin1Char(':')) ? text.chopped(1) : text;
}

static void answers(ScriptRun& run, const Arguments& arguments)
{
    run.prompts().queue(arguments.at("answers"));
}

static QWidget& modelessWindow(ScriptRun& run)
{
    QWidget* window = run.watcher().modelessWindow();
    if (!window)
        throw ScriptError(Text::tr("no window is open beside the dialog"));
    return *window;
}

static QWidget& fieldOf(const QWidget& window, const QString& name)
{
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() && plainLabel(label->text()) == plainLabel(name))
            return *label->buddy();
    }
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (button->isCheckable() && plainLabel(button->text()) == plainLabel(name))
            return *button;
    }
    throw ScriptError(Text::tr("the window has no field \"%1\"").arg(name));
}

static void selectItems(QAbstractItemView& view, const Json& names)
{
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const Json& name : names.is_array() ? names : Json::array({names})) {
        const QString text =
            name.is_string() ? QString::fromStdString(name.get<std::string>()) : shown(name);
        const QModelIndexList found =
            view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (found.isEmpty())
            throw ScriptError(Text::tr("the list has no entry \"%1\"").arg(text));
        view.scrollTo(found.first());
        click(view.viewport(), view.visualRect(found.first()).center(), modifiers);
        modifiers = Qt::ControlModifier;
    }
}

static void pickEntry(QComboBox& combo, const QString& text)
{
    const int position = combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (position < 0)
        throw ScriptError(Text::tr("the list has no entry \"%1\"").arg(text));
    if (combo.isEditable())
        return enter(combo, text);
    combo.setFocus(Qt::TabFocusReason);
    pressKey(&combo, Qt::Key_Home);
    for (int i = 0; i < position; ++i)
        pressKey(&combo, Qt::Key_Down);
}

static void fillField(QWidget& field, const Json& value)
{
    if (auto* view = qobject_cast<QAbstractItemView*>(&field))
        return selectItems(*view, value);
    const QString text =
        value.is_string() ? QString::fromStdString(value.get<std::string>()) : shown(value);
    if (auto* combo = qobject_cast<QComboBox*>(&field))
        return pickEntry(*combo, text);
    if (auto* button = qobject_cast<QAbstractButton*>(&field)) {
        if (value.is_boolean() && button->isChecked() != value.get<bool>())
            clickCentre(button);
        return;
    }
    field.setFocus(Qt::TabFocusReason);
    typeOver(&field, text);
}

static void pressIn(QWidget& window, const QString& text)
{
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (!button->isVisible() || plainLabel(button->text()) != text)
            continue;
        if (!button->isEnabled())
            throw ScriptError(Text::tr("the button \"%1\" is disabled").arg(text));
        return clickCentre(button);
    }
    throw ScriptError(Text::tr("the window has no button \"%1\"").arg(text));
}

static void window(ScriptRun& run, const Arguments& arguments)
{
    QWidget& open = modelessWindow(run);
    if (arguments.at("window") == "close") {
        open.close();
        return;
    }
    const Arguments fields = arguments.inner("window");
    for (const auto& [name, value] : fields.object().items()) {
        fillField(fieldOf(open, QString::fromStdString(name)), value);
        run.settle();
    }
    if (arguments.has("press"))
        pressIn(open, arguments.text("press"));
}

std::vector<Verb> promptVerbs()
{
    return {{"answers", {}, answers}, {"window", {"press"}, window}};
}

} // namespace corvala::play
