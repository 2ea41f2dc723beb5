// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/plot3d_layout.h"

#include <QCoreApplication>
#include <QStringList>

namespace corvala::app {

using host::io::Plot3DLayout;

struct Plot3D
{
    Q_DECLARE_TR_FUNCTIONS(Plot3D)
};

const std::vector<Plot3DProperty>& plot3DProperties()
{
    static const std::vector<Plot3DProperty> properties {
        {"format", "ascii", "binary", QT_TRANSLATE_NOOP("Plot3D", "Format"),
         QT_TRANSLATE_NOOP("Plot3D", "text"), QT_TRANSLATE_NOOP("Plot3D", "binary"),
         &Plot3DLayout::ascii},
        {"grids", "many", "one", QT_TRANSLATE_NOOP("Plot3D", "Grids"),
         QT_TRANSLATE_NOOP("Plot3D", "several grids"), QT_TRANSLATE_NOOP("Plot3D", "one grid"),
         &Plot3DLayout::multiGrid},
        {"iblank", "yes", "no", QT_TRANSLATE_NOOP("Plot3D", "Blanking"),
         QT_TRANSLATE_NOOP("Plot3D", "with blanking"),
         QT_TRANSLATE_NOOP("Plot3D", "without blanking"), &Plot3DLayout::iblank},
        {"records", "yes", "no", QT_TRANSLATE_NOOP("Plot3D", "Record marks"),
         QT_TRANSLATE_NOOP("Plot3D", "with record marks"),
         QT_TRANSLATE_NOOP("Plot3D", "without record marks"), &Plot3DLayout::byteCount},
        {"endian", "big", "little", QT_TRANSLATE_NOOP("Plot3D", "Byte order"),
         QT_TRANSLATE_NOOP("Plot3D", "big endian"), QT_TRANSLATE_NOOP("Plot3D", "little endian"),
         &Plot3DLayout::bigEndian},
        {"precision", "double", "single", QT_TRANSLATE_NOOP("Plot3D", "Precision"),
         QT_TRANSLATE_NOOP("Plot3D", "double precision"),
         QT_TRANSLATE_NOOP("Plot3D", "single precision"), &Plot3DLayout::doublePrecision},
        {"dimensions", "2", "3", QT_TRANSLATE_NOOP("Plot3D", "Dimensions"),
         QT_TRANSLATE_NOOP("Plot3D", "two dimensions"),
         QT_TRANSLATE_NOOP("Plot3D", "three dimensions"), &Plot3DLayout::twoDimensional},
    };
    return properties;
}

static const Plot3DProperty* propertyOf(const QString& key)
{
    for (const Plot3DProperty& property : plot3DProperties()) {
        if (key == QLatin1String(property.key))
            return &property;
    }
    return nullptr;
}

static QString keyList()
{
    QStringList keys;
    for (const Plot3DProperty& property : plot3DProperties())
        keys << QLatin1String(property.key);
    return keys.join(QStringLiteral(", "));
}

QString parsePlot3DLayout(const QString& text, Plot3DLayout& layout)
{
    Plot3DLayout parsed = layout;
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString key = part.section(QLatin1Char('='), 0, 0).trimmed();
        const QString value = part.section(QLatin1Char('='), 1).trimmed();
        const Plot3DProperty* property = propertyOf(key);
        if (!property)
            return Plot3D::tr("\"%1\" is no Plot3D property; there are %2").arg(key, keyList());
        if (value == QLatin1String(property->yes))
            parsed.*property->value = true;
        else if (value == QLatin1String(property->no))
            parsed.*property->value = false;
        else if (value == QLatin1String("auto"))
            parsed.*property->value = std::nullopt;
        else
            return Plot3D::tr("the Plot3D property %1 is \"%2\", \"%3\" or \"auto\", not \"%4\"")
                .arg(key, QLatin1String(property->yes), QLatin1String(property->no), value);
    }
    layout = parsed;
    return {};
}

QString plot3DLayoutText(const Plot3DLayout& layout)
{
    QStringList parts;
    for (const Plot3DProperty& property : plot3DProperties()) {
        if (const std::optional<bool>& value = layout.*property.value)
            parts << QStringLiteral("%1=%2").arg(
                QLatin1String(property.key), QLatin1String(*value ? property.yes : property.no));
    }
    return parts.join(QLatin1Char(','));
}

QString describePlot3DLayout(const Plot3DLayout& layout)
{
    QStringList parts;
    for (const Plot3DProperty& property : plot3DProperties()) {
        if (const std::optional<bool>& value = layout.*property.value)
            parts << QCoreApplication::translate("Plot3D",
                                                 *value ? property.yesText : property.noText);
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace corvala::app
