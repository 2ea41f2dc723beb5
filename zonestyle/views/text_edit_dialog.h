// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/popup_dialog_base.h"

class QLabel;
class QLineEdit;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// A pop-up with one line of text. A text that does not fit stays, marked, with what is wrong with
/// it beside it; a click elsewhere discards it.
class TextEditDialog : public PopupDialogBase
{
    Q_OBJECT

public:
    /// Says what is wrong with a text; empty for one that fits.
    using Problem = std::function<QString(const QString& text)>;

    TextEditDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                   const QString& text, Problem problem);

    void done(int result) override;

protected:
    std::optional<QString> enteredText() const override;

private:
    void showProblem();

    Problem m_problem;
    QLineEdit* m_lineEdit;
    QLabel* m_hint;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
