// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

/// Resources of a static library are not there by themselves; at global scope, as the macro wants.
static void initialiseTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace corvala::app {

/// Whether the texts are there.
static bool install(const QString& name, const QString& folder)
{
    auto* texts = new QTranslator(QCoreApplication::instance());
    if (texts->load(name, folder))
        return QCoreApplication::installTranslator(texts);
    delete texts;
    return false;
}

static bool speak(const QString& language)
{
    if (!install(QLatin1String("corvala_") + language, QStringLiteral(":/corvala/translations")))
        return false;
    install(QLatin1String("qtbase_") + language,
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    return true;
}

QStringList userLanguages()
{
    return QLocale::system().uiLanguages();
}

void setUpLanguage(const QStringList& languages)
{
    initialiseTranslations();
    speak(QStringLiteral("en")); // its plurals; the texts of the sources are English
    for (const QString& tag : languages) {
        const QString language = tag.section(QLatin1Char('-'), 0, 0);
        if (language == QLatin1String("en") || language == QLatin1String("C") || speak(language))
            return;
    }
}

} // namespace corvala::app
