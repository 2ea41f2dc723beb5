// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/vector_proposal.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <tuple>
#include <unordered_map>

namespace corvala::host::io::reader {

bool matches(const std::string& name, const char* pattern)
{
    const QRegularExpression expression(QString::fromLatin1(pattern),
                                        QRegularExpression::CaseInsensitiveOption);
    return expression.match(QString::fromStdString(name)).hasMatch();
}

bool namesBookkeeping(const std::string& name)
{
    return matches(name,
                   "^vtkOriginal|^(Global|Pedigree)\\w*Id$|^ObjectId$|^SourceElement|^IBlank$");
}

namespace {

/// Variables that may be the components of a vector.
struct Candidate
{
    std::string name; ///< of the vector
    std::string kind; ///< how its components are named; the names of an array's are its own
    std::array<int, 3> numbers {{0, 0, 0}};

    int likenessToVelocity() const; ///< 0 when it is no vector
    bool isConstant(const std::vector<Variable>& variables) const;
};

/// What the names of components look like: a name with one of three letters behind or before.
struct Naming
{
    const char* pattern; ///< captures "name" and "part"
    const char* parts;
};
constexpr Naming kNamings[] = {
    {"^(?<name>.*?)[ _.:-]*(?<part>[uvw])$", "uvw"},
    {"^(?<name>.+?)[ _.:-]*(?<part>[xyz])$", "xyz"},
    {"^(?<part>[uvw])[ _.:-]+(?<name>.+)$", "uvw"},
    {"^(?<part>[xyz])[ _.:-]*(?<name>.+)$", "xyz"},
    {"^(?<name>.+?)[ _.:[(-]*(?<part>[0-2])[\\])]?$", "012"},
    {"^(?<name>.+?)[ _.:[(-]*(?<part>[1-3])[\\])]?$", "123"},
};

} // namespace

int Candidate::likenessToVelocity() const
{
    const bool isOfArray = kind.empty();
    if (numbers[0] == 0 || numbers[1] == 0 || namesBookkeeping(name))
        return 0;
    if (matches(name, "^u$|^v$|veloc|^vel") || (name.empty() && kind[0] == 'u'))
        return 5;
    if (matches(name, "momentum|^mom$|^rho$"))
        return 4;
    if (matches(name, "normal|^texture|tcoord|colou?r|rgb"))
        return isOfArray ? 1 : 0;
    if (!isOfArray
        && (matches(kind, "\\d") || matches(name, "coord|position|^points?$|cent(er|re)")))
        return 0;
    return numbers[2] != 0 && isOfArray ? 3 : 2;
}

bool Candidate::isConstant(const std::vector<Variable>& variables) const
{
    return std::all_of(numbers.begin(), numbers.end(), [&](int number) {
        return number == 0 || variables[static_cast<std::size_t>(number - 1)].isConstant;
    });
}

/// Adds a variable to its candidate. The names of kinds are those of their parts with a number, so
/// that letters before a name and behind it are kept apart.
static void add(std::vector<Candidate>& candidates, const std::string& name,
                const std::string& kind, std::size_t part, int number)
{
    auto found = std::find_if(candidates.begin(), candidates.end(), [&](const Candidate& known) {
        return known.name == name && known.kind == kind;
    });
    if (found == candidates.end())
        found = candidates.insert(candidates.end(), {name, kind, {}});
    if (found->numbers[part] == 0)
        found->numbers[part] = number;
}

static void addByName(std::vector<Candidate>& candidates, const std::string& name, int number)
{
    int kind = 0;
    for (const Naming& naming : kNamings) {
        ++kind;
        const QRegularExpression expression(QString::fromLatin1(naming.pattern));
        const auto match = expression.match(QString::fromStdString(name).toLower());
        if (!match.hasMatch())
            continue;
        const std::string parts = naming.parts;
        add(candidates, match.captured(QStringLiteral("name")).toStdString(),
            parts[0] + std::to_string(kind),
            parts.find(match.captured(QStringLiteral("part")).toStdString()), number);
    }
}

static std::vector<Candidate> candidatesAmong(const std::vector<Variable>& variables)
{
    std::unordered_map<std::string, int> inArray;
    for (const Variable& variable : variables)
        ++inArray[variable.array];
    std::vector<Candidate> candidates;
    for (std::size_t i = 0; i < variables.size(); ++i) {
        const Variable& variable = variables[i];
        const auto number = static_cast<int>(i) + 1;
        if (variable.isCoordinate())
            continue;
        if (inArray[variable.array] == 1)
            addByName(candidates, variable.name, number);
        else if (inArray[variable.array] <= 3)
            add(candidates, variable.array, {}, static_cast<std::size_t>(variable.component),
                number);
    }
    return candidates;
}

std::array<int, 3> proposedVector(const std::vector<Variable>& variables)
{
    const std::vector<Candidate> candidates = candidatesAmong(variables);
    const auto rankOf = [&](const Candidate& candidate) {
        const int likeness = candidate.likenessToVelocity();
        return std::make_tuple(likeness > 0, !candidate.isConstant(variables), likeness);
    };
    const auto best = std::max_element(candidates.begin(), candidates.end(),
                                       [&](const Candidate& left, const Candidate& right) {
                                           return rankOf(left) < rankOf(right);
                                       });
    if (best == candidates.end() || best->likenessToVelocity() == 0)
        return {{0, 0, 0}};
    return best->numbers;
}

} // namespace corvala::host::io::reader
