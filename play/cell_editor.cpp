// SPDX-License-Identifier: BSD-3-Clause
#include "play/cell_editor.h"

#include "play/idle.h"
#include "play/input.h"
#include "play/prompt_description.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QWidget>

namespace corvala::play {

using Json = nlohmann::json;

static QKeySequence endOf(const QString& text)
{
    const QKeySequence key(text, QKeySequence::PortableText);
    if (text != QLatin1String("outside") && (key.isEmpty() || key[0] == Qt::Key_unknown))
        throw ScriptError(Text::tr("\"end\" must be \"outside\" or a key such as \"Return\""));
    return text == QLatin1String("outside") ? QKeySequence() : key;
}

CellEdit cellEditOf(const Arguments& arguments)
{
    CellEdit edit;
    edit.opens = arguments.boolean("opens", true);
    edit.stays = arguments.boolean("stays", false);
    if (arguments.has("type"))
        edit.type = arguments.text("type").toStdString();
    if (arguments.has("choose"))
        edit.choose = arguments.at("choose");
    edit.end = endOf(arguments.text("end", QStringLiteral("Return")));
    if (!edit.type.is_null() && !edit.choose.is_null())
        throw ScriptError(Text::tr("\"type\" and \"choose\" exclude each other"));
    return edit;
}

static int positionOf(const Json& choice, const QWidget& list)
{
    const QStringList items = itemsOf(list);
    if (choice.is_string()) {
        const int position = items.indexOf(QString::fromStdString(choice.get<std::string>()));
        if (position >= 0)
            return position;
    } else if (choice.is_number_integer()) {
        const auto position = choice.get<std::int64_t>();
        if (position >= 1 && position <= items.size())
            return static_cast<int>(position) - 1;
    }
    throw ScriptError(Text::tr("the editor has no entry %1").arg(shown(choice)));
}

/// Opens the list of the combo box and goes to the entry by the keyboard.
static void chooseInCombo(QComboBox& combo, const Json& choice)
{
    const int position = positionOf(choice, combo);
    if (!combo.view()->isVisible())
        pressKey(&combo, Qt::Key_Down, Qt::AltModifier);
    waitUntilIdle();
    QWidget* list = combo.view();
    pressKey(list, Qt::Key_Home);
    for (int i = 0; i < position; ++i)
        pressKey(list, Qt::Key_Down);
    pressKey(list, Qt::Key_Return);
}

/// A click chooses the entry; beside a text field it takes two to insert it there.
static void chooseInList(QAbstractItemView& list, bool besideText, const Json& choice)
{
    const QModelIndex entry = list.model()->index(positionOf(choice, list), 0);
    list.scrollTo(entry);
    const QPoint position = list.visualRect(entry).center();
    if (besideText)
        doubleClick(list.viewport(), position);
    else
        click(list.viewport(), position);
}

static void enter(QWidget& editor, const CellEdit& edit)
{
    if (!edit.type.is_null())
        return typeOver(&editor, QString::fromStdString(edit.type.get<std::string>()));
    if (edit.choose.is_null())
        return;
    auto* combo = qobject_cast<QComboBox*>(&editor);
    if (!combo)
        combo = editor.findChild<QComboBox*>();
    if (combo)
        return chooseInCombo(*combo, edit.choose);
    if (auto* list = editor.findChild<QAbstractItemView*>())
        return chooseInList(*list, editor.findChild<QLineEdit*>(), edit.choose);
    throw ScriptError(Text::tr("the editor has no list"));
}

static void end(QWidget& editor, const QKeySequence& key, QWidget& dialog)
{
    if (!key.isEmpty())
        return pressKeys(&editor, key);
    auto* field =
        dialog.findChild<QLineEdit*>(QStringLiteral("mapSelectionByPattern_pattern_lineEdit"));
    if (field)
        clickCentre(field);
}

void finishEdit(QWidget& editor, const CellEdit& edit, QWidget& dialog)
{
    const QPointer<QWidget> open = &editor;
    enter(editor, edit);
    waitUntilIdle();
    if (open && open->isVisible())
        end(*open, edit.end, dialog);
    waitUntilIdle();
    const bool isOpen = open && open->isVisible();
    if (isOpen)
        pressKey(open, Qt::Key_Escape);
    if (isOpen != edit.stays)
        throw ScriptError(isOpen ? Text::tr("the editor stays open")
                                 : Text::tr("the editor closes"));
}

} // namespace corvala::play
