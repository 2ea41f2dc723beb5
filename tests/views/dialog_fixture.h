// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/dialog_driver.h"
#include "play/window_watcher.h"
#include "tests/models/table_fixture.h"
#include "tests/play/bare_stage.h"
#include "zonestyle/dialog/zone_style_dialog.h"
#include "zonestyle/views/style_table_view.h"

#include <functional>

class QLineEdit;
class QPushButton;
class QTabWidget;

namespace corvala::tests {

using sdk::ui::dialogs::ZoneStyleDialog;
using sdk::ui::dialogs::zonestyle::intern::views::StyleTableView;

/// Lets everything that is pending happen, idle refreshes and repaints too.
void runUntilIdle();

/// A style write of a caller that is no user, as setStyle, and what follows from it. Must be done.
void change(const QString& path, const std::string& maps, double value);

/// A style value of a map of the active frame, or of the frame (map 0).
int styleValue(const QString& path, int map);

/// The value of an attribute for every map, such as "1 1 2".
QString styleValues(const QString& path, int maps);

/// A document with embedded data and the dialog open on it, driven by the robot. Cells are
/// addressed by map number and by column of the whole table.
class DialogFixture
{
public:
    explicit DialogFixture(const char* demo, int scale = 0);
    ~DialogFixture();

    QWidget& mainWindow() { return m_stage.window(); }
    ZoneStyleDialog& dialog();
    StyleTableView& table();
    ModelAbstract& model();
    QTabWidget& tabWidget() { return m_driver.tabs(); } ///< of the page that is shown
    QLineEdit& patternField();
    QPushButton& button(const char* objectName);

    /// Plays a line of a script. Throws a ScriptError.
    void play(const nlohmann::json& line);

    QString tabs(); ///< the texts, "|" between them; "*" before the current one
    void clickTab(const QString& text);

    QString selected() const; ///< map numbers such as "1-3,7", or "none"
    void select(const QList<int>& maps); ///< by clicks
    void clickCell(int map, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void doubleClickCell(int map, int column);
    void clickCheckBox(int map, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void rightClick(int map, int column);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier); ///< to the table

    int takeRefreshes(); ///< completed since the last call

private:
    QRect cellRect(int map, int column);

    BareStage m_stage;
    play::DialogDriver m_driver;
    int m_refreshes = 0;
};

/// Deals with the menus and pop-up editors that open while it lives, in order, from inside their
/// event loops. One that nobody expects is closed.
class PopupResponder
{
public:
    using Answer = std::function<void(QWidget&)>;

    explicit PopupResponder(Answer answer);

    PopupResponder& then(Answer answer);
    int shown() const { return m_shown; }

    /// Ends an editor by a key or, with 0, by a click elsewhere.
    static Answer end(int endKey);

private:
    void respond(QWidget& popup);

    QList<Answer> m_answers;
    int m_shown = 0;
    play::WindowWatcher m_watcher;
};

} // namespace corvala::tests
