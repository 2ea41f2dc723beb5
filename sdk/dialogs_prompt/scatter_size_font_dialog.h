// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/signals/signal_connection_collection.h>

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace corvala::ui {
class ComboBoxAutoFilter;
}

namespace corvala::dialogs::prompt {

/// Chooses the variable that sizes the scatter symbols of the active frame, and the font of the
/// character symbols of its active field maps. Modeless; it follows the document while it is open.
class ScatterSizeFontDialog : public QDialog
{
    Q_OBJECT

public:
    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static ScatterSizeFontDialog& getInstance(QWidget* parent);

    void launch(); ///< shows it, or brings it to the front

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    explicit ScatterSizeFontDialog(QWidget* parent);
    void readDocument();
    void writeVariable();
    void writeFont();

    ui::ComboBoxAutoFilter* m_variable;
    QCheckBox* m_useBaseFont;
    QLabel* m_fontLabel;
    QComboBox* m_font;
    signaling::SignalConnectionCollection m_connections;
};

} // namespace corvala::dialogs::prompt
