// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <vtkGenericEnSightReader.h>

namespace corvala::host::io::reader {

static constexpr qint64 kLongestCase = 1 << 26;

/// Rewrites a case file with quoted file names, which VTK takes for part of the names. The copy
/// lies in another folder, and names its files through links beside it, so that blanks are no
/// trouble.
class UnquotedCase
{
public:
    UnquotedCase(const QString& path, const QDir& folder)
        : m_source(QFileInfo(path).dir())
        , m_folder(folder)
    {
    }

    QByteArray rewritten(const QByteArray& text);

private:
    QString line(const QString& text);
    QString alias(const QString& fileName);
    QString link(const QString& target);

    QDir m_source;
    QDir m_folder;
    QString m_section;
    int m_links = 0;
};

QByteArray UnquotedCase::rewritten(const QByteArray& text)
{
    QByteArray result;
    for (const QString& each : QString::fromUtf8(text).split(QLatin1Char('\n')))
        result += line(each).toUtf8() + '\n';
    return result;
}

/// The file is the first word of a geometry line that is no number, and the last one of a variable
/// line; a constant has values there instead.
QString UnquotedCase::line(const QString& text)
{
    static const QRegularExpression word(QStringLiteral("\"([^\"]*)\"|(\\S+)"));
    const QString plain = text.trimmed();
    const int colon = plain.indexOf(QLatin1Char(':'));
    if (colon < 0 || plain.startsWith(QLatin1Char('#'))) {
        m_section = plain.isEmpty() || plain.startsWith(QLatin1Char('#')) ? m_section : plain;
        return plain;
    }
    QStringList words;
    for (auto match = word.globalMatch(plain.mid(colon + 1)); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        words << found.captured(found.capturedStart(1) >= 0 ? 1 : 2);
    }
    const bool isVariable =
        m_section == QLatin1String("VARIABLE") && !plain.startsWith(QLatin1String("constant"));
    int file = isVariable ? words.size() - 1 : words.size();
    if (m_section == QLatin1String("GEOMETRY"))
        file = words.indexOf(QRegularExpression(QStringLiteral(".*\\D.*")));
    for (int i = 0; i < words.size(); ++i)
        words[i] =
            i == file ? alias(words[i]) : words[i].replace(QLatin1Char(' '), QLatin1Char('_'));
    return plain.left(colon + 1) + QLatin1Char(' ') + words.join(QLatin1Char(' '));
}

/// A name without blanks for a file. Of a name with wildcards only the folders before them are
/// behind the link.
QString UnquotedCase::alias(const QString& fileName)
{
    const int wildcard = fileName.indexOf(QLatin1Char('*'));
    if (wildcard < 0)
        return link(m_source.absoluteFilePath(fileName));
    const int slash = fileName.lastIndexOf(QLatin1Char('/'), wildcard);
    return link(m_source.absoluteFilePath(fileName.left(std::max(slash, 0)))) + QLatin1Char('/')
        + fileName.mid(slash + 1);
}

QString UnquotedCase::link(const QString& target)
{
    if (!QFileInfo::exists(target))
        throw ReadFailure(target, QT_TRANSLATE_NOOP("ReadMessage", "there is no such file"));
    const QString name = QStringLiteral("link%1").arg(m_links++);
    QFile::link(target, m_folder.filePath(name));
    return name;
}

static QString unquoted(const QString& path, const QDir& folder)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray text = file.read(kLongestCase);
    if (!text.contains("FORMAT"))
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it is no EnSight case file"));
    if (!text.contains('"'))
        return path;
    const QString copyPath = folder.filePath(QStringLiteral("unquoted.case"));
    QFile copy(copyPath);
    const QByteArray plain = UnquotedCase(path, folder).rewritten(text);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(plain) != plain.size() || !copy.flush())
        throw ReadFailure::ofFullDisk(folder.path());
    return copyPath;
}

std::unique_ptr<DataFile> openEnSight(const QString& path, const QDir& helperFolder)
{
    auto reader = vtkSmartPointer<vtkGenericEnSightReader>::New();
    reader->SetCaseFileName(QFile::encodeName(unquoted(path, helperFolder)).constData());
    reader->ReadAllVariablesOn();
    return std::make_unique<AlgorithmFile>(path, reader);
}

} // namespace corvala::host::io::reader
