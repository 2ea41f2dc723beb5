// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace corvala::app {

/// Asks for the file in which to save a document, and whether one that is there is to be replaced;
/// empty when the user cancels. The proposed file may be empty; its folder gives way to one of
/// documents that were used before when nothing can be written there, and that of the samples to
/// the user's folder of documents.
QString askForDocumentFile(QWidget& parent, const QString& proposed);

} // namespace corvala::app
