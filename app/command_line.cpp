// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/command_line.h"

#include "app/plot3d_layout.h"
#include "samples/demo_data.h"

#include <QCoreApplication>

#include <algorithm>

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

QString usageText()
{
    return CommandLine::tr("Usage: corvala [OPTIONS] [FILES]\n"
                           "Plots field data and lets you edit the style of its zones and lines.\n"
                           "\n"
                           "  FILES             data files, opened together\n"
                           "  --demo [NAME]     embedded data: %1\n"
                           "  --play SCRIPT     play a script, then end\n"
                           "  --report FILE     write what the style dialog shows, then end\n"
                           "  --render FILE     write a picture of the plot, then end\n"
                           "  --plot3d LAYOUT   layout of Plot3D files, such as\n"
                           "                    format=binary,grids=many,endian=big\n"
                           "  --help            show this text\n"
                           "  --version         show the version\n"
                           "\n"
                           "Data are opened first; then a script is played, a report written, a\n"
                           "picture drawn. Exit codes: 0 success, 1 failure, 2 wrong usage.\n")
        .arg(demoNames().join(QStringLiteral(", ")));
}

/// Goes through the arguments; an option's value stands behind it or behind "=".
class ArgumentReader
{
public:
    ArgumentReader(const QStringList& arguments, Options& options)
        : m_arguments(arguments)
        , m_options(options)
    {
    }

    QString read()
    {
        while (m_next < m_arguments.size()) {
            const QString error = readOne(m_arguments[m_next++]);
            if (!error.isEmpty())
                return error;
        }
        return m_options.demo.isEmpty() || m_options.files.isEmpty()
            ? QString()
            : CommandLine::tr("give either files or --demo");
    }

private:
    QString readOne(const QString& argument)
    {
        if (m_onlyFiles || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1) {
            m_options.files << argument;
            return {};
        }
        if (argument == QLatin1String("--")) {
            m_onlyFiles = true;
            return {};
        }
        const QString name = argument.section(QLatin1Char('='), 0, 0);
        m_inlineValue =
            argument.contains(QLatin1Char('=')) ? argument.section(QLatin1Char('='), 1) : QString();
        return readOption(name);
    }

    QString readOption(const QString& name)
    {
        if (name == QLatin1String("--demo"))
            return readDemo();
        if (name == QLatin1String("--play"))
            return readText(name, m_options.script);
        if (name == QLatin1String("--report"))
            return readText(name, m_options.report);
        if (name == QLatin1String("--render"))
            return readText(name, m_options.picture);
        if (name == QLatin1String("--plot3d"))
            return readPlot3D(name);
        if (!m_inlineValue.isNull())
            return CommandLine::tr("unknown option %1").arg(name);
        if (name == QLatin1String("--help") || name == QLatin1String("-h"))
            m_options.help = true;
        else if (name == QLatin1String("--version"))
            m_options.version = true;
        else
            return CommandLine::tr("unknown option %1").arg(name);
        return {};
    }

    QString readText(const QString& name, QString& value)
    {
        if (!value.isEmpty())
            return CommandLine::tr("%1 is given twice").arg(name);
        if (!m_inlineValue.isNull())
            value = m_inlineValue;
        else if (m_next < m_arguments.size() && !m_arguments[m_next].startsWith("--"))
            value = m_arguments[m_next++];
        return value.isEmpty() ? CommandLine::tr("%1 needs a value").arg(name) : QString();
    }

    /// The name may be missing: the next argument is one when it is no option.
    QString readDemo()
    {
        const bool hasNext =
            m_next < m_arguments.size() && !m_arguments[m_next].startsWith(QLatin1Char('-'));
        QString name = m_inlineValue;
        if (name.isNull())
            name = hasNext ? m_arguments[m_next++] : QString::fromLatin1(kUsualDemo);
        if (!demoNames().contains(name))
            return CommandLine::tr("there is no embedded data \"%1\"; there are %2")
                .arg(name, demoNames().join(QStringLiteral(", ")));
        m_options.demo = name;
        return {};
    }

    QString readPlot3D(const QString& name)
    {
        QString text;
        const QString error = readText(name, text);
        return error.isEmpty() ? parsePlot3DLayout(text, m_options.plot3d) : error;
    }

    const QStringList& m_arguments;
    Options& m_options;
    int m_next = 0;
    bool m_onlyFiles = false;
    QString m_inlineValue; ///< null without "="
};

QString parseCommandLine(const QStringList& arguments, Options& options)
{
    return ArgumentReader(arguments, options).read();
}

} // namespace corvala::app
