// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_tree.h"

#include <QFile>

#include <vtk_cgns.h>

// clang-format off
#include VTK_CGNS(cgns_io.h)
// clang-format on

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace corvala::host::io::reader {

static constexpr std::size_t kNameLength = CGIO_MAX_NAME_LENGTH;

void CgnsTree::open(const QString& path, int mode, int type)
{
    int file = 0;
    if (cgio_open_file(QFile::encodeName(path).constData(), mode, type, &file) != CGIO_ERR_NONE)
        return;
    m_file = file;
    m_isSound = cgio_get_root_id(m_file, &m_root) == CGIO_ERR_NONE;
}

CgnsTree::CgnsTree(const QString& path)
{
    open(path, CGIO_MODE_READ, CGIO_FILE_NONE);
}

CgnsTree::CgnsTree(const QString& path, const CgnsTree& like)
{
    int type = CGIO_FILE_NONE;
    cgio_get_file_type(like.m_file, &type);
    open(path, CGIO_MODE_WRITE, type);
}

CgnsTree::~CgnsTree()
{
    if (isOpen())
        cgio_close_file(m_file);
}

std::vector<CgnsTree::Node> CgnsTree::children(double node, const char* label) const
{
    std::vector<Node> result;
    int count = 0;
    if (cgio_number_children(m_file, node, &count) != CGIO_ERR_NONE || count <= 0)
        return result;
    std::vector<double> ids(static_cast<std::size_t>(count));
    cgio_children_ids(m_file, node, 1, count, &count, ids.data());
    for (const double id : ids) {
        char name[kNameLength + 1] = {};
        char kind[kNameLength + 1] = {};
        const bool isRead = cgio_get_name(m_file, id, name) == CGIO_ERR_NONE
            && cgio_get_label(m_file, id, kind) == CGIO_ERR_NONE;
        if (isRead && (!label || std::strcmp(label, kind) == 0))
            result.push_back({id, name, kind});
    }
    return result;
}

std::size_t CgnsTree::size(double node) const
{
    int rank = 0;
    cgsize_t sizes[CGIO_MAX_DIMENSIONS] = {};
    if (cgio_get_dimensions(m_file, node, &rank, sizes) != CGIO_ERR_NONE || rank <= 0)
        return 0;
    std::size_t result = 1;
    for (int i = 0; i < rank; ++i)
        if (sizes[i] < 0
            || __builtin_mul_overflow(result, static_cast<std::size_t>(sizes[i]), &result))
            return 0;
    return result;
}

/// The characters of a node that is made of characters.
std::string CgnsTree::bytes(double node) const
{
    constexpr std::size_t kMost = 1 << 26;
    char type[kNameLength + 1] = {};
    const std::size_t count = size(node);
    if (cgio_get_data_type(m_file, node, type) != CGIO_ERR_NONE || std::strcmp(type, "C1") != 0
        || count > kMost)
        return {};
    std::string result(count, ' ');
    if (cgio_read_all_data_type(m_file, node, "C1", result.data()) != CGIO_ERR_NONE)
        return {};
    return result;
}

static std::string trimmed(std::string text)
{
    text.erase(std::find(text.begin(), text.end(), '\0'), text.end());
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::string CgnsTree::text(double node) const
{
    return trimmed(bytes(node));
}

std::vector<std::string> CgnsTree::names(double node) const
{
    const std::string all = bytes(node);
    std::vector<std::string> result;
    for (std::size_t place = 0; place + kNameLength <= all.size(); place += kNameLength)
        result.push_back(trimmed(all.substr(place, kNameLength)));
    return result;
}

/// Of a node that is made of values of this type; else nothing.
template<class T>
std::vector<T> CgnsTree::values(double node, const char* type) const
{
    char stored[kNameLength + 1] = {};
    if (cgio_get_data_type(m_file, node, stored) != CGIO_ERR_NONE || std::strcmp(stored, type) != 0)
        return {};
    std::vector<T> result(size(node));
    if (cgio_read_all_data_type(m_file, node, type, result.data()) != CGIO_ERR_NONE)
        return {};
    return result;
}

std::vector<int> CgnsTree::integers(double node) const
{
    constexpr std::size_t kMost = 16;
    return size(node) > kMost ? std::vector<int>() : values<int>(node, "I4");
}

std::vector<float> CgnsTree::reals(double node) const
{
    return values<float>(node, "R4");
}

std::vector<std::int64_t> CgnsTree::numbers(double node) const
{
    const std::vector<std::int32_t> narrow = values<std::int32_t>(node, "I4");
    return narrow.empty() ? values<std::int64_t>(node, "I8")
                          : std::vector<std::int64_t>(narrow.begin(), narrow.end());
}

double CgnsTree::copy(double parent, const CgnsTree& from, const Node& node)
{
    double id = 0.0;
    m_isSound = m_isSound
        && cgio_create_node(m_file, parent, node.name.c_str(), &id) == CGIO_ERR_NONE
        && cgio_copy_node(from.m_file, node.id, m_file, id) == CGIO_ERR_NONE;
    return id;
}

double CgnsTree::add(double parent, const std::string& name, const std::string& label)
{
    double id = 0.0;
    m_isSound = m_isSound
        && cgio_new_node(m_file, parent, name.c_str(), label.c_str(), "MT", 0, nullptr, nullptr,
                         &id)
            == CGIO_ERR_NONE;
    return id;
}

void CgnsTree::link(double parent, const std::string& name, const QString& file,
                    const std::string& path)
{
    double id = 0.0;
    m_isSound = m_isSound
        && cgio_create_link(m_file, parent, name.c_str(), QFile::encodeName(file).constData(),
                            path.c_str(), &id)
            == CGIO_ERR_NONE;
}

void CgnsTree::add(double parent, const std::string& name, const std::array<std::int64_t, 2>& range)
{
    const cgsize_t size = 2;
    double id = 0.0;
    m_isSound = m_isSound
        && cgio_new_node(m_file, parent, name.c_str(), "IndexRange_t", "I8", 1, &size, range.data(),
                         &id)
            == CGIO_ERR_NONE;
}

void CgnsTree::add(double parent, const std::string& name, const std::vector<std::string>& names)
{
    std::string all;
    for (std::string each : names) {
        each.resize(kNameLength, ' ');
        all += each;
    }
    const cgsize_t sizes[] = {static_cast<cgsize_t>(kNameLength),
                              static_cast<cgsize_t>(names.size())};
    double id = 0.0;
    m_isSound = m_isSound
        && cgio_new_node(m_file, parent, name.c_str(), "DataArray_t", "C1", 2, sizes, all.data(),
                         &id)
            == CGIO_ERR_NONE;
}

} // namespace corvala::host::io::reader
