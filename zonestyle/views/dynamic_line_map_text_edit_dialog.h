// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/popup_dialog_base.h"

#include <sdk/base/types.h>

class QHBoxLayout;
class QLineEdit;
class QListView;
class QToolButton;

namespace corvala::sdk::ui::propertymanager {
class DynamicLineMapTextEditPropertiesManager;
}

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// A pop-up for the name of a line map, with a list of the tokens that the host fills in when it
/// shows the name. A token goes to the cursor of the name, in place of the text selected there.
class DynamicLineMapTextEditDialog : public PopupDialogBase
{
    Q_OBJECT

public:
    /// `rawName` is the name as stored, with its tokens.
    DynamicLineMapTextEditDialog(const QPoint& globalPosition, QWidget* parent, Commit commit,
                                 const QString& rawName, CvlInt64 lineMap);
    ~DynamicLineMapTextEditDialog() override;

protected:
    std::optional<QString> enteredText() const override;
    /// Down goes from the name to the list of tokens, where Space inserts the current one.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Bindings;

    void setupUi();
    QToolButton* addToolButton(QHBoxLayout& layout, const QString& objectName, const QString& icon,
                               const QString& text);
    void setUpTokenList();
    void insertCurrentToken();
    void leaveSelected(QEvent& focusOut);

    QLineEdit* m_lineEdit = nullptr;
    QToolButton* m_insertButton = nullptr;
    QToolButton* m_helpButton = nullptr;
    QListView* m_listView = nullptr;
    std::unique_ptr<propertymanager::DynamicLineMapTextEditPropertiesManager> m_properties;
    std::unique_ptr<Bindings> m_bindings;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
