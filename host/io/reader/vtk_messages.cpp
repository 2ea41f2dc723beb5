// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/vtk_messages.h"

#include <QRegularExpression>

#include <vtkLogger.h>
#include <vtkObjectFactory.h>
#include <vtkOutputWindow.h>
#include <vtkSmartPointer.h>

namespace corvala::host::io::reader {

static constexpr int kMostWarnings = 20;
static constexpr int kLongestMessage = 300;

/// "ERROR: In a.cxx, line 5\nvtkSomething (0x55d0): the message" becomes "the message".
static QString essence(const char* text)
{
    static const QRegularExpression place(
        QStringLiteral("^\\s*\\w[\\w ]*: In .*, line \\d+\\s*(?:\\w+ \\(0x[0-9a-f]+\\): )?"));
    QString message = QString::fromUtf8(text);
    message.remove(place);
    return message.simplified().left(kLongestMessage);
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
        if (isError && error.isEmpty())
            error = message;
        else if (isWarning && warnings.size() < kMostWarnings && !warnings.contains(message))
            warnings << message;
    }

    QString error;
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

QString VtkMessages::takeError()
{
    return std::exchange(window().error, {});
}

QStringList VtkMessages::takeWarnings()
{
    return std::exchange(window().warnings, {});
}

} // namespace corvala::host::io::reader
