// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/exodus_names.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace corvala::host::io::reader {

ExodusName exodusNameOf(const QString& path)
{
    static const QRegularExpression form(
        QStringLiteral("^(.+\\.(?:exo|e|ex2|exii|exoii|g|gen|ncdf))(?:-s(\\d{2,6}))?(?:\\.(\\d{1,6}"
                       ")\\.(\\d{1,6}))?$"));
    const QRegularExpressionMatch match = form.match(path);
    const int count = match.captured(3).toInt();
    const int piece = match.captured(4).toInt();
    const bool isPiece = count > 0;
    if (!match.hasMatch() || (isPiece && piece >= count))
        return {path, 1, 0, 0};
    const int stage = match.captured(2).isEmpty() ? 1 : match.captured(2).toInt();
    return {match.captured(1), stage, count, isPiece ? piece : 0};
}

QString endingOf(const QString& path)
{
    return QFileInfo(exodusNameOf(path).first).suffix();
}

/// The path of a piece, whose number has as many digits as the one in `like`.
static QString pieceLike(const QString& like, int piece)
{
    const int place = like.lastIndexOf(QLatin1Char('.')) + 1;
    return like.left(place)
        + QStringLiteral("%1").arg(piece, like.size() - place, 10, QLatin1Char('0'));
}

std::map<int, QStringList> exodusRun(const QString& path)
{
    const ExodusName name = exodusNameOf(path);
    const QDir folder = QFileInfo(path).dir();
    const QString start = QFileInfo(name.first).fileName();
    std::map<int, QStringList> stages;
    for (const QString& file : folder.entryList(QDir::Files, QDir::Name)) {
        const QString found = folder.filePath(file);
        if (!file.startsWith(start))
            continue;
        const ExodusName other = exodusNameOf(found);
        if (QFileInfo(other.first).fileName() != start || other.pieceCount != name.pieceCount
            || stages.count(other.stage) > 0)
            continue;
        QStringList& pieces = stages[other.stage];
        for (int piece = 0; piece < std::max(other.pieceCount, 1); ++piece)
            pieces << (other.pieceCount > 0 ? pieceLike(found, piece) : found);
    }
    return stages;
}

} // namespace corvala::host::io::reader
