// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/plot3d_dialog.h"

#include "app/help_reference.h"
#include "app/plot3d_layout.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>

namespace corvala::app {

using host::io::Plot3DLayout;

static QString shown(const char* text)
{
    return QCoreApplication::translate("Plot3D", text);
}

static QComboBox* choiceOf(const Plot3DProperty& property, const std::optional<bool>& value)
{
    auto* choice = new QComboBox;
    choice->addItem(Plot3DDialog::tr("detect"));
    choice->addItem(shown(property.yesText));
    choice->addItem(shown(property.noText));
    choice->setCurrentIndex(value ? (*value ? 1 : 2) : 0);
    return choice;
}

Plot3DDialog::Plot3DDialog(const Plot3DLayout& present, const Plot3DLayout* detected,
                           QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Plot3D Layout"));
    setHelpReference(*this, QStringLiteral("formats.html#plot3d"));
    auto* form = new QFormLayout(this);
    if (detected) {
        auto* note = new QLabel(tr("Detected: %1.").arg(describePlot3DLayout(*detected)));
        note->setWordWrap(true);
        form->addRow(note);
    }
    for (const Plot3DProperty& property : plot3DProperties()) {
        m_choices.push_back(choiceOf(property, present.*property.value));
        form->addRow(shown(property.label), m_choices.back());
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

Plot3DLayout Plot3DDialog::chosenLayout() const
{
    Plot3DLayout chosen;
    for (std::size_t i = 0; i < m_choices.size(); ++i) {
        const int choice = m_choices[i]->currentIndex();
        if (choice > 0)
            chosen.*plot3DProperties()[i].value = choice == 1;
    }
    return chosen;
}

} // namespace corvala::app
