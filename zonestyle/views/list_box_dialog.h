// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/popup_dialog_base.h"

class QListWidget;
class QListWidgetItem;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// A pop-up list; one click chooses.
class ListBoxDialog : public PopupDialogBase
{
    Q_OBJECT

public:
    /// `width` is the least width in pixels, that of the column.
    ListBoxDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                  const QStringList& entries, const QString& current, int width);

protected:
    std::optional<QString> enteredText() const override;

private Q_SLOTS:
    void itemClicked(QListWidgetItem* item);

private:
    void setupUi();
    void fitToEntries(int width);

    QListWidget* m_listBox = nullptr;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
