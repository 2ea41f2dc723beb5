// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/uicommon/question.h"

#include "sdk/uicommon/edit_session.h"

#include <QApplication>
#include <QPointer>

namespace corvala::sdk::ui {

bool ask(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text,
         QMessageBox::StandardButton yes, QMessageBox::StandardButton no,
         QMessageBox::StandardButton preset)
{
    const QPointer<QMessageBox> box(new QMessageBox(icon, title, text, yes | no, parent));
    box->setDefaultButton(preset);
    const bool wanted = execInEditSession(*box) == yes;
    delete box;
    return wanted;
}

bool askYesNo(const QString& title, const QString& question)
{
    return ask(QApplication::activeWindow(), QMessageBox::Question, title, question,
               QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes);
}

} // namespace corvala::sdk::ui
