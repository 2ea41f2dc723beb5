// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <cstdint>
#include <memory>

class vtkDataArray;

namespace corvala::host::io {

/// A file of numbers, mapped into memory for as long as this object or an array shows them. The
/// pages are private: what is written to an array does not reach the file. For any thread.
class MappedNumbers
{
public:
    /// Null when the file cannot be mapped.
    static std::shared_ptr<MappedNumbers> open(const QString& path);
    ~MappedNumbers();
    MappedNumbers(const MappedNumbers&) = delete;
    MappedNumbers& operator=(const MappedNumbers&) = delete;

    std::int64_t size() const { return m_size; } ///< bytes

    /// Makes the array, whose type and number of components are set, show `values` numbers from
    /// `offset`, a multiple of their size. Both must lie in the file.
    void show(vtkDataArray& array, std::int64_t offset, std::int64_t values) const;

private:
    struct Pages;
    explicit MappedNumbers(std::shared_ptr<Pages> pages);

    std::shared_ptr<Pages> m_pages;
    std::int64_t m_size;
};

} // namespace corvala::host::io
