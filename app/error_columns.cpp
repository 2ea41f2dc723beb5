// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/error_columns.h"

#include <QRegularExpression>
#include <QString>

#include <optional>
#include <unordered_map>

namespace corvala::app {

/// As names are compared: without unit and case.
static QString plainName(const std::string& text)
{
    static const QRegularExpression kUnit(QStringLiteral(R"(\s*[\[(][^\])]*[\])]$)"));
    const QString name = QString::fromStdString(text).toLower();
    const QString plain = QString(name).remove(kUnit).trimmed();
    return plain.isEmpty() ? name : plain;
}

namespace {

/// Of what a column has the errors, by its name.
struct ErrorName
{
    bool isError = false;
    QString of; ///< empty where the name does not say
};

} // namespace

static ErrorName errorNameOf(const QString& name)
{
    static const QString kWord = QStringLiteral(
        "(?:err|error|errors|errorbar|std|stddev|stdev|std[ _-]dev|sigma|uncertainty)");
    static const QRegularExpression kAlone('^' + kWord + '$');
    static const QRegularExpression kBehind("^(.+?)[ _.-]*" + kWord + '$');
    static const QRegularExpression kBefore('^' + kWord + "[ _.-]+(.+)$|^d([xyz])$");
    if (kAlone.match(name).hasMatch())
        return {true, {}};
    for (const QRegularExpression* const pattern : {&kBehind, &kBefore})
        if (const QRegularExpressionMatch match = pattern->match(name); match.hasMatch())
            return {true, match.captured(match.lastCapturedIndex())};
    return {};
}

std::map<std::size_t, std::size_t> errorColumns(const std::vector<std::string>& names)
{
    std::unordered_map<std::string, std::size_t> places; // by plain name
    std::vector<ErrorName> errorNames;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QString name = plainName(names[i]);
        errorNames.push_back(errorNameOf(name));
        places.try_emplace(name.toStdString(), i);
    }
    std::map<std::size_t, std::size_t> errors;
    std::vector<std::size_t> others; // that are no errors
    std::optional<std::size_t> alone;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const ErrorName& error = errorNames[i];
        const auto other = places.find(error.of.toStdString());
        if (error.isError && other != places.end())
            errors.try_emplace(other->second, i);
        else if (error.isError && error.of.isEmpty() && others.size() == 2 && !alone)
            alone = i;
        else
            others.push_back(i);
    }
    if (alone && others.size() == 2)
        errors.try_emplace(others.back(), *alone);
    return errors;
}

} // namespace corvala::app
