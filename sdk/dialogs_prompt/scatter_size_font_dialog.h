// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/dialogs_common/document_dialog.h>
#include <sdk/toolbox/set.h>
#include <vocabulary/entry.h>

namespace corvala::dialogs::common {
class NumberedNameListModel;
}
namespace corvala::ui {
class ComboBoxAutoFilter;
}

namespace corvala::dialogs::prompt {

class FontChoice;

/// Chooses the variable that sizes the scatter symbols of the active frame, and the font of the
/// character symbols of its active field maps. It follows the document while it is open.
class ScatterSizeFontDialog : public common::DocumentDialog
{
    Q_OBJECT

public:
    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static ScatterSizeFontDialog& getInstance(QWidget* parent);

private:
    explicit ScatterSizeFontDialog(QWidget* parent);
    void readDocument() override;
    bool isConcernedBy(const toolbox::StateChangeEventInterface& change) const override;
    void writeVariable();
    void writeFont(style::Key key, int value);

    common::NumberedNameListModel* m_variables;
    ui::ComboBoxAutoFilter* m_variable;
    FontChoice* m_font;
    toolbox::Set m_activeMaps; ///< as they were read last
};

} // namespace corvala::dialogs::prompt
