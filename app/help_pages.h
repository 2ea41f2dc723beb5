// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include <vector>

namespace corvala::app {

/// Where the program carries a page, in its language: of a reference such as
/// "contour.html#contour/modification".
QUrl helpUrl(const QString& reference);

/// An entry of the contents.
struct HelpEntry
{
    QString title;
    QString reference; ///< empty for the heading of the entries behind it
};

/// What the page of contents lists, in its order: its headings and its links.
std::vector<HelpEntry> helpContents();

/// A page on which a text was found.
struct HelpHit
{
    QString title;
    QString page; ///< its file name
    int count; ///< of places
};

/// The pages with a text, in any case of letters, in the order of the contents.
std::vector<HelpHit> searchHelp(const QString& text);

} // namespace corvala::app
