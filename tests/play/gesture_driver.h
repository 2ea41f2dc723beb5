// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/script_run.h"

#include <QPointer>

#include <optional>
#include <random>

class QDialog;
class QMenu;
class QTableView;

namespace corvala::tests {

/// Does to the dialog what people do, at random but with a preference for what changes something;
/// in between, and while menus, editors and prompts are open, the document changes. The same seed
/// gives the same gestures.
class GestureDriver
{
public:
    GestureDriver(play::Stage& stage, unsigned seed);

    /// One gesture, or one change of the document.
    void step();

    const play::DialogDriver& dialog() const { return m_run.dialog(); }

private:
    struct Gesture
    {
        const char* name;
        int weight;
        void (GestureDriver::*play)();
    };
    static const std::vector<Gesture>& gestures();

    int below(int count); ///< 0 to count - 1
    int between(int first, int last);
    bool oneIn(int count) { return below(count) == 0; }
    template<class List>
    auto anyOf(const List& list)
    {
        return list[static_cast<typename List::size_type>(below(static_cast<int>(list.size())))];
    }

    // On the document.
    nlohmann::json anyMaps();
    nlohmann::json anyStyle();
    nlohmann::json anyChange();
    void changeDocument();
    void playLine(const nlohmann::json& line);

    // On the table.
    void clickCell();
    void clickCheckBox();
    void changeUnderPressedButton();
    void dragOverCells();
    void openMenu();
    void doubleClickCell();
    void dragHeader();
    void doubleClickHeader();
    void clickHeader();
    void turnWheel();
    void dragScrollBar();

    // On the dialog.
    void clickTab();
    void pressKey();
    void typeText();
    void enterPattern();
    void clickButton();
    void useWindow();
    void openOrClose();
    void wait();

    // In what has opened.
    void whileOpen(play::WindowWatcher::Kind kind, QWidget& window);
    void useMenu(QMenu& menu);
    void useEditor(QWidget& editor);
    void usePrompt(QWidget& prompt);
    void fillAnyField(QWidget& window);
    void clickOutside(QWidget& window);

    QTableView* table() const; ///< null when none is shown
    QModelIndex anyCell(int role = -1); ///< a visible one, with a value for the role
    QPoint anyPoint(const QRect& area);
    std::optional<QPoint> anyBorder();
    Qt::KeyboardModifiers anyModifiers();

    play::ScriptRun m_run;
    std::mt19937 m_random;
    int m_depth = 0; ///< of windows that are being used
};

} // namespace corvala::tests
