// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/command_line.h"

#include "app/picture_output.h"
#include "app/plot3d_layout.h"
#include "host/storage/document_file.h"
#include "samples/demo_data.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace corvala::app {

struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

static const char* const kUsualDemo = "field2d";

static QStringList demoNames()
{
    QStringList names;
    for (const std::string& name : samples::demoNames())
        names << QString::fromStdString(name);
    return names;
}

static QString otherDemoNames()
{
    QStringList names = demoNames();
    names.removeOne(QLatin1String(kUsualDemo));
    return names.join(QStringLiteral(", "));
}

/// The name of the demonstration data may be missing.
static QStringList withDemoNamed(QStringList arguments)
{
    const QString demo = QStringLiteral("--demo");
    for (int i = 0; i < arguments.size() && arguments[i] != QLatin1String("--"); ++i) {
        if (arguments[i] == demo && arguments.value(i + 1, demo).startsWith(QLatin1Char('-')))
            arguments[i] += QLatin1Char('=') + QLatin1String(kUsualDemo);
    }
    return arguments;
}

/// The options of the program.
class Parser : public QCommandLineParser
{
public:
    Parser();

    /// Empty on success, else what is wrong.
    QString read(const QStringList& arguments, Options& options);

private:
    using Option = QCommandLineOption;

    QString text(const Option& option, QString& value) const;
    QString check(const Options& options) const;
    void letPassQt();

    const Option m_help {{QStringLiteral("h"), QStringLiteral("help"), QStringLiteral("help-all")},
                         CommandLine::tr("Print this help, then end.")};
    const Option m_version = addVersionOption();
    const Option m_demo {QStringLiteral("demo"),
                         CommandLine::tr("Open embedded data: %1 (when no name is given), %2.")
                             .arg(QLatin1String(kUsualDemo), otherDemoNames()),
                         CommandLine::tr("name")};
    const Option m_play {QStringLiteral("play"), CommandLine::tr("Play a script, then end."),
                         CommandLine::tr("script")};
    const Option m_report {QStringLiteral("report"),
                           CommandLine::tr("Write what the style dialog shows, then end."),
                           CommandLine::tr("file")};
    const Option m_render {QStringLiteral("render"),
                           CommandLine::tr("Write a picture of the plot, then end: .png, .pdf, "
                                           ".svg, .tif, .jpg or .bmp."),
                           CommandLine::tr("file")};
    const Option m_save {QStringLiteral("save"),
                         CommandLine::tr("Save the document, then end: .cvdoc."),
                         CommandLine::tr("file")};
    const Option m_size {QStringLiteral("size"),
                         CommandLine::tr("Size of the picture on paper, as 160x120mm (usual for "
                                         ".pdf and .svg), or in pixels, as 1200x900."),
                         CommandLine::tr("size")};
    const Option m_dpi {QStringLiteral("dpi"),
                        CommandLine::tr("Pixels of the picture to an inch (300)."),
                        CommandLine::tr("number")};
    const Option m_transparent {
        QStringLiteral("transparent"),
        CommandLine::tr("Leave the background of the picture out: .png, .pdf, .svg or .tif.")};
    const Option m_plot3d {QStringLiteral("plot3d"),
                           CommandLine::tr("Layout of Plot3D files, such as "
                                           "format=binary,grids=many,endian=big."),
                           CommandLine::tr("layout")};
    const Option m_table {QStringLiteral("table"),
                          CommandLine::tr("How tables of text are written, such as "
                                          "separator=tab,decimal=comma,header=1,columns=2:words "
                                          "5-9:skip,bad=skip."),
                          CommandLine::tr("dialect")};
    const Option m_boundaryPatches {
        QStringLiteral("boundary-patches"),
        CommandLine::tr("Read the boundary patches of CGNS files as zones.")};
    const Option m_numberedTimes {
        QStringLiteral("numbered-times"),
        CommandLine::tr("Take files without times that differ by a number for one time series.")};
};

Parser::Parser()
{
    setSingleDashWordOptionMode(ParseAsLongOptions);
    setApplicationDescription(
        CommandLine::tr("Plots field data and lets you edit the style of its zones and lines.\n"
                        "Data are opened first; then a script is played, a report written, a "
                        "picture drawn, the document saved.\n"
                        "Options of Qt, such as -style and -platform, are taken as well.\n"
                        "Exit codes: 0 success, 1 failure, 2 wrong usage."));
    addOptions({m_help, m_demo, m_play, m_report, m_render, m_save, m_size, m_dpi, m_transparent,
                m_plot3d, m_table, m_boundaryPatches, m_numberedTimes});
    letPassQt();
    addPositionalArgument(
        QStringLiteral("files"),
        CommandLine::tr("A document, or data files that are opened together, or the folder of "
                        "a case."),
        QStringLiteral("[files...]"));
}

/// Options that Qt takes from the command line itself.
void Parser::letPassQt()
{
    static const char* const kWithValue[] = {
        "platform",        "platformpluginpath", "platformtheme", "plugin",
        "style",           "stylesheet",         "display",       "geometry",
        "qwindowgeometry", "qwindowtitle",       "qwindowicon",   "name",
        "session"};
    static const char* const kAlone[] = {"reverse", "nograb", "dograb", "widgetcount"};
    const auto add = [this](const char* name, const QString& value) {
        Option option(QLatin1String(name), {}, value);
        option.setFlags(Option::HiddenFromHelp);
        addOption(option);
    };
    for (const char* const name : kWithValue)
        add(name, QStringLiteral("value"));
    for (const char* const name : kAlone)
        add(name, {});
}

QString Parser::text(const Option& option, QString& value) const
{
    const QString name = QStringLiteral("--") + option.names().constFirst();
    if (values(option).size() > 1)
        return CommandLine::tr("%1 is given twice").arg(name);
    value = this->value(option);
    const bool isMissing = value.isEmpty() || value.startsWith(QLatin1String("--"));
    return isSet(option) && isMissing ? CommandLine::tr("%1 needs a value").arg(name) : QString();
}

QString Parser::check(const Options& options) const
{
    if (options.paper == plot::Paper::Transparent && !canBeTransparent(options.picture))
        return CommandLine::tr("--transparent goes with --render of .png, .pdf, .svg or .tif");
    if (!options.demo.isEmpty() && !demoNames().contains(options.demo))
        return CommandLine::tr("there is no embedded data \"%1\"; there are %2")
            .arg(options.demo, demoNames().join(QStringLiteral(", ")));
    const auto isDocument = [](const QString& file) {
        return file.endsWith(QLatin1String(host::storage::kFileEnding), Qt::CaseInsensitive);
    };
    if (options.files.size() > 1
        && std::any_of(options.files.begin(), options.files.end(), isDocument))
        return CommandLine::tr("a document is opened alone");
    return options.demo.isEmpty() || options.files.isEmpty()
        ? QString()
        : CommandLine::tr("give either files or --demo");
}

/// Of the picture.
static QString readSize(const QString& size, const QString& resolution, Options& options)
{
    options.pictureSize = usualPictureSize(options.picture);
    double& dots = options.pictureSize.dotsPerInch;
    bool isNumber = true;
    if (!resolution.isEmpty())
        dots = resolution.toDouble(&isNumber);
    if (!isNumber || !(dots >= plot::kLowestResolution && dots <= plot::kHighestResolution))
        return CommandLine::tr("\"%1\" is no number of pixels to an inch: from %2 to %3")
            .arg(resolution)
            .arg(plot::kLowestResolution)
            .arg(plot::kHighestResolution);
    const auto chosen = size.isEmpty() ? options.pictureSize : plot::pictureSizeOf(size, dots);
    if (!chosen)
        return CommandLine::tr("\"%1\" is no size of a picture, such as 160x120mm or 1200x900")
            .arg(size);
    options.pictureSize = *chosen;
    return pictureSizeProblem(options.picture, *chosen);
}

QString Parser::read(const QStringList& arguments, Options& options)
{
    if (!parse(QStringList(QStringLiteral("corvala")) + withDemoNamed(arguments)))
        return errorText();
    QString size;
    QString resolution;
    QString layout;
    QString table;
    const std::pair<const Option&, QString&> texts[] = {
        {m_demo, options.demo},      {m_play, options.script},   {m_report, options.report},
        {m_render, options.picture}, {m_save, options.document}, {m_size, size},
        {m_dpi, resolution},         {m_plot3d, layout},         {m_table, table}};
    for (const auto& [option, value] : texts) {
        const QString error = text(option, value);
        if (!error.isEmpty())
            return error;
    }
    options.files = positionalArguments();
    options.choices = {isSet(m_boundaryPatches), isSet(m_numberedTimes)};
    options.help = isSet(m_help);
    options.version = isSet(m_version);
    options.paper = isSet(m_transparent) ? plot::Paper::Transparent : plot::Paper::White;
    QString error = parsePlot3DLayout(layout, options.plot3d);
    if (error.isEmpty())
        error = host::io::parseTextDialect(table, options.table);
    if (error.isEmpty() && !options.picture.isEmpty())
        error = pictureFormatProblem(options.picture);
    if (error.isEmpty())
        error = readSize(size, resolution, options);
    return error.isEmpty() ? check(options) : error;
}

QString parseCommandLine(const QStringList& arguments, Options& options)
{
    return Parser().read(arguments, options);
}

host::io::ReadRequest Options::request() const
{
    host::io::ReadRequest request;
    request.files = files;
    request.plot3d = plot3d;
    request.text = table;
    request.choices = choices;
    return request;
}

QString usageText()
{
    return Parser().helpText();
}

} // namespace corvala::app
