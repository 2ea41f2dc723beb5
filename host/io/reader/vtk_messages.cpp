// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/vtk_messages.h"

#include "host/io/reader/vtk_words.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <vtkLogger.h>
#include <vtkObjectFactory.h>
#include <vtkOutputWindow.h>
#include <vtkSmartPointer.h>

#include <utility>
#include <vector>

namespace corvala::host::io::reader {

static constexpr int kMostWarnings = 20;
static constexpr int kLongestMessage = 300;

static std::vector<std::pair<QString, QString>>& shownFolders()
{
    static std::vector<std::pair<QString, QString>> folders;
    return folders;
}

/// "ERROR: In a.cxx, line 5\nvtkSomething (0x55d0): the message" becomes "the message".
static QString essence(const char* text)
{
    static const QRegularExpression place(
        QStringLiteral("^\\s*\\w[\\w ]*: In .*, line \\d+\\s*(?:\\w+ \\(0x[0-9a-f]+\\): )?"));
    QString message = QString::fromUtf8(text);
    message.remove(place);
    return VtkMessages::shown(message).simplified().left(kLongestMessage);
}

/// Says only that something went wrong, so that a later message may say it better. Pipelines pass
/// on that a reader failed; a name of a type that is cut off is whatever the memory held.
static bool isVague(const char* text)
{
    static const QRegularExpression vague(
        QStringLiteral("Pipeline \\(0x|Unsupported data type|: (Read|stat) failed\\.?\\s*$"));
    return vague.match(QString::fromUtf8(text)).hasMatch();
}

/// VTK's sink for messages.
class MessageWindow : public vtkOutputWindow
{
public:
    static MessageWindow* New();
    vtkTypeMacro(MessageWindow, vtkOutputWindow)

        void DisplayText(const char* text) override
    {
        const MessageTypes type = this->GetCurrentMessageType();
        const bool isWarning = type == MESSAGE_TYPE_WARNING || type == MESSAGE_TYPE_GENERIC_WARNING;
        const QString message = essence(text);
        // The legacy readers merely warn when the values end early.
        const bool isError = type == MESSAGE_TYPE_ERROR
            || (isWarning && message.startsWith(QLatin1String("Error ")));
        if (isError && (error.isEmpty() || isErrorVague)) {
            error = message;
            isErrorVague = isVague(text);
        } else if (isWarning && warnings.size() < kMostWarnings && !warnings.contains(message))
            warnings << message;
    }

    QString error;
    bool isErrorVague = false;
    QStringList warnings;
};

vtkStandardNewMacro(MessageWindow)

    VtkMessages::VtkMessages()
{
    vtkLogger::SetStderrVerbosity(vtkLogger::VERBOSITY_OFF);
    vtkOutputWindow::SetInstance(vtkSmartPointer<MessageWindow>::New());
}

static MessageWindow& window()
{
    return *static_cast<MessageWindow*>(vtkOutputWindow::GetInstance());
}

void VtkMessages::showInstead(const QString& temporary, const QString& folder)
{
    shownFolders().emplace_back(temporary, folder);
}

QString VtkMessages::shown(QString text)
{
    for (const auto& [temporary, folder] : shownFolders())
        text.replace(temporary, folder);
    return text;
}

ReadMessage VtkMessages::takeError()
{
    const QString error = std::exchange(window().error, {});
    if (error.isEmpty())
        return {};
    if (window().isErrorVague)
        return damaged();
    return meaningOf(error);
}

ReadMessage VtkMessages::damaged()
{
    return ReadMessage(
        QT_TRANSLATE_NOOP("ReadMessage", "it, or a file that it names, is cut off or damaged"));
}

void VtkMessages::forgetWarnings(const QString& containing)
{
    QStringList kept;
    for (const QString& warning : qAsConst(window().warnings))
        if (!warning.contains(containing))
            kept << warning;
    window().warnings = kept;
}

QStringList VtkMessages::takeWarnings()
{
    return std::exchange(window().warnings, {});
}

} // namespace corvala::host::io::reader
