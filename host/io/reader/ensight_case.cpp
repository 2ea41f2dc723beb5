// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ensight_case.h"

#include "host/io/reader/read_failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cmath>
#include <iterator>
#include <set>

namespace corvala::host::io::reader {

static constexpr qint64 kLongestCase = 1 << 26;
static constexpr int kMostSteps = 10'000'000;

/// Words of a line; quotes hold blanks together.
static QStringList wordsOf(const QString& text)
{
    static const QRegularExpression word(QStringLiteral("\"([^\"]*)\"|(\\S+)"));
    QStringList words;
    for (auto match = word.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        words << found.captured(found.capturedStart(1) >= 0 ? 1 : 2);
    }
    return words;
}

/// Reads the sections of a case file into the members of an EnSightCase.
class EnSightCaseParser
{
public:
    EnSightCaseParser(const QString& path, EnSightCase& target)
        : m_path(path)
        , m_folder(QFileInfo(path).dir())
        , m_case(target)
    {
    }

    void parse();

private:
    using Line = EnSightCase::Line;

    std::vector<Line> lines() const;
    void take(const Line& line);
    void takeFormat(const Line& line);
    void takeGeometry(const Line& line);
    void takeVariable(const Line& line);
    void takeTime(const Line& line);
    void takeFile(const Line& line);

    EnSightFiles takeSets(QStringList& words, int needed) const;
    EnSightFiles takeFiles(const Line& line) const;
    QStringList wordsIn(const Line& line) const;
    int number(const Line& line, const QString& word) const;
    [[noreturn]] void refuse(const Line& line) const;

    QString m_path;
    QDir m_folder;
    EnSightCase& m_case;
    int m_set = 0; ///< time set or file set that is being read
    int m_firstNumber = 0; ///< of the files of the time set
};

void EnSightCaseParser::refuse(const Line& line) const
{
    throw ReadFailure(m_path,
                      QT_TRANSLATE_NOOP("ReadMessage", "line %1 (\"%2\") cannot be understood"),
                      {QString::number(line.number), line.key});
}

int EnSightCaseParser::number(const Line& line, const QString& word) const
{
    bool isNumber = false;
    const int result = word.toInt(&isNumber);
    if (!isNumber)
        refuse(line);
    return result;
}

/// Headings are words in capitals. A line without a colon goes on with the one before it.
std::vector<EnSightCase::Line> EnSightCaseParser::lines() const
{
    static const QRegularExpression heading(QStringLiteral("^[A-Z_]{4,}$"));
    QFile file(m_path);
    file.open(QIODevice::ReadOnly);
    const QStringList texts = QString::fromUtf8(file.read(kLongestCase)).split(QLatin1Char('\n'));
    std::vector<Line> result;
    QString section;
    for (int i = 0; i < texts.size(); ++i) {
        const QString text = texts[i].trimmed();
        const int colon = text.indexOf(QLatin1Char(':'));
        if (text.isEmpty() || text.startsWith(QLatin1Char('#')))
            continue;
        if (heading.match(text).hasMatch())
            section = text;
        else if (colon >= 0)
            result.push_back(
                {i + 1, section, text.left(colon).simplified(), wordsOf(text.mid(colon + 1))});
        else if (!result.empty() && result.back().section == section)
            result.back().words += wordsOf(text);
    }
    return result;
}

void EnSightCaseParser::parse()
{
    for (const Line& line : lines())
        take(line);
    if (m_case.geometry.pattern.isEmpty())
        throw ReadFailure(m_path,
                          QT_TRANSLATE_NOOP("ReadMessage",
                                            "it is no EnSight case file that names a "
                                            "geometry"));
}

/// What other sections say is of no use here.
void EnSightCaseParser::take(const Line& line)
{
    if (line.section == QLatin1String("FORMAT"))
        takeFormat(line);
    else if (line.section == QLatin1String("GEOMETRY"))
        takeGeometry(line);
    else if (line.section.startsWith(QLatin1String("VARIABLE")))
        takeVariable(line);
    else if (line.section == QLatin1String("TIME"))
        takeTime(line);
    else if (line.section == QLatin1String("FILE"))
        takeFile(line);
}

void EnSightCaseParser::takeFormat(const Line& line)
{
    if (line.key != QLatin1String("type"))
        return;
    if (line.words.value(0) != QLatin1String("ensight"))
        throw ReadFailure(m_path,
                          QT_TRANSLATE_NOOP("ReadMessage", "cases of type \"%1\" cannot be read"),
                          {line.words.join(QLatin1Char(' '))});
    m_case.isGold = line.words.value(1) == QLatin1String("gold");
}

/// Numbers of time set and file set, which may stand before the `needed` last words.
EnSightFiles EnSightCaseParser::takeSets(QStringList& words, int needed) const
{
    EnSightFiles result;
    for (int* set : {&result.timeSet, &result.fileSet}) {
        bool isNumber = false;
        const int value = words.value(0).toInt(&isNumber);
        if (!isNumber || words.size() <= needed)
            break;
        *set = value;
        words.removeFirst();
    }
    return result;
}

EnSightFiles EnSightCaseParser::takeFiles(const Line& line) const
{
    QStringList words = line.words;
    EnSightFiles result = takeSets(words, 1);
    if (words.isEmpty())
        refuse(line);
    result.pattern = m_folder.absoluteFilePath(words.first());
    return result;
}

void EnSightCaseParser::takeGeometry(const Line& line)
{
    if (line.key == QLatin1String("model"))
        m_case.geometry = takeFiles(line);
    else if (line.key == QLatin1String("measured"))
        m_case.particles = takeFiles(line);
}

/// The key is like "scalar per node", "complex vector per element", "tensor asym per node".
void EnSightCaseParser::takeVariable(const Line& line)
{
    static const QRegularExpression kind(
        QStringLiteral("^(complex )?(scalar|vector|tensor|tensor symm|tensor asym) per "
                       "(node|element|measured node)$"));
    const QRegularExpressionMatch match = kind.match(line.key);
    QStringList words = line.words;
    if (!match.hasMatch()) {
        m_case.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage", "Line %1 of the case was left out: %2 is no field."),
            std::initializer_list<QString> {QString::number(line.number),
                                            line.key + QStringLiteral(": ")
                                                + line.words.join(QLatin1Char(' '))});
        return;
    }
    const bool isComplex = !match.captured(1).isEmpty();
    EnSightVariable variable;
    variable.files = takeSets(words, isComplex ? 3 : 2);
    if (words.size() < (isComplex ? 3 : 2))
        refuse(line);
    static const std::map<QString, int> components {{QStringLiteral("scalar"), 1},
                                                    {QStringLiteral("vector"), 3},
                                                    {QStringLiteral("tensor"), 6},
                                                    {QStringLiteral("tensor symm"), 6},
                                                    {QStringLiteral("tensor asym"), 9}};
    variable.components = components.at(match.captured(2));
    variable.place = match.captured(3) == QLatin1String("node") ? EnSightVariable::Place::Nodes
        : match.captured(3) == QLatin1String("element")         ? EnSightVariable::Place::Elements
                                                                : EnSightVariable::Place::Particles;
    for (int i = 1; i <= (isComplex ? 2 : 1); ++i) {
        const QString part = !isComplex ? QString() : QLatin1String(i == 1 ? "_r" : "_i");
        variable.name = (words[0] + part).toStdString();
        variable.files.pattern = m_folder.absoluteFilePath(words[i]);
        m_case.variables.push_back(variable);
    }
}

/// Numbers that stand in the line, or in a file that it names.
QStringList EnSightCaseParser::wordsIn(const Line& line) const
{
    if (!line.key.endsWith(QLatin1String(" file")))
        return line.words;
    QFile file(m_folder.absoluteFilePath(line.words.value(0)));
    if (!file.open(QIODevice::ReadOnly))
        throw ReadFailure(file.fileName(), "%1", {file.errorString()});
    return wordsOf(QString::fromUtf8(file.read(kLongestCase)));
}

void EnSightCaseParser::takeTime(const Line& line)
{
    EnSightCase::TimeSet& set = m_case.m_timeSets[m_set];
    if (line.key == QLatin1String("time set")) {
        m_case.m_timeSets.erase(0);
        m_case.m_timeSets[m_set = number(line, line.words.value(0))] = {};
    } else if (line.key == QLatin1String("number of steps")) {
        set.stepCount = number(line, line.words.value(0));
        if (set.stepCount < 1 || set.stepCount > kMostSteps)
            refuse(line);
    } else if (line.key == QLatin1String("filename start number")) {
        m_firstNumber = number(line, line.words.value(0));
    } else if (line.key == QLatin1String("filename increment")) {
        for (int i = 0; i < set.stepCount; ++i)
            set.fileNumbers.push_back(m_firstNumber + i * number(line, line.words.value(0)));
    } else if (line.key.startsWith(QLatin1String("filename numbers"))) {
        for (const QString& word : wordsIn(line))
            set.fileNumbers.push_back(number(line, word));
    } else if (line.key.startsWith(QLatin1String("time values"))) {
        const QStringList words = wordsIn(line);
        if (words.size() < set.stepCount)
            refuse(line);
        for (int i = 0; i < set.stepCount; ++i) {
            bool isNumber = false;
            const double time =
                QString(words[i]).replace(QLatin1Char('D'), QLatin1Char('e')).toDouble(&isNumber);
            if (!isNumber || !std::isfinite(time))
                refuse(line);
            set.steps.emplace(time, i);
        }
    }
}

void EnSightCaseParser::takeFile(const Line& line)
{
    if (line.key == QLatin1String("file set"))
        m_case.m_fileSets[m_set = number(line, line.words.value(0))] = {};
    std::vector<EnSightCase::FileOfSet>& set = m_case.m_fileSets[m_set];
    if (line.key == QLatin1String("filename index"))
        set.push_back({number(line, line.words.value(0)), 0});
    if (line.key != QLatin1String("number of steps"))
        return;
    if (set.empty())
        set.emplace_back();
    set.back().steps = number(line, line.words.value(0));
}

EnSightCase::EnSightCase(const QString& path)
{
    EnSightCaseParser(path, *this).parse();
    for (auto& [number, set] : m_timeSets)
        if (set.steps.empty()
            || (!set.fileNumbers.empty()
                && static_cast<int>(set.fileNumbers.size()) < set.stepCount))
            throw ReadFailure(path,
                              QT_TRANSLATE_NOOP("ReadMessage",
                                                "time set %1 has not as many times or file "
                                                "numbers as steps"),
                              {QString::number(number)});
}

std::vector<double> EnSightCase::times() const
{
    std::set<double> all;
    for (const auto& [number, set] : m_timeSets)
        for (const auto& [time, step] : set.steps)
            all.insert(time);
    return {all.begin(), all.end()};
}

const EnSightCase::TimeSet* EnSightCase::timeSet(const EnSightFiles& files) const
{
    const auto found = m_timeSets.find(files.timeSet);
    return found == m_timeSets.end() ? nullptr : &found->second;
}

std::optional<double> EnSightCase::lastTime(const EnSightFiles& files, double time) const
{
    const TimeSet* const set = timeSet(files);
    if (!set || time < set->steps.begin()->first)
        return std::nullopt;
    return std::prev(set->steps.upper_bound(time))->first;
}

/// The number of the file that holds a step, which becomes that within the file.
std::optional<int> EnSightCase::fileOfStep(const std::vector<FileOfSet>& files, int& step)
{
    auto file = files.begin();
    for (; file + 1 < files.end() && step >= file->steps; ++file)
        step -= file->steps;
    return file < files.end() ? file->number : std::nullopt;
}

/// The number takes the place of the asterisks, with zeros before it.
static QString numbered(const QString& pattern, int number)
{
    static const QRegularExpression asterisks(QStringLiteral("\\*+"));
    const QRegularExpressionMatch place = asterisks.match(pattern);
    QString result = pattern;
    result.replace(place.capturedStart(), place.capturedLength(),
                   QStringLiteral("%1").arg(number, place.capturedLength(), 10, QLatin1Char('0')));
    return result;
}

EnSightStep EnSightCase::step(const EnSightFiles& files, double time) const
{
    EnSightStep result {files.pattern, 0, false};
    const TimeSet* const set = timeSet(files);
    if (!set)
        return result;
    const auto after = set->steps.upper_bound(time);
    result.number = after == set->steps.begin() ? after->second : std::prev(after)->second;
    std::optional<int> fileNumber;
    if (!set->fileNumbers.empty())
        fileNumber = set->fileNumbers[static_cast<std::size_t>(result.number)];
    const auto fileSet = m_fileSets.find(files.fileSet);
    result.isOneOfSeveral = fileSet != m_fileSets.end();
    if (result.isOneOfSeveral) {
        if (const auto number = fileOfStep(fileSet->second, result.number))
            fileNumber = number;
    }
    if (!files.hasNumber() || !fileNumber)
        return result;
    result.path = numbered(files.pattern, *fileNumber);
    result.number = result.isOneOfSeveral ? result.number : 0;
    return result;
}

} // namespace corvala::host::io::reader
