#include "record_store/color_vocabulary.h"

#include <gtest/gtest.h>

#include "common/failure.h"

namespace qh {
namespace {

TEST(ColorVocabulary, RowsFollowThePaletteGrid) {
    ColorVocabulary colors;
    colors.BuildColorValues();
    colors.BuildColorNames();
    ASSERT_EQ(colors.ColorValues.count(), 140);
    ASSERT_EQ(colors.ColorNames.count(), 140);
    EXPECT_EQ(colors.ColorNames(1), "White");
    EXPECT_EQ(colors.ColorNames(15), "Maroon");
    EXPECT_EQ(colors.ColorNames(140), "LightPink");
    EXPECT_EQ(colors.ColorValues(15), 0x000080u);
    // Row by row, the value of a row is the value of its name.
    for (int row = 1; row <= 140; ++row)
        EXPECT_EQ(colors.ColorValues(colors.ColorNames(row)), colors.ColorValues(row)) << row;
    EXPECT_THROW(colors.ColorNames(0), UntrappedFailure);
    EXPECT_THROW(colors.ColorValues(141), UntrappedFailure);
}

TEST(ColorVocabulary, NamesAreKeysWithoutRegardToCaseAndUnknownOnesAreUntrapped) {
    const ColorVocabulary& colors = standardColors();
    EXPECT_EQ(colors.ColorValues("mistyrose"), 0xE1E4FFu);
    EXPECT_EQ(colors.ColorValues("MISTYROSE"), colors.ColorValues("MistyRose"));
    // Values stand as the table has them, shared ones too.
    EXPECT_EQ(colors.ColorValues("MediumPurple"), 0xD87093u);
    EXPECT_EQ(colors.ColorValues("PaleVioletRed"), 0x9370D8u);
    EXPECT_EQ(colors.ColorValues("Aqua"), colors.ColorValues("Cyan"));
    EXPECT_TRUE(colors.ColorValues.contains("honeydew"));
    // An unknown name is left untrapped.
    EXPECT_FALSE(colors.ColorValues.contains("Mauve"));
    EXPECT_THROW(colors.ColorValues("Mauve"), UntrappedFailure);
    EXPECT_THROW(colors.ColorValues(""), UntrappedFailure);
    EXPECT_THROW(colors.ColorValues("White "), UntrappedFailure);
    ColorVocabulary unbuilt;
    EXPECT_THROW(unbuilt.ColorValues("White"), UntrappedFailure);
}

}  // namespace
}  // namespace qh
