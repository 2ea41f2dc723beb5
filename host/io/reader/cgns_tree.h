// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// The nodes of a CGNS file, in ADF or HDF5. What cannot be read is empty.
class CgnsTree
{
public:
    struct Node
    {
        double id;
        std::string name;
        std::string label; ///< its kind, such as "Zone_t"
    };

    explicit CgnsTree(const QString& path);
    /// A new file of the format that `like` has.
    CgnsTree(const QString& path, const CgnsTree& like);
    CgnsTree(const CgnsTree&) = delete;
    CgnsTree& operator=(const CgnsTree&) = delete;
    ~CgnsTree();

    bool isOpen() const { return m_file > 0; }
    double root() const { return m_root; }
    /// In the order of the file, if wanted only those of one kind.
    std::vector<Node> children(double node, const char* label = nullptr) const;
    /// The text of a node; without trailing blanks.
    std::string text(double node) const;
    /// The texts of 32 characters of which a node is made; without trailing blanks.
    std::vector<std::string> names(double node) const;
    /// How many values a node has.
    std::size_t size(double node) const;
    /// The integers of a node.
    std::vector<int> integers(double node) const;
    /// The real numbers of a node, of 4 bytes each.
    std::vector<float> reals(double node) const;
    /// All of them, of 4 or 8 bytes each.
    std::vector<std::int64_t> numbers(double node) const;

    /// Adds a node with the kind and values of another one, but without its children.
    double copy(double parent, const CgnsTree& from, const Node& node);
    /// Adds a node without values.
    double add(double parent, const std::string& name, const std::string& label);
    /// Adds a node that stands for the one in another file.
    void link(double parent, const std::string& name, const QString& file, const std::string& path);
    /// Adds a range of indices.
    void add(double parent, const std::string& name, const std::array<std::int64_t, 2>& range);
    /// Adds a node of texts of 32 characters.
    void add(double parent, const std::string& name, const std::vector<std::string>& names);
    /// True while everything that was to be written could be.
    bool isSound() const { return m_isSound; }

private:
    void open(const QString& path, int mode, int type);
    std::string bytes(double node) const;
    template<class T>
    std::vector<T> values(double node, const char* type) const;

    int m_file = 0;
    double m_root = 0.0;
    bool m_isSound = true;
};

} // namespace corvala::host::io::reader
