// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_prompt/enter_ascii_character_dialog.h"

#include <sdk/private/font_choice.h>
#include <sdk/private/shared_instance.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QValidator>

namespace corvala::dialogs::prompt {

/// Lets one character through that can be seen.
class CharacterValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& input, int&) const override
    {
        if (input.isEmpty())
            return Intermediate;
        const auto characters = input.toUcs4();
        return characters.size() == 1 && QChar::isPrint(characters.front())
                && !QChar::isSpace(characters.front())
            ? Acceptable
            : Invalid;
    }
};

EnterASCIICharacterDialog& EnterASCIICharacterDialog::getInstance(QWidget* parent)
{
    static QPointer<EnterASCIICharacterDialog> instance;
    return common::sharedInstance(
        instance, parent, [](QWidget* owner) { return new EnterASCIICharacterDialog(owner); });
}

EnterASCIICharacterDialog::EnterASCIICharacterDialog(QWidget* parent)
    : QDialog(parent)
    , m_character(new QLineEdit(this))
    , m_font(new FontChoice(this))
{
    setWindowTitle(tr("Enter Character"));
    m_character->setValidator(new CharacterValidator(m_character));
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Character:"), m_character);
    m_font->addTo(*form);
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    form->addRow(buttons);
    m_okButton = buttons->button(QDialogButtonBox::Ok);
    m_okButton->setDefault(true);
    m_okButton->setEnabled(false);
    connect(m_character, &QLineEdit::textChanged, this,
            [this] { m_okButton->setEnabled(m_character->hasAcceptableInput()); });
    // The next character typed takes the place of this one.
    connect(m_character, &QLineEdit::textEdited, m_character, &QLineEdit::selectAll);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void EnterASCIICharacterDialog::setCharacter(const QString& character)
{
    const auto characters = character.toUcs4();
    m_character->setText(characters.isEmpty() ? QString()
                                              : QString::fromUcs4(characters.constData(), 1));
}

void EnterASCIICharacterDialog::setUseBaseFont(bool useBaseFont)
{
    m_font->setUseBaseFont(useBaseFont);
}

void EnterASCIICharacterDialog::setTypeFaceOverride(int fontOverride)
{
    m_font->setFontOverride(fontOverride);
}

int EnterASCIICharacterDialog::exec()
{
    m_character->setFocus();
    m_character->selectAll();
    return QDialog::exec();
}

QString EnterASCIICharacterDialog::selectedChar() const
{
    return m_character->text();
}

bool EnterASCIICharacterDialog::useBaseFont() const
{
    return m_font->useBaseFont();
}

int EnterASCIICharacterDialog::typeFaceOverride() const
{
    return m_font->fontOverride();
}

} // namespace corvala::dialogs::prompt
