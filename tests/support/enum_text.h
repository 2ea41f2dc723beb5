// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/enums.h"

#include <QTest>

#include <utility>

namespace corvala::tests {

/// As the compiler knows it.
template<class Enum, Enum Value>
QByteArray enumeratorName()
{
    const QByteArray signature(__PRETTY_FUNCTION__);
    return signature.mid(signature.lastIndexOf(' ') + 1).chopped(1);
}

/// The name of an enumerator, for one of the first values; else the number.
template<class Enum, int... Values>
char* enumText(Enum value, std::integer_sequence<int, Values...>)
{
    QByteArray text = QByteArray::number(static_cast<int>(value));
    (void(value == Enum(Values) ? text = enumeratorName<Enum, Enum(Values)>() : text), ...);
    return qstrdup(text);
}

} // namespace corvala::tests

namespace QTest {

template<>
inline char* toString(const StyleWriteResult_e& result)
{
    return corvala::tests::enumText(result, std::make_integer_sequence<int, 9> {});
}
template<>
inline char* toString(const PlotType_e& type)
{
    return corvala::tests::enumText(type, std::make_integer_sequence<int, 6> {});
}

} // namespace QTest
