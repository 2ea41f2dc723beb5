// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/document_file.h"

#include "host/document/data_joining.h"
#include "host/document/document.h"
#include "host/operations/operation_text.h"
#include "host/storage/fitting.h"
#include "host/storage/taking.h"
#include "host/storage/whole_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace corvala::host::storage {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

bool isDocumentFile(const QString& name)
{
    if (name.endsWith(QLatin1String(kFileEnding), Qt::CaseInsensitive))
        return true;
    constexpr qint64 kBeginning = 200;
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    return file.read(kBeginning).contains('"' + QByteArray(kFormatName) + '"');
}

/// Where the document lies that links lead to: its data have names relative to this folder.
static QString folderOf(const QString& file)
{
    const QString canonical = QFileInfo(file).canonicalFilePath();
    return QFileInfo(canonical.isEmpty() ? file : canonical).absolutePath();
}

boost::signals2::signal<void(const QString& file)>& documentSaved()
{
    static boost::signals2::signal<void(const QString& file)> saved;
    return saved;
}

QString saveDocument(Document& document, const QString& file)
{
    const QString problem = replaceWhole(file, toText(storedDocument(document), folderOf(file)));
    if (problem.isEmpty())
        documentSaved()(QFileInfo(file).absoluteFilePath());
    return problem;
}

ReadDocument readDocument(const QString& file)
{
    std::string text;
    if (const QString problem = readWhole(file, text); !problem.isEmpty())
        return {nullptr, problem, false};
    try {
        return {
            std::make_shared<StoredDocument>(documentFromText(text, folderOf(file))), {}, false};
    } catch (const DocumentError& error) {
        const QString place = error.place().isEmpty() ? QString() : error.place() + ": ";
        return {nullptr, QStringLiteral("%1: %2%3").arg(file, place, error.reason()),
                error.kind() == DocumentError::Kind::NewerVersion};
    }
}

static std::string absolutePath(const QString& file)
{
    return QFileInfo(file).absoluteFilePath().toStdString();
}

std::shared_ptr<const StoredDocument>
fittedDocument(const std::shared_ptr<const StoredDocument>& document, const FrameData& data,
               QStringList& notes)
{
    std::shared_ptr<StoredDocument> changed;
    for (std::size_t i = 0; i < data.size(); ++i) {
        const StoredFrame& frame = document->frames[i];
        if (!data[i] || suits(frame, *data[i]))
            continue;
        if (!changed)
            changed = std::make_shared<StoredDocument>(*document);
        changed->frames[i] = fitted(frame, *data[i], notes);
    }
    return changed ? changed : document;
}

LoadOutcome putDocument(Document& document, const QString& file,
                        std::shared_ptr<const StoredDocument> stored, FrameData data)
{
    const LoadDocument load {absolutePath(file), std::move(stored), std::move(data)};
    const Outcome outcome = document.execute(load);
    return {outcome.isDone() ? QString() : refusalText(load, outcome), {}};
}

std::shared_ptr<DataSet> dataOf(const StoredFrame& frame, const DataLoader& loader,
                                QString& problem)
{
    std::shared_ptr<DataSet> data;
    for (const DataOrigin& origin : frame.data) {
        std::shared_ptr<DataSet> part = loader(origin, problem);
        if (!part)
            return nullptr;
        data = data ? joined(*data, *part) : std::move(part);
    }
    return data;
}

LoadOutcome loadDocument(Document& document, const QString& file, const DataLoader& loader)
{
    const ReadDocument read = readDocument(file);
    if (!read.document)
        return {read.problem, {}};
    FrameData data;
    for (const StoredFrame& frame : read.document->frames) {
        QString problem;
        data.push_back(dataOf(frame, loader, problem));
        if (!problem.isEmpty())
            return {QStringLiteral("%1: %2").arg(file, problem), {}};
    }
    QStringList notes;
    auto fitting = fittedDocument(read.document, data, notes);
    LoadOutcome outcome = putDocument(document, file, std::move(fitting), std::move(data));
    outcome.notes = notes;
    return outcome;
}

LoadOutcome loadStyles(Document& document, const QString& file)
{
    const ReadDocument read = readDocument(file);
    if (!read.document)
        return {read.problem, {}};
    const Frame* const frame = document.activeFrame();
    if (!frame || !frame->hasData())
        return {Text::tr("there are no data that could take the styles"), {}};
    LoadOutcome result;
    const ApplyStyles apply {
        absolutePath(file),
        std::make_shared<StyleSheet>(styleSheet(*read.document, *frame, result.notes))};
    if (const Outcome outcome = document.execute(apply); !outcome.isDone())
        result.problem = refusalText(apply, outcome);
    return result;
}

} // namespace corvala::host::storage
