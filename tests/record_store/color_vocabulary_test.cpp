#include "record_store/color_vocabulary.h"

#include <gtest/gtest.h>

#include "common/failure.h"

namespace qh {
namespace {

TEST(ColorVocabulary, RowsFollowThePaletteGridAndNamesAreKeysWithoutRegardToCase) {
    ColorVocabulary colors;
    colors.BuildColorValues();
    colors.BuildColorNames();
    ASSERT_EQ(colors.ColorValues.count(), 140);
    ASSERT_EQ(colors.ColorNames.count(), 140);
    EXPECT_EQ(colors.ColorNames(15), "Maroon");
    EXPECT_EQ(colors.ColorNames(140), "LightPink");
    for (int row = 1; row <= 140; ++row)
        EXPECT_EQ(colors.ColorValues(colors.ColorNames(row)), colors.ColorValues(row)) << row;
    // Values stand as the table has them, MediumPurple and PaleVioletRed included.
    EXPECT_EQ(colors.ColorValues("mistyrose"), 0xE1E4FFu);
    EXPECT_EQ(colors.ColorValues("MEDIUMPURPLE"), 0xD87093u);
    EXPECT_EQ(standardColors().ColorValues("PaleVioletRed"), 0x9370D8u);
    EXPECT_TRUE(colors.ColorValues.contains("honeydew"));
    EXPECT_FALSE(colors.ColorValues.contains("Mauve"));
    // Unknown names and rows are left untrapped.
    for (const char* unknown : {"Mauve", "", "White "}) EXPECT_THROW(colors.ColorValues(unknown), UntrappedFailure);
    EXPECT_THROW(colors.ColorNames(0), UntrappedFailure);
    EXPECT_THROW(colors.ColorValues(141), UntrappedFailure);
}

}  // namespace
}  // namespace qh
