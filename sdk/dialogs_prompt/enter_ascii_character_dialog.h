// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace corvala::dialogs::prompt {

class FontChoice;

/// Asks for the character of a character symbol and for its font. Set the present choice, then
/// exec().
class EnterASCIICharacterDialog : public QDialog
{
    Q_OBJECT

public:
    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static EnterASCIICharacterDialog& getInstance(QWidget* parent);

    void setCharacter(const QString& character); ///< the first character counts
    void setUseBaseFont(bool useBaseFont);
    void setTypeFaceOverride(int fontOverride); ///< FontOverride_e; others count as none

    /// QDialog::Accepted or Rejected. Cannot be accepted without a character.
    int exec() override;

    QString selectedChar() const; ///< one character (two UTF-16 units for some)
    bool useBaseFont() const;
    int typeFaceOverride() const; ///< FontOverride_e

private:
    explicit EnterASCIICharacterDialog(QWidget* parent);

    QLineEdit* m_character;
    FontChoice* m_font;
    QPushButton* m_okButton;
};

} // namespace corvala::dialogs::prompt
