// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/vtk_words.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <vector>

namespace corvala::host::io::reader {

/// What a pattern captures are the values of the message.
struct VtkWords
{
    QRegularExpression pattern;
    const char* message;
};

static const std::vector<VtkWords>& knownWords()
{
    static const auto like = [](const char* pattern) {
        return QRegularExpression(QString::fromLatin1(pattern));
    };
    static const std::vector<VtkWords> words {
        // OpenFOAM
        {like("reading line (\\d+) of (.+): (?:Unexpected EOF|.*found EOF)"),
         QT_TRANSLATE_NOOP("ReadMessage", "it is cut off in line %1 of %2")},
        {like("reading line (\\d+) of (.+): Unsupported directive (\\S+)"),
         QT_TRANSLATE_NOOP("ReadMessage",
                           "line %1 of %2 has the directive \"#%3\", which cannot be read")},
        {like("reading line (\\d+) of (.+?): "),
         QT_TRANSLATE_NOOP("ReadMessage", "line %1 of %2 cannot be read")},
        {like("opening (.+): Expected string \"FoamFile\""),
         QT_TRANSLATE_NOOP("ReadMessage", "%1 has no header, or is cut off")},
        {like("opening (.+): (?:Cannot|Can't) open"),
         QT_TRANSLATE_NOOP("ReadMessage", "%1 cannot be opened")},
        {like("(.+) contains no meshes"),
         QT_TRANSLATE_NOOP("ReadMessage", "there is no mesh in the case of %1")},
        // VTK XML
        {like("parsing XML in stream at line (\\d+), column (\\d+)"),
         QT_TRANSLATE_NOOP("ReadMessage", "its XML is damaged in line %1 at column %2")},
        {like("Cannot read .*array \"([^\"]*)\"|because the \"([^\"]*)\" array is"),
         QT_TRANSLATE_NOOP("ReadMessage", "the array \"%1\" is cut off or damaged")},
        {like("Cannot read points array"),
         QT_TRANSLATE_NOOP("ReadMessage", "its points are cut off or damaged")},
        {like("error while uncompressing"),
         QT_TRANSLATE_NOOP("ReadMessage", "what is compressed in it is damaged")},
        // legacy VTK
        {like("Unrecognized keyword: (\\S+)|attribute type: (\\S+)"),
         QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" is no word that is known there")},
        {like("Error reading cell"),
         QT_TRANSLATE_NOOP("ReadMessage", "its cells are cut off or damaged")},
        {like("Error reading ascii data"),
         QT_TRANSLATE_NOOP("ReadMessage", "it has fewer numbers than it announces")},
        // STL
        {like("at line (\\d+): Parse error. Expecting '([^']*)' found '([^']*)'"),
         QT_TRANSLATE_NOOP("ReadMessage", "line %1 has \"%3\" instead of \"%2\"")},
        {like("at line (\\d+): Parse error"),
         QT_TRANSLATE_NOOP("ReadMessage", "line %1 cannot be read")},
        // CGNS
        {like("reading mesh coordinates"),
         QT_TRANSLATE_NOOP("ReadMessage", "its coordinates cannot be read")},
        {like("reading node label in solution"),
         QT_TRANSLATE_NOOP("ReadMessage", "a solution cannot be read")},
        // Exodus
        {like("Unable to open (?:file )?\""),
         QT_TRANSLATE_NOOP("ReadMessage", "it is damaged, or no Exodus file")},
        {like("Unable to fetch \\w+ set \"(?:Unnamed set ID: )?([^\"]*)\""),
         QT_TRANSLATE_NOOP("ReadMessage", "the set \"%1\" cannot be read")},
    };
    return words;
}

ReadMessage meaningOf(const QString& vtkMessage)
{
    for (const VtkWords& words : knownWords()) {
        const QRegularExpressionMatch match = words.pattern.match(vtkMessage);
        if (!match.hasMatch())
            continue;
        ReadMessage result(words.message);
        for (int i = 1; i <= match.lastCapturedIndex(); ++i)
            if (match.capturedStart(i) >= 0) // of the alternatives, the one that is there
                result.arguments.push_back(match.captured(i).toStdString());
        return result;
    }
    return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "VTK's reader says: %1"), {vtkMessage});
}

} // namespace corvala::host::io::reader
