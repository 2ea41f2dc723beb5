// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/popup_dialog_base.h"

class QLineEdit;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// A pop-up with one line of text.
class TextEditDialog : public PopupDialogBase
{
    Q_OBJECT

public:
    TextEditDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                   const QString& text);

protected:
    std::optional<QString> enteredText() const override;

private:
    QLineEdit* m_lineEdit;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
