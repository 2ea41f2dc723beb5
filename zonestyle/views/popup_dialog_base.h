// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// A small frameless editor that pops up over a table. Return, Enter, Tab and a click elsewhere
/// commit what it shows; Escape discards it.
class PopupDialogBase : public QDialog
{
    Q_OBJECT

public:
    using Commit = std::function<void(const QString& text)>;

    /// The position is that of the top left corner, as far as the screen has room there. `commit`
    /// is called at most once, when the pop-up has closed.
    PopupDialogBase(const QPoint& globalPosition, QWidget* parent, Commit commit);
    ~PopupDialogBase() override;

    /// Shows the pop-up until it closes, then deletes it; it must have been made with new. The
    /// parent may be destroyed, and the pop-up with it, before this returns.
    static void run(PopupDialogBase* popup);

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// Tab commits, also where another widget could take the focus.
    bool focusNextPrevChild(bool next) override;

    // The text to commit; empty when nothing was entered or chosen that could be.
    virtual std::optional<QString> enteredText() const = 0;

private:
    static void waitFor(PopupDialogBase& popup);
    void commitEntered();
    void moveOntoScreen();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
