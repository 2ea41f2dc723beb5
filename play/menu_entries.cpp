// SPDX-License-Identifier: BSD-3-Clause
#include "play/menu_entries.h"

#include "play/arguments.h"
#include "play/input.h"
#include "sdk/dialogs_prompt/color_chooser_widget.h"

#include <QAbstractButton>
#include <QMenu>
#include <QWidgetAction>

namespace corvala::play {

using Json = nlohmann::json;
using dialogs::prompt::ColorChooserWidget;

static ColorChooserWidget* chooserIn(QWidget* widget)
{
    if (auto* chooser = qobject_cast<ColorChooserWidget*>(widget))
        return chooser;
    return widget ? widget->findChild<ColorChooserWidget*>() : nullptr;
}

static Json describeWidget(const QWidget& widget)
{
    const QString name = QString::fromLatin1(widget.metaObject()->className());
    Json entry {{"widget", name.mid(name.lastIndexOf(':') + 1).toStdString()}};
    if (const auto* chooser = qobject_cast<const ColorChooserWidget*>(&widget))
        entry["chooserFlag"] = chooser->offersGroupColors();
    return entry;
}

static Json describeAction(QAction& action, QWidget* host)
{
    const bool isOpen = qobject_cast<const QMenu*>(host); // entries are marked when they are shown
    if (action.isSeparator())
        return {{"separator", true}};
    if (auto* widgetAction = qobject_cast<QWidgetAction*>(&action)) {
        if (QWidget* widget = widgetAction->requestWidget(host)) {
            Json entry = describeWidget(*widget);
            if (const auto* chooser = chooserIn(isOpen ? widget : nullptr))
                entry["color"] = chooser->presentColor();
            widgetAction->releaseWidget(widget);
            return entry;
        }
    }
    Json entry {{"text", action.text().toStdString()}, {"enabled", action.isEnabled()}};
    if (isOpen)
        entry["marked"] = action.isChecked();
    return entry;
}

Json describeActions(const QList<QAction*>& actions, QWidget* host)
{
    Json entries = Json::array();
    for (QAction* action : actions)
        entries.push_back(describeAction(*action, host));
    return entries;
}

static QAction* actionWithText(const QList<QAction*>& actions, const QString& text)
{
    for (QAction* action : actions) {
        if (!action->isSeparator() && action->text() == text)
            return action;
    }
    return nullptr;
}

static QAction* actionAt(const QList<QAction*>& actions, std::int64_t position)
{
    for (QAction* action : actions) {
        if (!action->isSeparator() && --position == 0)
            return action;
    }
    return nullptr;
}

QAction* chosenAction(const QList<QAction*>& actions, const Json& choice)
{
    QAction* action = nullptr;
    if (choice.is_string())
        action = actionWithText(actions, QString::fromStdString(choice.get<std::string>()));
    else if (choice.is_number_integer())
        action = actionAt(actions, choice.get<std::int64_t>());
    else
        throw ScriptError(Text::tr("\"choose\" must be a text, a position or null"));
    if (!action)
        throw ScriptError(Text::tr("the menu has no entry %1").arg(shown(choice)));
    if (!action->isEnabled())
        throw ScriptError(Text::tr("the menu entry %1 is disabled").arg(shown(choice)));
    return action;
}

void chooseInMenu(QMenu& menu, const Json& choice)
{
    if (choice.is_null()) {
        pressKey(&menu, Qt::Key_Escape);
        return;
    }
    QAction* action = chosenAction(menu.actions(), choice);
    click(&menu, menu.actionGeometry(action).center());
}

void chooseColorInMenu(QMenu& menu, int color)
{
    ColorChooserWidget* chooser = chooserIn(&menu);
    if (!chooser)
        throw ScriptError(Text::tr("the menu has no colour chooser"));
    QAbstractButton* button = chooser->colorButton(color);
    if (!button)
        throw ScriptError(Text::tr("the colour chooser does not offer colour %1").arg(color));
    clickCentre(button);
}

} // namespace corvala::play
