// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>
#include <sdk/toolbox/arg_list.h>
#include <sdk/toolbox/set.h>
#include <vocabulary/entry.h>

#include <optional>
#include <string>
#include <vector>

namespace corvala::toolbox {

/// Accessor of one style value of the active frame, named by a key of the dictionary (see
/// vocabulary/style.h) or by a path of up to five names such as "FieldMap", "Mesh", "Color". Making
/// one resolves the path; a key is resolved. For a known path neither that nor reading an integer,
/// bool or real allocates memory. An unknown path is kept: reads fail, writes answer
/// StyleWrite_UnknownPath.
class StyleValue
{
public:
    /// Null names are dropped.
    StyleValue(const char* n1, const char* n2 = nullptr, const char* n3 = nullptr,
               const char* n4 = nullptr, const char* n5 = nullptr);
    explicit StyleValue(std::vector<std::string> names);
    explicit StyleValue(style::Key key)
        : m_attribute(key)
    {
    }
    virtual ~StyleValue();

    const std::vector<std::string>& names() const;
    virtual CvlUniqueId frame() const; ///< the active frame

    /// The value for a map (`object`, from 1), or of the frame or document (0). `offset1` is the
    /// index (from 1) inside an indexed group; `offset2` is reserved. Empty when the path, frame,
    /// map or index does not exist, or the value cannot be read as T. T is bool, int, CvlInt64,
    /// double, std::string or Set; enumerations and colours are read as int.
    template<class T>
    std::optional<T> read(CvlInt64 object = 0, CvlInt64 offset1 = -1, CvlInt64 offset2 = -1) const;

    /// Identifiers of path names, one each, without terminator; -2 for a name that no path has.
    static std::vector<std::int32_t>
    initMacroIDsfromStyleValueNames(const std::vector<std::string>& names);

    /// Fills `out` with the address of a write: identifiers up to a terminator -1 (or -1 at once
    /// for none), maps (null for a value of the frame), offsets (-1 for none) and operator.
    static void setupSetValueArgList(const std::int32_t* macroIds, const Set* objects,
                                     CvlInt64 offset1, CvlInt64 offset2, AssignOp_e op,
                                     ArgList& out);

    /// Writes to the active frame at the address in the list: all maps at once, one undo record,
    /// one event, or nothing at all.
    StyleWriteResult_e setFinalValue(double value, const ArgList& address);
    StyleWriteResult_e setFinalValue(bool value, const ArgList& address);
    StyleWriteResult_e setFinalValue(const std::string& value, const ArgList& address);
    StyleWriteResult_e setFinalValue(const Set& value, const ArgList& address);

protected:
    bool isResolved() const { return m_attribute >= 0; }

private:
    int m_attribute; ///< of the schema; negative when the path is no value
    std::vector<std::string> m_unresolved; ///< names of a path that is no value
};

/// The same for one given frame, active or not; for reading.
class FrameStyleValue : public StyleValue
{
public:
    FrameStyleValue(CvlUniqueId frame, const char* n1, const char* n2 = nullptr,
                    const char* n3 = nullptr, const char* n4 = nullptr, const char* n5 = nullptr);
    FrameStyleValue(CvlUniqueId frame, style::Key key)
        : StyleValue(key)
        , m_frame(frame)
    {
    }
    CvlUniqueId frame() const override { return m_frame; }

private:
    CvlUniqueId m_frame;
};

/// Looks its path up at construction and can say whether it exists.
class CheckedStyleValue : public StyleValue
{
public:
    using StyleValue::StyleValue;
    bool isValid() const { return isResolved(); }
};

} // namespace corvala::toolbox
