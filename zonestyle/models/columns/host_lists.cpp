// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/host_lists.h"

#include <sdk/base/cvl.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

QString takeText(char* text)
{
    const QString taken = QString::fromUtf8(text);
    CvlUtilStringDealloc(&text);
    return taken;
}

QStringList names(CvlSetHandle set, CvlUniqueId frame,
                  std::string (*nameOf)(CvlUniqueId frame, CvlInt64 member))
{
    QStringList found;
    for (CvlInt64 member = CvlUtilSetGetNextMember(set, 0); member != 0;
         member = CvlUtilSetGetNextMember(set, member))
        found.append(QString::fromStdString(nameOf(frame, member)));
    CvlUtilSetDealloc(&set);
    return found;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
