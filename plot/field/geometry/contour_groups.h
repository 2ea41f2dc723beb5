// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"
#include "plot/field/geometry/color_map.h"

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace corvala::plot {

/// Where contour lines and the borders of colour bands lie: `bands` bands of equal width. One band
/// stands for a single value, in its middle.
struct ContourLevels
{
    double minimum = 0.0;
    double step = 1.0;
    int bands = 1;

    double maximum() const { return minimum + step * bands; }
    bool isSingleValue() const { return bands == 1; }
    /// The levels between the bands.
    std::vector<double> inner() const;
    double fraction(double value) const { return (value - minimum) / (maximum() - minimum); }
};

bool operator==(const ContourLevels& left, const ContourLevels& right);

/// Round levels that cover the range, in eight to twenty bands; a single value lies in one band.
ContourLevels levelsFor(double minimum, double maximum);

/// How long vectors are drawn, in the unit of the coordinates; 0 while there are none.
struct VectorScale
{
    double lengthOfOne = 0.0; ///< of magnitude 1
    double length = 0.0; ///< of a large one of those that are shown
};

/// What a user chose of the levels; the rest follows from the values.
struct ChosenLevels
{
    std::optional<std::pair<double, double>> ends; ///< the first one below the other
    int bands = 0; ///< 0: as many as are round
    std::vector<double> moreLines; ///< that have no part in the bands

    /// The levels of values with this range.
    ContourLevels levels(double minimum, double maximum) const;
};

bool operator==(const ChosenLevels& left, const ChosenLevels& right);

/// The variables of a frame's contour groups and RGB channels, and of what else follows the values
/// of all maps together, with the values that they span and the colours that these have.
class ContourGroups
{
public:
    static constexpr int kGroupCount = 8;
    static constexpr int kRed = 9; ///< the three channels follow the groups
    static constexpr int kBlue = 11;
    static constexpr int kSize = 12; ///< of symbols
    static constexpr int kIso = 13; ///< of iso-surfaces
    static constexpr int kVector = 14; ///< U, V and W
    static constexpr int kPlace = 17; ///< X, Y and Z
    static constexpr int kCount = 19;

    /// Takes variables, chosen levels and colours from the frame; a group whose variable is another
    /// than before starts anew.
    void takeStyle(const host::Frame& frame);
    void clear();

    /// Number of the variable, 0 when unassigned. `group` is 1 to kCount throughout.
    CvlInt64 variable(int group) const { return at(group).variable; }
    bool hasRgb() const;
    /// Whether one of the components has a variable; W counts in space only.
    bool hasVector(bool inSpace) const;
    /// False while no value of the group is known.
    bool hasRange(int group) const { return at(group).hasRange; }

    /// Gives the group the range of its values; true when its levels changed.
    bool setRange(int group, double minimum, double maximum);

    const ContourLevels& levels(int group) const { return at(group).levels; }
    /// The levels at which the values have lines: also the ends of chosen levels that leave values
    /// out, and what was chosen besides. In ascending order.
    std::vector<double> lineLevels(int group) const;
    const ColorScale& colors(int group) const { return at(group).colors; }
    /// Differs whenever variable or levels do.
    int revision(int group) const { return at(group).revision; }
    /// Differs whenever variable, levels or colours do.
    int colorRevision(int group) const { return at(group).revision + at(group).recolorings; }

    /// A value as texture coordinate. These do not change with the levels: the texture is
    /// moved instead, by `textureScale` and `textureShift`.
    double coordinate(int group, double value) const;
    double textureScale(int group) const;
    double textureShift(int group) const;
    /// Values below a level by less than this belong to the band above it, so that whatever equals
    /// a level is of one colour, and no lines cross it.
    double rounding(int group) const;

    /// Gives what is proposed from the values; true when it is another than before.
    bool setVectorScale(const VectorScale& scale);
    /// What is proposed, or as long as was chosen for magnitude 1.
    VectorScale vectorScale() const;

    /// The range as it is, not rounded to levels.
    double minimum(int group) const { return at(group).minimum; }
    double maximum(int group) const { return at(group).maximum; }

private:
    struct Group
    {
        CvlInt64 variable = 0;
        bool hasRange = false;
        double minimum = 0.0;
        double maximum = 0.0;
        double reference = 0.0; ///< value at coordinate 0
        double unit = 1.0; ///< change of value from coordinate 0 to 1
        ContourLevels levels;
        ChosenLevels chosen;
        ColorScale colors;
        int revision = 0;
        int recolorings = 0;
    };

    static void setLevels(Group& group, bool isContour);

    Group& at(int group) { return m_groups[static_cast<std::size_t>(group - 1)]; }
    const Group& at(int group) const { return m_groups[static_cast<std::size_t>(group - 1)]; }

    std::array<Group, kCount> m_groups;
    VectorScale m_vectorScale; ///< as proposed
    double m_chosenLengthOfOne = 0.0; ///< 0 while it follows from the values
};

} // namespace corvala::plot
