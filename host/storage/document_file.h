// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/storage/document_text.h"
#include "host/storage/stored_document.h"

#include <QStringList>

#include <boost/signals2/signal.hpp>

#include <functional>
#include <memory>

namespace corvala::host {
class Document;
}

namespace corvala::host::storage {

constexpr const char* kFileEnding = ".cvdoc";

/// Whether a file is a document, by its ending, or by how it begins where that says nothing.
bool isDocumentFile(const QString& file);

/// Tells the absolute path of the file in which the open document was saved, whoever asked for it.
boost::signals2::signal<void(const QString& file)>& documentSaved();

/// Saves the document (whole_file.h) and announces it. Empty, or what went wrong.
QString saveDocument(Document& document, const QString& file);

/// A document as it was read, or why it could not be.
struct ReadDocument
{
    std::shared_ptr<const StoredDocument> document; ///< null on failure
    QString problem; ///< names file, place and reason
    bool isNewer = false; ///< written by a newer program
};
ReadDocument readDocument(const QString& file);

/// Reads data from their origin, and tells the problem where that cannot be done.
using DataLoader =
    std::function<std::shared_ptr<DataSet>(const DataOrigin& origin, QString& problem)>;

/// The data of a frame from all of its origins; null where one cannot be read, or without any.
std::shared_ptr<DataSet> dataOf(const StoredFrame& frame, const DataLoader& loader,
                                QString& problem);

/// Data of the frames of a document, as they were read; null for a frame without.
using FrameData = std::vector<std::shared_ptr<DataSet>>;

/// The document as it is with data that may have changed; `notes` gets what was not found in them.
std::shared_ptr<const StoredDocument>
fittedDocument(const std::shared_ptr<const StoredDocument>& document, const FrameData& data,
               QStringList& notes);

/// What came of loading: all, or nothing and why.
struct LoadOutcome
{
    QString problem; ///< empty on success
    QStringList notes; ///< what did not fit the data
};

/// Puts a stored document, fitted to its data, in the place of the open one.
LoadOutcome putDocument(Document& document, const QString& file,
                        std::shared_ptr<const StoredDocument> stored, FrameData data);
/// Reads a document with its data, and does the same.
LoadOutcome loadDocument(Document& document, const QString& file, const DataLoader& loader);

/// Gives the active frame the styles of a document in one undo step.
LoadOutcome loadStyles(Document& document, const QString& file);

} // namespace corvala::host::storage
