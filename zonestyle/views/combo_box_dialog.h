// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/popup_dialog_base.h"

namespace corvala::ui {
class ComboBoxAutoFilter;
}

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// A pop-up with a combo box that finds entries as the user types.
class ComboBoxDialog : public PopupDialogBase
{
    Q_OBJECT

public:
    /// Starts empty when `current` is not one of the entries.
    ComboBoxDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                   const QStringList& entries, const QString& current);

protected:
    bool event(QEvent* event) override;
    std::optional<QString> enteredText() const override;

private:
    corvala::ui::ComboBoxAutoFilter* m_comboBox;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
