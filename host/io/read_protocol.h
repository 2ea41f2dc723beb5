// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/io/read_message.h"
#include "host/io/read_request.h"
#include "host/io/text_preview.h"

#include <optional>
#include <string>
#include <vector>

/// What the program and its reading program tell each other. The program makes a private folder,
/// writes the request into it and starts the reading program with the folder as its argument. That
/// one writes lines of JSON on its standard output while it works, the zones and at last the index
/// into the folder, and exits with 0; or writes a line with the reason and exits with 1.
namespace corvala::host::io {

constexpr char kRequestFile[] = "request.json";
constexpr char kIndexFile[] = "index.json";
/// Before the name of a file: the reading program tells in one line why VTK may have crashed at it.
constexpr char kReasonOfCrash[] = "--reason-of-crash";
constexpr char kPreviewFile[] = "preview.json"; ///< instead of the index

/// One line from the reading program: progress, or the end.
struct ReaderLine
{
    int percent = -1; ///< 0 to 100, or -1 when unknown
    std::string file; ///< the file that is being read
    ReadMessage what; ///< what is being done with it
    bool isError = false; ///< `what` is the reason why `file` cannot be read
    BadRows badRows {}; ///< which are that reason; the file can be read without them
};

/// The data set without its points.
struct DataSetIndex
{
    DataSet data; ///< `source` and `notes` are empty; its zones count those of the ZoneTable
    std::vector<ReadMessage> notes;
    ReadOffers offers;
    std::optional<Plot3DLayout> plot3d;
    std::optional<TextDialect> text;
};

std::string toJson(const ReadRequest& request);
std::string toJson(const ReaderLine& line); ///< without line end
std::string toJson(const DataSetIndex& index);
std::string toJson(const TextPreview& preview);

// Empty when the text is no such thing.
std::optional<ReadRequest> requestFromJson(const std::string& text);
std::optional<ReaderLine> lineFromJson(const std::string& text);
std::optional<DataSetIndex> indexFromJson(const std::string& text);
std::optional<TextPreview> previewFromJson(const std::string& text);

} // namespace corvala::host::io
