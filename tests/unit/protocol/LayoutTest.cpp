#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "protocol/Layout.h"

using tarn::protocol::Layout;
using tarn::protocol::parseLayout;
using tarn::protocol::Type;

namespace {

std::string complaintAbout(const std::string& text) {
    try {
        parseLayout(text);
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return "";
}

/** A list in a list in a list ... of one integer. */
std::string nested(size_t depth) {
    std::string text(depth, '[');
    text += "i32 x";
    for (size_t i = 0; i < depth; i++) text += "] list";
    return text;
}

TEST(Layout, HasItsFieldsInOrder) {
    const Layout layout = parseLayout("i32 band, [s16 name, bool on] presets");
    ASSERT_EQ(layout.size(), 2u);
    EXPECT_EQ(layout[0].type, Type::kInt32);
    EXPECT_EQ(layout[0].name, "band");
    EXPECT_EQ(layout[1].type, Type::kList);
    EXPECT_EQ(layout[1].name, "presets");
    ASSERT_EQ(layout[1].record.size(), 2u);
    EXPECT_EQ(layout[1].record[0].type, Type::kString16);
    EXPECT_EQ(layout[1].record[1].type, Type::kBool);
    EXPECT_EQ(layout[1].record[1].name, "on");
}

TEST(Layout, MayBeEmpty) {
    EXPECT_TRUE(parseLayout("").empty());
    EXPECT_TRUE(parseLayout("  ").empty());
}

TEST(Layout, SaysWhatIsWrongAndWhere) {
    EXPECT_EQ(complaintAbout("i64 x"), "layout \"i64 x\", column 5: unknown type 'i64'");
    EXPECT_EQ(complaintAbout("i32"), "layout \"i32\", column 4: missing name");
    EXPECT_EQ(complaintAbout("[i32 x"), "layout \"[i32 x\", column 7: missing ']'");
    EXPECT_EQ(complaintAbout("i32 x;"), "layout \"i32 x;\", column 6: unexpected text");
    EXPECT_EQ(complaintAbout("i32 x,"), "layout \"i32 x,\", column 7: unknown type ''");
}

TEST(Layout, NestsListsToABound) {
    EXPECT_EQ(complaintAbout(nested(16)), "");
    EXPECT_EQ(complaintAbout(nested(17)),
              "layout \"" + nested(17) + "\", column 17: more than 16 nested lists");
}

TEST(Layout, DoesNotExhaustTheStack) {
    EXPECT_NE(complaintAbout(std::string(200'000, '[')), "");
}

}  // namespace
