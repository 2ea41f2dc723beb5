// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/read_failure.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvala::host::io::reader {

class MappedFile;

/// Where the parts of a legacy VTK file lie, found by walking over it: binary by size, text by the
/// number of numbers.
class LegacyLayout
{
public:
    /// Throws ReadFailure when the file ends in its points or cells. It must outlive the layout.
    explicit LegacyLayout(const MappedFile& file);

    /// An array that is not whole.
    struct Fault
    {
        QString array;
        ReadFailure failure;
    };

    const std::vector<Fault>& faults() const { return m_faults; }
    /// Words at places where none are expected; empty where there are none.
    const QString& strayText() const { return m_strayText; }
    /// The arrays that are whole, for text().
    std::vector<std::size_t> arrays() const;
    QString nameOf(std::size_t array) const;
    /// All of the file is as VTK reads it, as far as can be told.
    bool isPlain() const;
    /// All of its points and cells were found, so that text() can be used.
    bool hasStructure() const { return (m_isKnown || m_section >= 0) && m_cells == m_typedCells; }
    /// To the end.
    bool isKnown() const { return m_isKnown; }
    /// It is text with numbers that VTK cannot read.
    bool hasOddNumbers() const { return m_hasOddNumbers; }
    /// The file with the points and cells and these arrays only. Numbers that VTK cannot read are
    /// written as by withPlainNumbers().
    std::string text(const std::vector<std::size_t>& arrays) const;

private:
    enum class Kind { Structure, Section, Field, Array };

    struct Span
    {
        Kind kind;
        std::size_t begin;
        std::size_t end;
        bool isWhole = true;
        std::ptrdiff_t section = -1; ///< the span of POINT_DATA or CELL_DATA that it belongs to
        std::ptrdiff_t field = -1; ///< the span of the FIELD that it belongs to
        std::string name {};
    };

    /// What follows a line of a keyword.
    struct Numbers
    {
        double count;
        std::string type;
    };

    bool walkLine();
    void requireWhole();
    bool walkStructure(const std::vector<std::string>& words);
    bool walkAttribute(const std::vector<std::string>& words);
    bool walkField(const std::vector<std::string>& words);
    void walkMetadata();
    void walkStray(std::size_t begin);
    bool addStructure(std::size_t begin, const Numbers& numbers);
    void addArray(std::size_t begin, const std::string& name, const Numbers& numbers,
                  std::ptrdiff_t field = -1);
    void seekArray();
    std::optional<ReadFailure> pass(const Numbers& numbers);
    std::optional<ReadFailure> passText(double count);
    std::vector<std::string> nextLine();
    void startNumbers(std::size_t words);
    ReadFailure cutOff(double bytes) const;

    const MappedFile& m_file;
    std::string_view m_bytes;
    std::size_t m_place = 0;
    std::size_t m_lineBegin = 0; ///< of the line that was met last
    bool m_isText = true;
    bool m_isKnown = true; ///< false once something is met whose size is not known
    bool m_hasOddNumbers = false;
    double m_tuples = 0; ///< of the section
    double m_offsets = 0; ///< of the list of cells
    double m_corners = 0; ///< of the list of cells
    bool m_isOfCells = false; ///< an unstructured grid
    double m_cells = -1; ///< of an unstructured grid; -1 without a list of them
    double m_typedCells = -1; ///< as many, or -1 without a list of their types
    bool m_hasNewCells = false; ///< as of version 5
    std::ptrdiff_t m_section = -1;
    std::vector<Span> m_spans;
    std::vector<Fault> m_faults;
    QString m_strayText;
    std::size_t m_astrayBehind = 0; ///< number of spans before what was last met without sense
};

} // namespace corvala::host::io::reader
