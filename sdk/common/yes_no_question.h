// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QApplication>
#include <QMessageBox>

namespace corvala::sdk {

/// Asks over the active window; true for yes.
inline bool askYesNo(const QString& title, const QString& question)
{
    return QMessageBox::question(QApplication::activeWindow(), title, question,
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
        == QMessageBox::Yes;
}

} // namespace corvala::sdk
