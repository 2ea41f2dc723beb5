// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/undo_texts.h"

#include <QCoreApplication>

namespace corvala::host {

QString undoText(const char* text)
{
    return QCoreApplication::translate("UndoTexts", text);
}

static QString styleName(const char* text)
{
    return QCoreApplication::translate("StyleValues", text);
}

QString mapCountText(Scope scope, std::uint64_t count)
{
    const bool isField = scope == Scope::FieldMap;
    if (count == 1)
        return undoText(isField ? QT_TRANSLATE_NOOP("UndoTexts", "1 field map")
                                : QT_TRANSLATE_NOOP("UndoTexts", "1 line map"));
    return undoText(isField ? QT_TRANSLATE_NOOP("UndoTexts", "%1 field maps")
                            : QT_TRANSLATE_NOOP("UndoTexts", "%1 line maps"))
        .arg(count);
}

static QString numberText(const Attribute& attribute, double number)
{
    switch (attribute.type) {
    case ValueType::Bool:
        return number != 0.0 ? undoText(QT_TRANSLATE_NOOP("UndoTexts", "on"))
                             : undoText(QT_TRANSLATE_NOOP("UndoTexts", "off"));
    case ValueType::Enumeration:
        for (const style::Choice& choice : attribute.choices)
            if (choice.value == number)
                return styleName(choice.name);
        break;
    default: break;
    }
    constexpr int kDigits = 10; // of the largest whole number
    return QString::number(number, 'g', kDigits)
        + (attribute.isPercent ? QStringLiteral("%") : QString());
}

static QString valueText(const Attribute& attribute, const StyleInput& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        return QString::fromStdString(*text);
    if (const auto* flag = std::get_if<bool>(&value))
        return numberText(attribute, *flag ? 1.0 : 0.0);
    const auto* number = std::get_if<double>(&value);
    return number ? numberText(attribute, *number) : QString();
}

QString assignmentText(const Attribute& attribute, const StyleInput& value)
{
    return undoText(QT_TRANSLATE_NOOP("UndoTexts", "%1 = %2"))
        .arg(styleName(attribute.label), valueText(attribute, value));
}

QString assignmentText(const Attribute& attribute, const StyleInput& value, std::uint64_t maps)
{
    return undoText(QT_TRANSLATE_NOOP("UndoTexts", "%1 = %2 (%3)"))
        .arg(styleName(attribute.label), valueText(attribute, value),
             mapCountText(attribute.scope, maps));
}

QString activationText(AssignOp_e op, const QString& maps)
{
    const char* const text = op == AssignOp_Add ? QT_TRANSLATE_NOOP("UndoTexts", "Activate %1")
        : op == AssignOp_Remove                 ? QT_TRANSLATE_NOOP("UndoTexts", "Deactivate %1")
                                                : QT_TRANSLATE_NOOP("UndoTexts", "Show only %1");
    return undoText(text).arg(maps);
}

} // namespace corvala::host
