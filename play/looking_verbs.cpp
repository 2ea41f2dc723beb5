// SPDX-License-Identifier: BSD-3-Clause
#include "play/expectations.h"
#include "play/idle.h"
#include "play/images.h"
#include "play/picture_file.h"
#include "play/style_report.h"
#include "play/verbs.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QPixmap>

namespace corvala::play {

static void expect(ScriptRun& run, const Arguments& arguments)
{
    const Arguments wanted = arguments.inner("expect");
    if (wanted.has("map"))
        expectCell(run, wanted);
    else if (wanted.has("column"))
        expectColumn(run, wanted);
    else
        expectState(run, wanted);
}

static void report(ScriptRun& run, const Arguments& arguments)
{
    const QString error = writeStyleReport(
        run.dialog(), arguments.text("maps", QStringLiteral("all")), arguments.file("report"));
    if (!error.isEmpty())
        throw ScriptError(error);
}

static QImage imageOf(ScriptRun& run, const QString& what)
{
    if (what == QLatin1String("dialog"))
        return run.dialog().dialog().grab().toImage();
    if (what == QLatin1String("window"))
        return run.stage().window().grab().toImage();
    throw ScriptError(Text::tr("\"of\" must be \"dialog\", \"canvas\" or \"window\""));
}

static void screenshot(ScriptRun& run, const Arguments& arguments)
{
    const QString what = arguments.text("of");
    const QString file = arguments.file("screenshot");
    const QString error = what == QLatin1String("canvas") ? run.stage().saveCanvas(file)
                                                          : writePicture(imageOf(run, what), file);
    if (!error.isEmpty())
        throw ScriptError(error);
}

static QString percent(double share)
{
    return QString::number(100.0 * share, 'f', 3);
}

static void differs(ScriptRun&, const Arguments& arguments)
{
    const double share = shareOfChangedPixels(arguments.file("differs"), arguments.file("from"));
    const double least = arguments.number("by", 0.0);
    if (share <= 0.0 || share < least)
        throw ScriptError(
            Text::tr("the images differ in %1 % of their pixels only").arg(percent(share)));
}

static void same(ScriptRun&, const Arguments& arguments)
{
    const double share = shareOfChangedPixels(arguments.file("same"), arguments.file("as"));
    if (share > 0.0)
        throw ScriptError(
            Text::tr("the images differ in %1 % of their pixels").arg(percent(share)));
}

std::vector<Verb> lookingVerbs()
{
    return {{"expect", {}, expect},
            {"report", {"maps"}, report},
            {"screenshot", {"of"}, screenshot},
            {"differs", {"from", "by"}, differs},
            {"same", {"as"}, same}};
}

} // namespace corvala::play
