// SPDX-License-Identifier: BSD-3-Clause
#include "play/arguments.h"

namespace corvala::play {

QString Arguments::file(const char* key) const
{
    const QString name = text(key);
    if (name.isEmpty())
        failKind(key, Text::tr("a file name"));
    return absolute(name);
}

Arguments Arguments::inner(const char* key) const
{
    if (!at(key).is_object())
        failKind(key, Text::tr("an object"));
    return Arguments(at(key), m_folder);
}

} // namespace corvala::play
