#pragma once

#include <QColor>
#include <QFont>

#include <cstdint>
#include <optional>

namespace zel {

enum class Alignment { left, centre, right };

/// How a text looks. Sizes are in the units of the picture.
struct TextAttribute {
    int size = 11;
    bool bold = false;
    Alignment alignment = Alignment::left;
    QColor color{Qt::black};

    bool operator==(const TextAttribute&) const = default;
    [[nodiscard]] QFont font() const; ///< Arial, or what the system has for it; not hinted, so that it scales
};

// Fixed colours by number.
inline constexpr int gcViewBackgroundTop = 4, gcViewBackgroundSecond = 5, gcViewBackgroundCenter = 6,
                     gcViewBackgroundTableCenter = 7, gcScaleBackgroundColor = 8, gcGrayLinecolor = 9,
                     gcYellowBackgroundcolor = 10, gcGrayBorderForDotcolor = 11, gcBloodStepAreacolor = 12,
                     gcBloodRedLinecolor = 13, gcBloodWhiteLinecolor = 14, gcGrayForPatientPrint = 15;

inline constexpr int commentColourTotal = 4;

/// The fixed colours, text attributes and comment colours that everything drawn uses.
/// None for a number that is none.
[[nodiscard]] std::optional<QColor> getFixColor(int index);
[[nodiscard]] std::optional<TextAttribute> getTextAttribute(int index);
/// Those that the tables are known to have.
[[nodiscard]] TextAttribute attribute(int index);
[[nodiscard]] QColor fixColor(int index);
/// \p degreeIndex: \p number is a comment's degree, 1 to 4; otherwise a colour index, 0 to 3.
/// Numbers out of range get red, as the delete button does.
[[nodiscard]] QColor getCommentColor(std::int64_t number, bool degreeIndex);
/// Name of the delete button's image for a comment's degree.
[[nodiscard]] QString getCommentDeleteImage(std::int64_t degree);

} // namespace zel
