// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/host_lists.h"

#include <sdk/base/cvl.h>
#include <sdk/toolbox/set.h>

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
    for (const CvlInt64 member : toolbox::SetMembers(set))
        found.append(QString::fromStdString(nameOf(frame, member)));
    CvlUtilSetDealloc(&set);
    return found;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
