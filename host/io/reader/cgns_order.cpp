// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_order.h"

#include <QFile>
#include <QFileInfo>

#include <vtk_hdf5.h>

#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// An object of the HDF5 library, which is closed at the end.
class Hdf5Object
{
public:
    Hdf5Object(hid_t id, herr_t (*close)(hid_t))
        : m_id(id)
        , m_close(close)
    {
    }

    ~Hdf5Object()
    {
        if (m_id >= 0)
            m_close(m_id);
    }

    Hdf5Object(const Hdf5Object&) = delete;
    Hdf5Object& operator=(const Hdf5Object&) = delete;

    operator hid_t() const { return m_id; } // NOLINT: as the library takes it

private:
    hid_t m_id;
    herr_t (*m_close)(hid_t);
};

/// While it lives, the library says nothing about its errors.
class Hdf5Silence
{
public:
    Hdf5Silence()
    {
        H5Eget_auto2(H5E_DEFAULT, &m_tell, &m_data);
        H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
    }

    ~Hdf5Silence() { H5Eset_auto2(H5E_DEFAULT, m_tell, m_data); }

    Hdf5Silence(const Hdf5Silence&) = delete;
    Hdf5Silence& operator=(const Hdf5Silence&) = delete;

private:
    H5E_auto2_t m_tell = nullptr;
    void* m_data = nullptr;
};

static bool isOrdered(hid_t file)
{
    unsigned order = 0;
    const Hdf5Object root(H5Gopen2(file, "/", H5P_DEFAULT), H5Gclose);
    const Hdf5Object properties(H5Gget_create_plist(root), H5Pclose);
    return H5Pget_link_creation_order(properties, &order) < 0
        || (order & H5P_CRT_ORDER_TRACKED) != 0;
}

static herr_t copyAttribute(hid_t from, const char* name, const H5A_info_t*, void* target)
{
    const Hdf5Object attribute(H5Aopen(from, name, H5P_DEFAULT), H5Aclose);
    const Hdf5Object type(H5Aget_type(attribute), H5Tclose);
    const Hdf5Object space(H5Aget_space(attribute), H5Sclose);
    std::vector<char> bytes(H5Aget_storage_size(attribute) + 1);
    const Hdf5Object copy(
        H5Acreate2(*static_cast<hid_t*>(target), name, type, space, H5P_DEFAULT, H5P_DEFAULT),
        H5Aclose);
    return H5Aread(attribute, type, bytes.data()) >= 0 && H5Awrite(copy, type, bytes.data()) >= 0
        ? 0
        : -1;
}

/// A group of the file, and where its copy is made.
struct GroupCopy
{
    hid_t target;
    std::string file;
    std::string path; ///< of the group, with a slash at the end
};

static herr_t copyNode(hid_t from, const char* name, const H5L_info_t* link, void* data);

static herr_t copyNodes(hid_t from, GroupCopy copy)
{
    const bool isCopied =
        H5Aiterate2(from, H5_INDEX_NAME, H5_ITER_INC, nullptr, copyAttribute, &copy.target) >= 0
        && H5Literate(from, H5_INDEX_NAME, H5_ITER_INC, nullptr, copyNode, &copy) >= 0;
    return isCopied ? 0 : -1;
}

static herr_t copyNode(hid_t from, const char* name, const H5L_info_t* link, void* data)
{
    const GroupCopy& copy = *static_cast<GroupCopy*>(data);
    if (link->type != H5L_TYPE_HARD)
        return H5Lcopy(from, name, copy.target, name, H5P_DEFAULT, H5P_DEFAULT);
    const Hdf5Object node(H5Oopen(from, name, H5P_DEFAULT), H5Oclose);
    if (H5Iget_type(node) != H5I_GROUP)
        return H5Lcreate_external(copy.file.c_str(), (copy.path + name).c_str(), copy.target, name,
                                  H5P_DEFAULT, H5P_DEFAULT);
    const Hdf5Object ordered(H5Pcreate(H5P_GROUP_CREATE), H5Pclose);
    H5Pset_link_creation_order(ordered, H5P_CRT_ORDER_TRACKED | H5P_CRT_ORDER_INDEXED);
    const Hdf5Object group(H5Gcreate2(copy.target, name, H5P_DEFAULT, ordered, H5P_DEFAULT),
                           H5Gclose);
    return group < 0 ? -1 : copyNodes(node, {group, copy.file, copy.path + name + '/'});
}

QString withOrderedNodes(const QString& path, const QDir& helper)
{
    const Hdf5Silence silence;
    const std::string name = QFile::encodeName(path).toStdString();
    const Hdf5Object file(H5Fopen(name.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
    if (file < 0 || isOrdered(file))
        return path;
    helper.mkpath(QStringLiteral("ordered"));
    const QString copy = helper.filePath(QStringLiteral("ordered/") + QFileInfo(path).fileName());
    const Hdf5Object properties(H5Pcreate(H5P_FILE_CREATE), H5Pclose);
    H5Pset_link_creation_order(properties, H5P_CRT_ORDER_TRACKED | H5P_CRT_ORDER_INDEXED);
    const Hdf5Object target(
        H5Fcreate(QFile::encodeName(copy).constData(), H5F_ACC_TRUNC, properties, H5P_DEFAULT),
        H5Fclose);
    const Hdf5Object from(H5Gopen2(file, "/", H5P_DEFAULT), H5Gclose);
    const Hdf5Object to(H5Gopen2(target, "/", H5P_DEFAULT), H5Gclose);
    return to >= 0 && copyNodes(from, {to, name, "/"}) >= 0 ? copy : path;
}

} // namespace corvala::host::io::reader
