// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/vector_magnitudes.h"

#include <algorithm>
#include <set>

namespace corvala::host {

namespace {

struct Vector
{
    std::string name; ///< of its magnitude
    std::array<int, 3> numbers {{0, 0, 0}};
};

} // namespace

/// Colors have no length.
static bool isOfColor(const Variable& first)
{
    return first.name == first.array + " red";
}

/// Arrays whose components follow each other and are no more than three.
static std::vector<Vector> vectorsOfArrays(const DataSet& data)
{
    std::vector<Vector> vectors;
    const auto isPart = [&data](std::int64_t number, const Variable& first, int component) {
        return data.hasVariable(number) && data.variable(number).array == first.array
            && data.variable(number).component == component
            && data.variable(number).kind == VariableKind::Number;
    };
    for (std::int64_t number = 1; number <= data.variableCount(); ++number) {
        const Variable& first = data.variable(number);
        if (first.array.empty() || !isPart(number, first, 0) || isOfColor(first))
            continue;
        int count = 1;
        while (isPart(number + count, first, count))
            ++count;
        if (count != 2 && count != 3)
            continue;
        Vector vector {first.array + " Magnitude", {}};
        for (int i = 0; i < count; ++i)
            vector.numbers[static_cast<std::size_t>(i)] = static_cast<int>(number) + i;
        vectors.push_back(std::move(vector));
    }
    return vectors;
}

static std::vector<Vector> vectorsOf(const DataSet& data)
{
    std::vector<Vector> vectors = vectorsOfArrays(data);
    const auto& proposed = data.vectorVariables;
    if (proposed[0] == 0 || proposed[1] == 0)
        return vectors;
    std::string name;
    for (const int number : proposed)
        if (number != 0)
            name += (name.empty() ? "Magnitude (" : ", ") + data.variable(number).name;
    vectors.push_back({name + ')', proposed});
    return vectors;
}

void addMagnitudes(DataSet& data)
{
    if (data.suggestedPlotType() == PlotType_LineXY)
        return;
    std::set<std::array<int, 3>> known;
    for (const Variable& variable : data.variables)
        known.insert(variable.vector);
    for (Vector& vector : vectorsOf(data)) {
        if (!known.insert(vector.numbers).second)
            continue;
        Variable magnitude;
        magnitude.name = std::move(vector.name);
        magnitude.vector = vector.numbers;
        magnitude.isConstant =
            std::all_of(vector.numbers.begin(), vector.numbers.end(), [&data](int number) {
                return number == 0 || data.variable(number).isConstant;
            });
        data.variables.push_back(std::move(magnitude));
    }
}

} // namespace corvala::host
