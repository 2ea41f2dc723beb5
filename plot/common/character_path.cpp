// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/character_path.h"

#include "vocabulary/enums.h"

#include <QFontMetricsF>
#include <QGuiApplication>

#include <algorithm>

namespace corvala::plot {

/// The letter that a Greek font shows for a Latin one.
static QString greek(const QString& text)
{
    static const QString kLatin =
        QStringLiteral("abgdezhqiklmnxoprstufcywABGDEZHQIKLMNXOPRSTUFCYW");
    static const QString kGreek =
        QString::fromUtf8("αβγδεζηθικλμνξοπρστυφχψωΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩ");
    QString result = text;
    for (QChar& letter : result) {
        const int place = kLatin.indexOf(letter);
        letter = place < 0 ? letter : kGreek[place];
    }
    return result;
}

static QFont fontOf(int font)
{
    QFont result = QGuiApplication::font();
    if (font == FontOverride_Math) {
        result = QFont(QStringLiteral("serif"));
        result.setStyleHint(QFont::Serif);
        result.setItalic(true);
    } else if (font == FontOverride_User) {
        result = QFont(QStringLiteral("monospace"));
        result.setStyleHint(QFont::Monospace);
    }
    result.setPixelSize(100);
    return result;
}

QPainterPath characterPath(const QString& text, int font)
{
    const QString character = text.left(1);
    const QFont drawn = fontOf(font);
    QPainterPath path;
    path.addText(0.0, 0.0, drawn, font == FontOverride_Greek ? greek(character) : character);
    const QPointF middle = path.boundingRect().center();
    const double scale = 2.0 / std::max(QFontMetricsF(drawn).capHeight(), 1.0);
    return QTransform::fromScale(scale, -scale).translate(-middle.x(), -middle.y()).map(path);
}

} // namespace corvala::plot
