// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/mapped_numbers.h"

#include <QFile>

#include <vtkAbstractArray.h>
#include <vtkDataArray.h>

#include <map>
#include <mutex>
#include <utility>

#include <sys/mman.h>

namespace corvala::host::io {

struct MappedNumbers::Pages
{
    Pages(char* firstByte, std::size_t byteCount)
        : first(firstByte)
        , size(byteCount)
    {
    }
    ~Pages()
    {
        if (first)
            munmap(first, size);
    }
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;

    char* first;
    std::size_t size;
};

namespace {

/// Which pages are on show. VTK shares the buffer of an array with its shallow copies, and tells
/// its end by the address of its first number only.
class Shows
{
public:
    /// Never destroyed: arrays may outlive everything else.
    static Shows& all()
    {
        static auto* const shows = new Shows;
        return *shows;
    }

    void add(const void* address, std::shared_ptr<void> pages)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_pages.emplace(address, std::move(pages));
    }

    static void end(void* address) { all().remove(address); }

private:
    void remove(const void* address)
    {
        std::shared_ptr<void> last; // unmapped after the lock is gone
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = m_pages.find(address);
        if (found == m_pages.end())
            return;
        last = std::move(found->second);
        m_pages.erase(found);
    }

    std::mutex m_mutex;
    std::multimap<const void*, std::shared_ptr<void>> m_pages; ///< by first address
};

} // namespace

MappedNumbers::MappedNumbers(std::shared_ptr<Pages> pages)
    : m_pages(std::move(pages))
    , m_size(static_cast<std::int64_t>(m_pages->size))
{
}

MappedNumbers::~MappedNumbers() = default;

std::shared_ptr<MappedNumbers> MappedNumbers::open(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    const auto size = static_cast<std::size_t>(file.size());
    void* first = nullptr;
    if (size > 0) {
        first = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_NORESERVE,
                     file.handle(), 0);
        if (first == MAP_FAILED)
            return nullptr;
    }
    auto pages = std::make_shared<Pages>(static_cast<char*>(first), size);
    return std::shared_ptr<MappedNumbers>(new MappedNumbers(std::move(pages)));
}

void MappedNumbers::show(vtkDataArray& array, std::int64_t offset, std::int64_t values) const
{
    if (values == 0)
        return;
    char* const first = m_pages->first + offset;
    Shows::all().add(first, m_pages);
    array.SetVoidArray(first, values, 0, vtkAbstractArray::VTK_DATA_ARRAY_USER_DEFINED);
    array.SetArrayFreeFunction(&Shows::end);
}

} // namespace corvala::host::io
