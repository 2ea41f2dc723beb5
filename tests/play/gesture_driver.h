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

private:
    struct Gesture
    {
        const char* name;
        int weight;
        void (GestureDriver::*play)();
    };
    struct Place
    {
        QWidget* widget;
        QPoint point;
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

    template<class List>
    const auto& byWeight(const List& list)
    {
        int weight = 0;
        for (const auto& one : list)
            weight += one.weight;
        weight = below(weight);
        auto chosen = list.begin();
        for (; weight >= chosen->weight; ++chosen)
            weight -= chosen->weight;
        return *chosen;
    }

    // On the document.
    nlohmann::json anyChange();
    void changeDocument();
    void playLine(const nlohmann::json& line);

    // On the table.
    void click();
    void doubleClick();
    void drag();
    void changeUnderPressedButton();
    void openMenu();
    void turnWheel();

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
    std::optional<Place> anyPlace();
    Qt::KeyboardModifiers anyModifiers();

    play::ScriptRun m_run;
    std::mt19937 m_random;
    int m_depth = 0; ///< of windows that are being used
};

} // namespace corvala::tests
