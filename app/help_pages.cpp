// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help_pages.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTextDocument>

/// Resources of a static library are not there by themselves; at global scope, as the macro wants.
static void initialisePages()
{
    Q_INIT_RESOURCE(help_pages);
}

namespace corvala::app {

/// Of the pages in the language of all texts, which the translation of its name tells.
static QString folder()
{
    static const bool isReady = (initialisePages(), true);
    Q_UNUSED(isReady)
    const QString pages = QStringLiteral("/corvala/help/");
    const QString translated = pages
        + QCoreApplication::translate("HelpPages", "en", "language of the pages of the help")
        + QLatin1Char('/');
    return QFile::exists(QLatin1Char(':') + translated) ? translated : pages;
}

QUrl helpUrl(const QString& reference)
{
    QUrl url(QStringLiteral("qrc:") + folder() + reference.section(QLatin1Char('#'), 0, 0));
    url.setFragment(reference.section(QLatin1Char('#'), 1));
    return url;
}

static QString htmlOf(const QString& page)
{
    QFile file(QLatin1Char(':') + helpUrl(page).path());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

static QString plainText(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText();
}

std::vector<HelpEntry> helpContents()
{
    static const QRegularExpression kEntry(
        QStringLiteral("<h2>(.*?)</h2>|<a\\s+href=\"([^\"]*)\">(.*?)</a>"),
        QRegularExpression::DotMatchesEverythingOption);
    std::vector<HelpEntry> entries;
    auto found = kEntry.globalMatch(htmlOf(QStringLiteral("index.html")));
    while (found.hasNext()) {
        const QRegularExpressionMatch entry = found.next();
        entries.push_back({plainText(entry.captured(1) + entry.captured(3)), entry.captured(2)});
    }
    return entries;
}

std::vector<HelpHit> searchHelp(const QString& text)
{
    std::vector<HelpHit> hits;
    QStringList searched;
    for (const HelpEntry& entry : helpContents()) {
        const QString page = entry.reference.section(QLatin1Char('#'), 0, 0);
        if (text.isEmpty() || page.isEmpty() || searched.contains(page))
            continue;
        searched << page;
        QTextDocument document;
        document.setHtml(htmlOf(page));
        const int count = document.toPlainText().count(text, Qt::CaseInsensitive);
        if (count > 0)
            hits.push_back({document.metaInformation(QTextDocument::DocumentTitle), page, count});
    }
    return hits;
}

} // namespace corvala::app
