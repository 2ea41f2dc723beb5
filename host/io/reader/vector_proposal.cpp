// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/vector_proposal.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_map>

namespace corvala::host::io::reader {

/// Made once: that takes longer than a match.
static const QRegularExpression& expressionOf(const char* pattern)
{
    thread_local std::unordered_map<std::string, QRegularExpression> expressions;
    const auto [place, isNew] = expressions.try_emplace(pattern);
    if (isNew)
        place->second = QRegularExpression(QString::fromLatin1(pattern),
                                           QRegularExpression::CaseInsensitiveOption);
    return place->second;
}

bool matches(const std::string& name, const char* pattern)
{
    return expressionOf(pattern).match(QString::fromStdString(name)).hasMatch();
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

/// Candidates in the order in which they come.
class CandidateList
{
public:
    /// Adds a variable to its candidate. The names of kinds are those of their parts with a number,
    /// so that letters before a name and behind it are kept apart.
    void add(const std::string& name, const std::string& kind, std::size_t part, int number);
    const std::vector<Candidate>& candidates() const { return m_candidates; }

private:
    std::vector<Candidate> m_candidates;
    std::map<std::pair<std::string, std::string>, std::size_t> m_places; ///< by name and kind
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
    if (numbers[0] == 0 || numbers[1] == 0 || namesBookkeeping(name)
        || matches(name, "colou?r|rgb"))
        return 0;
    if (matches(name, "^u$|^v$|veloc|^vel") || (name.empty() && kind[0] == 'u'))
        return 5;
    if (matches(name, "momentum|^mom$|^rho$"))
        return 4;
    if (matches(name, "normal|^texture|tcoord"))
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

void CandidateList::add(const std::string& name, const std::string& kind, std::size_t part,
                        int number)
{
    const auto [place, isNew] = m_places.try_emplace({name, kind}, m_candidates.size());
    if (isNew)
        m_candidates.push_back({name, kind, {}});
    int& known = m_candidates[place->second].numbers[part];
    if (known == 0)
        known = number;
}

static void addByName(CandidateList& candidates, const std::string& name, int number)
{
    int kind = 0;
    for (const Naming& naming : kNamings) {
        ++kind;
        const auto match =
            expressionOf(naming.pattern).match(QString::fromStdString(name).toLower());
        if (!match.hasMatch())
            continue;
        const std::string parts = naming.parts;
        candidates.add(match.captured(QStringLiteral("name")).toStdString(),
                       parts[0] + std::to_string(kind),
                       parts.find(match.captured(QStringLiteral("part")).toStdString()), number);
    }
}

static CandidateList candidatesAmong(const std::vector<Variable>& variables)
{
    std::unordered_map<std::string, int> inArray;
    for (const Variable& variable : variables)
        ++inArray[variable.array];
    CandidateList candidates;
    for (std::size_t i = 0; i < variables.size(); ++i) {
        const Variable& variable = variables[i];
        const auto number = static_cast<int>(i) + 1;
        if (variable.isCoordinate())
            continue;
        if (inArray[variable.array] == 1)
            addByName(candidates, variable.name, number);
        else if (inArray[variable.array] <= 3)
            candidates.add(variable.array, {}, static_cast<std::size_t>(variable.component),
                           number);
    }
    return candidates;
}

std::array<int, 3> proposedVector(const std::vector<Variable>& variables)
{
    const CandidateList list = candidatesAmong(variables);
    const std::vector<Candidate>& candidates = list.candidates();
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
