// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace corvala::host::io::reader {

/// Files of an EnSight case by their name, in which asterisks stand for a number.
struct EnSightFiles
{
    QString pattern; ///< an absolute path
    int timeSet = 1; ///< one that the case does not have means steady data
    int fileSet = 0;

    bool hasNumber() const { return pattern.contains(QLatin1Char('*')); }
};

/// A variable of an EnSight case. A complex one is two of them.
struct EnSightVariable
{
    enum class Place { Nodes, Elements, Particles };

    std::string name;
    Place place = Place::Nodes;
    int components = 1; ///< 1, 3, 6 (symmetric) or 9
    EnSightFiles files;
};

/// Where the data of a time are: a file, and which of its time steps.
struct EnSightStep
{
    QString path;
    int number = 0; ///< in the file, from 0
    bool isOneOfSeveral = false; ///< as the case says; else a file without steps will do

    bool operator<(const EnSightStep& other) const
    {
        return std::tie(path, number) < std::tie(other.path, other.number);
    }
};

/// What a case file says.
class EnSightCase
{
public:
    /// Throws ReadFailure.
    explicit EnSightCase(const QString& path);

    bool isGold = false;
    EnSightFiles geometry;
    std::optional<EnSightFiles> particles;
    std::vector<EnSightVariable> variables;
    std::vector<ReadMessage> notes; ///< what it says that is left out

    /// All solution times, ascending and distinct; empty for steady data.
    std::vector<double> times() const;
    /// The files say the same at all times.
    bool isSteady(const EnSightFiles& files) const { return !timeSet(files); }
    /// The last of the files' own times that is not after `time`; without a value before their
    /// first one, and for steady data.
    std::optional<double> lastTime(const EnSightFiles& files, double time) const;
    /// Where to read what holds at `time`, at earliest the first step.
    EnSightStep step(const EnSightFiles& files, double time) const;

private:
    struct TimeSet
    {
        std::map<double, int> steps; ///< by their times; the first one of equal times
        std::vector<int> fileNumbers; ///< of each step, or empty
        int stepCount = 0;
    };
    /// One file that holds several time steps.
    struct FileOfSet
    {
        std::optional<int> number;
        int steps = 0;
    };
    /// A line of the case, "key: words", with the lines that continue it.
    struct Line
    {
        int number;
        QString section;
        QString key;
        QStringList words;
    };
    friend class EnSightCaseParser;

    static std::optional<int> fileOfStep(const std::vector<FileOfSet>& files, int& step);
    const TimeSet* timeSet(const EnSightFiles& files) const;

    std::map<int, TimeSet> m_timeSets;
    std::map<int, std::vector<FileOfSet>> m_fileSets;
};

} // namespace corvala::host::io::reader
